#!/usr/bin/env python3
"""A station that has nothing is set up from the program's own dialogs, by keys alone; a second start
asks nothing; a switch leads the settings into a file of their own; the two ways out end the
program; and a store of fewer than ten parts opens at the second start."""

import pathlib
import sys

import screen
import work

BIN = pathlib.Path(sys.argv[1])
TITLE = "^Velmar KLT Log Checker$"
SPLIT = "^Velmar KLT Log File Settings:$"
CARTS = "^Velmar Cart Locations:$"
FRAME = "^Velmar KLT Log Checker : "


def answer(desk, keys, what):
    box = desk.window(TITLE, what)
    desk.keys(*keys)
    desk.gone(box)


def pass_over_splash(desk):
    """The splash bears the program's title too; only what is new counts from here on."""
    desk.seen.update(desk.windows())


def fill_in_split(desk, logs):
    dialog = desk.window(SPLIT, "settings of split 1")
    pass_over_splash(desk)
    desk.keys("ctrl+a")
    desk.type("Larkfield")
    desk.keys("Tab", "ctrl+a")
    desk.type(str(logs))
    desk.keys("Return")
    answer(desk, ["Return"], "question about the directory of logs")
    desk.gone(dialog)


def set_up(desk, config):
    logs, store = config / "LOGS", config / "STORE"
    program = desk.start(BIN / "logchecker", config=config)
    fill_in_split(desk, logs)
    answer(desk, ["Return"], "message about the missing locations")
    dialog = desk.window(CARTS, "cart locations")
    desk.keys("ctrl+a")
    desk.type(str(store).lower())
    desk.keys("Return")
    for part in range(1, 11):
        answer(desk, ["Return"], f"question about part {part}")
    desk.gone(dialog)
    frame = desk.window(FRAME, "main window")
    assert logs.is_dir(), "the directory of logs was not made"
    # The location is stored in upper case; the folder that was made bears that name.
    made = [path for path in config.parent.rglob("*") if path.name.upper() == "CARTS10.LST"]
    assert made, "the store's files were not made"
    assert made[0].stat().st_size == 999 * 300, made[0].stat().st_size
    desk.keys("alt+f", "x")
    desk.gone(frame)
    assert program.wait(timeout=30) == 0, program.stderr.read()


def start_again(desk, config):
    program = desk.start(BIN / "logchecker", config=config)
    frame = desk.window(FRAME, "main window of the second start")
    desk.keys("alt+f", "x")
    desk.gone(frame)
    assert program.wait(timeout=30) == 0
    settings = (config / "velmar" / "VELKLT.INI").read_bytes()
    assert b"SplitName1=Larkfield\r\n" in settings, settings
    assert b"SplitName2" not in settings, settings


def use_switch(desk, config):
    folder = config / "velmar"
    before = (folder / "VELKLT.INI").read_bytes()
    program = desk.start(BIN / "logchecker", "/LI:OTHER.INI", config=config)
    frame = desk.window(FRAME, "main window of the start with a switch")
    desk.keys("alt+s", "g")
    dialog = desk.window("^KLT Manager Settings$")
    desk.keys("Return")
    desk.gone(dialog)
    desk.keys("alt+f", "x")
    desk.gone(frame)
    assert program.wait(timeout=30) == 0, program.stderr.read()
    settings = (folder / ".INI").read_bytes()
    assert b"NumberActiveSplits=2\r\n" in settings, settings
    assert (folder / "VELKLT.INI").read_bytes() == before
    assert not (folder / "OTHER.INI").exists()


def cancel_settings(desk, config):
    program = desk.start(BIN / "logchecker", config=config)
    desk.window(SPLIT, "settings of split 1")
    pass_over_splash(desk)
    desk.keys("Escape")
    answer(desk, ["Return"], "message that nothing was entered")
    assert program.wait(timeout=30) == 1
    assert not (config / "velmar" / "VELKLT.INI").exists()


def cancel_store(desk, config):
    (config / "velmar").mkdir(parents=True)
    (config / "velmar" / "VELKLT.INI").write_bytes(b"[General]\r\nSplitName1=A\r\n")
    program = desk.start(BIN / "logchecker", config=config)
    for what in ("first message", "second message"):
        desk.until(lambda: len([w for w in desk.windows() if desk.name(w) ==
                                "Velmar KLT Log Checker"]) > 1, what)
        desk.settled()
        desk.keys("Return")
        if what == "first message":
            dialog = desk.window(CARTS, "cart locations")
            desk.keys("Escape")
            desk.gone(dialog)
    assert program.wait(timeout=30) == 1, "no further message may follow"


def set_up_small_store(desk, config):
    """How many carts there are is read at the next start, so that the first one misses six parts."""
    work.write_sample(BIN, config)
    velmar = config / "velmar"
    store = velmar / "audio"
    (velmar / "VELMAR.INI").write_text("[FileLocations]\r\n" + "".join(
        f"Carts{part}={store}/carts {part}\r\n" for part in (2, 3, 4)), encoding="ascii", newline="")
    program = desk.start(BIN / "logchecker", config=config)
    desk.until(lambda: [desk.name(w) for w in desk.windows()].count("Velmar KLT Log Checker") > 1,
               "splash and message")
    desk.settled()
    pass_over_splash(desk)
    desk.keys("Return")
    dialog = desk.window(CARTS, "cart locations")
    desk.keys("ctrl+a")
    desk.type(str(store / "carts 1"))
    desk.keys("Return")
    answer(desk, ["Return"], "message of the dialog")
    desk.gone(dialog)
    answer(desk, ["Return"], "message of the second try")
    assert program.wait(timeout=30) == 1, program.stderr.read()
    program = desk.start(BIN / "logchecker", config=config)
    frame = desk.window(FRAME, "main window of the start after that")
    desk.keys("alt+f", "x")
    desk.gone(frame)
    assert program.wait(timeout=30) == 0, program.stderr.read()
    assert len(list(store.rglob("Carts*.lst"))) == 4, "a list file was made"


def main():
    with screen.Screen() as desk:
        config = desk.folder / "config"
        set_up(desk, config)
        start_again(desk, config)
        use_switch(desk, config)
        cancel_settings(desk, desk.folder / "cancelled")
        cancel_store(desk, desk.folder / "without-store")
        set_up_small_store(desk, desk.folder / "small-store")
        print("a station is set up")


main()
