#!/usr/bin/env python3
"""Prints a day's results by real keys through a real print scheduler: Ctrl+P, Return in the printer's
dialog, and the report is in the queue and comes out of the printer. A queue that takes no jobs gives the
message of a failure."""

import datetime
import pathlib
import subprocess
import sys

import screen
import work

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "support"))
import print_scheduler  # noqa: E402

BIN = pathlib.Path(sys.argv[1])


def print_results(desk):
    desk.keys("ctrl+p")
    dialog = desk.window("^Print Check Split Times$", "printer's dialog")
    desk.keys("Return")
    desk.gone(dialog)
    box = desk.window("^Velmar KLT Log Checker$", "message about the report")
    desk.keys("Return")
    desk.gone(box)


def main():
    with screen.Screen() as desk:
        scheduler = print_scheduler.Scheduler(desk.folder / "print")
        try:
            desk.folder.chmod(0o755)  # the printer's filters run as a user of their own
            desk.environment["CUPS_SERVER"] = scheduler.environment["CUPS_SERVER"]
            config = desk.folder / "config"
            tomorrow = datetime.date.today() + datetime.timedelta(days=1)
            work.write_sample(BIN, config, tomorrow, 1)
            desk.start(BIN / "logchecker")
            frame = desk.window(work.caption(tomorrow), "main window with tomorrow in it")
            before, after = desk.folder / "before.png", desk.folder / "after.png"
            desk.picture(before)
            desk.click(frame, 180, 44)
            desk.until(lambda: desk.picture(after) or
                       desk.difference(before, after, "600x300+300+300") > 1000, "results window")

            print_results(desk)
            assert len(scheduler.jobs()) == 1, scheduler.jobs()
            scheduler.wait_for(lambda: scheduler.call("lpstat", "-W", "not-completed", "-o") == "",
                               "end of the job")
            text = subprocess.run(["pdftotext", "-layout", scheduler.printed(), "-"],
                                  capture_output=True, text=True, check=True).stdout
            assert "Velmar KLT LC - Check Split Times for " in text, text

            # A queue that refuses; the printer is still the one of the last time.
            scheduler.call("cupsreject", print_scheduler.QUEUE)
            print_results(desk)
            assert len(scheduler.jobs()) == 1, scheduler.jobs()
            print("the report is one job, and comes out of the printer")
        finally:
            scheduler.stop()


main()
