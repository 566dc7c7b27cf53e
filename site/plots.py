"""Plots as SVG inside a page. Colours are those of the sheet, so that they change with light and dark."""
import math

COLOURS = ["first", "second", "third", "fourth", "fifth", "sixth"]
WIDTH, HEIGHT, LEFT, RIGHT, TOP, BOTTOM = 860, 340, 62, 14, 16, 44
PRIMES = [n for n in range(2, 65) if all(n % d for d in range(2, n))]
MARKS = ["circle", "square", "diamond", "triangle", "cross", "bar"]


def ticks_of(low, high, logarithmic):
    if logarithmic:
        first, last = math.floor(math.log10(low)), math.ceil(math.log10(high))
        ticks = [m * 10**e for e in range(first, last + 1) for m in (1, 2, 5)]
    else:
        step = 10 ** math.floor(math.log10((high - low) / 4))
        step *= 1 if (high - low) / step <= 6 else 2 if (high - low) / step <= 12 else 5
        ticks = [step * k for k in range(math.floor(low / step), math.ceil(high / step) + 1)]
    return [tick for tick in ticks if low <= tick * 1.0000001 and tick <= high * 1.0000001]


def mark(shape, x, y, colour, title):
    paint = f'fill="var(--{colour})"'
    if shape == "circle":
        body = f'<circle cx="{x:.1f}" cy="{y:.1f}" r="3" {paint}>'
        end = "</circle>"
    else:
        path = {
            "square": "M-3-3h6v6h-6z",
            "diamond": "M0-4l4 4-4 4-4-4z",
            "triangle": "M0-4l4 7h-8z",
            "cross": "M-3.5-1h2.5v-2.5h2v2.5h2.5v2h-2.5v2.5h-2v-2.5h-2.5z",
            "bar": "M-4-1.5h8v3h-8z",
        }[shape]
        body = f'<path transform="translate({x:.1f} {y:.1f})" d="{path}" {paint}>'
        end = "</path>"
    return f"{body}<title>{title}</title>{end}"


def plot(
    title,
    label,
    series,
    x_label="length; primes are shaded",
    logarithmic=False,
    x_logarithmic=False,
    line_at=None,
    colours=None,
    low=None,
):
    """`series`: (name, [(x, y)]). Returns HTML."""
    points = [point for _, row in series for point in row]
    if not points:
        return ""
    xs, ys = [x for x, _ in points], [y for _, y in points]
    x_low, x_high = min(xs), max(xs)
    y_low, y_high = (min(ys) / 1.1, max(ys) * 1.1) if logarithmic else (min(0, *ys), max(ys) * 1.05)
    if low is not None:
        y_low = low
    if line_at:
        y_low, y_high = min(y_low, line_at), max(y_high, line_at)

    def place_x(x):
        part = (
            math.log(x / x_low) / math.log(x_high / x_low) if x_logarithmic else (x - x_low + 1) / (x_high - x_low + 2)
        )
        return LEFT + part * (WIDTH - LEFT - RIGHT)

    def place_y(y):
        part = math.log(y / y_low) / math.log(y_high / y_low) if logarithmic else (y - y_low) / (y_high - y_low)
        return HEIGHT - BOTTOM - part * (HEIGHT - TOP - BOTTOM)

    parts = []
    if not x_logarithmic and x_high == 64:
        half = (place_x(3) - place_x(2)) / 2
        parts += [
            f'<rect class="prime" x="{place_x(n) - half:.1f}" y="{TOP}" width="{2 * half:.1f}" '
            f'height="{HEIGHT - TOP - BOTTOM}"/>'
            for n in PRIMES
        ]
    for tick in ticks_of(y_low, y_high, logarithmic):
        y = place_y(tick)
        parts.append(
            f'<path class="grid" d="M{LEFT} {y:.1f}H{WIDTH - RIGHT}"/>'
            f'<text x="{LEFT - 6}" y="{y + 4:.1f}" text-anchor="end">{tick:g}</text>'
        )
    x_ticks = (
        [2**k for k in range(1, 30) if x_low <= 2**k <= x_high]
        if x_logarithmic
        else [2] + list(range(8, 65, 8)) if x_high == 64 else sorted(set(xs))
    )
    for tick in x_ticks[::2] if len(x_ticks) > 12 else x_ticks:
        parts.append(f'<text x="{place_x(tick):.1f}" y="{HEIGHT - BOTTOM + 18}" text-anchor="middle">{tick}</text>')
    if line_at:
        parts.append(f'<path class="axis" d="M{LEFT} {place_y(line_at):.1f}H{WIDTH - RIGHT}"/>')
    parts.append(
        f'<path class="axis" d="M{LEFT} {TOP}V{HEIGHT - BOTTOM}H{WIDTH - RIGHT}"/>'
        f'<text x="{(LEFT + WIDTH - RIGHT) / 2}" y="{HEIGHT - 6}" text-anchor="middle">{x_label}</text>'
    )
    legend = ""
    for number, (name, row) in enumerate(series):
        colour, shape = (colours or COLOURS)[number % 6], MARKS[number % 6]
        path = "L".join(f"{place_x(x):.1f} {place_y(y):.1f}" for x, y in row)
        if path:
            parts.append(f'<path d="M{path}" fill="none" stroke="var(--{colour})" stroke-width="1.4"/>')
        parts += [mark(shape, place_x(x), place_y(y), colour, f"{name}, {x}: {y:.4g}") for x, y in row]
        legend += (
            '<span><svg viewBox="-6 -6 12 12" width="14" height="14" aria-hidden="true">'
            f"{mark(shape, 0, 0, colour, name)}</svg> {name}</span> "
        )
    return (
        f'<figure><figcaption><strong>{title}</strong>; {label}. <span class="legend">{legend}</span></figcaption>'
        f'<svg class="plot" viewBox="0 0 {WIDTH} {HEIGHT}" role="img" aria-label="{title}">{"".join(parts)}</svg>'
        "</figure>\n"
    )
