"""Holds the declarations for C#, Pascal and Basic: each is read back and compared with the catalogue; those of C# and
Pascal are compiled, and a program of each language calls routines of each family.

declarations.py --source TREE --build FOLDER
"""
import argparse
import json
import os
import pathlib
import re
import subprocess
import sys
import tempfile

BASIC_LINE = 1023        # characters that Basic reads in a line
BASIC_CONTINUATIONS = 24

failures = []


def fail(where, what):
    print(f"{where}: {what}")
    failures.append(where)


def expect(found, due, where):
    if found != due:
        fail(where, f"{found}, due is {due}")


# An address whose type a language does not tell.
ANY_POINTER = "any pointer"


def due_of(export):
    """Name, what is returned and the arguments as pairs of name and type in C."""
    arguments = [(argument["name"], argument["type"] + ("" if argument["use"] == "value" else "*"))
                 for argument in export["arguments"]]
    return export["name"], export["returns"], arguments


def bytes_of(kind):
    return 8 if kind == "int64_t" else 4


def agrees(found, due):
    return found == due or (found == ANY_POINTER and due.endswith("*"))


def compare(where, found, exports):
    """found: triples like due_of's, each name at least once, in the order of the catalogue."""
    names = list(dict.fromkeys(name for name, _, _ in found))
    expect(names, [export["name"] for export in exports], f"{where}, names")
    dues = {export["name"]: due_of(export) for export in exports}
    for name, returned, arguments in found:
        if name not in dues:
            continue
        _, due_returned, due_arguments = dues[name]
        same = [a[0] for a in arguments] == [a[0] for a in due_arguments] and all(
            agrees(a[1], due[1]) for a, due in zip(arguments, due_arguments))
        if not same or not agrees(returned, due_returned):
            fail(f"{where}, {name}", f"{returned} {arguments}, due is {due_returned} {due_arguments}")


def compare_stack(where, found, slots):
    """The bytes of arguments that a routine of 32-bit Windows takes from the stack."""
    for name, _, arguments in found:
        expect(sum(bytes_of(kind) for _, kind in arguments), slots[name], f"{where}, bytes of {name}")


CSHARP = {"int": "int32_t", "ZulgFlag": "int32_t", "long": "int64_t", "float[]": "Zulg32f*", "double[]": "Zulg64f*",
          "Zulg32fc[]": "Zulg32fc*", "Zulg64fc[]": "Zulg64fc*", "System.Numerics.Complex[]": "Zulg64fc*",
          "IntPtr": ANY_POINTER, "out int": "int32_t*", "out IntPtr": ANY_POINTER,
          "ZulgDCT4Plan_32f": "ZulgDCT4Plan_32f*", "ZulgDCT4Plan_64f": "ZulgDCT4Plan_64f*",
          "out ZulgDCT4Plan_32f": "ZulgDCT4Plan_32f**", "out ZulgDCT4Plan_64f": "ZulgDCT4Plan_64f**"}


def of_csharp(text, constants):
    """Declarations; each has the attribute, and only a pointer to constants is [In] alone."""
    found = []
    attribute = r"\[DllImport\(File, CallingConvention = Convention, ExactSpelling = true\)\]\s+"
    for returned, name, rest in re.findall(attribute + r"public static extern (\w+) (\w+)\(([^;]*)\);", text):
        rest = " ".join(rest.split()).replace("[In, Out]", "[InOut]")
        arguments = re.findall(r"(\[In\] |\[InOut\] )?((?:out )?[\w.]+(?:\[\])?) (\w+)(?:, |$)", rest)
        expect(len(arguments), len(rest.split(", ")) if rest else 0, f"C#, arguments of {name}")
        for direction, _, argument in arguments:
            if direction and (direction == "[In] ") != ((name, argument) in constants):
                fail(f"C#, {name}", f"{argument} is {direction}")
        found.append((name, "ZulgStatus" if returned == "ZulgStatus" else "const LibVersion*",
                      [(argument, CSHARP[kind]) for _, kind, argument in arguments]))
    expect(len(found), text.count(" extern "), "C#, declarations")
    return found


PASCAL = {"ZulgInt32": "int32_t", "Int64": "int64_t", "var ZulgInt32": "int32_t*", "PByte": "uint8_t*",
          "PZulg32f": "Zulg32f*", "PZulg64f": "Zulg64f*", "PZulg32fc": "Zulg32fc*", "PZulg64fc": "Zulg64fc*",
          "PZulgDCT4Plan_32f": "ZulgDCT4Plan_32f*", "PZulgDCT4Plan_64f": "ZulgDCT4Plan_64f*",
          "var PZulgDCT4Plan_32f": "ZulgDCT4Plan_32f**", "var PZulgDCT4Plan_64f": "ZulgDCT4Plan_64f**"}


def of_pascal(text):
    found = []
    for name, rest, returned, imported in re.findall(
            r"^function (\w+)(?:\(([^)]*)\))?: (\w+);\s+\{\$IFDEF WIN32\}stdcall\{\$ELSE\}cdecl\{\$ENDIF\}; "
            r"external ZulgFile name '(\w+)';", text, re.M):
        expect(imported, name, f"Pascal, {name}")
        arguments = [part.split(": ") for part in filter(None, (" ".join(p.split()) for p in rest.split(";")))]
        arguments = [(argument.removeprefix("var "), PASCAL[("var " if argument.startswith("var ") else "") + kind])
                     for argument, kind in arguments]
        found.append((name, {"PLibVersion": "const LibVersion*"}.get(returned, returned), arguments))
    expect(len(found), len(re.findall(r"^function ", text, re.M)), "Pascal, declarations")
    return found


def of_basic(text, pointer):
    """The declarations whose addresses are of the type `pointer`."""
    kinds = {"ByVal Long": "int32_t", "ByVal LongLong": "int64_t", "ByRef Long": "int32_t*", "ByRef Single": "Zulg32f*",
             "ByRef Double": "Zulg64f*", "ByRef Zulg32fc": "Zulg32fc*", "ByRef Zulg64fc": "Zulg64fc*"}
    found = []
    safe = "PtrSafe " if pointer == "LongPtr" else ""
    pattern = rf'^Public Declare {safe}Function (\w+) Lib "([\w.-]+)" \(([^)]*)\) As (\w+)$'
    for name, file, rest, returned in re.findall(pattern, text, re.M):
        expect(file, f"zulgenpx{'-batch' if 'Batch' in name else ''}-7.0.dll", f"Basic, file of {name}")
        arguments = []
        for way, argument, kind in re.findall(r"(ByVal|ByRef) (\w+) As (\w+)(?:, |$)", rest):
            if kind == "LongPtr":
                kind = ANY_POINTER
            elif pointer == "Long" and kind == "Long" and (argument in ("plan", "pPlan", "pBuffer")):
                kind = ANY_POINTER  # an address as a number
            else:
                kind = kinds[f"{way} {kind}"]
            arguments.append((argument, kind))
        expect(len(arguments), len(rest.split(", ")) if rest else 0, f"Basic, arguments of {name}")
        returned = {"Long": "ZulgStatus"}.get(returned, ANY_POINTER) if name != "zulgenGetLibVersion" else ANY_POINTER
        found.append((name, returned, arguments))
    return found


def joined_basic(where, text):
    """The text with the line ends of Windows taken away and continued lines put together."""
    if text.replace("\r\n", "").count("\n") or "\r\n" not in text:
        fail(where, "does not have the line ends of Windows")
    text = text.replace("\r\n", "\n")
    for number, line in enumerate(text.split("\n"), 1):
        if len(line) > BASIC_LINE:
            fail(where, f"line {number} has {len(line)} characters")
    for run in re.findall(r"(?:^.* _\n)+", text, re.M):
        if run.count("\n") > BASIC_CONTINUATIONS:
            fail(where, f"{run.count(chr(10))} continued lines: {run[:60]}")
    return re.sub(r" _\n +", " ", text)


def check_basic(main, batch, catalogue, slots):
    main, batch = joined_basic("zulgenpx.bas", main), joined_basic("zulgenpx_batch.bas", batch)
    branches = re.fullmatch(r"(.*)\n#If VBA7 Then\n(Public.*)#Else\n(Public.*)#End If\n", main, re.S)
    now, before = of_basic(branches.group(2), "LongPtr"), of_basic(branches.group(3), "Long")
    batches = of_basic(batch, "LongPtr")
    for found, exports, text in ((now, "exports", branches.group(2)), (before, "exports", branches.group(3)),
                                 (batches, "batches", batch)):
        expect(len(found), len(re.findall(r"\bDeclare\b", text)), "Basic, declarations")
        compare("Basic", found, catalogue[exports])
        nullable = {(export["name"], argument["name"]) for export in catalogue[exports]
                    for argument in export["arguments"] if argument.get("null")}
        expect({(name, argument) for name, _, arguments in found for argument, kind in arguments
                if kind == ANY_POINTER and (name, argument) in nullable}, nullable, "Basic, what may be null")
    if "LongPtr" in branches.group(3) or not re.search(r"#If Win64 Then\n.*#End If\n$", batch, re.S):
        fail("Basic", "has declarations for what does not have their types")
    compare_stack("Basic", before, slots)


def check_values(header, texts):
    """Statuses, flags and the fields of the version record."""
    code = re.sub(r"/\*.*?\*/", "", header, flags=re.S)
    values = re.findall(r"\b((?:Status|Div|NoDiv)\w+) = (-?\d+)", code)
    expect(len(values), 9, "values of the header")
    for name, text in texts.items():
        if "atch" not in name:
            expect(re.findall(r"^\s+((?:Status|Div|NoDiv)\w+) = (-?\d+)", text, re.M), values, f"{name}, values")
    fields = re.findall(r"(\w+)(?:\[4\])?;", re.search(r"typedef struct LibVersion \{(.*?)\}", code, re.S).group(1))
    records = {"Zulgenpx.cs": re.search(r"struct LibVersion\n\{(.*?)\n\}", texts["Zulgenpx.cs"], re.S),
               "zulgenpx.pas": re.search(r"LibVersion = record(.*?)end;", texts["zulgenpx.pas"], re.S),
               "zulgenpx.bas": re.search(r"Type LibVersion\r?\n(.*?)#Else", texts["zulgenpx.bas"], re.S)}
    for name, record in records.items():
        words = [word for word in re.findall(r"\w+", record.group(1)) if word in fields]
        expect(words, fields, f"{name}, version record")


def run(where, command, **options):
    """What a command prints that must end with 0, or None."""
    try:
        result = subprocess.run(command, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                                text=True, check=False, **options)
    except FileNotFoundError as error:
        fail(where, f"a package is missing (scripts/common.sh, packages_languages): {error}")
        return None
    if result.returncode != 0:
        fail(where, f"{' '.join(map(str, command))} ends with {result.returncode}: {result.stdout}")
        return None
    return result.stdout


class Compilers:
    """Works in the folder of the declarations. Programs find the libraries in the build folder."""

    def __init__(self, folder, build):
        self.folder, self.build = folder, build
        self.environment = dict(os.environ, LD_LIBRARY_PATH=str(build), LC_ALL="C", MONO_REGISTRY_PATH=str(folder))

    def csharp(self, source, *options):
        program = self.folder / (source.stem + ".exe")
        compiled = run(f"mcs {source.name}", ["mcs", "-warnaserror", "-warn:4", *options, f"-out:{program}",
                                              "Zulgenpx.cs", "ZulgenpxBatch.cs", str(source)], cwd=self.folder)
        return None if compiled is None else run(f"mono {source.name}", ["mono", str(program)], env=self.environment)

    def pascal(self, source):
        program = self.folder / source.stem
        compiled = run(f"fpc {source.name}", ["fpc", "-vewn", "-Sew", f"-Fl{self.build}", f"-FE{self.folder}",
                                              f"-o{program}", str(source)], cwd=self.folder)
        return None if compiled is None else run(source.name, [str(program)], env=self.environment)


def check_programs(compilers, source, found_csharp):
    """The programs that call routines of each family."""
    tests = source / "tests/declarations"
    for options in ([], ["-define:ZULG_LINUX,ZULG_NUMERICS", "-r:System.Numerics.dll"]):
        text = compilers.csharp(tests / "EveryFamily.cs", *options)
        due = [len(declarations) for declarations in found_csharp[bool(options)]]
        if text is not None:
            expect([int(number) for number in re.findall(r"(\d+) and (\d+) declarations are bound", text)[0]], due,
                   "C#, bound declarations")
            check_right("C#", text)
    text = compilers.pascal(tests / "every_family.pas")
    if text is not None:
        check_right("Pascal", text)


def check_right(language, text):
    right = re.search(r"^(\d+) right, 0 wrong$", text, re.M)
    if not right or int(right.group(1)) < 500:
        fail(f"{language}, a program", text)
    print(f"{language}: {right.group(1) if right else 0} comparisons")


def check_examples(compilers, readme):
    """The programs of the README."""
    text = readme.read_text(encoding="utf-8")
    for language, file in (("csharp", "Example.cs"), ("pascal", "example.pas")):
        programs = re.findall(rf"^```{language}\n(.*?)^```$", text, re.M | re.S)
        expect(len(programs), 1, f"README, programs of {language}")
        path = compilers.folder / file
        path.write_text(programs[0], encoding="ascii")
        printed = compilers.csharp(path) if language == "csharp" else compilers.pascal(path)
        if printed is not None:
            expect(printed.split("\n")[:-1], re.findall(r"// prints (.*)", programs[0]), f"README, {language}")


def without_numerics(text):
    return re.sub(r"#if ZULG_NUMERICS\n.*?#endif\n", "", text, flags=re.S)


def main():
    parser = argparse.ArgumentParser()
    for name in ("source", "build"):
        parser.add_argument(f"--{name}", required=True)
    args = parser.parse_args()
    source, build = pathlib.Path(args.source).resolve(), pathlib.Path(args.build).resolve()
    catalogue = json.loads((source / "docs/catalogue.json").read_text(encoding="ascii"))
    slots = {name: int(size) for name, size in re.findall(
        r"^SLOT\((\w+),.* (\d+)\)$", (source / "boundary/slots.inc").read_text(encoding="ascii"), re.M)}
    slots["zulgenGetLibVersion"] = 0
    constants = {(export["name"], argument["name"]) for export in catalogue["exports"] + catalogue["batches"]
                 for argument in export["arguments"] if argument["use"] == "in"}

    with tempfile.TemporaryDirectory(prefix="declarations-", dir=build) as name:
        folder = pathlib.Path(name)
        writer = [sys.executable, "-B", str(source / "bindings/declarations.py"), str(source / "docs/catalogue.json")]
        if run("declarations.py", [*writer, str(folder)]) is None:
            return 1
        texts = {path.name: path.read_bytes().decode("ascii") for path in folder.iterdir()}

        both = {}
        for numerics in (False, True):
            both[numerics] = [of_csharp(texts[file] if numerics else without_numerics(texts[file]), constants)
                              for file in ("Zulgenpx.cs", "ZulgenpxBatch.cs")]
            for found, exports in zip(both[numerics], ("exports", "batches")):
                compare("C#", found, catalogue[exports])
            compare_stack("C#", both[numerics][0], slots)
        for file, exports in (("zulgenpx.pas", "exports"), ("zulgenpx_batch.pas", "batches")):
            found = of_pascal(texts[file])
            compare("Pascal", found, catalogue[exports])
            if exports == "exports":
                compare_stack("Pascal", found, slots)
        check_basic(texts["zulgenpx.bas"], texts["zulgenpx_batch.bas"], catalogue, slots)
        check_values((source / "include/zulgenpx.h").read_text(encoding="ascii"), texts)

        compilers = Compilers(folder, build)
        check_programs(compilers, source, both)
        check_examples(compilers, source / "bindings/README.md")
    print(f"{len(failures)} failures")
    return 1 if failures else 0


sys.exit(main())
