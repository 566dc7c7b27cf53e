"""Short displacements: the launcher that compiles the long kernels must not change an instruction or an address.

displacements.py BUILD_FOLDER LAUNCHER

The tests turn its output back into plain accesses, without any of its own rules. The result must be its input, line by
line. They do so with small texts that have what it must leave alone, and with kernels as they are built.
"""
import os
import re
import shlex
import subprocess
import sys
import tempfile
import unittest

BUILD, LAUNCHER = sys.argv[1:3]
KERNELS = ["real_forward/rdft_59", "real_forward/rdft_61", "real_inverse/rdft_47", "real_inverse/rdft_53",
           "hartley/dht_59"]


def rewritten(text):
    return subprocess.run([LAUNCHER, "--text"], input=text, capture_output=True, text=True, check=True).stdout


def taken_back(before, after):
    """`after` without its windows. Fails if the register or the base of a window is changed before its last use."""
    windows, lines, old = {}, [], before.split("\n")
    for line in after.split("\n"):
        window = re.fullmatch(r"\tleaq\t(-?\d+)\(%(\w+)\), %(\w+)", line)
        if window and (len(lines) >= len(old) or old[len(lines)] != line):
            windows[window[3]] = window[2], int(window[1])
            continue
        def plain(match):
            base, middle = windows[match[2]]
            return f"{int(match[1] or 0) + middle or ''}(%{base})"
        for register in windows:
            line = re.sub(rf"(-?\d+)?\(%({register})\)", plain, line)
        lines.append(line)
        changed = re.search(r"[,\t]\s*%(\w+)$", line)
        for register, (base, _) in list(windows.items()):
            if line.endswith(":") or changed and changed[1] in (register, base):
                del windows[register]
    return "\n".join(lines)


def routine(*lines):
    return "\n".join(("f:", *lines, "\tret", "\t.size\tf, .-f", ""))


def far(base, count=120):
    return [f"\tmovsd\t{200 + 8 * (i % 30)}(%{base}), %xmm{i % 16}" for i in range(count)]


class SmallTexts(unittest.TestCase):
    def check(self, text, windows):
        after = rewritten(text)
        self.assertEqual(taken_back(text, after), text)
        added = [line.split(", %")[1] for line in after.split("\n") if line not in text.split("\n") and "leaq" in line]
        self.assertEqual(added, windows)

    def test_far_accesses_go_by_one_window(self):
        self.check(routine(*far("rax")), ["rsi"])

    def test_near_accesses_stay(self):
        self.check(routine(*(f"\tmovsd\t{8 * (i % 16)}(%rax), %xmm1" for i in range(120))), [])

    def test_short_blocks_stay(self):
        self.check(routine(*far("rax", 60)), [])

    def test_a_register_used_in_the_block_is_not_idle(self):
        self.check(routine("\tmovl\t%esi, %eax", *far("rcx")), ["rdi"])

    def test_a_register_used_after_the_block_is_not_idle(self):
        self.check(routine(*far("rax"), "\tje\t.L2", "\tmovb\t%sil, (%rdi)", ".L2:"), ["rcx"])

    def test_a_register_carried_round_a_loop_is_not_idle(self):
        self.check(routine("\txorl\t%esi, %esi", ".L2:", "\taddl\t$1, %esi", "\tjs\t.L3", *far("rax"), "\tjne\t.L2",
                           ".L3:"), ["rdi"])
        self.check(routine("\tmovl\t%esi, %edx", "\tjs\t.L3", *far("rax"), ".L3:"), ["rsi"])

    def test_a_base_that_changes_has_a_window_for_each_value(self):
        for change in ("\taddq\t$512, %rax", "\tmovl\t$0, %eax", "\tpopq\t%rax"):
            self.check(routine(*far("rax", 60), change, *far("rax", 60)), ["rsi", "rdi"])

    def test_registers_changed_without_being_named_are_not_idle(self):
        self.check(routine(*far("rbx", 60), "\tmull\t%r12d", *far("rbx", 60)), ["r8"])

    def test_what_is_not_plain_stays(self):
        for access in ("(%rax,%rbx,8)", "512(%rax,%rbx)", "x+512(%rip)", "%fs:512(%rax)", "x+512(%rax)"):
            self.check(routine(*(f"\tmovsd\t{access}, %xmm1" for _ in range(120))), [])


class Kernels(unittest.TestCase):
    def test_only_the_addressing_is_changed(self):
        for kernel in KERNELS:
            made = f"CMakeFiles/kernels_long.dir/x86_64/kernels/{kernel}.cpp.o"
            commands = subprocess.run(["ninja", "-t", "commands", made], cwd=BUILD, capture_output=True, text=True,
                                      check=True)
            command = shlex.split(commands.stdout.splitlines()[-1])
            command = command[command.index(LAUNCHER) + 1:]
            with self.subTest(kernel), tempfile.TemporaryDirectory() as folder:
                texts, sizes = [os.path.join(folder, name) for name in ("long.s", "short.s")], []
                command[command.index("-o") + 1] = texts[0]
                command[command.index("-c")] = "-S"
                command[command.index("-MF") + 1] = os.path.join(folder, "dependencies")
                subprocess.run(command, cwd=BUILD, check=True)
                with open(texts[0], encoding="utf-8") as file:
                    before = file.read()
                after = rewritten(before)
                self.assertEqual(taken_back(before, after), before)
                with open(texts[1], "w", encoding="utf-8") as file:
                    file.write(after)
                for text in texts:
                    subprocess.run([command[0], "-c", text, "-o", text + ".o"], check=True)
                    report = subprocess.run(["size", text + ".o"], capture_output=True, text=True, check=True).stdout
                    sizes.append(int(report.splitlines()[1].split()[0]))
                self.assertLess(sizes[1], 0.95 * sizes[0])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
