#!/usr/bin/env python3
"""Says what is wrong with translations: check_translations.py LUPDATE ROOT"""

import pathlib
import re
import shutil
import sys
import tempfile
import xml.etree.ElementTree as ElementTree


def messages(path):
    for context in ElementTree.parse(path).getroot().iter("context"):
        for message in context.iter("message"):
            yield context.findtext("name"), message


def placeholders(text):
    return sorted(re.findall(r"%(?:\d+|n)", text))


def faults_of_message(message):
    source, translation = message.findtext("source"), message.find("translation")
    text = translation.text or ""
    if translation.get("type"):
        yield f"{translation.get('type')}: {source}"
    if not text.strip() or re.search("[\u4e00-\u9fff，。：；]", text):
        yield f"not English: {source}"
    if placeholders(source) != placeholders(text):
        yield f"other placeholders: {source} / {text}"


def faults(lupdate, root):
    translations = root / "translations"
    sys.path.insert(0, str(translations))
    from update import update
    names = sorted(path.name for path in translations.glob("*.ts"))
    with tempfile.TemporaryDirectory() as scratch:
        for name in names:
            shutil.copy(translations / name, scratch)
        # A text it could not read is one it would not miss.
        yield from update(lupdate, scratch)
        for name in names:
            yield from (f"{name}: {fault}" for _, message in messages(translations / name)
                        for fault in faults_of_message(message))
            known, now = ({(context, message.findtext("source")) for context, message in messages(each / name)}
                          for each in (translations, pathlib.Path(scratch)))
            yield from (f"{name}: without a translation: {text}" for text in sorted(now - known))
            yield from (f"{name}: no longer in the sources: {text}" for text in sorted(known - now))


def misread_texts(root):
    """lupdate gives the text behind such a call the context of the call, where no class will look for it."""
    for path in (root / "source").rglob("*.cpp"):
        for call in re.findall(r"Texts::tr\(\w+\),\s*tr\(.*", path.read_text(encoding="utf-8")):
            yield f"{path.name}: gets a wrong context: {call}"


def faults_of_manual(manual):
    pages = {path.relative_to(manual).parts[1]: path for path in manual.glob("*/*.md")}
    for folder in manual.iterdir():
        for name in pages:
            if not (folder / name).exists():
                yield f"{folder.name}: no page {name}"
                continue
            text = (folder / name).read_text(encoding="utf-8")
            yield from (f"{folder.name}/{name}: leads nowhere: {target}"
                        for target in re.findall(r"\]\(([^)]+)\)", text) if not (folder / target).exists())


def main():
    root = pathlib.Path(sys.argv[2])
    found = [*faults(sys.argv[1], root), *misread_texts(root), *faults_of_manual(root / "docs" / "manual")]
    print("\n".join(found))
    return 1 if found else 0


sys.exit(main())
