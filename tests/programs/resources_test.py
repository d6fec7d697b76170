"""What Windows knows of each program: its icon, version and manifest, and whether it has a console.

resources_test.py FOLDER VERSION
"""

import pathlib
import struct
import sys

ICON, GROUP, VERSION, MANIFEST = 3, 14, 16, 24
WINDOWS, CONSOLE = 2, 3
PROGRAMS = {"logchecker": WINDOWS, "cartbrowser": WINDOWS, "logcheck": CONSOLE}
SIZES = {16, 20, 24, 32, 40, 48, 64, 256}


class Program:
    def __init__(self, path):
        self.bytes = path.read_bytes()
        self.head = self.number("<I", 0x3C)
        sections = self.head + 24 + self.number("<H", self.head + 20)
        self.sections = [struct.unpack_from("<8xIIII", self.bytes, sections + 40 * i)
                         for i in range(self.number("<H", self.head + 6))]
        self.resources = self.place(self.number("<I", self.head + 24 + 112 + 16))

    def number(self, form, place):
        return struct.unpack_from(form, self.bytes, place)[0]

    def place(self, address):
        for size, start, raw_size, raw in self.sections:
            if start <= address < start + max(size, raw_size):
                return address - start + raw
        raise AssertionError(f"no section holds {address:#x}")

    def subsystem(self):
        return self.number("<H", self.head + 24 + 68)

    def entries(self, folder):
        named, numbered = struct.unpack_from("<HH", self.bytes, folder + 12)
        return [struct.unpack_from("<II", self.bytes, folder + 16 + 8 * i) for i in range(named + numbered)]

    def resource(self, kind):
        """All of a kind, in all languages."""
        found = []

        def walk(entry):
            if entry & 0x80000000:
                for _, below in self.entries(self.resources + (entry & 0x7FFFFFFF)):
                    walk(below)
            else:
                address, size = struct.unpack_from("<II", self.bytes, self.resources + entry)
                found.append(self.bytes[self.place(address):self.place(address) + size])

        for number, entry in self.entries(self.resources):
            if number == kind:
                walk(entry)
        return found


def check(name, subsystem, folder, version):
    program = Program(folder / f"{name}.exe")
    assert program.subsystem() == subsystem, f"{name}: subsystem {program.subsystem()}"
    (manifest,) = program.resource(MANIFEST)
    for part in (b"PerMonitorV2", b"<longPathAware", b'level="asInvoker"', b"Common-Controls",
                 b"8e0f7a12-bfb3-4fe8-b9a5-48fd50a15a9a", f'version="{version}.0"'.encode()):
        assert part in manifest, f"{name}: {part} is not in {manifest}"
    assert b"activeCodePage" not in manifest, f"{name}: the code page is not the system's"
    (facts,) = program.resource(VERSION)
    text = facts.decode("utf-16-le", "replace")
    for part in (version, f"{name}.exe", "Halvern", "Log Checker"):
        assert part in text, f"{name}: {part} is not in its version"
    numbers = struct.unpack_from("<HHHH", facts, facts.index(struct.pack("<I", 0xFEEF04BD)) + 8)
    assert f"{numbers[1]}.{numbers[0]}.{numbers[3]}" == version, f"{name}: {numbers}"
    (group,) = program.resource(GROUP)
    sizes = {group[6 + 14 * i] or 256 for i in range(struct.unpack_from("<H", group, 4)[0])}
    assert sizes == SIZES, f"{name}: icons of {sizes}"
    assert all(icon.startswith(b"\x89PNG") for icon in program.resource(ICON)), name


def main():
    for name, subsystem in PROGRAMS.items():
        check(name, subsystem, pathlib.Path(sys.argv[1]), sys.argv[2])
    print("the programs say what they are")


main()
