"""Finding controls the way a screen reader does: by role and name in the accessibility tree. A control that is not on
the screen is not found.
"""
import accessibility
from gi.repository import GLib
from waiting import waitUntil

# What the tests call a role, where that is not what the bus calls it.
ROLES = {"button": "push button", "field": "text", "row": "list item", "window": "frame"}


class Control:
    def __init__(self, element):
        self._element = element

    @property
    def name(self):
        return self._element.name()

    @property
    def box(self):
        """Left, top, width, height, in pixels of the screen."""
        return self._element.box()

    def point(self, across=0.5, down=0.5):
        """A point in it, as fractions of its extents; the middle where none are given."""
        left, top, width, height = self.box
        return round(left + across * width), round(top + down * height)

    @property
    def text(self):
        """What stands in a field, its lines ended by newlines."""
        return self._element.text().replace("\N{LINE SEPARATOR}", "\n")

    @property
    def focused(self):
        return self._element.has(accessibility.FOCUSED)

    @property
    def active(self):
        """Whether it is the window that has the keyboard."""
        return self._element.has(accessibility.ACTIVE)

    def all(self, role, named=None):
        """Every control in it with the role, of those on the screen; with the name, or one that `named(name)` takes."""
        accepts = named if callable(named) else lambda name: named in (None, name)
        return [control for control in self._withRole(ROLES.get(role, role)) if accepts(control.name)]

    def find(self, role, named=None):
        """The one such control in it, as soon as there is exactly one."""
        def one():
            found = self.all(role, named)
            return found[0] if len(found) == 1 else None
        return waitUntil(one, lambda: f"there is one {role} named {named!r}; there are\n{self._tree()}")

    def _children(self):
        return [Control(child) for child in self._element.children() if child.has(accessibility.SHOWING)]

    def _withRole(self, role):
        """A control in a control of the same role is not looked for."""
        for child in self._children():
            if child._element.role() == role:
                yield child
            else:
                yield from child._withRole(role)

    def _tree(self, indent="  "):
        return "".join(f"{indent}{child._element.role()} {child.name!r}\n{child._tree(indent + '  ')}"
                       for child in self._children())


def applicationOf(process):
    """The controls of a program; nothing while it is not on the accessibility bus."""
    element = accessibility.applicationOf(process)
    return element and Control(element)


class MenuWatch:
    """Notices menus, which are windows of their own that only their events lead to."""

    def __init__(self):
        self._open = []
        self.end = accessibility.watchShowing(self._changed)

    def _changed(self, element, shows):
        if not shows:
            self._open = [menu for menu in self._open if menu != element]
        elif self._isMenu(element):
            self._open.append(element)

    @staticmethod
    def _isMenu(element):
        try:
            return element.role() == "popup menu"
        except GLib.Error:
            return False  # it is gone already

    def waitUntilOpen(self):
        waitUntil(lambda: self._open, "a menu was open")

    def item(self, title):
        """The item of an open menu; its name may go on with its key."""
        def found():
            items = [item for menu in self._open for item in Control(menu).all("menu item")]
            return next((item for item in items if item.name.split("\t")[0] == title), None)
        return waitUntil(found, lambda: f"a menu had {title!r}; there are\n"
                         + "\n".join(Control(menu)._tree() for menu in self._open))

    def waitUntilClosed(self):
        waitUntil(lambda: not self._open, "the menu was closed")
