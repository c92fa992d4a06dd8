"""What the tests of the built tool share: a folder of their own and a way to run it."""

import json
import os
import pathlib
import shlex
import subprocess
import tempfile
import unittest

# Words of a command line; the last one is the tool itself.
TOOL = shlex.split(os.environ["KW_TOOL"])
# Otherwise it is another system's, which words its errors in its own way.
NATIVE = len(TOOL) == 1


def system_text(native, other):
    """The system's own words for an error."""
    return native if NATIVE else other


DONE, NOT_FOUND, USAGE, FAILED = 0, 1, 2, 3

PLANT = (
    "; example data\r\n"
    "NODE id 'B1' nm 'Inlet' node\r\n"
    "/* retired:\r\n"
    "NODE id 'B9' nm 'Old' node\r\n"
    "*/\r\n"
    "LINK id 'L1' nm 'Main' fr 'B1' to 'B2'\r\n"
    "    ln 120.5 link\r\n"
    "NODE id 'B2' nm 'Outlet' TBLE 0.0 1.5 <\r\n"
    "1.0 2.5 <\r\n"
    "tble node\r\n")


class Answer:
    def __init__(self, done):
        self.code = done.returncode
        self.raw = done.stdout
        self.err = done.stderr.decode("utf-8")

    @property
    def out(self):
        return self.raw.decode("utf-8")

    @property
    def shown(self):
        return self.raw.decode("utf-8", "replace") + self.err

    @property
    def json(self):
        return json.loads(self.out)


class ToolCase(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="kwutils-")
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def write(self, name, content, encoding="cp1252"):
        if isinstance(content, str):
            content = content.encode(encoding)
        (self.folder / name).write_bytes(content)
        return name

    def read(self, name):
        return (self.folder / name).read_bytes().decode("cp1252")

    def run_tool(self, *words, stdin=b""):
        return Answer(subprocess.run([*TOOL, *words], cwd=self.folder, input=stdin,
                                     capture_output=True, timeout=300, check=False))

    def ask(self, *words, code=DONE, stdin=b""):
        """The answer of a command that must end with this status, and silently where it is done."""
        answer = self.run_tool(*words, stdin=stdin)
        self.assertEqual(answer.code, code, answer.shown)
        if code == DONE:
            self.assertEqual(answer.err, "")
        return answer

    def refuse(self, *words, code, message, stdin=b""):
        answer = self.run_tool(*words, stdin=stdin)
        self.assertEqual(answer.code, code, answer.shown)
        self.assertEqual(answer.err, "kwutils: " + message + "\n")
        return answer
