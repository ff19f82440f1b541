#!/usr/bin/env python3
"""The catalogues, the template, the glossary and the handbook as players get them.

data_test.py PROGRAM SOURCE_DIR [FOLDER_OF_THE_HANDBOOK]

Every name tells its row's price or effects and fits its box; every row is for sale and explained. That no name stands
twice and no price is beyond every purse the program's own search for slips tells, and the placeholders the browsers.
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

PROGRAM, SOURCE = Path(sys.argv[1]).resolve(), Path(sys.argv[2])


def lines_of(name):
    text = (SOURCE / "data" / name).read_bytes().decode("cp1252")
    assert text.endswith("\r\n") and text.count("\r") == text.count("\n") == text.count("\r\n"), f"{name}: CR LF"
    return text.split("\r\n")[:-1]


def money(text):
    return f"{int(text):,} Y".replace(",", ".")


def changes(who, **values):
    told = [f"{word}{value:+d}{'W6' if word == 'Ini' else ''}" for word, value in values.items() if value]
    return [who] * bool(who and told) + told


def end_of(kind, fields):
    """What a name has to end in."""
    if kind in ("Lebensstil", "Connection"):
        return f" / {money(fields[0])}"
    if kind == "Cyberdecks":
        return f" MPCP {fields[0]} RV {fields[2]} / {money(fields[1])}"
    if kind == "MagicStuff":
        points, price, power = fields
        told = [(price, money(price)), (points, f"{points} SP"), (power, f"{power.replace('.', ',')} KP")]
        return f" ({' / '.join(text for cost, text in told if cost != '0')})"
    kon, fast, strong, mind, charm, will, reak, rigger, decker, ini, riggers, deckers = map(int, fields[2:14])
    for_reaction, for_pools = (field == "#TRUE#" for field in fields[14:])
    # A flag without an attribute to except would only cancel the exception of an earlier purchase.
    assert (for_reaction or fast or mind) and (for_pools or fast or mind or charm or will), fields
    both = (rigger, riggers) == (decker, deckers)
    parts = changes("", Kon=kon, Sch=fast, Stä=strong, Cha=charm, Int=mind, Wil=will, Rea=reak, Ini=ini)
    parts += changes("Rigger/Decker" if both else "Rigger", Rea=rigger, Ini=riggers)
    parts += [] if both else changes("Decker", Rea=decker, Ini=deckers)
    parts += ["oR"] * (not for_reaction) + ["oP"] * (not for_pools)
    return f" ({' '.join(parts)})" if parts else ""


names = []
for kind in ("Lebensstil", "Connection", "Cyberdecks", "Cyberware", "Bioware", "MagicStuff"):
    for line in lines_of(kind + ".txt"):
        name, *fields = next(csv.reader([line]))
        names.append(name)
        assert line.startswith(f'"{name}",') and name == name.strip() and name.isprintable(), line
        assert 0 < len(name) <= 40, f"{name}: a box shows 45 characters"
        end = end_of(kind, fields)
        assert name.endswith(end) and ("ware" not in kind or name.partition(" (")[0] + end == name), f"{line}: {end}"

units = Counter(lines_of("template.htm"))
assert not [unit for unit in units if "," in unit and not re.fullmatch('"[^"]*"', unit)], "commas in the template"
counts = [units[f"#{name}#"] for name in ("AFertigkeit", "FStufe", "WFertigkeit", "WStufe", "AUSRÜSTUNG")]
assert counts[0] >= counts[1] == 30 and counts[2] >= counts[3] == 60 and counts[4] == 1000, counts

# The glossary is read beside the open lists.
script = (SOURCE / "examples/zauberin/gestures.txt").read_text("utf-8").partition("\npick ")[0] + "\ndump\n"
with tempfile.TemporaryDirectory() as folder:
    shutil.copytree(SOURCE / "data", folder, dirs_exist_ok=True)
    replies = subprocess.check_output([PROGRAM], input=script, cwd=folder, encoding="utf-8")
lists = {control["name"]: control.get("entries") for control in json.loads(replies.splitlines()[-1])[-1]["controls"]}
offered = [entry for kind in ("Lebensstil", "Connection", "Cyberdecks", "Cyberware", "Bioware", "Magic")
           for entry in lists["cmb" + kind]]
told = re.findall(r"^- \*\*(.*?)\*\*: ", (SOURCE / "docs/glossar.md").read_text("utf-8"), re.M)
assert offered == told, [pair for pair in zip(offered, told) if pair[0] != pair[1]][:1]
assert Counter(offered) == Counter(names), "all is for sale"

# In the handbook every link leads somewhere, and nothing comes from outside.
pages = {page.name: page.read_text("utf-8") for folder in sys.argv[3:] for page in Path(folder).glob("*.html")}
links = [(page, *link) for page in pages.values() for link in re.findall(r'(?:href="|url=)([^"#:]*)#?([^"]*)"', page)]
for page, target, section in links:
    assert not target or target in pages, target
    assert not section or f'id="{section}"' in pages.get(target, page), (target, section)
    assert not re.search(r'(?:src|href)="(?!data:)[^"]*(?::|\.png)', page)
assert not sys.argv[3:] or (len(links) > 40 and "data:image/png" in pages["handbuch.html"])
