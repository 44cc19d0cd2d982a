// The page: the main window's layout from layout.json (written from the desktop's planes),
// bound to the program's models through the module. Every user action goes to the model; then
// every control is brought to its model's state and the charts that changed are replayed.
import velmaris from './velmaris-web.mjs';
import { abspielen, textbreite, texthoehe } from './leinwand.mjs';

const EINGABEN = ['E_Geometrie', 'E_Fenster', 'E_Daemmung', 'E_Gebaeude', 'E_Klima', 'E_Energie'];
const AUSGABEN = ['A_Uebersicht', 'A_Klima', 'A_Heizen', 'A_Kuehlen', 'A_Sankey'];
const MENUE_HOEHE = 22;

const gespeichert = localStorage.getItem('velmaris.sprache');
const sprache = gespeichert === 'd' || gespeichert === 'e' ? gespeichert
  : (navigator.language || 'de').startsWith('de') ? 'd' : 'e';
document.documentElement.lang = sprache === 'e' ? 'en' : 'de';

const [layout, stationen, modul] = await Promise.all([
  fetch('layout.json').then((a) => a.json()),
  fetch('klima/index.json').then((a) => a.json()),
  velmaris(),
]);
const FS = modul.FS;

// The station folder: each file's first lines for the station lists, which the planes build
// once; afterwards a file is fetched from the server when the program reads it.
FS.mkdir('/klima');
FS.mkdir('/projekte');
FS.mkdir('/Grafiken');
for (let i = 0; i <= 12; ++i) bei_bedarf(`klima${i}.bmp`, 'Grafiken');
for (const n of ['europa.bmp', 'welt.bmp']) bei_bedarf(n, 'Grafiken');
for (const [datei, kopf] of Object.entries(stationen)) {
  FS.writeFile('/klima/' + datei, Uint8Array.from(kopf, (c) => c.charCodeAt(0) & 0xff));
}

function bei_bedarf(datei, ordner = 'klima') {
  if (ordner === 'klima') FS.unlink('/klima/' + datei);
  const knoten = FS.createFile('/' + ordner, datei, null, true, true);
  let daten = null;
  const laden = () => {
    if (daten === null) {
      const x = new XMLHttpRequest();
      x.open('GET', ordner + '/' + encodeURIComponent(datei), false);
      x.overrideMimeType('text/plain; charset=x-user-defined');
      x.send();
      const t = x.status === 200 ? x.responseText : '';
      daten = new Uint8Array(t.length);
      for (let i = 0; i < t.length; ++i) {
        daten[i] = t.charCodeAt(i) & 0xff;
      }
      geladen.add(datei);
    }
    return daten;
  };
  Object.defineProperty(knoten, 'contents', { get: laden, set: (v) => { daten = v; } });
  Object.defineProperty(knoten, 'usedBytes', { get: () => laden().length, set: () => {} });
}
export const geladen = new Set();

const seite = {
  textbreite,
  texthoehe: (font) => texthoehe(font),
  frage(text, titel, knoepfe) {
    text = text.replace(/\r\n?/g, '\n');
    if (knoepfe === 0) {
      window.alert(text);
      return 0;
    }
    if (knoepfe === 1) {
      return window.confirm(text) ? 1 : 2;
    }
    // Yes, No, Cancel: OK is Yes; a second question tells No from Cancel.
    if (window.confirm(text)) {
      return 1;
    }
    return window.confirm(sprache === 'e' ? 'Discard the changes?' : 'Änderungen verwerfen?') ? 2 : 3;
  },
};

const programm = new modul.Programm(sprache, '/klima', seite);
for (const datei of Object.keys(stationen)) {
  bei_bedarf(datei);
}

// The widgets, nested as on the desktop, each at its place in its parent.
const fenster = document.getElementById('fenster');
const flaeche = document.getElementById('flaeche');
flaeche.style.width = layout.breite + 'px';
flaeche.style.height = layout.hoehe + 'px';
const elemente = [];
const nach_modell = new Map();
const nach_name = new Map();
const diagramme = new Map();

function text_von(w) {
  return w.text ? (w.text[sprache] ?? w.text.d) : '';
}

function modellaktionen(name) {
  return {
    pfeil: (r) => programm.pfeil(name, r),
    seite: (r) => programm.seite(name, r),
    setzen: (wert) => programm.setzen(name, wert),
  };
}

function ohne_kuerzel(t) {
  return t.replace(/&(.)/g, '$1');
}

// A scroll bar whose steps go to `aktionen` (pfeil, seite, setzen) and whose state {wert, min,
// max} comes from `stand`; a bound one goes to its model.
function scrollbalken(w, el, aktionen = modellaktionen(w.modell), stand = () => zustand.steuer[w.modell]) {
  const senkrecht = !!w.senkrecht;
  el.classList.add(senkrecht ? 'senkrecht' : 'waagrecht');
  const zurueck = document.createElement('button');
  const vor = document.createElement('button');
  const bahn = document.createElement('div');
  const griff = document.createElement('div');
  zurueck.className = 'pfeil';
  vor.className = 'pfeil';
  zurueck.textContent = senkrecht ? '▲' : '◀';
  vor.textContent = senkrecht ? '▼' : '▶';
  zurueck.tabIndex = -1;
  vor.tabIndex = -1;
  bahn.className = 'bahn';
  griff.className = 'griff';
  bahn.append(griff);
  el.append(zurueck, bahn, vor);
  el.tabIndex = 0;
  zurueck.addEventListener('click', () => handeln(() => aktionen.pfeil(-1)));
  vor.addEventListener('click', () => handeln(() => aktionen.pfeil(1)));
  bahn.addEventListener('mousedown', (e) => {
    if (e.target !== bahn) {
      return;
    }
    const g = griff.getBoundingClientRect();
    const hinter = senkrecht ? e.clientY > g.bottom : e.clientX > g.right;
    handeln(() => aktionen.seite(hinter ? 1 : -1));
  });
  griff.addEventListener('pointerdown', (e) => {
    e.preventDefault();
    griff.setPointerCapture(e.pointerId);
    const bewegen = (m) => {
      const s = stand();
      const b = bahn.getBoundingClientRect();
      const laenge = senkrecht ? b.height - griff.offsetHeight * skala() : b.width - griff.offsetWidth * skala();
      const pos = senkrecht ? m.clientY - b.top - griff.offsetHeight * skala() / 2
        : m.clientX - b.left - griff.offsetWidth * skala() / 2;
      const anteil = Math.min(1, Math.max(0, pos / Math.max(1, laenge)));
      const wert = Math.round(s.min + anteil * (s.max - s.min));
      if (wert !== s.wert) {
        handeln(() => aktionen.setzen(wert));
      }
    };
    griff.onpointermove = bewegen;
    griff.onpointerup = () => { griff.onpointermove = null; };
  });
  el.addEventListener('keydown', (e) => {
    const tasten = { ArrowLeft: -1, ArrowUp: -1, ArrowRight: 1, ArrowDown: 1 };
    if (e.key in tasten) {
      e.preventDefault();
      handeln(() => aktionen.pfeil(tasten[e.key]));
    } else if (e.key === 'PageUp' || e.key === 'PageDown') {
      e.preventDefault();
      handeln(() => aktionen.seite(e.key === 'PageDown' ? 1 : -1));
    }
  });
  el._abgleich = (s) => {
    const spanne = s.max - s.min;
    const anteil = spanne === 0 ? 0 : (s.wert - s.min) / spanne;
    const groesse = 16;
    if (senkrecht) {
      griff.style.height = groesse + 'px';
      stil(griff, 'top', `calc(${anteil} * (100% - ${groesse}px))`);
    } else {
      griff.style.width = groesse + 'px';
      stil(griff, 'left', `calc(${anteil} * (100% - ${groesse}px))`);
    }
    if (el.getAttribute('aria-valuenow') !== String(s.wert)) el.setAttribute('aria-valuenow', s.wert);
  };
  el.setAttribute('role', 'scrollbar');
}

for (const [i, w] of layout.widgets.entries()) {
  let el;
  switch (w.art) {
    case 'diagramm':
      el = document.createElement('canvas');
      diagramme.set(w.feld, { el, w });
      break;
    case 'liste':
      el = document.createElement('select');
      if (w.modell) {
        el.addEventListener('change', () => {
          handeln(() => programm.setzen(w.modell, el.selectedIndex));
          nachziehen(w.modell);
        });
      }
      break;
    case 'check':
    case 'option': {
      el = document.createElement('label');
      const ein = document.createElement('input');
      ein.type = w.art === 'check' ? 'checkbox' : 'radio';
      const t = document.createElement('span');
      t.textContent = ohne_kuerzel(text_von(w));
      el.append(ein, t);
      el._ein = ein;
      if (w.modell) {
        ein.addEventListener('click', (e) => {
          e.preventDefault();
          handeln(() => programm.setzen(w.modell, w.art === 'check' ? (ein.checked ? 1 : 0) : w.index));
          nachziehen(w.modell);
        });
      }
      break;
    }
    case 'knopf':
      el = document.createElement('button');
      el.textContent = ohne_kuerzel(text_von(w));
      break;
    case 'eingabe':
      el = document.createElement('input');
      break;
    case 'rahmen': {
      el = document.createElement('div');
      const t = text_von(w);
      if (t) {
        const titel = document.createElement('span');
        titel.className = 'titel';
        titel.textContent = t;
        el.append(titel);
      }
      break;
    }
    case 'scroll':
      el = document.createElement('div');
      break;
    default:
      el = document.createElement('div');
      el.textContent = ohne_kuerzel(text_von(w));
  }
  el.classList.add('w', w.art);
  if (w.versenkt) el.classList.add('versenkt');
  if (w.fett) el.classList.add('fett');
  if (w.mitte) el.classList.add('mitte');
  if (w.rechts) el.classList.add('rechts');
  if (w.umbruch) el.classList.add('umbruch');
  if (w.farbe) el.style.background = w.farbe;
  if (w.feld) el.dataset.feld = w.feld;
  if (w.art === 'diagramm') {
    el.dataset.breite = w.ort[2];
    el.dataset.hoehe = w.ort[3];
  }
  if (w.name) {
    el.dataset.name = w.name;
    nach_name.set(w.name, el);
  }
  if (w.modell) {
    el.dataset.modell = w.modell;
    if (!nach_modell.has(w.modell)) nach_modell.set(w.modell, []);
    nach_modell.get(w.modell).push({ el, w });
  }
  const [x, y, b, h] = w.ort;
  Object.assign(el.style, { left: x + 'px', top: y + 'px', width: b + 'px', height: h + 'px' });
  if (w.verborgen) el.hidden = true;
  if (w.art === 'scroll' && w.modell) scrollbalken(w, el);
  elemente.push(el);
  (w.eltern === undefined ? flaeche : elemente[w.eltern]).append(el);
}
// The planes show by their buttons, not by their start state.
for (const n of [...EINGABEN, ...AUSGABEN]) nach_name.get(n).hidden = true;

// The enlarged temperature window: the overview's chart at window size with the month buttons
// along its top, opened by a click on that chart, modal over the main window.
const ZOOM = 'A_Zoom.Temperaturen';
const zoom = document.createElement('div');
zoom.id = 'zoom';
zoom.hidden = true;
const zoom_fenster = document.createElement('div');
zoom_fenster.className = 'zoomfenster';
zoom.append(zoom_fenster);
{
  const lage = JSON.parse(modul.zoom_lage(800, 500));
  const platz = (el, x, y, b, h) => {
    el.classList.add('w');
    Object.assign(el.style, { left: x + 'px', top: y + 'px', width: b + 'px', height: h + 'px' });
    zoom_fenster.append(el);
  };
  lage.Monatsbutton.forEach(([x, b], i) => {
    const knopf = document.createElement('button');
    knopf.className = 'knopf';
    knopf.dataset.name = `Monatsbutton(${i + 1})`;
    knopf.textContent = nach_name.get(`Monatsbutton(${i + 1})`).textContent;
    knopf.addEventListener('click', () => monat_waehlen(i + 1));
    platz(knopf, x, 0, b, 22);
  });
  const bild = document.createElement('canvas');
  bild.dataset.feld = ZOOM;
  platz(bild, 8, 22, ...lage.Temperaturen);
  diagramme.set(ZOOM, { el: bild, w: { ort: [8, 22, ...lage.Temperaturen] } });
  const zu = document.createElement('button');
  zu.className = 'knopf';
  zu.dataset.name = 'Command_Schliessen';
  zu.textContent = sprache === 'e' ? 'Close' : 'Schließen';
  zu.addEventListener('click', () => zoom_schliessen());
  platz(zu, ...lage.Command_Schliessen, 128, 26);
  document.getElementById('fenster').append(zoom);
}
function zoom_oeffnen() {
  zoom.hidden = false;
  programm.zoom_zeigen(true);
  abgleichen();
}
function zoom_schliessen() {
  zoom.hidden = true;
  programm.zoom_zeigen(false);
}
document.addEventListener('keydown', (e) => {
  if (e.key === 'Escape' && !zoom.hidden) zoom_schliessen();
});

const massstab = () => window.devicePixelRatio * skala();
for (const [feld, { el, w }] of diagramme) {
  const [, , b, h] = w.ort;
  el.width = Math.round(b * massstab());
  el.height = Math.round(h * massstab());
  el.style.width = b + 'px';
  el.style.height = h + 'px';
  const farbe = parseInt((w.hintergrund || '#ffffff').slice(1), 16);
  programm.flaeche_anlegen(feld, b, h, farbe);
  tooltip_beobachten(feld, el);
}

// The tooltip of a chart: after the pointer rested a moment on a bar.
const tip = document.getElementById('tooltip');
function tooltip_beobachten(feld, el) {
  let uhr = 0;
  el.addEventListener('mousemove', (e) => {
    clearTimeout(uhr);
    tip.hidden = true;
    const r = el.getBoundingClientRect();
    const x = ((e.clientX - r.left) / r.width) * el.width / massstab();
    const y = ((e.clientY - r.top) / r.height) * el.height / massstab();
    uhr = setTimeout(() => {
      const t = programm.tooltip(feld, Math.floor(x), Math.floor(y));
      if (t) {
        tip.textContent = t.replace(/\r\n?/g, '\n');
        tip.style.left = e.clientX + 8 + 'px';
        tip.style.top = e.clientY + 16 + 'px';
        tip.hidden = false;
      }
    }, 600);
  });
  el.addEventListener('mouseleave', () => {
    clearTimeout(uhr);
    tip.hidden = true;
  });
}

let zustand = null;
const gezeichnet = new Map();
let eingabe = 0;
let ausgabe = 0;

function sichtbar(el) {
  for (let e = el; e && e !== flaeche; e = e.parentElement) {
    if (e.hidden) return false;
  }
  return true;
}

const feldelemente = new Map();

// Changes only what differs, so that an unchanged control costs no layout.
function text_setzen(el, text) {
  if (el.textContent !== text) el.textContent = text;
}
function verbergen(el, verborgen) {
  if (el.hidden !== verborgen) el.hidden = verborgen;
}
function stil(el, name, wert) {
  if (el.style[name] !== wert) el.style[name] = wert;
}

// The list's rows and choice as the model has them.
function liste_folgen(el, s) {
  if (el.options.length !== s.zeilen.length || s.zeilen.some((z, i) => el.options[i].text !== z)) {
    el.replaceChildren(...s.zeilen.map((z) => new Option(z)));
  }
  if (el.selectedIndex !== s.index) el.selectedIndex = s.index;
}

// The widgets bound to the model `name` brought to its state `s`.
function steuer_folgen(name, s, gueltig) {
  for (const { el, w } of nach_modell.get(name) || []) {
    if ('sichtbar' in s && w.art !== 'option') verbergen(el, s.sichtbar === 0);
    if (w.art === 'scroll') {
      el._abgleich(s);
      el.classList.toggle('aus', s.aktiv === 0);
    } else if (w.art === 'liste') {
      liste_folgen(el, s);
      if (el.disabled !== (s.aktiv === 0)) el.disabled = s.aktiv === 0;
    } else if (w.art === 'check') {
      if (el._ein.checked !== (s.wert === 1)) el._ein.checked = s.wert === 1;
      if (el._ein.disabled !== (s.aktiv === 0)) el._ein.disabled = s.aktiv === 0;
    } else if (w.art === 'option') {
      if (el._ein.checked !== (s.gesetzt === w.index)) el._ein.checked = s.gesetzt === w.index;
      if (el._ein.disabled !== (s.aktiv[w.index] === 0)) el._ein.disabled = s.aktiv[w.index] === 0;
    } else {
      const leer = w.ergebnis && !gueltig;
      if (!(w.entwurf && s.text === '')) text_setzen(el, leer ? '' : s.text);
      el.classList.toggle('grau', !!w.ergebnis && !gueltig);
      el.classList.toggle('verdeckt', s.verdeckt === 1);
      if (w.massstab) {
        stil(el, 'left', s.links / w.massstab + 'px');
        stil(el, 'top', s.oben / w.massstab + 'px');
      }
    }
  }
}

// A widget the user changed in the browser shows the model's state again, also where the model
// kept it as it was; after a prevented click the browser resets a box once the click is over.
function nachziehen(name) {
  steuer_folgen(name, zustand.steuer[name], zustand.gueltig === 1);
  setTimeout(() => steuer_folgen(name, zustand.steuer[name], zustand.gueltig === 1));
}

// Brings the controls to their models' state and replays the charts that were drawn anew. The
// module sends only what changed since the last time, so a step touches only what it changed;
// a change of the results' validity greys or fills every result, so then all follow.
function abgleichen() {
  const neu = JSON.parse(programm.aenderungen());
  const erstes = zustand === null;
  if (erstes) zustand = { steuer: {}, felder: {}, diagramme: {} };
  for (const [k, v] of Object.entries(neu)) {
    if (k === 'steuer' || k === 'felder' || k === 'diagramme') Object.assign(zustand[k], v);
    else zustand[k] = v;
  }
  const gueltig = zustand.gueltig === 1;
  const alle = erstes || 'gueltig' in neu;
  for (const [name, s] of Object.entries(alle ? zustand.steuer : neu.steuer)) {
    steuer_folgen(name, s, gueltig);
  }
  if (alle || neu.ebenen || Object.keys(neu.steuer).length > 0) ebenen_folgen(zustand.ebenen, gueltig);
  for (const [name, text] of Object.entries(alle ? zustand.felder : neu.felder)) {
    if (!feldelemente.has(name)) {
      feldelemente.set(name, [...flaeche.querySelectorAll(`[data-feld="${name}"], [data-name="${name}"]`)]);
    }
    for (const el of feldelemente.get(name)) text_setzen(el, text);
  }
  if (alle || neu.klima) klima_folgen(zustand.klima);
  if (alle) {
    for (const n of AUSGABEN) nach_name.get(n).classList.toggle('grau', !gueltig);
  }
  for (const [feld, { el }] of diagramme) {
    const fassung = zustand.diagramme[feld];
    if (gezeichnet.get(feld) !== fassung && sichtbar(el)) {
      zeichnen(feld);
      gezeichnet.set(feld, fassung);
    }
    if (alle) el.classList.toggle('grau', !gueltig);
  }
  if ('titel' in neu) document.title = zustand.titel || 'Velmaris';
  if ('fehler' in neu) {
    const fehler = document.getElementById('fehler');
    fehler.textContent = zustand.fehler;
    fehler.hidden = zustand.fehler === '';
  }
}

// The climate plane: the scope options, the region list with the post code for Germany, the
// station list for Europe and the world, and the maps.
const klimaebene = nach_name.get('E_Klima');
const im_klima = (n) => klimaebene.querySelector(`[data-name="${n}"]`);
for (let i = 1; i <= 3; ++i) {
  const ein = im_klima(`Option${i}`)._ein;
  ein.addEventListener('click', (e) => {
    e.preventDefault();
    handeln(() => programm.klima('Option', i, ''));
    // The browser puts the radio back as it was after a prevented click, so the scope's
    // marks follow once the click is over.
    setTimeout(() => klima_folgen(zustand.klima));
  });
}
for (const n of ['Klimaregionwahl', 'Klimaregionwahl2']) {
  const liste = im_klima(n);
  liste.addEventListener('change', () => {
    handeln(() => programm.klima(n, liste.selectedIndex, ''));
    klima_folgen(zustand.klima);
  });
}
const plz = im_klima('plz');
plz.maxLength = 5;
plz.inputMode = 'numeric';
const plz_suchen = () => {
  handeln(() => programm.klima('plz', 0, plz.value));
  klima_folgen(zustand.klima);
};
im_klima('PLZsuchen').addEventListener('click', plz_suchen);
plz.addEventListener('keydown', (e) => {
  if (e.key === 'Enter') plz_suchen();
});
// The German map: the region under the pointer is named beside it, a press picks it.
const karte = im_klima('Picture1');
const karte_punkt = (e) => {
  const r = karte.getBoundingClientRect();
  return [Math.floor((e.clientX - r.left) / skala()), Math.floor((e.clientY - r.top) / skala())];
};
const schwebe = im_klima('Label2');
karte.addEventListener('mousemove', (e) => {
  const [x, y] = karte_punkt(e);
  const t = programm.karte_hover(x, y);
  schwebe.hidden = t === '';
  schwebe.textContent = t.replace(/\r\n?/g, '\n');
  schwebe.style.left = x + 12 + 'px';
  schwebe.style.top = y + 12 + 'px';
});
karte.addEventListener('mouseleave', () => { schwebe.hidden = true; });
karte.addEventListener('mousedown', (e) => {
  const [x, y] = karte_punkt(e);
  handeln(() => programm.karte_klick(x, y));
});
// The Europe and the world map: their station dots painted pixel by pixel on a canvas over the
// picture, as exactly as the program tells a dot from the land; the station under the pointer
// is named beside it, a release on a dot picks it. The world map scrolls in its frame.
const WELT_SCHRITT = 10 * 15;
const maus_region = im_klima('MausRegion');
const stationskarten = [['Picture2', 'europa.png'], ['Picture3', 'welt.png']].map(([n, bild]) => {
  const el = im_klima(n);
  el.style.backgroundImage = `url("Grafiken/${bild}")`;
  const punkte = document.createElement('canvas');
  punkte.width = Number.parseInt(el.style.width, 10);
  punkte.height = Number.parseInt(el.style.height, 10);
  punkte.className = 'punkte';
  el.append(punkte);
  const ort = (e) => {
    const r = el.getBoundingClientRect();
    return [Math.floor((e.clientX - r.left) / skala()), Math.floor((e.clientY - r.top) / skala())];
  };
  el.addEventListener('mousemove', (e) => {
    const [x, y] = ort(e);
    const t = programm.stationskarte_hover(x, y);
    maus_region.hidden = t === '';
    maus_region.textContent = t;
    const r = el.getBoundingClientRect(), ebene = klimaebene.getBoundingClientRect();
    maus_region.style.left = (r.left - ebene.left) / skala() + x + 'px';
    maus_region.style.top = (r.top - ebene.top) / skala() + y + 20 + 'px';
  });
  el.addEventListener('mouseleave', () => { maus_region.hidden = true; });
  el.addEventListener('mouseup', (e) => {
    const [x, y] = ort(e);
    handeln(() => programm.stationskarte_klick(x, y));
  });
  return { el, punkte, gemalt: '' };
});
const welt_scroll = im_klima('HScroll1');
scrollbalken({}, welt_scroll, {
  pfeil: (r) => programm.klima('HScroll1', zustand.klima.HScroll1 + r * WELT_SCHRITT, ''),
  seite: (r) => programm.klima('HScroll1', zustand.klima.HScroll1 + r * zustand.klima.picture3f_breite, ''),
  setzen: (wert) => programm.klima('HScroll1', wert, ''),
}, () => ({ wert: zustand.klima.HScroll1, min: 0, max: zustand.klima.HScroll1_max }));

// Paints the dots [x, y, colour] on the map's canvas, unless they are those painted last.
function punkte_malen(karte, punkte) {
  const neu = JSON.stringify(punkte);
  if (karte.gemalt === neu) return;
  karte.gemalt = neu;
  const g = karte.punkte.getContext('2d');
  g.clearRect(0, 0, karte.punkte.width, karte.punkte.height);
  for (const [x, y, farbe] of punkte) {
    g.fillStyle = `rgb(${farbe & 255},${(farbe >> 8) & 255},${(farbe >> 16) & 255})`;
    for (let dy = -2; dy <= 2; ++dy) {
      for (let dx = -2; dx <= 2; ++dx) {
        if (dx * dx + dy * dy <= 4) g.fillRect(x + dx, y + dy, 1, 1);
      }
    }
  }
}

// The enlarged world map: 1.5 times larger with the station list below it, modal, opened by the
// small world picture. A dot or a row only chooses here; OK hands the choice to the plane.
const ZOOM_FAKTOR = 1.5;
const zoomklima = document.createElement('div');
zoomklima.id = 'zoomklima';
zoomklima.hidden = true;
const zk_fenster = document.createElement('div');
zk_fenster.className = 'zkfenster';
zoomklima.append(zk_fenster);
document.body.append(zoomklima);
const zk_platz = (el, x, y, b, h) => {
  el.classList.add('w');
  Object.assign(el.style, { left: x + 'px', top: y + 'px', width: b + 'px', height: h + 'px' });
  zk_fenster.append(el);
  return el;
};
const ZK_BREITE = Math.round(650 * ZOOM_FAKTOR), ZK_HOEHE = Math.round(250 * ZOOM_FAKTOR);
const ZK_UNTEN = 8 + ZK_HOEHE + 8;
const zk_karte = zk_platz(document.createElement('div'), 8, 8, ZK_BREITE, ZK_HOEHE);
zk_karte.dataset.name = 'Picture1';
zk_karte.style.backgroundImage = 'url("Grafiken/welt.png")';
zk_karte.style.backgroundSize = '100% 100%';
const zk_punkte = { punkte: document.createElement('canvas'), gemalt: '' };
zk_punkte.punkte.width = ZK_BREITE;
zk_punkte.punkte.height = ZK_HOEHE;
zk_punkte.punkte.className = 'punkte';
zk_karte.append(zk_punkte.punkte);
const zk_maus = zk_platz(document.createElement('div'), 0, 0, 0, 0);
zk_maus.dataset.name = 'MausRegion';
zk_maus.hidden = true;
const zk_liste = zk_platz(document.createElement('select'), 8, ZK_UNTEN, 336, 22);
zk_liste.dataset.name = 'Klimaregionwahl2';
const welt_titel = sprache === 'e' ? 'Climate stations - World' : 'Klimastationen - Welt';
zk_platz(document.createElement('div'), 352, ZK_UNTEN + 3, 300, 18).textContent = welt_titel;
const zk_ok = zk_platz(document.createElement('button'), 8 + ZK_BREITE - 208, ZK_UNTEN, 100, 24);
zk_ok.className += ' knopf';
zk_ok.dataset.name = 'Command1';
zk_ok.textContent = 'OK';
const zk_abbrechen = zk_platz(document.createElement('button'), 8 + ZK_BREITE - 100, ZK_UNTEN, 100, 24);
zk_abbrechen.className += ' knopf';
zk_abbrechen.dataset.name = 'Command2';
zk_abbrechen.textContent = sprache === 'e' ? 'Cancel' : 'Abbrechen';
const zk_skala = () => Number(zk_fenster.dataset.skala || 1);
function zoomklima_einpassen() {
  const b = ZK_BREITE + 16, h = ZK_UNTEN + 32;
  const s = Math.min(skala(), (0.96 * window.innerWidth) / b, (0.96 * window.innerHeight) / h);
  zk_fenster.dataset.skala = s;
  Object.assign(zk_fenster.style, {
    width: b + 'px', height: h + 'px', transform: `scale(${s})`,
    left: (window.innerWidth - b * s) / 2 + 'px', top: (window.innerHeight - h * s) / 2 + 'px',
  });
}
function zoomklima_folgen(k) {
  const zeilen = k.Klimaregionwahl2.zeilen;
  if (zk_liste.options.length !== zeilen.length) zk_liste.replaceChildren(...zeilen.map((z) => new Option(z)));
  zk_liste.selectedIndex = k.zoom.index;
  punkte_malen(zk_punkte, k.zoom.punkte);
}
function zoomklima_zu(ok) {
  zoomklima.hidden = true;
  zk_maus.hidden = true;
  handeln(() => programm.zoom_klima_schliessen(ok));
}
const zk_ort = (e) => {
  const r = zk_karte.getBoundingClientRect();
  return [Math.floor((e.clientX - r.left) / zk_skala()), Math.floor((e.clientY - r.top) / zk_skala())];
};
zk_karte.addEventListener('mousemove', (e) => {
  const [x, y] = zk_ort(e);
  const t = programm.zoom_klima_hover(x, y);
  zk_maus.hidden = t === '';
  zk_maus.textContent = t;
  zk_maus.style.left = 8 + Math.min(x, ZK_BREITE - 150) + 'px';
  zk_maus.style.top = 8 + (y + 40 > ZK_HOEHE ? y - 24 : y + 20) + 'px';
});
zk_karte.addEventListener('mouseleave', () => { zk_maus.hidden = true; });
zk_karte.addEventListener('mouseup', (e) => {
  const [x, y] = zk_ort(e);
  handeln(() => programm.zoom_klima_klick(x, y));
});
zk_liste.addEventListener('change', () => {
  handeln(() => programm.zoom_klima_waehlen(zk_liste.selectedIndex));
  klima_folgen(zustand.klima);
});
zk_ok.addEventListener('click', () => zoomklima_zu(true));
zk_abbrechen.addEventListener('click', () => zoomklima_zu(false));
document.addEventListener('keydown', (e) => {
  if (e.key === 'Escape' && !zoomklima.hidden) zoomklima_zu(false);
});
window.addEventListener('resize', zoomklima_einpassen);
const welt_klein = im_klima('Image1');
welt_klein.style.backgroundImage = 'url("Grafiken/welt.png")';
welt_klein.style.backgroundSize = '100% 100%';
welt_klein.style.cursor = 'pointer';
welt_klein.addEventListener('click', () => {
  zoomklima_einpassen();
  zoomklima.hidden = false;
  handeln(() => programm.zoom_klima_oeffnen());
});

// What only the German scope shows: the map, the region list and the post code with captions.
const deutsche_teile = [im_klima('Picture1'), im_klima('Klimaregionwahl'), plz, im_klima('PLZsuchen'),
  elemente[layout.widgets.findIndex((w) => w.text?.d === 'Klimaregion')],
  elemente[layout.widgets.findIndex((w) => w.text?.d === 'Postleitzahl')]].filter((e) => e);

function klima_folgen(k) {
  for (let i = 1; i <= 3; ++i) im_klima(`Option${i}`)._ein.checked = k.auswahl === i;
  const deutschland = k.sichtbar === 1;
  const karte = im_klima('Picture1');
  for (const el of deutsche_teile) verbergen(el, !deutschland);
  verbergen(im_klima('Klimaregionwahl2'), !(k.sichtbar === 2 || k.sichtbar === 3));
  verbergen(im_klima('Picture2'), k.sichtbar !== 2);
  verbergen(im_klima('Frame_Grafik'), k.sichtbar !== 3);
  verbergen(welt_scroll, k.sichtbar !== 3);
  verbergen(im_klima('picture3f'), k.sichtbar !== 3);
  if (k.sichtbar === 2 || k.sichtbar === 3) punkte_malen(stationskarten[k.sichtbar - 2], k.punkte);
  if (k.zoom) zoomklima_folgen(k);
  if (k.sichtbar === 3) {
    im_klima('Picture3').style.left = -k.HScroll1 / 15 + 'px';
    welt_scroll._abgleich({ wert: k.HScroll1, min: 0, max: k.HScroll1_max });
  }
  const bild = k.Picture1.slice(k.Picture1.indexOf('/') + 1).replace(/\.bmp$/i, '.png');
  if (karte.dataset.bild !== bild) {
    karte.style.backgroundImage = `url("Grafiken/${bild}")`;
    karte.dataset.bild = bild;
  }
  for (const n of ['Klimaregionwahl', 'Klimaregionwahl2']) liste_folgen(im_klima(n), k[n]);
  if (document.activeElement !== plz && plz.value !== k.plz) plz.value = k.plz;
}

function modell_el(name) {
  const l = nach_modell.get(name);
  return l ? l[0].el : null;
}

// What the desktop's planes follow by hand: the window plane's facade panels and buttons, the
// roof frame and house picture, the weights of the heat storage, the energy plane's list panel.
function ebenen_folgen(e, gueltig) {
  for (let i = 0; i < 4; ++i) {
    const knopf = nach_name.get(`Command_HR(${i})`);
    verbergen(knopf, (e.Command_HR[i] & 1) === 0);
    knopf.disabled = (e.Command_HR[i] & 2) === 0;
    const sb = modell_el(`E_Fenster.kfg_sb(${i})`);
    if (sb) verbergen(sb.parentElement, e.Frame_Visible[i] === 0);
  }
  const frame3 = nach_name.get('Frame3');
  if (frame3) frame3.classList.toggle('aus', e.Frame3_Enabled === 0);
  for (const el of frame3 ? frame3.querySelectorAll('input') : []) el.disabled = e.Frame3_Enabled === 0;
  const haus = nach_name.get('E_Geometrie').querySelector('[data-name="Picture3"]');
  const h = modell_el('E_Geometrie.h_sb');
  if (h) {
    const versatz = haus ? parseFloat(haus.style.top) : 190;
    stil(h, 'top', versatz + e.h_sb_Top / 15 + 'px');
    stil(h, 'height', e.h_sb_Height / 15 + 'px');
  }
  if (haus) {
    const datei = e.Picture3.slice(e.Picture3.indexOf('/') + 1).replace(/\.bmp$/i, '.png');
    if (haus.dataset.bild !== datei) {
      haus.style.backgroundImage = `url("Grafiken/${datei}")`;
      haus.dataset.bild = datei;
    }
  }
  const traeg = nach_name.get('Traegheit');
  if (traeg) {
    const gewichte = [...traeg.children].filter((c) => c.classList.contains('flaeche'));
    const werte = [[e.Gewicht1_Top, e.Gewicht1_Height], [e.Gewicht2_Top, e.Gewicht2_Height]];
    gewichte.slice(0, 2).forEach((g, i) => {
      stil(g, 'top', werte[i][0] / 15 + 'px');
      stil(g, 'height', werte[i][1] / 15 + 'px');
      verbergen(g, !gueltig);
    });
  }
  const panel = nach_name.get('Frame_Auswahl');
  if (panel) {
    verbergen(panel, e.Frame_Auswahl_Visible === 0);
    stil(panel, 'left', e.Frame_Auswahl_Left / 15 + 'px');
    stil(panel, 'top', e.Frame_Auswahl_Top / 15 + 'px');
    stil(panel, 'height', e.Frame_Auswahl_Height / 15 + 'px');
    for (let i = 1; i <= 9; ++i) {
      const s = zustand.steuer[`E_Energie.Label_Auswahl(${i})`];
      const el = modell_el(`E_Energie.Label_Auswahl(${i})`);
      if (el && s) {
        stil(el, 'top', s.oben / 15 + 'px');
        stil(el, 'height', s.hoehe / 15 + 'px');
      }
    }
  }
}

function zeichnen(feld) {
  const { el, w } = diagramme.get(feld);
  const befehle = programm.befehle(feld);
  const texte = programm.texte(feld);
  abspielen(el, befehle, texte, w.ort[2], w.ort[3], el.width / w.ort[2]);
}

// Runs a user action; the state and the charts follow. A fault's text is shown as a message.
export function handeln(aktion) {
  const gut = aktion();
  abgleichen();
  if (gut === false && zustand.fehler) {
    window.alert(zustand.fehler);
  }
  return gut;
}

function eingabe_zeigen(i) {
  eingabe = i;
  EINGABEN.forEach((n, k) => {
    nach_name.get(n).hidden = k !== i;
  });
  const knoepfe = ['Geometrie', 'Fenster', 'Daemmung', 'Gebaeude', 'Klima', 'Energie'];
  knoepfe.forEach((n, k) => { knopf_der_leiste('E_Menue', n).disabled = k === i; });
  handeln(() => programm.eingabe_zeigen(i));
}

function ausgabe_zeigen(i) {
  ausgabe = i;
  AUSGABEN.forEach((n, k) => {
    nach_name.get(n).hidden = k !== i;
  });
  const knoepfe = ['Uebersicht', 'Klima', 'Heizen', 'Kuehlen', 'Sankey'];
  knoepfe.forEach((n, k) => { knopf_der_leiste('A_Menue', n).disabled = k === i; });
  handeln(() => programm.ausgabe_zeigen(i));
}

function knopf_der_leiste(leiste, name) {
  return nach_name.get(leiste).querySelector(`[data-name="${name}"]`);
}

['Geometrie', 'Fenster', 'Daemmung', 'Gebaeude', 'Klima', 'Energie'].forEach((n, i) => {
  knopf_der_leiste('E_Menue', n).addEventListener('click', () => eingabe_zeigen(i));
});
['Uebersicht', 'Klima', 'Heizen', 'Kuehlen', 'Sankey'].forEach((n, i) => {
  knopf_der_leiste('A_Menue', n).addEventListener('click', () => ausgabe_zeigen(i));
});
for (let i = 0; i < 4; ++i) {
  nach_name.get(`Command_HR(${i})`).addEventListener('click', () => handeln(() => programm.klicken(`Command_HR(${i})`)));
}
for (const n of ['Command1', 'Command2', 'Command3', 'Frame_Auswahl']) {
  nach_name.get(n)?.addEventListener('click', (e) => {
    if (n !== 'Frame_Auswahl' || e.target === e.currentTarget) handeln(() => programm.klicken(n));
  });
}
for (let i = 1; i <= 9; ++i) {
  modell_el(`E_Energie.Label_Auswahl(${i})`)?.addEventListener('click', () => handeln(() => programm.klicken(`Label_Auswahl(${i})`)));
}

// The month buttons of the overview and the marker on the chosen one.
function monat_waehlen(m) {
  programm.monat(m);
  const knopf = nach_name.get(`Monatsbutton(${m})`);
  const marke = nach_name.get('AktiverMonat');
  marke.style.left = knopf.style.left;
  marke.style.width = knopf.style.width;
  const innen = nach_name.get('AktiverMonat1');
  innen.textContent = knopf.textContent;
  abgleichen();
}
for (let m = 1; m <= 12; ++m) {
  nach_name.get(`Monatsbutton(${m})`).addEventListener('click', () => monat_waehlen(m));
}
diagramme.get('Temperaturen').el.addEventListener('click', zoom_oeffnen);

// Files the browser way: a project opened from the disk, saved as a download.
function herunterladen(name, daten, typ) {
  const a = document.createElement('a');
  a.href = URL.createObjectURL(new Blob([daten], { type: typ }));
  a.download = name;
  document.body.append(a);
  a.click();
  a.remove();
  setTimeout(() => URL.revokeObjectURL(a.href), 10000);
}

const dateiwahl = document.getElementById('dateiwahl');
dateiwahl.addEventListener('change', async () => {
  const datei = dateiwahl.files[0];
  if (!datei) return;
  const pfad = '/projekte/' + datei.name.replace(/[/\\]/g, '_');
  FS.writeFile(pfad, new Uint8Array(await datei.arrayBuffer()));
  dateiwahl.value = '';
  handeln(() => programm.oeffnen(pfad));
});

export function speichern(unter) {
  let pfad = '';
  if (unter || !zustand.titel.includes('.vel')) {
    const vorschlag = sprache === 'e' ? 'project.vel' : 'projekt.vel';
    const name = window.prompt(sprache === 'e' ? 'File name:' : 'Dateiname:', vorschlag);
    if (!name) return null;
    pfad = '/projekte/' + (name.toLowerCase().endsWith('.vel') ? name : name + '.vel').replace(/[/\\]/g, '_');
    unter = true;
  }
  let geschrieben = '';
  handeln(() => {
    geschrieben = programm.speichern(unter, pfad);
    return geschrieben !== '';
  });
  if (!geschrieben) return null;
  const bytes = FS.readFile(geschrieben);
  herunterladen(geschrieben.slice(geschrieben.lastIndexOf('/') + 1), bytes, 'application/octet-stream');
  return bytes;
}

function latin1(text) {
  // The report's file form: every character as one byte, as the desktop writes it.
  const b = new Uint8Array(text.length);
  for (let i = 0; i < text.length; ++i) b[i] = text.charCodeAt(i) & 0xff;
  return b;
}

const befehle = {
  mnuFileNeu: () => handeln(() => programm.neu()),
  mnuFileOeffnen: () => dateiwahl.click(),
  mnuFileSpeichern: () => speichern(false),
  mnuFileunter: () => speichern(true),
  mnuBerechnungsergebnisseExportieren: () => herunterladen('report.rtf', latin1(programm.report()), 'application/rtf'),
  mnuTemperaturExport: () => herunterladen(sprache === 'e' ? 'temperatures.txt' : 'temperaturen.txt', programm.temperaturen(), 'text/plain'),
  mnuWinGeo: () => eingabe_zeigen(0),
  mnuWinFens: () => eingabe_zeigen(1),
  mnuWinDaem: () => eingabe_zeigen(2),
  mnuWinGeb: () => eingabe_zeigen(3),
  mnuWinKlima: () => eingabe_zeigen(4),
  mnuWinEnerg: () => eingabe_zeigen(5),
  mnuSpracheDeutsch: () => sprache_waehlen('d'),
  mnuSpracheEnglisch: () => sprache_waehlen('e'),
  mnuQuestHilfe: () => hilfe(true),
  mnuQuestInfo: () => hilfe(true),
};
// Printing and the climate import need the desktop program.
const NUR_DESKTOP = new Set(['mnuFileDrucken', 'mnuKlimaImportieren', 'mnuFileExit']);

// The language of the page, remembered in the browser; the page starts anew in it, as the
// desktop does at its next start.
function sprache_waehlen(s) {
  if (s === sprache) return;
  if (zustand.geaendert === 1 && !window.confirm(sprache === 'e'
    ? 'The page starts anew in the other language; unsaved changes are lost. Continue?'
    : 'Die Seite startet in der anderen Sprache neu; nicht gespeicherte Änderungen gehen verloren. Weiter?')) {
    return;
  }
  localStorage.setItem('velmaris.sprache', s);
  location.reload();
}

function hilfe(zeigen) {
  const h = document.getElementById('hilfe');
  h.hidden = !zeigen;
  h.querySelector(`[lang="${sprache === 'e' ? 'en' : 'de'}"]`).hidden = false;
}
document.getElementById('hilfe-zu').addEventListener('click', () => hilfe(false));

// The menu bar with its drop-down lists.
const leiste = document.getElementById('menue');
function menue_bauen(eintraege, ziel, oben) {
  for (const m of eintraege) {
    if (NUR_DESKTOP.has(m.name)) continue;
    const knopf = document.createElement('button');
    knopf.textContent = ohne_kuerzel(m.text[sprache]);
    knopf.dataset.name = m.name;
    if (m.name === 'mnuSpracheDeutsch' || m.name === 'mnuSpracheEnglisch') {
      knopf.classList.toggle('gewaehlt', (m.name === 'mnuSpracheEnglisch') === (sprache === 'e'));
    }
    const punkt = document.createElement('div');
    punkt.className = oben ? 'oben' : 'eintrag';
    punkt.append(knopf);
    if (m.eintraege) {
      const liste = document.createElement('div');
      liste.className = 'liste';
      menue_bauen(m.eintraege, liste, false);
      punkt.append(liste);
      knopf.addEventListener('click', (e) => {
        e.stopPropagation();
        const offen = punkt.classList.contains('offen');
        if (oben) leiste.querySelectorAll('.offen').forEach((o) => o.classList.remove('offen'));
        punkt.classList.toggle('offen', !offen);
      });
    } else {
      knopf.addEventListener('click', () => {
        leiste.querySelectorAll('.offen').forEach((o) => o.classList.remove('offen'));
        befehle[m.name]?.();
      });
    }
    ziel.append(punkt);
  }
}
menue_bauen(layout.menue, leiste, true);
document.addEventListener('click', () => leiste.querySelectorAll('.offen').forEach((o) => o.classList.remove('offen')));

// The whole window scaled to the browser's, keeping its proportions.
function skala() {
  return Number(fenster.dataset.skala || 1);
}
function einpassen() {
  const b = layout.breite, h = layout.hoehe + MENUE_HOEHE;
  const s = Math.min(window.innerWidth / b, window.innerHeight / h);
  const alt = skala();
  fenster.dataset.skala = s;
  fenster.style.transform = `scale(${s})`;
  fenster.style.left = Math.max(0, (window.innerWidth - b * s) / 2) + 'px';
  if (Math.abs(alt - s) > 1e-6) {
    for (const [feld, { el, w }] of diagramme) {
      el.width = Math.round(w.ort[2] * massstab());
      el.height = Math.round(w.ort[3] * massstab());
      if (gezeichnet.has(feld)) zeichnen(feld);
    }
  }
}
window.addEventListener('resize', einpassen);
einpassen();

const gestartet = programm.starten();
eingabe_zeigen(0);
ausgabe_zeigen(0);
monat_waehlen(zustand.monat);
if (!gestartet && zustand.fehler) window.alert(zustand.fehler);
document.body.classList.add('bereit');
performance.mark('velmaris-bereit');

// For the browser tests and the benchmark: the program and the page's own steps.
window.velmaris = { modul, programm, handeln, abgleichen, eingabe_zeigen, ausgabe_zeigen, monat_waehlen, speichern, FS, geladen, zustand: () => zustand, gezeichnet };
