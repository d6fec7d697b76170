#!/usr/bin/env python3
"""The template for the Task Scheduler of Windows: it is what the scheduler exports, and its command line
checks a station. Takes the folder of the programs; on a machine that builds for Windows also the program that
runs those, and then the scheduler's own command reads the file."""

import os
import pathlib
import shlex
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree

import night

TASK = night.TEMPLATES / "logcheck-task.xml"
SPACE = "{http://schemas.microsoft.com/windows/2004/02/mit/task}"


def check_form():
    """16-bit units with their mark, and lines as Windows ends them."""
    raw = TASK.read_bytes()
    assert raw.startswith(b"\xff\xfe"), raw[:4]
    text = raw.decode("utf-16")
    assert text.startswith('<?xml version="1.0" encoding="UTF-16"?>\r\n')
    assert text.count("\n") == text.count("\r\n") and text.endswith("</Task>\r\n")


def read():
    # The parser's own reading of the file, with its encoding.
    task = xml.etree.ElementTree.parse(TASK).getroot()
    assert (task.tag, task.get("version")) == (SPACE + "Task", "1.2")
    assert [part.tag.removeprefix(SPACE) for part in task] == [
        "RegistrationInfo", "Triggers", "Principals", "Settings", "Actions"]

    def text(path):
        found = task.findall("/".join(SPACE + name for name in path.split("/")))
        assert len(found) == 1, path
        return found[0].text

    assert text("Triggers/CalendarTrigger/ScheduleByDay/DaysInterval") == "1"
    assert text("Settings/StartWhenAvailable") == "true"
    assert task.find(f"{SPACE}Actions").get("Context") == task.find(f".//{SPACE}Principal").get("id")
    command = text("Actions/Exec/Command")
    assert command == text("Actions/Exec/WorkingDirectory") + r"\logcheck.exe", command
    # Words as the system takes them apart: quotes hold blanks together, and no backslash stands before one.
    line = text("Actions/Exec/Arguments")
    assert '\\"' not in line, line
    return command, [word.replace("/", "\\") for word in shlex.split(line.replace("\\", "/"))]


def write_station(run, drive, settings):
    """Runs `run` with the arguments of logcheck."""
    folder = drive / settings.removeprefix("C:\\").replace("\\", "/")
    shutil.rmtree(folder, ignore_errors=True)
    folder.parent.mkdir(parents=True, exist_ok=True)
    assert run("sample", settings).returncode == 0
    return folder


def check_runs(run, drive, arguments):
    settings = arguments[arguments.index("--settings") + 1]
    output = drive / arguments[arguments.index("--output") + 1].removeprefix("C:\\").replace("\\", "/")
    station = write_station(run, drive, settings)
    for prepare, code, words in (
            (None, 1, "5 ad breaks did not match in all splits"),
            (night.make_clean, 0, "There were no problems found."),
            (night.make_uncheckable, 2, "not checked: no active split has a log")):
        if prepare:
            prepare(station)
        done = run(*arguments)
        assert done.returncode == code, done
        report = output.read_text(encoding="utf-8")
        assert report.startswith("Station: Larkfield Radio\n") and words in report, report
        output.unlink()


def check_here(logcheck, arguments):
    """The drive is a folder of the station's here, and its settings are named without one."""
    with tempfile.TemporaryDirectory(prefix="logchecker task ") as name:
        drive = pathlib.Path(name)

        def run(*words):
            plain = [word.replace("C:\\", f"{drive}/").replace("\\", "/") for word in words]
            return subprocess.run([logcheck, *plain], check=False, capture_output=True, timeout=120)

        check_runs(run, drive, arguments)


def check_on_windows(emulator, logcheck, command, arguments):
    drive = pathlib.Path(os.environ["WINEPREFIX"]) / "drive_c"
    subprocess.run([emulator, "cmd", "/c", "ver"], check=True, capture_output=True, timeout=300)

    def run(*words):
        return subprocess.run([emulator, command, *words], check=False, capture_output=True, timeout=120)

    def schedule(path):
        (drive / "task.xml").write_bytes(path.read_bytes())
        return subprocess.run([emulator, "schtasks", "/Create", "/TN", "Log Checker", "/F", "/XML",
                               "C:\\task.xml"], check=False, capture_output=True, timeout=120).returncode

    assert schedule(pathlib.Path(__file__)) != 0
    assert schedule(TASK) == 0
    program = drive / command.removeprefix("C:\\").replace("\\", "/")
    program.parent.mkdir(exist_ok=True)
    program.write_bytes(logcheck.read_bytes())
    check_runs(run, drive, arguments)


def main():
    check_form()
    command, arguments = read()
    programs = pathlib.Path(sys.argv[1])
    if len(sys.argv) > 2:
        check_on_windows(sys.argv[2], programs / "logcheck.exe", command, arguments)
    else:
        check_here(programs / "logcheck", arguments)
    print("the task checks a station")


main()
