"""Programs of Windows: both import libraries, and both made anew from the installed .def, and LoadLibrary."""
from installation import SOURCES, done

CLANG_NAMES = {"i386": "i686", "i386:x86-64": "x86_64"}  # of the machines, by the name that dlltool has for them


def by_clang(place, name, library):
    """Needs no header and no library of another vendor: ExitProcess comes from an import library made here."""
    args, program = place.args, place.program(name)
    system, compiled = program.parent / "system", program.parent / "consumer.obj"
    system.with_suffix(".def").write_text(
        f"LIBRARY KERNEL32.dll\nEXPORTS\n    ExitProcess{'@4' if args.machine == 'i386' else ''}\n", encoding="ascii")
    done(args.llvm_dlltool, "-m", args.machine, "-k", "-d", f"{system}.def", "-l", f"{system}.lib")
    done(args.clang, f"--target={CLANG_NAMES[args.machine]}-pc-windows-msvc", "-ffreestanding", "-DFREESTANDING",
         *place.flags, "-I", place.include, "-I", args.source, "-c", SOURCES / "consumer.c", "-o", compiled)
    done(args.lld_link, "/nologo", "/nodefaultlib", "/subsystem:console", "/entry:start", f"/out:{program}", compiled,
         library, f"{system}.lib")
    return program


def windows_programs(place):
    args, folder = place.args, place.folder
    gnu, microsoft = folder / "remade.dll.a", folder / "remade.lib"
    done(args.dlltool, "-k", "-d", place.lib / "zulgenpx.def", "-l", gnu)
    done(args.llvm_dlltool, "-m", args.machine, "-k", "-d", place.lib / "zulgenpx.def", "-l", microsoft)
    includes = ["-I", place.include, "-I", args.source]
    place.run(place.compiled("gcc_remade", "consumer.c", *includes, gnu))
    place.run(by_clang(place, "clang", place.lib / "zulgenpx.lib"))
    place.run(by_clang(place, "clang_remade", microsoft))
    ordinal = 1 + sorted(line.split()[0].split("@")[0] for line in
                         (place.lib / "zulgenpx.def").read_text(encoding="ascii").splitlines()
                         if line.startswith("    zulg")).index("zulgHartley_2_64f")
    place.run(place.compiled("load_library", "loads.c", '-DLIBRARY="zulgenpx-7.0.dll"', f"-DORDINAL={ordinal}"))
