"""The list of access points and the stations of each."""

from selenium.webdriver.common.keys import Keys

from page import PageTest, stage


class AccessPoints(PageTest):
    def names(self):
        return self.texts("#access-points-rows th button")

    def rows(self, count):
        self.eventually(count, lambda: len(self.names()))

    def search(self, text):
        self.find("#search").clear()
        self.find("#search").send_keys(text)

    def test_pages_through_20_access_points_and_says_that_there_are_more(self):
        self.rows(17)
        self.assertEqual(self.names()[0], "Lobby 大堂")
        self.assertEqual(self.text("#page-range"), "1–17 of 20, 3 more on the next page")
        self.assertLess(self.find("#page-range").location["y"], self.find("#access-points-table").location["y"])
        self.assertEqual(self.text("#page-number"), "Page 1 of 2")
        self.assertFalse(self.find("#page-previous").is_enabled())
        self.screenshot("access-points")
        self.press("Next 3")
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

    def test_searches_by_name_address_and_mac(self):
        self.rows(17)
        for text, found in (("poOl", ["Pool 泳池"]), ("餐厅", ["Restaurant 餐厅"]),
                            ("00:0d", ["Restaurant 餐厅"]), ("1.18", ["Garden 花园"]), ("二楼", [
                                "Second floor east 二楼东", "Second floor west 二楼西"])):
            self.search(text)
            self.eventually(found, self.names)
        self.search("1.2")
        self.eventually("1–10 of 10", lambda: self.text("#page-range"))
        self.search("192.168")
        self.eventually("1–17 of 20, 3 more on the next page", lambda: self.text("#page-range"))
        self.press("Next 3")
        self.eventually("18–20 of 20", lambda: self.text("#page-range"))
        self.search("it's 100% \"new\"")
        self.eventually("No access point matches “it's 100% \"new\"”.", lambda: self.text("#access-points-notice"))
        self.assertEqual(self.texts(".tiles dd"), ["20", "17", "3", "107"])

    def test_keeps_the_search_when_the_state_is_chosen(self):
        self.rows(17)
        self.search("floor")
        self.rows(6)
        self.find("input[value=offline] + span").click()
        self.eventually(["Second floor west 二楼西"], self.names)
        self.assertEqual(self.find("#search").get_attribute("value"), "floor")
        self.search("lobby")
        self.eventually("No access point that is offline matches “lobby”.", lambda: self.text("#access-points-notice"))
        self.find("input[value=all] + span").click()
        self.eventually(["Lobby 大堂"], self.names)

    def test_shows_names_as_they_are_stored(self):
        self.search("1.30")
        self.eventually(["<img src=x onerror=alert(1)> & co"], self.names)
        self.assertEqual(self.browser.find_elements("css selector", "main img"), [])
        self.press("<img")
        self.eventually("<img src=x onerror=alert(1)> & co", lambda: self.text("#stations-title"))

    def test_shows_all_others_beside_a_name_with_quotation_marks(self):
        self.rows(17)
        self.press("Next")
        self.eventually(["Workshop 工具间", "The \"blue\" one \\ \t", "<img src=x onerror=alert(1)> & co"],
                        lambda: [button.get_property("textContent")
                                 for button in self.shown("#access-points-rows th button")])
        self.assertEqual(self.texts("#access-points-rows tr:nth-child(2) td .code"),
                         ["192.168.1.29", "3C:5A:B4:20:00:1D"])
        self.assertEqual(self.text("#access-points-notice"), "")

    def test_says_how_many_it_cannot_show(self):
        self.sql("update DevInfo set Dev_Name='x\\\",\\\"m_dev_ip\\\":\\\"9\\\"9' where Dev_Ipaddress='192.168.1.12';")
        self.open(self.section)
        shown = {"exact": 16, "modern": 17}[stage.profile]
        self.rows(shown)
        words = "Access points that cannot be shown: 1. A name with quotation marks hides what belongs to it."
        self.assertEqual(self.text("#access-points-notice"), words if shown == 16 else "")

    def test_takes_lists_apart_that_are_no_json(self):
        for text, expected in (
                ('{"L":{"data":[{"a":"1","b":"x"y"},{"a":"2","b":"\\"},{"a":"","b":""}],"count":"2","more":"7"}}',
                 {"L": {"data": [{"a": "1", "b": 'x"y'}, {"a": "2", "b": "\\"}, {"a": "", "b": ""}], "count": "2",
                        "more": "7", "unread": 0}}),
                ('{"L":\n{"sta":[{"a":"1\n2","b":"3"},{"a":"","b":"" }],"count":"1"}}\n',
                 {"L": {"sta": [{"a": "1\n2", "b": "3"}, {"a": "", "b": ""}], "count": "1", "unread": 0}}),
                ('{"L":{"data":[{"a":"1","b":"2","b":"3"4"},{"a":"","b":""}],"count":"1"}}',
                 {"L": {"data": [{"a": "", "b": ""}], "count": "1", "unread": 1}}),
                ('{"L":{"data":[{"a":"1","b":"', None), ("Error: no such table", None), ("", None),
                ('{"L":{"count":"0"', None)):
            answer = self.browser.execute_async_script(
                "import('/recover.js').then((module) => arguments[1](module.recover(arguments[0]) ?? null))", text)
            self.assertEqual(answer, expected, text)

    def test_fits_a_phone(self):
        self.browser.resize(390, 844, phone=True)
        self.rows(17)
        self.assertEqual(self.browser.execute_script("return document.documentElement.scrollWidth"), 390)
        self.assertFalse(self.find("#access-points-table thead").is_displayed())
        self.screenshot("phone")
        self.press("Lobby")
        self.eventually(17, lambda: len(self.texts("#stations-rows tr")))
        dialog = self.find("#stations")
        self.assertLess(dialog.size["width"], 390)
        self.assertEqual(dialog.get_property("scrollWidth"), dialog.get_property("clientWidth"))


class Stations(PageTest):
    def find_one(self, search, key=None):
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
        self.find_one("1.14", Keys.ENTER)
        self.eventually(3, lambda: len(self.texts("#stations-rows tr")))
        self.assertEqual(self.focused().get_attribute("id"), "stations-close")
        self.focused().send_keys(Keys.ESCAPE)
        self.eventually("", lambda: self.text("#stations"))
        self.assertEqual(self.focused().text, "Kitchen 厨房")

    def test_says_that_an_access_point_is_offline(self):
        self.find_one("1.18")
        self.eventually("This access point is offline.", lambda: self.text("#stations-notice"))

    def test_says_that_there_is_no_station(self):
        self.find_one("1.30")
        self.eventually("No station is connected.", lambda: self.text("#stations-notice"))
