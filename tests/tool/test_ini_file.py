#!/usr/bin/env python3
"""What the tool's changes do to the bytes of an INI file, and how its writers wait for each other, where
the library is the one who writes such files. Elsewhere the system does, in its own way."""

import fcntl
import os
import shlex
import subprocess
import unittest

from test_ini import PLANT, IniCase
from tool_case import FAILED, TOOL, USAGE


class IniFile(IniCase):
    def test_replaces_a_value_and_nothing_else(self):
        self.assertEqual(self.ask("ini", "set", "plant.ini", "pump", "FLOW", "7").out, "replaced [pump] FLOW\n")
        self.assertEqual(self.read("plant.ini"), PLANT.replace("Flow = 12.5", "Flow=7"))

    def test_adds_lines_and_nothing_else(self):
        self.assertEqual(self.ask("ini", "set", "plant.ini", "Pump", "New", "1").out, "added [Pump] New\n")
        self.assertEqual(self.read("plant.ini"), PLANT.replace("On=yes\r\n", "On=yes\r\nNew=1\r\n"))
        self.ask("ini", "set", "plant.ini", "Valve", "New", "-1")
        self.assertTrue(self.read("plant.ini").endswith("[Valve]\r\nNew=-1\r\n"))

    def test_leaves_a_file_alone_that_holds_the_value(self):
        before = (self.folder / "plant.ini").stat()
        self.assertEqual(self.ask("ini", "set", "plant.ini", "Pump", "Flow", "12.5").out, "unchanged [Pump] Flow\n")
        after = (self.folder / "plant.ini").stat()
        self.assertEqual((before.st_ino, before.st_mtime_ns), (after.st_ino, after.st_mtime_ns))

    def test_removes_lines_and_nothing_else(self):
        self.assertEqual(self.ask("ini", "remove", "plant.ini", "Pump", "flow").out, "removed [Pump] flow\n")
        self.assertEqual(self.read("plant.ini"), PLANT.replace("Flow = 12.5\r\n", "").replace("Flow=99\r\n", ""))

    def test_shows_a_dry_run_as_a_diff(self):
        self.assertEqual(self.ask("ini", "set", "plant.ini", "Tank", "Level", "5", "--dry-run").out,
                         "--- plant.ini\n+++ plant.ini (after)\n@@ -6,7 +6,7 @@\n On=yes\r\n \r\n [Tank]\r\n"
                         "-Level=70000\r\n+Level=5\r\n flag\r\n Level=2\r\n [pump]\r\n")

    def test_lets_many_processes_write_at_once(self):
        each = 2 if "KW_SANITIZED" in os.environ else 10
        script = f'for i in $(seq {each}); do {shlex.join(TOOL)} ini set many.ini s "$0-$i" x >/dev/null || exit 1; done'
        writers = [subprocess.Popen(["sh", "-c", script, str(n)], cwd=self.folder) for n in range(10)]
        self.assertEqual([writer.wait() for writer in writers], [0] * 10)
        self.assertEqual(self.ask("ini", "list", "many.ini").out, f"s\t{10 * each}\n")

    def test_gives_up_waiting_for_another_writer(self):
        with open(self.folder / "plant.ini.kwtmp", "wb") as other:
            fcntl.flock(other, fcntl.LOCK_EX)
            self.refuse("ini", "set", "plant.ini", "Pump", "Flow", "1", "--wait", "0.1", code=FAILED,
                        message="cannot rewrite 'plant.ini': another process was still writing it after 0.1 s")
        self.assertEqual(self.read("plant.ini"), PLANT)

    def test_finds_an_absolute_name_in_any_case(self):
        self.assertEqual(self.ask("ini", "get", str(self.folder / "Plant.ini"), "Pump", "Flow").out, "12.5\n")

    def test_refuses_a_key_that_would_be_a_comment(self):
        for value in ("v", ""):
            self.refuse("ini", "set", "plant.ini", "Pump", ";k", value, code=USAGE,
                        message="an entry ';k' of section 'Pump' cannot be read back")
        self.assertEqual(self.read("plant.ini"), PLANT)


if __name__ == "__main__":
    unittest.main()
