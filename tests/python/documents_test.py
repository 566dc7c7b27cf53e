"""The examples of the docstrings and of the README run and print what they say; types are right."""
import contextlib
import doctest
import importlib
import importlib.util
import inspect
import io
import os
import re
import subprocess
import sys
import tempfile
import unittest

import support

import zulgenpx

MODULES = sorted(name[:-3] for name in os.listdir(os.path.join(support.PYTHON, "zulgenpx")) if name.endswith(".py"))


class Documents(unittest.TestCase):
    def test_docstrings(self):
        tried = 0
        for name in MODULES:
            module = importlib.import_module("zulgenpx" if name == "__init__" else f"zulgenpx.{name}")
            failed, attempted = doctest.testmod(module)
            self.assertEqual(failed, 0, name)
            tried += attempted
        self.assertGreater(tried, 30)

    def test_each_name_has_an_example(self):
        for name in zulgenpx.__all__:
            found = getattr(zulgenpx, name)
            self.assertTrue(hasattr(zulgenpx, name))
            if inspect.isfunction(found) or name == "DCT4Plan":
                self.assertIn("Examples\n", found.__doc__, name)

    def test_readme(self):
        with open(os.path.join(support.PYTHON, "README.md"), encoding="utf-8") as file:
            text = file.read()
        blocks = re.findall(r"^```python\n(.*?)^```$", text, re.M | re.S)
        self.assertGreaterEqual(len(blocks), 5)
        for block in blocks:
            printed = io.StringIO()
            with contextlib.redirect_stdout(printed):
                exec(compile(block, "README.md", "exec"), {})
            expected = re.findall(r"# prints (.*)$", block, re.M)
            self.assertTrue(expected, block)
            self.assertEqual(printed.getvalue().splitlines(), expected, block)

    def test_readme_names_the_arguments(self):
        """Each function of the table has the arguments that the table says, with the defaults below it."""
        with open(os.path.join(support.PYTHON, "README.md"), encoding="utf-8") as file:
            text = file.read()
        rows = re.findall(r"^\| `(\w+)\((.*?)\)`(?:, `(\w+)`)?", text, re.M)
        self.assertEqual(sorted(name for row in rows for name in (row[0], row[2]) if name),
                         ["dct4", "fft", "hartley", "ifft", "irfft", "rfft", "wht"])
        defaults = dict(re.findall(r"`(\w+)=([^`]*)`", text.partition("have defaults:")[2].partition(".\n")[0]))
        for first, arguments, second in rows:
            for name in filter(None, (first, second)):
                given = str(inspect.Signature([
                    parameter.replace(annotation=parameter.empty)
                    for parameter in inspect.signature(getattr(zulgenpx, name)).parameters.values()]))
                said = ", ".join(f"{one}={defaults[one]}" if one in defaults else one for one in arguments.split(", "))
                self.assertEqual(given.replace("'", '"'), f"({said})", name)

    def test_release(self):
        with open(os.path.join(support.PYTHON, "pyproject.toml"), encoding="utf-8") as file:
            self.assertIn(f'version = "{zulgenpx.__version__}"\n', file.read())


@unittest.skipUnless(importlib.util.find_spec("mypy"), "mypy is not installed")
class Types(unittest.TestCase):
    def check(self, *arguments):
        with tempfile.TemporaryDirectory(dir=support.FOLDER) as cache:
            done = subprocess.run([sys.executable, "-B", "-m", "mypy", "--strict", "--cache-dir", cache, *arguments],
                                  cwd=support.PYTHON, capture_output=True, text=True, check=False)
        return done.returncode, done.stdout

    def test_sources(self):
        status, output = self.check("zulgenpx", "build_backend.py")
        self.assertEqual(status, 0, output)

    def test_a_caller(self):
        program = ("import numpy as np\nimport zulgenpx\n"
                   "x: np.ndarray = zulgenpx.fft([1.0, 2.0], norm='ortho')\n"
                   "zulgenpx.fft(x, axis='last')\n")
        status, output = self.check("-c", program)
        self.assertNotEqual(status, 0)
        self.assertRegex(output, r'<string>:4: error: Argument "axis" to "fft"')
        self.assertNotIn("py.typed", output)


if __name__ == "__main__":
    unittest.main()
