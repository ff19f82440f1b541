#!/usr/bin/env python3
"""The catalogues, the template and the glossary as players get them.

data_test.py PROGRAM SOURCE_DIR
Every name tells its row's price or effects, stands once in all files, and fits its box; every row can be bought.
"""
import csv
import json
import re
import shutil
import subprocess
import sys
import tempfile
from collections import Counter
from pathlib import Path

PROGRAM, SOURCE = sys.argv[1], Path(sys.argv[2])
FIELDS = {"Lebensstil": 2, "Connection": 2, "Cyberdecks": 4, "Cyberware": 17, "Bioware": 17, "MagicStuff": 4}
slips = []


def expect(kept, *what):
    if not kept:
        slips.append(what)


def money(text):
    expect(text.isdecimal() and int(text) <= 1_000_000, "no price that a purse could cover", text)
    return f"{int(text):,} Y".replace(",", ".")


def end_of(kind, fields):
    """What a name has to end in."""
    if kind in ("Lebensstil", "Connection"):
        return " / " + money(fields[0])
    if kind == "Cyberdecks":
        return f" MPCP {fields[0]} RV {fields[2]} / {money(fields[1])}"
    if kind == "MagicStuff":
        points, price, power = int(fields[0]), fields[1], float(fields[2])
        expect(points <= 35 and power <= 6 and 0 in (points, power), fields)
        parts = [money(price)] * (price != "0") + [f"{points} SP"] * (points > 0)
        return f" ({' / '.join(parts + [f'{power:g} KP'.replace('.', ',')] * (power > 0))})"
    money(fields[1])
    expect(0 <= float(fields[0]) < (6 if kind == "Cyberware" else 9), fields)
    kon, fast, strong, mind, charm, will, reak, rigger, decker, ini, riggers, deckers = map(int, fields[2:14])
    for_reaction, for_pools = (field == "#TRUE#" for field in fields[14:])
    # A flag without an attribute to except would only cancel the exception of an earlier purchase.
    expect((for_reaction or fast or mind) and (for_pools or fast or mind or charm or will), fields)

    def changes(who, **values):
        told = [f"{word}{value:+d}{'W6' if word == 'Ini' else ''}" for word, value in values.items() if value]
        return [who] * bool(who and told) + told
    parts = changes("", Kon=kon, Sch=fast, Stä=strong, Cha=charm, Int=mind, Wil=will, Rea=reak, Ini=ini)
    both = (rigger, riggers) == (decker, deckers)
    parts += changes("Rigger/Decker" if both else "Rigger", Rea=rigger, Ini=riggers)
    parts += [] if both else changes("Decker", Rea=decker, Ini=deckers)
    parts += ["oR"] * (not for_reaction) + ["oP"] * (not for_pools)
    return f" ({' '.join(parts)})" if parts else ""


def lines_of(name):
    text = (SOURCE / "data" / name).read_bytes().decode("cp1252")
    expect(text.endswith("\r\n") and text.count("\r") == text.count("\n") == text.count("\r\n"), name, "CR LF")
    expect("Ã" not in text, name, "not UTF-8")
    return text.split("\r\n")[:-1]


names = []
for kind, count in FIELDS.items():
    for line in lines_of(kind + ".txt"):
        name, *fields = next(csv.reader([line]))
        names.append(name)
        expect(line.startswith(f'"{name}",') and len(fields) == count - 1, line)
        expect(name == name.strip() and 0 < len(name) <= 40 and name.isprintable(), "a box shows 45 characters", name)
        end = end_of(kind, fields)
        expect(name.endswith(end) and ("ware" not in kind or name.partition(" (")[0] + end == name), line, end)
expect(not [name for name, times in Counter(names).items() if times > 1], "a name stands twice")

units = Counter(lines_of("template.htm"))
expect(not [unit for unit in units if "," in unit and not (unit[0] == unit[-1] == '"' and unit.count('"') == 2)], "commas")
values = "NAME GSCHLCHT ALTER LOOK RASSE konst schnell stark charisma intell will magie reak essenz ini " \
         "astral kampf steuer hacking zauber aufgaben"
expect(all(units[f"#{value}#"] for value in values.split()), "a placeholder is missing", units)
counts = [units[f"#{name}#"] for name in ("AFertigkeit", "FStufe", "WFertigkeit", "WStufe", "AUSRÜSTUNG")]
expect(counts[0] >= counts[1] == 30 and counts[2] >= counts[3] == 60 and counts[4] == 1000, counts)

# The glossary is read beside the open lists.
script = (SOURCE / "examples/zauberin/gestures.txt").read_text("utf-8").partition("\npick ")[0] + "\ndump\n"
with tempfile.TemporaryDirectory() as folder:
    shutil.copytree(SOURCE / "data", folder, dirs_exist_ok=True)
    replies = subprocess.run([PROGRAM], input=script, cwd=folder, capture_output=True, text=True, encoding="utf-8").stdout
entries = {control["name"]: control.get("entries") for control in json.loads(replies.splitlines()[-1])[-1]["controls"]}
offered = [entry for kind in ("Lebensstil", "Connection", "Cyberdecks", "Cyberware", "Bioware", "Magic")
           for entry in entries["cmb" + kind]]
told = re.findall(r"^- \*\*(.*?)\*\*: ", (SOURCE / "docs/glossar.md").read_text("utf-8"), re.M)
expect(offered == told, "the glossary", next((pair for pair in zip(offered, told) if pair[0] != pair[1]), None))
expect(Counter(offered) == Counter(names), "all is for sale")

print(*slips, sep="\n")
sys.exit(len(slips) > 0)
