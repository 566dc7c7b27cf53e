"""Half spectra as views: the same memory seen as real and as complex numbers."""

from __future__ import annotations

from typing import Any, NamedTuple, Optional, SupportsIndex

import numpy as np

from ._arrays import REAL_OF, Array, axis_of, choice, complex_of


class SpectrumViews(NamedTuple):
    """Views of a half spectrum: X[0] and, at even lengths, X[N/2], which are real, and the bins between, complex."""

    first: Array
    middle: Optional[Array]
    bins: Array


def _checked(name: str, a: Array, axis: SupportsIndex, is_complex: bool) -> Array:
    """The array, with the axis as its last one."""
    if not isinstance(a, np.ndarray):
        raise TypeError(f"{name}: only an array has views, not {type(a).__name__}")
    allowed = [str(one) for real in REAL_OF.values() for one in (complex_of(real) if is_complex else real,)]
    if str(a.dtype) not in allowed:
        raise TypeError(f"{name}: the array is of {a.dtype}, not of {' or '.join(allowed)}")
    index = axis_of(a, axis)
    if a.size and a.shape[index] > 1 and a.strides[index] != a.itemsize:
        raise ValueError(f"{name}: the elements along axis {index} are not neighbours in memory")
    return np.moveaxis(a, index, -1)


def _seen(a: Array, dtype: np.dtype[Any], axis: SupportsIndex) -> Array:
    if a.size:
        seen = a.view(dtype)
    else:  # its strides say nothing
        seen = np.empty((*a.shape[:-1], a.shape[-1] * a.itemsize // dtype.itemsize), dtype)
    return np.moveaxis(seen, -1, axis)


def ccs_as_complex(a: Array, axis: SupportsIndex = -1) -> Array:
    """The complex view of half spectra in the layout CCS, whose N+2 or N+1 reals are parts of complex numbers in turn.

    Raises ValueError if the length is odd or if the reals along the axis are not neighbours in memory.

    Examples
    --------
    >>> import numpy as np, zulgenpx
    >>> zulgenpx.ccs_as_complex(np.array([3.0, 0.0, 1.0, -2.0, -1.0, 0.0])).tolist()
    [(3+0j), (1-2j), (-1+0j)]
    """
    last = _checked("ccs_as_complex", a, axis, False)
    if last.shape[-1] % 2 != 0:
        raise ValueError(f"ccs_as_complex: {last.shape[-1]} elements along axis {axis_of(a, axis)} are no pairs")
    return _seen(last, complex_of(a.dtype), axis)


def complex_as_ccs(a: Array, axis: SupportsIndex = -1) -> Array:
    """The view of `rfft`'s complex result as the reals of the layout CCS, real and imaginary parts in turn.

    Raises ValueError if the numbers along the axis are not neighbours in memory.

    Examples
    --------
    >>> import numpy as np, zulgenpx
    >>> zulgenpx.complex_as_ccs(zulgenpx.rfft([1.0, 2.0, 0.0, 0.0])).tolist()
    [3.0, 0.0, 1.0, -2.0, -1.0, 0.0]
    """
    return _seen(_checked("complex_as_ccs", a, axis, True), REAL_OF[a.dtype], axis)


def spectrum_views(a: Array, layout: str, axis: SupportsIndex = -1) -> SpectrumViews:
    """Views of half spectra in the layouts "pack" and "perm": `first`, `middle` and `bins`.

    `first` is X[0] and `middle` X[N/2], or None if the length is odd: real arrays without the axis. `bins` has X[1] and
    so on as complex numbers along the axis, (N-1)//2 of them. What is written to a view is in the array.

    Raises ValueError if the reals along the axis are not neighbours in memory.

    Examples
    --------
    >>> import numpy as np, zulgenpx
    >>> views = zulgenpx.spectrum_views(zulgenpx.rfft([1.0, 2.0, 0.0, 0.0], layout="pack"), "pack")
    >>> views.first.tolist(), views.middle.tolist(), views.bins.tolist()
    (3.0, -1.0, [(1-2j)])
    """
    has_middle_second = choice("spectrum_views", "layout", layout, {"pack": False, "perm": True})
    last = _checked("spectrum_views", a, axis, False)
    length = last.shape[-1]
    if length < 2:
        raise ValueError(f"spectrum_views: the length along axis {axis_of(a, axis)} is {length}, which is below 2")
    middle: Optional[Array] = None
    begin = 1
    if length % 2 == 0:
        middle = last[..., 1 if has_middle_second else length - 1]
        begin = 2 if has_middle_second else 1
    bins = last[..., begin : begin + (length - 1) // 2 * 2]
    return SpectrumViews(last[..., 0], middle, _seen(bins, complex_of(a.dtype), axis))
