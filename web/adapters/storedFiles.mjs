// Named files in a folder of the origin's private file system, all of them open from the start, so that they can be
// read and written at once: its handles can only be had by waiting. Each has a head that says its name; those without
// one are room for new files. What has two files of one name, a program that was killed while it replaced one, goes by
// the later.
//
// SPDX-License-Identifier: MIT

const headSize = 4096;
const mark = 0x4d69766f;
const fixedSize = 20; // mark, size of the name, number, and behind the name a checksum
const room = 8; // files that may be made at once

const done = 0, full = 1, failed = 2; // see Imports.h
const none = -1, noRoom = -2;

const statusOf = (error) => (error.name === 'QuotaExceededError' ? full : failed);

export class StoredFiles {
  #folder;
  #slots = [];
  #free = [];
  #byName = new Map();
  #last = 0; // number of a head
  #made = 0;
  #making;

  /** Opens all files of a folder. While another program has one of them it is tried again for some time. */
  static async open(folder, { patience = 3000 } = {}) {
    const files = new StoredFiles(folder);
    try {
      for await (const file of folder.values()) if (file.kind === 'file') files.#take(await handleOf(file, patience));
      await files.makeRoom();
    } catch (error) {
      files.close();
      throw error;
    }
    return files;
  }

  constructor(folder) {
    this.#folder = folder;
  }

  /** To be called now and then, while nothing else is done: files cannot be made without waiting. */
  async makeRoom() {
    this.#making ??= this.#fill().finally(() => (this.#making = undefined));
    await this.#making;
  }

  async #fill() {
    const taken = new Set();
    for await (const file of this.#folder.values()) taken.add(file.name);
    while (this.#free.length < room) {
      while (taken.has(String(this.#made))) ++this.#made;
      const file = await this.#folder.getFileHandle(String(this.#made++), { create: true });
      this.#take(await handleOf(file, 0));
    }
  }

  #take(handle) {
    const slot = this.#slots.push(handle) - 1;
    const head = new Uint8Array(headSize);
    const { name, number } = readHead(head.subarray(0, handle.read(head, { at: 0 }))) ?? {};
    if (name === undefined) return void this.#free.push(slot);
    this.#last = Math.max(this.#last, number);
    const other = this.#byName.get(name);
    const isLater = other === undefined || number > other.number;
    if (isLater) this.#byName.set(name, { slot, number });
    if (other !== undefined) this.#erase(isLater ? other.slot : slot);
  }

  #erase(slot) {
    const handle = this.#slots[slot];
    handle.truncate(0);
    handle.flush();
    this.#free.push(slot);
  }

  #writeHead(slot, name) {
    const number = ++this.#last;
    writeAll(this.#slots[slot], headOf(name, number), 0);
    this.#slots[slot].flush();
    this.#byName.set(name, { slot, number });
  }

  names() {
    return [...this.#byName.keys()];
  }

  /** A number for the file, below 0 where there is none, or none can be made. */
  open(name, isMade) {
    const known = this.#byName.get(name);
    if (known) return known.slot;
    if (!isMade || this.#free.length === 0) return none;
    const slot = this.#free.pop();
    try {
      this.#writeHead(slot, name);
      return slot;
    } catch (error) {
      this.#giveUp(slot);
      return statusOf(error) === full ? noRoom : none;
    }
  }

  size(slot) {
    return Math.max(0, this.#slots[slot].getSize() - headSize);
  }

  /** How many bytes there were; below 0 where reading failed. */
  read(slot, at, into) {
    try {
      return this.#slots[slot].read(into, { at: headSize + at });
    } catch {
      return none;
    }
  }

  write(slot, at, bytes) {
    return attempt(() => writeAll(this.#slots[slot], bytes, headSize + at));
  }

  truncate(slot, size) {
    return attempt(() => this.#slots[slot].truncate(headSize + size));
  }

  flush(slot) {
    return attempt(() => this.#slots[slot].flush());
  }

  remove(name) {
    const known = this.#byName.get(name);
    if (!known) return done;
    return attempt(() => {
      this.#byName.delete(name);
      this.#erase(known.slot);
    });
  }

  /** Whole or not at all. */
  replace(name, bytes) {
    if (this.#free.length === 0) return failed;
    const before = this.#byName.get(name);
    const slot = this.#free.pop();
    const status = attempt(() => {
      const handle = this.#slots[slot];
      handle.truncate(0);
      writeAll(handle, bytes, headSize);
      handle.flush();
      this.#writeHead(slot, name);
    });
    if (status !== done) {
      if (before) this.#byName.set(name, before);
      this.#giveUp(slot);
    } else if (before) {
      attempt(() => this.#erase(before.slot)); // or else it goes when all are opened again
    }
    return status;
  }

  #giveUp(slot) {
    attempt(() => this.#slots[slot].truncate(0));
    this.#free.push(slot);
  }

  close() {
    for (const handle of this.#slots) handle.close();
    this.#slots = [];
  }
}

/** The content of a file, which another program may have open: what was written last is as good as any. */
export async function readOnce(folder, name) {
  let found;
  for await (const file of folder.values()) {
    const content = await file.getFile();
    const head = readHead(new Uint8Array(await content.slice(0, headSize).arrayBuffer()));
    if (head?.name === name && !(found?.number > head.number)) found = { number: head.number, content };
  }
  return found && new Uint8Array(await found.content.slice(headSize).arrayBuffer());
}

async function handleOf(file, patience) {
  const until = performance.now() + patience;
  for (;;) {
    try {
      return await file.createSyncAccessHandle();
    } catch (error) {
      if (error.name !== 'NoModificationAllowedError' || performance.now() >= until) throw error;
      await new Promise((resolve) => setTimeout(resolve, 50));
    }
  }
}

function attempt(act) {
  try {
    act();
    return done;
  } catch (error) {
    return statusOf(error);
  }
}

// Where there is no more room some browsers throw, and others write a part.
function writeAll(handle, bytes, at) {
  if (handle.write(bytes, { at }) < bytes.length) throw new DOMException('the disk is full', 'QuotaExceededError');
}

function headOf(name, number) {
  const text = new TextEncoder().encode(name);
  const head = new Uint8Array(headSize);
  const view = new DataView(head.buffer);
  view.setUint32(0, mark);
  view.setUint32(4, text.length);
  view.setFloat64(8, number);
  head.set(text, 16);
  view.setUint32(16 + text.length, checksum(head.subarray(0, 16 + text.length)));
  return head;
}

function readHead(head) {
  if (head.length < fixedSize) return undefined;
  const view = new DataView(head.buffer, head.byteOffset, head.length);
  const size = view.getUint32(4);
  if (view.getUint32(0) !== mark || size > head.length - fixedSize) return undefined;
  if (view.getUint32(16 + size) !== checksum(head.subarray(0, 16 + size))) return undefined;
  return { name: new TextDecoder().decode(head.subarray(16, 16 + size)), number: view.getFloat64(8) };
}

// FNV-1a: whether a head was written to its end, not whether somebody forged it.
function checksum(bytes) {
  return bytes.reduce((sum, byte) => Math.imul(sum ^ byte, 0x01000193) >>> 0, 0x811c9dc5);
}
