# Runs that are killed or interrupted at random moments, and what is left of them.
#   python3 restart_test.py TOOL          a few kills
#   python3 restart_test.py TOOL --all    many
import json
import os
import random
import signal
import sys
import time

import sound_files
from batch_test import BatchTest, wait_for
from tool import content_of, main, numbers, start

MANY = "--all" in sys.argv
if MANY:
    sys.argv.remove("--all")
FILES = 200
OPTIONS = ["--length", "20", "--format", "csv", "--jobs", "2"]


class Restarts(BatchTest):
    def outputs(self):
        return {name: content_of(os.path.join(self.out, name)) for name in os.listdir(self.out)
                if not name.startswith(".")} if os.path.isdir(self.out) else {}

    def stamps(self):
        """What tells whether a file was written again."""
        return {name: (os.stat(os.path.join(self.out, name)).st_ino, os.stat(os.path.join(self.out, name)).st_mtime_ns)
                for name in self.outputs()}

    def noted(self):
        """The files that the journal has as done."""
        path = os.path.join(self.out, ".zulspectrum-batch.jsonl")
        lines = content_of(path).splitlines(keepends=True) if os.path.exists(path) else []
        return {json.loads(line)["file"] + ".csv" for line in lines[1:] if line.endswith(b"\n") and b'"file"' in line}

    def test_killed_and_restarted(self):
        noise, partly = random.Random(), 0
        seed = noise.randrange(1 << 30)
        noise.seed(seed)
        for i in range(FILES):
            self.add(f"{i:03}.wav", sound_files.wav([[noise.randrange(-9000, 9000) for _ in range(200 + i)]]))
        self.batch(*OPTIONS)
        whole = self.outputs()
        self.assertEqual(len(whole), FILES)
        for name in ("000.wav", "111.wav", "199.wav"):
            self.assertEqual(whole[name + ".csv"], self.single(name, ".csv", "--length", "20"))
        for turn in range(40 if MANY else 5):
            for name in os.listdir(self.out):
                os.unlink(os.path.join(self.out, name))
            # A run is killed once or more before it can end. A kill comes when so many outputs are there.
            for kills in range(noise.randrange(1, 4)):
                tool = start("batch", self.inputs, "--into", self.out, *OPTIONS)
                wanted = min(FILES - 1, len(self.outputs()) + noise.randrange(0, 80))
                wait_for(lambda: tool.poll() is not None or os.path.isdir(self.out) and
                         len(os.listdir(self.out)) > wanted)
                time.sleep(noise.random() / 200)
                tool.send_signal(noise.choice((signal.SIGKILL, signal.SIGKILL, signal.SIGINT, signal.SIGTERM)))
                tool.communicate(timeout=60)
                for name, content in self.outputs().items():
                    self.assertEqual(content, whole[name], f"seed {seed}, turn {turn}")
                self.assertLessEqual(self.noted(), set(self.outputs()), f"seed {seed}, turn {turn}")
            noted, before = self.noted(), self.stamps()
            partly += 0 < len(noted) < FILES
            summary = self.batch(*OPTIONS)
            self.assertEqual((summary["done"], summary["done_before"]), (FILES - len(noted), len(noted)),
                             f"seed {seed}")
            self.assertEqual(self.outputs(), whole, f"seed {seed}, turn {turn}")
            after = self.stamps()
            self.assertEqual({name: after[name] for name in noted}, {name: before[name] for name in noted},
                             f"seed {seed}")
            self.assertFalse([name for name in os.listdir(self.out) if name.endswith(".part")], f"seed {seed}")
        self.assertGreater(partly, 0, "no run was killed in its middle")


class Signals(BatchTest):
    def test_single_runs(self):
        """A run that has written a part of its output, and waits for more numbers."""
        for how in (signal.SIGINT, signal.SIGTERM, signal.SIGHUP, signal.SIGKILL):
            for format_name in ("csv", "text", "json", "npy", "png"):
                kept = self.path("kept", b"precious")
                part = self.path(".kept.part")
                tool = start("-", "--length", "4", "--format", format_name, "--output", kept, stdin=-1)
                tool.stdin.write(numbers(i % 7 for i in range(40000)) + b"\n")
                tool.stdin.flush()
                wait_for(lambda: os.path.exists(part) and (format_name == "png" or os.path.getsize(part) > 0))
                self.assertEqual(content_of(kept), b"precious")
                tool.send_signal(how)
                self.assertEqual(tool.wait(60), -how)
                tool.communicate()
                self.assertEqual(content_of(kept), b"precious")
                self.assertEqual(os.path.exists(part), how == signal.SIGKILL)
                # What a killed run left is taken over by the next.
                self.ok("-", "--length", "4", "--format", format_name, "--output", kept, given=b"1 2 3 4")
                self.assertFalse(os.path.exists(part))

    def test_two_runs_at_one_output(self):
        kept = self.path("kept", b"precious")
        first = start("-", "--length", "4", "--format", "csv", "--output", kept, stdin=-1)
        first.stdin.write(b"1 2 3 4 5 ")
        first.stdin.flush()
        wait_for(lambda: os.path.exists(self.path(".kept.part")))
        self.refused("-", "--length", "4", "--format", "csv", "--output", kept, given=b"4 3 2 1",
                     says="kept: another run writes it now")
        first.communicate(b"6 7 8")
        self.assertEqual((first.returncode, content_of(kept)),
                         (0, self.ok("-", "--length", "4", "--format", "csv", given=b"1 2 3 4 5 6 7 8")))

    def test_inverse(self):
        table = self.ok("-", "--length", "4", "--format", "csv", given=numbers(i % 7 for i in range(40000)))
        for how in (signal.SIGINT, signal.SIGTERM):
            for format_name in ("wav", "flac", "text"):
                kept = self.path("kept", b"precious")
                tool = start("inverse", "-", "--length", "4", "--rate", "8000", "--format", format_name, "--output",
                             kept, stdin=-1)
                tool.stdin.write(table)
                tool.stdin.flush()
                wait_for(lambda: os.path.exists(self.path(".kept.part")))
                tool.send_signal(how)
                self.assertEqual(tool.wait(60), -how)
                tool.communicate()
                self.assertEqual(content_of(kept), b"precious")
                self.assertFalse(os.path.exists(self.path(".kept.part")))


if __name__ == "__main__":
    main()
