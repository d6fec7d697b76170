"""A screen for those who can't see it: a session bus of its own, and a program that is not ours, the
system's accessibility bus, between the tests and what they drive."""

import os
import pathlib
import shutil
import subprocess
import sys
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "desktop"))
import screen  # noqa: E402

# What a window's parts must have a name for, so that whoever hears them knows what they are.
NAMED = ("push button", "check box", "text", "scroll bar", "spin button", "table", "list", "list item",
         "page tab", "menu item", "table column header", "table cell", "progress bar", "dial", "dialog")
STATES = ("active", "checked", "editable", "enabled", "focusable", "focused", "modal", "selectable",
          "selected", "showing", "visible")
PATIENCE = 60000  # milliseconds that a program may take for an answer on a busy machine
BUSY = 300       # the same for one that may open a window first and answer when that has gone


class Ears(screen.Screen):
    """A screen with a bus for whoever listens."""

    def __init__(self):
        if shutil.which("dbus-run-session") is None:
            raise SystemExit("missing: dbus-run-session")
        super().__init__()
        # The screen has no graphics card, and its driver would leave memory behind.
        self.environment["QT_XCB_GL_INTEGRATION"] = "none"
        # It has no settings to keep, nor another bus to ask.
        self.environment["GSETTINGS_BACKEND"] = "memory"
        self.environment.pop("DBUS_SESSION_BUS_ADDRESS", None)
        self.environment.pop("AT_SPI_BUS_ADDRESS", None)
        self.environment.pop("NO_AT_BRIDGE", None)
        # The session ends when its program does, which is when the pipe closes.
        self.session = subprocess.Popen(
            ["dbus-run-session", "--", "sh", "-c", "echo $DBUS_SESSION_BUS_ADDRESS; exec cat"],
            env=self.environment, stdin=subprocess.PIPE, stdout=subprocess.PIPE,
            stderr=subprocess.DEVNULL)
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = \
            self.session.stdout.readline().decode().strip()
        # What listens reads these when it is loaded.
        os.environ.clear()
        os.environ.update(self.environment)
        import gi
        gi.require_version("Atspi", "2.0")
        import pyatspi
        from gi.repository import Atspi, Gio, GLib
        self.pyatspi, self.bus, self.glib = pyatspi, Atspi, GLib
        Atspi.set_timeout(PATIENCE, PATIENCE)
        # As a screen reader does when it comes up: programs put their windows on the bus for it.
        Gio.bus_get_sync(Gio.BusType.SESSION).call_sync(
            "org.a11y.Bus", "/org/a11y/bus", "org.freedesktop.DBus.Properties", "Set",
            GLib.Variant("(ssv)", ("org.a11y.Status", "IsEnabled", GLib.Variant("b", True))),
            None, Gio.DBusCallFlags.NONE, PATIENCE)
        self.heard = []
        self.listener = self.hear

    def __exit__(self, *_):
        try:
            self.session.stdin.close()
            self.session.wait(timeout=30)
        finally:
            super().__exit__(*_)

    def until(self, condition, what, seconds=30):
        def asked():
            try:
                result = condition()
            except (self.glib.Error, LookupError, NotImplementedError):
                result = None  # What was asked has just gone, or is not there yet.
            if not result:
                time.sleep(0.02)
            return result
        return super().until(asked if hasattr(self, "glib") else condition, what, seconds)

    def start(self, *command, config=None):
        process = super().start(*command, config=config)
        self.listen()
        return process

    # What is there.

    def application(self, name):
        """The program of that name that was started last."""
        def found():
            desktop = self.pyatspi.Registry.getDesktop(0)
            desktop.clear_cache()
            for child in reversed(self.children(desktop)):
                if child.name == name and child.get_process_id() == self.programs[-1].pid:
                    child.set_cache_mask(self.bus.Cache.NONE)
                    return child
            return None
        return self.until(found, f"program {name} on the bus")

    def children(self, parent):
        return self.first(parent, parent.childCount)

    def first(self, parent, count):
        return [child for child in (parent[i] for i in range(count)) if child is not None]

    def all(self, parent, showing=True):
        """What is in a part, in order; without what does not show."""
        for child in self.children(parent):
            if showing and "showing" not in self.states(child):
                continue
            yield child
            if not self.is_table(child):
                yield from self.all(child, showing)

    def states(self, part):
        held = part.getState()
        return {state for state in STATES
                if held.contains(getattr(self.pyatspi, "STATE_" + state.upper()))}

    def is_table(self, part):
        return part.getRoleName() == "table"

    def one(self, parent, role, name, showing=True):
        """The part of that role and name, or none; the name may be a test for it."""
        is_it = name if callable(name) else name.__eq__
        for part in self.all(parent, showing):
            if part.getRoleName() == role and is_it(part.name):
                return part
        return None

    def find(self, parent, role, name, showing=True):
        return self.until(lambda: self.one(parent, role, name, showing), f"{role} {name!r}")

    def dialog(self, application, name, role="dialog"):
        """A window that is active, with nothing in it that has no name."""
        def found():
            for window in self.children(application):
                if window.name == name and window.getRoleName() == role:
                    if {"active", "showing"} <= self.states(window):
                        return window
            return None
        window = self.until(found, f"{role} {name!r}")
        self.nothing_is_nameless(window)
        return window

    def left(self, application, name):
        self.until(lambda: all(child.name != name or "showing" not in self.states(child)
                               for child in self.children(application)), f"end of {name!r}")

    def gone_from(self, part):
        """Waits until a part, and the window that it was in, is no longer there to be heard."""
        def gone():
            try:
                return part.childCount < 0 or "showing" not in self.states(part)
            except (self.glib.Error, LookupError):
                return True
        self.until(gone, f"end of what said {part}")

    def nothing_is_nameless(self, window):
        for part in self.all(window):
            role = part.getRoleName()
            name = part.name
            assert "<" not in name and "<" not in part.description, (role, name, part.description)
            if role in NAMED:
                assert name.strip(), (role, part.description, part.get_index_in_parent())
            if role == "combo box":
                assert self.labels(part) or part.description, name

    def labels(self, part):
        """The names of what labels a part."""
        return [relation.getTarget(i).name for relation in part.getRelationSet()
                if relation.getRelationType() == self.pyatspi.RELATION_LABELLED_BY
                for i in range(relation.getNTargets())]

    # What is done.

    def do(self, part, action):
        """Has a part do one of the things that it can do."""
        acts = part.queryAction()
        names = [acts.getName(i) for i in range(acts.nActions)]
        assert action in names, (part.name, names)
        # An answer may come only when a window that opens now has been closed.
        self.bus.set_timeout(BUSY, BUSY)
        try:
            acts.doAction(names.index(action))
        except self.glib.Error:
            pass
        finally:
            self.bus.set_timeout(PATIENCE, PATIENCE)

    def press(self, part):
        self.do(part, "Press")

    def write(self, part, text):
        assert part.queryEditableText().setTextContents(text), part.name
        self.until(lambda: self.text(part) == text, f"{text!r} in {part.name!r}")

    def text(self, part):
        return part.queryText().getText(0, -1)

    def choose(self, application, *names):
        """An entry of the menus, by the names on the way to it."""
        frame = self.children(application)[0]
        entry = self.find(frame, "menu item", names[0])
        for name in names[1:]:
            entry = self.find(entry, "menu item", name, showing=False)
        self.press(entry)

    # Tables.

    def headings(self, table):
        return [part.name for part in self.first(table, table.queryTable().nColumns)]

    def row(self, table, row):
        cells = table.queryTable()
        return [cells.getAccessibleAt(row, column).name for column in range(cells.nColumns)]

    def selected(self, table):
        return list(table.queryTable().getSelectedRows())

    def cell(self, table, row, column):
        return table.queryTable().getAccessibleAt(row, column)

    # What is told.

    def listen(self):
        if self.listener is None:
            return
        self.pyatspi.Registry.registerEventListener(
            self.listener, "object:state-changed:focused", "object:state-changed:selected",
            "object:property-change:accessible-name", "object:property-change:accessible-value")
        self.listener = None

    def hear(self, event):
        try:
            said = (event.type, event.detail1, event.source.getRoleName(), event.source.name)
        except (self.glib.Error, LookupError):
            return  # It has gone meanwhile.
        self.heard.append(said)

    def hearing(self):
        """What has been told by now, since hush."""
        while self.glib.MainContext.default().iteration(False):
            pass
        return self.heard

    def hush(self):
        self.hearing()
        self.heard.clear()

    def told(self, kind, role, name, what=1):
        """Waits until it has been told; the name is the whole text of what was told."""
        wanted = ("object:state-changed:" + kind, what, role, name)
        try:
            self.until(lambda: wanted in self.hearing(), f"word of {wanted}")
        except AssertionError as late:
            raise AssertionError(f"{late}; heard: {self.heard}") from late
