#!/usr/bin/python3
"""Checks the metainfo for software centres, with and without web addresses.

Usage: metainfo_test.py SOURCE [unittest arguments]
"""

import os
import tempfile
import unittest
import xml.etree.ElementTree

from installation import run, take_argument

SOURCE = os.path.abspath(take_argument())
WRITER = os.path.join(os.path.dirname(os.path.abspath(__file__)), "write_metainfo.cmake")
PAGE = "https://wuffer.example.org/?a=1&b=2"
SCREENSHOTS = "https://wuffer.example.org/screenshots"


class MetainfoTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.file = os.path.join(folder.name, "org.wuffer.Wuffer.metainfo.xml")

    def write(self, page="", screenshots=""):
        run("cmake", f"-DWUFFER_WEB_PAGE={page}", f"-DWUFFER_SCREENSHOTS_URL={screenshots}",
            f"-DSOURCE={SOURCE}", f"-DFILE={self.file}", "-P", WRITER)
        run("appstreamcli", "validate", "--no-net", self.file)
        return xml.etree.ElementTree.parse(self.file).getroot()

    def test_without_addresses_none_is_given(self):
        component = self.write()
        self.assertIsNone(component.find("url"))
        self.assertIsNone(component.find("screenshots"))

    def test_the_web_page_is_given(self):
        component = self.write(page=PAGE)
        self.assertEqual([(url.get("type"), url.text) for url in component.findall("url")],
                         [("homepage", PAGE)])
        self.assertIsNone(component.find("screenshots"))

    def test_the_screenshots_are_those_in_the_folder(self):
        component = self.write(page=PAGE, screenshots=SCREENSHOTS)
        shown = {image.text for image in component.findall("screenshots/screenshot/image")}
        pictures = {file for file in os.listdir(os.path.join(SOURCE, "docs", "screenshots"))
                    if file.endswith(".png")}
        self.assertGreater(len(pictures), 0)
        self.assertEqual(shown, {f"{SCREENSHOTS}/{picture}" for picture in pictures})


if __name__ == "__main__":
    unittest.main(verbosity=2)
