#!/usr/bin/env python3
"""Entities as tables: the inverse of an import."""

import json
import random
import unittest

from tool_case import FAILED, NOT_FOUND, PLANT, ToolCase

PIECES = ["'", '"', " ", "a", "b", "nm", "id", ",", "x y", "é", "TBLE", "5", "\n", "ł"]


def random_value(source):
    return "".join(source.choice(PIECES) for _ in range(source.randrange(5)))


class Export(ToolCase):
    def test_writes_csv(self):
        self.write("plant.ent", "NODE id '1' nm 'a' node\r\nNODE id '2' ln '' x 'p, \"q\"' node\r\n")
        self.assertEqual(self.ask("export", "plant.ent", "node").raw,
                         b'id,nm,ln,x\r\n1,a,,\r\n2,,"","p, ""q"""\r\n')

    def test_writes_json(self):
        self.write("plant.ent", "NODE id '1' nm 'a' node\r\nNODE id '2' ln '' node\r\n")
        rows = [{"id": "1", "nm": "a"}, {"id": "2", "ln": ""}]
        self.assertEqual(self.ask("export", "plant.ent", "NODE", "--json").json, rows)
        self.assertEqual(self.ask("export", "plant.ent", "NODE", "--format", "json").json, rows)

    def test_says_what_it_leaves_out(self):
        self.write("plant.ent", PLANT + "NODE nm 'x' node\r\nNODE id 'b1' node\r\nNODE id '5' ln 1 2 node\r\n")
        answer = self.run_tool("export", "plant.ent", "NODE")
        self.assertEqual(answer.code, 0)
        self.assertEqual(answer.out, "id,nm,ln\r\nB1,Inlet,\r\nB2,Outlet,\r\n5,,1\r\n")
        self.assertEqual(answer.err,
                         "kwutils: NODE number 3 is left out: it has no identifier\n"
                         "kwutils: NODE number 4 (b1) is left out: an earlier one has the same identifier\n"
                         "kwutils: 1 of NODE hold further lines or a table, which are left out\n"
                         "kwutils: 1 of NODE hold words that no look-up finds as an item, which are left out\n")

    def test_finds_nothing(self):
        self.write("plant.ent", PLANT)
        self.assertEqual(self.ask("export", "plant.ent", "PIPE", code=NOT_FOUND).out, "id\r\n")
        self.refuse("export", "none.ent", "NODE", code=FAILED,
                    message="cannot export NODE in 'none.ent': File not found")

    def round_trip(self, name, form):
        rows = self.write("rows." + form, self.ask_raw("export", name, "NODE", "--format", form))
        copy = "copy." + form + ".ent"
        (self.folder / copy).unlink(missing_ok=True)
        self.ask("import", copy, "NODE", rows)
        return self.read(copy)

    def ask_raw(self, *words):
        answer = self.run_tool(*words)
        self.assertEqual(answer.code, 0, answer.shown)
        return answer.raw

    def test_gives_an_imported_file_byte_for_byte(self):
        source = random.Random(5)
        for round_number in range(4):
            columns = ["nm", "a", "b", "c", "d"]
            source.shuffle(columns)
            rows = [{"id": str(i), **{c: random_value(source) for c in columns if source.random() < 0.7}}
                    for i in range(30)]
            self.write("rows.json", json.dumps(rows))
            (self.folder / "plant.ent").unlink(missing_ok=True)
            self.assertIn(self.run_tool("import", "plant.ent", "NODE", "rows.json").code, (0, 3))
            if not (self.folder / "plant.ent").exists():
                continue
            for form in ("csv", "json"):
                with self.subTest(round=round_number, form=form):
                    self.assertEqual(self.round_trip("plant.ent", form), self.read("plant.ent"))

    def test_gives_the_same_rows_of_any_file(self):
        source = random.Random(6)
        words = ["id", "nm", "a", "b", "'1'", "'x y'", "\"p'q\"", "5", "z'", "TBLE", "tble", "'", '"', ",", "id '7'"]
        for round_number in range(5):
            lines = []
            for _ in range(12):
                count = source.randrange(1, 9)
                lines.append(" ".join(["NODE"] + [source.choice(words) for _ in range(count)] + ["node"]) + "\r\n")
            self.write("any.ent", "".join(lines))
            if self.run_tool("export", "any.ent", "NODE").code == NOT_FOUND:
                continue
            for form in ("csv", "json"):
                with self.subTest(round=round_number, form=form):
                    first = self.ask_raw("export", "any.ent", "NODE", "--format", form)
                    self.round_trip("any.ent", form)
                    second = self.ask_raw("export", "copy." + form + ".ent", "NODE", "--format", form)
                    self.assertEqual(first, second)


if __name__ == "__main__":
    unittest.main()
