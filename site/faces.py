"""Entries for the faces of the library in C++ and in Python, made from the headers and from the package."""
import ast
import re
import textwrap

from pages import code, escape, tabs

HEADERS = [
    "zulgenpx.hpp",
    "zulgenpx_calls.hpp",
    "zulgenpx_dct4.hpp",
    "zulgenpx_arrays.hpp",
    "zulgenpx_batch.hpp",
    "zulgenpx_view.hpp",
]
NAME = re.compile(
    r"^(?:class(?: \[\[nodiscard\]\])?|struct|enum class) (\w+)"
    r"|^(?:\[\[nodiscard\]\] )?(?:constexpr |inline )*(?:void|auto|std::size_t) (\w+)\("
    r"|^inline constexpr \w+ (\w+)[ ={]"
)
KEPT_OF_CLASSES = re.compile(r"^    (?:\[\[nodiscard\]\] |explicit |static |constexpr |friend |dct4_plan|void |view\()")


class Declared:
    """A name of a header: its full name, declarations, and the comment that tells of it."""

    def __init__(self, name, header):
        self.name, self.header, self.declarations, self.comment = name, header, [], ""

    @property
    def path(self):
        return f"reference/cpp-{self.name.replace('::', '-')}.html"


def declared_in(header, text):
    """The public names of a header, in their order."""
    found, spaces, comment, template = {}, [], "", ""
    lines = iter(text.splitlines())
    for line in lines:
        opened = re.match(r"namespace (\S+) \{", line)
        if opened:
            spaces.append(opened[1])
        elif line.startswith("}  // namespace"):
            spaces.pop()
        elif line.startswith("/*"):
            comment = line
            while "*/" not in line:
                line = next(lines)
                comment += "\n" + line
        elif line.startswith("template"):
            template = line
            while template.count("<") > template.count(">"):
                template += "\n" + next(lines)
        elif match := NAME.match(line):
            name = match[1] or match[2] or match[3]
            declaration, own_template, template = line, template, ""
            is_class = bool(match[1])
            body = []
            while not re.search(r"[;{]\s*$|;", line):
                line = next(lines)
                declaration += "\n" + line
            if line.rstrip().endswith("{"):
                inner = line
                while inner not in ("}", "};"):
                    inner = next(lines)
                    body.append(inner)
            if not spaces or "detail" in " ".join(spaces):
                continue
            full = "::".join(part for space in spaces for part in space.split("::")) + "::" + name
            entry = found.setdefault(full, Declared(full, header))
            shown = declaration.split(" noexcept(")[0].rstrip(" {").rstrip()
            if is_class:
                shown = class_shown(shown, body)
            entry.declarations.append((own_template + "\n" if own_template else "") + shown + ("" if is_class else ";"))
            entry.comment = entry.comment or comment
    return list(found.values())


def class_shown(head, body):
    """A class with the first lines of what it offers."""
    kept, private = [], False
    for line in body:
        private = private or line.startswith("private:")
        if not private and (line.startswith("public:") or KEPT_OF_CLASSES.match(line)) and "static_assert" not in line:
            kept.append(re.sub(r"\s*(?:\{.*| :.*)$", "", line.rstrip(";")) + ("" if line.endswith(":") else ";"))
    return head + " {\n" + "\n".join(kept) + "\n};" if kept else head + ";"


def cpp_names(source):
    found = []
    for header in HEADERS:
        found += declared_in(header, (source / "include" / header).read_text(encoding="ascii"))
    return found


def comment_text(comment):
    """A comment of a header as HTML: what is indented further is code."""
    lines = re.sub(r"^/\*\s?|\s*\*/$", "", comment).splitlines()
    lines = [re.sub(r"^-- (.*?) -+$", r"\1.", lines[0])] + [
        line[3:] if line.startswith("   ") else line for line in lines[1:]
    ]
    parts, paragraph, block = [], [], []
    for line in lines + [""]:
        if line.startswith("  "):
            if paragraph:
                parts.append(f"<p>{escape(' '.join(paragraph), quote=False)}</p>")
                paragraph = []
            block.append(line)
        elif not line.strip():
            if block:
                block.append("")
            if paragraph:
                parts.append(f"<p>{escape(' '.join(paragraph), quote=False)}</p>")
                paragraph = []
        else:
            if block:
                parts.append(code(textwrap.dedent("\n".join(block)).strip("\n"), "cpp", "From the header"))
                block = []
            paragraph.append(line.strip())
    if block:
        parts.append(code(textwrap.dedent("\n".join(block)).strip("\n"), "cpp", "From the header"))
    return "".join(parts)


class PythonName:
    def __init__(self, name, signature, text):
        self.name, self.signature, self.text = name, signature, text

    @property
    def path(self):
        return f"reference/python-{self.name}.html"


def python_names(source):
    """The names of the package's __all__, with signatures and texts, without importing it."""
    folder = source / "python/zulgenpx"
    trees = [ast.parse(path.read_text(encoding="utf-8")) for path in sorted(folder.glob("*.py"))]
    package = ast.parse((folder / "__init__.py").read_text(encoding="utf-8"))
    names = next(
        ast.literal_eval(node.value)
        for node in package.body
        if isinstance(node, ast.Assign) and node.targets[0].id == "__all__"
    )
    found = {}
    for tree in trees:
        for number, node in enumerate(tree.body):
            if isinstance(node, ast.FunctionDef) and node.name in names and ast.get_docstring(node):
                found[node.name] = PythonName(
                    node.name, f"zulgenpx.{node.name}({ast.unparse(node.args)})", ast.get_docstring(node)
                )
            elif isinstance(node, ast.ClassDef) and node.name in names:
                start = next(
                    (
                        each
                        for each in node.body
                        if isinstance(each, ast.FunctionDef) and each.name in ("__init__", "__new__")
                    ),
                    None,
                )
                arguments = ast.unparse(start.args).split(", ", 1)[-1] if start else ""
                text = "\n\n".join(
                    [ast.get_docstring(node) or ""]
                    + [
                        f"{each.name}({ast.unparse(each.args)})\n\n{textwrap.indent(ast.get_docstring(each), '    ')}"
                        for each in node.body
                        if isinstance(each, ast.FunctionDef) and ast.get_docstring(each)
                    ]
                )
                found[node.name] = PythonName(node.name, f"zulgenpx.{node.name}({arguments})", text)
            elif isinstance(node, (ast.Assign, ast.AnnAssign)):
                target = node.targets[0] if isinstance(node, ast.Assign) else node.target
                if isinstance(target, ast.Name) and target.id in names and target.id not in found:
                    after = tree.body[number + 1] if number + 1 < len(tree.body) else None
                    text = (
                        after.value.value
                        if isinstance(after, ast.Expr) and isinstance(after.value, ast.Constant)
                        else "A constant of the package."
                    )
                    found[target.id] = PythonName(target.id, f"zulgenpx.{target.id} = {ast.unparse(node.value)}", text)
    missing = set(names) - set(found)
    if missing:
        raise ValueError(f"no entry for {', '.join(sorted(missing))} of the package")
    return [found[name] for name in names]


def docstring_html(text):
    """A docstring in NumPy's form: its heads become heads, examples code, the rest paragraphs."""
    lines, parts, at, paragraph = text.splitlines(), [], 0, []

    def finish():
        if paragraph:
            words = re.sub(r"``?([^`]+)``?", r"<code>\1</code>", escape(" ".join(paragraph), quote=False))
            parts.append(f"<p>{words}</p>")
            paragraph.clear()

    while at < len(lines):
        line = lines[at]
        if at + 1 < len(lines) and re.fullmatch(r"-{3,}", lines[at + 1].strip()):
            finish()
            parts.append(f"<h2>{escape(line.strip())}</h2>")
            at += 1
        elif line.startswith(">>>"):
            finish()
            block = []
            while at < len(lines) and lines[at].strip():
                block.append(lines[at])
                at += 1
            parts.append(code("\n".join(block), "python", "Example"))
        elif re.match(r"^\w[\w, ]* : ", line) or (
            line
            and not line.startswith(" ")
            and at + 1 < len(lines)
            and lines[at + 1].startswith("    ")
            and line.strip()
        ):
            finish()
            body = []
            while at + 1 < len(lines) and (
                lines[at + 1].startswith("    ")
                or (not lines[at + 1].strip() and at + 2 < len(lines) and lines[at + 2].startswith("    "))
            ):
                at += 1
                body.append(lines[at].strip())
            words = re.sub(r"``?([^`]+)``?", r"<code>\1</code>", escape(" ".join(body), quote=False))
            parts.append(f'<p class="parameter"><code>{escape(line.strip(), quote=False)}</code><br>{words}</p>')
        elif line.strip():
            paragraph.append(line.strip())
        else:
            finish()
        at += 1
    finish()
    return "".join(parts)


def build(site, data):
    cpp, python = cpp_names(data.source), python_names(data.source)
    items = ""
    for entry in cpp:
        body = (
            f'<h1 class="routine">{escape(entry.name).replace("::", "::<wbr>")}</h1>'
            + code(
                "#include"
                f" \"{'zulgenpx_batch.hpp' if 'batch' in entry.name or 'view' in entry.header else 'zulgenpx.hpp'}\""
                + "\n\n"
                + "\n".join(entry.declarations),
                "cpp",
                "Declarations",
            )
            + "<h2>What the header says</h2>"
            + comment_text(entry.comment)
        )
        site.page(
            entry.path,
            entry.name,
            body,
            trail=[("Reference", "reference/index.html"), ("C++", "reference/cpp.html")],
            words="C++ " + entry.header,
        )
        items += f'<li><a href="{entry.path.split("/")[1]}"><code>{escape(entry.name)}</code></a></li>'
    overview = re.search(r"/\*.*?\*/", (data.source / "include/zulgenpx.hpp").read_text(encoding="ascii"), re.S)[0]
    batches = re.search(r"/\*.*?\*/", (data.source / "include/zulgenpx_batch.hpp").read_text(encoding="ascii"), re.S)[0]
    site.page(
        "reference/cpp.html",
        "C++",
        '<h1>C++</h1><p class="lead">Headers for C++20: routines picked by length when '
        "the program is compiled, sizes checked, plans that own their memory.</p>"
        f'<h2>Names</h2><ul class="names">{items}</ul><h2>What the headers say</h2>'
        + tabs("header", [("zulgenpx.hpp", comment_text(overview)), ("zulgenpx_batch.hpp", comment_text(batches))]),
        trail=[("Reference", "reference/index.html")],
        words="C++ headers",
    )
    items = ""
    for entry in python:
        body = (
            f'<h1 class="routine">zulgenpx.{entry.name}</h1>'
            + code(entry.signature, "python", "Signature")
            + docstring_html(entry.text)
        )
        site.page(
            entry.path,
            f"zulgenpx.{entry.name}",
            body,
            trail=[("Reference", "reference/index.html"), ("Python", "reference/python.html")],
            words="Python NumPy " + entry.name,
        )
        items += f'<li><a href="python-{entry.name}.html"><code>{entry.name}</code></a></li>'
    site.page(
        "reference/python.html",
        "Python",
        '<h1>Python</h1><p class="lead">A package for NumPy’s arrays, with NumPy’s names and arguments.</p>'
        + f'<ul class="names">{items}</ul>',
        trail=[("Reference", "reference/index.html")],
        words="Python NumPy package",
    )
