#!/usr/bin/python3
"""The web page as its user sees it, in a browser.

    browser_test.py PROGRAMS [--screenshots DIR] [unittest options...]

PROGRAMS is the directory of the CGI programs. With --screenshots the pictures of the README are taken anew.
"""

import argparse
import json
import pathlib
import sys
import unittest
import urllib.error
import urllib.request

from selenium.common.exceptions import NoSuchElementException, StaleElementReferenceException
from selenium.webdriver.common.by import By
from selenium.webdriver.common.keys import Keys
from selenium.webdriver.support.wait import WebDriverWait

from web_stack import Browser, Server

arguments = argparse.ArgumentParser()
arguments.add_argument("programs", type=pathlib.Path)
arguments.add_argument("--screenshots", type=pathlib.Path)
options, unittest_options = arguments.parse_known_args()


def setUpModule():
    global server, browser
    server = Server(options.programs)
    unittest.addModuleCleanup(server.close)
    browser = Browser()
    unittest.addModuleCleanup(browser.quit)


class PageTest(unittest.TestCase):
    section = "access-points"
    expects_console_errors = False

    def setUp(self):
        browser.resize(1100, 780)
        browser.execute_cdp_cmd("Input.dispatchMouseEvent", {"type": "mouseMoved", "x": 0, "y": 0})
        browser.get("about:blank")
        browser.get(f"{server.address}#{self.section}")

    def tearDown(self):
        errors = browser.get_log("browser")
        if not self.expects_console_errors:
            self.assertEqual(errors, [])

    def find(self, selector):
        return browser.find_element(By.CSS_SELECTOR, selector)

    def texts(self, selector):
        """Of the elements that are shown."""
        shown = [e for e in browser.find_elements(By.CSS_SELECTOR, selector) if e.is_displayed()]
        return [element.text for element in shown]

    def text(self, selector):
        return " ".join(self.texts(selector))

    def eventually(self, expected, actual):
        """Waits until actual() is what is expected."""
        seen = []

        def reached(_):
            seen[:] = [actual()]
            return seen[0] == expected

        try:
            WebDriverWait(browser, 10, 0.05, [StaleElementReferenceException, NoSuchElementException]).until(reached)
        except Exception as error:
            raise AssertionError(f"expected {expected!r}, last seen {seen!r}") from error

    def press(self, text, within="body"):
        buttons = browser.find_elements(By.CSS_SELECTOR, f"{within} button")
        next(b for b in buttons if b.is_displayed() and b.text.startswith(text)).click()

    def screenshot(self, name):
        if options.screenshots:
            options.screenshots.mkdir(parents=True, exist_ok=True)
            browser.save_screenshot(str(options.screenshots / f"web-{name}.png"))


class AccessPoints(PageTest):
    def names(self):
        return self.texts("#access-points-rows th button")

    def rows(self, count):
        self.eventually(count, lambda: len(self.names()))

    def search(self, text):
        self.find("#search").clear()
        self.find("#search").send_keys(text)

    def test_pages_through_20_access_points(self):
        self.rows(17)
        self.assertEqual(self.names()[0], "Lobby 大堂")
        self.assertEqual(self.text("#page-range"), "1–17 of 20")
        self.assertEqual(self.text("#page-number"), "Page 1 of 2")
        self.assertFalse(self.find("#page-previous").is_enabled())
        self.screenshot("access-points")
        self.press("Next")
        self.rows(3)
        self.assertEqual(self.names()[0], "Workshop 工具间")
        self.assertEqual(self.text("#page-range"), "18–20 of 20")
        self.assertFalse(self.find("#page-next").is_enabled())
        self.press("Previous")
        self.rows(17)

    def test_tells_totals_and_the_state_of_each(self):
        self.rows(17)
        self.assertEqual(self.texts(".tiles dd"), ["20", "17", "3", "107"])
        lobby = self.find("#access-points-rows tr").text.split("\n")
        self.assertEqual(lobby, ["Lobby 大堂", "Dual-band ceiling", "Online", "192.168.1.11", "3C:5A:B4:20:00:0B",
                                 "Hotel 酒店 channel 1", "Hotel 5G channel 36", "17", "2026-03-20 08:47:22"])
        self.assertEqual(self.find("#access-points-rows .fill").get_attribute("style"), "width: 89%;")

    def test_filters_by_state(self):
        self.rows(17)
        self.find("input[value=offline] + span").click()
        self.eventually(["Garden 花园", "Second floor west 二楼西", "Workshop 工具间"], self.names)
        self.assertEqual(self.text("#page-number"), "Page 1 of 1")
        self.assertEqual(set(self.texts("#access-points-rows .badge")), {"Offline"})
        self.find("input[value=online] + span").click()
        self.eventually("1–17 of 17", lambda: self.text("#page-range"))

    def test_searches_by_address_and_by_mac(self):
        self.rows(17)
        self.search("1.2")
        self.eventually("1–10 of 10", lambda: self.text("#page-range"))
        self.search("00:0d")
        self.eventually(["Restaurant 餐厅"], self.names)
        self.search("10.9.9")
        self.eventually("No access point matches “10.9.9”.", lambda: self.text("#access-points-notice"))
        self.assertEqual(self.texts(".tiles dd"), ["20", "17", "3", "107"])
        self.search("it's")
        self.eventually("An address has digits and dots, a MAC address 0–9, A–F and colons.",
                        lambda: self.text("#search-hint"))
        self.find("input[value=all] + span").click()
        self.rows(17)
        self.assertEqual(self.find("#search").get_attribute("value"), "")

    def test_shows_names_as_they_are_stored(self):
        self.search("1.30")
        self.eventually(["<img src=x onerror=alert(1)> & co"], self.names)
        self.assertEqual(browser.find_elements(By.CSS_SELECTOR, "main img"), [])
        self.press("<img")
        self.eventually("<img src=x onerror=alert(1)> & co", lambda: self.text("#stations-title"))

    def test_says_when_an_answer_cannot_be_read(self):
        self.search("02:DE:AD")
        self.eventually("The router's answer cannot be read. A name with a quotation mark or a backslash may be the "
                        "cause. Try again", lambda: self.text("#access-points-notice"))
        self.assertEqual(self.names(), [])
        self.find("input[value=all] + span").click()
        self.rows(17)

    def test_fits_a_phone(self):
        browser.resize(390, 844, phone=True)
        self.rows(17)
        self.assertEqual(browser.execute_script("return document.documentElement.scrollWidth"), 390)
        self.assertFalse(self.find("#access-points-table thead").is_displayed())
        self.screenshot("phone")
        self.press("Lobby")
        self.eventually(17, lambda: len(self.texts("#stations-rows tr")))
        dialog = self.find("#stations")
        self.assertLess(dialog.size["width"], 390)
        self.assertEqual(dialog.get_property("scrollWidth"), dialog.get_property("clientWidth"))


class Stations(PageTest):
    def open(self, search, key=None):
        self.find("#search").send_keys(search)
        self.eventually(1, lambda: len(self.texts("#access-points-rows th button")))
        button = self.find("#access-points-rows th button")
        button.send_keys(key) if key else button.click()

    def test_lists_the_stations_of_an_access_point(self):
        self.eventually(17, lambda: len(self.texts("#access-points-rows tr")))
        self.press("Meeting room")
        self.eventually(9, lambda: len(self.texts("#stations-rows tr")))
        self.assertEqual(self.text("#stations-title"), "Meeting room 会议室")
        self.assertEqual(self.texts("#stations-facts dd")[0], "192.168.1.17")
        stations = [station.split("\n") for station in self.texts("#stations-rows tr")]
        self.assertEqual(stations[0], ["02:09:AE:2B:00:3C", "strong, −45 dBm", "58 min"])
        self.assertEqual(stations[8], ["02:37:0F:C4:00:3E", "weak, −80 dBm", "24 min"])
        self.screenshot("stations")
        self.find("#stations-close").click()
        self.eventually("", lambda: self.text("#stations"))

    def test_opens_and_closes_with_the_keyboard(self):
        self.open("1.14", Keys.ENTER)
        self.eventually(3, lambda: len(self.texts("#stations-rows tr")))
        self.assertEqual(browser.switch_to.active_element.get_attribute("id"), "stations-close")
        browser.switch_to.active_element.send_keys(Keys.ESCAPE)
        self.eventually("", lambda: self.text("#stations"))
        self.assertEqual(browser.switch_to.active_element.text, "Kitchen 厨房")

    def test_says_that_an_access_point_is_offline(self):
        self.open("1.18")
        self.eventually("This access point is offline.", lambda: self.text("#stations-notice"))

    def test_says_that_there_is_no_station(self):
        self.open("1.30")
        self.eventually("No station is connected.", lambda: self.text("#stations-notice"))


class Groups(PageTest):
    section = "groups"

    def test_shows_a_key_on_demand_only(self):
        self.eventually(["Guests 客人", "Staff 员工", "Old devices 旧设备"], lambda: self.texts(".card h2"))
        self.assertEqual(self.texts(".card .badge"), ["Pre-shared key"] * 4 + ["WEP", "Open"])
        for key in ("good-morning", "correct horse", "battery staple", "0badcafe00"):
            self.assertNotIn(key, browser.page_source)
        self.find(".key button").click()
        self.assertEqual(self.texts(".key .code")[0], "good-morning")
        self.find(".key button").click()
        self.assertNotIn("good-morning", browser.page_source)


class Applications(PageTest):
    section = "applications"

    def test_shows_the_catalogue_in_both_languages(self):
        self.eventually(["视频", "音乐", "游戏", "社交", "购物", "学习", "办公", "更新"],
                        lambda: self.texts("#classes .chinese"))
        self.eventually(["影院", "短片", "直播", "动画"], lambda: self.texts("#applications li .chinese"))
        self.press("游戏")
        self.eventually(["象棋", "赛车", "冒险", "拼图", "钓鱼"], lambda: self.texts("#applications li .chinese"))
        self.assertEqual(self.texts("#applications li .english")[0], "Chess")
        self.screenshot("catalogue")
        self.press("更新")
        self.eventually("No application of this class is known.", lambda: self.text("#applications .notice"))


class Unreachable(PageTest):
    expects_console_errors = True

    def test_says_so_and_tries_again(self):
        self.eventually("Page 1 of 2", lambda: self.text("#page-number"))
        browser.set_network_conditions(offline=True, latency=0, throughput=0)
        self.press("Next")
        self.eventually("The router does not answer. Try again", lambda: self.text("#access-points-notice"))
        browser.delete_network_conditions()
        self.press("Try again")
        self.eventually("18–20 of 20", lambda: self.text("#page-range"))


class Requests(unittest.TestCase):
    """Without the browser: what the server makes of them."""

    def ask(self, path, **more):
        try:
            with urllib.request.urlopen(urllib.request.Request(server.address + path, **more)) as answer:
                return answer.status, answer.headers, answer.read()
        except urllib.error.HTTPError as error:
            return error.code, error.headers, error.read()

    def test_bad_input_is_refused(self):
        for path, error in (
                ("access-points?page=0", "page: a number from 1 to 9999"),
                ("access-points?ip=1%27+or+1", "ip: digits and dots, 15 at most"),
                ("access-points?mac=%25", "mac: hexadecimal digits and colons, 17 at most"),
                ("stations?ap=1.2.3.4%3Breboot", "ap: the address of an access point, such as 192.168.1.2"),
                ("catalogue?class=x", "class: a number from 1 to 9999"),
                ("zero-config-groups?x=1", "query: unknown parameter")):
            status, _, body = self.ask(f"cgi/{path}")
            self.assertEqual((status, json.loads(body)), (400, {"error": error}), path)

    def test_answers_come_with_their_headers(self):
        status, headers, body = self.ask("cgi/catalogue?class=1")
        self.assertEqual((status, headers["Content-Type"]), (200, "application/json; charset=utf-8"))
        self.assertIn("default-src 'self'", headers["Content-Security-Policy"])
        self.assertEqual(json.loads(body)["ItemList"]["count"], "4")

    def test_only_the_programs_and_the_page_are_served(self):
        for path, status in (("cgi/", 403), ("cgi/nothing", 404), ("cgi/..%2f..%2fCMakeCache.txt", 404),
                             ("../network.sql", 404), ("lighttpd.conf", 404), ("style.css", 200)):
            self.assertEqual(self.ask(path)[0], status, path)
        self.assertEqual(self.ask("", headers={"Host": "elsewhere.example"})[0], 403)
        self.assertEqual(self.ask("cgi/catalogue", data=b"class=1")[0], 405)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1] + unittest_options)
