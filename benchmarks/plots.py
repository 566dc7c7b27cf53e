"""The results as pictures: ratio over length, time over the floor, DCT-IV and Walsh-Hadamard over size."""
import matplotlib

matplotlib.use("svg")
import matplotlib.pyplot as plt  # noqa: E402  (the back end comes first)

from tables import ratio  # noqa: E402

plt.rcParams.update({"svg.fonttype": "none", "svg.hashsalt": "zulgenpx", "font.size": 9, "axes.grid": True,
                     "grid.alpha": 0.3, "axes.spines.top": False, "axes.spines.right": False, "legend.frameon": False})

LINES = {"complex_forward": ("complex", "#1f5fa8"), "real_forward": ("real, forward", "#c8541d"),
         "real_inverse": ("real, inverse", "#d9a021"), "hartley": ("Hartley", "#3c8d4f")}
BATCH_LINES = {"batch_32_complex_forward": ("complex, one after the other", "#1f5fa8"),
               "batch_beside_32_complex_forward": ("complex, side by side", "#c8541d"),
               "batch_32_real_forward": ("real, one after the other", "#d9a021"),
               "batch_beside_32_hartley": ("Hartley, side by side", "#3c8d4f")}
PRIMES = [n for n in range(2, 65) if all(n % d for d in range(2, n))]


def save(figure, path):
    figure.savefig(path, metadata={"Date": None})
    plt.close(figure)


def mark_primes(axes):
    for prime in PRIMES:
        axes.axvspan(prime - 0.5, prime + 0.5, color="#000000", alpha=0.05, lw=0)


# The level below the one that the processor has: its build takes part under this name.
LOWER_LEVEL = "x86-64"


def over_length(families, value, title, label, path, log=False, dashed_value=None, dashed_name="", lines=None,
                legend=None):
    """One point for each length; `dashed_value` gives another line for complex transforms, `dashed_name` names it."""
    lines = lines or LINES
    if not any(family in lines for family, _ in families):
        return
    figure, both = plt.subplots(2, 1, figsize=(9, 6.4), sharex=True, constrained_layout=True)
    figure.suptitle(title, fontsize=10)
    for axes, element in zip(both, ("double", "single")):
        mark_primes(axes)
        axes.axhline(1, color="black", lw=0.8)
        for family, (name, colour) in lines.items():
            points = [(item.size, value(item)) for item in families.get((family, element), [])]
            points = [point for point in points if point[1] is not None]
            if points:
                axes.plot(*zip(*points), color=colour, lw=1, marker="o", ms=2.5, label=name)
            dashed = [(item.size, dashed_value(item)) for item in families.get((family, element), []) if dashed_value]
            dashed = [point for point in dashed if point[1] is not None]
            if dashed and family.endswith("complex_forward"):
                axes.plot(*zip(*dashed), color=colour, lw=1, ls="--", label=f"{name}, {dashed_name}")
        if log:
            axes.set_yscale("log", base=2)
            axes.yaxis.set_major_formatter(lambda tick, _: f"{tick:g}")
        axes.set_ylabel(f"{element}: {label}")
        axes.set_xticks([2] + list(range(4, 65, 4)))
        axes.set_xlim(1, 65)
    both[0 if len(both[0].lines) >= len(both[1].lines) else 1].legend(
        **(legend or {"ncol": 4, "loc": "upper center"}))
    both[1].set_xlabel("length; primes are shaded")
    save(figure, path)


def ratios(families, path):
    peer = "fftw_patient_scalar"
    over_length(families, lambda item: ratio(item, peer) if peer in item.figures else None,
                "FFTW 3 PATIENT without SIMD: its time over ours (above 1 we lead)", "FFTW / ours", path, log=True)


def packaged(families, path):
    peer = "fftw_patient_simd"

    def lower(item):
        if peer not in item.figures or LOWER_LEVEL not in item.figures:
            return None
        return item.figures[peer].nanoseconds / item.figures[LOWER_LEVEL].nanoseconds

    over_length(families, lambda item: ratio(item, peer) if peer in item.figures else None,
                "FFTW 3 PATIENT as packaged, with SSE2 and AVX: its time over ours (above 1 we lead)", "FFTW / ours",
                path, log=True, dashed_value=lower, dashed_name="without AVX2")


def batches(families, path):
    peer, own = "fftw_patient_simd", "zulgenpx_single"

    def in_single(item):
        if peer not in item.figures or own not in item.figures:
            return None
        return item.figures[peer].nanoseconds / item.figures[own].nanoseconds

    over_length(families, lambda item: ratio(item, peer) if peer in item.figures else None,
                "32 transforms in a call: FFTW 3 PATIENT as packaged, its time over ours (above 1 we lead)",
                "FFTW / ours", path, log=True, dashed_value=in_single, dashed_name="in single", lines=BATCH_LINES,
                legend={"loc": "upper left", "fontsize": 7})


def floors(families, path):
    over_length(families, lambda item: item.ours.cycles / item.floor if item.floor and item.size >= 5 else None,
                "Time over the floor that the operation counts set, from 5 points up", "cycles / floor", path)


def over_size(families, path):
    """DCT-IV and Walsh-Hadamard: cycles for each point and binary digit of the size."""
    panels = [key for key in families if key[0] in ("dct4", "wht")]
    if not panels:
        return
    figure, axes = plt.subplots(1, len(panels), figsize=(3.4 * len(panels), 3.6), constrained_layout=True,
                                squeeze=False)
    curves = {"zulgenpx": ("ours", "#1f5fa8"), "fftw_patient_scalar": ("FFTW patient, scalar", "#c8541d"),
              "fftw_patient_simd": ("FFTW patient, SIMD", "#d9a021"), "plain_in_place": ("plain loop", "#777777")}
    for panel, key in zip(axes[0], panels):
        for name, (label, colour) in curves.items():
            points = [(item.size, item.figures[name].cycles / item.size / (item.size.bit_length() - 1))
                      for item in families[key] if name in item.figures]
            if points:
                panel.plot(*zip(*points), color=colour, lw=1, marker="o", ms=2.5, label=label)
        panel.set_xscale("log", base=2)
        panel.set_yscale("log", base=2)
        panel.yaxis.set_major_formatter(lambda tick, _: f"{tick:g}")
        panel.set_title(f"{'DCT-IV' if key[0] == 'dct4' else 'Walsh-Hadamard'}, {key[1]}", fontsize=9)
        panel.set_xlabel("size N")
        panel.legend(fontsize=7)
    axes[0][0].set_ylabel("cycles / (N log2 N)")
    save(figure, path)
