#!/usr/bin/env python3
"""The templates for the service manager: it finds nothing wrong with them, and their command line checks a
station and mails what there is to do. Takes the folder of the programs."""

import os
import pathlib
import re
import subprocess
import sys
import tempfile

import night

SERVICE = (night.TEMPLATES / "logcheck@.service").read_text(encoding="utf-8")
WATCH = (night.TEMPLATES / "logcheck-watch@.service").read_text(encoding="utf-8")
TIMER = (night.TEMPLATES / "logcheck@.timer").read_text(encoding="utf-8")
STATION_FILE = (night.TEMPLATES / "station.conf").read_text(encoding="utf-8")
PROGRAM = "/usr/bin/logcheck-mail"


def verify(manager, text, with_user):
    """What the service manager's own reader says; nothing where all is well."""
    with tempfile.TemporaryDirectory(prefix="logchecker-units-") as name:
        folder = pathlib.Path(name)
        program = folder / "logcheck-mail"
        program.write_text("#!/bin/sh\n", encoding="utf-8")
        program.chmod(0o755)
        (folder / "logcheck@.service").write_text(text.replace(PROGRAM, str(program)), encoding="utf-8")
        (folder / "logcheck@.timer").write_text(TIMER, encoding="utf-8")
        if with_user:
            (folder / "logcheck@.service.d").mkdir()
            (folder / "logcheck@.service.d/user.conf").write_bytes(
                (night.TEMPLATES / "user.conf").read_bytes())
        units = [folder / f"logcheck@larkfield.{kind}" for kind in ("service", "timer")]
        done = subprocess.run(["systemd-analyze", "verify", manager, "--man=no", *units], check=False,
                              capture_output=True, text=True, timeout=120,
                              env={**os.environ, "XDG_RUNTIME_DIR": name, "HOME": name,
                                   "SYSTEMD_UNIT_PATH": f"{folder}:"})
        return done.returncode, done.stdout + done.stderr


def check_verify():
    assert SERVICE.count(PROGRAM) == 1
    for manager, with_user in (("--system", True), ("--user", False)):
        assert verify(manager, SERVICE, with_user) == (0, ""), verify(manager, SERVICE, with_user)
        # The reader does read these files.
        for broken in (SERVICE.replace("oneshot", "oneshoot"), SERVICE.replace(PROGRAM, "/usr/bin/gone")):
            assert verify(manager, broken, with_user) != (0, ""), manager


def verify_watch(text):
    with tempfile.TemporaryDirectory(prefix="logchecker-units-") as name:
        folder = pathlib.Path(name)
        program = folder / "logcheck"
        program.write_text("#!/bin/sh\n", encoding="utf-8")
        program.chmod(0o755)
        unit = folder / "logcheck-watch@.service"
        unit.write_text(text.replace("/usr/bin/logcheck ", f"{program} "), encoding="utf-8")
        done = subprocess.run(
            ["systemd-analyze", "verify", "--user", "--man=no", folder / "logcheck-watch@larkfield.service"],
            check=False, capture_output=True, text=True, timeout=120,
            env={**os.environ, "XDG_RUNTIME_DIR": name, "HOME": name, "SYSTEMD_UNIT_PATH": f"{folder}:"})
        return done.returncode, done.stdout + done.stderr


def check_watch(programs):
    """The watch's unit: nothing is wrong with it, and its command line watches until it is ended."""
    assert verify_watch(WATCH) == (0, ""), verify_watch(WATCH)
    assert verify_watch(WATCH.replace("on-failure", "on-failures")) != (0, "")
    with night.Home(programs) as home:
        home.station("larkfield")
        words = re.search(r"^ExecStart=(.*)$", WATCH, re.MULTILINE).group(1).split()
        values = {"${LOGCHECK_SETTINGS}": "stations/larkfield", "${LOGCHECK_STATION}": "larkfield",
                  "${STATE_DIRECTORY}/%i.txt": str(home.home / "larkfield.txt")}
        words = [values.get(word, word) for word in words[1:] if word != "$LOGCHECK_OPTIONS"]
        with subprocess.Popen([pathlib.Path(programs).resolve() / "logcheck", *words], cwd=home.home,
                              stdout=subprocess.PIPE, text=True) as watch:
            first = watch.stdout.readline()
            while not (home.home / "larkfield.txt").exists():
                assert watch.poll() is None
            watch.terminate()
            assert watch.wait(timeout=60) == 0
        assert "watched from now on" in first, first
        report = (home.home / "larkfield.txt").read_text(encoding="utf-8")
        assert report.startswith("Station: larkfield\n"), report


def run_unit(home, instance, configuration):
    unit = night.Unit(SERVICE, instance, home.home, configuration)
    variables = unit.environment()
    words = unit.command(variables)
    assert words[0] == PROGRAM
    words[0] = home.bin / "logcheck-mail"
    done = home.run(words, variables, unit.folder())
    failed = done.returncode not in (0, *map(int, unit.value("SuccessExitStatus").split()))
    return done, failed


def check_letter(home, station, verdict, code):
    letter = home.sent()
    subject = re.fullmatch(rf"Log check of {station}, (\S+): {verdict}", letter["Subject"])
    assert subject and home.is_tomorrow(subject.group(1)), letter["Subject"]
    body = letter.get_content()
    assert body.startswith(f"{letter['Subject']} (exit code {code}).\n\n"), body
    top, report = body.split(f"\nStation: {station}\n", 1)
    return letter, top, report


def check_codes(programs):
    """A station under its own name, with no more than what the templates say."""
    with night.Home(programs) as home:
        configuration = home.home / ".config"
        station = home.station("larkfield")
        done, failed = run_unit(home, "larkfield", configuration)
        assert (done.returncode, failed, done.stdout, done.stderr) == (1, False, "", ""), done
        letter, top, report = check_letter(home, "larkfield", "something to mend", 1)
        assert letter["To"], letter
        assert "5 ad breaks did not match in all splits" in top, top
        assert "16:01    3950  TARN DAIRIES" in report, report

        night.make_clean(station)
        done, failed = run_unit(home, "larkfield", configuration)
        assert (done.returncode, failed, done.stdout, done.stderr) == (0, False, "", ""), done
        assert home.sent() is None

        night.make_uncheckable(station)
        done, failed = run_unit(home, "larkfield", configuration)
        assert (done.returncode, failed) == (2, True), done
        _, top, report = check_letter(home, "larkfield", "could not be checked", 2)
        assert "logcheck: no active split has a log for " in top, top
        assert "not checked: no active split has a log for " in report, report

        # No such station: the unit fails, and a letter says which it was.
        done, failed = run_unit(home, "easton", configuration)
        assert (done.returncode, failed) == (2, True), done
        _, top, _ = check_letter(home, "easton", "could not be checked", 2)
        assert "logcheck: there are no settings: " in top, top


def check_station_file(programs):
    """What the file of a station may hold, as its template has it but for the mailer."""
    with night.Home(programs) as home:
        home.station()
        for configuration in (home.home / ".config", home.home / "etc"):
            (configuration / "logcheck").mkdir(parents=True)
            home.stand_in("msmtp")
            text = STATION_FILE.replace("=/usr/bin/msmtp", f"={home.bin}/msmtp")
            assert text != STATION_FILE
            (configuration / "logcheck/lark.conf").write_text(text, encoding="utf-8")
            done, failed = run_unit(home, "lark", configuration)
            assert (done.returncode, failed) == (1, False), done
            letter, _, _ = check_letter(home, night.STATION, "something to mend", 1)
            assert letter["To"] == "traffic@station.example", letter
            arguments = pathlib.Path(f"{home.letter}.arguments").read_text(encoding="utf-8")
            assert arguments == "-t\n-oi\n", arguments


def main():
    check_verify()
    check_codes(sys.argv[1])
    check_station_file(sys.argv[1])
    check_watch(sys.argv[1])
    print("the units check a station and mail what there is to do")


main()
