// The browser page in headless Chromium against the native program: it loads, a step on every
// input plane changes the results as the native program calculates them, every output plane
// draws, the overview's chart matches the desktop's picture, a project opens and saves with the
// desktop's bytes, the language switch holds, a station is fetched when chosen, the station maps
// name and pick their stations, the enlarged temperature window opens and follows its months.
//   node seite.test.mjs SITE NATIVE_CLI SEITENLAGE
import { spawn, spawnSync } from 'node:child_process';
import { existsSync, mkdtempSync, readFileSync, rmSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { PNG } from './png.mjs';

const [site, nativ, seitenlage] = process.argv.slice(2);
const SKIP = 77;
if (!site || !existsSync(join(site, 'index.html'))) {
  console.log('The web page is not built (scripts/web.sh builds it): browser tests skipped.');
  process.exit(SKIP);
}
let puppeteer;
try {
  puppeteer = (await import('puppeteer-core')).default;
} catch {
  console.log('puppeteer-core is not installed (scripts/web.sh installs it): browser tests skipped.');
  process.exit(SKIP);
}
const CHROMIUM = '/usr/bin/chromium';
if (!existsSync(CHROMIUM)) {
  console.log('Chromium is not installed (scripts/web.sh installs it): browser tests skipped.');
  process.exit(SKIP);
}

const ordner = mkdtempSync(join(tmpdir(), 'velmaris-seite-'));
const fehler = [];
function pruefen(bedingung, text) {
  if (!bedingung) fehler.push(text);
  console.log((bedingung ? 'ok   ' : 'FAIL ') + text);
}

const port = 8700 + Math.floor(Math.random() * 250);
const server = spawn('python3', ['-m', 'http.server', String(port), '--bind', '127.0.0.1'], {
  cwd: site, stdio: 'ignore',
});
const adresse = `http://127.0.0.1:${port}/`;
const browser = await puppeteer.launch({
  executablePath: CHROMIUM,
  headless: true,
  args: ['--no-sandbox', '--disable-gpu', '--window-size=1366,768'],
});

try {
  const seite = await browser.newPage();
  await seite.setViewport({ width: 1366, height: 768 });
  const meldungen = [];
  seite.on('pageerror', (e) => meldungen.push(String(e)));
  seite.on('dialog', (d) => d.accept(d.type() === 'prompt' ? 'rund.vel' : undefined));
  for (let versuch = 0; ; ++versuch) {
    try {
      await seite.goto(adresse, { waitUntil: 'load' });
      break;
    } catch (e) {
      if (versuch > 20) throw e;
      await new Promise((r) => setTimeout(r, 200));
    }
  }
  // German, as the native reference.
  await seite.evaluate(() => localStorage.setItem('velmaris.sprache', 'd'));
  await seite.reload({ waitUntil: 'load' });
  await seite.waitForSelector('body.bereit', { timeout: 20000 });
  pruefen(meldungen.length === 0, 'the page loads without a script error ' + meldungen.join('; '));
  pruefen(await seite.$eval('[data-name="Geometrie"]', (k) => k.textContent === 'Geometrie'),
    'the input bar speaks German');

  // A step on every input plane: the page's results after it are the native program's for the
  // same project, and the value the plane shows has changed.
  const schritte = [
    { ebene: 0, steuer: 'E_Geometrie.l_sb', anzeige: 'E_Geometrie.f_nfa_anz' },
    { ebene: 1, steuer: 'E_Fenster.f_sb(1)', anzeige: 'E_Fenster.f_gf_anz' },
    { ebene: 2, steuer: 'E_Daemmung.kwn_sb', anzeige: 'E_Daemmung.kwn_anz' },
    { ebene: 3, steuer: 'E_Gebaeude.Troom_sb', anzeige: 'E_Gebaeude.troom_anz' },
    { ebene: 5, klick: 'Command3', auswahl: 'Label_Auswahl(2)', anzeige: 'E_Energie.Label_Energietraeger' },
  ];
  for (const s of schritte) {
    const vorher = await seite.evaluate((s) => {
      const v = window.velmaris;
      v.eingabe_zeigen(s.ebene);
      return { text: v.zustand().steuer[s.anzeige].text, qh: JSON.parse(v.programm.ergebnis()) };
    }, s);
    const nachher = await seite.evaluate((s) => {
      const v = window.velmaris;
      if (s.steuer) {
        document.querySelector(`[data-modell="${s.steuer}"] .pfeil:last-child`).click();
      } else {
        document.querySelector(`[data-name="${s.klick}"]`).click();
        v.handeln(() => v.programm.klicken(s.auswahl));
      }
      const pfad = v.programm.speichern(true, '/projekte/schritt.vel');
      return {
        text: document.querySelector(`[data-modell="${s.anzeige}"]`).textContent,
        ergebnis: v.programm.ergebnis(),
        datei: Array.from(v.FS.readFile(pfad)),
      };
    }, s);
    const name = s.steuer || s.auswahl;
    pruefen(nachher.text !== vorher.text, `${name}: the plane shows ${nachher.text} after ${vorher.text}`);
    const projekt = join(ordner, 'schritt.vel');
    (await import('node:fs')).writeFileSync(projekt, Buffer.from(nachher.datei));
    const r = spawnSync(nativ, ['calc', projekt], { encoding: 'utf8' });
    const a = JSON.parse(r.stdout), b = JSON.parse(nachher.ergebnis);
    pruefen(r.status === 0 && gleich(a, b), `${name}: the results are the native program's`);
  }

  // Every output plane draws its charts.
  for (let i = 0; i < 5; ++i) {
    const gemalt = await seite.evaluate((i) => {
      const v = window.velmaris;
      v.ausgabe_zeigen(i);
      const ebene = document.querySelectorAll('#flaeche > .rahmen')[6 + i];
      let punkte = 0;
      for (const c of ebene.querySelectorAll('canvas')) {
        const d = c.getContext('2d').getImageData(0, 0, c.width, c.height).data;
        for (let k = 0; k < d.length; k += 4) if (d[k] + d[k + 1] + d[k + 2] < 600) ++punkte;
      }
      const felder = [...ebene.querySelectorAll('.versenkt')].filter((l) => l.textContent.trim()).length;
      return { name: ebene.dataset.name, punkte, felder };
    }, i);
    pruefen(gemalt.punkte > 500 || gemalt.felder > 10,
      `${gemalt.name} draws (${gemalt.punkte} drawn pixels, ${gemalt.felder} filled fields)`);
  }

  // The overview's monthly balance against the desktop's picture of the new project: the
  // coloured bar pixels agree but for a few (the texts' fonts may differ).
  spawnSync(seitenlage, ['--diagramme', ordner], { env: { ...process.env, QT_QPA_PLATFORM: 'offscreen' } });
  await seite.evaluate(() => {
    const v = window.velmaris;
    v.handeln(() => v.programm.neu());
    v.ausgabe_zeigen(0);
  });
  for (const feld of ['Monatsbilanz', 'UeberGrafik']) {
    const desktop = PNG.lesen(readFileSync(join(ordner, feld + '.png')));
    const web = await seite.evaluate(async (feld) => {
      const { abspielen } = await import('./leinwand.mjs');
      const v = window.velmaris;
      const c = document.createElement('canvas');
      const el = document.querySelector(`canvas[data-feld="${feld}"]`);
      c.width = el.dataset.breite;
      c.height = el.dataset.hoehe;
      abspielen(c, v.programm.befehle(feld), v.programm.texte(feld), c.width, c.height, 1);
      return { b: c.width, h: c.height, d: Array.from(c.getContext('2d').getImageData(0, 0, c.width, c.height).data) };
    }, feld);
    let balken = 0, anders = 0;
    const farbig = (r, g, b) => (r > 200 && g < 60 && b < 60) || (b > 200 && r < 60 && g < 60) || (r > 200 && g > 200 && b < 60);
    for (let y = 0; y < web.h; ++y) {
      for (let x = 0; x < web.b; ++x) {
        const k = (y * web.b + x) * 4;
        const [r, g, b] = desktop.pixel(x, y);
        const d = farbig(r, g, b), w = farbig(web.d[k], web.d[k + 1], web.d[k + 2]);
        if (d) ++balken;
        if (d !== w) ++anders;
      }
    }
    pruefen(desktop.breite === web.b && balken > 100 && anders <= balken * 0.02,
      `${feld}: ${anders} of ${balken} bar pixels differ from the desktop's picture`);
  }

  // The tooltip of January's bar in the monthly balance, after the pointer rests on it.
  const balken = await seite.evaluate(() => {
    const c = document.querySelector('canvas[data-feld="Monatsbilanz"]');
    const d = c.getContext('2d').getImageData(0, 0, c.width, c.height).data;
    const s = c.width / c.dataset.breite;
    for (let x = 0; x < c.dataset.breite / 4; ++x) {
      for (let y = 0; y < c.dataset.hoehe; ++y) {
        const k = (Math.floor(y * s) * c.width + Math.floor(x * s)) * 4;
        if (d[k] > 200 && d[k + 1] < 60 && d[k + 2] < 60) {
          const r = c.getBoundingClientRect();
          return { x: r.left + (x + 0.5) * r.width / c.dataset.breite, y: r.top + (y + 0.5) * r.height / c.dataset.hoehe };
        }
      }
    }
    return null;
  });
  await seite.mouse.move(balken.x, balken.y);
  await seite.waitForSelector('#tooltip:not([hidden])', { timeout: 3000 }).catch(() => null);
  const tip = await seite.$eval('#tooltip', (t) => (t.hidden ? '' : t.textContent));
  pruefen(/Jan/.test(tip) && /\d/.test(tip), `a bar's tooltip names its month and value: ${tip.replace(/\n/g, ' | ')}`);
  await seite.mouse.move(0, 0);

  // A project from the disk opens, and its download has the bytes the desktop writes.
  const projekt = join(ordner, 'nativ.vel');
  spawnSync(nativ, ['save', projekt]);
  const wahl = await seite.$('#dateiwahl');
  await wahl.uploadFile(projekt);
  await seite.waitForFunction(() => document.title.toLowerCase().includes('nativ.vel'), { timeout: 5000 });
  const gespeichert = await seite.evaluate(() => Array.from(window.velmaris.speichern(true)));
  pruefen(Buffer.from(gespeichert).equals(readFileSync(projekt)),
    'a project opened and saved again has the desktop\'s bytes');

  // A station is fetched from the server when it is chosen, and its year figures show.
  const station = await seite.evaluate(() => {
    const v = window.velmaris;
    const vorher = new Set(v.geladen);
    v.ausgabe_zeigen(1);
    const mittel_vorher = document.querySelector('[data-feld="anz_MittelJahrTemp"]').textContent;
    v.eingabe_zeigen(4);
    const liste = document.querySelector('[data-name="E_Klima"] select[data-name="Klimaregionwahl2"]');
    liste.selectedIndex = 3;
    liste.dispatchEvent(new Event('change'));
    v.ausgabe_zeigen(1);
    return {
      mittel_vorher,
      neu: [...v.geladen].filter((d) => !vorher.has(d)),
      mittel: document.querySelector('[data-feld="anz_MittelJahrTemp"]').textContent,
      region: document.querySelector('[data-feld="anz_klimaregion"]').textContent,
    };
  });
  pruefen(station.neu.length === 1 && /\d/.test(station.mittel) && station.mittel !== station.mittel_vorher,
    `a station is fetched when chosen (${station.neu}) and its year mean ${station.mittel} (before ${station.mittel_vorher}) shows for ${station.region}`);

  // Germany: the map names the region under the pointer, and a press picks it.
  const karte = await seite.evaluate(() => {
    const v = window.velmaris;
    document.querySelector('[data-name="E_Klima"] [data-name="Option1"] input').click();
    const bild = document.querySelector('[data-name="E_Klima"] [data-name="Picture1"]');
    const r = bild.getBoundingClientRect();
    const s = r.width / parseFloat(bild.style.width);
    for (let y = 300; y > 0; y -= 7) {
      for (let x = 10; x < 230; x += 7) {
        const name = v.programm.karte_hover(x, y);
        if (name) {
          const vorher = v.zustand().titel + '|' + document.querySelector('[data-feld="anz_klimaregion"]').textContent;
          bild.dispatchEvent(new MouseEvent('mousedown', { clientX: r.left + (x + 0.5) * s, clientY: r.top + (y + 0.5) * s, bubbles: true }));
          return { name, region: document.querySelector('[data-feld="anz_klimaregion"]').textContent, vorher };
        }
      }
    }
    return null;
  });
  const nummer = karte?.name.match(/(\d+)/)?.[1];
  pruefen(karte !== null && nummer !== undefined && new RegExp(`Region\\s+${nummer}:`).test(karte.region) &&
    !karte.vorher.endsWith(karte.region),
    `the German map names a region (${karte?.name}) and a press picks it: ${karte?.region}`);

  // The Europe and the world map: the pointer resting on a dot names its station (the program
  // draws candidates at random, so it may take a few moves), a release on it picks the station,
  // whose file is then fetched; the world map scrolls in its frame by its arrows.
  const auf_punkt = async (option, karte, auswahl) => {
    const ziel = await seite.evaluate((option, karte, auswahl) => {
      const v = window.velmaris;
      document.querySelector(`[data-name="E_Klima"] [data-name="Option${option}"] input`).click();
      const k = v.zustand().klima;
      const rot = k.punkte.at(-1);
      const gelb = k.punkte.filter((p) => p[2] === 65535 && !(p[0] === rot[0] && p[1] === rot[1]));
      const allein = gelb.filter((p) => gelb.every((q) => q === p || Math.abs(q[0] - p[0]) >= 6 || Math.abs(q[1] - p[1]) >= 6));
      const sichtbar = allein.filter((p) => p[0] - k.HScroll1 / 15 >= 4 && p[0] - k.HScroll1 / 15 < 330);
      const [x, y] = auswahl === 'letzter' ? sichtbar[sichtbar.length - 1] : sichtbar[0];
      const bild = document.querySelector(`[data-name="E_Klima"] [data-name="${karte}"]`);
      const r = bild.getBoundingClientRect();
      const s = r.width / parseFloat(bild.style.width);
      return { x: r.left + (x + 0.5) * s, y: r.top + (y + 0.5) * s, geladen: [...v.geladen] };
    }, option, karte, auswahl);
    let name = '';
    for (let versuch = 0; versuch < 40 && name === ''; ++versuch) {
      await seite.mouse.move(ziel.x, ziel.y + (versuch % 2) * 0.6);
      name = await seite.$eval('[data-name="E_Klima"] [data-name="MausRegion"]', (l) => (l.hidden ? '' : l.textContent));
    }
    return { ...ziel, name };
  };
  const europa = await auf_punkt(2, 'Picture2', 'letzter');
  await seite.mouse.down();
  await seite.mouse.up();
  const gewaehlt = await seite.evaluate((vorher) => {
    const liste = document.querySelector('[data-name="E_Klima"] select[data-name="Klimaregionwahl2"]');
    return {
      zeile: liste.options[liste.selectedIndex]?.text,
      neu: [...window.velmaris.geladen].filter((d) => d.endsWith('.met') && !vorher.includes(d)),
    };
  }, europa.geladen);
  pruefen(europa.name !== '' && gewaehlt.zeile === europa.name && gewaehlt.neu.length === 1,
    `a Europe dot names its station (${europa.name}), a click picks it (${gewaehlt.zeile}) and fetches its file (${gewaehlt.neu})`);
  const welt = await auf_punkt(3, 'Picture3', 'erster');
  const stationen = await seite.$$eval('[data-name="E_Klima"] select[data-name="Klimaregionwahl2"] option', (o) => o.map((x) => x.text));
  pruefen(welt.name !== '' && stationen.includes(welt.name), `the world map names the station under the pointer (${welt.name})`);
  const links = await seite.evaluate(() => {
    window.velmaris.handeln(() => window.velmaris.programm.klima('HScroll1', 0, ''));
    document.querySelectorAll('[data-name="E_Klima"] [data-name="HScroll1"] .pfeil')[1].click();
    return document.querySelector('[data-name="E_Klima"] [data-name="Picture3"]').style.left;
  });
  pruefen(links === '-10px', `the world map's arrow scrolls it by ten pixels (${links})`);
  await seite.mouse.move(0, 0);

  // The enlarged temperature window: a click on the overview's chart opens it drawn, its month
  // buttons choose the overview's month as well, its close button hides it.
  const zoom = await seite.evaluate(() => {
    const v = window.velmaris;
    v.ausgabe_zeigen(0);
    v.monat_waehlen(3);
    document.querySelector('canvas[data-feld="Temperaturen"]').click();
    const fenster = document.getElementById('zoom');
    const offen = !fenster.hidden;
    const vorher = v.gezeichnet.get('A_Zoom.Temperaturen');
    fenster.querySelector('[data-name="Monatsbutton(8)"]').click();
    const ergebnis = {
      offen,
      vorher,
      nachher: v.gezeichnet.get('A_Zoom.Temperaturen'),
      monat: v.zustand().monat,
      marke: document.querySelector('[data-name="AktiverMonat1"]').textContent,
      knopf: fenster.querySelector('[data-name="Monatsbutton(8)"]').textContent,
    };
    fenster.querySelector('[data-name="Command_Schliessen"]').click();
    return { ...ergebnis, zu: fenster.hidden };
  });
  pruefen(zoom.offen && zoom.vorher > 0 && zoom.nachher > zoom.vorher && zoom.monat === 8 &&
    zoom.marke === zoom.knopf && zoom.zu,
    `the enlarged temperature window opens drawn, its month ${zoom.knopf} goes to the overview (${zoom.marke}), it closes`);

  // The language switch: the page comes back in English, and stays so.
  await seite.evaluate(() => document.querySelector('[data-name="mnuSpracheEnglisch"]').click());
  await seite.waitForSelector('body.bereit', { timeout: 20000 });
  await seite.reload({ waitUntil: 'load' });
  await seite.waitForSelector('body.bereit', { timeout: 20000 });
  const englisch = await seite.$eval('[data-name="Geometrie"]', (k) => k.textContent);
  const monat = await seite.$eval('[data-name="Monatsbutton(5)"]', (k) => k.textContent);
  pruefen(englisch === 'Geometry' && monat === 'May', `after the switch the page speaks English (${englisch}, ${monat})`);
} finally {
  await browser.close();
  server.kill();
  rmSync(ordner, { recursive: true, force: true });
}

// Floats within a rounding, everything else exactly.
function gleich(a, b) {
  if (typeof a === 'number' && typeof b === 'number') {
    return a === b || Math.fround(a) === Math.fround(b) || Math.abs(a - b) <= 1e-6 * Math.max(1, Math.abs(a));
  }
  if (Array.isArray(a) && Array.isArray(b)) {
    return a.length === b.length && a.every((x, i) => gleich(x, b[i]));
  }
  if (a && b && typeof a === 'object' && typeof b === 'object') {
    const ka = Object.keys(a), kb = Object.keys(b);
    return ka.length === kb.length && ka.every((k) => gleich(a[k], b[k]));
  }
  return a === b;
}

if (fehler.length > 0) {
  console.error(`${fehler.length} browser check(s) failed`);
  process.exit(1);
}
