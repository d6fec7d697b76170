"""Copies of a station that cost next to nothing: a file is shared with the original until it is
changed."""

import os
import shutil
import stat


class Copy:
    """A station below `folder`, made of links to the files of `original`."""

    def __init__(self, original, folder):
        self.folder = folder
        shutil.copytree(original, folder, copy_function=os.link)

    def path(self, *names):
        return os.path.join(self.folder, *names)

    def read(self, path):
        with open(path, "rb") as file:
            return file.read()

    def put(self, path, data):
        """Makes `data` the file, without touching the one that it is a link to."""
        self.remove(path)
        with open(path, "wb") as file:
            file.write(data)

    def remove(self, path):
        if os.path.isdir(path) and not os.path.islink(path):
            shutil.rmtree(path)
        elif os.path.lexists(path):
            os.unlink(path)

    def shut(self, path):
        """Takes every right to it away, which means something to ordinary users alone."""
        if not os.path.isdir(path):
            self.put(path, self.read(path))
        os.chmod(path, 0)

    def files(self, folder, ending=""):
        found = []
        for base, _, names in os.walk(self.path(folder)):
            found += [os.path.join(base, name) for name in names
                      if name.lower().endswith(ending) and self.is_file(os.path.join(base, name))]
        return sorted(found)

    @staticmethod
    def is_file(path):
        return os.path.lexists(path) and stat.S_ISREG(os.lstat(path).st_mode)

    def end(self):
        for base, folders, _ in os.walk(self.folder):
            for name in folders:
                os.chmod(os.path.join(base, name), 0o755)
        shutil.rmtree(self.folder)
