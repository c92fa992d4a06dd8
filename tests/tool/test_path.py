#!/usr/bin/env python3
"""Paths as Windows writes them."""

import unittest

from tool_case import FAILED, USAGE, ToolCase, system_text


class Path(ToolCase):
    def windows_folder(self):
        # Under Wine, Z: is the root of the file system.
        return system_text("C:", "Z:") + str(self.folder.resolve()).replace("/", "\\")

    def test_makes_absolute(self):
        self.assertEqual(self.ask("path", "abs", "data\\in.txt", "--base", "D:\\proj\\model.ini").out,
                         "D:\\proj\\data\\in.txt\n")
        self.assertEqual(self.ask("path", "abs", "..\\in.txt", "--base", "D:\\proj\\x\\", "--json").json,
                         {"path": "D:\\proj\\in.txt"})

    def test_counts_from_the_current_directory(self):
        self.assertEqual(self.ask("path", "abs", "in.txt").out, self.windows_folder() + "\\in.txt\n")
        self.assertEqual(self.ask("path", "rel", self.windows_folder() + "\\in.txt").out, "\\in.txt\n")

    def test_makes_relative(self):
        self.assertEqual(self.ask("path", "rel", "C:\\Work\\Data\\X.txt", "--base", "C:\\work\\").out, "data\\x.txt\n")

    def test_splits(self):
        self.assertEqual(self.ask("path", "split", "C:\\a\\b.tar.gz").out, "path\tC:\\a\\\nname\tb\next\ttar.gz\n")
        self.assertEqual(self.ask("path", "split", "b", "--json").json, {"path": "", "name": "b", "ext": ""})

    def test_says_why_a_path_cannot_be_converted(self):
        self.refuse("path", "abs", "C:\\a:b", code=FAILED,
                    message="cannot make 'C:\\a:b' absolute: Illegal path 'C:\\a:b', a colon may only occur on position 2")
        self.refuse("path", "abs", "1:\\a", code=FAILED,
                    message="cannot make '1:\\a' absolute: Error in MakeAbsolute: Device unavailable")
        self.refuse("path", "abs", "\\\\server\\share", code=FAILED,
                    message="cannot make '\\\\server\\share' absolute: it is a network path")

    def test_refuses_a_climb_above_the_root(self):
        self.assertEqual(self.run_tool("path", "abs", "C:\\..\\x").code, FAILED)

    def test_refuses_what_is_no_path(self):
        self.refuse("path", "abs", "", code=USAGE, message="the path is empty")
        self.refuse("path", "rel", "C:\\x", "--base", "C:", code=USAGE, message="the base 'C:' holds no '\\'")


if __name__ == "__main__":
    unittest.main()
