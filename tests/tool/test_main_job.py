#!/usr/bin/env python3
"""The table of the world's regions: over five thousand real names, imported and found again."""

import json
import pathlib
import unittest

from tool_case import ToolCase

TABLE = pathlib.Path("/usr/share/iso-codes/json/iso_3166-2.json")


def in_page(text):
    return all(c.encode("cp1252", "ignore") for c in text)


class MainJob(ToolCase):
    @classmethod
    def setUpClass(cls):
        cls.rows = json.loads(TABLE.read_text(encoding="utf-8"))["3166-2"]

    def bring_in(self, *options):
        return self.ask("import", "regions.ent", "REGION", str(TABLE), "--id-column", "code",
                        "--name-column", "name", "--json", *options).json

    def stored_rows(self):
        rows = {}
        for line in self.read("regions.ent").splitlines():
            self.assertTrue(line.startswith("REGION id '") and line.endswith(" region"), line)
            rows[line[11:line.index("'", 11)]] = line
        return rows

    def test_stores_every_row_that_the_code_page_has(self):
        answer = self.bring_in()
        fitting = [row for row in self.rows if all(map(in_page, row.values()))]
        self.assertEqual(answer["stored"], len(fitting))
        self.assertEqual(answer["transliterated"], [])
        self.assertEqual(sorted(self.stored_rows()), sorted(row["code"] for row in fitting))

    def test_reports_every_row_that_the_code_page_lacks(self):
        reported = self.bring_in()["reported"]
        lacking = [i for i, row in enumerate(self.rows, 1) if not all(map(in_page, row.values()))]
        self.assertEqual([report["row"] for report in reported], lacking)
        self.assertTrue(all("is outside code page 1252" in report["text"] for report in reported))

    def test_stores_every_row_when_it_may_transliterate(self):
        answer = self.bring_in("--transliterate")
        self.assertEqual(answer["stored"], len(self.rows))
        self.assertEqual(answer["reported"], [])
        lacking = [i for i, row in enumerate(self.rows, 1) if not all(map(in_page, row.values()))]
        self.assertEqual([report["row"] for report in answer["transliterated"]], lacking)

    def test_finds_every_apostrophe_again(self):
        self.bring_in()
        quoted = [row for row in self.rows if "'" in row["name"] and in_page(row["name"])]
        self.assertGreater(len(quoted), 90)
        listed = {entry["id"]: entry["name"]
                  for entry in self.ask("list", "regions.ent", "REGION", "--json").json}
        for row in quoted:
            with self.subTest(row["code"]):
                self.assertEqual(listed[row["code"]], row["name"])
        for row in quoted[::10]:
            found = self.ask("get", "regions.ent", "REGION", f"nm '{row['name']}'", "--json").json
            self.assertEqual(found["items"]["nm"], row["name"])
            self.assertEqual(found["items"]["type"], row["type"])

    def test_changes_nothing_when_it_is_run_again(self):
        self.bring_in()
        before = self.read("regions.ent")
        answer = self.bring_in()
        self.assertEqual(answer["replaced"], answer["stored"])
        self.assertEqual(self.read("regions.ent"), before)


if __name__ == "__main__":
    unittest.main()
