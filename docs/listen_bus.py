"""The controls of the program as the accessibility bus has them: role, name, description and states, a line each.

Usage: listen_bus.py [NAME]. With the name of a control (a regular expression), does what the bus offers first for it.
"""
import re
import sys

import gi
gi.require_version("Atspi", "2.0")
from gi.repository import Atspi


def all_below(node):
    children = filter(None, (node.get_child_at_index(i) for i in range(node.get_child_count())))
    return [node] + [found for child in children for found in all_below(child)]


desktop = Atspi.get_desktop(0)
for node in all_below(desktop):
    states = " ".join(state.value_nick for state in node.get_state_set().get_states())
    if len(sys.argv) == 1:
        print(node.get_role_name(), node.get_name(), node.get_description(), states, sep="|")
    elif "showing" in states and re.fullmatch(sys.argv[1], node.get_name()) and "Action" in node.get_interfaces():
        sys.exit(0 if node.get_action_iface().do_action(0) else "not done")
sys.exit(len(sys.argv) - 1)
