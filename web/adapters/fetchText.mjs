// Requests of the app, by the browser.
//
// SPDX-License-Identifier: MIT

const timeLimit = 60_000; // milliseconds, for a whole request
const sizeLimit = 4 << 20; // bytes of an answer

/** The body of an answer as text. Throws an Error with the reason where there is none. */
export async function fetchText(url, signal) {
  const given = new AbortController();
  const stop = (reason) => given.abort(new Error(reason));
  const timer = setTimeout(stop, timeLimit, 'the server did not answer in time');
  const onAbort = () => stop('the request was stopped');
  signal.addEventListener('abort', onAbort);
  try {
    const response = await fetch(url, {
      signal: given.signal, cache: 'no-store', credentials: 'omit', referrerPolicy: 'no-referrer',
    });
    if (!response.ok) throw new Error(`the server answered ${response.status}`);
    return await textOf(response);
  } finally {
    clearTimeout(timer);
    signal.removeEventListener('abort', onAbort);
  }
}

async function textOf(response) {
  const decoder = new TextDecoder();
  let text = '', size = 0;
  if (!response.body) return text;
  const reader = response.body.getReader();
  for (;;) {
    const { done, value } = await reader.read();
    if (done) return text + decoder.decode();
    size += value.length;
    if (size > sizeLimit) {
      await reader.cancel();
      throw new Error(`the answer is larger than ${sizeLimit} bytes`);
    }
    text += decoder.decode(value, { stream: true });
  }
}
