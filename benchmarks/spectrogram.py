"""An hour of 48 kHz sound as a spectrogram: zulspectrum beside sox and scipy.signal.spectrogram.

spectrogram.py TOOL FOLDER [--record FILE]

TOOL is zulspectrum; the sound is made in FOLDER. Each program makes a picture (SciPy: the array alone) on one core; the
figures are the median of three runs: processor time, which other programs on the machine disturb least, and the largest
memory. --record writes them as a page.
"""
import argparse
import os
import pathlib
import shutil
import statistics
import subprocess
import sys
import wave

import numpy

RATE, SECONDS, LENGTH = 48000, 3600, 64
SCIPY = """
import sys, scipy.io.wavfile, scipy.signal
rate, samples = scipy.io.wavfile.read(sys.argv[1])
scipy.signal.spectrogram(samples, rate, window="hann", nperseg={length}, noverlap=0, detrend=False)
"""


def make_sound(path):
    if path.exists():
        return
    source = numpy.random.default_rng(1)
    with wave.open(str(path), "wb") as file:
        file.setnchannels(1)
        file.setsampwidth(2)
        file.setframerate(RATE)
        for minute in range(SECONDS // 60):
            time = numpy.arange(60 * RATE) / RATE
            tone = 8000 * numpy.sin(2 * numpy.pi * (300 + 100 * minute) * time)
            file.writeframes((tone + 500 * source.standard_normal(time.size)).astype("<i2").tobytes())


def measured(command):
    """Seconds of the processor and megabytes, as medians."""
    seconds, memory = [], []
    for _ in range(3):
        process = subprocess.Popen(command, stdin=subprocess.DEVNULL)
        _, status, usage = os.wait4(process.pid, 0)
        if status != 0:
            sys.exit(f"spectrogram.py: {command[0]} ends with {status}")
        seconds.append(usage.ru_utime + usage.ru_stime)
        memory.append(usage.ru_maxrss / 1024)
    return statistics.median(seconds), statistics.median(memory)


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("tool", type=pathlib.Path)
    parser.add_argument("folder", type=pathlib.Path)
    parser.add_argument("--record", type=pathlib.Path)
    args = parser.parse_args()
    args.folder.mkdir(parents=True, exist_ok=True)
    sound = args.folder / "hour.wav"
    make_sound(sound)
    picture = str(args.folder / "hour.png")
    ours = [str(args.tool), "spectrogram", str(sound), "--columns", "4096", "--output", picture]
    contest = {
        f"zulspectrum, real, {LENGTH} points": [*ours, "--family", "real", "--length", str(LENGTH), "--window", "hann"],
        "zulspectrum, real, 60 points, hop 30": [*ours, "--family", "real", "--length", "60", "--hop", "30",
                                                 "--window", "hann"],
        "zulspectrum, dct4, 1024 points, hop 512": [*ours, "--family", "dct4", "--length", "1024", "--hop", "512",
                                                    "--window", "hann"],
        f"scipy.signal.spectrogram, {LENGTH} points": [sys.executable, "-c", SCIPY.format(length=LENGTH), str(sound)],
    }
    if shutil.which("sox"):
        # Its window follows from the height of the picture: 65 rows are 128 points, and fewer are refused.
        contest["sox spectrogram, 128 points"] = ["sox", str(sound), "-n", "spectrogram", "-y", "65", "-o", picture]
    lines = ["| program | processor time | times real time | memory |", "|---|---|---|---|"]
    for name, command in contest.items():
        seconds, memory = measured(command)
        lines.append(f"| {name} | {seconds:.2f} s | {SECONDS / seconds:.0f} | {memory:.0f} MB |")
    text = "\n".join(lines) + "\n"
    print(text, end="")
    if args.record:
        args.record.write_text("# An hour of 48 kHz sound as a spectrogram\n\nMedians of three runs on one core, with "
                               "pictures of at most 4096 columns, made by\n\n    /usr/bin/python3 benchmarks/"
                               "spectrogram.py build/native/zulspectrum build/spectrogram \\\n        --record "
                               f"{args.record}\n\n"
                               + text, encoding="ascii")


if __name__ == "__main__":
    main()
