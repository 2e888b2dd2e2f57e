// Building what the page shows. Texts become text nodes and never markup: names are shown as they are stored.

export const byId = (id) => document.getElementById(id);

// element("p", { class: "hint" }, "text", otherElement): attributes that are undefined are left out.
export function element(name, attributes = {}, ...children) {
  const made = document.createElement(name);
  for (const [key, value] of Object.entries(attributes)) {
    if (value !== undefined) {
      made.setAttribute(key, value);
    }
  }
  made.append(...children.filter((child) => child !== undefined));
  return made;
}

export function button(text, onClick, attributes = {}) {
  const made = element("button", { type: "button", ...attributes }, text);
  made.addEventListener("click", onClick);
  return made;
}

// Words for those who hear the page, behind those that everybody sees.
export const unseen = (text) => element("span", { class: "unseen" }, text);

// A cell of a list, with the title of its column for screens on which rows are cards.
export function cell(label, ...children) {
  return element("td", { "data-label": label }, ...children);
}

// Lets a dialog be closed with its buttons of class "close", and with a click beside it.
export function closesByItself(dialog) {
  for (const close of dialog.querySelectorAll("button.close")) {
    close.addEventListener("click", () => dialog.close());
  }
  dialog.addEventListener("click", (event) => {
    if (event.target === dialog) {
      dialog.close(); // the backdrop
    }
  });
}

// A bar of a share from 0 to 1. It only repeats what a text beside it says.
export function bar(share, kind = "") {
  const fill = element("span", { class: "fill" });
  fill.style.width = `${Math.round(Math.min(1, Math.max(0, share)) * 100)}%`;
  return element("span", { class: `bar ${kind}`.trim(), "aria-hidden": "true" }, fill);
}

export function hideNotice(notice) {
  notice.hidden = true;
  notice.replaceChildren();
}

// A line in place of a list: "" while waiting, "bad" for an error, with a button that leads on.
export function showNotice(notice, text, kind = "", retry = undefined, way = "Try again") {
  notice.className = `notice ${kind}`.trim();
  notice.replaceChildren(text);
  if (retry) {
    notice.append(" ", button(way, retry));
  }
  notice.hidden = false;
}
