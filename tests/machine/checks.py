"""Runs several checks of one built file. All of them read its disassembly, which takes longer than the checks.

checks.py CHECK ARGUMENT ... [-- CHECK ARGUMENT ...] ...     a check is a script beside this one, without its ending
"""
import itertools
import pathlib
import runpy
import sys

FOLDER = pathlib.Path(__file__).resolve().parent


def status_of(words):
    """The exit code of a check, which runs as if it were started by itself."""
    sys.argv = [str(FOLDER / f"{words[0]}.py"), *words[1:]]
    try:
        runpy.run_path(sys.argv[0], run_name="__main__")
    except SystemExit as end:
        return end.code
    return f"{words[0]} does not end with an exit code"


def main():
    groups = itertools.groupby(sys.argv[1:], lambda word: word == "--")
    checks = [list(words) for is_mark, words in groups if not is_mark]
    failed = []
    for words in checks:
        print(f"{words[0]}:", flush=True)
        status = status_of(words)
        if status != 0:
            print(f"{words[0]} ends with {status}", flush=True)
            failed.append(words[0])
    return 1 if failed or not checks else 0


sys.exit(main())
