# Options and messages of the plain run.
import ctypes
import math
import os
import resource
import select
import subprocess
import time

from definitions import ALL_FAMILIES, library
import sound_files
from tool import TOOL, ToolTest, content_of, limited, main, numbers, open_terminal, run


class Options(ToolTest):
    def test_help_and_version(self):
        text = self.ok("--help").decode()
        for family in ALL_FAMILIES:
            self.assertIn(family + " is the ", text)
        for word in ("--length", "--order", "--family", "--flag", "--hop", "--window", "--channel", "--precision",
                     "--format", "--output", "--check", "--version", "filled up with zeros", "layout"):
            self.assertIn(word, text)

        class Version(ctypes.Structure):
            _fields_ = [(name, ctypes.c_int32) for name in ("major", "minor", "major_build", "build")] + [
                ("cpu", ctypes.c_char * 4), ("name", ctypes.c_char_p), ("version", ctypes.c_char_p),
                ("date", ctypes.c_char_p)]
        ask = library().zulgenGetLibVersion
        ask.restype = ctypes.POINTER(Version)
        version = ask().contents
        text = self.ok("--version").decode()
        for word in (version.name.decode(), version.version.decode(), version.date.decode(), version.cpu.decode(),
                     "%d.%d.%d.%d" % (version.major, version.minor, version.major_build, version.build)):
            self.assertIn(word, text)

    def test_format_follows_the_suffix(self):
        for name, start in (("a.txt", b"# standard input"), ("a.csv", b"frame,"), ("a.png", b"\x89PNG"), ("a", b"# ")):
            path = self.path(name)
            self.assertEqual(self.ok("-", "--length", 4, "--output", path, given=b"1 2 3 4"), b"")
            with open(path, "rb") as file:
                self.assertTrue(file.read().startswith(start), name)
        path = self.path("b.png")
        self.ok("-", "--length", 4, "--format", "csv", "--output", path, given=b"1 2 3 4")
        with open(path, "rb") as file:
            self.assertTrue(file.read().startswith(b"frame,"))

    def test_progress_only_on_a_terminal(self):
        ours, theirs = open_terminal(self)
        tool = subprocess.Popen([TOOL, "-", "--length", "2", "--output", "/dev/null"], stdin=subprocess.PIPE,
                                stderr=theirs)
        os.close(theirs)
        time.sleep(1.2)
        tool.communicate(b"0.5 " * 300000, timeout=60)
        text = b""
        while select.select([ours], [], [], 0.2)[0]:
            try:
                text += os.read(ours, 4096)
            except OSError:  # the other end is closed
                break
        os.close(ours)
        self.assertEqual(tool.returncode, 0)
        self.assertRegex(text, rb"\rzulspectrum: \d+ samples")
        self.assertTrue(text.endswith(b"\r\x1b[K"))
        self.assertNotIn(b"\n", text)


class Errors(ToolTest):
    def test_command_line(self):
        for arguments, says in (
                ([], "INPUT"),
                (["-", "--nonsense"], "--nonsense"),
                (["-", "second"], "second"),
                (["-", "--length"], "--length"),
                (["-", "--length", "many"], ["--length", "many"]),
                (["-", "--length", "65"], ["--length 65", "no transform of this length", "64"]),
                (["-", "--length", "0"], ["--length 0", "no transform of this length"]),
                (["-", "--length", "-4"], ["--length -4", "no transform of this length"]),
                (["-", "--length", "99999999999999"], "--length"),
                (["-", "--family", "fancy"], ["--family fancy", "no such family", *ALL_FAMILIES]),
                (["-", "--flag", "3"], ["--flag 3", "none of 1, 2, 4, 8"]),
                (["-", "--flag", "0"], ["--flag 0", "none of 1, 2, 4, 8"]),
                (["-", "--flag", "sideways"], ["--flag sideways", "backward"]),
                (["-", "--flag", "2x"], "--flag 2x"),
                (["-", "--hop", "0"], "--hop"),
                (["-", "--window", "door"], ["--window", "door"]),
                (["-", "--channel", "0"], "--channel"),
                (["-", "--channel", "2"], ["--channel 2", "only channel 1"]),
                (["-", "--precision", "16"], ["--precision", "16"]),
                (["-", "--format", "gif"], ["--format", "gif"]),
                (["-", "--output", "x.gif"], ["x.gif", "--format"])):
            self.refused(*arguments, given=b"1 2 3 4 " * 100, says=says)
        self.assertFalse(os.path.exists("x.gif"))

    def test_unreadable_input(self):
        self.refused(self.path("missing.wav"), says=["cannot read", "missing.wav", "No such file"])
        self.refused(self.folder.name, says=["cannot read", "folder"])
        self.refused(self.path("odd\nname"), says="odd?name")
        if os.geteuid() != 0:
            path = self.path("locked.wav", b"1 2 3")
            os.chmod(path, 0)
            self.refused(path, says=["cannot read", "Permission denied"])

    def test_unsupported_input(self):
        for content in (bytes(range(256)) * 8, b"\x7fELF" + bytes(200)):
            self.refused(self.path("strange.wav", content), says=["strange.wav", "neither a sound file"])

    def test_wrong_numbers_are_reported_with_their_line(self):
        path = self.path("numbers.txt", b"1 2\n# three\n\n3 4, five 6\n")
        self.refused(path, "--length", 2, says=["numbers.txt, line 4: 'five' is not a number"])
        for word in ("0x10", "1.5.2", "nan", "inf", "--1", "+-1", "1e", "+", "\x01\x02", "x" * 2000, "é"):
            line = self.refused("-", "--length", 2, given=("1\n2\n" + word).encode(), says=["line 3", "not a number"])
            self.assertLess(len(line), 150)
        for word in ("1e999", "7" * 2000):
            self.refused("-", "--length", 2, given=b"1 " + word.encode(),
                         says=["line 1: '" + word[:40], "beyond the range"])

    def test_too_few_samples(self):
        self.refused("-", "--length", 16, given=b"", says="standard input: it is empty")
        self.refused("-", "--length", 16, given=b"# nothing", says=["too few samples: 0", "takes 16"])
        self.refused("-", "--length", 16, given=b"1 2 3", says=["too few samples: 3", "takes 16"])
        self.refused(self.path("empty"), says="No such file")
        self.refused(self.path("empty", b""), says="empty: it is empty")
        self.refused(self.path("short.wav", sound_files.wav([[1] * 63])), says=["short.wav", "too few samples: 63"])

    def test_channels(self):
        path = self.path("mono.wav", sound_files.wav([[1] * 100]))
        self.refused(path, "--channel", 2, says=["--channel 2", "mono.wav has 1 channel"])

    def test_damaged_sound_is_refused(self):
        data = sound_files.flac([round(9000 * math.sin(i)) for i in range(2048)])
        self.refused(self.path("cut.flac", data[:len(data) // 2]),
        says=["cut.flac", "damaged", "samples that are good: 768"])

    def test_output_that_cannot_be_written(self):
        given = b"1 2 3 4 " * 64
        self.refused("-", "--output", self.path("no/such.csv"), given=given, says=["cannot write", "No such file"])
        self.refused("-", "--output", self.folder.name, "--format", "csv", given=given, says="cannot write")

    def test_full_disk(self):
        given = b"1 2 3 4 " * 64
        for format_name in ("text", "csv", "png"):
            self.refused("-", "--format", format_name, "--output", "/dev/full", given=given,
                         says="cannot write /dev/full: No space left on device")
            with open("/dev/full", "wb") as full:
                self.refused("-", "--format", format_name, given=given, stdout=full,
                             says="cannot write standard output: No space left on device")
        for arguments in (["-", "--check"], ["--help"], ["--version"]):
            with open("/dev/full", "wb") as full:
                self.refused(*arguments, given=given, stdout=full, says="cannot write standard output")

    def test_a_sound_that_may_not_grow(self):
        table = self.path("table.csv", self.ok("-", "--length", "4", "--format", "csv", given=b"1 2 3 4 " * 20000))
        path = self.path("out.wav", b"precious")
        self.refused("inverse", table, "--length", "4", "--rate", "8000", "--output", path,
                     preexec_fn=limited(resource.RLIMIT_FSIZE, 20000),
                     says=["cannot write", "out.wav: System error : File too large"])
        self.assertEqual(content_of(path), b"precious")

    def test_files_survive_a_refused_run(self):
        path = self.path("kept.csv", b"precious")
        self.refused("-", "--output", path, given=b"1 2", says="too few")
        self.refused("-", "--length", 65, "--output", path, given=b"1 2", says="--length 65")
        with open(path, "rb") as file:
            self.assertEqual(file.read(), b"precious")
        path = self.path("input.txt", b"1 2 3 4")
        self.refused(path, "--length", 4, "--output", path, says="that is the input itself")

    def test_picture_is_not_sent_to_a_terminal(self):
        ours, theirs = open_terminal(self)
        self.refused("-", "--format", "png", given=b"1 2 3 4 " * 64, stdout=theirs, says=["terminal", "--output"])
        os.close(theirs)
        os.close(ours)


if __name__ == "__main__":
    main()
