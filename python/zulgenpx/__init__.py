"""zulgenpx: small signal transforms over NumPy arrays.

`fft`, `ifft`, `rfft`, `irfft` and `hartley` have 2 to 64 points, `wht` 2 to 8192, `dct4` powers of two from 2 up. All
take arrays of any shape and go along one axis, in one call of the library where the strides allow. Singles stay
singles. `DCT4Plan` holds what transforms of one length share; `ccs_as_complex`, `complex_as_ccs` and `spectrum_views`
show half spectra as real and as complex numbers.

Importing the package loads the shared libraries: from the folder that the environment variable ZULGENPX_LIBRARY_DIR
names, or else from the folder of the package, from ``build/native`` of the checkout, or from where the system's loader
finds them. If that fails, an ImportError says why in one line.
"""

from __future__ import annotations

from . import _library
from ._families import LENGTHS, WHT_LENGTHS
from ._layouts import SpectrumViews, ccs_as_complex, complex_as_ccs, spectrum_views
from ._library import Version
from ._plans import DCT4Plan, dct4
from ._real import irfft, rfft
from ._transforms import fft, hartley, ifft, wht

__version__ = "7.0"

__all__ = [
    "DCT4Plan",
    "LENGTHS",
    "SpectrumViews",
    "Version",
    "WHT_LENGTHS",
    "ccs_as_complex",
    "complex_as_ccs",
    "dct4",
    "fft",
    "hartley",
    "ifft",
    "irfft",
    "library_version",
    "rfft",
    "spectrum_views",
    "wht",
]


def library_version() -> Version:
    """What the library that is loaded says about itself.

    Examples
    --------
    >>> import zulgenpx
    >>> zulgenpx.library_version().version
    '7.0 build 205.58'
    """
    return _library.version
