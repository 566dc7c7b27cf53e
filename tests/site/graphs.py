"""Holds the graphs that `generate graphs` writes against the definitions of the transforms, the catalogue and the
texts."""
import json
import pathlib
import re
import tempfile

import numpy as np

import common

args = common.parsed()
failures = common.Failures()


def run(graph, inputs):
    """The outputs of a graph, by port and number."""
    values = []
    for kind, a, b, _ in graph["steps"]:
        values.append(
            inputs[graph["inputs"][a]]
            if kind == 0
            else (
                values[a] + values[b]
                if kind == 1
                else (
                    values[a] - values[b]
                    if kind == 2
                    else graph["constants"][b][0] * values[a] if kind == 3 else values[a] * values[b]
                )
            )
        )
    return {(port, number): -values[step] if minus else values[step] for port, number, step, minus in graph["outputs"]}


def reals(x):
    return {f"x{n}": value for n, value in enumerate(x)}


def complexes(x):
    return {
        f"x{n}{part}": value for n, number in enumerate(x) for part, value in (("r", number.real), ("i", number.imag))
    }


def defined(family, n, random):
    """Inputs and the outputs that are due, or None where the family is a body that is no transform by itself."""
    if family == "complex":
        x = random.standard_normal(n) + 1j * random.standard_normal(n)
        due = np.fft.fft(x)
        return complexes(x), {
            (part, k): getattr(due[k], name) for k in range(n) for part, name in (("re", "real"), ("im", "imag"))
        }
    x = random.standard_normal(n)
    if family == "real_forward":
        due = np.fft.rfft(x)
        outputs = {("re", k): bin_.real for k, bin_ in enumerate(due)}
        outputs.update({("im", k): due[k].imag for k in range(1, (n + 1) // 2)})
        return reals(x), outputs
    if family == "real_inverse":
        bins = np.fft.rfft(x)
        return complexes(bins), {("out", k): n * value for k, value in enumerate(x)}
    if family == "hartley":
        due = np.fft.fft(x)
    elif family == "wht":
        due = np.array([sum((-1) ** (j & k).bit_count() * x[j] for j in range(n)) for k in range(n)]) + 0j
    elif family == "dct4_direct":
        at = np.arange(n) + 0.5
        due = np.cos(np.pi / n * np.outer(at, at)) @ x + 0j
    else:
        return None
    return reals(x), {("out", k): value.real - value.imag for k, value in enumerate(due)}


def check(graph, catalogue, random):
    name = f"{graph['family']} {graph['length']}"
    steps = graph["steps"]
    for at, (kind, a, b, block) in enumerate(steps):
        earlier = {0: True, 3: a < at and b < len(graph["constants"])}.get(kind, a < at and b < at)
        failures.expect(earlier and block < len(graph["blocks"]), f"{name}: step {at} refers to a later one")
    counts = [sum(step[0] == kind for step in steps) for kind in range(5)]
    failures.expect(
        counts[1:3] == [graph["additions"], graph["subtractions"]]
        and counts[3] + counts[4] == graph["multiplications"],
        f"{name}: counts {counts}",
    )
    text = (args.source / graph["text"]).read_text(encoding="ascii")
    operations = re.findall(r"const V t\d+ = .*? ([-+*]) ", text)
    failures.expect(operations == [" +-**"[step[0]] for step in steps if step[0]], f"{name}: not the order of the text")
    origins = re.findall(r"(\S+),  // c\[\d+\]: (.*)", text)
    ours = [[value, origin] for value, origin in graph["constants"]]
    failures.expect([[float(value), origin] for value, origin in origins] == ours[: len(origins)], f"{name}: constants")
    for export in catalogue.get(name, []):
        found = export["counts"]
        failures.expect(
            [found[key] for key in ("additions", "subtractions", "multiplications")]
            == [graph[key] for key in ("additions", "subtractions", "multiplications")],
            f"{name}: not the counts of {export['name']}",
        )
    example = defined(graph["family"], graph["length"], random)
    if example:
        found = run(graph, example[0])
        error = max(abs(found[place] - value) for place, value in example[1].items())
        failures.expect(set(found) == set(example[1]) and error < 1e-12, f"{name}: error {error}")


def main():
    import library

    catalogue = {}
    for export in library.Library(args.source).exports:
        if "counts" in export:
            key = f"{library.GRAPH_OF[export['family']]} {library.points(export)}"
            catalogue.setdefault(key, []).append(export)
    with tempfile.TemporaryDirectory(dir=args.build) as folder:
        common.graphs_into(args, folder)
        paths = sorted(pathlib.Path(folder).glob("*.json"))
        for path in paths:
            check(json.loads(path.read_text(encoding="ascii")), catalogue, np.random.default_rng(7))
    failures.expect(len(paths) == 4 * 63 + 7 + 22, f"{len(paths)} graphs")
    failures.end("graphs")


main()
