"""The static library: what it adds to a program, and that it is the same library."""
import subprocess

from installation import Fault, done

MOST_TEXT = 16 * 1024  # what one real transform of 64 points, at both levels, may add to a program


def text_of(program):
    """Bytes of machine code and constants."""
    return int(done("size", program).splitlines()[1].split()[0])


def static_library(place):
    archive = place.lib / "libzulgenpx.a"
    options = ["-I", place.include, "-Wl,--gc-sections"]
    one = place.compiled("static_one", "one_transform.c", *options, archive)
    place.run(one)
    grown = text_of(one) - text_of(place.compiled("static_none", "no_transform.c", *options, archive))
    print(f"one real transform of 64 points adds {grown} bytes")
    if not 0 < grown <= MOST_TEXT:
        raise Fault(f"one real transform of 64 points adds {grown} bytes, at most {MOST_TEXT} are due")

    symbols = done("nm", "-C", "--defined-only", one)
    kernels = [line for line in symbols.splitlines() if "::kernel<" in line]
    if len(kernels) != 2:
        raise Fault(f"a program with one transform has {len(kernels)} kernels, one for each level is due")

    # All of it as one library gives the bits that the shared library gives.
    whole = place.folder / "programs" / "libwhole.so"
    done(place.args.cc, "-shared", "-o", whole, "-Wl,--whole-archive", archive, "-Wl,--no-whole-archive", "-lm",
         "-Wl,--no-undefined")
    source = place.args.source
    compared = subprocess.run([place.args.python, f"{source}/tests/same_bits/same_bits.py", "check",
                               place.args.digests, str(whole), f"{source}/tests/same_bits/digests.txt"],
                              capture_output=True, text=True, check=False)
    if compared.returncode != 0:
        raise Fault(compared.stdout + compared.stderr)

    # Every name links, without a dynamic linker as well.
    for name, more in (("static_every_name", []), ("static_without_linker", ["-static"]),
                       ("static_no_pie", ["-no-pie"])):
        place.run(place.compiled(name, "consumer.c", "-I", place.include, "-I", source, *more, archive, "-lm"))
