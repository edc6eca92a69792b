#!/usr/bin/env python3
"""Renders the drawing of the icon anew, after it was changed; what it makes is kept beside it. Needs rsvg-convert.

hicolor/16x16/apps/... to 512x512/apps/...    for Linux desktops
marlbrook.ico                                 for Windows
marlbrook.icns                                for macOS
"""
import pathlib
import struct
import subprocess

HERE = pathlib.Path(__file__).resolve().parent
NAME = "org.marlbrook.Marlbrook"
DRAWING = HERE / f"hicolor/scalable/apps/{NAME}.svg"
LINUX_SIZES = [16, 22, 24, 32, 48, 64, 128, 256, 512]
WINDOWS_SIZES = [16, 24, 32, 48, 64, 256]
MAC_KINDS = {b"ic11": 32, b"ic12": 64, b"ic07": 128, b"ic08": 256, b"ic09": 512, b"ic10": 1024}  # kind of an entry: its pixels


def png(size):
    return subprocess.run(["rsvg-convert", "-w", str(size), "-h", str(size), DRAWING], stdout=subprocess.PIPE, check=True).stdout


def ico(sizes):
    """A directory of 16 bytes an entry, then the pictures; 256 is written 0."""
    pictures = [png(size) for size in sizes]
    directory = struct.pack("<3H", 0, 1, len(sizes))
    place = len(directory) + 16 * len(sizes)
    for size, picture in zip(sizes, pictures):
        directory += struct.pack("<4B2H2I", size % 256, size % 256, 0, 0, 1, 32, len(picture), place)
        place += len(picture)
    return directory + b"".join(pictures)


def icns(kinds):
    """Entries of kind, length and picture; a length counts its own 8 bytes of head."""
    entries = b""
    for kind, size in kinds.items():
        picture = png(size)
        entries += kind + struct.pack(">I", 8 + len(picture)) + picture
    return b"icns" + struct.pack(">I", 8 + len(entries)) + entries


for linux_size in LINUX_SIZES:
    folder = HERE / f"hicolor/{linux_size}x{linux_size}/apps"
    folder.mkdir(parents=True, exist_ok=True)
    (folder / f"{NAME}.png").write_bytes(png(linux_size))
(HERE / "marlbrook.ico").write_bytes(ico(WINDOWS_SIZES))
(HERE / "marlbrook.icns").write_bytes(icns(MAC_KINDS))
