"""A build of its own, in which each room is a shared library: to try a changed source, one file is
compiled and one library linked, and every program of the build runs with it."""

import dataclasses
import json
import os
import pathlib
import re
import resource
import shlex
import shutil
import subprocess
import threading
import time

ROOMS = ("platform common dialogs printing notes cartstore splitlogs cartbrowser checking shell sample "
         "headless").split()
# What a person does with whole programs, by the room of the windows concerned.
DESKTOP = {"cartbrowser": ["cart_browser"], "notes": ["cart_browser"], "printing": ["print"],
           "shell": ["first_run", "display"]}
# Endurance: a minute of rounds that look for leaks, for what a killed process leaves, and for what each
# failing call does.
PASSED_OVER = ("Soak.*:KillTest.*:TwoInstances.*:DesktopWithFailures.*:*.OneLineOf256MiB*:"
               "*.AFileOfNothingBut*:*.ALogOfMoreThanAMillionRows*:"
               "*.AStationOfAnySizeThatIsTakenCanBeChecked:*.ASettingsFileOf16MiB*")
MEMORY = 6 << 30  # bytes that a program of the tests may take
OPTIONS = ("-DBUILD_SHARED_LIBS=ON", "-DCMAKE_LINK_DEPENDS_NO_SHARED=ON")


def halves(file):
    return "windows" if "/ui/" in file else "plain"


def run(command, **options):
    return subprocess.run(command, capture_output=True, text=True, check=False, **options)


def must(command, **options):
    done = run(command, **options)
    if done.returncode != 0:
        raise SystemExit(f"{shlex.join(map(str, command))}:\n{done.stdout}{done.stderr}")
    return done.stdout


@dataclasses.dataclass
class Program:
    """A program of tests. `seconds` is what it takes with nothing changed, once that is known."""
    name: str
    command: list
    seconds: float = 0

    @property
    def limit(self):
        return 10 * self.seconds + 20


class Bench:
    """`here` is the source tree, which is only read: it is copied first."""

    def __init__(self, here):
        self.here = here
        self.tree = here / "build/mutants"
        self.build = self.tree / "build/debug"
        self.programs = {}
        self.commands = {}
        self.links = {}
        self.lock = threading.Lock()

    def prepare(self):
        self.copy()
        options = list(OPTIONS)
        if shutil.which("ld.lld"):
            options += [f"-DCMAKE_{kind}_LINKER_FLAGS=-fuse-ld=lld" for kind in ("EXE", "SHARED")]
        if shutil.which("ccache"):
            options.append("-DCMAKE_CXX_COMPILER_LAUNCHER=ccache")
        must(["cmake", "--preset", "debug", *options], cwd=self.tree)
        must(["cmake", "--build", "--preset", "debug", "--", "--quiet"], cwd=self.tree)
        for entry in json.loads((self.build / "compile_commands.json").read_text()):
            file = pathlib.Path(entry["file"])
            self.commands[str(file.relative_to(self.tree))] = shlex.split(entry["command"])
        self.programs = {program.name: program for program in self.all_programs()}

    def copy(self):
        """Brings the copy of the sources up to date; what stayed the same keeps its time stamp."""
        listed = must(["git", "ls-files", "-co", "--exclude-standard"], cwd=self.here).splitlines()
        wanted = {file for file in listed if (self.here / file).is_file()}
        for file in wanted:
            target = self.tree / file
            content = (self.here / file).read_bytes()
            if not target.is_file() or target.read_bytes() != content:
                target.parent.mkdir(parents=True, exist_ok=True)
                shutil.copy(self.here / file, target)
        for folder in {pathlib.PurePath(file).parts[0] for file in wanted if "/" in file}:
            for target in (self.tree / folder).rglob("*"):
                if target.is_file() and str(target.relative_to(self.tree)) not in wanted:
                    if "__pycache__" not in target.parts:
                        target.unlink()

    def all_programs(self):
        programs = self.build / "bin"
        for kind in ("tests", "ui_tests"):
            for room in ROOMS:
                program = programs / f"{room}_{kind}"
                if program.exists():
                    yield Program(program.name, [program, "--gtest_fail_fast", "--gtest_brief=1",
                                                 f"--gtest_filter=-{PASSED_OVER}"])
        for work in sorted({"day"}.union(*DESKTOP.values())):
            yield Program(work, ["python3", self.tree / f"tests/desktop/{work}_test.py", programs])

    def used_by(self, room):
        """The rooms that use a room, itself first, in the order of the house."""
        users = {room}
        for above in ROOMS[ROOMS.index(room) + 1:]:
            for lists in self.tree.glob(f"{above}/**/CMakeLists.txt"):
                uses = re.search(r"USES ([\w\s]+)\)", lists.read_text())
                if uses and users & set(uses[1].split()):
                    users.add(above)
        return [room] + [above for above in ROOMS if above in users and above != room]

    def that_see(self, file, near):
        """The programs that see a source: the room's own, those of the rooms above, the day's work. `near`
        leaves the rooms above and the desktop out: the room's own programs."""
        room = file.split("/")[0]
        if near:
            kinds = ("tests", "ui_tests") if halves(file) == "plain" else ("ui_tests",)
            return [self.programs[name] for name in (f"{room}_{kind}" for kind in kinds) if name in self.programs]
        names = [f"{above}_ui_tests" for above in self.used_by(room)]
        if halves(file) == "plain":
            names = [f"{above}_tests" for above in self.used_by(room)] + names
        elif room in DESKTOP:
            names += DESKTOP[room]
        return [self.programs[name] for name in [*names, "day"] if name in self.programs]

    def measure(self, program):
        """Runs a program for the first time, with nothing changed, and keeps the time it takes."""
        with self.lock:
            if program.seconds:
                return
            begin = time.monotonic()
            code, output = self.run(program, self.tree, 600)
            program.seconds = time.monotonic() - begin
            if code != 0:
                raise SystemExit(f"{program.name} fails with nothing changed:\n{output[-3000:]}")

    def make(self, file, source, scratch):
        """Compiles and links a changed source into a folder. False when it does not compile."""
        shutil.rmtree(scratch, ignore_errors=True)
        changed = scratch / pathlib.PurePath(file).name
        scratch.mkdir(parents=True)
        changed.write_text(source)
        command = self.commands[file]
        built, made = command[command.index("-o") + 1], str(scratch / "changed.o")
        compile_ = [{built: made, str(self.tree / file): str(changed)}.get(word, word) for word in command]
        if run([*compile_, "-w", "-g0"], cwd=self.build).returncode != 0:
            return False
        folder = str(pathlib.PurePath(file).parent)
        folder = "platform" if folder.startswith("platform/") else folder
        library = f"{folder}/liblogchecker_{folder.replace('/', '_')}.so"
        if library not in self.links:
            line = must(["ninja", "-t", "commands", "-s", library], cwd=self.build).splitlines()[-1]
            self.links[library] = shlex.split(line.removeprefix(": && ").removesuffix(" && :"))
        words = {built: made, library: str(scratch / pathlib.PurePath(library).name)}
        must([words.get(word, word) for word in self.links[library]], cwd=self.build)
        return True

    def run(self, program, libraries, limit):
        """Runs a program with the libraries of a folder before the build's own, in a place where it can
        harm nothing: the disk can't be written, /tmp is its own, and whatever it starts ends with it.
        Gives the exit code, or None when the time is up, and what it printed."""
        command = ["bwrap", "--ro-bind", "/", "/", "--dev", "/dev", "--proc", "/proc", "--tmpfs", "/tmp",
                   "--unshare-pid", "--die-with-parent", "--dir", "/tmp/home", "--chdir", "/tmp", "--",
                   *map(str, program.command)]
        environment = dict(os.environ, LD_LIBRARY_PATH=str(libraries), HOME="/tmp/home", TMPDIR="/tmp",
                           QT_QPA_PLATFORM="offscreen")
        try:
            done = subprocess.run(
                command, env=environment, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                stderr=subprocess.STDOUT, text=True, errors="replace", timeout=limit, check=False,
                preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_AS, (MEMORY, MEMORY)))
        except subprocess.TimeoutExpired:
            return None, ""
        return done.returncode, done.stdout
