// The browser build's command-line program against the native one: the same exit status, the
// same messages and, field by field, the same JSON for every project of the case library and the
// new project. Floats agree within a rounding; integers, texts and the field order exactly.
//   node vergleich.mjs NATIVE_CLI WEB_CLI_MJS FALLPROJEKTE
import { spawnSync } from 'node:child_process';
import { mkdtempSync, readdirSync, readFileSync, rmSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join } from 'node:path';

const [nativ, web, fallprojekte] = process.argv.slice(2);
if (!fallprojekte) {
    console.error('usage: node vergleich.mjs NATIVE_CLI WEB_CLI_MJS FALLPROJEKTE');
    process.exit(2);
}

const ordner = mkdtempSync(join(tmpdir(), 'velmaris-web-'));
const fehler = [];
let werte = 0;
let nicht_bitgleich = 0;

function ausfuehren(befehl, args) {
    const r = spawnSync(befehl, args, { encoding: 'utf8', maxBuffer: 1 << 28 });
    return { status: r.status, stdout: r.stdout, stderr: r.stderr };
}

// Most numbers are written alike. The hourly series differ in rare hours in the last place: the
// sun's incidence factors go through the C library's sine and cosine, whose last bit differs
// between glibc and the browser's library, and the hour carries it into its room temperature.
// A number agrees when both name the same 32-bit float or differ by at most a millionth of the
// largest value of their series (eight units in the last place of a float).
const TOLERANZ = 1e-6;
let groesste_abweichung = 0;
function gleiche_zahl(a, b, massstab) {
    if (a === b) return true;
    nicht_bitgleich++;
    if (Math.fround(a) === Math.fround(b)) return true;
    const abweichung = Math.abs(a - b) / Math.max(Math.abs(a), Math.abs(b), massstab);
    groesste_abweichung = Math.max(groesste_abweichung, abweichung);
    return abweichung <= TOLERANZ;
}

function vergleichen(a, b, pfad, massstab = 0) {
    if (typeof a !== typeof b || Array.isArray(a) !== Array.isArray(b) || (a === null) !== (b === null)) {
        fehler.push(`${pfad}: ${JSON.stringify(a)} / ${JSON.stringify(b)}`);
        return;
    }
    if (Array.isArray(a)) {
        if (a.length !== b.length) {
            fehler.push(`${pfad}: ${a.length} / ${b.length} entries`);
            return;
        }
        const groesste = a.reduce((m, x) => (typeof x === 'number' ? Math.max(m, Math.abs(x)) : m), 0);
        a.forEach((x, i) => vergleichen(x, b[i], `${pfad}[${i}]`, groesste));
    } else if (a !== null && typeof a === 'object') {
        const ka = Object.keys(a);
        const kb = Object.keys(b);
        if (ka.join() !== kb.join()) {
            fehler.push(`${pfad}: fields ${ka.join()} / ${kb.join()}`);
            return;
        }
        ka.forEach((k) => vergleichen(a[k], b[k], `${pfad}.${k}`));
    } else {
        werte++;
        const gleich = typeof a === 'number' ? gleiche_zahl(a, b, massstab) : a === b;
        if (!gleich) fehler.push(`${pfad}: ${JSON.stringify(a)} / ${JSON.stringify(b)}`);
    }
}

try {
    const erzeugt = ausfuehren(fallprojekte, [ordner]);
    if (erzeugt.status !== 0) throw new Error(`${fallprojekte}: ${erzeugt.stderr}`);
    const projekte = readdirSync(ordner).filter((n) => n.endsWith('.vel')).sort();
    // A project cut short after its first ten lines.
    const kurz = join(ordner, 'kurz.vel');
    writeFileSync(kurz, readFileSync(join(ordner, projekte[0]), 'latin1').split('\r\n').slice(0, 10).join('\r\n'), 'latin1');

    const laeufe = [['calc', '--new'], ['calc', '--new', '--klima', ordner, '--hourly']];
    for (const name of projekte) {
        const datei = join(ordner, name);
        laeufe.push(['calc', datei, '--klima', ordner], ['calc', datei, '--klima', ordner, '--hourly']);
    }
    laeufe.push(
        ['calc', join(ordner, projekte[0]), '--klima', ordner, '--sprache', 'e'],
        ['calc'],
        ['calc', '--new', '--bogus'],
        ['calc', join(ordner, 'fehlt.vel'), '--klima', ordner],
        ['calc', kurz, '--klima', ordner],
        ['calc', join(ordner, projekte[0]), '--klima', join(ordner, 'keine_stationen')],
    );

    for (const args of laeufe) {
        const n = ausfuehren(nativ, args);
        const w = ausfuehren(process.execPath, [web, ...args]);
        const wie = args.join(' ').replaceAll(ordner, 'DIR');
        if (n.status !== w.status) fehler.push(`${wie}: exit status ${n.status} / ${w.status}`);
        if (n.stderr !== w.stderr) fehler.push(`${wie}: messages ${JSON.stringify(n.stderr)} / ${JSON.stringify(w.stderr)}`);
        if (n.status === 0) {
            vergleichen(JSON.parse(n.stdout), JSON.parse(w.stdout), wie);
        } else if (n.stdout !== w.stdout) {
            fehler.push(`${wie}: output differs`);
        }
    }
    console.log(`${laeufe.length} runs, ${werte} values compared, ${nicht_bitgleich} written differently, ` +
        `largest deviation ${groesste_abweichung.toExponential(2)} of its series`);
} finally {
    rmSync(ordner, { recursive: true, force: true });
}

if (fehler.length > 0) {
    console.error(fehler.slice(0, 50).join('\n'));
    console.error(`${fehler.length} differences between the native and the browser build`);
    process.exit(1);
}
