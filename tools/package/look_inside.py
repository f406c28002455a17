#!/usr/bin/env python3
"""Looks into the folder for Windows before it is handed out.

look_inside.py ZIP VERSION FOLDER_OF_THE_BUILD...

Everything that a pilot needs is there, each program and library finds what it loads beside itself or in the system, the
window's program has no console, its icon, its version and its manifest, and no file names a folder of the build.
"""

import struct
import sys
import zipfile

LARGEST = 120_000_000
WANTED = ["gatewise.exe", "gtdrive.exe", "gt1.exe", "qt.conf", "GT.cfg", "LICENCE.txt", "THIRD-PARTY.md", "Qt6Core.dll",
          "Qt6Gui.dll", "Qt6Widgets.dll", "Qt6PrintSupport.dll", "platforms/qwindows.dll", "platforms/qoffscreen.dll",
          "libstdc++-6.dll", "libgcc_s_seh-1.dll", "libwinpthread-1.dll", "Images/", "Fonts/", "Wavs/", "Data/index.gt1",
          "help/", "licences/"]
# Libraries that every Windows since 10 brings along.
SYSTEM = {"advapi32", "authz", "comdlg32", "d3d11", "d3d9", "d3d12", "dcomp", "dsound", "dwmapi", "dwrite", "d2d1", "dxgi", "gdi32", "imm32",
          "kernel32", "mpr", "msvcrt", "netapi32", "ntdll", "ole32", "oleaut32", "setupapi", "shcore", "shell32", "shlwapi",
          "user32", "userenv", "uuid", "uxtheme", "version", "winmm", "winspool", "ws2_32", "wtsapi32"}
ICON, VERSION, MANIFEST = 14, 16, 24
WINDOW = 2  # the subsystem of programs without a console


class Program:
    """A program or library of the system, as far as it is looked at here."""

    def __init__(self, data):
        self.data = data
        at = struct.unpack_from("<I", data, 0x3C)[0]
        sections, optional = struct.unpack_from("<H", data, at + 6)[0], struct.unpack_from("<H", data, at + 20)[0]
        header = at + 24
        self.subsystem = struct.unpack_from("<H", data, header + 68)[0]
        self.directory = lambda number: struct.unpack_from("<II", data, header + 112 + 8 * number)[0]
        rows = range(header + optional, header + optional + 40 * sections, 40)
        self.sections = [struct.unpack_from("<IIII", data, row + 8) for row in rows]  # size, address, raw size, raw place

    def place(self, address):
        for _, start, size, raw in self.sections:
            if start <= address < start + size:
                return address - start + raw
        raise ValueError(f"no section holds {address:#x}")

    def name(self, address):
        at = self.place(address)
        return self.data[at : self.data.index(b"\0", at)].decode("ascii")

    def imports(self):
        if not self.directory(1):
            return []
        at, out = self.place(self.directory(1)), []
        while (name := struct.unpack_from("<I", self.data, at + 12)[0]) != 0:
            out.append(self.name(name))
            at += 20
        return out

    def resources(self):
        """The content of the first resource of each kind, by the kind's number."""
        if not self.directory(2):
            return {}
        root = self.place(self.directory(2))

        def entries(folder):
            named, numbered = struct.unpack_from("<HH", self.data, folder + 12)
            return [struct.unpack_from("<II", self.data, folder + 16 + 8 * i) for i in range(named + numbered)]

        def first(entry):
            while entry & 0x80000000:
                entry = entries(root + (entry & 0x7FFFFFFF))[0][1]
            address, size = struct.unpack_from("<II", self.data, root + entry)
            at = self.place(address)
            return self.data[at : at + size]

        return {kind: first(entry) for kind, entry in entries(root)}


def complaints_of_window(program, version):
    if program.subsystem != WINDOW:
        yield "gatewise.exe opens a console"
    kinds = program.resources()
    if ICON not in kinds:
        yield "gatewise.exe has no icon"
    if f"FileVersion\0\0{version}\0".encode("utf-16-le") not in kinds.get(VERSION, b""):
        yield f"gatewise.exe does not tell its version {version}"
    for word in (b"PerMonitorV2", b"longPathAware", b"Common-Controls", f'version="{version}.0"'.encode()):
        if word not in kinds.get(MANIFEST, b""):
            yield f"the manifest of gatewise.exe lacks {word.decode()}"


def complaints_of_imports(name, program, beside):
    for library in program.imports():
        base = library.lower().removesuffix(".dll").removesuffix(".drv")
        known = base in SYSTEM or base.startswith("api-ms-win-")
        if library.lower() not in beside and not known:
            yield f"{name} loads {library}, which is nowhere"


def complaints(archive, version, folders):
    inside = {entry.filename.split("/", 1)[1]: entry for entry in archive.infolist()}
    for wanted in WANTED:
        if not any(name == wanted or wanted.endswith("/") and name.startswith(wanted) for name in inside):
            yield f"{wanted} is missing"
    beside = {name.lower() for name in inside if "/" not in name}
    for name, entry in inside.items():
        content = archive.read(entry)
        for folder in folders:
            if any(folder.encode(coding) in content for coding in ("utf-8", "utf-16-le")):
                yield f"{name} names {folder}"
        if name.endswith((".exe", ".dll")):
            program = Program(content)
            yield from complaints_of_imports(name, program, beside)
            if name == "gatewise.exe":
                yield from complaints_of_window(program, version)


def main():
    path, version, *folders = sys.argv[1:]
    with zipfile.ZipFile(path) as archive, open(path, "rb") as file:
        found = list(complaints(archive, version, folders))
        size = file.seek(0, 2)
    if size >= LARGEST:
        found.append(f"{size} bytes are too many")
    print(*found, sep="\n", end="\n" if found else "")
    print(f"{path}: {size / 1e6:.1f} MB")
    sys.exit(1 if found else 0)


if __name__ == "__main__":
    main()
