// The German map of the twelve climate regions: klima0.bmp without highlight and klima1.bmp ..
// klima12.bmp with one region highlighted. The program finds the region under the mouse by
// comparing colours with twelve fixed reference pixels, so every region has a colour of its own
// and each reference pixel must lie inside its own region; both are checked before writing, and
// so is that the places of the region stations and of the large cities fall into regions that fit
// them.
'use strict';
const fs = require('fs');
const path = require('path');
const { Bild, zahl } = require('./raster');
const { staat, land, grenzen } = require('./geo');
const { GEBIETE, BALLUNGSRAEUME } = require('./regionen');
const { STAEDTE, REGIONSSTATIONEN } = require('./staedte');
const { lambert } = require('./lambert');

// Reference pixel (x, y) of each region 1..12 on the map.
const REFERENZ = [null, [110, 20], [140, 90], [35, 135], [90, 140], [90, 220], [70, 200],
  [45, 260], [90, 270], [60, 250], [70, 270], [25, 175], [75, 285]];

// Lambert conformal conic, standard parallels 48.67 and 53.67 N, central meridian 16 E, placed
// so that the reference pixels fall into their regions with a margin of several pixels.
const BREITE = 234, HOEHE = 315;
const MASSSTAB = 39.5, X0 = 253.99315231618192, Y0 = 170.39007895085734;
const konisch = lambert(16, 48.67, 53.67, 51);
function karte(lon, lat) {
  const [x, y] = konisch(lon, lat);
  return [X0 + x * MASSSTAB, Y0 - y * MASSSTAB];
}

// Region colours; none is the highlight, an outline or a background colour.
const FARBE = [null, [120, 190, 230], [160, 215, 140], [200, 200, 200], [235, 215, 120],
  [240, 170, 110], [250, 235, 170], [215, 160, 210], [140, 200, 190], [170, 170, 235],
  [100, 160, 120], [180, 140, 100], [80, 150, 220]];
const HERVOR = [220, 20, 40];
const MEER = [225, 240, 250], AUSLAND = [238, 238, 232], UMRISS = [60, 60, 60], TRENN = [255, 255, 255];

// The regions as landscapes (regionen.js): every pixel of Germany takes the region of the last
// area that covers it; the conurbation discs come last.
function regionen(deutschland) {
  const lage = new Bild(BREITE, HOEHE, [0, 0, 0]);
  for (const [r, , ringe] of GEBIETE) lage.polygon(ringe.map((ring) => ring.map(([lon, lat]) => karte(lon, lat))), [r, 0, 0]);
  const pixel_je_km = karte(10, 51)[1] - karte(10, 51 + 1 / 111.2)[1];
  for (const [r, , lon, lat, radius] of BALLUNGSRAEUME) {
    const [mx, my] = karte(lon, lat);
    const rp = radius * pixel_je_km;
    for (let y = Math.floor(my - rp); y <= Math.ceil(my + rp); y++) {
      for (let x = Math.floor(mx - rp); x <= Math.ceil(mx + rp); x++) {
        if ((x - mx) ** 2 + (y - my) ** 2 <= rp * rp) lage.setzen(x, y, [r, 0, 0]);
      }
    }
  }
  const feld = new Int8Array(BREITE * HOEHE);
  const probe = new Bild(BREITE, HOEHE, [0, 0, 0]);
  probe.polygon(deutschland, [1, 1, 1]);
  for (let y = 0; y < HOEHE; y++) {
    for (let x = 0; x < BREITE; x++) {
      if (probe.lesen(x, y)[0] !== 0) feld[y * BREITE + x] = lage.lesen(x, y)[0];
    }
  }
  return feld;
}

function projiziert(ringe) {
  return ringe.map((r) => r.map(([lon, lat]) => karte(lon, lat)));
}

function grundkarte(feld, hervor, aussen, deutschland, grenzlinien) {
  const bild = new Bild(BREITE, HOEHE, MEER);
  bild.polygon(aussen, AUSLAND);
  for (const linie of grenzlinien) {
    for (let i = 1; i < linie.length; i++) bild.linie(...linie[i - 1], ...linie[i], [180, 180, 170]);
  }
  for (let y = 0; y < HOEHE; y++) {
    for (let x = 0; x < BREITE; x++) {
      const r = feld[y * BREITE + x];
      if (r) bild.setzen(x, y, r === hervor ? HERVOR : FARBE[r]);
    }
  }
  // Thin white lines between regions, then the outline of the country.
  for (let y = 0; y < HOEHE - 1; y++) {
    for (let x = 0; x < BREITE - 1; x++) {
      const r = feld[y * BREITE + x];
      if (r && ((feld[y * BREITE + x + 1] && feld[y * BREITE + x + 1] !== r) ||
                (feld[(y + 1) * BREITE + x] && feld[(y + 1) * BREITE + x] !== r))) bild.setzen(x, y, TRENN);
    }
  }
  for (const ring of deutschland) {
    for (let i = 0; i < ring.length; i++) bild.linie(...ring[i], ...ring[(i + 1) % ring.length], UMRISS);
  }
  for (let r = 1; r <= 12; r++) {
    const [x, y] = REFERENZ[r];
    zahl(bild, x + 3, y - 7, r, r === hervor ? [255, 255, 255] : [0, 0, 0]);
  }
  return bild;
}

function pruefen(bild, name) {
  const gesehen = new Set();
  for (let r = 1; r <= 12; r++) {
    const f = bild.lesen(...REFERENZ[r]).join(',');
    if (gesehen.has(f)) throw new Error(`${name}: region ${r} shares its colour ${f}`);
    gesehen.add(f);
    for (const [dx, dy] of [[1, 0], [-1, 0], [0, 1], [0, -1]]) {
      if (bild.lesen(REFERENZ[r][0] + dx, REFERENZ[r][1] + dy).join(',') !== f) {
        throw new Error(`${name}: reference pixel of region ${r} lies on an edge`);
      }
    }
  }
}

// The region of a place, by the map's partition; a place that the outline leaves just outside
// (a border town) takes the region of the nearest map pixel of Germany.
function ortsregion(feld) {
  return (lon, lat) => {
    const [px, py] = karte(lon, lat);
    const x = Math.round(px), y = Math.round(py);
    for (let radius = 0; radius < 20; radius++) {
      let best = 0, dmin = Infinity;
      for (let dy = -radius; dy <= radius; dy++) {
        for (let dx = -radius; dx <= radius; dx++) {
          const xx = x + dx, yy = y + dy;
          if (xx < 0 || yy < 0 || xx >= BREITE || yy >= HOEHE) continue;
          const r = feld[yy * BREITE + xx];
          if (r && dx * dx + dy * dy < dmin) { dmin = dx * dx + dy * dy; best = r; }
        }
      }
      if (best) return best;
    }
    throw new Error(`place ${lon} ${lat} lies far outside the map of Germany`);
  };
}

function region_fuer_ort() {
  return ortsregion(regionen(projiziert(staat('10m', '276'))));
}

// Latitude and longitude (east positive) from lines 2 and 3 of a station file.
function stationsort(datei) {
  const zeilen = fs.readFileSync(datei, 'latin1').split('\r\n');
  const zahl_aus = (zeile) => parseFloat(zeile.substring(14, 24));
  return [zahl_aus(zeilen[1]), -zahl_aus(zeilen[2]), zeilen[0]];
}

// Every checked place must fall into a region whose description fits it; prints the places with
// their regions and stops on the first misfit.
function orte_pruefen(feld) {
  const region = ortsregion(feld);
  const fehler = [];
  const zeigen = (name, lat, lon, passend, warum) => {
    const r = region(lon, lat);
    const ok = passend.includes(r);
    console.log(`${ok ? '  ' : '!!'} ${name.padEnd(58)} region ${String(r).padStart(2)}  (fits ${passend.join('/')}: ${warum})`);
    if (!ok) fehler.push(`${name} lies in region ${r}, fitting are ${passend.join('/')}`);
  };
  for (const [datei, passend, warum] of REGIONSSTATIONEN) {
    const [lat, lon, zeile1] = stationsort(path.join(__dirname, '..', '..', 'klima', datei));
    zeigen(`${datei}: ${zeile1}`, lat, lon, passend, warum);
  }
  for (const [name, lat, lon, passend, warum] of STAEDTE) zeigen(name, lat, lon, passend, warum);
  if (fehler.length) throw new Error(`places in a region that does not fit them:\n${fehler.join('\n')}`);
}

function main(ziel) {
  const deutschland = projiziert(staat('10m', '276'));
  const nachbarn = projiziert(land('10m').filter((r) => r.some(([lon, lat]) => lon > 0 && lon < 20 && lat > 44 && lat < 58)));
  const grenzlinien = grenzen('10m')
    .filter((l) => l.some(([lon, lat]) => lon > 2 && lon < 19 && lat > 45 && lat < 57))
    .map((l) => l.map(([lon, lat]) => karte(lon, lat)));
  const feld = regionen(deutschland);
  for (let r = 1; r <= 12; r++) {
    const [x, y] = REFERENZ[r];
    if (feld[y * BREITE + x] !== r) throw new Error(`reference pixel of region ${r} lies in region ${feld[y * BREITE + x]}`);
  }
  orte_pruefen(feld);
  for (let hervor = 0; hervor <= 12; hervor++) {
    const bild = grundkarte(feld, hervor, nachbarn, deutschland, grenzlinien);
    pruefen(bild, `klima${hervor}`);
    bild.schreiben(`${ziel}/klima${hervor}.bmp`);
  }
}

module.exports = { region_fuer_ort };
if (require.main === module) main(process.argv[2] || `${__dirname}/../../Grafiken`);
