"""What can be seen on a display: its windows and its pixels."""

import ctypes
import dataclasses
import subprocess

from . import xlib

VIEWABLE = 2
ALL_PLANES = 0xFFFFFFFF
Z_PIXMAP = 2
CLIENT_MESSAGE = 33
REDIRECT_AND_NOTIFY = (1 << 20) | (1 << 19)


@dataclasses.dataclass(frozen=True)
class SeenWindow:
    """A window of a program, without its frame. `form` is the first part of its WM_CLASS."""

    number: int
    form: str
    title: str
    x: int
    y: int
    width: int
    height: int

    @property
    def centre(self):
        return self.x + self.width // 2, self.y + self.height // 2


class Screen:
    def __init__(self, name):
        self.name = name
        self._display = xlib.XOpenDisplay(name.encode())
        if not self._display:
            raise RuntimeError(f"cannot open the display {name}")
        self._root = xlib.XDefaultRootWindow(self._display)

    def close(self):
        xlib.XCloseDisplay(self._display)

    def windows(self):
        """The windows on show that carry a class or a title, from the back to the front."""
        found = []
        self._collect(self._root, found)
        return found

    def window(self, form=None, title=None):
        """The first window on show of that form or title; None when there is none."""
        for seen in self.windows():
            if (form is None or seen.form == form) and (title is None or seen.title == title):
                return seen
        return None

    def front(self):
        """The form in front of all others."""
        return next((seen.form for seen in reversed(self.windows()) if seen.form), None)

    def rows(self, x, y, width, height):
        """What is seen there, a string of bytes for each row; all zeros where the rectangle cannot be read."""
        image = xlib.XGetImage(self._display, self._root, x, y, width, height, ALL_PLANES, Z_PIXMAP)
        if not image:
            return [bytes(4 * width)] * height
        head = image.contents
        raw = ctypes.string_at(head.data, head.bytes_per_line * head.height)
        xlib.XDestroyImage(image)
        return [raw[row * head.bytes_per_line :][: 4 * width] for row in range(height)]

    def pixels(self, x, y, width, height):
        """Rows of (red, green, blue); black where the rectangle cannot be read."""
        rows = self.rows(x, y, width, height)
        return [[(line[i + 2], line[i + 1], line[i]) for i in range(0, 4 * width, 4)] for line in rows]

    def pixel(self, x, y):
        return self.pixels(x, y, 1, 1)[0][0]

    def ask_to_close(self, window):
        """What a click on the close box of the window's frame does."""
        event = xlib.ClientMessage(type=CLIENT_MESSAGE, window=window.number, format=32)
        event.message_type = xlib.XInternAtom(self._display, b"_NET_CLOSE_WINDOW", 0)
        event.data[1] = 2
        xlib.XSendEvent(self._display, self._root, 0, REDIRECT_AND_NOTIFY, ctypes.byref(event))
        xlib.XFlush(self._display)

    def dock(self, left, width, height, desktop_height):
        """Puts up a panel of the desktop along the bottom, `height` pixels deep, that keeps its place free."""
        top = desktop_height - height
        panel = xlib.XCreateSimpleWindow(self._display, self._root, left, top, width, height, 0, 0, 0x404040)
        dock = xlib.XInternAtom(self._display, b"_NET_WM_WINDOW_TYPE_DOCK", 0)
        self._set(panel, b"_NET_WM_WINDOW_TYPE", xlib.XA_ATOM, [dock])
        strut = [0, 0, 0, height, 0, 0, 0, 0, 0, 0, left, left + width - 1]
        self._set(panel, b"_NET_WM_STRUT_PARTIAL", xlib.XA_CARDINAL, strut)
        xlib.XMapWindow(self._display, panel)
        xlib.XFlush(self._display)

    def claim_compositing(self):
        """Says that a compositing manager runs, where none does."""
        window = xlib.XCreateSimpleWindow(self._display, self._root, -1, -1, 1, 1, 0, 0, 0)
        xlib.XSetSelectionOwner(self._display, xlib.XInternAtom(self._display, b"_NET_WM_CM_S0", 0), window, 0)
        xlib.XFlush(self._display)

    def keys(self, *keys):
        self._do("key", *keys)

    def type(self, text):
        self._do("type", text)

    def click(self, x, y):
        self._do("mousemove", str(x), str(y), "click", "1")

    def drag(self, start, end, button=1):
        """Presses at one place, moves in steps to the other, and lets go there."""
        steps = 8
        path = [[a + (b - a) * step // steps for a, b in zip(start, end)] for step in range(steps + 1)]
        moves = [["mousemove", *map(str, place)] for place in path]
        self._do(*moves[0], "mousedown", str(button))
        for move in moves[1:]:
            self._do(*move)
        self._do("mouseup", str(button))

    def point_at(self, x, y):
        self._do("mousemove", str(x), str(y))

    def picture(self, path):
        subprocess.run(["import", "-display", self.name, "-window", "root", str(path)], check=False, timeout=20)

    def _set(self, window, name, kind, numbers):
        values = (ctypes.c_long * len(numbers))(*numbers)
        atom = xlib.XInternAtom(self._display, name, 0)
        xlib.XChangeProperty(self._display, window, atom, kind, 32, 0, values, len(numbers))

    def _do(self, *arguments):
        subprocess.run(["xdotool", *arguments], check=True, timeout=20, env={"DISPLAY": self.name})

    def _collect(self, parent, found):
        for child in self._children(parent):
            attributes = xlib.Attributes()
            if not xlib.XGetWindowAttributes(self._display, child, attributes) or attributes.map_state != VIEWABLE:
                continue
            form, title = self._class(child), self._title(child)
            if form or title:
                x, y, unused = ctypes.c_int(), ctypes.c_int(), xlib.Window()
                xlib.XTranslateCoordinates(self._display, child, self._root, 0, 0, x, y, unused)
                found.append(SeenWindow(child, form, title, x.value, y.value, attributes.width, attributes.height))
            else:
                self._collect(child, found)

    def _children(self, parent):
        root, above, children, count = xlib.Window(), xlib.Window(), xlib.window_p(), ctypes.c_uint()
        if not xlib.XQueryTree(self._display, parent, root, above, children, count) or not children:
            return []
        listed = children[: count.value]
        xlib.XFree(children)
        return listed

    def _class(self, window):
        hint = xlib.ClassHint()
        if not xlib.XGetClassHint(self._display, window, hint):
            return ""
        name = ctypes.string_at(hint.name).decode(errors="replace") if hint.name else ""
        for text in (hint.name, hint.window_class):
            if text:
                xlib.XFree(text)
        return name

    def _title(self, window):
        atom = xlib.XInternAtom(self._display, b"_NET_WM_NAME", 0)
        kind, unit, count, rest, data = xlib.Atom(), ctypes.c_int(), ctypes.c_ulong(), ctypes.c_ulong(), xlib.Pointer()
        failed = xlib.XGetWindowProperty(self._display, window, atom, 0, 1024, 0, 0, kind, unit, count, rest, data)
        if failed or not data:
            return ""
        title = ctypes.string_at(data, count.value).decode(errors="replace")
        xlib.XFree(data)
        return title
