#!/usr/bin/env python3
"""Rows of tables as entities."""

import json
import unittest

from tool_case import FAILED, USAGE, ToolCase


class Import(ToolCase):
    def bring_in(self, source, *options, name="rows.csv", code=0, encoding="utf-8"):
        self.write(name, source, encoding)
        return self.ask("import", "plant.ent", "node", name, *options, code=code)

    def value(self, identifier, item):
        return self.ask("get", "plant.ent", "NODE", identifier, "--item", item).out[:-1]

    def test_stores_csv_rows(self):
        answer = self.bring_in("id,nm,ln\r\nB1,Main inlet,120.5\r\nB2,Outlet,\r\n")
        self.assertEqual(answer.out, "2 stored (0 replaced), 0 transliterated, 0 reported\n")
        self.assertEqual(self.read("plant.ent"),
                         "NODE id 'B1' nm 'Main inlet' ln '120.5' node\r\nNODE id 'B2' nm 'Outlet' node\r\n")

    def test_stores_json_rows(self):
        rows = [{"id": "B1", "nm": "a", "ln": 1.50}, {"id": "B2", "w": True, "nm": None}]
        self.bring_in(json.dumps(rows), name="rows.json")
        self.assertEqual(self.read("plant.ent"),
                         "NODE id 'B1' nm 'a' ln '1.5' node\r\nNODE id 'B2' w 'true' node\r\n")

    def test_finds_the_list_in_an_object(self):
        self.bring_in('{"3166-2": [{"id": "1"}]}', name="rows.json")
        self.assertEqual(self.ask("ids", "plant.ent", "NODE").out, "1\n")

    def test_chooses_identifier_and_name(self):
        answer = self.bring_in("Label,Unit No,code\na,x,B1\n", "--id-column", "code", "--name-column", "Label")
        self.assertEqual(answer.out, "column 'code' is item id\ncolumn 'Label' is item nm\n"
                                     "column 'Unit No' is item Unit_No\n"
                                     "1 stored (0 replaced), 0 transliterated, 0 reported\n")
        self.assertEqual(self.read("plant.ent"), "NODE id 'B1' nm 'a' Unit_No 'x' node\r\n")

    def test_reads_standard_input(self):
        self.ask("import", "plant.ent", "NODE", "-", stdin=b"id,nm\n1,a\n")
        self.assertEqual(self.value("1", "nm"), "a")

    def test_tells_the_format_by_the_content(self):
        self.bring_in(' [{"id": "1"}]', name="rows")
        self.bring_in("id\n2\n", name="rows2")
        self.assertEqual(self.ask("ids", "plant.ent", "NODE").out, "1\n2\n")

    def test_takes_the_format_from_the_command_line(self):
        self.bring_in("id\n1\n", "--format", "csv", name="rows.json")
        self.assertEqual(self.ask("ids", "plant.ent", "NODE").out, "1\n")

    def test_reads_every_stored_value_back(self):
        names = ["L'Aquila", "Cox's 'Bazar'", 'Big "Ben"', "5'10\"", "le ln x", "a ln 'b' c", ";x", "//", "TBLE x tble",
                 "node", "Saint, John", ",x", "Žižka €", "??", "id 'B1'", "as id 'B2' is"]
        rows = "id,nm,ln\n" + "".join(
            'B{},"{}",{}\n'.format(i, name.replace('"', '""'), i) for i, name in enumerate(names))
        answer = self.bring_in(rows)
        self.assertEqual(answer.out, f"{len(names)} stored (0 replaced), 0 transliterated, 0 reported\n")
        for i, name in enumerate(names):
            with self.subTest(name):
                self.assertEqual(self.value(f"B{i}", "nm"), name)
                self.assertEqual(self.value(f"B{i}", "ln"), str(i))

    def test_reports_rows_that_cannot_be_stored(self):
        answer = self.bring_in(
            'id,nm,x\n1,Łódź,\n2,"5\' 10""",\n3,"a\nb",\n4,a\tb,\n5, a,\n6,a\u00a0b,\n7,x\'y,p\'q\n,a,\n'
            "O'B,a,\n8,ok,\n8,twice,\n9\n", code=0)
        self.assertEqual(answer.out.splitlines(), [
            "row 1 (line 2): not stored: nm \"Łódź\": 'Ł' (U+0141) is outside code page 1252",
            "row 2 (line 3): not stored: nm \"5' 10\"\": it holds both kinds of quotes",
            "row 3 (line 4): not stored: nm \"a", "b\": a line break cannot stand in a value",
            "row 4 (line 6): not stored: nm \"a\tb\": a tab is read back as a blank",
            "row 5 (line 7): not stored: nm \" a\": blanks at its ends are not read back",
            "row 6 (line 8): not stored: nm \"a\u00a0b\": a no-break space is read back as a blank",
            "row 7 (line 9): not stored: in no order on the line can all of these be read back: "
            "nm \"x'y\" x \"p'q\"",
            "row 8 (line 10): not stored: identifier '': it is missing",
            "row 9 (line 11): not stored: identifier \"O'B\": an apostrophe in it cannot be looked up",
            "row 11 (line 13): not stored: row 10 has the same identifier '8'",
            "row 12 (line 14): not stored: it has 1 field, the header 3",
            "1 stored (0 replaced), 0 transliterated, 11 reported"])
        self.assertEqual(self.read("plant.ent"), "NODE id '8' nm 'ok' node\r\n")

    def test_reports_identifiers_that_differ_in_case_alone(self):
        answer = self.bring_in("id\nb1\nB1\n")
        self.assertIn("row 2 (line 3): not stored: row 1 has the same identifier 'B1'\n", answer.out)

    def test_stores_the_nearest_spelling(self):
        answer = self.bring_in("id,nm,x\n1,Łódź,y\n2,\"5' 10\"\"\",\n3,x'y,p'q\nO'B,\"a\nb\",\n5,Москва,\n",
                               "--transliterate")
        self.assertEqual(answer.out.splitlines(), [
            "row 1 (line 2): stored nm \"Lódz\" for \"Łódź\"",
            "row 2 (line 3): stored nm \"5’ 10\"\" for \"5' 10\"\"",
            "row 3 (line 4): stored x \"p’q\" for \"p'q\"",
            "row 4 (line 5): stored id \"O’B\" for \"O'B\", nm \"a b\" for \"a", "b\"",
            "row 5 (line 7): not stored: nm \"Москва\": 'М' (U+041C) is outside code page 1252",
            "4 stored (0 replaced), 4 transliterated, 1 reported"])
        self.assertEqual(self.value("1", "nm"), "Lódz")
        self.assertEqual(self.value("3", "nm"), "x'y")

    def test_answers_in_json(self):
        self.write("plant.ent", "NODE id '1' nm 'old' node\r\n")
        answer = self.bring_in("id,nm\n1,a\n2,ă\n3,ж\n", "--transliterate", "--json")
        self.assertEqual(answer.json, {
            "stored": 2, "added": 1, "replaced": 1, "renamed": [],
            "transliterated": [{"row": 2, "line": 3, "text": "nm \"a\" for \"ă\""}],
            "reported": [{"row": 3, "line": 4, "text": "nm \"ж\": 'ж' (U+0436) is outside code page 1252"}]})

    def test_replaces_what_the_file_holds(self):
        self.write("plant.ent", "; kept\r\nNODE id 'b1' nm 'old' node\r\nLINK id 'B1' link\r\n")
        answer = self.bring_in("id,nm\nB1,new\nB2,x\n")
        self.assertEqual(answer.out, "2 stored (1 replaced), 0 transliterated, 0 reported\n")
        self.assertEqual(self.read("plant.ent"),
                         "; kept\r\nNODE id 'B1' nm 'new' node\r\nLINK id 'B1' link\r\nNODE id 'B2' nm 'x' node\r\n")

    def test_reports_entities_that_cannot_be_replaced(self):
        self.write("plant.ent", "NODE nm 'old' id '1' node\r\n")
        answer = self.bring_in("id,nm\n1,a\n2,b\n")
        self.assertIn("row 1 (line 2): not stored: the file holds this identifier in an entity that does not begin "
                      "with it and cannot be replaced\n", answer.out)
        self.assertEqual(self.value("1", "nm"), "old")

    def test_stores_nothing_unless_all_when_strict(self):
        answer = self.bring_in("id,nm\n1,a\n2,ж\n", "--strict", code=FAILED)
        self.assertIn("0 stored (0 replaced), 0 transliterated, 1 reported\n", answer.out)
        self.assertFalse((self.folder / "plant.ent").exists())

    def test_fails_when_no_row_can_be_stored(self):
        self.bring_in("id,nm\n1,ж\n", code=FAILED)

    def test_shows_a_dry_run(self):
        answer = self.bring_in("id,nm\n1,a\n", "--dry-run")
        self.assertIn("+NODE id '1' nm 'a' node\r\n", answer.out)
        self.assertFalse((self.folder / "plant.ent").exists())

    def refuse_source(self, source, message, *options, code=FAILED):
        self.write("rows.csv", source, "utf-8")
        self.refuse("import", "plant.ent", "NODE", "rows.csv", *options, code=code, message=message)
        self.assertFalse((self.folder / "plant.ent").exists())

    def test_refuses_columns_that_cannot_be_items(self):
        self.refuse_source("id,ł\n1,a\n", "column 'ł' cannot be an item: its keyword cannot be stored: "
                                          "'ł' (U+0142) is outside code page 1252")
        self.refuse_source("id,it's\n1,a\n", "column \"it's\" cannot be an item: its keyword holds a quote")
        self.refuse_source("id,tble\n1,a\n", "column 'tble' cannot be an item: its keyword holds tble, the mark of a table")
        self.refuse_source("id,\n1,a\n", "column '' cannot be an item: its keyword is empty")

    def test_refuses_columns_that_meet(self):
        self.refuse_source("id,a b,a_b\n1,a,b\n", "two columns would be item 'a_b'")
        self.refuse_source("code,id\n1,a\n", "two columns would be item 'id'", "--id-column", "code")

    def test_refuses_a_list_without_columns(self):
        self.write("rows.json", "[]")
        self.refuse("import", "plant.ent", "NODE", "rows.json", code=FAILED,
                    message="there is no column 'id'; there are none")

    def test_refuses_columns_that_are_not_there(self):
        self.refuse_source("code,nm\n1,a\n", "there is no column 'id'; there are 'code' 'nm'")
        self.refuse_source("id,nm\n1,a\n", "there is no column 'x'; there are 'id' 'nm'", "--name-column", "x")

    def test_refuses_a_type_that_cannot_be(self):
        self.write("rows.csv", "id\n1\n")
        self.refuse("import", "plant.ent", "A B", "rows.csv", code=USAGE,
                    message="'A B' cannot be the name of a type: it holds a blank")

    def test_says_which_source_is_missing(self):
        self.refuse("import", "plant.ent", "NODE", "none.csv", code=FAILED,
                    message="cannot read 'none.csv': File not found")

    def test_says_where_json_is_broken(self):
        self.write("rows.json", "[{]")
        answer = self.run_tool("import", "plant.ent", "NODE", "rows.json")
        self.assertEqual(answer.code, FAILED)
        self.assertTrue(answer.err.startswith("kwutils: cannot read 'rows.json': parse error at line 1, column 3"),
                        answer.err)


if __name__ == "__main__":
    unittest.main()
