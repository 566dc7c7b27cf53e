"""Half spectra as views."""
import unittest

import numpy as np
import support

import zulgenpx


class Layouts(unittest.TestCase):
    def assert_refused(self, error, line, call, *arguments, **options):
        with self.assertRaises(error) as caught:
            call(*arguments, **options)
        self.assertEqual(str(caught.exception), line)

    def spectra(self, layout, length, dtype):
        """Half spectra with their bins along each axis, and the complex ones."""
        x = np.random.default_rng(length).normal(size=(3, 4, length)).astype(dtype)
        for axis in (-1, 2, 0, 1):
            y = np.moveaxis(x, -1, axis)
            made = np.moveaxis(np.ascontiguousarray(zulgenpx.rfft(x, layout=layout)), -1, axis)
            yield axis, made, zulgenpx.rfft(y, axis=axis)

    def test_layouts_have_the_bins(self):
        for length in support.LENGTHS:
            for dtype in support.REALS:
                for layout in ("pack", "perm"):
                    for axis, spectrum, expected in self.spectra(layout, length, dtype):
                        note = (layout, length, axis)
                        views = zulgenpx.spectrum_views(spectrum, layout, axis)
                        expected = np.moveaxis(expected, axis, -1)
                        between = (length - 1) // 2
                        self.assertEqual(views.bins.dtype, expected.dtype, note)
                        self.assertEqual(views.first.tolist(), expected[..., 0].real.tolist(), note)
                        bins = np.moveaxis(views.bins, axis, -1)
                        self.assertEqual(bins.shape[-1], between, note)
                        self.assertEqual(bins.tolist(), expected[..., 1:1 + between].tolist(), note)
                        if length % 2 == 0:
                            self.assertEqual(views.middle.tolist(), expected[..., -1].real.tolist(), note)
                        else:
                            self.assertIsNone(views.middle, note)
                        # Together they are all of the memory.
                        for view in views:
                            if view is not None:
                                view[...] = 0
                        self.assertFalse(spectrum.any(), note)

    def test_complex_and_ccs(self):
        for length in (2, 3, 16, 63):
            for dtype in support.REALS:
                for axis, spectrum, _ in self.spectra("ccs", length, dtype):
                    reals = zulgenpx.complex_as_ccs(spectrum, axis)
                    self.assertEqual((reals.dtype, reals.shape[axis]), (np.dtype(dtype), length // 2 * 2 + 2))
                    parts = np.moveaxis(reals, axis, -1)
                    self.assertEqual(parts[..., 0::2].tolist(), np.moveaxis(spectrum, axis, -1).real.tolist())
                    self.assertEqual(parts[..., 1::2].tolist(), np.moveaxis(spectrum, axis, -1).imag.tolist())
                    back = zulgenpx.ccs_as_complex(reals, axis)
                    self.assertEqual((back.dtype, back.shape), (spectrum.dtype, spectrum.shape))
                    self.assertEqual(back.ctypes.data, spectrum.ctypes.data)
                    back[...] = 0
                    self.assertFalse(spectrum.any())

    def test_layouts_of_one_length_are_the_same_bits(self):
        for length in support.LENGTHS:
            x = np.random.default_rng(length).normal(size=(3, length))
            reals = zulgenpx.complex_as_ccs(zulgenpx.rfft(x))
            kept = [0, *range(2, length + 1)]
            packed = zulgenpx.rfft(x, layout="pack")
            self.assertEqual(packed.tolist(), reals[:, kept].tolist())
            back = zulgenpx.irfft(zulgenpx.rfft(x), length)
            for layout in ("pack", "perm"):
                spectrum = zulgenpx.rfft(x, layout=layout)
                self.assertEqual(zulgenpx.irfft(spectrum, layout=layout).tobytes(), back.tobytes())

    def test_imaginary_parts_of_real_bins_have_no_effect(self):
        x = zulgenpx.rfft(np.arange(8.0))
        y = x.copy()
        y[0] += 5j
        y[-1] += np.nan * 1j
        y.real[-1] = x.real[-1]
        self.assertEqual(zulgenpx.irfft(y).tobytes(), zulgenpx.irfft(x).tobytes())

    def test_empty(self):
        self.assertEqual(zulgenpx.ccs_as_complex(np.zeros((0, 6))).shape, (0, 3))
        self.assertEqual(zulgenpx.spectrum_views(np.zeros((0, 6)), "perm").bins.shape, (0, 2))

    def test_refusals(self):
        x = np.zeros((4, 6))
        for call, name in ((zulgenpx.ccs_as_complex, "ccs_as_complex"),
                           (lambda a, axis=-1: zulgenpx.spectrum_views(a, "pack", axis), "spectrum_views")):
            says = f"{name}: the elements along axis {{}} are not neighbours in memory"
            self.assert_refused(ValueError, says.format(0), call, x, 0)
            self.assert_refused(ValueError, says.format(1), call, x[:, ::-1])
            self.assert_refused(TypeError, f"{name}: only an array has views, not list", call, [1.0, 2.0])
            says = f"{name}: the array is of complex128, not of float32 or float64"
            self.assert_refused(TypeError, says, call, x + 0j)
        says = "complex_as_ccs: the array is of float64, not of complex64 or complex128"
        self.assert_refused(TypeError, says, zulgenpx.complex_as_ccs, x)
        self.assert_refused(ValueError, "ccs_as_complex: 5 elements along axis 1 are no pairs", zulgenpx.ccs_as_complex,
                            np.zeros((2, 5)))
        self.assert_refused(ValueError, "spectrum_views: the length along axis 0 is 1, which is below 2",
                            zulgenpx.spectrum_views, np.zeros(1), "pack")
        self.assert_refused(ValueError, "spectrum_views: layout is 'ccs'; it is one of 'pack', 'perm'",
                            zulgenpx.spectrum_views, x, "ccs")


if __name__ == "__main__":
    unittest.main()
