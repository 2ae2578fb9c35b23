"""A clipboard manager: prints the text that a program hands over at its end."""
import gi
gi.require_version("Gtk", "3.0")
from gi.repository import Gtk, Gdk  # In this order, since GTK knows which GDK it needs.

clipboard = Gtk.Clipboard.get(Gdk.SELECTION_CLIPBOARD)
window = Gtk.Invisible()
# GTK itself answers the request afterwards.
window.connect("selection-request-event", lambda *_: print(clipboard.wait_for_text(), flush=True))
Gtk.selection_owner_set(window, Gdk.atom_intern("CLIPBOARD_MANAGER", False), 0)
Gtk.main()
