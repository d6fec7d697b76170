"""Reads the cart store for the oracle, by rules of its own."""

import os
import stat
import struct

import logs

RECORD = 300
PART = 1000
BLANK = (b" " * 60 + b"\0" * 10 + b" " * 90 + b"\0" * 110 +
         struct.pack("<5f", 0, -1, 0, 0, -1) + b"\0" * 10)


class NotReady(Exception):
    """The store can't be opened, or is not what a check may go on with."""


class Unreadable(Exception):
    """A cart is in the store, and can't be read."""


class Disk:
    """What the user who runs the check can see."""

    def __init__(self, root, plain):
        self.root = root
        self.plain = plain  # an ordinary user; otherwise root, who may do everything

    def find(self, path):
        """A station's path as one of this system, its names found in any letter case."""
        path = path.replace("\\", "/")
        if os.path.lexists(path):
            return path
        found = "/"
        for name in path.split("/"):
            if not name or os.path.lexists(os.path.join(found, name)):
                found = os.path.join(found, name)
                continue
            entries = os.listdir(found) if os.path.isdir(found) else []
            same = [entry for entry in entries if entry.lower() == name.lower()]
            found = os.path.join(found, same[0] if same else name)
        return found

    def may_enter(self, path):
        if not self.plain:
            return True
        folder = os.path.dirname(path)
        while len(folder) >= len(self.root):
            if os.path.isdir(folder) and not os.stat(folder).st_mode & 0o001:
                return False
            folder = os.path.dirname(folder)
        return True

    def length(self, path):
        """Of a regular file; -1 for all else."""
        if not self.may_enter(path):
            return -1
        try:
            facts = os.stat(path)
        except OSError:
            return -1
        return facts.st_size if stat.S_ISREG(facts.st_mode) else -1

    def readable(self, path):
        return self.length(path) >= 0 and (not self.plain or os.stat(path).st_mode & 0o004 != 0)

    def read(self, path):
        with open(path, "rb") as file:
            return file.read()

    def settings(self, path):
        """The keys of a settings file; none of one that is missing. A file that is there and can't be
        read is NotReady."""
        if not os.path.lexists(path) and self.may_enter(path):
            return {}
        if not self.readable(path):
            raise NotReady(path)
        return logs.profile(path)


class Store:
    def __init__(self, disk, keys, create_missing=False):
        self.disk = disk
        self.create_missing = create_missing
        self.paths = [keys.get(("FILELOCATIONS", f"CARTS{part}"), "") for part in range(1, 12)]
        self.own_lists = logs.number_of(keys, "Audio", "UseIndividualCartListFiles", 0) != 0
        about = disk.settings(disk.find(self.paths[0] + "/Audwall.ini"))
        self.carts = logs.number_of(about, "Audiowall", "NoCarts", 9999)
        self.parts = self.part_of(self.carts)
        self.missing = set()  # parts without their folder
        self.open()
        self.known = {}  # the list files by part
        self.lengths = {}  # the answers by cart

    @staticmethod
    def part_of(cart):
        return 11 if cart < 0 or cart > 10000 else (cart + PART - 1) // PART

    def list_file(self, part):
        return self.disk.find(self.paths[part - 1] + f"/Carts{part}.lst")

    def open(self):
        in_use = range(1, self.parts + 1)
        if any(not self.paths[part - 1].strip(" ") for part in in_use):
            raise NotReady("a part without a location")
        # A file of that name passes for the folder, in which the list file is then missing.
        self.missing = {part for part in in_use
                        if not os.path.exists(self.disk.find(self.paths[part - 1]))}
        if len(self.missing) == self.parts:
            raise NotReady("no part has its folder")
        for part in in_use:
            there = part in self.missing or self.disk.length(self.list_file(part)) >= 0
            if not there and not self.create_missing:
                raise NotReady(f"part {part} has no list file")

    def is_made(self, part):
        """Whether the check makes the list file."""
        path = self.list_file(part)
        return (self.create_missing and not self.disk.plain and not os.path.lexists(path) and
                os.path.isdir(os.path.dirname(path)))

    def has_list(self, part):
        return self.disk.readable(self.list_file(part)) or self.is_made(part)

    def unreadable_parts(self):
        return [part for part in range(1, self.parts + 1)
                if part not in self.missing and not self.has_list(part)]

    def filled(self, part):
        """The list file as it is once a short one has been filled up with blank records."""
        data = b"" if self.is_made(part) else self.disk.read(self.list_file(part))
        capacity = self.carts - (part - 1) * PART if part == self.parts else PART
        if self.disk.plain or not len(data) / RECORD < capacity:
            return data
        first = logs.whole(len(data) / RECORD + 1)
        if first > capacity:
            return data
        data = data[:(first - 1) * RECORD].ljust((first - 1) * RECORD, b"\0")
        return data + BLANK * (capacity - first + 1)

    def record(self, cart):
        part = self.part_of(cart)
        if part in self.missing:
            raise Unreadable(cart)
        if self.own_lists:
            own = self.disk.find(self.paths[part - 1] + f"/VEL{cart:05}.LST")
            if self.disk.length(own) > 0:
                if not self.disk.readable(own):
                    raise Unreadable(cart)
                return self.disk.read(own)[:RECORD]
        if not self.has_list(part):
            raise Unreadable(cart)
        if part not in self.known:
            self.known[part] = self.filled(part)
        at = (cart - (part - 1) * PART - 1) * RECORD
        return self.known[part][at:at + RECORD]

    def audio(self, cart):
        """The length in seconds of a cart with audio, or None."""
        if cart < 1 or cart > self.carts:
            return None
        if cart not in self.lengths:
            self.lengths[cart] = self.read_length(cart)
        return self.lengths[cart]

    def read_length(self, cart):
        record = self.record(cart)
        record += BLANK[len(record):]
        length, total, _, end, play = struct.unpack("<5f", record[270:290])
        if not (end > 0 and play > 0):
            play = total
        return length if total != -1 and play > 0 else None
