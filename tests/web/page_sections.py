"""The sections that are only read, and what all have in common."""

from page import PageTest


class Sections(PageTest):
    def test_name_themselves_in_the_title(self):
        for section, title in (("groups", "Groups"), ("applications", "Applications"), ("url-filters", "Filters"),
                               ("access-points", "Access points")):
            self.find(f"nav a[href='#{section}']").click()
            self.eventually(f"{title} – Wi-Fi of the house", lambda: self.browser.title)
            self.assertEqual(self.texts("[aria-current]"), [title])
        self.eventually(17, lambda: len(self.texts("#access-points-rows tr")))


class Groups(PageTest):
    section = "groups"

    def test_shows_a_key_on_demand_only(self):
        self.eventually(["Guests 客人", "Staff 员工", "Old devices 旧设备"], lambda: self.texts(".card h2"))
        self.assertEqual(self.texts(".card .badge"), ["Pre-shared key"] * 4 + ["WEP", "Open"])
        for key in ("good-morning", "correct horse", "battery staple", "0badcafe00"):
            self.assertNotIn(key, self.browser.page_source)
        toggle = self.find(".key button")
        self.assertEqual(toggle.accessible_name, "Show key of Hotel 酒店, first radio of Guests 客人")
        toggle.click()
        self.assertEqual(self.texts(".key .code")[0], "good-morning")
        self.assertEqual(toggle.accessible_name, "Hide key of Hotel 酒店, first radio of Guests 客人")
        toggle.click()
        self.assertNotIn("good-morning", self.browser.page_source)
        names = [button.accessible_name for button in self.shown(".key button")]
        self.assertEqual(len(set(names)), 5)


class Applications(PageTest):
    section = "applications"

    def test_shows_the_catalogue_in_both_languages(self):
        self.eventually(["视频", "音乐", "游戏", "社交", "购物", "学习", "办公", "更新"],
                        lambda: self.texts("#classes .chinese"))
        self.eventually(["影院", "短片", "直播", "动画"], lambda: self.texts("#class-applications .chinese"))
        self.press("游戏")
        self.eventually(["象棋", "赛车", "冒险", "拼图", "钓鱼"], lambda: self.texts("#class-applications .chinese"))
        self.assertEqual(self.texts("#class-applications .english")[0], "Chess")
        self.screenshot("catalogue")
        self.press("更新")
        self.eventually("No application of this class is known.", lambda: self.text("#class-notice"))
