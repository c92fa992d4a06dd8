#!/usr/bin/env python3
"""Text boxes, forms and option groups of a caller that knows nothing but the binary interface."""

import ctypes
import os
import sys
import tempfile
import unittest

from automation_types import *  # noqa: F403
from caller_objects import Control, Group
from test_client import AUTOMATION, create, invoke, release, text_argument


def object_argument(control):
    argument = VARIANT(kind=VT_DISPATCH)
    argument.value.pointer = control.pointer
    return argument


def text_box(text):
    return Control(AUTOMATION, {"Text": text, "SelStart": 0, "SelLength": 0}, default="Text")


class CallerObjects(unittest.TestCase):
    def setUp(self):
        self.helper = create("clsDataEdtUtils")

    def tearDown(self):
        release(self.helper)

    def call(self, number, *arguments):
        status, result, _ = invoke(self.helper, 0x60030000 + number, list(reversed(arguments)))
        self.assertEqual(status, 0, hex(status))
        return result

    def test_a_text_box_is_selected_whole(self):
        box = text_box("12.5")
        self.call(3, object_argument(box))
        self.assertEqual(box.log, [("SelStart", "=", 0), ("SelLength", "=", 4)])
        self.assertEqual(box.references, 1)

    def test_a_label_is_left_alone(self):
        label = Control(AUTOMATION, {"Caption": "12"})
        self.call(3, object_argument(label))
        self.assertEqual((label.log, label.references), ([], 1))

    def test_a_number_in_a_text_box_is_stepped(self):
        box = text_box("2.5")
        key, shift = VARIANT(kind=VT_I2), VARIANT(kind=VT_I2)
        key.value.short = 33
        self.call(6, object_argument(box), key, shift)
        self.assertEqual(box.properties["Text"], " 12")
        self.assertEqual(box.references, 1)

    def test_a_form_is_painted_from_bright_to_black(self):
        form = Control(AUTOMATION, {"WindowState": 0, "ScaleMode": 1, "DrawStyle": 0, "DrawMode": 0, "DrawWidth": 1,
                                    "ScaleHeight": 0}, methods=["line"])
        self.call(5, object_argument(form))
        lines = [entry for entry in form.log if entry[0] == "line"]
        self.assertEqual(len(lines), 256)
        self.assertEqual((lines[0][1], lines[0][-1]), (22, 255 * 65536))
        self.assertEqual(lines[255][-1], 0)
        self.assertEqual(form.log[:5], [("DrawStyle", "=", 6), ("DrawMode", "=", 13), ("ScaleMode", "=", 3),
                                        ("DrawWidth", "=", 2), ("ScaleHeight", "=", 256)])
        self.assertEqual(form.references, 1)

    def test_the_selected_option_of_a_group_is_found(self):
        options = [Control(AUTOMATION, {"Value": i == 3, "Index": i}) for i in range(5)]
        group = Group(AUTOMATION, options)
        self.assertEqual(self.call(8, object_argument(group)).value.short, 3)
        self.assertEqual([option.references for option in options], [1] * 5)
        self.assertEqual((group.references, group.enumerators[0].references), (1, 0))

    def test_a_maximised_form_is_recorded_as_covering_the_screen(self):
        form = Control(AUTOMATION, {"WindowState": 2, "Left": 10.0, "Top": 10.0, "Width": 10.0, "Height": 10.0})
        ini = create("clsIni")
        with tempfile.TemporaryDirectory() as folder:
            path = os.path.join(folder, "app.ini").replace("/", "\\")
            arguments = [text_argument("C:" + path), object_argument(form)]
            status, _, _ = invoke(ini, 0x60030006, arguments)
            self.assertEqual(status, 0)
            AUTOMATION.take(arguments[0].value.pointer)
            with open(os.path.join(folder, "app.ini"), "rb") as file:
                self.assertEqual(file.read(),
                                 b"[window]\r\nLeft=0\r\nTop=0\r\nWidth=100\r\nHeight=100\r\nState=0\r\n")
        release(ini)
        self.assertEqual(form.references, 1)

    def test_a_form_without_a_property_is_error_438(self):
        form = Control(AUTOMATION, {"Left": 10.0})
        ini = create("clsIni")
        arguments = [text_argument("x.ini"), object_argument(form)]
        status, _, exception = invoke(ini, 0x60030006, arguments)
        self.assertEqual(status, DISP_E_EXCEPTION)
        self.assertEqual(exception.status & 0xFFFFFFFF, 0x800A0000 + 438)
        for text in (arguments[0].value.pointer, exception.source, exception.description):
            AUTOMATION.take(text)
        release(ini)


if __name__ == "__main__":
    unittest.main(argv=sys.argv)
