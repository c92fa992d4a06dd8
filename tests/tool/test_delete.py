#!/usr/bin/env python3
"""Removing entities."""

import subprocess
import unittest

from tool_case import FAILED, NOT_FOUND, PLANT, TOOL, USAGE, ToolCase


class Delete(ToolCase):
    def setUp(self):
        super().setUp()
        self.write("plant.ent", PLANT)

    def test_removes_one(self):
        self.assertEqual(self.ask("delete", "plant.ent", "node", "b1").out, "deleted 1 node\n")
        self.assertEqual(self.ask("ids", "plant.ent", "NODE").out, "B2\n")

    def test_removes_several(self):
        self.assertEqual(self.ask("delete", "plant.ent", "NODE", "B1", "B2", "--json").json, {"deleted": 2, "missing": []})
        self.assertEqual(self.ask("list", "plant.ent").out, "LINK\t1\n")

    def test_removes_all_of_a_type(self):
        self.assertEqual(self.ask("delete", "plant.ent", "NODE", "--all").out, "deleted 2 NODE\n")
        self.assertEqual(self.ask("list", "plant.ent").out, "LINK\t1\n")

    def test_removes_every_bearer_of_an_identifier(self):
        self.write("twins.ent", "NODE id '1' nm 'a' node\r\nNODE id '2' node\r\nNODE id '1' nm 'b' node\r\n")
        self.assertEqual(self.ask("delete", "twins.ent", "NODE", "1").out, "deleted 2 NODE\n")
        self.assertEqual(self.read("twins.ent"), "NODE id '2' node\r\n")

    def test_reports_what_is_missing(self):
        answer = self.refuse("delete", "plant.ent", "NODE", "B1", "B7", code=NOT_FOUND,
                             message="there is no NODE B7 in 'plant.ent'")
        self.assertEqual(answer.out, "deleted 1 NODE\n")

    def test_answers_before_it_reports_what_is_missing(self):
        done = subprocess.run([*TOOL, "delete", "plant.ent", "NODE", "B1", "B7"], cwd=self.folder, check=False,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
        self.assertEqual(done.stdout, b"deleted 1 NODE\nkwutils: there is no NODE B7 in 'plant.ent'\n")

    def test_leaves_the_file_alone_when_nothing_is_found(self):
        self.write("plant.ent", "  NODE id '1' node")
        self.ask("delete", "plant.ent", "NODE", "7", code=NOT_FOUND)
        self.ask("delete", "plant.ent", "PIPE", "--all", code=NOT_FOUND)
        self.assertEqual(self.read("plant.ent"), "  NODE id '1' node")

    def test_refuses_what_it_cannot_find_again(self):
        self.write("odd.ent", "NODE nm 'x' id '1' node\r\n")
        self.refuse("delete", "odd.ent", "NODE", "1", code=FAILED,
                    message="cannot delete NODE 1 in 'odd.ent': the entity does not begin with its identifier")

    def test_shows_a_dry_run(self):
        self.assertIn("\n-NODE id 'B1' nm 'Inlet' node\r\n", self.ask("delete", "plant.ent", "NODE", "B1", "--dry-run").out)
        self.assertIn("\n-NODE id 'B1' nm 'Inlet' node\r\n", self.ask("delete", "plant.ent", "NODE", "--all", "--dry-run").out)
        self.assertEqual(self.read("plant.ent"), PLANT)

    def test_keeps_a_backup(self):
        self.ask("delete", "plant.ent", "NODE", "B1", "--backup")
        self.assertEqual(self.read("plant.ent~"), PLANT)

    def test_keeps_a_backup_of_what_was_there_before_all_of_it(self):
        twins = "NODE id '1' nm 'a' node\r\nNODE id '1' nm 'b' node\r\n"
        self.write("twins.ent", twins)
        self.ask("delete", "twins.ent", "NODE", "1", "--backup")
        self.assertEqual(self.read("twins.ent~"), twins)

    def test_makes_no_missing_file(self):
        self.refuse("delete", "none.ent", "NODE", "1", code=FAILED,
                    message="cannot delete NODE in 'none.ent': File not found")
        self.refuse("delete", "none.ent", "NODE", "--all", code=FAILED,
                    message="cannot delete NODE in 'none.ent': File not found")
        self.assertFalse((self.folder / "none.ent").exists())

    def test_wants_to_know_what(self):
        for words in ((), ("B1", "--all")):
            self.refuse("delete", "plant.ent", "NODE", *words, code=USAGE,
                        message="name the identifiers, or give --all for every entity of the type")


if __name__ == "__main__":
    unittest.main()
