"""What the tests of the Python package share: arrays of every kind, and the definitions of the transforms."""
import os
import sys

import numpy as np

TREE = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
PYTHON = os.path.join(TREE, "python")
# Where the built libraries are, and where tests may write.
LIBRARIES = os.environ["ZULGENPX_LIBRARY_DIR"]
FOLDER = os.environ["ZULGENPX_TEST_FOLDER"]
LIBRARY_NAMES = ("libzulcore-7.0.so", "libzulgenpx-7.0.so", "libzulgenpx-batch-7.0.so")

sys.path.insert(0, PYTHON)

LENGTHS = range(2, 65)
NORMS = (None, "backward", "ortho", "forward")
REALS = (np.float32, np.float64)
COMPLEX = (np.complex64, np.complex128)


def epsilon(dtype):
    return float(np.finfo(dtype).eps)


def random_numbers(source, shape, dtype):
    numbers = source.normal(size=shape)
    if np.dtype(dtype).kind == "c":
        numbers = numbers + 1j * source.normal(size=shape)
    return numbers.astype(dtype)


def random_view(source, shape, dtype, for_output=False):
    """Random numbers in an array of that shape with strides of some kind: (what it is, the view, all of its memory).

    Nothing is known of the rest of the memory, so that a test can see that it is left alone.
    """
    kinds = ["plain", "fortran", "negative", "steps", "moved", "offset", "field"] + ["repeated"] * (not for_output)
    kind = kinds[source.integers(len(kinds))]
    shape = tuple(shape)
    if kind == "plain":
        memory = random_numbers(source, shape, dtype)
        return kind, memory, memory
    if kind == "fortran":
        memory = random_numbers(source, shape[::-1], dtype)
        return kind, memory.T, memory
    if kind == "negative":
        memory = random_numbers(source, shape, dtype)
        return kind, memory[tuple(slice(None, None, source.choice([1, -1])) for _ in shape)], memory
    if kind == "steps":
        steps = [int(source.integers(1, 4)) for _ in shape]
        memory = random_numbers(source, [size * step + 1 for size, step in zip(shape, steps)], dtype)
        return kind, memory[tuple(slice(1, 1 + size * step, step) for size, step in zip(shape, steps))], memory
    if kind == "moved":
        order = source.permutation(len(shape))
        memory = random_numbers(source, [shape[i] for i in order], dtype)
        return kind, memory.transpose(np.argsort(order)), memory
    if kind == "offset":  # no multiple of the element's size
        numbers = random_numbers(source, shape, dtype)
        memory = np.zeros(numbers.nbytes + 3, np.uint8)
        view = memory[3:].view(dtype).reshape(shape)
        view[...] = numbers
        return kind, view, memory
    if kind == "field":  # strides are no multiples of the element's size
        memory = np.zeros(shape, np.dtype([("before", np.uint8), ("it", dtype), ("after", np.uint8, 2)]))
        memory["it"] = random_numbers(source, shape, dtype)
        return kind, memory["it"], memory
    repeated = source.integers(2, size=len(shape))
    memory = random_numbers(source, [1 if r else size for r, size in zip(repeated, shape)], dtype)
    return kind, np.broadcast_to(memory, shape), memory


def random_shape(source, axes, length):
    """A shape with the length along a random axis, and that axis."""
    axis = int(source.integers(axes))
    return [length if i == axis else int(source.integers(1, 6)) for i in range(axes)], axis


def hartley(x):
    """The definition, along the last axis, in long double."""
    n = x.shape[-1]
    angles = 8 * np.arctan(np.longdouble(1)) * (np.outer(np.arange(n), np.arange(n)) % n) / n
    return x @ (np.cos(angles) + np.sin(angles))


def wht(x):
    """Sums and differences of halves, in long double: the transform of halves is that of the whole."""
    if x.shape[-1] == 1:
        return x.astype(np.longdouble)
    a, b = (x[..., half] for half in (slice(x.shape[-1] // 2), slice(x.shape[-1] // 2, None)))
    a, b = wht(a), wht(b)
    return np.concatenate([a + b, a - b], axis=-1)


def along(definition, x, axis):
    return np.moveaxis(definition(np.moveaxis(x, axis, -1)), -1, axis)
