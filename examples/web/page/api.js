// Asking the router. Every list comes as {"<name>":{"data":[{...},{...},{}],"count":"2"}}: the last element only closes
// it, all its values empty. An empty list has no array at all.

function parse(text) {
  try {
    return JSON.parse(text);
  } catch {
    // Values are sent as they are stored: a quotation mark in a name breaks the list that has it.
    throw new Error("The router's answer cannot be read. A name with a quotation mark or a backslash may be the cause.");
  }
}

// The list that a program of the router answers: its rows and what else it says.
export async function getList(program, parameters, name, array = "data") {
  let response;
  let text;
  try {
    response = await fetch(`cgi/${program}?${new URLSearchParams(parameters)}`);
    text = await response.text();
  } catch {
    throw new Error("The router does not answer.");
  }
  if (response.status >= 500) {
    throw new Error("The router could not do this.");
  }
  const answer = parse(text);
  if (!response.ok) {
    throw new Error(`The router refuses this: ${answer.error}.`);
  }
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
