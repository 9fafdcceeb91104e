"""C++ sources are laid out by clang-format."""

import subprocess


def check(tree):
    sources = [str(path) for path in tree.with_suffix(".h", ".cpp")]
    if not sources:
        return []
    command = ["clang-format-14", "--dry-run", "--ferror-limit=1", *sources]
    report = subprocess.run(command, cwd=tree.root, capture_output=True, text=True).stderr
    wrong = sorted({line.split(":")[0] for line in report.splitlines() if "-Wclang-format-violations" in line})
    return [f"{path} is not laid out by clang-format: clang-format-14 -i {path}" for path in wrong]
