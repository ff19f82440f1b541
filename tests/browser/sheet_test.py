#!/usr/bin/python3
"""Opens finished data sheets in headless Chromium and looks at them as a player would.

    sheet_test.py [--headless PROGRAM] SHEET.htm...

The step files of the character lie beside each sheet and say what the sheet has to show. What they do not hold (the
values after ware, the pools) is taken from the sheet's own lines, read against the template, and looked for in its
place. With the headless program at hand, characters that strain the sheet are played and looked at too. Every sheet is
opened with scripts and without, on a wide screen, on a narrow one and on paper.
"""
import argparse
import base64
import html
import math
import os
import re
import subprocess
import sys
import tempfile
from pathlib import Path
from urllib.parse import quote

sys.dont_write_bytecode = True
import stress
from selenium import webdriver
from selenium.webdriver.chrome.service import Service

TEMPLATE = Path(__file__).resolve().parents[2] / "data" / "template.htm"
ATTRIBUTES = {"Konstitution": "#konst#", "Schnelligkeit": "#schnell#", "Stärke": "#stark#", "Charisma": "#charisma#",
              "Intelligenz": "#intell#", "Willenskraft": "#will#"}
LABELLED = {**ATTRIBUTES, "Essenz": "#essenz#", "Magie": "#magie#", "Initiative": "#ini#", "Reaktion": "#reak#",
            "Kampfpool": "#kampf#", "Zauberpool": "#zauber#", "Astralkampf": "#astral#", "Hackingpool": "#hacking#",
            "Steuerpool": "#steuer#", "Aufgabenpool": "#aufgaben#", "Rasse": "#RASSE#", "Geschlecht": "#GSCHLCHT#",
            "Alter": "#ALTER#", "Aussehen": "#LOOK#"}
PLACEHOLDERS = {*LABELLED.values(), "#NAME#", "#AFertigkeit#", "#FStufe#", "#WFertigkeit#", "#WStufe#", "#AUSRÜSTUNG#"}

# A usual character fits one page, a rich one two: so many rows of three columns in skills and equipment together.
ROWS_ON_ONE_PAGE = 20
ROWS_ON_TWO_PAGES = 55
SMALLEST_PIXELS_ON_A_PHONE = 12
A4_WIDTH_PIXELS = 703

# What the page shows, read in the page: texts by their labels, and a box for each run of text.
LOOK = r"""
const clean = e => e.textContent.trim().replace(/\s+/g, ' ');
const labelled = {};
for (const th of document.querySelectorAll('th[scope]')) {
  const row = th.parentElement;
  const value = th.scope === 'row' ? th.nextElementSibling
      : row.closest('table').tBodies[0].rows[0]?.cells[[...row.cells].indexOf(th)];
  if (value) (labelled[clean(th)] ??= []).push(clean(value));
}
const section = title => [...document.querySelectorAll('section')].find(s => clean(s.querySelector('h2')) === title);
const pairs = title => [...section(title).querySelectorAll('tbody tr')].map(r => [...r.cells].map(clean));
const boxes = [];
const walker = document.createTreeWalker(document.body, NodeFilter.SHOW_TEXT);
while (walker.nextNode()) {
  const text = walker.currentNode.data.trim(), parent = walker.currentNode.parentElement;
  if (!text || parent.closest('script')) continue;
  const range = document.createRange();
  range.selectNodeContents(walker.currentNode);
  let block = parent;
  while (getComputedStyle(block).display.startsWith('inline')) block = block.parentElement;
  const outer = [...block.getClientRects()].map(r => [r.left, r.top, r.right, r.bottom]);
  for (const r of range.getClientRects()) {
    if (r.width && r.height)
      boxes.push({text, rect: [r.left, r.top, r.right, r.bottom], outer,
                  size: parseFloat(getComputedStyle(parent).fontSize)});
  }
}
const unheard = [...document.querySelectorAll('style')].map(s => s.textContent).join('')
    .replace(/\/\*[^]*?\*\//g, '').replace(/@page[^]*?\n}\n/, '')
    .match(/[\w-]+:\s[^;{}]+;/g).map(d => d.slice(0, -1))
    .filter(d => !d.startsWith('--') && !CSS.supports(d.split(':')[0], d.split(':').slice(1).join(':')));
const selectors = rules => [...rules].flatMap(
    r => r.cssRules && !r.selectorText ? selectors(r.cssRules) : [r.selectorText]);
return {
  title: document.title, heading: clean(document.querySelector('h1')), labelled,
  action: pairs('Aktionsfertigkeiten'), knowledge: pairs('Wissensfertigkeiten und Sprachen'),
  equipment: [...section('Ausrüstung').querySelectorAll('li')].map(clean),
  boxes, unheard, rules: selectors(document.querySelector('style').sheet.cssRules).length,
  width: document.scrollingElement.scrollWidth, legend: clean(document.querySelector('footer')),
  outside: [...document.querySelectorAll('[src], link, [href]')].length,
};
"""


def units(data):
    """The template or a step file in the fields that the program reads: a comma or a line end closes each."""
    for quoted, plain in re.findall(r' *(?:"([^"]*)"[^,\r\n]*|([^,\r\n]*))(?:,|\r\n|\Z)', data)[:-1]:
        yield quoted or plain


def records(folder, file, fields):
    values = list(units((folder / file).read_bytes().decode("cp1252")))
    assert len(values) % fields == 0, f"{file}: {len(values)} Felder"
    return [values[i:i + fields] for i in range(0, len(values), fields)]


def as_shown(text):
    return re.sub(r"\s+", " ", html.unescape(text).strip())


class Character:
    def __init__(self, sheet):
        folder = sheet.parent
        self.race = records(folder, "Prioritäten.txt", 3)[0][0]
        self.attributes = {name: int(value) for name, value in records(folder, "Attribute.txt", 2)}
        self.action = [[f"{name} ({special})", f"{level} ({special_level})"]
                       for name, special, level, special_level in records(folder, "Fertigkeiten.txt", 4)]
        self.knowledge = records(folder, "Wissensfertigkeiten.txt", 2) + records(folder, "Sprachen.txt", 2)
        self.equipment = [line for line, in records(folder, "Ausrüstung.txt", 1)]
        self.essence = float(records(folder, "Essenz.txt", 2)[0][0])
        lines = sheet.read_bytes().decode("cp1252").split("\r\n")
        template = list(units(TEMPLATE.read_bytes().decode("cp1252")))
        assert len(lines) == len(template) + 1, "der Bogen stammt nicht aus dieser Vorlage"
        self.values = {unit: line for unit, line in zip(template, lines) if unit in PLACEHOLDERS}
        assert self.values.keys() == PLACEHOLDERS, PLACEHOLDERS - self.values.keys()

    def pages(self):
        rows = sum(math.ceil(len(entries) / 3) for entries in (self.action, self.knowledge, self.equipment))
        if rows <= ROWS_ON_ONE_PAGE:
            return 1
        return 2 if rows <= ROWS_ON_TWO_PAGES else math.inf


class Browser:
    def __init__(self, scripts):
        options = webdriver.ChromeOptions()
        options.add_argument("--headless=new")
        options.add_argument("--disable-dev-shm-usage")
        options.add_argument("--hide-scrollbars")
        if os.geteuid() == 0:
            options.add_argument("--no-sandbox")
        options.set_capability("goog:loggingPrefs", {"browser": "ALL"})
        if not scripts:
            options.add_experimental_option("prefs", {"profile.managed_default_content_settings.javascript": 2})
        self.driver = webdriver.Chrome(service=Service("/usr/bin/chromedriver"), options=options)

    def open(self, sheet, width, medium="screen"):
        command = self.driver.execute_cdp_cmd
        command("Emulation.setDeviceMetricsOverride",
                {"width": width, "height": 800, "deviceScaleFactor": 1, "mobile": width < 500})
        command("Emulation.setEmulatedMedia", {"media": medium})
        self.driver.get("file://" + quote(str(sheet.resolve(strict=True))))

    def look(self):
        return self.driver.execute_script(LOOK)

    def complaints(self):
        return [entry["message"] for entry in self.driver.get_log("browser")]

    def printed(self):
        """The open sheet on paper, as the browser prints it by default."""
        self.driver.execute_cdp_cmd("Emulation.setEmulatedMedia", {"media": ""})
        return base64.b64decode(self.driver.execute_cdp_cmd("Page.printToPDF", {"preferCSSPageSize": True})["data"])

    def pages(self, sheet):
        """The texts of the printed pages."""
        self.open(sheet, 1000)
        command = ["pdftotext", "-raw", "-enc", "UTF-8", "-", "-"]
        text = subprocess.run(command, input=self.printed(), capture_output=True, check=True).stdout.decode()
        return text.split("\f")[:-1]

    def close(self):
        self.driver.quit()


def check_values(person, page, name):
    assert page["title"] == page["heading"] == as_shown(person.values["#NAME#"]), (page["title"], page["heading"])
    if not re.search(r'[/\\<>:"|?*]', page["heading"]):
        assert page["heading"] == name, page["heading"]
    for label, placeholder in LABELLED.items():
        wanted = as_shown(person.values[placeholder])
        assert page["labelled"].get(label) == [wanted], f"{label}: {page['labelled'].get(label)} statt {wanted}"
    for attribute in ATTRIBUTES:
        shown = page["labelled"][attribute][0]
        assert re.fullmatch(rf"{person.attributes[attribute]} \(-?\d+\)", shown), f"{attribute}: {shown}"
    reaction = page["labelled"]["Reaktion"][0]
    assert reaction.startswith(f"{person.attributes['Reaktion']} ("), reaction
    assert page["labelled"]["Rasse"] == [person.race]
    essence = float(page["labelled"]["Essenz"][0].replace(",", "."))
    assert abs(essence - person.essence) <= 0.00501, (essence, person.essence)
    whole = person.essence if person.essence == 6 else math.floor(person.essence)
    assert page["labelled"]["Magie"] == [str(int(min(person.attributes["Magie"], whole)))], page["labelled"]["Magie"]
    for kind in ("action", "knowledge"):
        wanted = [[as_shown(cell) for cell in row] for row in getattr(person, kind)]
        assert page[kind] == (wanted or [["keine"]]), f"{kind}: {page[kind]} statt {wanted}"
    wanted = [as_shown(line) for line in person.equipment]
    assert page["equipment"] == wanted, f"Ausrüstung: {page['equipment']} statt {wanted}"


def check_source(page, source):
    style = re.search(r"<style>(.*?)</style>", source, re.S)[1]
    blocks = style.count("{") - style.count("@media") - style.count("@bottom-right")
    assert page["rules"] == blocks, f"{page['rules']} von {blocks} Stilregeln verstanden"
    assert not page["unheard"], f"nicht verstanden: {page['unheard']}"
    assert not page["outside"], "der Bogen verlangt nach anderen Dateien"
    for shape in ("4 (6)", "4 (6) (9)", "+1W6 (+3W6) (+2W6)", ") 3 (5)", "SP", "KP", "oR", "oP"):
        assert shape in page["legend"], f"Legende ohne {shape}"


def check_boxes(page, width):
    """Nothing stands beside its box or beside the page, and no two texts stand on each other."""
    slack = 1.5
    boxes = sorted(page["boxes"], key=lambda box: box["rect"][1])
    assert len(boxes) > 40, "die Seite ist leer"
    for index, box in enumerate(boxes):
        left, top, right, bottom = box["rect"]
        assert left >= -slack and right <= width + slack, f"abgeschnitten: {box['text']} bei {width}"
        assert any(left >= l - slack and right <= r + slack and top >= t - slack and bottom <= b + slack
                   for l, t, r, b in box["outer"]), f"ragt aus seinem Feld: {box['text']} bei {width}"
        assert not re.fullmatch(r"\.|#.*#", box["text"]), f"übrig: {box['text']}"
        for other in boxes[index + 1:]:
            l, t, r, b = other["rect"]
            if t >= bottom - slack:
                break
            apart = l >= right - slack or r <= left + slack or b <= top + slack or t >= bottom - slack
            assert apart, f"übereinander bei {width}: {box['text']} / {other['text']}"


def check_paper(person, pages):
    assert len(pages) <= person.pages(), f"{len(pages)} Seiten statt {person.pages()}"
    text = "\n".join(pages)
    assert not re.search(r"^\s*\.\s*$|#\w+#", text, re.M), "Punkt oder Platzhalter auf dem Papier"
    squeezed = re.sub(r"\s+", "", text)
    for line in person.equipment + [name for name, _ in person.action + person.knowledge]:
        line = as_shown(line.removesuffix(" ()"))
        assert re.sub(r"\s+", "", line) in squeezed, f"fehlt auf dem Papier: {line}"


def check(sheet, browser, plain):
    person = Character(sheet)
    for width, medium in ((1280, "screen"), (360, "screen"), (A4_WIDTH_PIXELS, "print")):
        browser.open(sheet, width, medium)
        page = browser.look()
        check_values(person, page, sheet.stem)
        check_boxes(page, width)
        assert page["width"] <= width, f"{page['width']} Pixel breit bei {width}"
        if width == 360:
            smallest = min(box["size"] for box in page["boxes"])
            assert smallest >= SMALLEST_PIXELS_ON_A_PHONE, f"Schrift von {smallest} Pixeln"
    check_source(page, sheet.read_bytes().decode("cp1252"))
    pages = browser.pages(sheet)
    check_paper(person, pages)
    assert not (complaints := browser.complaints()), complaints
    check_paper(person, plain.pages(sheet))
    return len(pages)


def passes(sheet, browser, plain):
    try:
        print(f"{sheet}: gut, {check(sheet, browser, plain)} Seite(n)")
        return True
    except AssertionError as error:
        print(f"{sheet}: {error}")
        return False


def main():
    parser = argparse.ArgumentParser(usage=__doc__)
    parser.add_argument("--headless", type=Path)
    parser.add_argument("sheets", nargs="*", type=Path)
    arguments = parser.parse_args()
    if not arguments.sheets and not arguments.headless:
        parser.error("kein Bogen")
    browser, plain = Browser(scripts=True), Browser(scripts=False)
    try:
        with tempfile.TemporaryDirectory() as folder:
            sheets = arguments.sheets + (stress.play(arguments.headless, folder) if arguments.headless else [])
            failed = not all([passes(sheet, browser, plain) for sheet in sheets])
    finally:
        browser.close()
        plain.close()
    sys.exit(failed)


if __name__ == "__main__":
    main()
