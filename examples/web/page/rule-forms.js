// The dialogs in which URL filters and time groups are added, edited and removed. What is sent names the row as the
// page showed it: the router refuses a change of anything else, and answers with the lists as it has read them back.
import { post } from "./api.js";
import { byId, closesByItself, element, hideNotice, showNotice } from "./dom.js";

const kinds = {
  filter: { program: "url-filters", word: "filter" },
  group: { program: "time-groups", word: "time group" },
};
const weekdays = ["Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday", "Sunday"];

// What the router expects of a value, for people.
const wanted = {
  name: "A name is needed, of at most 149 bytes and without apostrophes: ’ will do.",
  url: "An address is needed, without blanks and quotation marks.",
  mark: "A remark has at most 151 bytes and no apostrophes: ’ will do.",
  days: "Choose at least one day.",
  from: "Say from when, such as 20:30.",
  to: "Say until when, later than it begins.",
};

let page; // what rules.js lets the dialogs do
let current; // { kind, rule } in the dialog that is open

const field = (name) => byId("rule-form").elements[name];
const dayBoxes = () => [...byId("days").querySelectorAll("input")];

function showOwnTimes() {
  byId("own-times").hidden = current.kind === "filter" && field("group").value !== "";
}

function markField(name) {
  for (const input of byId("rule-form").querySelectorAll("[aria-invalid]")) {
    input.removeAttribute("aria-invalid");
    input.removeAttribute("aria-describedby");
  }
  const input = name === "days" ? dayBoxes()[0] : name && field(name);
  if (input) {
    input.setAttribute("aria-invalid", "true");
    input.setAttribute("aria-describedby", "rule-notice");
    input.focus();
  }
}

function showGroups(chosen) {
  const options = page.groups().map(({ id, name }) => element("option", { value: String(id) }, `as “${name}”`));
  field("group").replaceChildren(element("option", { value: "" }, "at times of its own"), ...options);
  field("group").value = chosen ? String(chosen) : "";
}

// Opens the form, empty without a rule.
export function editRule(kind, rule) {
  const { days = "1111100", from = "20:00", to = "23:00", name = "", url = "", mark = "", status = 1 } = rule ?? {};
  current = { kind, rule };
  byId("rule-title").textContent = rule ? `Edit “${rule.name}”` : `Add a ${kinds[kind].word}`;
  for (const part of byId("rule-form").querySelectorAll(".of-filter")) {
    part.hidden = kind !== "filter";
  }
  for (const [key, value] of Object.entries({ name, url, mark, from, to })) {
    field(key).value = value;
  }
  dayBoxes().forEach((box, i) => (box.checked = days[i] === "1"));
  field("status").checked = status === 1;
  showGroups(rule?.group);
  showOwnTimes();
  markField();
  hideNotice(byId("rule-notice"));
  byId("rule").showModal();
}

export function removeRule(kind, rule) {
  current = { kind, rule };
  byId("removal-title").textContent = `Remove the ${kinds[kind].word} “${rule.name}”?`;
  hideNotice(byId("removal-notice"));
  byId("removal").showModal();
}

function formContent() {
  const form = { name: field("name").value.trim(), mark: field("mark").value.trim() };
  if (current.kind === "filter") {
    form.url = field("url").value.trim();
    form.status = field("status").checked ? "1" : "0";
  }
  if (current.kind === "filter" && field("group").value !== "") {
    form.group = field("group").value;
  } else {
    form.days = dayBoxes().map((box) => (box.checked ? "1" : "0")).join("");
    form.from = field("from").value;
    form.to = field("to").value;
  }
  return form;
}

// What became of a request that failed, and the way on.
function showFailure(notice, dialog, error) {
  const name = error.refused?.split(":")[0];
  if (wanted[name]) {
    showNotice(notice, wanted[name], "bad");
    markField(name);
    return;
  }
  const unsure = error.unsure ? " Whether it was changed is not known: look at the list." : "";
  showNotice(notice, error.message + unsure, "bad", () => {
    dialog.close();
    page.reload();
  }, "Show the list as it is");
}

// Sends a change. While it is on its way nothing can be pressed twice.
async function send(dialog, notice, form, done) {
  const main = dialog.querySelector("button.main");
  const { kind, rule } = current;
  const row = rule ? { id: rule.id, version: rule.version } : {};
  if (main.getAttribute("aria-disabled") === "true") {
    return;
  }
  main.setAttribute("aria-disabled", "true");
  showNotice(notice, "Asking the router …");
  try {
    const answer = await post(kinds[kind].program, { ...row, ...form });
    dialog.close();
    page.changed(answer, done);
  } catch (error) {
    showFailure(notice, dialog, error);
  } finally {
    main.removeAttribute("aria-disabled");
  }
}

function dayBox(name) {
  return element("label", { class: "day" }, element("input", { type: "checkbox", "aria-label": name }),
    element("span", { "aria-hidden": "true" }, name.slice(0, 3)));
}

export function startForms(given) {
  page = given;
  byId("days").replaceChildren(...weekdays.map(dayBox));
  field("group").addEventListener("change", showOwnTimes);
  closesByItself(byId("rule"));
  closesByItself(byId("removal"));
  byId("rule-form").addEventListener("submit", (event) => {
    event.preventDefault();
    const form = formContent();
    send(byId("rule"), byId("rule-notice"), { action: current.rule ? "edit" : "add", ...form },
      `“${form.name}” is stored.`);
  });
  byId("removal-form").addEventListener("submit", (event) => {
    event.preventDefault();
    send(byId("removal"), byId("removal-notice"), { action: "remove" }, `“${current.rule.name}” is removed.`);
  });
}
