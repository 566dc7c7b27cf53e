"""The real DFT, whose half spectra have three layouts."""

from __future__ import annotations

from typing import Optional, SupportsIndex

import numpy as np
from numpy.typing import ArrayLike

from ._arrays import REAL_OF, Array, Output, as_array, axis_of, check_length, choice, complex_of, count_of
from ._arrays import packed, readable, resized
from ._batch import as_reals, run, side
from ._families import NORMS, REAL_FORWARD, REAL_INVERSE, routines_of, rows, usual

_empty = np.empty


def rfft(
    a: ArrayLike,
    n: Optional[SupportsIndex] = None,
    axis: SupportsIndex = -1,
    norm: Optional[str] = None,
    out: Optional[Array] = None,
    *,
    layout: str = "ccs",
    precision: str = "double",
) -> Array:
    """The discrete Fourier transform of real numbers along one axis, of 2 to 64 points: the bins 0 to n//2.

    The others are conjugates: ``X[n-k] == conj(X[k])``.

    Parameters
    ----------
    layout : {"ccs", "pack", "perm"}
        How the bins lie along the axis. "ccs" gives n//2 + 1 complex numbers, as NumPy does. The others give n real
        ones and leave out the zero imaginary parts: "pack" has Re X[0], Re X[1], Im X[1], ... and, if n is even, Re
        X[n/2] at the end; "perm" has it after Re X[0] instead. See `spectrum_views`.

    The other parameters, exceptions and notes are those of `fft`. Complex numbers are refused.

    Returns
    -------
    ndarray
        complex64 or float32 of float32; otherwise complex128 or float64.

    Examples
    --------
    >>> import numpy as np, zulgenpx
    >>> zulgenpx.rfft([1.0, 2.0, 0.0, 0.0]).tolist()
    [(3+0j), (1-2j), (-1+0j)]
    >>> zulgenpx.rfft([1.0, 2.0, 0.0, 0.0], layout="pack").tolist()
    [3.0, 1.0, -2.0, -1.0]
    >>> zulgenpx.rfft([1.0, 2.0, 0.0, 0.0], layout="perm").tolist()
    [3.0, -1.0, 1.0, -2.0]
    """
    family = choice("rfft", "layout", layout, REAL_FORWARD)
    is_ccs = layout == "ccs"
    if n is None and out is None:
        short = usual(family, NORMS, a, axis, norm, precision)
        if short is not None:
            array, routines, flag = short
            shape = array.shape
            length = shape[-1]
            if 2 <= length <= 64:
                if not is_ccs:
                    return rows(routines, array, length, _empty(shape, array.dtype), length, (length, flag))
                bins = length // 2 + 1
                spectrum = _empty((*shape[:-1], bins), complex_of(array.dtype))
                return rows(routines, array, length, spectrum, 2 * bins, (length, flag))
    source = as_array("rfft", a, False)
    index = axis_of(source, axis)
    length = source.shape[index] if n is None else count_of("rfft", n)
    check_length("rfft", length, index)
    flag = choice("rfft", "norm", norm, NORMS)
    routines = routines_of("rfft", family, source, precision)
    if is_ccs:
        output = Output("rfft", out, source, index, length // 2 + 1, complex_of(source.dtype), without_gaps=True)
        destination = as_reals(output.written, index)
    else:
        output = Output("rfft", out, source, index, length, source.dtype)
        destination = side(output.written, index)
    source = readable(resized(source, index, length))
    run(routines.many, output.unharmed(side(source, index), destination, index), destination, index, length,
        (length, flag))  # fmt: skip
    return output.done()


def irfft(
    a: ArrayLike,
    n: Optional[SupportsIndex] = None,
    axis: SupportsIndex = -1,
    norm: Optional[str] = None,
    out: Optional[Array] = None,
    *,
    layout: str = "ccs",
    precision: str = "double",
) -> Array:
    """The inverse of `rfft` along one axis: 2 to 64 real numbers.

    Parameters
    ----------
    a : array_like
        The bins 0 to n//2. In the layout "ccs" these are complex numbers, of which the imaginary parts of X[0] and, if
        n is even, of X[n/2] have no effect. In the others there are n real numbers.
    n : int, optional
        How many real numbers result. In the layout "ccs" it is ``2*(m - 1)`` by default, with m the length of the axis;
        the first n//2 + 1 bins are taken, and zeros follow where there are fewer. In the others it is the length of the
        axis.
    layout : {"ccs", "pack", "perm"}
        As in `rfft`.

    The other parameters, exceptions and notes are those of `fft`.

    Returns
    -------
    ndarray
        float32 of complex64 and float32; otherwise float64.

    Examples
    --------
    >>> import numpy as np, zulgenpx
    >>> zulgenpx.irfft([3, 1 - 2j, -1]).tolist()
    [1.0, 2.0, 0.0, 0.0]
    >>> zulgenpx.irfft([3.0, 1.0, -2.0, -1.0], layout="pack").tolist()
    [1.0, 2.0, 0.0, 0.0]
    """
    family = choice("irfft", "layout", layout, REAL_INVERSE)
    is_ccs = layout == "ccs"
    if n is None and out is None:
        short = usual(family, NORMS, a, axis, norm, precision)
        if short is not None:
            array, routines, flag = short
            shape = array.shape
            held = shape[-1]
            length = 2 * (held - 1) if is_ccs else held
            if 2 <= length <= 64:
                if not is_ccs:
                    return rows(routines, array, length, _empty(shape, array.dtype), length, (length, flag))
                numbers = _empty((*shape[:-1], length), REAL_OF[array.dtype])
                return rows(routines, array, 2 * held, numbers, length, (length, flag))
    source = as_array("irfft", a, is_ccs)
    index = axis_of(source, axis)
    held = source.shape[index]
    if n is not None:
        length = count_of("irfft", n)
        if not is_ccs and length != held:
            raise ValueError(f"irfft: n is {length}, but the layout {layout!r} has {held} elements along axis {index}")
    else:
        length = 2 * (held - 1) if is_ccs else held
    check_length("irfft", length, index)
    flag = choice("irfft", "norm", norm, NORMS)
    routines = routines_of("irfft", family, source, precision)
    output = Output("irfft", out, source, index, length, REAL_OF.get(source.dtype, source.dtype))
    destination = side(output.written, index)
    if is_ccs:
        source = readable(resized(source, index, length // 2 + 1))
        read = as_reals(source if source.strides[index] == source.itemsize else packed(source, index), index)
    else:
        read = side(readable(source), index)
    run(routines.many, output.unharmed(read, destination, index), destination, index, length, (length, flag))
    return output.done()
