// velmaris-cli compiled to WebAssembly, run by Node.js: the same commands, output and exit
// statuses as the native program.
import { createRequire } from 'node:module';

const require = createRequire(import.meta.url);
require('./app/velmaris-cli.js');
