// The list of access points: pages, filter, search.
import { getList, latest } from "./api.js";
import { bar, button, byId, element, hideNotice, showNotice } from "./dom.js";
import { openStations } from "./stations.js";

const pageSize = 17;
const begin = latest();
const state = { page: 1, pages: 1, filter: "all", search: "" };
const totals = { all: 0, online: 0, stations: 0 };

// Digits and dots are part of an address, hexadecimal digits and colons part of a MAC address.
function searchParameters(text) {
  if (/^[0-9.]{1,15}$/.test(text)) {
    return { ip: text };
  }
  return /^[0-9a-f:]{1,17}$/i.test(text) ? { mac: text } : undefined;
}

function badge(online) {
  return element("span", { class: online ? "badge good" : "badge muted" }, online ? "Online" : "Offline");
}

function network(ssid, channel) {
  return ssid && element("span", { class: "network" }, ssid, " ",
    element("span", { class: "hint" }, channel ? `channel ${channel}` : ""));
}

function cell(label, ...children) {
  return element("td", { "data-label": label }, ...children);
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

function matches(rows) {
  if (state.search) {
    return state.pages > 1 ? undefined : rows;
  }
  return { all: totals.all, online: totals.online, offline: totals.all - totals.online }[state.filter];
}

function showPager(rows) {
  const first = (state.page - 1) * pageSize + 1;
  const all = matches(rows);
  byId("page-range").textContent =
    rows === 0 ? "" : `${first}–${first + rows - 1}${all === undefined ? "" : ` of ${all}`}`;
  byId("page-number").textContent = `Page ${state.page} of ${state.pages}`;
  byId("page-previous").disabled = state.page <= 1;
  byId("page-next").disabled = state.page >= state.pages;
}

function show(list) {
  const notice = byId("access-points-notice");
  // What fits one page is counted as no page.
  state.pages = Math.max(1, Number(list.pagecount));
  showTotals(list);
  showPager(list.rows.length);
  const most = Math.max(1, ...list.rows.map((device) => Number(device.m_stanum)));
  byId("access-points-rows").replaceChildren(...list.rows.map((device) => row(device, most)));
  byId("access-points-table").hidden = list.rows.length === 0;
  if (list.rows.length === 0) {
    showNotice(notice, state.search ? `No access point matches “${state.search}”.` : "There are none.");
  } else {
    hideNotice(notice);
  }
}

export async function loadAccessPoints() {
  const current = begin();
  const search = state.search ? searchParameters(state.search) : { filter: state.filter };
  try {
    const list = await getList("access-points", { page: state.page, size: pageSize, ...search }, "ApDevList");
    if (!current()) {
      return;
    }
    if (list.rows.length === 0 && state.page > 1) {
      goTo(1); // the list has become shorter
      return;
    }
    show(list);
  } catch (error) {
    if (current()) {
      byId("access-points-table").hidden = true;
      byId("access-points-rows").replaceChildren();
      state.pages = state.page;
      showPager(0);
      showNotice(byId("access-points-notice"), error.message, "bad", loadAccessPoints);
    }
  }
}

function goTo(page) {
  state.page = page;
  loadAccessPoints();
}

function choose(filter) {
  state.filter = filter;
  state.search = "";
  byId("search").value = "";
  byId("search-hint").textContent = "";
  goTo(1);
}

function search() {
  const text = byId("search").value.trim();
  const allowed = text === "" || searchParameters(text) !== undefined;
  byId("search-hint").textContent = allowed ? "" : "An address has digits and dots, a MAC address 0–9, A–F and colons.";
  byId("search").setAttribute("aria-invalid", String(!allowed));
  if (allowed && text !== state.search) {
    state.search = text;
    state.filter = "all";
    byId("access-points-form").elements.filter.value = "all"; // a search is among all of them
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
    radio.addEventListener("click", () => choose(radio.value)); // the chosen one too: it ends a search
  }
  byId("page-previous").addEventListener("click", () => goTo(state.page - 1));
  byId("page-next").addEventListener("click", () => goTo(state.page + 1));
}
