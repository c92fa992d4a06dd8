"""The automation types and functions as ctypes sees them, for clients that are not C++."""

import ctypes
import os

VT_EMPTY, VT_I2, VT_I4, VT_R4, VT_R8 = 0, 2, 3, 4, 5
VT_BSTR, VT_DISPATCH, VT_ERROR, VT_BOOL, VT_VARIANT, VT_UNKNOWN = 8, 9, 10, 11, 12, 13
VT_ARRAY, VT_BYREF = 0x2000, 0x4000

DISPATCH_METHOD, DISPATCH_PROPERTYGET, DISPATCH_PROPERTYPUT = 1, 2, 4
DISP_E_MEMBERNOTFOUND, DISP_E_UNKNOWNNAME, DISP_E_EXCEPTION = 0x80020003, 0x80020006, 0x80020009


class GUID(ctypes.Structure):
    _fields_ = [
        ("first", ctypes.c_uint32),
        ("second", ctypes.c_uint16),
        ("third", ctypes.c_uint16),
        ("rest", ctypes.c_uint8 * 8),
    ]

    @classmethod
    def parse(cls, text):
        parts = text.strip("{}").split("-")
        rest = bytes.fromhex(parts[3] + parts[4])
        return cls(int(parts[0], 16), int(parts[1], 16), int(parts[2], 16), (ctypes.c_uint8 * 8)(*rest))


class VariantValue(ctypes.Union):
    _fields_ = [
        ("short", ctypes.c_int16),
        ("long", ctypes.c_int32),
        ("single", ctypes.c_float),
        ("real", ctypes.c_double),
        ("pointer", ctypes.c_void_p),
        ("pair", ctypes.c_void_p * 2),
    ]


class VARIANT(ctypes.Structure):
    _fields_ = [("kind", ctypes.c_uint16), ("reserved", ctypes.c_uint16 * 3), ("value", VariantValue)]


class DISPPARAMS(ctypes.Structure):
    _fields_ = [
        ("arguments", ctypes.POINTER(VARIANT)),
        ("names", ctypes.POINTER(ctypes.c_int32)),
        ("count", ctypes.c_uint32),
        ("named", ctypes.c_uint32),
    ]


class EXCEPINFO(ctypes.Structure):
    _fields_ = [
        ("code", ctypes.c_uint16),
        ("reserved", ctypes.c_uint16),
        ("source", ctypes.c_void_p),
        ("description", ctypes.c_void_p),
        ("help_file", ctypes.c_void_p),
        ("help_context", ctypes.c_uint32),
        ("more", ctypes.c_void_p),
        ("fill_in", ctypes.c_void_p),
        ("status", ctypes.c_int32),
    ]


IID_UNKNOWN = GUID.parse("00000000-0000-0000-C000-000000000046")
IID_FACTORY = GUID.parse("00000001-0000-0000-C000-000000000046")
IID_DISPATCH = GUID.parse("00020400-0000-0000-C000-000000000046")
IID_ENUM_VARIANT = GUID.parse("00020404-0000-0000-C000-000000000046")
IID_SUPPORT_ERROR_INFO = GUID.parse("DF0B3D60-548F-101B-8E65-08002B2BD119")
NULL_GUID = GUID()


class Automation:
    """The functions of libkwautomation.so that a client needs."""

    def __init__(self, folder):
        self.library = ctypes.CDLL(os.path.join(folder, "libkwautomation.so"))
        self.library.SysAllocStringLen.restype = ctypes.c_void_p
        self.library.SysAllocStringLen.argtypes = [ctypes.c_char_p, ctypes.c_uint32]
        self.library.SysStringLen.argtypes = [ctypes.c_void_p]
        self.library.SysFreeString.argtypes = [ctypes.c_void_p]
        self.library.SafeArrayCreateVector.restype = ctypes.c_void_p
        self.library.SafeArrayCreateVector.argtypes = [ctypes.c_uint16, ctypes.c_int32, ctypes.c_uint32]
        self.library.GetErrorInfo.argtypes = [ctypes.c_uint32, ctypes.POINTER(ctypes.c_void_p)]

    def text(self, value):
        """A new BSTR."""
        units = value.encode("utf-16-le", "surrogatepass")
        return self.library.SysAllocStringLen(units, len(units) // 2)

    def read(self, pointer):
        """The text of a BSTR, which stays as it is."""
        if not pointer:
            return ""
        length = self.library.SysStringLen(pointer)
        return ctypes.string_at(pointer, length * 2).decode("utf-16-le", "surrogatepass")

    def take(self, pointer):
        """The text of a BSTR, which is freed."""
        value = self.read(pointer)
        self.library.SysFreeString(pointer)
        return value

    def live_counts(self):
        strings, arrays = ctypes.c_int64(), ctypes.c_int64()
        self.library.KwAutomationLiveCounts(ctypes.byref(strings), ctypes.byref(arrays))
        return strings.value, arrays.value


def slot(pointer, index, *types):
    """The function in a slot of an object, ready to be called with the object in front."""
    table = ctypes.cast(pointer, ctypes.POINTER(ctypes.POINTER(ctypes.c_void_p))).contents
    function = ctypes.CFUNCTYPE(ctypes.c_uint32, ctypes.c_void_p, *types)(table[index])
    return lambda *arguments: function(pointer, *arguments)


def query(pointer, iid):
    result = ctypes.c_void_p()
    status = slot(pointer, 0, ctypes.POINTER(GUID), ctypes.POINTER(ctypes.c_void_p))(
        ctypes.byref(iid), ctypes.byref(result))
    return status, result.value


def release(pointer):
    return slot(pointer, 2)()
