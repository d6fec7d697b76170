#!/usr/bin/env python3
"""The list of files that the installer for Windows is made from: complete, in one order on any disk, with nothing
removed that it did not bring, and with the sample's paths where they are known at last."""

import pathlib
import re
import subprocess
import tempfile

SCRIPT = pathlib.Path(__file__).resolve().parent.parent.parent / "packaging/windows/files.cmake"
FILES = ("a.dll", "plugins/b.dll", "guide/pictures/one.png", "guide/index.html", "z.exe", "sample/town/VELKLT.INI",
         "sample/town/VELMAR.INI", "licences/x y.txt")
SETTINGS = "[General]\r\nSplitName1=East\r\nLogSourceDirectory1=C:\\Z\\sample\\town\\logs\\East side\r\n"
STORE = "[FileLocations]\r\nCarts1=C:\\Z\\sample\\town\\audio\\carts 1\r\nCarts2=\r\n"


def expect(expected, seen, what):
    if expected != seen:
        raise AssertionError(f"{what}: {seen!r}, not {expected!r}")


def listed(folder, names):
    staged = folder / "staged"
    for name in names:
        path = staged / name
        path.parent.mkdir(parents=True, exist_ok=True)
        text = {"VELKLT.INI": SETTINGS, "VELMAR.INI": STORE}.get(path.name, "text\n")
        path.write_bytes(text.encode())
    variables = {"CPACK_GENERATOR": "NSIS", "CPACK_TEMPORARY_INSTALL_DIRECTORY": staged,
                 "CPACK_TOPLEVEL_DIRECTORY": folder, "CPACK_LOGCHECKER_STRIP": "true",
                 "CPACK_LOGCHECKER_SAMPLE": "sample/town", "CPACK_LOGCHECKER_STATION": "town"}
    subprocess.run(["cmake", *[f"-D{name}={value}" for name, value in variables.items()], "-P", SCRIPT], check=True)
    return (folder / "files.nsh").read_text(encoding="utf-8").replace(str(staged), "STAGED")


def macro(text, name):
    return re.search(rf"^!macro {name}\b.*\n((?:.*\n)*?)!macroend$", text, re.MULTILINE).group(1)


def main():
    with tempfile.TemporaryDirectory() as one, tempfile.TemporaryDirectory() as other:
        text = listed(pathlib.Path(one), FILES)
        expect(text, listed(pathlib.Path(other), FILES[::-1]), "the list of files made in another order")

    folder, places = None, {}
    for line in macro(text, "InstallFiles").splitlines():
        kind, argument = re.fullmatch(r'  (SetOutPath|File) "(.*)"', line).groups()
        if kind == "SetOutPath":
            folder = argument
        else:
            places[argument.removeprefix("STAGED/")] = folder
    expect({name: "$INSTDIR\\" + "\\".join(name.split("/")[:-1]) for name in FILES}, places, "where the files go")

    removed = re.findall(r'  (Delete|RMDir) "\$INSTDIR\\(.*)"', macro(text, "RemoveFiles"))
    expect(sorted(FILES), [name.replace("\\", "/") for kind, name in removed if kind == "Delete"], "what is deleted")
    folders = [name for kind, name in removed if kind == "RMDir"]
    expect({"guide", r"guide\pictures", "licences", "plugins", "sample", r"sample\town"}, set(folders), "the folders")
    for number, name in enumerate(folders):
        expect([], [f for f in folders[number:] if f.startswith(name + "\\")], f"what is left in {name}")
    expect(False, "RMDir /r" in text, "whether a folder goes with what others put into it")

    required = re.findall(r'StrCpy \$0 "\$INSTDIR\\(.*)"', macro(text, "RequireFreeFiles"))
    expect(["z.exe", "a.dll", r"plugins\b.dll"], required, "what must not be in use")
    expect([r'  WriteINIStr "$INSTDIR\sample\town\VELKLT.INI" "General" "LogSourceDirectory1" '
            r'"$INSTDIR\sample\town\logs\East side"',
            r'  WriteINIStr "$INSTDIR\sample\town\VELMAR.INI" "FileLocations" "Carts1" '
            r'"$INSTDIR\sample\town\audio\carts 1"'], macro(text, "PlaceSample").splitlines(), "the sample's paths")
    print("the list of files is whole")


main()
