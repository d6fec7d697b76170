#!/usr/bin/env python3
"""Installs the Debian package in a root of its own, runs what it holds, and removes it; looks at the
Windows zip. Takes the folder that the packages lie in."""

import pathlib
import shutil
import subprocess
import sys
import tempfile
import zipfile

HERE = pathlib.Path(__file__).resolve().parent.parent
ID = "org.logchecker.LogChecker"
PROGRAMS = ("cartbrowser", "logcheck", "logchecker")
INSTALLED = [
    *[f"usr/bin/{name}" for name in PROGRAMS],
    *[f"usr/share/man/man1/{name}.1.gz" for name in PROGRAMS],
    f"usr/share/applications/{ID}.desktop",
    f"usr/share/metainfo/{ID}.metainfo.xml",
    f"usr/share/icons/hicolor/scalable/apps/{ID}.svg",
    *[f"usr/share/icons/hicolor/{n}x{n}/apps/{ID}.png" for n in (16, 24, 32, 48, 64, 128, 256)],
    "usr/share/doc/logchecker/copyright",
    "usr/share/doc/logchecker/changelog.gz",
    "usr/share/doc/logchecker/CHANGELOG.md.gz",
    "usr/share/doc/logchecker/LICENSE",
    "usr/share/doc/logchecker/THIRD-PARTY-NOTICES.md",
    "usr/share/logchecker/sample/velmar/VELKLT.INI",
    "usr/share/logchecker/sample/velmar/VELMAR.INI",
    "usr/share/logchecker/sample/velmar/SAMPLE.TXT",
]
ZIPPED = {"logcheck.exe", "README.txt", "LICENSE.txt", "THIRD-PARTY-NOTICES.md", "headless.md"}


def run(*command, status=0):
    done = subprocess.run(list(map(str, command)), capture_output=True, text=True, check=False)
    if done.returncode != status:
        sys.exit(f"{' '.join(map(str, command))} ended with {done.returncode}:\n"
                 f"{done.stdout}{done.stderr}")
    return done.stdout


def one(folder, pattern):
    found = list(folder.glob(pattern))
    if len(found) != 1:
        sys.exit(f"{len(found)} packages are called {pattern}")
    return found[0]


def dpkg(root, *arguments):
    # The root holds this package alone; what it depends on is the machine's.
    run("dpkg", f"--root={root}", "--force-depends", "--force-not-root", "--force-bad-path",
        "--log=/dev/null", *arguments)


def check_depends(package):
    depends = run("dpkg-deb", "--field", package, "Depends")
    for library in ("libqt6widgets6", "libqt6svg6", "libcups2", "libasound2", "libc6"):
        if library not in depends:
            sys.exit(f"the package does not depend on {library}: {depends}")


def check_installed(root):
    for name in INSTALLED:
        if not (root / name).is_file():
            sys.exit(f"{name} is not in the package")
    for name in PROGRAMS:
        if (root / "usr/bin" / name).resolve().parent.joinpath("find.avi").is_file() is False:
            sys.exit("find.avi does not lie beside the programs")
    for page in root.glob("usr/share/man/man1/*.gz"):
        run("gzip", "--test", page)
    run("desktop-file-validate", root / f"usr/share/applications/{ID}.desktop")
    run("appstreamcli", "validate-tree", "--no-net", root)


def check_runs(root):
    """The check on the sample, which believes that it lies where the package puts it."""
    logcheck = root / "usr/bin/logcheck"
    run(logcheck, "--version")
    sample = root / "usr/share/logchecker/sample"
    moved = root / "moved"
    shutil.copytree(sample, moved)
    for name in ("VELKLT.INI", "VELMAR.INI"):
        settings = moved / "velmar" / name
        text = settings.read_bytes()
        place = b"/usr/share/logchecker/sample/"
        if place not in text:
            sys.exit(f"{name} of the sample does not name {place}")
        settings.write_bytes(text.replace(place, f"{moved}/".encode()))
    report = run(logcheck, "--settings", moved / "velmar", "--date", "2027-01-15", status=1)
    if "5 ad breaks did not match in all splits" not in report:
        sys.exit(f"the sample's check says:\n{report}")
    shutil.rmtree(moved)
    for test in ("day", "cart_browser"):
        run(sys.executable, HERE / f"tests/desktop/{test}_test.py", root / "usr/bin")


def check_debian(package):
    check_depends(package)
    with tempfile.TemporaryDirectory(prefix="logchecker-root-") as name:
        root = pathlib.Path(name)
        for folder in ("info", "updates", "triggers"):
            (root / "var/lib/dpkg" / folder).mkdir(parents=True)
        (root / "var/lib/dpkg/status").touch()
        dpkg(root, "--install", package)
        check_installed(root)
        check_runs(root)
        dpkg(root, "--remove", "logchecker")
        left = [path for path in root.rglob("*") if not path.is_dir() and
                not path.is_relative_to(root / "var")]
        if left:
            sys.exit(f"left behind: {left}")


def check_zip(package):
    with zipfile.ZipFile(package) as archive:
        names = {pathlib.PurePosixPath(name).name for name in archive.namelist()
                 if not name.endswith("/")}
        if names != ZIPPED:
            sys.exit(f"the zip holds {sorted(names)}")
        with tempfile.TemporaryDirectory(prefix="logchecker-zip-") as name:
            archive.extractall(name)
            program = next(pathlib.Path(name).rglob("logcheck.exe"))
            wine = shutil.which("wine64") or shutil.which("wine") or "/usr/lib/wine/wine64"
            run("env", f"WINEPREFIX={name}/wine", "WINEDEBUG=-all",
                "WINEDLLOVERRIDES=winemenubuilder.exe,mscoree,mshtml=", wine, program, "--version")


def main():
    folder = pathlib.Path(sys.argv[1])
    check_debian(one(folder, "*.deb"))
    check_zip(one(folder, "*.zip"))
    print("the packages install, run and go")


main()
