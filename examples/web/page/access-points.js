// The list of access points: pages, filter, search.
import { get, listIn } from "./api.js";
import { bar, button, byId, cell, element, showNotice } from "./dom.js";
import { part } from "./part.js";
import { openStations } from "./stations.js";

const pageSize = 17;
const state = { page: 1, pages: 1, filter: "all", search: "" };
const totals = { all: 0, online: 0, stations: 0 };

function badge(online) {
  return element("span", { class: online ? "badge good" : "badge muted" }, online ? "Online" : "Offline");
}

function network(ssid, channel) {
  return ssid && element("span", { class: "network" }, ssid, " ",
    element("span", { class: "hint" }, channel ? `channel ${channel}` : ""));
}

function row(device, most) {
  const online = device.m_dev_status === "1";
  const stations = Number(device.m_stanum);
  const name = button(device.m_dev_name || device.m_dev_mac, () => openStations(device), { class: "link" });
  return element("tr", {},
    element("th", { scope: "row" }, name, element("span", { class: "hint" }, device.m_dev_modelname)),
    element("td", { class: "status" }, badge(online)),
    cell("Address", element("span", { class: "code" }, device.m_dev_ip),
      element("span", { class: "code hint" }, device.m_dev_mac)),
    cell("Networks", network(device.m_wlan_ssid, device.m_current_channel) ?? "",
      network(device.m_wlan_ssid_sec, device.m_current_channel_sec) ?? ""),
    cell("Stations", element("span", { class: "count" }, String(stations), bar(stations / most))),
    cell("Online since", element("span", { class: "since" }, (online && device.m_onlinetime) || "–")));
}

function showTotals(list) {
  // An answer without any match has no totals: those of the last one stay.
  if (list.rows.length > 0 || Number(list.sumcount) > 0) {
    totals.all = Number(list.sumcount);
    totals.online = Number(list.onlinecount);
    totals.stations = Number(list.stasumnum);
  }
  byId("total-all").textContent = totals.all;
  byId("total-online").textContent = totals.online;
  byId("total-offline").textContent = totals.all - totals.online;
  byId("total-stations").textContent = totals.stations;
}

// A text may be part of a name, of an address or of a MAC address. The library looks for addresses only, so the page
// asks for all and looks for itself.
function isFound(device) {
  const text = state.search.toLowerCase();
  return [device.m_dev_name, device.m_dev_modelname, device.m_dev_ip, device.m_dev_mac]
    .some((value) => (value ?? "").toLowerCase().includes(text));
}

// The rows of the page that is shown, and how many there are on all pages.
function shownOf(list) {
  if (state.search === "") {
    state.pages = Math.max(1, Number(list.pagecount)); // what fits one page is counted as no page
    const all = { all: totals.all, online: totals.online, offline: totals.all - totals.online }[state.filter];
    return { rows: list.rows, all };
  }
  const found = list.rows.filter(isFound);
  const first = (state.page - 1) * pageSize;
  state.pages = Math.max(1, Math.ceil(found.length / pageSize));
  return { rows: found.slice(first, first + pageSize), all: found.length };
}

function showPager(rows, all) {
  const first = (state.page - 1) * pageSize + 1;
  const after = Math.max(0, all - first - rows + 1);
  const more = after > 0 ? `, ${after} more on the next page` : "";
  byId("page-range").textContent = rows === 0 ? "" : `${first}–${first + rows - 1} of ${all}${more}`;
  byId("page-number").textContent = `Page ${state.page} of ${state.pages}`;
  byId("page-next").textContent = after > 0 ? `Next ${Math.min(after, pageSize)}` : "Next";
  byId("pager").hidden = rows === 0;
}

// Turning over while an answer is awaited would lead to a page that nobody has counted.
function setBusy(busy) {
  byId("access-points-view").setAttribute("aria-busy", String(busy));
  byId("page-previous").disabled = busy || state.page <= 1;
  byId("page-next").disabled = busy || state.page >= state.pages;
}

function emptyWords() {
  if (state.search) {
    const which = state.filter === "all" ? "" : ` that is ${state.filter}`;
    return `No access point${which} matches “${state.search}”.`;
  }
  return state.filter === "all" ? "No access point is known yet." : `No access point is ${state.filter}.`;
}

function show(answer) {
  const list = listIn(answer, "ApDevList");
  showTotals(list);
  const { rows, all } = shownOf(list);
  if (rows.length === 0 && state.page > 1) {
    goTo(1); // the list has become shorter
    return;
  }
  const most = Math.max(1, ...rows.map((device) => Number(device.m_stanum)));
  byId("access-points-rows").replaceChildren(...rows.map((device) => row(device, most)));
  byId("access-points-table").hidden = rows.length === 0;
  showPager(rows.length, all);
  setBusy(false);
  if (rows.length === 0) {
    showNotice(byId("access-points-notice"), emptyWords());
  } else if (list.unread > 0) {
    showNotice(byId("access-points-notice"),
      `Access points that cannot be shown: ${list.unread}. A name with quotation marks hides what belongs to it.`);
  }
}

function clear() {
  byId("access-points-rows").replaceChildren();
  byId("access-points-table").hidden = true;
  showPager(0, 0);
}

export const loadAccessPoints = part({
  notice: () => byId("access-points-notice"),
  ask: () => get("access-points", state.search === ""
    ? { page: state.page, size: pageSize, filter: state.filter }
    : { size: 9999, filter: state.filter }),
  show,
  clear,
  busy: setBusy,
});

function goTo(page) {
  state.page = page;
  loadAccessPoints();
}

function search() {
  const text = byId("search").value.trim();
  if (text !== state.search) {
    state.search = text;
    goTo(1);
  }
}

export function startAccessPoints() {
  const form = byId("access-points-form");
  let timer;
  form.addEventListener("submit", (event) => {
    event.preventDefault();
    search();
  });
  byId("search").addEventListener("input", () => {
    clearTimeout(timer);
    timer = setTimeout(search, 250);
  });
  for (const radio of form.elements.filter) {
    radio.addEventListener("change", () => {
      state.filter = radio.value;
      goTo(1);
    });
  }
  byId("page-previous").addEventListener("click", () => goTo(state.page - 1));
  byId("page-next").addEventListener("click", () => goTo(state.page + 1));
}
