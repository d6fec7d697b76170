"""What the tests of the desktop do again and again."""

import subprocess


def caption(day):
    """A pattern for the main window with that day in it."""
    return f"Velmar KLT Log Checker : {day:%A} {day.day} {day:%B %Y}$"


def save(desk, path):
    """Exports the results from the keyboard. The list has the focus once the check is done."""
    desk.settled()
    desk.keys("Tab", "space")
    desk.window("^Export Results to CSV File", "save dialog")
    desk.keys("ctrl+a")
    desk.type(str(path))
    desk.keys("Return")
    desk.window("^Export Results to CSV File", "question about the new file")
    desk.keys("Return")
    box = desk.window("^Velmar KLT Log Checker$", "message about the saved report")
    desk.keys("Return")
    desk.gone(box)


def expected(programs, config, day):
    """What logcheck exports for that day."""
    done = subprocess.run([programs / "logcheck", "check", "--settings", config / "velmar", "--format",
                           "csv", "--date", day.isoformat()], capture_output=True, check=False)
    assert done.returncode in (0, 1), done.stderr
    return done.stdout


def write_sample(programs, config, first_day=None, days=1):
    """Without a day it is tomorrow."""
    date = [] if first_day is None else ["--date", first_day.isoformat()]
    subprocess.run([programs / "logcheck", "sample", config / "velmar", *date, "--days", str(days)],
                   check=True, stdout=subprocess.DEVNULL)
