// The house pictures of the geometry plane: haus0.bmp without heated attic (flat top), haus1.bmp
// with the ridge north-south and haus2.bmp with the ridge east-west. Oblique view from the south
// west: the south facade in front, the west facade to the left, north running up to the left.
'use strict';
const { Bild } = require('./raster');

const BREITE = 160, HOEHE = 120;
const L = 70, B = 60, H = 42, HD = 30; // east-west length, north-south width, wall and roof height
const OX = 70, OY = 108;
function p(e, n, z) {
  return [OX + e - 0.55 * n, OY - z - 0.4 * n];
}

const WAND_S = [236, 222, 196], WAND_W = [205, 190, 160], DACH_HELL = [196, 84, 62],
  DACH_DUNKEL = [150, 60, 45], DECKE = [170, 170, 170], GLAS = [120, 170, 215], LINIE = [40, 40, 40];

function flaeche(bild, punkte, farbe) {
  const q = punkte.map((x) => p(...x));
  bild.polygon([q], farbe);
  for (let i = 0; i < q.length; i++) bild.linie(...q[i], ...q[(i + 1) % q.length], LINIE);
}

function fenster(bild, e0, z0) {
  flaeche(bild, [[e0, 0, z0], [e0 + 10, 0, z0], [e0 + 10, 0, z0 + 9], [e0, 0, z0 + 9]], GLAS);
}

function haus(first) {
  const bild = new Bild(BREITE, HOEHE);
  // The roof plane that faces away first, then the west wall with its gable when the ridge runs
  // east-west, then the roof plane that faces the viewer.
  if (first === 1) {
    flaeche(bild, [[L, 0, H], [L / 2, 0, H + HD], [L / 2, B, H + HD], [L, B, H]], DACH_DUNKEL);
  } else if (first === 2) {
    flaeche(bild, [[0, B, H], [0, B / 2, H + HD], [L, B / 2, H + HD], [L, B, H]], DACH_DUNKEL);
  }
  const west = [[0, 0, 0], [0, B, 0], [0, B, H], [0, 0, H]];
  if (first === 2) west.splice(3, 0, [0, B / 2, H + HD]);
  flaeche(bild, west, WAND_W);
  if (first === 0) {
    flaeche(bild, [[0, 0, H], [L, 0, H], [L, B, H], [0, B, H]], DECKE);
  } else if (first === 1) {
    flaeche(bild, [[0, 0, H], [L / 2, 0, H + HD], [L / 2, B, H + HD], [0, B, H]], DACH_HELL);
  } else {
    flaeche(bild, [[0, 0, H], [0, B / 2, H + HD], [L, B / 2, H + HD], [L, 0, H]], DACH_HELL);
  }
  // South wall in front, with its gable when the ridge runs north-south.
  const sued = [[0, 0, 0], [L, 0, 0], [L, 0, H], [0, 0, H]];
  if (first === 1) sued.splice(3, 0, [L / 2, 0, H + HD]);
  flaeche(bild, sued, WAND_S);
  for (const e of [8, 30, 52]) for (const z of [6, 26]) fenster(bild, e, z);
  if (first === 1) fenster(bild, 30, H + 6);
  return bild;
}

const ziel = process.argv[2] || `${__dirname}/../../Grafiken`;
for (const first of [0, 1, 2]) haus(first).schreiben(`${ziel}/haus${first}.bmp`);
