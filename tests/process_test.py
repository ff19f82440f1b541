#!/usr/bin/env python3
"""The built programs, killed at any moment: process_test.py PROGRAM SOURCE_DIR [DESKTOP_TESTS]

Without DESKTOP_TESTS two characters are played in one folder, and the second run is killed: every file is then the
first one's or the second one's, never a torn one, and the next run leaves no litter. With them the windows are killed
over and over until each character is finished all the same, and as in a quiet run.
"""
import os
import random
import re
import shutil
import subprocess
import sys
import tempfile
import time
from pathlib import Path

PROGRAM, SOURCE, HANDS = os.path.abspath(sys.argv[1]), Path(sys.argv[2]), sys.argv[3:]
FIRST, SECOND = ((SOURCE / f"examples/{name}/gestures.txt").read_text("utf-8") for name in ("tuersteher", "zauberin"))
ENVIRONMENT = {**os.environ, "LC_ALL": "de_DE.UTF-8", "ASAN_OPTIONS": "detect_leaks=0"}  # others look for leaks


def contents(path):
    """All files but those the player brought, the amount of the start capital masked."""
    return {file.name: re.sub(rb"Startkapital: [\d,]+", b"Startkapital", file.read_bytes())
            for file in path.iterdir() if not (SOURCE / "data" / file.name).exists()}


def clean(path):
    for name in contents(path):
        (path / name).unlink()


def run(path, script, patience, command):
    """Whether it came to its end before it was killed, after so many seconds."""
    try:
        done = subprocess.run(command, input=script, cwd=path, env=ENVIRONMENT, capture_output=True, text=True,
                              timeout=patience)
    except subprocess.TimeoutExpired:
        return False
    assert done.returncode == 0, done.stdout + done.stderr
    return True


def quiet(path, script, command=(PROGRAM,)):
    """What a run leaves that nobody kills, and its seconds."""
    clean(path)
    start = time.monotonic()
    assert run(path, script, 60, command)
    return contents(path), time.monotonic() - start


def kill_program(path):
    new, usual = quiet(path, SECOND)
    rounds = caught = 0
    while rounds < 200 or caught == 0:
        old, _ = quiet(path, FIRST)
        run(path, SECOND, random.uniform(0, 0.8 * usual), [PROGRAM])
        now = contents(path)
        now.pop("Bogenwerker.neu", None)
        torn = [name for name in now if now[name] not in (old.get(name), new.get(name))]
        assert not torn and set(old) <= set(now), (torn, set(old) - set(now))
        rounds, caught = rounds + 1, caught + (now not in (old, old | new))
        assert run(path, FIRST, 60, [PROGRAM]) and "Bogenwerker.neu" not in contents(path), "litter after a good run"
    print(f"{rounds} kills, {caught} of them between the first file and the last")


def kill_windows(path):
    hands = [*HANDS, "--play-to-the-end"]
    journal, equipment = path / "Bogenwerker.spiel", path / "Ausrüstung.txt"
    wanted, _ = quiet(path, SECOND)
    kills, (played, usual) = 0, quiet(path, "", hands)
    assert played == wanted
    while kills < 200:
        clean(path)
        bought = None
        while (played := contents(path)).keys() != wanted.keys():
            kills += not run(path, "", random.uniform(0, usual / 2), hands)
            if journal.exists() and b"# Wurf" in journal.read_bytes():
                bought = bought or equipment.read_bytes()
        assert played == wanted and bought in (None, equipment.read_bytes())
    print(f"{kills} kills, all files as in a quiet run, with the dice that had fallen")


with tempfile.TemporaryDirectory(prefix="bogenwerker-") as folder:
    shutil.copytree(SOURCE / "data", folder, dirs_exist_ok=True)
    (kill_windows if HANDS else kill_program)(Path(folder))
