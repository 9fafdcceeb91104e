"""The controls of a form and the widgets of its layout are the same, by name."""

import re
import xml.etree.ElementTree

# A control is a member that is handed its container and its name: `CheckBox chkTime{*this, "chkTime"}`.
MEMBER = re.compile(r'\b([A-Z]\w+)\s+\w+\{\s*[\w*]+,\s*"(\w+)"')
# Members of an array are handed the same, one by one: `MenuItem mnuSWF[2]{{*this, "mnuSWF_0"}, {*this, "mnuSWF_1"}}`.
ARRAY = re.compile(r'\b[A-Z]\w+\s+\w+\[\d+\]\{(.*?)\};', re.DOTALL)
OF_ARRAY = re.compile(r'\{\s*[\w*]+,\s*"(\w+)"')
BASE = re.compile(r'\bclass\s+\w+(?:\s+final)?\s*:\s*public\s+(\w+)')
UNSEEN = {"Timer", "TrayIcon", "ImageList", "FormExtender"}
# Widgets that only serve the layout: by name, and menus, which hold entries and do nothing themselves.
LAYOUT_ONLY = re.compile(r"lay")
HOLDERS = {"QMenuBar", "QMenu"}


def check(tree):
    problems = []
    for path in tree.with_suffix(".ui"):
        header = path.with_suffix(".h")
        if header not in tree.files:
            problems.append(f"{path} has no {header.name} beside it: a form is .h, .cpp and .ui")
            continue
        declared = with_base(tree, header)
        controls = {name for kind, name in MEMBER.findall(declared) if kind not in UNSEEN}
        controls |= {name for array in ARRAY.findall(declared) for name in OF_ARRAY.findall(array)}
        widgets = widget_names(tree.root / path)
        for name in sorted(controls - widgets):
            problems.append(f"{path} has no widget {name}, a control of {header.name}")
        for name in sorted(widgets - controls - widget_names(tree.root / path, HOLDERS)):
            problems.append(f"{header} has no control {name}, a widget of {path.name}; call mere layout lay{name}")
    return problems


def with_base(tree, header):
    """The text of a form's header, and of the one beside it that holds the design that the form is one of."""
    text = tree.read(header)
    bases = (header.with_name(f"{name}.h") for name in BASE.findall(text))
    return "\n".join([text, *(tree.read(base) for base in bases if base in tree.files)])


def widget_names(path, kinds=None):
    """The names in a layout below its top; only of these classes, if any are given."""
    top = xml.etree.ElementTree.parse(path).getroot().find("widget")
    widgets = [element for element in top.iter() if element.tag in ("widget", "action") and element is not top]
    names = {element.get("name") for element in widgets if kinds is None or element.get("class") in kinds}
    return {name for name in names if name and not LAYOUT_ONLY.match(name)}
