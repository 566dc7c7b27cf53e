# The command layout, against the rules of the layouts and against what the library fills in.
import os
import random
import re

from definitions import LENGTHS, dft, library, transformed
from tool import ToolTest, main, run


def layout_rule(n):
    """What each slot holds, by layout."""
    middle, even = "R%d" % (n // 2), n % 2 == 0
    ccs = {0: "R0", 1: "0"} | ({n: middle, n + 1: "0"} if even else {})
    pack = {0: "R0"} | ({n - 1: middle} if even else {})
    perm = {0: "R0"} | ({1: middle} if even else {})
    for k in range(1, (n + 1) // 2):
        for layout, real in ((ccs, 2 * k), (pack, 2 * k - 1), (perm, 2 * k if even else 2 * k - 1)):
            layout |= {real: "R%d" % k, real + 1: "I%d" % k}
    return {"CCS": ccs, "Pack": pack, "Perm": perm}


class Layouts(ToolTest):
    def layouts(self, n):
        """What each slot holds, by layout, read as a person does: the number of a slot is above it."""
        found = {"CCS": {}, "Pack": {}, "Perm": {}}
        for line in self.ok("layout", n).decode().split("\n"):
            self.assertLessEqual(len(line), 80)
            self.assertEqual(line, line.rstrip())
            if not line:
                continue
            name, *cells = re.finditer(r"\S+", line)
            if name[0] == "slot":
                numbers_above = {cell.start(): int(cell[0]) for cell in cells}
                continue
            for cell in cells:
                slot = numbers_above[cell.start()]
                self.assertNotIn(slot, found[name[0]])
                found[name[0]][slot] = cell[0]
        return found

    def test_short_length(self):
        self.assertEqual(self.ok("layout", 4), b"slot  0   1   2   3   4   5\n"
                                               b"CCS   R0  0   R1  I1  R2  0\n"
                                               b"Pack  R0  R1  I1  R2\n"
                                               b"Perm  R0  R2  R1  I1\n")

    def test_every_length_is_as_the_rule_says(self):
        for n in LENGTHS:
            rule = layout_rule(n)
            self.assertEqual(self.layouts(n), rule, n)
            self.assertEqual([sorted(layout) for layout in rule.values()],
                             [list(range(count)) for count in (n // 2 * 2 + 2, n, n)])

    def test_library_fills_the_slots_as_the_layout_says(self):
        source, compared = random.Random(4), 0
        for n in LENGTHS:
            samples = [source.uniform(-1, 1) for _ in range(n)]
            bins = dft(samples)
            for name, slots in self.layouts(n).items():
                values = transformed("zulgDFTFwd_RTo%s_64f" % name, samples, n)
                for slot, held in slots.items() if values else ():
                    if held == "0":
                        self.assertEqual(str(values[slot]), "0.0", (n, name, slot))
                        continue
                    due = bins[int(held[1:])]
                    self.assertAlmostEqual(values[slot], due.real if held[0] == "R" else due.imag, delta=1e-13)
                    compared += 1
        self.assertGreater(compared, 1000)

    def test_refusals(self):
        for word in ("65", "1", "0", "-4"):
            self.refused("layout", word, says=["layout " + word, "2 to 64"])
        for word in ("many", "4.5", "99999999999999"):
            self.refused("layout", word, says=["N", word])
        self.refused("layout", says="N is required")
        self.refused("layout", "4", "5", says="5")
        self.refused("layout", "4", "--check", says="--check")
        self.refused("--length", "8", "layout", "4", says=["layout", "first word", "./layout"])
        self.refused("-", "layout", "4", says=["layout", "first word", "./layout"], given=b"1 2 3 4 " * 16)
        with open("/dev/full", "wb") as full:
            self.refused("layout", "8", stdout=full, says="cannot write standard output")

    def test_files_of_the_name_layout(self):
        folder = self.folder.name
        self.path("layout", b"1 2 3 4")
        done = run("./layout", "--length", 4, "--output", "layout", cwd=folder)
        self.assertEqual(done.returncode, 2)
        self.assertIn(b"--output layout: that is the input itself", done.stderr)
        done = run("-", "--length", 4, "--format", "csv", "--output", "layout", given=b"1 2 3 4", cwd=folder)
        self.assertEqual((done.returncode, done.stderr), (0, b""))
        with open(os.path.join(folder, "layout"), "rb") as file:
            self.assertTrue(file.read().startswith(b"frame,"))

    def test_help(self):
        text = self.ok("layout", "--help").decode()
        for word in ("2 to 64", "R3", "I3"):
            self.assertIn(word, text)


if __name__ == "__main__":
    main()
