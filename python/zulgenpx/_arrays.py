"""What all transforms do with their arguments: the array, the length, the axis, the norm and the output."""

from __future__ import annotations

import operator
from typing import Any, Optional, SupportsIndex

import numpy as np

from ._batch import Side, as_reals, is_whole, overlaps_itself, side

Array = np.ndarray[Any, Any]
AxisError: Any = getattr(np, "exceptions", np).AxisError

DType = np.dtype[Any]

_SINGLE: DType = np.dtype(np.float32)
_DOUBLE: DType = np.dtype(np.float64)
_COMPLEX_OF: dict[DType, DType] = {_SINGLE: np.dtype(np.complex64), _DOUBLE: np.dtype(np.complex128)}
REAL_OF = {both: real for real, both in _COMPLEX_OF.items()}


def as_array(name: str, a: Any, wants_complex: bool) -> Array:
    """The argument as an array of one of the four types, copied only if it has another type or order of bytes."""
    if isinstance(a, np.ma.MaskedArray):
        raise TypeError(f"{name}: a masked array has gaps; fill them first, as with a.filled(0)")
    given: Array = np.asarray(a)
    dtype = given.dtype.newbyteorder("=")
    if dtype.kind in "biu":
        dtype = _DOUBLE
    if dtype not in _COMPLEX_OF and dtype not in REAL_OF:
        kinds = "float32, float64, " + "complex64, complex128, " * wants_complex + "integers or bool"
        raise TypeError(f"{name}: the array is of {given.dtype}; it can be of {kinds}")
    if wants_complex:
        dtype = _COMPLEX_OF.get(dtype, dtype)
    elif dtype in REAL_OF:
        raise TypeError(f"{name}: the array is of {given.dtype}, the transform is of real numbers")
    return given.astype(dtype, order="K", copy=False)


def complex_of(real: DType) -> DType:
    return _COMPLEX_OF[real]


def readable(a: Array) -> Array:
    """The array, or its copy if one of its strides is no number of elements."""
    return a if is_whole(a, a.itemsize) else a.copy("K")


def axis_of(a: Array, axis: SupportsIndex) -> int:
    index = operator.index(axis)
    if not -a.ndim <= index < a.ndim:
        raise AxisError(index, a.ndim)
    return index % a.ndim


def count_of(name: str, n: SupportsIndex) -> int:
    """The argument n."""
    try:
        return operator.index(n)
    except TypeError:
        raise TypeError(f"{name}: n is {n!r}, which is no integer") from None


def check_length(name: str, length: int, axis: int) -> None:
    if not 2 <= length <= 64:
        raise ValueError(f"{name}: the length along axis {axis} is {length}; lengths are 2 to 64")


def resized(a: Array, axis: int, n: int) -> Array:
    """The first n elements along the axis; zeros follow where there are fewer."""
    length = a.shape[axis]
    if n == length:
        return a
    part = (slice(None),) * axis + (slice(min(n, length)),)
    if n < length:
        return a[part]
    longer = np.zeros_like(a, order="K", subok=False, shape=with_length(a, axis, n))
    longer[part] = a
    return longer


def packed(a: Array, axis: int) -> Array:
    """A copy without gaps along the axis."""
    return np.moveaxis(np.array(np.moveaxis(a, axis, -1), order="C"), -1, axis)


def with_length(a: Array, axis: int, length: int) -> tuple[int, ...]:
    return a.shape[:axis] + (length,) + a.shape[axis + 1 :]


def choice(name: str, what: str, value: Any, table: dict[Any, Any]) -> Any:
    """What the table has for the value of an argument."""
    try:
        return table[value]
    except (KeyError, TypeError):
        allowed = ", ".join(repr(key) for key in table if key is not None)
        raise ValueError(f"{name}: {what} is {value!r}; it is one of {allowed}") from None


def check_out(name: str, out: Any, shape: tuple[int, ...], dtype: DType) -> None:
    if not isinstance(out, np.ndarray) or isinstance(out, np.ma.MaskedArray):
        raise TypeError(f"{name}: out is of {type(out).__name__}, which is no plain array of NumPy")
    if out.shape != shape:
        raise ValueError(f"{name}: out has the shape {out.shape}, the result has {shape}")
    if out.dtype != dtype:
        raise TypeError(f"{name}: out is of {out.dtype}, the result is of {dtype}")
    if not out.flags.writeable:
        raise ValueError(f"{name}: out is read-only")
    if overlaps_itself(out):
        raise ValueError(f"{name}: out has two elements in one place")


class Output:
    """Where a transform writes: a new array, the caller's, or one whose elements are put into the caller's later."""

    def __init__(
        self,
        name: str,
        out: Optional[Array],
        source: Array,
        axis: int,
        length: int,
        dtype: DType,
        without_gaps: bool = False,
    ) -> None:
        """`without_gaps` asks for neighbours along the axis, so that parts of complex numbers have one step."""
        self.shape = with_length(source, axis, length)
        self.out = out
        if out is None:
            self.written = self._new(source, axis, dtype, without_gaps)
            return
        check_out(name, out, self.shape, dtype)
        fits = is_whole(out, dtype.itemsize) and (not without_gaps or out.strides[axis] == dtype.itemsize)
        self.written = out if fits else self._new(out, axis, dtype, without_gaps)

    def _new(self, like: Array, axis: int, dtype: DType, without_gaps: bool) -> Array:
        """An array with its axes in the order in memory that another one has."""
        made: Array = np.empty_like(like, dtype, "K", False, self.shape)
        if without_gaps and made.strides[axis] != dtype.itemsize:
            last = self.shape[:axis] + self.shape[axis + 1 :] + self.shape[axis : axis + 1]
            made = np.moveaxis(np.empty(last, dtype), -1, axis)
        return made

    def unharmed(self, source: Side, destination: Side, axis: int) -> Side:
        """The source, or a copy of it if writing the output would change what is yet to be read.

        It would not if each transform is written where it is read: both sides begin at one place and go on equally.
        """
        a, written = source.array, self.written
        if written is not self.out or not np.may_share_memory(a, written, max_work=1):
            return source
        is_same = (
            (a.ctypes.data, *source[1:]) == (written.ctypes.data, *destination[1:])
            and all(a.strides[i] == written.strides[i] for i in range(a.ndim) if i != axis and a.shape[i] > 1)
            and not overlaps_itself(a)
        )
        if is_same:
            return source
        if source.item == a.itemsize:
            return side(a.copy("K"), axis)
        return as_reals(packed(a, axis), axis)

    def done(self) -> Array:
        if self.out is None:
            return self.written
        if self.written is not self.out:
            self.out[...] = self.written
        return self.out
