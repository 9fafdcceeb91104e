"""Every source is compiled and every test file runs: each is named in the CMakeLists.txt of its folder or one above."""

import re


def check(tree):
    words = {path: set(re.findall(r"[^\s()]+", tree.read(path))) for path in tree.files if path.name == "CMakeLists.txt"}
    problems = []
    for path in tree.with_suffix(".cpp"):
        lists = [folder / "CMakeLists.txt" for folder in path.parents]
        if not any(path.relative_to(listed.parent).as_posix() in words.get(listed, ()) for listed in lists):
            problems.append(f"{path} is built by nothing: name it in {path.parent / 'CMakeLists.txt'}")
    return problems
