#!/usr/bin/env python3
"""Listing types, entities and identifiers."""

import unittest

from tool_case import FAILED, NOT_FOUND, PLANT, ToolCase, system_text


class List(ToolCase):
    def setUp(self):
        super().setUp()
        self.write("plant.ent", PLANT)

    def test_counts_the_types(self):
        self.assertEqual(self.ask("list", "plant.ent").out, "NODE\t2\nLINK\t1\n")
        self.assertEqual(self.ask("list", "plant.ent", "--json").json,
                         [{"type": "NODE", "count": 2}, {"type": "LINK", "count": 1}])

    def test_lists_the_entities_of_a_type(self):
        self.assertEqual(self.ask("list", "plant.ent", "node").out, "B1\tInlet\nB2\tOutlet\n")
        self.assertEqual(self.ask("list", "plant.ent", "LINK", "--json").json, [{"id": "L1", "name": "Main"}])

    def test_shows_what_an_entity_lacks_as_nothing(self):
        self.write("odd.ent", "NODE nm 'x' node\r\nNODE id '2' node\r\n")
        self.assertEqual(self.ask("list", "odd.ent", "NODE").out, "\tx\n2\t\n")
        self.assertEqual(self.ask("list", "odd.ent", "NODE", "--json").json, [{"name": "x"}, {"id": "2"}])

    def test_does_not_count_a_header(self):
        self.write("header.ent", "HEADER 1.2\r\nNODE id '1' node\r\n")
        self.assertEqual(self.ask("list", "header.ent").out, "NODE\t1\n")

    def test_counts_a_type_of_six_letters(self):
        self.write("six.ent", "REGION id '1' region\r\nREGION id '2' region\r\n")
        self.assertEqual(self.ask("list", "six.ent").out, "REGION\t2\n")

    def test_does_not_count_a_comment_at_the_end(self):
        self.write("comment.ent", "NODE id '1' node\r\n; end\r\n")
        self.assertEqual(self.ask("list", "comment.ent").out, "NODE\t1\n")

    def test_finds_nothing_in_an_empty_file(self):
        self.write("empty.ent", "")
        self.assertEqual(self.ask("list", "empty.ent", code=NOT_FOUND).out, "")
        self.assertEqual(self.ask("list", "empty.ent", "--json", code=NOT_FOUND).json, [])

    def test_finds_nothing_of_another_type(self):
        self.assertEqual(self.ask("list", "plant.ent", "PIPE", code=NOT_FOUND).out, "")
        self.assertEqual(self.ask("list", "plant.ent", "PIPE", "--json", code=NOT_FOUND).json, [])

    def test_takes_file_names_in_any_script(self):
        self.write("Ωμέγα и 川.ent", PLANT)
        self.assertEqual(self.ask("ids", "Ωμέγα и 川.ent", "NODE").out, "B1\nB2\n")
        self.refuse("ids", "川 1.ent", "NODE", code=FAILED,
                    message="cannot list the identifiers of NODE in '川 1.ent': File not found")

    def test_says_which_file_is_missing(self):
        self.refuse("list", "none.ent", code=FAILED, message="cannot count the types in 'none.ent': File not found")
        self.refuse("list", "none.ent", "NODE", code=FAILED, message="cannot list NODE in 'none.ent': File not found")


class Ids(ToolCase):
    def test_lists_each_identifier_once(self):
        self.write("plant.ent", PLANT + "NODE id 'b1' nm 'Twin' node\r\n")
        self.assertEqual(self.ask("ids", "plant.ent", "node").out, "B1\nB2\n")
        self.assertEqual(self.ask("ids", "plant.ent", "node", "--json").json, ["B1", "B2"])

    def test_finds_none(self):
        self.write("plant.ent", PLANT)
        self.ask("ids", "plant.ent", "PIPE", code=NOT_FOUND)

    def test_says_which_file_is_missing(self):
        self.refuse("ids", "no/ids.ent", "NODE", code=FAILED,
                    message="cannot list the identifiers of NODE in 'no/ids.ent': "
                            "Path not found" + system_text(" (No such file or directory)", ""))


if __name__ == "__main__":
    unittest.main()
