"""Every package that is installed has its reason written down."""

import pathlib
import re

LIST = pathlib.Path("tools/packages.txt")
REASONS = pathlib.Path("docs/decisions/dependencies.md")


def check(tree):
    installed = tree.read(LIST).split()
    explained = set(re.findall(r"^\| `([^`]+)`", tree.read(REASONS), re.MULTILINE))
    problems = [f"{REASONS} gives no reason for {name}: add a row" for name in installed if name not in explained]
    problems += [f"{REASONS} explains {name}, which {LIST} does not install" for name in explained - set(installed)]
    if installed != sorted(installed):
        problems.append(f"{LIST} is not in order: LC_ALL=C sort -o {LIST} {LIST}")
    return problems
