"""What a check of a station has to say, worked out from what the codes mean. Nothing here is shared
with the check itself."""

import collections
import datetime
import math
import os
import struct

import logs
import store

GREEN, TO_MEND, TROUBLE = 0, 1, 2
NO_TIME = 99999


def single(number):
    """Rounded to single precision."""
    try:
        return struct.unpack("<f", struct.pack("<f", number))[0]
    except OverflowError:
        return math.copysign(math.inf, number)


class Day:
    """The answer for one day. `kinds` counts the warnings by kind and split."""

    def __init__(self, date):
        self.date = date
        self.trouble = ""
        self.no_log_yet = False
        self.kinds = collections.Counter()
        self.station_warnings = 0
        self.mismatches = []  # time in seconds, or None; the lengths by split, None for no break
        self.uncounted = set()  # indexes of mismatches that are there for a missing log alone
        self.counts = {"breaks": 0, "adverts": 0, "withoutAudio": 0}

    def code(self, accepted=()):
        if self.trouble:
            return TROUBLE
        missing_is_fine = "missing-log" in accepted
        for index in range(len(self.mismatches)):
            if not (missing_is_fine and index in self.uncounted):
                return TO_MEND
        return TO_MEND if any(kind not in accepted for kind, _ in self.kinds) else GREEN


class Station:
    """A station's folder, as an ordinary user sees it or as root does."""

    def __init__(self, folder, programs, plain, create_missing=False):
        self.folder = folder
        self.create_missing = create_missing
        self.programs = programs  # the folder of logcheck
        self.disk = store.Disk(folder, plain)

    def check(self, date, days=1, skip_missing=False):
        all_days = self.check_days(date, days)
        with_logs = [day for day in all_days if not day.no_log_yet]
        return with_logs if skip_missing and with_logs else all_days

    def check_days(self, date, days):
        dates = [date + datetime.timedelta(days=i) for i in range(days)]
        try:
            self.read_settings()
        except store.NotReady as reason:
            return [self.not_ready(day, str(reason)) for day in dates]
        return [self.check_day(day) for day in dates]

    @staticmethod
    def not_ready(date, reason):
        day = Day(date)
        day.trouble = reason
        return day

    def read_settings(self):
        path = os.path.join(self.folder, "VELKLT.INI")
        if not self.disk.length(path) > 0:
            raise store.NotReady("no settings")
        self.keys = self.disk.settings(path)
        self.splits = logs.number_of(self.keys, "General", "NumberActiveSplits", 2)
        self.tolerance = logs.number_of(self.keys, "General", "BreakDifferenceMS", 500) / 1000
        if not 1 <= self.splits <= 10:
            raise store.NotReady("number of splits")
        family = self.disk.settings(os.path.join(self.folder, "VELMAR.INI"))
        self.store = store.Store(self.disk, family, self.create_missing)
        if self.store.parts == 0:
            raise store.NotReady("no carts")

    def log_of(self, split, date):
        folder = self.keys.get(("GENERAL", f"LOGSOURCEDIRECTORY{split}"),
                               self.programs + "\\source")
        return self.disk.find(folder + "/" + logs.log_name(self.keys, split, date))

    def check_day(self, date):
        day = Day(date)
        try:
            self.compare(day, self.load(day))
        except logs.Stopped:
            day.trouble = "a log stops the check"
        except store.Unreadable as cart:
            day.trouble = f"cart {cart} can't be read"
        day.station_warnings = len({self.store.paths[part - 1] for part in self.store.missing})
        day.station_warnings += len(self.store.unreadable_parts())
        return day

    def load(self, day):
        """The breaks of each split."""
        splits, files = [], 0
        for split in range(1, self.splits + 1):
            path = self.log_of(split, day.date)
            length = self.disk.length(path)
            files += length >= 0
            breaks = []
            if length > 0:
                if not self.disk.readable(path):
                    raise logs.Stopped()
                code = self.keys.get(("LOGFILENAME", f"LOGTXCHAINCODE{split}"), "").upper()
                breaks = logs.breaks_of(self.disk.read(path), code)
            splits.append(breaks)
        if not any(splits):
            day.trouble = "no advert in any log"
            day.no_log_yet = files == 0
        return splits

    def length_of(self, one):
        total = 0.0
        for cart in one.carts:
            length = self.store.audio(cart)
            if length is not None:
                total = single(total + length)
        return total

    def look_at_adverts(self, day, splits):
        for number, breaks in enumerate(splits, 1):
            silent = sum(self.store.audio(cart) is None for one in breaks for cart in one.carts)
            day.counts["breaks"] += len(breaks)
            day.counts["adverts"] += sum(len(one.carts) for one in breaks)
            day.counts["withoutAudio"] += silent
            if silent:
                day.kinds["silent", number] += 1
            if not breaks:
                day.kinds["missing-log", number] += 1

    def compare(self, day, splits):
        if day.trouble:
            return
        self.look_at_adverts(day, splits)
        visited = self.walk(day, splits)
        for number, breaks in enumerate(splits, 1):
            seen = set()
            for one in breaks:
                if one.at_midnight:
                    day.kinds["midnight", number] = 1
                elif one.minute is None or one.minute in seen or one.minute not in visited:
                    day.kinds["passed-over", number] = 1
                seen.add(one.minute)

    def walk(self, day, splits):
        """Goes from break time to break time, and from each on to the first break of each split that
        is later. Returns the times that were compared."""
        visited, now = set(), -1
        while True:
            ahead = [next((one.row_time for one in breaks if one.row_time >= now), None)
                     for breaks in splits]
            if all(time is None for time in ahead):
                return visited
            now = min((time for time in ahead if time), default=NO_TIME)
            if now != NO_TIME:
                visited.add(now)
            self.compare_at(day, splits, now)
            now += 0.1

    def compare_at(self, day, splits, now):
        found = [next((one for one in breaks if one.row_time == now), None) for breaks in splits]
        lengths = [None if one is None else self.length_of(one) for one in found]
        if self.match(lengths):
            return
        of_logs = [length for length, breaks in zip(lengths, splits) if breaks]
        if now != NO_TIME and self.match(of_logs):
            day.uncounted.add(len(day.mismatches))
        day.mismatches.append((None if now == NO_TIME else now, lengths))

    def match(self, lengths):
        if any(length is None or not math.isfinite(length) for length in lengths):
            return False
        shortest = min([99999.0] + lengths)
        low, high = single(shortest - self.tolerance), single(self.tolerance + shortest)
        return all(low <= length <= high for length in lengths)
