"""A copy of the tree to put faults into: its build, and its unit tests run until the first one fails."""

import json
import math
import os
import pathlib
import resource
import signal
import subprocess

LONGEST = 1800  # seconds of processor for a test program without a fault
STANDSTILL = 6 * 3600  # seconds after which a program that waits for nothing is given up
SLOW_TEST = 0.5  # seconds from which on a test is run last
QUICK, SLOW = "quick", "slow"
MEMORY = 4 << 30  # bytes that a test program may ask for: a fault may make it ask for ever
# Asserting containers: a row beside the list is to fail here, and not only sometimes.
FLAGS = ["-O0", "-w", "-D_GLIBCXX_ASSERTIONS"]
# What nearly every source reads first, compiled once: a fault in a header means nearly all of them anew.
COMMON_HEADERS = ["gtest/gtest.h", "algorithm", "chrono", "functional", "map", "memory", "optional", "string", "vector"]
os.environ["CCACHE_SLOPPINESS"] = "pch_defines,time_macros"  # or the cache passes such sources by


class Broken(Exception):
    """The tree itself does not build or fails its tests."""


class Copy:
    def __init__(self, root, folder, jobs, timeout):
        self.root, self.tree, self.build = root, folder / "tree", folder / "build"
        self.jobs, self.timeout = jobs, timeout
        self.programs = {}  # path of a test program: its quick and its slow part

    def prepare(self):
        """Makes the copy equal to the checkout, whatever an earlier run left in it, and sees that its tests pass."""
        self._take_over()
        self._configure()
        if not self._build(["all"]):
            raise Broken(f"{self.tree} does not build")
        for program in self._test_programs():
            self.programs[program] = self._measure(program)

    def outcome(self, path, text):
        """What the tests say of the copy with `text` in the file `path`: the failure, "" for none, or None where it
        does not build. The file is as before afterwards."""
        place = self.tree / path
        whole = place.read_text()
        try:
            place.write_text(text)
            return self._outcome(path)
        finally:
            place.write_text(whole)

    def _outcome(self, path):
        near = [one for one in self.programs if one.parent.name == pathlib.PurePath(path).parts[0]]
        others = [one for one in self.programs if one not in near]
        # Nearly every fault is found by the quick tests of its own folder; the slow ones are for what is left then.
        for programs, part in ((near, QUICK), (others, QUICK), (near, SLOW), (others, SLOW)):
            if part == QUICK and programs and not self._build([program.name for program in programs]):
                return None
            for program in programs:
                failure = self._test(program, self.programs[program][part])
                if failure:
                    return failure
        return ""

    def _measure(self, program):
        """Runs all tests of a program; gives its quick and its slow part, each as a filter and its seconds."""
        report = self.build / "tests.json"
        failure = self._run_tests(program, [f"--gtest_output=json:{report}"], LONGEST)
        if failure:
            raise Broken(f"without any fault: {failure}")
        times = {}
        for suite in json.loads(report.read_text())["testsuites"]:
            for test in suite["testsuite"]:
                times[f"{suite['name']}.{test['name']}"] = float(test["time"].rstrip("s"))
        slow = [name for name, seconds in times.items() if seconds > SLOW_TEST]
        total = sum(times.values())
        total_slow = sum(times[name] for name in slow)
        return {QUICK: ("-" + ":".join(slow), total - total_slow), SLOW: (":".join(slow), total_slow)}

    def _test(self, program, part):
        chosen, seconds = part
        return self._run_tests(program, [f"--gtest_filter={chosen}"], self.timeout + 5 * seconds) if chosen else ""

    def _configure(self):
        """Nothing but the core and its tests."""
        self.build.mkdir(exist_ok=True)
        common = self.build / "common.h"
        if not common.with_suffix(".h.gch").is_file():
            common.write_text("".join(f"#include <{header}>\n" for header in COMMON_HEADERS))
            self._run(["c++", "-std=c++20", *FLAGS, "-x", "c++-header", common])
        flags = " ".join([*FLAGS, "-include", str(common)])
        options = {"CORVANTA_REAL_WORLD": "OFF", "CMAKE_DISABLE_FIND_PACKAGE_benchmark": "ON",
                   "CMAKE_BUILD_TYPE": "Debug", "CMAKE_CXX_FLAGS_DEBUG": flags}  # fmt: skip
        given = [f"-D{name}={value}" for name, value in options.items()]
        if not self._run(["cmake", "-S", self.tree, "-B", self.build, "-G", "Ninja", *given]):
            raise Broken(f"{self.build} cannot be configured")

    def _take_over(self):
        listed = subprocess.run(["git", "ls-files", "-co", "--exclude-standard"], cwd=self.root, check=True,
                                capture_output=True, text=True).stdout.splitlines()  # fmt: skip
        wanted = {name for name in listed if (self.root / name).is_file()}
        present = {str(one.relative_to(self.tree)) for one in self.tree.rglob("*") if one.is_file()}
        for name in present - wanted:
            (self.tree / name).unlink()
        for name in wanted:
            content, place = (self.root / name).read_bytes(), self.tree / name
            if not place.is_file() or place.read_bytes() != content:
                place.parent.mkdir(parents=True, exist_ok=True)
                place.write_bytes(content)

    def _test_programs(self):
        listed = subprocess.run(["ctest", "--show-only=json-v1"], cwd=self.build, check=True, capture_output=True)
        programs = set()
        for test in json.loads(listed.stdout)["tests"]:
            labels = [value for one in test["properties"] if one["name"] == "LABELS" for value in one["value"]]
            program = pathlib.Path(test.get("command", [""])[0])
            if "slow" not in labels and self.build in program.parents:
                programs.add(program)
        return sorted(programs)

    def _build(self, targets):
        return self._run(["cmake", "--build", self.build, "-j", str(self.jobs), "--target", *targets])

    def _run(self, command):
        return subprocess.run(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL).returncode == 0

    def _run_tests(self, program, options, timeout):
        """The first failure of a test program in words; "" where all its tests pass."""
        process = subprocess.Popen([program, "--gtest_fail_fast", "--gtest_brief=1", *options], cwd=program.parent,
                                   text=True, errors="replace", stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                                   start_new_session=True,
                                   preexec_fn=lambda: set_limits(math.ceil(timeout)))  # fmt: skip
        try:
            output, _ = process.communicate(timeout=STANDSTILL)
        except subprocess.TimeoutExpired:
            os.killpg(process.pid, signal.SIGKILL)
            process.communicate()
            return f"{program.name} stands still"
        if process.returncode == -signal.SIGXCPU:
            return f"{program.name} does not end"
        if process.returncode == 0:
            return ""
        failed = [line.split()[3].rstrip(",") for line in output.splitlines() if line.startswith("[  FAILED  ]")]
        return f"{program.name} {failed[0] if failed else f'ends with {process.returncode}'}"


def set_limits(seconds):
    # Of the processor, and not by the clock: on a busy machine, or when the run is paused, nothing counts as endless.
    resource.setrlimit(resource.RLIMIT_CPU, (seconds, seconds + 5))
    resource.setrlimit(resource.RLIMIT_AS, (MEMORY, MEMORY))
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
