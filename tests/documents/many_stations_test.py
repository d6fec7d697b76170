#!/usr/bin/env python3
"""Runs the commands of docs/many-stations.md on this machine and on a machine that is reached over ssh: this
one again, by a server of the test's own with keys of its own. Takes the folder of the programs."""

import getpass
import json
import os
import pathlib
import re
import shutil
import socket
import subprocess
import sys
import tempfile
import time

HERE = pathlib.Path(__file__).resolve().parent.parent.parent
PROGRAMS = pathlib.Path(sys.argv[1]).resolve()
DAY = "2027-01-15"
COMMANDS = re.findall(r"^```sh\n(.*?)^```$",
                      (HERE / "docs/many-stations.md").read_text(encoding="utf-8"),
                      re.MULTILINE | re.DOTALL)


def run(command, folder):
    environment = dict(os.environ, PATH=f"{PROGRAMS}:{os.environ['PATH']}", HOME=str(folder),
                       day=DAY, LC_ALL="C.UTF-8")
    return subprocess.run(["bash", "-c", command], cwd=folder, env=environment, check=False,
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, timeout=240)


def free_port():
    with socket.socket() as probe:
        probe.bind(("127.0.0.1", 0))
        return probe.getsockname()[1]


class Server:
    """A server for this user alone, for as long as it is needed."""

    def __init__(self, folder):
        self.folder = folder
        self.port = free_port()
        for key in ("host", "user"):
            subprocess.run(["ssh-keygen", "-q", "-t", "ed25519", "-N", "", "-f", folder / key], check=True)
        (folder / "sshd_config").write_text(
            f"ListenAddress 127.0.0.1\nPort {self.port}\nHostKey {folder}/host\nPidFile none\n"
            f"AuthorizedKeysFile {folder}/user.pub\nStrictModes no\nUsePAM no\n"
            "PasswordAuthentication no\nKbdInteractiveAuthentication no\nPermitRootLogin yes\n"
            f"SetEnv PATH={PROGRAMS}:/usr/local/bin:/usr/bin:/bin\n", encoding="utf-8")
        if os.geteuid() == 0:
            os.makedirs("/run/sshd", exist_ok=True)

    def __enter__(self):
        program = shutil.which("sshd", path="/usr/sbin:/usr/local/sbin:" + os.environ["PATH"])
        self.process = subprocess.Popen([program, "-D", "-e", "-f", self.folder / "sshd_config"],
                                        stderr=open(self.folder / "sshd.log", "wb"))
        for _ in range(500):
            with socket.socket() as probe:
                if probe.connect_ex(("127.0.0.1", self.port)) == 0:
                    return self
            time.sleep(0.02)
        raise RuntimeError((self.folder / "sshd.log").read_text(encoding="utf-8"))

    def __exit__(self, *_):
        self.process.terminate()
        self.process.wait()

    def login(self):
        return (f"ssh -p {self.port} -i {self.folder}/user -o BatchMode=yes -o IdentitiesOnly=yes "
                f"-o StrictHostKeyChecking=no -o UserKnownHostsFile=/dev/null -o LogLevel=ERROR "
                f"{getpass.getuser()}@127.0.0.1")


def make_stations(folder):
    for name, sizes in (("good", ["--breaks", "10"]), ("bad = worse", [])):
        subprocess.run([PROGRAMS / "logcheck", "sample", folder / name, "--date", DAY, "--days", "3",
                        *sizes], check=True)
    lines = ["# The stations", "", "; and what is no station",
             f"Good FM={folder}/good", f"  C\u00f4te $HOME 'n' \"q\"  =  {folder}/bad = worse  ",
             f"Nowhere = {folder}/none"]
    (folder / "stations.txt").write_bytes(("\ufeff" + "\r\n".join(lines) + "\r\n").encode())


def expect(expected, seen, what):
    if expected != seen:
        raise AssertionError(f"{what}: {seen!r}, not {expected!r}")


def check_reports(folder):
    reports = [json.loads((folder / f"reports/{n}.report").read_text(encoding="utf-8")) for n in (1, 2, 3)]
    expect(["Good FM", "C\u00f4te $HOME 'n' \"q\"", "Nowhere"], [r["station"] for r in reports], "stations")
    expect([0, 1, 2], [r["code"] for r in reports], "codes")
    for report in reports:
        expect([DAY, "2027-01-16", "2027-01-17"], [d["date"] for d in report["days"]], "days")


def check_board(folder):
    """The board merges what came from all machines, and lists a report that broke off."""
    done = run(COMMANDS[2], folder)
    expect(2, done.returncode, "the board's code is the greatest\n" + done.stdout)
    page = (folder / "board.html").read_text(encoding="utf-8")
    sections = re.findall(r'<h3 id="s\d+"><bdi>(.*?)</bdi></h3>', page)
    expect(["Nowhere", "C\u00f4te $HOME &#39;n&#39; &quot;q&quot;", "Good FM"], sections,
           "the board's stations, the worst first")
    expect(9, len(re.findall(r'<tr id="s\d+-2027', page)), "the board's days")
    broken = folder / "reports/4.report"
    broken.write_text((folder / "reports/1.report").read_text(encoding="utf-8")[:200], encoding="utf-8")
    expect(2, run(COMMANDS[2], folder).returncode, "the code of a board with a report that broke off")
    page = (folder / "board.html").read_text(encoding="utf-8")
    expect(True, "<bdi>reports/4.report</bdi> is cut off" in page, "whether it is listed")
    expect(True, ">Good FM</bdi></h3>" in page, "whether the others stand on the board")


def check_on(folder, machines):
    (folder / "machines.txt").write_text(machines, encoding="utf-8")
    done = run(COMMANDS[0], folder)
    expect(2, done.returncode, "the number of checks that did not end with 0:\n" + done.stdout)
    check_reports(folder)
    expect(2, run(COMMANDS[1], folder).returncode, "the greatest code")


def main():
    expect(3, len(COMMANDS), "commands in the document")
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        make_stations(folder)
        check_on(folder, ":\n")
        with Server(folder) as server:
            check_on(folder, f"1/{server.login()}\n")
            hosts = {line.split("\t")[1] for line in
                     (folder / "jobs.log").read_text(encoding="utf-8").splitlines()[1:]}
            expect(False, ":" in hosts, "whether a check ran without ssh")
            check_on(folder, f"1/:\n1/{server.login()}\n")
            check_board(folder)
        # The same machine, gone: nothing was checked, and nothing says that it was.
        (folder / "stations.txt").write_text(f"Good FM = {folder}/good\n", encoding="utf-8")
        (folder / "machines.txt").write_text(f"1/{server.login()}\n", encoding="utf-8")
        run(COMMANDS[0], folder)
        expect("255", (folder / "jobs.log").read_text().splitlines()[1].split("\t")[6], "its code")
        expect(2, run(COMMANDS[1], folder).returncode, "the code of a machine that is gone")
        (folder / "machines.txt").write_text(":\n", encoding="utf-8")
        expect(0, run(COMMANDS[0], folder).returncode, "a run in which all matches")
        expect(0, run(COMMANDS[1], folder).returncode, "its code")
    print("The recipe for many machines works as it is written")


if __name__ == "__main__":
    main()
