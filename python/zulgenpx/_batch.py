"""Turns transforms along one axis of arrays of any shape into calls of the batch library.

A call does `count` transforms at a constant distance. So of all axes but the transformed one, neighbours that are one
run of constant distance in both arrays become one, the best of the rest is what a call goes along, and a loop in Python
goes over the others.
"""

from __future__ import annotations

import ctypes
from typing import Any, Callable, NamedTuple

import numpy as np

_from_buffer: Any = ctypes.c_void_p.from_buffer  # takes arrays as well
_addressof, _byref = ctypes.addressof, ctypes.byref

# Arguments of usual calls: distances of rows.
INT64 = {value: ctypes.c_int64(value) for value in (*range(131), *(2**k for k in range(8, 28)))}
ONE = INT64[1]

# What an element costs that is collected in a buffer, in calls: about 2 ns of 1 us.
_COLLECTED = 0.002


def address(a: np.ndarray[Any, Any]) -> int:
    """Where the first element of an array is. Arrays of a buffer that can be written tell it four times as fast."""
    flags = a.flags
    if flags.c_contiguous and flags.writeable and a.nbytes >= 8:
        return _addressof(_from_buffer(a))
    return a.ctypes.data


def pointer(a: np.ndarray[Any, Any]) -> Any:
    """The same for an array without gaps, as an argument of a call."""
    if a.flags.writeable:
        return _byref(_from_buffer(a))
    return ctypes.c_void_p(a.ctypes.data)


class Side(NamedTuple):
    """One side of a batch: the array, the bytes of what the routine calls an element, and the step along the axis."""

    array: np.ndarray[Any, Any]
    item: int
    step: int


def side(a: np.ndarray[Any, Any], axis: int) -> Side:
    """The side whose elements are those of the array."""
    return Side(a, a.itemsize, a.strides[axis] // a.itemsize)


def as_reals(a: np.ndarray[Any, Any], axis: int) -> Side:
    """The side whose elements are the real and imaginary parts of a complex array without gaps along the axis."""
    assert a.strides[axis] == a.itemsize or a.size == 0
    return Side(a, a.itemsize // 2, 1)


def is_whole(a: np.ndarray[Any, Any], item: int) -> bool:
    """Whether every stride is a number of elements, so that the library can go along it."""
    return all(stride % item == 0 or size < 2 for stride, size in zip(a.strides, a.shape))


def overlaps_itself(a: np.ndarray[Any, Any]) -> bool:
    """Whether two elements of an array share bytes."""
    reach = a.itemsize
    axes = sorted((abs(stride), size) for stride, size in zip(a.strides, a.shape) if size > 1)
    for stride, size in axes:
        if stride < reach:
            break
        reach += stride * (size - 1)
    else:
        return False
    if 0 in a.shape:
        return False
    places = np.zeros(1, np.int64)
    for stride, size in axes:
        places = np.add.outer(places, stride * np.arange(size)).ravel()
    places.sort()
    return bool((np.diff(places) < a.itemsize).any())


class _Axis(NamedTuple):
    size: int
    source: int
    destination: int


def _merged(source: Side, destination: Side, axis: int) -> list[_Axis]:
    """All axes but the transformed one, with their distances in elements; what is one run is one axis."""
    shape = destination.array.shape
    axes = [
        _Axis(shape[i], source.array.strides[i] // source.item, destination.array.strides[i] // destination.item)
        for i in range(len(shape))
        if i != axis and shape[i] != 1
    ]
    axes.sort(key=lambda one: abs(one.destination), reverse=True)
    merged: list[_Axis] = []
    for one in axes:
        if merged:
            outer = merged[-1]
            if outer.source == one.size * one.source and outer.destination == one.size * one.destination:
                merged[-1] = _Axis(outer.size * one.size, one.source, one.destination)
                continue
        merged.append(one)
    return merged


def _offsets(axes: list[_Axis], source: Side, destination: Side) -> list[tuple[int, int]]:
    """Where each call begins, in bytes from the first elements."""
    places = np.zeros((2, 1), np.int64)
    for one in axes:
        distances = np.array([[one.source * source.item], [one.destination * destination.item]])
        places = (places[:, :, None] + (distances * np.arange(one.size))[:, None, :]).reshape(2, -1)
    return list(zip(*places.tolist()))


def run(
    function: Callable[..., int],
    source: Side,
    destination: Side,
    axis: int,
    length: int,
    middle: tuple[Any, ...],
    end: tuple[Any, ...] = (),
) -> None:
    """Calls the routine for all transforms. `middle` and `end` are its arguments before and after the count."""
    if 0 in destination.array.shape:
        return
    axes = _merged(source, destination, axis)
    rows = source.step == 1 and destination.step == 1

    def cost(one: _Axis) -> float:
        is_fast = rows or (one.source == 1 and one.destination == 1)
        return 1 / one.size + (0.0 if is_fast else _COLLECTED * length)

    if axes:
        along = min(axes, key=cost)
        axes.remove(along)
    else:
        # The distance of a single transform has no effect, but that of destinations may not be 0.
        along = _Axis(1, length, length)
    int64, pointer = ctypes.c_int64, ctypes.c_void_p
    arguments = (
        (int64(source.step), int64(along.source)),
        (int64(destination.step), int64(along.destination)),
        (*middle, int64(along.size), *end),
    )
    first, to = address(source.array), address(destination.array)
    for there, here in _offsets(axes, source, destination):
        status = function(pointer(first + there), *arguments[0], pointer(to + here), *arguments[1], *arguments[2])
        if status:
            refused(status)


def refused(status: int) -> None:
    """All arguments are checked before a call, so that no status should come back."""
    raise RuntimeError(f"zulgenpx: the library refuses a call with status {status}")
