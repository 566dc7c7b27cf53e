"""Runs zulspectrum-mpi over a corpus that is made here, compares its outputs with those of one process byte for byte,
and measures how it scales.

cluster.py PROGRAMS FOLDER [--files N] [--ranks N] [--record FILE]

PROGRAMS is the folder of zulspectrum and zulspectrum-mpi, FOLDER is where the corpus and the outputs go. The corpus has
sounds of one to ten seconds in WAV and FLAC, texts of numbers, one long recording, and three damaged files. --record
writes the figures as a page.
"""
import argparse
import filecmp
import json
import os
import pathlib
import random
import shutil
import statistics
import subprocess
import sys
import time

import numpy

sys.dont_write_bytecode = True  # the tree stays clean
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "tests" / "tools"))
import sound_files

OPTIONS = ["--family", "real", "--length", "60", "--hop", "30", "--window", "hann"]
RATE = 16000
LONG_SECONDS = 1200  # of the long recording
DAMAGED = 3


def tone(seed, seconds):
    """A chirp with noise, as 16-bit integers."""
    source = numpy.random.default_rng(seed)
    time_axis = numpy.arange(int(seconds * RATE)) / RATE
    chirp = numpy.sin(2 * numpy.pi * (200 + 100 * (seed % 17)) * time_axis * (1 + time_axis / 20))
    return (8000 * chirp + 300 * source.standard_normal(time_axis.size)).astype("<i2")


def wav_bytes(samples):
    head = sound_files.wav([[0]], rate=RATE)
    size = 2 * samples.size
    return (head[:4] + (36 + size).to_bytes(4, "little") + head[8:40] + size.to_bytes(4, "little") + samples.tobytes())


def make_corpus(folder, files):
    source = random.Random(1)
    for i in range(files - DAMAGED - 1):
        path = folder / f"group{i % 5}" / f"{i:04}"
        path.parent.mkdir(parents=True, exist_ok=True)
        samples = tone(i, source.uniform(1, 10))
        if i % 10 == 3:
            path.with_suffix(".txt").write_text("\n".join(map(str, samples[:8000])), encoding="ascii")
        elif i % 10 == 7:
            path.with_suffix(".flac").write_bytes(sound_files.flac(samples[:16384].tolist(), rate=RATE))
        else:
            path.with_suffix(".wav").write_bytes(wav_bytes(samples))
    (folder / "long.wav").write_bytes(wav_bytes(numpy.tile(tone(5, 60), LONG_SECONDS // 60)))
    whole = wav_bytes(tone(6, 4))
    (folder / "cut.wav").write_bytes(whole[:len(whole) // 2])
    (folder / "words.txt").write_text("1 2 three", encoding="ascii")
    flac = bytearray(sound_files.flac(tone(7, 2)[:16384].tolist(), rate=RATE))
    flac[5000] ^= 255
    (folder / "flipped.flac").write_bytes(flac)


def run(command):
    start = time.monotonic()
    done = subprocess.run(command, stdin=subprocess.DEVNULL, capture_output=True, check=False)
    return done, time.monotonic() - start


def mpirun(ranks):
    return ["mpirun", "--allow-run-as-root", "--oversubscribe", "-n", str(ranks)]


def batch(command, corpus, output):
    """The summary and the wall time of a run into a fresh folder."""
    shutil.rmtree(output, ignore_errors=True)
    done, seconds = run([*command, str(corpus), "--into", str(output), *OPTIONS, "--json"])
    text = done.stdout.decode()
    try:
        return json.JSONDecoder().raw_decode(text)[0], seconds
    except ValueError:
        sys.exit(f"cluster.py: {' '.join(command)} ends with {done.returncode}: {text}{done.stderr.decode()}")


def outputs(folder):
    return sorted(str(path.relative_to(folder)) for path in folder.rglob("*") if path.is_file()
                  and not path.name.startswith("."))


def same(one, other):
    names = outputs(one)
    return names == outputs(other) and all(filecmp.cmp(one / name, other / name, shallow=False) for name in names)


def report(who, summary, seconds):
    print(f"{who:<15} {summary['files']} files, {summary['done']} done, {len(summary['failed'])} failed, "
          f"{seconds:.1f} s")


def page(files, counts, times, probe, bytes_gathered):
    one, two = (statistics.median(times[ranks]) for ranks in (1, 2))
    message, byte = probe["seconds_of_a_message"], probe["seconds_of_a_byte"]
    serial = files * message + bytes_gathered * byte
    rows = "".join(f"| {ranks} | {max(one / ranks, serial) + serial / ranks:.2f} | "
                   f"{one / (max(one / ranks, serial) + serial / ranks):.1f} |\n" for ranks in (4, 16, 64, 256))
    return f"""# zulspectrum-mpi on one machine and on many

Made by `scripts/cluster-demo --record`: {files} files, {counts['samples']} samples, with
`{' '.join(OPTIONS)}`, {os.cpu_count()} cores. The outputs of every run are
the same bytes as those of one process.

| ranks | seconds (median of {len(times[1])}) | times one rank |
|---|---|---|
| 1 | {one:.2f} | 1.0 |
| 2 | {two:.2f} | {one / two:.2f} |

Measured between two ranks of this machine (`mpirun -n 2 zulspectrum-mpi --probe`): {message * 1e6:.0f} us for dealing
out one piece of work and taking its result, {byte * 1e9:.2f} ns for each byte of a piece that is gathered. One rank
takes {one / files * 1e3:.1f} ms for a file.

**Worked out, not measured**: with R ranks on machines that are as fast as this one, and a network that costs what two
ranks cost here, a run takes the time of one rank over R, but at least what rank 0 needs to deal out {files} files and
to gather {bytes_gathered} bytes of the long recording. A real network and a shared file system cost more.

| ranks | seconds | times one rank |
|---|---|---|
{rows}"""


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("programs", type=pathlib.Path)
    parser.add_argument("folder", type=pathlib.Path)
    parser.add_argument("--files", type=int, default=200)
    parser.add_argument("--ranks", type=int, default=4)
    parser.add_argument("--rounds", type=int, default=3)
    parser.add_argument("--record", type=pathlib.Path)
    args = parser.parse_args()
    args.folder.mkdir(parents=True, exist_ok=True)
    corpus, ours, theirs = (args.folder / name for name in ("corpus", "one_process", "ranks"))
    shutil.rmtree(corpus, ignore_errors=True)
    corpus.mkdir()
    make_corpus(corpus, args.files)
    alone = [str(args.programs / "zulspectrum"), "batch", "--jobs", "1"]
    ranks = [str(args.programs / "zulspectrum-mpi"), "--split", "2000000"]

    report("one process", *batch(alone, corpus, ours))
    summary, seconds = batch([*mpirun(args.ranks), *ranks], corpus, theirs)
    report(f"{args.ranks} ranks", summary, seconds)
    if len(summary["failed"]) != DAMAGED or not same(ours, theirs):
        sys.exit("cluster.py: the outputs differ from those of one process")
    print(f"outputs         {len(outputs(theirs))} files, byte for byte those of one process")
    for failure in summary["failed"]:
        print(f"failed          {failure['message']}")
    if not args.record:
        return
    times = {count: [] for count in (1, 2)}
    for _ in range(args.rounds):
        for count, taken in times.items():
            summary, _ = batch([*mpirun(count), *ranks], corpus, theirs)
            taken.append(summary["seconds"])
            if not same(ours, theirs):
                sys.exit(f"cluster.py: the outputs of {count} ranks differ from those of one process")
    done, _ = run([*mpirun(2), str(args.programs / "zulspectrum-mpi"), "--probe"])
    picture = 1536 * 31 * 8  # columns and rows of a picture, as the pieces of the long recording bring them
    args.record.write_text(page(args.files, summary, times, json.loads(done.stdout), picture), encoding="ascii")
    print(f"figures         {args.record}")


if __name__ == "__main__":
    main()
