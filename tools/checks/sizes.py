"""A file is a subject; a very long one is several."""

MOST_LINES = 500


def check(tree):
    problems = []
    for path in tree.with_suffix(".h", ".cpp", ".py", ".txt", ".cmake", ".qml"):
        lines = tree.read(path).count("\n")
        if lines > MOST_LINES:
            problems.append(f"{path} has {lines} lines, more than {MOST_LINES}: split it by subject")
    return problems
