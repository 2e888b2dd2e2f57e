// The zero-configuration groups as cards. A key is in the page only while it is shown.
import { get, listIn } from "./api.js";
import { button, byId, element, showNotice, unseen } from "./dom.js";
import { part } from "./part.js";

const dots = "••••••••";

// What protects a network, and the key if one is in force.
function protection(group, wlan) {
  const cipher = Number(group[`${wlan}_SecurityCipher`]);
  if (cipher === 1 || cipher === 2) {
    return ["WEP", group[`${wlan}_Wep_Value`]];
  }
  return Number(group[`${wlan}_AuthMode`]) === 1 ? ["Pre-shared key", group[`${wlan}_Psk_Value`]] : ["Open", ""];
}

// `whose` is part of the button's label, so that each says what it shows.
function keyOf(key, whose) {
  const text = element("span", { class: "code" }, dots);
  const word = element("span", {}, "Show");
  const toggle = button("", () => {
    const shown = word.textContent === "Show";
    text.textContent = shown ? key : dots;
    word.textContent = shown ? "Hide" : "Show";
  }, { class: "small" });
  toggle.append(word, unseen(` key of ${whose}`));
  return element("span", { class: "key" }, text, toggle);
}

function fact(name, ...value) {
  return element("div", {}, element("dt", {}, name), element("dd", {}, ...value));
}

function radio(title, group, wlan, channel, power) {
  const ssid = group[`${wlan}_Ssid`];
  const [kind, key] = protection(group, wlan);
  const badge = element("span", { class: kind === "Pre-shared key" ? "badge good" : "badge warn" }, kind);
  return element("section", { class: "radio" },
    element("h3", {}, title),
    element("p", { class: "ssid" }, ssid || "no name", " ", badge),
    element("dl", { class: "facts" },
      key ? fact("Key", keyOf(key, `${ssid}, ${title.toLowerCase()} of ${group.WlanGroup_Name}`)) : undefined,
      fact("Channel", Number(channel) === 0 ? "automatic" : channel),
      fact("Power", `${power || "–"} %`)));
}

function restart(group) {
  if (group.TimeRebootEnable !== "1") {
    return "No scheduled restart";
  }
  const hour = /^\d{1,2}$/.test(group.RebootTime) ? `${group.RebootTime.padStart(2, "0")}:00` : group.RebootTime;
  return `Restarts every day at ${hour}`;
}

function card(group) {
  return element("article", { class: "card" },
    element("h2", {}, group.WlanGroup_Name || `Group ${group.WlanGroup_Id}`),
    radio("First radio", group, "WlanGroup_Wlan1", group.WlanGroup_Wlan_Channel, group.Wlan_txpower),
    radio("Second radio", group, "WlanGroup_Wlan5", group.WlanGroup_Wlan_Channel_sec, group.Wlan_txpower_sec),
    element("p", { class: "hint" }, restart(group)));
}

export const loadGroups = part({
  notice: () => byId("groups-notice"),
  ask: () => get("zero-config-groups"),
  show(answer) {
    const { rows } = listIn(answer, "WlanGroupList");
    byId("groups-cards").replaceChildren(...rows.map(card));
    if (rows.length === 0) {
      showNotice(byId("groups-notice"), "There is no zero-configuration group.");
    }
  },
  clear: () => byId("groups-cards").replaceChildren(),
});
