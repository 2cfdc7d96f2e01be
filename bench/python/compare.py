#!/usr/bin/python3
"""The five tasks of docs/python.md with dxflayers and with ezdxf: compare.py [DRAWING...]"""

import collections
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import time

HERE = pathlib.Path(__file__).resolve().parent
PROJECT = HERE.parent.parent
SAMPLES = PROJECT / "samples"
NAMES = "A-DOOR,门\n门窗-窗,A-GLAZ\nA-COLS,柱\n"
TASKS = ("rename", "merge", "delete", "standard", "states")
RUNS = 3
# The scripts run in folders of their own.
ENVIRONMENT = {**os.environ, "PYTHONPATH": os.path.abspath(os.environ.get("PYTHONPATH", "."))}


def documented():
    """The scripts of the documentation, in its order."""
    text = (PROJECT / "docs" / "python.md").read_text(encoding="utf-8")
    return re.findall(r"```python\n(.*?)```", text, re.DOTALL)


def tags(path):
    """How often each tag is in a text file."""
    lines = path.read_bytes().split(b"\n")
    return collections.Counter((int(code), value.rstrip(b"\r")) for code, value in zip(lines[::2], lines[1::2]))


def is_handle(code):
    return code in (5, 105, 1005) or 320 <= code <= 369 or 390 <= code <= 399 or 480 <= code <= 481


def meanings(counted):
    """The same without handles, which may be given anew, and without regard to how numbers are spelled."""
    plain = collections.Counter()
    for (code, value), count in counted.items():
        if not is_handle(code):
            try:
                plain[code, round(float(value), 9)] += count
            except ValueError:
                plain[code, value.strip()] += count
    return plain


def difference(before, after):
    return (before - after).total(), (after - before).total()


def run(script, drawing):
    """Seconds of the fastest run, the tags that went and came, and those of another meaning; None where it failed."""
    seconds = []
    for _ in range(RUNS):
        with tempfile.TemporaryDirectory() as folder:
            plan = pathlib.Path(folder, "plan.dxf")
            shutil.copy(drawing, plan)
            shutil.copy(SAMPLES / "office-standard.dxf", pathlib.Path(folder, "standard.dxf"))
            pathlib.Path(folder, "names.csv").write_text(NAMES, encoding="utf-8")
            began = time.perf_counter()
            done = subprocess.run([sys.executable, "-c", script], cwd=folder, env=ENVIRONMENT,
                                  capture_output=True, text=True)
            seconds.append(time.perf_counter() - began)
            if done.returncode:
                print(done.stderr.strip().splitlines()[-1], file=sys.stderr)
                return None
            results = sorted(pathlib.Path(folder).glob("plan*.dxf"), key=lambda path: path.stat().st_mtime_ns)
            before, after = tags(drawing), tags(results[-1])
    return min(seconds), *difference(before, after), *difference(meanings(before), meanings(after))


def show(measured):
    return "failed" if measured is None else "{:.2f} s, -{} +{} (-{} +{})".format(*measured)


def main():
    drawings = [pathlib.Path(name) for name in sys.argv[1:]] or [SAMPLES / "office-floor.dxf"]
    pairs = [("nothing", 'import dxflayers\ndxflayers.open("plan.dxf").save()',
              'import ezdxf\nezdxf.readfile("plan.dxf").save()')]
    for task, script in zip(TASKS, documented()):
        pairs.append((task, script, (HERE / f"ezdxf_{task}.py").read_text(encoding="utf-8")))
    for drawing in drawings:
        print(f"\n{drawing.name}: {tags(drawing).total()} tags\n\n| task | dxflayers | ezdxf |\n| --- | --- | --- |")
        for task, ours, theirs in pairs:
            print(f"| {task} | {show(run(ours, drawing))} | {show(run(theirs, drawing))} |", flush=True)


if __name__ == "__main__":
    main()
