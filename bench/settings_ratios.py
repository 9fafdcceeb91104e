#!/usr/bin/python3
"""Runs the benchmark of the store and says how it stands beside the other libraries, all measured in the same run.

settings_ratios.py BUILD-FOLDER
"""

import json
import pathlib
import subprocess
import sys

RATIOS = [
    ("ReadValue", "SimpleIniReadValue", "SimpleIni, loading the file at each read"),
    ("ReadValue", "QSettingsReadValue", "QSettings, looking at the file at each read"),
    ("WriteValue/real_time", "SimpleIniWriteValue/real_time", "SimpleIni, saving the file at each write"),
    ("WriteValue/real_time", "QSettingsWriteValue/real_time", "QSettings, saving the file at each write"),
]


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    program = pathlib.Path(sys.argv[1], "bench", "settings_bench")
    report = subprocess.run([program, "--benchmark_format=json", "--benchmark_repetitions=5"],
                            check=True, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL).stdout
    medians = {}
    for result in json.loads(report)["benchmarks"]:
        if result.get("aggregate_name") == "median":
            medians[result["run_name"]] = result
    nanoseconds = {"ns": 1, "us": 1e3, "ms": 1e6}
    for name, result in medians.items():
        more = "".join(f", {key} {result[key]:.1f}" for key in ("median_us", "p99_us") if key in result)
        print(f"{name:35} {result['real_time'] * nanoseconds[result['time_unit']] / 1000:12.2f} us{more}")
    for ours, theirs, what in RATIOS:
        if ours in medians and theirs in medians:
            ratio = medians[theirs]["real_time"] / medians[ours]["real_time"]
            print(f"{ours.split('/')[0]} is {ratio:.1f} times as fast as {what}")


if __name__ == "__main__":
    main()
