// A small raster canvas with the few drawing operations the pictures need, and a writer of
// uncompressed 24-bit BMP files (bottom-up rows padded to four bytes), which every image loader
// reads.
'use strict';
const fs = require('fs');

class Bild {
  constructor(breite, hoehe, farbe = [255, 255, 255]) {
    this.breite = breite;
    this.hoehe = hoehe;
    this.px = new Uint8Array(breite * hoehe * 3);
    for (let i = 0; i < breite * hoehe; i++) this.px.set(farbe, i * 3);
  }
  setzen(x, y, farbe) {
    x = Math.round(x);
    y = Math.round(y);
    if (x < 0 || y < 0 || x >= this.breite || y >= this.hoehe) return;
    this.px.set(farbe, (y * this.breite + x) * 3);
  }
  lesen(x, y) {
    const i = (y * this.breite + x) * 3;
    return [this.px[i], this.px[i + 1], this.px[i + 2]];
  }
  // Bresenham line between two points.
  linie(x0, y0, x1, y1, farbe) {
    x0 = Math.round(x0); y0 = Math.round(y0); x1 = Math.round(x1); y1 = Math.round(y1);
    const dx = Math.abs(x1 - x0), dy = -Math.abs(y1 - y0);
    const sx = x0 < x1 ? 1 : -1, sy = y0 < y1 ? 1 : -1;
    let err = dx + dy;
    for (;;) {
      this.setzen(x0, y0, farbe);
      if (x0 === x1 && y0 === y1) break;
      const e2 = 2 * err;
      if (e2 >= dy) { err += dy; x0 += sx; }
      if (e2 <= dx) { err += dx; y0 += sy; }
    }
  }
  // Even-odd fill of one or more rings of [x, y] points, sampled at pixel centres.
  polygon(ringe, farbe) {
    let ymin = Infinity, ymax = -Infinity;
    for (const r of ringe) for (const p of r) { ymin = Math.min(ymin, p[1]); ymax = Math.max(ymax, p[1]); }
    const y0 = Math.max(0, Math.floor(ymin)), y1 = Math.min(this.hoehe - 1, Math.ceil(ymax));
    for (let y = y0; y <= y1; y++) {
      const yc = y + 0.5;
      const xs = [];
      for (const r of ringe) {
        for (let i = 0; i < r.length; i++) {
          const a = r[i], b = r[(i + 1) % r.length];
          if ((a[1] <= yc) !== (b[1] <= yc)) xs.push(a[0] + (yc - a[1]) / (b[1] - a[1]) * (b[0] - a[0]));
        }
      }
      xs.sort((p, q) => p - q);
      for (let k = 0; k + 1 < xs.length; k += 2) {
        const xa = Math.max(0, Math.ceil(xs[k] - 0.5)), xb = Math.min(this.breite - 1, Math.floor(xs[k + 1] - 0.5));
        for (let x = xa; x <= xb; x++) this.px.set(farbe, (y * this.breite + x) * 3);
      }
    }
  }
  rechteck(x0, y0, x1, y1, farbe) {
    for (let y = y0; y <= y1; y++) for (let x = x0; x <= x1; x++) this.setzen(x, y, farbe);
  }
  schreiben(pfad) {
    const zeile = Math.ceil(this.breite * 3 / 4) * 4;
    const groesse = 54 + zeile * this.hoehe;
    const b = Buffer.alloc(groesse);
    b.write('BM', 0, 'latin1');
    b.writeUInt32LE(groesse, 2);
    b.writeUInt32LE(54, 10);
    b.writeUInt32LE(40, 14);
    b.writeInt32LE(this.breite, 18);
    b.writeInt32LE(this.hoehe, 22);
    b.writeUInt16LE(1, 26);
    b.writeUInt16LE(24, 28);
    b.writeUInt32LE(0, 30);
    b.writeUInt32LE(zeile * this.hoehe, 34);
    b.writeInt32LE(2835, 38);
    b.writeInt32LE(2835, 42);
    for (let y = 0; y < this.hoehe; y++) {
      const ziel = 54 + (this.hoehe - 1 - y) * zeile;
      for (let x = 0; x < this.breite; x++) {
        const i = (y * this.breite + x) * 3;
        b[ziel + x * 3] = this.px[i + 2];
        b[ziel + x * 3 + 1] = this.px[i + 1];
        b[ziel + x * 3 + 2] = this.px[i];
      }
    }
    fs.writeFileSync(pfad, b);
  }
}

// A 3 x 5 pixel font of the digits, enough for region numbers on the map.
const ZIFFERN = {
  0: ['111', '101', '101', '101', '111'], 1: ['010', '110', '010', '010', '111'],
  2: ['111', '001', '111', '100', '111'], 3: ['111', '001', '111', '001', '111'],
  4: ['101', '101', '111', '001', '001'], 5: ['111', '100', '111', '001', '111'],
  6: ['111', '100', '111', '101', '111'], 7: ['111', '001', '010', '010', '010'],
  8: ['111', '101', '111', '101', '111'], 9: ['111', '101', '111', '001', '111'],
};

// Writes a number with its top left corner at (x, y); returns the covered pixels.
function zahl(bild, x, y, text, farbe) {
  const belegt = [];
  for (const ch of String(text)) {
    ZIFFERN[ch].forEach((reihe, dy) => {
      for (let dx = 0; dx < 3; dx++) if (reihe[dx] === '1') { bild.setzen(x + dx, y + dy, farbe); belegt.push([x + dx, y + dy]); }
    });
    x += 4;
  }
  return belegt;
}

module.exports = { Bild, zahl };
