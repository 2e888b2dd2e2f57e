// The application catalogue: classes, and the applications of the chosen one. Names are Chinese, with an English one.
import { get, listIn } from "./api.js";
import { button, byId, element, showNotice } from "./dom.js";
import { part } from "./part.js";

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

// The applications of a class, below its title.
const loadApplications = part({
  notice: () => byId("class-notice"),
  ask: (item) => get("catalogue", { class: item.id }),
  show(answer) {
    const { rows } = listIn(answer, "ItemList");
    byId("class-applications").replaceChildren(...rows.map(application));
    if (rows.length === 0) {
      showNotice(byId("class-notice"), "No application of this class is known.");
    }
  },
  clear: () => byId("class-applications").replaceChildren(),
});

function choose(item, chosen) {
  for (const other of byId("classes").querySelectorAll("button")) {
    other.setAttribute("aria-pressed", String(other === chosen));
  }
  byId("class-title").replaceChildren(...names(item.name, item.name_en));
  byId("class-applications").replaceChildren();
  byId("class").hidden = false;
  loadApplications(item);
}

function entry(item) {
  const open = button("", () => choose(item, open), { "aria-pressed": "false" });
  open.append(...names(item.name, item.name_en),
    element("span", { class: "badge" }, String(countNames(item.appnames)),
      element("span", { class: "unseen" }, " applications")));
  return element("li", {}, open);
}

function showClasses(rows) {
  byId("classes").replaceChildren(...rows.map(entry));
  byId("class").hidden = rows.length === 0;
}

export const loadCatalogue = part({
  notice: () => byId("applications-notice"),
  ask: () => get("catalogue"),
  show(answer) {
    const { rows } = listIn(answer, "ItemList");
    showClasses(rows);
    if (rows.length > 0) {
      choose(rows[0], byId("classes").querySelector("button"));
    } else {
      showNotice(byId("applications-notice"), "The catalogue is empty.");
    }
  },
  clear: () => showClasses([]),
});
