#!/usr/bin/env python3
"""Installs the Debian packages in roots of their own, runs what they hold, removes and upgrades them; looks at
the Windows zip. Takes the folder that the packages lie in."""

import contextlib
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import zipfile

HERE = pathlib.Path(__file__).resolve().parent.parent
ID = "org.logchecker.LogChecker"
ENTRIES = (ID, "org.logchecker.CartBrowser")
LINK = re.compile(r"\]\(([^)#]+)(?:#[^)]*)?\)")
TEMPLATES = ("crontab", "logcheck-task.xml", "logcheck@.service", "logcheck@.timer", "station.conf", "user.conf")
# The developers' own stay with the source.
DOCUMENTS = [path.relative_to(HERE / "docs") for pattern in ("*.md", "*.schema.json", "pictures/*")
             for path in HERE.glob(f"docs/{pattern}") if path.name not in ("architecture.md", "testing.md")]
HEADLESS_DOCUMENTS = "usr/share/doc/logchecker-headless"
WITH_WINDOWS = ("cartbrowser", "logchecker")


def of_each_package(name):
    return [f"usr/share/doc/{name}/{file}" for file in
            ("copyright", "changelog.gz", "CHANGELOG.md.gz", "LICENSE", "THIRD-PARTY-NOTICES.md")]


HEADLESS = [
    *[f"usr/bin/{name}" for name in ("logcheck", "logcheck-mail")],
    *[f"usr/share/man/man1/{name}.1.gz" for name in ("logcheck", "logcheck-mail")],
    *of_each_package("logchecker-headless"),
    *[f"{HEADLESS_DOCUMENTS}/{name}" for name in DOCUMENTS],
    *[f"{HEADLESS_DOCUMENTS}/nightly/{name}" for name in TEMPLATES],
    "usr/share/logchecker/sample/velmar/VELKLT.INI",
    "usr/share/logchecker/sample/velmar/VELMAR.INI",
    "usr/share/logchecker/sample/velmar/SAMPLE.TXT",
]
DESKTOP = [
    *[f"usr/bin/{name}" for name in WITH_WINDOWS],
    *[f"usr/share/man/man1/{name}.1.gz" for name in WITH_WINDOWS],
    *of_each_package("logchecker"),
    "usr/share/doc/logchecker/documents/guide.md",
    *[f"usr/share/applications/{name}.desktop" for name in ENTRIES],
    *[f"usr/share/logchecker/guide/{page}.html" for page in ("index", "check-a-day", "all-keys", "settings")],
    "usr/share/logchecker/guide/pictures/select-hour.png",
    f"usr/share/metainfo/{ID}.metainfo.xml",
    f"usr/share/icons/hicolor/scalable/apps/{ID}.svg",
    *[f"usr/share/icons/hicolor/{n}x{n}/apps/{ID}.png" for n in (16, 24, 32, 48, 64, 128, 256)],
]
ZIPPED = {"logcheck.exe", "README.txt", "LICENSE.txt", "THIRD-PARTY-NOTICES.md", "logcheck-task.xml",
          *[f"docs/{name.as_posix()}" for name in DOCUMENTS]}


def tried(*command):
    return subprocess.run(list(map(str, command)), capture_output=True, text=True, check=False)


def run(*command, status=0):
    done = tried(*command)
    if done.returncode != status:
        sys.exit(f"{' '.join(map(str, command))} ended with {done.returncode}:\n"
                 f"{done.stdout}{done.stderr}")
    return done.stdout


def one(folder, pattern):
    found = list(folder.glob(pattern))
    if len(found) != 1:
        sys.exit(f"{len(found)} packages are called {pattern}")
    return found[0]


@contextlib.contextmanager
def new_root():
    with tempfile.TemporaryDirectory(prefix="logchecker-root-") as name:
        root = pathlib.Path(name)
        for folder in ("info", "updates", "triggers"):
            (root / "var/lib/dpkg" / folder).mkdir(parents=True)
        (root / "var/lib/dpkg/status").touch()
        yield root


def dpkg_command(root, *arguments):
    # The root holds these packages alone; what they depend on is the machine's.
    return ["dpkg", f"--root={root}", "--force-depends", "--force-not-root", "--force-bad-path",
            "--log=/dev/null", *arguments]


def dpkg(root, *arguments):
    run(*dpkg_command(root, *arguments))


def field(package, name):
    return run("dpkg-deb", "--field", package, name).strip()


def check_depends(headless, desktop):
    depends = field(headless, "Depends")
    for library in ("libqt6", "libcups", "logchecker"):
        if library in depends:
            sys.exit(f"logchecker-headless depends on {library}: {depends}")
    if "libc6" not in depends:
        sys.exit(f"logchecker-headless does not depend on libc6: {depends}")
    depends = field(desktop, "Depends")
    version = field(headless, "Version")
    for library in (f"logchecker-headless (= {version})", "libqt6widgets6", "libcups2", "libasound2",
                    "libc6"):
        if library not in depends:
            sys.exit(f"logchecker does not depend on {library}: {depends}")


def check_links(folder):
    """No document leads to one that is not installed."""
    documents = [path for path in folder.glob("*.md") if path.name != "THIRD-PARTY-NOTICES.md"]
    for path in documents:
        for target in LINK.findall(path.read_text(encoding="utf-8")):
            if "://" not in target and not (folder / target).exists():
                sys.exit(f"{path.name} leads to {target}, which is not installed")
    if not documents:
        sys.exit(f"no documents in {folder}")


def check_installed(root, names):
    for name in names:
        if not (root / name).is_file():
            sys.exit(f"{name} is not in the package")
    for page in root.glob("usr/share/man/man1/*.gz"):
        run("gzip", "--test", page)
    check_links(root / HEADLESS_DOCUMENTS)


def check_headless_runs(root):
    """The check on the sample, which believes that it lies where the package puts it, and its letter."""
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
    arguments = ("--settings", moved / "velmar", "--date", "2027-01-15")
    report = run(logcheck, *arguments, status=1)
    if "5 ad breaks did not match in all splits" not in report:
        sys.exit(f"the sample's check says:\n{report}")
    mailer = moved / "mailer"
    mailer.write_text(f"#!/bin/sh\ncat >'{moved}/letter'\n")
    mailer.chmod(0o755)
    run("env", f"PATH={root}/usr/bin:/usr/bin:/bin", f"LOGCHECK_MAILER={mailer}", "logcheck-mail", *arguments,
        status=1)
    if report not in (moved / "letter").read_text():
        sys.exit("the letter is without the report")
    shutil.rmtree(moved)


def check_desktop_runs(root):
    for name in WITH_WINDOWS:
        if not (root / "usr/bin" / name).resolve().parent.joinpath("find.avi").is_file():
            sys.exit("find.avi does not lie beside the programs")
        if not (root / "usr/bin" / name).resolve().parent.joinpath("guide/index.html").is_file():
            sys.exit("the guide does not lie beside the programs")
    for name in ENTRIES:
        run("desktop-file-validate", root / f"usr/share/applications/{name}.desktop")
    run("appstreamcli", "validate-tree", "--no-net", root)
    for test in ("day", "cart_browser", "first_steps"):
        run(sys.executable, HERE / f"tests/desktop/{test}_test.py", root / "usr/bin")


def check_nothing_left(root):
    left = [path for path in root.rglob("*") if not path.is_dir() and
            not path.is_relative_to(root / "var")]
    if left:
        sys.exit(f"left behind: {left}")


def check_headless(headless):
    with new_root() as root:
        dpkg(root, "--install", headless)
        check_installed(root, HEADLESS)
        for name in DESKTOP:
            if (root / name).exists():
                sys.exit(f"{name} is in the package without windows")
        check_headless_runs(root)
        dpkg(root, "--remove", "logchecker-headless")
        check_nothing_left(root)


def check_both(headless, desktop):
    with new_root() as root:
        dpkg(root, "--install", headless, desktop)
        check_installed(root, [*HEADLESS, *DESKTOP])
        check_headless_runs(root)
        check_desktop_runs(root)
        dpkg(root, "--remove", "logchecker")
        check_installed(root, HEADLESS)
        check_headless_runs(root)
        dpkg(root, "--remove", "logchecker-headless")
        check_nothing_left(root)


def old_package(headless, desktop, folder):
    """One like that of 1.0.0, which held what both hold now."""
    tree = folder / "old"
    for package in (headless, desktop):
        run("dpkg-deb", "--extract", package, tree)
    shutil.rmtree(tree / HEADLESS_DOCUMENTS)
    (tree / "usr/share/doc/logchecker/documents").unlink()
    (tree / "usr/bin/logcheck-mail").unlink()
    (tree / "DEBIAN").mkdir()
    (tree / "DEBIAN/control").write_text(
        "Package: logchecker\nVersion: 1.0.0\nArchitecture: amd64\nMaintainer: nobody <nobody@station.invalid>\n"
        "Description: one package of everything\n")
    package = folder / "old.deb"
    run("dpkg-deb", "--build", "--root-owner-group", tree, package)
    return package


def check_upgrade(headless, desktop):
    with new_root() as root, tempfile.TemporaryDirectory(prefix="logchecker-old-") as name:
        old = old_package(headless, desktop, pathlib.Path(name))
        dpkg(root, "--install", old)
        # Alone it would take files from under the old one.
        if tried(*dpkg_command(root, "--install", headless)).returncode == 0:
            sys.exit("logchecker-headless goes beside logchecker 1.0.0")
        dpkg(root, "--auto-deconfigure", "--install", headless, desktop)
        check_installed(root, [*HEADLESS, *DESKTOP])
        check_headless_runs(root)
        states = run("dpkg-query", f"--admindir={root}/var/lib/dpkg", "--show",
                     "--showformat=${Package} ${Version} ${Status}\n")
        version = field(headless, "Version")
        for package in ("logchecker", "logchecker-headless"):
            if f"{package} {version} install ok installed\n" not in states:
                sys.exit(f"after the upgrade:\n{states}")
        dpkg(root, "--remove", "logchecker", "logchecker-headless")
        check_nothing_left(root)


def check_zip(package):
    with zipfile.ZipFile(package) as archive:
        names = {name.partition("/")[2] for name in archive.namelist() if not name.endswith("/")}
        if names != ZIPPED:
            sys.exit(f"the zip holds {sorted(names ^ ZIPPED)} more or less than it should")
        with tempfile.TemporaryDirectory(prefix="logchecker-zip-") as name:
            archive.extractall(name)
            program = next(pathlib.Path(name).rglob("logcheck.exe"))
            check_links(program.parent / "docs")
            wine = shutil.which("wine64") or shutil.which("wine") or "/usr/lib/wine/wine64"
            run("env", f"WINEPREFIX={name}/wine", "WINEDEBUG=-all",
                "WINEDLLOVERRIDES=winemenubuilder.exe,mscoree,mshtml=", wine, program, "--version")


def main():
    folder = pathlib.Path(sys.argv[1])
    headless = one(folder, "logchecker-headless_*.deb")
    desktop = one(folder, "logchecker_*.deb")
    check_depends(headless, desktop)
    check_headless(headless)
    check_both(headless, desktop)
    check_upgrade(headless, desktop)
    check_zip(one(folder, "*.zip"))
    print("the packages install, run, follow each other and go")


main()
