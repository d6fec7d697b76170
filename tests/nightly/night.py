"""What the tests of the nightly check share: a home with a station in it, the programs, a stand-in for what
sends letters, and an ordinary user to run it all."""

import datetime
import email.parser
import email.policy
import os
import pathlib
import re
import shlex
import shutil
import subprocess
import tempfile

TEMPLATES = pathlib.Path(__file__).resolve().parent.parent.parent / "packaging/nightly"
PLAIN_USER = 65534
STATION = "Larkfield Radio"


class Home:
    """A home with blanks in its path, and the sample station in ~/stations/NAME."""

    def __init__(self, programs):
        self.place = tempfile.TemporaryDirectory(prefix="logchecker night ")
        self.home = pathlib.Path(self.place.name) / "traffic desk"
        self.bin = self.home / "bin"
        self.bin.mkdir(parents=True)
        for program in (pathlib.Path(programs) / "logcheck", TEMPLATES / "logcheck-mail"):
            shutil.copy(program, self.bin)
        self.letter = self.home / "sent/letter"
        self.letter.parent.mkdir()
        self.stand_in("sendmail")
        self.environment = {"HOME": str(self.home), "PATH": f"{self.bin}:/usr/bin:/bin",
                            "TZ": os.environ.get("TZ", ""), "TMPDIR": str(self.home),
                            "LOGCHECK_MAILER": str(self.bin / "sendmail")}
        self.days = set()

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.place.cleanup()

    def stand_in(self, name):
        """Keeps its arguments and what it got."""
        self.program(name, f'printf "%s\\n" "$@" >"{self.letter}.arguments"\ncat >"{self.letter}"')

    def program(self, name, script):
        path = self.bin / name
        path.write_text(f"#!/bin/sh\n{script}\n", encoding="utf-8")
        path.chmod(0o755)

    def station(self, name=STATION):
        """The sample, with logs for as long as a test may take over midnight."""
        folder = self.home / "stations" / name
        today = datetime.date.today()
        subprocess.run([self.bin / "logcheck", "sample", folder, "--date", today.isoformat(), "--days",
                        "3"], check=True, stdout=subprocess.DEVNULL)
        self.days = {today + datetime.timedelta(days=n) for n in (1, 2)}
        return folder

    def run(self, command, environment=None, cwd=None):
        """As somebody without further rights, who owns the home."""
        self.letter.unlink(missing_ok=True)
        more = {}
        if os.geteuid() == 0:
            for path in (self.home.parent, *self.home.parent.rglob("*")):
                os.chown(path, PLAIN_USER, PLAIN_USER, follow_symlinks=False)
            more = {"user": PLAIN_USER, "group": PLAIN_USER, "extra_groups": []}
        return subprocess.run(list(map(str, command)), cwd=cwd or self.home, check=False, text=True,
                              env={**self.environment, **(environment or {})}, capture_output=True,
                              stdin=subprocess.DEVNULL, timeout=120, **more)

    def sent(self):
        """The letter that was sent, None without one."""
        if not self.letter.exists():
            return None
        return email.parser.BytesParser(policy=email.policy.default).parsebytes(
            self.letter.read_bytes())

    def is_tomorrow(self, text):
        return text in {day.isoformat() for day in self.days}


def make_clean(station):
    """One split alone has nothing to differ from."""
    set_key(station / "VELKLT.INI", "NumberActiveSplits", "1")


def make_uncheckable(station):
    for log in (station / "logs").rglob("*"):
        if log.is_file():
            log.unlink()


def set_key(path, key, value):
    text = path.read_text(encoding="cp1252")
    changed = re.sub(rf"^{key}=.*$", f"{key}={value}", text, flags=re.MULTILINE)
    assert changed != text, key
    path.write_text(changed, encoding="cp1252", newline="")


class Unit:
    """A unit's lines, and what its service manager makes of them for one instance."""

    def __init__(self, text, instance, home, configuration):
        self.lines = [line.split("=", 1) for line in text.splitlines()
                      if "=" in line and not line.startswith("#")]
        self.specifiers = {"%i": instance, "%h": str(home), "%E": str(configuration), "%%": "%"}
        self.home = home

    def values(self, key):
        return [self.specified(value) for name, value in self.lines if name == key]

    def value(self, key):
        values = self.values(key)
        assert len(values) == 1, (key, values)
        return values[0]

    def specified(self, text):
        unknown = [one for one in re.findall(r"%.", text) if one not in self.specifiers]
        assert not unknown, unknown
        return re.sub(r"%.", lambda one: self.specifiers[one.group()], text)

    def environment(self):
        variables = {}
        for value in self.values("Environment"):
            variables.update(word.split("=", 1) for word in shlex.split(value))
        for value in self.values("EnvironmentFile"):
            path = pathlib.Path(value.removeprefix("-"))
            if path.exists() or not value.startswith("-"):
                variables.update(environment_file(path.read_text(encoding="utf-8")))
        return variables

    def command(self, variables):
        """The words of the command line: $NAME alone is split at blanks, ${NAME} stays one."""
        words = []
        for word in shlex.split(self.value("ExecStart")):
            alone = re.fullmatch(r"\$(\w+)", word)
            if alone:
                words += variables.get(alone.group(1), "").split()
            else:
                words.append(re.sub(r"\$\{(\w+)\}", lambda name: variables.get(name.group(1), ""),
                                    word))
        return words

    def folder(self):
        value = self.value("WorkingDirectory")
        return self.home if value == "~" else pathlib.Path(value)


def environment_file(text):
    lines = [line for line in text.splitlines() if line and line[0] not in "#;"]
    pairs = dict(line.split("=", 1) for line in lines)
    return {name: value[1:-1] if value[:1] == '"' else value for name, value in pairs.items()}
