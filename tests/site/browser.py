#!/usr/bin/env python3
"""Opens every page of the site as a file in headless Chromium: nothing may be said on the console, and no image or
script may be missing. Searches every routine, looks at accessibility with axe-core, drives the playground, and takes
pictures.

browser.py --site FOLDER --axe FILE --pictures FOLDER [--library FILE] [--only WORD]
"""
import argparse
import base64
import json
import pathlib
import re
import struct
import sys
import tempfile
import time

from selenium import webdriver
from selenium.webdriver.common.by import By
from selenium.webdriver.common.keys import Keys
from selenium.webdriver.support.ui import Select, WebDriverWait

failures = []


def expect(holds, what):
    if not holds:
        failures.append(what)
        print("FAILED:", what, flush=True)


def parsed():
    parser = argparse.ArgumentParser()
    for name in ("site", "axe", "pictures"):
        parser.add_argument(f"--{name}", type=pathlib.Path, required=True)
    parser.add_argument("--library", type=pathlib.Path, help="the built library, to compare the playground with")
    parser.add_argument(
        "--only", default="", help="only the parts with this word: pages, search, axe, atlas, playground, pictures"
    )
    return parser.parse_args()


class Browser:
    def __init__(self, site):
        options = webdriver.ChromeOptions()
        for word in (
            "--headless=new",
            "--no-sandbox",
            "--disable-gpu",
            "--disable-dev-shm-usage",
            "--window-size=1200,1400",
            "--use-fake-ui-for-media-stream",
            "--use-fake-device-for-media-stream",
        ):
            options.add_argument(word)
        options.set_capability("goog:loggingPrefs", {"browser": "ALL"})
        options.page_load_strategy = "normal"
        self.driver = webdriver.Chrome(options=options)
        self.site = site.resolve()

    def open(self, path):
        self.driver.get(f"file://{self.site}/{path}")

    def said(self):
        """What the console says since the last look."""
        return [entry["message"] for entry in self.driver.get_log("browser")]

    def run(self, script, *arguments):
        return self.driver.execute_script(script, *arguments)

    def one(self, selector):
        return self.driver.find_element(By.CSS_SELECTOR, selector)

    def wait(self, condition, seconds=10):
        WebDriverWait(self.driver, seconds).until(lambda driver: condition())

    def look(self, width, height, dark=False, media=""):
        command = self.driver.execute_cdp_cmd
        command(
            "Emulation.setDeviceMetricsOverride",
            {"width": width, "height": height, "deviceScaleFactor": 1, "mobile": False},
        )
        command(
            "Emulation.setEmulatedMedia",
            {"media": media, "features": [{"name": "prefers-color-scheme", "value": "dark" if dark else "light"}]},
        )

    def picture(self, path):
        png = self.driver.execute_cdp_cmd("Page.captureScreenshot", {"format": "png"})["data"]
        path.write_bytes(base64.b64decode(png))


def every_page(browser, pages):
    started = time.monotonic()
    browser.look(1200, 200)  # little to paint
    for number, path in enumerate(pages, 1):
        if number % 200 == 0:
            print(f"{number} pages, {time.monotonic() - started:.0f} s", flush=True)
        browser.open(path)
        said = browser.said()
        expect(not said, f"{path}: the console says {said[:2]}")
        broken = browser.run("return Array.from(document.images).filter(i => !i.complete || !i.naturalWidth).length")
        expect(broken == 0, f"{path}: {broken} images are missing")
        wide = browser.run("return document.documentElement.scrollWidth - document.documentElement.clientWidth")
        expect(wide <= 0, f"{path}: {wide} pixels wider than the window")
    browser.look(1200, 1400)
    print(f"{len(pages)} pages opened, {time.monotonic() - started:.0f} s", flush=True)


def narrow_pages(browser, pages):
    browser.look(360, 740)
    for path in pages:
        browser.open(path)
        wide = browser.run("return document.documentElement.scrollWidth - document.documentElement.clientWidth")
        expect(wide <= 0, f"{path}: {wide} pixels wider than a phone")
    browser.look(1200, 1400)


def search(browser, pages):
    names = [path[len("reference/") : -len(".html")] for path in pages if path.startswith("reference/zulg")]
    browser.open("index.html")
    first = browser.run("return arguments[0].map(name => (zulgFind(name, 1)[0] || {}).path)", names)
    for name, path in zip(names, first):
        expect(path == f"reference/{name}.html", f"search: {name} finds {path}")
    for words, due in (("fft 15", "15"), ("pack inverse 8", "PackToR_8"), ("hartley 60", "artley"), ("dct4", "DCT4")):
        field = browser.one("#search")
        field.clear()
        field.send_keys(words)
        browser.wait(lambda: browser.one("#found").is_displayed())
        titles = browser.run("return Array.from(document.querySelectorAll('#found li')).map(i => i.firstChild.data)")
        expect(any(due in title for title in titles[:5]), f"search: {words} finds {titles[:5]}")
    field.clear()
    field.send_keys("zulgDFTFwd_CToC_15_64fc", Keys.ENTER)
    browser.wait(lambda: "zulgDFTFwd_CToC_15_64fc.html" in browser.driver.current_url)
    browser.open("search.html?q=wht+order")
    expect(
        len(browser.driver.find_elements(By.CSS_SELECTOR, "#all-found li")) > 10, "search: the page of results is empty"
    )
    print(f"{len(names)} routines found", flush=True)


def accessible(browser, axe, pages):
    script, looks = axe.read_text(encoding="utf-8"), 0
    for path in pages:
        for dark in (False, True):
            browser.look(1200, 1400, dark)
            browser.open(path)
            browser.run(script)
            found = browser.driver.execute_async_script(
                "const done = arguments[0]; axe.run(document, {resultTypes: ['violations']}).then(r =>"
                " done(r.violations.map(v => v.id + ': ' + v.nodes.length + ' at ' + v.nodes[0].target)), e =>"
                " done([String(e)]))"
            )
            expect(not found, f"{path}{' dark' if dark else ''}: {found}")
            looks += 1
    browser.look(1200, 1400)
    browser.said()
    print(f"axe-core looked {looks} times", flush=True)


def atlas(browser):
    browser.open("atlas/complex_8.html")
    button = browser.one('.tree button[aria-pressed="false"]')
    button.click()
    lit = len(browser.driver.find_elements(By.CSS_SELECTOR, ".drawing .node.lit"))
    expect(lit == 56, f"atlas: {lit} steps of complex 8 are highlighted")
    drawing = browser.one(".drawing")
    drawing.send_keys("n")
    expect("an input" in browser.one(".reading").text, "atlas: no reading of a step")
    before = browser.one(".drawing svg").get_dom_attribute("viewBox")
    drawing.send_keys("+")
    expect(browser.one(".drawing svg").get_dom_attribute("viewBox") != before, "atlas: no zoom by key")
    browser.open("atlas/kernels.html")
    Select(browser.one("select[name=family]")).select_by_value("Hartley")
    rows = browser.run(
        "return Array.from(document.querySelectorAll('#kernels tbody tr')).filter(r => !r.hidden).length"
    )
    expect(rows == 126, f"atlas: {rows} kernels of the Hartley family")
    browser.driver.find_elements(By.CSS_SELECTOR, "#kernels thead button")[3].click()
    browser.driver.find_elements(By.CSS_SELECTOR, "#kernels thead button")[3].click()
    sums = browser.run(
        "return Array.from(document.querySelectorAll('#kernels tbody tr')).filter(r => !r.hidden)"
        ".map(r => Number(r.cells[3].textContent))"
    )
    expect(sums == sorted(sums, reverse=True), "atlas: the table is not sorted")
    print("atlas driven", flush=True)


PICTURES = [
    ("index.html", 1200, 1000, False),
    ("reference/zulgDFTFwd_RToPack_9_64f.html", 1200, 1000, False),
    ("reference/python-rfft.html", 1200, 1000, True),
    ("atlas/complex_8.html#flow", 1200, 1000, False),
    ("atlas/real_forward_15.html#flow", 1200, 1000, True),
    ("atlas/kernels.html", 1200, 1000, False),
    ("figures/index.html#speed", 1200, 1000, False),
    ("playground/index.html", 1200, 1000, False),
    ("tutorials/index.html", 1200, 1000, False),
    ("reference/zulgWHT_9_32f.html", 390, 844, False),
]


def pictures(browser, folder):
    """Ten pages, and all of them on one sheet."""
    from PIL import Image

    folder.mkdir(parents=True, exist_ok=True)
    shown = []
    for number, (path, width, height, dark) in enumerate(PICTURES, 1):
        browser.look(width, height, dark)
        browser.open(path)
        time.sleep(1)
        file = folder / f"{number:02}-{re.sub(r'[^a-zA-Z0-9_]+', '-', path)}.png"
        browser.picture(file)
        shown.append(Image.open(file).convert("RGB"))
    sheet = Image.new("RGB", (5 * 480, 2 * 420), "white")
    for number, picture in enumerate(shown):
        picture.thumbnail((470, 410))
        sheet.paste(picture, (number % 5 * 480 + 5, number // 5 * 420 + 5))
    sheet.save(folder / "contact-sheet.png")
    browser.look(1200, 1400)
    print(f"{len(shown)} pictures: {folder / 'contact-sheet.png'}", flush=True)


def kinds_of(pages):
    """One page of each kind, for what takes long, and all pages that are one of their kind."""
    shown = [
        "reference/zulgDFTFwd_CToC_15_64fc.html",
        "reference/zulgDFTFwd_RToCCS_8_32f.html",
        "reference/zulgWHT_9_64f.html",
        "reference/zulgDFTInv_PermToR_64f.html",
        "reference/zulgDCT4_64f.html",
        "reference/zulgDCT4Init_32f.html",
        "reference/zulgenGetLibVersion.html",
        "reference/zulgBatchDFTFwd_CToC_32fc.html",
        "reference/cpp-zulgenpx-dct4_plan.html",
        "reference/python-fft.html",
        "reference/DFTFwd_RToPack.html",
        "reference/batch.html",
        "reference/cpp.html",
        "reference/python.html",
        "reference/index.html",
        "atlas/index.html",
        "atlas/complex.html",
        "atlas/complex_15.html",
        "atlas/real_inverse_9.html",
        "atlas/hartley_8.html",
        "atlas/wht_16.html",
        "atlas/dct4_combine_8.html",
        "index.html",
        "search.html",
        "figures/index.html",
    ]
    return shown + [path for path in pages if path.startswith(("tutorials/", "playground/"))]


def main():
    args = parsed()
    pages = sorted(path.relative_to(args.site).as_posix() for path in args.site.rglob("*.html"))
    browser = Browser(args.site)
    parts = {
        "pages": lambda: every_page(browser, pages),
        "phone": lambda: narrow_pages(browser, kinds_of(pages)),
        "search": lambda: search(browser, pages),
        "axe": lambda: accessible(browser, args.axe, kinds_of(pages)),
        "atlas": lambda: atlas(browser),
        "pictures": lambda: pictures(browser, args.pictures),
    }
    try:
        import playground_in_browser

        parts["playground"] = lambda: playground_in_browser.drive(browser, expect, args.library)
        for name, part in parts.items():
            if args.only in name:
                part()
    finally:
        browser.driver.quit()
    print(f"{len(pages)} pages, {len(failures)} failures")
    sys.exit(1 if failures else 0)


main()
