#!/usr/bin/env python3
"""The picture of accuracy that the README shows, made from benchmarks/results/accuracy.md.

pictures.py write    writes docs/pictures/accuracy.svg
pictures.py check    tells whether it is what the results say
"""
import pathlib
import re
import sys

HERE = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(HERE))
import library as lib  # noqa: E402
import plots  # noqa: E402
import results  # noqa: E402

PICTURE = HERE.parent / "docs/pictures/accuracy.svg"
# Colours that can be read on a light and on a dark page, since a picture in a README does not know which one it is on.
COLOURS = {"first": "#3f82d0", "second": "#d8622c", "third": "#b08a1e", "fourth": "#3d9a54"}
STYLE = (
    '<style>text{font:12px system-ui,"DejaVu Sans",sans-serif;fill:#808890}.axis{stroke:#808890;fill:none}'
    ".grid{stroke:#8088903a;fill:none}.prime{fill:#80889022}</style>"
)
SERIES = [
    ("DFTFwd_CToC", "64", "complex, double", "first"),
    ("DFTFwd_RToCCS", "64", "real, double", "second"),
    ("DFTFwd_CToC", "32", "complex, single", "third"),
    ("DFTFwd_RToCCS", "32", "real, single", "fourth"),
]


def picture():
    errors = results.read_errors(HERE.parent)
    rows = [(name, [(n, errors.of(family, n, width)[0][0]) for n in lib.LENGTHS]) for family, width, name, _ in SERIES]
    html = plots.plot(
        "Pooled relative errors at factor 1",
        "",
        rows,
        colours=[colour for *_, colour in SERIES],
        x_label="length; primes are shaded; errors in units of 2^-53 (double) and 2^-24 (single)",
    )
    body = re.search(r'<svg class="plot"[^>]*>(.*)</svg></figure>', html, re.S)[1]
    legend = "".join(
        f'<g transform="translate({90 + 190 * number} 30)">{plots.mark(plots.MARKS[number], 0, -4, colour, name)}'
        f'<text x="10">{name}</text></g>'
        for number, (_, _, name, colour) in enumerate(SERIES)
    )
    text = (
        f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {plots.WIDTH} {plots.HEIGHT}" role="img" '
        f'aria-label="Pooled errors by length">{STYLE}{body}{legend}</svg>\n'
    )
    for name, colour in COLOURS.items():
        text = text.replace(f"var(--{name})", colour)
    return text


def main():
    verb = sys.argv[1:]
    if verb == ["write"]:
        PICTURE.parent.mkdir(exist_ok=True)
        PICTURE.write_text(picture(), encoding="ascii")
        return 0
    if verb == ["check"]:
        if PICTURE.exists() and PICTURE.read_text(encoding="ascii") == picture():
            return 0
        print(f"{PICTURE} is not what the results say. To accept: site/pictures.py write")
        return 1
    print(__doc__.strip())
    return 2


sys.exit(main())
