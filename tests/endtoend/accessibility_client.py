"""What assistive technology sees and does, as a process of its own: it needs the session bus of the desktop under test.

Reads one request per line, a JSON array with the name of a method and its arguments, and answers each with one line."""

import json
import sys

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

STATES = {"checked": Atspi.StateType.CHECKED, "selected": Atspi.StateType.SELECTED, "showing": Atspi.StateType.SHOWING,
          "enabled": Atspi.StateType.ENABLED, "focused": Atspi.StateType.FOCUSED, "expanded": Atspi.StateType.EXPANDED}


def children(parent):
    for index in range(parent.get_child_count()):
        child = parent.get_child_at_index(index)
        if child:
            yield child


def walk(parent):
    for child in children(parent):
        yield child
        yield from walk(child)


def objects(application):
    for program in children(Atspi.get_desktop(0)):
        if program.get_name() == application:
            yield from walk(program)


def describe(thing):
    states = thing.get_state_set()
    return {"name": thing.get_name(), "role": thing.get_role_name(), "description": thing.get_description(),
            "states": [name for name, state in STATES.items() if states.contains(state)]}


def everything(application):
    return [describe(thing) for thing in objects(application)]


def press(application, name):
    """Does the first thing that can be done to the object of that name."""
    for thing in objects(application):
        if thing.get_name() == name and thing.get_n_actions() > 0:
            return thing.do_action(0)
    return False


def place(application, name):
    """Where on the screen the object of that name is: left, top, width and height; none while it isn't in sight."""
    for thing in objects(application):
        if thing.get_name() == name and thing.get_state_set().contains(Atspi.StateType.SHOWING):
            box = thing.get_component_iface().get_extents(Atspi.CoordType.SCREEN)
            return [box.x, box.y, box.width, box.height]
    return None


def focus(application, name):
    """Gives the keyboard to the first object of that name that takes it."""
    return any(thing.get_name() == name and thing.get_component_iface().grab_focus() for thing in objects(application))


METHODS = {"everything": everything, "press": press, "place": place, "focus": focus}

Atspi.init()
for line in sys.stdin:
    method, *arguments = json.loads(line)
    # Objects that came or went since are known only once what the bus has said is taken in.
    while GLib.MainContext.default().iteration(False):
        pass
    try:
        answer = METHODS[method](*arguments)
    except GLib.Error as error:
        answer = {"error": str(error)}
    print(json.dumps(answer), flush=True)
