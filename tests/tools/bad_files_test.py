# Inputs and outputs that are no plain files, or not where or what they should be. What is there stays as it is.
import os
import resource
import stat
import subprocess

import sound_files
import tool
from tool import FAILED, USAGE, ToolTest, content_of, limited, main, run

NUMBERS = b"1 2 3 4 5 6 7 8 " * 8
FORMATS = ("text", "csv", "json", "npy", "png", "svg")


class Files(ToolTest):
    def setUp(self):
        super().setUp()
        self.numbers = self.path("numbers", NUMBERS)
        self.sound = self.path("sound.wav", sound_files.wav([[i * 37 % 1000 for i in range(400)]]))

    def expect(self, arguments, status, says, **more):
        """A run that leaves all files of the folder as they were."""
        before = self.files()
        done = run(*arguments, cwd=self.folder.name, **more)
        message = done.stderr.decode()
        self.assertEqual(done.returncode, status, (arguments, message))
        self.assertRegex(message, tool.ONE_LINE)
        self.assertRegex(message.replace(self.folder.name + "/", ""), "^zulspectrum: .*" + says)
        self.assertEqual(self.files(), before, arguments)

    def files(self):
        found = {}
        for place, folders, names in os.walk(self.folder.name):
            for name in [*folders, *names]:
                path = os.path.join(place, name)
                status = os.lstat(path)
                content = content_of(path) if stat.S_ISREG(status.st_mode) else None
                found[path] = (stat.S_IFMT(status.st_mode), stat.S_IMODE(status.st_mode), status.st_ino, content)
        return found

    def test_inputs(self):
        os.mkdir(self.path("folder"))
        os.symlink("nowhere", self.path("dangling"))
        os.symlink("loop", self.path("loop"))
        os.symlink("folder", self.path("to-folder"))
        os.mkfifo(self.path("pipe"))
        for command in ([], ["transform"], ["spectrogram"], ["inverse"], ["batch"]):
            into = ["--into", "new"] if command == ["batch"] else []
            text = ["--format", "text"] if command == ["inverse"] else []
            for name, says in (("missing", "cannot read missing: No such file or directory"),
                               ("dangling", "cannot read dangling: No such file or directory"),
                               ("missing/a.wav", "cannot read missing/a.wav: No such file"),
                               ("numbers/a.wav", "cannot read numbers/a.wav: "),
                               ("odd\x1b[2J\nname", r"cannot read odd\?\[2J\?name: No such file"),
                               (b"bytes\xff\xfe", r"cannot read bytes\?\?: No such file"),
                               ("x" * 300, "cannot read x+(\\.\\.\\.)?: File name too long")):
                if command == ["batch"] and name in ("x" * 300, "numbers/a.wav", "missing/a.wav"):
                    says = "cannot read "
                self.expect([*command, name, *into, *text], FAILED, says)
            self.expect([*command, "loop", *into, *text], FAILED, "cannot read loop: ")
            if command == ["batch"]:
                self.expect([*command, "folder", *into], FAILED, "there is no file to transform")
                self.expect([*command, "folder", "--match", "*.wav", *into], FAILED, "there is no file to transform")
                continue
            for name in ("folder", "to-folder", ".", "/", "folder/"):
                self.expect([*command, name, *text], FAILED, "cannot read .*(it is a folder|Is a directory)")
            self.expect([*command, "/dev/null", *text], FAILED, "/dev/null: it is empty")
            self.expect([*command, "-", *text], FAILED, "standard input: it is empty")
            if os.geteuid() == 0 and os.path.exists("/proc/self/mem"):
                self.expect([*command, "/proc/self/mem", *text], FAILED,
                            "cannot read /proc/self/mem: Input/output error")
        closed = subprocess.run(["sh", "-c", '"$0" - --length 4 <&-', tool.TOOL], capture_output=True, check=False)
        self.assertEqual((closed.returncode, closed.stderr.decode()),
                         (FAILED, "zulspectrum: cannot read standard input: Bad file descriptor\n"))

    def test_endless_input_that_is_no_sound(self):
        self.expect(["/dev/zero", "--length", "4"], FAILED, "/dev/zero: .*neither a sound file|/dev/zero: ",
                    preexec_fn=limited(resource.RLIMIT_FSIZE, 1 << 24))

    def test_unreadable_and_unwritable(self):
        if os.geteuid() == 0:
            self.skipTest("nothing is forbidden to root")
        os.chmod(self.numbers, 0)
        self.expect([self.numbers], FAILED, "cannot read numbers: Permission denied")

    def test_read_only(self):
        kept = self.path("kept.csv", b"precious")
        os.chmod(kept, 0o444)
        os.mkdir(self.path("closed"), 0o555)
        drop = ["setpriv", "--reuid", "65534", "--clear-groups"] if os.geteuid() == 0 else []
        if drop:
            os.chmod(self.folder.name, 0o777)
        for output, says in ((kept, "cannot write .*kept.csv: Permission denied"),
                             (self.path("closed/new.csv"),
                              r"cannot write .*closed/new.csv: .*\.part: Permission denied")):
            before = self.files()
            # The tool is where others may not look; only it is started by root.
            done = subprocess.run([*drop, "/proc/self/fd/%d" % self.tool_file(), "-", "--length", "4", "--output",
                                   output],
                                  input=NUMBERS, capture_output=True, check=False, pass_fds=[self.tool_file()],
                                  env={**os.environ, "LD_LIBRARY_PATH": os.path.dirname(tool.TOOL)})
            self.assertEqual(self.files(), before)
            if b"error while loading" in done.stderr or b"setpriv" in done.stderr:
                self.skipTest(done.stderr.decode())
            self.assertEqual(done.returncode, FAILED)
            self.assertRegex(done.stderr.decode(), says)

    def tool_file(self):
        if not hasattr(self, "opened"):
            self.opened = os.open(tool.TOOL, os.O_RDONLY)
            self.addCleanup(os.close, self.opened)
        return self.opened

    def test_outputs(self):
        os.mkdir(self.path("folder"))
        os.mkdir(self.path("folder.csv"))
        for words in (["transform", self.sound], ["spectrogram", self.sound], ["-"]):
            given = NUMBERS if words == ["-"] else None
            for output, says in (("no/such.csv", r"cannot write no/such.csv: no/\.such\.csv\.part: No such file"),
                                 ("numbers/a.csv", "cannot write numbers/a.csv: .*Not a directory"),
                                 ("folder", "cannot write folder: it is a folder"),
                                 ("folder.csv", "cannot write folder.csv: it is a folder"),
                                 (".", "cannot write .: it is a folder"),
                                 ("folder/", "cannot write folder/: it is a folder"),
                                 ("/proc/new.csv", "cannot write /proc/new.csv: "),
                                 ("y" * 300 + ".csv", "cannot write y+.*: .*File name too long"),
                                 ("no/\x1b[2J.csv", r"cannot write no/\?\[2J.csv: ")):
                self.expect([*words, "--format", "csv", "--length", "4", "--output", output], FAILED, says,
                            **({"given": given} if given else {}))
        os.symlink("nowhere/file.csv", self.path("dangling"))
        self.expect([self.sound, "--output", "dangling", "--format", "csv"], FAILED, "cannot write dangling: ")

    def test_links_stay_links(self):
        kept = self.path("kept.csv", b"earlier")
        os.symlink("kept.csv", self.path("link.csv"))
        self.ok(self.sound, "--length", "4", "--output", self.path("link.csv"))
        self.assertTrue(os.path.islink(self.path("link.csv")))
        self.assertTrue(content_of(kept).startswith(b"frame,"))
        os.chmod(kept, 0o640)
        self.ok(self.sound, "--length", "4", "--output", kept)
        self.assertEqual(stat.S_IMODE(os.stat(kept).st_mode), 0o640)

    def test_input_as_output(self):
        os.symlink("sound.wav", self.path("link"))
        os.link(self.sound, self.path("hard"))
        os.mkdir(self.path("folder"))
        for output in ("sound.wav", "link", "hard", "./sound.wav", "folder/../sound.wav", self.sound):
            for name in ("sound.wav", "link", "hard"):
                for command in ("transform", "spectrogram"):
                    self.expect([command, name, "--format", "csv", "--output", output], USAGE,
                                r"--output .*: that is the input itself, (sound.wav|link|hard)$")
        with open(self.sound, "rb") as stdin:
            self.expect(["-", "--format", "csv", "--output", "hard"], USAGE,
                        "--output hard: that is the input itself, standard input$", stdin=stdin)
        for mode in ("ab", "r+b"):
            with open(self.sound, mode) as stdout:
                self.expect([self.sound, "--format", "csv"], USAGE,
                            "standard output: that is the input itself, sound.wav$", stdout=stdout)
        csv = self.ok(self.sound, "--length", "4", "--format", "csv")
        table = self.path("table.csv", csv)
        self.expect(["inverse", table, "--length", "4", "--format", "text", "--output", table], USAGE,
                    "the input itself")
        with open(table, "ab") as stdout:
            self.expect(["inverse", table, "--length", "4", "--format", "text"], USAGE, "the input itself",
                        stdout=stdout)
        for command in ('"$0" numbers --length 4 >> numbers', '"$0" - --length 4 < numbers >> numbers'):
            before = self.files()
            done = subprocess.run(["sh", "-c", command, tool.TOOL], cwd=self.folder.name, capture_output=True,
                                  check=False)
            self.assertEqual((done.returncode, self.files()), (USAGE, before))
            self.assertRegex(done.stderr.decode(), "standard output: that is the input itself")

    def test_full_disk(self):
        table = self.path("table.csv", self.ok(self.sound, "--length", "4", "--format", "csv"))
        runs = [[self.sound, "--format", name] for name in FORMATS]
        runs += [["spectrogram", self.sound, "--format", name] for name in FORMATS]
        runs += [["inverse", table, "--length", "4", "--format", "text"], ["completion", "bash"], ["manual"]]
        for words in runs:
            self.expect([*words, "--output", "/dev/full"], FAILED, "cannot write /dev/full: No space left on device$")
        runs += [["layout", "8"], ["layout", "8", "--json"], ["info"], ["info", "--list"], ["info", "zulgWHT_64f"],
                 [self.sound, "--check"], [self.sound, "--check", "--json"], ["--help"], ["--version"],
                 ["inverse", "--help"],
                 ["bench", "--lengths", "4", "--time", "1e-5", "--json"]]
        for words in runs:
            with open("/dev/full", "wb") as full:
                self.expect(words, FAILED, "cannot write standard output", stdout=full)

    def test_file_that_may_not_grow(self):
        limit = limited(resource.RLIMIT_FSIZE, 2000)
        kept = self.path("kept", b"precious")
        table = self.path("table.csv", self.ok(self.sound, "--length", "4", "--format", "csv"))
        for name in FORMATS:
            self.expect([self.sound, "--length", "4", "--format", name, "--output", kept], FAILED,
                        "cannot write kept: File too large", preexec_fn=limit)
        for name in ("text", "wav"):
            self.expect(["inverse", table, "--length", "4", "--encoding", "double", "--format", name, "--output", kept]
                        if name == "wav" else ["inverse", table, "--length", "4", "--format", name, "--output", kept],
                        FAILED, "cannot write kept: ", preexec_fn=limit)

    def test_pipes(self):
        for name in ("wav", "flac"):
            table = self.path("table.csv", self.ok(self.sound, "--length", "4", "--format", "csv"))
            self.expect(["inverse", table, "--length", "4", "--format", name], USAGE,
                        "a sound cannot go to a pipe; name a file")
        self.expect(["-", "--length", "4", "--format", "npy"], FAILED, "cannot be written to a pipe", given=NUMBERS)
        # A reader that goes away ends the run without a word, as with other programs.
        done = subprocess.run(["sh", "-c", 'yes 1 | "$0" - --length 4 | head -n 1',
                               tool.TOOL], capture_output=True, check=False, timeout=60,
                              preexec_fn=limited(resource.RLIMIT_FSIZE, 1 << 22))
        self.assertEqual(done.stdout, b"# standard input\n")

    def test_batch_folders(self):
        for into, says in (("numbers", "cannot write numbers/"), ("numbers/out", "Not a directory"),
                           ("/proc/new", "cannot write /proc/new")):
            self.expect(["batch", self.sound, "--into", into], FAILED, says)
        os.makedirs(self.path("in/a"))
        for name in ("in/a/x.wav", "in/x.wav"):
            os.link(self.sound, self.path(name))
        self.expect(["batch", "in/x.wav", "in/a/x.wav", "--into", "out"], FAILED,
                    "two inputs would have one output: in/(a/)?x.wav and in/(a/)?x.wav")


if __name__ == "__main__":
    main()
