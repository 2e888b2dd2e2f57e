"""What the server makes of requests, without the browser."""

import concurrent.futures
import json
import os
import pathlib
import threading
import unittest
import urllib.error
import urllib.request

from page import stage


def ask(path, **more):
    try:
        with urllib.request.urlopen(urllib.request.Request(stage.server.address + path, **more)) as answer:
            return answer.status, answer.headers, answer.read()
    except urllib.error.HTTPError as error:
        return error.code, error.headers, error.read()


def running(program):
    """The processes of a program that run now: those of the private root are seen from here."""
    count = 0
    for process in pathlib.Path("/proc").glob("[0-9]*"):
        try:
            count += os.readlink(process / "exe") == str(stage.programs / program)
        except OSError:
            pass  # it has ended, or is another user's
    return count


class Requests(unittest.TestCase):
    def post(self, path, form, **headers):
        own = {"Origin": stage.server.address.rstrip("/"), "X-Page-Token": self.token()}
        headers = {name.replace("_", "-"): value for name, value in headers.items()}
        return ask(path, data=form, headers={**own, **headers})

    def token(self):
        return json.loads(ask("cgi/token")[2])["token"]

    def test_bad_input_is_refused(self):
        for path, error in (
                ("access-points?page=0", "page: a number from 1 to 9999"),
                ("access-points?ip=1%27+or+1", "ip: digits and dots, 15 at most"),
                ("access-points?mac=%25", "mac: hexadecimal digits and colons, 17 at most"),
                ("catalogue?class=x", "class: a number from 1 to 9999"),
                ("zero-config-groups?x=1", "query: unknown parameter")):
            status, _, body = ask(f"cgi/{path}")
            self.assertEqual((status, json.loads(body)), (400, {"error": error}), path)
        status, _, body = self.post("cgi/stations", b"ap=1.2.3.4%3Breboot")
        self.assertEqual((status, json.loads(body)),
                         (400, {"error": "ap: the address of an access point, such as 192.168.1.2"}))

    def test_only_the_page_changes_or_costs_something(self):
        for program, form in (("stations", b"ap=192.168.1.11"), ("url-filters", b"action=remove&id=1"),
                              ("time-groups", b"action=remove&id=1")):
            for headers, error in (({"Origin": "http://elsewhere.example"}, "origin: another page"),
                                   ({"Origin": "null"}, "origin: another page"),
                                   ({"X_Page_Token": "0" * 32}, "token: not that of this server")):
                status, _, body = self.post(f"cgi/{program}", form, **headers)
                self.assertEqual((status, json.loads(body)), (403, {"error": error}), (program, headers))
            self.assertEqual(ask(f"cgi/{program}", data=form)[0], 403, "neither says where it comes from")
        self.assertEqual(ask("cgi/stations?ap=192.168.1.11")[0], 405)
        self.assertEqual(self.post("cgi/stations", b"ap=192.168.1.11")[0], 200)

    def test_the_token_is_long_and_not_for_other_pages(self):
        status, headers, body = ask("cgi/token", headers={"Origin": "http://elsewhere.example"})
        self.assertEqual(status, 200)
        self.assertRegex(json.loads(body)["token"], "^[0-9a-f]{32}$")
        self.assertNotIn("Access-Control-Allow-Origin", headers)

    def test_many_requests_at_once_are_few_programs(self):
        most = 0
        done = threading.Event()

        def watch():
            nonlocal most
            while not done.is_set():
                most = max(most, running("stations"))

        watcher = threading.Thread(target=watch)
        token = self.token()
        headers = {"Origin": stage.server.address.rstrip("/"), "X-Page-Token": token}
        watcher.start()
        with concurrent.futures.ThreadPoolExecutor(150) as crowd:
            answers = list(crowd.map(lambda _: ask("cgi/stations", data=b"ap=192.168.1.11", headers=headers)[::2],
                                     range(150)))
        done.set()
        watcher.join()
        # Those who waited may have waited too long, where a disk is busy: each waits for it.
        self.assertEqual({body for status, body in answers if status != 200} -
                         {b'{"error":"requests: too many at once"}\n', b'{"error":"access point: slow"}\n'}, set())
        self.assertIn(200, [status for status, _ in answers])
        self.assertGreaterEqual(most, 1)
        self.assertLessEqual(most, 32)

    def test_answers_come_with_their_headers(self):
        status, headers, body = ask("cgi/catalogue?class=1")
        self.assertEqual((status, headers["Content-Type"]), (200, "application/json; charset=utf-8"))
        self.assertIn("default-src 'self'", headers["Content-Security-Policy"])
        self.assertEqual(json.loads(body)["ItemList"]["count"], "4")

    def test_only_the_programs_and_the_page_are_served(self):
        for path, status in (("cgi/", 403), ("cgi/nothing", 404), ("cgi/..%2f..%2fCMakeCache.txt", 404),
                             ("../network.sql", 404), ("lighttpd.conf", 404), ("style.css", 200)):
            self.assertEqual(ask(path)[0], status, path)
        self.assertEqual(ask("", headers={"Host": "elsewhere.example"})[0], 403)
        self.assertEqual(ask("cgi/catalogue", data=b"class=1")[0], 405)
