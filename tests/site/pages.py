"""Makes the site in a folder of its own and looks at its pages: an entry for each routine, links that lead somewhere,
tags that are closed, nothing from a network, and the same bytes each time for what the pages are made of."""
import html.parser
import json
import pathlib
import posixpath
import re
import subprocess
import sys
import tempfile
import urllib.parse

import common

args = common.parsed()
failures = common.Failures()
VOID = {"meta", "link", "input", "br", "wbr", "img", "path", "rect", "circle", "hr", "source"}


class Tags(html.parser.HTMLParser):
    """Tags that are opened and not closed, or closed in another order."""

    def __init__(self):
        super().__init__()
        self.open, self.wrong = [], []

    def handle_starttag(self, tag, attrs):
        if tag not in VOID:
            self.open.append(tag)

    def handle_startendtag(self, tag, attrs):
        pass

    def handle_endtag(self, tag):
        if tag in VOID and (not self.open or self.open[-1] != tag):
            return
        if not self.open or self.open.pop() != tag:
            self.wrong.append(f"</{tag}> at line {self.getpos()[0]}")


def read(folder):
    return {path.relative_to(folder).as_posix(): path.read_text(encoding="utf-8") for path in folder.rglob("*.html")}


def check_links(folder, pages):
    ids = {path: set(re.findall(r'\bid="([^"]+)"', text)) for path, text in pages.items()}
    files = {path.relative_to(folder).as_posix() for path in folder.rglob("*") if path.is_file()}
    for path, text in pages.items():
        found = re.findall(r'\bid="([^"]+)"', text)
        failures.expect(len(found) == len(ids[path]), f"{path}: an id occurs twice")
        for link in set(re.findall(r'\b(?:href|src|action)="([^"]+)"', text)):
            if link.startswith("data:"):
                continue
            failures.expect(not re.match(r"[a-z]+:|//", link), f"{path}: {link} needs a network")
            target, _, mark = link.partition("#")
            target = (
                posixpath.normpath(posixpath.join(posixpath.dirname(path), urllib.parse.unquote(target)))
                if target
                else path
            )
            failures.expect(target in files, f"{path}: {link} leads nowhere")
            if mark and target in ids:
                failures.expect(mark in ids[target], f"{path}: there is no #{mark} in {target}")


def check_entries(pages, found):
    import faces
    import library as lib

    library = lib.Library(args.source)
    due = {export["name"] for export in library.exports + library.batches}
    entries = {path[len("reference/") : -len(".html")] for path in pages if path.startswith("reference/zulg")}
    failures.expect(entries == due, f"reference: {len(entries)} entries, {len(due)} exports")
    failures.expect(len(library.exports) == 1193, f"{len(library.exports)} exports")
    for face, names in (("cpp", faces.cpp_names(args.source)), ("python", faces.python_names(args.source))):
        due = {entry.path for entry in names}
        entries = {path for path in pages if path.startswith(f"reference/{face}-")}
        failures.expect(entries == due and len(due) > 15, f"{face}: {len(entries)} entries, {len(due)} names")
    for export in library.exports + library.batches:
        text = pages[f"reference/{export['name']}.html"]
        words = re.sub(r"<[^>]+>", "", text)
        failures.expect(
            export["name"] in words and "Threads" in words and "Stack" in words, f"{export['name']}: no entry"
        )
        for argument in export["arguments"]:
            failures.expect(
                f"<th scope=\"row\" class=\"code\">{argument['name']}</th>" in text,
                f"{export['name']}: nothing of {argument['name']}",
            )
        slots = lib.slots(export)
        if slots:
            shown = re.findall(r'<span class="held">(?:(Re|Im) X\[(\d+)\]|(\+0\.0))</span>', text)
            shown = [zero and "0" or part[0] + number for part, number, zero in shown]
            failures.expect(shown == slots, f"{export['name']}: slots {shown}")
        if "counts" in export:
            counts = export["counts"]
            failures.expect(
                f"{counts['additions']} additions, {counts['subtractions']} subtractions" in words,
                f"{export['name']}: no counts",
            )
            failures.expect("Proved bound" in words, f"{export['name']}: no bound")
        failures.expect(found[export["name"]] == f"reference/{export['name']}.html", f"{export['name']} is not found")
    graphs = {path for path in pages if re.fullmatch(r"atlas/\w+_\d+\.html", path)}
    failures.expect(len(graphs) == 4 * 63 + 7 + 22, f"{len(graphs)} graphs")
    for path in graphs:
        code = pages[path].count('<code class="asm">')
        has_kernel = not path.startswith("atlas/dct4")
        failures.expect(code == 2 * has_kernel and '<code class="cpp">' in pages[path], f"{path}: {code} listings")
    words = pages["atlas/real_inverse_23.html"]
    failures.expect(
        re.search("spectrum block of 11</strong> Direct", words) and re.search("block of 23</strong> Rader", words),
        "atlas: the 11 inside the inverse of 23 points is in direct form",
    )
    rows = pages["atlas/kernels.html"].count("<tr data-family")
    failures.expect(rows == sum("counts" in export for export in library.exports), f"{rows} kernels")


def main():
    with tempfile.TemporaryDirectory(dir=args.build) as folder:
        folder = pathlib.Path(folder)
        common.graphs_into(args, folder / "graphs")
        subprocess.run(
            [
                sys.executable,
                "-B",
                args.source / "site/build.py",
                "--source",
                args.source,
                "--build",
                args.build,
                "--graphs",
                folder / "graphs",
                "--output",
                folder / "site",
                "--objdump",
                args.objdump,
            ],
            check=True,
        )
        pages = read(folder / "site")
        index = (folder / "site/assets/search-index.js").read_text(encoding="utf-8")
        entries = json.loads(index.removeprefix("const zulgSearchIndex = ").rstrip(";\n")).split("\n")
        found = {title: path for title, path, _ in (entry.split("\t") for entry in entries)}
        for path in found.values():
            failures.expect(path in pages, f"the search leads to {path}, which is not there")
        check_links(folder / "site", pages)
        check_entries(pages, found)
        for path, text in pages.items():
            for mark in ("<h1", '<html lang="en">', 'name="viewport"'):
                failures.expect(mark in text, f"{path}: no {mark}")
        for path in [path for path in pages if not path.startswith(("reference/zulg", "atlas/"))] + [
            "reference/zulgDFTFwd_RToCCS_8_32f.html",
            "reference/zulgBatchDCT4_32f.html",
            "atlas/complex_5.html",
            "atlas/wht_8.html",
            "atlas/dct4_direct_8.html",
            "atlas/index.html",
        ]:
            tags = Tags()
            tags.feed(pages[path])
            failures.expect(not tags.wrong and not tags.open, f"{path}: {tags.wrong[:3]} {tags.open[-3:]}")
        size = sum(path.stat().st_size for path in (folder / "site").rglob("*"))
        failures.expect(size < 60e6, f"{size / 1e6:.1f} MB")
    failures.end("pages")


main()
