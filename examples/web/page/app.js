// The page: four sections, one of them shown. The address says which.
import { loadAccessPoints, startAccessPoints } from "./access-points.js";
import { loadCatalogue } from "./catalogue.js";
import { byId } from "./dom.js";
import { loadGroups } from "./groups.js";
import { loadRules, startRules } from "./rules.js";
import { startStations } from "./stations.js";

const sections = {
  "access-points": loadAccessPoints,
  groups: loadGroups,
  applications: loadCatalogue,
  "url-filters": loadRules,
};

function showSection() {
  const name = location.hash.slice(1);
  if (name === "main") {
    return; // the link that skips to the content
  }
  const chosen = Object.hasOwn(sections, name) ? name : "access-points";
  for (const section of Object.keys(sections)) {
    byId(`${section}-view`).hidden = section !== chosen;
    const link = document.querySelector(`nav a[href="#${section}"]`);
    link.toggleAttribute("aria-current", section === chosen);
    if (section === chosen) {
      link.setAttribute("aria-current", "page");
      document.title = `${link.textContent} – Wi-Fi of the house`;
    }
  }
  for (const dialog of document.querySelectorAll("dialog")) {
    dialog.close();
  }
  sections[chosen]();
}

startAccessPoints();
startRules();
startStations();
window.addEventListener("hashchange", showSection);
showSection();
