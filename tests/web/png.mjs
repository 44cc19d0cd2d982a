// Reads the 8-bit RGB and RGBA PNG pictures that Qt writes, for the browser tests' comparisons.
import { inflateSync } from 'node:zlib';

export class PNG {
  static lesen(daten) {
    let pos = 8;
    let breite = 0, hoehe = 0, farbtyp = 0;
    const teile = [];
    while (pos < daten.length) {
      const laenge = daten.readUInt32BE(pos);
      const art = daten.toString('latin1', pos + 4, pos + 8);
      const inhalt = daten.subarray(pos + 8, pos + 8 + laenge);
      if (art === 'IHDR') {
        breite = inhalt.readUInt32BE(0);
        hoehe = inhalt.readUInt32BE(4);
        farbtyp = inhalt[9];
        if (inhalt[8] !== 8 || (farbtyp !== 2 && farbtyp !== 6) || inhalt[12] !== 0) {
          throw new Error('only 8-bit RGB or RGBA pictures without interlace are read');
        }
      } else if (art === 'IDAT') {
        teile.push(inhalt);
      }
      pos += 12 + laenge;
    }
    const roh = inflateSync(Buffer.concat(teile));
    const bpp = farbtyp === 6 ? 4 : 3;
    const zeile = breite * bpp;
    const bild = Buffer.alloc(zeile * hoehe);
    for (let y = 0; y < hoehe; ++y) {
      const filter = roh[y * (zeile + 1)];
      for (let x = 0; x < zeile; ++x) {
        const roh_wert = roh[y * (zeile + 1) + 1 + x];
        const a = x >= bpp ? bild[y * zeile + x - bpp] : 0;
        const b = y > 0 ? bild[(y - 1) * zeile + x] : 0;
        const c = x >= bpp && y > 0 ? bild[(y - 1) * zeile + x - bpp] : 0;
        let v;
        switch (filter) {
          case 0: v = roh_wert; break;
          case 1: v = roh_wert + a; break;
          case 2: v = roh_wert + b; break;
          case 3: v = roh_wert + ((a + b) >> 1); break;
          case 4: {
            const p = a + b - c, pa = Math.abs(p - a), pb = Math.abs(p - b), pc = Math.abs(p - c);
            v = roh_wert + (pa <= pb && pa <= pc ? a : pb <= pc ? b : c);
            break;
          }
          default: throw new Error('unknown PNG filter ' + filter);
        }
        bild[y * zeile + x] = v & 0xff;
      }
    }
    return {
      breite, hoehe,
      pixel: (x, y) => {
        const k = y * zeile + x * bpp;
        return [bild[k], bild[k + 1], bild[k + 2]];
      },
    };
  }
}
