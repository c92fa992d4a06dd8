#!/usr/bin/env python3
"""Writes what registers the library without regsvr32, or takes that back, from the interface
definitions: for the installer, for one user, who needs no rights for it, or as a .reg file.

    registry_entries.py nsis                    macros for the installer
    registry_entries.py cmd x64 [--remove]      a command script for the current user
    registry_entries.py reg x64 --scope user --library 'C:\\Tools\\KWUTILS.DLL' >register.reg
    registry_entries.py reg x64 --scope user --remove >unregister.reg

The entries are those that regsvr32 makes for the whole machine. "wow" is the 32-bit library on
64-bit Windows, whose classes and interfaces have places of their own.
"""

import argparse
import pathlib
import re
import sys
from dataclasses import dataclass

DEFINITIONS = pathlib.Path(__file__).resolve().parents[2] / "src/server/kwutils.idl"
CLASSES = r"Software\Classes"
# Marshals calls of interfaces of the automation kind, by what the type library says of them.
MARSHALLER = "{00020424-0000-0000-C000-000000000046}"
SYSTEMS = {"x64": "win64", "x86": "win32", "wow": "win32"}


@dataclass
class Entry:
    key: str
    text: str
    name: str = ""


class Library:
    def __init__(self, idl):
        text = re.sub(r'\\"', "'", idl)
        head, self.name = re.search(r"\[([^\]]*)\]\s*library (\w+)", text).groups()
        self.guid = guid(head)
        self.help = helpstring(head)
        self.locale = re.search(r"lcid\(0x([0-9a-f]+)\)", head)[1]
        major, minor = re.search(r"version\((\d+)\.(\d+)\)", head).groups()
        self.version = f"{major}.{minor}"
        # The key of a type library bears its version in hexadecimal digits.
        self.key_version = f"{int(major):x}.{int(minor):x}"
        blocks = re.findall(r"\[([^\]]*)\]\s*(coclass|interface) (\w+)", text)
        self.classes = [(n, guid(h), helpstring(h)) for h, kind, n in blocks if kind == "coclass"]
        self.interfaces = [(n, guid(h)) for h, kind, n in blocks
                           if kind == "interface" and "oleautomation" in h]

    def entries(self, folder, library, system):
        for name, class_id, help_text in self.classes:
            key = rf"CLSID\{class_id}"
            yield Entry(key, help_text)
            yield Entry(rf"{key}\InprocServer32", library)
            yield Entry(rf"{key}\InprocServer32", "Apartment", "ThreadingModel")
            yield Entry(rf"{key}\ProgID", f"{self.name}.{name}")
            yield Entry(rf"{key}\TypeLib", self.guid)
            yield Entry(rf"{key}\Version", self.version)
            yield Entry(f"{self.name}.{name}", help_text)
            yield Entry(rf"{self.name}.{name}\CLSID", class_id)
        for name, interface_id in self.interfaces:
            key = rf"Interface\{interface_id}"
            yield Entry(key, name)
            yield Entry(rf"{key}\ProxyStubClsid", MARSHALLER)
            yield Entry(rf"{key}\ProxyStubClsid32", MARSHALLER)
            yield Entry(rf"{key}\TypeLib", self.guid)
            yield Entry(rf"{key}\TypeLib", self.key_version, "Version")
        key = rf"TypeLib\{self.guid}\{self.key_version}"
        yield Entry(key, self.help)
        yield Entry(rf"{key}\{self.locale}\{system}", library)
        yield Entry(rf"{key}\FLAGS", "8")  # it is kept in a file
        yield Entry(rf"{key}\HELPDIR", folder)

    def own_keys(self, system):
        """The keys that serve one bitness alone and hold everything of it."""
        keys = [rf"CLSID\{class_id}" for _, class_id, _ in self.classes]
        return keys + [rf"TypeLib\{self.guid}\{self.key_version}\{self.locale}\{system}"]

    def shared_keys(self):
        keys = [rf"Interface\{interface_id}" for _, interface_id in self.interfaces]
        return keys + [f"{self.name}.{name}" for name, _, _ in self.classes] + [rf"TypeLib\{self.guid}"]


def serves_both(key):
    """Both bitnesses marshal alike, and either may call an object of the other in another process."""
    return key.startswith("Interface\\")


def guid(attributes):
    return "{%s}" % re.search(r"uuid\(([0-9A-F-]+)\)", attributes)[1]


def helpstring(attributes):
    return re.search(r'helpstring\("([^"]*)"\)', attributes)[1]


def nsis(library):
    """Macros that leave the choice of the view to the installer."""
    yield "; Made from the interface definitions."
    yield "!macro KW_REGISTER FOLDER SYSTEM"
    for entry in library.entries("${FOLDER}", r"${FOLDER}\KWUTILS.DLL", "${SYSTEM}"):
        yield f'  WriteRegStr SHCTX "{CLASSES}\\{entry.key}" "{entry.name}" "{entry.text}"'
    yield "!macroend"
    yield "!macro KW_UNREGISTER SYSTEM"
    for key in library.own_keys("${SYSTEM}") + library.shared_keys():
        yield f'  DeleteRegKey SHCTX "{CLASSES}\\{key}"'
    yield "!macroend"


def registering_script(library, bitness):
    views = {"x64": ("/reg:64", "/reg:32"), "x86": ("/reg:32",)}[bitness]
    yield "@echo off"
    yield "rem Registers the library in this folder for the current user alone."
    yield "setlocal"
    yield 'set "folder=%~dp0"'
    yield 'set "folder=%folder:~0,-1%"'
    for entry in library.entries("%folder%", r"%folder%\KWUTILS.DLL", SYSTEMS[bitness]):
        value = f'/v "{entry.name}"' if entry.name else "/ve"
        for view in views if serves_both(entry.key) else views[:1]:
            yield f'reg add "HKCU\\{CLASSES}\\{entry.key}" {value} /d "{entry.text}" /f {view} >nul'
            yield "if errorlevel 1 exit /b 1"
    yield "echo Registered for this user."


def removing_script(library, bitness):
    own_view, other_view = ("/reg:64", "/reg:32") if bitness == "x64" else ("/reg:32", "/reg:64")
    own = library.own_keys(SYSTEMS[bitness])
    yield "@echo off"
    yield "rem Takes back what register-user.cmd recorded."
    for key in own:
        yield f'reg delete "HKCU\\{CLASSES}\\{key}" /f {own_view} >nul 2>&1'
    yield "rem The rest serves the library of the other bitness, too."
    yield f'reg query "HKCU\\{CLASSES}\\{own[0]}" {other_view} >nul 2>&1'
    yield "if not errorlevel 1 exit /b 0"
    for key in library.shared_keys():
        for view in (own_view, other_view) if serves_both(key) else (own_view,):
            yield f'reg delete "HKCU\\{CLASSES}\\{key}" /f {view} >nul 2>&1'
    yield "exit /b 0"


def quoted(text):
    return '"' + text.replace("\\", "\\\\").replace('"', '\\"') + '"'


def places(key, bitness):
    """Where a .reg file, which has no views, finds a key."""
    has_view = key.startswith(("CLSID\\", "Interface\\"))
    native, wow = key, "Wow6432Node\\" + key if has_view else key
    if serves_both(key) and bitness != "x86":
        return native, wow
    return (wow if bitness == "wow" else native,)


def reg_file(library, bitness, root, path):
    values = {}
    for entry in library.entries(path.rpartition("\\")[0], path, SYSTEMS[bitness]):
        for key in places(entry.key, bitness):
            name = quoted(entry.name) if entry.name else "@"
            values.setdefault(key, []).append(f"{name}={quoted(entry.text)}")
    yield "Windows Registry Editor Version 5.00"
    for key, lines in values.items():
        yield ""
        yield f"[{root}\\{key}]"
        yield from lines


def removing_reg_file(library, bitness, root):
    """All of the library: a .reg file cannot ask for the other bitness."""
    yield "Windows Registry Editor Version 5.00"
    for key in library.own_keys(SYSTEMS[bitness]) + library.shared_keys():
        for place in places(key, bitness):
            yield ""
            yield f"[-{root}\\{place}]"


def main():
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    forms = parser.add_subparsers(dest="form", required=True)
    forms.add_parser("nsis")
    command = forms.add_parser("cmd")
    command.add_argument("bitness", choices=("x64", "x86"))
    file = forms.add_parser("reg")
    file.add_argument("bitness", choices=("x64", "x86", "wow"))
    file.add_argument("--library", default="KWUTILS.DLL", help="its whole path on Windows")
    file.add_argument("--scope", choices=("user", "machine"), required=True)
    for form in command, file:
        form.add_argument("--remove", action="store_true")
    options = parser.parse_args()

    library = Library(DEFINITIONS.read_text(encoding="ascii"))
    encoding, newline = "ascii", "\r\n"
    if options.form == "nsis":
        lines, newline = nsis(library), "\n"
    elif options.form == "cmd":
        lines = (removing_script if options.remove else registering_script)(library, options.bitness)
    else:
        encoding = "utf-16"
        root = {"user": "HKEY_CURRENT_USER", "machine": "HKEY_LOCAL_MACHINE"}[options.scope] + "\\" + CLASSES
        if options.remove:
            lines = removing_reg_file(library, options.bitness, root)
        else:
            lines = reg_file(library, options.bitness, root, options.library)
    sys.stdout.buffer.write("".join(line + newline for line in lines).encode(encoding))


main()
