"""Tutorials: Markdown files beside this one, each a page. Their programs are run by the tests."""
import pathlib
import re

import markdown

HERE = pathlib.Path(__file__).resolve().parent / "tutorials"
ORDER = ["first", "layouts", "flags", "longer", "spectrogram", "filters", "mdct", "codes", "moving"]


def title_of(text):
    return re.match(r"# (.*)", text)[1]


def converted(text):
    """Markdown as HTML, with blocks and tables in the form that all pages have."""
    body = markdown.markdown(text, extensions=["tables", "fenced_code", "toc"])
    numbers = iter(range(1, 1000))
    body = re.sub(
        r"<pre><code(.*?)>",
        lambda match: (
            f'<div class="code-block"><pre tabindex="0" role="group" aria-label="Code {next(numbers)}"><code{match[1]}>'
        ),
        body,
    )
    body = body.replace("</code></pre>", "</code></pre></div>")
    body = re.sub(
        r"<table>",
        lambda _: f'<div class="wide" role="group" aria-label="Table {next(numbers)}" tabindex="0"><table>',
        body,
    )
    return body.replace("</table>", "</table></div>").replace("<th></th>", "<td></td>")


def build(site, data):
    texts = {name: (HERE / f"{name}.md").read_text(encoding="utf-8") for name in ORDER}
    cards = ""
    for number, (name, text) in enumerate(texts.items()):
        title = title_of(text)
        after = ORDER[number + 1] if number + 1 < len(ORDER) else None
        follow = (
            f'<p>Next: <a href="{after}.html">{title_of(texts[after])}</a></p>' if after and "Next:" not in text else ""
        )
        site.page(
            f"tutorials/{name}.html",
            title,
            converted(text) + follow,
            trail=[("Tutorials", "tutorials/index.html")],
            words="tutorial " + name,
        )
        first = markdown.markdown(re.split(r"\n\n", text)[1])
        cards += f'<li><a href="{name}.html">{title}</a><span>{re.sub(r"<[^>]+>", "", first)}</span></li>'
    site.page(
        "tutorials/index.html",
        "Tutorials",
        (
            '<h1>Tutorials</h1><p class="lead">Each page has whole programs, which the '
            f'tests of the library run.</p><ol class="cards">{cards}</ol>'
        ),
        words="tutorials learn",
    )
