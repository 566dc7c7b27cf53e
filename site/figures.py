"""Plots of speed, errors, counts and size."""
import library as lib
from plots import plot

FAMILIES = [
    ("DFTFwd_CToC", "complex, forward"),
    ("DFTFwd_RToCCS", "real, forward"),
    ("DFTInv_CCSToR", "real, inverse"),
    ("Hartley", "Hartley"),
]


def ratio_series(data, element, peer, families=None):
    for family, name in families or FAMILIES:
        row = []
        for n in lib.LENGTHS:
            found = data.times.of(family, element, n)
            if found and peer in found[1] and found[1][peer][1]:
                row.append((n, found[1][peer][1] / found[1]["zulgenpx"][1]))
        if row:
            yield name, row


def speed(data):
    where = data.times.of("DFTFwd_CToC", "64", 16)[0]
    parts = [
        f'<h2 id="speed">Speed</h2><p>A peer’s time over ours, by length; above 1 we lead. {where}; hot, out of place, '
        "one transform in a call.</p>"
    ]
    for peer, words in (
        ("fftw_patient_simd", "FFTW 3 PATIENT as packaged, with vectors"),
        ("fftw_patient_scalar", "FFTW 3 PATIENT without vectors"),
        ("kissfft", "KissFFT"),
        ("gsl", "GSL"),
    ):
        for element, word in (("64", "double"), ("32", "single")):
            series = list(ratio_series(data, element, peer))
            if series:
                parts.append(plot(f"{words}, {word}", "its time over ours", series, logarithmic=True, line_at=1))
    series = []
    for family, name in FAMILIES:
        row = []
        for n in lib.LENGTHS:
            found = data.times.of(family, "64", n)
            row.append((n, found[1]["zulgenpx"][1] / found[2]))
        series.append((name, row))
    parts.append(
        plot(
            "Time over the floor, double",
            "cycles over the least cycles with one number to a register; below 1 lanes pay",
            series,
            line_at=1,
        )
    )
    for family, element_words in (("DCT4", "DCT-IV"), ("WHT", "Walsh-Hadamard transform")):
        sizes = [2**k for k in range(1, 17)]
        series = []
        for peer, words in (
            ("zulgenpx", "zulgenpx"),
            ("fftw_patient_simd", "FFTW PATIENT as packaged"),
            ("plain_copied", "plain loop and copy"),
        ):
            row = [
                (n, found[1][peer][0] / n)
                for n in sizes
                if (found := data.times.of(family, "64", n)) and peer in found[1]
            ]
            if row:
                series.append((words, row))
        if series:
            where = data.times.of(family, "64", 64)[0]
            parts.append(
                plot(
                    f"{element_words}, double",
                    f"nanoseconds for each point; {where}",
                    series,
                    x_label="points",
                    x_logarithmic=True,
                )
            )
    return parts


def accuracy(data):
    parts = [
        '<h2 id="accuracy">Accuracy</h2><p>Relative L2 errors over random inputs at factor 1, in units of'
        " 2<sup>−53</sup> for double and 2<sup>−24</sup> for single. The pooled error is that of all inputs together;"
        " the worst is that of one call.</p>"
    ]
    for element, word in (("64", "double"), ("32", "single")):
        for number, kind in ((0, "pooled"), (1, "worst")):
            series = [
                (name, [(n, data.errors.of(family, n, element)[0][number]) for n in lib.LENGTHS])
                for family, name in FAMILIES
            ]
            parts.append(plot(f"{kind.capitalize()} errors, {word}", "units of the last place of 1, halved", series))
    return parts


def counts(data):
    series = []
    for family, name in FAMILIES:
        row = []
        for n in lib.LENGTHS:
            export = data.library.of(family, n, "64fc" if "CToC" in family else "64f")
            found = export["counts"]
            row.append((n, found["additions"] + found["subtractions"] + found["multiplications"]))
        series.append((name, row))
    return [
        '<h2 id="counts">Counts</h2>',
        plot("Steps of the graphs", "sums, differences and products, without those with scale", series),
    ]


def sizes(data):
    series = []
    for level in (0, 1):
        for family, name in (FAMILIES[0], FAMILIES[1]):
            row = []
            for n in lib.LENGTHS:
                export = data.library.of(family, n, "64fc" if "CToC" in family else "64f")
                row.append((n, data.codes[export["name"]][level][1]))
            series.append((f"{name}, {data.codes[export['name']][level][0]}", row))
    return [
        '<h2 id="size">Size</h2>',
        plot("Bytes of code of a kernel, double", "instructions without constants", series),
    ]


def build(site, data):
    body = [
        '<h1>Figures</h1><p class="lead">Made from the results in the tree and from the built library. Point at a mark'
        ' to read its value; the same numbers are in the <a href="../atlas/kernels.html">table of all kernels</a>.</p>'
    ]
    body += speed(data) + accuracy(data) + counts(data) + sizes(data)
    site.page(
        "figures/index.html",
        "Figures",
        "\n".join(body),
        words="plots speed accuracy errors counts size benchmark fftw kissfft gsl",
    )
