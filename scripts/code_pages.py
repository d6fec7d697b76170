#!/usr/bin/env python3
"""Writes notes/CodePageTables.cpp: what the upper 128 bytes of the code pages of rich text mean."""

import pathlib

PAGES = {437: "cp437", 850: "cp850", 852: "cp852", 866: "cp866", 874: "cp874", 1250: "cp1250",
         1251: "cp1251", 1252: "cp1252", 1253: "cp1253", 1254: "cp1254", 1255: "cp1255",
         1256: "cp1256", 1257: "cp1257", 1258: "cp1258", 10000: "mac_roman"}


def code_point(byte, codec):
    try:
        return ord(bytes([byte]).decode(codec))
    except UnicodeDecodeError:
        return 0xFFFD


def main():
    out = ["// Written by scripts/code_pages.py.", '#include "notes/CodePages.h"', "",
           "namespace logchecker {", "",
           "const CodePage kCodePages[kNumberOfCodePages] = {"]
    for number, codec in PAGES.items():
        out.append(f"    {{{number},")
        out.append("     {")
        for row in range(0x80, 0x100, 10):
            values = [f"0x{code_point(b, codec):04X}" for b in range(row, min(row + 10, 0x100))]
            out.append("         " + ", ".join(values) + ",")
        out.append("     }},")
    out += ["};", "", "}  // namespace logchecker"]
    path = pathlib.Path(__file__).resolve().parent.parent / "notes" / "CodePageTables.cpp"
    path.write_text("\n".join(out) + "\n", encoding="ascii")
    print(f"{len(PAGES)} code pages")


main()
