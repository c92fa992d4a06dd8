#!/usr/bin/env python3
"""What needs this system's own locks, permissions and devices."""

import fcntl
import os
import shlex
import shutil
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
                        message="cannot rewrite 'plant.ent': another process was still writing it after 0.1 s")
        self.assertEqual(self.read("plant.ent"), PLANT)

    def test_lets_many_processes_write_a_file_without_extension(self):
        each = 1 if "KW_SANITIZED" in os.environ else 5
        script = f'for i in $(seq {each}); do {shlex.join(TOOL)} put manyfile NODE "$0-$i" nm=x >/dev/null || exit 1; done'
        writers = [subprocess.Popen(["sh", "-c", script, str(n)], cwd=self.folder) for n in range(10)]
        self.assertEqual([writer.wait() for writer in writers], [0] * 10)
        self.assertEqual(self.ask("count", "manyfile", "NODE").out, f"{10 * each}\n")


class Permissions(ToolCase):
    def test_gives_a_backup_the_permissions_of_the_file(self):
        self.write("plant.ent", PLANT)
        os.chmod(self.folder / "plant.ent", 0o600)
        self.ask("put", "--backup", "plant.ent", "NODE", "B1", "nm=Well")
        self.assertEqual((self.folder / "plant.ent~").stat().st_mode & 0o777, 0o600)


class Registration(ToolCase):
    def test_looks_for_the_library_where_the_tool_is(self):
        tools = self.folder / "bin"
        tools.mkdir()
        shutil.copy(TOOL[0], tools / "kwutils")
        places = {**os.environ, "PATH": str(tools), "LD_LIBRARY_PATH": os.path.dirname(TOOL[0])}
        # Started by its name alone, from a folder that has nothing to do with it.
        done = subprocess.run(["kwutils", "register"], cwd="/", env=places, capture_output=True,
                              check=False)
        self.assertEqual(done.returncode, FAILED)
        self.assertIn(f"library '{self.folder.resolve()}/", done.stderr.decode())


class FullDisk(ToolCase):
    def test_reports_an_answer_that_cannot_be_written(self):
        with open("/dev/full", "wb") as full:
            done = subprocess.run([*TOOL, "call"], stdout=full, stderr=subprocess.PIPE, check=False)
        self.assertEqual(done.returncode, FAILED)
        self.assertEqual(done.stderr, b"kwutils: cannot write the answer: No space left on device\n")


if __name__ == "__main__":
    unittest.main()
