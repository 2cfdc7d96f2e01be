#!/usr/bin/env python3
"""Says what is wrong with translations: check_translations.py LUPDATE ROOT"""

import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree

SOURCES = {"layertool_en.ts": "source/layertool", "drawing_en.ts": "source/drawing"}


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


def faults(lupdate, root, name, folder):
    path = root / "translations" / name
    for _, message in messages(path):
        yield from faults_of_message(message)
    with tempfile.TemporaryDirectory() as scratch:
        fresh = pathlib.Path(scratch) / name
        shutil.copy(path, fresh)
        done = subprocess.run(
            [lupdate, "-silent", "-locations", "none", "-no-obsolete", str(root / folder), "-ts", str(fresh)],
            capture_output=True, text=True, check=True)
        # A text it could not read is one it would not miss.
        yield from (f"lupdate: {line}" for line in done.stderr.splitlines())
        known, now = ({(context, message.findtext("source")) for context, message in messages(each)}
                      for each in (path, fresh))
        yield from (f"without a translation: {context}: {source}" for context, source in sorted(now - known))
        yield from (f"no longer in the sources: {context}: {source}" for context, source in sorted(known - now))


def main():
    lupdate, root = sys.argv[1], pathlib.Path(sys.argv[2])
    found = [f"{name}: {fault}" for name, folder in SOURCES.items() for fault in faults(lupdate, root, name, folder)]
    print("\n".join(found))
    return 1 if found else 0


sys.exit(main())
