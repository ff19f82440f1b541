#!/usr/bin/env python3
"""The built headless program from outside: killed at any moment, or with a disk that fails it.

process_test.py PROGRAM SOURCE_DIR kill|faults, or journal DESKTOP_TESTS
Two characters are played in one folder, the second disturbed: every file is then the first one's or the second one's,
never a torn one, and the next good run leaves no litter.
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

PROGRAM, SOURCE, MODE = os.path.abspath(sys.argv[1]), Path(sys.argv[2]), sys.argv[3]
TEMPORARY = "Bogenwerker.neu"
ENVIRONMENT = dict(os.environ, LC_ALL="de_DE.UTF-8", ASAN_OPTIONS="detect_leaks=0")  # there may be another tracer
FIRST, SECOND = ((SOURCE / "examples" / name / "gestures.txt").read_text("utf-8") for name in ("tuersteher", "zauberin"))


def contents(path):
    """All files but those the player brought, the amount of the start capital masked."""
    return {file.name: re.sub(rb"Startkapital: [\d,]+", b"Startkapital", file.read_bytes())
            for file in path.iterdir() if not (SOURCE / "data" / file.name).exists()}


def play(path, script):
    done = subprocess.run([PROGRAM], input=script, cwd=path, env=ENVIRONMENT, capture_output=True, text=True, timeout=60)
    assert done.returncode == 0 and done.stdout.endswith("end\n"), done.stdout[-500:]
    return contents(path)


def begin(path, ahead=(), **pipes):
    return subprocess.Popen([*ahead, PROGRAM], stdin=subprocess.PIPE, cwd=path, env=ENVIRONMENT, text=True, **pipes)


def kill_test(path):
    start = time.monotonic()
    new = play(path, SECOND)
    usual = time.monotonic() - start
    rounds, mixed, finished = 200, 0, 0
    for _ in range(rounds):
        for name in contents(path):
            (path / name).unlink()
        old = play(path, FIRST)
        process = begin(path, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        process.stdin.write(SECOND)
        process.stdin.flush()
        time.sleep(random.uniform(0, 0.8 * usual))
        process.kill()
        process.communicate()
        now = contents(path)
        torn = [name for name in now if name != TEMPORARY and now[name] not in (old.get(name), new.get(name))]
        assert not torn and set(old) <= set(now), (torn, set(old) - set(now))
        changed = [name for name in now if now[name] == new.get(name) != old.get(name)]
        mixed += len(changed) > 0
        finished += len(changed) == sum(new[name] != old.get(name) for name in new)
        assert TEMPORARY not in play(path, FIRST), "litter after a good run"
    print(f"{rounds} kills, {mixed} of them after the first file, {finished} after the last")
    assert 0 < mixed and finished < rounds


def drive(process):
    """Plays the second character and presses again after every fault. The number of faults told."""
    faults = 0
    try:
        for line in filter(lambda line: line and not line.startswith("#"), SECOND.splitlines()):
            reply = "fault"
            while reply.startswith("fault"):
                process.stdin.write(line + "\n")
                process.stdin.flush()
                reply = process.stdout.readline()
                if reply.startswith("fault"):
                    faults += 1
                    process.stdout.readline()
        process.stdin.close()
    except BrokenPipeError:
        pass
    process.wait()
    return faults


def faults_test(path):
    """Lets the n-th call on one file fail, presses again after each fault, and expects the files of a quiet run."""
    if subprocess.run(["strace", "-o", "/dev/null", "true"], capture_output=True).returncode != 0:
        sys.exit(print("skipped: this machine does not allow ptrace"))
    quiet = play(path, SECOND)
    faults = 0
    # What a passage does to a file: read it, or write it beside its place and rename it.
    cases = [(name, call, error, when)
             for name, opened in (("Cyberware.txt", 2), ("template.htm", 2), ("Attribute.txt", 2), ("Ausrüstung.txt", 1))
             for call, error in (("openat", "ENOENT"), ("openat", "EACCES"), ("read", "EIO"))
             for when in range(1, opened + 1)]
    cases += [(TEMPORARY, call, error, when)
              for when in range(1, 9)  # seven step files and the sheet
              for call, error in (("openat", "EACCES"), ("openat", "ENOSPC"), ("write", "ENOSPC"), ("rename", "EIO"))]
    for name, call, error, when in cases + [(TEMPORARY, "fsync", "EIO", 1)]:
        for file in contents(path):
            (path / file).unlink()
        process = begin(path, ("strace", "-o", "/dev/null", "-P", name, "-P", str(path / name), "-e", f"trace={call}",
                               "-e", f"inject={call}:error={error}:when={when}"), stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        seen = drive(process)
        faults += seen
        # Where the check ahead of the first form met it, nothing was spent and nothing written.
        assert seen == 1 and contents(path) == ({} if process.returncode == 1 else quiet), (name, call, error, when, seen)
    print(f"{len(cases) + 1} runs, {faults} faults told, all files as in a quiet run")
    assert faults > 30


def journal_test(path):
    """Kills the windows over and over until each character is finished all the same, and as in a quiet run."""
    hands = [sys.argv[4], "--gtest_also_run_disabled_tests", "--gtest_filter=*PlaysToTheEnd"]
    journal, equipment = path / "Bogenwerker.spiel", path / "Ausrüstung.txt"
    quiet, kills, longest = play(path, SECOND), 0, None
    while kills < 200:
        for name in contents(path):
            (path / name).unlink()
        bought = None
        while contents(path).keys() != quiet.keys():
            start = time.monotonic()
            try:
                patience = random.uniform(0, longest) if longest else None
                done = subprocess.run(hands, cwd=path, env=ENVIRONMENT, capture_output=True, text=True, timeout=patience)
                assert done.returncode == 0, done.stdout
            except subprocess.TimeoutExpired:
                kills += 1
            longest = longest or (time.monotonic() - start) / 2
            if journal.exists() and b"# Wurf" in journal.read_bytes():
                bought = bought or equipment.read_bytes()
        assert contents(path) == quiet and bought in (None, equipment.read_bytes())
    print(f"{kills} kills, all files as in a quiet run, with the dice that had fallen")


with tempfile.TemporaryDirectory(prefix="bogenwerker-") as folder:
    shutil.copytree(SOURCE / "data", folder, dirs_exist_ok=True)
    {"kill": kill_test, "faults": faults_test, "journal": journal_test}[MODE](Path(folder))
