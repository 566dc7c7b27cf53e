"""The library as a part of another project, on a machine that has a compiler, CMake and Ninja and nothing else."""
import os
import shutil

from installation import Fault, done

NEEDED = ("ninja", "ld", "ar", "nm", "ranlib", "as", "objcopy", "objdump", "readelf", "strip", "sh", "uname")


# Objects that are built as a sample.
OF_EACH_KIND = ("/complex_pairs/dft_5.cpp.o", "/boundary/entries.S.o", "/boundary/slot_table.cpp.o",
                "/boundary/static_names.cpp.o", "/dct4/run_in_lanes.cpp.o", "/batch/slot_table.cpp.o")


def bare_machine(place):
    """A folder of programs to find, which has no Python and no pkg-config."""
    folder = place.folder / "bare"
    folder.mkdir(exist_ok=True)
    for name in (*NEEDED, place.args.cc, place.args.cxx, place.args.cmake):
        found = shutil.which(name)
        link = folder / os.path.basename(name)
        if found and not link.exists():
            link.symlink_to(found)
    plain = {name: value for name, value in os.environ.items() if not name.startswith("CMAKE_")}
    return dict(plain, PATH=str(folder))


def parts_of_projects(place):
    """Configured as a whole. Of the library, which takes long, a few objects are built: those of each kind."""
    bare = bare_machine(place)
    for name, fetched, shared in (("added", "OFF", "ON"), ("fetched", "ON", "OFF")):
        built = place.program(name).parent
        done(place.args.cmake, "-S", place.args.source + "/tests/consumers/part", "-B", built, "-G", "Ninja",
             f"-DCMAKE_C_COMPILER={place.args.cc}", f"-DCMAKE_CXX_COMPILER={place.args.cxx}",
             f"-DSOURCES={place.args.source}/tests/consumers", f"-DLIBRARY_SOURCE={place.args.source}",
             f"-DFETCHED={fetched}", f"-DBUILD_SHARED_LIBS={shared}", "-DCMAKE_COMPILE_WARNING_AS_ERROR=ON", env=bare)
        targets = done(place.args.cmake, "--build", built, "--target", "help", env=bare)
        unwanted = [word for word in ("generate", "zulspectrum", "transforms_test", "bench") if f"\n{word}:" in targets]
        if unwanted:
            raise Fault(f"{name}: the part has the targets {unwanted}")
        # What the program is linked with, and what is built for it.
        plan = done("ninja", "-C", built, "-n", "one_transform", env=bare)
        due, other = ("libzulgenpx-7.0.so", "libzulgenpx.a") if shared == "ON" else ("libzulgenpx.a", "batch")
        if due not in plan or other in plan:
            raise Fault(f"{name}: one_transform is built of {plan[-400:]}")
        built_files = [line.split(":")[0] for line in
                       done("ninja", "-C", built, "-t", "targets", "all", env=bare).splitlines()]
        objects = [file for file in built_files if file.endswith(OF_EACH_KIND)]
        if len(objects) < 6:
            raise Fault(f"{name}: only {objects} are there to be built")
        done("ninja", "-C", built, "zulcore", *objects, env=bare)
        if fetched == "OFF":
            installs = done(place.args.cmake, "--install", built, "--prefix", built / "prefix", env=bare)
            if "zulgenpx" in installs:
                raise Fault("a part is installed though the project does not ask for it")
