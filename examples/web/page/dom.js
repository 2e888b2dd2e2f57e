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

// A line in place of a list: "" while waiting, "bad" for an error, with a button to try again.
export function showNotice(notice, text, kind = "", retry = undefined) {
  notice.className = `notice ${kind}`.trim();
  notice.replaceChildren(text);
  if (retry) {
    notice.append(" ", button("Try again", retry));
  }
  notice.hidden = false;
}
