#!/usr/bin/env python3
"""Compiler launcher that shortens the code of long straight-line routines (x86-64, AT&T syntax).

    short_displacements.py COMPILER ARGUMENTS...    compiles, by way of assembler text
    short_displacements.py --text                   rewrites assembler text from standard input

A displacement of one byte reaches 128 bytes to either side of a register, a longer one takes four. The compiler has one
register for the stack frame, one for the source, one for the destination and one for the constants, and leaves the
others idle. Here idle registers are pointed at windows of 256 bytes beside those, and accesses go by the window that
they fall into. The instructions and their order are the same, in up to 15 % fewer bytes.

Only what is understood is changed: accesses by one register and a number, in a block without labels and jumps, while
that register keeps its value. What no rule covers is left as the compiler wrote it.
"""
import collections
import os
import re
import subprocess
import sys

# Registers for windows. The first need no prefix byte; the others are kept idle by -ffixed-.
PLAIN = ("rsi", "rdi", "rcx", "rdx")
PREFIXED = ("r8", "r9", "r10", "r11")
REACH = 128
LEAST_BLOCK = 100  # instructions; a shorter block gains nothing
LEAST_GAIN = 12    # bytes; each window is one more instruction, of up to 7 bytes
WINDOW_BYTES = 7

ROUTINE = re.compile(r"[A-Za-z_][\w$.]*:$")
LABEL = re.compile(r"\.L\w+:$")
INSTRUCTION = re.compile(r"\t([a-z][a-z0-9]*)(?:\t(.*))?$")
LEAVES_BLOCK = re.compile(r"j|loop|call")
ACCESS = re.compile(r"(?<![\w.:+*-])(-?\d+)?\(%(r[a-z0-9]+)\)")
REGISTER = re.compile(r"%([a-z][a-z0-9]*)")
NEEDS_PREFIX = re.compile(r"xmm(?:[89]|1\d)$|r(?:[89]|1\d)$")
# Instructions that change further registers besides the one they name last, or change another one.
STACK_CHANGES = re.compile(r"push|pop|leave|ret")
HIDDEN_CHANGES = re.compile(r"xchg|xadd|cmpxchg|clt|cqt|rep|stos|lods|cpuid|movs[bwlq]$|i?(?:mul|div)[bwlq]$")


def whole_register(name):
    """The 64-bit register of which a name is a part; other names are returned as they are."""
    if re.fullmatch(r"r\d+[dwb]", name):
        return name[:-1]
    match = re.fullmatch(r"[re]?([abcd])[xlh]|[re]?(si|di|bp|sp)l?", name)
    if match is None:
        return name
    return f"r{match.group(1)}x" if match.group(1) else f"r{match.group(2)}"


def registers_of(lines):
    return {whole_register(name) for line in lines for name in REGISTER.findall(line)}


class Step:
    """One instruction: what it changes, and the access to memory that may be rewritten, if it has one."""

    def __init__(self, line):
        self.line = line
        name, operands = INSTRUCTION.match(line).groups(default="")
        names = REGISTER.findall(operands)
        last = operands.rsplit(",", 1)[-1].strip()
        self.changes = {whole_register(last[1:])} if last.startswith("%") else set()
        is_plain = True
        for pattern, changed in (STACK_CHANGES, {"rsp", "rbp"}), (HIDDEN_CHANGES, {"rax", *PLAIN}):
            if pattern.match(name):
                self.changes |= changed | {whole_register(each) for each in names}
                is_plain = False
        self.needs_prefix = any(NEEDS_PREFIX.match(each) for each in names)
        accesses = ACCESS.findall(operands)
        self.base = self.displacement = None
        if len(accesses) == 1 and operands.count("(") == 1 and is_plain and name != "leaq":
            self.displacement, self.base = int(accesses[0][0] or 0), accesses[0][1]

    def saving(self, register):
        """The bytes that are saved if the access goes by a window's register."""
        return 3 - (register in PREFIXED and not self.needs_prefix) + (self.base == "rsp")

    def by(self, register, displacement):
        return ACCESS.sub(f"{displacement or ''}(%{register})", self.line)


def is_near(displacement):
    return -REACH <= displacement < REACH


def spans_of(steps):
    """[base, first step, far accesses] for each stretch of a block over which a register keeps its value."""
    spans, current = [], {}
    for i, step in enumerate(steps):
        if step.base is not None and not is_near(step.displacement):
            current.setdefault(step.base, [step.base, 0, []])[2].append(step)
        for register in step.changes:
            if register in current:
                spans.append(current[register])
            current[register] = [register, i + 1, []]
    return spans + list(current.values())


def fullest_window(accesses):
    """The middle of the 256 bytes into which most of the accesses fall, and these."""
    counts = collections.Counter(step.displacement for step in accesses)
    def held(first):
        return sum(count for at, count in counts.items() if first <= at < first + 2 * REACH)
    middle = max(sorted(counts), key=held) + REACH
    return middle, [step for step in accesses if is_near(step.displacement - middle)]


def shortened(block, used_elsewhere):
    """The lines of a block, with windows in registers that neither it nor the rest of the routine needs."""
    steps = [Step(line) for line in block]
    spans = spans_of(steps)
    windows = collections.defaultdict(list)  # before which step -> lines
    moved = {}
    used = registers_of(block).union(used_elsewhere, *(step.changes for step in steps))
    for register in (each for each in PLAIN + PREFIXED if each not in used):
        choices = []
        for span in spans:
            if span[2]:
                middle, accesses = fullest_window(span[2])
                choices.append((sum(step.saving(register) for step in accesses) - WINDOW_BYTES, middle, accesses, span))
        gain, middle, accesses, span = max(choices, key=lambda choice: choice[0], default=(0, 0, (), None))
        if gain < LEAST_GAIN:
            break
        base, first, far = span
        windows[first].append(f"\tleaq\t{middle}(%{base}), %{register}")
        moved.update((step, step.by(register, step.displacement - middle)) for step in accesses)
        span[2] = [step for step in far if step not in moved]
    lines = []
    for i, step in enumerate(steps):
        lines += windows[i] + [moved.get(step, step.line)]
    return lines


def has_loop(lines):
    behind = set()
    for line in lines:
        if LABEL.match(line):
            behind.add(line[:-1])
        match = INSTRUCTION.match(line)
        if match and match.group(2) in behind and LEAVES_BLOCK.match(match.group(1)):
            return True
    return False


def routine_shortened(lines):
    """An idle register of a block may still hold a value for what comes after it, or for the next round of a loop."""
    result, block, loops = [], [], has_loop(lines)
    for i, line in enumerate(lines + [""]):
        match = INSTRUCTION.match(line)
        if match and not LEAVES_BLOCK.match(match.group(1)):
            block.append(line)
            continue
        if len(block) >= LEAST_BLOCK:
            before = lines[:i - len(block)] if loops else []
            block = shortened(block, registers_of(before + lines[i:]))
        result += block + [line]
        block = []
    return result[:-1]


def rewritten(text):
    result, routine = [], []
    for line in text.split("\n"):
        routine.append(line)
        if ROUTINE.match(line):
            result += routine
            routine = []
        elif line.startswith("\t.size\t"):
            result += routine_shortened(routine)
            routine = []
    return "\n".join(result + routine)


def main(arguments):
    if arguments == ["--text"]:
        sys.stdout.write(rewritten(sys.stdin.read()))
        return 0
    output = arguments.index("-o") + 1
    made = arguments[output]
    text = made + ".s"
    to_text = list(arguments)
    to_text[arguments.index("-c")] = "-S"
    to_text[output] = text
    try:
        subprocess.run(to_text, check=True)
        with open(text, encoding="utf-8") as file:
            short = rewritten(file.read())
        with open(text, "w", encoding="utf-8") as file:
            file.write(short)
        subprocess.run([arguments[0], "-c", text, "-o", made], check=True)
    except subprocess.CalledProcessError as error:
        return error.returncode
    finally:
        if os.path.exists(text):
            os.remove(text)
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
