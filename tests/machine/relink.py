"""Links the library once more, to another path, and compares the two files byte for byte.

relink.py BUILD_FOLDER LIBRARY
"""
import os
import shlex
import subprocess
import sys
import tempfile


def main():
    build, library = sys.argv[1:]
    name = os.path.basename(library)
    commands = subprocess.run(["ninja", "-t", "commands", name], cwd=build, check=True, capture_output=True,
                              text=True).stdout.splitlines()
    link = next(command for command in reversed(commands) if f"-o {name} " in command)
    with tempfile.TemporaryDirectory() as folder:
        again = os.path.join(folder, name)
        command = link.replace(f"-o {name} ", f"-o {shlex.quote(again)} ")
        # The same command makes the import library, which must not be overwritten.
        command = command.replace("--out-implib,", f"--out-implib,{folder}/")
        subprocess.run(command, shell=True, cwd=build, check=True)
        with open(library, "rb") as first, open(again, "rb") as second:
            same = first.read() == second.read()
    print(f"{name}: {'the same bytes' if same else 'other bytes'} when linked again")
    return 0 if same else 1


sys.exit(main())
