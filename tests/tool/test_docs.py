#!/usr/bin/env python3
"""The examples of the documents, carried out.

A fenced block "ent NAME" is the content of a file, with CR LF as line ends and in code page 1252 ("ent-utf8":
in UTF-8, "ent-lf": with LF). In a block "console", lines that begin with "$ " are commands for the shell; the
lines behind them are what is shown, and "[N]" is an exit status other than 0.

    test_docs.py            compares
    test_docs.py --update   writes what is shown into the documents
"""

import os
import pathlib
import re
import shlex
import subprocess
import sys
import tempfile
import unittest

from tool_case import TOOL

PROJECT = pathlib.Path(__file__).resolve().parents[2]
# Each document, and how many commands it has at least.
DOCUMENTS = {"README.md": 8, "docs/entity-files.md": 21, "docs/tool.md": 21}

FENCE = re.compile(r"^```(\S*) ?(.*?)\n(.*?)^```$", re.MULTILINE | re.DOTALL)
FORMS = {"ent": ("\r\n", "cp1252"), "ent-utf8": ("\r\n", "utf-8"), "ent-lf": ("\n", "cp1252"), "file": ("\n", "utf-8")}


class Document:
    """Carries out the examples of one document, from its beginning, in one folder."""

    def __init__(self, folder):
        self.folder = pathlib.Path(folder)
        self.commands = 0
        tools = self.folder.parent / "bin"
        tools.mkdir()
        (tools / "kwutils").write_text(f'#!/bin/sh\nexec {shlex.join(TOOL)} "$@"\n')
        (tools / "kwutils").chmod(0o755)
        self.environment = {**os.environ, "PATH": f"{tools}:{os.environ['PATH']}", "LC_ALL": "C.UTF-8"}

    def run(self, text):
        """The text with the answers that are really given."""
        return FENCE.sub(self.run_block, text)

    def run_block(self, match):
        kind, name, body = match.groups()
        if kind in FORMS:
            line_end, encoding = FORMS[kind]
            (self.folder / name).write_bytes(body.replace("\n", line_end).encode(encoding))
        elif kind == "console":
            body = "".join(self.run_command(line) for line in body.splitlines() if line.startswith("$ "))
        return f"```{kind}{' ' if name else ''}{name}\n{body}```"

    def run_command(self, line):
        self.commands += 1
        done = subprocess.run(line[2:], shell=True, cwd=self.folder, env=self.environment, timeout=300, check=False,
                              stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
        shown = done.stdout.decode("utf-8").replace("\r\n", "\n")
        if shown and not shown.endswith("\n"):
            shown += "\n"
        status = f"[{done.returncode}]\n" if done.returncode else ""
        return f"{line}\n{shown}{status}"


def really(text):
    with tempfile.TemporaryDirectory(prefix="kwutils-") as folder:
        work = pathlib.Path(folder) / "work"
        work.mkdir()
        document = Document(work)
        return document.run(text), document.commands


class Docs(unittest.TestCase):
    maxDiff = None

    def test_examples_show_what_is_really_shown(self):
        for name, least in DOCUMENTS.items():
            with self.subTest(name):
                text = (PROJECT / name).read_text(encoding="utf-8")
                shown, commands = really(text)
                self.assertMultiLineEqual(shown, text)
                self.assertGreaterEqual(commands, least)


if __name__ == "__main__":
    if sys.argv[1:] == ["--update"]:
        for document in DOCUMENTS:
            path = PROJECT / document
            path.write_text(really(path.read_text(encoding="utf-8"))[0], encoding="utf-8")
    else:
        unittest.main()
