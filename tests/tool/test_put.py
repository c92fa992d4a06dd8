#!/usr/bin/env python3
"""Replacing and adding one entity, and the care that every rewrite takes."""

import os
import shlex
import subprocess
import unittest

from tool_case import DONE, FAILED, NATIVE, PLANT, TOOL, USAGE, ToolCase, system_text


class Put(ToolCase):
    def setUp(self):
        super().setUp()
        self.write("plant.ent", PLANT)

    def test_adds_at_the_end(self):
        self.assertEqual(self.ask("put", "plant.ent", "node", "B3", "nm=Well", "ln=120.5").out, "added node B3\n")
        self.assertTrue(self.read("plant.ent").endswith("tble node\r\nNODE id 'B3' nm 'Well' ln '120.5' node\r\n"))

    def test_replaces_in_place(self):
        self.assertEqual(self.ask("put", "plant.ent", "NODE", "b1", "nm=Well").out, "replaced NODE b1\n")
        self.assertIn("; example data\r\nNODE id 'b1' nm 'Well' node\r\n", self.read("plant.ent"))
        self.assertNotIn("Inlet", self.read("plant.ent"))

    def test_answers_in_json(self):
        self.assertEqual(self.ask("put", "plant.ent", "NODE", "B3", "nm=x", "--json").json,
                         {"done": "added", "type": "NODE", "id": "B3"})

    def test_makes_a_missing_file(self):
        self.ask("put", "fresh.ent", "NODE", "1", "nm=a")
        self.assertEqual(self.read("fresh.ent"), "NODE id '1' nm 'a' node\r\n")

    def test_quotes_as_the_notation_needs(self):
        self.ask("put", "plant.ent", "NODE", "B3", "nm=L'Aquila", "t=a=b")
        self.assertIn("NODE id 'B3' t 'a=b' nm \"L'Aquila\" node\r\n", self.read("plant.ent"))
        self.assertEqual(self.ask("get", "plant.ent", "NODE", "nm 'L'Aquila'", "--item", "id").out, "B3\n")

    def test_takes_a_whole_text(self):
        self.ask("put", "plant.ent", "NODE", "B3", "--text", "id 'B3' nm Well")
        self.assertIn("NODE id 'B3' nm Well node\r\n", self.read("plant.ent"))

    def test_takes_lines_from_standard_input(self):
        self.ask("put", "plant.ent", "NODE", "B3", "--text", "-", stdin=b"id 'B3'\nnm 'Well'\n")
        self.assertIn("NODE id 'B3'\r\nnm 'Well' node\r\n", self.read("plant.ent"))
        self.assertEqual(self.ask("get", "plant.ent", "NODE", "B3").out, "id 'B3'\nnm 'Well' \n")

    def test_refuses_a_text_of_another_identifier(self):
        self.refuse("put", "plant.ent", "NODE", "B3", "--text", "id 'B4'", code=USAGE,
                    message="the text's item id is 'B4', not 'B3'")
        self.assertEqual(self.read("plant.ent"), PLANT)

    def test_refuses_a_text_that_ends_the_entity_early(self):
        self.refuse("put", "plant.ent", "NODE", "B3", "--text", "id 'B3' node\nnm 'x'", code=USAGE,
                    message="the text cannot stand as one entity NODE B3")

    def test_refuses_a_text_that_hides_what_follows(self):
        self.refuse("put", "plant.ent", "NODE", "B3", "--text", "id 'B3'\n/* open", code=USAGE,
                    message="the text cannot stand as one entity NODE B3")

    def test_refuses_what_cannot_be_read_back(self):
        self.refuse("put", "plant.ent", "NODE", "B3", "nm=Łódź", code=USAGE,
                    message="cannot store nm \"Łódź\": 'Ł' (U+0141) is outside code page 1252")
        self.refuse("put", "plant.ent", "NODE", "O'B", "nm=x", code=USAGE,
                    message="\"O'B\" cannot be an identifier: an apostrophe in it cannot be looked up")
        self.refuse("put", "plant.ent", "NO DE", "1", "nm=x", code=USAGE,
                    message="'NO DE' cannot be the name of a type: it holds a blank")
        self.refuse("put", "plant.ent", "NODE", "1", "n m=x", code=USAGE,
                    message="'n m' cannot be a keyword: it holds a blank")
        self.assertEqual(self.read("plant.ent"), PLANT)

    def test_refuses_what_is_no_item(self):
        self.refuse("put", "plant.ent", "NODE", "1", "nm", code=USAGE,
                    message="'nm' is no item: it must be KEYWORD=VALUE")
        self.refuse("put", "plant.ent", "NODE", "1", "nm=a", "nm=b", code=USAGE, message="item nm is given twice")
        self.refuse("put", "plant.ent", "NODE", "1", code=USAGE,
                    message="give the items as KEYWORD=VALUE, or the whole text with --text")

    def test_refuses_to_replace_what_it_cannot_find_again(self):
        self.write("odd.ent", "NODE nm 'x' id '1' node\r\n")
        self.refuse("put", "odd.ent", "NODE", "1", "nm=y", code=FAILED,
                    message="cannot put NODE 1 in 'odd.ent': the file holds this identifier in an entity that does "
                            "not begin with it and cannot be replaced")
        self.assertEqual(self.read("odd.ent"), "NODE nm 'x' id '1' node\r\n")

    def test_does_not_take_a_quoted_text_for_the_identifier(self):
        self.ask("put", "plant.ent", "NODE", "B4", "nm=as id 'B5' says")
        self.ask("put", "plant.ent", "NODE", "B5", "nm=x")
        self.assertEqual(self.ask("get", "plant.ent", "NODE", "B4", "--item", "nm").out, "as id 'B5' says\n")

    def test_says_why_a_file_cannot_be_written(self):
        why = system_text("Path not found: 'no/plant.tmp' (No such file or directory)",
                          "Path not found")
        self.refuse("put", "no/plant.ent", "NODE", "1", "nm=x", code=FAILED,
                    message=f"cannot rewrite 'no/plant.ent': {why}")
        self.refuse("put", "n.e", "NODE", "1", "nm=x", code=FAILED,
                    message="cannot rewrite 'n.e': a name of fewer than five characters gives no name for "
                            "the temporary file")


class Rewriting(ToolCase):
    def setUp(self):
        super().setUp()
        self.write("plant.ent", PLANT)

    def test_shows_a_dry_run_as_a_diff(self):
        answer = self.ask("put", "plant.ent", "NODE", "B1", "nm=Well", "--dry-run")
        self.assertIn("\n-NODE id 'B1' nm 'Inlet' node\r\n+NODE id 'B1' nm 'Well' node\r\n", answer.out)
        self.assertEqual(self.read("plant.ent"), PLANT)
        self.assertEqual(os.listdir(self.folder), ["plant.ent"])

    def test_gives_a_diff_that_can_be_applied(self):
        self.write("page.ent", "NODE id '1' nm 'é' node\r\n\r\n")
        diff = self.ask("put", "page.ent", "NODE", "2", "nm=ü", "--dry-run").raw
        self.ask("put", "page.ent", "NODE", "2", "nm=ü")
        after = self.read("page.ent")
        self.write("page.ent", "NODE id '1' nm 'é' node\r\n\r\n")
        subprocess.run(["patch", "--binary", "-s", "page.ent"], input=diff, cwd=self.folder, check=True)
        self.assertEqual(self.read("page.ent"), after)

    def test_shows_a_dry_run_in_json(self):
        diff = self.ask("put", "plant.ent", "NODE", "B1", "nm=é", "--dry-run", "--json").json["diff"]
        self.assertIn("+NODE id 'B1' nm 'é' node\r\n", diff)

    def test_keeps_a_backup(self):
        self.ask("put", "--backup", "plant.ent", "NODE", "B1", "nm=Well")
        self.assertEqual(self.read("plant.ent~"), PLANT)
        before = self.read("plant.ent")
        self.ask("put", "plant.ent", "NODE", "B1", "nm=New", "--backup=.old")
        self.assertEqual(self.read("plant.ent.old"), before)

    def test_refuses_a_backup_that_is_the_file_itself(self):
        os.symlink("plant.ent", self.folder / "plant.ent~")
        self.refuse("put", "--backup", "plant.ent", "NODE", "B1", "nm=Well", code=FAILED,
                    message="cannot rewrite 'plant.ent': its backup 'plant.ent~' is the file itself")
        self.assertEqual(self.read("plant.ent"), PLANT)

    def test_changes_nothing_without_the_backup(self):
        self.refuse("put", "--backup=/x", "plant.ent", "NODE", "B1", "nm=Well", code=FAILED,
                    message="cannot rewrite 'plant.ent': Path not found: 'plant.ent/x'"
                            + system_text(" (Not a directory)", ""))
        self.assertEqual(self.read("plant.ent"), PLANT)
        self.assertEqual(os.listdir(self.folder), ["plant.ent"])

    def test_makes_no_backup_of_a_new_file(self):
        self.ask("put", "--backup", "fresh.ent", "NODE", "1", "nm=a")
        self.assertEqual(sorted(os.listdir(self.folder)), ["fresh.ent", "plant.ent"])

    def test_refuses_to_lose_a_file_named_tmp(self):
        self.write("plantfile", PLANT)
        self.write("tmp", "mine")
        self.refuse("put", "plantfile", "NODE", "1", "nm=x", code=FAILED,
                    message="cannot rewrite 'plantfile': its temporary file would be 'tmp' in the current directory, "
                            "and there is a file of that name; --force lets it be lost")
        self.assertEqual(self.read("tmp"), "mine")
        self.assertEqual(self.read("plantfile"), PLANT)
        self.ask("put", "plantfile", "NODE", "1", "nm=x", "--force")
        self.assertFalse((self.folder / "tmp").exists())

    def test_refuses_a_time_that_is_none(self):
        for seconds in ("nan", "-1", "1e300", "inf", "x"):
            self.refuse("put", "plant.ent", "NODE", "B1", "nm=Well", "--wait", seconds, code=USAGE,
                        message=f"--wait: '{seconds}' is no number of seconds; see 'kwutils put --help'")

    def test_lets_many_processes_write_at_once(self):
        quick_to_start = NATIVE and "KW_SANITIZED" not in os.environ
        each = 50 if quick_to_start else 5
        script = f'for i in $(seq {each}); do {shlex.join(TOOL)} put many.ent NODE "$0-$i" nm=x ' \
                 ">/dev/null || exit 1; done"
        writers = [subprocess.Popen(["sh", "-c", script, str(n)], cwd=self.folder) for n in range(20)]
        self.assertEqual([writer.wait() for writer in writers], [0] * 20)
        ids = self.ask("ids", "many.ent", "NODE").out.split()
        self.assertEqual(sorted(ids), sorted(f"{n}-{i}" for n in range(20) for i in range(1, each + 1)))


if __name__ == "__main__":
    unittest.main()
