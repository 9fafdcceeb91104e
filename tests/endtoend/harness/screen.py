"""What can be seen on a display: its windows and its pixels."""

import ctypes
import dataclasses
import subprocess

from . import xlib

VIEWABLE = 2
ALL_PLANES = 0xFFFFFFFF
Z_PIXMAP = 2
CLIENT_MESSAGE = 33
SUBSTRUCTURE_REDIRECT = 1 << 20
REDIRECT_AND_NOTIFY = SUBSTRUCTURE_REDIRECT | (1 << 19)


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
        line = head.bytes_per_line
        raw = ctypes.string_at(head.data, line * head.height)
        xlib.XDestroyImage(image)  # and with it what `head` reads from
        return [raw[row * line :][: 4 * width] for row in range(height)]

    def pixels(self, x, y, width, height):
        """Rows of (red, green, blue); black where the rectangle cannot be read."""
        rows = self.rows(x, y, width, height)
        return [[(line[i + 2], line[i + 1], line[i]) for i in range(0, 4 * width, 4)] for line in rows]

    def pixel(self, x, y):
        return self.pixels(x, y, 1, 1)[0][0]

    def ask_to_close(self, window):
        """What a click on the close box of the window's frame does."""
        self._ask_the_manager(b"_NET_CLOSE_WINDOW", window.number, 0, 2)

    def bare_the_desktop(self):
        """What the key of the window manager does that takes all windows off the screen."""
        self._ask_the_manager(b"_NET_SHOWING_DESKTOP", self._root, 1)

    def is_bare(self):
        return self._root_number(b"_NET_SHOWING_DESKTOP") == 1

    def switch_to_desktop(self, number):
        """Another of the window manager's desktops, from 0, is shown."""
        self._ask_the_manager(b"_NET_CURRENT_DESKTOP", self._root, number)

    def desktop(self):
        return self._root_number(b"_NET_CURRENT_DESKTOP")

    def minimise(self, window):
        self._do("windowminimize", str(window.number))

    def has_window_manager(self):
        """One that has gone may have left its mark, but not the window that this names."""
        mark = b"_NET_SUPPORTING_WM_CHECK"
        number = self._root_number(mark)
        return number is not None and self._property(number, mark) == [number]

    def lose_requests(self, losing):
        """Takes the place of a window manager that is asked to bring windows on the screen and brings none."""
        xlib.XSelectInput(self._display, self._root, SUBSTRUCTURE_REDIRECT if losing else 0)
        xlib.XFlush(self._display)

    def has_made(self, form):
        """There is a window of that form, on the screen or not."""
        return any(self._class(child) == form for child in self._children(self._root))

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

    def _ask_the_manager(self, what, window, *numbers):
        event = xlib.ClientMessage(type=CLIENT_MESSAGE, window=window, format=32)
        event.message_type = xlib.XInternAtom(self._display, what, 0)
        for index, number in enumerate(numbers):
            event.data[index] = number
        xlib.XSendEvent(self._display, self._root, 0, REDIRECT_AND_NOTIFY, ctypes.byref(event))
        xlib.XFlush(self._display)

    def _root_number(self, name):
        """The first number that a property of the root window holds; None where there is none."""
        return next(iter(self._property(self._root, name) or []), None)

    def _property(self, window, name):
        """What a property of a window holds, a text or a list of numbers; None where there is none."""
        atom = xlib.XInternAtom(self._display, name, 0)
        kind, unit, count, rest, data = xlib.Atom(), ctypes.c_int(), ctypes.c_ulong(), ctypes.c_ulong(), xlib.Pointer()
        failed = xlib.XGetWindowProperty(self._display, window, atom, 0, 1024, 0, 0, kind, unit, count, rest, data)
        if failed or not data:
            return None
        if unit.value == 32:
            held = ctypes.cast(data, xlib.ulong_p)[: count.value]
        else:
            held = ctypes.string_at(data, count.value).decode(errors="replace")
        xlib.XFree(data)
        return held

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
        return self._property(window, b"_NET_WM_NAME") or ""
