#!/usr/bin/env python3
"""Single values of INI files."""

import os
import unittest

from tool_case import FAILED, NOT_FOUND, USAGE, ToolCase, system_text

PLANT = ("; north district\r\n"
         "[Pump]\r\n"
         "Flow = 12.5\r\n"
         "Name=\" Main \"\r\n"
         "Empty=\r\n"
         "On=yes\r\n"
         "\r\n"
         "[Tank]\r\n"
         "Level=70000\r\n"
         "flag\r\n"
         "Level=2\r\n"
         "[pump]\r\n"
         "Flow=99\r\n"
         "Hidden=1\r\n")


class IniCase(ToolCase):
    def setUp(self):
        super().setUp()
        self.write("plant.ini", PLANT)


class Get(IniCase):
    def test_shows_a_value(self):
        self.assertEqual(self.ask("ini", "get", "plant.ini", "Pump", "Flow").out, "12.5\n")
        self.assertEqual(self.ask("ini", "get", "plant.ini", " pump ", "FLOW", "--json").json, {"value": "12.5"})

    def test_keeps_blanks_in_quotes(self):
        self.assertEqual(self.ask("ini", "get", "plant.ini", "Pump", "Name").out, " Main \n")

    def test_shows_characters_of_the_code_page(self):
        self.write("page.ini", "[s]\r\nk=Žižka €\r\n")
        self.assertEqual(self.ask("ini", "get", "page.ini", "s", "k").out, "Žižka €\n")

    def test_says_what_is_not_there(self):
        for section, key in (("Pump", "Power"), ("Pump", "Empty"), ("Tank", "flag"), ("Pump", "Hidden"), ("None", "x")):
            self.refuse("ini", "get", "plant.ini", section, key, code=NOT_FOUND,
                        message=f"there is no [{section}] {key} in 'plant.ini'")

    def test_shows_a_default_for_what_is_not_there(self):
        self.assertEqual(self.ask("ini", "get", "plant.ini", "Pump", "Power", "--default", "7.5 ").out, "7.5 \n")
        self.assertEqual(self.ask("ini", "get", "none.ini", "Pump", "Power", "--default", "").out, "\n")
        self.assertEqual(self.ask("ini", "get", "plant.ini", "Pump", "Flow", "--default", "7.5").out, "12.5\n")

    def test_checks_the_type(self):
        self.assertEqual(self.ask("ini", "get", "plant.ini", "Pump", "Flow", "--type", "double").out, "12.5\n")
        self.assertEqual(self.ask("ini", "get", "plant.ini", "Pump", "Flow", "--type", "Integer").out, "12\n")
        self.assertEqual(self.ask("ini", "get", "plant.ini", "Tank", "Level", "--type", "long", "--json").json,
                         {"value": 70000})
        self.assertEqual(self.ask("ini", "get", "plant.ini", "Pump", "On", "--type", "boolean").out, "true\n")
        self.assertEqual(self.ask("ini", "get", "plant.ini", "Pump", "Flow", "--type", "string", "--json").json,
                         {"value": "12.5"})

    def test_says_what_does_not_fit_the_type(self):
        self.refuse("ini", "get", "plant.ini", "Pump", "On", "--type", "double", code=FAILED,
                    message="[Pump] On in 'plant.ini' is 'yes', which is no double")
        self.refuse("ini", "get", "plant.ini", "Pump", "Name", "--type", "boolean", code=FAILED,
                    message="[Pump] Name in 'plant.ini' is ' Main ', which is no boolean")
        self.refuse("ini", "get", "plant.ini", "Tank", "Level", "--type", "integer", code=FAILED,
                    message="[Tank] Level in 'plant.ini' is '70000', which is too large for integer")
        self.assertEqual(self.ask("ini", "get", "plant.ini", "Tank", "Level", "--type", "date", code=USAGE).out, "")

    def test_finds_the_file_in_any_case(self):
        self.assertEqual(self.ask("ini", "get", "PLANT.INI", "Pump", "Flow").out, "12.5\n")

    def test_says_why_a_file_cannot_be_read(self):
        self.refuse("ini", "get", "none.ini", "Pump", "Flow", code=FAILED,
                    message="cannot look for entries in 'none.ini': File not found")
        self.refuse("ini", "get", ".", "Pump", "Flow", code=FAILED,
                    message="cannot look for entries in '.': Permission denied "
                            f"({system_text('Is a directory', 'Access denied')})")
        self.refuse("ini", "get", "łódź.ini", "Pump", "Flow", code=FAILED,
                    message="cannot use 'łódź.ini': 'ł' (U+0142) is outside code page 1252")
        self.refuse("ini", "get", "a?.ini", "Pump", "Flow", code=FAILED,
                    message="cannot use 'a?.ini': '*' and '?' cannot stand in its name")


class Group(IniCase):
    def test_names_the_command_that_is_wrong(self):
        self.refuse("ini", code=USAGE, message="no command is given; see 'kwutils ini --help'")
        self.refuse("ini", "show", code=USAGE, message="there is no command 'show'; see 'kwutils ini --help'")
        self.refuse("ini", "get", "plant.ini", "Pump", code=USAGE,
                    message="KEY is required; see 'kwutils ini get --help'")


class Set(IniCase):
    def value(self, section, key, name="plant.ini"):
        return self.ask("ini", "get", name, section, key).out[:-1]

    def test_replaces_a_value(self):
        self.assertEqual(self.ask("ini", "set", "plant.ini", "pump", "FLOW", "7").out, "replaced [pump] FLOW\n")
        self.assertEqual(self.ask("ini", "list", "plant.ini", "Pump").out, "Flow\t7\nName\t Main \nEmpty\t\nOn\tyes\n")

    def test_adds_key_section_and_file(self):
        self.assertEqual(self.ask("ini", "set", "plant.ini", "Pump", "New", "1").out, "added [Pump] New\n")
        self.assertEqual(self.ask("ini", "set", "plant.ini", "Valve", "New", "-1", "--json").json,
                         {"done": "added", "section": "Valve", "key": "New"})
        self.assertEqual((self.value("Pump", "New"), self.value("Valve", "New")), ("1", "-1"))
        self.ask("ini", "set", "fresh.ini", "s", "k", "v")
        self.assertEqual(self.read("fresh.ini"), "[s]\r\nk=v\r\n")

    def test_reads_every_stored_value_back(self):
        for value in (" a", "b ", "\"c\"", "'d'", "'", "a;b", "a=b", ";", "[x]", "é€", "a\tb", "\t", "??", "x" * 1023):
            with self.subTest(value):
                self.ask("ini", "set", "plant.ini", "Pump", "Flow", value)
                self.assertEqual(self.value("Pump", "Flow"), value)

    def test_stores_an_empty_value(self):
        self.ask("ini", "set", "plant.ini", "Pump", "Flow", "")
        self.assertIn("\r\nFlow=\r\n", self.read("plant.ini"))

    def test_refuses_what_cannot_be_read_back(self):
        self.refuse("ini", "set", "plant.ini", "Pump", "Flow", "a\nb", code=USAGE,
                    message="cannot store 'a\nb': it would be read back as '\"a'")
        self.refuse("ini", "set", "plant.ini", "Pump", "Flow", "Łódź", code=USAGE,
                    message="cannot store 'Łódź': 'Ł' (U+0141) is outside code page 1252")
        for section, key in (("Pump", "a=b"), ("Pump", "[k]"), ("Pump", "a\nb"), ("a\nb", "k")):
            for value in ("v", ""):
                self.refuse("ini", "set", "plant.ini", section, key, value, code=USAGE,
                            message=f"an entry '{key}' of section '{section}' cannot be read back")
        self.assertEqual(self.ask("ini", "set", "plant.ini", "Pump", "Flow", "x" * 1024, code=USAGE).out, "")
        self.assertEqual(self.read("plant.ini"), PLANT)

    def test_says_why_a_file_cannot_be_written(self):
        self.refuse("ini", "set", "no/plant.ini", "Pump", "Flow", "1", code=FAILED,
                    message="cannot rewrite 'no/plant.ini': "
                            + system_text("Path not found: '.\\no/plant.ini' (No such file or directory)",
                                          "there is no such folder"))
        self.refuse("ini", "set", ".", "Pump", "Flow", "1", code=FAILED,
                    message="cannot look for entries in '.': Permission denied "
                            f"({system_text('Is a directory', 'Access denied')})")



class Remove(IniCase):
    def test_removes_every_entry_of_the_name(self):
        self.assertEqual(self.ask("ini", "remove", "plant.ini", "Pump", "flow").out, "removed [Pump] flow\n")
        self.assertNotIn("Flow", self.read("plant.ini"))
        self.assertEqual(self.ask("ini", "list", "plant.ini", "Pump").out, "Name\t Main \nEmpty\t\nOn\tyes\n")

    def test_says_what_is_not_there(self):
        self.refuse("ini", "remove", "plant.ini", "Pump", "Power", code=NOT_FOUND,
                    message="there is no [Pump] Power in 'plant.ini'")
        self.refuse("ini", "remove", "none.ini", "Pump", "Power", code=FAILED,
                    message="cannot look for entries in 'none.ini': File not found")
        self.assertEqual(os.listdir(self.folder), ["plant.ini"])


class Rewriting(IniCase):
    def test_changes_nothing_in_a_dry_run(self):
        diff = self.ask("ini", "set", "plant.ini", "Tank", "Level", "5", "--dry-run").out
        self.assertIn("\n-Level=70000\r\n+Level=5\r\n", diff)
        self.assertIn("\n-On=yes\r\n", self.ask("ini", "remove", "plant.ini", "Pump", "On", "--dry-run", "--json").json["diff"])
        self.ask("ini", "set", "fresh.ini", "s", "k", "v", "--dry-run")
        self.assertEqual(self.read("plant.ini"), PLANT)
        self.assertEqual(os.listdir(self.folder), ["plant.ini"])

    def test_keeps_a_backup(self):
        self.ask("ini", "set", "--backup", "plant.ini", "Pump", "Flow", "1")
        self.assertEqual(self.read("plant.ini~"), PLANT)
        before = self.read("plant.ini")
        self.ask("ini", "remove", "plant.ini", "Pump", "Flow", "--backup=.old")
        self.assertEqual(self.read("plant.ini.old"), before)
        self.assertEqual(sorted(os.listdir(self.folder)), ["plant.ini", "plant.ini.old", "plant.ini~"])



class List(IniCase):
    def test_lists_sections(self):
        self.assertEqual(self.ask("ini", "list", "plant.ini").out, "Pump\t4\nTank\t1\n")
        self.assertEqual(self.ask("ini", "list", "plant.ini", "--json").json,
                         [{"section": "Pump", "keys": 4}, {"section": "Tank", "keys": 1}])

    def test_lists_the_entries_that_look_ups_see(self):
        self.assertEqual(self.ask("ini", "list", "plant.ini", "PUMP").out,
                         "Flow\t12.5\nName\t Main \nEmpty\t\nOn\tyes\n")
        self.assertEqual(self.ask("ini", "list", "plant.ini", "Tank", "--json").json, [{"key": "Level", "value": "70000"}])

    def test_lists_what_stands_before_any_header(self):
        self.write("bare.ini", "a=1\n;b=2\n#c=3\n[]\nd=4\n")
        self.assertEqual(self.ask("ini", "list", "bare.ini").out, "\t2\n")
        self.assertEqual(self.ask("ini", "list", "bare.ini", "").out, "a\t1\n#c\t3\n")

    def test_lists_a_file_in_utf_16(self):
        (self.folder / "wide.ini").write_bytes("\ufeff[s]\r\nk=é\r\n".encode("utf-16-le"))
        self.assertEqual(self.ask("ini", "list", "wide.ini", "s").out, "k\té\n")

    def test_shows_what_get_shows(self):
        for key, value in (line.split("\t") for line in self.ask("ini", "list", "plant.ini", "Pump").out.splitlines()):
            answer = self.run_tool("ini", "get", "plant.ini", "Pump", key)
            self.assertEqual(answer.out, value + "\n" if value else "")

    def test_finds_nothing(self):
        self.assertEqual(self.ask("ini", "list", "plant.ini", "None", "--json", code=NOT_FOUND).json, [])
        self.write("empty.ini", "")
        self.assertEqual(self.ask("ini", "list", "empty.ini", code=NOT_FOUND).out, "")
        self.refuse("ini", "list", "none.ini", code=FAILED,
                    message="cannot look for entries in 'none.ini': File not found")


if __name__ == "__main__":
    unittest.main()
