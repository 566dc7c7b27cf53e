"""The frame that every page has: head, navigation, search, footer. Pages work when they are opened as files: scripts
are classic ones, and all links are relative."""
import html
import posixpath

escape = html.escape

# Parts of the site: word, folder or file, title.
PARTS = [
    ("reference", "reference/index.html", "Reference"),
    ("atlas", "atlas/index.html", "Atlas"),
    ("playground", "playground/index.html", "Playground"),
    ("tutorials", "tutorials/index.html", "Tutorials"),
    ("figures", "figures/index.html", "Figures"),
]

FRAME = """<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>{title}</title>
<meta name="description" content="{description}">
<link rel="icon" href="{root}assets/icon.svg">
<link rel="stylesheet" href="{root}assets/style.css">
<script>document.documentElement.dataset.root = "{root}";</script>
<script src="{root}assets/theme.js"></script>
</head>
<body>
<a class="skip" href="#content">Skip to the content</a>
<header class="top">
<a class="name" href="{root}index.html">zulgenpx</a>
<nav aria-label="Parts of the site">{navigation}</nav>
<form class="search" role="search" action="{root}search.html">
<label class="hidden" for="search">Search routines, graphs and pages</label>
<input id="search" name="q" type="search" placeholder="Search: fft 15, CCS, pack 8 …" autocomplete="off"
 role="combobox" aria-expanded="false" aria-controls="found" aria-autocomplete="list">
<ul id="found" role="listbox" aria-label="Pages found" hidden></ul>
</form>
<button type="button" id="theme" aria-label="Light or dark colours" title="Light or dark colours">◐</button>
</header> <main id="content" tabindex="-1"{broad}>
{trail}{body}
</main>
<footer><p>zulgenpx {version}, MIT licence. Made from the library's own data; nothing on these pages is loaded from a
network.</p></footer> <script src="{root}assets/search-index.js" defer></script>
<script src="{root}assets/search.js" defer></script>
{scripts}
</body>
</html>
"""


class Site:
    """Pages by path, and what the search finds: (title, path, words)."""

    def __init__(self, version):
        self.version, self.files, self.found = version, {}, []

    def page(self, path, title, body, description="", trail=(), scripts=(), words=None, is_broad=False):
        """`trail` are the pages above this one: (title, path). `words` make it known to the search, beside its
        title."""
        if path in self.files:
            raise ValueError(f"two pages are called {path}")
        root = "../" * path.count("/")
        part = path.split("/")[0]
        navigation = ""
        for word, target, name in PARTS:
            mark = ' aria-current="page"' if word == part else ""
            navigation += f'<a href="{root}{target}"{mark}>{name}</a>'
        steps = "".join(f'<li><a href="{relative(path, target)}">{escape(name)}</a></li>' for name, target in trail)
        self.files[path] = FRAME.format(
            title=escape(title if path == "index.html" else f"{title} – zulgenpx"),
            root=root,
            body=body,
            description=escape(description or title, quote=True),
            navigation=navigation,
            version=self.version,
            broad=' class="broad"' if is_broad else "",
            trail=f'<nav aria-label="Pages above"><ol class="trail">{steps}</ol></nav>\n' if trail else "",
            scripts="\n".join(f'<script src="{root}{script}" defer></script>' for script in scripts),
        )
        if words is not None:
            self.found.append((title, path, words))

    def file(self, path, content):
        if path in self.files:
            raise ValueError(f"two files are called {path}")
        self.files[path] = content


def relative(page, target):
    """The link from one page to another."""
    return posixpath.relpath(target, posixpath.dirname(page) or ".")


def table(heads, rows, label, kinds="", sortable=False, classes=""):
    """`kinds` has a letter for each column: n for numbers, c for code, t for text. Cells are HTML."""
    kinds = kinds.ljust(len(heads), "t")
    names = {"n": ' class="number"', "c": ' class="code"', "t": ""}
    head = "".join(f'<th scope="col"{names[kind]}>{name}</th>' for name, kind in zip(heads, kinds))
    body = "\n".join(
        "<tr>"
        + "".join(
            f'<th scope="row"{names[kind]}>{cell}</th>' if number == 0 else f"<td{names[kind]}>{cell}</td>"
            for number, (cell, kind) in enumerate(zip(row, kinds))
        )
        + "</tr>"
        for row in rows
    )
    mark = f' class="sortable {classes}"' if sortable else f' class="{classes}"' if classes else ""
    return (
        f'<div class="wide" role="group" aria-label="{escape(label, quote=True)}" tabindex="0">'
        f"<table{mark}><caption>{label}</caption><thead><tr>{head}</tr></thead><tbody>\n{body}\n</tbody></table>"
        "</div>\n"
    )


def capital(words):
    """The words as the beginning of a sentence."""
    return words[:1].upper() + words[1:]


def facts(rows):
    """Names and what they are, as a list of definitions."""
    return (
        '<dl class="facts">' + "".join(f"<div><dt>{name}</dt><dd>{text}</dd></div>" for name, text in rows) + "</dl>\n"
    )


def code(text, language, label):
    return (
        f'<div class="code-block"><pre tabindex="0" role="group" aria-label="{escape(label, quote=True)}">'
        f'<code class="{language}">{escape(text, quote=False)}</code></pre></div>\n'
    )


def tabs(name, parts):
    """Parts that are shown one at a time where scripts run, and one below the other elsewhere: (title, HTML)."""
    sections = "".join(
        f'<section class="tab" data-title="{escape(title, quote=True)}"><h3>{title}</h3>{content}</section>'
        for title, content in parts
    )
    return f'<div class="tabs" data-name="{name}">{sections}</div>\n'
