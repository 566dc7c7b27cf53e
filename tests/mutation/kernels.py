"""Mutants of the texts of transforms, and of what makes kernels of them: ports, values, scale. A mutant is one source
with kernels that the digests of tests/same_bits judge, on the target whose form of text it is.

Texts with one number to a register are compiled for the target in plain C++, those in pairs for x86-64 and those in
lines for the level with AVX2. Nothing is optimised: the bits are the same, and a mutant takes a part of the time.
"""
import os
import re
import subprocess
import sys

from faults import code_faults, text_faults

FLAGS = ["-std=c++20", "-O0", "-fPIC", "-w", "-ffp-contract=off", "-fno-exceptions", "-fno-rtti"]
TARGETS = {"generic": [], "x86_64": ["-march=x86-64", "-mfpmath=sse", "-mno-sse3"],
           "x86_64_v3": ["-march=x86-64", "-mavx2", "-mno-fma"]}
TARGET_OF_FORM = {"scalar": "generic", "pairs": "x86_64", "lines": "x86_64_v3"}
COMPLEX = ("DFTFwd_CToC", "DFTInv_CToC")
ELEMENTS = {"double": "64f", "float": "32f"}

# The kernel of a text that is named. It is that of kernel/kernel_body.h, which finds its text by family and length.
HEAD = """#include <cstdlib>
namespace zulg {
inline namespace ZULG_TARGET {
template <class Graph, Family family, int length, class Element>
Status ownKernel(const Element* pSrc, Element* pDst, std::int32_t flag) {
    using Factor = Scale<Element, length, Graph>;
    return withScale<typename FlagsOf<family>::Flags, Factor>(pSrc, pDst, flag, [=](Element scale) {
        const typename PortsOf<family, Graph, Element>::Type io{{pSrc, pDst, scale}};
        Graph::run(io);
        io.finish();
    });
}
}
}
"""


class Text:
    """A row of kernels/texts.cmake, or a block of the Walsh-Hadamard family."""

    def __init__(self, row):
        self.path, self.form, self.graph, length, steps, *self.families = row.split()
        self.length, self.steps = int(length), int(steps)

    def name(self, family, element):
        return f"zulg{family}_{self.length}_{ELEMENTS[element]}{'c' if family in COMPLEX else ''}"

    def source(self, families):
        texts = "".join(f"template <>\nstruct TextOf<Family::{family}, {self.length}> {{\n"
                        f"    using Type = {self.graph}<{self.length}>;\n}};\n" for family in families)
        return (f'#include "kernel/kernel_body.h"\n#include "{self.path}"\n'
                f"namespace zulg {{\ninline namespace ZULG_TARGET {{\n{texts}}}\n}}\n")

    def entries(self, families, elements):
        """Each kernel under its exported name: the public header declares that with elements of its own types."""
        for family in families:
            for element in elements:
                name = self.name(family, element)
                arguments = f"(const {element}* a, {element}* b, std::int32_t f)"
                yield name, (f'int own_{name}{arguments} __asm__("{name}");\nint own_{name}{arguments} '
                             f"{{ return zulg::kernel<zulg::Family::{family}, {self.length}, {element}>(a, b, f); }}\n")


class WhtText(Text):
    """A block, as the order of its points; the text is not a kernel's, and one source has the orders up to 7."""

    def __init__(self, path):
        super().__init__(f"{path} scalar WhtBlock {re.search('[0-9]+', path).group()} 0 WHT")
        self.order = self.length.bit_length() - 1

    def source(self, families):
        return '#include "wht/small_orders.cpp"\n'

    def entries(self, families, elements):
        for element in elements:
            name = f"zulgWHT_{self.order}_{ELEMENTS[element]}"
            yield name, (f'int own_{name}(const {element}* a, {element}* b, std::int32_t f, {element}* c) '
                         f'__asm__("{name}");\nint own_{name}(const {element}* a, {element}* b, std::int32_t f, '
                         f"{element}* c) {{ return zulg::wht<{self.order}, {element}>(a, b, f, c); }}\n")


def texts_of(tree):
    with open(os.path.join(tree, "kernels/texts.cmake"), encoding="ascii") as file:
        texts = [Text(row) for row in re.findall(r'"(kernels/.*)"', file.read())]
    folder = os.path.join(tree, "wht/bodies")
    return texts + [WhtText(f"wht/bodies/{name}") for name in sorted(os.listdir(folder))]


class Kernels:
    """Compiles kernels with one line changed, and compares their digests with the committed ones."""

    def __init__(self, tree, digests, folder):
        self.tree, self.digests, self.folder = tree, digests, folder
        for target in TARGETS:  # what all texts of a target include, compiled before
            header = os.path.join(folder, target, "kernel/kernel_body.h.gch")
            os.makedirs(os.path.dirname(header))
            subprocess.run([*self.compiler(target), "-x", "c++-header",
                            os.path.join(tree, "kernel/kernel_body.h"), "-o", header], check=True)
        self.texts = texts_of(tree)
        self.due = {}
        with open(os.path.join(tree, "tests/same_bits/digests.txt"), encoding="ascii") as file:
            for line in file:
                if not line.startswith("#"):
                    name, rest = line.rstrip("\n").split(" ", 1)
                    self.due.setdefault(name, []).append(rest)

    def faults_of(self, text):
        with open(os.path.join(self.tree, text.path), encoding="utf-8") as file:
            return text_faults(file.read().split("\n"))

    def compiler(self, target, *folders):
        return ["g++", *FLAGS, *TARGETS[target], *(f"-I{folder}" for folder in folders), f"-I{self.tree}",
                f"-I{self.tree}/targets/{target}"]

    def compiled(self, folder, target, source, *folders):
        """The library of a source, or null if it does not compile."""
        path, library = os.path.join(folder, "mutant.cpp"), os.path.join(folder, "mutant.so")
        with open(path, "w", encoding="utf-8") as file:
            file.write(source)
        done = subprocess.run([*self.compiler(target, folder, *folders), "-shared", "-nostdlib", path, "-o", library,
                               "-lm", "-lc", "-lgcc"], stderr=subprocess.PIPE, check=False)
        return library if done.returncode == 0 else None

    def judged(self, library, names, environment=None):
        """How the kernels of a library end: survives, crash or bits."""
        for name in names:
            try:
                done = subprocess.run([self.digests, library, name], stdout=subprocess.PIPE,
                                      stderr=subprocess.DEVNULL, text=True, timeout=60, check=False,
                                      env={**os.environ, **(environment or {})})
            except subprocess.TimeoutExpired:
                return "crash"
            if done.returncode != 0:
                return "crash"
            found = [line.split(" ", 1)[1] for line in done.stdout.splitlines() if line.startswith(name + " ")]
            if not found or found != self.due[name]:
                return "bits"
        return "survives"

    def outcomes_of_texts(self, folder, text, faults):
        """The outcomes of several mutants of one text, which are compiled together: a library of them all, whose entry
        goes to the one that an environment variable names. None if they do not compile together."""
        with open(os.path.join(self.tree, text.path), encoding="utf-8") as file:
            lines = file.read().split("\n")
        family = text.families[0]
        parts = [text.source([family]), HEAD]
        for number, (_, line, changed) in enumerate(faults):
            own = f"{text.graph}_{number}"
            mutant = "\n".join(lines[:line] + [changed] + lines[line + 1:])
            parts.append(f"namespace zulg {{\ntemplate <int length>\nstruct {own};\n"
                         "inline namespace ZULG_TARGET {\ntemplate <Family family, int length, class Element>\n"
                         f"struct PortsOf<family, {own}<length>, Element> : "
                         f"PortsOf<family, {text.graph}<length>, Element> {{}};\n}}\n}}\n")
            parts.append(re.sub(rf"\b{text.graph}\b", own, mutant.replace("#pragma once", "")))
        name = text.name(family, "double")
        routines = ", ".join(f"ownKernel<{text.graph}_{number}<{text.length}>, Family::{family}, {text.length}, double>"
                             for number in range(len(faults)))
        arguments = "(const double* a, double* b, std::int32_t f)"
        parts.append(f"namespace zulg {{\nstatic KernelRoutine<double> const routines[] = {{{routines}}};\n}}\n"
                     f'int own_{name}{arguments} __asm__("{name}");\nint own_{name}{arguments} '
                     '{ return zulg::routines[std::atoi(std::getenv("ZULG_MUTANT"))](a, b, f); }\n')
        library = self.compiled(folder, TARGET_OF_FORM[text.form], "".join(parts),
                                os.path.join(self.folder, TARGET_OF_FORM[text.form]))
        if library is None:
            return None
        return [self.judged(library, [name], {"ZULG_MUTANT": str(number)}) for number in range(len(faults))]

    def text_outcome(self, folder, text, families, elements):
        entries = list(text.entries(families, elements))
        library = self.compiled(folder, TARGET_OF_FORM[text.form],
                                text.source(families) + "".join(entry for _, entry in entries),
                                os.path.join(self.folder, TARGET_OF_FORM[text.form]))
        return "compiler" if library is None else self.judged(library, [name for name, _ in entries])

    def outcome_of_text(self, folder, text):
        """The first kernel in double sees most faults; what it does not see is shown to all kernels of the text."""
        outcome = self.text_outcome(folder, text, text.families[:1], ["double"])
        if outcome == "survives":
            outcome = self.text_outcome(folder, text, text.families, list(ELEMENTS))
        return outcome


# The headers that make a kernel of a text, and whether their mutants are judged by texts in lanes.
HEADERS = {"kernel/ports.h": False, "kernel/scale.h": False, "kernel/families.h": False, "kernel/kernel_body.h": False,
           "kernel/doubles.h": False, "kernel/in_memory.h": False, "kernel/kernel.h": False, "kernel/two.cpp": False,
           "kernel/lane_ports.h": True, "kernel/lanes.h": True, "targets/x86_64/in_lanes.h": True}
# Those of them that check the arguments of kernels, or say where a result is.
CHECKS = ("kernel/scale.h", "kernel/kernel_body.h", "kernel/families.h", "kernel/ports.h", "kernel/lane_ports.h")


class Probes:
    """The kernels that judge a mutant of a header: of each form and family some short ones, of odd and even lengths.
    Sources with a few of them come first, since most mutants do not outlive these."""

    def __init__(self, kernels):
        self.kernels = kernels
        scalar, pairs = self.some("scalar", 0, 2), self.some("pairs", 1, 2)
        lines, longer = self.some("lines", 0, 1), self.some("lines", 1, 3)
        few = [text for text in lines if text.graph == "ComplexLines"]
        pairs += self.with_neighbours("pairs")
        self.of_ports = [("generic", scalar, "double"), ("generic", scalar, "float"), ("x86_64", pairs, "double")]
        self.of_lanes = [("x86_64_v3", few, "double"), ("x86_64_v3", few, "float"), ("x86_64", pairs, "double"),
                         ("x86_64", pairs, "float")]
        self.of_lanes += [("x86_64_v3", [text], element) for text in lines + longer for element in ELEMENTS
                          if text not in few]

    def some(self, form, first, end):
        chosen = []
        texts = [text for text in self.kernels.texts if text.form == form and text.families != ["WHT"]]
        for graph in sorted({text.graph for text in texts}):
            for odd in (0, 1):
                chosen += sorted((text for text in texts if text.graph == graph and text.length % 2 == odd
                                  and text.length > 2), key=lambda text: text.steps)[first:end]
        return chosen

    def with_neighbours(self, form):
        """A short text that reads and stores neighbours in one register."""
        for text in sorted((text for text in self.kernels.texts if text.form == form), key=lambda text: text.steps):
            with open(os.path.join(self.kernels.tree, text.path), encoding="utf-8") as file:
                calls = re.findall(r"io\.(in|out)\((\d+), (\d+)[,)]", file.read())
            if {name for name, a, b in calls if int(b) == int(a) + 1} == {"in", "out"}:
                return [text]
        return []

    def outcome(self, folder, path):
        for target, texts, element in self.of_lanes if HEADERS[path] else self.of_ports:
            entries = [entry for text in texts for entry in text.entries(text.families, [element])]
            source = "".join(text.source(text.families) for text in texts) + '#include "kernel/two.cpp"\n'
            library = self.kernels.compiled(folder, target, source + "".join(entry for _, entry in entries))
            if library is None:
                return "compiler"
            names = [name for name, _ in entries]
            outcome = self.kernels.judged(library, names)
            if outcome == "survives" and path in CHECKS and not self.refuses(library, names):
                outcome = "refusals"
            if outcome != "survives":
                return outcome
        return outcome

    @staticmethod
    def refuses(library, names):
        script = os.path.join(os.path.dirname(os.path.abspath(__file__)), "refusals.py")
        return subprocess.run([sys.executable, "-B", script, library, *names], stderr=subprocess.DEVNULL, timeout=60,
                              check=False).returncode == 0

    def mutants(self):
        for path in HEADERS:
            with open(os.path.join(self.kernels.tree, path), encoding="utf-8") as file:
                lines = file.read().split("\n")
            for fault in code_faults(lines):
                yield path, fault
