#!/usr/bin/python3
"""Draw the bitmaps and the two resource lists from the SVG masters in svg/.

Needs rsvg-convert (librsvg2-bin) and python3-pil. The results are committed, so a build needs neither.
"""
import io
import struct
import subprocess
from pathlib import Path

from PIL import Image

ROOT = Path(__file__).resolve().parent
MODULE_SIZES = {"": 16, "@2x": 32}
WORKBENCH_SIZES = {"": 24, "@2x": 48}
# What the cells of the layer panel show, drawn for the module's tables.
PANEL_STATES = ("off", "on", "thaw", "frozed", "unlock", "lock", "noprint", "print", "current")
APP_SIZES = {"16": 16, "24": 24, "32": 32, "48": 48, "64": 64, "128": 128, "256": 256}


def render(master, size):
    command = ["rsvg-convert", "-w", str(size), "-h", str(size), str(master)]
    png = subprocess.run(command, check=True, capture_output=True).stdout
    return Image.open(io.BytesIO(png)).convert("RGBA")


def bmp_bytes(image):
    """A 32-bit bitmap with a V4 header: the only BMP flavour whose alpha Qt reads back."""
    pixels = image.transpose(Image.FLIP_TOP_BOTTOM).tobytes("raw", "BGRA")
    header_size, bit_fields, srgb = 108, 3, 0x73524742
    offset = 14 + header_size
    head = struct.pack("<2sIHHI", b"BM", offset + len(pixels), 0, 0, offset)
    info = struct.pack("<IiiHHIIiiII", header_size, image.width, image.height, 1, 32, bit_fields,
                       len(pixels), 3780, 3780, 0, 0)
    masks = struct.pack("<4I", 0x00FF0000, 0x0000FF00, 0x000000FF, 0xFF000000)
    return head + info + masks + struct.pack("<I", srgb) + bytes(48) + pixels


def write_qrc(path, prefix, entries):
    files = "".join(f'        <file alias="{alias}">{file}</file>\n' for alias, file in sorted(entries))
    path.write_text(f'<RCC>\n    <qresource prefix="{prefix}">\n{files}    </qresource>\n</RCC>\n',
                    encoding="utf-8")


def make_module_bitmaps():
    folder = ROOT / "bitmaps/Resources"
    folder.mkdir(parents=True, exist_ok=True)
    entries = []
    for master in sorted((ROOT / "svg/module").glob("*.svg")):
        for suffix, size in MODULE_SIZES.items():
            file = folder / f"{master.stem}{suffix}.bmp"
            file.write_bytes(bmp_bytes(render(master, size)))
            entries.append((f"Resources/{file.name}", f"bitmaps/Resources/{file.name}"))
    write_qrc(ROOT / "layerui.qrc", "/res", entries)


def make_workbench_icons():
    folder = ROOT / "bitmaps/workbench"
    folder.mkdir(parents=True, exist_ok=True)
    entries = []
    for master in sorted((ROOT / "svg/workbench").glob("*.svg")):
        sizes = APP_SIZES if master.stem == "app" else WORKBENCH_SIZES
        joint = "-" if master.stem == "app" else ""
        for suffix, size in sizes.items():
            file = folder / f"{master.stem}{joint}{suffix}.png"
            render(master, size).save(file, optimize=True)
            entries.append((file.name, f"bitmaps/workbench/{file.name}"))
    for state in PANEL_STATES:
        for suffix in MODULE_SIZES:
            name = f"layer_{state}{suffix}.bmp"
            entries.append((name, f"bitmaps/Resources/{name}"))
    write_qrc(ROOT / "workbench.qrc", "/workbench", entries)


if __name__ == "__main__":
    make_module_bitmaps()
    make_workbench_icons()
