#!/usr/bin/env python3
"""Puts the workbench's pictures of drawings beside those of an independent program.

compare_pictures.py LAYERBENCH FOLDER DRAWING...

For model space and each layout of each drawing there is a PNG in FOLDER afterwards: on the left what
the workbench paints, on the right what python3-ezdxf draws. Who is right where they differ is for
somebody to say who looks; docs/canvas.md keeps what was said.
"""

import os
import pathlib
import subprocess
import sys
import tempfile

import matplotlib

matplotlib.use("Agg")

import ezdxf
from ezdxf import recover
from ezdxf.addons.drawing import Frontend, RenderContext
from ezdxf.addons.drawing.matplotlib import MatplotlibBackend
from matplotlib import pyplot
from PIL import Image

WIDTH, HEIGHT, DPI = 900, 675, 100


def ours(layerbench, drawing, folder):
    """The pictures by the names of what they show, in the order of the tabs."""
    subprocess.run(
        [layerbench, "--sheets", folder, drawing],
        check=True,
        env={**os.environ, "QT_QPA_PLATFORM": "offscreen"},
        stderr=subprocess.DEVNULL,
    )
    return sorted(pathlib.Path(folder).glob("*.png"))


def read(path):
    """Broken text files are mended as far as possible; binary ones are read as they are."""
    with open(path, "rb") as file:
        is_binary = file.read(22).endswith(b"DXF\r\n\x1a\0")
    return ezdxf.readfile(path) if is_binary else recover.readfile(path)[0]


def theirs(document, layout, path):
    figure = pyplot.figure(figsize=(WIDTH / DPI, HEIGHT / DPI), dpi=DPI)
    axes = figure.add_axes([0, 0, 1, 1])
    context = RenderContext(document)
    Frontend(context, MatplotlibBackend(axes)).draw_layout(layout, finalize=True)
    figure.savefig(path, dpi=DPI, facecolor=axes.get_facecolor())
    pyplot.close(figure)


def beside(left, right, path):
    sheet = Image.new("RGB", (2 * WIDTH + 10, HEIGHT), "gray")
    for x, part in ((0, left), (WIDTH + 10, right)):
        if part.exists():
            image = Image.open(part).convert("RGB")
            image.thumbnail((WIDTH, HEIGHT))
            sheet.paste(image, (x, 0))
    sheet.save(path)


def main():
    layerbench, folder, *drawings = sys.argv[1:]
    target = pathlib.Path(folder)
    target.mkdir(parents=True, exist_ok=True)
    for drawing in map(pathlib.Path, drawings):
        document = read(drawing)
        with tempfile.TemporaryDirectory() as scratch:
            painted = ours(layerbench, drawing, scratch)
            for number, name in enumerate(document.layout_names_in_taborder()):
                right = pathlib.Path(scratch, "theirs.png")
                try:
                    theirs(document, document.layout(name), right)
                except Exception as error:  # Their failure is a finding, too.
                    right.unlink(missing_ok=True)
                    print(f"{drawing.name}, {name}: {error!r}")
                left = painted[number] if number < len(painted) else pathlib.Path(scratch, "none")
                beside(left, right, target / f"{drawing.stem}-{number}.png")


if __name__ == "__main__":
    if len(sys.argv) < 4:
        sys.exit(__doc__)
    main()
