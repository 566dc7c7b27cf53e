"""The DCT-IV, whose transforms go by plans."""

from __future__ import annotations

import collections
import ctypes
import operator
import threading
from typing import Any, Optional, SupportsIndex, Union

import numpy as np
from numpy.typing import ArrayLike, DTypeLike

from ._arrays import Array, Output, as_array, axis_of, choice, readable
from ._batch import address, pointer, refused, run, side
from ._families import Routines, rows
from ._library import batch, main, routine

_ALIGNMENT = 64  # a line of the cache; the library asks for a multiple of 32
_LONGEST_KEPT = 65536  # about 1 MB
_KEPT = 8

# A plan of more points has vectors that each run writes.
_LONGEST_WITHOUT_STATE = 32


class _Routines:
    def __init__(self, suffix: str, longest: int) -> None:
        self.longest = longest
        self.size = routine(main, f"zulgDCT4GetSize_{suffix}")
        self.init = routine(main, f"zulgDCT4Init_{suffix}")
        self.buffer_size = routine(batch, f"zulgBatchDCT4GetBufferSize_{suffix}")
        self.run = routine(batch, f"zulgBatchDCT4_{suffix}")
        self.rows = Routines(self.run, None)


_ROUTINES = {
    np.dtype(np.float32): _Routines("32f", 2**27),
    np.dtype(np.float64): _Routines("64f", 2**26),
}

_NORMS = {None: "backward", "backward": "backward", "ortho": "ortho", "forward": "forward"}


class DCT4Plan:
    """A plan of the DCT-IV: what transforms of one length and type share.

    ``plan(a, axis=-1, norm=None, out=None)`` transforms as `dct4` does. The memory of a plan is freed with the last
    reference to it. A plan may be used by several threads; one of more than 32 points then serves one after the other,
    so that threads are faster with a plan each. A copied or unpickled plan is built anew.

    Parameters
    ----------
    length : int
        A power of two from 2 to 2**26; for float32 to 2**27.
    dtype : float32 or float64
        The type of the arrays.

    Attributes
    ----------
    length : int
    dtype : numpy.dtype
    nbytes : int
        The memory that the plan takes.

    Examples
    --------
    >>> import numpy as np, zulgenpx
    >>> plan = zulgenpx.DCT4Plan(64, np.float32)
    >>> plan
    DCT4Plan(64, float32)
    >>> x = np.ones((10, 64), np.float32)
    >>> bool((plan(x) == zulgenpx.dct4(x)).all())
    True
    """

    __slots__ = ("length", "dtype", "nbytes", "_memory", "_plan", "_lock", "__weakref__")

    length: int
    dtype: np.dtype[Any]
    nbytes: int

    def __init__(self, length: SupportsIndex, dtype: DTypeLike = np.float64) -> None:
        wanted = np.dtype(dtype)
        routines = _ROUTINES.get(wanted)
        if routines is None:
            raise TypeError(f"DCT4Plan: a plan is of float32 or float64, not of {wanted}")
        try:
            points = operator.index(length)
        except TypeError:
            raise TypeError(f"DCT4Plan: the length is {length!r}, which is no integer") from None
        _check_length("DCT4Plan: the length", points, wanted)
        size = ctypes.c_int32()
        status = routines.size(points, ctypes.byref(size))
        if status:
            refused(status)
        # The plan refers to its own addresses: this memory is never moved.
        memory = np.empty(size.value + _ALIGNMENT, np.uint8)
        block = address(memory)
        block += -block % _ALIGNMENT
        plan = ctypes.c_void_p()
        status = routines.init(ctypes.byref(plan), points, ctypes.c_void_p(block))
        if status:
            refused(status)
        self.length, self.dtype, self.nbytes = points, wanted, memory.nbytes
        self._memory, self._plan = memory, plan
        self._lock = threading.RLock()

    def __call__(
        self, a: ArrayLike, axis: SupportsIndex = -1, norm: Optional[str] = None, out: Optional[Array] = None
    ) -> Array:
        """Transforms along an axis of the plan's length, as `dct4` does."""
        return dct4(a, axis, norm, out, plan=self)

    def __repr__(self) -> str:
        return f"DCT4Plan({self.length}, {self.dtype})"

    def __reduce__(self) -> tuple[Any, ...]:
        return DCT4Plan, (self.length, self.dtype)


def _check_length(what: str, length: int, dtype: np.dtype[Any]) -> None:
    longest = _ROUTINES[dtype].longest
    if not (2 <= length <= longest and length & (length - 1) == 0):
        raise ValueError(
            f"{what} is {length}; lengths are powers of two from 2 to 2**{longest.bit_length() - 1} for {dtype}"
        )


class _Kept(threading.local):
    """The plans of a thread that were used last. Each thread has its own, so that none waits for another."""

    def __init__(self) -> None:
        self.plans: collections.OrderedDict[tuple[int, np.dtype[Any]], DCT4Plan] = collections.OrderedDict()

    def plan(self, length: int, dtype: np.dtype[Any]) -> DCT4Plan:
        if length > _LONGEST_KEPT:
            return DCT4Plan(length, dtype)
        found = self.plans.pop((length, dtype), None) or DCT4Plan(length, dtype)
        self.plans[length, dtype] = found
        if len(self.plans) > _KEPT:
            self.plans.popitem(last=False)
        return found


_kept = _Kept()


def dct4(
    a: ArrayLike,
    axis: SupportsIndex = -1,
    norm: Optional[str] = None,
    out: Optional[Array] = None,
    *,
    plan: Optional[DCT4Plan] = None,
) -> Array:
    """The cosine transform of type IV of real numbers along one axis; its lengths are powers of two.

    ``result[k] = scale * sum(a[j] * cos(pi * (j + 1/2) * (k + 1/2) / N) for j in range(N))``

    Parameters
    ----------
    a : array_like
        Real numbers; integers and bools are made float64. Lengths are 2, 4, 8 ... 2**26, for float32 to 2**27.
    axis : int
        The axis along which the transforms go.
    norm : {"backward", "ortho", "forward"}, optional
        The scale: 1, sqrt(2/N) or 2/N. None is "backward". The transform is its own inverse with "ortho", and "forward"
        is the inverse of "backward". ``scipy.fft.dct(a, type=4)`` has twice the result of "backward", the same of
        "ortho" and half of "forward".
    out : ndarray, optional
        Where the result goes, an array of its shape and type with any strides. It may be the input.
    plan : DCT4Plan, optional
        The plan to be used, of the length and the type of the array. Without one, each thread keeps the plans that it
        has used last: 8 of at most 65536 points. A longer one is built for each call.

    Returns
    -------
    ndarray
        `out`, or a new array with its axes in the order in memory that those of `a` have; float32 of float32, otherwise
        float64. The factors of "ortho" and "forward" multiply the result and round once more; 2/N rounds nothing.

    Exceptions and notes are those of `fft`.

    Examples
    --------
    >>> import numpy as np, zulgenpx
    >>> zulgenpx.dct4([1.0, 2.0, 0.0, 0.0]).round(4).tolist()
    [2.6437, 0.4413, -1.406, -0.9161]
    """
    if norm is None and out is None:
        done = _short_way(a, axis, plan)
        if done is not None:
            return done
    source = as_array("dct4", a, False)
    index = axis_of(source, axis)
    length = source.shape[index]
    dtype = source.dtype
    _check_length(f"dct4: the length along axis {index}", length, dtype)
    norm = choice("dct4", "norm", norm, _NORMS)
    if plan is None:
        used = _kept.plan(length, dtype) if source.size else None
    elif not isinstance(plan, DCT4Plan):
        raise TypeError(f"dct4: plan is of {type(plan).__name__}, which is no DCT4Plan")
    elif (plan.length, plan.dtype) != (length, dtype):
        raise ValueError(f"dct4: the plan has {plan.length} points of {plan.dtype}, the array {length} of {dtype}")
    else:
        used = plan
    output = Output("dct4", out, source, index, length, dtype)
    destination = side(output.written, index)
    read = output.unharmed(side(readable(source), index), destination, index)
    if used is not None and source.size:
        routines = _ROUTINES[dtype]
        # A buffer is needed where elements have a step.
        buffer = None if read.step == destination.step == 1 else np.empty(_buffer_bytes(routines, length), np.uint8)
        arguments = (used._plan,), (None if buffer is None else pointer(buffer),)
        if length > _LONGEST_WITHOUT_STATE:
            with used._lock:
                run(routines.run, read, destination, index, length, *arguments)
        else:
            run(routines.run, read, destination, index, length, *arguments)
        if norm != "backward":
            factor: Union[float, np.floating[Any]] = 2 / length
            written = output.written
            np.multiply(written, dtype.type(factor if norm == "forward" else np.sqrt(factor)), out=written)
    return output.done()


def _short_way(a: ArrayLike, axis: SupportsIndex, plan: Optional[DCT4Plan]) -> Optional[Array]:
    """The result of the usual call, rows of an array that nothing lies between; None of any other, and of refusals."""
    if type(a) is not np.ndarray or not a.flags.c_contiguous or not a.size:
        return None
    length = a.shape[-1] if a.ndim else 0
    key = length, a.dtype
    if type(axis) is not int or axis not in (-1, a.ndim - 1):
        return None
    if plan is None:
        plan = _kept.plans.get(key)  # one that is not there yet, or that is not the last one used, goes the general way
        if plan is None or next(reversed(_kept.plans)) != key:
            return None
    elif type(plan) is not DCT4Plan or (plan.length, plan.dtype) != key:
        return None
    result = np.empty(a.shape, a.dtype)
    with plan._lock:
        return rows(_ROUTINES[a.dtype].rows, a, length, result, length, (plan._plan,), (None,))


def _buffer_bytes(routines: _Routines, length: int) -> int:
    size = ctypes.c_int32()
    status = routines.buffer_size(length, ctypes.byref(size))
    if status:
        refused(status)
    return size.value
