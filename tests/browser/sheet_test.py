#!/usr/bin/python3
"""Opens finished data sheets in Chromium and Firefox and looks at them as a player would.

    sheet_test.py SHEET.htm...

What a sheet has to show is read from its own lines against the template. Beside the given sheets the template is filled
with what strains it. Each is measured letter by letter on screens from a phone to a wide one, with text of the usual
size and twice as large, and printed, with the fonts of one world at a time.
"""
import html
import math
import re
import subprocess
import sys
import tempfile
import unicodedata
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

sys.dont_write_bytecode = True
from browsers import WORLDS, Browser

TEMPLATE = Path(__file__).resolve().parents[2] / "data" / "template.htm"
ATTRIBUTES = {"Konstitution": "#konst#", "Schnelligkeit": "#schnell#", "Stärke": "#stark#", "Charisma": "#charisma#",
              "Intelligenz": "#intell#", "Willenskraft": "#will#"}
POOLS = {"Kampfpool": "#kampf#", "Zauberpool": "#zauber#", "Astralkampf": "#astral#", "Hackingpool": "#hacking#",
         "Steuerpool": "#steuer#", "Aufgabenpool": "#aufgaben#"}
LABELLED = {**ATTRIBUTES, **POOLS, "Essenz": "#essenz#", "Magie": "#magie#", "Initiative": "#ini#",
            "Reaktion": "#reak#", "Rasse": "#RASSE#", "Geschlecht": "#GSCHLCHT#", "Alter": "#ALTER#",
            "Aussehen": "#LOOK#"}
LISTS = {"#AFertigkeit#", "#FStufe#", "#WFertigkeit#", "#WStufe#", "#AUSRÜSTUNG#"}

WITHOUT_SCRIPT = "ohne Skript"
WIDTHS = (320, 390, 768, 1280, 1920)
PAPERS = {"A4": (21.0, 29.7), "Letter": (21.59, 27.94)}
PIXELS_PER_CENTIMETRE, MARGINS = 96 / 2.54, 2.4
SMALLEST_PIXELS = 12
# Letters this far apart make the widest font a seventh wider.
A_SEVENTH = "* { letter-spacing: 0.085em; }"
# A usual character fits one page, a rich one two: so many rows of three columns in skills and equipment together.
ROWS_ON_PAGES = {20: 1, 55: 2, 400: 10}
# Somewhere in here notes and legend no longer fit the page of the equipment.
GEAR_AT_THE_PAGE_END = range(10, 64, 6)

LOOK = r"""() => {
  const clean = e => e.textContent.replaceAll('\u00AD', '').trim().replace(/\s+/g, ' ');
  const labelled = {};
  for (const th of document.querySelectorAll('th[scope=row]'))
    (labelled[clean(th)] ??= []).push(clean(th.nextElementSibling));
  const list = title => [...[...document.querySelectorAll('section')].find(s => clean(s.firstElementChild) === title)
      .querySelectorAll('tbody tr, li')].filter(row => !row.ariaHidden);
  const pairs = title => list(title).map(row => [...row.cells].map(clean));
  const rules = [...document.styleSheets[0].cssRules].flatMap(rule => rule.media ? [...rule.cssRules] : [rule]);
  return {title: document.title, heading: clean(document.querySelector('h1')), labelled,
          '#AFertigkeit#': pairs('Aktionsfertigkeiten'), '#WFertigkeit#': pairs('Wissensfertigkeiten und Sprachen'),
          '#AUSRÜSTUNG#': [...list('Ausrüstung'), document.querySelector('.kapital')].map(clean),
          rules: rules.length, legend: clean(document.querySelector('footer')),
          outside: document.querySelectorAll('[src], link, [href]').length};
}"""

# Lays the page out as for print, as one long page.
LAY_OUT_FOR_PAPER = """() => {
  for (const {media} of document.styleSheets[0].cssRules)
    if (media) media.mediaText = media.mediaText.includes('print') ? 'all' : 'not all';
}"""

# Complaints about letters that stand where they should not.
MEASURE = r"""([size, smallest]) => {
  const root = document.documentElement, pen = document.createElement('canvas').getContext('2d');
  root.style.fontSize = size;
  const page = {left: 0, right: root.clientWidth, top: 0, bottom: root.scrollHeight}, slack = 1.5;
  const letters = [...document.querySelectorAll('input')].map(tick => {
    const {left, right, top, bottom} = tick.getBoundingClientRect();
    return {word: tick.ariaLabel, left: left + slack, right: right - slack, top, bottom};
  });
  const found = root.scrollWidth > root.clientWidth ? [`rollt seitwärts: ${root.scrollWidth}`] : [];
  const walker = document.createTreeWalker(document.body, NodeFilter.SHOW_TEXT);
  const within = (a, b) => a.left >= b.left - slack && a.right <= b.right + slack &&
      a.top >= b.top - 2 * slack && a.bottom <= b.bottom + 2 * slack;
  while (walker.nextNode()) {
    const node = walker.currentNode, style = getComputedStyle(node.parentElement), outer = [page];
    if (style.visibility === 'hidden' || !node.data.trim()) continue;
    let block = node.parentElement;
    while (getComputedStyle(block).display.startsWith('inline')) block = block.parentElement;
    for (let e = block; e !== document.body; e = e.parentElement)
      if (e === block || getComputedStyle(e).overflowX !== 'visible') outer.push(e.getBoundingClientRect());
    const {paddingLeft, paddingRight} = getComputedStyle(block);
    const room = block.clientWidth - parseFloat(paddingLeft) - parseFloat(paddingRight);
    const isFair = room > Math.min(12 * parseFloat(style.fontSize), 0.75 * root.clientWidth);
    pen.font = `${style.fontWeight} ${style.fontSize} ${style.fontFamily}`;
    const linesOf = (start, text) => {
      const range = new Range();
      range.setStart(node, start);
      range.setEnd(node, start + text.length);
      return [...range.getClientRects()].filter(line => line.width);
    };
    const isBroken = lines => lines.some(line => line.top > lines[0].top + slack);
    for (const {0: word, index} of node.data.matchAll(/\S+/g)) {
      const lines = linesOf(index, word), ink = pen.measureText(word);
      // Letters may only be parted where a word is too long for a line of fair length, or at a soft hyphen.
      const isTorn = part => isBroken(linesOf(index + part.index + 1, part[0].slice(1)));
      const isTooLong = lines.reduce((sum, line) => sum + line.width, 0) >= room;
      if (isBroken(lines) && !(isTooLong && isFair) && [...word.matchAll(/[\p{L}\p{N}]{2,}/gu)].some(isTorn))
        found.push(`zerrissen: ${word}`);
      if (lines.length && parseFloat(style.fontSize) < smallest) found.push(`zu klein: ${word}`);
      for (const {left, right, top} of lines) {
        const base = top + ink.fontBoundingBoxAscent;
        const box = {word, left, right, top: base - ink.actualBoundingBoxAscent,
                     bottom: base + ink.actualBoundingBoxDescent};
        if (!outer.every(o => within(box, o))) found.push(`ragt hinaus: ${word}`);
        letters.push(box);
      }
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


def units(data):
    """The template in the fields that the program reads: a comma or a line end closes each."""
    for quoted, plain in re.findall(r' *(?:"([^"]*)"[^,\r\n]*|([^,\r\n]*))(?:,|\r\n|\Z)', data)[:-1]:
        yield quoted or plain


UNITS = list(units(TEMPLATE.read_bytes().decode("cp1252")))


def values(sheet):
    """By placeholder, what stands in the sheet in its places."""
    lines = sheet.read_bytes().decode("cp1252").split("\r\n")
    assert len(lines) == len(UNITS) + 1, "der Bogen stammt nicht aus dieser Vorlage"
    found = {placeholder: [] for placeholder in (*LABELLED.values(), *LISTS, "#NAME#")}
    for unit, line in zip(UNITS, lines):
        if unit in found and (unit not in LISTS or line != "."):
            found[unit].append(line)
    assert all(found[placeholder] for placeholder in found.keys() - LISTS), "in der Vorlage fehlt ein Platzhalter"
    return found


def fill(sheet, person, skills, knowledge, gear):
    """Writes the template with long values; each list's placeholders move on as the template repeats them."""
    value = {**dict.fromkeys(POOLS.values(), "-30"), **dict.fromkeys(ATTRIBUTES.values(), "-12 (-30)"),
             "#ini#": "+1W6 (+10W6) (+12W6)", "#reak#": "-12 (-30) (125)", "#aufgaben#": "0", "#kampf#": "125",
             "#essenz#": "3,18", "#magie#": "6", "#RASSE#": "Mensch",
             **dict(zip(("#NAME#", "#GSCHLCHT#", "#ALTER#", "#LOOK#"), person))}
    twice = lambda texts: iter([text for text in texts for _ in range(2)])
    gear = ["Freie Connection Stufe 1"] * 2 + gear + ["Startkapital: 46920,506 Nuyen"]
    rows = {"#AFertigkeit#": twice(skills), "#FStufe#": iter(["12 (14)"] * len(skills)),
            "#WFertigkeit#": twice(knowledge), "#WStufe#": iter(["10"] * len(knowledge)), "#AUSRÜSTUNG#": iter(gear)}
    text = "".join((next(rows[u], ".") if u in rows else value.get(u, u)) + "\r\n" for u in UNITS)
    sheet.write_bytes(text.encode("cp1252"))
    return sheet


def straining(folder):
    """Sheets with all that the forms let through."""
    skills = [f"{name} {number} (Aufklärungsdrohnen der Küstenwache)" for number in range(1, 7)
              for name in ("Bodenfahrzeuge", "Sturmgewehre", "Drohnensteuerung und Wartung", "Verhandeln", "Türen")]
    gear = ["Gehstock, innen hohl, darin eine Schrotpatrone und ein Etui mit Visitenkarten", "Fernglas", "Regenschirm",
            "Silberfisch MPCP 7 RV 1 / 135.000 Y", "Datenbahn Stufe 3 (Decker Rea+3 Ini+2W6)"] + ["Monatskarte"] * 30
    tags = ["<b>Seil</b> <!-- & <script>", "</td></table>", "<textarea>Ende", "Fälschen & Raten", "5 < 6 > 4", "'Öl'"]
    long = "Maximilianevontraunstein" * 8 + "Oberland"
    rich = ("Maximiliane Freifrau von und zu Traunstein-Oberländer", "weiblich", "57", "silberne Schläfen, Gehstock")
    yield (sheet := fill(folder / "reich.htm", rich, [text.split(" (")[0] for text in skills], skills[:20], gear[:34]))
    plain = re.sub(rb"(?m)^(</?)script>", rb"\1template>", sheet.read_bytes())
    (folder / f"{WITHOUT_SCRIPT}.htm").write_bytes(plain)
    yield folder / f"{WITHOUT_SCRIPT}.htm"
    yield fill(folder / "tausend.htm", rich, skills, skills, (gear[:20] * 50)[:997])
    yield fill(folder / "lang.htm", (long, "männlich", long, long), [f"{long} ({long})"] * 9, [long] * 9, [long] * 40)
    yield fill(folder / "leer.htm", [""] * 4, [], [], [])
    yield fill(folder / "spitz.htm", ('Anna "Nadel" <b>& Co', "weiblich", '"<i>30', '<!-- <script> </table> "'),
               tags, tags, tags)


def check_values(page, wanted):
    shown = lambda text: re.sub(r"\s+", " ", html.unescape(text).strip())
    as_typed = lambda text: re.sub(r"\s+", " ", text.strip())
    assert page["heading"] == as_typed(wanted["#NAME#"][0]), page["heading"]
    assert page["title"] == shown(wanted["#NAME#"][0]), page["title"]
    for label, placeholder in LABELLED.items():
        assert page["labelled"][label] == [as_typed(wanted[placeholder][0])], f"{label}: {page['labelled'][label]}"
    for names, levels in (("#AFertigkeit#", "#FStufe#"), ("#WFertigkeit#", "#WStufe#")):
        pairs = [[shown(name), level] for name, level in zip(wanted[names][::2], wanted[levels])]
        assert page[names] == pairs, f"{page[names]} statt {pairs}"
    gear = [shown(text) for text in wanted["#AUSRÜSTUNG#"]]
    assert page["#AUSRÜSTUNG#"] == gear, f"{page['#AUSRÜSTUNG#']} statt {gear}"
    blocks = "".join(UNITS).split("</style>")[0].count("{") - len(("@media", "@media", "@bottom-right"))
    assert page["rules"] == blocks, f"{page['rules']} von {blocks} Stilregeln verstanden"
    assert not page["outside"], "der Bogen verlangt nach anderen Dateien"
    for shape in ("4 (6)", "4 (6) (9)", "+1W6 (+3W6) (+2W6)", ") 3 (5)", "SP", "KP", "oR", "oP"):
        assert shape in page["legend"], f"Legende ohne {shape}"


def printed(browser, paper):
    """The texts of the printed pages."""
    text = subprocess.run(["pdftotext", "-raw", "-enc", "UTF-8", "-", "-"], input=browser.printed(*PAPERS[paper]),
                          capture_output=True, check=True).stdout.decode()
    pages = unicodedata.normalize("NFKC", text).split("\f")[:-1]
    assert "Notizen" in [page for page in pages if "So liest man" in page][0], "Legende allein auf einer Seite"
    return pages


def check_paper(pages, wanted):
    rows = sum(math.ceil(len(entries) / 3) for entries in
               (wanted["#FStufe#"], wanted["#WStufe#"], wanted["#AUSRÜSTUNG#"]))
    most = next((pages for fitting, pages in ROWS_ON_PAGES.items() if rows <= fitting), math.inf)
    assert len(pages) <= most or len(wanted["#NAME#"][0]) > 100, f"{len(pages)} Seiten statt {most}"
    text = "\n".join(pages)
    assert not re.search(r"^\s*\.\s*$|#\w+#", text, re.M), "Punkt oder Platzhalter auf dem Papier"
    squeezed = re.sub(r"\s+", "", text)
    for line in wanted["#AFertigkeit#"] + wanted["#WFertigkeit#"] + wanted["#AUSRÜSTUNG#"] + wanted["#NAME#"]:
        line = unicodedata.normalize("NFKC", line.removesuffix(" ()"))
        assert re.sub(r"\s+", "", line) in squeezed, f"fehlt auf dem Papier: {line}"


def look(browser, sheet, wider):
    """Yields what is wrong with one sheet in one world, each with the place where it is."""
    def layout(width, size="", smallest=SMALLEST_PIXELS):
        browser.resize(width)
        for complaint in browser.run(MEASURE, [size, smallest]):
            yield f"{width} Pixel {size}: {complaint}"

    wanted = values(sheet)
    browser.open(sheet)
    if wider:
        browser.run("css => { document.head.append(document.createElement('style')); "
                    "document.head.lastChild.textContent = css; }", A_SEVENTH)
    elif sheet.stem != WITHOUT_SCRIPT:
        check_values(browser.run(LOOK), wanted)
    for size in ("", "200%"):
        for width in WIDTHS:
            yield from layout(width, size)
    browser.run("() => { document.documentElement.style.fontSize = ''; }")
    for paper in PAPERS:
        check_paper(printed(browser, paper), wanted)
    if wider and sheet.stem == "tausend":
        for rows in reversed(GEAR_AT_THE_PAGE_END):
            browser.run("rows => [...document.querySelectorAll('li')].slice(rows).forEach(row => row.remove())", rows)
            printed(browser, "A4")
    browser.run(LAY_OUT_FOR_PAPER)
    for width, _ in PAPERS.values():
        yield from layout(round((width - MARGINS) * PIXELS_PER_CENTIMETRE), smallest=0)


def complaints(name, sheets, folder):
    """All that is wrong in one browser."""
    found = []
    for world in WORLDS:
        browser = Browser(name, world, folder)
        try:
            for wider in (False, True) if world == "DejaVu" else (False,):
                for sheet in sheets:
                    place = f"{name}, {world}{', breiter' if wider else ''}, {sheet.stem}"
                    try:
                        found += [f"{place}, {complaint}" for complaint in look(browser, sheet, wider)]
                    except AssertionError as error:
                        found.append(f"{place}: {error}")
        finally:
            browser.close()
        found += [f"{name}: {line}" for line in browser.complaints]
    return found


def main():
    sheets = [Path(argument) for argument in sys.argv[1:]]
    with tempfile.TemporaryDirectory(ignore_cleanup_errors=True) as folder:
        sheets += straining(Path(folder))
        with ThreadPoolExecutor() as pool:
            runs = list(pool.map(lambda name: complaints(name, sheets, Path(folder)), ("Chromium", "Firefox")))
    found = [complaint for run in runs for complaint in run]
    print("\n".join(found) or f"{len(sheets)} Bögen sind gut.")
    sys.exit(bool(found))


if __name__ == "__main__":
    main()
