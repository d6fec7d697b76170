"""Runs a program on an X server of its own, with one print queue, and ends as it does.

with_print_queue.py PROGRAM ARGUMENT...

Wine offers the queues of the system below to what it runs, and prints on them by its own driver. It looks for
them when the program starts, so the scheduler is there before.
"""

import os
import pathlib
import sys
import tempfile

HERE = pathlib.Path(__file__).resolve().parent
sys.path[:0] = [str(HERE), str(HERE.parent)]
import on_screen  # noqa: E402
import print_scheduler  # noqa: E402


def main():
    with tempfile.TemporaryDirectory(prefix="logchecker-queue-", dir="/tmp") as name:
        # The printer's filters run as a user of their own.
        os.chmod(name, 0o755)
        scheduler = print_scheduler.Scheduler(pathlib.Path(name, "p"))
        try:
            os.environ.update(CUPS_SERVER=f"{name}/p/socket", LOGCHECKER_PRINT_QUEUE=f"{name}/p")
            return on_screen.main()
        finally:
            scheduler.stop()


if __name__ == "__main__":
    sys.exit(main())
