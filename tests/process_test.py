#!/usr/bin/env python3
"""The built headless program from outside: killed at any moment, or with a disk that fails it.

process_test.py PROGRAM SOURCE_DIR kill|faults
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
ENVIRONMENT = dict(os.environ, LC_ALL="de_DE.UTF-8")
FIRST, SECOND = ((SOURCE / "examples" / name / "gestures.txt").read_text("utf-8") for name in ("tuersteher", "zauberin"))


def folder():
    path = Path(tempfile.mkdtemp(prefix="bogenwerker-"))
    for file in (SOURCE / "data").iterdir():
        shutil.copy(file, path)
    return path


def contents(path):
    """All files but those the player brought, the amount of the start capital masked."""
    brought = {file.name for file in (SOURCE / "data").iterdir()}
    return {file.name: re.sub(rb"Startkapital: [\d,]+", b"Startkapital", file.read_bytes())
            for file in path.iterdir() if file.name not in brought}


def play(path, script):
    done = subprocess.run([PROGRAM], input=script, cwd=path, env=ENVIRONMENT, capture_output=True, text=True, timeout=60)
    assert done.returncode == 0 and done.stdout.endswith("end\n"), done.stdout[-500:]
    return contents(path)


def two_runs():
    path = folder()
    old = play(path, FIRST)
    new = play(path, SECOND)
    shutil.rmtree(path)
    return old, new


def kill_test():
    old, new = two_runs()
    path = folder()
    torn = new_seen = mixed = 0
    rounds = 200
    start = time.monotonic()
    play(path, SECOND)
    usual = time.monotonic() - start
    for _ in range(rounds):
        shutil.rmtree(path)
        path = folder()
        play(path, FIRST)
        process = subprocess.Popen([PROGRAM], stdin=subprocess.PIPE, stdout=subprocess.DEVNULL, cwd=path, env=ENVIRONMENT)
        process.stdin.write(SECOND.encode())
        process.stdin.flush()
        time.sleep(random.uniform(0, 0.8 * usual))
        process.kill()
        process.communicate()
        now = contents(path)
        for name, content in now.items():
            if name != TEMPORARY and content not in (old.get(name), new.get(name)):
                torn += 1
                print("torn:", name, len(content))
        assert set(old) <= set(now), "a file of the first run is gone"
        changed = sum(now[name] == new[name] for name in new if name in now and new[name] != old.get(name))
        new_seen += changed == sum(new[name] != old.get(name) for name in new)
        mixed += 0 < changed
        assert TEMPORARY not in play(path, FIRST), "litter after a good run"
    shutil.rmtree(path)
    print(f"{rounds} kills, {mixed} of them after the first file, {new_seen} after the last; {torn} torn files")
    assert torn == 0 and 0 < mixed and new_seen < rounds


def drive(process):
    """Plays the second character and presses again after every fault. The number of faults told."""
    faults = 0
    try:
        for line in SECOND.splitlines():
            reply = "fault" if line and not line.startswith("#") else ""
            while reply.startswith("fault"):
                process.stdin.write(line + "\n")
                reply = process.stdout.readline()
                if reply.startswith("fault"):
                    faults += 1
                    process.stdout.readline()
        process.stdin.close()
    except BrokenPipeError:
        pass
    process.wait()
    return faults


def faults_test():
    """Lets the n-th call on one file fail, presses again after each fault, and expects the files of a quiet run."""
    probe = subprocess.run(["strace", "-o", "/dev/null", "true"], capture_output=True)
    if probe.returncode != 0:
        print("skipped: this machine does not allow ptrace")
        return
    ENVIRONMENT["ASAN_OPTIONS"] = "detect_leaks=0"  # leaks cannot be looked for under another tracer
    path = folder()
    quiet = play(path, SECOND)
    faults = runs = 0
    # What a passage does to a file: read it, or write it beside its place and rename it.
    cases = [(name, call, error, when)
             for name, opened in (("Cyberware.txt", 2), ("template.htm", 2), ("Attribute.txt", 2), ("Ausrüstung.txt", 1))
             for call, error in (("openat", "ENOENT"), ("openat", "EACCES"), ("read", "EIO"))
             for when in range(1, opened + 1)]
    cases += [(TEMPORARY, call, error, when)
              for when in range(1, 9)  # seven step files and the sheet
              for call, error in (("openat", "EACCES"), ("openat", "ENOSPC"), ("write", "ENOSPC"), ("rename", "EIO"))]
    cases.append((TEMPORARY, "fsync", "EIO", 1))
    for name, call, error, when in cases:
        for file in set(contents(path)):
            (path / file).unlink()
        process = subprocess.Popen(["strace", "-o", "/dev/null", "-P", name, "-P", str(path / name), "-e", f"trace={call}",
                                    "-e", f"inject={call}:error={error}:when={when}", PROGRAM],
                                   stdin=subprocess.PIPE, stdout=subprocess.PIPE, cwd=path, env=ENVIRONMENT, text=True,
                                   bufsize=1)
        seen = drive(process)
        runs += 1
        faults += seen
        if process.returncode == 1:  # the check ahead of the first form met it: nothing was spent, nothing written
            assert contents(path) == {}, (name, call, error, when)
            continue
        assert contents(path) == quiet, (name, call, error, when)
        assert seen == 1, (name, call, error, when, seen)
    shutil.rmtree(path)
    print(f"{runs} runs, {faults} faults told, all files as in a quiet run")
    assert faults > 30


{"kill": kill_test, "faults": faults_test}[MODE]()
