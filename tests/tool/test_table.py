#!/usr/bin/env python3
"""Tables of entities, as text and as drawings."""

import unittest
import xml.etree.ElementTree

from tool_case import FAILED, NOT_FOUND, PLANT, ToolCase, system_text


class Table(ToolCase):
    def setUp(self):
        super().setUp()
        self.write("plant.ent", PLANT)

    def test_shows_rows_in_columns(self):
        self.write("plant.ent", "NODE id 'B2' TBLE 0.5 'a b' <\r\n10 x < 3 y <\r\n7 z\r\ntble node\r\n")
        self.assertEqual(self.ask("table", "plant.ent", "NODE", "b2").out, "0.5  a b\n 10    x\n  3    y\n  7    z\n")

    def test_shows_csv(self):
        self.write("plant.ent", "NODE id 'B2' TBLE 0.5 'a, b' <\r\ntble node\r\n")
        self.assertEqual(self.ask("table", "plant.ent", "NODE", "B2", "--csv").raw, b'0.5,"a, b"\r\n')

    def test_shows_json(self):
        self.assertEqual(self.ask("table", "plant.ent", "NODE", "B2", "--json").json, [["0.0", "1.5"], ["1.0", "2.5"]])

    def test_shows_the_table_of_the_first_entity(self):
        self.write("plant.ent", "NODE nm 'x'\r\nTBLE\r\n1 2 <\r\ntble node\r\n")
        self.assertEqual(self.ask("table", "plant.ent", "NODE").out, "1  2\n")

    def test_takes_the_type_in_any_case(self):
        self.write("plant.ent", "LINK id 'L' fr 'node' link\r\nNODE nm 'x' TBLE\r\n1 2 <\r\ntble node\r\n")
        self.assertEqual(self.ask("table", "plant.ent", "node").out, "1  2\n")

    def test_draws_on_the_terminal(self):
        lines = self.ask("table", "plant.ent", "NODE", "B2", "--plot").out.splitlines()
        self.assertEqual(len(lines), 18)
        self.assertTrue(all(len(line) <= 80 for line in lines))
        self.assertTrue(any("┤" in line for line in lines))
        self.assertTrue(lines[-1].strip().startswith("0") and lines[-1].endswith("1"))
        # A rising line: dots in the upper right and the lower left corner.
        self.assertGreater(ord(lines[0].rstrip()[-1]), 0x2800)
        self.assertGreater(ord(lines[15].split("│" if "│" in lines[15] else "┤")[1][0]), 0x2800)

    def test_draws_into_a_file(self):
        self.assertEqual(self.ask("table", "plant.ent", "NODE", "B2", "--svg", "curve.svg").out, "")
        root = xml.etree.ElementTree.fromstring(self.read("curve.svg"))
        space = "{http://www.w3.org/2000/svg}"
        self.assertEqual(root.find(f"{space}text").text, "NODE B2")
        points = root.find(f"{space}polyline").get("points").split()
        self.assertEqual([point.split(",")[0] for point in points], ["80.00", "780.00"])
        self.assertEqual([point.split(",")[1] for point in points], ["450.00", "40.00"])

    def test_draws_a_single_column_over_the_row_numbers(self):
        self.write("plant.ent", "NODE id '1'\r\nTBLE\r\n5\r\n5\r\ntble node\r\n")
        self.ask("table", "plant.ent", "NODE", "1", "--svg", "curve.svg")
        points = xml.etree.ElementTree.fromstring(self.read("curve.svg")).find(
            "{http://www.w3.org/2000/svg}polyline").get("points")
        self.assertEqual(points, "80.00,245.00 780.00,245.00")

    def test_says_what_cannot_be_drawn(self):
        self.write("plant.ent", "NODE id '1'\r\nTBLE\r\n5 x\r\ntble node\r\nNODE id '2'\r\nTBLE\r\n5 6\r\n7\r\ntble node\r\n")
        self.refuse("table", "plant.ent", "NODE", "1", "--plot", code=FAILED,
                    message="the table cannot be drawn: 'x' in row 1 is no number")
        self.refuse("table", "plant.ent", "NODE", "2", "--plot", code=FAILED,
                    message="the table cannot be drawn: row 2 has another number of cells")

    def test_says_what_is_not_there(self):
        self.refuse("table", "plant.ent", "NODE", "B1", code=NOT_FOUND,
                    message="there is no table of NODE B1 in 'plant.ent'")
        self.refuse("table", "plant.ent", "NODE", "B7", code=NOT_FOUND, message="there is no NODE B7 in 'plant.ent'")
        self.refuse("table", "none.ent", "NODE", "B1", code=FAILED,
                    message="cannot read the table of NODE B1 in 'none.ent': File not found")

    def test_says_why_a_drawing_cannot_be_written(self):
        self.refuse("table", "plant.ent", "NODE", "B2", "--svg", "no/curve.svg", code=FAILED,
                    message="cannot write the drawing 'no/curve.svg': Path not found"
                            + system_text(" (No such file or directory)", ""))


if __name__ == "__main__":
    unittest.main()
