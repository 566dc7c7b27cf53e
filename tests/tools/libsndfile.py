# Writes and reads sound files through libsndfile, which the tool reads with, so that the tests have files of all kinds.
import ctypes
import os

CONTAINERS = {"wav": 0x010000, "aiff": 0x020000, "au": 0x030000, "w64": 0x0B0000, "flac": 0x170000, "caf": 0x180000,
              "ogg": 0x200000, "rf64": 0x220000, "sds": 0x110000}
ENCODINGS = {"s8": 1, "pcm16": 2, "pcm24": 3, "pcm32": 4, "u8": 5, "float": 6, "double": 7, "ulaw": 0x10,
             "vorbis": 0x60}
LITTLE_ENDIAN = 0x10000000
READ, WRITE = 0x10, 0x20


class Info(ctypes.Structure):
    _fields_ = [("frames", ctypes.c_int64), ("rate", ctypes.c_int), ("channels", ctypes.c_int),
                ("format", ctypes.c_int), ("sections", ctypes.c_int), ("seekable", ctypes.c_int)]


def library():
    lib = ctypes.CDLL("libsndfile.so.1")
    lib.sf_open.restype = ctypes.c_void_p
    for name, arguments in (("sf_writef_double", [ctypes.c_void_p, ctypes.c_void_p, ctypes.c_int64]),
                            ("sf_readf_double", [ctypes.c_void_p, ctypes.c_void_p, ctypes.c_int64]),
                            ("sf_close", [ctypes.c_void_p])):
        getattr(lib, name).argtypes = arguments
    for name in ("sf_writef_double", "sf_readf_double"):
        getattr(lib, name).restype = ctypes.c_int64
    return lib


def opened(path, mode, info):
    lib = library()
    file = lib.sf_open(os.fsencode(path), mode, ctypes.byref(info))
    if not file:
        raise ValueError(f"{path}: libsndfile cannot open it")
    return lib, file


def write(path, channels, container, encoding, rate=8000, more=0):
    """`channels` is a list of lists of numbers from -1 to 1."""
    info = Info(0, rate, len(channels), CONTAINERS[container] | ENCODINGS[encoding] | more, 0, 0)
    lib, file = opened(path, WRITE, info)
    frames = len(channels[0])
    values = (ctypes.c_double * (frames * len(channels)))(*(v for frame in zip(*channels) for v in frame))
    count = lib.sf_writef_double(file, values, frames)
    assert lib.sf_close(file) == 0 and count == frames
    return path


def read(path):
    """The samples of each channel, the rate, and the names of container and encoding."""
    info = Info()
    lib, file = opened(path, READ, info)
    values = (ctypes.c_double * (info.frames * info.channels))()
    count = lib.sf_readf_double(file, values, info.frames)
    lib.sf_close(file)
    assert count == info.frames
    container = {number: name for name, number in CONTAINERS.items()}[info.format & 0x0FFF0000]
    encoding = {number: name for name, number in ENCODINGS.items()}[info.format & 0xFFFF]
    return [list(values[c::info.channels]) for c in range(info.channels)], info.rate, container, encoding
