"""Another program on the desktop: a window with a plain text in it that can be dragged out of it and dropped into it.
Started with the text, which is selected, and the place of the window, and run until it is ended. Its title tells when a
drag over it has been answered, and when a drag out of it is welcome where it is.

    text_window.py "two\nlines" 850 200
"""
import sys

import gi

gi.require_version("Gtk", "3.0")
from gi.repository import Gtk  # pylint: disable=wrong-import-position

positions = set()


def dragOver(_view, _context, x, y, _time):
    positions.add((x, y))
    # A drag reports its next position only when it has the answer to the one before.
    if len(positions) > 1:
        window.set_title("Text, answered")


def dragOut(_view, context):
    context.connect("action-changed", lambda _, action: window.set_title("Text, welcome" if action else "Text"))


text, left, top = sys.argv[1:]
# With room behind what is selected: on that nothing can be dropped.
buffer = Gtk.TextBuffer(text=text + "\n\n")
buffer.select_range(buffer.get_start_iter(), buffer.get_iter_at_offset(len(text)))
view = Gtk.TextView(buffer=buffer, left_margin=10, top_margin=10)
view.connect("drag-motion", dragOver)
view.connect("drag-leave", lambda *_: positions.clear())
view.connect("drag-begin", dragOut)
window = Gtk.Window(title="Text", accept_focus=False, default_width=300, default_height=300)
window.add(view)
window.move(int(left), int(top))
window.show_all()
Gtk.main()
