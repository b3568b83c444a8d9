#!/usr/bin/env python3
"""Story mutation: alters each literal and each table row of the system in turn and plays the stories that reach it.

    mutation.py SOURCES BUILD [COMPILER] [--only FILE_PART] [--floor PERCENT]

A mutant is killed when a story fails, crashes or hangs. The report goes to BUILD/mutants/report.txt.
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
LONGEST_PLAY = 300  # seconds for all stories of one mutant
ERROR = re.compile(r"^([^\s:]+):(\d+):(\d+): (?:fatal )?(error|note): (.*)$")
NOT_CONSTANT = re.compile(r"not usable in a constant|call to non-.constexpr|not a constant")
DECLARED = re.compile(r"not initialized with a constant|not declared .constexpr|declared here|is not const")


class Builder:
    """Compiles the copy. What does not compile is taken back: a constant is frozen, a mutant refused."""

    def __init__(self, root, build, compiler):
        self.target = "mutation_player"
        self.root, self.home, self.compiler = root, build / "mutants", compiler
        self.copy_folder, self.tree = self.home / "copy", self.home / "build"
        self.state_file = self.home / "taken_back.json"
        self.state = json.loads(self.state_file.read_text()) if self.state_file.exists() else {}
        self.frozen = set(self.state.get("frozen", []))
        self.refused = set(self.state.get("refused", []))

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
    """The quick unit tests, and which mutants each of them reaches: the judges of what the stories let live."""

    SLOW = "-*Kill*:*Strength*:KeyLimits*:CutSort*:*AfterAFailure*:SortProperty.Large*"
    LONGEST = 2000  # milliseconds

    def __init__(self, program, at_start):
        self.program, self.at_start = program, at_start
        with tempfile.NamedTemporaryFile("r") as reached:
            self.start(self.SLOW, MUTATION_REACHED=reached.name)
            lines = [line.rstrip("\n").split("\t") for line in reached]
        self.reached = {test: set(map(int, numbers.split())) for test, _, took, numbers in lines
                        if int(took) < self.LONGEST}  # fmt: skip

    def start(self, tests, **environment):
        with tempfile.TemporaryDirectory() as folder:
            return subprocess.run([self.program, "--gtest_brief=1", "--gtest_fail_fast"], capture_output=True,
                                  env=dict(os.environ, GTEST_FILTER=tests, TMPDIR=folder, **environment),
                                  timeout=LONGEST_PLAY)  # fmt: skip

    def judge(self, mutant):
        always = mutant.number in self.at_start
        tests = [test for test, numbers in self.reached.items() if always or mutant.number in numbers]
        try:
            passed = not tests or self.start(":".join(tests), MUTANT=str(mutant.number)).returncode == 0
        except subprocess.TimeoutExpired:
            passed = False
        return "survived" if passed else "unit test"


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
            if self.results[mutant.number] != "killed":
                rows.append(f"{mutant.file}:{mutant.line}: {mutant.was} becomes {mutant.becomes}"
                            f" ({mutant.kind}, {self.results[mutant.number]})")  # fmt: skip
        rows.append("\nLeft out")
        rows += [f"{file}:{line}: {was} ({LEFT_OUT[why]})" for file, line, was, why in self.copy.left_out]
        return "\n".join(rows) + "\n"


def judge_all(judge, mutants, results, good, jobs):
    started = said = time.monotonic()
    with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
        waiting = {pool.submit(judge.judge, mutant): mutant for mutant in mutants}
        for done, future in enumerate(concurrent.futures.as_completed(waiting), 1):
            results[waiting[future].number] = future.result()
            if time.monotonic() - said > 10 or done == len(mutants):
                said = time.monotonic()
                killed = sum(results[mutant.number] == good for mutant in mutants if mutant.number in results)
                print(f"{done} of {len(mutants)}, {killed} killed ({said - started:.0f} s)", flush=True)


def main():
    options = argparse.ArgumentParser()
    options.add_argument("root", type=pathlib.Path)
    options.add_argument("build", type=pathlib.Path)
    options.add_argument("compiler", nargs="?", default="g++")
    options.add_argument("--only", default="", help="judge the mutants of the files that match this pattern")
    options.add_argument("--floor", type=float, default=95, help="per cent that must be killed")
    options.add_argument("--units", action="store_true", help="play the unit tests on what the stories let live")
    options.add_argument("--most", type=int, help="play at most so many stories for each, for a quick look")
    options.add_argument("--stories", default="", help="play only the stories whose paths match this pattern")
    options.add_argument("--again", action="store_true", help="judge only what the run before let live")
    options.add_argument("--jobs", type=int, default=os.cpu_count())
    given = options.parse_args()
    builder = Builder(given.root.resolve(), given.build.resolve(), given.compiler)
    copy = builder.run()
    report = Report(copy, builder.root, read_excluded(builder.root / "tests/mutation/not_counted.txt"))
    mutants = [m for m in copy.mutants if re.search(given.only, m.file) and m.number not in report.reasons]
    earlier = builder.home / "results.json"
    before = json.loads(earlier.read_text()) if given.again and earlier.exists() else {}
    report.results = {m.number: "killed" for m in mutants if before.get(m.key) == "killed"}
    living = [mutant for mutant in mutants if mutant.number not in report.results]
    print(f"{len(living)} of {len(mutants)} mutants", flush=True)
    stories = Stories(builder.root, builder.tree / "mutation_player", given.stories)
    killers = Killers(builder.home / "killers.json")
    try:
        judge_all(Judge(stories, killers, given.most), living, report.results, "killed", given.jobs)
        if given.units:
            builder.target = "reelora_tests"
            builder.run()
            units = UnitTests(builder.tree / "reelora_tests", stories.at_start)
            living = [mutant for mutant in living if report.results[mutant.number] != "killed"]
            judge_all(units, living, report.results, "unit test", given.jobs)
    finally:
        killers.save()
        before |= {mutant.key: report.results[mutant.number] for mutant in mutants if mutant.number in report.results}
        earlier.write_text(json.dumps(before))
        shutil.rmtree(stories.scratch, ignore_errors=True)
    text = report.text()
    (builder.home / "report.txt").write_text(text)
    print(text.split("\nLeft out")[0])
    counts = report.counts(mutants)
    killed = counts["killed"]
    share = 100 * killed / max(1, len(mutants))
    print(f"{killed} of {len(mutants)} killed by stories, {share:.1f} %; {counts['unit test']} more by unit tests")
    print(f"The whole report: {builder.home / 'report.txt'}")
    return 0 if share >= given.floor else 1


if __name__ == "__main__":
    sys.exit(main())
