"""The atlas: a page for each graph of the generator, and tables over all kernels."""
import collections
import json
import re

import library as lib
import machine_code
from pages import capital, code, escape, table, tabs

FAMILY_TITLES = {
    "complex": "Complex DFT",
    "real_forward": "Real DFT, forward",
    "real_inverse": "Real DFT, inverse",
    "hartley": "Hartley transform",
    "wht": "Walsh-Hadamard blocks",
    "dct4_fold": "DCT-IV: fold",
    "dct4_output": "DCT-IV: output row",
    "dct4_combine": "DCT-IV: combine row",
    "dct4_direct": "DCT-IV: direct",
}
# The exported family whose double kernel is shown for each family of graphs.
SHOWN = {
    "complex": ("DFTFwd_CToC", "64fc"),
    "real_forward": ("DFTFwd_RToCCS", "64f"),
    "real_inverse": ("DFTInv_CCSToR", "64f"),
    "hartley": ("Hartley", "64f"),
}
RECIPES_OF_BLOCKS = {"complex": "DFTFwd_CToC", "real": "DFTFwd_RToCCS", "spectrum": "DFTInv_CCSToR"}
KINDS = ["load", "sum", "difference", "product", "product of two values"]


def read_graphs(folder):
    """Name, as complex_15, -> what the generator says of the graph."""
    order = list(FAMILY_TITLES)
    found = [json.loads(path.read_text(encoding="ascii")) for path in folder.glob("*.json")]
    found.sort(key=lambda graph: (order.index(graph["family"]), graph["length"]))
    return {f"{graph['family']}_{graph['length']}": graph for graph in found}


class Block:
    """A block of a graph with those inside it, and the steps that are its own."""

    def __init__(self, number, row):
        self.number, (self.title, self.outer, self.length, self.multiplier, *_) = number, row
        self.inner, self.steps = [], collections.Counter()

    def all_numbers(self):
        return [self.number] + [number for block in self.inner for number in block.all_numbers()]

    def all_steps(self):
        return self.steps + sum((block.all_steps() for block in self.inner), collections.Counter())


def blocks_of(graph):
    """All blocks; the first one, without a title, is around all others."""
    blocks = [Block(number, row) for number, row in enumerate(graph["blocks"])]
    for block in blocks[1:]:
        blocks[block.outer].inner.append(block)
    for kind, _, _, number in graph["steps"]:
        if kind:
            blocks[number].steps[kind] += 1
    return blocks


def steps_text(steps):
    words = [f"{steps[1]} +", f"{steps[2]} −", f"{steps[3] + steps[4]} ×"]
    return ", ".join(words)


def shape(block):
    """Equal for blocks of the same title and the same blocks inside."""
    return block.title, tuple(shape(inner) for inner in block.inner)


def tree_html(blocks, is_outermost=False):
    """Alike neighbours once, with their number. A button highlights the steps."""
    groups = []
    for block in blocks:
        if groups and shape(groups[-1][0]) == shape(block):
            groups[-1].append(block)
        else:
            groups.append([block])
    items = ""
    for group in groups:
        numbers = ",".join(str(number) for block in group for number in block.all_numbers())
        steps = sum((block.all_steps() for block in group), collections.Counter())
        if not steps and not group[0].title:
            continue
        times = f"{len(group)} × " if len(group) > 1 else ""
        items += (
            f'<li><button type="button" data-blocks="{numbers}" aria-pressed="false">{times}'
            f'{escape(group[0].title or "steps of no block")}</button> <small>{steps_text(steps)}</small>'
            f'{tree_html(group[0].inner) if group[0].inner else ""}</li>'
        )
    return f'<ul{" class=tree" if is_outermost else ""}>{items}</ul>' if items else ""


def recipe_of(data, kind, length):
    family = RECIPES_OF_BLOCKS.get(kind)
    export = data.library.of(family, length, "64fc" if kind == "complex" else "64f") if family else None
    return export["recipe"] if export else None


def construction_words(kind, length, recipe):
    """How a block is made, with its numbers filled in. A spectrum block goes from bins to real values."""
    factors, name, is_spectrum = recipe.get("factors", []), recipe["construction"], kind == "spectrum"
    if name == "base":
        x, X = ("X", "y") if is_spectrum else ("x", "X")
        return f"One sum and one difference: {X}[0] = {x}[0] + {x}[1], {X}[1] = {x}[0] − {x}[1]."
    if name == "direct":
        return direct_words(length, is_spectrum)
    if name == "twiddled":
        a, b = factors
        source, result = ("bins X", "y") if is_spectrum else ("columns x", "X")
        symmetry = " Conjugate symmetry leaves half of the rows." if kind != "complex" else ""
        return (
            f"Twiddled: {length} = {a} · {b} (Cooley and Tukey 1965). Blocks of {a} on the {source}[r + {b}m], the"
            f" factors W<sub>{length}</sub><sup>{'−' if is_spectrum else ''}r·k<sub>1</sub></sup>, blocks of {b} on the"
            f" rows; output k<sub>2</sub> of row k<sub>1</sub> is {result}[k<sub>1</sub> + {a}k<sub>2</sub>].{symmetry}"
        )
    if name == "prime-factor":
        maps = " + ".join(f"{length // q}·n<sub>{number}</sub>" for number, q in enumerate(factors, 1))
        turned = ", ".join(f"{(length // q) % q} for {q}" for q in factors)
        return (
            f"Prime-factor: {length} = {' · '.join(map(str, factors))}, in this order (Good 1958). With n = {maps} mod"
            f" {length} and the same for k, no factor comes between the axes; the block of each axis has its root"
            f" turned by (N/q) mod q: {turned}."
        )
    m = length - 1
    words = (
        f"Rader’s construction for the prime {length} (1968): with the smallest primitive root g, X[g<sup>−m</sup>] is"
        f" x[0] plus the cyclic convolution of length {m} of x[g<sup>n</sup>] with exp(−2πi·g<sup>−n</sup>/{length})."
    )
    if kind == "complex":
        return (
            f"{words} It goes through real transforms of length {m} on each channel, products with constants, and back."
        )
    inside = " · ".join(map(str, factors))
    return (
        f"{words} There is one channel: even bins of a transform of {m} = {inside} give the real parts, odd bins the"
        " imaginary parts."
    )


def direct_words(length, is_spectrum):
    half = (length - 1) // 2
    if is_spectrum:
        return (
            f"Direct symmetric form. With the doubled bins d<sub>k</sub> + i·e<sub>k</sub>, k = 1 … {half}:"
            f" E<sub>m</sub> = X[0] + Σ cos(2πkm/{length}) d<sub>k</sub>, O<sub>m</sub> = Σ sin(2πkm/{length})"
            f" e<sub>k</sub>, y[m] = E<sub>m</sub> − O<sub>m</sub> and y[{length}−m] = E<sub>m</sub> + O<sub>m</sub>."
        )
    return (
        "Direct symmetric form. With a<sub>j</sub>, d<sub>j</sub> the sums and differences of x[j] and"
        f" x[{length}−j], j = 1 … {half}: P<sub>k</sub> = x[0] + Σ cos(2πjk/{length}) a<sub>j</sub>, Q<sub>k</sub>"
        f" = Σ sin(2πjk/{length}) d<sub>j</sub>, X[k] = P<sub>k</sub> − iQ<sub>k</sub> and X[{length}−k] ="
        " P<sub>k</sub> + iQ<sub>k</sub>."
    )


FORMULA_OF = {
    "complex": "CToC forward",
    "real_forward": "real forward",
    "real_inverse": "real inverse",
    "hartley": "Hartley",
    "wht": "WHT",
    "dct4_direct": "DCT4",
}
OTHERS = {
    "wht": (
        "Stages of butterflies a + b, a − b in rising stride, nothing merged. Orders above 7 pass such blocks over the "
        "array."
    ),
    "dct4_fold": (
        "The skew transform of folded points, C[k] = Σ v[s] exp(2πi·s(k + ½)/M), decimated in time. The loops of a "
        "plan run it over folded sequences."
    ),
    "dct4_output": (
        "Turns a row by exp(iπ(2m+1)(2p+1)/(4N)), whose values come from the table of a plan, and takes the mirrored "
        "skew transform of it: outputs going up from m and down from N − 1 − m."
    ),
    "dct4_combine": "Turns the parts of a split by the table of a plan and combines them by short DFTs.",
    "dct4_direct": (
        "A whole DCT-IV in one body: a fold, rotations and output rows, or at the shortest lengths rotations alone."
    ),
}


def is_direct_here(graph, kind, length):
    """Whether a block of a prime from 11 up is in direct form in this graph, whatever its own row says: one by Rader's
    construction has blocks inside."""
    if length < 11 or any(length % d == 0 for d in range(2, length)):
        return False
    title = re.compile(rf"{kind} block of {length}(,|$)")
    numbers = {number for number, row in enumerate(graph["blocks"]) if title.match(row[0])}
    return bool(numbers) and not any(row[1] in numbers for row in graph["blocks"][1:])


def construction(data, graph):
    family, length = graph["family"], graph["length"]
    parts = []
    if family in FORMULA_OF:
        text, where = lib.FORMULAS[FORMULA_OF[family]]
        parts.append(f'<p class="formula">{text}</p><p class="where">{where}</p>')
    rows = collections.OrderedDict()
    if family == "hartley":
        export = data.library.of("Hartley", length, "64f")
        recipe = export["recipe"]
        if recipe["form"] == "F":
            parts.append(
                "<p>Form F: the forward real graph, then Re X[k] − Im X[k] and Re X[k] + Im X[k] (Bracewell 1983)."
                + (" The sign of the exponent is reversed, and with it the two.</p>" if recipe["reversed"] else "</p>")
            )
        else:
            parts.append(
                "<p>Form I: s = in[k] + in[N−k] and d = in[k] − in[N−k] take the place of the doubled bins of the "
                "inverse real graph (Bracewell 1983).</p>"
            )
        rows[("real" if recipe["form"] == "F" else "spectrum", length)] = recipe
    if family in OTHERS:
        parts.append(f"<p>{OTHERS[family]}</p>")
    for title, _, size, *_ in graph["blocks"]:
        match = re.match(r"(complex|real|spectrum) block of (\d+)", title)
        if match:
            key = (match[1], int(match[2]))
            if key not in rows:
                rows[key] = recipe_of(data, *key)
    for kind, size in list(rows):
        if is_direct_here(graph, kind, size):
            rows[kind, size] = {"construction": "direct"}
    items = "".join(
        f"<li><strong>{kind} block of {size}</strong> {construction_words(kind, size, recipe)}</li>"
        for (kind, size), recipe in rows.items()
        if recipe
    )
    if items:
        parts.append(f"<ul>{items}</ul>")
    if any(row[0].startswith(("skew", "mirrored skew")) for row in graph["blocks"]):
        parts.append(
            "<p>A skew block is the odd bins of a real transform of twice the length; its mirror goes the other way."
            "</p>"
        )
    return "".join(parts)


def constants_table(graph):
    uses = collections.Counter(row[2] for row in graph["steps"] if row[0] == 3)
    if not graph["constants"]:
        return "<p>None: this graph has sums and differences only.</p>"
    rows = [
        [f"c[{number}]" if not (value == 2 and origin == "2") else "two", repr(value), escape(origin), uses[number]]
        for number, (value, origin) in enumerate(graph["constants"])
    ]
    return table(["name", "stored double", "origin", "uses"], rows, "Constants", "cncn", sortable=True)


def rules_table(blocks):
    """Steps by the rule that made them."""
    found = collections.OrderedDict()
    for block in blocks:
        if block.number == 0 and not block.steps:
            continue
        title = (
            re.sub(
                r",? ?(part|row|inner step|outer step) \d+( of \d+)?|,? ?\d+ points from \d+, stride \d+",
                lambda match: (match[1] or "butterflies"),
                block.title,
            )
            or "steps of no block"
        )
        entry = found.setdefault(title, [0, collections.Counter()])
        entry[0] += 1
        entry[1] += block.steps
    rows = [[escape(title), count, steps[1], steps[2], steps[3] + steps[4]] for title, (count, steps) in found.items()]
    total = sum((entry[1] for entry in found.values()), collections.Counter())
    rows.append(
        ["<strong>all</strong>", sum(entry[0] for entry in found.values()), total[1], total[2], total[3] + total[4]]
    )
    return table(
        ["rule", "blocks", "own additions", "own subtractions", "own products"], rows, "Steps by rule", "tnnnn"
    )


class Forms:
    """The texts of a graph, and which level runs which."""

    FOLDERS = {"scalar": "", "pairs": "_pairs", "lines": "_lines"}
    WORDS = {"scalar": "one number to a register", "pairs": "two lanes to a register", "lines": "up to four lanes"}

    def __init__(self, source, graph):
        self.texts = {}
        for form, ending in self.FOLDERS.items():
            path = source / re.sub(r"^(kernels/\w+?)/", rf"\1{ending}/", graph["text"])
            if path.exists() and (form == "scalar" or path != source / graph["text"]):
                self.texts[form] = path.read_text(encoding="ascii")

    def steps(self, form):
        """(sums, differences, products, shuffles, signs) of registers, or None for the scalar form."""
        match = re.search(
            r"(\d+) sums, (\d+) differences, (\d+) products of registers.*?(\d+) shuffles, (\d+) changes",
            self.texts[form].replace("\n//", ""),
            re.S,
        )
        return tuple(map(int, match.groups())) if match else None

    def body(self, form):
        """The text without what every file begins and ends with."""
        text = self.texts[form]
        start = text.index("    static void run") if "    static void run" in text else text.index("static void run")
        start = text.rindex("\n", 0, start) + 1
        lines = text[start : text.rindex("};")].splitlines()
        return "\n".join(line[4:] if line.startswith("    ") else line for line in lines)


def kernel_of(data, graph):
    """The export whose machine code is shown, or None."""
    family, length = graph["family"], graph["length"]
    if family in SHOWN:
        return data.library.of(SHOWN[family][0], length, SHOWN[family][1])
    if family == "wht":
        return data.library.of("WHT", length.bit_length() - 1, "64f")
    return None


def levels_of(data, graph, forms):
    """Which form each level runs."""
    if graph["family"] == "wht":
        return ["the body in lanes", "the body in lanes"]
    return ["pairs" if "pairs" in forms.texts else "scalar", "lines" if "lines" in forms.texts else "pairs"]


def figures_of(data, graph, export, codes, forms):
    """A row for each level: form, bytes, instructions, cycles, time over the floor."""
    found = data.times.of(export["family"], export["element"], lib.points(export))
    where, figures, floor = found or ("", {}, None)
    by_level = [figures.get("x86-64"), figures.get("zulgenpx")]
    rows = []
    for number, (level, size, count, _) in enumerate(codes):
        figure = by_level[number] if graph["family"] != "wht" else None
        cycles = figure[1] if figure else None
        rows.append(
            [
                level,
                levels_of(data, graph, forms)[number],
                size,
                count,
                f"{cycles:.0f}" if cycles else "",
                f"{cycles / floor:.2f}" if cycles and floor else "",
            ]
        )
    return where, floor, rows


def page(site, data, name, graph, codes):
    forms, blocks = Forms(data.source, graph), blocks_of(graph)
    export = kernel_of(data, graph)
    total = graph["additions"] + graph["subtractions"] + graph["multiplications"]
    parts = [
        f"<h1>{escape(graph['title'])}</h1><p class=\"lead\">{escape(capital(graph['recipe']))}; {total} steps: "
        f"{graph['additions']} additions, {graph['subtractions']} subtractions, {graph['multiplications']} products"
        + (
            f"; {graph['steps_with_scale']} with the products with scale."
            if graph["steps_with_scale"] != total
            else "."
        )
        + "</p>",
        '<h2 id="construction">Construction</h2>',
        construction(data, graph),
        (
            '<h2 id="tree">Tree of blocks</h2><p>Each block is made by one rule. A button highlights its steps in the'
            " drawing below.</p>"
        ),
        tree_html(blocks[0].inner, True),
        f"""<h2 id="flow">Data flow</h2>
<p>Inputs on the left, outputs on the right. A broken line is the value that is subtracted. Drag or use the arrow keys
to move, the wheel or + and − to zoom, N and P to walk from step to step; select a step to see what it is made of.</p>
<div class="toolbar" role="group" aria-label="View"><button type="button" data-view="in">Zoom in</button><button
type="button"
data-view="out">Zoom out</button><button type="button" data-view="fit">Whole graph</button><button type="button"
data-view="clear">Clear</button></div>
<div class="drawing" tabindex="0" role="group" aria-label="Data-flow graph of {len(graph['steps'])} nodes and
 {len(graph['outputs'])} outputs"></div><p class="reading" role="status"></p>
<noscript><p>The drawing needs scripts. The text below has the same steps.</p></noscript>""",
        f'<h2 id="constants">Constants</h2>{constants_table(graph)}',
        f'<h2 id="rules">Steps by rule</h2>{rules_table(blocks)}',
    ]
    rows = []
    for form in forms.texts:
        steps = forms.steps(form)
        if steps is None:
            rows.append([form, Forms.WORDS[form], graph["steps_with_scale"], "", ""])
        else:
            rows.append([form, Forms.WORDS[form], sum(steps[:3]), steps[3], steps[4]])
    if len(rows) > 1:
        parts.append(
            '<h2 id="forms">Forms</h2><p>Each form does the same sums and products in each lane, so that the results '
            "are the same bits. What is added are shuffles and changes of sign, which round nothing.</p>"
            + table(
                ["form", "what shares a register", "steps", "shuffles", "signs"], rows, "Forms of the text", "ttnnn"
            )
        )
    if codes:
        where, floor, rows = figures_of(data, graph, export, codes, forms)
        is_timed = bool(floor and rows[0][4])
        note = (
            f"Times: {escape(where)}. The floor, the least number of cycles for these steps with one number to a"
            f" register, is {floor:.0f} cycles."
            if is_timed
            else ""
        )
        parts.append(
            f'<h2 id="levels">Levels</h2><p>Of <a href="../reference/{export["name"]}.html"><code>{export["name"]}'
            f"</code></a>. {note}</p>"
            + table(
                ["level", "runs", "code bytes", "instructions"] + ["cycles", "time over the floor"] * is_timed,
                [row[: 4 + 2 * is_timed] for row in rows],
                "Code and time by level",
                "ttnnnn",
            )
        )
    texts = tabs("form", [(f"Text: {form}", code(forms.body(form), "cpp", f"Text, {form}")) for form in forms.texts])
    if codes:
        listings = tabs(
            "level",
            [
                (f"Machine code: {level}", code(data.machine.listing(start), "asm", f"Machine code, {level}"))
                for level, _, _, start in codes
            ],
        )
        parts.append(
            f'<h2 id="code">Text and machine code</h2><div class="columns"><div>{texts}</div><div>{listings}</div>'
            "</div>"
        )
    else:
        parts.append(
            '<h2 id="code">Text</h2><p>This body has no routine of its own: loops include it, and each routine has '
            f"a copy that is inlined.</p>{texts}"
        )
    users = [
        each
        for each in data.library.exports
        if lib.size_of(each) is not None
        and lib.GRAPH_OF.get(each["family"]) == graph["family"]
        and lib.points(each) == graph["length"]
    ]
    if users:
        parts.append(
            '<h2 id="routines">Routines that run it</h2><ul class="names">'
            + "".join(f'<li><a href="../reference/{each["name"]}.html">{each["name"]}</a></li>' for each in users)
            + "</ul>"
        )
    path = f"atlas/{name}.html"
    site.page(
        path,
        graph["title"],
        "\n".join(parts),
        trail=[("Atlas", "atlas/index.html"), (FAMILY_TITLES[graph["family"]], f"atlas/{graph['family']}.html")],
        scripts=[f"atlas/data/{name}.js", "assets/flow.js", "assets/tables.js"],
        words=f"graph atlas kernel {graph['family'].replace('_', ' ')} {graph['length']} {graph['recipe']}",
    )
    compact = {key: graph[key] for key in ("blocks", "constants", "inputs", "steps", "outputs")}
    site.file(f"atlas/data/{name}.js", "const zulgGraph = " + json.dumps(compact, separators=(",", ":")) + ";\n")


def family_page(site, data, family):
    graphs = [(name, graph) for name, graph in data.graphs.items() if graph["family"] == family]
    body = f"<h1>{FAMILY_TITLES[family]}</h1>" + table(
        ["graph", "construction", "additions", "subtractions", "products", "constants", "values alive at most"],
        [
            [
                f'<a href="{name}.html">{graph["length"]}</a>',
                escape(graph["recipe"]),
                graph["additions"],
                graph["subtractions"],
                graph["multiplications"],
                len(graph["constants"]),
                graph["most_alive"],
            ]
            for name, graph in graphs
        ],
        "Graphs of the family",
        "ntnnnnn",
        sortable=True,
    )
    site.page(
        f"atlas/{family}.html",
        FAMILY_TITLES[family],
        body,
        trail=[("Atlas", "atlas/index.html")],
        scripts=["assets/tables.js"],
        words="atlas graphs",
    )


def kernel_rows(data, codes):
    """All kernels of both element types: a row for each, with the figures of both levels."""
    kernels = [export for export in data.library.exports if "counts" in export]
    for export in sorted(
        kernels, key=lambda each: (lib.FAMILIES.index(each["family"]), lib.points(each), each["element"])
    ):
        counts, points = export["counts"], lib.points(export)
        sums, products = counts["additions"] + counts["subtractions"], counts["multiplications"] + counts["scale"]
        sizes = codes.get(export["name"], [("", 0), ("", 0)])
        found = data.times.of(export["family"], export["element"], points)
        cycles, lower, floor = "", "", None
        if found:
            _, figures, floor = found
            cycles = figures["zulgenpx"][1] or ""
            lower = figures.get("x86-64", (0, ""))[1] or ""
        error = data.errors.of(export["family"], points, export["element"])
        bound = data.bounds.get((export["family"], points, export["element"][:2]))
        yield export, [
            f'<a href="../reference/{export["name"]}.html">{export["name"]}</a>',
            points,
            f'<a href="{lib.GRAPH_OF[export["family"]]}_{points}.html">{escape(export["recipe"]["words"])}</a>',
            sums,
            products,
            counts["constants"],
            sizes[0][1] or "",
            sizes[1][1] or "",
            f"{lower:.0f}" if lower else "",
            f"{cycles:.0f}" if cycles else "",
            f"{cycles / floor:.2f}" if cycles and floor else "",
            f"{error[0][0]:.2f}" if error else "",
            f"{error[0][1]:.2f}" if error else "",
            f"{bound[0]:.2f}" if bound else "",
        ]


def kernels_page(site, data, codes):
    heads = [
        "kernel",
        "points",
        "construction",
        "sums",
        "products",
        "constants",
        "bytes",
        "bytes, AVX2",
        "cycles",
        "cycles, AVX2",
        "over the floor",
        "pooled error",
        "worst",
        "proved bound",
    ]
    rows = []
    for export, row in kernel_rows(data, codes):
        cells = "".join(
            (
                f'<th scope="row" class="code">{cell}</th>'
                if number == 0
                else f"<td>{cell}</td>" if number == 2 else f'<td class="number">{cell}</td>'
            )
            for number, cell in enumerate(row)
        )
        rows.append(
            f'<tr data-family="{export["family"]}" data-element="{export["element"][:2]}" '
            f'data-length="{lib.points(export)}">{cells}</tr>'
        )
    options = "".join(
        f'<option value="{family}">{lib.TITLES[family]}</option>' for family in lib.FAMILIES if family in lib.GRAPH_OF
    )
    head = "".join(
        f'<th scope="col"{"" if number in (0, 2) else " class=number"}>{name}</th>' for number, name in enumerate(heads)
    )
    body = f"""<h1>All kernels</h1>
<p class="lead">{len(rows)} kernels: steps, bytes of code at both levels, cycles and errors. Errors are relative, in
units of 2<sup>−53</sup> for 64f and 2<sup>−24</sup> for 32f, at factor 1. A proved bound is of the error of one output
over the 2-norm of the input. Bytes count instructions, without constants.</p>
<form class="filter" data-table="kernels"><label>Words <input name="words" type="search"></label>
<label>Family <select name="family"><option value="">all</option>{options}</select></label>
<label>Element <select name="element"><option value="">both</option><option value="32">single</option><option
value="64">double
</option></select></label>
<label>Points from <input name="from" type="number" min="2" max="8192" size="6"></label>
<label>to <input name="to" type="number" min="2" max="8192" size="6"></label><output role="status"></output></form>
<div class="wide" role="group" aria-label="All kernels" tabindex="0"><table class="sortable" id="kernels"><caption>All
kernels </caption><thead><tr>{head}</tr></thead><tbody>
{chr(10).join(rows)}
</tbody></table></div>"""
    site.page(
        "atlas/kernels.html",
        "All kernels",
        body,
        trail=[("Atlas", "atlas/index.html")],
        scripts=["assets/tables.js"],
        words="table sort filter bytes cycles errors",
        is_broad=True,
    )
    return len(rows)


def build(site, data):
    data.machine = machine_code.MachineCode(data.source, data.build / "libzulgenpx-7.0.so", data.objdump)
    codes = {
        export["name"]: data.machine.kernels(export["name"]) for export in data.library.exports if "counts" in export
    }
    data.codes = codes
    for name, graph in data.graphs.items():
        export = kernel_of(data, graph)
        page(site, data, name, graph, codes[export["name"]] if export else [])
    for family in FAMILY_TITLES:
        family_page(site, data, family)
    count = kernels_page(site, data, codes)
    cards = "".join(
        "<li><a"
        f" href=\"{family}.html\">{title}</a><span>{sum(graph['family'] == family for graph in data.graphs.values())} "
        "graphs</span></li>"
        for family, title in FAMILY_TITLES.items()
    )
    lengths = "".join(
        f"<li><strong>{FAMILY_TITLES[family]}</strong> "
        + " ".join(
            f'<a href="{name}.html">{graph["length"]}</a>'
            for name, graph in data.graphs.items()
            if graph["family"] == family
        )
        + "</li>"
        for family in FAMILY_TITLES
    )
    site.page(
        "atlas/index.html",
        "Atlas",
        f"""<h1>Atlas of kernels</h1>
<p class="lead">A transform is a graph of sums, differences and products. {len(data.graphs)} graphs make all kernels
and the bodies of the long transforms. Each has a page: how it is constructed, its blocks, its data flow, its
constants, its text and its machine code.</p>
<ul class="cards">{cards}<li><a href="kernels.html">All kernels in one table</a><span>{count} rows, to sort and to
filter</span> </li></ul><h2>By length</h2><ul class="lengths">{lengths}</ul>""",
        words="atlas graphs kernels",
    )
