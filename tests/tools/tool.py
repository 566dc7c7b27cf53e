# What the tests of zulspectrum have in common: running the tool, and saying what is expected of a run. A test file is
# run as python3 FILE PATH-OF-THE-TOOL, with the arguments of unittest after it.
import csv
import io
import os
import pty
import re
import resource
import subprocess
import sys
import tempfile
import unittest

sys.dont_write_bytecode = True  # the tree stays clean

# What a sanitizer asks of this process is not for runs of the tool. There it leaves signals as they are.
IS_WATCHED = bool(os.environ.pop("LD_PRELOAD", ""))
if IS_WATCHED:
    os.environ["ASAN_OPTIONS"] = "handle_segv=0"

TOOL = os.path.abspath(sys.argv.pop(1)) if len(sys.argv) > 1 else ""
FAILED, USAGE, DAMAGED = 1, 2, 3  # the exit statuses of runs that do not succeed
# One line without control characters, whatever the input holds, and without what turns the direction of writing.
ONE_LINE = re.compile(r"\Azulspectrum: [^\x00-\x1f\x7f-\x9f\u2028-\u202e\u2066-\u2069]+\n\Z")


def run(*arguments, given=None, **more):
    if given is None:
        more.setdefault("stdin", subprocess.DEVNULL)
    else:
        more["input"] = given
    more = {"stdout": subprocess.PIPE, "stderr": subprocess.PIPE, "timeout": 120, **more}
    return subprocess.run([TOOL, *(word if isinstance(word, bytes) else str(word) for word in arguments)], check=False,
                          **more)


def start(*arguments, **more):
    """A run that goes on beside the test."""
    more = {"stdin": subprocess.DEVNULL, "stdout": subprocess.PIPE, "stderr": subprocess.PIPE, **more}
    return subprocess.Popen([TOOL, *map(str, arguments)], **more)


def limited(kind, most):
    """What subprocess calls so that a run has a limit. The run could raise it again, as the measure of coverage does to
    write its counters. A sanitizer maps more memory than there is, and takes no limit of that."""
    if IS_WATCHED and kind == resource.RLIMIT_AS:
        return None
    return lambda: resource.setrlimit(kind, (most, resource.getrlimit(kind)[1]))


def numbers(values):
    return "\n".join(map(repr, values)).encode()


def rows_of(text):
    """CSV output as a list of dictionaries."""
    return list(csv.DictReader(io.StringIO(text.decode())))


def content_of(path):
    with open(path, "rb") as file:
        return file.read()


def open_terminal(test):
    """A pseudo-terminal's two ends; without /dev/pts, as in a bare changed root, there is none to test with."""
    try:
        return pty.openpty()
    except OSError as error:
        return test.skipTest(f"no pseudo-terminal on this machine: {error}")


class ToolTest(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)

    def path(self, name, content=None):
        path = os.path.join(self.folder.name, name)
        if content is not None:
            with open(path, "wb") as file:
                file.write(content)
        return path

    def ok(self, *arguments, given=None):
        done = run(*arguments, given=given)
        self.assertEqual((done.returncode, done.stderr), (0, b""), arguments)
        return done.stdout

    def table(self, *arguments, given=None):
        """CSV output as a list of dictionaries."""
        text = self.ok(*arguments, "--format", "csv", given=given)
        self.assertTrue(text.endswith(b"\n"))
        return rows_of(text)

    def refused(self, *arguments, says, given=None, **more):
        done = run(*arguments, given=given, **more)
        line = done.stderr.decode()
        self.assertIn(done.returncode, (FAILED, USAGE, DAMAGED), (arguments, line))
        self.assertRegex(line, ONE_LINE)
        for word in [says] if isinstance(says, str) else says:
            self.assertIn(word, line)
        return line


def main():
    unittest.main(module="__main__")
