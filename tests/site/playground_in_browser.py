"""Drives the playground in the browser: known inputs give known spectra, files that hold no sound get a clear
message."""
import cmath
import ctypes
import json
import math
import pathlib
import random as randoms
import struct
import tempfile
import wave

from selenium.webdriver.common.by import By
from selenium.webdriver.common.keys import Keys
from selenium.webdriver.support.ui import Select


def numbers(browser, selector):
    return [float(word) for word in browser.one(selector).get_property("value").split(",")]


def wav(path, samples):
    with wave.open(str(path), "wb") as file:
        file.setnchannels(1)
        file.setsampwidth(2)
        file.setframerate(8000)
        file.writeframes(b"".join(struct.pack("<h", sample) for sample in samples))


def native(library, family, element, n, flag, x):
    """The output of the built library for the same input, as a list of numbers."""
    real = ctypes.c_float if element == "32f" else ctypes.c_double
    size = {"complex": 2 * n, "ccs": n // 2 * 2 + 2}.get(family, n)
    source, destination = (real * len(x))(*x), (real * size)()
    if family == "dct4":
        plan = ctypes.c_void_p()
        getattr(library, f"zulgDCT4InitAlloc_{element}")(ctypes.byref(plan), n)
        status = getattr(library, f"zulgDCT4_{element}")(source, destination, plan)
        getattr(library, f"zulgDCT4Free_{element}")(plan)
    elif family == "wht":
        status = getattr(library, f"zulgWHT_{n.bit_length() - 1}_{element}")(source, destination, flag, None)
    else:
        name = {"complex": "DFTFwd_CToC", "hartley": "Hartley"}.get(
            family, "DFTFwd_RTo" + family.replace("pack", "Pack").replace("perm", "Perm").replace("ccs", "CCS")
        )
        suffix = element + ("c" if family == "complex" else "")
        status = getattr(library, f"zulg{name}_{n}_{suffix}")(source, destination, flag)
    return list(destination) if status == 0 else None


def same_as_native(browser, expect, path):
    """Random inputs give the bits of the built library, but for the DCT-IV above 32 points, whose tables are others."""
    library, random, count = ctypes.CDLL(str(path.resolve())), randoms.Random(11), 0
    for family in ("complex", "ccs", "pack", "perm", "hartley", "wht", "dct4"):
        lengths = [2**k for k in range(1, 8)] if family in ("wht", "dct4") else range(2, 65)
        for n in lengths:
            for element in ("64f", "32f"):
                flag = random.choice((1, 2, 4, 8))
                x = [random.gauss(0, 1) for _ in range(2 * n if family == "complex" else n)]
                found = browser.run(
                    (
                        "return Array.from(zulg.routines.transform(arguments[0], arguments[1], arguments[2],"
                        " arguments[3], false, arguments[4]))"
                    ),
                    family,
                    n,
                    element,
                    flag,
                    x,
                )
                due = native(library, family, element, n, flag, x)
                far = max(abs(a - b) for a, b in zip(found, due))
                expect(
                    far <= (1e-5 if family == "dct4" and n > 32 else 0) and len(found) == len(due),
                    f"playground: {family} of {n} points in {element} is {far} from the library",
                )
                count += 1
    print(f"{count} random inputs give what the library gives", flush=True)


def drive(browser, expect, library=None):
    browser.open("playground/index.html")
    browser.wait(lambda: browser.run("return typeof zulg !== 'undefined' && zulg.firstResult > 0"), 20)
    first = browser.run("return zulg.firstResult")
    print(f"first result {first:.0f} ms after opening", flush=True)
    one_transform(browser, expect)
    sounds(browser, expect)
    parts(browser, expect)
    if library:
        same_as_native(browser, expect, library)
    expect(not browser.said(), "playground: the console says something")


def one_transform(browser, expect):
    # By hand: six points, typed, in Pack.
    Select(browser.one("#signal-family")).select_by_value("pack")
    Select(browser.one("#signal-length")).select_by_value("6")
    field = browser.one("#signal-input")
    field.clear()
    field.send_keys("1 2 3 4 5 6", Keys.TAB)
    due = [21, -3, 3 * math.sqrt(3), -3, math.sqrt(3), -3]
    found = numbers(browser, "#signal-output")
    expect(
        len(found) == 6 and max(abs(a - b) for a, b in zip(found, due)) < 1e-13, f"playground: Pack of 1 … 6 is {found}"
    )
    held = browser.run("return Array.from(document.querySelectorAll('#signal-slots .held')).map(e => e.textContent)")
    expect(held == ["Re X0", "Re X1", "Im X1", "Re X2", "Im X2", "Re X3"], f"playground: slots {held}")
    error = float(browser.one("#signal-error").get_property("value"))
    expect(error < 1e-15, f"playground: the way back has an error of {error}")
    # One sample moves all bins of a real transform but those that it has no part in.
    browser.one("#signal-at").send_keys(Keys.CONTROL, "a", Keys.NULL, "0")
    browser.one("#signal-value").send_keys(Keys.CONTROL, "a", Keys.NULL, "2")
    browser.one("#signal-change").click()
    expect("slots moved" in browser.one("#signal-said").text, "playground: nothing is said of what moved")
    expect(abs(numbers(browser, "#signal-output")[0] - 22) < 1e-12, "playground: the changed sample has no effect")
    for wrong, words in (("1 2 3", "6 points take 6"), ("1 2 x 4 5 6", "is no number")):
        field.clear()
        field.send_keys(wrong, Keys.TAB)
        expect(
            words in browser.one("#signal-said").text, f"playground: {wrong} gets {browser.one('#signal-said').text}"
        )
    # Every family and length against the definitions, in one go.
    for family, n in (
        ("complex", 15),
        ("complex", 64),
        ("hartley", 9),
        ("wht", 32),
        ("dct4", 64),
        ("perm", 8),
        ("ccs", 7),
    ):
        count = browser.run("return zulg.sizes(arguments[0], arguments[1]).input", family, n)
        x = [math.sin(k * k + 1) for k in range(count)]
        found = browser.run("return zulg.show(arguments[0], arguments[1], '64f', 8, arguments[2])", family, n, x)
        expect(
            len(found) > 0 and max(abs(a - b) for a, b in zip(found, defined(family, n, x))) < 1e-12 * n,
            f"playground: {family} of {n} points is wrong",
        )


def defined(family, n, x):
    """The output by the definition."""

    def dft(values):
        return [sum(v * cmath.exp(-2j * math.pi * m * k / n) for m, v in enumerate(values)) for k in range(n)]

    if family == "complex":
        return [
            part for bin_ in dft([complex(a, b) for a, b in zip(x[::2], x[1::2])]) for part in (bin_.real, bin_.imag)
        ]
    if family == "hartley":
        return [bin_.real - bin_.imag for bin_ in dft(x)]
    if family == "wht":
        return [sum((-1) ** (j & k).bit_count() * v for j, v in enumerate(x)) for k in range(n)]
    if family == "dct4":
        return [sum(v * math.cos(math.pi * (j + 0.5) * (k + 0.5) / n) for j, v in enumerate(x)) for k in range(n)]
    bins = dft(x)
    inner = [part for k in range(1, (n + 1) // 2) for part in (bins[k].real, bins[k].imag)]
    if family == "perm":
        return [bins[0].real, bins[n // 2].real] + inner
    return [bins[0].real, 0] + inner


def sounds(browser, expect):
    with tempfile.TemporaryDirectory() as folder:
        tone, wrong = pathlib.Path(folder) / "tone.wav", pathlib.Path(folder) / "wrong.wav"
        wav(tone, [int(16000 * math.cos(2 * math.pi * 3000 * k / 8000)) for k in range(8000)])
        wrong.write_bytes(b"this is no sound at all")
        Select(browser.one("#signal-family")).select_by_value("ccs")
        Select(browser.one("#signal-length")).select_by_value("32")
        browser.one("#signal-file").send_keys(str(tone))
        browser.wait(lambda: "tone.wav" in browser.one("#signal-said").text)
        bins = numbers(browser, "#signal-output")
        powers = [math.hypot(*bins[2 * k : 2 * k + 2]) for k in range(17)]
        # The browser takes the sound at the rate of its own.
        due = 3000 * 32 / browser.run("return zulg.audio().sampleRate")
        strongest = max(range(17), key=powers.__getitem__)
        expect(abs(strongest - due) < 0.6 and len(bins) == 34, f"playground: 3000 Hz is in bin {strongest}, not {due}")
        browser.one("#signal-listen-kept").click()
        expect(browser.run("return zulg.heard.length") > 7000, "playground: nothing can be heard")
        browser.one("#signal-file").send_keys(str(wrong))
        browser.wait(lambda: "holds no sound" in browser.one("#signal-said").text)
        expect("wrong.wav" in browser.one("#signal-said").text, "playground: the message does not name the file")


def parts(browser, expect):
    browser.one("#open-picture").click()
    browser.wait(lambda: "coefficients are kept" in browser.one("#picture-said").text)
    browser.run("const e = document.getElementById('picture-keep'); e.value = 100; e.dispatchEvent(new Event('input'))")
    expect("is the same" in browser.one("#picture-said").text, f"playground: {browser.one('#picture-said').text}")
    for family in ("wht", "hartley"):
        Select(browser.one("#picture-family")).select_by_value(family)
        expect("is the same" in browser.one("#picture-said").text, f"playground: {browser.one('#picture-said').text}")
    browser.one("#open-picture").send_keys(Keys.ARROW_RIGHT)
    browser.wait(lambda: browser.one("#mdct").is_displayed())
    error = float(browser.one("#mdct-error").get_property("value"))
    expect(0 < error < 1e-14, f"playground: the MDCT restores with an error of {error}")
    browser.run("const e = document.getElementById('mdct-keep'); e.value = 10; e.dispatchEvent(new Event('input'))")
    error = float(browser.one("#mdct-error").get_property("value"))
    expect(1e-6 < error < 0.6, f"playground: a tenth of the coefficients gives an error of {error}")
    browser.driver.find_elements(By.CSS_SELECTOR, "#parts button")[0].click()
    print(json.dumps({"playground": "driven"}), flush=True)
