#!/usr/bin/env python3
"""What logcheck says in all sorts of trouble: no path with two kinds of separator, and the same words
in every language.

    messages_test.py FOLDER-OF-THE-PROGRAMS"""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

import said

DATE = "2027-01-15"
CHECK = ["--date", DATE]


def replace(path, old, new):
    path.write_bytes(path.read_bytes().replace(old.encode(), new.encode()))


def edit(name, old, new):
    return lambda station: replace(station / name, old, new)


def remove(name):
    return lambda station: (shutil.rmtree if (station / name).is_dir() else os.unlink)(station / name)


def make_folder(name):
    def make(station):
        if (station / name).exists():
            remove(name)(station)
        (station / name).mkdir(parents=True)
    return make


def write(name, data):
    return lambda station: (station / name).write_bytes(data)


def double_folder(station):
    """Two folders of parts whose names differ from each other and from the settings in capitals."""
    shutil.copytree(station / "audio/carts 2", station / "audio/Carts 2")
    replace(station / "VELMAR.INI", "carts 2", "CARTS 2")


def double_settings(station):
    shutil.copy(station / "VELMAR.INI", station / "Velmar.Ini")
    os.rename(station / "VELMAR.INI", station / "velmar.ini")


def double_logs(station):
    shutil.copytree(station / "logs/Coast", station / "logs/COAST")
    replace(station / "VELKLT.INI", "logs\\Coast", "logs\\coast")


def stopping_log(station):
    path = station / "logs/Coast/150127CST.LOG"
    path.write_bytes(path.read_bytes() + (b"23:00:00|CST  00001001 X\r\n" * 1500))


# What is done to the station, the arguments behind --settings, words that must come, and the code.
CASES = (
    (lambda station: None, CHECK, "5 ad breaks did not match", 1),
    (lambda station: None, ["--date", "2028-01-15"], "no active split has a log", 2),
    (remove("VELKLT.INI"), CHECK, "there are no settings", 2),
    (make_folder("VELKLT.INI"), CHECK, "is a directory, a pipe or a device", 2),
    (make_folder("VELMAR.INI"), CHECK, "is a directory, a pipe or a device", 2),
    (make_folder("audio/carts 1/Audwall.ini"), CHECK, "is a directory, a pipe or a device", 2),
    (write("VELKLT.INI", b";" * (16 * 2**20 + 1)), CHECK, "is larger than 16 MiB", 2),
    (write("VELMAR.INI", b""), CHECK, "10 locations of the AudioWall have not been set", 2),
    (edit("audio/carts 1/Audwall.ini", "NoCarts=4000", "NoCarts=0"), CHECK,
     "leaves no part in use", 2),
    (edit("VELKLT.INI", "ActiveSplits=5", "ActiveSplits=11"), CHECK, "is outside 1 to 10", 2),
    (remove("audio"), CHECK, "6 locations of the AudioWall have not been set", 2),
    (remove("audio/carts 1/Carts1.lst"), CHECK, "Part 1 of the AudioWall has not been found", 2),
    (remove("audio/carts 3"), CHECK, "can't be read: ", 2),
    (make_folder("audio/carts 3/Carts3.lst"), CHECK + ["--create-missing"], "Path/File access", 2),
    (remove("logs/Coast"), CHECK, "no log for 2027-01-15: split 4", 1),
    (write("logs/Coast/150127CST.LOG", b""), CHECK, "an empty log for", 1),
    (write("logs/Coast/150127CST.LOG", b"\r\n\r\n"), CHECK, "no advert for", 1),
    (stopping_log, CHECK, "Run-time error 30009", 2),
    (double_folder, CHECK, "fits two entries", 1),
    (double_settings, CHECK, "fits two entries", 1),
    (double_logs, CHECK, "fits two entries", 1),
    (lambda station: None, CHECK + ["--output", "{station}\\nowhere\\x.csv"], "could not be written", 2),
    (lambda station: None, CHECK + ["--output", "{station}/audio"], "could not be written", 2),
    (lambda station: None, ["show", "--split", "4", "--date", "2028-01-15"], "no log for split 4", 2),
    (stopping_log, ["show", "--split", "4"] + CHECK, "Run-time error 30009", 2),
    (remove("audio/carts 3"), ["cart", "2500"], "could not be found", 0),
    (lambda station: None, ["sample", "{station}/SAMPLE.TXT/x"], "can't be made", 2),
    (remove("SAMPLE.TXT"), ["sample", "{station}"], "holds the settings of a station", 2),
    (lambda station: None, ["sample", "{station}\\a" + "/b" * 110], "too long for the settings", 2),
    (make_folder("logs/Coast/150127CST.LOG"), ["sample", "{station}"] + CHECK, "could not be written",
     2),
)


class Bench:
    def __init__(self, programs, folder):
        self.logcheck = os.path.join(programs, "logcheck")
        self.folder = pathlib.Path(folder)
        self.station = self.folder / "station"
        self.wrong = []
        self.languages = [{"LC_ALL": "C"}, self.german()]

    def german(self):
        """A German system, made for this test."""
        place = self.folder / "locales"
        place.mkdir()
        subprocess.run(["localedef", "-i", "de_DE", "-f", "UTF-8", "--no-archive",
                        str(place / "de_DE.UTF-8")], check=True, capture_output=True)
        german = {"LC_ALL": "de_DE.UTF-8", "LANGUAGE": "de", "LOCPATH": str(place)}
        month = subprocess.run(["date", "-d", DATE, "+%B"], env=os.environ | german, check=True,
                               capture_output=True).stdout
        assert month == b"Januar\n", month
        return german

    def run(self, arguments, language):
        command = [self.logcheck] if arguments[0] == "sample" else [
            self.logcheck, "--settings", str(self.station)]
        done = subprocess.run(command + [word.replace("{station}", str(self.station))
                                         for word in arguments],
                              capture_output=True, check=False, env=os.environ | language)
        return done.returncode, done.stdout, done.stderr.decode()

    def do(self, change, arguments, words, code):
        shutil.rmtree(self.station, ignore_errors=True)
        subprocess.run([self.logcheck, "sample", str(self.station), "--date", DATE], check=True)
        change(self.station)
        forms = ["text", "json", "csv"] if arguments[0] == "--date" else [None]
        for form in forms:
            asked = arguments + (["--format", form] if form else [])
            answers = [self.run(asked, language) for language in self.languages]
            self.look_at(asked, form or "text", answers, words, code)

    def look_at(self, arguments, form, answers, words, code):
        exit_code, output, errors = answers[0]
        text = errors + said.text_of(form, output)
        if exit_code != code:
            self.wrong.append(f"{arguments}: code {exit_code}, not {code}: {errors}")
        if words not in text and form == "text":
            self.wrong.append(f"{arguments}: {words!r} is not in {text}")
        self.wrong += [f"{arguments}: {path}" for path in said.mixed_paths(text)]
        moment = re.compile(b'"checkedAt": "[^"]*"')
        if len({(one[0], moment.sub(b"", one[1]), one[2]) for one in answers}) != 1:
            self.wrong.append(f"{arguments}: not the same in German: {answers}")


def main():
    with tempfile.TemporaryDirectory() as folder:
        bench = Bench(sys.argv[1], folder)
        for case in CASES:
            bench.do(*case)
        print("\n".join(bench.wrong + [f"{len(CASES)} cases"]))
        return 1 if bench.wrong else 0


if __name__ == "__main__":
    sys.exit(main())
