#!/usr/bin/env python3
"""Checks the language data under lang/ against English and against the keys that the sources use.

Prints one line per fault and ends with status 1 when there is any, 2 when it cannot work at all.
"""
import argparse
import re
import sys
import xml.etree.ElementTree as ElementTree
from pathlib import Path

ENGLISH = "en"
ROOT_NAME = "QorLang"
SOURCE_FOLDERS = ("QorPub", "QorApi", "QorUI", "hosts")
SOURCE_SUFFIXES = {".cpp", ".h"}
SECTION = re.compile(r"Strings|IDD_DLG_[A-Z0-9_]+")
STRINGS_KEY = re.compile(r"STR_[A-Z0-9_]+")
DIALOG_KEY = re.compile(r"Text|Ctrl[1-9][0-9]{0,4}|STR_[A-Z0-9_]+")
MNEMONIC = re.compile(r"&(?:&|(?P<letter>.))", re.DOTALL)
PAGE_FOLDER = "hosts/console/pages"
# What the library's dialogs put on their buttons beside each other.
BUTTON_ROWS = (("STR_YES", "STR_NO", "STR_CANCEL"), ("STR_RETRY", "STR_IGNORE", "STR_CANCEL"),
               ("STR_OK", "STR_CANCEL"), ("STR_BACK", "STR_NEXT", "STR_FINISH", "STR_CANCEL"))

USED_KEY = re.compile(r'"((?:STR|IDD_DLG)_[A-Z0-9_]*[A-Z0-9])"')

PLACEHOLDER = re.compile(
    r"%(?:(?P<percent>%)"
    r"|[-+ #0]*(?P<width>\*|\d*)(?:\.(?P<precision>\*|\d*))?(?P<size>I64|I32|ll|hh|[hlwLjztI])?"
    r"(?P<kind>[diuoxXeEfFgGaAscSCpn])"
    r"|(?P<other>.?))", re.DOTALL)
SIZES = {"I64": "q", "ll": "q", "j": "q", "z": "z", "t": "z", "I": "z", "h": "h", "hh": "b"}


class Faults(list):
    def add(self, where, what):
        self.append(f"{where}: {what}")


def kind_of(kind, size):
    """The kind as the library's own parser names it."""
    if kind in "diuoxX":
        return SIZES.get(size, "") + {"i": "d", "X": "x"}.get(kind, kind)
    if kind in "eEfFgGaA":
        return "f"
    if kind in "sc":
        return "n" + kind if size == "h" else kind
    if kind in "SC":
        return "n" + kind.lower()
    return kind


def placeholders(text):
    """The printf placeholders of a text, in order."""
    found = []
    for match in PLACEHOLDER.finditer(text):
        if match["percent"]:
            continue
        if match["kind"]:
            stars = ("*" if match["width"] == "*" else "") + ("*" if match["precision"] == "*" else "")
            found.append(stars + kind_of(match["kind"], match["size"] or ""))
        else:
            found.append("?" + match["other"])
    return found


def check_text(where, key, text, faults):
    if not text.strip():
        faults.add(where, f"{key} is empty")
    elif text != text.strip():
        faults.add(where, f"{key} begins or ends with blanks")
    if "n" in placeholders(text):
        faults.add(where, f"{key} has the placeholder %n, which is never taken")
    if any(item.startswith("?") for item in placeholders(text)):
        faults.add(where, f"{key} has a percent sign that begins no placeholder (write %%)")


def read_section(where, element, faults):
    pattern = STRINGS_KEY if element.tag == "Strings" else DIALOG_KEY
    texts = {}
    for child in element:
        place = f"{where}: {element.tag}"
        if not pattern.fullmatch(child.tag):
            faults.add(place, f"{child.tag} is no key for this section")
        if child.tag in texts:
            faults.add(place, f"{child.tag} stands here twice")
        if len(child) or child.attrib:
            faults.add(place, f"{child.tag} must hold nothing but its text")
        texts[child.tag] = child.text or ""
        check_text(place, child.tag, texts[child.tag], faults)
    return texts


def read_file(path, where, faults):
    """Sections of one file: {section: {key: text}}, or None when it cannot be read."""
    try:
        text = path.read_bytes().decode("utf-8")
    except UnicodeDecodeError as error:
        faults.add(where, f"is not UTF-8 (byte {error.start})")
        return None
    try:
        root = ElementTree.fromstring(text.encode("utf-8"))
    except ElementTree.ParseError as error:
        faults.add(where, f"is not well-formed: {error}")
        return None
    if root.tag != ROOT_NAME:
        faults.add(where, f"the root element is {root.tag} and not {ROOT_NAME}")
        return None
    sections = {}
    for element in root:
        if not SECTION.fullmatch(element.tag):
            faults.add(where, f"{element.tag} is no section")
        if element.tag in sections:
            faults.add(where, f"{element.tag} stands here twice")
        sections[element.tag] = read_section(where, element, faults)
    return sections


def read_languages(folder, faults):
    """{locale: {file name: sections}}"""
    languages = {}
    for locale in sorted(path for path in folder.iterdir() if path.is_dir()):
        files = {}
        for path in sorted(locale.iterdir()):
            where = f"{folder.name}/{locale.name}/{path.name}"
            if path.suffix != ".xml":
                faults.add(where, "is no language file")
                continue
            sections = read_file(path, where, faults)
            if sections is not None:
                files[path.name] = sections
        languages[locale.name] = files
    return languages


def compare_section(where, english, translation, faults):
    for key in english.keys() - translation.keys():
        faults.add(where, f"{key} is missing")
    for key in translation.keys() - english.keys():
        faults.add(where, f"{key} is not in English")
    for key in english.keys() & translation.keys():
        wanted, found = placeholders(english[key]), placeholders(translation[key])
        if wanted != found:
            faults.add(where, f"{key} has the placeholders {found or 'none'}, English has {wanted or 'none'}")


def compare_language(where, english, translation, faults):
    for name in sorted(english.keys() - translation.keys()):
        faults.add(where, f"{name} is missing or damaged")
    for name in sorted(translation.keys() - english.keys()):
        faults.add(where, f"{name} is not in English")
    for name in sorted(english.keys() & translation.keys()):
        for section in sorted(english[name].keys() | translation[name].keys()):
            place = f"{where}/{name}: {section}"
            if section not in translation[name]:
                faults.add(place, "is missing")
            elif section not in english[name]:
                faults.add(place, "is not in English")
            else:
                compare_section(place, english[name][section], translation[name][section], faults)


def used_keys(root):
    """{key: first place that uses it} in the sources."""
    used = {}
    for folder in SOURCE_FOLDERS:
        for path in sorted((root / folder).rglob("*")):
            if path.suffix not in SOURCE_SUFFIXES:
                continue
            lines = path.read_text(encoding="utf-8", errors="replace").splitlines()
            for number, line in enumerate(lines, 1):
                for key in USED_KEY.findall(line):
                    used.setdefault(key, f"{path.relative_to(root)}:{number}")
    return used


def check_used(root, english, faults):
    known = set()
    for sections in english.values():
        known.update(sections)
        for texts in sections.values():
            known.update(texts)
    for key, where in sorted(used_keys(root).items(), key=lambda item: item[1]):
        if key not in known:
            faults.add(where, f"{key} is not in the English language data")


def mnemonic(text):
    """The letter that a text's ampersand marks, in upper case; None without one."""
    letters = [match["letter"] for match in MNEMONIC.finditer(text) if match["letter"]]
    return letters[-1].upper() if letters else None


def check_mnemonics(where, texts, faults):
    """Two texts that are shown together must not share a letter: it would only move between them."""
    owners = {}
    for key, text in texts.items():
        letter = mnemonic(text)
        if letter is not None:
            owners.setdefault(letter, []).append(key)
    for letter, keys in sorted(owners.items()):
        if len(keys) > 1:
            faults.add(where, f"{' and '.join(sorted(keys))} share the mnemonic {letter}")


def keys_of_pages(root):
    """{page: keys that it uses}"""
    return {path.stem: set(USED_KEY.findall(path.read_text(encoding="utf-8", errors="replace")))
            for path in sorted((root / PAGE_FOLDER).glob("*.cpp"))}


def check_all_mnemonics(root, languages, faults):
    pages = keys_of_pages(root)
    for locale, files in languages.items():
        strings = {}
        for name, sections in files.items():
            strings.update(sections.get("Strings", {}))
            for section, texts in sections.items():
                if section != "Strings":
                    check_mnemonics(f"lang/{locale}/{name}: {section}", texts, faults)
        for page, keys in pages.items():
            check_mnemonics(f"lang/{locale}: {page}", {key: strings[key] for key in keys & strings.keys()}, faults)
        for row in BUTTON_ROWS:
            texts = {key: strings[key] for key in row if key in strings}
            check_mnemonics(f"lang/{locale}: buttons", texts, faults)


def check(root):
    """All faults of the language data of a source tree."""
    faults = Faults()
    folder = root / "lang"
    if not (folder / ENGLISH).is_dir():
        faults.add("lang/" + ENGLISH, "is missing")
        return faults, {}
    languages = read_languages(folder, faults)
    english = languages[ENGLISH]
    for locale, translation in languages.items():
        if locale != ENGLISH:
            compare_language(f"lang/{locale}", english, translation, faults)
    check_used(root, english, faults)
    check_all_mnemonics(root, languages, faults)
    return faults, languages


def main(arguments=None):
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--root", type=Path, default=Path(__file__).resolve().parents[2], help="the source tree")
    root = parser.parse_args(arguments).root
    if not root.is_dir():
        print(f"check.py: {root} is no folder", file=sys.stderr)
        return 2
    faults, languages = check(root)
    for fault in faults:
        print(fault, file=sys.stderr)
    if faults:
        print(f"Language data: {len(faults)} fault{'s' if len(faults) > 1 else ''}.", file=sys.stderr)
        return 1
    count = sum(len(texts) for sections in languages[ENGLISH].values() for texts in sections.values())
    print(f"Language data: {count} texts in {', '.join(languages)} are complete.")
    return 0


if __name__ == "__main__":
    sys.exit(main())
