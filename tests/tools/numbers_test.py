# What the tool computes, against NumPy and SciPy: windows, spectra, the way back, time ranges, channels, and sounds
# that are read back.
import io
import itertools
import json
import os

import numpy
import scipy.fft
import scipy.linalg
import scipy.signal

import libsndfile
import sound_files
from tool import ToolTest, content_of, main, numbers, run

WINDOWS = {"boxcar": "boxcar", "hann": "hann", "hamming": "hamming", "blackman": "blackman",
           "blackmanharris": "blackmanharris", "nuttall": "nuttall", "flattop": "flattop", "bartlett": "bartlett",
           "triang": "triang", "cosine": "cosine", "tukey": ("tukey", 0.5), "tukey:0": ("tukey", 0),
           "tukey:0.3": ("tukey", 0.3), "tukey:1": ("tukey", 1), "kaiser:0": ("kaiser", 0),
           "kaiser:8.6": ("kaiser", 8.6),
           "kaiser:14": ("kaiser", 14), "gaussian:3": ("gaussian", 3), "gaussian:0.5": ("gaussian", 0.5)}
SPECTRA = {  # the bins of frames without scale
    "complex": numpy.fft.fft, "real": numpy.fft.rfft,
    "hartley": lambda frames: numpy.fft.fft(frames).real - numpy.fft.fft(frames).imag,
    "wht": lambda frames: frames @ scipy.linalg.hadamard(frames.shape[-1]),
    "dct4": lambda frames: scipy.fft.dct(frames, type=4) / 2,
}
random = numpy.random.default_rng(21)


def frames_of(samples, length, hop):
    """Frames as the tool cuts them: the last may be filled up with zeros."""
    count = 1 + -(-(len(samples) - length) // hop)
    filled = numpy.concatenate([samples, numpy.zeros(count * hop + length)])
    return numpy.stack([filled[i * hop:i * hop + length] for i in range(count)])


class Numbers(ToolTest):
    def array(self, *arguments, given=None):
        path = self.path("out.npy")
        self.ok("transform", *arguments, "--output", path, given=given)
        return numpy.load(path)

    def test_windows(self):
        length = 20
        for word, name in WINDOWS.items():
            for size in (length, 13, 2):
                # The bins of an impulse at each place are its weight.
                given = numbers(float(v) for v in numpy.eye(size).ravel())
                found = self.array("-", "--length", size, "--window", word, given=given)[:, 0].real
                numpy.testing.assert_allclose(found, scipy.signal.get_window(name, size), rtol=0, atol=2e-15,
                                              err_msg=word)

    def test_spectra(self):
        samples = random.uniform(-1, 1, 700)
        for family, lengths in (("complex", (2, 15, 60, 64)), ("real", (5, 48, 64)), ("hartley", (3, 60)),
                                ("wht", (2, 64, 512)), ("dct4", (2, 32, 512))):
            for length, hop in itertools.product(lengths, (1, 2)):
                hop = max(1, length // hop - hop // 2)
                for precision, tolerance, window in ((64, 1e-14, "hann"), (32, 3e-6, "kaiser:5"), (64, 1e-14, "none")):
                    flag = [] if family == "dct4" else ["--flag", "none"]
                    found = self.array("-", "--family", family, "--length", length, "--hop", hop, "--window", window,
                                       "--precision", precision, *flag, given=numbers(map(float, samples)))
                    kind = {"none": "boxcar", "kaiser:5": ("kaiser", 5)}.get(window, window)
                    frames = frames_of(samples, length, hop) * scipy.signal.get_window(kind, length)
                    due = SPECTRA[family](frames)
                    self.assertEqual(found.shape, due.shape)
                    self.assertEqual(found.dtype.itemsize * 8, precision * (2 if numpy.iscomplexobj(due) else 1))
                    numpy.testing.assert_allclose(found, due, rtol=0, atol=tolerance * length, err_msg=family)

    def test_inverse_gives_the_samples_back(self):
        samples = random.uniform(-1, 1, 500)
        given = numbers(map(float, samples))
        for (family, length), window, precision, suffix in itertools.product(
                (("complex", 50), ("real", 50), ("hartley", 20), ("wht", 64), ("dct4", 64)),
                ("none", "hann", "hamming"),
                (64, 32), (".csv", ".npy")):
            for hop in {length, length // 4, 7}:
                same = ["--family", family, "--length", length, "--window", window, "--precision", precision]
                table = self.path("table" + suffix)
                self.ok("transform", "-", *same, "--hop", hop, "--output", table, given=given)
                knows = suffix == ".csv" and family != "wht"
                done = run("inverse", table, *same, *([] if knows else ["--hop", hop]), "--samples", 500, "--format",
                           "text")
                self.assertEqual(done.returncode, 0, done.stderr)
                found = numpy.array(done.stdout.split(), float)
                self.assertEqual(len(found), 500)
                # Where hann has weights of zero, nothing can come back; the report counts these samples.
                weights = numpy.zeros(len(samples) + 2 * length)
                squares = scipy.signal.get_window("boxcar" if window == "none" else window, length) ** 2
                for start in range(0, len(samples), hop):
                    weights[start:start + length] += squares
                    if start + length >= len(samples):
                        break
                held = weights[:500] > 1e-6
                self.assertGreater(held.sum(), 450)
                tolerance = {64: 2e-15, 32: 2e-6}[precision] / numpy.sqrt(weights[:500][held].min())
                numpy.testing.assert_allclose(found[held], samples[held], rtol=0, atol=tolerance, err_msg=str(same))
                self.assertTrue((found[weights[:500] < 1e-12] == 0).all())
                self.assertEqual(bool(done.stderr), window == "hann")

    def test_sound_is_written_and_read_back(self):
        samples = random.uniform(-0.9, 0.9, 2000)
        sound = libsndfile.write(self.path("in.wav"), [list(samples)], "wav", "double", rate=44100)
        table = self.path("table.csv")
        self.ok("transform", sound, "--length", 50, "--hop", 25, "--family", "real", "--output", table)
        for suffix, encoding, tolerance in ((".wav", "float", 1e-7), (".wav", "double", 1e-15),
                                            (".wav", "pcm24", 2 ** -23),
                                            (".wav", "pcm16", 2 ** -15), (".flac", "pcm24", 2 ** -23),
                                            (".flac", "pcm16", 2 ** -15)):
            out = self.path("back" + suffix)
            self.ok("inverse", table, "--length", 50, "--family", "real", "--encoding", encoding, "--output", out)
            (found,), rate, container, found_encoding = libsndfile.read(out)
            self.assertEqual((rate, container, found_encoding), (44100, suffix[1:], encoding))
            numpy.testing.assert_allclose(found[:2000], samples, rtol=0, atol=tolerance)
            # The tool itself reads what it has written.
            self.assertEqual(len(self.array(out, "--length", 50)), 40)
            report = json.loads(self.ok("inverse", table, "--length", 50, "--family", "real", "--encoding", encoding,
                                        "--output", out, "--json"))
            self.assertEqual((report["frames"], report["samples"], report["clipped"], report["rate"]),
                             (79, 2000, 0, 44100))

    def test_samples_beyond_full_scale_are_reported(self):
        table = self.path("table.csv")
        self.ok("-", "--length", 4, "--output", table, given=b"0.5 1.5 -1 -2 1 0.25 0 -1.25")
        for encoding, clipped, due in (("pcm16", 3, [0.5, 1 - 2 ** -15, -1, -1, 1 - 2 ** -15, 0.25, 0, -1]),
                                       ("float", 0, [0.5, 1.5, -1, -2, 1, 0.25, 0, -1.25])):
            out = self.path("out.wav")
            done = run("inverse", table, "--length", 4, "--rate", 8000, "--encoding", encoding, "--output", out)
            self.assertEqual(done.returncode, 0, done.stderr)
            self.assertEqual(b"3 samples were beyond full scale" in done.stderr, clipped == 3, done.stderr)
            self.assertEqual(libsndfile.read(out)[0][0], due)

    def test_time_ranges(self):
        samples = random.integers(-999, 999, 1000)
        text = self.path("numbers", numbers(map(int, samples)))
        sound = {kind: libsndfile.write(self.path("in." + kind), [list(samples / 8192)], kind, code, rate=100)
                 for kind, code in (("wav", "pcm24"), ("flac", "pcm24"), ("aiff", "float"))}
        for start, end in ((0, 10), (10, 500), (991, 1000), (0, 4000), (3, None), (None, 77), (None, None),
                           (995, 1000)):
            part = samples[start or 0:end]
            for path, rate in ((text, 1), *((path, 100) for path in sound.values())):
                words = [*(["--start", repr(start / rate)] if start is not None else []),
                         *(["--end", repr(end / rate)] if end is not None else [])]
                found = self.array(path, "--length", 4, "--flag", "none", *words)
                due = numpy.fft.fft(frames_of(part, 4, 4)) / (1 if rate == 1 else 8192)
                numpy.testing.assert_allclose(found, due, rtol=0, atol=1e-12)
        for word, seconds in (("0:03", 3), ("0:0:3", 3), ("0:3.5", 3.5), ("3.25", 3.25)):
            self.assertEqual(self.ok(sound["wav"], "--start", word, "--format", "csv"),
                             self.ok(sound["wav"], "--start", seconds, "--format", "csv"))

    def test_time_ranges_of_a_sample_dump(self):
        samples = random.integers(-999, 999, 1000)  # the last packet is full
        path = libsndfile.write(self.path("in.sds"), [list(samples / 8192)], "sds", "pcm16", rate=1000)
        for start in (0, 1, 39, 40, 41, 500, 998):
            found = self.array(path, "--length", 2, "--flag", "none", "--start", repr(start / 1000))
            due = numpy.fft.fft(frames_of(samples[start:], 2, 2)) / 8192
            numpy.testing.assert_allclose(found, due, rtol=0, atol=1e-12)
        self.refused(path, "--length", 2, "--start", "0.999", says="too few samples: 1")

    def test_channels(self):
        channels = [list(random.integers(-4000, 4000, 300) / 8192) for _ in range(3)]
        for kind, code in (("wav", "pcm16"), ("flac", "pcm16"), ("aiff", "pcm24"), ("caf", "double")):
            path = libsndfile.write(self.path("three." + kind), channels, kind, code)
            for word, due in (("1", channels[0]), ("2", channels[1]), ("3", channels[2]),
                              ("mix", numpy.mean(channels, axis=0))):
                found = self.array(path, "--length", 5, "--channel", word)
                numpy.testing.assert_allclose(found, numpy.fft.fft(frames_of(due, 5, 5)), rtol=0, atol=1e-14)

    def test_each_channel_has_its_own_output(self):
        channels = [list(random.integers(-4000, 4000, 300) / 8192) for _ in range(3)]
        for kind, code in (("wav", "pcm16"), ("flac", "pcm16"), ("caf", "double")):
            path = libsndfile.write(self.path("three." + kind), channels, kind, code)
            for form in ("csv", "npy", "png"):
                output = self.path("out." + form)
                reports = json.loads(self.ok(path, "--length", 6, "--channel", "each", "--output", output, "--json"))
                self.assertEqual([report["channel"] for report in reports], ["1", "2", "3"])
                for number, report in zip("123", reports):
                    single = self.path("single." + form)
                    self.ok(path, "--length", 6, "--channel", number, "--output", single)
                    self.assertEqual(report["output"], self.path(f"out.{number}.{form}"))
                    self.assertEqual(content_of(report["output"]), content_of(single), (kind, form, number))
                    os.unlink(report["output"])
                self.assertFalse(os.path.exists(output))
            errors = [self.ok(path, "--length", 6, "--channel", number, "--check", "--json") for number in "123"]
            together = json.loads(self.ok(path, "--length", 6, "--channel", "each", "--check", "--json"))
            self.assertEqual([json.loads(error) for error in errors], together)
        # A name without a suffix, in a folder whose name has a point.
        os.makedirs(self.path("a.b"))
        self.ok(path, "--channel", "each", "--format", "csv", "--output", self.path("a.b/spectra"))
        self.assertEqual(sorted(os.listdir(self.path("a.b"))), ["spectra.1", "spectra.2", "spectra.3"])
        # Numbers have one channel, and their output is named like the others.
        given = self.path("numbers.txt", b"1 2 3 4")
        self.ok(given, "--length", 2, "--channel", "each", "--output", self.path("n.csv"))
        self.assertTrue(os.path.exists(self.path("n.1.csv")))

    def test_each_channel_needs_files(self):
        path = libsndfile.write(self.path("two.wav"), [[0.5] * 64] * 2, "wav", "pcm16")
        self.refused(path, "--length", 4, "--channel", "each", says="into one output; name a file")
        self.refused("-", "--length", 4, "--channel", "each", "--output", self.path("a.csv"), given=content_of(path),
                     says="--channel each: standard input can be read only once; name a file")
        self.refused(path, "--length", 4, "--channel", "every", "--output", self.path("a.csv"),
                     says="--channel every")
        self.refused(self.path("none.wav"), "--length", 4, "--channel", "each", "--output", self.path("a.csv"),
                     says="No such file")
        # An output that would be the input.
        before = content_of(path)
        os.rename(path, self.path("a.1.csv"))
        self.refused(self.path("a.1.csv"), "--length", 4, "--channel", "each", "--output", self.path("a.csv"),
                     says="the input itself")
        self.assertEqual(content_of(self.path("a.1.csv")), before)

    def test_formats_hold_the_same_numbers(self):
        sound = self.path("in.wav", sound_files.wav([list(map(int, random.integers(-9000, 9000, 200)))], rate=8000))
        for family, size in (("complex", ["--length", 9]), ("real", ["--length", 10]), ("wht", ["--order", 3]),
                             ("dct4", ["--length", 8])):
            for command in ("transform", "spectrogram"):
                words = [command, sound, "--family", family, *size, "--hop", 5]
                array_path = self.path("a.npy")
                self.ok(*words, "--output", array_path)
                array = numpy.load(array_path)
                csv = numpy.genfromtxt(io.BytesIO(self.ok(*words, "--format", "csv")), delimiter=",", names=True)
                lines = [json.loads(line) for line in self.ok(*words, "--format", "json").splitlines()]
                head, frames = lines[0], lines[1:]
                self.assertEqual((head["family"], head["hop"], head["rate"]), (family, 5, 8000))
                self.assertEqual([frame["frame"] for frame in frames], list(range(len(array))))
                if command == "transform":
                    values = csv["re"] + 1j * csv["im"]
                    held = numpy.array([numpy.array(frame["re"]) + 1j * numpy.array(frame["im"]) for frame in frames])
                else:
                    values = csv["magnitude"]
                    held = numpy.array([frame["magnitude"] for frame in frames])
                self.assertTrue((values.reshape(array.shape) == array).all() and (held == array).all())
                positions = head["sequency" if family == "wht" else "frequency"]
                self.assertTrue((csv[csv.dtype.names[3]][:len(positions)] == positions).all())
                self.assertTrue((csv["time"][::len(positions)] == [frame["time"] for frame in frames]).all())
                if family == "real":
                    self.assertEqual(positions, list(numpy.fft.rfftfreq(10, 1 / 8000)))

    def test_arrays_of_unknown_length(self):
        given = numbers(range(100))
        path = self.path("a.npy")
        self.ok("-", "--length", 4, "--output", path, given=given)
        with open(self.path("b.npy"), "wb") as out:
            self.assertEqual(run("-", "--length", 4, "--format", "npy", given=given, stdout=out).returncode, 0)
        self.assertTrue((numpy.load(path) == numpy.load(self.path("b.npy"))).all())
        self.assertEqual(numpy.load(path).shape, (25, 4))
        self.assertEqual(os.path.getsize(path), os.path.getsize(self.path("b.npy")))


if __name__ == "__main__":
    main()
