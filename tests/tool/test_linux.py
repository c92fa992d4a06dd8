#!/usr/bin/env python3
"""What needs this system's own locks and devices: another writer, a full disk."""

import fcntl
import subprocess
import time
import unittest

from tool_case import DONE, FAILED, PLANT, TOOL, ToolCase


class Waiting(ToolCase):
    def setUp(self):
        super().setUp()
        self.write("plant.ent", PLANT)

    def test_waits_for_another_writer(self):
        with open(self.folder / "plant.tmp", "wb") as other:
            fcntl.flock(other, fcntl.LOCK_EX)
            waiting = subprocess.Popen([*TOOL, "put", "plant.ent", "NODE", "B1", "nm=Well"], cwd=self.folder,
                                       stdout=subprocess.PIPE, stderr=subprocess.PIPE)
            time.sleep(0.3)
            self.assertIsNone(waiting.poll())
        out, err = waiting.communicate(timeout=60)
        self.assertEqual((waiting.returncode, out, err), (DONE, b"replaced NODE B1\n", b""))

    def test_gives_up_waiting(self):
        with open(self.folder / "plant.tmp", "wb") as other:
            fcntl.flock(other, fcntl.LOCK_EX)
            self.refuse("put", "plant.ent", "NODE", "B1", "nm=Well", "--wait", "0.1", code=FAILED,
                        message="cannot rewrite 'plant.ent': Permission denied: 'plant.tmp' "
                                "(Resource temporarily unavailable)")
        self.assertEqual(self.read("plant.ent"), PLANT)


class FullDisk(ToolCase):
    def test_reports_an_answer_that_cannot_be_written(self):
        with open("/dev/full", "wb") as full:
            done = subprocess.run([*TOOL, "call"], stdout=full, stderr=subprocess.PIPE, check=False)
        self.assertEqual(done.returncode, FAILED)
        self.assertEqual(done.stderr, b"kwutils: cannot write the answer: No space left on device\n")


if __name__ == "__main__":
    unittest.main()
