"""What the project says must make sense to whoever has nothing but the project."""

import re

ABSENT_PAPERS = re.compile(r"\bspecificatio[n]\b|\bspec\.m[d]\b|\bPart [0-9]+\.[0-9]|\bissue #?[0-9]+", re.IGNORECASE)
FOREIGN_PATHS = re.compile(r"(?<![\w.}$~])/(?:root|wor[k])/\w")
TEXT = {".h", ".cpp", ".py", ".md", ".txt", ".ui", ".qml", ".js", ".json", ".cmake", ".svg", ""}


def check(tree):
    problems = []
    for path in tree.files:
        if path.suffix not in TEXT or path.name == "package-lock.json":
            continue
        for number, line in enumerate(tree.read(path).splitlines(), 1):
            if ABSENT_PAPERS.search(line):
                problems.append(f"{path}:{number} points at a paper that is not here; say what the station does and why")
            if FOREIGN_PATHS.search(line):
                problems.append(f"{path}:{number} names a path of one person's machine; use a relative one")
    return problems
