"""Each result has the bits that the routine for one transform gives, called by itself."""
import ctypes
import os
import unittest

import numpy as np
import support

import zulgenpx

MAIN = ctypes.CDLL(os.path.join(support.LIBRARIES, "libzulgenpx-7.0.so"))
FLAGS = {"forward": 1, "backward": 2, "ortho": 4}
NO_SCALE = 8


def one(name, x, points, dtype, *arguments):
    """What an exported routine makes of a copy of x."""
    x = np.array(x, order="C")
    result = np.empty(points, dtype)
    status = MAIN[name](ctypes.c_void_p(x.ctypes.data), ctypes.c_void_p(result.ctypes.data), *arguments)
    assert status == 0, (name, status)
    return result


def reals_in_ccs(n):
    return n // 2 * 2 + 2


def dct4_of_one(x):
    suffix = "32f" if x.dtype == np.float32 else "64f"
    plan = ctypes.c_void_p()
    assert MAIN[f"zulgDCT4InitAlloc_{suffix}"](ctypes.byref(plan), len(x)) == 0
    result = one(f"zulgDCT4_{suffix}", x, len(x), x.dtype, plan)
    assert MAIN[f"zulgDCT4Free_{suffix}"](plan) == 0
    return result


class Bits(unittest.TestCase):
    def assert_bits(self, call, x, length, dtype, expected_of, note):
        """x has its transforms along axis 1 of three."""
        result = call(x)
        expected = np.array([[expected_of(x[i, :, j]) for j in range(x.shape[2])] for i in range(x.shape[0])])
        expected = np.moveaxis(expected, 2, 1)
        self.assertEqual((result.dtype, result.shape), (np.dtype(dtype), expected.shape), note)
        self.assertEqual(np.array(result, order="C").tobytes(), np.array(expected, order="C").tobytes(), note)

    def views(self, source, length, dtype):
        """An array for the short way, many shapes for the general one, and one transform alone."""
        x = support.random_numbers(source, (3, 1, length), dtype).swapaxes(1, 2)
        yield "rows", x
        yield "one", x[:1]
        shape = [int(source.integers(1, 4)), length, int(source.integers(1, 10))]
        kind, view, _ = support.random_view(source, shape, dtype)
        yield kind, view

    def test_complex(self):
        source = np.random.default_rng(10)
        for length in support.LENGTHS:
            for dtype, suffix in zip(support.COMPLEX, ("32fc", "64fc")):
                norm = ("forward", "backward", "ortho")[source.integers(3)]
                for name, call in (("Fwd", zulgenpx.fft), ("Inv", zulgenpx.ifft)):
                    routine = f"zulgDFT{name}_CToC_{length}_{suffix}"
                    for kind, x in self.views(source, length, dtype):
                        self.assert_bits(lambda a: call(a, axis=1, norm=norm), x, length, dtype,
                                         lambda one_x: one(routine, one_x, length, dtype, FLAGS[norm]),
                                         (routine, kind, norm))
                        rows = np.array(np.moveaxis(x, 1, 2), order="C")
                        self.assertEqual(call(rows, norm=norm).tobytes(),
                                         np.array(np.moveaxis(call(x, axis=1, norm=norm), 1, 2), order="C").tobytes())

    def test_real(self):
        source = np.random.default_rng(11)
        for length in support.LENGTHS:
            for real, both, suffix in zip(support.REALS, support.COMPLEX, ("32f", "64f")):
                norm = ("forward", "backward", "ortho")[source.integers(3)]
                for layout, name in (("ccs", "CCS"), ("pack", "Pack"), ("perm", "Perm")):
                    is_ccs = layout == "ccs"
                    slots = reals_in_ccs(length) if is_ccs else length
                    forward = f"zulgDFTFwd_RTo{name}_{length}_{suffix}"
                    inverse = f"zulgDFTInv_{name}ToR_{length}_{suffix}"
                    spectrum = both if is_ccs else real
                    for kind, x in self.views(source, length, real):
                        self.assert_bits(lambda a: zulgenpx.rfft(a, axis=1, norm=norm, layout=layout), x, length,
                                         spectrum,
                                         lambda y: one(forward, y, slots, real, FLAGS[norm]).view(spectrum),
                                         (forward, kind, norm))
                    for kind, x in self.views(source, length // 2 + 1 if is_ccs else length, spectrum):
                        self.assert_bits(lambda a: zulgenpx.irfft(a, length, 1, norm, layout=layout), x, length, real,
                                         lambda y: one(inverse, y, length, real, FLAGS[norm]), (inverse, kind, norm))

    def test_hartley_and_walsh(self):
        source = np.random.default_rng(12)
        for dtype, suffix in zip(support.REALS, ("32f", "64f")):
            for norm in support.NORMS:
                flag = {"forward": 1, "ortho": 4}.get(norm, NO_SCALE)
                for length in support.LENGTHS:
                    for kind, x in self.views(source, length, dtype):
                        self.assert_bits(lambda a: zulgenpx.hartley(a, 1, norm), x, length, dtype,
                                         lambda y: one(f"zulgHartley_{length}_{suffix}", y, length, dtype, flag),
                                         ("hartley", length, kind, norm))
                for length in zulgenpx.WHT_LENGTHS:
                    name = f"zulgWHT_{length.bit_length() - 1}_{suffix}"
                    for kind, x in self.views(source, length, dtype):
                        self.assert_bits(lambda a: zulgenpx.wht(a, 1, norm), x, length, dtype,
                                         lambda y: one(name, y, length, dtype, flag, None), (name, kind, norm))

    def test_dct4(self):
        source = np.random.default_rng(13)
        for dtype in support.REALS:
            for length in [2**k for k in range(1, 13)]:
                plan = zulgenpx.DCT4Plan(length, dtype)
                for kind, x in self.views(source, length, dtype):
                    for call in (lambda a: zulgenpx.dct4(a, 1), lambda a: plan(a, axis=1)):
                        self.assert_bits(call, x, length, dtype, dct4_of_one, ("dct4", length, kind))
                    for norm, factor in (("ortho", np.sqrt(2 / length)), ("forward", 2 / length)):
                        self.assert_bits(lambda a: zulgenpx.dct4(a, 1, norm), x, length, dtype,
                                         lambda y: dct4_of_one(y) * dtype(factor), ("dct4", length, kind, norm))


if __name__ == "__main__":
    unittest.main()
