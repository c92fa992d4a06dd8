#!/usr/bin/env python3
"""A client that knows nothing but the binary interface: creates objects of the built library, calls
them by slot and late-bound, and reads their errors."""

import ctypes
import os
import sys
import tempfile
import threading
import unittest

from automation_types import *  # noqa: F403  the vocabulary of this test

FOLDER = os.environ["KW_BIN"]
AUTOMATION = Automation(FOLDER)
LIBRARY = ctypes.CDLL(os.path.join(FOLDER, "libkwutils.so"))

CLASSES = {
    "clsParse": ("141aa2dd-593e-11d2-805f-00a0244600df", "e8c76283-7233-48e0-ba4e-4bf5fd099946"),
    "clsIni": ("141aa2df-593e-11d2-805f-00a0244600df", "141aa2de-593e-11d2-805f-00a0244600df"),
    "clsFileUtil": ("141aa2e1-593e-11d2-805f-00a0244600df", "141aa2e0-593e-11d2-805f-00a0244600df"),
    "clsFileReadWrite": ("141aa2e4-593e-11d2-805f-00a0244600df", "1bea90c4-431c-45d7-a442-11bbace7fbfe"),
    "clsStringUtil": ("141aa2e6-593e-11d2-805f-00a0244600df", "141aa2e5-593e-11d2-805f-00a0244600df"),
    "clsDataEdtUtils": ("141aa2e8-593e-11d2-805f-00a0244600df", "141aa2e7-593e-11d2-805f-00a0244600df"),
    "clsAPIUtil": ("141aa2ea-593e-11d2-805f-00a0244600df", "141aa2e9-593e-11d2-805f-00a0244600df"),
    "clsQSort": ("04c4ec54-edab-4fc0-bafa-19329f9ff6cc", "dec8c1fb-81ea-485b-b765-2ba91e8f231d"),
}

# One method of each class and its dispatch number.
MEMBERS = {
    "clsParse": ("ParseSubEntitiesIntoColl", 13),
    "clsIni": ("WriteWindowInIni", 6),
    "clsFileUtil": ("FileOpener", 10),
    "clsFileReadWrite": ("GetEntitiesWithoutTable", 74),
    "clsStringUtil": ("NumStr", 6),
    "clsDataEdtUtils": ("OptionTrueIs", 8),
    "clsAPIUtil": ("NTDomainUserName", 0),
    "clsQSort": ("sQSortNRDesIndex", 34),
}


def factory(class_id):
    result = ctypes.c_void_p()
    status = LIBRARY.DllGetClassObject(
        ctypes.byref(GUID.parse(class_id)), ctypes.byref(IID_FACTORY), ctypes.byref(result))
    return status & 0xFFFFFFFF, result.value


def create(name, iid=None):
    _, maker = factory(CLASSES[name][0])
    result = ctypes.c_void_p()
    wanted = GUID.parse(CLASSES[name][1]) if iid is None else iid
    status = slot(maker, 3, ctypes.c_void_p, ctypes.POINTER(GUID), ctypes.POINTER(ctypes.c_void_p))(
        None, ctypes.byref(wanted), ctypes.byref(result))
    assert status == 0, hex(status)
    return result.value


def member_id(pointer, name):
    names = (ctypes.c_char_p * 1)(name.encode("utf-16-le") + b"\0\0")
    number = ctypes.c_int32()
    status = slot(pointer, 5, ctypes.POINTER(GUID), ctypes.c_void_p, ctypes.c_uint32, ctypes.c_uint32,
                  ctypes.POINTER(ctypes.c_int32))(ctypes.byref(NULL_GUID), names, 1, 0, ctypes.byref(number))
    return status, number.value


def invoke(pointer, number, reversed_arguments=(), flags=DISPATCH_METHOD):
    array = (VARIANT * max(1, len(reversed_arguments)))(*reversed_arguments)
    parameters = DISPPARAMS(array, None, len(reversed_arguments), 0)
    result, exception, bad = VARIANT(), EXCEPINFO(), ctypes.c_uint32()
    status = slot(pointer, 6, ctypes.c_int32, ctypes.POINTER(GUID), ctypes.c_uint32, ctypes.c_uint16,
                  ctypes.POINTER(DISPPARAMS), ctypes.POINTER(VARIANT), ctypes.POINTER(EXCEPINFO),
                  ctypes.POINTER(ctypes.c_uint32))(
        number, ctypes.byref(NULL_GUID), 0, flags, ctypes.byref(parameters), ctypes.byref(result),
        ctypes.byref(exception), ctypes.byref(bad))
    return status, result, exception


def text_argument(value):
    argument = VARIANT(kind=VT_BSTR)
    argument.value.pointer = AUTOMATION.text(value)
    return argument


class Creation(unittest.TestCase):
    def test_every_class_is_created_and_answers_by_name_and_number(self):
        for name, (member, number) in MEMBERS.items():
            with self.subTest(name):
                made = create(name)
                self.assertEqual(member_id(made, member.upper()), (0, 0x60030000 + number))
                release(made)

    def test_an_unknown_class_is_not_available(self):
        status, _ = factory("00000000-0000-0000-0000-000000000001")
        self.assertEqual(status, 0x80040111)

    def test_the_library_can_go_only_when_nothing_is_held(self):
        self.assertEqual(LIBRARY.DllCanUnloadNow(), 0)
        made = create("clsFileReadWrite")
        self.assertEqual(LIBRARY.DllCanUnloadNow(), 1)
        release(made)
        self.assertEqual(LIBRARY.DllCanUnloadNow(), 0)
        _, maker = factory(CLASSES["clsParse"][0])
        lock = slot(maker, 4, ctypes.c_int32)
        lock(1)
        self.assertEqual(LIBRARY.DllCanUnloadNow(), 1)
        lock(0)
        self.assertEqual(LIBRARY.DllCanUnloadNow(), 0)

    def test_objects_announce_error_info_for_their_interface(self):
        made = create("clsParse")
        status, part = query(made, IID_SUPPORT_ERROR_INFO)
        self.assertEqual(status, 0)
        own = GUID.parse(CLASSES["clsParse"][1])
        self.assertEqual(slot(part, 3, ctypes.POINTER(GUID))(ctypes.byref(own)), 0)
        self.assertEqual(slot(part, 3, ctypes.POINTER(GUID))(ctypes.byref(IID_UNKNOWN)), 1)
        release(part)
        release(made)

    def test_an_object_cannot_be_aggregated(self):
        _, maker = factory(CLASSES["clsParse"][0])
        outer = create("clsParse")
        result = ctypes.c_void_p()
        status = slot(maker, 3, ctypes.c_void_p, ctypes.POINTER(GUID), ctypes.POINTER(ctypes.c_void_p))(
            outer, ctypes.byref(IID_UNKNOWN), ctypes.byref(result))
        self.assertEqual(status, 0x80040110)
        release(outer)


class SlotCalls(unittest.TestCase):
    def test_a_consumed_text_and_its_first_item(self):
        made = create("clsParse")
        buffer = ctypes.c_void_p(AUTOMATION.text("  alpha 'b c'"))
        item = ctypes.c_void_p()
        call = slot(made, 7, ctypes.POINTER(ctypes.c_void_p), ctypes.c_void_p, ctypes.POINTER(ctypes.c_void_p))
        self.assertEqual(call(ctypes.byref(buffer), None, ctypes.byref(item)), 0)
        self.assertEqual(AUTOMATION.take(item.value), "alpha")
        self.assertEqual(AUTOMATION.take(buffer.value), "'b c'")
        release(made)

    def test_null_for_a_reference_is_a_status(self):
        made = create("clsParse")
        call = slot(made, 7, ctypes.c_void_p, ctypes.c_void_p, ctypes.c_void_p)
        self.assertEqual(call(None, None, None), 0x80004003)
        release(made)

    def test_errors_come_with_number_source_and_description(self):
        made = create("clsFileReadWrite")
        name, token = (ctypes.c_void_p(AUTOMATION.text(t)) for t in ("none.ent", "node"))
        result = ctypes.c_void_p()
        call = slot(made, 7, ctypes.POINTER(ctypes.c_void_p), ctypes.POINTER(ctypes.c_void_p), ctypes.c_void_p,
                    ctypes.POINTER(ctypes.c_void_p))
        identifier = AUTOMATION.text("1")
        self.assertEqual(call(ctypes.byref(name), ctypes.byref(token), identifier, ctypes.byref(result)),
                         0x800A0000 + 53)
        info = ctypes.c_void_p()
        self.assertEqual(AUTOMATION.library.GetErrorInfo(0, ctypes.byref(info)), 0)
        source, description = ctypes.c_void_p(), ctypes.c_void_p()
        slot(info.value, 4, ctypes.POINTER(ctypes.c_void_p))(ctypes.byref(source))
        slot(info.value, 5, ctypes.POINTER(ctypes.c_void_p))(ctypes.byref(description))
        self.assertEqual(AUTOMATION.take(source.value), "kwUtils.clsFileReadWrite")
        self.assertIn("none.ent", AUTOMATION.take(description.value))
        release(info.value)
        for text in (name.value, token.value, identifier):
            AUTOMATION.library.SysFreeString(text)
        release(made)

    def test_another_thread_gets_the_standard_status(self):
        made = create("clsAPIUtil")
        statuses = []

        def work():
            result = ctypes.c_void_p()
            statuses.append(slot(made, 7, ctypes.POINTER(ctypes.c_void_p))(ctypes.byref(result)))

        thread = threading.Thread(target=work)
        thread.start()
        thread.join()
        self.assertEqual(statuses, [0x8001010E])
        release(made)


class LateBoundCalls(unittest.TestCase):
    def test_by_number_reaches_the_same_method_as_the_slot(self):
        made = create("clsStringUtil")
        number = VARIANT(kind=VT_R8)
        number.value.real = -0.5
        status, result, _ = invoke(made, 0x60030006, [number])
        self.assertEqual(status, 0)
        self.assertEqual(AUTOMATION.take(result.value.pointer), " -0.5")
        release(made)

    def test_withdrawn_numbers_and_unknown_names_are_not_answered(self):
        made = create("clsFileReadWrite")
        for number in (9, 10, 14, 15, 18, 75, 1000):
            self.assertEqual(invoke(made, 0x60030000 + number)[0], DISP_E_MEMBERNOTFOUND)
        self.assertEqual(member_id(made, "GetEntitys")[0], DISP_E_UNKNOWNNAME)
        release(made)

    def test_failures_fill_the_exception(self):
        made = create("clsParse")
        arguments = [VARIANT(kind=VT_I4), text_argument(","), text_argument("a,b")]
        status, _, exception = invoke(made, 0x60030002, arguments)
        self.assertEqual(status, DISP_E_EXCEPTION)
        self.assertEqual(exception.status & 0xFFFFFFFF, 0x800A0005)
        self.assertEqual(AUTOMATION.take(exception.source), "kwUtils.clsParse")
        AUTOMATION.take(exception.description)
        for argument in arguments[1:]:
            AUTOMATION.take(argument.value.pointer)
        release(made)

    def test_a_file_is_written_and_read_back(self):
        made = create("clsFileReadWrite")
        with tempfile.TemporaryDirectory() as folder:
            path = os.path.join(folder, "plant.ent")
            arguments = [text_argument(t) for t in ("id '3' nm 'A'", "3", "node", path)]
            self.assertEqual(invoke(made, 0x60030003, arguments)[0], 0)
            with open(path, "rb") as file:
                self.assertEqual(file.read(), b"NODE id '3' nm 'A' node\r\n")
            wanted = [text_argument(t) for t in ("3", "node", path)]
            status, result, _ = invoke(made, 0x60030000, wanted)
            self.assertEqual(status, 0)
            self.assertEqual(AUTOMATION.take(result.value.pointer), "id '3' nm 'A' ")
            for argument in arguments + wanted:
                AUTOMATION.take(argument.value.pointer)
        release(made)

    def test_a_collection_made_by_the_library_is_enumerated(self):
        made = create("clsParse")
        variable = VARIANT()
        reference = VARIANT(kind=VT_BYREF | VT_VARIANT)
        reference.value.pointer = ctypes.addressof(variable)
        arguments = [reference, text_argument("x"), text_argument("X a x X b c x")]
        status, result, _ = invoke(made, 0x6003000D, arguments)
        self.assertEqual((status, result.value.long, variable.kind), (0, 2, VT_DISPATCH))
        collection = variable.value.pointer
        status, walker, _ = invoke(collection, -4, flags=DISPATCH_METHOD | DISPATCH_PROPERTYGET)
        self.assertEqual((status, walker.kind), (0, VT_UNKNOWN))
        status, members = query(walker.value.pointer, IID_ENUM_VARIANT)
        walked = []
        advance = slot(members, 3, ctypes.c_uint32, ctypes.POINTER(VARIANT), ctypes.c_void_p)
        while True:
            item = VARIANT()
            if advance(1, ctypes.byref(item), None) != 0:
                break
            walked.append(AUTOMATION.take(item.value.pointer))
        self.assertEqual(walked, ["a", "b c"])
        for pointer in (members, walker.value.pointer, collection, made):
            release(pointer)
        for argument in arguments[1:]:
            AUTOMATION.take(argument.value.pointer)


class Leaks(unittest.TestCase):
    def test_nothing_is_left_behind(self):
        made = create("clsParse")
        before = AUTOMATION.live_counts()
        for _ in range(100):
            arguments = [text_argument("a 'b c' d")]
            status, result, _ = invoke(made, 0x60030004, arguments)
            self.assertEqual(status, 0)
            AUTOMATION.take(result.value.pointer)
            AUTOMATION.take(arguments[0].value.pointer)
        self.assertEqual(AUTOMATION.live_counts(), before)
        release(made)
        self.assertEqual(LIBRARY.DllCanUnloadNow(), 0)


if __name__ == "__main__":
    unittest.main(argv=sys.argv)
