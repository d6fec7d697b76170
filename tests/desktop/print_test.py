#!/usr/bin/env python3
"""Prints the results through a real print scheduler to a queue on this machine, whose printer is an IPP
printer on the loopback address: three copies make three jobs, a note in two copies makes one, and a
queue that is stopped or takes no jobs gives the message of a failure. Skipped (77) where the scheduler
can't run."""

import os
import pathlib
import shutil
import socket
import subprocess
import sys
import tempfile
import time

BIN = pathlib.Path(sys.argv[1])
QUEUE = "logchecker-test"
SKIPPED = 77


def free_port():
    with socket.socket() as probe:
        probe.bind(("127.0.0.1", 0))
        return probe.getsockname()[1]


def wait_for(condition, seconds=20):
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        if condition():
            return True
    return False


def answers(port):
    with socket.socket() as probe:
        return probe.connect_ex(("127.0.0.1", port)) == 0


class Scheduler:
    """A scheduler of its own, with its files in a folder of its own."""

    def __init__(self, folder):
        self.port = free_port()
        for name in ("spool", "cache", "state", "log", "root", "printed", "spool/tmp"):
            (folder / name).mkdir(parents=True)
        (folder / "cupsd.conf").write_text(
            f"Listen 127.0.0.1:{self.port}\nBrowsing Off\nDefaultAuthType None\nLogLevel warn\n"
            "MaxJobs 0\nPreserveJobHistory Yes\nDirtyCleanInterval 0\nWebInterface No\n"
            "<Location />\n  Order allow,deny\n  Allow all\n</Location>\n"
            "<Policy default>\n  <Limit All>\n    Order allow,deny\n    Allow all\n  </Limit>\n"
            "</Policy>\n")
        (folder / "cups-files.conf").write_text(
            f"ServerRoot {folder}/root\nRequestRoot {folder}/spool\nTempDir {folder}/spool/tmp\n"
            f"CacheDir {folder}/cache\nStateDir {folder}/state\nAccessLog {folder}/log/access\n"
            f"ErrorLog {folder}/log/error\nPageLog {folder}/log/page\nSystemGroup root\n"
            "FileDevice Yes\nSandboxing relaxed\n")
        self.log = folder / "log" / "error"
        self.environment = dict(os.environ, CUPS_SERVER=f"127.0.0.1:{self.port}",
                                HOME=str(folder), LOGCHECKER_TEST_QUEUE=QUEUE,
                                QT_QPA_PLATFORM="offscreen", LC_ALL="C.UTF-8")
        self.printer_port = free_port()
        self.processes = [
            subprocess.Popen(["ippeveprinter", "-p", str(self.printer_port), "-d",
                              str(folder / "printed"), "-k", "-r", "off", "-f",
                              "application/pdf,image/pwg-raster", "Test printer"],
                             stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL),
            subprocess.Popen(["cupsd", "-f", "-c", str(folder / "cupsd.conf"), "-s",
                              str(folder / "cups-files.conf")],
                             stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)]

    def runs(self):
        return wait_for(lambda: answers(self.port))

    def printer_ended(self):
        """It needs a service for discovery, which not every machine runs."""
        return self.processes[0].poll() is not None

    def call(self, *command):
        return subprocess.run(command, env=self.environment, capture_output=True, text=True,
                              timeout=60, check=False)

    def stop(self):
        for process in self.processes:
            process.terminate()
            try:
                process.wait(timeout=10)
            except subprocess.TimeoutExpired:
                process.kill()


def skip(why):
    print("skipped:", why)
    sys.exit(SKIPPED)


def make_queue(scheduler):
    """A queue on the IPP printer; where the printer can't run, one that writes into a file."""
    if wait_for(lambda: answers(scheduler.printer_port) or scheduler.printer_ended(), 10) and \
            not scheduler.printer_ended():
        uri = f"ipp://127.0.0.1:{scheduler.printer_port}/ipp/print"
        made = scheduler.call("lpadmin", "-p", QUEUE, "-E", "-v", uri, "-m", "everywhere")
        if made.returncode == 0:
            return
    made = scheduler.call("lpadmin", "-p", QUEUE, "-E", "-v", "file:/dev/null", "-m", "raw")
    if made.returncode != 0:
        skip("no queue: " + made.stderr.strip())


def jobs(scheduler):
    listed = scheduler.call("lpstat", "-W", "all", "-o", QUEUE).stdout
    return [line for line in listed.splitlines() if line.startswith(QUEUE)]


def print_three_copies(scheduler, expect):
    scheduler.environment["LOGCHECKER_TEST_EXPECT"] = expect
    done = scheduler.call(str(BIN / "checking_ui_tests"), "--gtest_filter=QueueTest.*")
    assert done.returncode == 0 and "PASSED  ] 1 test" in done.stdout, done.stdout + done.stderr


def print_a_note_twice(scheduler, folder):
    before = {job.name for job in (folder / "spool").glob("c*")}
    done = scheduler.call(str(BIN / "printing_ui_tests"), "--gtest_filter=NoteQueueTest.*")
    assert done.returncode == 0 and "PASSED  ] 1 test" in done.stdout, done.stdout + done.stderr
    new = [job for job in (folder / "spool").glob("c*") if job.name not in before]
    assert len(new) == 1, new
    # In the job's attributes: a number of four bytes, by its name.
    assert b"!\x00\x06copies\x00\x04\x00\x00\x00\x02" in new[0].read_bytes(), new[0].read_bytes()


def main():
    for tool in ("cupsd", "ippeveprinter", "lpadmin", "lpstat"):
        if shutil.which(tool) is None:
            skip(f"no {tool}")
    folder = pathlib.Path(tempfile.mkdtemp(prefix="logchecker-print-"))
    folder.chmod(0o755)
    scheduler = Scheduler(folder)
    try:
        if not scheduler.runs():
            skip("the scheduler does not start")
        make_queue(scheduler)
        print_three_copies(scheduler, "printed")
        assert len(jobs(scheduler)) == 3, jobs(scheduler)
        print_a_note_twice(scheduler, folder)
        scheduler.call("cupsdisable", QUEUE)
        print_three_copies(scheduler, "The printer is stopped")
        scheduler.call("cupsenable", QUEUE)
        scheduler.call("cupsreject", QUEUE)
        print_three_copies(scheduler, "The printer takes no jobs")
        assert len(jobs(scheduler)) == 4, "a queue that refuses got a job"
        print("three copies are three jobs, and a refusal is said")
    finally:
        scheduler.stop()
        shutil.rmtree(folder, ignore_errors=True)


main()
