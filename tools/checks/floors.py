"""Includes and names run down the floors, and only platform/qt and platform/posix see the real world."""

import re

FLOORS = {
    "platform": 0,
    "settings": 1,
    "controls": 1,
    "output": 2,
    "overlay": 3,
    "ads": 4,
    "playlist": 4,
    "webfeed": 4,
    "channels": 4,
    "shell": 5,
    "app": 6,
}
# Neighbours on this floor do not know each other; what they tell each other goes over app/roads.cpp.
FLOOR_OF_STRANGERS = 4
# The libraries that packed movies are unpacked with.
PACKERS = ("zlib.h", "lzma.h")
REAL_WORLDS = ("platform/qt/", "platform/posix/", "platform/sim/")
INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]+(?:"([^"]+)"|<([^>]+)>)', re.MULTILINE)
TYPE = r"^[ \t]*(?:template[^;{]*>[ \t\n]*)?(?:enum[ \t]+)?(?:class|struct)[ \t]+(\w+)"
DECLARATION = re.compile(TYPE + r"(?:[ \t]*:[ \t]*[\w:]+)?;", re.MULTILINE)
DEFINITION = re.compile(TYPE + r"[^;{}()]*\{", re.MULTILINE)


def check(tree):
    sources = {path: tree.read(path) for path in tree.with_suffix(".h", ".cpp") if path.parts[0] in FLOORS}
    homes = homes_of_types(sources)
    problems = []
    for path, text in sources.items():
        for own, system in INCLUDE.findall(text):
            problem = upwards(path, own) if own else outside(path, system)
            if problem:
                problems.append(f"{path} includes {own or system}: {problem}")
        for name in DECLARATION.findall(text):
            complaints = [upwards(path, home) for home in homes.get(name, ())]
            if complaints and all(complaints):
                problems.append(f"{path} declares {name}: {complaints[0]}")
    return problems


def homes_of_types(sources):
    """The headers that define a type, by its name: a name that is declared ahead is known, as if by an include."""
    homes = {}
    for path, text in sources.items():
        if path.suffix == ".h":
            for name in DEFINITION.findall(text):
                homes.setdefault(name, []).append(path.as_posix())
    return homes


def upwards(path, include):
    here = path.parts[0]
    there = include.split("/")[0]
    if there not in FLOORS:
        return "write it from the root of the project, as in \"settings/IniFile.h\""
    if FLOORS[there] > FLOORS[here]:
        return f"{here} lies below {there}; raise an event there and connect it in app/roads.cpp"
    if FLOORS[here] == FLOORS[there] == FLOOR_OF_STRANGERS and there != here:
        return f"{here} and {there} do not know each other; raise an event and connect it in app/roads.cpp"
    name = path.as_posix()
    if include.startswith(REAL_WORLDS) and here != "app" and not name.startswith(REAL_WORLDS):
        return "only app/ chooses a world; use the interface in platform/"
    if name.startswith("platform/qt/") and include.startswith("platform/sim/"):
        return "the real world does not know the virtual one"
    return ""


def outside(path, include):
    name = path.as_posix()
    if name.startswith("platform/qt/") or name == "app/main.cpp":
        return ""
    if re.match(r"Q|mpv/|X11/|xcb/", include):
        return "Qt, libmpv and X11 are for platform/qt alone; put what is needed behind an interface of platform/"
    is_standard = re.fullmatch(r"[a-z_]+", include)
    if name.startswith("platform/swf/") and include in PACKERS:
        return ""
    if not is_standard and not name.startswith("platform/posix/"):
        return "the core knows only the C++ standard library; put what is needed behind an interface of platform/"
    return ""
