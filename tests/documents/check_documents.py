#!/usr/bin/env python3
"""Says which files and names of the code documents mention that are not there: check_documents.py ROOT"""

import pathlib
import re
import sys

FOLDERS = "bench cmake docs examples fuzz include packaging python resources scripts source tests translations".split()


def mentioned(text, pattern):
    return sorted({found for code in re.findall(r"`([^`\n]+)`", text) for found in re.findall(pattern, code)})


def faults(root):
    files = [*root.glob("*.*"), *(path for folder in FOLDERS for path in (root / folder).rglob("*.*"))]
    paths = {path.as_posix() for path in files}
    words = {word for path in files if path.suffix in (".cpp", ".h", ".py", ".txt", ".cmake")
             for word in re.findall(r"\w+", path.read_text(encoding="utf-8", errors="replace"))}
    for document in sorted(path for path in files if path.suffix == ".md" and "manual" not in path.parts):
        name, text = document.relative_to(root), document.read_text(encoding="utf-8")
        for link in re.findall(r"\]\(([^)#]+)[^)]*\)", text):
            if "://" not in link and not (document.parent / link).exists():
                yield f"{name}: leads nowhere: {link}"
        for file in mentioned(text, r"(?<![\w*./~-])[\w/-]+\.(?:cpp|h|py|sh|qrc|cmake)\b"):
            if not any(path.endswith("/" + file) for path in paths):
                yield f"{name}: no such file: {file}"
        for word in mentioned(text, r"(?<![\w/.-])(?:k[A-Z]\w+|[A-Z][a-z]+[A-Z]\w+)(?![\w/.-])"):
            if word not in words:
                yield f"{name}: no such name: {word}"


def main():
    found = list(faults(pathlib.Path(sys.argv[1]).resolve()))
    print("\n".join(found))
    return 1 if found else 0


sys.exit(main())
