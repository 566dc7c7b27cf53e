# Every command and format against outputs that were looked at and committed.
#   python3 golden_test.py TOOL check    what differs, and how to accept it
#   python3 golden_test.py TOOL write    accepts the outputs as they are
# The inputs are small whole numbers, whose spectra are the same on all machines. Pictures are compared by their pixels
# and sounds by their samples, since the libraries that pack both may change the bytes.
import base64
import difflib
import hashlib
import os
import re
import sys
import tempfile

import libsndfile
import sound_files
import tool
from tool import content_of

FOLDER = os.path.join(os.path.dirname(os.path.abspath(__file__)), "golden")
NUMBERS = b"1 2 3 4 5 6 7 9 -8 0 0.5 2\n"
SOUND = sound_files.wav([[1024, -2048, 4096, 8192, 0, 512, -16384, 256, 128, -32768], [0] * 10], rate=8000)
REAL = ["--family", "real", "--length", "4"]

# Name of the golden file: the words, in which IN is a sound and TABLE a table of it. Numbers are on standard input.
RUNS = {
    "transform.txt": ["transform", "IN", *REAL],
    "transform.csv": ["transform", "IN", *REAL, "--hop", "2", "--format", "csv"],
    "transform.json": ["transform", "IN", *REAL, "--format", "json"],
    "transform.npy": ["transform", "IN", *REAL, "--output", "OUT.npy"],
    "transform32.npy": ["transform", "IN", "--length", "4", "--precision", "32", "--output", "OUT.npy"],
    "numbers.txt": ["transform", "-", "--length", "4"], "numbers.csv": ["-", "--length", "4", "--format", "csv"],
    "hartley.csv": ["-", "--family", "hartley", "--length", "4", "--format", "csv"],
    "wht.txt": ["-", "--family", "wht", "--order", "2"],
    "wht.csv": ["-", "--family", "wht", "--order", "2", "--format", "csv"],
    "wht.json": ["-", "--family", "wht", "--order", "2", "--format", "json"],
    "dct4.csv": ["-", "--family", "dct4", "--length", "2", "--format", "csv"],
    "spectrogram.png": ["spectrogram", "IN", *REAL], "spectrogram.svg": ["spectrogram", "IN", *REAL, "--format", "svg"],
    "spectrogram.csv": ["spectrogram", "IN", *REAL, "--format", "csv"],
    "spectrogram.json": ["spectrogram", "IN", *REAL, "--format", "json"],
    "spectrogram.npy": ["spectrogram", "IN", *REAL, "--output", "OUT.npy"],
    "spectrogram.txt": ["spectrogram", "IN", *REAL, "--format", "text"],
    "inverse.txt": ["inverse", "TABLE", *REAL, "--format", "text"],
    "inverse.wav": ["inverse", "TABLE", *REAL, "--output", "OUT.wav"],
    "inverse.flac": ["inverse", "TABLE", *REAL, "--output", "OUT.flac"],
    "check.txt": ["-", "--family", "wht", "--order", "2", "--check"],
    "check.json": ["IN", "--family", "wht", "--order", "1", "--check", "--json"],
    "layout.txt": ["layout", "9"], "layout.json": ["layout", "6", "--json"],
    "info.txt": ["info", "zulgDFTFwd_RToCCS_5_64f"], "info.json": ["info", "zulgHartley_4_32f", "--json"],
    "batch.json": ["batch", "IN", "TABLE", "--into", "BATCH", *REAL, "--format", "csv", "--json"],
    "completion.bash": ["completion", "bash"], "completion.zsh": ["completion", "zsh"],
    "completion.fish": ["completion", "fish"], "manual.1": ["manual"], "help.txt": ["--help"],
}


def described(name, data, folder):
    """What is compared of an output, as text where that is possible."""
    data = data.replace(folder.encode() + b"/", b"")
    if name.endswith(".png"):
        return pixels(data)
    if name.endswith((".wav", ".flac")):
        path = os.path.join(folder, "described")
        with open(path, "wb") as file:
            file.write(data)
        channels, rate, container, encoding = libsndfile.read(path)
        return f"{container}, {encoding}, {rate} Hz\n{channels}\n".encode()
    if name.endswith(".npy"):
        return data
    text = data.decode()
    text = re.sub(r'base64,([A-Za-z0-9+/=]+)', lambda found: pixels(base64.b64decode(found[1])).decode().strip(), text)
    # Times, and where the page was made.
    text = re.sub(r'("(nanoseconds|seconds)": |time +)[0-9.e+-]+', r"\1TIME", text)
    return text.encode()


def pixels(data):
    rows = sound_files.png_rows(data)
    digest = hashlib.sha256(b"".join(bytes(value for point in row for value in point) for row in rows)).hexdigest()
    return f"{len(rows[0])} by {len(rows)} pixels, SHA-256 {digest}\n".encode()


def outputs():
    with tempfile.TemporaryDirectory() as folder:
        path = lambda name: os.path.join(folder, name)
        with open(path("sound.wav"), "wb") as file:
            file.write(SOUND)
        tool.run("transform", path("sound.wav"), *REAL, "--output", path("table.csv"))
        for name, words in RUNS.items():
            out = path("OUT" + os.path.splitext(name)[1])
            places = {"IN": path("sound.wav"), "TABLE": path("table.csv"), "BATCH": path("batch"),
                      "OUT.npy": out, "OUT.wav": out, "OUT.flac": out}
            done = tool.run(*(places.get(word, word) for word in words), given=NUMBERS)
            if done.returncode != (1 if name.startswith("batch") else 0) or done.stderr:
                raise SystemExit(f"{' '.join(words)}: status {done.returncode}, {done.stderr.decode()}")
            data = content_of(out) if "--output" in words else done.stdout
            yield name, described(name, data, folder)


def golden_path(name):
    return os.path.join(FOLDER, name + (".described" if name.endswith((".png", ".wav", ".flac")) else ""))


def check():
    faults = 0
    for name, found in outputs():
        path = golden_path(name)
        due = content_of(path) if os.path.exists(path) else b""
        if due == found:
            continue
        faults += 1
        print(f"{name} differs from {path}:")
        if name.endswith(".npy"):
            print(f"  {len(due)} and {len(found)} bytes")
        else:
            print("".join(difflib.unified_diff(due.decode().splitlines(True), found.decode().splitlines(True),
                                               "committed", "found")))
    strangers = set(os.listdir(FOLDER)) - {os.path.basename(golden_path(name)) for name in RUNS}
    if strangers:
        raise SystemExit(f"{FOLDER}: no run gives {', '.join(sorted(strangers))}")
    if faults:
        raise SystemExit(f"{faults} of {len(RUNS)} outputs differ; to accept them: "
                         f"python3 {__file__} {tool.TOOL} write")


def write():
    os.makedirs(FOLDER, exist_ok=True)
    for name in os.listdir(FOLDER):
        os.unlink(os.path.join(FOLDER, name))
    for name, found in outputs():
        with open(golden_path(name), "wb") as file:
            file.write(found)


if __name__ == "__main__":
    {"check": check, "write": write}[sys.argv[1]]()
