"""Every verb of the generator, in a folder that has nothing of a tree but its tuning: verbs_test.py TREE GENERATE"""
import json
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

TREE, GENERATE = (pathlib.Path(word).resolve() for word in sys.argv[1:3])


class VerbsTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.folder = pathlib.Path(folder.name)
        for tuning in TREE.glob("targets/*/tuning.txt"):
            copy = cls.folder / tuning.relative_to(TREE)
            copy.parent.mkdir(parents=True)
            shutil.copy(tuning, copy)

    def run_verb(self, *words, code=0):
        done = subprocess.run([GENERATE, *words], cwd=self.folder, stdout=subprocess.PIPE, stderr=subprocess.PIPE,
                              text=True, check=False)
        self.assertEqual(done.returncode, code, done.stderr)
        return done.stdout or done.stderr

    def test_write_makes_the_tree_s_files_and_check_finds_what_differs(self):
        said = self.run_verb("write")
        files = [path for path in self.folder.rglob("*") if path.is_file() and path.name != "tuning.txt"]
        self.assertEqual(said, f"{len(files)} files, {len(files)} of them new or changed\n")
        self.assertGreater(len(files), 600)
        for path in files:
            self.assertEqual(path.read_bytes(), (TREE / path.relative_to(self.folder)).read_bytes(), path)

        changed, missing = self.folder / "kernels/complex/dft_8.h", self.folder / "kernels/hartley/dht_5.h"
        lines = changed.read_text().split("\n")
        changed.write_text("\n".join(lines[:9] + ["another"] + lines[10:]))
        missing.unlink()
        (self.folder / "kernels/complex/dft_65.h").write_text("")
        differences = self.run_verb("check", code=1)
        self.assertIn(f"kernels/complex/dft_8.h:10\n  is:     another\n  due is: {lines[9]}\n", differences)
        self.assertIn("kernels/hartley/dht_5.h:1\n  is:     (nothing)\n", differences)
        self.assertIn("dft_65.h", differences)
        self.assertIn("3 files differ. To accept: ", differences)

        self.assertEqual(self.run_verb("write"), f"{len(files)} files, 2 of them new or changed\n")
        self.assertEqual(changed.read_text().split("\n"), lines)
        self.assertTrue(missing.exists())
        self.assertFalse((self.folder / "kernels/complex/dft_65.h").exists())

    def test_show_prints_the_texts(self):
        self.assertEqual(self.run_verb("show", "complex", "8"), (TREE / "kernels/complex/dft_8.h").read_text())
        self.assertEqual(self.run_verb("show", "complex", "8", "pairs"),
                         (TREE / "kernels/complex_pairs/dft_8.h").read_text())
        self.assertEqual(self.run_verb("show", "complex", "8", "rows", code=1), "generate: no form rows of complex 8\n")

    def test_list_and_dot_print_the_graph(self):
        nodes = self.run_verb("list", "complex", "2").splitlines()
        self.assertTrue(any(" + " in node for node in nodes) and any(" - " in node for node in nodes), nodes)
        # A table of factors makes products of two values.
        self.assertRegex(self.run_verb("list", "dct4_output", "2"), r"\w+ \* \w+")
        dot = self.run_verb("dot", "dct4_output", "2")
        self.assertTrue(dot.startswith("digraph"))
        for label in ('"+"', '"-"', '"*"'):
            self.assertIn(label, dot)

    def test_count_and_graphs_have_every_graph(self):
        rows = [row.split(" | ") for row in self.run_verb("count").splitlines()]
        self.assertIn(["complex 2", "0"], [[row[0], row[5]] for row in rows])
        with tempfile.TemporaryDirectory() as folder:
            graphs = pathlib.Path(folder) / "graphs"
            self.assertEqual(self.run_verb("graphs", graphs), f"{len(rows)} graphs\n")
            found = sorted(path.stem for path in graphs.iterdir())
            self.assertEqual(found, sorted(row[0].replace(" ", "_") for row in rows))
            json.loads((graphs / "complex_8.json").read_text())

    def test_wrong_words_are_refused(self):
        usage = self.run_verb(code=2)
        self.assertTrue(usage.startswith("usage: generate write"))
        self.assertEqual(self.run_verb("shows", "complex", "8", code=2), usage)
        self.assertEqual(self.run_verb("write", "all", code=2), usage)
        self.assertEqual(self.run_verb("show", "complex", "65", code=1), "generate: no graph complex 65\n")
        self.assertRegex(self.run_verb("graphs", "/dev/null/here", code=1), r"\Agenerate: [^\n]+\n\Z")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
