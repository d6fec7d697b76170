#!/usr/bin/env python3
"""The program's dialogs by ear alone, through the accessibility bus: a station that has nothing is set up,
each way of asking a question is answered, and the results are exported and printed."""

import datetime
import pathlib
import subprocess
import sys

import ears
import work

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "support"))
import print_scheduler  # noqa: E402

BIN = pathlib.Path(sys.argv[1])
TITLE = "Velmar KLT Log Checker"


def message(desk, application, said, button):
    """A button of the message box whose words say that, all of which can be heard."""
    def found():
        for box in desk.children(application):
            heard = box.getRoleName() == "alert" and "active" in desk.states(box)
            if heard and desk.one(box, "label", lambda text: said in text):
                return box
        return None
    box = desk.until(found, f"message that says {said!r}")
    assert box.name.strip(), said
    desk.nothing_is_nameless(box)
    return desk.find(box, "push button", button)


def answer(desk, application, said, button):
    pressed = message(desk, application, said, button)
    desk.press(pressed)
    desk.gone_from(pressed)


def set_up(desk, config):
    program = desk.start(BIN / "logchecker", config=config)
    application = desk.application("logchecker")
    dialog = desk.dialog(application, "Velmar KLT Log File Settings:")
    desk.write(desk.find(dialog, "text", "Split Name:"), "Larkfield")
    desk.write(desk.find(dialog, "text", "Directory to check for new incoming log files from:"),
               str(config / "LOGS"))
    desk.press(desk.find(dialog, "push button", "OK"))
    answer(desk, application, "created for you?", "Yes")
    answer(desk, application, "have not been set", "OK")
    desk.dialog(application, "Velmar Cart Locations:")
    desk.keys("Escape")
    desk.press(message(desk, application, "have not been set", "OK"))
    assert program.wait(timeout=30) == 1, program.stderr.read()
    assert (config / "LOGS").is_dir()


def question(desk, application, words):
    box = desk.until(lambda: [window for window in desk.children(application)
                              if "active" in desk.states(window) and
                              desk.one(window, "label", words)], f"question {words!r}")[0]
    desk.nothing_is_nameless(box)
    return box


def answer_questions(desk):
    program = desk.start(BIN / "logchecker_questions")
    application = desk.application("logchecker_questions")

    def ok(words):
        desk.press(desk.find(question(desk, application, words), "push button", "OK"))

    box = question(desk, application, "Which text?")
    desk.write(desk.find(box, "text", "Which text?"), "an answer")
    ok("Which text?")
    box = question(desk, application, "Which one, or another?")
    desk.write(desk.find(box, "text", "Which one, or another?"), "West")
    ok("Which one, or another?")
    for words in ("Which one?", "Which one in order?"):
        box = question(desk, application, words)
        combo = desk.until(lambda: desk.one(box, "combo box", lambda name: True), "list")
        assert desk.labels(combo) == [words], desk.labels(combo)
        desk.settled()
        desk.keys("Down")
        desk.until(lambda: combo.name in ("North", "East"), "first of the list")
        ok(words)
    box = question(desk, application, "Which row?")
    desk.do(desk.find(box, "list item", "East"), "Toggle")
    desk.until(lambda: "selected" in desk.states(desk.find(box, "list item", "East")), "row")
    ok("Which row?")
    box = question(desk, application, "Which rows?")
    for name in ("North", "South"):
        desk.do(desk.find(box, "list item", name), "Toggle")
    desk.until(lambda: [part.name for part in desk.all(box) if part.getRoleName() == "list item" and
                        "selected" in desk.states(part)] == ["North", "South"], "rows")
    ok("Which rows?")
    assert program.wait(timeout=30) == 0, program.stderr.read()
    printed = program.stdout.read().decode().split("\n")
    assert printed[:5] == ["an answer", "West", "North", "East", "1"], printed
    assert printed[5].split() == ["0", "2"], printed  # counted from 0


def save_and_print(desk, scheduler, config, day):
    program = desk.start(BIN / "logchecker", config=config)
    application = desk.application("logchecker")
    frame = desk.dialog(application, f"{TITLE} : {day:%A} {day.day} {day:%B %Y}", "frame")
    desk.press(desk.find(frame, "push button", "Check Day"))
    save = desk.find(frame, "push button", "Save")
    desk.until(lambda: "enabled" in desk.states(save), "results")

    path = desk.folder / "heard.csv"
    desk.press(save)
    dialog = desk.until(lambda: [window for window in desk.children(application)
                                 if window.name.startswith("Export Results")], "save dialog")[0]
    desk.write(desk.find(dialog, "text", lambda name: name.startswith("File name")), str(path))
    desk.press(desk.find(dialog, "push button", "Save"))
    answer(desk, application, "exist", "Yes")
    answer(desk, application, "has been saved", "OK")
    assert path.read_bytes() == work.expected(BIN, config, day)

    desk.press(desk.find(frame, "push button", "Print"))
    dialog = desk.until(lambda: [window for window in desk.children(application)
                                 if window.name == "Print Check Split Times"], "printer's dialog")[0]
    copies = desk.find(dialog, "spin button", lambda name: "opies" in name)
    copies.queryValue().currentValue = 2
    desk.until(lambda: copies.queryValue().currentValue == 2, "two copies")
    desk.press(desk.find(dialog, "push button", "Print"))
    answer(desk, application, "print", "OK")
    assert len(scheduler.jobs()) == 2, scheduler.jobs()  # a job for each copy
    program.kill()
    program.wait()


def main():
    with ears.Ears() as desk:
        scheduler = print_scheduler.Scheduler(desk.folder / "print")
        try:
            desk.folder.chmod(0o755)  # the printer's filters run as a user of their own
            desk.environment["CUPS_SERVER"] = scheduler.environment["CUPS_SERVER"]
            set_up(desk, desk.folder / "new")
            answer_questions(desk)
            tomorrow = datetime.date.today() + datetime.timedelta(days=1)
            work.write_sample(BIN, desk.folder / "config", tomorrow, 1)
            save_and_print(desk, scheduler, desk.folder / "config", tomorrow)
            print("dialogs are answered by ear")
        finally:
            scheduler.stop()


main()
