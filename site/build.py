#!/usr/bin/env python3
"""Makes the site: static pages from the catalogue, the graphs of the generator, the built library and the results.

build.py --source TREE --build FOLDER --graphs FOLDER --output FOLDER [--wasm FILE] [--objdump PROGRAM]

FOLDER of --build holds the built libraries. The output is written anew. The same input gives the same bytes.
"""
import argparse
import pathlib
import shutil
import sys
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent))
import atlas  # noqa: E402
import figures  # noqa: E402
import library  # noqa: E402
import playground  # noqa: E402
import reference  # noqa: E402
import results  # noqa: E402
import start  # noqa: E402
import tutorials  # noqa: E402
from pages import Site  # noqa: E402

HERE = pathlib.Path(__file__).resolve().parent


class Data:
    """What pages are made from."""

    def __init__(self, args):
        self.source, self.build = args.source, args.build
        self.library = library.Library(args.source)
        self.times, self.errors = results.read_times(args.source), results.read_errors(args.source)
        self.bounds = results.read_bounds(args.source)
        self.graphs = atlas.read_graphs(args.graphs)
        self.objdump, self.wasm = args.objdump, args.wasm


def parsed():
    parser = argparse.ArgumentParser()
    for name in ("source", "build", "graphs", "output"):
        parser.add_argument(f"--{name}", type=pathlib.Path, required=True)
    parser.add_argument("--wasm", type=pathlib.Path)
    parser.add_argument("--objdump", default="objdump")
    return parser.parse_args()


def write(site, output):
    if output.exists():
        shutil.rmtree(output)
    for path, content in sorted(site.files.items()):
        target = output / path
        target.parent.mkdir(parents=True, exist_ok=True)
        target.write_bytes(content if isinstance(content, bytes) else content.encode("utf-8"))
    return sum(path.stat().st_size for path in output.rglob("*") if path.is_file())


def main():
    args = parsed()
    started = time.monotonic()
    data = Data(args)
    site = Site(data.library.version)
    site.file("assets/style.css", (HERE / "style.css").read_text(encoding="utf-8"))
    site.file("assets/icon.svg", (HERE / "icon.svg").read_text(encoding="utf-8"))
    for script in sorted((HERE / "scripts").glob("*.js")):
        site.file(f"assets/{script.name}", script.read_text(encoding="utf-8"))
    for part in (start, reference, atlas, figures, playground, tutorials):
        part.build(site, data)
    lines = "\n".join("\t".join(entry) for entry in site.found)
    site.file("assets/search-index.js", f"const zulgSearchIndex = {start.js_text(lines)};\n")
    size = write(site, args.output)
    pages = sum(path.endswith(".html") for path in site.files)
    print(f"{pages} pages, {size / 1e6:.1f} MB, {time.monotonic() - started:.0f} s: {args.output / 'index.html'}")


main()
