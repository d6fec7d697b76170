#!/usr/bin/env python3
"""Fails when a room includes one that it may not use, or when a plain half includes Qt."""

import pathlib
import re
import sys

# What each room may use; a room may always use itself.
MAY_USE = {
    "platform": set(),
    "common": {"platform"},
    "dialogs": {"common", "platform"},
    "printing": {"common", "platform"},
    "notes": {"printing", "dialogs", "common", "platform"},
    "cartstore": {"dialogs", "common", "platform"},
    "splitlogs": {"cartstore", "dialogs", "common", "platform"},
    "cartbrowser": {"cartstore", "notes", "dialogs", "printing", "common", "platform"},
    "checking": {"splitlogs", "cartstore", "dialogs", "printing", "common", "platform"},
}
# These may use all that stands above them here.
for upper in ("shell", "sample", "headless", "programs"):
    MAY_USE[upper] = set(MAY_USE)
INCLUDE = re.compile(r'^\s*#\s*include\s+([<"])([^>"]+)[>"]', re.MULTILINE)


def findings(root):
    for room, allowed in MAY_USE.items():
        for path in sorted((root / room).rglob("*")):
            if path.suffix not in (".h", ".cpp"):
                continue
            in_ui = "ui" in path.relative_to(root / room).parts
            for mark, name in INCLUDE.findall(path.read_text(encoding="utf-8")):
                target = name.split("/")[0]
                if mark == "<" and re.match(r"Q[A-Z]", name) and not in_ui and room != "programs":
                    yield f"{path}: a plain half includes Qt ({name})"
                if mark == '"' and target in MAY_USE and target != room and target not in allowed:
                    yield f"{path}: {room} may not use {target} ({name})"
                if mark == '"' and "/ui/" in name and not in_ui and room != "programs":
                    yield f"{path}: a plain half includes a window ({name})"
        outside = {"platform"} if room != "platform" else set()
        for path in sorted((root / room).rglob("*")):
            if path.suffix in (".h", ".cpp") and outside:
                if re.search(r"^\s*#\s*if(def|\s+defined).*(_WIN32|__linux__)",
                             path.read_text(encoding="utf-8"), re.MULTILINE):
                    yield f"{path}: asks which system it runs on; only platform/ may"


def main():
    root = pathlib.Path(__file__).resolve().parent.parent
    found = list(findings(root))
    print("\n".join(found) if found else "Rooms: no arrow points up")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
