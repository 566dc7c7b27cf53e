# Text that is no list of numbers, and tables that inverse cannot take.
import struct

from bad_inputs import Bad, expect_refusals
from tool import DAMAGED, FAILED, ToolTest, main, run

BYTE_ORDER_MARK = "\ufeff"


def text(content, says, *words, status=FAILED):
    content = content.encode() if isinstance(content, str) else content
    return Bad(["{folder}/input", "--length", "2", "--output", "{kept}", *words], status, "^input" + says, None,
               {"input": content})


def table(content, says, *words, status=FAILED):
    arguments = ["inverse", "{folder}/input", "--output", "{kept}", "--format", "text", "--family", "real",
                 "--length", "2", *words]
    content = content.encode() if isinstance(content, str) else content
    return Bad(arguments, status, "^input" + says, None, {"input": content})


HEAD = "frame,time,bin,frequency,re,im,magnitude\n"
GOOD = HEAD + "0,0,0,0,3,0,3\n0,0,1,0.5,-1,0,1\n1,2,0,0,7,0,7\n1,2,1,0.5,-1,0,1\n"
WRITTEN = "{'descr': '<c16', 'fortran_order': False, 'shape': (2, 2), }"


def npy(shape="(2, 2)", descr="<c16", order="False", data=bytes(64), header=None, version=1, start=b"\x93NUMPY"):
    header = header or "{'descr': '%s', 'fortran_order': %s, 'shape': %s, }" % (descr, order, shape)
    header = header.encode()
    header += b" " * (117 - len(header)) + b"\n"
    return start + bytes([version, 0]) + struct.pack("<H", len(header)) + header + data


class BadTexts(ToolTest):
    def test_words(self):
        rows = []
        for word, shown in (("five", "five"), ("0x10", "0x10"), ("1.5.2", "1.5.2"), ("nan", "nan"), ("inf", "inf"),
                            ("-inf", "-inf"), ("infinity", "infinity"), ("NaN(1)", "NaN\\(1\\)"), ("--1", "--1"),
                            ("+-1", "\\+-1"), ("1e", "1e"), ("+", "\\+"), ("-", "-"), (".", "."), ("1_000", "1_000"),
                            ("1'000", "1'000"), ("1/2", "1/2"), ("2i", "2i"), ("1e+", "1e\\+"), ("\u22121", "\u22121"),
                            ("\u0663", "\u0663"), ("\x01\x02", r"\?\?"), ("\x1b[31m1", r"\?\[31m1"),
                            ("\x1b]0;title\x07", r"\?\]0"),
                            ("\x7f", r"\?"), ("\x9b1m", r"\?\?1m"), ("\u202e1", r"\?\?\?1"), ("\u20661", r"\?\?\?1"),
                            (b"\xe91".decode("latin-1"), "\u00e91"),
                            ("x" * 2000, "x{40}\\.\\.\\."), ("NaN", "NaN"), ("true", "true"), ('"1"', '"1"')):
            for line, before in ((1, ""), (3, "1\n2\n"), (4, "1 2\r\n\r\n#x\r\n")):
                rows.append(text(before + word, f", line {line}: '{shown}' is not a number$"))
        for word in ("1e999", "-1e999", "7" * 400, "1e-999"):
            rows.append(text("1 " + word, f", line 1: '{word[:40]}(\\.\\.\\.)?' is beyond the range of a number$"))
        rows.append(text("1 " + "7" * (1 << 20) + "7", r", line 1: '7{40}\.\.\.' is longer than 1048576 letters$"))
        rows.append(text(b"1 2\n3 \xff", r", line 2: '\?' is not a number$"))
        rows.append(text(b"1 2\n3 \xc3", r", line 2: '\?' is not a number$"))
        expect_refusals(self, rows, 100)

    def test_texts(self):
        wide = "1 2 3 4\n"
        rows = [
            text("", ": it is empty$"), text("# nothing\n", ": too few samples: 0, and one frame takes 2$"),
            text("   \n\t\n", ": too few samples: 0"), text("1", ": too few samples: 1"),
            text(BYTE_ORDER_MARK, ": too few samples: 0"),
            text(BYTE_ORDER_MARK + "x", ", line 1: 'x' is not a number$"),
            text("1 2\n" + BYTE_ORDER_MARK + "3", ", line 2: '\ufeff3' is not a number$"),
            text(wide.encode("utf-16-le"),
                 ": this is text in UTF-16 without a byte-order mark; iconv turns it into UTF-8$"),
            text(wide.encode("utf-16-be"), ": this is text in UTF-16 without a byte-order mark"),
            text((BYTE_ORDER_MARK + wide).encode("utf-16-le")[:-1],
                 ", line 1: the text ends within a letter of UTF-16$"),
            text((BYTE_ORDER_MARK + "1\nx\n").encode("utf-16-be"), ", line 2: 'x' is not a number$"),
            text((BYTE_ORDER_MARK + "1 \u20ac").encode("utf-16-le"), r", line 1: '\?' is not a number$"),
            text(wide.encode("utf-32"), ".*(neither a sound file|is not a number)"),
            text(b"1 2 \0 3", ": neither a sound file that can be read nor a text of numbers$"),
            text(b"1 " * 400 + b"\0", r", line 1: '\?' is not a number$"),
            text("1;2;x", ", line 1: 'x' is not a number$"),
            text("1,5 2.5", ", line 1: '2.5' is not a number with a decimal comma$", "--decimal", "comma"),
            text("1,5,2 3", ", line 1: '1.5.2' is not a number$", "--decimal", "comma"),
            text("time,value\n0,1\n", ", line 1: 'time' is not a number$"),
            text("{\"a\": 1}", ", line 1: '{\"a\":' is not"),
            text("<html>", ", line 1: '<html>' is not a number$"), text("%PDF-1.4", ", line 1: '%PDF-1.4' is not"),
            text("1 2 3", ": too few samples: 0", "--start", "10"),
            text("1 2 3 4", ": too few samples: 1", "--end", "1"),
            text("1e308 1e308", "")._replace(says="^the spectrum is beyond the range of 64 bits$"),
            text("1e39 1", "", "--precision",
                 "32")._replace(says="^the samples .* beyond the range of 32 bits; --precision 64"),
        ]
        expect_refusals(self, rows, 25)

    def test_texts_that_are_read(self):
        plain = self.ok("-", "--length", 4, given=b"1 2.5 -3 4")
        for content in ("\ufeff1 2.5 -3 4", "1\r\n2.5\r\n-3\r\n4\r\n", "1;2.5;-3;4", "1,2.5,-3,4", "+1 25e-1 -3.0 4."):
            self.assertEqual(self.ok("-", "--length", 4, given=content.encode()), plain)
        for code in ("utf-16-le", "utf-16-be"):
            self.assertEqual(self.ok("-", "--length", 4, given="\ufeff1 2.5\n-3 4".encode(code)), plain)
        for content in (b"1 2,5 -3 4", b"1;2,5;-3;4,0", b"1\t2,5\n-3 4"):
            self.assertEqual(self.ok("-", "--length", 4, "--decimal", "comma", given=content), plain)
        # A comma is never guessed to be a decimal mark: these are five numbers.
        self.assertIn(b"\n# frame 1 at sample 4\n", self.ok("-", "--length", 4, given=b"1,2,5,-3,4"))


class BadTables(ToolTest):
    def test_csv(self):
        self.assertEqual(self.ok("inverse", self.path("good", GOOD.encode()), "--family", "real", "--length", 2),
                         b"1\n2\n3\n4\n")
        lines = GOOD.splitlines(keepends=True)
        rows = [
            table("", ": it is empty$"), table("1 2 3 4\n", ": its first line is not that of a table"),
            table(HEAD.replace("frequency", "sequency"), ": its first line is not that"),
            table("\ufeff" + GOOD, ": its first"),
            table(HEAD.replace(",re,im", ""), ": its first line is not that"),
            table("\x1b[2J\n", ": its first line is not"),
            table(HEAD, ": it holds no frame$"), table(HEAD[:-1], ".*line 1.*frames that are good: 0$", status=DAMAGED),
            table(GOOD[:-1], ": the file is damaged: it ends within line 5; frames that are good: 1$", status=DAMAGED),
            table("".join(lines[:4]), ": the file is damaged: it ends within frame 1; frames that are good: 1$",
                  status=DAMAGED),
            table("".join([*lines[:2], *lines[3:]]), ", line 3: frame 0, bin 1 is due, of 2 bins in a frame$"),
            table("".join([lines[0], *lines[3:]]), ", line 2: frame 0, bin 0 is due"),
            table(GOOD + GOOD, ", line 6: 'frame,time,bin,frequency,re,im,magnitude' is not a row of 7 numbers$"),
        ]
        for cell in ("", "x", "nan", "inf", "0x1", "1e999", " 1", "1 ", "1,1", "\x1b[31m", "1e", "--1"):
            rows.append(table(GOOD.replace("7,0,7", f"{cell},0,7"),
            ", line 4: '1,2,0,0,.*' is not a row of 7 numbers$"))
        for wrong, right in (("0,0,1,0.5", "0,0,1,-0.5"), ("0,0,0,0,3", "0,0,0,1,3"),
                             ("1,2,0,0,7", "1,0,0,0,7"), ("1,2,0,0,7", "1,-2,0,0,7"), ("1,2,0,0,7", "1,1e300,0,0,7"),
                             ("1,2,0,0,7", "2,2,0,0,7"), ("1,2,0,0,7", "1.5,2,0,0,7"), ("0,0,1,0.5", "0,0,1,0")):
            rows.append(table(GOOD.replace(wrong, right), ", line [2-5]: "))
        rows.append(table(GOOD, ".*", "--hop", "1")._replace(says="^--hop 1: input has a hop of 2$"))
        arguments = ["inverse", "{folder}/input", "--output", "{kept}", "--family", "real", "--length", "2", "--format"]
        rows.append(Bad([*arguments, "wav"], 2, "^--rate is required: input does not tell",
        None, {"input": GOOD.encode()}))
        for rate in ("0.4", "1e-300", "2147483647", "1e300"):
            rows.append(Bad([*arguments, "wav", "--rate", rate], 2, "^--rate .*: no sound file has this rate", None,
                            {"input": GOOD.encode()}))
        rows.append(Bad([*arguments, "flac", "--rate", "700000"], 2, "^--rate 700000: no sound file has this rate",
        None,
                        {"input": GOOD.encode()}))
        sound = GOOD.replace("0.5,-1", "4000,-1").replace("1,2,", "1,0.00025,")
        rows.append(Bad([*arguments, "wav", "--rate", "9000"], FAILED, "^--rate 9000: input has a rate of 8000", None,
                        {"input": sound.encode()}))
        expect_refusals(self, rows, 40)

    def test_npy(self):
        not_as_written = ": not an array of frames and bins as transform writes it$"
        rows = [
            table(npy(data=bytes(63)), ": the file is damaged: it ends within frame 1; frames that are good: 1$",
                  status=DAMAGED),
            table(npy(data=b""), ": .*within frame 0; frames that are good: 0$", status=DAMAGED),
            table(npy()[:60], ": the file is damaged: it ends within its header; frames that are good: 0$",
            status=DAMAGED),
            table(npy()[:8], ": .*within its header", status=DAMAGED),
            table(npy()[:6], ": .*within its header", status=DAMAGED),
            table(npy(data=bytes(65)), ": there is more after its last frame$"), table(npy("(0, 2)", data=b""),
            ": it holds no frame$"),
            table(npy("(2, 3)"), ": a frame has 3 bins, and 2 at this family and length$"),
            table(npy("(2, 0)"), ": a frame has 0 bins"), table(npy("(2,)"), not_as_written), table(npy("()"),
            not_as_written),
            table(npy("(2, 2, 1)"), not_as_written), table(npy("(-2, 2)"), not_as_written),
            table(npy("(99999999999999999999, 2)"), not_as_written), table(npy(order="True"), not_as_written),
            table(npy(descr=">c16"), not_as_written), table(npy(descr="<i4"), not_as_written), table(npy(descr="|O"),
            not_as_written),
            table(npy(descr="<f8"), ": its numbers are real"), table(npy(descr="<f4"), ": its numbers are real"),
            table(npy(descr="<c4"), ": "), table(npy(header="{'shape': (2, 2)}"), not_as_written),
            table(npy(header="\x1b[2J"), not_as_written), table(npy(header="__import__('os')"), not_as_written),
            # As long as a header may be: what fills it up, and what does not.
            table(npy(header=WRITTEN + " " * 65000, data=bytes(63)), ": .*within frame 1", status=DAMAGED),
            table(npy(header=WRITTEN + " " * 65000 + "x"), not_as_written),
            table(npy(header="{" + " " * 65000 + WRITTEN), not_as_written),
            table(npy(start=b"\x93NUMPX"), ": its first line is not that of a table"),
            table(npy()[:6] + b"\2\0\xff\xff\xff\xff" + bytes(40), ": the header of the array is too long$"),
            table(npy("(1000000000000, 2)"), ": .*it ends within frame 2; frames that are good: 2$", status=DAMAGED),
        ]
        for value, what in ((float("nan"), "nan"), (float("inf"), "inf"), (float("-inf"), "-inf")):
            for place in (0, 3, 7):
                data = bytearray(64)
                data[8 * place:8 * place + 8] = struct.pack("<d", value)
                rows.append(table(npy(data=bytes(data)),
                f": bin {place // 2 % 2} of frame {place // 4} is infinite or not"))
        expect_refusals(self, rows, 30)

    def test_tables_of_other_transforms(self):
        numbers = b"1 2 3 4 5 6 7 9" * 8
        csv = {}
        for family, size in (("complex", ["--length", 8]), ("real", ["--length", 8]), ("wht", ["--order", 3]),
                             ("dct4", ["--length", 8]), ("hartley", ["--length", 8])):
            csv[family] = run("-", "--family", family, *size, "--format", "csv", given=numbers).stdout
        rows = []
        for made, wanted in ((made, wanted) for made in csv for wanted in csv):
            # The tables of complex and hartley have the same bins; that the numbers are complex is not to be seen.
            if made == wanted or {made, wanted} == {"complex", "hartley"}:
                continue
            arguments = ["inverse", "{folder}/input", "--output", "{kept}", "--format", "text", "--family", wanted,
                         *(["--order", "3"] if wanted == "wht" else ["--length", "8"])]
            rows.append(Bad(arguments, FAILED, "^input(, line \\d+|: its first line)", None, {"input": csv[made]}))
        for length in (4, 7, 9, 16, 64):
            arguments = ["inverse", "{folder}/input", "--output", "{kept}", "--format", "text", "--length", str(length)]
            rows.append(Bad(arguments, FAILED, "^input, line ", None, {"input": csv["complex"]}))
        expect_refusals(self, rows, 20)


if __name__ == "__main__":
    main()
