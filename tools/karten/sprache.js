// The two pictures of the language choice: a German tricolour and a flag in the manner of the
// Union Flag, 90 x 54 pixels each.
'use strict';
const { Bild } = require('./raster');

const W = 90, H = 54;

function deutsch() {
  const bild = new Bild(W, H);
  bild.rechteck(0, 0, W - 1, 17, [0, 0, 0]);
  bild.rechteck(0, 18, W - 1, 35, [221, 0, 0]);
  bild.rechteck(0, 36, W - 1, H - 1, [255, 206, 0]);
  return bild;
}

// A band of half width d along the line from a to b.
function band(bild, a, b, d, farbe) {
  const lx = b[0] - a[0], ly = b[1] - a[1], n = Math.hypot(lx, ly);
  const ox = (-ly / n) * d, oy = (lx / n) * d;
  bild.polygon([[[a[0] + ox, a[1] + oy], [b[0] + ox, b[1] + oy], [b[0] - ox, b[1] - oy], [a[0] - ox, a[1] - oy]]], farbe);
}

function english() {
  const bild = new Bild(W, H, [1, 33, 105]);
  const weiss = [255, 255, 255], rot = [200, 16, 46];
  band(bild, [0, 0], [W, H], 5.5, weiss);
  band(bild, [0, H], [W, 0], 5.5, weiss);
  band(bild, [0, 0], [W, H], 1.8, rot);
  band(bild, [0, H], [W, 0], 1.8, rot);
  bild.rechteck(0, H / 2 - 9, W - 1, H / 2 + 8, weiss);
  bild.rechteck(W / 2 - 9, 0, W / 2 + 8, H - 1, weiss);
  bild.rechteck(0, H / 2 - 5, W - 1, H / 2 + 4, rot);
  bild.rechteck(W / 2 - 5, 0, W / 2 + 4, H - 1, rot);
  return bild;
}

const ziel = process.argv[2] || `${__dirname}/../../Grafiken`;
deutsch().schreiben(`${ziel}/deutsch.bmp`);
english().schreiben(`${ziel}/english.bmp`);
