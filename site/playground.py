"""The playground: the library as a WebAssembly module, and the page that runs it."""
import base64
import gzip
import pathlib

HERE = pathlib.Path(__file__).resolve().parent / "playground"
SCRIPTS = ["module", "drawing", "signal", "picture", "mdct", "start"]


def build(site, data):
    # Without the module, as in a test of the pages alone, there is an empty one, and the page says that it does not
    # run.
    module = data.wasm.read_bytes() if data.wasm else b""
    packed = base64.b64encode(gzip.compress(module, 9, mtime=0)).decode("ascii")
    site.file("playground/zulgenpx.wasm.js", f'const zulgModule = "{packed}";\n')
    for name in SCRIPTS:
        site.file(f"playground/{name}.js", (HERE / f"{name}.js").read_text(encoding="utf-8"))
    scripts = ["playground/zulgenpx.wasm.js"] + [f"playground/{name}.js" for name in SCRIPTS]
    site.page(
        "playground/index.html",
        "Playground",
        (HERE / "page.html").read_text(encoding="utf-8"),
        scripts=scripts,
        description="Transforms in this page: draw, type or load a signal and see its spectrum.",
        words="try draw sound microphone picture mdct webassembly",
    )
