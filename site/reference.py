"""The reference: a page for each routine of the library, of the batch library and of the faces for C++ and Python."""
import faces
import library as lib
import snippets
from pages import capital, code, escape, facts, relative, table, tabs

FOLDER = "reference"
DESCRIPTIONS = {
    "pSrc": "source, read only",
    "pDst": "destination, all of it written and nothing beyond",
    "flag": "one of the four scale flags",
    "length": "how many points",
    "order": "N = 2<sup>order</sup>",
    "pBuffer": "memory to work in",
    "pSize": "receives the number of bytes",
    "plan": "a plan of this element type",
    "pPlan": "receives the plan",
    "count": "how many transforms",
    "srcStep": "from element to element of the source",
    "dstStep": "the same of the destination",
    "srcDistance": "from transform to transform in the source",
    "dstDistance": "the same of the destination",
}


def path_of(name):
    return f"{FOLDER}/{name}.html"


def number(value):
    return f"{value:.2f}"


def argument_rows(export):
    for argument in export["arguments"]:
        elements = "" if argument["use"] == "value" else str(argument["elements"])
        shape = escape(elements) + (" of each transform" if "step" in argument else "") if elements else "by value"
        yield [
            argument["name"],
            escape(lib.c_argument(argument)),
            shape,
            DESCRIPTIONS.get(argument["name"], "") + ("; may be null" if argument.get("null") else ""),
        ]


def slots_figure(export):
    """The array of the half spectrum, slot by slot."""
    named = lib.slots(export)
    if named is None:
        return ""
    n, layout = export["length"], export["spectrum"]["layout"]
    cells = []
    for slot, held in enumerate(named):
        if held == "0":
            words, kind = "+0.0", "zero"
        else:
            words = f"{'Re' if held[0] == 'R' else 'Im'} X[{held[1:]}]"
            kind = "real" if held[0] == "R" else "imaginary"
        cells.append(f'<li class="{kind}"><span class="slot">{slot}</span><span class="held">{words}</span></li>')
    rule = {
        "CCS": (
            "They are the bins in turn, real part before imaginary part: what NumPy’s rfft returns, seen as reals."
        ),
        "Pack": f"They are those of CCS without the {'zeros' if n % 2 == 0 else 'zero'}.",
        "Perm": (
            "They are those of CCS without the zeros; Re X[N/2] is in the place of the first one."
            if n % 2 == 0
            else "They are those of CCS without the zero. At odd lengths Perm is the same as Pack."
        ),
    }[layout]
    reads = (
        (
            "The zeros are stored whatever the input is."
            if export["sense"] == "forward"
            else "What is in the slots of the zeros has no effect; N + 1 elements suffice."
        )
        if layout == "CCS"
        else ""
    )
    return (
        f'<h2 id="slots">Which slot holds which bin</h2><p>{export["spectrum"]["argument"]} has {len(named)} '
        f'elements. {rule} {reads}</p><ol class="slots" start="0" aria-label="Slots of {layout} at {n} points">'
        f'{"".join(cells)}</ol>\n'
    )


def order_in_words(export):
    """Where things are in arrays that hold no half spectrum."""
    n = lib.points(export)
    if "CToC" in export["family"]:
        last = f"{n - 1}" if n else "N−1"
        half = f"{n // 2 + 1}" if n else "N/2 + 1"
        spectrum = "pDst" if export["sense"] == "forward" else "pSrc"
        words = (
            f"Element k of {spectrum} is X[k], from 0 to {last}: its real part, then its imaginary part. Seen as reals,"
            f" these are slots 2k and 2k+1. X[0] is the sum of the input; the bins from {half} on are the negative"
            " frequencies k − N. Nothing is shifted."
        )
    elif export["family"] == "WHT":
        words = "Element k is row k of the Hadamard matrix times the input, in natural order: no bits are reversed."
    elif export["family"] == "DCT4":
        words = "Element k is y[k], rising in frequency: (k + ½)/2N of the rate of the samples."
    else:
        words = "Element k is out[k]. The frequencies k and N − k are those of one bin of the DFT."
    return f'<h2 id="slots">Which slot holds which bin</h2><p>{words}</p>'


def slots_in_words(export):
    layout = export["spectrum"]["layout"]
    rows = [
        ["CCS", "N+2, or N+1 at odd N", "0", "N", "2k", "2k+1"],
        ["Pack", "N", "0", "N−1", "2k−1", "2k"],
        ["Perm, even N", "N", "0", "1", "2k", "2k+1"],
        ["Perm, odd N", "N", "0", "–", "2k−1", "2k"],
    ]
    return '<h2 id="slots">Which slot holds which bin</h2>' + table(
        ["layout", "elements", "Re X[0]", "Re X[N/2]", "Re X[k]", "Im X[k], 0 &lt; k &lt; N/2"],
        [row for row in rows if row[0].startswith(layout)],
        "Slots by length",
        "tnnnnn",
    )


def scale_table(export):
    n = lib.points(export)
    sense = {"forward": "forward", "inverse": "inverse"}.get(export.get("sense"), "either direction")
    values = {"1": "1", "1/N": f"1/{n}" if n else "1/N", "1/√N": f"1/√{n}" if n else "1/√N"}
    rows = []
    for name, flag, norm in (
        ("DivFwdByN", 1, "forward"),
        ("DivInvByN", 2, "backward, the default"),
        ("DivBySqrtN", 4, "ortho"),
        ("NoDivByAny", 8, ""),
    ):
        rows.append([name, flag, values[lib.scale_of(export, flag)], norm])
    return (
        '<h2 id="scale">Who divides by N</h2><p>The flag is one value and no set of bits. The same flag forward and '
        "then inverse restores the input for 1, 2 and 4; 8 on both multiplies it by N.</p>"
        + table(["flag", "value", f"factor, {sense}", "NumPy’s norm"], rows, "Factor of each flag", "cnnt")
    )


def statuses(export):
    arguments = {argument["name"] for argument in export["arguments"]}
    name = export["name"]
    rows = [["StatusOk", 0, "done"]]
    size = next((each for each in ("length", "order") if each in arguments), None)
    if size:
        allowed = (
            "2 to 64"
            if size == "length" and export["family"] != "DCT4"
            else "1 to 13" if size == "order" else "what GetSize accepts"
        )
        rows.append(
            [
                "StatusSizeError",
                -6,
                (
                    f"{size} is not {allowed}"
                    if export["family"] != "DCT4"
                    else "the length is not accepted: use powers of two from 2 up"
                ),
            ]
        )
    checked = [each for each in ("pSrc", "pDst", "plan", "pPlan") if each in arguments]
    if "pBuffer" in arguments and ("Batch" in name or export["family"] == "DCT4"):
        checked.append("pBuffer, where it is needed")
    if checked and "GetSize" not in name:
        rows.append(["StatusNullPointer", -8, " or ".join(checked) + " is null"])
    if name.startswith("zulgDCT4InitAlloc"):
        rows[-1][2] += ", or the core library has no memory"
    if "flag" in arguments:
        rows.append(["StatusFlagError", -16, "flag is not exactly one of 1, 2, 4, 8"])
    if export["family"] == "DCT4" and "pDst" in arguments:
        rows.append(["StatusPlanKindError", -5, "the kind of the plan is unknown"])
    if "Batch" in name and "count" in arguments:
        rows.append(
            [
                "StatusSizeError",
                -6,
                "count is negative, a place in bytes is no number of 64 bits, or two results would be in one place",
            ]
        )
    note = (
        ""
        if len(rows) == 1
        else (
            "<p>Checks come in the order of this table. Unless the status is StatusOk, nothing has been read or "
            "written.</p>"
        )
    )
    if "DCT4Init_" in name:
        note = "<p>A length is refused only after a part of the plan has been built in the block.</p>"
    if "pSize" in arguments:
        note = "<p>pSize is not checked: a null pointer faults. On a refusal *pSize is as it was.</p>"
    return '<h2 id="statuses">Statuses</h2>' + note + table(["status", "value", "when"], rows, "Statuses", "cnt")


def promises(export):
    """Aliasing, threads, memory, stack."""
    family, name, rows = export["family"], export["name"], []
    is_batch, is_transform = "Batch" in name, lib.is_transform(export)
    if is_transform and not is_batch:
        rows.append(
            (
                "Aliasing",
                (
                    "All input is read before the first output is written: pDst may equal pSrc or overlap "
                    "it in any way. Arrays need no alignment."
                ),
            )
        )
    if is_batch and is_transform:
        rows.append(
            (
                "Aliasing",
                (
                    "In place where steps and distances of both arrays are equal. Otherwise no element that "
                    "is written may be one that is read. Nothing needs to be aligned."
                ),
            )
        )
    if family == "DCT4" and (is_transform or "Init" in name):
        rows.append(
            (
                "Threads",
                (
                    "A plan of more than 32 points serves one thread at a time: each run writes inside it. "
                    "Different plans run at the same time."
                ),
            )
        )
    else:
        rows.append(
            (
                "Threads",
                "Any number of threads may call at the same time, each with its own destination"
                + (" and buffer" if family == "WHT" else "")
                + ". There is no state and no lock.",
            )
        )
    if family == "WHT" and is_transform:
        order = export.get("order")
        sizes = f"{export['element']}: "
        if not is_batch and order and order <= 7:
            rows.append(("Memory", "Nothing is allocated; pBuffer is ignored at orders 1 to 7."))
        else:
            rows.append(
                (
                    "Memory",
                    "Orders 8 to 13 work through pBuffer, as many bytes as zulgWHTGetBufferSize says"
                    + (
                        ". A null pointer is refused."
                        if is_batch
                        else (
                            ". With a null pointer the routine takes a "
                            "block from the core library for the time of the call; where there is none, the call "
                            "faults."
                        )
                    )
                    + (f" The buffer of order {order} has {{}} bytes." if order else ""),
                )
            )
    elif family == "DCT4" and "InitAlloc" in name:
        rows.append(("Memory", "The plan is in a block of the core library; give it back with the routine Free."))
    elif family == "DCT4" and "Init_" in name:
        rows.append(
            ("Memory", "The plan is in the caller’s block of as many bytes as GetSize says. Never move or copy it.")
        )
    else:
        rows.append(("Memory", "Nothing is allocated."))
    if is_batch:
        stack = lib.STACK["batch DCT4" if family == "DCT4" else "batch"]
    elif family == "DCT4" and not is_transform:
        stack = lib.STACK["build"]
    else:
        stack = (
            lib.STACK.get(family) or lib.STACK["CToC" if "CToC" in family else "R"] if family != "version" else "none"
        )
    rows.append(("Stack", f"{capital(stack)}, on every target."))
    return rows


def counts_of(export, name_of_graph, here):
    counts = export["counts"]
    sums = counts["additions"] + counts["subtractions"]
    total = sums + counts["multiplications"] + counts["scale"]
    rows = [
        (
            "Steps",
            (
                f"{total}: {counts['additions']} additions, {counts['subtractions']} subtractions, "
                f"{counts['multiplications']} products, and {counts['scale']} products with scale"
            ),
        ),
        ("Constants", counts["constants"]),
        ("Construction", escape(capital(export["recipe"]["words"]))),
    ]
    if counts["negations"]:
        count = counts["negations"]
        rows.append(
            (
                "Signs",
                "One output is stored with its sign changed"
                if count == 1
                else f"{count} outputs are stored with their signs changed",
            )
        )
    if name_of_graph:
        rows.append(
            (
                "Graph",
                (
                    f'<a href="{relative(here, f"atlas/{name_of_graph}.html")}">'
                    f'{name_of_graph.replace("_", " ")} in the atlas</a>'
                ),
            )
        )
    return '<h2 id="counts">Counts</h2>' + facts(rows)


def error_facts(found, element, any_flag_word=True):
    unit = "2<sup>−53</sup>" if element.startswith("64") else "2<sup>−24</sup>"
    (pooled, worst), any_flag = found
    rows = [("Factor 1", f"{number(pooled)} pooled, {number(worst)} worst, times {unit}")]
    if any_flag:
        rows.append(("Any flag", f"{number(any_flag[0])} pooled, {number(any_flag[1])} worst, times {unit}"))
    return rows


def accuracy(export, errors, bounds):
    points, element = lib.points(export), export["element"]
    found = errors.of(export["family"], points, element)
    bound = bounds.get((export["family"], points, element[:2]))
    if not found:
        return ""
    rows = error_facts(found, element)
    if bound:
        unit = "2<sup>−53</sup>" if element.startswith("64") else "2<sup>−24</sup>"
        rows.append(
            (
                "Proved bound",
                (
                    f"{number(bound[0])} at factor 1 and {number(bound[2])} at any flag, times {unit}. An output is off"
                    " by at most this, times the 2-norm of the input, times the factor. The worst trial at factor 1"
                    f" had {number(bound[1])}."
                ),
            )
        )
    note = ""
    if element.startswith("32") and export["family"] != "DCT4":
        passes = lib.wht_passes(export["order"]) if export["family"] == "WHT" else 1
        note = (
            f"Singles are computed in double and rounded at the end of each of {passes} passes."
            if passes > 1
            else "Singles are computed in double and rounded once at the store."
        )
    return (
        '<h2 id="accuracy">How exact it is</h2><p>Relative L2 errors on x86-64, measured over 100,000 random inputs '
        f"(from 4096 points on fewer). Greater errors of single calls are possible. {note}</p>"
        + facts(rows)
    )


def speed(export, times):
    from results import PARTICIPANTS

    found = times.of(export["family"], export["element"], lib.points(export))
    if not found:
        return ""
    where, figures, floor = found
    ours = figures["zulgenpx"]
    rows = []
    for name, words in PARTICIPANTS.items():
        if name in figures:
            nanoseconds, cycles, _ = figures[name]
            base = cycles / ours[1] if cycles and ours[1] else nanoseconds / ours[0]
            rows.append(
                [
                    words,
                    f"{nanoseconds:.1f}" if nanoseconds < 1000 else f"{nanoseconds:.0f}",
                    f"{cycles:.0f}" if cycles else "",
                    f"{base:.2f}",
                ]
            )
    text = ""
    if floor and ours[1]:
        text = (
            f"The floor, the least number of cycles for these steps with one number to a register, is {floor:.0f} "
            f"cycles; this kernel takes {ours[1] / floor:.2f} times that."
        )
    return (
        '<h2 id="speed">How fast it is</h2><p>'
        + f"{escape(where)}; hot, out of place, flag 8. {text} Figures of other machines differ.</p>"
        + table(["who", "nanoseconds", "cycles", "time over ours"], rows, "Time beside other libraries", "tnnn")
    )


def snippet_tabs(found):
    parts = [
        (title, code(text, language, f"A program in {title}"))
        for title, language, text in (
            ("C", "c", found.c),
            ("C++", "cpp", found.cpp),
            ("Python", "python", found.python),
        )
        if text
    ]
    return '<h2 id="example">Example</h2><p>The tests of the library run it.</p>' + tabs("language", parts)


def formula(export):
    group = lib.kind(export)
    if group not in lib.FORMULAS:
        return ""
    text, where = lib.FORMULAS[group]
    n = lib.points(export)
    if n and export["family"] != "DCT4":
        where += f"; N = {n}" if f"N = {n}" not in where else ""
    return f'<p class="formula">{text}</p><p class="where">{where}</p>'


def kin(export, library, here):
    """The same with another element, length or direction."""
    rows, family, size, element = [], export["family"], lib.size_of(export), export.get("element")
    if element is None:
        return ""

    def link(other, words):
        return f'<a href="{relative(here, path_of(other["name"]))}">{words}</a>'

    width = {"32f": "64f", "64f": "32f", "32fc": "64fc", "64fc": "32fc"}[element]
    twin = library.by_name.get(export["name"].replace("_" + element, "_" + width))
    if twin:
        rows.append(("Other width", link(twin, twin["name"])))
    if family in lib.INVERSE_OF:
        inverse = (
            library.by_name[export["name"].replace(family, lib.INVERSE_OF[family])]
            if "Batch" in export["name"]
            else library.of(lib.INVERSE_OF[family], size, element)
        )
        rows.append(("Other direction", link(inverse, inverse["name"])))
    if "Batch" not in export["name"] and size:
        around = [library.of(family, size + step, element) for step in (-1, 1)]
        rows.append(("Neighbours", ", ".join(link(each, each["name"]) for each in around if each)))
        general = next(
            (
                each
                for each in library.exports
                if each["family"] == family
                and lib.size_of(each) is None
                and each["element"] == element
                and lib.is_transform(each)
            ),
            None,
        )
        if general:
            rows.append((f"{'Length' if export['length'] else 'Order'} as an argument", link(general, general["name"])))
    batch = library.by_name.get(f"zulgBatch{family}_{element}")
    if batch and batch is not export:
        rows.append(("Many in one call", link(batch, batch["name"])))
    return '<h2 id="kin">Kin</h2>' + facts(rows) if rows else ""


PURPOSES = {
    "GetBufferSize": "Tells the bytes of the buffer of an order; 0 for orders 1 to 7.",
    "GetSize": "Tells the bytes of the plan of a length.",
    "InitAlloc": "Builds a plan in a block of the core library.",
    "Init": "Builds a plan in the caller’s block.",
    "Free": "Gives a plan of InitAlloc back. A plan of Init needs no freeing.",
}


def purpose(export):
    name = export["name"]
    for word, text in PURPOSES.items():
        if word in name:
            if "Batch" in name:
                return (
                    "Tells the bytes of the buffer of a batch: of an order, 0 for orders 1 to 7."
                    if export["family"] == "WHT"
                    else "Tells the bytes of the buffer of a batch whose steps are not 1."
                )
            return text
    if export["family"] == "version":
        return "Tells what the library that is loaded is. It cannot fail, and gives the same address at each call."
    n, title = lib.points(export), lib.TITLES[export["family"]]
    element = lib.ELEMENTS[export["element"]]
    single = ", computed in single" if "Single" in name else ""
    if "Batch" in name:
        return f"{title}, many transforms in one call, {element}{single}."
    if export["family"] == "DCT4":
        return f"{title} through a plan, {element}."
    return f"{title}, {f'{n} points' if n else 'the number of points as an argument'}, {element}."


def size_tables(export, library):
    index = library.sizes["of"].index(export["element"].rstrip("c"))
    if "GetBufferSize" in export["name"] and "Batch" not in export["name"]:
        rows = [[order, both[index]] for order, both in library.sizes["wht_buffer_bytes"].items()]
        return '<h2 id="sizes">Sizes</h2>' + table(["order", "bytes"], rows, "Bytes of the buffer", "nn")
    if "DCT4GetSize" in export["name"]:
        rows = [[points, both[index]] for points, both in library.sizes["dct4_plan_bytes"].items()]
        return '<h2 id="sizes">Sizes</h2>' + table(["points", "bytes"], rows, "Bytes of the plan", "nn")
    return ""


DCT4_WARNING = """<aside class="warning" aria-label="Before anything else"><p>Lengths are powers of two from 2 to
2<sup>27</sup> in 32f, to 2<sup>26</sup> in 64f. The lengths 2<sup>k</sup> + 1 from 9 on are accepted too: never use
them, they write past the arrays. Nor use longer powers of two. Never move or copy the block of a plan.</p></aside>
"""


def entry(export, data, here):
    library, parts = data.library, []
    is_kernel = "counts" in export
    parts.append(f'<h1 class="routine">{wrapped(export["name"])}</h1><p class="lead">{purpose(export)}</p>')
    if lib.is_transform(export):
        parts.append(formula(export))
    if export["family"] == "DCT4":
        parts.append(DCT4_WARNING)
    header = "zulgenpx_batch.h" if "Batch" in export["name"] else "zulgenpx.h"
    parts.append(code(f'#include "{header}"\n\n{lib.prototype(export)}', "c", "Prototype"))
    rows = list(argument_rows(export))
    if rows:
        parts.append(
            '<h2 id="arguments">Arguments: how long the arrays are</h2>'
            + table(["name", "declared", "elements", "what"], rows, "Arguments", "ccct")
        )
    if "Batch" in export["name"] and lib.is_transform(export):
        parts.append(
            "<p>Element k of transform j is at pSrc[k · srcStep + j · srcDistance], its result at "
            "pDst[k · dstStep + j · dstDistance]. Steps and distances count elements of the array; they may be "
            "negative, and those of the source 0.</p>"
        )
    if "spectrum" in export:
        parts.append(slots_figure(export) or slots_in_words(export))
    elif lib.is_transform(export):
        parts.append(order_in_words(export))
    if any(argument["name"] == "flag" for argument in export["arguments"]):
        parts.append(scale_table(export))
    if export["returns"] == "ZulgStatus":
        parts.append(statuses(export))
    promised = promises(export)
    if export["family"] == "WHT" and export.get("order", 0) and export["order"] >= 8:
        size = library.sizes["wht_buffer_bytes"][str(export["order"])][library.sizes["of"].index(export["element"])]
        promised = [(name, text.format(size) if name == "Memory" else text) for name, text in promised]
    parts.append('<h2 id="promises">Aliasing, threads, memory, stack</h2>' + facts(promised))
    if export.get("element"):
        parts.append(size_tables(export, library))
    if is_kernel:
        graph = lib.GRAPH_OF[export["family"]]
        name = f"{graph}_{lib.points(export)}"
        parts.append(counts_of(export, name if name in data.graphs else None, here))
    if lib.points(export):
        parts += [accuracy(export, data.errors, data.bounds), speed(export, data.times)]
    if export["name"] in (f"zulgDCT4_{export.get('element')}",):
        parts.append(plan_figures(export, data))
    found = snippets.of_batch(export) if "Batch" in export["name"] else snippets.of(export)
    parts.append(snippet_tabs(found))
    parts.append(kin(export, library, here))
    return "\n".join(part for part in parts if part)


def plan_figures(export, data):
    """Errors and times of the DCT-IV, by length."""
    rows = []
    for points in (2**power for power in range(1, 17)):
        error = data.errors.of("DCT4", points, export["element"])
        found = data.times.of("DCT4", export["element"], points)
        where, figures, _ = found or ("", {}, None)
        peer = figures.get("fftw_patient_simd")
        ours = figures.get("zulgenpx")
        rows.append(
            [
                points,
                number(error[0][0]) if error else "",
                number(error[0][1]) if error else "",
                f"{ours[0]:.0f}" if ours else "",
                f"{peer[0]:.0f}" if peer else "",
            ]
        )
    unit = "2<sup>−53</sup>" if export["element"] == "64f" else "2<sup>−24</sup>"
    return (
        '<h2 id="accuracy">How exact and how fast, by length</h2>'
        + f"<p>Times: {escape(where)}.</p>"
        + table(
            ["points", f"pooled error, times {unit}", "worst", "nanoseconds", "FFTW PATIENT as packaged, ns"],
            rows,
            "Errors and times of the DCT-IV",
            "nnnnn",
        )
    )


def wrapped(name):
    """A name that may be broken after its underscores."""
    return name.replace("_", "_<wbr>")


# What people who come from elsewhere type.
SYNONYMS = {
    "CToC forward": "fft",
    "CToC inverse": "ifft",
    "real forward": "rfft r2c half spectrum",
    "real inverse": "irfft c2r half spectrum",
    "Hartley": "dht",
    "WHT": "fwht hadamard",
    "DCT4": "dct cosine mdct",
}


def search_words(export):
    words = [lib.TITLES[export["family"]], lib.kind(export), SYNONYMS.get(lib.kind(export), "")]
    n = lib.points(export)
    if n:
        words.append(f"{n} points length {n}" + (f" order {export['order']}" if export["order"] else ""))
    elif export.get("element"):
        words.append("order as an argument" if export["family"] == "WHT" else "length as an argument")
    if export.get("element"):
        words.append(lib.ELEMENTS[export["element"]])
    return " ".join(words)


def build(site, data):
    library = data.library
    for export in library.exports + library.batches:
        path = path_of(export["name"])
        up = [("Reference", f"{FOLDER}/index.html")]
        if "Batch" in export["name"]:
            up.append(("Batch library", f"{FOLDER}/batch.html"))
        elif export["family"] != "version":
            up.append((lib.TITLES[export["family"]], f"{FOLDER}/{export['family']}.html"))
        site.page(
            path,
            export["name"],
            entry(export, data, path),
            description=purpose(export),
            trail=up,
            words=search_words(export),
        )
    for family in lib.FAMILIES[:-1]:
        family_page(site, data, family)
    batch_page(site, library)
    faces.build(site, data)
    index_page(site, data)


def family_page(site, data, family):
    library, path = data.library, f"{FOLDER}/{family}.html"
    exports = [export for export in library.exports if export["family"] == family]
    example = next(export for export in exports if lib.is_transform(export))
    group = lib.kind(example)
    text, where = lib.FORMULAS[group]
    parts = [f"<h1>{lib.TITLES[family]}</h1>", f'<p class="formula">{text}</p><p class="where">{where}</p>']
    sized = sorted({lib.size_of(export) for export in exports} - {None})
    elements = sorted({export["element"] for export in exports}, reverse=True)
    if sized:
        rows = []
        for size in sized:
            row = [str(size)]
            for element in elements:
                export = library.of(family, size, element)
                row.append(f'<a href="{export["name"]}.html">{export["name"]}</a>')
            counts, error, time = export.get("counts"), data.errors.of(family, lib.points(export), "64"), None
            found = data.times.of(family, "64", lib.points(export))
            row += (
                [str(counts["additions"] + counts["subtractions"]), str(counts["multiplications"])]
                if counts
                else ["", ""]
            )
            row += [
                f"{found[1]['zulgenpx'][0]:.1f}" if found else "",
                number(error[0][0]) if error else "",
                number(error[0][1]) if error else "",
            ]
            rows.append(row)
        parts.append(
            "<h2>Every length</h2><p>Select the head of a column to sort by it.</p>"
            + table(
                [
                    "length" if family != "WHT" else "order",
                    *(lib.ELEMENTS[element] for element in elements),
                    "sums",
                    "products",
                    "ns, 64f",
                    "pooled error, 64f",
                    "worst",
                ],
                rows,
                f"Routines of the family: {lib.TITLES[family]}",
                "nccnnnnn",
                sortable=True,
            )
        )
    others = [export for export in exports if lib.size_of(export) is None]
    if others:
        parts.append(
            "<h2>Without a number in the name</h2><ul>"
            + "".join(
                f'<li><a href="{export["name"]}.html"><code>{export["name"]}</code></a>: {purpose(export)}</li>'
                for export in others
            )
            + "</ul>"
        )
    site.page(
        path,
        lib.TITLES[family],
        "\n".join(parts),
        trail=[("Reference", f"{FOLDER}/index.html")],
        scripts=["assets/tables.js"],
        words=family,
    )


def batch_page(site, library):
    items = "".join(
        f'<li><a href="{batch["name"]}.html"><code>{batch["name"]}</code></a>: {purpose(batch)}</li>'
        for batch in library.batches
    )
    site.page(
        f"{FOLDER}/batch.html",
        "Batch library",
        (
            '<h1>Batch library</h1><p class="lead">Many transforms of one family and length in one call, bit for bit '
            "those of single calls. One after the other and side by side are the fast shapes.</p>"
            f"<ul>{items}</ul>"
        ),
        trail=[("Reference", f"{FOLDER}/index.html")],
        words="batch many",
    )


def index_page(site, data):
    library = data.library
    cards = ""
    for family in lib.FAMILIES[:-1]:
        exports = [export for export in library.exports if export["family"] == family]
        sized = sorted({lib.size_of(export) for export in exports} - {None})
        what = (
            f"{'orders' if family == 'WHT' else 'lengths'} {sized[0]} to {sized[-1]}"
            if sized
            else "powers of two up to 2<sup>26</sup>, through a plan"
        )
        cards += (
            f'<li><a href="{family}.html">{lib.TITLES[family]}</a><span>{len(exports)} routines, {what}</span></li>'
        )
    cards += '<li><a href="zulgenGetLibVersion.html">Version</a><span>1 routine</span></li>'
    cards += f'<li><a href="batch.html">Batch library</a><span>{len(library.batches)} routines</span></li>'
    cards += (
        '<li><a href="cpp.html">C++</a><span>zulgenpx.hpp and zulgenpx_batch.hpp</span></li>'
        '<li><a href="python.html">Python</a><span>arrays of NumPy</span></li>'
    )
    everything = "".join(
        f'<li><a href="{export["name"]}.html">{wrapped(export["name"])}</a></li>' for export in library.exports
    )
    site.page(
        f"{FOLDER}/index.html",
        "Reference",
        (
            f'<h1>Reference</h1><p class="lead">{len(library.exports)} routines, {len(library.batches)} batches and the'
            f' faces for C++ and Python, each with a page of its own.</p><ul class="cards">{cards}</ul><h2 id="all">All'
            f' routines, one to a line</h2><ol class="names">{everything}</ol>'
        ),
        words="all routines list",
    )
