#!/usr/bin/env python3
"""What is seen of long work, on a terminal and in a pipe."""

import os
import pty
import subprocess
import threading
import time
import unittest

from tool_case import DONE, TOOL, ToolCase

PIECES = 12


class Progress(ToolCase):
    def feed(self, pipe):
        """Writes an entity file so slowly that reading it takes more than a second."""
        for number in range(PIECES):
            os.write(pipe, f"NODE id '{number}' node\r\n".encode() * 500)
            time.sleep(0.1)
        os.close(pipe)

    def list_slowly(self, errors):
        os.mkfifo(self.folder / "slow.ent")
        # Open before the tool looks: a pipe that nobody writes to is at its end at once.
        pipe = os.open(self.folder / "slow.ent", os.O_RDWR)
        feeder = threading.Thread(target=self.feed, args=(pipe,), daemon=True)
        feeder.start()
        answer = subprocess.run([*TOOL, "list", "slow.ent"], cwd=self.folder, stdout=subprocess.PIPE,
                                stderr=errors, timeout=60, check=False)
        feeder.join(10)
        self.assertEqual((answer.returncode, answer.stdout), (DONE, b"NODE\t%d\n" % (500 * PIECES)))
        return answer.stderr

    def test_is_shown_on_a_terminal_and_goes(self):
        terminal, errors = pty.openpty()
        self.list_slowly(errors)
        os.close(errors)
        shown = b""
        try:
            while piece := os.read(terminal, 4096):
                shown += piece
        except OSError:  # the other end is closed
            pass
        os.close(terminal)
        self.assertIn(b"\rslow.ent  0.1 MB", shown)
        self.assertTrue(shown.endswith(b" \r"), shown)

    def test_is_not_shown_in_a_pipe(self):
        self.assertEqual(self.list_slowly(subprocess.PIPE), b"")


if __name__ == "__main__":
    unittest.main()
