#!/usr/bin/python3
"""Makes the pictures of data sheets for docs/: each printed page, and one sheet as a phone shows it.

    pictures.py FOLDER NAME=SHEET.htm...
"""
import subprocess
import sys
import tempfile
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent / "tests" / "browser"))
from browsers import Browser  # noqa: E402


def main():
    folder = Path(sys.argv[1])
    named = [argument.split("=", 1) for argument in sys.argv[2:]]
    with tempfile.TemporaryDirectory(ignore_cleanup_errors=True) as scratch:
        browser = Browser("Chromium", "Liberation", Path(scratch))
        for name, sheet in named:
            browser.open(Path(sheet))
            subprocess.run(["pdftoppm", "-r", "100", "-gray", "-png", "-", str(folder / f"bogen-{name}")],
                           input=browser.printed(), check=True)
        browser.open(Path(named[0][1]))
        browser.resize(360, 800)
        (folder / "bogen-schmal.png").write_bytes(browser.picture())
        browser.close()


if __name__ == "__main__":
    main()
