"""The small faults that are put into sources, one at a time: into the texts of transforms, and into all other code.

A fault is a kind, the number of a line and the line that takes its place.

In texts:
    sign       a sum becomes a difference, or a difference a sum
    operands   the operands of a difference are exchanged
    constant   a constant is multiplied by 1 + 2^-40
    factor     a product takes another constant of the text
    slot       an input or an output is that of the next number
    lanes      a shuffle, or a change of signs, has two lanes exchanged or one sign more
    step       a step works on the result of the step before it in place of its own operand
    dropped    an output is not stored

In other code:
    sign        a sum becomes a difference or the other way round, or a minus is left out
    operands    the operands of a difference, two arguments of a call or two members of a list are exchanged
    constant    a number with a fraction is multiplied by 1 + 2^-40
    scale       the second factor of a product is left out
    operation   a product becomes a sum, a quotient a product, a remainder a quotient, a shift goes the other way, "and"
                of bits becomes "or"
    comparison  a comparison includes the equal or excludes it, or "equal" becomes "unequal"
    condition   a condition is negated, or "and" becomes "or"
    index       an integer is greater by one
    name        a name is exchanged for its counterpart: real for imaginary, source for destination
    value       a value of an enumeration, or of a truth, is another one
    status      a status is another one
    dropped     a statement is left out
"""
import re

STATUSES = ["StatusOk", "StatusNullPointer", "StatusSizeError", "StatusFlagError", "StatusPlanKindError"]
COUNTERPARTS = [pair.split() for pair in (
    "re im", "minusRe minusIm", "forward mirrored", "source destination", "inner outer", "first second", "low high",
    "pSrc pDst", "rows radix", "step distance", "in out", "read written", "from to", "isBeside isBehind",
    "rising falling", "innerStart outerStart", "innerEntries outerEntries", "length radix", "a b", "upper lower",
    "sourceStep sourceDistance", "destinationStep destinationDistance", "readElements writtenElements", "widest width",
    "pre post", "owned children", "blockStride rows", "readFalling read", "writeFalling write", "min max",
    "mallocLike callocLike", "longestLength shortestLength", "lowestOrder highestOrder",
    "hookVersion hookMinVersion", "inputStep outputStep", "skewLength length", "kept last", "isFlipped isMinus",
    "srcStep srcDistance", "dstStep dstDistance", "last first", "within across", "innerPoints innerEntries")]
VALUES = [group.split() for group in (
    "true false", "Layout::CCS Layout::Pack Layout::Perm", "Placement::Beside Placement::Behind",
    "PlanKind::Direct2 PlanKind::Direct4 PlanKind::Direct8 PlanKind::Direct16 PlanKind::Direct32 PlanKind::Composite",
    "FoldKind::Points2 FoldKind::Points4 FoldKind::Points8 FoldKind::Points16 FoldKind::Points32 FoldKind::Points64 "
    "FoldKind::Split", "OutputKind::Radix1 OutputKind::Radix2 OutputKind::Radix4 OutputKind::Radix8 "
    "OutputKind::Radix16 OutputKind::Radix32", "CombineKind::Radix2 CombineKind::Radix4 CombineKind::Radix8 "
    "CombineKind::Radix16 CombineKind::Radix32", "DivFwdByN DivInvByN DivBySqrtN NoDivByAny",
    "Factor::inverse Factor::one Factor::inverseRoot", "Family::DFTFwd_CToC Family::DFTInv_CToC",
    "Family::DFTFwd_RToCCS Family::DFTFwd_RToPack Family::DFTFwd_RToPerm",
    "Family::DFTInv_CCSToR Family::DFTInv_PackToR Family::DFTInv_PermToR",
    "ForwardFlags InverseFlags InvolutionFlags", "levelX86_64 levelX86_64_v3")]


def off_by_a_little(number):
    return repr(float(number) * (1 + 2.0 ** -40))


def text_faults(lines):
    """The faults of a text that the generator has written."""
    constants = [n for n, line in enumerate(lines) if re.match(r"\s+[\d.]+(e-?\d+)?,  // c\[", line)]
    for n in constants:
        value = re.match(r"\s+([\d.e-]+),", lines[n]).group(1)
        yield "constant", n, lines[n].replace(value, off_by_a_little(value), 1)
    before = None
    for n, line in enumerate(lines):
        step = re.match(r"(\s+const \w+ (\w+) = )(\w+) ([+-]) (\w+);$", line)
        product = re.match(r"(\s+const \w+ (\w+) = c\[)(\d+)(.*\] \* \w+;)$", line)
        slot = re.match(r"(.*\bio\.\w+\()(\d+)(.*)$", line)
        lanes = re.match(r"(.*\b(?:shuffled|flipped|transposed|blended|mixed)\w*<)([\d, ]+)(>.*)$", line)
        if step:
            head, name, a, sign, b = step.groups()
            yield "sign", n, f"{head}{a} {'-' if sign == '+' else '+'} {b};"
            if sign == "-" and a != b:
                yield "operands", n, f"{head}{b} - {a};"
            if before not in (None, a, b):
                yield "step", n, f"{head}{before} {sign} {b};"
            before = name
        elif product and len(constants) > 1:
            head, name, which, rest = product.groups()
            yield "factor", n, f"{head}{(int(which) + 1) % len(constants)}{rest}"
        elif slot:
            yield "slot", n, f"{slot.group(1)}{int(slot.group(2)) + 1}{slot.group(3)}"
            if re.match(r"\s+io\.\w+\(.*\);$", line):
                yield "dropped", n, ""
        elif lanes:
            numbers = [int(word) for word in lanes.group(2).split(",")]
            if "flipped" in lanes.group(1):
                numbers[0] = 1 - numbers[0]
            elif len(set(numbers)) > 1:
                i, j = next((i, j) for i in range(len(numbers)) for j in range(i) if numbers[i] != numbers[j])
                numbers[i], numbers[j] = numbers[j], numbers[i]
            else:
                continue
            yield "lanes", n, f"{lanes.group(1)}{', '.join(map(str, numbers))}{lanes.group(3)}"


# What a fault replaces: kind, pattern, and what comes in its place.
SIMPLE = r"[\w.]+(?:->\w+)*(?:\(\w*\)|\[\w+\])?"
RULES = [
    ("sign", r"(?<=[\w)\]]) \+ ", " - "), ("sign", r"(?<=[\w)\]]) - ", " + "),
    ("sign", r" \+= ", " -= "), ("sign", r" -= ", " += "),
    ("sign", r"(?<=[(,=?:{\[] )-(?=[\w(])|(?<=[({\[])-(?=[\w(])|(?<=return )-(?=[\w(])", ""),
    ("operands", rf"({SIMPLE}) - ({SIMPLE})(?!\w)", r"\2 - \1"),
    ("operands", rf"(?<=[({{])({SIMPLE}), ({SIMPLE})(?=[)}},])", r"\2, \1"),
    ("operands", rf"(?<=, )({SIMPLE}), ({SIMPLE})(?=[)}},])", r"\2, \1"),
    ("scale", rf"({SIMPLE}|\)) \* {SIMPLE}", r"\1"),
    ("operation", r"(?<=[\w)\]]) \* ", " + "), ("operation", r"(?<=[\w)\]]) / ", " * "),
    ("operation", r"(?<=[\w)\]]) % ", " / "), ("operation", r" << ", " >> "), ("operation", r" >> ", " << "),
    ("operation", r"(?<=[\w)\]]) & ", " | "), ("operation", r"(?<=[\w)\]]) \| ", " & "),
    ("operation", r" \^ ", " & "), ("operation", r" \|= ", " &= "),
    ("comparison", r" < ", " <= "), ("comparison", r" <= ", " < "), ("comparison", r" > ", " >= "),
    ("comparison", r" >= ", " > "), ("comparison", r" == ", " != "), ("comparison", r" != ", " == "),
    ("condition", r" && ", " || "), ("condition", r" \|\| ", " && "),
    ("condition", r"(?<=[( ])!(?=[\w(])", ""),
    ("constant", r"(?<![\w.])(\d+\.\d+(?:e-?\d+)?)(?![\w.])", lambda found: off_by_a_little(found.group(1))),
    ("index", r"(?<![\w.])(\d+)(?![\w.])", lambda found: str(int(found.group(1)) + 1)),
]


# What is defined where mutants are compiled, and what is not.
DEFINED = {"ZULG_GNU_CPP": True, "_WIN32": False}


def is_compiled(lines):
    """Of each line, whether the conditions of the preprocessor that are known let it be compiled."""
    conditions = []  # of the blocks around the line; None is not known
    for line in lines:
        found = re.match(r"#\s*(ifdef|ifndef|if|else|elif|endif)\b\s*(\w*)", line)
        word = found and found.group(1)
        if word in ("ifdef", "ifndef"):
            known = DEFINED.get(found.group(2))
            conditions.append(known if known is None else known == (word == "ifdef"))
        elif word == "if":
            conditions.append(None)
        elif word == "else" and conditions[-1] is not None:
            conditions[-1] = not conditions[-1]
        elif word == "endif":
            conditions.pop()
        yield False not in conditions


def code_of(lines):
    """The lines without their comments, and empty where nothing is to be changed."""
    in_macro = False
    for line, compiled in zip(lines, is_compiled(lines)):
        code = re.sub(r"\s*//.*$", "", line)
        skipped = re.match(r"\s*(#|static_assert|namespace|inline namespace|using |extern template|/\*|template .*\);$|"
                           r"template (Status|void) .*)", code) is not None
        # The lines of a macro: what it makes is counted once, where it is used.
        if in_macro or line.startswith("#"):
            in_macro, skipped = line.endswith("\\"), True
        yield "" if skipped or not compiled else code


def negated(code):
    """The line with the condition of its if, or of its first choice, negated."""
    found = re.search(r"\bif (constexpr )?\(", code)
    if found:
        depth, at = 1, found.end()
        while at < len(code) and depth:
            depth += {"(": 1, ")": -1}.get(code[at], 0)
            at += 1
        if depth == 0:
            yield code[:found.end()] + "!(" + code[found.end():at - 1] + ")" + code[at - 1:]
    choice = re.search(r"((?:return|=|\(|,|:) )?(" + SIMPLE + r"(?:<\w+>)?(?: (?:[<>=!]=?|[%^&]) " + SIMPLE
                       + r")*) \? ", code)
    if choice:
        yield code[:choice.start(2)] + "!(" + choice.group(2) + ")" + code[choice.end(2):]


def code_faults(lines):
    """The faults of a source or header that is written by hand."""
    for n, code in enumerate(code_of(lines)):
        if not code.strip():
            continue
        seen = {code}

        def fault(kind, changed):
            if changed in seen:
                return
            seen.add(changed)
            yield kind, n, changed

        for kind, pattern, replacement in RULES:
            for found in re.finditer(pattern, code):
                changed = found.expand(replacement) if isinstance(replacement, str) else replacement(found)
                yield from fault(kind, code[:found.start()] + changed + code[found.end():])
        for changed in negated(code):
            yield from fault("condition", changed)
        for a, b in COUNTERPARTS:
            for found in re.finditer(rf"(?<!\w)(?:{a}|{b})(?!\w)", code):
                # Not what a declaration calls an argument or a member.
                if re.search(r"[\w>][*&]? $", code[:found.start()]) and not code[:found.start()].endswith("return "):
                    continue
                other = b if found.group() == a else a
                yield from fault("name", code[:found.start()] + other + code[found.end():])
        for group in VALUES:
            for found in re.finditer("|".join(rf"(?<!\w){word}(?!\w)" for word in group), code):
                other = group[(group.index(found.group()) + 1) % len(group)]
                yield from fault("value", code[:found.start()] + other + code[found.end():])
        for found in re.finditer(r"\bStatus[A-Z]\w+", code):
            if found.group() in STATUSES:
                other = STATUSES[(STATUSES.index(found.group()) + 1) % len(STATUSES)]
                yield from fault("status", code[:found.start()] + other + code[found.end():])
        if re.match(r"\s+(?!return|break|using|const|constexpr|case|default|static|template|struct|auto|\[\[|typedef)"
                    r"[\w:*.>\[\]-]+( (=|[-+|]=) |\().*;$", code):
            yield from fault("dropped", re.match(r"\s*", code).group() + ";")
        guarded = re.match(r"(\s+if (?:constexpr )?\(.*\) )([^{]*;)$", code)
        if guarded and not guarded.group(2).startswith("return"):
            yield from fault("dropped", guarded.group(1) + ";")
        elif guarded:
            yield from fault("dropped", re.match(r"\s*", code).group() + ";")
