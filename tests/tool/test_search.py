#!/usr/bin/env python3
"""Searching, counting and choosing identifiers."""

import unittest

from tool_case import FAILED, NOT_FOUND, PLANT, USAGE, ToolCase


class Search(ToolCase):
    def setUp(self):
        super().setUp()
        self.write("plant.ent", PLANT)

    def test_lists_identifiers_and_names(self):
        self.assertEqual(self.ask("search", "plant.ent", "node").out, "B1\tInlet\nB2\tOutlet\n")

    def test_shows_further_items(self):
        self.write("plant.ent", "NODE id '1' nm 'a' p '2' q '3' r '4' node\r\nNODE id '2' nm 'b' r '5' node\r\n")
        answer = self.ask("search", "plant.ent", "NODE", "--item", "p", "--item", "q", "--item", "r")
        self.assertEqual(answer.out, "1\ta\t2\t3\t4\n2\tb\t\t\t5\n")
        self.assertEqual(self.ask("search", "plant.ent", "NODE", "--item", "p", "--json").json,
                         [{"id": "1", "name": "a", "p": "2"}, {"id": "2", "name": "b", "p": ""}])

    def test_filters_by_a_value(self):
        self.assertEqual(self.ask("search", "plant.ent", "NODE", "--where", "nm=Outlet").out, "B2\tOutlet\n")
        self.ask("search", "plant.ent", "NODE", "--where", "nm=outlet", code=NOT_FOUND)

    def test_filters_by_a_value_with_an_apostrophe(self):
        self.ask("put", "plant.ent", "NODE", "B3", "nm=L'Aquila")
        self.assertEqual(self.ask("search", "plant.ent", "NODE", "--where", "nm=L'Aquila").out, "B3\tL'Aquila\n")

    def test_shows_positions_that_get_takes(self):
        lines = self.ask("search", "plant.ent", "NODE", "--seek").out.splitlines()
        self.assertEqual(lines[0], "1\tB1\tInlet")
        position = lines[1].split("\t")[0]
        self.assertEqual(int(position), PLANT.index("NODE id 'B2'") + 1)
        self.ask("get", "plant.ent", "NODE", "B2", "--at", position)
        found = self.ask("search", "plant.ent", "NODE", "--seek", "--json").json
        self.assertEqual(found[1]["position"], int(position))

    def test_chooses_other_items(self):
        self.assertEqual(self.ask("search", "plant.ent", "LINK", "--id-item", "fr", "--name-item", "to").out, "B1\tB2\n")

    def test_shows_entities_without_identifier(self):
        self.write("plant.ent", "NODE nm 'a' p '1' node\r\nNODE id '2' nm 'b' p '2' node\r\n")
        self.assertEqual(self.ask("search", "plant.ent", "NODE", "--item", "p", "--seek").out, "-\t\ta\t1\n25\t2\tb\t2\n")
        self.assertEqual(self.ask("search", "plant.ent", "NODE", "--json").json, [{"name": "a"}, {"id": "2", "name": "b"}])

    def test_lists_parts(self):
        self.write("plant.ent", "NODE id '1' PORT id 'p' nm 'x' port PORT id 'q' nm 'y' port node\r\n")
        self.assertEqual(self.ask("search", "plant.ent", "NODE", "--part", "port").out, "p\tx\nq\ty\n")
        self.refuse("search", "plant.ent", "NODE", "--part", "port", "--seek", code=USAGE,
                    message="--part goes with neither --seek nor --item")

    def test_says_which_file_is_missing(self):
        self.refuse("search", "none.ent", "NODE", code=FAILED,
                    message="cannot search NODE in 'none.ent': File not found")

    def test_refuses_what_is_no_filter(self):
        self.refuse("search", "plant.ent", "NODE", "--where", "Outlet", code=USAGE,
                    message="'Outlet' is no item: it must be KEYWORD=VALUE")


class Count(ToolCase):
    def setUp(self):
        super().setUp()
        self.write("plant.ent", PLANT)

    def test_counts_entities(self):
        self.assertEqual(self.ask("count", "plant.ent", "node").out, "2\n")
        self.assertEqual(self.ask("count", "plant.ent", "LINK", "--json").json, {"count": 1})

    def test_counts_uses_of_a_value(self):
        self.assertEqual(self.ask("count", "plant.ent", "NODE", "--item", "nm=Inlet").out, "1\n")
        self.assertEqual(self.ask("count", "plant.ent", "NODE", "--id", "B2").out, "1\n")
        self.assertEqual(self.ask("count", "plant.ent", "NODE", "--item", "nm=inlet", code=NOT_FOUND).out, "0\n")

    def test_counts_both(self):
        self.assertEqual(self.ask("count", "plant.ent", "NODE", "--item", "nm=Inlet", "--id", "B1").out,
                         "both\t1\nitem\t1\nid\t1\n")
        self.assertEqual(self.ask("count", "plant.ent", "NODE", "--item", "nm=Inlet", "--id", "B2", "--json").json,
                         {"both": 0, "item": 1, "id": 1})

    def test_counts_none(self):
        self.assertEqual(self.ask("count", "plant.ent", "PIPE", code=NOT_FOUND).out, "0\n")

    def test_says_which_file_is_missing(self):
        self.refuse("count", "none.ent", "NODE", code=FAILED, message="cannot count NODE in 'none.ent': File not found")
        self.refuse("count", "none.ent", "NODE", "--id", "1", code=FAILED,
                    message="cannot count NODE in 'none.ent': File not found")


class NewId(ToolCase):
    def test_follows_the_largest_number(self):
        self.write("plant.ent", "NODE id '7' node\r\nNODE id 'A' node\r\nNODE id '3.6' node\r\n")
        self.assertEqual(self.ask("new-id", "plant.ent", "node").out, "8\n")
        self.assertEqual(self.ask("new-id", "plant.ent", "PIPE").out, "1\n")

    def test_keeps_a_proposed_one_that_is_free(self):
        self.write("plant.ent", PLANT)
        self.assertEqual(self.ask("new-id", "plant.ent", "NODE", "B7").out, "B7\n")
        self.assertEqual(self.ask("new-id", "plant.ent", "NODE", "b1", "--json").json, {"id": "1"})

    def test_says_which_file_is_missing(self):
        self.refuse("new-id", "none.ent", "NODE", code=FAILED,
                    message="cannot choose an identifier of NODE in 'none.ent': File not found")


if __name__ == "__main__":
    unittest.main()
