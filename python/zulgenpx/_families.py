"""The families of transforms: their routines in the libraries, their scales, and the short way to them.

The usual call has rows of an array that nothing lies between, and no output is given. There the time counts that a call
takes in Python, so that it goes a short way. All other calls, and all refusals, go the general way.
"""

from __future__ import annotations

import ctypes
from typing import Any, Callable, NamedTuple, Optional

import numpy as np

from ._arrays import Array, DType, choice, complex_of
from ._batch import INT64, ONE, pointer, refused
from ._library import batch, main, routine

LENGTHS = range(2, 65)
WHT_LENGTHS = tuple(2**order for order in range(1, 14))
SUFFIXES: dict[DType, str] = {np.dtype(np.float32): "32f", np.dtype(np.float64): "64f"}

# The scale flags of the library: 1/N forward, 1/N inverse, 1/sqrt(N) in both directions, none.
_FORWARD, _INVERSE, _BOTH, _NONE = 1, 2, 4, 8
NORMS = {None: _INVERSE, "backward": _INVERSE, "ortho": _BOTH, "forward": _FORWARD}
# Those of the transforms that are their own inverses. By default they have no factor, as forward transforms.
OWN_INVERSE_NORMS = {None: _NONE, "backward": _NONE, "ortho": _BOTH, "forward": _FORWARD}


class Routines(NamedTuple):
    """Of one family, type and precision: many transforms in a call, and one, where there is a routine for one."""

    many: Callable[..., int]
    one: Optional[Callable[..., int]]


class Family(NamedTuple):
    """What a transform reads, and its routines by precision and by that type."""

    wants_complex: bool
    routines: dict[tuple[str, DType], Routines]


def _family(name: str, wants_complex: bool, has_single: bool = True, source_is_complex: bool = False) -> Family:
    routines: dict[tuple[str, DType], Routines] = {}
    for real, suffix in SUFFIXES.items():
        dtype = complex_of(real) if wants_complex or source_is_complex else real
        suffix += "c" if wants_complex else ""
        many = routine(batch, f"zulgBatch{name}_{suffix}")
        routines["double", dtype] = Routines(many, routine(main, f"zulg{name}_{suffix}"))
        if has_single and real == np.float32:
            routines["single", dtype] = Routines(routine(batch, f"zulgBatchSingle{name}_{suffix}"), None)
    return Family(wants_complex or source_is_complex, routines)


COMPLEX_FORWARD = _family("DFTFwd_CToC", True)
COMPLEX_INVERSE = _family("DFTInv_CToC", True)
REAL_FORWARD = {
    "ccs": _family("DFTFwd_RToCCS", False),
    "pack": _family("DFTFwd_RToPack", False),
    "perm": _family("DFTFwd_RToPerm", False),
}
REAL_INVERSE = {
    "ccs": _family("DFTInv_CCSToR", False, source_is_complex=True),
    "pack": _family("DFTInv_PackToR", False),
    "perm": _family("DFTInv_PermToR", False),
}
HARTLEY = _family("Hartley", False)
WHT = _family("WHT", False, has_single=False)

_byref, _int64 = ctypes.byref, ctypes.c_int64
_from_buffer: Any = ctypes.c_void_p.from_buffer  # takes arrays as well
_ndarray = np.ndarray


def usual(
    family: Family, norms: dict[Optional[str], int], a: Any, axis: Any, norm: Any, precision: Any
) -> Optional[tuple[Array, Routines, int]]:
    """The array, the routines and the scale flag, if the array can go the short way as it is."""
    if type(a) is _ndarray and type(axis) is int and type(precision) is str and (norm is None or type(norm) is str):
        if a.flags.c_contiguous and a.size and (axis == -1 or axis == a.ndim - 1):
            routines, flag = family.routines.get((precision, a.dtype)), norms.get(norm)
            if routines is not None and flag is not None:
                return a, routines, flag
    return None


def rows(
    routines: Routines,
    a: Array,
    apart: int,
    result: Array,
    result_apart: int,
    middle: tuple[Any, ...],
    end: tuple[Any, ...] = (),
) -> Array:
    """Transforms rows that begin so many elements apart. `middle` and `end` are as in `run`."""
    count = a.size // a.shape[-1]
    if count == 1 and routines.one is not None:
        status = routines.one(pointer(a), _byref(_from_buffer(result)), *middle, *end)
    else:
        there, here = INT64[apart], INT64[result_apart]
        status = routines.many(
            pointer(a), ONE, there, _byref(_from_buffer(result)), ONE, here, *middle, _int64(count), *end
        )
    if status:
        refused(status)
    return result


def routines_of(name: str, family: Family, a: Array, precision: Any) -> Routines:
    """The routines for an array of a type that the family has."""
    if choice(name, "precision", precision, {"double": False, "single": True}):
        found = family.routines.get(("single", a.dtype))
        if found is None:
            raise ValueError(f"{name}: precision is 'single', which is for float32 and complex64, not {a.dtype}")
        return found
    return family.routines["double", a.dtype]
