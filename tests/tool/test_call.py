#!/usr/bin/env python3
"""Any method of any class, called from the command line."""

import unittest

from tool_case import DONE, FAILED, USAGE, ToolCase


class Call(ToolCase):
    def call(self, *words):
        return self.ask("call", *words).json

    def test_answers_with_the_result(self):
        self.assertEqual(self.call("clsParse", "ParseToken", "id 'B 2' nm Outlet", "2"),
                         {"result": "B 2", "arguments": {}})

    def test_shows_changed_arguments(self):
        self.assertEqual(self.call("clsParse", "ParseList", "a b c"),
                         {"result": "a", "arguments": {"Buf": "b c"}})

    def test_takes_names_in_any_case(self):
        self.assertEqual(self.call("KWUTILS.CLSPARSE", "parsetoken", "a b")["result"], "a")

    def test_starts_left_out_references_empty(self):
        self.assertEqual(self.call("clsParse", "ParseFields", "a b", " "),
                         {"result": 2, "arguments": {"Fields": ["2", "a", "b"]}})

    def test_leaves_an_inner_parameter_out(self):
        self.assertEqual(self.call("clsParse", "ParseValuewithTokenandCheck", "id 1 2", "id", "--", "2"),
                         {"result": "1", "arguments": {"tkarray": ["", "1", "2"]}})

    def test_leaves_an_optional_parameter_out(self):
        self.assertEqual(self.call("clsParse", "ParseToken", "a b", "--")["result"], "a")

    def test_writes_hyphens_with_one_more(self):
        self.assertEqual(self.call("clsStringUtil", "InvertString", "---")["result"], "--")

    def test_takes_whatever_follows_the_method_as_argument(self):
        self.assertEqual(self.call("clsStringUtil", "InvertString", "--help")["result"], "pleh--")
        self.assertEqual(self.call("clsStringUtil", "NumStr", "-0.25")["result"], " -0.25")

    def test_takes_arrays_as_json(self):
        self.assertEqual(self.call("clsParse", "ParseTokenArray", "a", "1", '["x", "y", "z"]')["arguments"],
                         {"tkarray": ["x", "a", "z"], "numTk": 1})

    def test_takes_an_array_with_its_lower_bound(self):
        answer = self.call("clsParse", "ParseTokenArray", "a b", "0", '{"lower": 1, "values": ["x", "y"]}')
        self.assertEqual(answer["arguments"]["tkarray"], {"lower": 1, "values": ["a", "b"]})

    def test_tells_an_array_without_dimensions(self):
        self.assertEqual(self.call("clsParse", "ParseTokenArray", "'a", "0", "null"),
                         {"result": 0, "arguments": {}})

    def test_shows_collections(self):
        self.assertEqual(self.call("clsParse", "ParseSubEntitiesIntoColl", "X a x X b c x", "x"),
                         {"result": 2, "arguments": {"colBuffer": ["a", "b c"]}})

    def test_takes_a_collection_with_keys(self):
        self.assertEqual(self.call("clsFileReadWrite", "IsIdInCollection", '{"b1": "x"}', "B1")["result"], True)
        self.assertEqual(self.call("clsFileReadWrite", "IsIdInCollection", '["b1"]', "b1")["result"], False)

    def test_shows_a_collection_with_keys(self):
        self.write("plant.ent", "NODE id 'B1' node\r\nNODE id 'B2' node\r\n")
        answer = self.call("clsFileReadWrite", "GetEntityIDsIntoColl", "plant.ent", "NODE")
        self.assertEqual(answer, {"result": True, "arguments": {"colBuffer": {"B1": "B1", "B2": "B2"}}})

    def test_hands_over_no_collection(self):
        answer = self.call("clsFileReadWrite", "IsIdInCollection", "nothing", "x")
        self.assertEqual(answer["result"], False)

    def test_reports_an_error_with_its_number(self):
        answer = self.ask("call", "clsParse", "ParseString", "a", ",", "0", code=FAILED)
        self.assertEqual(answer.json["error"],
                         {"number": 5, "source": "kwUtils.clsParse",
                          "description": "Invalid procedure call or argument"})

    def test_shows_what_changed_before_an_error(self):
        answer = self.ask("call", "clsFileReadWrite", "GetEntitiesIntoColl", "missing.ent", "NODE", code=FAILED)
        self.assertEqual(answer.json["error"]["number"], 53)
        self.assertEqual(answer.json["arguments"], {"colBuffer": []})

    def test_lists_the_classes(self):
        self.assertIn("clsParse: ", self.ask("call").out)
        self.assertIn("clsParse", [entry["class"] for entry in self.ask("call", "--json").json])

    def test_lists_the_methods_of_a_class(self):
        out = self.ask("call", "clsParse").out
        self.assertIn("ParseToken(Buf: text, [ScanToTk: variant by reference]) -> text\n", out)
        methods = self.ask("call", "--json", "clsParse").json
        self.assertEqual(len(methods), 14)
        self.assertEqual(methods[4]["name"], "ParseToken")
        self.assertEqual(methods[4]["id"], 0x60030004)

    def test_refuses_an_unknown_class(self):
        self.refuse("call", "clsNone", code=USAGE, message="there is no class 'clsNone'; see 'kwutils call'")

    def test_refuses_an_unknown_method(self):
        self.refuse("call", "clsParse", "Parse", code=USAGE,
                    message="class clsParse has no method 'Parse'; see 'kwutils call clsParse'")

    def test_refuses_too_many_arguments(self):
        self.refuse("call", "clsParse", "ParseRecord", "a", "b", code=USAGE,
                    message="ParseRecord takes 1 argument: ParseRecord(Buf: text by reference) -> text")

    def test_refuses_a_missing_argument(self):
        self.refuse("call", "clsParse", "ParseString", "a", ",", code=USAGE, message="argument 'ix' is missing")

    def test_refuses_what_is_no_number(self):
        self.refuse("call", "clsParse", "ParseTokenArray", "a", "x", code=USAGE,
                    message="argument 'ScanToTk': 'x' is no whole number of 32 bits")

    def test_refuses_what_is_no_array(self):
        for text in ("a", '"a"', "{}", "[1"):
            self.refuse("call", "clsParse", "ParseFields", "a", ",", text, code=USAGE,
                        message=f"argument 'Fields': '{text}' is no array of texts (a JSON list)")


class CommandLine(ToolCase):
    def test_shows_an_example_for_each_command(self):
        listed = self.ask("--help").out.split("Subcommands:")[1].split("\n\n")[0]
        commands = [line.split()[0] for line in listed.splitlines() if line.startswith("  ") and line[2] != " "]
        self.assertIn("call", commands)
        for command in commands:
            with self.subTest(command):
                self.assertIn(f"Example:\n  kwutils {command}", self.ask(command, "--help").out)

    def test_documents_the_exit_status(self):
        self.assertIn("0 found or done, 1 not found, 2 wrong usage, 3 ", self.ask("--help").out)

    def test_needs_a_command(self):
        self.refuse(code=USAGE, message="no command is given; see 'kwutils --help'")

    def test_refuses_an_unknown_command(self):
        self.refuse("gett", code=USAGE, message="there is no command 'gett'; see 'kwutils --help'")

    def test_refuses_an_unknown_option(self):
        self.assertEqual(self.run_tool("ids", "--none", "a", "b").code, USAGE)

    def test_needs_its_arguments(self):
        self.assertEqual(self.run_tool("ids", "plant.ent").code, USAGE)


if __name__ == "__main__":
    unittest.main()
