"""Ways in which a station breaks, or changes without breaking. Each takes the copy of a station and
a source of random numbers."""

import math
import os
import re
import struct

import store

SILENT = (3950, 3960, 3963, 900)
NO_CART = ("       0", "        ", "CARTNOXX", "00004001", "99999999", "-0000005", "9E999999")
TIMES = ("00:00:10", "00:00:59", "24:00:00", "24:00:01", "24:30:00", "25:10:00", "xx:yy:zz",
         "        ", "12:34:56", "12:34:99", " 6: 5:00", "-1:00:00", "23:59:60")


# Logs. A break is a list of lines; a log is a list of breaks.

def logs_of(copy):
    return copy.files("logs", (".log", ".txt"))


def some_logs(copy, rng):
    """One log, or those of a day in all splits, since what all share does not differ."""
    logs = logs_of(copy)
    if not logs or rng.random() < 0.6:
        return [rng.choice(logs)] if logs else []
    digits = rng.choice(("0115", "1501")), rng.choice(("0116", "1601"))
    day = rng.choice((("0115", "1501"), ("0116", "1601"), digits))
    return [log for log in logs if any(part in os.path.basename(log) for part in day)]


def split_up(data):
    blocks = re.split(rb"(?:\r?\n){2,}", data.rstrip(b"\r\n"))
    return [[line.rstrip(b"\r") for line in block.split(b"\n")] for block in blocks if block]


def joined(blocks):
    return b"".join(b"".join(line + b"\r\n" for line in block) + b"\r\n" for block in blocks)


def on_blocks(change):
    """A breakage that changes the breaks of some logs, in each at the same places."""
    def breakage(copy, rng):
        seed = rng.random()
        for log in some_logs(copy, rng):
            blocks = split_up(copy.read(log))
            if blocks:
                change(blocks, type(rng)(seed))
                copy.put(log, joined(blocks))
    breakage.__name__ = change.__name__
    return breakage


def on_bytes(change):
    def breakage(copy, rng):
        seed = rng.random()
        for log in some_logs(copy, rng):
            copy.put(log, change(copy.read(log), type(rng)(seed)))
    breakage.__name__ = change.__name__
    return breakage


def with_time(line, time):
    time = time.encode()
    return time[:5] + line[5:] if line[5:6] == b"|" else time + line[8:]


def with_cart(line, cart):
    if line[5:6] == b"|":
        return line[:11] + cart.encode()[-4:] + line[15:]
    return line[:14] + cart.encode()[-8:].rjust(8) + line[22:]


def set_time(block, time):
    block[:] = [with_time(line, time) for line in block]


@on_blocks
def first_break_at_midnight(blocks, rng):
    set_time(blocks[0], "00:00:00")


@on_blocks
def break_at_odd_time(blocks, rng):
    set_time(rng.choice(blocks), rng.choice(TIMES))


@on_blocks
def doubled_minute(blocks, rng):
    at = rng.randrange(len(blocks))
    blocks.insert(at, list(blocks[at]))


@on_blocks
def minute_of_another(blocks, rng):
    set_time(rng.choice(blocks), rng.choice(blocks)[0][:5].decode() + ":30")


@on_blocks
def break_out_of_order(blocks, rng):
    blocks.insert(rng.randrange(len(blocks)), blocks.pop(rng.randrange(len(blocks))))


@on_blocks
def whole_log_out_of_order(blocks, rng):
    rng.shuffle(blocks)


@on_blocks
def missing_break(blocks, rng):
    del blocks[rng.randrange(len(blocks))]


@on_blocks
def break_without_adverts_but_one(blocks, rng):
    del rng.choice(blocks)[1:]


@on_blocks
def missing_advert(blocks, rng):
    block = rng.choice(blocks)
    del block[rng.randrange(len(block))]


@on_blocks
def further_advert(blocks, rng):
    block = rng.choice(blocks)
    block.append(with_cart(block[0], f"{rng.choice((1500, 2700, 3901, 3911)):08}"))


@on_blocks
def silent_advert(blocks, rng):
    block = rng.choice(blocks)
    block.insert(rng.randrange(len(block) + 1), with_cart(block[0], f"{rng.choice(SILENT):08}"))


@on_blocks
def advert_without_a_cart(blocks, rng):
    block = rng.choice(blocks)
    at = rng.randrange(len(block))
    block[at] = with_cart(block[at], rng.choice(NO_CART))


@on_blocks
def other_chain(blocks, rng):
    block = rng.choice(blocks)
    code = rng.choice((b"EST ", b"wst ", b"XXX ", b"    "))
    for at in range(len(block)):
        first = 6 if block[at][5:6] == b"|" else 9
        block[at] = block[at][:first] + code + block[at][first + 4:]


@on_blocks
def all_of_another_chain(blocks, rng):
    for block in blocks:
        for at, line in enumerate(block):
            first = 6 if line[5:6] == b"|" else 9
            block[at] = line[:first] + b"ZZZ " + line[first + 4:]


@on_blocks
def long_log(blocks, rng):
    blocks += [list(block) for block in blocks * rng.randrange(2, 40)]


@on_blocks
def breaks_run_together(blocks, rng):
    if len(blocks) > 1:
        at = rng.randrange(len(blocks) - 1)
        blocks[at:at + 2] = [blocks[at] + blocks[at + 1]]


@on_bytes
def empty_log(data, rng):
    return b""


@on_bytes
def blank_log(data, rng):
    return rng.choice((b"\r\n", b"   \n \n", b"\n" * 50, b"x"))


@on_bytes
def log_cut(data, rng):
    return data[:rng.randrange(len(data) + 1)]


@on_bytes
def log_cut_between_lines(data, rng):
    lines = data.split(b"\n")
    return b"\n".join(lines[:rng.randrange(len(lines))]) + b"\n"


@on_bytes
def log_without_last_blank_line(data, rng):
    return data.rstrip(b"\r\n") + rng.choice((b"", b"\n", b"\r\n", b" \r\n"))


@on_bytes
def log_with_other_line_ends(data, rng):
    return data.replace(b"\r\n", b"\n")


@on_bytes
def log_with_blank_lines(data, rng):
    return rng.choice((b"\r\n\r\n", b"  \r\n")) + data.replace(b"\r\n\r\n", b"\r\n   \r\n\r\n")


@on_bytes
def log_with_a_wrong_character(data, rng):
    if not data:
        return data
    at = rng.randrange(len(data))
    return data[:at] + bytes([rng.randrange(32, 127)]) + data[at + 1:]


def log_missing(copy, rng):
    for log in some_logs(copy, rng):
        copy.remove(log)


def log_is_no_file(copy, rng):
    for log in some_logs(copy, rng):
        copy.remove(log)
        os.mkfifo(log) if rng.random() < 0.3 else os.mkdir(log)


def log_shut(copy, rng):
    for log in some_logs(copy, rng):
        copy.shut(log)


def logs_swapped(copy, rng):
    logs = logs_of(copy)
    if len(logs) > 1:
        one, two = rng.sample(logs, 2)
        first, second = copy.read(one), copy.read(two)
        copy.put(one, second)
        copy.put(two, first if rng.random() < 0.5 else second)


def log_under_another_date(copy, rng):
    for log in some_logs(copy, rng):
        folder, name = os.path.split(log)
        other = os.path.join(folder, re.sub("15|16", "17", name, count=1))
        if os.path.isfile(log):
            copy.put(other, copy.read(log))
            copy.remove(log)


# Settings.

def change_key(copy, name, key, text):
    path = copy.path(name)
    if not os.path.isfile(path):
        return
    lines = copy.read(path).decode("latin-1").split("\r\n")
    kept = [line for line in lines if line.split("=")[0].upper() != key.upper()]
    at = next((i for i, line in enumerate(lines) if line.split("=")[0].upper() == key.upper()), None)
    if at is not None and text is not None:
        kept.insert(at, f"{key}={text}")
    copy.put(path, "\r\n".join(kept).encode("latin-1"))


def number_of_splits(copy, rng):
    text = rng.choice(("0", "1", "2", "2", "3", "3", "4", "4", "5", "6", "10", "11", "-1", "abc", "0x3",
                       " 2 ", "'3'", "65538", None))
    change_key(copy, "VELKLT.INI", "NumberActiveSplits", text)


def tolerance(copy, rng):
    text = rng.choice(("0", "100", "299", "300", "301", "1500", "60000", "600000", "-1",
                       "2147483647", "none", None))
    change_key(copy, "VELKLT.INI", "BreakDifferenceMS", text)


def split_without_settings(copy, rng):
    split = rng.choice("12345")
    for key in ("SplitName", "LogSourceDirectory", "DateFormat", "Extension", "PreSuffix", "Suffix",
                "LogTXChainCode"):
        change_key(copy, "VELKLT.INI", key + split, None)


def key_of_a_split(copy, rng):
    key, texts = rng.choice((
        ("LogTXChainCode", ("", "EST", "wst", "LRK", "NONE")),
        ("DateFormat", ("YYMMDD", "ddmmyy", "YYYYMMDD", "YY-MM-DD", None)),
        ("Suffix", ("0", "1", "-1", "yes")), ("PreSuffix", ("", "cst", "HIL")),
        ("Extension", ("LOG", "txt", "", None)), ("SplitName", ("North-South", None)),
        ("LogSourceDirectory", ("", "nowhere", "Z:\\logs", None)),
    ))
    change_key(copy, "VELKLT.INI", key + rng.choice("12345"), rng.choice(texts))


def folder_of_another_split(copy, rng):
    folder = rng.choice(("Larkfield", "Easton and Weston", "COAST", "hill country"))
    change_key(copy, "VELKLT.INI", "LogSourceDirectory" + rng.choice("12345"),
               copy.path("logs", folder))


def any_settings(rng):
    return rng.choice(("VELKLT.INI", "VELMAR.INI", os.path.join("audio", "carts 1", "Audwall.ini")))


def settings_cut(copy, rng):
    path = copy.path(any_settings(rng))
    if os.path.isfile(path):
        data = copy.read(path)
        copy.put(path, data[:rng.randrange(len(data) + 1)])


def settings_missing(copy, rng):
    copy.remove(copy.path(any_settings(rng)))


def settings_empty(copy, rng):
    path = copy.path(any_settings(rng))
    if os.path.isfile(path):
        copy.put(path, rng.choice((b"", b"\r\n", b"; nothing\r\n")))


def settings_are_no_file(copy, rng):
    path = copy.path(any_settings(rng))
    if os.path.isdir(os.path.dirname(path)):
        copy.remove(path)
        os.mkdir(path)


def settings_shut(copy, rng):
    path = copy.path(any_settings(rng))
    if os.path.isfile(path):
        copy.shut(path)


def settings_swapped(copy, rng):
    one, two = copy.path("VELKLT.INI"), copy.path("VELMAR.INI")
    if os.path.isfile(one) and os.path.isfile(two):
        first, second = copy.read(one), copy.read(two)
        copy.put(one, rng.choice((second, first)))
        copy.put(two, first)


def settings_in_other_words(copy, rng):
    for name in ("VELKLT.INI", "VELMAR.INI"):
        if os.path.isfile(copy.path(name)):
            text = copy.read(copy.path(name)).decode("latin-1")
            text = re.sub("(?m)^([A-Za-z]+[0-9]*)=", lambda key: f" {key.group(1).upper()} = ", text)
            copy.put(copy.path(name), text.replace("\r\n", "\n; as it is\n").encode("latin-1"))


# The store.

def lists_of(copy):
    return [path for path in copy.files("audio", ".lst") if "Carts" in os.path.basename(path)]


def part_folders(copy):
    folder = copy.path("audio")
    return [os.path.join(folder, name) for name in sorted(os.listdir(folder))
            if os.path.isdir(os.path.join(folder, name))] if os.path.isdir(folder) else []


def part_missing(copy, rng):
    folders = part_folders(copy)
    if folders:
        copy.remove(rng.choice(folders))


def part_without_adverts_missing(copy, rng):
    copy.remove(copy.path("audio", "carts 1", "Carts1.lst"))
    change_key(copy, "VELMAR.INI", "Carts1", copy.path("audio", "nowhere"))
    path = copy.path("audio", "nowhere")
    if not os.path.lexists(path) and rng.random() < 0.5:
        os.mkdir(path)


def first_part_gone(copy, rng):
    """No advert needs the carts of part 1, and its folder keeps the store's settings alone."""
    list_file = copy.path("audio", "carts 1", "Carts1.lst")
    if os.path.isfile(list_file):
        copy.shut(list_file)


def part_is_no_folder(copy, rng):
    folders = part_folders(copy)
    if folders:
        folder = rng.choice(folders)
        copy.remove(folder)
        copy.put(folder, b"")


def part_shut(copy, rng):
    folders = part_folders(copy)
    if folders:
        os.chmod(rng.choice(folders), 0)


def location_of_a_part(copy, rng):
    text = rng.choice(("", "   ", copy.path("nowhere"), copy.path("audio", "carts 2"),
                       copy.path("AUDIO", "CARTS 3"), None))
    change_key(copy, "VELMAR.INI", "Carts" + rng.choice(("1", "2", "3", "4", "5")), text)


def on_list(change):
    def breakage(copy, rng):
        lists = lists_of(copy)
        if lists:
            change(copy, rng.choice(lists), rng)
    breakage.__name__ = change.__name__
    return breakage


@on_list
def list_missing(copy, path, rng):
    copy.remove(path)


@on_list
def list_empty(copy, path, rng):
    copy.put(path, b"")


@on_list
def list_is_no_file(copy, path, rng):
    copy.remove(path)
    os.mkdir(path)


@on_list
def list_shut(copy, path, rng):
    copy.shut(path)


@on_list
def list_cut(copy, path, rng):
    data = copy.read(path)
    copy.put(path, data[:rng.randrange(len(data) + 1)])


@on_list
def list_cut_near_its_end(copy, path, rng):
    copy.put(path, copy.read(path)[:-rng.randrange(1, 40 * store.RECORD)])


@on_list
def list_longer(copy, path, rng):
    copy.put(path, copy.read(path) + b"\xff" * rng.randrange(1000))


@on_list
def lists_swapped(copy, path, rng):
    other = rng.choice(lists_of(copy))
    first, second = copy.read(path), copy.read(other)
    copy.put(path, second)
    copy.put(other, first)


@on_list
def list_of_zeros(copy, path, rng):
    copy.put(path, b"\0" * len(copy.read(path)))


@on_list
def odd_records(copy, path, rng):
    """Some carts have figures that no cart should have."""
    data = bytearray(copy.read(path))
    numbers = len(data) // store.RECORD
    for _ in range(rng.choice((1, 10, 300)) if numbers else 0):
        at = rng.randrange(numbers) * store.RECORD + 270
        figures = rng.choice(((math.nan, 10, 0, 10, 10), (10, math.nan, 0, 0, math.nan),
                              (10, 10, 0, 10, math.nan), (3e38, 10, 0, 10, 10), (10, -1, 0, 10, 10),
                              (100000, 10, 0, 10, 10), (-10, 10, 0, 10, 10), (0, 0, 0, 0, 0),
                              (10, 10, 0, 10, -1), (10, 0, 0, 10, -1), (math.inf, 1, 0, 1, 1),
                              (20, 20, 0, 20, math.inf), (0.3, 0.3, 0, 0.3, 0.3)))
        data[at:at + 20] = struct.pack("<5f", *figures)
    copy.put(path, bytes(data))


@on_list
def list_with_random_bytes(copy, path, rng):
    data = bytearray(copy.read(path))
    for _ in range(2000 if data else 0):
        data[rng.randrange(len(data))] = rng.randrange(256)
    copy.put(path, bytes(data))


def number_of_carts(copy, rng):
    text = rng.choice(("0", "-1", "900", "1000", "1001", "3000", "3500", "3949", "3960", "4000", "4001",
                       "5000", "10000", "12000", "many", None))
    change_key(copy, os.path.join("audio", "carts 1", "Audwall.ini"), "NoCarts", text)


def older_store(copy, rng):
    change_key(copy, os.path.join("audio", "carts 1", "Audwall.ini"), "Version",
               rng.choice(("2.5", "", None)))


def own_lists(copy, rng):
    """Carts with list files of their own, some of them broken."""
    change_key(copy, "VELMAR.INI", "UseIndividualCartListFiles", "1")
    for folder in part_folders(copy):
        part = folder[-1]
        path = os.path.join(folder, f"Carts{part}.lst")
        if not os.path.isfile(path):
            continue
        data = copy.read(path)
        for _ in range(rng.choice((1, 5, 40))):
            number = rng.randrange(1, 1001)
            record = data[(number - 1) * store.RECORD:number * store.RECORD]
            own = os.path.join(folder, f"VEL{(int(part) - 1) * 1000 + number:05}.LST")
            one_own_list(copy, own, record, rng)


def one_own_list(copy, own, record, rng):
    copy.remove(own)
    kind = rng.random()
    if kind < 0.90:
        copy.put(own, record)
    elif kind < 0.92:
        os.mkdir(own)
    elif kind < 0.95:
        copy.put(own, record[:rng.randrange(300)])
    elif kind < 0.98:
        copy.put(own, b"")
    else:
        copy.put(own, record)
        copy.shut(own)


# What breaks little comes often, so that many a station stays in order.
HARMLESS = (log_with_other_line_ends, log_with_blank_lines, log_without_last_blank_line,
            settings_in_other_words, older_store, list_longer, first_part_gone, own_lists)
BREAKAGES = tuple(
    value for name, value in sorted(globals().items())
    if callable(value) and getattr(value, "__code__", None) and
    value.__code__.co_varnames[:2] == ("copy", "rng") and
    name not in ("some_logs", "on_blocks"))
