// SPDX-License-Identifier: MIT
// One tab has the database of a history. Another one says so, and takes it over when it is asked to.

const answersWithin = 3000;

export interface Holding {
  /// `lose` is called when another tab wants the data: it lets go of the database, and tells so.
  whenWanted: (lose: (letGo: () => void) => void) => void;
}

/// Resolves with a holding once this tab has the data; with nothing where another one has it.
export async function holdData(history: string): Promise<Holding | null> {
  return request(history, { ifAvailable: true });
}

/// Has the tab that holds the data let go of it. One that does not answer, asleep or frozen, is not waited for.
export async function takeData(history: string): Promise<Holding> {
  new BroadcastChannel(nameOf(history)).postMessage("letGo");
  const answer = await request(history, { signal: AbortSignal.timeout(answersWithin) }).catch(() => null);
  return answer ?? (await request(history, { steal: true }))!;
}

const nameOf = (history: string) => `mivo-${history}`;

function request(history: string, options: LockOptions): Promise<Holding | null> {
  return new Promise((resolve, reject) => {
    let letGo: () => void = () => {};
    let lose: (letGo: () => void) => void = (done) => done();
    const channel = new BroadcastChannel(nameOf(history));
    const onWanted = () => {
      channel.close();
      lose(letGo);
    };
    navigator.locks
      .request(nameOf(history), options, (lock) => {
        if (!lock) return resolve(null);
        channel.onmessage = onWanted;
        resolve({ whenWanted: (told) => (lose = told) });
        return new Promise<void>((done) => (letGo = done));
      })
      .catch((error: unknown) => {
        reject(error);
        onWanted(); // stolen
      });
  });
}
