#!/usr/bin/python3
"""The web page as its user sees it, in a browser.

    browser_test.py PROGRAMS [--screenshots DIR] [unittest options...]

PROGRAMS is the directory of the CGI programs. With --screenshots the pictures of the README are taken anew.
"""

import argparse
import pathlib
import sys
import unittest

from page import stage

MODULES = ["page_access_points", "page_accessibility", "page_rules", "page_sections", "page_states", "requests_test"]

arguments = argparse.ArgumentParser()
arguments.add_argument("programs", type=pathlib.Path)
arguments.add_argument("--screenshots", type=pathlib.Path)
options, unittest_options = arguments.parse_known_args()

stage.open(options.programs.resolve(), options.screenshots)
try:
    unittest.main(module=None, argv=sys.argv[:1] + MODULES + unittest_options)
finally:
    stage.close()
