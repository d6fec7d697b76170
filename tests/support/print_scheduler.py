"""A print scheduler of one's own, for any user: its files lie in a folder of its own, it listens on a
socket there, and its one queue has a printer that takes PDF and writes the last job into a file.

As a program it makes the folder that it is given, says "ready", and stops when its standard input ends."""

import os
import pathlib
import shutil
import stat
import subprocess
import sys
import time

QUEUE = "logchecker-test"

PRINTER = """*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "LOGCHECK.PPD"
*Manufacturer: "Log Checker"
*Product: "(Test)"
*ModelName: "Test printer"
*ShortNickName: "Test printer"
*NickName: "Test printer"
*PSVersion: "(3010.000) 0"
*LanguageLevel: "3"
*ColorDevice: True
*DefaultColorSpace: RGB
*FileSystem: False
*cupsVersion: 2.4
*cupsManualCopies: True
*cupsFilter: "application/vnd.cups-pdf 0 -"
*OpenUI *PageSize/Page Size: PickOne
*OrderDependency: 10 AnySetup *PageSize
*DefaultPageSize: Letter
*PageSize Letter/Letter: "<</PageSize[612 792]>>setpagedevice"
*PageSize A4/A4: "<</PageSize[595 842]>>setpagedevice"
*CloseUI: *PageSize
*OpenUI *PageRegion/Page Region: PickOne
*OrderDependency: 10 AnySetup *PageRegion
*DefaultPageRegion: Letter
*PageRegion Letter/Letter: "<</PageSize[612 792]>>setpagedevice"
*PageRegion A4/A4: "<</PageSize[595 842]>>setpagedevice"
*CloseUI: *PageRegion
*DefaultImageableArea: Letter
*ImageableArea Letter/Letter: "18 18 594 774"
*ImageableArea A4/A4: "18 18 577 824"
*DefaultPaperDimension: Letter
*PaperDimension Letter/Letter: "612 792"
*PaperDimension A4/A4: "595 842"
*OpenUI *Duplex/Two-Sided: PickOne
*OrderDependency: 20 AnySetup *Duplex
*DefaultDuplex: DuplexNoTumble
*Duplex None/Off: "<</Duplex false>>setpagedevice"
*Duplex DuplexNoTumble/Long Edge: "<</Duplex true/Tumble false>>setpagedevice"
*Duplex DuplexTumble/Short Edge: "<</Duplex true/Tumble true>>setpagedevice"
*CloseUI: *Duplex
*OpenUI *InputSlot/Paper Source: PickOne
*OrderDependency: 30 AnySetup *InputSlot
*DefaultInputSlot: Upper
*InputSlot Upper/Upper Tray: "<</MediaPosition 0>>setpagedevice"
*InputSlot Lower/Lower Tray: "<</MediaPosition 1>>setpagedevice"
*CloseUI: *InputSlot
"""

SETTINGS = """Listen {folder}/socket
Browsing Off
DefaultAuthType None
LogLevel warn
MaxJobs 0
PreserveJobHistory Yes
DirtyCleanInterval 0
WebInterface No
<Location />
  Order allow,deny
  Allow all
</Location>
<Policy default>
  JobPrivateAccess all
  JobPrivateValues none
  <Limit All>
    Order allow,deny
    Allow all
  </Limit>
</Policy>
"""

FILES = """ServerRoot {folder}/root
RequestRoot {folder}/spool
TempDir {folder}/spool/tmp
CacheDir {folder}/cache
StateDir {folder}/state
AccessLog {folder}/log/access
ErrorLog {folder}/log/error
PageLog {folder}/log/page
SystemGroup root
FileDevice Yes
Sandboxing relaxed
"""


class Scheduler:
    """`folder` is made, and must be one that a socket's name has room for."""

    def __init__(self, folder):
        self.folder = folder
        folder.mkdir(mode=0o755, parents=True, exist_ok=True)
        for name in ("spool/tmp", "cache", "state", "log", "root"):
            (folder / name).mkdir(parents=True)
        (folder / "printer.ppd").write_text(PRINTER)
        (folder / "cupsd.conf").write_text(SETTINGS.format(folder=folder))
        (folder / "cups-files.conf").write_text(FILES.format(folder=folder))
        self.environment = dict(os.environ, CUPS_SERVER=str(folder / "socket"), HOME=str(folder),
                                LC_ALL="C.UTF-8", PATH=os.environ["PATH"] + ":/usr/sbin:/sbin")
        # Some systems let the installed one read and write its own folders alone.
        program = folder / "scheduler"
        shutil.copy(shutil.which("cupsd", path=self.environment["PATH"]), program)
        program.chmod(0o755)
        self.process = subprocess.Popen(
            [program, "-f", "-c", folder / "cupsd.conf", "-s", folder / "cups-files.conf"],
            env=self.environment, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        try:
            self.wait_for(self.answers, "print scheduler")
            self.call("lpadmin", "-p", QUEUE, "-E", "-v", f"file://{self.printed()}", "-P",
                      folder / "printer.ppd")
        except BaseException:
            self.stop()
            raise

    def printed(self):
        """The file that the last job was printed into."""
        return self.folder / "printed.pdf"

    def answers(self):
        if self.process.poll() is not None:
            raise AssertionError(f"the scheduler ended with {self.process.returncode}: {self.log()}")
        socket = self.folder / "socket"
        return socket.exists() and stat.S_ISSOCK(socket.stat().st_mode) and \
            "scheduler is running" in self.run("lpstat", "-r").stdout

    def log(self):
        log = self.folder / "log" / "error"
        return log.read_text() if log.exists() else ""

    def run(self, *command):
        return subprocess.run(command, env=self.environment, capture_output=True, text=True,
                              timeout=60, check=False)

    def call(self, *command):
        done = self.run(*command)
        assert done.returncode == 0, f"{command}: {done.stderr}{self.log()}"
        return done.stdout

    def jobs(self):
        """The jobs that the queue got, done or not, each as `lpstat` says it."""
        return self.call("lpstat", "-W", "all", "-o", QUEUE).splitlines()

    def wait_for(self, condition, what, seconds=60):
        end = time.monotonic() + seconds
        while time.monotonic() < end:
            if condition():
                return
            time.sleep(0.05)
        raise AssertionError(f"no {what}: {self.log()}")

    def stop(self):
        self.process.terminate()
        try:
            self.process.wait(timeout=10)
        except subprocess.TimeoutExpired:
            self.process.kill()
            self.process.wait()


def main():
    scheduler = Scheduler(pathlib.Path(sys.argv[1]))
    try:
        print("ready", flush=True)
        sys.stdin.read()
    finally:
        scheduler.stop()


if __name__ == "__main__":
    main()
