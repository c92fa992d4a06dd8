#!/usr/bin/env python3
"""Writes what registers the library for one user, or with an installer, from the interface definitions.

    registry_entries.py nsis IDL >entries.nsh      macros for the installer
    registry_entries.py register IDL x64|x86       a command script for the current user
    registry_entries.py unregister IDL x64|x86

Registration of the whole machine is the library's own business (regsvr32) and writes the same.
"""

import re
import sys

CLASSES = r"Software\Classes"
# Marshals calls of interfaces of the automation kind, by what the type library says of them.
MARSHALLER = "{00020424-0000-0000-C000-000000000046}"


class Library:
    def __init__(self, idl):
        text = re.sub(r'\\"', "'", open(idl, encoding="utf-8").read())
        head, name = re.search(r"\[([^\]]*)\]\s*library (\w+)", text).groups()
        self.name = name
        self.guid = guid(head)
        self.help = helpstring(head)
        major, minor = re.search(r"version\((\d+)\.(\d+)\)", head).groups()
        self.version = f"{major}.{minor}"
        # The key of a type library bears its version in hexadecimal digits.
        self.key_version = f"{int(major):x}.{int(minor):x}"
        blocks = re.findall(r"\[([^\]]*)\]\s*(coclass|interface) (\w+)", text)
        self.classes = [(n, guid(h), helpstring(h)) for h, kind, n in blocks if kind == "coclass"]
        self.interfaces = [(n, guid(h)) for h, kind, n in blocks
                           if kind == "interface" and "dual" in h]

    def keys(self):
        """The keys that hold everything else, those of one bitness first."""
        own = [rf"CLSID\{g}" for _, g, _ in self.classes]
        own += [rf"Interface\{g}" for _, g in self.interfaces]
        return own, [f"{self.name}.{n}" for n, _, _ in self.classes] + [rf"TypeLib\{self.guid}"]

    def entries(self, folder, system):
        """Key, name of the value ("" for the key's own), text."""
        library = folder + r"\KWUTILS.DLL"
        for name, class_id, help_text in self.classes:
            key = rf"CLSID\{class_id}"
            yield key, "", help_text
            yield key + r"\InprocServer32", "", library
            yield key + r"\InprocServer32", "ThreadingModel", "Apartment"
            yield key + r"\ProgID", "", f"{self.name}.{name}"
            yield key + r"\TypeLib", "", self.guid
            yield key + r"\Version", "", self.version
            yield f"{self.name}.{name}", "", help_text
            yield rf"{self.name}.{name}\CLSID", "", class_id
        for name, interface_id in self.interfaces:
            key = rf"Interface\{interface_id}"
            yield key, "", name
            yield key + r"\ProxyStubClsid32", "", MARSHALLER
            yield key + r"\TypeLib", "", self.guid
            yield key + r"\TypeLib", "Version", self.key_version
        key = rf"TypeLib\{self.guid}\{self.key_version}"
        yield key, "", self.help
        yield rf"{key}\409\{system}", "", library
        yield key + r"\FLAGS", "", "0"
        yield key + r"\HELPDIR", "", folder


def guid(attributes):
    return "{%s}" % re.search(r"uuid\(([0-9A-F-]+)\)", attributes)[1]


def helpstring(attributes):
    return re.search(r'helpstring\("([^"]*)"\)', attributes)[1]


def nsis(library):
    yield "; Made from the interface definitions."
    yield "!macro KW_REGISTER FOLDER SYSTEM"
    for key, name, text in library.entries("${FOLDER}", "${SYSTEM}"):
        yield f'  WriteRegStr SHCTX "{CLASSES}\\{key}" "{name}" "{text}"'
    yield "!macroend"
    own, shared = library.keys()
    for macro, keys in (("KW_UNREGISTER", own), ("KW_UNREGISTER_SHARED", shared)):
        yield f"!macro {macro}"
        for key in keys:
            yield f'  DeleteRegKey SHCTX "{CLASSES}\\{key}"'
        yield "!macroend"


def view(bitness):
    return "/reg:64" if bitness == "x64" else "/reg:32"


def register(library, bitness):
    yield "@echo off"
    yield "rem Registers the library in this folder for the current user alone."
    yield "setlocal"
    yield 'set "folder=%~dp0"'
    yield 'set "folder=%folder:~0,-1%"'
    system = "win64" if bitness == "x64" else "win32"
    for key, name, text in library.entries("%folder%", system):
        value = f'/v "{name}"' if name else "/ve"
        yield f'reg add "HKCU\\{CLASSES}\\{key}" {value} /d "{text}" /f {view(bitness)} >nul'
        yield "if errorlevel 1 exit /b 1"
    yield "echo Registered for this user."


def unregister(library, bitness):
    other = "x86" if bitness == "x64" else "x64"
    own, shared = library.keys()
    yield "@echo off"
    yield "rem Takes back what register-user.cmd recorded."
    for key in own:
        yield f'reg delete "HKCU\\{CLASSES}\\{key}" /f {view(bitness)} >nul 2>&1'
    yield "rem The names and the type library serve the library of the other bitness, too."
    yield f'reg query "HKCU\\{CLASSES}\\{own[0]}" {view(other)} >nul 2>&1'
    yield "if not errorlevel 1 exit /b 0"
    for key in shared:
        yield f'reg delete "HKCU\\{CLASSES}\\{key}" /f {view(bitness)} >nul 2>&1'
    yield "exit /b 0"


def main(arguments):
    makers = {"nsis": nsis, "register": register, "unregister": unregister}
    if len(arguments) < 2 or arguments[0] not in makers:
        sys.exit(__doc__)
    lines = makers[arguments[0]](Library(arguments[1]), *arguments[2:])
    sys.stdout.reconfigure(newline="\r\n" if arguments[0] != "nsis" else "\n")
    print("\n".join(lines))


main(sys.argv[1:])
