#!/usr/bin/env python3
"""Sorting lines."""

import random
import unittest

from tool_case import FAILED, USAGE, ToolCase, system_text


class Sort(ToolCase):
    def sort(self, text, *options):
        return self.ask("sort", *options, stdin=text if isinstance(text, bytes) else text.encode()).raw

    def test_sorts_text_without_regard_to_case(self):
        self.assertEqual(self.sort("b\nA\nc\n"), b"A\nb\nc\n")
        self.assertEqual(self.sort("b\nA\nc\n", "--descending"), b"c\nb\nA\n")
        self.assertEqual(self.sort("é\nÄ\nž\n"), "Ä\né\nž\n".encode())

    def test_sorts_text_by_character_codes(self):
        self.assertEqual(self.sort("b\na\nC\n", "--binary"), b"C\na\nb\n")

    def test_sorts_numbers(self):
        self.assertEqual(self.sort("10\n-2.5\n 3e2\n.5\n", "--numbers"), b"-2.5\n.5\n10\n 3e2\n")
        self.assertEqual(self.sort("10\n9\n", "-n", "-r"), b"10\n9\n")
        self.assertEqual(self.sort("10\n9\n"), b"10\n9\n")

    def test_shows_line_numbers(self):
        self.assertEqual(self.sort("b\nc\na\n", "--index"), b"3\n1\n2\n")
        self.assertEqual(self.ask("sort", "--index", "--json", stdin=b"b\na\n").json, [2, 1])

    def test_answers_in_json(self):
        self.assertEqual(self.ask("sort", "--json", stdin=b"b\na\n").json, ["a", "b"])
        self.assertEqual(self.ask("sort", "--numbers", "--json", stdin=b"10\r\n.5\n").json, [0.5, 10])

    def test_reads_a_file(self):
        self.write("names.txt", "b\na\n")
        self.assertEqual(self.ask("sort", "names.txt").out, "a\nb\n")
        self.assertEqual(self.ask("sort", "-", stdin=b"2\n1").out, "1\n2\n")

    def test_keeps_the_bytes_of_each_line(self):
        self.assertEqual(self.sort(b"b\xff\r\na\x00\n\nc"), b"\na\x00\nb\xff\r\nc\n")

    def test_does_not_compare_line_ends(self):
        self.assertEqual(self.sort("10\r\n9\n", "--numbers"), b"9\n10\r\n")
        self.assertEqual(self.sort("a!\na\r\n", "--binary"), b"a\r\na!\n")

    def test_sorts_nothing(self):
        self.assertEqual(self.sort(""), b"")
        self.assertEqual(self.ask("sort", "--json").json, [])

    def test_sorts_many_lines(self):
        source = random.Random(1)
        numbers = [source.uniform(-1e6, 1e6) for _ in range(20000)]
        answer = self.sort("".join(f"{n!r}\n" for n in numbers), "--numbers").decode().split()
        self.assertEqual([float(n) for n in answer], sorted(numbers))

    def test_says_which_line_is_no_number(self):
        self.write("numbers.txt", "1\n2\nabc\n")
        self.refuse("sort", "--numbers", "numbers.txt", code=FAILED, message="numbers.txt:3: 'abc' is not a number")
        self.refuse("sort", "--numbers", stdin=b"1\n\n", code=FAILED, message="standard input:2: '' is not a number")
        self.refuse("sort", "--numbers", stdin=b"1e999", code=FAILED,
                    message="standard input:1: '1e999' is too large a number")

    def test_says_why_a_file_cannot_be_read(self):
        self.refuse("sort", "none.txt", code=FAILED, message="cannot read 'none.txt': File not found")
        self.refuse("sort", ".", code=FAILED, message="cannot read '.': Permission denied "
                                                      f"({system_text('Is a directory', 'Access denied')})")

    def test_does_not_compare_numbers_by_character_codes(self):
        self.assertEqual(self.ask("sort", "--numbers", "--binary", code=USAGE).out, "")


if __name__ == "__main__":
    unittest.main()
