// node catalogues.mjs CATALOGUE.mo: writes a gettext catalogue as a JavaScript module, whose default export has `texts`, by
// the English ones (those with a context behind it and U+0004; lists where a count decides), and `form`, the place in
// such a list for a count.
//
// SPDX-License-Identifier: MIT

import { readFileSync } from 'node:fs';

const file = readFileSync(process.argv[2]);
const [, , count, keys, values] = new Uint32Array(file.buffer, file.byteOffset, 5);
const string = (table, index) => {
  const [size, at] = [0, 4].map((field) => file.readUInt32LE(table + 8 * index + field));
  return file.toString('utf8', at, at + size);
};

const texts = {};
for (let index = 0; index < count; ++index) {
  const [key, many] = string(keys, index).split('\0');
  const value = string(values, index);
  texts[key] = many === undefined ? value : value.split('\0');
}
const rule = /plural=([^;\n]+)/.exec(texts[''])[1];
if (!/^[n\s\d%=!<>&|?:()]+$/.test(rule)) throw new Error(`${process.argv[2]}: expected a plural rule, found "${rule}"`);
delete texts[''];

process.stdout.write(`export default { form: (n) => Number(${rule}), texts: ${JSON.stringify(texts, null, 1)} };\n`);
