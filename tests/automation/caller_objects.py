"""Objects of a caller, made in Python: controls and forms that answer to names (IDispatch), and groups
that can be walked (IEnumVARIANT). The library calls them late-bound."""

import ctypes

from automation_types import *  # noqa: F403

HRESULT = ctypes.c_int32
S_OK, S_FALSE, E_NOINTERFACE = 0, 1, -2147467262
MEMBER_NOT_FOUND, UNKNOWN_NAME = -2147352573, -2147352570

QUERY = ctypes.CFUNCTYPE(HRESULT, ctypes.c_void_p, ctypes.POINTER(GUID), ctypes.POINTER(ctypes.c_void_p))
COUNT = ctypes.CFUNCTYPE(ctypes.c_uint32, ctypes.c_void_p)
INFO_COUNT = ctypes.CFUNCTYPE(HRESULT, ctypes.c_void_p, ctypes.POINTER(ctypes.c_uint32))
INFO = ctypes.CFUNCTYPE(HRESULT, ctypes.c_void_p, ctypes.c_uint32, ctypes.c_uint32, ctypes.c_void_p)
NAMES = ctypes.CFUNCTYPE(HRESULT, ctypes.c_void_p, ctypes.POINTER(GUID), ctypes.POINTER(ctypes.c_void_p),
                         ctypes.c_uint32, ctypes.c_uint32, ctypes.POINTER(ctypes.c_int32))
INVOKE = ctypes.CFUNCTYPE(HRESULT, ctypes.c_void_p, ctypes.c_int32, ctypes.POINTER(GUID), ctypes.c_uint32,
                          ctypes.c_uint16, ctypes.POINTER(DISPPARAMS), ctypes.POINTER(VARIANT), ctypes.c_void_p,
                          ctypes.c_void_p)
NEXT = ctypes.CFUNCTYPE(HRESULT, ctypes.c_void_p, ctypes.c_uint32, ctypes.POINTER(VARIANT),
                        ctypes.POINTER(ctypes.c_uint32))
SKIP = ctypes.CFUNCTYPE(HRESULT, ctypes.c_void_p, ctypes.c_uint32)
RESET = ctypes.CFUNCTYPE(HRESULT, ctypes.c_void_p)
CLONE = ctypes.CFUNCTYPE(HRESULT, ctypes.c_void_p, ctypes.c_void_p)


def equal(left, right):
    return bytes(left) == bytes(right)


def wide_text(pointer):
    """The text of a terminated string of 16-bit units."""
    units = ctypes.cast(pointer, ctypes.POINTER(ctypes.c_uint16))
    length = 0
    while units[length]:
        length += 1
    return ctypes.string_at(pointer, length * 2).decode("utf-16-le")


class Implemented:
    """An object whose slots are Python functions. It lives as long as Python holds it; the count of
    references tells whether the library gave all of them back."""

    def __init__(self, interfaces, functions):
        self.interfaces = interfaces
        self.references = 1
        self.slots = [QUERY(self.query), COUNT(self.add), COUNT(self.release)] + functions
        self.table = (ctypes.c_void_p * len(self.slots))(
            *[ctypes.cast(function, ctypes.c_void_p).value for function in self.slots])
        self.object = ctypes.c_void_p(ctypes.addressof(self.table))
        self.pointer = ctypes.addressof(self.object)

    def query(self, _, iid, result):
        known = any(equal(iid.contents, wanted) for wanted in self.interfaces)
        result[0] = self.pointer if known else None
        self.references += known
        return S_OK if known else E_NOINTERFACE

    def add(self, _):
        self.references += 1
        return self.references

    def release(self, _):
        self.references -= 1
        return self.references


class Control(Implemented):
    """Answers to the names of `properties` and of `methods`; every call is kept in `log`."""

    def __init__(self, automation, properties, methods=(), default=None):
        super().__init__([IID_UNKNOWN, IID_DISPATCH],
                         [INFO_COUNT(self.info_count), INFO(self.info), NAMES(self.names), INVOKE(self.invoke)])
        self.automation = automation
        self.properties = dict(properties)
        self.members = list(properties) + list(methods)
        self.methods = set(methods)
        self.default = default
        self.log = []

    def info_count(self, _, count):
        count[0] = 0
        return S_OK

    def info(self, *_):
        return MEMBER_NOT_FOUND

    def names(self, _, __, names, ___, ____, ids):
        wanted = wide_text(names[0]).lower()
        for number, name in enumerate(self.members, 1):
            if name.lower() == wanted:
                ids[0] = number
                return S_OK
        return UNKNOWN_NAME

    def invoke(self, _, member, __, ___, flags, parameters, result, ____, _____):
        if member == -4:
            return self.walk(result)
        name = self.default if member == 0 else self.members[member - 1]
        if name is None:
            return MEMBER_NOT_FOUND
        arguments = [self.value(parameters[0].arguments[i]) for i in range(parameters[0].count)][::-1]
        if name in self.methods:
            self.log.append((name, *arguments))
            return S_OK
        if flags & DISPATCH_PROPERTYPUT:
            self.log.append((name, "=", arguments[0]))
            self.properties[name] = arguments[0]
            return S_OK
        self.give(self.properties[name], result[0])
        return S_OK

    def walk(self, _):
        return MEMBER_NOT_FOUND

    def value(self, variant):
        readers = {VT_BSTR: lambda v: self.automation.read(v.pointer), VT_I2: lambda v: v.short,
                   VT_I4: lambda v: v.long, VT_R4: lambda v: v.single, VT_R8: lambda v: v.real,
                   VT_BOOL: lambda v: bool(v.short)}
        return readers[variant.kind](variant.value)

    def give(self, value, variant):
        if isinstance(value, bool):
            variant.kind, variant.value.short = VT_BOOL, -1 if value else 0
        elif isinstance(value, int):
            variant.kind, variant.value.short = VT_I2, value
        elif isinstance(value, float):
            variant.kind, variant.value.single = VT_R4, value
        else:
            variant.kind, variant.value.pointer = VT_BSTR, self.automation.text(value)


class Members(Implemented):
    def __init__(self, controls):
        super().__init__([IID_UNKNOWN, IID_ENUM_VARIANT],
                         [NEXT(self.next), SKIP(self.skip), RESET(self.reset), CLONE(self.clone)])
        self.left = list(controls)

    def next(self, _, count, values, fetched):
        given = 0
        while given < count and self.left:
            control = self.left.pop(0)
            control.references += 1
            values[given].kind = VT_DISPATCH
            values[given].value.pointer = control.pointer
            given += 1
        if fetched:
            fetched[0] = given
        return S_OK if given == count else S_FALSE

    def skip(self, _, count):
        del self.left[:count]
        return S_OK

    def reset(self, _):
        return S_FALSE

    def clone(self, _, __):
        return E_NOINTERFACE


class Group(Control):
    def __init__(self, automation, controls):
        super().__init__(automation, {})
        self.controls = controls
        self.enumerators = []

    def walk(self, result):
        members = Members(self.controls)
        self.enumerators.append(members)
        result[0].kind = VT_UNKNOWN
        result[0].value.pointer = members.pointer
        return S_OK
