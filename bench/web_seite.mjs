// The browser page's speed in headless Chromium, from localhost: one scroll step (handler, whole
// recalculation, redraw of the visible charts), the module's bare recalculation against the
// native alles_berechnen on the new project, the time from navigation to the first drawn
// overview, and the code the page transfers, compressed. Prints the figures; a benchmark, not a
// test.
//   node bench/web_seite.mjs [SITE] [BENCH_ALLES_BERECHNEN]
import { spawn, spawnSync } from 'node:child_process';
import { existsSync, readFileSync } from 'node:fs';
import { createRequire } from 'node:module';
import { dirname, join } from 'node:path';
import { fileURLToPath } from 'node:url';
import { gzipSync } from 'node:zlib';

const wurzel = join(dirname(fileURLToPath(import.meta.url)), '..');
const site = process.argv[2] || join(wurzel, 'build/web/site');
const nativ_bench = process.argv[3] || join(wurzel, 'build/test/bench/bench_alles_berechnen');
const require = createRequire(join(wurzel, 'tests/web/package.json'));
const puppeteer = require('puppeteer-core');

const median = (l) => {
  const s = [...l].sort((a, b) => a - b);
  return s.length % 2 ? s[(s.length - 1) / 2] : (s[s.length / 2 - 1] + s[s.length / 2]) / 2;
};

const code = ['velmaris-web.wasm', 'velmaris-web.mjs', 'seite.mjs', 'leinwand.mjs', 'velmaris.css',
  'index.html', 'layout.json'];
let roh = 0, gepackt = 0;
for (const n of code) {
  const d = readFileSync(join(site, n));
  roh += d.length;
  gepackt += gzipSync(d, { level: 9 }).length;
}

const port = 8950 + Math.floor(Math.random() * 40);
const server = spawn('python3', ['-m', 'http.server', String(port), '--bind', '127.0.0.1'], { cwd: site, stdio: 'ignore' });
await new Promise((r) => setTimeout(r, 500));
const browser = await puppeteer.launch({ executablePath: '/usr/bin/chromium', headless: true, args: ['--no-sandbox', '--disable-gpu'] });
try {
  const seite = await browser.newPage();
  await seite.setViewport({ width: 1366, height: 768 });
  // The server may take a moment to listen.
  for (let versuch = 0; ; ++versuch) {
    try {
      await seite.goto(`http://127.0.0.1:${port}/`, { waitUntil: 'load' });
      break;
    } catch (e) {
      if (versuch > 20) throw e;
      await new Promise((r) => setTimeout(r, 250));
    }
  }
  const starts = [];
  for (let i = 0; i < 5; ++i) {
    await seite.goto(`http://127.0.0.1:${port}/`, { waitUntil: 'load' });
    await seite.waitForSelector('body.bereit');
    starts.push(await seite.evaluate(() => performance.getEntriesByName('velmaris-bereit')[0].startTime));
  }
  const r = await seite.evaluate(() => {
    const v = window.velmaris;
    const schritte = [];
    const vor = document.querySelector('[data-modell="E_Geometrie.l_sb"] .pfeil:last-child');
    const zurueck = document.querySelector('[data-modell="E_Geometrie.l_sb"] .pfeil:first-child');
    for (let i = 0; i < 200; ++i) {
      const t = performance.now();
      (i % 2 ? zurueck : vor).click();
      schritte.push(performance.now() - t);
    }
    // The bare calculation on a copy of the page's record, as the native benchmark runs it; and
    // the page's own recalculation, which also redraws the charts shown.
    const probe = new v.modul.Rechenprobe(v.programm);
    const rechnen = [], seite = [];
    for (let i = 0; i < 5; ++i) {
      if (!probe.rechnen()) throw new Error('the recalculation of the copy stopped short');
    }
    // The browser's clock is coarse (0.1 ms): each sample times ten runs.
    for (let i = 0; i < 50; ++i) {
      const t = performance.now();
      for (let k = 0; k < 10; ++k) probe.rechnen();
      rechnen.push((performance.now() - t) / 10);
    }
    probe.delete();
    for (let i = 0; i < 50; ++i) {
      const t = performance.now();
      v.programm.berechnen();
      seite.push(performance.now() - t);
    }
    return { schritte, rechnen, seite };
  });
  let nativ = NaN;
  if (existsSync(nativ_bench)) {
    const n = spawnSync(nativ_bench, ['--benchmark_filter=BM_alles_berechnen/0$', '--benchmark_format=json', '--benchmark_repetitions=5'], { encoding: 'utf8' });
    const j = JSON.parse(n.stdout);
    const m = j.benchmarks.find((b) => b.aggregate_name === 'median');
    nativ = m.real_time * (m.time_unit === 'ms' ? 1 : m.time_unit === 'us' ? 1e-3 : 1e-6);
  }
  const rechnen = median(r.rechnen);
  console.log(`scroll step (handler, recalculation, redraw), median of 200: ${median(r.schritte).toFixed(2)} ms, fastest ${Math.min(...r.schritte).toFixed(2)} ms (limit 4 ms)`);
  console.log(`module recalculation alles_berechnen, median of 50 x 10:   ${rechnen.toFixed(2)} ms`);
  console.log(`page recalculation with the charts shown redrawn, median:  ${median(r.seite).toFixed(2)} ms`);
  console.log(`machine load (1 min): ${(await import('node:os')).loadavg()[0].toFixed(1)} on ${(await import('node:os')).cpus().length} cores`);
  console.log(`native alles_berechnen, median:                             ${nativ.toFixed(2)} ms; ratio ${(rechnen / nativ).toFixed(2)} (limit 2)`);
  console.log(`navigation to the first drawn overview, median of 5:        ${median(starts).toFixed(0)} ms (limit 1500 ms)`);
  console.log(`code transferred (wasm, JS, CSS, page, layout): ${(roh / 1024).toFixed(0)} KiB, gzip ${(gepackt / 1024).toFixed(0)} KiB (limit 2 MB)`);
} finally {
  await browser.close();
  server.kill();
}
