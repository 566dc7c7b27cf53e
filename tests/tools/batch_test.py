# Runs over many files: the outputs are those of single runs, and what goes wrong with one file is told and stops no
# other.
import json
import os
import random
import signal
import time

import libsndfile
import sound_files
from tool import DAMAGED, FAILED, USAGE, ToolTest, content_of, main, open_terminal, run, start

SUFFIXES = {"text": ".txt", "csv": ".csv", "json": ".json", "npy": ".npy", "png": ".png", "svg": ".svg"}


def children_of(process):
    with open(f"/proc/{process.pid}/task/{process.pid}/children", encoding="ascii") as file:
        return [int(word) for word in file.read().split()]


def wait_for(condition):
    for _ in range(2000):
        found = condition()
        if found:
            return found
        time.sleep(0.01)
    raise AssertionError("it does not happen")


class BatchTest(ToolTest):
    def setUp(self):
        super().setUp()
        self.inputs = self.path("in")
        self.out = self.path("out")
        os.makedirs(os.path.join(self.inputs, "deep", "deeper"))

    def add(self, name, content):
        path = os.path.join(self.inputs, name)
        with open(path, "wb") as file:
            file.write(content)
        return path

    def add_some(self, count, samples=300):
        noise = random.Random(count)
        return [self.add(f"{i:03}.wav", sound_files.wav([[noise.randrange(-9000, 9000) for _ in range(samples + i)]]))
                for i in range(count)]

    def batch(self, *options, status=0, **more):
        done = run("batch", self.inputs, "--into", self.out, *options, "--json", **more)
        self.assertEqual(done.returncode, status, done.stderr)
        return json.loads(done.stdout)

    def output(self, name, suffix=".csv"):
        return content_of(os.path.join(self.out, name + suffix))

    def expect_outputs(self, names, suffix=".csv", *options):
        """Each output is that of a single run, and there is nothing else."""
        found = {os.path.relpath(os.path.join(place, name), self.out)
                 for place, _, files in os.walk(self.out) for name in files}
        self.assertEqual(found, {name + suffix for name in names} | {".zulspectrum-batch.jsonl"})
        for name in names:
            self.assertEqual(self.output(name, suffix), self.single(name, suffix, *options), name)

    def single(self, name, suffix, *options):
        path = self.path("single" + suffix)
        command = "spectrogram" if suffix in (".png", ".svg") else "transform"
        self.ok(command, os.path.join(self.inputs, name), *options, "--output", path)
        return content_of(path)


class Batches(BatchTest):
    def test_outputs_are_those_of_single_runs(self):
        self.add_some(5)
        self.add("numbers.txt", b"1 2 3 4 " * 40)
        self.add("deep/numbers", b"4 3 2 1 " * 40)
        self.add("deep/deeper/a b\u00e9.flac",
                 sound_files.flac([i % 99 for i in range(512)]))
        libsndfile.write(os.path.join(self.inputs, "deep", "tone.ogg"), [[0.1, -0.1] * 4000], "ogg", "vorbis")
        self.add(".hidden.wav", b"nothing")
        names = [f"{i:03}.wav" for i in range(5)] + ["numbers.txt", "deep/numbers", "deep/deeper/a b\u00e9.flac",
                                                     "deep/tone.ogg"]
        options = ["--length", "30", "--hop", "11", "--window", "hann", "--family", "real"]
        for format_name, suffix in SUFFIXES.items():
            for jobs in (1, 2, 5):
                if jobs != 2 and format_name in ("text", "svg"):
                    continue
                summary = self.batch("--format", format_name, "--jobs", jobs, "--again", *options)
                self.assertEqual((summary["files"], summary["done"], summary["failed"]), (9, 9, []))
                self.expect_outputs(names, suffix, *options)
                for place, _, files in os.walk(self.out):
                    for name in files:
                        os.unlink(os.path.join(place, name))

    def test_failing_and_damaged_files_do_not_stop_the_rest(self):
        whole = content_of(self.add_some(3)[2])
        self.add("bad.txt", b"1 2 x")
        self.add("cut.wav", whole[:-50])
        self.add("zero.wav", b"")
        done = run("batch", self.inputs, "--into", self.out, "--format", "csv", "--jobs", "2", "--length", "4")
        self.assertEqual(done.returncode, FAILED)
        lines = done.stderr.decode().splitlines()
        self.assertEqual(len(lines), 3)
        for name, says in (("bad.txt", "line 1: 'x' is not a number"), ("cut.wav", "the file is damaged: "),
                           ("zero.wav", "it is empty")):
            line, = [line for line in lines if line.startswith(f"zulspectrum: {name} failed: ")]
            self.assertIn(says, line)
        self.assertRegex(done.stdout.decode(), r"files +6\ndone +3 now, 0 before\nfailed +3\n")
        self.expect_outputs(["000.wav", "001.wav", "002.wav"], ".csv", "--length", "4")
        summary = self.batch("--format", "csv", "--length", "4", status=FAILED)
        self.assertEqual((summary["done"], summary["done_before"], len(summary["failed"])), (0, 3, 3))
        os.unlink(os.path.join(self.inputs, "bad.txt"))
        os.unlink(os.path.join(self.inputs, "zero.wav"))
        summary = self.batch("--format", "csv", "--length", "4", status=DAMAGED)
        self.assertEqual([(line["file"], line["status"]) for line in summary["failed"]], [("cut.wav", DAMAGED)])
        summary = self.batch("--format", "csv", "--length", "4", "--allow-damaged", "--again")
        self.assertEqual([line["file"] for line in summary["damaged"]], ["cut.wav"])
        done = run("batch", self.inputs, "--into", self.out, "--format", "csv", "--length", "4", "--allow-damaged",
                   "--again")
        self.assertRegex(done.stderr, rb"(?m)^zulspectrum: .*cut\.wav: the file is damaged: ")

    def test_progress_on_a_terminal(self):
        self.add_some(3)
        ours, theirs = open_terminal(self)
        tool = start("batch", self.inputs, "--into", self.out, "--format", "csv", "--length", "4", stderr=theirs)
        os.close(theirs)
        self.assertEqual(tool.wait(60), 0)
        text = os.read(ours, 65536).decode()
        os.close(ours)
        self.assertRegex(text, r"zulspectrum: \d of 3 files, 0 failed\x1b\[K")
        self.assertTrue(text.endswith("\r\x1b[K"), text)

    def test_a_worker_that_is_killed_is_one_failed_file(self):
        self.add_some(4)
        pipe = self.path("pipe")
        os.mkfifo(pipe)
        for how, word in ((signal.SIGKILL, "Killed"), (signal.SIGSEGV, "Segmentation fault")):
            for jobs in (1, 2):
                tool = start("batch", pipe, self.inputs, "--into", self.out, "--format", "csv", "--jobs", jobs,
                             "--json", "--again")
                # The names are in order, so that the pipe comes last, and the others are done when it is read.
                wait_for(lambda: os.path.exists(os.path.join(self.out, "003.wav.csv")))
                feeder = os.open(pipe, os.O_WRONLY)  # waits for the reader
                os.write(feeder, b"1 2 3 4 " * 64)
                victim, = wait_for(lambda: [child for child in children_of(tool) if self.reads(child, pipe)])
                os.kill(victim, how)
                out, message = tool.communicate(timeout=60)
                os.close(feeder)
                summary = json.loads(out)
                self.assertEqual((tool.returncode, summary["done"], len(summary["failed"])), (FAILED, 4, 1), message)
                self.assertEqual(summary["failed"][0]["file"], "pipe")
                self.assertIn("its process was ended by a signal: " + word, summary["failed"][0]["message"])
                self.expect_outputs([f"{i:03}.wav" for i in range(4)])
                for name in os.listdir(self.out):
                    os.unlink(os.path.join(self.out, name))

    def test_each_channel_has_its_own_output(self):
        noise = random.Random(3)
        for name, count in (("one", 1), ("two", 2), ("deep/six", 6)):
            waves = [[noise.uniform(-1, 1) for _ in range(200)] for _ in range(count)]
            libsndfile.write(os.path.join(self.inputs, name + ".wav"), waves, "wav", "pcm24")
        self.add("broken.wav", b"RIFF")
        os.mkfifo(os.path.join(self.inputs, "pipe"))
        options = ["--channel", "each", "--format", "csv", "--length", "8"]
        summary = self.batch(*options, status=DAMAGED)
        self.assertEqual((summary["files"], summary["done"]), (10, 9))
        self.assertEqual([failure["file"] for failure in summary["failed"]], ["broken.wav"])
        for name, count in (("one", 1), ("two", 2), ("deep/six", 6)):
            for number in range(1, count + 1):
                words = ["--length", "8", "--channel", str(number)]
                self.assertEqual(self.output(f"{name}.wav.{number}"), self.single(name + ".wav", ".csv", *words))
        # Started again, it goes on where it was: what is missing is made, and nothing else.
        os.unlink(os.path.join(self.out, "deep/six.wav.4.csv"))
        summary = self.batch(*options, status=DAMAGED)
        self.assertEqual((summary["done"], summary["done_before"]), (1, 8))
        # What can be read only once, and two files with one output.
        done = run("batch", os.path.join(self.inputs, "pipe"), "--into", self.path("more"), *options)
        self.assertEqual(done.returncode, FAILED)
        self.assertIn(b"can be read only once", done.stderr)
        self.add("two.wav.1", b"RIFF")
        os.unlink(os.path.join(self.inputs, "broken.wav"))
        self.refused("batch", self.inputs, "--into", self.path("mixed"), *options, says="two inputs would have one")

    def reads(self, process, path):
        folder = f"/proc/{process}/fd"
        place = os.path.realpath(path)
        return any(os.path.realpath(os.path.join(folder, name)) == place for name in os.listdir(folder))

    def test_other_options_are_refused(self):
        self.add_some(2)
        self.batch("--format", "csv", "--length", "8")
        before = self.output("000.wav")
        for options in (["--length", "4"], ["--length", "8", "--window", "hann"], ["--length", "8", "--family", "real"],
                        ["--length", "8", "--hop", "3"], ["--length", "8", "--precision", "32"],
                        ["--length", "8", "--end", "1"], ["--length", "8", "--channel", "mix"],
                        ["--length", "8", "--flag", "ortho"], ["--length", "8", "--allow-damaged"]):
            line = self.refused("batch", self.inputs, "--into", self.out, "--format", "csv", *options,
                                says=["the outputs were made with other options", "--again starts over"])
            self.assertIn("length 8", line)
        self.refused("batch", self.inputs, "--into", self.out, "--length", "8", says="format csv")
        self.assertEqual(self.output("000.wav"), before)
        # The same options, said otherwise.
        self.assertEqual(self.batch("--format", "csv", "--length", "8", "--hop", "8")["done_before"], 2)
        self.assertEqual(self.batch("--format", "csv", "--length", "4", "--again")["done"], 2)
        self.expect_outputs(["000.wav", "001.wav"], ".csv", "--length", "4")

    def test_what_has_changed_is_done_again(self):
        paths = self.add_some(4)
        self.assertEqual(self.batch("--format", "csv")["done"], 4)
        with open(paths[1], "wb") as file:
            file.write(sound_files.wav([[5] * 77]))
        os.unlink(os.path.join(self.out, "002.wav.csv"))
        self.add("new.txt", b"1 " * 64)
        summary = self.batch("--format", "csv")
        self.assertEqual((summary["done"], summary["done_before"]), (3, 2))
        self.expect_outputs([*(f"{i:03}.wav" for i in range(4)), "new.txt"])

    def test_a_journal_that_is_none(self):
        self.add_some(1)
        for content in (b"hello\n", b"[]\n", b"{}\n", b"\0\xff\n", b"{\"options\": 5}\n"):
            os.makedirs(self.out, exist_ok=True)
            with open(os.path.join(self.out, ".zulspectrum-batch.jsonl"), "wb") as file:
                file.write(content)
            self.refused("batch", self.inputs, "--into", self.out, says="--again starts over")
        self.assertEqual(self.batch("--again")["done"], 1)
        with open(os.path.join(self.out, ".zulspectrum-batch.jsonl"), "ab") as file:
            file.write(b"{\"file\": 1, \"input\": [], \"output\": null}\n{\"file\": \"000.wav\", \"inp")
        self.assertEqual(self.batch()["done_before"], 1)

    def test_two_runs_at_one_folder(self):
        self.add_some(2)
        pipe = self.path("pipe")
        os.mkfifo(pipe)
        first = start("batch", pipe, self.inputs, "--into", self.out, "--format", "csv", "--jobs", 1)
        feeder = os.open(pipe, os.O_WRONLY)
        self.refused("batch", self.inputs, "--into", self.out, "--format", "csv", says="another run is at work in ")
        os.write(feeder, b"1 2 3 4 " * 64)
        os.close(feeder)
        self.assertEqual((first.wait(60), first.communicate()[1]), (0, b""))
        self.assertEqual(self.batch("--format", "csv")["done_before"], 2)

    def test_match_and_refusals(self):
        self.add_some(2)
        self.add("a.txt", b"1 " * 64)
        self.add("deep/b.txt", b"1 " * 64)
        self.assertEqual(self.batch("--format", "csv", "--match", "*.txt")["done"], 2)
        self.assertEqual(self.batch("--format", "csv", "--match", "0*", "--match", "b*")["done"], 2)
        # The folder of the outputs is none of the inputs.
        done = run("batch", self.folder.name, "--into", self.path("out"), "--format", "csv", "--again", "--json")
        self.assertEqual(json.loads(done.stdout)["files"], 4)
        self.refused("batch", self.inputs, self.inputs, "--into", self.out, says="two inputs would have one output")
        self.assertEqual(run("batch", self.inputs, "--into", self.out, "--length", "65").returncode, USAGE)


if __name__ == "__main__":
    main()
