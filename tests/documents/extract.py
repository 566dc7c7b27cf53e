"""What a document shows as code: programs between fences or after an "Example" of the header, and lines for the shell
in indented blocks."""
import re

PROGRAM_LANGUAGES = {"c", "cpp", "python"}
OTHER_KINDS = {"text",  # diagrams
               "csharp", "pascal", "vb"}  # tests/declarations compiles what can be compiled


class Program:
    """A piece of C or C++, whole or a fragment that runs inside a main, or of Python, and the lines that it says it
    prints."""

    def __init__(self, where, text, language="c"):
        self.where, self.text, self.language = where, text, language
        if language == "python":
            self.printed = re.findall(r"# prints (.*)", text)
        else:
            found = re.findall(r"/\* prints (.*?) \*/|// prints (.*)", text)
            self.printed = [first or second for first, second in found]

    def whole(self):
        if re.search(r"\bmain\s*\(", self.text):
            return self.text
        lines = self.text.splitlines()
        included = [line for line in lines if line.startswith("#include")]
        inner = [line for line in lines if not line.startswith("#include")]
        needed = ["#include <stdio.h>", "#include <stdlib.h>", "#include \"zulgenpx.h\""]
        return "\n".join(needed + included + ["int main(void) {"] + inner + ["return 0;", "}", ""])


def indented_blocks(lines, depth):
    """Runs of lines that are indented by `depth` or more, without what is indented."""
    block = []
    for number, line in enumerate(lines + [""], 1):
        if line.startswith(" " * depth):
            block.append((number, line[depth:]))
        elif line.strip() or number > len(lines):
            if block:
                yield block
            block = []


def of_markdown(name, text):
    """Programs, and shell lines as pairs of where and what."""
    programs, shell, lines, outside = [], [], text.splitlines(), []
    fence = None
    for number, line in enumerate(lines, 1):
        if line.startswith("```"):
            if fence is None:
                fence = (number, line[3:].strip(), [])
                if fence[1] not in PROGRAM_LANGUAGES | OTHER_KINDS:
                    raise ValueError(f"{name}:{number}: a block of the unknown kind '{fence[1]}'")
            else:
                if fence[1] in PROGRAM_LANGUAGES:
                    programs.append(Program(f"{name}:{fence[0]}", "\n".join(fence[2]) + "\n", fence[1]))
                fence = None
        if fence is not None and number > fence[0]:
            fence[2].append(line)
        outside.append("" if fence is not None or line.startswith("```") else line)
    for block in indented_blocks(outside, 4):
        if not is_continued_list(outside, block[0][0]):
            shell += [(f"{name}:{number}", line) for number, line in block]
    return programs, shell


def is_continued_list(lines, number):
    """Whether the line before the block is text: then the indentation only continues it."""
    return number > 1 and lines[number - 2].strip() != ""


def of_header(name, text):
    """Programs that are in comments after a line that begins with "Example"."""
    lines, programs = text.splitlines(), []
    language = "cpp" if name.endswith(".hpp") else "c"
    for start, line in enumerate(lines):
        if not line.strip().startswith("Example"):
            continue
        body = []
        for inner in lines[start + 1:]:
            if inner.strip() and not inner.startswith(" " * 5):
                break
            body.append(inner[5:])
        if not any(body):
            raise ValueError(f"{name}:{start + 1}: no example follows")
        programs.append(Program(f"{name}:{start + 1}", "\n".join(body) + "\n", language))
    return programs
