#!/usr/bin/env python3
"""Fills the "Countries" context of every shipped translation source (resources/i18n/*.ts) with
country names from Debian's iso-codes package, so the Locations list, the tray and the mode
descriptions show real names instead of the English table texts.

The table in src/catalog/Countries.cpp maps each source text to its ISO 3166-1 code; iso-codes
gives the English name (and a shorter common name for some) of that code, and its gettext
catalogue /usr/share/locale/<locale>/LC_MESSAGES/iso_3166-1.mo the translation. The common name
wins when it is translated ("Bolivia" rather than "Bolivia, Plurinational State of"); a name
the catalogue lacks takes the ISO English spelling ("Côte d'Ivoire"). Every other context of the .ts files is left as it is.

Usage: scripts/fill-country-translations.py [REPO]   (needs the iso-codes package)
"""

import gettext
import json
import pathlib
import re
import sys
import xml.sax.saxutils

ISO_JSON = pathlib.Path("/usr/share/iso-codes/json/iso_3166-1.json")
LOCALE_DIR = pathlib.Path("/usr/share/locale")
# Our language tags (resources/i18n/tovra_<tag>.ts) to the locales iso-codes ships.
LOCALES = {"zh_Hans": "zh_CN", "zh_Hant": "zh_TW"}
# Names whose current ISO spelling iso-codes has not yet translated for a language.
OWN = {
    "tr": {"ar": "تركيا", "es": "Turquía", "fa": "ترکیه", "fr": "Turquie", "ja": "トルコ",
           "pt_BR": "Turquia", "ru": "Турция"},
    "cz": {"ja": "チェコ"},
    "mk": {"ja": "北マケドニア"},
    "sz": {"ja": "エスワティニ"},
}


def table(repo):
    text = (repo / "src/catalog/Countries.cpp").read_text(encoding="utf-8")
    rows = re.findall(r'\{"([a-z]{2})", QT_TRANSLATE_NOOP\("Countries", "((?:[^"\\]|\\.)*)"\)\}', text)
    if len(rows) != 233:
        sys.exit(f"expected 233 rows in Countries.cpp, found {len(rows)}")
    return [(code, source.replace('\\"', '"')) for code, source in rows]


def iso_names():
    records = json.loads(ISO_JSON.read_text(encoding="utf-8"))["3166-1"]
    return {r["alpha_2"].lower(): [r[k] for k in ("common_name", "name") if k in r] for r in records}


def catalogue(tag):
    locale = LOCALES.get(tag, tag)
    mo = LOCALE_DIR / locale / "LC_MESSAGES" / "iso_3166-1.mo"
    if not mo.exists():
        mo = LOCALE_DIR / locale.split("_")[0] / "LC_MESSAGES" / "iso_3166-1.mo"
    if not mo.exists():
        return None
    with mo.open("rb") as handle:
        return gettext.GNUTranslations(handle)


def context_xml(tag, rows, names, translations):
    lines = ["<context>", "    <name>Countries</name>"]
    for code, source in rows:
        known = [english for english in names.get(code, []) if english in translations._catalog]
        # Without a translation the ISO spelling still beats the ASCII table text.
        translated = translations.gettext(known[0]) if known else names.get(code, [""])[-1]
        if not known and tag in OWN.get(code, {}):
            translated = OWN[code][tag]
        escape = lambda s: xml.sax.saxutils.escape(s, {'"': "&quot;", "'": "&apos;"})
        lines.append("    <message>")
        lines.append(f"        <source>{escape(source)}</source>")
        if translated:
            lines.append(f"        <translation>{escape(translated)}</translation>")
        else:
            lines.append('        <translation type="unfinished"></translation>')
        lines.append("    </message>")
    lines.append("</context>")
    return "\n".join(lines) + "\n"


def fill(path, rows, names):
    tag = path.stem.removeprefix("tovra_")
    translations = catalogue(tag)
    if translations is None:
        print(f"{path.name}: no iso-codes catalogue for {tag}, skipped", file=sys.stderr)
        return
    text = path.read_text(encoding="utf-8")
    block = context_xml(tag, rows, names, translations)
    text = re.sub(r"<context>\n    <name>Countries</name>\n.*?</context>\n", "", text, flags=re.S)
    # Contexts stand in name order, as lupdate writes them.
    for match in re.finditer(r"<context>\n    <name>([^<]*)</name>", text):
        if match.group(1) > "Countries":
            text = text[: match.start()] + block + text[match.start():]
            break
    else:
        text = text.replace("</TS>", block + "</TS>")
    path.write_text(text, encoding="utf-8")
    print(f"{path.name}: {len(rows)} country names")


def main():
    repo = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else pathlib.Path(__file__).parent.parent)
    if not ISO_JSON.exists():
        sys.exit("iso-codes is not installed (apt-get install iso-codes)")
    rows = table(repo)
    names = iso_names()
    for path in sorted((repo / "resources/i18n").glob("tovra_*.ts")):
        fill(path, rows, names)


if __name__ == "__main__":
    main()
