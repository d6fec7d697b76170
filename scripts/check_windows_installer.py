#!/usr/bin/env python3
"""Installs the programs for Windows under Wine, where nothing of ours is, over an older version; uses, repairs and
removes them. Takes the installer, and the build folder that CPack made it from."""

import datetime
import hashlib
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

HERE = pathlib.Path(__file__).resolve().parent.parent
sys.path.insert(0, str(HERE / "tests/desktop"))

import screen  # noqa: E402

PROGRAMS = ("logcheck", "logchecker", "cartbrowser")
LICENCES = ("GCC.txt", "GPL-3.txt", "LGPL-3.txt", "LICENSE.txt", "MinGW-w64.txt", "Qt.txt", "SOURCES.txt",
            "THIRD-PARTY-NOTICES.txt", "windows-qt.sh")
INSTALLED = {
    *[f"{name}.exe" for name in (*PROGRAMS, "uninstall")],
    "CHANGELOG.txt", "find.avi", "logcheck-task.xml", "qt.conf",
    *[f"licences/{name}" for name in LICENCES],
}
# What Qt looks for by itself: for its windows, their style, and pictures in notes.
PLUGINS = {"imageformats/qjpeg.dll", "platforms/qwindows.dll", "styles/qwindowsvistastyle.dll"}
# What every Windows 10 has.
SYSTEM = set("""advapi32 api-ms-win-core-synch-l1-2-0 api-ms-win-core-winrt-l1-1-0
    api-ms-win-core-winrt-string-l1-1-0 authz avifil32 comctl32 comdlg32 d2d1 d3d11 d3d9 dwmapi dwrite dxgi gdi32 imm32
    kernel32 mpr msvcrt netapi32 ole32 oleaut32 shcore shell32 shlwapi user32 userenv uxtheme version winmm
    winspool.drv ws2_32 wtsapi32""".split())
IN_USE = 3
ENVIRONMENT = r"HKLM\SYSTEM\CurrentControlSet\Control\Session Manager\Environment"
UNINSTALL = r"HKLM\Software\Microsoft\Windows\CurrentVersion\Uninstall\LogChecker"
FOLDER = r"C:\Program Files\Log Checker"
MENU = r"C:\ProgramData\Microsoft\Windows\Start Menu\Programs\Log Checker"
# Longer than the installer's language can hold.
LONG_PATH = r"%SystemRoot%\system32;%SystemRoot%;" + "".join(rf"C:\Some folder\{n};" for n in range(120))


def fail(text):
    raise AssertionError(text)


def expect(expected, seen, what):
    if expected != seen:
        fail(f"{what}: {seen!r}, not {expected!r}")


def files_below(folder):
    return {path.relative_to(folder).as_posix(): hashlib.sha256(path.read_bytes()).hexdigest()
            for path in folder.rglob("*") if path.is_file()}


class Machine:
    """Windows as it comes, in a folder of its own and on a screen of its own."""

    def __init__(self, desk):
        self.desk = desk
        self.prefix = desk.folder / "windows"
        self.drive = self.prefix / "drive_c"
        self.folder = self.drive / "Program Files/Log Checker"
        self.wine = shutil.which("wine64") or shutil.which("wine") or "/usr/lib/wine/wine64"
        desk.environment.update(WINEPREFIX=str(self.prefix), WINEDEBUG="-all", PATH="/usr/bin:/bin",
                                WINEDLLOVERRIDES="winemenubuilder.exe,mscoree,mshtml=")
        for name in ("WINEPATH", "QT_QPA_PLATFORM", "QT_PLUGIN_PATH"):
            desk.environment.pop(name, None)
        self.prefix.mkdir()
        # It stays, rather than starting anew for each command.
        self.server("-p")
        self.run("winecfg", "-v", "win10")

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.server("-k")

    def server(self, option):
        """-p has it stay, -k ends it and all that runs there."""
        server = shutil.which("wineserver") or pathlib.Path(self.wine).resolve().with_name("wineserver64")
        subprocess.run([server, option], env=self.desk.environment, check=False, timeout=120,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def tried(self, *command):
        """Its exit code and what it printed, by a file: what Wine starts beside it would keep a pipe open."""
        with tempfile.TemporaryFile() as output:
            done = subprocess.run([self.wine, *map(str, command)], env=self.desk.environment, cwd=self.desk.folder,
                                  stdin=subprocess.DEVNULL, stdout=output, stderr=output, check=False, timeout=120)
            output.seek(0)
            return done.returncode, output.read().decode(errors="replace").replace("\r\n", "\n")

    def run(self, *command, status=0):
        code, output = self.tried(*command)
        if code != status:
            fail(f"{' '.join(map(str, command))} ended with {code}:\n{output}")
        return output

    def open(self, link):
        """As the start menu does."""
        self.desk.seen = set(self.desk.windows())
        self.run("start", link)

    def batch(self, line, status=0):
        """A line as somebody types it; Wine puts quotes of its own around what is handed over."""
        script = self.desk.folder / "line.bat"
        script.write_bytes(f"@echo off\r\n{line}\r\nexit %errorlevel%\r\n".encode())
        return self.run("cmd", "/c", "line.bat", status=status)

    def value(self, key, name):
        """A text of the registry, or None."""
        found = re.search(rf"^    {name}    REG_\w+    (.*)$", self.tried("reg", "query", key, "/v", name)[1],
                          re.MULTILINE)
        return found and found.group(1)

    def set_path(self, path):
        self.run("reg", "add", ENVIRONMENT, "/v", "Path", "/t", "REG_EXPAND_SZ", "/d", path, "/f")

    def path(self):
        return self.value(ENVIRONMENT, "Path")


def package(build, folder):
    """One of the version before, with files that this one no longer has."""
    extra = folder / "extra"
    (extra / "plugins of old").mkdir(parents=True)
    (extra / "plugins of old/old.txt").write_text("of the version before\n", encoding="utf-8")
    shutil.copy(pathlib.Path(build) / "bin/libwinpthread-1.dll", extra / "old.dll")
    arguments = ["CPACK_PACKAGE_VERSION=0.9.0", f"CPACK_INSTALLED_DIRECTORIES={extra};/", "CPACK_NSIS_COMPRESSOR=zlib"]
    done = subprocess.run(["cpack", "-G", "NSIS", "-B", folder, *[a for d in arguments for a in ("-D", d)]],
                          cwd=build, capture_output=True, text=True, check=False)
    if done.returncode != 0:
        fail(done.stdout + done.stderr)
    return next(folder.glob("*.exe"))


def check_binaries(folder):
    """No library is missing, and none is there for nothing."""
    present = {path.relative_to(folder).as_posix(): path for path in folder.rglob("*")
               if path.suffix in (".exe", ".dll")}
    needed = set(PLUGINS)
    for name, path in present.items():
        text = subprocess.run(["x86_64-w64-mingw32-objdump", "-p", path], check=True, capture_output=True,
                              text=True, errors="replace").stdout
        for library in re.findall(r"DLL Name: (\S+)", text):
            if library in present:
                needed.add(library)
            elif library.lower().removesuffix(".dll") not in SYSTEM:
                fail(f"{name} needs {library}, which is neither installed nor part of Windows")
    expect(needed, {name for name in present if name.endswith(".dll")}, "the libraries")


def check_guide(folder):
    done = subprocess.run([sys.executable, HERE / "tests/documents/guide_pages_test.py", folder],
                          capture_output=True, text=True, check=False)
    if done.returncode != 0:
        fail(done.stdout + done.stderr)


def check_installed(machine, version):
    present = set(files_below(machine.folder))
    rest = {name for name in present if not name.startswith(("guide/", "sample/")) and not name.endswith(".dll")}
    for name in ("guide/index.html", "guide/all-keys.html", "sample/velmar/SAMPLE.TXT"):
        expect(True, name in present, f"whether {name} is installed")
    expect(INSTALLED, rest, "what is installed")
    expect(version, machine.value(UNINSTALL, "DisplayVersion"), "the version in the list of programs")
    menu = machine.drive / "ProgramData/Microsoft/Windows/Start Menu/Programs/Log Checker"
    expect({"Log Checker.lnk", "Cart Browser.lnk", "User's Guide.lnk", "Try It on a Made-up Station.lnk"},
           set(os.listdir(menu)), "the start menu")


def check_logcheck(machine):
    """By its name alone, as a command prompt has it from now on."""
    tomorrow = datetime.date.today() + datetime.timedelta(days=1)
    machine.batch(rf"logcheck sample C:\windows --date {tomorrow}")
    for line in ("logcheck", rf'logcheck --settings "{FOLDER}\sample\velmar" --date 2027-01-15'):
        report = machine.batch(line, status=1)
        if "5 ad breaks did not match in all splits" not in report:
            fail(f"{line} says:\n{report}")
    return tomorrow


def check_refused(machine, installer):
    """While a program runs, nothing is half installed or half removed."""
    before = files_below(machine.folder)
    for said in (machine.run(installer, "/S", status=IN_USE),
                 machine.batch(rf'"{FOLDER}\uninstall.exe" /S _?={FOLDER}', status=IN_USE)):
        if rf"{FOLDER}\logchecker.exe is in use. Nothing was changed." not in said:
            fail(f"it does not say what is in use: {said!r}")
    expect(before, files_below(machine.folder), "the files while a program runs")


def check_windows(machine, installer, tomorrow):
    desk = machine.desk
    machine.open(rf"{MENU}\Log Checker.lnk")
    # The date is written as the system does.
    frame = desk.window(f"^Velmar KLT Log Checker : .*{tomorrow.day}.*{tomorrow.year}$", "main window")
    expect([frame], desk.windows(), "the windows on the screen")
    check_refused(machine, installer)
    desk.keys("alt+F4")
    desk.gone(frame)
    machine.open(rf"{MENU}\Cart Browser.lnk")
    browser = desk.window("^Cart Browser$", "cart browser")
    desk.keys("Escape")
    desk.gone(browser)


def check_trial(machine):
    """The made-up station comes and goes, and the settings of the station have no part in it."""
    machine.open(rf"{MENU}\Try It on a Made-up Station.lnk")
    frame = machine.desk.window("^Velmar KLT Log Checker : ", "main window of the trial")
    machine.desk.keys("alt+F4")
    machine.desk.gone(frame)


def check_repair(machine, installer):
    before, path = files_below(machine.folder), machine.path()
    (machine.folder / "Qt6Core.dll").write_bytes(b"broken")
    (machine.folder / "guide/index.html").unlink()
    machine.run(installer, "/S")
    expect(before, files_below(machine.folder), "the files after a repair")
    expect(path, machine.path(), "the path after a repair")


def check_removed(machine, before, path):
    machine.run(rf"{FOLDER}\uninstall.exe", "/S")
    machine.desk.until(lambda: not machine.folder.exists() and not list(machine.drive.glob("users/*/**/Temp/ns*.tmp")),
                       "end of the uninstaller")
    machine.server("-k")  # It writes the registry down.
    # It can't remove the copy that it runs from; the next start of the system does.
    station = {"windows/VELKLT.INI", "windows/VELMAR.INI", "windows/SAMPLE.TXT"}
    left = {name for name in set(files_below(machine.drive)) - before
            if not re.match(r"windows/(audio|logs)/|users/.*/Temp/~nsu", name)}
    expect(station, left, "what is left behind")
    expect(path, machine.path(), "the path afterwards")
    registry = (machine.prefix / "system.reg").read_text(encoding="utf-8", errors="replace")
    for text in ("Log Checker", "LogChecker"):
        if text in registry:
            fail(f"{text} is left in the registry")


def check(machine, installer, build):
    scratch = machine.desk.folder
    older, again = (package(build, scratch / name) for name in ("older", "again"))
    expect(older.read_bytes() == again.read_bytes(), True, "whether the same files make the same installer")
    before, path = set(files_below(machine.drive)), machine.path()
    # Wine hands a path of that length to no program, so it is only written here.
    machine.set_path(LONG_PATH)
    machine.run(older, "/S", "/PATH")
    expect(True, (machine.folder / "plugins of old/old.txt").exists(), "whether the older version is there")
    expect(f"{LONG_PATH};{FOLDER}", machine.path(), "a long path")
    machine.run(installer, "/S", "/NOPATH")
    expect(LONG_PATH, machine.path(), "the path where it is not wanted")
    machine.set_path(path)
    machine.run(installer, "/S", "/PATH")
    expect(f"{path};{FOLDER}", machine.path(), "the path")
    check_installed(machine, re.search(r"-([0-9.]+)-windows", installer.name).group(1))
    check_binaries(machine.folder)
    check_guide(machine.folder)
    tomorrow = check_logcheck(machine)
    settings = files_below(machine.drive / "windows")["VELKLT.INI"]
    check_windows(machine, installer, tomorrow)
    check_trial(machine)
    check_repair(machine, installer)
    check_removed(machine, before, path)
    expect(settings, files_below(machine.drive / "windows")["VELKLT.INI"], "the settings")


def main():
    with screen.Screen() as desk, Machine(desk) as machine:
        check(machine, pathlib.Path(sys.argv[1]).resolve(), sys.argv[2])
    print("the installer installs, upgrades, repairs and removes, and the programs run")


main()
