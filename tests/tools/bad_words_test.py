# Every option with every kind of wrong word. The message names the option, shows the word as far as it can be shown,
# and says what is wrong with it.
import re

from bad_inputs import Bad, expect_refusals
from tool import FAILED, USAGE, ToolTest, main

NUMBERS = b"1 2 3 4 " * 64
# A word, and how a message shows it.
NO_NUMBERS = [("", "''"), (" ", "' '"), ("many", "many"), ("0x10", "0x10"), ("8,5", "8,5"), ("8 ", "8 "), (" 8", " 8"),
              ("+-8", "+-8"), ("++8", "++8"), ("8-", "8-"), ("\t8", "?8"), ("8\n", "8?"), ("\x1b[31m8", "?[31m8"),
              (b"8\xff", "8?"), (b"\xc0\xb8", "??"), ("\uff18", "\uff18"), ("\u202e8", "???8"),
              ("x" * 2000, "x" * 60 + "..."),
              ("nan", "nan"), ("inf", "inf"), ("8e", "8e"), ("8.5.1", "8.5.1"), ("8;rm", "8;rm")]
NO_WHOLE_NUMBERS = [*NO_NUMBERS, ("1e3", "1e3"), ("8.5", "8.5"), (".", ".")]
HUGE = "9" * 30

FRAMED = ["transform", "-", "--output", "{kept}"]
PICTURE = ["spectrogram", "-", "--output", "{kept}", "--format", "png"]
INVERSE = ["inverse", "{folder}/spectra.csv", "--output", "{kept}", "--format", "text", "--length", "4"]
SPECTRA = {"spectra.csv": b"frame,time,bin,frequency,re,im,magnitude\n0,0,0,0,1,0,1\n0,0,1,0.25,1,0,1\n"
                          b"0,0,2,0.5,1,0,1\n0,0,3,-0.25,1,0,1\n"}
BATCH = ["batch", "{folder}/spectra.csv", "--into", "{folder}/new"]

# Command, option, the least and the most. What is beyond is refused with the bound, or by the library with its sizes.
WHOLE = [(FRAMED, "--length", None, None), (["-", "--output", "{kept}", "--family", "wht"], "--order", None, None),
         (FRAMED, "--hop", 1, 2 ** 31 - 1), (FRAMED, "--noverlap", 0, 63), (FRAMED, "--channel", 1, 2 ** 31 - 1),
         (PICTURE, "--columns", 1, 4096), (INVERSE, "--samples", 1, 2 ** 62 - 1), (BATCH, "--jobs", 1, 1024)]
REAL = [(FRAMED, "--start"), (FRAMED, "--end"), (PICTURE, "--range"), (INVERSE, "--rate"), (["bench"], "--time")]

# Command, option, what its message says about a word that is no name.
NAMES = [(FRAMED, "--family", "no such family; known: complex, real, hartley, wht, dct4"),
         (FRAMED, "--flag", "neither a number nor forward, backward, ortho or none"),
         (FRAMED, "--window", "no such window; known: none, boxcar, hann"),
         (FRAMED, "--precision", "neither 32 nor 64"), (FRAMED, "--decimal", "neither point nor comma"),
         (PICTURE, "--colours", "no such map of colours; known: dusk"),
         (["bench"], "--family", "no such family; known"),
         (FRAMED, "--format", "no format of this command; it has text, csv, json, npy$"),
         (["inverse", "{folder}/spectra.csv", "--output", "{kept}"], "--format",
          "no format of this command; it has text, wav, flac$"),
         ([*INVERSE[:-4], "--format", "wav", "--length", "4", "--rate", "8000"], "--encoding",
          "no such encoding; known: float, double, pcm24, pcm16"),
         (BATCH, "--format", "no format of this command; it has text, csv, json, npy, png, svg$")]
NO_NAMES = [(" ", "' '"), ("x", "x"), ("HANN", "HANN"), ("hann ", "hann "), ("64.0", "64.0"),
("\x1b]0;x\x07", "?]0;x?"),
            (b"\xff\xfe", "??"), ("real\n", "real?"), ("\u2028", "???"), ("y" * 5000, "y" * 60 + "...")]


def word_after(arguments, option, word, status, message, files=None):
    given = NUMBERS if "-" in arguments else None
    return Bad([*arguments, option, word], status, message, given, SPECTRA if files is None else files)


class BadWords(ToolTest):
    def test_words_that_are_no_whole_numbers(self):
        rows = []
        for arguments, option, _, _ in WHOLE:
            for word, shown in NO_WHOLE_NUMBERS:
                rows.append(word_after(arguments, option, word, USAGE,
                                       "^" + re.escape(f"{option} {shown}: not a whole number") + "$"))
        expect_refusals(self, rows, 200)

    def test_words_that_are_no_numbers(self):
        rows = []
        for arguments, option in REAL:
            for word, shown in NO_NUMBERS:
                # A time may have colons between numbers; all else is the same.
                rows.append(word_after(arguments, option, word, USAGE,
                                       "^" + re.escape(f"{option} {shown}: not a number") + "$"))
        for word, shown in NO_WHOLE_NUMBERS:
            if "," not in shown:
                rows.append(Bad(["bench", "--lengths", word], USAGE,
                                "^" + re.escape(f"--lengths {shown}: not a whole number") + "$"))
        expect_refusals(self, rows, 130)

    def test_numbers_that_are_out_of_bounds(self):
        rows = []
        for arguments, option, least, most in WHOLE:
            low = [least - 1, -8] if least is not None else []
            high = [most + 1] if most is not None else []
            for number in [*low, "-" + HUGE, "-1"]:
                message = f"{option} {number}: " + ("the least is " if least is not None or number != "-1" else "")
                rows.append(word_after(arguments, option, number, USAGE, "^" + re.escape(message)))
            for number in [*high, HUGE]:
                rows.append(word_after(arguments, option, number, USAGE, f"^{option} {number}: the most is "))
        for arguments, option, words, message in (
                (FRAMED, "--start", ("-1", "1:60", "1:-1"), "a time is seconds, samples, or h:m:s"),
                (FRAMED, "--end", ("0", "0:0"), "it is not after the start"),
                (FRAMED, "--start", ("1e300", "1e16"), "too large"),
                (FRAMED, "--start", ("1:", ":", "1::2", "::"), "not a number"),
                (PICTURE, "--range", ("0", "-5", "1001", "1e300"), "a picture shows 1 to 1000 decibels"),
                (INVERSE, "--rate", ("0", "-8000"), "a rate is above 0"),
                (["bench"], "--time", ("0", "-1", "101", "1e-9"), "a round takes 0.00001 to 100 seconds"),
                (["bench"], "--lengths", ("0", "65", "7,,9", ",", "60,"),
                r"(the least is 1|no transform|not a whole)")):
            for word in words:
                # What the library has no transform for is told of the one length.
                start = option.removesuffix("s") if word == "65" else option
                rows.append(word_after(arguments, option, word, USAGE, f"^{start}.*: .*" + message))
        for word in ("65", "1", "0", "-4"):
            rows.append(Bad(["layout", word], USAGE, f"^layout {word}: lengths are 2 to 64$"))
        for word, shown in NO_WHOLE_NUMBERS:
            if not shown.startswith("-"):
                rows.append(Bad(["layout", word], USAGE, "^" + re.escape(f"N {shown}: not a whole number") + "$"))
        expect_refusals(self, rows, 80)

    def test_words_that_are_no_names(self):
        rows = []
        for arguments, option, says in NAMES:
            for word, shown in NO_NAMES:
                rows.append(word_after(arguments, option, word, USAGE,
                                       "^" + re.escape(f"{option} {shown}: ") + says.replace(".", r"\.")))
            rows.append(word_after(arguments, option, "", USAGE, f"^{option} '': "))
        for word, shown in [*NO_NAMES, ("", "''")]:
            rows.append(Bad(["completion", word], USAGE, "^" + re.escape(f"completion {shown}: no such shell")))
            rows.append(Bad(["info", word], USAGE, "^" + re.escape(f"{shown}: no routine of the library; ")))
        for word, says in (("kaiser", "say kaiser:BETA"), ("gaussian", "say gaussian:STD"),
        ("hann:3", "has no parameter"),
                           ("kaiser:", "BETA '': not a number"), ("kaiser:x", "BETA x: not a number"),
                           ("kaiser:-1", "BETA is 0 to 700"), ("kaiser:701", "BETA is 0 to 700"),
                           ("kaiser:nan", "BETA nan: not a number"), ("tukey:1.5", "SHARE is 0 to 1"),
                           ("tukey:1:2", "SHARE 1:2: not a number"), ("gaussian:0", "STD is 0.001 to 1e"),
                           (":", "no such window"), ("none:1", "no parameter")):
            rows.append(word_after(FRAMED, "--window", word, USAGE, "^--window .*" + says))
        expect_refusals(self, rows, 140)

    def test_options_that_do_not_belong(self):
        rows = []
        for command, option in (("transform", "--columns"), ("transform", "--range"), ("transform", "--colours"),
                                ("transform", "--rate"), ("transform", "--jobs"), ("spectrogram", "--encoding"),
                                ("inverse", "--check"), ("inverse", "--start"), ("inverse", "--columns"),
                                ("batch", "--output"), ("batch", "--check"), ("layout", "--length"),
                                ("info", "--family"),
                                ("bench", "--hop"), ("bench", "--output"), ("completion", "--json"),
                                ("manual", "--json"),
                                ("", "--jobs"), ("", "--nonsense"), ("layout", "-x"), ("", "-l"), ("", "--leng")):
            rows.append(Bad([*([command] if command else []), "8" if command == "layout" else "kept.csv", option, "8"],
                            USAGE, "^" + option + ": there is no such option"))
        for option in ("--length", "--hop", "--family", "--window", "--flag", "--precision", "--channel", "--start",
                       "--end", "--decimal", "--format", "--output", "--columns", "--range", "--colours"):
            rows.append(Bad(["-", option], USAGE, f"^{option}.*its value is missing", NUMBERS))
            rows.append(Bad(["-", option, "8", option, "8"], USAGE, f"^{option}.*it is given more than once", NUMBERS))
        for words, says in (
                ([], "^INPUT is required"), (["transform"], "^INPUT is required"),
                (["spectrogram"], "^INPUT is required"),
                (["inverse"], "^INPUT is required"), (["batch"], "^FILE-OR-FOLDER is required"),
                (["batch", "kept.csv"], "^--into is required"), (["layout"], "^N is required"),
                (["completion"], "^SHELL is required"), ([""], "^INPUT '': a file has a name"),
                (["transform", ""], "^INPUT '': a file has a name"),
                (["-", "--output", ""], "^--output '': a file has"),
                (["kept.csv", "second"], "^second: a word too many"), (["layout", "8", "9"], "^9: a word too many"),
                (["info", "a", "b"], "^b: a word too many"), (["bench", "8"], "^8: a word too many"),
                (["kept.csv", "layout"], "^layout: a command is the first word"),
                (["--length", "8", "batch"], "^batch: a command is the first word"),
                (["-", "\x1b[2J"], r"^\?\[2J: a word too many"), (["-", b"\xff\xfe"], r"^\?\?: a word too many"),
                (["-", "--\x1b"], r"^--\?: there is no such option"),
                (["-", "--output", "x.gif"], "^--output x.gif: no format"),
                (["-", "--output", "x.wav"], "^--output x.wav: no format"),
                (["inverse", "-", "--output", "x.png"], "^--output x.png: no format"),
                (["-", "--hop", "8", "--noverlap", "8"], "^--hop 8 beside --noverlap 8: one of them is enough"),
                (["-", "--family", "wht", "--order", "4", "--length", "16"], "^--order 4 beside --length 16"),
                (["-", "--family", "real", "--order", "4"], "^--order 4: the real family has no orders"),
                (["-", "--family", "dct4", "--flag", "none"], "^--flag none: the dct4 family has no scale"),
                (["-", "--flag", "3"], "^--flag 3: .*none of 1, 2, 4, 8"),
                (["-", "--start", "9", "--end", "8"], "^--end 8: it is not after the start"),
                (["info", "--list", "zulgWHT_64f"], "^--list beside ROUTINE"),
                (["inverse", "-", "--format", "text", "--encoding", "float"], "^--encoding float: text has none"),
                (["inverse", "-", "--format", "flac", "--encoding", "float", "--rate",
                "8"], "^--encoding float: FLAC has"),
                (["transform", "-", "--length", "65"], "^--length 65: no transform of this length; .* 2-"),
                (["transform", "-", "--family", "dct4", "--length", "60"], "^--length 60: not a power of two"),
                (["transform", "-", "--family", "wht", "--order", "14"], "^--order 14: no transform of this order"),
                (["-", "--family=fancy"], "^--family fancy: no such family")):
            spectra = SPECTRA["spectra.csv"]
            # Some need a table that is right before they come to the word that is wrong.
            inverse = ["--length", "4"] if words[:1] == ["inverse"] and len(words) > 2 else []
            rows.append(Bad([*words, *inverse], USAGE, says, spectra if inverse else NUMBERS if "-" in words else None))
        rows.append(Bad(["-", "--channel", "2"], FAILED, "^--channel 2: standard input holds numbers", NUMBERS))
        rows.append(Bad(["-", "--channel", "mix"], FAILED, "^--channel mix: standard input holds numbers", NUMBERS))
        expect_refusals(self, rows, 80)

    def test_numbers_are_decimal(self):
        given = b"1 2 3 4 5 6 7 8 9 10"
        ten = self.ok("-", "--length", "10", given=given)
        for word in ("010", "+10", "0000000000000000000000000000000010"):
            self.assertEqual(self.ok("-", "--length", word, given=given), ten)


if __name__ == "__main__":
    main()
