#!/usr/bin/env python3
"""On a screen of 1024 by 600 the main window is wholly on it, with the frame that the desktop draws around
it, whatever the scale; and where the desktop's frame is wider than usual, the window is as much smaller."""

import pathlib
import re
import subprocess
import sys

import screen
import work

BIN = pathlib.Path(sys.argv[1])
SCREEN = (1024, 600)
FRAME = "^Velmar KLT Log Checker : "
# A theme of the window manager whose frames are far wider than others.
WIDE_FRAMES = "border.width: 20\npadding.height: 12\nwindow.handle.width: 30\n"


def place(desk, window):
    """Left, top, right and bottom of a window with its frame."""
    def words(*command):
        done = subprocess.run([command[0], "-id", window, *command[1:]], env=desk.environment, check=True,
                              capture_output=True, text=True)
        return done.stdout
    inner = words("xwininfo")
    left, top, width, height = [
        int(re.search(name + r": +(-?\d+)", inner).group(1))
        for name in ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height")]
    frame = re.findall(r"\d+", words("xprop", "_NET_FRAME_EXTENTS").partition("=")[2])
    assert len(frame) == 4, frame
    before, after, above, below = map(int, frame)
    return left - before, top - above, left + width + after, top + height + below


def check(desk, config, scale):
    desk.environment["QT_SCALE_FACTOR"] = str(scale)
    desk.start(BIN / "logchecker", config=config)
    window = desk.window(FRAME, f"main window at {scale}")

    def inside():
        left, top, right, bottom = place(desk, window)
        return left >= 0 and top >= 0 and right <= SCREEN[0] and bottom <= SCREEN[1]

    desk.until(inside, f"window on the screen at {scale}: it is at {place(desk, window)}", 10)
    desk.keys("alt+f", "x")
    desk.gone(window)


def use_wide_frames(desk):
    theme = desk.folder / ".themes" / "wide" / "openbox-3"
    theme.mkdir(parents=True)
    theme.joinpath("themerc").write_text(WIDE_FRAMES, encoding="ascii")
    settings = desk.folder / "config" / "openbox"
    settings.mkdir(parents=True)
    settings.joinpath("rc.xml").write_text(
        '<openbox_config xmlns="http://openbox.org/3.4/rc"><theme><name>wide</name></theme>'
        "</openbox_config>", encoding="ascii")
    desk.manager.kill()
    desk.manager.wait()
    desk.manager = desk.start_manager()
    desk.until(desk.manager_is_ready, "window manager with wide frames")


def main():
    with screen.Screen(SCREEN) as desk:
        config = desk.folder / "station"
        work.write_sample(BIN, config)
        for scale in (1, 2, 3):
            check(desk, config, scale)
        use_wide_frames(desk)
        check(desk, config, 1)


main()
