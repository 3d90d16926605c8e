// A folder with the handles of the origin's private file system, in memory. It knows what would be left after the
// machine lost its power, can be full, and remembers how it was at each moment.
//
// SPDX-License-Identifier: MIT

const fault = (name, message) => new DOMException(message, name);

class MemoryFile {
  kind = 'file';
  present = Buffer.alloc(0);
  kept = Buffer.alloc(0); // what was flushed
  isOpen = false;

  constructor(folder, name) {
    this.folder = folder;
    this.name = name;
  }

  async getFile() {
    return new Blob([this.present]);
  }

  async createSyncAccessHandle() {
    if (this.isOpen) throw fault('NoModificationAllowedError', 'another one has it');
    this.isOpen = true;
    return new MemoryHandle(this);
  }
}

class MemoryHandle {
  #file;

  constructor(file) {
    this.#file = file;
  }

  getSize() {
    return this.#file.present.length;
  }

  read(into, { at }) {
    const bytes = this.#file.present.subarray(at, at + into.length);
    into.set(bytes);
    return bytes.length;
  }

  write(bytes, { at }) {
    this.#file.folder.step(true);
    if (this.getSize() < at + bytes.length) this.#resize(at + bytes.length);
    this.#file.present.set(bytes, at);
    return bytes.length;
  }

  truncate(size) {
    this.#file.folder.step(size > this.getSize());
    this.#resize(size);
  }

  flush() {
    this.#file.folder.step(false);
    this.#file.kept = Buffer.from(this.#file.present);
  }

  close() {
    this.#file.isOpen = false;
  }

  #resize(size) {
    const resized = Buffer.alloc(size);
    this.#file.present.copy(resized);
    this.#file.present = resized;
  }
}

export class MemoryFolder {
  files = new Map();
  steps = 0;
  fullFrom = Infinity; // the first of the steps that take room and find none
  onStep = () => {};

  step(takesRoom) {
    this.onStep();
    ++this.steps;
    if (takesRoom && this.steps >= this.fullFrom) throw fault('QuotaExceededError', 'full');
  }

  async *values() {
    yield* [...this.files.values()];
  }

  async getFileHandle(name, { create = false } = {}) {
    if (!this.files.has(name) && create) this.files.set(name, new MemoryFile(this, name));
    return this.files.get(name);
  }

  /** A folder as it would be found by whoever starts next: after the program was killed, or after the power was lost. */
  after({ powerLoss = false } = {}) {
    const next = new MemoryFolder();
    for (const [name, { present, kept }] of this.files) {
      const file = new MemoryFile(next, name);
      file.present = file.kept = Buffer.from(powerLoss ? kept : present);
      next.files.set(name, file);
    }
    return next;
  }
}
