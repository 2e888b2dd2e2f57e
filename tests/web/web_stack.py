"""The page's server in a private root, and a browser to look at it with."""

import os
import pathlib
import re
import shutil
import subprocess
import tempfile

from selenium import webdriver
from selenium.webdriver.chrome.options import Options
from selenium.webdriver.chrome.service import Service

CHECKOUT = pathlib.Path(__file__).resolve().parents[2]


class Server:
    """Serves the network of the demo, with awkward names in it. `address` is that of the page."""

    def __init__(self, programs):
        example = CHECKOUT / "examples/web"
        self._process = subprocess.Popen(
            [CHECKOUT / "scripts/private-root", "--share-net",
             "--seed", example / "network.sql", "--seed", CHECKOUT / "tests/web/awkward.sql",
             "--catalog-seed", example / "catalogue.sql", CHECKOUT / "tests/web/commanded", example / "run", programs],
            stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True, cwd=CHECKOUT)
        self.address = self._process.stdout.readline().strip()
        if not self.address:
            raise RuntimeError(f"the server ended with status {self._process.wait()}")

    def inside(self, command):
        """Does something in the private root, as `commanded` says."""
        self._process.stdin.write(command + "\n")
        self._process.stdin.flush()
        if self._process.stdout.readline() != "done\n":
            raise RuntimeError(f"failed: {command}")

    def close(self):
        self._process.stdin.close()
        self._process.wait()
        self._process.stdout.close()


class Browser(webdriver.Chrome):
    """Chromium without a window, which asks nobody but the page's server for anything."""

    def __init__(self):
        self._profile = tempfile.mkdtemp(prefix="routerdb-browser-")
        options = Options()
        options.binary_location = "/usr/bin/chromium"
        for argument in ("--headless=new", "--disable-gpu", "--disable-quic", "--no-first-run",
                         "--disable-background-networking", "--disable-component-update", "--disable-sync",
                         "--disable-dev-shm-usage", "--hide-scrollbars", "--lang=en",
                         f"--user-data-dir={self._profile}"):
            options.add_argument(argument)
        if os.geteuid() == 0:
            options.add_argument("--no-sandbox")
        options.set_capability("goog:loggingPrefs", {"browser": "ALL"})
        super().__init__(service=Service("/usr/bin/chromedriver"), options=options)

    def quit(self):
        super().quit()
        shutil.rmtree(self._profile, ignore_errors=True)

    def resize(self, width, height, phone=False):
        self.execute_cdp_cmd("Emulation.setDeviceMetricsOverride", {
            "width": width, "height": height, "deviceScaleFactor": 2 if phone else 1, "mobile": phone})

    def prefer(self, **features):
        """Media features: prefer(forced_colors="active"). Those that are not named are as they come."""
        self.execute_cdp_cmd("Emulation.setEmulatedMedia", {"features": [
            {"name": name.replace("_", "-"), "value": value} for name, value in features.items()]})

    def read_axe(self):
        """The source of axe-core, which Chromium has in its developer tools."""
        self.get("devtools://devtools/bundled/third_party/lighthouse/lighthouse-dt-bundle.js")
        tools = self.execute_script("return document.documentElement.textContent")
        literal = re.search(r"`/\*! axe v(?:[^`\\]|\\.)*`", tools, re.DOTALL)
        if not literal:
            raise RuntimeError("the developer tools of this Chromium have no axe-core")
        self.get("about:blank")
        return self.execute_script("return " + literal[0])
