#!/usr/bin/env python3
"""Puts the browser edition together in one folder: the page, the module, the layout, the
pictures as PNG, the fonts and the station folder with an index of each file's first lines.

    seite_bauen.py QUELLE MODULORDNER ZIEL
"""
import json
import shutil
import struct
import sys
import zlib
from pathlib import Path

SEITE = ["index.html", "velmaris.css", "seite.mjs", "leinwand.mjs", "layout.json"]
MODUL = ["velmaris-web.mjs", "velmaris-web.wasm"]
SCHRIFTEN = Path("/usr/share/fonts/truetype/liberation")
# The station lists read a file's name and position from its first lines.
KOPFZEILEN = 8


def bmp_lesen(pfad):
    """Rows of RGB bytes, top first, from an uncompressed 24-bit Windows bitmap."""
    d = pfad.read_bytes()
    if d[:2] != b"BM":
        raise ValueError(f"{pfad}: not a bitmap")
    start = struct.unpack_from("<I", d, 10)[0]
    breite, hoehe, _, bits, kompression = struct.unpack_from("<iiHHI", d, 18)
    if bits != 24 or kompression != 0:
        raise ValueError(f"{pfad}: only uncompressed 24-bit bitmaps are read")
    schritt = (breite * 3 + 3) & ~3
    zeilen = []
    for y in range(abs(hoehe)):
        z = d[start + y * schritt:start + y * schritt + breite * 3]
        rgb = bytearray(len(z))
        rgb[0::3], rgb[1::3], rgb[2::3] = z[2::3], z[1::3], z[0::3]
        zeilen.append(bytes(rgb))
    if hoehe > 0:
        zeilen.reverse()
    return breite, abs(hoehe), zeilen


def png_schreiben(pfad, breite, hoehe, zeilen):
    def block(art, daten):
        return (struct.pack(">I", len(daten)) + art + daten +
                struct.pack(">I", zlib.crc32(art + daten) & 0xFFFFFFFF))
    roh = b"".join(b"\0" + z for z in zeilen)
    pfad.write_bytes(b"\x89PNG\r\n\x1a\n" +
                     block(b"IHDR", struct.pack(">IIBBBBB", breite, hoehe, 8, 2, 0, 0, 0)) +
                     block(b"IDAT", zlib.compress(roh, 9)) + block(b"IEND", b""))


def main():
    quelle, modul, ziel = (Path(a) for a in sys.argv[1:4])
    ziel.mkdir(parents=True, exist_ok=True)
    for n in SEITE:
        shutil.copy2(quelle / "web" / n, ziel / n)
    for n in MODUL:
        shutil.copy2(modul / n, ziel / n)

    grafiken = ziel / "Grafiken"
    grafiken.mkdir(exist_ok=True)
    for bmp in sorted((quelle / "Grafiken").glob("*.bmp")):
        # The program reads the maps' colours itself, when the user points at one.
        if bmp.stem.startswith("klima") or bmp.stem in ("europa", "welt"):
            shutil.copy2(bmp, grafiken / bmp.name)
        png = grafiken / (bmp.stem + ".png")
        if not png.exists() or png.stat().st_mtime < bmp.stat().st_mtime:
            png_schreiben(png, *bmp_lesen(bmp))

    schriften = ziel / "fonts"
    schriften.mkdir(exist_ok=True)
    for n in ["LiberationSans-Regular.ttf", "LiberationSans-Bold.ttf"]:
        if (SCHRIFTEN / n).exists():
            shutil.copy2(SCHRIFTEN / n, schriften / n)

    klima = ziel / "klima"
    klima.mkdir(exist_ok=True)
    index = {}
    for f in sorted((quelle / "klima").iterdir()):
        if f.suffix.lower() not in (".met", ".txt") or f.name == "QUELLEN.txt":
            continue
        shutil.copy2(f, klima / f.name)
        if f.suffix.lower() == ".met":
            zeilen = f.read_bytes().split(b"\n")[:KOPFZEILEN]
            index[f.name] = b"\n".join(zeilen).decode("latin-1")
    (klima / "index.json").write_text(json.dumps(index, ensure_ascii=False, sort_keys=True),
                                      encoding="utf-8")


if __name__ == "__main__":
    main()
