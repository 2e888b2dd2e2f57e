// A part of the page whose content the router is asked for. Each has words for what it waits for and for what went
// wrong, with a button to try again.
import { latest } from "./api.js";
import { hideNotice, showNotice } from "./dom.js";

const patience = 300; // milliseconds without a word

// A function that asks anew and shows what comes: `ask` gets its arguments and returns a promise, `show` the answer,
// and `clear` takes away what would not be true without one. `busy` is told while an answer is awaited.
export function part({ notice, waiting = "Loading …", ask, show, clear, busy = () => {} }) {
  const begin = latest();
  return async function load(...given) {
    const current = begin();
    const timer = setTimeout(() => showNotice(notice(), waiting), patience);
    busy(true);
    try {
      const answer = await ask(...given);
      if (current()) {
        busy(false);
        hideNotice(notice());
        show(answer, ...given);
      }
    } catch (error) {
      if (current()) {
        busy(false);
        clear(...given);
        showNotice(notice(), error.message, "bad", () => load(...given));
      }
    } finally {
      clearTimeout(timer);
    }
  };
}
