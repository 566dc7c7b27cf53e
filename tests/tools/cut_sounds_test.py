# Sound files that are cut off, or that have wrong bytes: never taken for whole, and never a crash. Each file is made by
# cutting or changing a whole one, and many are run in one batch, which has no process to start for each.
#   python3 cut_sounds_test.py TOOL          cuts at every byte of the first 256, at every 29th up to 4096, at random
#   python3 cut_sounds_test.py TOOL --all    cuts at every byte of the first 4096, and more at random
import json
import math
import os
import random
import re
import sys

import libsndfile
import tool
from tool import DAMAGED, FAILED, ToolTest, content_of, main, run

ALL = "--all" in sys.argv
if ALL:
    sys.argv.remove("--all")
KINDS = {"wav": "pcm16", "flac": "pcm16", "aiff": "pcm16", "au": "pcm16", "ogg": "vorbis", "sds": "pcm16"}
SAMPLES = 24000  # several pages of Ogg
FRAME = ["--length", "2", "--family", "complex"]  # its bins are the sum and the difference of two samples
source = random.Random(31)


class Cuts(ToolTest):
    def whole(self, kind):
        """A sound that cannot be packed well, so that much more than 4 KB remain."""
        noise = random.Random(7)
        samples = [0.4 * math.sin(i / 9) + 0.3 * noise.uniform(-1, 1) for i in range(SAMPLES)]
        return content_of(libsndfile.write(self.path("whole." + kind), [samples], kind, KINDS[kind]))

    def cuts(self, data):
        sizes = set(range(1, 4097)) if ALL else {*range(1, 257), *range(256, 4097, 29)}
        sizes |= {source.randrange(4097, len(data)) for _ in range(400 if ALL else 40)}
        return sorted({*sizes, len(data) - 1, len(data) - 2} - {len(data)})

    def batch(self, files, *options):
        """Runs over files, given by name, and returns status and message by name; (0, None) where all went well."""
        folder, out = self.path("in"), self.path("out")
        for place in (folder, out):
            os.makedirs(place, exist_ok=True)
            for name in os.listdir(place):
                os.unlink(os.path.join(place, name))
        for name, content in files.items():
            with open(os.path.join(folder, name), "wb") as file:
                file.write(content)
        done = run("batch", folder, "--into", out, "--jobs", 2, "--json", "--format", "npy", *FRAME, *options)
        self.assertIn(done.returncode, (0, FAILED, DAMAGED), done.stderr)
        summary = json.loads(done.stdout)
        self.assertEqual(summary["files"], len(files))
        found = {name: (0, None) for name in files}
        found |= {line["file"]: (line["status"], line["message"]) for line in summary["failed"]}
        found |= {line["file"]: (0, " ".join(line["damage"])) for line in summary["damaged"]}
        for name, (status, message) in found.items():
            self.assertNotIn("ended by a signal", message or "", name)
            self.assertEqual(os.path.exists(os.path.join(out, name + ".npy")), status == 0, (name, message))
        self.assertFalse([name for name in os.listdir(out) if name.endswith(".part")])
        return found

    def bins(self, name):
        """The bytes of the array after its header."""
        return content_of(os.path.join(self.path("out"), name + ".npy"))[128:]

    def test_cut_files_are_never_taken_for_whole(self):
        for kind in KINDS:
            data = self.whole(kind)
            files = {str(size): data[:size] for size in self.cuts(data)}
            self.assertGreater(len(files), 400)
            found = self.batch({**files, "all": data})
            self.assertEqual(found.pop("all"), (0, None), kind)
            for name, (status, message) in found.items():
                # The first three bytes of any kind are no sound as yet.
                self.assertEqual(status, DAMAGED if int(name) >= 4 else FAILED, (kind, name, message))
                if status == DAMAGED:
                    self.assertRegex(message, r"the file is damaged: .*; samples that are good: \d+", (kind, name))

    def test_good_samples_of_cut_files_are_those_of_the_whole(self):
        for kind in KINDS:
            data = self.whole(kind)
            sizes = [source.randrange(1, len(data)) for _ in range(200 if ALL else 40)]
            refused = self.batch({str(size): data[:size] for size in sizes})
            found = self.batch({**{str(size): data[:size] for size in sizes}, "all": data}, "--allow-damaged")
            self.assertEqual(found.pop("all"), (0, None))
            whole, most = self.bins("all"), 0
            self.assertEqual(len(whole), SAMPLES // 2 * 32)
            for name, (status, message) in found.items():
                if status != 0:  # nothing is left, not even a frame
                    self.assertRegex(message, r"good: 0|too few samples: [01],|is not a number", (kind, name))
                    continue
                good = int(re.search(r"samples that are good: (\d+)", message)[1])
                self.assertIn(f"samples that are good: {good}", refused[name][1])
                bins = self.bins(name)
                self.assertGreaterEqual(len(bins) // 32, good // 2, (kind, name))
                self.assertEqual(bins[:good // 2 * 32], whole[:good // 2 * 32], (kind, name))
                most = max(most, good)
            self.assertGreater(most, SAMPLES // 4, kind)

    def test_wrong_bytes_in_flac(self):
        data, files = self.whole("flac"), {}
        for i in range(3000 if ALL else 400):
            wrong = bytearray(data)
            # Half of them where the headers are.
            for place in (source.randrange(4, 200 if i % 2 else len(data)) for _ in range(source.choice((1, 1, 2, 5)))):
                wrong[place] ^= source.randrange(1, 256)
            files[str(i)] = bytes(wrong)
        found = self.batch({**files, "all": data})
        self.assertEqual(found.pop("all"), (0, None))
        damaged, whole = 0, self.bins("all")
        for name, (status, message) in found.items():
            damaged += status == DAMAGED
            if status == 0:  # where nothing is said of the samples
                self.assertEqual(self.bins(name), whole, name)
            else:
                self.assertIn(status, (FAILED, DAMAGED), message)
        self.assertGreater(damaged, len(files) * 2 // 3)

    def test_wrong_rate_in_flac(self):
        data = bytearray(self.whole("flac"))
        data[19] ^= 1  # within the rate of the file; each frame has its own
        line = self.refused(self.path("rate.flac", data), *FRAME, says="the file is damaged")
        self.assertIn("rate", line)

    def test_wrong_bytes_in_other_kinds(self):
        for kind in KINDS:
            data, files = self.whole(kind), {}
            for i in range(1000 if ALL else 80):
                wrong = bytearray(data)
                for _ in range(source.choice((1, 2, 8))):
                    wrong[source.randrange(0, 100 if i % 4 else len(data))] = source.randrange(256)
                files[str(i)] = bytes(wrong)
            self.batch(files)  # whatever it says, it does not crash
            self.batch(files, "--allow-damaged")

    def test_single_runs_and_standard_input(self):
        for kind in KINDS:
            data = self.whole(kind)
            for size in (4, 12, 40, 1000, len(data) // 2, len(data) - 1):
                path = self.path("cut", data[:size])
                for words in ([path], ["-"]):
                    done = run(*words, *FRAME, "--output", self.path("out.csv"),
                               **({"given": data[:size]} if words == ["-"] else {}))
                    self.assertEqual(done.returncode, DAMAGED, (kind, size, done.stderr))
                    self.assertRegex(done.stderr.decode(), tool.ONE_LINE)
                    self.assertEqual(sorted(os.listdir(self.folder.name)), ["cut", "whole." + kind])
            os.unlink(self.path("whole." + kind))
            os.unlink(path)


if __name__ == "__main__":
    main()
