#!/usr/bin/env python3
"""A program that is started without its standard streams writes into none of the station's files, and
tells by its exit code when its result could not be printed."""

import itertools
import pathlib
import subprocess
import sys

import screen
import work

BIN = pathlib.Path(sys.argv[1])
STREAMS = ("<&-", ">&-", "2>&-")
COMBINATIONS = [tuple(stream for stream, closed in zip(STREAMS, which) if closed)
                for which in itertools.product((False, True), repeat=len(STREAMS))]


def without(closed, *command):
    """The command line of a program that is started with these streams closed."""
    return ["sh", "-c", 'exec "$0" "$@" ' + " ".join(closed), *map(str, command)]


def contents(folder):
    return {path: path.read_bytes() for path in folder.rglob("*") if path.is_file()}


def look_at_streams(program, closed):
    """Each closed stream is held, and leads nowhere."""
    for number, stream in enumerate(STREAMS):
        held = str(pathlib.Path(f"/proc/{program.pid}/fd/{number}").readlink())
        assert stream not in closed or held == "/dev/null", (closed, number, held)


def check(station, closed):
    at_station = ["--settings", station]
    for arguments, code in ((["check", *at_station], 1), (["cart", "1", *at_station], 0),
                            (["show", "--split", "1", *at_station], 0), (["--help"], 0)):
        command = [BIN / "logcheck", *arguments]
        whole = subprocess.run(command, capture_output=True, check=False,
                               stdin=subprocess.DEVNULL)
        assert whole.returncode == code, whole
        done = subprocess.run(without(closed, *command), stdout=subprocess.PIPE, check=False,
                              stderr=subprocess.PIPE, stdin=subprocess.PIPE)
        if ">&-" in closed:
            assert done.returncode == 2, (closed, arguments, done)
            assert done.stdout == b"", (closed, arguments, done)
            words = b"" if "2>&-" in closed else b"logcheck: standard output could not be written\n"
            assert done.stderr == words, (closed, arguments, done)
        else:
            assert (done.returncode, done.stdout) == (code, whole.stdout), (closed, arguments, done)


def browse(desk, closed):
    program = desk.start(*without(closed, BIN / "cartbrowser", "7"))
    desk.window("^Cart Browser$", f"browser without {closed}")
    look_at_streams(program, closed)
    desk.keys("Return")
    result = (program.wait(timeout=30), program.stdout.read(), program.stderr.read())
    if ">&-" in closed:
        words = b"" if "2>&-" in closed else b"cartbrowser: standard output could not be written\n"
        assert result == (2, b"", words), (closed, result)
    else:
        assert result == (0, b"7\n", b""), (closed, result)


def sit_at_the_desk(desk, closed):
    program = desk.start(*without(closed, BIN / "logchecker"))
    frame = desk.window("^Velmar KLT Log Checker : ", f"main window without {closed}")
    look_at_streams(program, closed)
    desk.keys("alt+f", "x")
    desk.gone(frame)
    result = (program.wait(timeout=30), program.stdout.read(), program.stderr.read())
    assert result == (0, b"", b""), (closed, result)


def main():
    with screen.Screen() as desk:
        # The screen has no graphics card, and its driver would leave memory behind.
        desk.environment["QT_XCB_GL_INTEGRATION"] = "none"
        config = desk.folder / "config"
        work.write_sample(BIN, config)
        before = contents(config / "velmar")
        for closed in COMBINATIONS:
            check(config / "velmar", closed)
            browse(desk, closed)
            sit_at_the_desk(desk, closed)
            assert contents(config / "velmar") == before, f"a file changed without {closed}"
        print("streams that are closed harm no file")


main()
