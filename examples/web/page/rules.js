// URL filters and the time groups that they follow: the lists. Changes are made in the dialogs of rule-forms.js.
import { get } from "./api.js";
import { button, byId, cell, element, showNotice, unseen } from "./dom.js";
import { part } from "./part.js";
import { editRule, removeRule, startForms } from "./rule-forms.js";

const dayNames = ["Mon", "Tue", "Wed", "Thu", "Fri", "Sat", "Sun"];

// "1111100" is "Mon–Fri".
function daysOf(digits) {
  const runs = [...digits.matchAll(/1+/g)].map((run) => {
    const last = run.index + run[0].length - 1;
    const join = run[0].length > 2 ? "–" : ", ";
    return run[0].length === 1 ? dayNames[last] : dayNames[run.index] + join + dayNames[last];
  });
  return digits === "1111111" ? "every day" : runs.join(", ") || "never";
}

function times(rule) {
  return `${daysOf(rule.days)}, ${rule.from}–${rule.to}`;
}

function changes(rule, kind) {
  const label = (word) => [element("span", {}, word), unseen(` ${rule.name}`)];
  const edit = button("", () => editRule(kind, rule), { class: "small" });
  const remove = button("", () => removeRule(kind, rule), { class: "small" });
  edit.append(...label("Edit"));
  remove.append(...label("Remove"));
  return cell("Change", element("span", { class: "changes" }, edit, remove));
}

function titled(rule) {
  return element("th", { scope: "row" }, element("span", { class: "name" }, rule.name),
    element("span", { class: "hint" }, rule.mark));
}

function filterRow(filter, groups) {
  const group = groups.find(({ id }) => id === filter.group);
  const inForce = filter.status === 1;
  const when = filter.group === 0 || group ? times(filter) : "never: its time group has gone";
  return element("tr", {},
    titled(filter),
    element("td", { class: "status" },
      element("span", { class: inForce ? "badge good" : "badge muted" }, inForce ? "In force" : "Off")),
    cell("Address", element("span", { class: "code address" }, filter.url)),
    cell("When", element("span", {}, when), element("span", { class: "hint" }, group?.name)),
    changes(filter, "filter"));
}

function groupRow(group, filters) {
  const followers = filters.filter((filter) => filter.group === group.id).length;
  return element("tr", {},
    titled(group),
    cell("When", times(group)),
    cell("Followed by", followers === 1 ? "1 filter" : `${followers} filters`),
    changes(group, "group"));
}

function fill(name, rows) {
  byId(`${name}-rows`).replaceChildren(...rows);
  byId(`${name}-table`).hidden = rows.length === 0;
  byId(`${name}-none`).hidden = rows.length > 0;
}

let shown = { filters: [], groups: [] };

function show(answer) {
  shown = answer;
  fill("filters", shown.filters.map((filter) => filterRow(filter, shown.groups)));
  fill("groups", shown.groups.map((group) => groupRow(group, shown.filters)));
  byId("rules").hidden = false;
}

export const loadRules = part({
  notice: () => byId("rules-notice"),
  ask: () => get("url-filters"),
  show,
  clear: () => (byId("rules").hidden = true),
});

export function startRules() {
  startForms({
    groups: () => shown.groups,
    reload: loadRules,
    // The answer to a change has the lists as they were read back. The button that led here is a new one now.
    changed(answer, text) {
      show(answer);
      showNotice(byId("rules-notice"), text, "good");
      byId("rules-notice").focus();
    },
  });
  byId("add-filter").addEventListener("click", () => editRule("filter"));
  byId("add-group").addEventListener("click", () => editRule("group"));
}
