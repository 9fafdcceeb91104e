"""The files that the checks look at."""

import pathlib
import subprocess


class Tree:
    """All files of the project that are, or could be, committed."""

    def __init__(self, root):
        self.root = pathlib.Path(root)
        # The tree may belong to another user than the one who checks it.
        command = ["git", "-c", "safe.directory=*", "ls-files", "-z", "--cached", "--others", "--exclude-standard"]
        listing = subprocess.run(command, cwd=self.root, check=True, capture_output=True).stdout.decode()
        self.files = sorted({pathlib.Path(name) for name in listing.split("\0") if name and (self.root / name).is_file()})

    def with_suffix(self, *suffixes):
        return [path for path in self.files if path.suffix in suffixes]

    def read(self, path):
        return (self.root / path).read_text(encoding="utf-8", errors="replace")
