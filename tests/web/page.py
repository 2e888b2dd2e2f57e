"""What the tests of the page share: one server, one browser, and hands and eyes for its user."""

import subprocess
import unittest

from selenium.common.exceptions import NoSuchElementException, StaleElementReferenceException
from selenium.webdriver.common.by import By
from selenium.webdriver.support.wait import WebDriverWait

from web_stack import Browser, Server

# What every notice has said, those included that were there for a moment only.
RECORD_NOTICES = """
window.said = [];
new MutationObserver(() => {
  for (const notice of document.querySelectorAll(".notice:not([hidden])")) {
    window.said.push(notice.textContent);
  }
}).observe(document, {subtree: true, childList: true, characterData: true, attributes: true});
"""


class Stage:
    """Opened once for all tests."""

    def open(self, programs, screenshots):
        self.programs = programs
        self.screenshots = screenshots
        installed = programs.parents[1] / "installed"
        version = subprocess.run([installed / "sbin/routerdb-sqld", "--version"], text=True, check=True,
                                 capture_output=True, env={"LD_LIBRARY_PATH": str(installed / "lib")})
        self.profile = version.stdout.split("\n")[1].split()[1]  # exact or modern
        self.server = Server(programs)
        self.server.inside("keep_copies")
        self.browser = Browser()
        self.axe = self.browser.read_axe()
        self.browser.execute_cdp_cmd("Page.addScriptToEvaluateOnNewDocument", {"source": RECORD_NOTICES})

    def close(self):
        self.browser.quit()
        self.server.close()


stage = Stage()


class PageTest(unittest.TestCase):
    section = "access-points"
    expects_console_errors = False

    def setUp(self):
        self.browser = stage.browser
        self.server = stage.server
        self.browser.resize(1100, 780)
        self.browser.prefer()
        self.browser.execute_cdp_cmd("Input.dispatchMouseEvent", {"type": "mouseMoved", "x": 0, "y": 0})
        self.open(self.section)

    def tearDown(self):
        errors = self.browser.get_log("browser")
        if not self.expects_console_errors:
            self.assertEqual(errors, [])

    def open(self, section):
        self.browser.get("about:blank")
        self.browser.get(f"{self.server.address}#{section}")

    def find(self, selector):
        return self.browser.find_element(By.CSS_SELECTOR, selector)

    def shown(self, selector):
        return [e for e in self.browser.find_elements(By.CSS_SELECTOR, selector) if e.is_displayed()]

    def texts(self, selector):
        """Of the elements that are shown."""
        return [element.text for element in self.shown(selector)]

    def text(self, selector):
        return " ".join(self.texts(selector))

    def eventually(self, expected, actual):
        """Waits until actual() is what is expected."""
        seen = []

        def reached(_):
            seen[:] = [actual()]
            return seen[0] == expected

        try:
            WebDriverWait(self.browser, 20, 0.05, [StaleElementReferenceException, NoSuchElementException]).until(
                reached)
        except Exception as error:
            raise AssertionError(f"expected {expected!r}, last seen {seen!r}") from error

    def press(self, text, within="body"):
        next(b for b in self.shown(f"{within} button") if b.text.startswith(text)).click()

    def focused(self):
        return self.browser.switch_to.active_element

    def said(self):
        """What notices have said since the page was opened."""
        return self.browser.execute_script("return window.said")

    def sql(self, statements, database="$database"):
        """Changes a database, beside the library, until the end of the test."""
        self.addCleanup(self.server.inside, "restore_copies")
        self.server.inside(f'change "{database}" "{statements}"')

    def taken_away(self, what):
        """Takes a file of the private root away until the function that it returns is called."""
        self.server.inside(f'mv "{what}" "{what}.away"')
        self.addCleanup(lambda: self.server.inside(f'[ -e "{what}" ] || mv "{what}.away" "{what}"'))
        return lambda: self.server.inside(f'mv "{what}.away" "{what}"')

    def held(self):
        """Keeps the database busy until the function that it returns is called."""
        self.server.inside("hold")
        self.addCleanup(self.server.inside, "let_go")
        return lambda: self.server.inside("let_go")

    def screenshot(self, name):
        if stage.screenshots:
            stage.screenshots.mkdir(parents=True, exist_ok=True)
            self.browser.save_screenshot(str(stage.screenshots / f"web-{name}.png"))
