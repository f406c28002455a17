"""What is looked at before a folder for Windows is handed out, on made-up ones.

    test_folder.py FOLDER_OF_THE_TOOLS
"""

import io
import struct
import sys
import unittest
import zipfile

sys.path.insert(0, sys.argv.pop(1))
import forget_folder
import look_inside


def program(subsystem, imports):
    """As little of a program as is looked at: one section from 0x1000, which begins at 0x400 of the file."""
    texts, table = b"", b""
    names_at = 0x1000 + 20 * (len(imports) + 1)
    for name in imports:
        table += struct.pack("<IIIII", 1, 0, 0, names_at + len(texts), 1)
        texts += name.encode() + b"\0"
    section = table + bytes(20) + texts
    header = bytearray(0x400)
    struct.pack_into("<I", header, 0x3C, 0x80)
    struct.pack_into("<HH", header, 0x86, 1, 0)   # sections
    struct.pack_into("<H", header, 0x94, 240)     # size of the optional header
    struct.pack_into("<H", header, 0x98 + 68, subsystem)
    struct.pack_into("<II", header, 0x98 + 112 + 8, 0x1000 if imports else 0, 1)
    struct.pack_into("<IIII", header, 0x98 + 240 + 8, len(section), 0x1000, len(section), 0x400)
    return bytes(header) + section


def complaints(files):
    archive = io.BytesIO()
    with zipfile.ZipFile(archive, "w") as out:
        for name, content in files.items():
            out.writestr("Gatewise/" + name, content)
    with zipfile.ZipFile(archive) as made:
        return list(look_inside.complaints(made, "1.2.3", ["/home/somebody"]))


class Folder(unittest.TestCase):
    def test_what_is_missing_is_named(self):
        found = complaints({"GT.cfg": ""})
        self.assertIn("gatewise.exe is missing", found)
        self.assertIn("help/ is missing", found)
        self.assertNotIn("GT.cfg is missing", found)

    def test_a_library_that_lies_nowhere_is_named(self):
        found = complaints({"gt1.exe": program(3, ["KERNEL32.dll", "Qt6Core.dll", "Lost.dll"]), "Qt6Core.dll": program(3, [])})
        loads = [line for line in found if "loads" in line]
        self.assertEqual(loads, ["gt1.exe loads Lost.dll, which is nowhere"])

    def test_the_window_has_no_console_and_its_resources(self):
        self.assertIn("gatewise.exe opens a console", complaints({"gatewise.exe": program(3, [])}))
        found = complaints({"gatewise.exe": program(2, [])})
        self.assertNotIn("gatewise.exe opens a console", found)
        self.assertIn("gatewise.exe has no icon", found)
        self.assertIn("gatewise.exe does not tell its version 1.2.3", found)
        self.assertIn("the manifest of gatewise.exe lacks PerMonitorV2", found)

    def test_a_folder_of_the_build_is_found_in_both_codings(self):
        for content in (b"at /home/somebody/x", "at /home/somebody/x".encode("utf-16-le")):
            self.assertIn("GT.cfg names /home/somebody", complaints({"GT.cfg": content}))
        self.assertFalse([line for line in complaints({"GT.cfg": "/home/else"}) if "names" in line])


class Forgotten(unittest.TestCase):
    def test_a_text_begins_behind_the_folder_and_keeps_its_place(self):
        self.assertEqual(forget_folder.without(b"a\0/x/y/src/a.cpp\0b", b"/x/y"), b"a\0src/a.cpp\0\0\0\0\0\0b")

    def test_another_folder_stays(self):
        data = b"/x/yz/a.cpp\0/x/y\0"
        self.assertEqual(forget_folder.without(data, b"/x/y"), data)


unittest.main()
