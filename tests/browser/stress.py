"""Characters that strain the data sheet, played through the headless program on the shipped catalogues and template."""
import shutil
import subprocess
from pathlib import Path

DATA = Path(__file__).resolve().parents[2] / "data"
PRIORITIES = ("optRasseMensch", "optMagieD", "optAttribute27", "optFertigkeiten34", "optRessA")
ATTRIBUTE_POINTS = {"Konst": 4, "Schnell": 5, "Stark": 4, "Charisma": 4, "Intell": 5, "Will": 5}
SKILL_POINTS, KNOWLEDGE_POINTS, LANGUAGE_POINTS = 34, 25, 7


def levels(points, entries):
    return [points // entries + (index < points % entries) for index in range(entries)]


def gestures(name, look, skills, special, knowledge, languages, purchases, gear):
    for option in PRIORITIES:
        yield f"click {option}"
    yield "click cmdWeiter1"
    for attribute, points in ATTRIBUTE_POINTS.items():
        yield from [f"click cmd{attribute}Plus"] * points
    yield "click cmdWeiter2"
    for skill in skills:
        yield from (f"type txtAFertigkeit {skill}", "click optAFSchnell", "click cmdAddFertigkeit")
    for index, level in enumerate(levels(SKILL_POINTS, len(skills))):
        yield from [f"select lstAFertigkeiten {index}"] + ["click cmdFertigkeitPlus"] * level
    yield "click cmdafertcompl"
    for index, text in enumerate(special):
        yield from (f"select lstAFertigkeiten {index}", f"type txtSpezi {text}", "click cmdAddSpezi")
    yield "click cmddisformisready"
    for kind, button, box, names, points in (
            ("WFertigkeit", "cmdAddWFertigkeit", "lstWFertigkeiten", knowledge, KNOWLEDGE_POINTS),
            ("Sprache", "cmdAddSprache", "lstSprachen", languages, LANGUAGE_POINTS)):
        for text in names:
            yield from (f"type txt{kind} {text}", f"click {button}")
        for index, level in enumerate(levels(points, len(names))):
            yield from [f"select {box} {index}"] + ["click cmdPlusWFert"] * level
    yield "click cmdGoAhead"
    for combo, button, entry in purchases:
        yield from (f"pick {combo} {entry}", f"click {button}")
    yield "type txtEquipmentKosten 1"
    for text in gear:
        yield from (f"type txtEquipment {text}", "click cmdAddEquipment")
    yield "click cmdGoAhead"
    yield from (f"type txtName {name}", f"type txtAussehen {look}", "type txtAlter 57", "pick cmbGeschlecht weiblich",
                "click cmdOkay", "click cmdErzeugeHTML")


def names(catalogue):
    return [line.split('"')[1] for line in (DATA / catalogue).read_text("cp1252").splitlines()]


def characters():
    skills = [f"{word} {number}" for number in range(1, 7)
              for word in ("Bodenfahrzeuge", "Sturmgewehre", "Drohnensteuerung und Wartung", "Verhandlung", "Türen")]
    special = ["Lieferwagen mit Anhänger", "Schnellfeuer", "Aufklärungsdrohnen der Küstenwache", "Pfandleiher"]
    knowledge = [f"{word} {number}" for number in range(1, 6)
                 for word in ("Konzernpolitik", "Weine", "Militärgeschichte", "Behörden", "Banken", "Musik")]
    languages = [f"Sprache Nummer {number}" for number in range(1, 21)]
    purchases = ([("cmbLebensstil", "cmdAddLebensstil", names("Lebensstil.txt")[-2]),
                  ("cmbConnection", "cmdAddConnection", names("Connection.txt")[-1]),
                  ("cmbCyberdecks", "cmdAddDeckerWare", names("Cyberdecks.txt")[-5])] +
                 [("cmbCyberware", "cmdAddCyberware", name) for name in names("Cyberware.txt")[:16]] +
                 [("cmbBioware", "cmdAddBioware", name) for name in names("Bioware.txt")[4:8]])
    gear = ["Gehstock, innen hohl, darin eine Schrotpatrone und ein Etui mit Visitenkarten", "X" * 70]
    gear += ["Monatskarte"] * 60
    yield "reich", ("Maximiliane Freifrau von und zu Traunstein-Oberländer", "silberne Schläfen, Gehstock", skills,
                    special, knowledge, languages, purchases, gear[:34])
    yield "tausend", ("Zettelkasten", "unübersichtlich", skills, special, knowledge, languages, purchases,
                      gear * 16)
    tags = ["Messer <b>werfen", "<script>", "<textarea>Ende", "</td></table>", "<!-- Ausweichen", "Fälschen & Raten",
            "5 < 6 > 4", "'Kaffee'"]
    yield "spitz", ("Evi &lt; Co", "<i>kursiv <div>", tags, tags[:2], tags, tags, [],
                    tags + ["<style>"])


def play(program, folder):
    """Plays each character in a folder of its own and returns the finished sheets."""
    sheets = []
    for name, character in characters():
        home = Path(folder) / name
        home.mkdir()
        for file in DATA.iterdir():
            shutil.copy(file, home)
        script = "\n".join(gestures(*character))
        replies = subprocess.run([str(Path(program).resolve())], input=script.encode(), cwd=home, capture_output=True,
                                 check=True).stdout.decode().splitlines()
        bad = [reply for reply in replies if reply in ("unknown", "disabled") or reply.startswith("fault")]
        assert not bad and replies[-1] == "end", f"{name}: {bad or replies[-1]}"
        sheets += [file for file in home.glob("*.htm") if file.name != "template.htm"]
    return sheets
