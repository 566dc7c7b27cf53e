"""The transforms whose result has the length of their input: complex DFT, Hartley and Walsh-Hadamard."""

from __future__ import annotations

import ctypes
from typing import Any, Optional, SupportsIndex

import numpy as np
from numpy.typing import ArrayLike

from ._arrays import Array, Output, as_array, axis_of, check_length, choice, count_of, readable, resized
from ._batch import pointer, refused, run, side
from ._families import COMPLEX_FORWARD, COMPLEX_INVERSE, HARTLEY, NORMS, OWN_INVERSE_NORMS, SUFFIXES, WHT, WHT_LENGTHS
from ._families import Family, routines_of, rows, usual
from ._library import batch, routine

_empty = np.empty
_WHT_BUFFER_SIZES = {dtype: routine(batch, f"zulgBatchWHTGetBufferSize_{suffix}") for dtype, suffix in SUFFIXES.items()}


def _same_length(
    name: str,
    family: Family,
    norms: dict[Optional[str], int],
    a: ArrayLike,
    n: Optional[SupportsIndex],
    axis: SupportsIndex,
    norm: Optional[str],
    out: Optional[Array],
    precision: str,
) -> Array:
    """Transforms whose result has the type and the length of their input."""
    if n is None and out is None:
        short = usual(family, norms, a, axis, norm, precision)
        if short is not None:
            array, routines, flag = short
            shape = array.shape
            length = shape[-1]
            if 2 <= length <= 64:
                return rows(routines, array, length, _empty(shape, array.dtype), length, (length, flag))
    source = as_array(name, a, family.wants_complex)
    index = axis_of(source, axis)
    length = source.shape[index] if n is None else count_of(name, n)
    check_length(name, length, index)
    flag = choice(name, "norm", norm, norms)
    routines = routines_of(name, family, source, precision)
    output = Output(name, out, source, index, length, source.dtype)
    source = readable(resized(source, index, length))
    destination = side(output.written, index)
    run(routines.many, output.unharmed(side(source, index), destination, index), destination, index, length,
        (length, flag))  # fmt: skip
    return output.done()


def fft(
    a: ArrayLike,
    n: Optional[SupportsIndex] = None,
    axis: SupportsIndex = -1,
    norm: Optional[str] = None,
    out: Optional[Array] = None,
    *,
    precision: str = "double",
) -> Array:
    """The discrete Fourier transform along one axis, of 2 to 64 points.

    ``result[k] = scale * sum(a[j] * exp(-2j*pi*j*k/n) for j in range(n))``

    Parameters
    ----------
    a : array_like
        Complex numbers, or real ones, which are made complex first: of float32 the result is complex64, of float64,
        integers and bools complex128.
    n : int, optional
        The length of the transform. The first n elements are taken; zeros follow where there are fewer. By default it
        is the length of the axis.
    axis : int
        The axis along which the transforms go.
    norm : {"backward", "ortho", "forward"}, optional
        The scale: 1, 1/sqrt(n) or 1/n. None is "backward".
    out : ndarray, optional
        Where the result goes, an array of its shape and type with any strides. It may be the input.
    precision : {"double", "single"}
        What single numbers are computed in. "double" rounds once, at the end; "single" takes less time.

    Returns
    -------
    ndarray
        `out`, or a new array with its axes in the order in memory that those of `a` have.

    Raises
    ------
    ValueError
        A length outside 2 to 64, an unknown name, an `out` of another shape.
    TypeError
        A type that has no transform, an `out` of another type.
    numpy.AxisError
        There is no such axis. In newer releases of NumPy it is ``numpy.exceptions.AxisError``.

    Notes
    -----
    Other threads run meanwhile. Any number of threads may call at the same time, each with its own output.

    Examples
    --------
    >>> import numpy as np, zulgenpx
    >>> zulgenpx.fft([1, 2, 0, 0]).tolist()
    [(3+0j), (1-2j), (-1+0j), (1+2j)]
    """
    return _same_length("fft", COMPLEX_FORWARD, NORMS, a, n, axis, norm, out, precision)


def ifft(
    a: ArrayLike,
    n: Optional[SupportsIndex] = None,
    axis: SupportsIndex = -1,
    norm: Optional[str] = None,
    out: Optional[Array] = None,
    *,
    precision: str = "double",
) -> Array:
    """The inverse of `fft` along one axis, of 2 to 64 points.

    ``result[j] = scale * sum(a[k] * exp(2j*pi*j*k/n) for k in range(n))``

    The scale is 1/n by default and for ``norm="backward"``, 1/sqrt(n) for "ortho" and 1 for "forward". Parameters,
    result, exceptions and notes are otherwise those of `fft`.

    Examples
    --------
    >>> import numpy as np, zulgenpx
    >>> zulgenpx.ifft(zulgenpx.fft([1, 2, 0, 0])).real.tolist()
    [1.0, 2.0, 0.0, 0.0]
    """
    return _same_length("ifft", COMPLEX_INVERSE, NORMS, a, n, axis, norm, out, precision)


def hartley(
    a: ArrayLike,
    axis: SupportsIndex = -1,
    norm: Optional[str] = None,
    out: Optional[Array] = None,
    *,
    precision: str = "double",
) -> Array:
    """The Hartley transform of real numbers along one axis, of 2 to 64 points.

    ``result[k] = scale * sum(a[j] * (cos(2*pi*j*k/N) + sin(2*pi*j*k/N)) for j in range(N))``

    It is its own inverse up to the scale, which is 1 by default and for ``norm="backward"``, 1/sqrt(N) for "ortho" and
    1/N for "forward": the inverse of the default is "forward". The result is float32 for float32 and float64 for
    float64, integers and bools. Parameters, result, exceptions and notes are otherwise those of `fft`.

    Examples
    --------
    >>> import numpy as np, zulgenpx
    >>> y = zulgenpx.hartley([1.0, 2.0, 0.0, 0.0])
    >>> y.tolist()
    [3.0, 3.0, -1.0, -1.0]
    >>> zulgenpx.hartley(y, norm="forward").tolist()
    [1.0, 2.0, 0.0, 0.0]
    """
    return _same_length("hartley", HARTLEY, OWN_INVERSE_NORMS, a, None, axis, norm, out, precision)


def wht(a: ArrayLike, axis: SupportsIndex = -1, norm: Optional[str] = None, out: Optional[Array] = None) -> Array:
    """The Walsh-Hadamard transform of real numbers along one axis, of 2, 4, 8 ... 8192 points.

    ``result[k] = scale * sum((-1)**bin(j & k).count("1") * a[j] for j in range(N))``

    Rows are in natural (Sylvester) order. It is its own inverse up to the scale, which is as in `hartley`, and so is
    the type of the result. Sums of whole numbers are exact as long as each fits the type. Parameters, result,
    exceptions and notes are otherwise those of `fft`.

    Examples
    --------
    >>> import numpy as np, zulgenpx
    >>> zulgenpx.wht([1.0, 2.0, 0.0, 0.0]).tolist()
    [3.0, -1.0, 3.0, -1.0]
    """
    if out is None:
        short = usual(WHT, OWN_INVERSE_NORMS, a, axis, norm, "double")
        if short is not None:
            array, routines, flag = short
            length = array.shape[-1]
            if length in WHT_LENGTHS:
                buffer = _wht_buffer(array.dtype, length)
                middle = length.bit_length() - 1, flag
                return rows(routines, array, length, _empty(array.shape, array.dtype), length, middle, _passed(buffer))
    source = as_array("wht", a, False)
    index = axis_of(source, axis)
    length = source.shape[index]
    if length not in WHT_LENGTHS:
        raise ValueError(f"wht: the length along axis {index} is {length}; lengths are powers of two from 2 to 8192")
    flag = choice("wht", "norm", norm, OWN_INVERSE_NORMS)
    routines = WHT.routines["double", source.dtype]
    output = Output("wht", out, source, index, length, source.dtype)
    source = readable(source)
    buffer = _wht_buffer(source.dtype, length)
    destination = side(output.written, index)
    read = output.unharmed(side(source, index), destination, index)
    run(routines.many, read, destination, index, length, (length.bit_length() - 1, flag), _passed(buffer))
    return output.done()


def _passed(buffer: Optional[Array]) -> tuple[Any]:
    return (None if buffer is None else pointer(buffer),)


def _wht_buffer(dtype: np.dtype[Any], length: int) -> Optional[Array]:
    """Memory for the routine to work through; transforms below 256 points need none."""
    if length < 256:
        return None
    size = ctypes.c_int32()
    status = _WHT_BUFFER_SIZES[dtype](length.bit_length() - 1, ctypes.byref(size))
    if status:
        refused(status)
    return _empty(size.value, np.uint8)
