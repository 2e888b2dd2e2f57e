// Asking the router, within ten seconds, and the words for what may go wrong.
import { recover } from "./recover.js";

const deadline = 10000;

// What the programs answer when they cannot do what they were asked for.
const words = {
  "database: away": "The router’s database is not there.",
  "database: without its lock file": "The router’s database is not ready: its lock file is missing.",
  "database: busy": "The database is busy: another program holds it.",
  "database: unreadable": "The router’s database cannot be read.",
  "service: away": "The service that keeps these rules is not running.",
  "service: slow": "The service that keeps these rules is busy.",
  "service: failed": "The service that keeps these rules could not do this.",
  "access point: slow": "The access point does not answer.",
  "requests: too many at once": "Others are asking at the moment.",
  "row: changed meanwhile": "It was changed elsewhere since this page showed it. Nothing was stored.",
  "row: gone": "It was removed elsewhere since this page showed it. Nothing was stored.",
  "row: not stored as sent": "The router did not store this as it was sent.",
  "rows: no more fit": "There are 128 of them, and no more fit.",
  "group: gone": "That time group was removed elsewhere. Nothing was stored.",
  "group: in use": "Rules still follow this time group. Nothing was removed.",
};

// An error for people. `refused` is what the program said of a value: "name: ..."; `unsure` after a request that may
// have been carried out or not.
class Failure extends Error {
  constructor(message, { refused, unsure = false } = {}) {
    super(message);
    this.refused = refused;
    this.unsure = unsure;
  }
}

async function answerOf(path, options) {
  try {
    const response = await fetch(path, { ...options, signal: AbortSignal.timeout(deadline) });
    return [response, await response.text()];
  } catch (error) {
    const late = error.name === "TimeoutError";
    throw new Failure(late ? "The router has not answered within ten seconds." : "The router does not answer.",
      { unsure: true });
  }
}

function parse(text) {
  try {
    return JSON.parse(text);
  } catch {
    const recovered = recover(text);
    if (!recovered) {
      throw new Failure("The router’s answer cannot be read.");
    }
    return recovered;
  }
}

// The failure that an answer tells.
function failureOf(response, text) {
  let said;
  try {
    said = JSON.parse(text).error;
  } catch {
    return new Failure("The router could not do this."); // not a program's answer
  }
  if (Object.hasOwn(words, said)) {
    return new Failure(words[said], { unsure: said === "service: slow" });
  }
  return new Failure(response.status < 500 ? `The router refuses this: ${said}.` : "The router could not do this.",
    { refused: said });
}

async function ask(path, options = {}) {
  const [response, text] = await answerOf(path, options);
  if (!response.ok) {
    throw failureOf(response, text);
  }
  return parse(text);
}

export const get = (program, parameters = {}) => ask(`cgi/${program}?${new URLSearchParams(parameters)}`);

let token;

// Asks for something that costs or changes something. Only a page of this server has the token to do so.
export async function post(program, form) {
  token ??= (await get("token")).token;
  try {
    return await ask(`cgi/${program}`,
      { method: "POST", headers: { "X-Page-Token": token }, body: new URLSearchParams(form) });
  } catch (error) {
    token = undefined; // a server that was started again has another one
    throw error;
  }
}

// The rows of a list and what else it says. Every list of the library comes as
// {"<name>":{"data":[{...},{...},{}],"count":"2"}}: the last element only closes it, all its values empty. An empty
// list has no array at all.
export function listIn(answer, name, array = "data") {
  const list = answer[name] ?? {};
  return { ...list, rows: (list[array] ?? []).slice(0, -1) };
}

// A function that tells whether its call was the latest: answers that come late are dropped.
export function latest() {
  let current = 0;
  return () => {
    const mine = ++current;
    return () => mine === current;
  };
}
