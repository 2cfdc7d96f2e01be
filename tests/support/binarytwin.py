#!/usr/bin/python3
"""Makes binary drawings of text ones, group by group: binarytwin.py FOLDER DRAWING..."""

import io
import pathlib
import re
import struct
import sys

PLAIN_SENTINEL = b"Program Binary DXF\r\n\x1a\0".rjust(22)
CODECS = {b"ANSI_936": "gbk", b"ANSI_1252": "cp1252"}
NUMBERS = [  # First and last code, and how the number is packed.
    (10, 59, "<d"), (110, 149, "<d"), (210, 239, "<d"), (460, 469, "<d"), (1010, 1059, "<d"),
    (60, 79, "<h"), (170, 179, "<h"), (270, 289, "<h"), (370, 389, "<h"), (400, 409, "<h"),
    (1060, 1070, "<h"), (90, 99, "<i"), (420, 429, "<i"), (440, 459, "<i"), (1071, 1071, "<i"),
    (160, 169, "<q"), (290, 299, "<b"),
]


def signature():
    """What readers that are particular about the first bytes want to see."""
    from ezdxf.lldxf.tagwriter import BinaryTagWriter

    stream = io.BytesIO()
    BinaryTagWriter(stream).write_signature()
    return stream.getvalue()


def groups(text):
    lines = [line.rstrip(b"\r") for line in text.split(b"\n")]
    return [(int(lines[i]), lines[i + 1]) for i in range(0, len(lines) - 1, 2)]


def variable(tags, name, default):
    return next((tags[i + 1][1] for i, tag in enumerate(tags) if tag == (9, name)), default)


def without_carets(value, codec):
    text = value.decode(codec, "surrogateescape")
    text = re.sub(r"\^([ @-\]_])", lambda m: "^" if m[1] == " " else chr(ord(m[1]) - 64), text)
    return text.encode(codec, "surrogateescape")


def packed(code, value, codec):
    if 310 <= code <= 319 or code == 1004:
        data = bytes.fromhex(value.decode())
        return bytes([len(data)]) + data
    for first, last, form in NUMBERS:
        if first <= code <= last:
            number = float(value)
            return struct.pack(form, number if form == "<d" else int(number))
    return without_carets(value, codec) + b"\0"


def packed_code(code, is_old):
    if not is_old:
        return struct.pack("<H", code)
    return bytes([code]) if code < 255 else b"\xff" + struct.pack("<H", code)


def twin(text, sentinel=PLAIN_SENTINEL):
    """The same drawing with codes of one byte up to R12, of two since."""
    tags = [tag for tag in groups(text.removeprefix(b"\xef\xbb\xbf")) if tag[0] != 999]
    version = variable(tags, b"$ACADVER", b"AC1009")
    codec = "utf-8" if version >= b"AC1021" else CODECS.get(variable(tags, b"$DWGCODEPAGE", b""), "cp1252")
    is_old = version <= b"AC1009"
    return sentinel + b"".join(
        packed_code(code, is_old) + packed(code, value, codec) for code, value in tags)


if __name__ == "__main__":
    for path in map(pathlib.Path, sys.argv[2:]):
        (pathlib.Path(sys.argv[1]) / f"binary-{path.name}").write_bytes(
            twin(path.read_bytes(), signature()))
