"""Finding controls the way a screen reader does: by role and name in the accessibility tree. A control that is not on
the screen is not found. Extents are pixels of the screen.
"""
import desktop  # first, for pyatspi looks at once for the bus  # pylint: disable=unused-import
import pyatspi
from gi.repository import GLib

from waiting import waitUntil

ROLES = {
    "button": pyatspi.ROLE_PUSH_BUTTON,
    "check box": pyatspi.ROLE_CHECK_BOX,
    "field": pyatspi.ROLE_TEXT,
    "heading": pyatspi.ROLE_HEADING,
    "label": pyatspi.ROLE_LABEL,
    "list": pyatspi.ROLE_LIST,
    "menu item": pyatspi.ROLE_MENU_ITEM,
    "row": pyatspi.ROLE_LIST_ITEM,
    "window": pyatspi.ROLE_FRAME,
}


class Control:
    """One element of the tree, looked at anew at every question."""

    def __init__(self, element):
        self._element = element

    @property
    def name(self):
        return self._element.name

    @property
    def box(self):
        """Left, top, width, height."""
        extents = self._element.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        return extents.x, extents.y, extents.width, extents.height

    def point(self, across=0.5, down=0.5):
        """A point in it, as fractions of its extents; the middle where none are given."""
        left, top, width, height = self.box
        return round(left + across * width), round(top + down * height)

    @property
    def text(self):
        """What stands in a field, its lines ended by newlines."""
        return self._element.queryText().getText(0, -1).replace("\N{LINE SEPARATOR}", "\n")

    def has(self, state):
        return self._element.getState().contains(state)

    @property
    def focused(self):
        return self.has(pyatspi.STATE_FOCUSED)

    def all(self, role, named=None):
        """Every control in it with the role, of those on the screen; with the name, or one that `named(name)` takes."""
        accepts = named if callable(named) else lambda name: named in (None, name)
        return [control for control in self._withRole(ROLES[role]) if accepts(control.name)]

    def find(self, role, named=None):
        """The one such control in it, as soon as there is exactly one."""
        def one():
            found = self.all(role, named)
            return found[0] if len(found) == 1 else None
        return waitUntil(one, lambda: f"there is one {role} named {named!r}; there are\n{self._tree()}")

    def _children(self):
        for child in self._element:
            if child is not None and child.getState().contains(pyatspi.STATE_SHOWING):
                yield Control(child)

    def _withRole(self, role):
        """A control in a control of the same role is not looked for."""
        for child in self._children():
            if child._element.getRole() == role:
                yield child
            else:
                yield from child._withRole(role)

    def _tree(self, indent="  "):
        return "".join(f"{indent}{child._element.getRoleName()} {child.name!r}\n{child._tree(indent + '  ')}"
                       for child in self._children())


def applicationOf(process):
    """The tree of a program, once it is on the accessibility bus."""
    def registered():
        for application in pyatspi.Registry.getDesktop(0):
            if application is not None and application.get_process_id() == process.pid:
                return application
        return None
    application = waitUntil(registered, f"process {process.pid} was on the accessibility bus")
    application.set_cache_mask(pyatspi.Atspi.Cache.NONE)
    return Control(application)


def _isMenu(element):
    try:
        return element is not None and element.getRole() == pyatspi.ROLE_POPUP_MENU
    except GLib.Error:
        return False  # it is gone already


class MenuWatch:
    """Notices context menus, which are windows of their own that only their events lead to."""

    def __init__(self):
        self._open = []
        pyatspi.Registry.registerEventListener(self._changed, "object:state-changed:showing")

    def _changed(self, event):
        if event.detail1:
            if _isMenu(event.source):
                self._open.append(event.source)
        else:
            self._open = [menu for menu in self._open if menu != event.source]

    def menu(self):
        return Control(waitUntil(lambda: self._open, "a menu was open")[-1])

    def waitUntilClosed(self):
        waitUntil(lambda: not self._open, "the menu was closed")

    def end(self):
        pyatspi.Registry.deregisterEventListener(self._changed, "object:state-changed:showing")
