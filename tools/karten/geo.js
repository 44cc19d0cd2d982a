// Outlines of Natural Earth (public domain) from the world-atlas TopoJSON files, as rings of
// [longitude, latitude] in degrees, east and north positive.
'use strict';
const topojson = require('topojson-client');

function lesen(datei) {
  return require(`world-atlas/${datei}`);
}

// Rings of a GeoJSON geometry (Polygon or MultiPolygon), outer rings and holes alike: the even-odd
// fill treats both the same way.
function ringe(geometrie) {
  if (!geometrie) return [];
  if (geometrie.type === 'Polygon') return geometrie.coordinates;
  if (geometrie.type === 'MultiPolygon') return geometrie.coordinates.flat();
  return [];
}

// A ring that crosses the date line is made continuous in longitude (it may then reach beyond
// 180); one that crosses it once goes round the pole and is closed along the pole's latitude.
function abwickeln(ring) {
  const aus = [ring[0].slice()];
  let versatz = 0, spruenge = 0;
  for (let i = 1; i < ring.length; i++) {
    const d = ring[i][0] - ring[i - 1][0];
    if (d > 180) { versatz -= 360; spruenge++; }
    if (d < -180) { versatz += 360; spruenge++; }
    aus.push([ring[i][0] + versatz, ring[i][1]]);
  }
  if (spruenge % 2 === 1) {
    const pol = aus.reduce((s, p) => s + p[1], 0) < 0 ? -90 : 90;
    aus.push([aus[aus.length - 1][0], pol], [aus[0][0], pol]);
  }
  return aus;
}

// All land as rings, from the given resolution ("10m", "50m", "110m"). Test a point against them
// at its longitude and at its longitude plus 360 degrees.
function land(aufloesung) {
  const topo = lesen(`land-${aufloesung}.json`);
  const f = topojson.feature(topo, topo.objects.land);
  return (f.features || [f]).flatMap((x) => ringe(x.geometry)).map(abwickeln);
}

// The rings of one country by its ISO 3166 numeric code ("276" is Germany).
function staat(aufloesung, code) {
  const topo = lesen(`countries-${aufloesung}.json`);
  const g = topo.objects.countries.geometries.find((x) => x.id === code);
  if (!g) throw new Error(`country ${code} not found`);
  return ringe(topojson.feature(topo, g).geometry);
}

// Land borders between countries as polylines (no coast lines).
function grenzen(aufloesung) {
  const topo = lesen(`countries-${aufloesung}.json`);
  return topojson.mesh(topo, topo.objects.countries, (a, b) => a !== b).coordinates;
}

// Even-odd test of a point against rings.
function innen(ringe, lon, lat) {
  let drin = false;
  for (const r of ringe) {
    for (let i = 0, j = r.length - 1; i < r.length; j = i++) {
      const [xi, yi] = r[i], [xj, yj] = r[j];
      if ((yi > lat) !== (yj > lat) && lon < ((xj - xi) * (lat - yi)) / (yj - yi) + xi) drin = !drin;
    }
  }
  return drin;
}

module.exports = { land, staat, grenzen, innen };
