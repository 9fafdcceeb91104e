"""INI files as a station reads and writes them."""


def text(sections):
    lines = []
    for name, keys in sections.items():
        lines += [f"[{name}]", *(f"{key}={value}" for key, value in keys.items())]
    return "".join(f"{line}\r\n" for line in lines)


def write(path, sections):
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_bytes(text(sections).encode())


def value(path, section, key):
    """The value of a key, "" where there is none. Names ignore case."""
    try:
        content = path.read_bytes().decode("utf-8", errors="replace")
    except OSError:
        return ""
    here = ""
    for line in content.splitlines():
        line = line.strip()
        if line.startswith("[") and line.endswith("]"):
            here = line[1:-1].lower()
        elif here == section.lower() and "=" in line:
            name, _, found = line.partition("=")
            if name.strip().lower() == key.lower():
                return found.strip()
    return ""
