// The library's exact profile prints values as they are stored. A quotation mark, a backslash or a line break in one
// makes a list that is no JSON: here such a list is taken apart at its keys, so that one name hides no other row.

const keyBefore = /(?:^\{|",)"([A-Za-z]\w*)":"/g;

// One element; undefined if a value has a key of its own in it, and it cannot be told which is which.
function element(text) {
  try {
    return JSON.parse(text);
  } catch {
    const keys = [...text.matchAll(keyBefore)];
    const ends = [...keys.slice(1).map((key) => key.index), text.lastIndexOf('"')];
    const values = keys.map((key, i) => [key[1], text.slice(key.index + key[0].length, ends[i])]);
    return new Set(values.map(([key]) => key)).size === keys.length ? Object.fromEntries(values) : undefined;
  }
}

// {"<name>":{"<array>":[{...},{...}],"count":...}} with `unread`, the number of elements that are left out; undefined
// for anything else.
export function recover(text) {
  const start = /^\{"(\w+)":\s*\{"(\w+)":\[(?=\{("\w+":"))/.exec(text);
  const end = text.lastIndexOf('],"count":"');
  if (!start || end < start[0].length) {
    return undefined;
  }
  const [whole, name, array, firstKey] = start;
  const between = `},{${firstKey}`;
  const texts = text.slice(whole.length, end).split(between)
    .map((part, i, all) => (i === 0 ? "" : `{${firstKey}`) + part + (i === all.length - 1 ? "" : "}"));
  const elements = texts.map(element).filter(Boolean);
  try {
    const rest = JSON.parse(`{${text.slice(end + 2).trimEnd().slice(0, -1)}`);
    return { [name]: { ...rest, [array]: elements, unread: texts.length - elements.length } };
  } catch {
    return undefined;
  }
}
