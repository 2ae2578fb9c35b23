"""Prints what a screen reader hears, and all controls of a window when the focus first gets there."""
import gi
gi.require_version("Atspi", "2.0")
from gi.repository import Atspi
ROLES = ["slider", "push button", "radio button", "check box", "text", "combo box", "progress bar"]
windows = []

def line(node):
    value = [f"{node.get_value_iface().get_current_value():g}"] if "Value" in node.get_interfaces() else []
    return "|".join([node.get_role_name(), node.get_name(), node.get_description()] + value)

def controls(node):
    children = filter(None, [node.get_child_at_index(i) for i in range(node.get_child_count())])
    shown = [child for child in children if child.get_state_set().contains(Atspi.StateType.SHOWING)]
    return [line(node)] * (node.get_role_name() in ROLES) + sum(map(controls, shown), [])

def hear(event):  # What is gone meanwhile throws, which does no harm.
    print(event.type.split(":")[-1], event.detail1, line(event.source), flush=True)
    window = event.source
    while window.get_role_name() not in ["frame", "dialog"]: window = window.get_parent()
    if "focused" in event.type and window not in windows:
        windows.append(window)
        print(*(f"{window.get_name()}: {control}" for control in controls(window)), sep="\n", flush=True)

listener = Atspi.EventListener.new(hear)
for kind in ["state-changed:focused", "state-changed:showing", "property-change:accessible-name",
             "property-change:accessible-value"]:
    listener.register("object:" + kind)
print("listening", flush=True)
Atspi.event_main()
