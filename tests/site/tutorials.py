"""Runs the programs of the tutorials, in C, C++ and Python, and compares what they print with what they say."""
import os
import pathlib
import subprocess
import sys
import tempfile

import common

args = common.parsed()
failures = common.Failures()
sys.path.insert(0, str(args.source / "tests/documents"))
import extract  # noqa: E402


def run(program, folder):
    """What the program prints, or what went wrong."""
    if program.language == "python":
        environment = dict(os.environ, PYTHONPATH=str(args.source / "python"), ZULGENPX_LIBRARY_DIR=str(args.build))
        command = [sys.executable, "-B", "-c", program.text]
    else:
        ending = ".c" if program.language == "c" else ".cpp"
        source, made = pathlib.Path(folder) / f"program{ending}", pathlib.Path(folder) / "program"
        source.write_text(program.whole(), encoding="utf-8")
        command = common.compile_command(args, program.language, source, made, "-O1")
        compiled = subprocess.run(command, capture_output=True, text=True)
        if compiled.returncode:
            return compiled.stderr
        environment, command = None, [made]
    done = subprocess.run(command, capture_output=True, text=True, env=environment)
    return done.stdout if done.returncode == 0 else done.stderr + f"ends with {done.returncode}"


def main():
    with tempfile.TemporaryDirectory(dir=args.build) as folder:
        paths = sorted((args.source / "site/tutorials").glob("*.md"))
        for path in paths:
            programs, _ = extract.of_markdown(path.name, path.read_text(encoding="utf-8"))
            failures.expect(bool(programs), f"{path.name}: no program")
            for program in programs:
                printed = run(program, folder)
                failures.expect(
                    program.printed
                    and [line.strip() for line in printed.splitlines()] == [line.strip() for line in program.printed],
                    f"{program.where}: prints {printed!r}, says {program.printed}",
                )
    failures.expect(len(paths) == 9, f"{len(paths)} tutorials")
    failures.end("tutorials")


main()
