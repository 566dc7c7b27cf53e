"""Results against numpy.fft, scipy.fft and the definitions, over shapes, strides, axes, types, norms and outputs."""
import unittest

import numpy as np
import scipy.fft
import support

import zulgenpx


def dct4_reference(x, axis, norm):
    """SciPy's factors are others: twice ours without a norm, half of ours for "forward"."""
    factor = {None: 0.5, "backward": 0.5, "ortho": 1, "forward": 2}[norm]
    return factor * scipy.fft.dct(x, type=4, axis=axis, norm=norm)


def own_inverse(definition):
    def reference(x, axis, norm):
        n = x.shape[axis]
        return support.along(definition, x, axis) * {"ortho": n**-0.5, "forward": 1 / n}.get(norm, 1)

    return reference


# Name, reads complex numbers, result is complex, lengths, reference(array, axis, norm).
TRANSFORMS = [
    ("fft", True, True, support.LENGTHS, lambda x, axis, norm: np.fft.fft(x, axis=axis, norm=norm)),
    ("ifft", True, True, support.LENGTHS, lambda x, axis, norm: np.fft.ifft(x, axis=axis, norm=norm)),
    ("rfft", False, True, support.LENGTHS, lambda x, axis, norm: np.fft.rfft(x, axis=axis, norm=norm)),
    ("irfft", True, False, range(2, 34), lambda x, axis, norm: np.fft.irfft(x, axis=axis, norm=norm)),
    ("hartley", False, False, support.LENGTHS, own_inverse(support.hartley)),
    ("wht", False, False, zulgenpx.WHT_LENGTHS[:9], own_inverse(support.wht)),
    ("dct4", False, False, [2**k for k in range(1, 10)], dct4_reference),
]


class Values(unittest.TestCase):
    def assert_close(self, result, expected, dtype, note):
        """Up to rounding: the relative error of the whole, in units of the type's epsilon."""
        self.assertIs(type(result), np.ndarray, note)
        self.assertEqual((result.shape, result.dtype), (expected.shape, np.dtype(dtype)), note)
        error = np.linalg.norm((result - expected).ravel())
        self.assertLessEqual(error, 4 * support.epsilon(dtype) * np.linalg.norm(expected.ravel()), note)

    def each(self):
        for name, reads_complex, is_complex, lengths, reference in TRANSFORMS:
            for single in (True, False):
                read = (support.REALS, support.COMPLEX)[reads_complex][not single]
                written = (support.REALS, support.COMPLEX)[is_complex][not single]
                yield name, read, written, lengths, reference

    def test_every_length(self):
        source = np.random.default_rng(1)
        for name, read, written, lengths, reference in self.each():
            for length in lengths:
                x = support.random_numbers(source, (3, length), read)
                note = f"{name} {read.__name__} {length}"
                for norm in support.NORMS:
                    result = getattr(zulgenpx, name)(x, norm=norm)
                    self.assert_close(result, reference(x.astype(np.result_type(x, float)), -1, norm), written, note)
                self.assert_close(getattr(zulgenpx, name)(x[0]), reference(x[0], -1, None), written, note)

    def test_random_shapes_and_strides(self):
        source = np.random.default_rng(2)
        kinds = set()
        for name, read, written, lengths, reference in self.each():
            for _ in range(120):
                length = int(source.choice(lengths))
                shape, axis = support.random_shape(source, int(source.integers(1, 5)), length)
                kind, x, memory = support.random_view(source, shape, read)
                kinds.add(kind)
                norm = support.NORMS[source.integers(4)]
                given = axis - len(shape) * int(source.integers(2))
                before = memory.tobytes()
                note = f"{name} {read.__name__} {kind} {shape} {given} {norm}"
                expected = reference(x.astype(np.result_type(x, float)), axis, norm)
                self.assert_close(getattr(zulgenpx, name)(x, axis=given, norm=norm), expected, written, note)
                self.assertEqual(memory.tobytes(), before, note)

                kind, out, memory = support.random_view(source, expected.shape, written, for_output=True)
                untouched = np.array(memory)  # what is between the elements must stay
                result = getattr(zulgenpx, name)(x, axis=given, norm=norm, out=out)
                self.assertIs(result, out, note)
                self.assert_close(np.array(out), expected, written, f"{note} out {kind}")
                out[...] = 0
                after = np.array(memory)
                view_of_untouched = self.same_view(untouched, memory, out)
                view_of_untouched[...] = 0
                self.assertEqual(after.tobytes(), untouched.tobytes(), f"{note} out {kind}")
        self.assertEqual(kinds, {"plain", "fortran", "negative", "steps", "moved", "offset", "field", "repeated"})

    @staticmethod
    def same_view(copy, memory, view):
        """The view of the copy that `view` is of the memory."""
        copy_bytes = copy.view(np.uint8).reshape(-1) if copy.dtype.names is None else copy.reshape(-1).view(np.uint8)
        offset = view.ctypes.data - memory.ctypes.data
        return np.ndarray(view.shape, view.dtype, copy_bytes.data, offset, view.strides)

    def test_lengths_are_cut_and_filled(self):
        source = np.random.default_rng(3)
        for name in ("fft", "ifft", "rfft", "irfft"):
            for _ in range(100):
                length, n = (int(k) for k in source.integers(2, 60, size=2))
                shape, axis = support.random_shape(source, int(source.integers(1, 4)), length)
                _, x, _ = support.random_view(source, shape, float if name == "rfft" else complex)
                expected = getattr(np.fft, name)(x, n, axis)
                self.assert_close(getattr(zulgenpx, name)(x, n, axis), expected, expected.dtype, (name, shape, axis, n))
        self.assertEqual(zulgenpx.fft(np.zeros(0), 4).tolist(), [0, 0, 0, 0])
        self.assertEqual(zulgenpx.fft(np.ones(4), np.int16(2)).tolist(), [2, 0])

    def test_types(self):
        values = [1, 2, 3, 0]
        for name, reads_complex, is_complex, _, reference in TRANSFORMS:
            call = getattr(zulgenpx, name)
            expected = np.asarray(reference(np.array(values, complex if reads_complex else float), -1, None))
            for given, is_single in [("int8", 0), ("uint64", 0), ("float32", 1), ("float64", 0), (">f8", 0), (">f4", 1),
                                     (">i2", 0)] + [("complex64", 1), (">c16", 0), (">c8", 1)] * reads_complex:
                dtype = (support.REALS, support.COMPLEX)[is_complex][not is_single]
                self.assert_close(call(np.array(values, given)), expected, dtype, (name, given))
            self.assert_close(call(values), expected, (np.float64, np.complex128)[is_complex], name)
            expected = np.asarray(reference(np.array([1.0, 0, 1, 1]), -1, None))
            dtype = (np.float64, np.complex128)[is_complex]
            self.assert_close(call(np.array([True, False, True, True])), expected, dtype, name)

    def test_precision(self):
        """In single each step rounds; where that costs too much it is as in double, and never is it less exact."""
        source = np.random.default_rng(4)
        others = 0
        for name, reads_complex, is_complex, lengths, reference in TRANSFORMS[:5]:
            read = support.COMPLEX[0] if reads_complex else support.REALS[0]
            written = support.COMPLEX[0] if is_complex else support.REALS[0]
            for length in lengths:
                x = support.random_numbers(source, (33, length), read)
                result = getattr(zulgenpx, name)(x, precision="single")
                self.assert_close(result, reference(x, -1, None), written, (name, length))
                others += result.tobytes() != getattr(zulgenpx, name)(x, precision="double").tobytes()
                for y in (x.T, x[::2, ::-1], x[0]):
                    result = getattr(zulgenpx, name)(y, axis=0, precision="single")
                    self.assert_close(result, reference(y, 0, None), written, (name, length))
        self.assertGreater(others, 100)

    def test_there_and_back(self):
        source = np.random.default_rng(5)
        for norm in support.NORMS:
            for length in (2, 15, 64):
                x = support.random_numbers(source, (5, length), complex)
                self.assert_close(zulgenpx.ifft(zulgenpx.fft(x, norm=norm), norm=norm), x, complex, (norm, length))
                back = zulgenpx.irfft(zulgenpx.rfft(x.real, norm=norm), length, norm=norm)
                self.assert_close(back, x.real, float, (norm, length))
        inverse = {None: "forward", "backward": "forward", "forward": "backward", "ortho": "ortho"}
        x = support.random_numbers(source, (5, 64), float)
        for call in (zulgenpx.hartley, zulgenpx.wht, zulgenpx.dct4):
            for norm in support.NORMS:
                self.assert_close(call(call(x, norm=norm), norm=inverse[norm]), x, float, (call.__name__, norm))

    def test_walsh_rows(self):
        """Each row is what the definition says."""
        for length in (2, 8, 64, 512):
            rows = zulgenpx.wht(np.eye(length))
            for k in range(length):
                expected = [(-1) ** bin(j & k).count("1") for j in range(length)]
                self.assertEqual(rows[:, k].tolist(), expected, (length, k))

    def test_long_transforms(self):
        source = np.random.default_rng(6)
        for dtype in support.REALS:
            for length in zulgenpx.WHT_LENGTHS[9:]:
                x = support.random_numbers(source, (2, length), dtype)
                self.assert_close(zulgenpx.wht(x), support.wht(x), dtype, length)
                self.assert_close(zulgenpx.wht(x.T, axis=0), support.wht(x).T, dtype, length)
            for length in (1024, 65536, 131072):
                x = support.random_numbers(source, (2, length), dtype)
                expected = dct4_reference(x.astype(float), -1, None)
                self.assert_close(zulgenpx.dct4(x), expected, dtype, length)
                self.assert_close(zulgenpx.dct4(x.T, axis=0), expected.T, dtype, length)


if __name__ == "__main__":
    unittest.main()
