#!/usr/bin/env python3
"""Story mutation: alters each literal and each table row of the system in turn and plays the stories that reach it.

    mutation.py SOURCES BUILD [COMPILER] [--only FILE_PART] [--floor PERCENT]

A mutant is killed when a story fails, crashes or hangs. Beneath the windows, where much cannot be seen in a story, the
unit tests judge too. The report goes to BUILD/mutants/report.txt.
"""

import argparse
import collections
import concurrent.futures
import fnmatch
import json
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import time

from mutants import FOLDERS, LEFT_OUT, Copy

WORD = re.compile(r"[A-Za-z0-9]{3,}")
LIKELY = 200  # stories that are played before the others, since they speak of what is altered
LIKELY_ROWS = 25  # of one file
BENEATH = ("store/", "runtime/", "sort/", "help/", "app/")
KILLED = ("killed", "unit test")
FEW = 40  # stories that are played before the unit tests
LONGEST_PLAY = 300  # seconds for all stories of one mutant
ERROR = re.compile(r"^([^\s:]+):(\d+):(\d+): (?:fatal )?(error|note): (.*)$")
NOT_CONSTANT = re.compile(r"not usable in a constant|call to non-.constexpr|not a constant")
DECLARED = re.compile(r"not initialized with a constant|not declared .constexpr|declared here|is not const")


class Builder:
    """Compiles the copy. What does not compile is taken back: a constant is frozen, a mutant refused."""

    def __init__(self, root, build, compiler, target):
        self.target = target
        self.root, self.home, self.compiler = root, build / "mutants", compiler
        self.copy_folder, self.tree = self.home / "copy", self.home / "build"
        self.state_file = self.home / f"taken_back.{target}.json"
        self.state = json.loads(self.state_file.read_text()) if self.state_file.exists() else {}
        self.frozen = set(self.state.get("frozen", self._known(root / "tests/mutation/constants.txt")))
        self.refused = set(self.state.get("refused", []))

    def _known(self, path):
        """Constants that the target needs, as far as they are known; each that is not costs a compilation."""
        lines = path.read_text().splitlines() if self.target == "reelora_tests" else []
        return [line for line in lines if not line.startswith("#")]

    def run(self):
        self.copy_folder.mkdir(parents=True, exist_ok=True)
        for entry in self.root.iterdir():
            link = self.copy_folder / entry.name
            if entry.name not in FOLDERS + ["build", ".git"] and not link.is_symlink():
                link.symlink_to(entry)
        while True:
            copy = Copy(self.root, self.frozen, self.refused)
            copy.write(self.copy_folder)
            errors = self._compile()
            if not errors:
                return copy
            before = len(self.frozen), len(self.refused)
            # What else is wrong may only follow from these.
            for block in [block for block in errors if NOT_CONSTANT.search(block[0][0][5])] or errors:
                self._take_back(copy, block)
            if (len(self.frozen), len(self.refused)) == before:
                sys.exit("The copy does not compile:\n" + "\n".join(line for block in errors for _, line in block))
            print(f"frozen {len(self.frozen)} constants, refused {len(self.refused)} mutants; once more", flush=True)
            self.state_file.write_text(json.dumps({"frozen": sorted(self.frozen), "refused": sorted(self.refused)}))

    def _compile(self):
        """The errors: for each, the places that it names."""
        flags = f"-std=c++20 -O1 -w -Wno-narrowing -fpermissive -include {self.root}/tests/mutation/at.h"
        if not (self.tree / "build.ninja").exists():
            subprocess.run(["cmake", "-S", self.copy_folder, "-B", self.tree, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=None",
                            "-DREELORA_BENCHES=OFF", "-DREELORA_MUTATED_COPY=ON", f"-DCMAKE_CXX_COMPILER={self.compiler}",
                            f"-DCMAKE_CXX_FLAGS={flags}"], check=True, stdout=subprocess.DEVNULL)  # fmt: skip
        result = subprocess.run(["ninja", "-C", self.tree, "-k", "0", self.target],
                                capture_output=True, text=True, env=dict(os.environ, LC_ALL="C"))  # fmt: skip
        if result.returncode == 0:
            return []
        (self.home / "errors.txt").write_text(result.stdout + result.stderr)
        blocks = []
        for line in result.stdout.splitlines():
            if match := ERROR.match(line):
                if match[4] == "error" or not blocks:
                    blocks.append([])
                blocks[-1].append((match, line))
        return blocks or sys.exit(result.stdout + result.stderr)

    def _take_back(self, copy, block):
        for match, _ in block:
            if DECLARED.search(match[5]) and self._freeze(copy, *self._place(match)):
                return
        for match, _ in block:
            if self._refuse(copy, *self._place(match)) or self._freeze(copy, *self._place(match)):
                return

    def _place(self, match):
        path = pathlib.Path(os.path.normpath(self.tree / match[1]))
        inside = path.is_relative_to(self.copy_folder)
        return (str(path.relative_to(self.copy_folder)) if inside else "", int(match[2]), int(match[3]) - 1)

    def _freeze(self, copy, file, line, _column):
        for constant in copy.constants.get(file, []):
            if constant.first_line <= line <= constant.last_line and not constant.frozen:
                self.frozen.add(constant.key)
                return True
        return False

    def _refuse(self, copy, file, line, column):
        here = [m for m in copy.mutants if (m.file, m.line) == (file, line)]
        exact = [m for m in here if m.span[0] <= column < m.span[1]]
        chosen = [min(exact, key=lambda m: m.span[1] - m.span[0])] if exact else here
        self.refused.update(mutant.key for mutant in chosen)
        return bool(chosen)


class Stories:
    """The stories of the tree, and which mutants each of them reaches."""

    def __init__(self, root, player, pattern):
        self.player, self.scratch = player, tempfile.mkdtemp(prefix="mutation-")
        files = sorted(str(path) for path in (root / "tests/stories").rglob("*.story"))
        files = [file for file in files if re.search(pattern, file)]
        self.words = {file: pathlib.Path(file).read_text(encoding="utf-8") for file in files}
        self.speaking = collections.defaultdict(set)
        for file, text in self.words.items():
            for word in WORD.findall(file.replace("_", " ") + text):
                self.speaking[word].add(file)
        self.sights = {file: 1 + text.count("see ") for file, text in self.words.items()}
        result = self.start("\n".join(files), None, "--reached")
        self.time, self.reached, self.at_start = {}, {}, set()
        for line in result.stdout.splitlines():
            file, row, took, numbers = line.split("\t")
            if file == "start":
                self.at_start = set(map(int, numbers.split()))
            else:
                self.time[file, row] = int(took)
                self.reached[file, row] = set(map(int, numbers.split()))
        if result.returncode:
            sys.exit("A story fails on the copy as it is: " + result.stdout.splitlines()[-1])

    def start(self, lines, mutant, *options):
        folder = tempfile.mkdtemp(dir=self.scratch)
        environment = dict(os.environ, TMPDIR=folder)
        if mutant is not None:
            environment["MUTANT"] = str(mutant)
        try:
            return subprocess.run([self.player, *options], input=lines, env=environment, capture_output=True, text=True,
                                  errors="replace", timeout=LONGEST_PLAY)  # fmt: skip
        finally:
            shutil.rmtree(folder, ignore_errors=True)

    def score(self, text):
        """How much of the text each file of stories speaks of; rare words count more."""
        score = collections.Counter()
        for word in set(WORD.findall(text)):
            for file in self.speaking.get(word, ()):
                score[file] += 1 / len(self.speaking[word])
        return score

    def order(self, mutant, killers):
        """The stories that reach the mutant, the likely killers first."""
        reaching = list(self.reached)
        if mutant.number not in self.at_start:
            reaching = [story for story, numbers in self.reached.items() if mutant.number in numbers]
        if len(reaching) > len(self.reached) / 2:
            reaching.sort(key=lambda story: self.time[story] / self.sights[story[0]])
        else:
            reaching.sort(key=lambda story: (len(self.reached[story]), self.time[story]))
        near = sorted(killers.found[mutant.file], key=lambda found: abs(found[0] - mutant.line))
        likely = [killers.earlier.get(mutant.key)] + [story for _, story in near[:12]]
        score = self.score(mutant.source + mutant.was + mutant.file.replace("_", " "))
        rows = collections.Counter()
        for story in sorted(reaching, key=lambda story: -score[story[0]]):
            rows[story[0]] += 1
            if rows[story[0]] <= LIKELY_ROWS and len(likely) < LIKELY:
                likely.append(story)
        possible = set(reaching)
        return list(dict.fromkeys([story for story in likely if story in possible] + reaching))


class UnitTests:
    """The unit tests, and which mutants each of them reaches: the judges of what the stories let live."""

    SLOW = (
        "-*Kill*:*Strength*:KeyLimits*:CutSort*:*AfterAFailure*:SortProperty.*Collections*:*EveryCall.*:DoubleStart*"
        ":*FedFileOfReaders*"
    )
    QUICK, LONGEST = 100, 10000  # milliseconds; the quick ones are played first
    HANGS = 30  # seconds for all that reach one mutant

    def __init__(self, program):
        self.program = program
        with tempfile.NamedTemporaryFile("r") as reached:
            self.start([self.SLOW], LONGEST_PLAY, MUTATION_REACHED=reached.name)
            lines = [line.rstrip("\n").split("\t") for line in reached]
        self.took = {test: int(took) for test, how, took, _ in lines if how == "passed" and int(took) < self.LONGEST}
        self.reached = {test: set(map(int, numbers.split())) for test, *_, numbers in lines if test in self.took}
        self.at_start = self.reached.pop("start")
        failed = [test for test, how, *_ in lines if how == "failed"]
        print(f"{len(self.reached)} unit tests; fail on the copy as it is:", *failed, flush=True)

    def start(self, tests, seconds, *options, **environment):
        with tempfile.TemporaryDirectory() as folder:
            os.chmod(folder, 0o755)  # some tests are another user
            return subprocess.run([self.program, "--gtest_brief=1", *options], capture_output=True,
                                  env=dict(os.environ, GTEST_FILTER=":".join(tests), TMPDIR=folder, **environment),
                                  timeout=seconds)  # fmt: skip

    def judge(self, mutant):
        always = mutant.number in self.at_start
        tests = [test for test, numbers in self.reached.items() if always or mutant.number in numbers]
        quick = [test for test in tests if self.took[test] < self.QUICK]
        slow = [test for test in tests if self.took[test] >= self.QUICK]
        try:
            for some in filter(None, (quick, slow)):
                if self.start(some, self.HANGS, "--gtest_fail_fast", MUTANT=str(mutant.number)).returncode != 0:
                    return "unit test"
        except subprocess.TimeoutExpired:
            return "unit test"
        return "survived"


class Killers:
    """The stories that killed, those of the run before too: the first to be tried."""

    def __init__(self, path):
        self.path = path
        self.earlier = {key: tuple(story) for key, story in json.loads(path.read_text()).items()} if path.exists() else {}
        self.found = collections.defaultdict(list)  # file: line, story

    def add(self, mutant, story):
        self.earlier[mutant.key] = story
        self.found[mutant.file].append((mutant.line, story))

    def save(self):
        self.path.write_text(json.dumps(self.earlier))


class Judge:
    def __init__(self, stories, killers, most):
        self.stories, self.killers, self.most = stories, killers, most

    def judge(self, mutant):
        """"killed", "survived" or "not reached"."""
        order = self.stories.order(mutant, self.killers)[: self.most]
        if not order:
            return "not reached"
        lines = "\n".join(f"{file}\t{row}" for file, row in order)
        try:
            result = self.stories.start(lines, mutant.number)
        except subprocess.TimeoutExpired:
            return "killed"
        if result.returncode == 0:
            return "survived"
        if result.returncode == 1 and result.stdout:
            file, row = result.stdout.splitlines()[-1].split("\t")[:2]
            self.killers.add(mutant, (file, row))
        return "killed"


def read_excluded(path):
    """Rows of: pattern of files | pattern within the line | reason."""
    rows = [line.split(" | ") for line in path.read_text().splitlines() if line and not line.startswith("#")]
    return [(files.strip(), re.compile(inside.strip()), reason.strip()) for files, inside, reason in rows]


def reason_to_exclude(mutant, line, excluded):
    for files, inside, reason in excluded:
        if fnmatch.fnmatch(mutant.file, files) and any(
            match.start() <= mutant.column < match.end() for match in inside.finditer(line)
        ):
            return reason
    return ""


class Report:
    def __init__(self, copy, root, excluded):
        self.copy, self.results, self.reasons = copy, {}, {}
        lines = {file: (root / file).read_text(encoding="utf-8").split("\n") for file in copy.constants}
        for mutant in copy.mutants:
            if reason := reason_to_exclude(mutant, lines[mutant.file][mutant.line - 1], excluded):
                self.reasons[mutant.number] = reason

    def counts(self, mutants):
        return collections.Counter(self.results[mutant.number] for mutant in mutants)

    def text(self):
        judged = [mutant for mutant in self.copy.mutants if mutant.number in self.results]
        columns = ["killed", "unit test", "survived", "not reached"]
        rows = [f"{'folder':10}{'mutants':>12}" + "".join(f"{column:>12}" for column in columns)]
        for folder in FOLDERS + [""]:
            of_folder = [mutant for mutant in judged if mutant.file.startswith(folder)]
            count = self.counts(of_folder)
            rows.append(f"{folder or 'all':10}{len(of_folder):12}" + "".join(f"{count[key]:12}" for key in columns))
        rows.append("\nNot altered, since it")
        for why, number in collections.Counter(why for *_, why in self.copy.left_out).items():
            rows.append(f"{number:6}  {LEFT_OUT[why]}")
        rows.append("\nNot counted")
        for reason, number in collections.Counter(self.reasons.values()).items():
            rows.append(f"{number:6}  {reason}")
        rows.append("\nSurvivors")
        for mutant in judged:
            if self.results[mutant.number] not in KILLED:
                rows.append(f"{mutant.file}:{mutant.line}: {mutant.was} becomes {mutant.becomes}"
                            f" ({mutant.kind}, {self.results[mutant.number]})")  # fmt: skip
        rows.append("\nLeft out")
        rows += [f"{file}:{line}: {was} ({LEFT_OUT[why]})" for file, line, was, why in self.copy.left_out]
        return "\n".join(rows) + "\n"


def judge_all(judge, mutants, results, jobs):
    """Judges those that nothing has killed yet."""
    living = [mutant for mutant in mutants if results.get(mutant.number) not in KILLED]
    started = said = time.monotonic()
    with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
        waiting = {pool.submit(judge.judge, mutant): mutant for mutant in living}
        for done, future in enumerate(concurrent.futures.as_completed(waiting), 1):
            results[waiting[future].number] = future.result()
            if time.monotonic() - said > 10 or done == len(living):
                said = time.monotonic()
                killed = sum(results.get(mutant.number) in KILLED for mutant in living)
                print(f"{done} of {len(living)}, {killed} killed ({said - started:.0f} s)", flush=True)


def shares(report, mutants, floor):
    """Prints how much was killed; whether it is enough everywhere."""
    enough = True
    for what, beneath in (("windows", False), ("beneath them", True)):
        counts = report.counts([mutant for mutant in mutants if mutant.file.startswith(BENEATH) == beneath])
        if number := sum(counts.values()):
            killed = sum(counts[how] for how in KILLED)
            share = 100 * killed / number
            enough = enough and share >= floor
            print(f"{what}: {killed} of {number} killed, {share:.1f} %, {counts['unit test']} of them by unit tests")
    return enough


def judge_by_stories_and_tests(given, builder, stories, killers, mutants, results):
    """Beneath the windows a few stories, then the unit tests, then, of what still lives, all stories."""
    all_stories = Judge(stories, killers, given.most)
    windows = [mutant for mutant in mutants if not mutant.file.startswith(BENEATH)]
    beneath = [mutant for mutant in mutants if mutant.file.startswith(BENEATH)]
    judge_all(all_stories, windows, results, given.jobs)
    judge_all(Judge(stories, killers, given.most or FEW), beneath, results, given.jobs)
    if beneath and not given.most:
        of_tests = Builder(builder.root, builder.home.parent, builder.compiler, "reelora_tests")
        of_tests.run()
        judge_all(UnitTests(of_tests.tree / "reelora_tests"), beneath, results, given.jobs)
        judge_all(all_stories, beneath, results, given.jobs)


def options():
    given = argparse.ArgumentParser()
    given.add_argument("root", type=pathlib.Path)
    given.add_argument("build", type=pathlib.Path)
    given.add_argument("compiler", nargs="?", default="g++")
    given.add_argument("--only", default="", help="judge the mutants of the files that match this pattern")
    given.add_argument("--floor", type=float, default=95, help="per cent that must be killed")
    given.add_argument("--most", type=int, help="play at most so many stories for each, and no unit tests: a quick look")
    given.add_argument("--stories", default="", help="play only the stories whose paths match this pattern")
    given.add_argument("--again", action="store_true", help="judge only what the run before let live")
    given.add_argument("--jobs", type=int, default=os.cpu_count())
    return given.parse_args()


def main():
    given = options()
    builder = Builder(given.root.resolve(), given.build.resolve(), given.compiler, "mutation_player")
    copy = builder.run()
    report = Report(copy, builder.root, read_excluded(builder.root / "tests/mutation/not_counted.txt"))
    mutants = [m for m in copy.mutants if re.search(given.only, m.file) and m.number not in report.reasons]
    earlier = builder.home / "results.json"
    before = json.loads(earlier.read_text()) if given.again and earlier.exists() else {}
    report.results = {m.number: before[m.key] for m in mutants if before.get(m.key) in KILLED}
    print(f"{len(mutants) - len(report.results)} of {len(mutants)} mutants", flush=True)
    stories = Stories(builder.root, builder.tree / "mutation_player", given.stories)
    killers = Killers(builder.home / "killers.json")
    try:
        judge_by_stories_and_tests(given, builder, stories, killers, mutants, report.results)
    finally:
        killers.save()
        before |= {mutant.key: report.results[mutant.number] for mutant in mutants if mutant.number in report.results}
        earlier.write_text(json.dumps(before))
        shutil.rmtree(stories.scratch, ignore_errors=True)
    text = report.text()
    (builder.home / "report.txt").write_text(text)
    print(text.split("\nLeft out")[0])
    enough = shares(report, mutants, given.floor)
    print(f"The whole report: {builder.home / 'report.txt'}")
    return 0 if enough else 1


if __name__ == "__main__":
    sys.exit(main())
