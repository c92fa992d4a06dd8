#!/usr/bin/env python3
"""What `check` finds, each finding with the look-up that fails as it says."""

import unittest

from tool_case import DONE, FAILED, NOT_FOUND, PLANT, ToolCase


class Check(ToolCase):
    def findings(self, content, encoding="cp1252"):
        self.write("plant.ent", content, encoding)
        answer = self.run_tool("check", "plant.ent", "--json")
        self.assertEqual(answer.code, NOT_FOUND if answer.json else DONE, answer.shown)
        return [(f["line"], f["column"], f["kind"]) for f in answer.json]

    def lookup(self, *words):
        answer = self.run_tool("get", "plant.ent", *words)
        self.assertIn(answer.code, (DONE, NOT_FOUND))
        return answer.out if answer.code == DONE else None

    def call(self, method, *words):
        return self.ask("call", "clsFileReadWrite", method, "plant.ent", *words).json

    def listed(self):
        return self.call("GetEntityIDsIntoColl", "NODE")["arguments"]["colBuffer"]


class Findings(Check):
    def test_finds_nothing_in_a_clean_file(self):
        self.assertEqual(self.findings(PLANT), [])
        self.assertEqual(self.ask("check", "plant.ent").out, "plant.ent: no findings in 3 blocks\n")

    def test_finds_nothing_in_an_imported_file(self):
        self.write("rows.csv", "id,nm,ln\n1,L'Aquila,5\n2,\"a \"\"b\"\" id 'x' nm\",6\n")
        self.ask("import", "plant.ent", "region", "rows.csv")
        self.assertEqual(self.findings(self.read("plant.ent")), [])

    def test_shows_line_column_and_caret(self):
        self.write("plant.ent", "NODE id 'B1' node\r\n  NODE id 'b1' nm 'x' node\r\n")
        answer = self.ask("check", "plant.ent", code=NOT_FOUND)
        self.assertEqual(answer.out,
                         "plant.ent:2:11: the identifier 'b1' stands in line 1 already: look-ups find that entity alone\n"
                         "  NODE id 'b1' nm 'x' node\n"
                         "          ^\n"
                         "plant.ent: 1 finding in 2 blocks\n")

    def test_shows_the_part_of_a_long_line_around_the_caret(self):
        self.write("plant.ent", "NODE id 'A' nm '" + "x" * 500 + "' t 'y" + "z" * 500 + " node\r\n")
        place, line, caret, _ = self.ask("check", "plant.ent", code=NOT_FOUND).out.splitlines()
        self.assertTrue(place.startswith("plant.ent:1:521: this quote never closes"))
        self.assertEqual(line, "…" + "x" * 75 + "' t 'y" + "z" * 77 + "…")
        self.assertEqual(line[caret.index("^")], "'")

    def test_says_which_file_is_missing(self):
        self.refuse("check", "none.ent", code=FAILED, message="cannot check the notation in 'none.ent': File not found")

    def test_block_that_never_closes(self):
        found = self.findings("NODE id '1' node\r\nLINK id '2' ln 5\r\nNODE id '3' node\r\n")
        self.assertEqual(found, [(2, 1, "open-block")])
        self.assertIsNone(self.lookup("NODE", "3"))

    def test_block_comment_that_never_closes(self):
        found = self.findings("NODE id '1' node\r\n  /* old\r\nNODE id '2' node\r\nNODE id '3' node\r\n; end\r\n")
        self.assertEqual(found, [(2, 3, "open-comment")])
        self.assertIsNone(self.lookup("NODE", "2"))

    def test_record_closed_by_the_tail_of_a_longer_word(self):
        found = self.findings("NODE id 'A' nm Xnode\r\nln 5 node\r\nNODE id 'B' node\r\n")
        self.assertEqual(found[0], (1, 16, "tail-closes"))
        self.assertEqual(self.lookup("NODE", "A"), "id 'A' nm X\n")
        self.assertIsNone(self.lookup("NODE", "B"))

    def test_duplicate_identifier(self):
        found = self.findings("NODE id 'A' nm 'x' node\r\nLINK id 'A' link\r\nNODE id 'a' nm 'y' node\r\n")
        self.assertEqual(found, [(3, 9, "duplicate-id")])
        self.assertEqual(self.lookup("NODE", "a"), "id 'A' nm 'x' \n")

    def test_identifier_on_a_later_line(self):
        found = self.findings("NODE nm 'x'\r\n  id 'A' node\r\n")
        self.assertEqual(found, [(2, 3, "late-id")])
        self.assertIsNone(self.lookup("NODE", "A"))

    def test_identifier_in_the_line_behind_the_type(self):
        found = self.findings("NODE\r\nid 'A' nm 'x' node\r\n")
        self.assertEqual(found, [(2, 4, "late-id")])
        self.call("DeleteEntity", "NODE", "A")
        self.assertEqual(self.read("plant.ent"), "NODE\r\nid 'A' nm 'x' node\r\n")

    def test_unquoted_identifier_before_a_line_end(self):
        found = self.findings("NODE id A\r\nnm 'x' node\r\n")
        self.assertEqual(found, [(1, 9, "unquoted-id")])
        self.assertEqual(self.listed(), {"A\r\nnm": "A\r\nnm"})

    def test_identifier_without_a_blank_behind(self):
        for content, column in (("NODE id 'A'nm 'x' node\r\n", 9), ("NODE id 'A'\r\nnm 'x' node\r\n", 9)):
            with self.subTest(content):
                self.assertEqual(self.findings(content), [(1, column, "id-without-blanks")])
                self.call("DeleteEntity", "NODE", "A")
                self.assertEqual(self.read("plant.ent"), content)

    def test_identifier_without_a_blank_before(self):
        self.assertEqual(self.findings("NODE nm 'x'id 'A' node\r\n"), [(1, 12, "id-without-blanks")])
        self.assertIsNone(self.lookup("NODE", "A"))
        self.assertEqual(self.findings("NODE id'A' nm 'x' node\r\n"), [(1, 6, "id-without-blanks")])
        self.assertIsNone(self.lookup("NODE", "A"))

    def test_item_behind_an_odd_apostrophe(self):
        found = self.findings("NODE nm \"L'A\" id 'A' node\r\nNODE id 'B' nm L'B t 'x' node\r\n")
        self.assertEqual(found, [(1, 11, "hiding-apostrophe"), (2, 17, "hiding-apostrophe")])
        self.assertIsNone(self.lookup("NODE", "A"))
        self.assertIsNone(self.lookup("NODE", "B", "--item", "t"))

    def test_six_letters_after_the_first_record(self):
        content = "NODE id '1' node\r\nREGION id '2' nm 'x'\r\nln 5 region\r\nNODE id '3' node\r\n"
        self.assertEqual(self.findings(content), [(2, 1, "six-letters")])
        self.assertEqual(len(self.call("GetEntities", "NODE")["arguments"]["Buffer"]), 2)

    def test_six_letters_on_one_line(self):
        self.assertEqual(self.findings("NODE id '1' node\r\nREGION id '2' region\r\n"), [])

    def test_six_letters_first(self):
        content = "REGION id '2'\r\nnm 'x' region\r\nNODE id '3' node\r\n"
        self.assertIn((1, 1, "six-letters"), self.findings(content))
        self.assertIsNone(self.lookup("NODE", "3"))

    def test_header(self):
        self.assertEqual(self.findings("HEADER 1.2\r\nNODE id '3' node\r\n"), [])

    def test_quote_that_never_closes(self):
        found = self.findings("NODE id 'A' nm 'x node\r\n")
        self.assertEqual(found, [(1, 16, "open-quote")])
        self.assertEqual(self.lookup("NODE", "A", "--item", "nm"), "\n")

    def test_table_that_never_closes(self):
        found = self.findings("NODE id 'A' TBLE\r\n1 2\r\n3 4 node\r\nNODE id 'B' node\r\n")
        self.assertEqual(found, [(1, 13, "open-table")])
        table = self.call("GetTableEntry", "", "NODE", "A")["arguments"]["Table"]["values"]
        self.assertEqual(table[-1], "3 4 node\r\n")

    def test_bytes_outside_the_code_page(self):
        found = self.findings(b"NODE id 'A' nm 'a\x81' node\r\n")
        self.assertEqual(found, [(1, 18, "undefined-byte")])
        self.assertIsNone(self.lookup("NODE", "nm 'a\ufffd'"))

    def test_lone_line_ends(self):
        found = self.findings("NODE nm 'x'\rid 'A' node\r\n")
        self.assertEqual(found, [(1, 12, "lone-line-end"), (2, 1, "late-id")])
        self.assertIsNone(self.lookup("NODE", "A"))
        self.assertEqual(self.findings("NODE id 'A' node\nNODE id 'B' node\n"), [(1, 17, "lone-line-end")])
        answer = self.ask("check", "plant.ent", code=NOT_FOUND)
        self.assertIn("(and in 1 more places)", answer.out)

    def test_last_line_in_a_block_comment_that_never_closes(self):
        self.findings("NODE id '1' node\r\n/* old\r\nNODE id '2' node\r\nNODE id '3' node\r\n")
        self.assertIn("all but the last line", self.run_tool("check", "plant.ent").out)
        self.assertIsNone(self.lookup("NODE", "2"))
        self.assertEqual(self.lookup("NODE", "3"), "id '3' \n")

    def test_comment_on_the_last_line(self):
        for comment in ("; end", "/* end */", "/*\r\n*/"):
            with self.subTest(comment):
                found = self.findings("NODE id '1' node\r\n  " + comment + "\r\n\r\n")
                self.assertEqual(found, [])
                found = self.findings("NODE id '1' node\r\n" + comment + "\r\n")
                self.assertEqual(found, [(2 + comment.count("\n"), 1, "last-comment")])
                self.ask("put", "plant.ent", "NODE", "1", "nm=x")
                last = comment.split("\r\n")[-1]
                self.assertTrue(self.read("plant.ent").endswith(last + "\r\n" + last + "\r\n"))

    def test_entity_inside_another_one(self):
        found = self.findings("NODE id 'A' node ; old\r\nNODE id 'B' nm 'x'\r\nln 5 node\r\n")
        self.assertEqual(found, [(2, 1, "inner-block")])
        self.assertIsNone(self.lookup("NODE", "B"))

    def test_type_in_other_letters(self):
        found = self.findings("node id 'A' node\r\nNode id 'B' nm 'x'\r\nnode\r\nNODE id 'C' node\r\n")
        self.assertEqual(found, [(1, 1, "lower-case-type"), (2, 1, "lower-case-type")])
        self.assertIsNone(self.lookup("node", "A"))
        self.assertIsNone(self.lookup("Node", "B"))

    def test_file_in_utf_8(self):
        found = self.findings("NODE id 'A' nm 'Caf\u00e9' node\r\nNODE id 'B' nm '\u0141\u00f3d\u017a' node\r\n", "utf-8")
        self.assertEqual(found[0], (1, 20, "other-encoding"))
        self.assertIsNone(self.lookup("NODE", "nm 'Caf\u00e9'"))

    def test_characters_that_are_no_utf_8(self):
        self.assertEqual(self.findings("NODE id 'A' nm 'Caf\u00e9 \u00c3\u00a9' node\r\n"), [])

    def test_byte_order_mark(self):
        found = self.findings(b"\xef\xbb\xbfNODE id 'A' node\r\n")
        self.assertEqual(found[0], (1, 1, "other-encoding"))
        self.assertIsNone(self.lookup("NODE", "A"))
        found = self.findings(b"\xff\xfe" + "NODE id 'A' node\r\n".encode("utf-16-le"))
        self.assertEqual(found[0], (1, 1, "other-encoding"))
        self.assertIsNone(self.lookup("NODE", "A"))

    def test_identifier_whose_quote_never_closes(self):
        self.assertEqual(self.findings("NODE id 'A node\r\n"), [(1, 9, "open-quote")])

    def test_finds_several_things(self):
        found = self.findings("NODE id'A' nm 'x node\r\nNODE nm 'y'\r\nid 'B' TBLE\r\nnode\r\n")
        self.assertEqual([kind for _, _, kind in found], ["id-without-blanks", "open-quote", "late-id", "open-table"])


if __name__ == "__main__":
    unittest.main()
