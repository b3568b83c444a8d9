#!/usr/bin/env python3
"""Plays the tests of a tree built with --coverage, prints what they run, and exits 1 below the limits.

coverage.py BUILD_FOLDER [--no-play]

Branches are those of the source: of each call that may throw, gcov counts the way on and the way of the exception; both are
left out. So are the branch of a catch for exceptions of other types, a lone closing brace, which stands for destructors, and
comparisons that the compiler writes.
An inline function or a template counts once, whichever objects have it. uncovered.txt lists what no test runs, with why; a
listed line that runs is an error.
"""
import collections
import glob
import json
import os
import re
import subprocess
import sys

FOLDERS = "runtime forms store sort screen browse find reports prefs opening filecopy help app exchange companion launcher".split()
BRANCH_FOLDERS = ["runtime", "store", "sort"]
LINES_LIMIT, BRANCHES_LIMIT = 97, 95
# A handler is a function of a window with the name of its control and event. Each of screen/handlers.h has one, or the
# program does not link.
HANDLER = re.compile(r"^frm\w+::\w+_[A-Z]\w*\(\)$")

# Too slow without optimization, or held to a time or a size of memory.
SLOW = (
    "*Kill*:*Strength*:KeyLimits*:CutSort*:*AfterAFailure*:SortProperty.Large*:*Monkey*:*Feeding*:Crash*:ReadOnlyWalk*"
    ":*FedFileOfReaders*:*AtOnce*:Memory*:ReportTest.ThePlace*:*EveryCall.*/a*"
)

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
PLAYS = [
    ("unit tests", ["reelora_tests", "--gtest_filter=-" + SLOW]),
    ("stories on bare forms", ["reelora_story", ROOT + "/tests/stories"]),
    ("stories on widgets", ["reelora_story", "--desktop", ROOT + "/tests/stories"]),
    ("widget tests", ["reelora_desktop_tests"]),
    ("companion", ["reelora-collection", "-C", ROOT + "/delivered/sample", "history"]),
]


def play(build):
    """Plays all tests at once on fresh counters; returns the names of those that failed."""
    for counters in glob.glob(build + "/**/*.gcda", recursive=True):
        os.remove(counters)
    environment = dict(os.environ, QT_QPA_PLATFORM="offscreen")
    runs = []
    for name, (program, *arguments) in PLAYS:
        with open(f"{build}/{name}.log", "w") as log:
            runs.append(subprocess.Popen([f"{build}/{program}", *arguments], env=environment, stdout=log, stderr=log))
    return [name for (name, _), run in zip(PLAYS, runs) if run.wait() != 0]


class File:
    def __init__(self):
        self.handlers = collections.Counter()  # by name: times entered
        self.lines = collections.Counter()  # by number: times run
        self.branches = {}  # by function and line: times each was taken


def own_branches(line):
    """The counts of a line's branches without those of exceptions; gcov lists the way on right before the throw."""
    own = []
    for branch in line["branches"]:
        if branch["throw"]:
            own.pop()
        else:
            own.append(branch["count"])
    return own


def add(found, source, text):
    """Adds one object's counts of one source."""
    place = {function["name"]: (function["start_line"], function["start_column"]) for function in source["functions"]}
    # The lines of a defaulted operator== are those of the members.
    equals = {function["name"] for function in source["functions"] if "= default" in text[function["start_line"] - 1]}
    made = {line["line_number"] for line in source["lines"] if line.get("function_name") in equals}
    for function in source["functions"]:
        if HANDLER.match(function["demangled_name"]):
            found.handlers[function["demangled_name"]] += function["execution_count"]
    for line in source["lines"]:
        number = line["line_number"]
        if text[number - 1].strip() == "}" or number in made:
            continue
        found.lines[number] += line["count"]
        own = [] if "} catch (" in text[number - 1] else own_branches(line)
        # By the function's place: the copies of a template count as one.
        key = (number, place.get(line.get("function_name")), len(own))
        found.branches[key] = [a + b for a, b in zip(found.branches.get(key, [0] * len(own)), own)]


def read_counts(build):
    """What gcov counted, by path; and the lines of each source."""
    files, texts = collections.defaultdict(File), {}
    notes = sorted(glob.glob(build + "/**/*.gcno", recursive=True))
    command = ["gcov", "--json-format", "--stdout", "--branch-probabilities", "--relative-only", "--source-prefix", ROOT]
    out = subprocess.run([*command, *notes], cwd=build, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
    for unit in out.stdout.splitlines():
        if not unit.startswith("{"):
            continue
        for source in json.loads(unit)["files"]:
            path = os.path.relpath(os.path.join(build, source["file"]), ROOT)
            if path.split("/")[0] not in FOLDERS:
                continue
            if path not in texts:
                with open(f"{ROOT}/{path}", encoding="utf-8") as file:
                    texts[path] = file.read().split("\n")
            add(files[path], source, texts[path])
    return files, texts


def percent(covered, total):
    return 100 * covered / total if total else 100


def print_table(files):
    """Prints a row for each folder; returns what is below the limits."""
    faults = []
    print(f"{'folder':12}{'handlers':>12}{'lines %':>12}{'branches %':>12}")
    for folder in FOLDERS:
        own = [file for path, file in files.items() if path.split("/")[0] == folder]
        handlers = [(name, count) for file in own for name, count in file.handlers.items()]
        lines = [count for file in own for count in file.lines.values()]
        branches = [count for file in own for counts in file.branches.values() for count in counts]
        ran, taken = (percent(sum(map(bool, counts)), len(counts)) for counts in (lines, branches))
        entered = f"{sum(count > 0 for _, count in handlers)} of {len(handlers)}" if handlers else ""
        print(f"{folder:12}{entered:>12}{ran:12.2f}{taken:12.2f}")
        faults += [f"{name} is never entered" for name, count in handlers if count == 0]
        if not lines or ran < LINES_LIMIT:
            faults.append(f"{folder}/: lines below {LINES_LIMIT} %")
        if folder in BRANCH_FOLDERS and taken < BRANCHES_LIMIT:
            faults.append(f"{folder}/: branches below {BRANCHES_LIMIT} %")
    return faults


def check_list(files, texts):
    """Prints the lines and branches that uncovered.txt does not list; returns the entries that are not so."""
    listed, faults = collections.defaultdict(str), []
    with open(os.path.dirname(__file__) + "/uncovered.txt", encoding="utf-8") as file:
        for row in file.read().split("\n"):
            if row and not row.startswith("#"):
                path, rest = row.split(" | ", 1)
                text, why = rest.rsplit(" | ", 1)  # the text may have one too
                listed[path, text] = why
    used = set()
    for path in sorted(files):
        file, text = files[path], texts[path]
        missing = {number for number, count in file.lines.items() if not count}
        if path.split("/")[0] in BRANCH_FOLDERS:
            missing |= {number for (number, _, _), counts in file.branches.items() if 0 in counts}
        for number in sorted(missing):
            key = path, text[number - 1].strip()
            what = "a branch not taken" if file.lines[number] else "not run"
            used.add(key)
            if key not in listed:
                print(f"{path}:{number}: {what}: {key[1]}")
    return [f"uncovered.txt: covered or gone: {path}: {text}" for path, text in listed if (path, text) not in used]


def main():
    build = os.path.abspath(sys.argv[1])
    failed = [] if "--no-play" in sys.argv else play(build)
    faults = [f"the {name} failed, see {build}/{name}.log" for name in failed]
    files, texts = read_counts(build)
    faults += print_table(files) + check_list(files, texts)
    for fault in faults:
        print("ERROR:", fault)
    return 1 if faults else 0


sys.exit(main())
