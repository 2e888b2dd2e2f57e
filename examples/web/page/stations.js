// One access point and the stations in its networks.
import { listIn, post } from "./api.js";
import { bar, byId, closesByItself, element, showNotice } from "./dom.js";
import { part } from "./part.js";

// Signals in dBm: from -90, hardly there, to -40, next to the access point.
const strength = (signal) => (signal + 90) / 50;

function quality(signal) {
  if (signal >= -60) {
    return ["good", "strong"];
  }
  return signal >= -72 ? ["fair", "fair"] : ["weak", "weak"];
}

// Seconds, as people say them.
function duration(time) {
  const minutes = Math.floor(Number(time) / 60);
  if (!/^\d+$/.test(time)) {
    return time;
  }
  if (minutes < 1) {
    return "less than a minute";
  }
  const hours = Math.floor(minutes / 60);
  return hours === 0 ? `${minutes} min` : `${hours} h ${minutes % 60} min`;
}

function row(station) {
  const signal = Number(station.signal);
  const [kind, word] = quality(signal);
  return element("tr", {},
    element("th", { scope: "row", class: "code" }, station.mac),
    element("td", { "data-label": "Signal" },
      element("span", { class: "count" }, `${word}, ${signal} dBm`.replace("-", "−"), bar(strength(signal), kind))),
    element("td", { "data-label": "Connected for" }, duration(station.time)));
}

function facts(device) {
  const channels = [device.m_current_channel, device.m_current_channel_sec].filter(Boolean).join(" and ");
  return [
    ["Address", device.m_dev_ip],
    ["MAC", device.m_dev_mac],
    ["Model", device.m_dev_modelname],
    ["Software", device.m_sw_ver],
    ["Channel", channels],
  ].filter(([, value]) => value).map(([name, value]) =>
    element("div", {}, element("dt", {}, name), element("dd", {}, value)));
}

function show(rows) {
  byId("stations-rows").replaceChildren(...rows.map(row));
  byId("stations-table").hidden = rows.length === 0;
}

const load = part({
  notice: () => byId("stations-notice"),
  waiting: "Asking the access point …",
  ask: (device) => (device.m_dev_status === "1" ? post("stations", { ap: device.m_dev_ip }) : undefined),
  show(answer) {
    const { rows } = listIn(answer ?? {}, "DevStalist", "sta");
    rows.sort((a, b) => Number(b.signal) - Number(a.signal));
    show(rows);
    if (rows.length === 0) {
      showNotice(byId("stations-notice"), answer ? "No station is connected." : "This access point is offline.");
    }
  },
  clear: () => show([]),
});

export function openStations(device) {
  byId("stations-title").textContent = device.m_dev_name || device.m_dev_mac;
  byId("stations-facts").replaceChildren(...facts(device));
  show([]);
  byId("stations").showModal();
  load(device);
}

export function startStations() {
  closesByItself(byId("stations"));
}
