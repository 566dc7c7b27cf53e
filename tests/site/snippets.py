"""Runs the examples of the reference, those in C and Python of every routine, those in C++ of every family at some
lengths, and compares what they print with what they say."""
import contextlib
import io
import os
import pathlib
import re
import subprocess
import sys
import tempfile

import common

args = common.parsed()
failures = common.Failures()
CPP_SIZES = {2, 3, 8, 13, 15, 64, None}


def printed(text):
    return [first or second for first, second in re.findall(r"/\* prints (.*?) \*/|(?://|#) prints (.*)", text)]


def as_functions(programs, language):
    """All programs as one: each main becomes a function, whose name it prints before it runs."""
    heads = sorted({line for _, text in programs for line in text.splitlines() if line.startswith("#include")})
    parts, calls = heads, []
    for number, (name, text) in enumerate(programs):
        body = "\n".join(line for line in text.splitlines() if not line.startswith("#include"))
        main = "int main(void) {" if language == "c" else "int main() {"
        if main not in body:
            failures.expect(False, f"{name}: no main")
        body = body.replace(main, f"static int run_{number}(void) {{")
        if language == "cpp":
            body = body[: body.rindex("}")] + "    return 0;\n}\n"
        parts = parts + [body]
        calls.append(f'    puts("= {name}"); if (run_{number}() != 0) puts("refused"); fflush(stdout);')
    return "\n".join(parts + ["int main(void) {", *calls, "    return 0;", "}", ""])


def compare(programs, output, language):
    found, name = {}, None
    for line in output.splitlines():
        if line.startswith("= "):
            name = line[2:]
            found[name] = []
        else:
            found[name].append(line.strip())
    for name, text in programs:
        due = printed(text)
        failures.expect(due and found.get(name) == due, f"{name} in {language}: prints {found.get(name)}, says {due}")


def compiled(programs, language, folder):
    source = pathlib.Path(folder) / f"examples.{language}"
    source.write_text(as_functions(programs, language), encoding="ascii")
    program = pathlib.Path(folder) / f"examples-{language}"
    subprocess.run(common.compile_command(args, language, source, program, "-O0"), check=True)
    result = subprocess.run([program], capture_output=True, text=True, check=True)
    compare(programs, result.stdout, language)


def in_python(programs):
    os.environ["ZULGENPX_LIBRARY_DIR"] = str(args.build)
    sys.path.insert(0, str(args.source / "python"))
    output = io.StringIO()
    with contextlib.redirect_stdout(output):
        for name, text in programs:
            print(f"= {name}")
            exec(compile(text, name, "exec"), {})
    compare(programs, output.getvalue(), "Python")


def main():
    import library as lib
    import snippets

    library = lib.Library(args.source)
    found = [(export, snippets.of(export)) for export in library.exports]
    found += [(batch, snippets.of_batch(batch)) for batch in library.batches]
    for export, example in found:
        failures.expect(
            export["name"] in example.c
            or "GetSize" in export["name"]
            or "Free" in export["name"]
            or "Init" in export["name"],
            f"{export['name']}: the example does not call it",
        )
    with tempfile.TemporaryDirectory(dir=args.build) as folder:
        compiled([(export["name"], example.c) for export, example in found], "c", folder)
        compiled(
            [
                (export["name"], example.cpp)
                for export, example in found
                if example.cpp and lib.size_of(export) in CPP_SIZES
            ],
            "cpp",
            folder,
        )
    in_python([(export["name"], example.python) for export, example in found if example.python])
    failures.end("examples")


main()
