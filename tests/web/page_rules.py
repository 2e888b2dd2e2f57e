"""URL filters and time groups, changed on the page."""

from selenium.webdriver.common.keys import Keys
from selenium.webdriver.support.select import Select

from page import PageTest


class Rules(PageTest):
    section = "url-filters"
    expects_console_errors = True  # refused changes stand there

    def setUp(self):
        super().setUp()
        self.addCleanup(self.server.inside, "restore_copies")
        self.eventually(["No videos 视频", "No games 游戏", "Quiet lobby 大堂"], self.filters)

    def filters(self):
        return self.texts("#filters-rows .name")

    def groups(self):
        return self.texts("#groups-rows .name")

    def row(self, table, number):
        """What stands in a row, beside its buttons."""
        cells = self.shown(f"#{table}-rows tr:nth-child({number}) > :not([data-label=Change])")
        return "\n".join(cell.text for cell in cells).split("\n")

    def button(self, name):
        return next(b for b in self.shown("main button") if b.accessible_name == name)

    def write(self, name, value):
        field = self.find(f"#rule-form [name={name}]")
        field.clear()
        field.send_keys(value)

    def set_hour(self, name, value):
        self.browser.execute_script("arguments[0].value = arguments[1]", self.find(f"#rule-form [name={name}]"), value)

    def choose_group(self, text):
        Select(self.find("#rule-form [name=group]")).select_by_visible_text(text)

    def store(self):
        self.press("Store", "#rule")

    def remove(self, name):
        self.button(f"Remove {name}").click()
        self.press("Remove", "#removal")

    def notice(self):
        return self.text("#rules-notice")

    def test_lists_filters_and_time_groups(self):
        self.assertEqual(self.row("filters", 1), ["No videos 视频", "In force", "video.example",
                                                  "Mon–Fri, 08:00–18:00", "Working hours 上班时间"])
        self.assertEqual(self.row("filters", 3),
                         ["Quiet lobby 大堂", "Off", "radio.example", "Sat, Sun, 09:00–12:00"])
        self.assertEqual(self.row("groups", 2), ["Quiet nights 安静夜晚", "every day, 22:00–23:59", "1 filter"])
        self.screenshot("url-filters")

    def test_adds_a_filter_with_times_of_its_own(self):
        self.press("Add a filter")
        self.assertEqual(self.text("#rule-title"), "Add a filter")
        self.write("name", "No \"news\" 100% \\ 新闻")
        self.write("url", "news.example/a?b=%27")
        for name in ("Monday", "Tuesday", "Wednesday", "Saturday"):
            self.find(f"#days input[aria-label={name}]").click()
        self.set_hour("from", "06:30")
        self.set_hour("to", "07:15")
        self.store()
        self.eventually("“No \"news\" 100% \\ 新闻” is stored.", self.notice)
        self.assertEqual(self.row("filters", 4), ["No \"news\" 100% \\ 新闻", "In force", "news.example/a?b=%27",
                                                  "Thu–Sat, 06:30–07:15"])
        self.assertEqual(self.focused().get_attribute("id"), "rules-notice")

    def test_edits_a_filter(self):
        self.button("Edit No games 游戏").click()
        self.assertEqual(self.find("#rule-form [name=name]").get_property("value"), "No games 游戏")
        self.assertEqual(self.find("#rule-form [name=mark]").get_property("value"), "The children may play by day")
        self.assertFalse(self.find("#own-times").is_displayed())
        self.choose_group("as “Working hours 上班时间”")
        self.find("#rule-form [name=status]").click()
        self.store()
        self.eventually("“No games 游戏” is stored.", self.notice)
        self.assertEqual(self.row("filters", 2), ["No games 游戏", "The children may play by day", "Off",
                                                  "games.example", "Mon–Fri, 08:00–18:00", "Working hours 上班时间"])
        self.assertEqual(self.texts("#groups-rows td[data-label='Followed by']"), ["2 filters", "0 filters"])

    def test_gives_a_filter_times_of_its_own(self):
        self.button("Edit No videos 视频").click()
        self.choose_group("at times of its own")
        self.assertTrue(self.find("#own-times").is_displayed())
        self.screenshot("url-filter-form")
        self.store()
        self.eventually("“No videos 视频” is stored.", self.notice)
        self.assertEqual(self.row("filters", 1),
                         ["No videos 视频", "In force", "video.example", "Mon–Fri, 08:00–18:00"])

    def test_changes_of_a_group_reach_its_filters(self):
        self.button("Edit Working hours 上班时间").click()
        self.assertEqual(self.texts("#rule-form .of-filter"), [])
        self.set_hour("from", "09:00")
        self.store()
        self.eventually("“Working hours 上班时间” is stored.", self.notice)
        self.assertEqual(self.row("filters", 1)[3], "Mon–Fri, 09:00–18:00")

    def test_adds_and_removes_a_group(self):
        self.press("Add a time group")
        self.write("name", "Breakfast 早餐")
        self.store()
        self.eventually(["Working hours 上班时间", "Quiet nights 安静夜晚", "Breakfast 早餐"], self.groups)
        self.button("Remove Breakfast 早餐").click()
        self.assertEqual(self.text("#removal-title"), "Remove the time group “Breakfast 早餐”?")
        self.press("Keep", "#removal")
        self.remove("Breakfast 早餐")
        self.eventually("“Breakfast 早餐” is removed.", self.notice)
        self.assertEqual(self.groups(), ["Working hours 上班时间", "Quiet nights 安静夜晚"])

    def test_removes_a_filter(self):
        self.remove("Quiet lobby 大堂")
        self.eventually(["No videos 视频", "No games 游戏"], self.filters)

    def test_keeps_a_group_that_filters_follow(self):
        self.remove("Quiet nights 安静夜晚")
        self.eventually("Rules still follow this time group. Nothing was removed. Show the list as it is",
                        lambda: self.text("#removal-notice"))
        self.assertEqual(len(self.groups()), 2)

    def test_says_what_a_value_has_to_be(self):
        name_words = "A name is needed, of at most 149 bytes and without apostrophes: ’ will do."
        for field, value, words in (
                ("name", "The children's hour", name_words), ("name", "", name_words), ("name", "视" * 50, name_words),
                ("url", "two words", "An address is needed, without blanks and quotation marks."),
                ("mark", "it's", "A remark has at most 151 bytes and no apostrophes: ’ will do.")):
            self.open(self.section)
            self.eventually(3, lambda: len(self.filters()))
            self.button("Edit Quiet lobby 大堂").click()
            self.write(field, value)
            self.store()
            self.eventually(words, lambda: self.text("#rule-notice"))
            self.assertEqual(self.focused().get_attribute("name"), field)
            self.assertEqual(self.focused().get_attribute("aria-invalid"), "true")
        self.write("mark", "it’s")
        self.store()
        self.eventually("“Quiet lobby 大堂” is stored.", self.notice)

    def test_says_what_times_have_to_be(self):
        self.button("Edit Quiet lobby 大堂").click()
        for name in ("Saturday", "Sunday"):
            self.find(f"#days input[aria-label={name}]").click()
        self.store()
        self.eventually("Choose at least one day.", lambda: self.text("#rule-notice"))
        self.find("#days input[aria-label=Sunday]").click()
        self.set_hour("from", "12:00")
        self.store()
        self.eventually("Say until when, later than it begins.", lambda: self.text("#rule-notice"))
        self.set_hour("from", "")
        self.store()
        self.eventually("Say from when, such as 20:30.", lambda: self.text("#rule-notice"))

    def test_changes_nothing_that_was_changed_elsewhere(self):
        self.button("Edit Quiet lobby 大堂").click()
        self.write("name", "Mine")
        self.sql("update filter_url set name='Theirs' where Id=3;")
        self.store()
        self.eventually("It was changed elsewhere since this page showed it. Nothing was stored. Show the list as it is",
                        lambda: self.text("#rule-notice"))
        self.press("Show the list", "#rule")
        self.eventually(["No videos 视频", "No games 游戏", "Theirs"], self.filters)
        self.assertEqual(self.text("#rule"), "")

    def test_says_when_the_service_goes_away_meanwhile(self):
        come_back = self.taken_away("$socket")
        self.remove("Quiet lobby 大堂")
        self.eventually("The service that keeps these rules is not running. Show the list as it is",
                        lambda: self.text("#removal-notice"))
        come_back()
        self.press("Show the list", "#removal")
        self.eventually(3, lambda: len(self.filters()))

    def test_says_when_it_is_not_known_what_became_of_a_change(self):
        let_go = self.held()
        self.remove("Quiet lobby 大堂")
        self.eventually("The service that keeps these rules is busy. Whether it was changed is not known: look at the "
                        "list. Show the list as it is", lambda: self.text("#removal-notice"))
        let_go()
        self.press("Show the list", "#removal")
        self.eventually(3, lambda: len(self.filters()))

    def test_goes_by_the_keyboard_alone(self):
        self.button("Add a filter").send_keys(Keys.ENTER)
        for keys in ("Evening", Keys.TAB, "evening.example", Keys.TAB, Keys.ARROW_DOWN, Keys.TAB, "by hand", Keys.ENTER):
            self.focused().send_keys(keys)
        self.eventually("“Evening” is stored.", self.notice)
        self.assertEqual(self.row("filters", 4), ["Evening", "by hand", "In force", "evening.example",
                                                  "Mon–Fri, 08:00–18:00", "Working hours 上班时间"])
        self.button("Remove Evening").send_keys(Keys.SPACE)
        self.focused().send_keys(Keys.ENTER)
        self.eventually("“Evening” is removed.", self.notice)
