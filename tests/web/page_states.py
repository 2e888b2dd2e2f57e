"""What the page says while it waits, when there is nothing, and when nothing can be had."""

from page import PageTest


class Waiting(PageTest):
    expects_console_errors = True

    def test_says_that_it_loads_then_that_the_database_is_busy(self):
        let_go = self.held()
        for section, words in (("access-points", "The database is busy: another program holds it."),
                               ("groups", "The database is busy: another program holds it."),
                               ("url-filters", "The service that keeps these rules is busy.")):
            self.open(section)
            self.eventually([f"{words} Try again"], lambda: self.texts("main .notice"))
            self.assertIn("Loading …", self.said(), section)
            self.assertEqual(self.texts("main table"), [], section)
            self.assertEqual(self.texts("main .pager"), [], section)
        let_go()
        self.press("Try again")
        self.eventually(["Working hours 上班时间", "Quiet nights 安静夜晚"], lambda: self.texts("#groups-rows .name"))

    def test_turns_no_page_while_it_waits(self):
        self.eventually("Page 1 of 2", lambda: self.text("#page-number"))
        let_go = self.held()
        self.press("Next")
        self.assertFalse(self.find("#page-next").is_enabled())
        self.assertFalse(self.find("#page-previous").is_enabled())
        self.assertEqual(self.find("#access-points-view").get_attribute("aria-busy"), "true")
        self.eventually("The database is busy: another program holds it. Try again",
                        lambda: self.text("#access-points-notice"))
        let_go()
        self.press("Try again")
        self.eventually("18–20 of 20", lambda: self.text("#page-range"))
        self.assertEqual(self.find("#access-points-view").get_attribute("aria-busy"), "false")

    def test_waits_ten_seconds_for_a_slow_answer(self):
        self.eventually("Page 1 of 2", lambda: self.text("#page-number"))
        self.browser.set_network_conditions(offline=False, latency=60000, throughput=500 * 1024)
        self.press("Next")
        self.eventually("The router has not answered within ten seconds. Try again",
                        lambda: self.text("#access-points-notice"))
        self.browser.delete_network_conditions()
        self.press("Try again")
        self.eventually("18–20 of 20", lambda: self.text("#page-range"))


class Away(PageTest):
    expects_console_errors = True

    def test_router(self):
        self.eventually("Page 1 of 2", lambda: self.text("#page-number"))
        self.browser.set_network_conditions(offline=True, latency=0, throughput=0)
        self.press("Next")
        self.eventually("The router does not answer. Try again", lambda: self.text("#access-points-notice"))
        self.browser.delete_network_conditions()
        self.press("Try again")
        self.eventually("18–20 of 20", lambda: self.text("#page-range"))

    def test_database(self):
        come_back = self.taken_away("$database")
        for section in ("groups", "url-filters", "access-points"):
            self.open(section)
            self.eventually(["The router’s database is not there. Try again"], lambda: self.texts("main .notice"))
            self.assertNotIn("quotation", " ".join(self.said()), section)
            self.assertEqual(self.texts("main table"), [], section)
        come_back()
        self.press("Try again")
        self.eventually(17, lambda: len(self.texts("#access-points-rows tr")))

    def check(self, what, section, words, rows):
        """While a file is away the section says so, and when it is back the button shows its rows."""
        come_back = self.taken_away(what)
        self.open(section)
        self.eventually([f"{words} Try again"], lambda: self.texts("main .notice"))
        self.assertEqual(self.texts(rows), [])
        come_back()
        self.press("Try again")
        self.eventually(True, lambda: len(self.texts(rows)) > 0)

    def test_catalogue(self):
        self.check("$catalogue", "applications", "The router’s database is not there.", "#classes button")

    def test_lock_file(self):
        self.check("$lock_file", "groups", "The router’s database is not ready: its lock file is missing.", ".card")

    def test_catalogue_between_two_questions(self):
        self.open("applications")
        self.eventually(4, lambda: len(self.texts("#class-applications li")))
        come_back = self.taken_away("$catalogue")
        self.press("游戏")
        self.eventually(["The router’s database is not there. Try again"], lambda: self.texts("main .notice"))
        self.assertEqual(self.texts("#class-applications li"), [])
        come_back()
        self.press("Try again")
        self.eventually(5, lambda: len(self.texts("#class-applications li")))

    def test_service(self):
        self.check("$socket", "url-filters", "The service that keeps these rules is not running.", "#rules button")

    def test_tables(self):
        self.sql("drop table DevInfo;")
        self.open("access-points")
        self.eventually(["The router’s database cannot be read. Try again"], lambda: self.texts("main .notice"))


class Empty(PageTest):
    def test_sections_say_so(self):
        self.sql("delete from DevInfo; delete from WlanZeroCfgGroupInfo; delete from filter_url; "
                 "delete from user_timegroup;")
        self.sql("delete from App_Class;", "$catalogue")
        for section, words in (("access-points", ["No access point is known yet."]),
                               ("groups", ["There is no zero-configuration group."]),
                               ("applications", ["The catalogue is empty."]),
                               ("url-filters", ["There is no filter yet.", "There is no time group yet."])):
            self.open(section)
            self.eventually(words, lambda: self.texts("main .notice, #filters-none, #groups-none"))
            self.assertEqual(self.texts("main table"), [], section)
