// How JavaScript and a WebAssembly module hand each other texts and bytes; Exchange.h is the other half.
//
// SPDX-License-Identifier: MIT

const encoder = new TextEncoder();
const decoder = new TextDecoder();
const isRefusedByte = 0xff;

/** An instance of a module. `imports` is called with it and gives the functions of the module "mivo". */
export class Exchange {
  #exports;

  constructor(module, imports) {
    this.#exports = new WebAssembly.Instance(module, { mivo: imports(this), ...system(this, module) }).exports;
    this.#exports._initialize();
  }

  get exports() {
    return this.#exports;
  }

  bytes(address, size) {
    return new Uint8Array(this.#exports.memory.buffer, address, size);
  }

  read(address, size) {
    return decoder.decode(this.bytes(address, size));
  }

  /** Puts an answer, a text or bytes, where an import is to; whether there is one. */
  give(into, answer) {
    if (answer === undefined) return 0;
    const bytes = typeof answer === 'string' ? encoder.encode(answer) : answer;
    const address = this.#exports.room(into, bytes.length);
    this.bytes(address, bytes.length).set(bytes);
    return 1;
  }

  /** What a function answers with: a text. Arguments are numbers, texts and bytes. Throws an Error for a refusal. */
  call(name, ...given) {
    const [address, size, isRefused] = this.#answer(name, given);
    const text = this.read(address, size);
    if (isRefused) throw new Error(text);
    return text;
  }

  /** The same for bytes. */
  callForBytes(name, ...given) {
    const [address, size, isRefused] = this.#answer(name, given);
    if (isRefused) throw new Error(this.read(address, size));
    return this.bytes(address, size).slice();
  }

  #answer(name, given) {
    const kept = [];
    const put = (value) => {
      if (typeof value === 'number') return [value];
      const bytes = typeof value === 'string' ? encoder.encode(value) : value;
      const address = this.#exports.allocate(bytes.length || 1);
      this.bytes(address, bytes.length).set(bytes);
      kept.push(address);
      return [address, bytes.length];
    };
    const answer = this.#exports[name](...given.flatMap(put));
    for (const address of kept) this.#exports.release(address);
    const [address, size, isRefused] = new Uint32Array(this.#exports.memory.buffer, answer, 3);
    return [address, size, (isRefused & isRefusedByte) !== 0];
  }
}

// What a C library asks of a system: the clock, randomness, and somewhere to say what went wrong. All else, files and
// arguments, nothing of the modules calls.
function system(exchange, module) {
  const done = 0, notImplemented = 52, standardOutput = 1;
  const view = () => new DataView(exchange.exports.memory.buffer);
  const known = {
    clock_time_get: (clock, precision, into) => {
      view().setBigUint64(into, BigInt(Math.round(Date.now() * 1e6)), true);
      return done;
    },
    random_get: (address, size) => {
      globalThis.crypto.getRandomValues(exchange.bytes(address, size));
      return done;
    },
    fd_write: (stream, pieces, count, written) => {
      const all = new Uint32Array(exchange.exports.memory.buffer, pieces, 2 * count);
      let text = '', size = 0;
      for (let piece = 0; piece < all.length; piece += 2) {
        text += exchange.read(all[piece], all[piece + 1]);
        size += all[piece + 1];
      }
      if (text.trim()) console[stream === standardOutput ? 'log' : 'error'](text.trimEnd());
      view().setUint32(written, size, true);
      return done;
    },
  };
  const functions = {};
  for (const { module: from, name, kind } of WebAssembly.Module.imports(module))
    if (from !== 'mivo' && kind === 'function') (functions[from] ??= {})[name] = known[name] ?? (() => notImplemented);
  return functions;
}
