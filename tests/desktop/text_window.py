"""Another program on the desktop: a window with a plain text in it that can be dragged out of it and dropped into it.
Started with the text and the place of the window, and run until it is ended. Its title tells when a drag over it has been
answered, and when its first drag out of it, its second and so on is welcome where it is.

    text_window.py "two\nlines" 850 200
"""
import sys

import gi

gi.require_version("Gtk", "3.0")
from gi.repository import Gtk  # pylint: disable=wrong-import-position


class TextWindow(Gtk.Window):
    def __init__(self, text, left, top):
        super().__init__(title="Text")
        self._positions = set()
        self._dragsOut = 0
        self._view = Gtk.TextView(left_margin=10, top_margin=10)
        buffer = self._view.get_buffer()
        buffer.set_text(text)
        buffer.select_range(*buffer.get_bounds())
        self._view.connect("drag-motion", self._dragOver)
        self._view.connect("drag-begin", self._dragOut)
        self.add(self._view)
        self.set_accept_focus(False)
        self.set_default_size(300, 300)
        self.move(left, top)
        self.connect("destroy", Gtk.main_quit)
        self.show_all()

    def _dragOver(self, _view, _context, x, y, _time):
        self._positions.add((x, y))
        # A drag reports its next position only when it has the answer to the one before.
        if len(self._positions) > 1:
            self.set_title("Text, answered")
        return False

    def _dragOut(self, _view, context):
        self._dragsOut += 1
        context.connect("action-changed", lambda _context, action: self.set_title(
            f"Text, {'welcome' if action else 'unwelcome'} {self._dragsOut}"))


window = TextWindow(sys.argv[1], *map(int, sys.argv[2:]))
Gtk.main()
