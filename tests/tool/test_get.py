#!/usr/bin/env python3
"""Looking up one entity."""

import unittest

from tool_case import FAILED, NOT_FOUND, PLANT, ToolCase, system_text


class Get(ToolCase):
    def setUp(self):
        super().setUp()
        self.write("plant.ent", PLANT)

    def test_shows_the_lines_of_an_entity(self):
        self.assertEqual(self.ask("get", "plant.ent", "link", "l1").out,
                         "id 'L1' nm 'Main' fr 'B1' to 'B2'\nln 120.5 \n")

    def test_finds_by_an_item(self):
        self.assertEqual(self.ask("get", "plant.ent", "NODE", "nm 'inlet'").out, "id 'B1' nm 'Inlet' \n")
        self.assertEqual(self.ask("get", "plant.ent", "NODE", "Inlet", "--by", "nm").out, "id 'B1' nm 'Inlet' \n")

    def test_shows_the_first_of_a_type(self):
        self.assertEqual(self.ask("get", "plant.ent", "NODE").out, "id 'B1' nm 'Inlet' \n")

    def test_shows_one_item(self):
        self.assertEqual(self.ask("get", "plant.ent", "NODE", "B2", "--item", "nm").out, "Outlet\n")
        self.assertEqual(self.ask("get", "plant.ent", "NODE", "B2", "--item", "nm", "--json").json,
                         {"item": "nm", "value": "Outlet"})

    def test_leaves_the_table_out(self):
        self.assertEqual(self.ask("get", "plant.ent", "NODE", "B2", "--without-table").out,
                         "id 'B2' nm 'Outlet' \n \n")

    def test_leaves_the_table_out_in_any_case(self):
        self.assertEqual(self.ask("get", "plant.ent", "node", "b2", "--without-table").out, "id 'B2' nm 'Outlet' \n \n")
        self.assertEqual(self.ask("get", "plant.ent", "node", "Outlet", "--by", "nm", "--without-table").out,
                         "id 'B2' nm 'Outlet' \n \n")
        self.write("first.ent", "LINK id 'L1' fr 'NODE' link\r\nNODE nm 'x' TBLE\r\n1 2\r\ntble node\r\n")
        self.assertEqual(self.ask("get", "first.ent", "node", "--without-table").out, "nm 'x' \n \n")

    def test_says_that_a_table_cannot_be_left_out(self):
        self.write("grid.ent", "NODE grid '2' id '1' node\r\nNODE id '2' TBLE\r\n1 2\r\ntble node\r\n")
        for words in (("get", "grid.ent", "NODE", "2", "--without-table"), ("table", "grid.ent", "NODE", "2")):
            self.refuse(*words, code=FAILED,
                        message="cannot reach the table of NODE 2 in 'grid.ent': another entity looks like this one")

    def test_looks_from_a_position_on(self):
        start = PLANT.index("NODE id 'B2'") + 1
        self.assertEqual(self.ask("get", "plant.ent", "NODE", "B2", "--at", str(start)).code, 0)
        self.ask("get", "plant.ent", "NODE", "B1", "--at", str(start), code=NOT_FOUND)

    def test_answers_in_json(self):
        self.assertEqual(self.ask("get", "plant.ent", "LINK", "L1", "--json").json,
                         {"type": "LINK", "text": "id 'L1' nm 'Main' fr 'B1' to 'B2'\r\nln 120.5 ",
                          "items": {"id": "L1", "nm": "Main", "fr": "B1", "to": "B2"}})

    def test_tells_characters_of_the_code_page(self):
        self.write("page.ent", "NODE id '1' nm 'Žižka €5' node\r\n")
        self.assertEqual(self.ask("get", "page.ent", "NODE", "1", "--item", "nm").out, "Žižka €5\n")

    def test_says_what_is_not_there(self):
        self.refuse("get", "plant.ent", "NODE", "B9", code=NOT_FOUND, message="there is no NODE B9 in 'plant.ent'")
        self.refuse("get", "plant.ent", "PIPE", code=NOT_FOUND, message="there is no PIPE in 'plant.ent'")
        self.refuse("get", "plant.ent", "NODE", "B1", "--item", "ln", code=NOT_FOUND,
                    message="there is no item ln of NODE B1 in 'plant.ent'")

    def test_says_which_file_is_missing(self):
        self.refuse("get", "none.ent", "NODE", "B1", code=FAILED,
                    message="cannot look for NODE B1 in 'none.ent': File not found")

    def test_says_why_a_file_cannot_be_read(self):
        self.refuse("get", ".", "NODE", "B1", code=FAILED,
                    message="cannot look for NODE B1 in '.': Permission denied "
                            f"({system_text('Is a directory', 'Access denied')})")


if __name__ == "__main__":
    unittest.main()
