// The application catalogue: classes, and the applications of the chosen one. Names are Chinese, with an English one.
import { getList, latest } from "./api.js";
import { button, byId, element, hideNotice, showNotice } from "./dom.js";

const begin = latest();

function names(chinese, english) {
  return [
    element("span", { class: "chinese", lang: "zh-Hans" }, chinese),
    element("span", { class: "english" }, english),
  ];
}

// "A/B/" has two names.
const countNames = (joined) => joined.split("/").length - 1;

function application(item) {
  return element("li", { class: "application" }, ...names(item.appname, item.appname_en),
    element("span", { class: "code hint" }, item.features));
}

async function choose(item, chosen) {
  const current = begin();
  const panel = byId("applications");
  for (const other of byId("classes").querySelectorAll("button")) {
    other.setAttribute("aria-pressed", String(other === chosen));
  }
  const title = element("h2", {}, ...names(item.name, item.name_en));
  try {
    const { rows } = await getList("catalogue", { class: item.id }, "ItemList");
    if (current()) {
      panel.replaceChildren(title, rows.length > 0
        ? element("ul", { class: "grid" }, ...rows.map(application))
        : element("p", { class: "notice" }, "No application of this class is known."));
    }
  } catch (error) {
    if (current()) {
      const notice = element("p", {});
      showNotice(notice, error.message, "bad", () => choose(item, chosen));
      panel.replaceChildren(title, notice);
    }
  }
}

function entry(item) {
  const open = button("", () => choose(item, open), { "aria-pressed": "false" });
  open.append(...names(item.name, item.name_en),
    element("span", { class: "badge" }, String(countNames(item.appnames)),
      element("span", { class: "unseen" }, " applications")));
  return element("li", {}, open);
}

export async function loadCatalogue() {
  const notice = byId("applications-notice");
  byId("applications").replaceChildren();
  try {
    const { rows } = await getList("catalogue", {}, "ItemList");
    byId("classes").replaceChildren(...rows.map(entry));
    if (rows.length > 0) {
      hideNotice(notice);
      choose(rows[0], byId("classes").querySelector("button"));
    } else {
      showNotice(notice, "The catalogue is empty.");
    }
  } catch (error) {
    byId("classes").replaceChildren();
    showNotice(notice, error.message, "bad", loadCatalogue);
  }
}
