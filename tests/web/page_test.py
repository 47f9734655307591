#!/usr/bin/env python3
"""Uses the page in a browser as a visitor does: each operation with its first and its greatest parameters, files of
which one is no picture, camera, keyboard. The C code that the page shows is compiled, and must make the same pixels
with the native library."""
import argparse
import base64
import ctypes
import os
import struct
import sys
import tempfile
import zlib
from contextlib import contextmanager
from pathlib import Path

from selenium import webdriver
from selenium.webdriver.chrome.service import Service
from selenium.webdriver.common.by import By
from selenium.webdriver.common.keys import Keys
from selenium.webdriver.support.wait import WebDriverWait

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tests/support"))
from commands import require, run  # noqa: E402

PIXELS = """
const canvas = document.getElementById(arguments[0]);
const {data} = canvas.getContext('2d').getImageData(0, 0, canvas.width, canvas.height);
let text = '';
for (const byte of data) text += String.fromCharCode(byte);
return [canvas.width, canvas.height, btoa(text)];
"""
DROP = """
const transfer = new DataTransfer(), bytes = Uint8Array.from(atob(arguments[0]), (letter) => letter.charCodeAt(0));
transfer.items.add(new File([bytes], 'dropped.png', {type: 'image/png'}));
document.body.dispatchEvent(new DragEvent('drop', {dataTransfer: transfer, bubbles: true, cancelable: true}));
"""
TWO_FRAMES = "const done = arguments[0]; requestAnimationFrame(() => requestAnimationFrame(done));"


def png(width, height):
    """A picture of slopes, a disc and noise, none of whose rows or columns is like another."""
    def pixel(x, y):
        is_inside = (x - width / 2) ** 2 + (y - height / 3) ** 2 < height * height / 16
        noise = (x * 7919 + y * 104729) * 2654435761 >> 7
        return [x * 200 // width + noise % 40, y * 200 // height + noise % 23, 220 if is_inside else noise % 90]
    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))
    rows = b"".join(b"\0" + bytes(value for x in range(width) for value in pixel(x, y)) for y in range(height))
    header = struct.pack(">2I5B", width, height, 8, 2, 0, 0, 0)
    return b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", zlib.compress(rows)) + chunk(b"IEND", b"")


@contextmanager
def browser(options):
    settings = webdriver.ChromeOptions()
    settings.binary_location = options.chromium
    for argument in ["headless=new", "disable-gpu", "disable-dev-shm-usage", "force-color-profile=srgb",
                     "use-fake-ui-for-media-stream", "use-fake-device-for-media-stream",
                     *(["no-sandbox"] if os.getuid() == 0 else [])]:
        settings.add_argument(f"--{argument}")
    settings.set_capability("goog:loggingPrefs", {"browser": "ALL"})
    driver = webdriver.Chrome(service=Service(options.driver), options=settings)
    try:
        yield driver
    finally:
        driver.quit()


class Page:
    def __init__(self, driver):
        self.driver = driver

    def find(self, name):
        return self.driver.find_element(By.ID, name)

    def settle(self):
        self.driver.execute_async_script(TWO_FRAMES)

    def wait(self, condition, *explanation):
        WebDriverWait(self.driver, 20, poll_frequency=0.05).until(lambda _: condition(), " ".join(explanation))

    def pixels(self, name):
        """Width, height and bytes of red, green and blue."""
        width, height, data = self.driver.execute_script(PIXELS, name)
        data = bytearray(base64.b64decode(data))
        require(set(data[3::4]) == {255}, name, "is transparent")
        del data[3::4]
        return width, height, bytes(data)

    def operations(self):
        return [entry.get_attribute("value") for entry in self.driver.find_elements(By.NAME, "operation")]

    def choose(self, name):
        self.driver.find_element(By.XPATH, f"//label[input[@value='{name}']]").click()
        self.settle()

    def turn_up(self):
        """Sliders to their ends and menus to their next entries, by keys."""
        for entry in self.driver.find_elements(By.CSS_SELECTOR, "#parameters input, #parameters select"):
            entry.send_keys(Keys.END if entry.tag_name == "input" else Keys.DOWN)
        self.settle()

    def result(self):
        require(not self.find("message").is_displayed(), self.find("message").text)
        return self.find("code").text + "\n", self.pixels("after")


def uses(page):
    """[(operation, code, pixels)], for two settings of those with parameters."""
    found, (_, _, before) = [], page.pixels("before")
    for name in page.operations():
        page.choose(name)
        found.append((name, *page.result()))
        page.turn_up()
        code, after = page.result()
        if code != found[-1][1]:
            require(after != found[-1][2], name, "does not depend on its parameters")
            found.append((name, code, after))
        require(all(pixels[2] != before for _, _, pixels in found[-2:]), name, "changes nothing")
    return found


def look_at_formulas(found, before):
    """Some of them show that titles, calls and the way from the canvas and back belong to each other."""
    first = {name: after for name, _, after in reversed(found)}
    width, height, data = before
    rows = [data[3 * width * y:3 * width * (y + 1)] for y in range(height)]
    mirrored = b"".join(row[3 * x:3 * x + 3] for row in rows for x in reversed(range(width)))
    expected = {"invert": bytes(255 - v for v in data), "brightness": bytes(min(255, v + 40) for v in data),
                "posterise": bytes(v & 0xC0 for v in data), "mirror": mirrored}
    for name, pixels in expected.items():
        require(first[name] == (width, height, pixels), name)
    require(first["thumbnail"][:2] == (round(width / 4), round(height / 4)), "thumbnail", first["thumbnail"][:2])


def look_at_code(found, before, options, scratch):
    native = [folder for folder in (options.native / "v2", options.native / "n8") if (folder / "libqvpi.so").exists()]
    if not native:
        print(f"no library in {options.native}: results are not compared with it")
        return
    code = "".join(text.replace(f"void {name}(", f"void call_{i}(") for i, (name, text, _) in enumerate(found))
    (scratch / "calls.c").write_text(code)
    libraries = [native[0] / "libqvpi.so", native[0] / "libqvpcore.so", f"-Wl,-rpath,{native[0]}"]
    run("cc", "-std=c11", "-Wall", "-Wextra", "-Werror", "-shared", "-fPIC", f"-I{ROOT}/include", scratch / "calls.c",
        "-o", scratch / "calls.so", *libraries)
    calls = ctypes.CDLL(str(scratch / "calls.so"))
    for i, (name, text, (width, height, pixels)) in enumerate(found):
        result = ctypes.create_string_buffer(3 * width * height)
        calls[f"call_{i}"](before[2], 3 * before[0], result, 3 * width)
        require(result.raw == pixels, name, "differs from the native library:\n", text)


def look_at_files(page, scratch):
    (scratch / "text.png").write_text("no picture")
    page.find("file").send_keys(str(scratch / "text.png"))
    page.wait(lambda: "text.png is no picture" in page.find("message").text, "no message of a bad file")
    (scratch / "good.png").write_bytes(png(64, 48))
    ways = {(64, 48): lambda: page.find("file").send_keys(str(scratch / "good.png")),
            (31, 47): lambda: page.driver.execute_script(DROP, base64.b64encode(png(31, 47)).decode())}
    for size, open_picture in ways.items():
        open_picture()
        page.wait(lambda: page.pixels("before")[:2] == size, "no picture of", str(size))
        page.settle()
        require(page.result()[1][:2] == size, "the operation is not applied to a new picture")


def look_at_controls(page):
    camera, shown = page.find("camera"), page.pixels("before")
    camera.click()
    page.wait(lambda: page.pixels("before")[:2] != shown[:2], "the camera shows nothing")
    camera.click()
    page.find("example").click()
    page.settle()
    page.driver.find_element(By.CSS_SELECTOR, "[name=operation]:checked").send_keys(Keys.UP)
    page.settle()
    require(page.operations()[-2] in page.result()[0], "arrows do not choose operations")
    page.find("copy").send_keys(Keys.ENTER)
    copied = page.driver.execute_script("return getSelection().toString()")
    require(copied.strip() == page.result()[0].strip(), "what is copied is not the code:", copied)


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    for name in ("library", "native"):
        parser.add_argument(f"--{name}", type=Path, required=True)
    for name in ("chromium", "driver"):
        parser.add_argument(f"--{name}", required=True)
    options = parser.parse_args()
    with tempfile.TemporaryDirectory() as folder, browser(options) as driver:
        scratch, page = Path(folder), Page(driver)
        (scratch / "photograph.png").write_bytes(png(201, 123))
        run(sys.executable, ROOT / "tools/make_page.py", "--library", options.library, "--photograph",
            scratch / "photograph.png", "--out", scratch / "page.html")
        driver.get((scratch / "page.html").as_uri())
        page.wait(lambda: page.find("code").text, "nothing is shown:", str(driver.get_log("browser")))
        before = page.pixels("before")
        found = uses(page)
        look_at_formulas(found, before)
        look_at_code(found, before, options, scratch)
        look_at_files(page, scratch)
        look_at_controls(page)
        require(not (log := driver.get_log("browser")), log)


if __name__ == "__main__":
    main()
