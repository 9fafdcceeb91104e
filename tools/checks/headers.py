"""Each header compiles alone, so that a file may include it first.

Where the source of the same name includes it first, the build itself has shown that; the others are compiled here.
"""

import concurrent.futures
import json
import os
import pathlib
import re
import shlex
import subprocess

BUILD = pathlib.Path("build/release")
KEPT_FLAGS = ("-I", "-D", "-std", "-W", "-f")


def check(tree):
    database = tree.root / BUILD / "compile_commands.json"
    if not database.exists():
        return [f"{BUILD} is not configured yet: cmake --preset release"]
    flags = flags_by_folder(database, tree.root)
    headers = [path for path in tree.with_suffix(".h") if not shown_by_the_build(tree, path)]
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        problems = pool.map(lambda header: compile_alone(tree, header, flags), headers)
    return [problem for problem in problems if problem]


def shown_by_the_build(tree, header):
    source = header.with_suffix(".cpp")
    if source not in tree.files:
        return False
    first = re.search(r'^#include\s+(\S+)', tree.read(source), re.MULTILINE)
    return first is not None and first.group(1) == f'"{header.as_posix()}"'


def flags_by_folder(database, root):
    """What the sources of a folder are compiled with: a header needs the same."""
    flags = {}
    for entry in json.loads(database.read_text()):
        source = pathlib.Path(entry["file"])
        if not source.is_relative_to(root) or source.is_relative_to(root / "build"):
            continue
        words = shlex.split(entry["command"])
        kept = []
        for word, following in zip(words, words[1:] + [""]):
            if word.startswith(KEPT_FLAGS):
                kept.append(word)
            elif word == "-isystem":
                kept += [word, following]
        flags.setdefault(source.parent.relative_to(root), kept)
    return flags


def compile_alone(tree, header, flags):
    nearest = next((folder for folder in header.parents if folder in flags), None)
    known = flags[nearest] if nearest is not None else ["-std=c++20", f"-I{tree.root}"]
    # A file of its own, kept as it is while it is right, so that ccache knows the answer the next time.
    alone = tree.root / "build" / "headers" / f"{header}.cpp"
    text = f'#include "{header.as_posix()}"\n'
    if not alone.exists() or alone.read_text() != text:
        alone.parent.mkdir(parents=True, exist_ok=True)
        alone.write_text(text)
    command = ["ccache", "g++", *known, f"-I{tree.root}", "-O0", "-c", str(alone), "-o", f"{alone}.o"]
    run = subprocess.run(command, cwd=tree.root, capture_output=True, text=True)
    if run.returncode == 0:
        return ""
    first = next((line for line in run.stderr.splitlines() if "error:" in line), run.stderr.strip()[:300])
    return f"{header} does not compile alone; include what it uses: {first}"
