# Sound files that are damaged, or that are well-formed and hold nothing that can be transformed.
import math
import os
import re
import struct

import libsndfile
import sound_files
from bad_inputs import Bad, expect_refusals
from tool import DAMAGED, FAILED, ToolTest, content_of, main, run

WAVE = [math.sin(i) / 2 for i in range(600)]
NONE_GOOD = "samples that are good: 0"


def chunk(name, data, size=None):
    return name + struct.pack("<I", len(data) if size is None else size) + data + bytes(len(data) % 2)


def wav(form, data, *before, riff=None, data_size=None):
    body = b"WAVE" + b"".join(before) + (chunk(b"fmt ", form) if form is not None else b"")
    body += chunk(b"data", data, data_size) if data is not None else b""
    return b"RIFF" + struct.pack("<I", len(body) if riff is None else riff) + body


def form(codec=1, channels=1, rate=8000, bits=16, align=None):
    align = channels * bits // 8 & 0xffff if align is None else align
    return struct.pack("<HHIIHH", codec, channels, rate, rate * align & 0xffffffff, align, bits)


PCM = struct.pack("<200h", *range(200))
GIGABYTES = 2 ** 31 - 2


def row(content, status, says, *words):
    return Bad(["{folder}/input", "--length", "4", "--output", "{kept}", *words], status, "^input: .*" + says, None,
               {"input": content})


class BadSounds(ToolTest):
    def sound(self, container, encoding, channels=1, more=0):
        path = self.path("sound")
        libsndfile.write(path, [WAVE] * channels, container, encoding, more=more)
        return content_of(path)

    def test_headers_of_wav(self):
        rows = [
            row(wav(form(), PCM, data_size=GIGABYTES, riff=GIGABYTES + 36), DAMAGED,
                "its header announces 2147483646 bytes of sound, and 400 bytes are there; samples that are good: 200"),
            row(wav(form(), PCM, data_size=4294967294), DAMAGED, "announces 4294967294 bytes of sound"),
            row(wav(form(), PCM, riff=GIGABYTES), DAMAGED, "announces 2147483654 bytes, and 444 bytes are there"),
            row(wav(form(), PCM, data_size=401), DAMAGED, "announces 401 bytes of sound, and 400"),
            row(wav(form(), bytes(4) + PCM, data_size=0), DAMAGED, "announces no sound, and 404 bytes follow"),
            row(wav(form(), bytes(100), data_size=0), DAMAGED, "announces no sound"),
            row(wav(form(), None), DAMAGED, "ends before its sound begins"),
            row(wav(None, PCM), FAILED, "sound cannot be read"),
            row(wav(None, None), DAMAGED, "ends before its sound begins"),
            row(wav(b"", PCM), FAILED, "cannot be read"),
            row(wav(form()[:9], PCM), FAILED, "cannot be read"),
            row(wav(form(channels=0), PCM), FAILED, "(cannot be read|no channel)"),
            row(wav(form(channels=0, align=2), PCM), FAILED, "(cannot be read|no channel)"),
            row(wav(form(channels=65535), PCM), FAILED, "cannot be read"),
            row(wav(form(channels=1025), PCM), FAILED, "cannot be read"),
            row(wav(form(rate=0), PCM), FAILED, "rate"),
            row(wav(form(rate=2 ** 32 - 1), PCM), FAILED, "rate"),
            row(wav(form(rate=2 ** 31), PCM), FAILED, "rate"),
            *(row(wav(form(codec=codec), PCM), FAILED, "sound cannot be read")
              for codec in (0, 4, 0x1234, 0x55, 0xffff)),
            row(wav(form(bits=0), PCM), FAILED, "cannot be read"),
            row(wav(form(bits=65535), PCM), FAILED, "cannot be read"),
            row(wav(form(bits=12, align=2)[:-1], PCM), FAILED, "cannot be read"),
            row(wav(form(codec=3, bits=16), PCM), FAILED, "cannot be read"),
            row(wav(form(), b""), FAILED, "too few samples: 0, and one frame takes 4"),
            row(wav(form(), PCM[:6]), FAILED, "too few samples: 3"),
            row(wav(form(), PCM, chunk(b"junk", b"12", size=10 ** 9)),
            DAMAGED, "announces 1000000000 bytes of a chunk"),
            row(wav(form(), PCM, chunk(b"\x1b[2J", b"12", size=10 ** 9)), DAMAGED, "of a chunk"),
            row(b"RIFF" + bytes(4) + b"WAVE", DAMAGED, NONE_GOOD), row(b"RIFF", DAMAGED, NONE_GOOD),
            row(b"RIFF" + bytes(400), FAILED, "neither a sound file that can be read nor a text"),
            row(b"RIFF" + bytes(4) + b"AVI " + bytes(400), FAILED, "neither a sound file"),
            row(b"RIFX" + wav(form(), PCM)[4:], DAMAGED, "announces \\d+ bytes of a chunk"),
            row(b"BW64" + wav(form(), PCM)[4:], DAMAGED, "ends before its sound begins"),
            row(b"RF64" + b"\xff" * 4 + b"WAVE" + chunk(b"fmt ", form()) + chunk(b"data", PCM), DAMAGED, "ends before"),
        ]
        expect_refusals(self, rows, 35)

    def test_samples_that_are_no_numbers(self):
        rows = []
        for value, says in ((math.nan, "not a number"), (math.inf, "infinite"), (-math.inf, "infinite")):
            for place in (0, 3, 599):
                samples = [*WAVE[:place], value, *WAVE[place + 1:]]
                for container, encoding in (("wav", "float"), ("wav", "double"), ("au", "float"), ("caf", "double"),
                                            ("aiff", "float")):
                    path = libsndfile.write(self.path("odd"), [samples], container, encoding)
                    rows.append(row(content_of(path), FAILED, f"sample {place} is {says}$"))
            stereo = libsndfile.write(self.path("odd"), [WAVE, samples], "wav", "float")
            rows.append(row(content_of(stereo), FAILED, f"sample 599 is {says}$", "--channel", "2"))
            rows.append(row(content_of(stereo), FAILED, f"sample 599 is {says}$", "--channel", "mix"))
        expect_refusals(self, rows, 50)

    def test_shortened_files_of_each_kind(self):
        rows = []
        for container, encoding, more in (
                *(("wav", encoding, 0) for encoding in ("u8", "pcm16", "pcm24", "pcm32", "float", "double", "ulaw")),
                ("aiff", "pcm16", 0), ("aiff", "s8", 0), ("aiff", "float", 0), ("au", "pcm16", 0), ("au", "double", 0),
                ("au", "pcm16", libsndfile.LITTLE_ENDIAN), ("w64", "pcm16", 0), ("w64", "float", 0),
                ("caf", "pcm16", 0), ("caf", "double", 0), ("rf64", "pcm16", 0), ("flac", "pcm16", 0),
                ("flac", "pcm24", 0), ("ogg", "vorbis", 0)):
            for channels in (1, 2):
                data = self.sound(container, encoding, channels, more)
                for size in (len(data) // 2, len(data) - 40):
                    rows.append(row(data[:size], DAMAGED, r"the file is damaged: .*; samples that are good: \d+"))
                self.assertEqual(self.run_on(data), 0, (container, encoding, more))
        expect_refusals(self, rows, 80)

    def run_on(self, data):
        self.ok(self.path("whole", data), "--length", "4", "--output", self.path("whole.csv"))
        return 0

    def test_bytes_that_are_no_sound(self):
        flac = sound_files.flac([round(9000 * value) for value in WAVE[:512]])
        wrong_sum = bytearray(flac)
        wrong_sum[len(flac) - 300] ^= 0xff
        wrong_digest = bytearray(flac)
        wrong_digest[30] = 0x77
        ogg = bytearray(self.sound("ogg", "vorbis"))
        ogg[len(ogg) // 2] ^= 1
        au = self.sound("au", "pcm16")
        unseekable = flac[:len(flac) - 600] + bytes(600)
        rows = [
            row(unseekable, DAMAGED, "its frames do not lead to sample 300", "--start", "0.0375"),
            row(bytes(range(256)) * 8, FAILED, "neither a sound file that can be read nor a text of numbers"),
            row(b"\x7fELF" + bytes(200), FAILED, "neither a sound file"), row(bytes(5000), FAILED, "neither a sound"),
            row(b"\0", FAILED, "neither a sound"), row(b"\x89PNG\r\n\x1a\n" + bytes(40), FAILED, "neither a sound"),
            row(b"ID3\x04" + bytes(40), FAILED, "neither a sound"), row(b"PK\x03\x04" + bytes(40), FAILED, "neither"),
            row(b"\x1f\x8b\x08\x00" + bytes(40), FAILED, "neither a sound"),
            row(b"fLaC", DAMAGED, NONE_GOOD), row(b"fLaC" + bytes(40), DAMAGED, NONE_GOOD),
            row(b"OggS", DAMAGED, NONE_GOOD), row(b"OggS" + bytes(400), DAMAGED, NONE_GOOD),
            row(b"FORM" + bytes(400), FAILED, "neither a sound"), row(b"FORM\0\0\0\4AIFF", DAMAGED, NONE_GOOD),
            row(b".snd", DAMAGED, NONE_GOOD), row(b".snd" + bytes(400), FAILED, "cannot be read"),
            row(b"caff" + bytes(400), DAMAGED, NONE_GOOD), row(b"riff" + bytes(12), DAMAGED, NONE_GOOD),
            row(bytes(wrong_sum), DAMAGED, "the checksum of a frame is wrong; samples that are good: 256"),
            row(bytes(wrong_digest), DAMAGED, "another digest.*which samples are good cannot be told"),
            row(flac[:24] + b"\1" + flac[25:], DAMAGED, "its header announces 256 samples; samples that are good"),
            row(flac + b"more", DAMAGED, "no frame where one should be; samples that are good: 512"),
            row(bytes(ogg), DAMAGED, "the checksum of the page at byte \\d+ is wrong"),
            row(au[:20] + struct.pack(">I", 0) + au[24:], FAILED, "cannot be read"),
            row(au[:16] + struct.pack(">I", 0) + au[20:], FAILED, "rate"),
            row(au[:12] + struct.pack(">I", 999) + au[16:], FAILED, "cannot be read"),
            row(au[:8] + struct.pack(">I", 2 ** 31) + au[12:], DAMAGED, "announces 2147483648 bytes of sound"),
        ]
        expect_refusals(self, rows, 25)

    def test_sample_dumps(self):
        dump = self.sound("sds", "pcm16")  # 15 packets of 40 samples after 21 bytes
        self.assertEqual(len(dump), 21 + 15 * 127)

        def changed(place, byte):
            return dump[:place] + bytes([byte]) + dump[place + 1:]

        rows = [
            row(b"\xf0\x7e\0\1", DAMAGED, NONE_GOOD), row(dump[:20], DAMAGED, "ends before its sound begins"),
            row(dump[:21], DAMAGED, "its header announces 600 samples, and 0 are there; " + NONE_GOOD),
            row(dump[:-1], DAMAGED, "announces 600 samples, and 560 are there; samples that are good: 560"),
            row(changed(10, 89), DAMAGED, "announces 601 samples, and 600 are there"),
            row(changed(12, 127), DAMAGED, "announces 2081368 samples, and 600 are there"),
            row(changed(21 + 127 + 50, dump[21 + 127 + 50] ^ 1), DAMAGED,
                "the checksum of the packet at byte 148 is wrong; samples that are good: 40"),
            *(row(changed(21 + 254 + place, 5), DAMAGED, "there is no packet at byte 275; samples that are good: 80")
              for place in (0, 1, 3, 126)),
            *(row(changed(place, 200), DAMAGED, "a byte above 127 where it announces samples; " + NONE_GOOD)
              for place in (10, 11, 12)),
            row(changed(6, 7), FAILED, "cannot be read"), row(changed(6, 29), FAILED, "cannot be read"),
            row(b"\xf0\x7e\0\x03" + dump[4:], FAILED, "neither a sound"),
        ]
        expect_refusals(self, rows, 17)
        self.assertEqual(self.run_on(changed(2, 9)), 0)  # of another channel
        done = run(self.path("input", changed(21 + 127, 5)), "--length", "4", "--format", "csv", "--allow-damaged")
        lines = done.stdout.splitlines()
        self.assertEqual((done.returncode, len(lines)), (0, 1 + 600))
        self.assertFalse([line for line in lines[1:] if not re.fullmatch(rb"[-+.,e\d]+", line)])
        for bits, bytes_of_sample in ((8, 2), (14, 2), (15, 3), (21, 3), (22, 4), (28, 4)):
            # Packets of as many samples as there is room for.
            packets = -(-600 // (120 // bytes_of_sample))
            data = changed(6, bits)[:21]
            for number in range(packets):
                packet = bytes([0x7e, 0, 2, number]) + bytes(120)
                data += b"\xf0" + packet + bytes([0x7e ^ 2 ^ number]) + b"\xf7"
            self.assertEqual(self.run_on(data), 0, bits)
            self.refused(self.path("input", data[:-127]), "--length", "4",
                         says=f"samples that are good: {(packets - 1) * (120 // bytes_of_sample)}")

    def test_sound_on_standard_input(self):
        data = wav(form(), PCM)
        self.assertEqual(self.ok("-", "--length", "4", "--format", "csv", given=data),
                         self.ok(self.path("a.wav", data), "--length", "4", "--format", "csv"))
        rows = [Bad(["-", "--output", "{kept}"], status, "^standard input: " + says, given) for given, status, says in (
            (data[:100], DAMAGED, "the file is damaged: .*samples that are good: 28"),
            (b"\0\1\2", FAILED, "neither a sound"),
            (wav(form(codec=99), PCM), FAILED, "the sound cannot be read"), (b"", FAILED, "it is empty"))]
        expect_refusals(self, rows, 4)

    def test_channels_that_are_not_there(self):
        for channels, says in ((1, "has 1 channel$"), (2, "has 2 channels$")):
            rows = [Bad(["{folder}/a.wav", "--channel", str(number), "--output", "{kept}"], FAILED,
                        f"^--channel {number}: a.wav {says}", None, {"a.wav": sound_files.wav([[1] * 64] * channels)})
                    for number in (channels + 1, 99, 2 ** 31 - 1)]
            expect_refusals(self, rows, 3)

    def test_damage_that_is_allowed_is_reported(self):
        whole = wav(form(), PCM)
        done_whole = self.ok(self.path("a", whole), "--length", "4", "--format", "csv").splitlines()
        self.refused(self.path("a", whole[:-100]), "--length", "4", says="good: 150 (--allow-damaged goes on)")
        out = self.path("a.csv")
        done = run(self.path("a", whole[:-100]), "--length", "4", "--allow-damaged", "--output", out)
        self.assertEqual(done.returncode, 0)
        self.assertIn(b"the file is damaged", done.stderr)
        self.assertEqual(content_of(out).splitlines()[:149], done_whole[:149])
        self.assertFalse(os.path.exists(self.path(".a.csv.part")))


if __name__ == "__main__":
    main()
