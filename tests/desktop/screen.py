"""A screen of its own, with a window manager, real keys and a real mouse."""

import os
import pathlib
import re
import shutil
import subprocess
import tempfile
import time

NEEDED = ("Xvfb", "xdotool", "openbox", "xprop", "xwininfo", "xev", "xclip", "import", "compare")


class Screen:
    """An X server without a monitor. `size` in pixels."""

    def __init__(self, size=(1280, 1024)):
        missing = [tool for tool in NEEDED if shutil.which(tool) is None]
        if missing:
            raise SystemExit("missing: " + " ".join(missing))
        read, write = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write), "-screen", "0", f"{size[0]}x{size[1]}x24",
             "-nolisten", "tcp"],
            pass_fds=(write,), stderr=subprocess.DEVNULL)
        os.close(write)
        with os.fdopen(read) as pipe:
            self.display = ":" + pipe.readline().strip()
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="logchecker-screen-"))
        self.environment = dict(os.environ, DISPLAY=self.display, HOME=str(self.folder),
                                XDG_RUNTIME_DIR=str(self.folder), LC_ALL="C.UTF-8",
                                XDG_CONFIG_HOME=str(self.folder / "config"),
                                QT_QPA_PLATFORM="xcb")
        self.environment.pop("XDG_DOCUMENTS_DIR", None)
        self.folder.joinpath("config").mkdir()
        self.manager = self.start_manager()
        self.programs = []
        self.seen = set()
        self.until(self.manager_is_ready, "window manager")

    def start_manager(self):
        return subprocess.Popen(["openbox"], env=self.environment, stdout=subprocess.DEVNULL,
                                stderr=subprocess.DEVNULL)

    def manager_is_ready(self):
        # It ends when it comes before the server is wholly up.
        if self.manager.poll() is not None:
            self.manager = self.start_manager()
        done = subprocess.run(["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"],
                              env=self.environment, capture_output=True, text=True, check=False)
        return "window id" in done.stdout

    def __enter__(self):
        return self

    def __exit__(self, *_):
        for process in self.programs + [self.manager, self.server]:
            if process.poll() is None:
                process.kill()
            process.wait()
        shutil.rmtree(self.folder, ignore_errors=True)

    def tool(self, *arguments):
        done = subprocess.run(["xdotool", *map(str, arguments)], env=self.environment,
                              capture_output=True, text=True, check=False)
        return done.stdout.split()

    def start(self, *command, config=None):
        environment = dict(self.environment)
        if config is not None:
            environment["XDG_CONFIG_HOME"] = str(config)
        self.seen = set(self.windows())
        process = subprocess.Popen(list(map(str, command)), env=environment,
                                   stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        self.programs.append(process)
        return process

    def windows(self):
        return self.tool("search", "--onlyvisible", "--name", ".")

    def name(self, window):
        done = subprocess.run(["xdotool", "getwindowname", window], env=self.environment,
                              capture_output=True, text=True, check=False)
        return done.stdout.rstrip("\n")

    def until(self, condition, what, seconds=30):
        """Waits for a condition; fails loudly when it doesn't come true."""
        end = time.monotonic() + seconds
        while time.monotonic() < end:
            result = condition()
            if result:
                return result
        self.picture(f"/tmp/logchecker-screen-failure-{os.getuid()}.png")
        ended = [f"; {p.args[0]} ended with {p.returncode}: {p.stderr.read().decode()}"
                 for p in self.programs if p.poll() is not None]
        raise AssertionError(f"no {what}; on the screen: " +
                             ", ".join(repr(self.name(w)) for w in self.windows()) +
                             "".join(ended))

    def settled(self):
        """Waits until the programs, the window manager and the server have done all that they were asked
        to and wait for more. A key that comes in the middle of a day's check is taken in the middle of it,
        and one that comes with a window may still go to the window before."""
        self.tool("getactivewindow")  # What was typed has left the server when this has an answer.
        self.until(self.all_wait, "rest of the programs")

    def all_wait(self):
        before = self.wakings()
        time.sleep(0.05)
        return before is not None and before == self.wakings()

    def wakings(self):
        """How often each of their threads has been woken; None when one of them is at work."""
        found = {}
        for process in [*self.programs, self.manager, self.server]:
            for status in pathlib.Path(f"/proc/{process.pid}/task").glob("*/status"):
                try:
                    lines = dict(line.split(":\t", 1) for line in status.read_text().splitlines())
                except OSError:  # The thread has ended.
                    return None
                if lines["State"][0] == "Z":
                    continue
                if lines["State"][0] != "S":
                    return None
                found[status] = lines["voluntary_ctxt_switches"]
        return found

    def window(self, pattern, what=None, new=True):
        """The window whose name matches and that has the focus; a new one unless told otherwise."""
        def found():
            for window in self.windows():
                if new and window in self.seen:
                    continue
                if re.search(pattern, self.name(window)):
                    return window
            return None
        window = self.until(found, what or f"window {pattern!r}")
        self.seen.add(window)
        self.until(lambda: self.tool("getactivewindow") == [window] or
                   self.tool("windowactivate", "--sync", window) is None,
                   f"focus on {pattern!r}")
        return window

    def gone(self, window):
        self.until(lambda: window not in self.windows(), f"end of the window {self.name(window)!r}")

    def keys(self, *keys):
        self.tool("key", "--clearmodifiers", "--delay", 20, *keys)

    def type(self, text):
        subprocess.run(["xdotool", "type", "--clearmodifiers", "--delay", "8", "--file", "-"],
                       input=text, text=True, env=self.environment, check=True)

    def click(self, window, x, y):
        """Presses the left button at a place inside a window."""
        self.tool("mousemove", "--window", window, x, y, "click", 1)

    def picture(self, path):
        subprocess.run(["import", "-window", "root", str(path)], env=self.environment, check=True,
                       stderr=subprocess.DEVNULL)

    def colour(self, window, x, y):
        """The red, green and blue of a pixel of a window, as bytes; none when the window has gone."""
        done = subprocess.run(["import", "-silent", "-window", window, "-crop", f"1x1+{x}+{y}",
                               "-depth", "8", "rgb:-"], env=self.environment, capture_output=True,
                              check=False)
        return done.stdout

    def difference(self, first, second, area):
        """How many pixels of an area (WxH+X+Y) differ in two pictures."""
        done = subprocess.run(
            ["compare", "-metric", "AE", "-extract", area, str(first), str(second), "null:"],
            capture_output=True, text=True, check=False)
        return float(done.stderr.split()[0])
