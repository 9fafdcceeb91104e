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
    here = ""
    for line in _lines(path):
        if _names_a_section(line):
            here = line[1:-1].lower()
        elif here == section.lower() and "=" in line:
            name, _, found = line.partition("=")
            if name.strip().lower() == key.lower():
                return found.strip()
    return ""


def sections(path):
    return [line[1:-1] for line in _lines(path) if _names_a_section(line)]


def _lines(path):
    try:
        return [line.strip() for line in path.read_bytes().decode("utf-8", errors="replace").splitlines()]
    except OSError:
        return []


def _names_a_section(line):
    return line.startswith("[") and line.endswith("]")
