"""Refusals, each with one line, and the edges: empty arrays, inputs that overlap the output, shapes of any kind."""
import unittest
import warnings

import numpy as np
import support

import zulgenpx
from zulgenpx import _batch

AXIS_ERROR = getattr(np, "exceptions", np).AxisError
ALL = ("fft", "ifft", "rfft", "irfft", "hartley", "wht", "dct4")
OF_COMPLEX = ("fft", "ifft", "irfft")


class Refusals(unittest.TestCase):
    def assert_refused(self, error, line, call, *arguments, **options):
        with self.assertRaises(error) as caught:
            call(*arguments, **options)
        self.assertEqual(str(caught.exception), line)

    def test_lengths(self):
        says = "{}: the length along axis {} is {}; lengths are 2 to 64"
        for name in ("fft", "ifft", "rfft", "hartley"):
            call = getattr(zulgenpx, name)
            for length in (0, 1, 65, 1000):
                self.assert_refused(ValueError, says.format(name, 0, length), call, np.zeros(length))
                self.assert_refused(ValueError, says.format(name, 1, length), call, np.zeros((2, length, 3)), axis=-2)
        for name in ("fft", "ifft", "rfft", "irfft"):
            for n in (-1, 0, 1, 65):
                self.assert_refused(ValueError, says.format(name, 0, n), getattr(zulgenpx, name), np.zeros(8), n)
            call = getattr(zulgenpx, name)
            self.assert_refused(TypeError, f"{name}: n is 2.5, which is no integer", call, [1, 2], 2.5)
        self.assert_refused(ValueError, says.format("irfft", 0, 0), zulgenpx.irfft, np.zeros(1))
        self.assert_refused(ValueError, says.format("irfft", 0, 66), zulgenpx.irfft, np.zeros(34))
        for length in (0, 1, 3, 12, 16384):
            self.assert_refused(
                ValueError, f"wht: the length along axis 0 is {length}; lengths are powers of two from 2 to 8192",
                zulgenpx.wht, np.zeros(length))
        for length in (0, 1, 3, 9, 17, 1000):
            says = f"dct4: the length along axis 0 is {length}; lengths are powers of two from 2 to 2**"
            self.assert_refused(ValueError, f"{says}26 for float64", zulgenpx.dct4, np.zeros(length))
            self.assert_refused(ValueError, f"{says}27 for float32", zulgenpx.dct4, np.zeros(length, np.float32))

    def test_types(self):
        for name in ALL:
            call = getattr(zulgenpx, name)
            kinds = "float32, float64, complex64, complex128, integers or bool"
            if name not in OF_COMPLEX:
                kinds = kinds.replace("complex64, complex128, ", "")
                self.assert_refused(TypeError, f"{name}: the array is of complex64, the transform is of real numbers",
                                    call, np.zeros(4, np.complex64))
            for dtype in ("float16", "longdouble", "clongdouble", "object", "U3", "datetime64[s]"):
                array = np.zeros(4, dtype)
                says = f"{name}: the array is of {array.dtype}; it can be of {kinds}"
                self.assert_refused(TypeError, says, call, array)
            says = f"{name}: a masked array has gaps; fill them first, as with a.filled(0)"
            self.assert_refused(TypeError, says, call, np.ma.masked_array([1.0, 2], [False, True]))

    def test_axes(self):
        for name in ALL:
            call = getattr(zulgenpx, name)
            for axis in (2, -3):
                self.assert_refused(AXIS_ERROR, f"axis {axis} is out of bounds for array of dimension 2", call,
                                    np.zeros((4, 4)), axis=axis)
            self.assert_refused(AXIS_ERROR, "axis -1 is out of bounds for array of dimension 0", call, 3.0)
            self.assert_refused(TypeError, "'str' object cannot be interpreted as an integer", call, [1, 2], axis="0")
            self.assertEqual(call(np.eye(4), axis=np.int8(0)).tobytes("F"), call(np.eye(4)).tobytes())

    def test_names(self):
        for name in ALL:
            for norm in ("none", "", 1, ["ortho"]):
                says = f"{name}: norm is {norm!r}; it is one of 'backward', 'ortho', 'forward'"
                self.assert_refused(ValueError, says, getattr(zulgenpx, name), [1.0, 2.0, 3.0, 4.0], norm=norm)
        for name in ("rfft", "irfft"):
            self.assert_refused(ValueError, f"{name}: layout is 'CCS'; it is one of 'ccs', 'pack', 'perm'",
                                getattr(zulgenpx, name), [1, 2], layout="CCS")
        for name in ALL[:5]:
            call = getattr(zulgenpx, name)
            for precision in ("half", None, {}):
                says = f"{name}: precision is {precision!r}; it is one of 'double', 'single'"
                self.assert_refused(ValueError, says, call, [1.0, 2.0], precision=precision)
            dtype = "complex128" if name in OF_COMPLEX else "float64"
            says = f"{name}: precision is 'single', which is for float32 and complex64, not {dtype}"
            self.assert_refused(ValueError, says, call, [1.0, 2.0], precision="single")
        says = "irfft: n is 6, but the layout 'pack' has 8 elements along axis 0"
        self.assert_refused(ValueError, says, zulgenpx.irfft, np.zeros(8), 6, layout="pack")

    def test_outputs(self):
        for name in ALL:
            call = getattr(zulgenpx, name)
            x = np.ones((3, 4))
            good = call(x)
            before = good.copy()
            says = f"{name}: out is of list, which is no plain array of NumPy"
            self.assert_refused(TypeError, says, call, x, out=[1])
            masked = np.ma.masked_array(good)
            says = f"{name}: out is of MaskedArray, which is no plain array of NumPy"
            self.assert_refused(TypeError, says, call, x, out=masked)
            says = f"{name}: out has the shape {good[:2].shape}, the result has {good.shape}"
            self.assert_refused(ValueError, says, call, x, out=good[:2])
            for dtype in ("complex64", "float32", ">c16", ">f8"):
                out = np.zeros(good.shape, dtype)
                says = f"{name}: out is of {dtype}, the result is of {good.dtype}"
                self.assert_refused(TypeError, says, call, x, out=out)
                self.assertFalse(out.any())
            good.flags.writeable = False
            self.assert_refused(ValueError, f"{name}: out is read-only", call, x, out=good)
            self.assertEqual(good.tobytes(), before.tobytes())
            step = good.itemsize
            for strides in ((0, step), (step, step), (good.shape[1] * step - 1, step), (2 * step, -step)):
                memory = np.zeros(200 * step, np.uint8)
                out = np.ndarray(good.shape, good.dtype, memory.data, 100 * step, strides)
                self.assert_refused(ValueError, f"{name}: out has two elements in one place", call, x, out=out)
                self.assertFalse(memory.any())

    def test_distinct_places_that_no_order_shows(self):
        """Elements of a row and of the next in turn."""
        memory = np.zeros(64, complex)
        out = np.ndarray((2, 8), complex, memory.data, 0, (3 * 16, 2 * 16))
        self.assertFalse(_batch.overlaps_itself(out))
        x = np.random.default_rng(1).normal(size=(2, 8)) + 0j
        self.assertIs(zulgenpx.fft(x, out=out), out)
        self.assertTrue(np.allclose(out, np.fft.fft(x)))

    def test_self_overlap_is_what_the_bytes_say(self):
        source = np.random.default_rng(2)
        found = [0, 0]
        for _ in range(2000):
            shape = source.integers(0, 4, size=source.integers(1, 4))
            strides = source.integers(-20, 21, size=len(shape))
            size = int(np.dot(np.maximum(shape - 1, 0), np.abs(strides))) + 4
            first = int(np.dot(np.maximum(shape - 1, 0), np.maximum(-strides, 0)))
            view = np.ndarray(shape, np.float32, np.zeros(size, np.uint8).data, first, strides)
            used = []
            for index in np.ndindex(*shape):
                at = first + int(np.dot(index, strides))
                used += range(at, at + 4)
            expected = len(set(used)) < len(used)
            found[expected] += 1
            self.assertEqual(_batch.overlaps_itself(view), expected, (shape, strides))
        self.assertGreater(min(found), 200)


class Edges(unittest.TestCase):
    def test_empty_arrays(self):
        for name in ALL:
            call = getattr(zulgenpx, name)
            for shape in ((0, 4), (3, 0, 4), (4, 0)):
                axis = shape.index(4)
                x = np.zeros(shape, np.float32)
                points = {"rfft": 3, "irfft": 6}.get(name, 4)
                result = call(x, axis=axis)
                self.assertEqual(result.shape, shape[:axis] + (points,) + shape[axis + 1:])
                self.assertEqual(result.dtype, np.complex64 if name in ("fft", "ifft", "rfft") else np.float32)
                self.assertIs(call(x, axis=axis, out=result), result)
        self.assertEqual(zulgenpx.rfft(np.zeros((0, 0)), 4).shape, (0, 3))

    def test_other_arrays(self):
        """What NumPy can make an array is one; the result is a plain array."""
        class Sub(np.ndarray):
            pass

        x = np.arange(8.0).reshape(2, 4)
        for given in (x.tolist(), x.view(Sub), np.matrix(x), memoryview(x), tuple(map(tuple, x))):
            for name in ALL:
                result = getattr(zulgenpx, name)(given)
                self.assertIs(type(result), np.ndarray)
                self.assertEqual(result.tobytes(), getattr(zulgenpx, name)(x).tobytes())

    def test_read_only_input(self):
        for shape in ((4,), (5, 4), (2, 3, 4)):
            for name in ALL:
                x = np.random.default_rng(3).normal(size=shape)
                expected = getattr(zulgenpx, name)(x)
                x.flags.writeable = False
                self.assertEqual(getattr(zulgenpx, name)(x).tobytes(), expected.tobytes())

    def test_nothing_is_lost_without_a_word(self):
        with warnings.catch_warnings():
            warnings.simplefilter("error")
            for name in ALL:
                getattr(zulgenpx, name)(np.arange(4))

    def test_in_place(self):
        source = np.random.default_rng(4)
        for name in ("fft", "ifft", "hartley", "wht", "dct4"):
            call = getattr(zulgenpx, name)
            for dtype in support.COMPLEX if name in OF_COMPLEX else support.REALS:
                for _ in range(60):
                    length = 2 ** int(source.integers(1, 7))
                    shape, axis = support.random_shape(source, int(source.integers(1, 4)), length)
                    kind, x, _ = support.random_view(source, shape, dtype, for_output=True)
                    expected = call(x.copy(), axis=axis)
                    self.assertIs(call(x, axis=axis, out=x), x)
                    self.assertEqual(x.tobytes(), expected.tobytes(), (name, kind, shape, axis))

    def test_outputs_that_overlap_in_any_way(self):
        """The result is as if the input had been copied first."""
        source = np.random.default_rng(5)
        overlapping = 0
        for _ in range(600):
            name = ALL[source.integers(len(ALL))]
            call = getattr(zulgenpx, name)
            memory = source.normal(size=400)
            read, written = ((float, complex)[name in OF_COMPLEX], (float, complex)[name in ("fft", "ifft", "rfft")])
            points = 8
            result_points = {"rfft": 5, "irfft": 14}.get(name, points)

            def view(dtype, length):
                step = int(source.choice([1, 1, 1, 2, -1]))
                apart = abs(step) * length + int(source.integers(0, 3))
                size = np.dtype(dtype).itemsize
                first = int(source.integers(3)) * 8 + (abs(step) * (length - 1) * size if step < 0 else 0)
                strides = (apart * size, step * size)
                return np.ndarray((3, length), dtype, memory.data, first, strides)

            x, out = view(read, points), view(written, result_points)
            overlapping += np.shares_memory(x, out)
            expected = call(x.copy())
            call(x, out=out)
            self.assertEqual(out.tobytes(), expected.tobytes(), (name, x.strides, out.strides))
        self.assertGreater(overlapping, 500)

    def test_real_transforms_in_one_array(self):
        """Half spectrum and numbers share memory, at equal distances, and nothing is copied."""
        source = np.random.default_rng(6)
        for length in (2, 7, 16, 63):
            memory = source.normal(size=(5, length // 2 * 2 + 2))
            spectra, numbers = memory.view(complex), memory[:, :length]
            expected = np.fft.rfft(numbers)
            zulgenpx.rfft(numbers, out=spectra)
            self.assertTrue(np.allclose(spectra, expected))
            zulgenpx.irfft(spectra, length, out=numbers)
            self.assertTrue(np.allclose(numbers, np.fft.irfft(expected, length)))

    def test_spectra_that_overlap_each_other(self):
        """Spectra that share bins, at the distance of the numbers: a number written must not be a bin to be read."""
        memory = np.random.default_rng(7).normal(size=200)
        spectra = np.ndarray((5, 9), complex, memory.data, 0, (16 * 8, 16))
        numbers = np.ndarray((5, 16), float, memory.data, 0, (16 * 8, 8))
        expected = np.fft.irfft(spectra)
        zulgenpx.irfft(spectra, out=numbers)
        self.assertTrue(np.allclose(numbers, expected))

    def test_order_of_axes(self):
        """A new result lies in memory as the input does; half spectra are contiguous along the axis."""
        x = np.zeros((4, 8, 16))
        for name in ALL:
            for order in ((0, 1, 2), (2, 1, 0), (1, 2, 0)):
                y = np.zeros([x.shape[i] for i in order]).transpose(np.argsort(order))
                for axis in range(3):
                    result = getattr(zulgenpx, name)(y, axis=axis)
                    if name == "rfft":
                        self.assertEqual(result.strides[axis], result.itemsize)
                    else:
                        by_stride = sorted(range(3), key=lambda i: -result.strides[i])
                        self.assertEqual(by_stride, list(order), (name, axis))

    def test_calls_are_few(self):
        """Axes that are one run are one call, whatever their number."""
        calls = []

        def counted(*arguments):
            calls.append(arguments)
            return 0

        def count(source, destination, axis):
            calls.clear()
            length = source.shape[axis]
            _batch.run(counted, _batch.side(source, axis), _batch.side(destination, axis), axis, length, (length, 8))
            return len(calls)

        x = np.zeros((6, 5, 4, 8))
        self.assertEqual(count(x, x.copy(), 3), 1)
        self.assertEqual(count(x[:, ::-1, ::-1], x[:, ::-1, ::-1].copy("K"), 3), 6)
        self.assertEqual(count(x.T, x.copy().T, 0), 1)
        self.assertEqual(count(x, x.copy(), 0), 1)
        self.assertEqual(count(x, x.copy(), 1), 6)
        self.assertEqual(count(x[:, :, 0], x[:, :, 0].copy(), 2), 1)
        self.assertEqual(count(x[:, :, 0], x[:, :, 1].copy(), 0), 5)
        wide = np.zeros((1000, 8, 2))
        self.assertEqual(count(wide, wide.copy(), 1), 2)
        self.assertEqual(count(np.broadcast_to(np.zeros(8), (7, 9, 8)), np.zeros((7, 9, 8)), 2), 1)


if __name__ == "__main__":
    unittest.main()
