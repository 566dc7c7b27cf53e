"""Makes the Debian packages, asks lintian about them, and installs, uses and removes them in a root that is as bare as
Debian comes, but for a compiler.

debian_packages.py TREE BUILD_FOLDER
"""
import os
import pathlib
import re
import shlex
import subprocess
import sys
import tempfile

from packing import done, made_twice

NAMES = {"libzulgenpx-7.0", "libzulgenpx-dev", "zulgenpx-tools", "zulgenpx-mpi", "zulgenpx-doc", "python3-zulgenpx"}

# What users do with the packages. Each line is a shell's, in an empty folder of the root, and must end with code 0.
USES = r"""
cc -Wall -Werror one_transform.c -lzulgenpx -o one; ./one; test $? = 42
cc -Wall -Werror -static one_transform.c -lzulgenpx -lm -o one_static; ./one_static; test $? = 42
cc -Wall -Werror batch.c $(pkg-config --cflags --libs zulgenpx-batch) -o batch; ./batch; test $? = 42
c++ -std=c++20 -Wall -Werror plan.cpp $(pkg-config --cflags --libs zulgenpx-static) -o plan; ./plan; test $? = 42
ldd one | grep -q '/lib/x86_64-linux-gnu/libzulgenpx-7.0.so'
printf '1\n2\n3\n4\n' | zulspectrum - --family hartley --length 4 --hop 4 --window none > table.txt; test -s table.txt
python3 -c 'import numpy, zulgenpx; x = numpy.arange(15.0); assert numpy.allclose(zulgenpx.fft(x), numpy.fft.fft(x))'
python3 -c 'import importlib.metadata as m; assert m.metadata("zulgenpx")["Name"] == "zulgenpx"'
python3 -c 'import glob; assert glob.glob("/usr/lib/python3/dist-packages/zulgenpx/__pycache__/*")'
zcat /usr/share/man/man3/zulgenpx.3.gz | grep -q '^.Dd'
zcat /usr/share/man/man3/zulgDFTFwd_CToC_15_64fc.3.gz | grep -q '^.so man3/zulgenpx'
zcat /usr/share/man/man1/zulspectrum.1.gz | grep -q '^.Dd'
zcat /usr/share/man/man1/zulspectrum-mpi.1.gz | grep -q '^.Dd'
seq 1000 > in.txt; mpirun --allow-run-as-root --oversubscribe -n 2 zulspectrum-mpi in.txt --into out
test -s out/in.txt.png
test -s /usr/share/bash-completion/completions/zulspectrum
grep -q 'zulgHartley_64_64f' /usr/share/zulgenpx/zulgenpx.pas
cd /usr/share/doc && test -s libzulgenpx-7.0/copyright && test -s libzulgenpx-dev/copyright
cd /usr/share/doc && test -s zulgenpx-tools/copyright && test -s python3-zulgenpx/copyright
"""


def setting(tree, name):
    """A value of scripts/common.sh."""
    return done("bash", "-c", f". {shlex.quote(str(tree))}/scripts/common.sh; printf %s \"${name}\"")


def without_most_members(package, folder):
    """The development package with the first members of the static library only. lintian looks at each of thousands of
    members by itself, which takes longer than all other tests; they are all of one kind."""
    unpacked = folder / "unpacked"
    done("dpkg-deb", "-R", package, unpacked)
    archive = next(unpacked.rglob("libzulgenpx.a"))
    members = done("ar", "t", archive).split()
    if len(members) < 1000:
        sys.exit(f"the static library has {len(members)} members only")
    subprocess.run(["xargs", "ar", "d", str(archive)], input="\n".join(members[20:]), text=True, check=True)
    sums = unpacked / "DEBIAN/md5sums"
    sums.write_text("".join(f"{done('md5sum', archive).split()[0]}{line[32:]}" if "libzulgenpx.a" in line else line
                            for line in sums.read_text(encoding="ascii").splitlines(True)), encoding="ascii")
    shortened = folder / package.name
    done("dpkg-deb", "--root-owner-group", "-b", unpacked, shortened)
    return shortened


def needed_c_library(packages):
    """The library's package must name the oldest C library that it runs with: CPack does not look it up."""
    with tempfile.TemporaryDirectory() as folder:
        done("dpkg-deb", "-x", packages["libzulgenpx-7.0"], folder)
        libraries = sorted(pathlib.Path(folder).rglob("*.so"))
        symbols = "".join(done("objdump", "-T", library) for library in libraries)
    needed = max(tuple(int(part) for part in found.split(".")) for found in re.findall(r"GLIBC_([0-9.]+)", symbols))
    named = done("dpkg-deb", "-f", packages["libzulgenpx-7.0"], "Depends")
    if named.strip() != f"libc6 (>= {'.'.join(map(str, needed))})" or len(libraries) != 3:
        sys.exit(f"{len(libraries)} libraries need the C library {needed}, and the package names {named}")


def steps_of(containerfile):
    """What makes an image of a bare Debian: the same steps make the root ready here."""
    steps = re.findall(r"^RUN (.*)$", containerfile.read_text(encoding="ascii"), re.M)
    if len(steps) < 3:
        sys.exit(f"{containerfile} has lost its steps")
    return steps


def used_in_root(tree, root, packages):
    as_root = [] if os.geteuid() == 0 else ["sudo", "-n", "--"]
    used = root / "used"
    done(*as_root, "rm", "-rf", used)
    done(*as_root, "mkdir", used)
    done(*as_root, "mkdir", "-p", root / "packages")
    done(*as_root, "cp", *packages.values(), root / "packages")
    done(*as_root, "cp", *(tree / "tests/consumers").glob("*.c*"), used)
    inside = [*as_root, "chroot", str(root), "env", "-i", "PATH=/usr/sbin:/usr/bin:/sbin:/bin", "LC_ALL=C.UTF-8",
              "DEBIAN_FRONTEND=noninteractive", "sh", "-c"]
    failed = 0
    try:
        for step in steps_of(tree / "deploy/Containerfile"):
            done(*inside, step)
        for use in USES.strip().splitlines():
            ran = subprocess.run([*inside, f"cd /used && {use}"], stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                                 stderr=subprocess.STDOUT, text=True, check=False)
            print(f"{'ok' if ran.returncode == 0 else 'FAILED'}: {use}\n{ran.stdout if ran.returncode else ''}", end="")
            failed += ran.returncode != 0
    finally:
        done(*inside, f"apt-get -qq purge -y {' '.join(sorted(NAMES))}")
    left = done(*inside, "find /usr -name '*zulg*' -o -name '*zulcore*'").splitlines()
    if left:
        sys.exit(f"left after the packages are removed: {left[:5]}")
    return failed


def main():
    tree, build = (pathlib.Path(word).resolve() for word in sys.argv[1:])
    packages = {path.name.split("_")[0]: path for path in made_twice(tree, build, "native").values()}
    if set(packages) != NAMES:
        sys.exit(f"the packages are {sorted(packages)}")
    needed_c_library(packages)
    with tempfile.TemporaryDirectory(dir=build) as folder:
        shortened = dict(packages)
        shortened["libzulgenpx-dev"] = without_most_members(packages["libzulgenpx-dev"], pathlib.Path(folder))
        print(done("lintian", "--allow-root", "--fail-on", "error,warning", "--tag-display-limit", "0",
                   *shortened.values()) or "lintian: clean")
    return 1 if used_in_root(tree, pathlib.Path(setting(tree, "package_root")), packages) else 0


sys.exit(main())
