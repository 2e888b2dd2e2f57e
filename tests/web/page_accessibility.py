"""For everybody: what axe-core finds, keys, targets, forced colours."""

from selenium.webdriver.common.action_chains import ActionChains
from selenium.webdriver.common.keys import Keys

from page import PageTest, stage

FIND = """
const done = arguments[0];
axe.run({rules: {"target-size": {enabled: true}}}).then(
  ({violations}) => done(violations.map(({id, nodes}) => [id, nodes.map(({html, failureSummary}) =>
    [html.slice(0, 200), failureSummary])])),
  (error) => done([[String(error), []]]));
"""

# What can be used now, one of each group of radio buttons; inside a dialog that is open nothing else can.
USABLE = """
const root = document.querySelector("dialog[open]") ?? document;
return [...root.querySelectorAll("a[href], button, input, select")].filter((element) => element.checkVisibility() &&
  !element.disabled && (element.type !== "radio" || element.checked));
"""

# The area that can be hit: that of the label, for what lies in one.
AREA = """
const {x, width, height} = (arguments[0].closest("label") ?? arguments[0]).getBoundingClientRect();
return [x < 0 ? 24 : width, x < 0 ? 24 : height]; // the link that skips is beside the page until it has the focus
"""

FOCUS_IS_SEEN = """
const focused = document.activeElement;
return [focused, focused.nextElementSibling].some((element) => element &&
  getComputedStyle(element).outlineStyle !== "none" && parseFloat(getComputedStyle(element).outlineWidth) >= 2);
"""


class Views(PageTest):
    expects_console_errors = True  # that of the router's failure

    def access_points(self):
        self.open("access-points")
        self.eventually(17, lambda: len(self.texts("#access-points-rows tr")))

    def nothing_found(self):
        self.access_points()
        self.find("#search").send_keys("nobody")
        self.eventually("No access point matches “nobody”.", lambda: self.text("#access-points-notice"))

    def stations(self):
        self.access_points()
        self.press("Lobby")
        self.eventually(17, lambda: len(self.texts("#stations-rows tr")))

    def groups(self):
        self.open("groups")
        self.eventually(3, lambda: len(self.texts(".card h2")))

    def applications(self):
        self.open("applications")
        self.eventually(4, lambda: len(self.texts("#class-applications li")))

    def url_filters(self):
        self.open("url-filters")
        self.eventually(3, lambda: len(self.texts("#filters-rows tr")))

    def form(self):
        self.url_filters()
        self.press("Add a filter")

    def refused_form(self):
        self.form()
        self.press("Store", "#rule")
        self.eventually("true", lambda: self.find("#rule-form [name=name]").get_attribute("aria-invalid"))

    def removal(self):
        self.url_filters()
        self.press("Remove", "#filters-rows")

    def failure(self):
        self.open("access-points")
        come_back = self.taken_away("$database")
        self.open("groups")
        self.eventually(["The router’s database is not there. Try again"], lambda: self.texts("main .notice"))
        come_back()

    def views(self):
        return (self.access_points, self.nothing_found, self.stations, self.groups, self.applications,
                self.url_filters, self.form, self.refused_form, self.removal, self.failure)

    def each(self):
        """Every view, on a desktop and on a phone."""
        for width, height in ((1100, 780), (390, 844)):
            self.browser.resize(width, height, phone=width < 500)
            for view in self.views():
                view()
                yield f"{view.__name__}, {width} pixels wide"

    def test_axe_finds_nothing(self):
        for view in self.each():
            self.browser.execute_script(stage.axe)
            for scheme in ("light", "dark"):
                self.browser.prefer(prefers_color_scheme=scheme)
                self.assertEqual(self.browser.execute_async_script(FIND), [], f"{view}, {scheme}")

    def test_axe_finds_what_is_wrong(self):
        self.groups()
        self.browser.execute_script("document.querySelector('.key button').replaceChildren()")
        self.browser.execute_script(stage.axe)
        self.assertEqual([name for name, _ in self.browser.execute_async_script(FIND)], ["button-name"])

    def test_every_target_has_24_pixels_and_no_view_is_wider_than_its_screen(self):
        for view in self.each():
            size = self.browser.execute_script("return [innerWidth, document.documentElement.scrollWidth]")
            self.assertEqual(size[0], size[1], view)
            for element in self.browser.execute_script(USABLE):
                width, height = self.browser.execute_script(AREA, element)
                self.assertGreaterEqual(min(width, height), 24, f"{view}: {element.get_attribute('outerHTML')}")

    def test_the_tab_key_reaches_everything(self):
        for view in self.views():
            view()
            usable = self.browser.execute_script(USABLE)
            self.browser.execute_script("document.activeElement.blur()")
            reached = set()
            for _ in range(2 * len(usable) + 8):  # a field with hours has several stops
                ActionChains(self.browser).send_keys(Keys.TAB).perform()
                if self.focused().tag_name not in ("body", "html", "dialog", "main"):
                    self.assertTrue(self.browser.execute_script(FOCUS_IS_SEEN),
                                    self.focused().get_attribute("outerHTML"))
                reached.add(self.focused())
            missed = [element.get_attribute("outerHTML") for element in usable if element not in reached]
            self.assertEqual(missed, [], view.__name__)

    def test_forced_colours_mark_what_is_chosen_and_nothing_else(self):
        self.browser.prefer(forced_colors="active")
        self.access_points()
        line = "return getComputedStyle(arguments[0]).borderBottomStyle"
        underlined = [link.text for link in self.shown("nav[aria-label=Sections] a")
                      if self.browser.execute_script(line, link) != "none"]
        self.assertEqual(underlined, ["Access points"])
        ring = "return getComputedStyle(arguments[0]).outlineStyle"
        chosen = [label.text for label in self.shown(".choice span") if self.browser.execute_script(ring, label) != "none"]
        self.assertEqual(chosen, ["All"])
