"""Reads settings files and advert logs for the oracle, by rules of its own."""

import datetime
import re

FIRST_DAY = datetime.date(1899, 12, 30)  # day number 0
FIRST_ROWS = 1440  # what a grid has at first, and what it grows by
MORE_ROWS = 100
END_OF_DAY = 86400
NUMBER = re.compile(r"[-+]?(?:\d+(?:\.\d*)?|\.\d+)(?:[eE][-+]?\d+)?")


class Stopped(Exception):
    """The log stops the program that loads it."""


def value(text):
    """The number at the start of a text: blanks are skipped, and no number is 0."""
    match = NUMBER.match(text.replace(" ", ""))
    return float(match.group()) if match else 0.0


def whole(number):
    """To the nearest, halves to the even one; what 32 bits can't hold is 0."""
    if abs(number) > 2**32:
        return 0
    rounded = round(number)
    return rounded if -2**31 <= rounded < 2**31 else 0


def profile(path):
    """The keys of a sectioned text file; the first of equal names wins."""
    keys, section, seen = {}, None, set()
    with open(path, encoding="latin-1", newline="") as file:
        for line in file.read().split("\n"):
            line = line.strip(" \t\r\v\f")
            if line.startswith("["):
                name = line[1:].split("]")[0].strip().upper()
                section = None if name in seen else name
                seen.add(name)
            elif section is not None and not line.startswith(";") and "=" in line:
                key, text = line.split("=", 1)
                text = text.strip()
                if len(text) > 1 and text[0] == text[-1] and text[0] in "\"'":
                    text = text[1:-1]
                keys.setdefault((section, key.strip().upper()), text)
    return keys


def number_of(keys, section, key, default):
    """A whole number as the settings have it: decimal, or hexadecimal behind 0x."""
    text = keys.get((section.upper(), key.upper()), "")
    if not text:
        return default
    match = re.match(r"\s*([-+]?)(?:0x([0-9a-fA-F]*)|(\d*))", text)
    number = int(match.group(2) or "0", 16) if match.group(2) is not None else int(
        match.group(3) or "0")
    number = (-number if match.group(1) == "-" else number) & 0xFFFFFFFF
    return number - 2**32 if number >= 2**31 else number


def log_name(keys, split, day):
    """The name of a split's log file for a date."""
    def text(key, default):
        return keys.get(("LOGFILENAME", f"{key}{split}".upper()), default).upper()
    date = text("DateFormat", "yymmdd")
    for token, digits in (("YYYY", f"{day.year:04}"), ("YY", f"{day.year % 100:02}"),
                          ("MM", f"{day.month:02}"), ("DD", f"{day.day:02}")):
        date = date.replace(token, digits)
    fixed = text("PreSuffix", "")
    behind = number_of(keys, "LogFileName", f"Suffix{split}", 0) != 0
    return (date + fixed if behind else fixed + date) + "." + text("Extension", "LOG")


def lines_of(data):
    """The lines of a log; the last character of a file that ends in no line feed is lost."""
    text = data.decode("latin-1")
    return [line.replace("\r", "") for line in text[:-1].split("\n")] if text else []


def fields(line):
    """Time in seconds, chain code and cart of a line in either form."""
    if line[5:6] == "|":
        line = line[:5] + ":00" + line[5:11] + "    " + line[11:47] + " " + line[47:]
    time = value(line[0:2]) * 3600 + value(line[3:5]) * 60 + value(line[6:8])
    return time, line[9:13].strip(" ").upper(), whole(value(line[14:22]))


class Break:
    """One break: the minute it begins at in seconds, or None where the time is none of the day."""

    def __init__(self, seconds):
        inside = 0 <= seconds <= END_OF_DAY
        self.minute = round(seconds) // 60 * 60 if inside else None
        self.carts = []

    @property
    def row_time(self):
        return self.minute or 0

    @property
    def at_midnight(self):
        return self.minute == 0


def breaks_of(data, chain_code):
    """The breaks of a log that count for a chain code. Raises Stopped where a line comes to the grid
    row just behind the last one."""
    breaks, current = [], None
    row, rows = 1, FIRST_ROWS
    for line in lines_of(data):
        if row > rows:
            rows += MORE_ROWS
        if row == rows:
            raise Stopped()
        if not line.strip(" "):
            if current is not None:
                row += 2
            current = None
            continue
        time, code, cart = fields(line)
        if chain_code and code != chain_code:
            continue
        if current is None:
            current = Break(time)
            breaks.append(current)
        current.carts.append(cart)
        row += 1
    return breaks
