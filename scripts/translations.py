#!/usr/bin/env python3
"""Translation catalogue chores for resources/i18n/tovra_<tag>.ts.

  translations.py export TAG [--all]     unfinished messages (all with --all) as JSON lines
  translations.py import TAG FILE        fill translations from a JSON object {id: text|[forms]}
  translations.py check [--lupdate PATH] [TAG...]
                                         fail when a catalogue is incomplete or out of date

An id is the message's position in its file, so export and import must see the same file.
A "note" in the export is the translator comment from the code; one starting with "Button" marks
a button text, which check keeps within twice the English length.
"""

import argparse
import json
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ET

ROOT = pathlib.Path(__file__).resolve().parent.parent
I18N = ROOT / "resources" / "i18n"
LUPDATE_ARGS = ["-no-obsolete", "-locations", "none", "-silent"]
PLACEHOLDER = re.compile(r"%(?:[1-9][0-9]?|n)")
# Untranslated by design: the same text in every language.
PRODUCT_WORDS = ("Tovra", "TovraVPN", "WireGuard")
# A button's text carries a translator comment starting with "Button". Its translation may take
# up to twice the source's characters (or this many, which every button fits) before it risks
# clipping in the rows and dialogs that were laid out for the English text.
BUTTON_NOTE = re.compile(r"^Button\b", re.MULTILINE)
BUTTON_ROOM = 12


def ts_path(tag):
    return I18N / f"tovra_{tag}.ts"


def messages(root):
    for context in root.iter("context"):
        name = context.findtext("name")
        for message in context.iter("message"):
            yield name, message


def forms_of(message):
    translation = message.find("translation")
    if message.get("numerus") == "yes":
        return [form.text or "" for form in translation.iter("numerusform")]
    return [translation.text or ""]


def cmd_export(args):
    root = ET.parse(ts_path(args.tag)).getroot()
    for index, (context, message) in enumerate(messages(root)):
        translation = message.find("translation")
        unfinished = translation.get("type") == "unfinished"
        if not (unfinished or args.all) or context == "Countries":
            continue
        row = {"id": index, "ctx": context, "src": message.findtext("source")}
        if message.findtext("comment"):
            row["comment"] = message.findtext("comment")
        if message.findtext("extracomment"):
            row["note"] = message.findtext("extracomment")
        if message.get("numerus") == "yes":
            row["forms"] = len(forms_of(message))
        if not unfinished:
            row["done"] = forms_of(message) if row.get("forms") else forms_of(message)[0]
        print(json.dumps(row, ensure_ascii=False))


def cmd_import(args):
    path = ts_path(args.tag)
    tree = ET.parse(path)
    given = json.loads(pathlib.Path(args.file).read_text(encoding="utf-8"))
    by_index = dict(enumerate(messages(tree.getroot())))
    for key, value in given.items():
        context, message = by_index[int(key)]
        translation = message.find("translation")
        if message.get("numerus") == "yes":
            forms = list(translation.iter("numerusform"))
            if not isinstance(value, list) or len(value) != len(forms):
                sys.exit(f"{key}: {len(forms)} plural forms expected")
            for form, text in zip(forms, value):
                form.text = text
        else:
            if not isinstance(value, str):
                sys.exit(f"{key}: one text expected")
            translation.text = value
        translation.attrib.pop("type", None)
    tree.write(path, encoding="utf-8", xml_declaration=True)
    print(f"{path.name}: {len(given)} translations imported; run lupdate to reformat")


def problems_in(path):
    found = []
    root = ET.parse(path).getroot()
    for context, message in messages(root):
        source = message.findtext("source")
        where = f"{path.name}: [{context}] {source!r}"
        kind = message.find("translation").get("type")
        if kind:
            found.append(f"{where}: {kind}")
            continue
        forms = forms_of(message)
        if any(not form.strip() for form in forms):
            found.append(f"{where}: empty translation")
            continue
        wanted = set(PLACEHOLDER.findall(source))
        numbered = wanted - {"%n"}
        for form in forms:
            missing = numbered - set(PLACEHOLDER.findall(form))
            if missing:
                found.append(f"{where}: {' '.join(sorted(missing))} missing in {form!r}")
        # Singular forms may spell the number out; the general form must carry it.
        if "%n" in wanted and "%n" not in forms[-1]:
            found.append(f"{where}: %n missing in {forms[-1]!r}")
        for word in PRODUCT_WORDS:
            if re.search(rf"\b{word}\b", source) and not re.search(rf"\b{word}\b", " ".join(forms)):
                found.append(f"{where}: product name {word} translated")
        if BUTTON_NOTE.search(message.findtext("extracomment") or ""):
            room = max(2 * len(source), BUTTON_ROOM)
            for form in forms:
                if len(form) > room:
                    found.append(f"{where}: button text {form!r} is {len(form)} characters, "
                                 f"over {room}; find a shorter form")
    return found


def cmd_check(args):
    catalogues = [ts_path(tag) for tag in args.tags] or sorted(I18N.glob("tovra_*.ts"))
    problems = []
    for path in catalogues:
        problems += problems_in(path)
    # A fresh extraction must reproduce the checked-in files byte for byte: a text in the code
    # without an entry, or an entry whose text left the code, shows up as a difference.
    with tempfile.TemporaryDirectory() as scratch:
        copies = []
        for path in catalogues:
            copy = pathlib.Path(scratch) / path.name
            shutil.copyfile(path, copy)
            copies.append(str(copy))
        subprocess.run([args.lupdate, *LUPDATE_ARGS, str(ROOT / "src"), "-ts", *copies],
                       check=True, stdout=subprocess.DEVNULL)
        for path in catalogues:
            if (pathlib.Path(scratch) / path.name).read_bytes() != path.read_bytes():
                problems.append(f"{path.name}: out of date with the code; run the "
                                "update_translations target and translate what it adds")
    for line in problems:
        print(line)
    print(f"{len(catalogues)} catalogues, {len(problems)} problems")
    return 1 if problems else 0


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    commands = parser.add_subparsers(dest="command", required=True)
    export = commands.add_parser("export")
    export.add_argument("tag")
    export.add_argument("--all", action="store_true")
    load = commands.add_parser("import")
    load.add_argument("tag")
    load.add_argument("file")
    check = commands.add_parser("check")
    check.add_argument("--lupdate", default="lupdate")
    check.add_argument("tags", nargs="*")
    args = parser.parse_args()
    return {"export": cmd_export, "import": cmd_import, "check": cmd_check}[args.command](args) or 0


if __name__ == "__main__":
    sys.exit(main())
