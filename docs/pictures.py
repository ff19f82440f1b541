#!/usr/bin/python3
"""Makes the pictures of data sheets for docs/: each printed page, and one sheet as a phone shows it.

    pictures.py FOLDER NAME=SHEET.htm...
"""
import base64
import subprocess
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent / "tests" / "browser"))
from sheet_test import Browser  # noqa: E402


def main():
    folder = Path(sys.argv[1])
    named = [argument.split("=", 1) for argument in sys.argv[2:]]
    browser = Browser(scripts=True)
    try:
        for name, sheet in named:
            browser.open(Path(sheet), 1000)
            pdf = browser.printed()
            subprocess.run(["pdftoppm", "-r", "100", "-gray", "-png", "-", str(folder / f"bogen-{name}")],
                           input=pdf, check=True)
        browser.open(Path(named[0][1]), 360)
        picture = browser.driver.execute_cdp_cmd("Page.captureScreenshot", {"captureBeyondViewport": False})
        (folder / "bogen-schmal.png").write_bytes(base64.b64decode(picture["data"]))
    finally:
        browser.close()


if __name__ == "__main__":
    main()
