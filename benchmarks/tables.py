"""The results as Markdown: a summary of each family, then every length."""
import collections
import re
import statistics

PEERS = [("fftw_patient_scalar", "FFTW patient"), ("fftw_measure_scalar", "measure"),
         ("fftw_estimate_scalar", "estimate"), ("fftw_patient_simd", "patient, SIMD"),
         ("fftw_measure_simd", "measure, SIMD"), ("fftw_estimate_simd", "estimate, SIMD"), ("kissfft", "KissFFT"),
         ("gsl", "GSL"), ("plain_in_place", "plain loop"), ("plain_copied", "plain loop and copy"),
         ("zulgenpx_loop", "one by one"), ("zulgenpx_single", "computed in single")]
TITLES = {"complex_forward": "Complex, forward", "complex_inverse": "Complex, inverse",
          "real_forward": "Real to half spectrum (CCS; FFTW r2c)",
          "real_inverse": "Half spectrum to real (CCS; FFTW c2r)",
          "packed_forward": "Real to half spectrum (Pack; FFTW r2hc)",
          "packed_inverse": "Half spectrum to real (Pack; FFTW hc2r)",
          "permuted_forward": "Real to half spectrum (Perm; FFTW r2hc)",
          "permuted_inverse": "Half spectrum to real (Perm; FFTW hc2r)", "hartley": "Hartley (FFTW DHT)",
          "dct4": "DCT-IV (FFTW REDFT11)", "wht": "Walsh-Hadamard",
          "batch_32_complex_forward": "Complex, forward: 32 transforms in a call, one after the other",
          "batch_1024_complex_forward": "Complex, forward: 1024 transforms in a call, one after the other",
          "batch_beside_32_complex_forward": "Complex, forward: 32 transforms in a call, side by side",
          "batch_beside_1024_complex_forward": "Complex, forward: 1024 transforms in a call, side by side",
          "batch_32_real_forward": "Real to half spectrum (CCS): 32 transforms in a call, one after the other",
          "batch_1024_real_forward": "Real to half spectrum (CCS): 1024 transforms in a call, one after the other",
          "batch_32_real_inverse": "Half spectrum (CCS) to real: 32 transforms in a call, one after the other",
          "batch_1024_real_inverse": "Half spectrum (CCS) to real: 1024 transforms in a call, one after the other",
          "batch_beside_32_hartley": "Hartley: 32 transforms in a call, side by side",
          "batch_beside_1024_hartley": "Hartley: 1024 transforms in a call, side by side",
          "dispatch_complex_forward": "Complex, forward: the length as an argument",
          "cold_complex_forward": "Complex, forward: one call with empty caches",
          "cold_real_forward": "Real, forward: one call with empty caches",
          "first_complex_forward": "Complex, forward: plan and first call in a new process",
          "first_real_forward": "Real, forward: plan and first call in a new process"}


def percent(part):
    return f"{100 * part:.0f} %"


def rows(columns, lines, words=0):
    """A table whose first `words` columns hold words, the others numbers."""
    yield "| " + " | ".join(columns) + " |"
    yield "|" + "---|" * words + "--:|" * (len(columns) - words)
    for line in lines:
        yield "| " + " | ".join(line) + " |"


def time_text(nanoseconds):
    return f"{nanoseconds:.1f}" if nanoseconds < 1000 else f"{nanoseconds:.0f}"


def ratio(item, peer):
    """Peer time over ours; in cycles where the clock was taken."""
    figure = item.figures[peer]
    return figure.cycles / item.ours.cycles if item.ours.cycles else figure.nanoseconds / item.ours.nanoseconds


def other_builds(items):
    """The further builds of our library that took part."""
    of_each = ("_dispatcher", "_loop", "_single")  # further participants of a build
    present = {name for item in items for name in item.figures if not name.endswith(of_each)}
    return sorted(present - {"zulgenpx", *dict(PEERS)})


def builds_table(families):
    """How this build does beside the others: for each family, then for all transforms together."""
    everything = collections.defaultdict(list)
    lines = []

    def add(title, element, build, ratios):
        least, most = min(ratios), max(ratios)
        lines.append([title, element, build, f"{statistics.geometric_mean(value for value, _ in ratios):.3f}",
                      f"{least[0]:.2f}, {least[1]}", f"{most[0]:.2f}, {most[1]}", str(len(ratios))])

    for (family, element), items in families.items():
        for build in other_builds(items):
            ratios = [(ratio(item, build), str(item.size)) for item in items if build in item.figures]
            title = re.sub(r"; FFTW \w+| \(FFTW \w+\)", "", TITLES.get(family, family))  # no peer takes part
            add(title, element, build, ratios)
            everything[element, build] += [(value, f"{family} {size}") for value, size in ratios]
    for element, build in sorted(everything):
        add("all", element, build, everything[element, build])
    for build in sorted({build for _, build in everything}):
        add("all", "both", build, [pair for key, pairs in everything.items() if key[1] == build for pair in pairs])
    return rows(["family", "element", "build", "geometric mean", "least, at N", "most, at N", "transforms"], lines,
                words=3) if lines else []


def family_table(items):
    present = {name for item in items for name in item.figures}
    builds = other_builds(items)
    peers = [(name, name) for name in builds] + [peer for peer in PEERS if peer[0] in present]
    has_cycles = bool(items[0].ours.cycles)
    has_floor, has_bytes = any(item.floor for item in items), any(item.code_bytes for item in items)
    columns = ["N", "ns", "spread"] + ["cycles"] * has_cycles + ["floor", "of floor"] * has_floor
    columns += ["code bytes"] * has_bytes + [title for _, title in peers]
    lines = []
    for item in items:
        line = [str(item.size), time_text(item.ours.nanoseconds), percent(item.ours.spread)]
        if has_cycles:
            line.append(f"{item.ours.cycles:.1f}")
        if has_floor:
            line += [f"{item.floor:.1f}", f"{item.ours.cycles / item.floor:.2f}"]
        if has_bytes:
            line.append(str(item.code_bytes or ""))
        line += [f"{ratio(item, peer):.2f}" if peer in item.figures else "" for peer, _ in peers]
        lines.append(line)
    return rows(columns, lines)


def summary(families):
    columns = ["family", "element", "peer", "geometric mean", "least, at N", "below 1 at N",
               "of floor from N = 5: median", "most, at N"]
    lines = []
    for (family, element), items in families.items():
        if not items[0].ours.cycles or family.startswith("dispatch_"):
            continue
        for peer in ("plain_in_place",) if family == "wht" else ("fftw_patient_simd", "fftw_patient_scalar"):
            ratios = {item.size: ratio(item, peer) for item in items if peer in item.figures}
            if ratios:
                lines.append(summary_line(family, element, peer, items, ratios))
    return rows(columns, lines, words=3) if lines else []


def summary_line(family, element, peer, items, ratios):
    least = min(ratios, key=ratios.get)
    below = ", ".join(str(size) for size, value in ratios.items() if value < 1) or "none"
    line = [TITLES.get(family, family), element, dict(PEERS)[peer],
            f"{statistics.geometric_mean(ratios.values()):.2f}", f"{ratios[least]:.2f}, {least}", below]
    of_floor = {item.size: item.ours.cycles / item.floor for item in items if item.floor and item.size >= 5}
    if of_floor:
        most = max(of_floor, key=of_floor.get)
        line += [f"{statistics.median(of_floor.values()):.2f}", f"{of_floor[most]:.2f}, {most}"]
    else:
        line += ["", ""]
    return line


def dispatch_text(families):
    for (_, element), items in families.items():
        name = next((name for name in items[0].figures if name == "zulgenpx_dispatcher"), None)
        if name is None:
            continue
        extra = [item.figures[name].nanoseconds - item.ours.nanoseconds for item in items]
        yield (f"- {element}: the length as an argument costs {statistics.median(extra):.2f} ns more in the median "
               f"over {len(items)} lengths, {min(extra):.2f} to {max(extra):.2f} ns.")


def load_text(loads):
    for name, figure in loads.items():
        yield f"- {name}: {figure.nanoseconds / 1000:.0f} us"


def x87_table(steps):
    columns = ["family", "element", "median", "most, at N", "over 1.15 at N"]
    lines = []
    for (family, element), values in steps.items():
        per_step = {size: cycles / floor for size, cycles, floor, _ in values if size >= 5}
        if not per_step:
            continue
        most = max(per_step, key=per_step.get)
        over = ", ".join(str(size) for size, value in per_step.items() if value > 1.15) or "none"
        lines.append([TITLES.get(family, family), element, f"{statistics.median(per_step.values()):.2f}",
                      f"{per_step[most]:.2f}, {most}", over])
    return rows(columns, lines, words=2)


def x87_lengths(steps):
    sizes = sorted({size for values in steps.values() for size, *_ in values})
    lines = []
    for size in sizes:
        line = [str(size)]
        for values in steps.values():
            found = next((value for value in values if value[0] == size), None)
            line.append(f"{found[1]:.0f} / {found[2]:.0f} = {found[1] / found[2]:.2f}" if found else "")
        lines.append(line)
    return rows(["N"] + [f"{family} {element}" for family, element in steps], lines)
