"""A form's controls as a screen reader finds them: by the names on the screen."""

import time

from .patience import until


class Reader:
    """Looks at the programs on the bus that the environment names. Make it after the desk is up."""

    def __init__(self, screen):
        import gi

        gi.require_version("Atspi", "2.0")
        from gi.repository import Atspi

        self._atspi = Atspi
        self._screen = screen
        Atspi.init()
        Atspi.set_timeout(2000, 2000)

    def find(self, name, role=None):
        """The first control on show with that name; None when there is none."""
        try:
            desktop = self._atspi.get_desktop(0)
            programs = (desktop.get_child_at_index(index) for index in range(desktop.get_child_count()))
            return next(filter(None, (self._search(program, name, role) for program in programs)), None)
        except self._gone():
            return None

    def text_of(self, name):
        """What the entry field of that name holds; None when there is none."""
        field = self.find(name, "text")
        try:
            return field and self._atspi.Text.get_text(field, 0, -1)
        except self._gone():
            return None

    def press(self, name, role="push button"):
        """Clicks a button with the mouse, where it stands."""
        place = until(f'a {role} "{name}" on the screen', lambda: self._resting_place(name, role))
        self._screen.click(place.x + place.width // 2, place.y + place.height // 2)

    def choose_entry(self, *entries):
        """Opens menu after menu and chooses the last entry."""
        for entry in entries:
            self.press(entry, "menu item")

    def write_over(self, field, text, role="text"):
        """Writes `text` in the place of all that an entry field holds."""
        self.press(field, role)
        self._screen.keys("ctrl+a")
        self._screen.type(text)

    def choose_file(self, button, title, file):
        """Presses a button and chooses the file in the dialog of that title."""
        self.press(button)
        until(f"the dialog {title}", lambda: self._screen.window(title=title))
        self._screen.type(str(file))
        self._screen.keys("Return")
        until("the dialog to go", lambda: self._screen.window(title=title) is None)

    def _resting_place(self, name, role):
        """Where it is, once its window has come to rest."""
        first = self.place(name, role)
        time.sleep(0.2)
        now = self.place(name, role)
        at_rest = first and now and (first.x, first.y, first.width) == (now.x, now.y, now.width)
        return now if at_rest else None

    def place(self, name, role=None):
        """Where a control stands on the screen; None when there is none."""
        control = self.find(name, role)
        try:
            return control and self._atspi.Component.get_extents(control, self._atspi.CoordType.SCREEN)
        except self._gone():
            return None

    def _search(self, node, name, role):
        # What is inside a closed list says that it shows; that the list does not is the truth.
        if node is None or not self._shows(node):
            return None
        if node.get_name() == name and (role is None or node.get_role_name() == role):
            return node
        for index in range(node.get_child_count()):
            found = self._search(node.get_child_at_index(index), name, role)
            if found is not None:
                return found
        return None

    def _shows(self, node):
        return node.get_state_set().contains(self._atspi.StateType.SHOWING)

    def _gone(self):
        from gi.repository import GLib

        return GLib.Error
