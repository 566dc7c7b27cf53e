# Writes small WAV and FLAC files for the tests, and reads PNG pictures back, with the standard library alone.
# The FLAC files hold their samples uncompressed, which the format allows.
import re
import struct
import zlib

ANY_BUT_ZERO = re.compile(rb"[^\0]")


def wav(samples, rate=8000, bits=16, floating=False):
    """`samples` is a list of channels; integers as they go into the file, or floats."""
    channels, size = len(samples), bits // 8
    if floating:
        data = struct.pack("<%df" % (channels * len(samples[0])), *(v for frame in zip(*samples) for v in frame))
    elif bits == 8:
        data = b"".join(struct.pack("<B", v + 128) for frame in zip(*samples) for v in frame)
    else:
        data = b"".join(v.to_bytes(size, "little", signed=True) for frame in zip(*samples) for v in frame)
    form = struct.pack("<HHIIHH", 3 if floating else 1, channels, rate, rate * channels * size, channels * size, bits)
    body = b"WAVEfmt " + struct.pack("<I", len(form)) + form + b"data" + struct.pack("<I", len(data)) + data
    return b"RIFF" + struct.pack("<I", len(body)) + body


def crc(data, bits, polynomial):
    value = 0
    for byte in data:
        value ^= byte << (bits - 8)
        for _ in range(8):
            value = (value << 1 ^ (polynomial if value >> (bits - 1) else 0)) & ((1 << bits) - 1)
    return value


def flac(samples, rate=8000, block=256):
    """One channel of 16-bit samples; their number must be a multiple of `block`, which must be a power of two."""
    info = struct.pack(">HH", block, block) + bytes(6)
    info += struct.pack(">Q", rate << 44 | 0 << 41 | 15 << 36 | len(samples)) + bytes(16)
    data = b"fLaC" + bytes([0x80]) + len(info).to_bytes(3, "big") + info
    block_code = block.bit_length() - 1  # 8 is the code of 256 samples
    for number, first in enumerate(range(0, len(samples), block)):
        head = bytes([0xFF, 0xF8, block_code << 4, 4 << 1, number])  # rate of the file, one channel, 16 bits
        assert number < 128 and 8 <= block_code <= 15
        head += bytes([crc(head, 8, 0x07)])
        frame = head + bytes([1 << 1]) + struct.pack(">%dh" % block, *samples[first:first + block])
        data += frame + crc(frame, 16, 0x8005).to_bytes(2, "big")
    return data


def unfilter(kind, line, above):
    """Puts the guess of the filter back, for pixels of three bytes."""
    if kind == 1:
        for i in range(3, len(line)):
            line[i] = (line[i] + line[i - 3]) & 255
    elif kind == 2:
        line[:] = bytes((one + other) & 255 for one, other in zip(line, above)) if any(line) else above
    elif kind == 3:
        for i in range(len(line)):
            line[i] = (line[i] + ((line[i - 3] if i >= 3 else 0) + above[i]) // 2) & 255
    elif kind == 4:
        unfilter_paeth(line, above)


def unfilter_paeth(line, above):
    i = 0
    while i < len(line):
        left, corner = (line[i - 3], above[i - 3]) if i >= 3 else (0, 0)
        up = above[i]
        if line[max(i - 3, 0):i] == above[max(i - 3, 0):i] and line[i] == 0:
            # After a pixel that is as the one above, the guess is what is above, as far as it is right.
            end = ANY_BUT_ZERO.search(line, i)
            end = end.start() if end else len(line)
            line[i:end] = above[i:end]
            i = end
            continue
        distance = [abs(up - corner), abs(left - corner), abs(left + up - 2 * corner)]
        line[i] = (line[i] + (left, up, corner)[distance.index(min(distance))]) & 255
        i += 1


def png_rows(data):
    """The rows of a picture of 8-bit colours, as lists of (red, green, blue)."""
    assert data[:8] == b"\x89PNG\r\n\x1a\n"
    position, packed = 8, b""
    while position < len(data):
        size, kind = struct.unpack(">I4s", data[position:position + 8])
        body = data[position + 8:position + 8 + size]
        assert zlib.crc32(kind + body) == struct.unpack(">I", data[position + 8 + size:position + 12 + size])[0]
        if kind == b"IHDR":
            width, height, depth, colours, _, _, interlaced = struct.unpack(">IIBBBBB", body)
            assert (depth, colours, interlaced) == (8, 2, 0)
        if kind == b"IDAT":
            packed += body
        position += 12 + size
    raw, above, rows = zlib.decompress(packed), bytearray(3 * width), []
    for y in range(height):
        start = y * (1 + 3 * width)
        line = bytearray(raw[start + 1:start + 1 + 3 * width])
        if raw[start]:
            unfilter(raw[start], line, above)
        rows.append([tuple(line[3 * x:3 * x + 3]) for x in range(width)])
        above = line
    return rows
