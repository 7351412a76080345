#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Alters the sources one place at a time and lists what no test notices.

Each worker has a copy of the tree with a build of its own (compiler cache shared). For every alteration it rebuilds and
runs first the tests that belong to the altered file, then the other quick tests that can know of it; the first red test
ends it. An alteration that does not compile is replaced by another one of the same file. The choice of places is random
but repeatable: the seed is printed.

tests/mutation/unnoticeable.txt lists alterations that nobody can notice, one a line; path and text may hold * and ?:
    path | kind | the line's text, stripped | why
They are left out and others of the same file taken. `--again` judges only what survived the last run, `--since REV` alters
only lines that were added or changed since that commit, `--near` runs only the tests that belong to the altered file: a
first, quick judgement, whose survivors `--again` shows to the others.
"""

import argparse
import collections
import concurrent.futures
import dataclasses
import fnmatch
import json
import os
import pathlib
import queue
import random
import re
import shutil
import subprocess
import sys
import time

ROOT = pathlib.Path(__file__).resolve().parents[2]
WORK = ROOT / "build" / "mutation"
REPORT = WORK / "report.json"
UNNOTICEABLE = ROOT / "tests" / "mutation" / "unnoticeable.txt"

SOURCES = [f"{folder}/**/*.{end}" for folder in ("pgm/gfpq", "pgm/gfpdb", "pgm/gfpe", "app", "host")
           for end in ("cpp", "h", "ui")]

# Which tests to run for a file: (pattern of the path, those that belong to it, all that can know of it), the tests as
# regular expressions of ctest names. The first match counts.
ENGINE = (r"^(test_(flow_|run_|plan|image|chip|trace|connection|serprog_[^f]|prog_|sfdp_reading|new_device_runs)|"
          r"unit_programmer|gui_programmer)")
# Who reads SFDP, compares parts, or makes and copies devices.
NEW_DEVICES = (r"sfdp|new_device|part_comparison|^test_(connection|language|cli_(copy|check|guide)|"
               r"prog_(learn|connections|texts))")
MODULE = r"^(gui_dialog|gui_flow|test_(accessibility|flow_keyboard|long_texts|language)|lost_work|security_plain)"
HOST = r"^(unit_(host|device|programmer|new_device)|gui_(programmer|new_device)|test_language|security_programs)"
EVERY = r""
FLOW_TEXT = r"^(unit_gfpdb_(record|round_trip|rules)$|test_cli_(record|json|show|transfer))"
AFFECTED = [
    (r"pgm/gfpq/flow/gfpq_(flow_view|focus_ring|operation_tab)", r"^(gui_flow|test_flow_keyboard|test_acc)", MODULE),
    (r"pgm/gfpq/flow/", r"^gui_flow", MODULE),
    (r"pgm/gfpc/|app/gfpdb_chart/", r"^unit_gfpc", r"^(unit_gfpc|test_cli_chart|gui_programmer_charts)"),
    (r"pgm/gfpq/dialog/gfpq_pane", r"^(test_long_texts|gui_dialog_(opened|constr))", MODULE),
    (r"pgm/gfpq/(words/gfpq_acc|dialog/gfpq_d(lg|evice_form)\.)", r"^(gui_dialog|test_acc|lost_work_dir)", MODULE),
    (r"pgm/gfpq/", r"^gui_dialog", MODULE),
    (r"pgm/gfpdb/model/gfpdb_flow_text", FLOW_TEXT, EVERY),
    (r"pgm/gfpdb/.*_lint", r"^test_(flow|cli)_lint", r"^test_(flow|cli)"),
    (r"pgm/gfpdb/manager/gfpdb_copy", r"^test_cli_copy", r"^(test_cli_copy|server_)"),
    (r"pgm/gfpdb/(model|rules|catalogue)/gfpdb_(action|operation|flow|catalogue)", r"^test_flow_[^e]", EVERY),
    (r"pgm/gfpdb/(sfdp|include/gfpdb)/gfpdb_sfdp", r"^test_sfdp_(tables|read_outs)", NEW_DEVICES),
    (r"pgm/gfpdb/sfdp/", r"^test_(new_device$|part_comparison)", NEW_DEVICES),
    (r"pgm/gfpdb/store/server/", r"^(unit_gfpdb_server|server_)", r"^(unit_gfpdb_server|server_|test_cli_)"),
    (r"pgm/gfpdb/store/", r"^unit_(gfpdb|durability)", EVERY),
    (r"pgm/gfpdb/exchange/", r"^(unit_gfpdb|test_cli_(record|transfer))", EVERY),
    (r"pgm/gfpdb/", r"^unit_gfpdb", EVERY),
    (r"pgm/gfpe/plan", r"^test_(plan|image|run_reports|flow_(rules|session))", ENGINE),
    (r"pgm/gfpe/(run|include/gfpe/gfpe_(plan|run|image|rate))", r"^test_(plan|image|run_|flow_(rules|session))", ENGINE),
    (r"pgm/gfpe/(chip|include/gfpe/gfpe_chip)", r"^test_chip", ENGINE),
    (r"pgm/gfpe/(serprog|include/gfpe/gfpe_serprog)", r"^test_serprog_[^f]", ENGINE),
    (r"pgm/gfpe/(trace|include/gfpe/gfpe_trace)", r"^test_(trace|run_reports|plan)", ENGINE),
    (r"pgm/gfpe/", r"^test_(trace|connection|sfdp_reading)", ENGINE),
    (r"app/gfprog/", r"^test_prog_[^s]", r"^test_prog_"),
    (r"app/gfpdb/", r"^test_cli_", r"^(test_cli_|security_programs)"),
    (r"app/cli/", r"^test_cli_(json|lists|show|program)", r"^(test_cli_|test_prog_|security_programs)"),
    (r"app/gfpq_host/", r"^(unit_host_[acdopt]|unit_(device|programmer|new_device)|gui_(programmer|new_device))", HOST),
    (r"host/", r"^unit_(host|gfpdb_read_file)", EVERY),
]
QUICK_LABELS = "unit|gui|lost_work"
# Need a database server: run only for the files that speak to one.
SERVER_LABEL = "server"
# Kills processes for half a minute: run only for the files it belongs to.
SLOW_TESTS = {"unit_durability"}
# Tests that have all that they look at in their own program: it is compiled and linked without asking what else is old.
WHOLE_TESTS = re.compile(r"test_(sfdp_|new_device|part_comparison|chip_|plan|image|run_|trace_|connection|flow_|"
                         r"serprog_[^f])|unit_gfpdb_(?!bad_files|settings|server)")
# Nobody debugs these builds: what counts is how soon a test runs.
QUICK_BUILD = ["-DCMAKE_CXX_FLAGS_DEBUG=-O0 -g0", "-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=gold",
               "-DCMAKE_SHARED_LINKER_FLAGS=-fuse-ld=gold", "-DCMAKE_MODULE_LINKER_FLAGS=-fuse-ld=gold",
               "-DCMAKE_LINK_DEPENDS_NO_SHARED=ON", "-DGFPQ_TEST_TIMEOUT=60"]


def tests_of(path):
    """The expressions of the tests that belong to a file, and of all that can know of it."""
    return next((near, far) for pattern, near, far in AFFECTED if re.match(pattern, path))


@dataclasses.dataclass(frozen=True)
class Alteration:
    """One change of one file: the lines [first, last] become `text`."""

    path: str
    kind: str
    first: int
    last: int
    text: str
    original: str

    def describe(self):
        return f"{self.path}:{self.first + 1} [{self.kind}] {self.original.strip()}  =>  {self.text.strip()}"


def code_part(line):
    """The line without its // comment; string literals are respected."""
    in_text = False
    for index, char in enumerate(line):
        if char == '"' and (index == 0 or line[index - 1] != "\\"):
            in_text = not in_text
        if not in_text and line.startswith("//", index):
            return line[:index]
    return line


def single_line_alterations(path, number, line):
    code = code_part(line)
    stripped = code.strip()
    if stripped.startswith("virtual ") and stripped.endswith("= 0;"):
        return
    if not stripped or stripped.startswith(("#", "*", "/*", "}", "namespace", "class ", "using ", "case ")):
        return

    def altered(kind, start, end, replacement):
        text = line[:start] + replacement + line[end:]
        return Alteration(path, kind, number, number, text, line)

    def outside_text(position):
        return code[:position].count('"') % 2 == 0

    for match in re.finditer(r"(?<!\w)0x([0-9A-Fa-f]+)(?!\w)", code):
        if outside_text(match.start()):
            yield altered("constant", match.start(), match.end(), f"0x{int(match.group(1), 16) ^ 1:0{len(match.group(1))}X}")
    for match in re.finditer(r"(?<![\w.\"])(\d+)(\.\d+)?(?![\w.])", code):
        if outside_text(match.start()):
            value = match.group(1)
            yield altered("constant", match.start(1), match.end(1), str(int(value) + 1))
    swaps = [("==", "!="), ("!=", "=="), ("<=", "<"), (">=", ">"), ("&&", "||"), ("||", "&&")]
    for old, new in swaps:
        for match in re.finditer(r"(?<= )" + re.escape(old) + r"(?= )", code):
            if outside_text(match.start()):
                yield altered("operator", match.start(), match.end(), new)
    for match in re.finditer(r"(?<= )([<>])(?= [\w(])", code):
        if outside_text(match.start()) and "template" not in code:
            yield altered("operator", match.start(), match.end(), match.group(1) + "=")
    for match in re.finditer(r"\b(true|false)\b", code):
        if outside_text(match.start()):
            yield altered("boolean", match.start(), match.end(), "false" if match.group(1) == "true" else "true")
    for match in re.finditer(r'"((?:[^"\\]|\\.)+)"', code):
        # The context is for the catalogues alone.
        if not code[: match.start()].endswith("QT_TRANSLATE_NOOP("):
            yield altered("text", match.start(1), match.end(1), match.group(1) + "~")
    if re.match(r"^\s+[\w:>.\-*()]+\(.*\);\s*$", code) and not re.match(r"^\s+(return|delete|static_assert)\b", code):
        kind = "connection removed" if "connect" in code else "call removed"
        yield Alteration(path, kind, number, number, re.match(r"^\s*", code).group(0) + ";", line)


def swapped_statements(path, lines):
    statement = re.compile(r"^(\s+)[\w:>.\-]+(\(.*\)| [+\-]?= .*);\s*$")
    for number in range(len(lines) - 1):
        one, two = statement.match(lines[number]), statement.match(lines[number + 1])
        if one and two and one.group(1) == two.group(1) and lines[number] != lines[number + 1]:
            if re.match(r"\s+(return|const|auto|int|double|QString|std::)", lines[number]):
                continue
            yield Alteration(path, "order swapped", number, number + 1, lines[number + 1] + "\n" + lines[number],
                             lines[number] + " <> " + lines[number + 1].strip())


def form_alterations(path, lines):
    """Designer forms: numbers, texts, booleans and enumerators between tags."""
    for number, line in enumerate(lines):
        match = re.search(r"<(number|width|height|x|y)>(\d+)</", line)
        if match:
            text = line[: match.start(2)] + str(int(match.group(2)) + 7) + line[match.end(2):]
            yield Alteration(path, "form number", number, number, text, line)
        match = re.search(r"<string>([^<]+)</", line)
        if match:
            text = line[: match.start(1)] + match.group(1) + "~" + line[match.end(1):]
            yield Alteration(path, "form text", number, number, text, line)
        match = re.search(r"<bool>(true|false)</", line)
        if match:
            text = line.replace(match.group(1), "false" if match.group(1) == "true" else "true")
            yield Alteration(path, "form boolean", number, number, text, line)


def alterations_of(path):
    lines = (ROOT / path).read_text(encoding="utf-8").split("\n")
    if path.endswith(".ui"):
        yield from form_alterations(path, lines)
        return
    for number, line in enumerate(lines):
        yield from single_line_alterations(path, number, line)
    yield from swapped_statements(path, lines)


def read_unnoticeable():
    patterns = []
    for line in UNNOTICEABLE.read_text(encoding="utf-8").splitlines():
        if line.strip() and not line.startswith("#"):
            path, kind, text, _why = (field.strip() for field in line.split(" | ", 3))
            patterns.append((path, kind, text.replace("[", "[[]")))
    return patterns


def is_unnoticeable(alteration, patterns):
    return any(alteration.kind == kind and fnmatch.fnmatchcase(alteration.path, path) and
               fnmatch.fnmatchcase(alteration.original.strip(), text) for path, kind, text in patterns)


def changed_lines(path, revision):
    """The numbers (from 0) of the lines of `path` that were added or changed since `revision`."""
    diff = subprocess.run(["git", "diff", "-U0", revision, "--", path], cwd=ROOT, stdout=subprocess.PIPE, text=True,
                          check=True).stdout
    lines = set()
    for start, count in re.findall(r"^@@ -\S+ \+(\d+)(?:,(\d+))? @@", diff, re.MULTILINE):
        lines.update(range(int(start) - 1, int(start) - 1 + int(count or 1)))
    return lines


def choose(files, wanted, least, patterns, rng, since):
    """Spreads `wanted` places over the files, the larger ones getting more; returns a shuffled queue per file."""
    pools = {}
    for path in files:
        pool = [found for found in dict.fromkeys(alterations_of(path)) if not is_unnoticeable(found, patterns)]
        if since:
            lines = changed_lines(path, since)
            pool = [found for found in pool if found.first in lines]
        rng.shuffle(pool)
        if pool:
            pools[path] = pool
    total = sum(len(pool) for pool in pools.values())
    shares = {path: min(len(pool), max(least, round(wanted * len(pool) / total))) for path, pool in pools.items()}
    return pools, shares


def choose_again(report, patterns):
    """What survived the run of `report`, wherever the same text now stands in the file."""
    survived = {without_line(each) for each in json.loads(report.read_text(encoding="utf-8"))["survived"]}
    pools = {}
    for path in sorted({description.split(" ", 1)[0] for description in survived}):
        pool = [each for each in alterations_of(path)
                if without_line(each.describe()) in survived and not is_unnoticeable(each, patterns)]
        if pool:
            pools[path] = pool
    return pools, {path: len(pool) for path, pool in pools.items()}


def without_line(description):
    return re.sub(r":\d+ ", " ", description, count=1)


class Worker:
    """A copy of the tree with its own build."""

    def __init__(self, number, near):
        self.near = near
        self.tree = WORK / f"worker-{number}"
        self.build = self.tree / "build" / "dev"
        self.log = WORK / f"worker-{number}.log"
        self.known_tests = {}
        self.known_programs = None
        # How often each test has noticed something, in all and in each file: the sharpest one is built and run first.
        self.noticed_by = collections.Counter()
        self.noticed_in = collections.defaultdict(collections.Counter)
        self.known_links = {}
        # The object of the altered source, for tests that need nothing else to be built again.
        self.object = None
        # What one worker compiled the next one need not.
        self.environment = {**os.environ, "CCACHE_BASEDIR": str(self.tree), "CCACHE_NOHASHDIR": "1"}

    def run(self, *command, timeout=None):
        with open(self.log, "a", encoding="utf-8") as log:
            try:
                done = subprocess.run(command, cwd=self.tree, stdout=log, stderr=log, env=self.environment,
                                      timeout=timeout, check=False)
            except subprocess.TimeoutExpired:
                return 124
        return done.returncode

    def prepare(self, files):
        """Makes the copy the same as the tree, and sees the tests of `files` pass."""
        self.tree.mkdir(parents=True, exist_ok=True)
        listed = subprocess.run(["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"], cwd=ROOT,
                                stdout=subprocess.PIPE, check=True).stdout
        for name in filter(None, listed.decode().split("\0")):
            source, target = ROOT / name, self.tree / name
            if not source.exists():
                continue
            target.parent.mkdir(parents=True, exist_ok=True)
            if not target.exists() or target.read_bytes() != source.read_bytes():
                # With the time of now: what an interrupted run altered must be built again.
                shutil.copyfile(source, target)
                shutil.copymode(source, target)
        if self.run("cmake", "--preset", "dev", *QUICK_BUILD) != 0:
            sys.exit(f"The unaltered tree cannot be configured: see {self.log}")
        expressions = {tests_of(path)[0 if self.near else 1] for path in files}
        verdict = self.is_red(sorted({name for expression in expressions for name in self.tests(expression)}), None)
        if verdict != "green":
            sys.exit(f"The unaltered tree is {verdict}: see {self.log}")

    def tests(self, expression=None):
        """Names of the quick tests, those of `expression` only if given."""
        if expression in self.known_tests:
            return self.known_tests[expression]
        labels = f"{QUICK_LABELS}|{SERVER_LABEL}" if expression and "|server_" in expression else QUICK_LABELS
        command = ["ctest", "--test-dir", str(self.build), "-N", "-L", labels]
        if expression:
            command += ["-R", expression]
        listed = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True, check=True)
        return self.known_tests.setdefault(expression, re.findall(r"Test +#\d+: (\S+)", listed.stdout))

    def shell(self, command):
        with open(self.log, "a", encoding="utf-8") as log:
            return subprocess.run(command, shell=True, cwd=self.build, stdout=log, stderr=log, check=False).returncode

    def compile_command(self, path):
        """How the source alone is compiled; None for a header, or where moc reads it."""
        text = (self.tree / path).read_text(encoding="utf-8")
        if not path.endswith(".cpp") or "Q_OBJECT" in text or ".moc" in text:
            return None
        entries = json.loads((self.build / "compile_commands.json").read_text(encoding="utf-8"))
        commands = [each["command"] for each in entries if each["file"] == str(self.tree / path)]
        return re.sub(r"^.*?/ccache ", "", commands[0]) if len(commands) == 1 else None

    def link_command(self, name):
        if name not in self.known_links:
            asked = subprocess.run(["ninja", "-C", str(self.build), "-t", "commands", "-s", f"bin/{name}"],
                                   stdout=subprocess.PIPE, text=True, check=False)
            self.known_links[name] = asked.stdout.strip().rpartition("\n")[2].replace("/./", "/")
        return self.known_links[name]

    def builds(self, names):
        """Builds the programs of the named tests; some tests are scripts and have none."""
        if self.object and all(WHOLE_TESTS.match(name) and self.object in self.link_command(name) for name in names):
            return all(self.shell(self.link_command(name)) == 0 for name in names)
        if self.known_programs is None:
            known = subprocess.run(["cmake", "--build", str(self.build), "--target", "help"], stdout=subprocess.PIPE,
                                   text=True, check=True).stdout
            self.known_programs = set(re.findall(r"^([\w-]+): phony", known, re.MULTILINE))
        programs = self.known_programs.intersection(names)
        return self.run("cmake", "--build", "build/dev", "--target", *sorted(programs)) == 0

    def is_red(self, names, path):
        """Builds and runs the named tests until one fails: 'red', 'green' or 'broken' (does not compile)."""
        verdict = "green"
        names = sorted(names, key=lambda name: (-self.noticed_in[path][name], -self.noticed_by[name]))
        for some in (names[:1], names[1:4], names[4:]):
            verdict = self.are_red(some, path) if some else "green"
            if verdict != "green":
                break
        return verdict

    def are_red(self, names, path):
        if not self.builds(names):
            return "broken"
        expression = "^(" + "|".join(re.escape(name) for name in names) + ")$"
        if self.run("ctest", "--test-dir", "build/dev", "-R", expression, "--stop-on-failure") == 0:
            return "green"
        failed = self.build / "Testing" / "Temporary" / "LastTestsFailed.log"
        red = re.findall(r"\d+:(\S+)", failed.read_text(encoding="utf-8") if failed.exists() else "")
        self.noticed_by.update(red)
        self.noticed_in[path].update(red)
        return "red"

    def judge(self, alteration):
        target = self.tree / alteration.path
        # Of the copy: who runs this goes on working in the tree.
        original = target.read_bytes()
        lines = original.decode("utf-8").split("\n")
        lines[alteration.first: alteration.last + 1] = alteration.text.split("\n")
        command = self.compile_command(alteration.path)
        target.write_text("\n".join(lines), encoding="utf-8")
        self.object = re.search(r" -o (\S+)", command).group(1) if command else None
        compiled = self.build / self.object if command else None
        before = compiled.read_bytes() if compiled and compiled.exists() else None
        try:
            if before is None:
                self.object = None
            elif self.shell(command) != 0:
                return "broken"
            near, far = tests_of(alteration.path)
            first = self.tests(near)
            verdict = self.is_red(first, alteration.path)
            if verdict == "green" and not self.near:
                others = [name for name in self.tests(far) if name not in first and name not in SLOW_TESTS]
                verdict = self.is_red(others, alteration.path)
            return verdict
        finally:
            target.write_bytes(original)
            if before is not None:
                compiled.write_bytes(before)


def write_report(path, seed, results):
    """After each judgement: what was judged so far is not lost when a run is stopped."""
    survived = [alteration.describe() for alteration, verdict in results if verdict == "green"]
    report = {"seed": seed, "places": len(results), "noticed": len(results) - len(survived), "survived": survived}
    path.write_text(json.dumps(report, indent=2) + "\n", encoding="utf-8")


def run_all(pools, shares, workers, report):
    results = []
    jobs = queue.Queue()
    # In any order: what a run has judged that is stopped is a sample of all files.
    for path in random.sample(list(pools), len(pools)):
        jobs.put((path, pools[path], shares[path]))
    wanted = sum(shares.values())
    started = time.monotonic()

    def serve(worker):
        while True:
            try:
                path, pool, share = jobs.get_nowait()
            except queue.Empty:
                return
            judged = 0
            for alteration in pool:
                if judged == share:
                    break
                verdict = worker.judge(alteration)
                if verdict == "broken":
                    continue
                judged += 1
                results.append((alteration, verdict))
                report(results)
                spent = time.monotonic() - started
                print(f"[{len(results)}/{wanted} {spent / 60:.0f} min] {verdict:5} {alteration.describe()}", flush=True)

    with concurrent.futures.ThreadPoolExecutor(len(workers)) as pool:
        for future in [pool.submit(serve, worker) for worker in workers]:
            future.result()
    return results


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n")[0])
    parser.add_argument("--places", type=int, default=400, help="how many places to alter (default 400)")
    parser.add_argument("--least", type=int, default=4, help="how many places to alter in each file (default 4)")
    parser.add_argument("--seed", type=int, default=None, help="seed of the choice (printed)")
    parser.add_argument("--jobs", type=int, default=max(1, min(4, os.cpu_count() or 1)), help="workers")
    parser.add_argument("--only", default="", help="regular expression: only files whose path matches")
    parser.add_argument("--since", default="", help="only lines that were added or changed since this commit")
    parser.add_argument("--again", action="store_true", help="judge only what survived the last run")
    parser.add_argument("--near", action="store_true", help="run only the tests that belong to the altered file")
    parser.add_argument("--report", type=pathlib.Path, default=REPORT, help="where the survivors are noted, and read")
    parser.add_argument("--list", action="store_true", help="list the places that could be altered and stop")
    arguments = parser.parse_args()

    files = sorted({str(found.relative_to(ROOT)) for pattern in SOURCES for found in ROOT.glob(pattern)})
    files = [path for path in files if re.search(arguments.only, path)]
    seed = arguments.seed if arguments.seed is not None else random.SystemRandom().randrange(1 << 31)
    patterns = read_unnoticeable()
    if arguments.again:
        pools, shares = choose_again(arguments.report, patterns)
    else:
        pools, shares = choose(files, arguments.places, arguments.least, patterns, random.Random(seed),
                               arguments.since)
    if arguments.list:
        for pool in pools.values():
            for alteration in pool:
                print(alteration.describe())
        return 0

    print(f"seed {seed}: {sum(shares.values())} places in {len(pools)} files", flush=True)
    WORK.mkdir(parents=True, exist_ok=True)
    workers = [Worker(number, arguments.near) for number in range(arguments.jobs)]
    with concurrent.futures.ThreadPoolExecutor(len(workers)) as pool:
        for future in [pool.submit(worker.prepare, pools) for worker in workers]:
            future.result()
    results = run_all(pools, shares, workers, lambda results: write_report(arguments.report, seed, results))

    survivors = [alteration for alteration, verdict in results if verdict == "green"]
    noticed = len(results) - len(survivors)
    print(f"\n{noticed} of {len(results)} noticed ({100.0 * noticed / max(1, len(results)):.1f} %)")
    for alteration in sorted(survivors, key=lambda a: (a.path, a.first)):
        print("survived:", alteration.describe())
    return 0


if __name__ == "__main__":
    sys.exit(main())
