# The tables that the tool writes, and the frames that it cuts sounds and numbers into.
import math
import os
import resource
import struct
import subprocess

from definitions import cosine, dft
import sound_files
from tool import ToolTest, limited, main, numbers, run


class Tables(ToolTest):
    def frames(self, count, *arguments):
        return [int(row["frame"]) for row in self.table("-", *arguments, given=numbers(range(count)))
                if row["bin"] == "0"]

    def test_csv_shape(self):
        text = self.ok("-", "--length", 4, "--format", "csv", given=b"1 2 3 4 5 6 7 8").decode().splitlines()
        self.assertEqual(text[0], "frame,time,bin,frequency,re,im,magnitude")
        self.assertEqual(text[1:5], ["0,0,0,0,10,0,10", "0,0,1,0.25,-2,2,2.8284271247461903", "0,0,2,0.5,-2,0,2",
                                     "0,0,3,-0.25,-2,-2,2.8284271247461903"])
        self.assertEqual([line.split(",")[:3] for line in text[5:]], [["1", "4", str(k)] for k in range(4)])

    def test_real_family_ends_in_the_middle(self):
        text = self.ok("-", "--length", 4, "--family", "real", "--format", "csv", given=b"1 2 3 4 5 6 7 9").decode()
        self.assertEqual(text.splitlines()[1:], ["0,0,0,0,10,0,10", "0,0,1,0.25,-2,2,2.8284271247461903",
                                                 "0,0,2,0.5,-2,0,2", "1,4,0,0,27,0,27",
                                                 "1,4,1,0.25,-2,3,3.605551275463989", "1,4,2,0.5,-3,0,3"])
        rows = self.table("-", "--length", 5, "--family", "real", given=b"1 2 3 4 5")
        self.assertEqual([row["frequency"] for row in rows], ["0", "0.2", "0.4"])

    def test_text_holds_the_same_numbers_as_csv(self):
        given = numbers(cosine(20, 3, 50))
        text = self.ok("-", "--length", 20, given=given).decode()
        lines = [line.split() for line in text.splitlines() if line and line[0] != "#"]
        rows = self.table("-", "--length", 20, given=given)
        self.assertEqual(lines, [[row[name] for name in ("bin", "frequency", "re", "im", "magnitude")] for row in rows])
        self.assertIn("# frame 2 at sample 40\n", text)

    def test_frames_cover_all_samples_once_they_can(self):
        for count, hop, due in ((96, 16, 6), (97, 16, 7), (100, 8, 12), (96, 8, 11), (97, 1, 82), (90, 40, 3),
                                (100, 40, 3), (120, 40, 3), (121, 40, 4), (16, 1, 1), (17, 1000, 1)):
            self.assertEqual(self.frames(count, "--length", 16, "--hop", hop), list(range(due)), (count, hop))

    def test_last_frame_is_filled_up_with_zeros(self):
        for hop, last in ((4, [5, 6, 0, 0]), (3, [4, 5, 6, 0]), (5, [6, 0, 0, 0])):
            rows = self.table("-", "--length", 4, "--hop", hop, given=b"1 2 3 4 5 6")[-4:]
            for row, due in zip(rows, dft(last), strict=True):
                self.assertAlmostEqual(complex(float(row["re"]), float(row["im"])), due, delta=1e-14)

    def test_text_input(self):
        plain = self.ok("-", "--length", 6, given=b"1 -2 0.5 3e2 7 -8")
        for given in (b"# a comment\n1,-2,\t.5\r\n+300 #3\n7\n\n-8.0", b"1 -2 5e-1,,3E+2\f7\v-8#end",
                      b"\n1\n-2 .5 300 7 -8\n"):
            self.assertEqual(self.ok("-", "--length", 6, given=given), plain)
        path = self.path("numbers", b"1 -2 .5 300 7 -8")
        self.assertEqual(self.ok(path, "--length", 6).replace(path.encode(), b"standard input"), plain)

    def test_numbers_through_a_named_pipe(self):
        path = self.path("pipe")
        os.mkfifo(path)
        feeder = subprocess.Popen(["sh", "-c", 'echo 1 2 3 4 > "$1"', "sh", path])
        self.assertEqual(len(self.table(path, "--length", 4)), 4)
        feeder.wait()


class Sounds(ToolTest):
    def test_wav_widths_and_channels(self):
        n, k = 48, 6
        for bits in (8, 16, 24, 32):
            top = 2 ** (bits - 1)
            quiet = [round(top / 4 * x) for x in cosine(n, 1, 10 * n)]
            tone = [round(top / 2 * x) for x in cosine(n, k, 10 * n)]
            path = self.path("sound.wav", sound_files.wav([quiet, tone], rate=48000, bits=bits))
            rows = self.table(path, "--length", n, "--channel", 2)
            self.assertEqual(len(rows), 10 * n)
            for row in rows:
                due = n / 4 if int(row["bin"]) in (k, n - k) else 0
                self.assertAlmostEqual(float(row["magnitude"]), due, delta=n / top)
            self.assertEqual(float(rows[k]["frequency"]), 6000)
            self.assertEqual(float(rows[n]["time"]), 0.001)
            self.assertAlmostEqual(float(self.table(path, "--length", n)[1]["magnitude"]), n / 8, delta=n / top)

    def test_long_sound_is_read_in_order(self):
        samples = [i % 30011 - 15000 for i in range(50000)]
        path = self.path("long.wav", sound_files.wav([samples]))
        rows = self.table(path, "--length", 2, "--hop", 977)
        for row in rows[0:-2:2]:
            start = int(row["frame"]) * 977
            self.assertEqual(float(row["re"]) * 32768, samples[start] + samples[start + 1])

    def test_flac_equals_wav(self):
        samples = [round(20000 * math.sin(i * i / 999)) for i in range(1024)]
        wav = self.path("a.wav", sound_files.wav([samples]))
        flac = self.path("a.flac", sound_files.flac(samples))
        self.assertEqual(self.table(flac), self.table(wav))

    def test_content_decides_the_kind(self):
        path = self.path("tone.txt", sound_files.wav([[1000] * 64]))
        self.assertEqual(float(self.table(path)[0]["re"]), 64 * 1000 / 32768)

    def test_samples_that_are_no_numbers(self):
        for value, says in ((math.nan, "not a number"), (math.inf, "infinite"), (-math.inf, "infinite")):
            path = self.path("odd.wav", sound_files.wav([[0.5, 0.25] * 4000 + [value, 0.5]], bits=32, floating=True))
            self.refused(path, "--length", 8, says=["odd.wav", "sample 8000 is " + says])

    def test_memory_does_not_grow_with_the_input(self):
        head = sound_files.wav([[0] * 8], bits=8)
        count = 100_000_000
        path = self.path("zeros.wav", head[:4] + struct.pack("<I", 36 + count) + head[8:40] + struct.pack("<I", count))
        os.truncate(path, 44 + count)
        most = 256 << 20  # bytes; all samples as numbers would take three times as much
        done = run(path, "--output", self.path("zeros.png"),
                   preexec_fn=limited(resource.RLIMIT_AS, most))
        self.assertEqual((done.returncode, done.stderr), (0, b""))


if __name__ == "__main__":
    main()
