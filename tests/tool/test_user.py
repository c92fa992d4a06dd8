#!/usr/bin/env python3
"""Who runs the tool."""

import os
import pwd
import unittest

from tool_case import ToolCase


class User(ToolCase):
    def test_shows_the_log_in_name(self):
        name = pwd.getpwuid(os.getuid()).pw_name.upper()
        self.assertEqual(self.ask("user").out, name + "\n")
        self.assertEqual(self.ask("user", "--json").json, {"user": name})


if __name__ == "__main__":
    unittest.main()
