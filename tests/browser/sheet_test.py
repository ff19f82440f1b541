#!/usr/bin/python3
"""Opens finished data sheets in Chromium and Firefox and looks at them as a player would.

    sheet_test.py SHEET.htm...

What a sheet has to show is read from its own lines against the template. Beside the given sheets the template is filled
with what strains it. Each is measured letter by letter on screens from a phone to a wide one, with text of the usual
size and twice as large, and printed, with the fonts of one world at a time.
"""
import html
import re
import subprocess
import sys
import tempfile
from concurrent.futures import ThreadPoolExecutor
from contextlib import closing
from pathlib import Path

sys.dont_write_bytecode = True
from browsers import WORLDS, Browser

TEMPLATE = Path(__file__).resolve().parents[2] / "data" / "template.htm"
# As the program reads it: without the blanks ahead of a line, and the quotes around one that keeps its commas.
UNITS = [re.sub('^ *("(.*)")?', r"\2", line) for line in TEMPLATE.read_bytes().decode("cp1252").split("\r\n")]
# By label the placeholder beside it, and the widest value but for free text.
LABELLED = {
    "Rasse": ("#RASSE#", "Mensch"), "Geschlecht": ("#GSCHLCHT#", "weiblich"), "Alter": ("#ALTER#", None),
    "Aussehen": ("#LOOK#", None), "Initiative": ("#ini#", "+1W6 (+10W6) (+12W6)"),
    "Reaktion": ("#reak#", "-12 (-30) (125)"), "Kampfpool": ("#kampf#", "125"), "Zauberpool": ("#zauber#", "-30"),
    "Astralkampf": ("#astral#", "-30"), "Hackingpool": ("#hacking#", "-30"), "Steuerpool": ("#steuer#", "-30"),
    "Aufgabenpool": ("#aufgaben#", "-30"), "Konstitution": ("#konst#", "-12 (-30)"),
    "Schnelligkeit": ("#schnell#", "-12 (-30)"), "Stärke": ("#stark#", "-12 (-30)"),
    "Charisma": ("#charisma#", "-12 (-30)"), "Intelligenz": ("#intell#", "-12 (-30)"),
    "Willenskraft": ("#will#", "-12 (-30)"), "Essenz": ("#essenz#", "3,18"), "Magie": ("#magie#", "6")}
LEGEND = ("4 (6) Attribut", "4 (6) (9) Reaktion", "+1W6 (+3W6) (+2W6) Initiative", "(Wracks) 3 (5) Fertigkeit",
          "SP / 0,5 KP) Preis", "oR oP) was die Ware ändert")

WITHOUT_SCRIPT = "ohne Skript"
WIDTHS = (320, 390, 768, 1280, 1920)
PAPERS = ((21.0, 29.7), (21.59, 27.94))  # A4 and Letter, in centimetres
PIXELS_PER_CENTIMETRE, MARGINS = 96 / 2.54, 2.4
SMALLEST_PIXELS = 12
# A usual character fits one page, a rich one two: so many skills and pieces of equipment together.
ENTRIES_ON_PAGES = {60: 1, 160: 2, 1200: 10}
# Somewhere in here notes and legend no longer fit the page of the equipment.
GEAR_AT_THE_PAGE_END = range(10, 64, 6)

# Letters this far apart make the widest font a seventh wider.
WIDEN = "() => document.head.insertAdjacentHTML('beforeend', '<style>* { letter-spacing: 0.085em; }</style>')"

LOOK = """() => ({
  title: document.title, text: document.body.innerText, links: document.querySelectorAll('[src], link, [href]').length,
  rules: [...document.styleSheets[0].cssRules].flatMap(rule => rule.media ? [...rule.cssRules] : [rule]).length
})"""

# Lays the page out as for print, as one long page.
LAY_OUT_FOR_PAPER = """() => {
  for (const {media} of document.styleSheets[0].cssRules)
    if (media) media.mediaText = media.mediaText.includes('print') ? 'all' : 'not all';
}"""

# Complaints about letters that stand where they should not.
MEASURE = r"""([size, smallest]) => {
  const root = document.documentElement, slack = 2;
  root.style.fontSize = size;
  const found = root.scrollWidth > root.clientWidth ? [`rollt seitwärts: ${root.scrollWidth}`] : [];
  const letters = [...document.querySelectorAll('input')].map(
      tick => ({word: tick.ariaLabel, ...tick.getBoundingClientRect().toJSON()}));
  const within = (a, b) => a.left >= b.left - slack && a.right <= b.right + slack &&
      a.top >= b.top - slack && a.bottom <= b.bottom + slack;
  const walker = document.createTreeWalker(document.body, NodeFilter.SHOW_TEXT);
  while (walker.nextNode()) {
    const node = walker.currentNode, style = getComputedStyle(node.parentElement), around = [];
    if (style.visibility === 'hidden') continue;
    for (let e = node.parentElement; e; e = e.parentElement)
      if (e.getClientRects().length) around.push(e.getBoundingClientRect());
    const fontSize = parseFloat(style.fontSize), fair = Math.min(12 * fontSize, 0.75 * root.clientWidth);
    // A letter hardly fills the line's height.
    const boxesOf = (start, word) => {
      const range = new Range();
      range.setStart(node, start);
      range.setEnd(node, start + word.length);
      return [...range.getClientRects()].filter(line => line.width).map(({left, right, top, bottom, height}) =>
          ({word, left, right, top: top + 0.15 * height, bottom: bottom - 0.15 * height}));
    };
    for (const {0: word, index} of node.data.matchAll(/\S+/g)) {
      const boxes = boxesOf(index, word);
      // Letters may only be parted where a word is too long for a line of fair length, or at a soft hyphen.
      const isBroken = boxes => boxes.some(box => box.top > boxes[0].bottom);
      const isTorn = part => isBroken(boxesOf(index + part.index + 1, part[0].slice(1)));
      if (boxes.reduce((sum, box) => sum + box.right - box.left, 0) < fair &&
          [...word.matchAll(/[\p{L}\p{N}]{2,}/gu)].some(isTorn)) found.push(`zerrissen: ${word}`);
      if (boxes.length && fontSize < smallest) found.push(`zu klein: ${word}`);
      if (!boxes.every(box => around.every(outer => within(box, outer)))) found.push(`ragt hinaus: ${word}`);
      letters.push(...boxes);
    }
  }
  letters.sort((a, b) => a.top - b.top).forEach((a, index) => {
    for (let i = index + 1; i < letters.length && letters[i].top < a.bottom - slack; ++i) {
      const b = letters[i];
      if (b.left < a.right - slack && b.right > a.left + slack && b.bottom > a.top + slack)
        found.push(`übereinander: ${a.word} und ${b.word}`);
    }
  });
  return letters.length > 40 ? [...new Set(found)].slice(0, 5) : ['die Seite ist leer'];
}"""


def values(sheet):
    """By line of the template, what stands in the sheet in its places; a dot is nothing."""
    lines = sheet.read_bytes().decode("cp1252").split("\r\n")
    assert len(lines) == len(UNITS), "der Bogen stammt nicht aus dieser Vorlage"
    found = {unit: [] for unit in UNITS}
    for unit, line in zip(UNITS, lines):
        found[unit] += [line] * (line != ".")
    return found


def fill(sheet, person, skills, gear):
    """Writes the template with wide values; those of a list move on as often as the template asks for them."""
    twice, count = [skill for skill in skills for _ in range(2)], len(skills)
    lists = {"#AFertigkeit#": iter(twice), "#FStufe#": iter(["12 (14)"] * count), "#WFertigkeit#": iter(twice),
             "#WStufe#": iter(["10"] * count), "#AUSRÜSTUNG#": iter([*gear, "Startkapital: 46920,506 Nuyen"])}
    value = {**dict(LABELLED.values()), **dict.fromkeys(("#NAME#", "#ALTER#", "#LOOK#"), person)}
    lines = [next(lists[unit], ".") if unit in lists else value.get(unit, unit) for unit in UNITS]
    sheet.write_bytes("\r\n".join(lines).encode("cp1252"))
    return sheet


def straining(folder, usual):
    """Sheets with all that the forms let through, and a usual one whose script does not run."""
    skills = [f"{name} {number} (Aufklärungsdrohnen der Küstenwache)" for number in range(1, 7)
              for name in ("Bodenfahrzeuge", "Sturmgewehre", "Drohnensteuerung und Wartung", "Verhandeln", "Türen")]
    gear = ["Freie Connection Stufe 1", "Silberfisch MPCP 7 RV 1 / 135.000 Y", "Regenschirm", "Fernglas",
            "Gehstock, innen hohl, darin eine Schrotpatrone und ein Etui mit Visitenkarten"] + ["Monatskarte"] * 15
    tags = ["<b>Seil</b> <!-- & <script>", "</td></table>", "<textarea>Ende", "Fälschen & Raten", "5 < 6 > 4", "'Öl'"]
    long = "Maximilianevontraunstein" * 8 + "Oberland"
    plain = folder / f"{WITHOUT_SCRIPT}.htm"
    plain.write_bytes(re.sub(rb"(?m)^(</?)script>", rb"\1template>", usual.read_bytes()))
    return [plain, fill(folder / "tausend.htm", "Maximiliane Freifrau von Traunstein", skills, (gear * 50)[:999]),
            fill(folder / "lang.htm", long, [f"{long} ({long})"] * 9, [long] * 40),
            fill(folder / "spitz.htm", 'Anna "Nadel" <b>& <!-- <script> </table> "', tags, tags)]


def squeezed(text):
    return re.sub(r"[\s\u00ad]", "", text)


def check_screen(page, wanted):
    # A rule for each brace but the two of @media and that of @bottom-right.
    rules = "".join(UNITS).split("</style>")[0].count("{") - 3
    assert page["rules"] == rules, f"{page['rules']} von {rules} Stilregeln verstanden"
    assert not page["links"], "der Bogen verlangt nach anderen Dateien"
    assert page["title"] == html.unescape(wanted["#NAME#"][0]).strip(), page["title"]

    shown = lambda name, level: name.removesuffix(" ()") + level.removesuffix(" (0)")
    skills = map(shown, wanted["#AFertigkeit#"][::2], wanted["#FStufe#"])
    knowledge = map(shown, wanted["#WFertigkeit#"][::2], wanted["#WStufe#"])
    *gear, money = wanted["#AUSRÜSTUNG#"]
    lists = ("Aktionsfertigkeiten", "Fertigkeit", "Stufe", *skills, "Wissensfertigkeiten und Sprachen", "Fertigkeit",
             "Stufe", *knowledge, "Ausrüstung", *gear, "Geld", money, "Notizen")
    pieces = [html.unescape("".join(lists)), *wanted["#NAME#"], *LEGEND]
    for label, (placeholder, _) in LABELLED.items():
        [value] = set(wanted[placeholder])
        pieces.append(label + ("" if (label, value) == ("Aufgabenpool", "0") else value))
    text = squeezed(page["text"])
    for piece in pieces:
        assert squeezed(piece) in text, f"nicht zu sehen: {piece}"


def printed(browser, paper):
    """The texts of the printed pages."""
    text = subprocess.run(["pdftotext", "-raw", "-enc", "UTF-8", "-", "-"], input=browser.printed(*paper),
                          capture_output=True, check=True).stdout.decode()
    pages = text.split("\f")[:-1]
    assert any("Notizen" in page and "So liest man" in page for page in pages), "Legende allein auf einer Seite"
    return pages


def check_paper(pages, wanted):
    entries = sum(len(wanted[column]) for column in ("#FStufe#", "#WStufe#", "#AUSRÜSTUNG#"))
    most = next(pages for fitting, pages in ENTRIES_ON_PAGES.items() if entries <= fitting)
    assert len(pages) <= most or len(wanted["#NAME#"][0]) > 100, f"{len(pages)} Seiten statt {most}"
    text = "\n".join(pages)
    assert not re.search(r"^[\s.]*\.\s*$|#\w+#", text, re.M), "Punkt oder Platzhalter auf dem Papier"
    text = squeezed(text)
    for line in wanted["#AFertigkeit#"] + wanted["#WFertigkeit#"] + wanted["#AUSRÜSTUNG#"] + wanted["#NAME#"]:
        assert squeezed(line.removesuffix(" ()")) in text, f"fehlt auf dem Papier: {line}"


def look(browser, sheet, wide):
    """Yields what is wrong with one sheet in one world, each with the place where it is."""
    def measure(widths, sizes, smallest):
        for size, width in [(size, width) for size in sizes for width in widths]:
            browser.resize(width)
            for complaint in browser.run(MEASURE, [size, smallest]):
                yield f"{browser.name}, {sheet.stem}, {width} Pixel {size}: {complaint}"

    wanted = values(sheet)
    browser.open(sheet)
    if sheet.stem != WITHOUT_SCRIPT:
        check_screen(browser.run(LOOK), wanted)
    if wide:
        browser.run(WIDEN)
    yield from measure(WIDTHS, ("200%", ""), SMALLEST_PIXELS)
    for paper in PAPERS:
        check_paper(printed(browser, paper), wanted)
    if wide and sheet.stem == "tausend":
        for rows in reversed(GEAR_AT_THE_PAGE_END):
            browser.run("rows => [...document.querySelectorAll('li')].slice(rows).forEach(row => row.remove())", rows)
            printed(browser, PAPERS[0])
    browser.run(LAY_OUT_FOR_PAPER)
    yield from measure([round((width - MARGINS) * PIXELS_PER_CENTIMETRE) for width, _ in PAPERS], [""], 0)


def complaints(name, sheets, folder):
    """All that is wrong in one browser."""
    found = []
    for world in WORLDS:
        with closing(Browser(name, world, folder)) as browser:
            for sheet in sheets:
                try:
                    found += look(browser, sheet, world == "DejaVu")
                except AssertionError as error:
                    found.append(f"{browser.name}, {sheet.stem}: {error}")
        found += browser.complaints
    return found


with tempfile.TemporaryDirectory(ignore_cleanup_errors=True) as name, ThreadPoolExecutor() as pool:
    sheets = [Path(argument) for argument in sys.argv[1:]]
    sheets += straining(Path(name), sheets[0])
    runs = pool.map(lambda browser: complaints(browser, sheets, Path(name)), ("Chromium", "Firefox"))
    found = [complaint for run in runs for complaint in run]
print("\n".join(found) or f"{len(sheets)} Bögen sind gut.")
sys.exit(bool(found))
