"""Holds the manual pages against headers, library and tool: each exported name leads to a page, prototypes and values
are those of the headers, the formatters have nothing to say, examples compile and run, and what a page names is there.

man_pages.py --source TREE --build FOLDER --pages FOLDER --cc COMPILER [--tool ZULSPECTRUM]
"""
import argparse
import json
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import wave

for folder in ("documents", "header", "machine"):
    sys.path.insert(0, str(pathlib.Path(__file__).parent.parent / folder))
import extract
from binary import Library
from prototypes import code_of, prototypes

LIBRARIES = ["libzulgenpx-7.0.so", "libzulgenpx-batch-7.0.so"]
CORE = {"libzulcore-7.0.so", "zulMalloc", "zulFree"}

failures = []


def fail(where, what):
    print(f"{where}: {what}")
    failures.append(where)


def output_of(*command, **options):
    result = subprocess.run(command, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                            text=True, check=False, **options)
    return result.returncode, result.stdout


class Headers:
    """Prototypes by name, and the other names and values of the public headers."""

    def __init__(self, folder):
        self.text = "".join(path.read_text(encoding="ascii") for path in sorted(folder.glob("*.h")))
        self.files = {path.name for path in folder.glob("*.h")}
        self.code = code_of(self.text)
        self.prototypes = {name: normal(f"{returned} {name}({arguments})")
                           for returned, name, arguments in prototypes(self.text)}
        self.values = dict(re.findall(r"\b((?:Status|Div|NoDiv)\w+) = (-?\d+)", self.code))


def normal(text):
    return re.sub(r"\s*([*(),;{}])\s*", r"\1", " ".join(text.split()))


class Page:
    def __init__(self, path):
        self.path, self.where = path, f"{path.parent.name}/{path.name}"
        self.text = path.read_text(encoding="ascii")
        self.plain = self.text.replace("\\-", "-")

    def rendered(self):
        code, text = output_of("mandoc", "-T", "ascii", str(self.path))
        if code != 0:
            fail(self.where, text)
        return re.sub(".\b", "", text)

    def prototypes(self):
        """Pairs of a name and the whole."""
        for returned, name, rest in re.findall(r"^\.Ft (.*)\n\.Fo (\w+)\n((?:\.Fa .*\n)+)\.Fc$", self.text, re.M):
            arguments = [line.removeprefix(".Fa ").strip('"') for line in rest.splitlines()]
            yield name, normal(returned.strip('"') + f" {name}({', '.join(arguments)})")


def form_of(name, forms):
    """The name itself, or the one with N or O for its number."""
    for candidate in (name, re.sub(r"_\d+_(?=\d)", "_N_", name), re.sub(r"_\d+_(?=\d)", "_O_", name)):
        if candidate in forms:
            return candidate
    return None


def check_names(pages_folder, names, headers):
    """Each exported name leads to a page, which has its prototype."""
    code, text = output_of("man", "-M", str(pages_folder), "-w", *sorted(names))
    found = text.splitlines()
    if code != 0 or len(found) != len(names):
        missing = [line for line in found if "No manual" in line]
        fail("man -w", f"{len(found)} pages of {len(names)} names; {missing[:3]}")
    if set(headers.prototypes) != names:
        fail("headers", f"prototypes and exports differ: {sorted(set(headers.prototypes) ^ names)[:5]}")
    forms, used = {}, set()
    for name in sorted(names):
        page = pages_folder / "man3" / f"{name}.3"
        if not page.exists():
            fail(page.name, "is missing")
            continue
        alias = page.read_text(encoding="ascii")
        target = pages_folder / alias.removeprefix(".so ").strip()
        if target not in forms:
            forms[target] = dict(Page(target).prototypes())
        form = form_of(name, forms[target])
        if form is None:
            fail(target.name, f"has no prototype of {name}")
        elif headers.prototypes.get(name) != forms[target][form].replace(f" {form}(", f" {name}("):
            fail(target.name, f"{forms[target][form]}; the header has {headers.prototypes.get(name)}")
        used.add((target, form))
    extra = [form for target, known in forms.items() for form in known if (target, form) not in used]
    if extra:
        fail("prototypes", f"of no routine: {extra}")
    code, text = output_of("man", "-M", str(pages_folder), "zulgDFTFwd_CToC_15_64fc",
                           env=dict(os.environ, MANPAGER="cat", LC_ALL="C.UTF-8"))
    if code != 0 or "zulgDFTFwd_CToC_N_64fc" not in re.sub(".\b", "", text):
        fail("man zulgDFTFwd_CToC_15_64fc", text[:300])


def check_formatters(page):
    for command in (["mandoc", "-T", "lint", "-W", "warning"], ["groff", "-mandoc", "-ww", "-Tutf8", "-z"],
                    ["man", "--warnings", "-Tutf8", "-l"]):
        result = subprocess.run([*command, str(page.path)], stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                                stderr=subprocess.PIPE, text=True, check=False,
                                env=dict(os.environ, MANPAGER="cat", LC_ALL="C.UTF-8"))
        said = result.stderr + (result.stdout if "lint" in command else "")
        if said or result.returncode != 0:
            fail(page.where, f"{' '.join(command)} ends with {result.returncode} and says: {said}")


def check_words(page, known, headers, pages):
    """What looks like a name of ours is one; values beside names are right."""
    text = re.sub(r"^\.\\\".*$", "", page.plain, flags=re.M)
    for word in set(re.findall(r"\b(?:lib)?zul[\w.-]*\w", text)):
        if word not in known and word.removesuffix(".3") not in known:
            fail(page.where, f"there is no {word}")
    for word in set(re.findall(r"\b(?:ZULG_|Zulg|Status[A-Z]|Div[A-Z]|NoDiv|LibVersion)\w*", text)):
        if not re.search(rf"\b{word}\b", headers.code):
            fail(page.where, f"the headers have no {word}")
    for name, value in re.findall(r"^\.It Dv (\w+) Pq \\?(-?\d+)$", text, re.M):
        if headers.values.get(name) != value:
            fail(page.where, f"{name} is {headers.values.get(name)} and not {value}")
    for name, value in re.findall(r"^((?:No)?Div\w+) +(\d+) ", text, re.M):
        if headers.values.get(name) != value:
            fail(page.where, f"{name} is {headers.values.get(name)} and not {value}")
    for name, section in re.findall(r"^\.Xr (\S+) (\d)", text, re.M):
        if f"man{section}/{name}.{section}" not in pages:
            fail(page.where, f"there is no {name}({section})")
    for line in re.findall(r"^#define [^\n]*$|^typedef struct.*?^\} \w+;$", text, re.M | re.S):
        if normal(line) not in normal(headers.code):
            fail(page.where, f"the headers have no {line}")


def check_examples(page, args, folder):
    """Compiles and runs the programs as a reader sees them. Returns how many there are."""
    after = page.rendered().partition("\nEXAMPLES\n")[2]
    after = re.split(r"^[A-Z]", after, maxsplit=1, flags=re.M)[0]
    programs = re.findall(r"^ +#include.*?^ {5}\}$", after, re.M | re.S)
    for number, text in enumerate(programs):
        program = extract.Program(f"{page.where}, example {number + 1}", re.sub("^ {5}", "", text, flags=re.M) + "\n")
        source, executable = folder / "example.c", folder / "example"
        source.write_text(program.whole(), encoding="ascii")
        used = LIBRARIES[::-1] if "zulgenpx_batch.h" in text else LIBRARIES[:1]
        code, said = output_of(
            args.cc, "-std=c11", "-Wall", "-Wextra", "-Werror", "-O1", "-I", f"{args.source}/include", str(source),
            "-o", str(executable), f"-L{args.build}", f"-Wl,-rpath,{args.build}",
            *[f"-l:{library}" for library in used], "-lm")
        if code != 0:
            fail(program.where, said)
            continue
        code, said = output_of(str(executable))
        if code != 0 or [line.strip() for line in said.splitlines()] != program.printed or not program.printed:
            fail(program.where, f"ends with {code}, prints {said!r} and not {program.printed}")
    return len(programs)


def tone_file(path, seconds):
    path.parent.mkdir(exist_ok=True)
    with wave.open(str(path), "wb") as file:
        file.setnchannels(1)
        file.setsampwidth(2)
        file.setframerate(8000)
        file.writeframes(bytes((i * i // 40) % 251 for i in range(16000)) * seconds)


def check_tool(page, tool, folder):
    """The options of the page are those of --help of the program and of each command; the examples run, in their
    order."""
    code, text = output_of(tool, "--help")
    commands = re.findall(r"^  ([a-z]+) +[A-Z]", text.partition("Commands;")[2], re.M)
    due = set()
    for words in [[], *([command] for command in commands)]:
        code, text = output_of(tool, *words, "--help")
        due |= set(re.findall(r"(?:^ +|,)(--[a-z-]+)", text.partition("Options:")[2].partition("\n\n")[0], re.M))
        if code != 0 or (words and f".Ss {words[0]}\n" not in page.text):
            fail(page.where, f"does not have the command {words}")
    found = {"--" + name for name in re.findall(r"Fl Fl ([a-z-]+)", page.text)}
    if len(commands) < 8 or not due or due != found:
        fail(page.where, f"options that differ from those of --help: {sorted(due ^ found)}")
    # The reader of sounds goes by the content, not by the name.
    for name, seconds in (("voice.wav", 1), ("concert.flac", 70), ("recordings/a.wav", 1), ("recordings/b.flac", 2)):
        tone_file(folder / name, seconds)
    (folder / "numbers.txt").write_text(" ".join(str(i * i % 17) for i in range(4096)), encoding="ascii")
    lines = page.plain.replace("\\(aq", "'").splitlines()
    examples = [line for line in lines if re.match(r"(zulspectrum|seq) ", line)]
    for example in examples:
        if " completion " in example:
            example = example.partition(" >")[0]  # where it goes is a matter of the system
        path = os.path.dirname(tool) + os.pathsep + os.environ["PATH"]
        code, said = output_of("sh", "-c", example, cwd=folder, env=dict(os.environ, PATH=path))
        if code != 0:
            fail(page.where, f"{example} ends with {code}: {said}")
    if len(examples) < 14:
        fail(page.where, "has lost its examples")


def check_writer(args, pages_folder, folder):
    """The same input gives the same bytes; a routine that is on no page is refused with one line."""
    script = pathlib.Path(args.source) / "docs/man/pages.py"
    catalogue = pathlib.Path(args.source) / "docs/catalogue.json"
    code, text = output_of(sys.executable, "-B", str(script), str(catalogue), str(folder / "again"))
    both = [{path.relative_to(root): path.read_bytes() for path in root.glob("man3/*.3")}
            for root in (pages_folder, folder / "again")]
    if code != 0 or both[0] != both[1]:
        differ = [str(path) for path in both[0].keys() | both[1].keys() if both[0].get(path) != both[1].get(path)]
        fail("pages.py", f"{text} writes other pages: {sorted(differ)[:5]}")
    more = json.loads(catalogue.read_text(encoding="ascii"))
    more["exports"].append(dict(more["exports"][-1], name="zulgAnother", family="another"))
    (folder / "docs").mkdir()
    (folder / "include").symlink_to(pathlib.Path(args.source) / "include")
    (folder / "docs/catalogue.json").write_text(json.dumps(more), encoding="ascii")
    code, text = output_of(sys.executable, "-B", str(script), str(folder / "docs/catalogue.json"), str(folder / "no"))
    if code == 0 or "zulgAnother" not in text or len(text.splitlines()) != 1 or (folder / "no").exists():
        fail("pages.py", f"ends with {code} for a routine of no page: {text}")


def main():
    parser = argparse.ArgumentParser()
    for name in ("source", "build", "pages", "cc"):
        parser.add_argument(f"--{name}", required=True)
    parser.add_argument("--tool")
    args = parser.parse_args()
    args.source, args.build = os.path.realpath(args.source), os.path.realpath(args.build)
    pages_folder = pathlib.Path(args.pages).resolve()
    headers = Headers(pathlib.Path(args.source) / "include")
    names = set().union(*(Library(pathlib.Path(args.build) / library, "objdump").exports for library in LIBRARIES))
    check_names(pages_folder, names, headers)

    pages = {f"{path.parent.name}/{path.name}": Page(path) for path in pages_folder.glob("man[13]/*.[13]")}
    own = {where: page for where, page in pages.items() if not page.text.startswith(".so ")}
    known = names | CORE | headers.files | set(LIBRARIES) | {pathlib.Path(where).stem for where in own}
    known |= {"zulspectrum-batch.jsonl", "zulspectrum.fish"}  # files of the tool
    known |= {form for page in own.values() for form, _ in page.prototypes()}
    examples = 0
    with tempfile.TemporaryDirectory(prefix="man-", dir=args.build) as name:
        folder = pathlib.Path(name)
        for where, page in sorted(own.items()):
            check_formatters(page)
            check_words(page, known, headers, pages)
            found = check_examples(page, args, folder)
            if where.startswith("man3/") and found == 0:
                fail(where, "has no example")
            examples += found
        if args.tool:
            check_tool(own["man1/zulspectrum.1"], args.tool, folder)
        check_writer(args, pages_folder, folder)
    print(f"{len(own)} pages, {len(names)} names, {examples} examples, {len(failures)} failures")
    return 1 if failures else 0


sys.exit(main())
