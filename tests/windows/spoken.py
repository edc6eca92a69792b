"""What a screen reader finds: the program's accessible tree, read and used over D-Bus.

    environment = spoken.environment()               before the program starts: what its environment takes besides
    program = spoken.program(process_id)             its tree, once it has joined
    window = program.find("window", "Marlbrook 2.7.5")
    window.find("push button", "Save").act()
    spoken.wait_for("the name", lambda: window.find("text", "Sample name").text == "12.5")

All programs of a test process share one bus, whatever screen they are on. Nothing is remembered: each look asks the program anew. The
words for roles and states are those of AT-SPI ("push button", "focused").
"""
import atexit
import os
import shutil
import subprocess
import tempfile
import time

PATIENCE = 120  # seconds: a busy machine takes its time

_bus = None


def environment():
    """Starts a session bus with accessibility on it, the first time. It ends with the test process."""
    global _bus
    if not _bus:
        own = {name: value for name, value in os.environ.items() if name not in ("DISPLAY", "WAYLAND_DISPLAY", "AT_SPI_BUS_ADDRESS")}
        own["XDG_RUNTIME_DIR"] = tempfile.mkdtemp(prefix="marlbrook-bus-")  # its socket lies there; else in one place for all tests
        atexit.register(shutil.rmtree, own["XDG_RUNTIME_DIR"], ignore_errors=True)
        _bus = subprocess.Popen(["dbus-daemon", "--session", "--nofork", "--print-address"], stdout=subprocess.PIPE,
                                stderr=subprocess.DEVNULL, text=True, env=own)
        atexit.register(_end)
        os.environ["DBUS_SESSION_BUS_ADDRESS"] = _bus.stdout.readline().strip()
        os.environ.pop("AT_SPI_BUS_ADDRESS", None)
    return {"DBUS_SESSION_BUS_ADDRESS": os.environ["DBUS_SESSION_BUS_ADDRESS"], "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}


def _end():
    _bus.terminate()
    _bus.wait()
    _bus.stdout.close()


def _pyatspi():
    import pyatspi  # it joins the bus that the environment names when it is first used
    pyatspi.setTimeout(PATIENCE * 1000, PATIENCE * 1000)
    return pyatspi


def _take_events():
    """What has come over the bus: lists of programs and listeners follow it."""
    from gi.repository import GLib
    while GLib.MainContext.default().iteration(False):
        pass


def _has_gone(error):
    """What asking something that has gone meanwhile raises."""
    from gi.repository import GLib
    return isinstance(error, (GLib.Error, NotImplementedError))


def wait_for(what, condition):
    """The first true value of condition(), or an AssertionError that names `what`. Something that goes while it is asked is no answer."""
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        _take_events()
        try:
            value = condition()
        except Exception as error:
            if not _has_gone(error):
                raise
            value = None
        if value:
            return value
        time.sleep(0.05)
    raise AssertionError(f"nothing came of waiting for {what}")


def program(process_id):
    """The tree of the program that runs as this process; waits until it has joined the bus."""
    return wait_for(f"the tree of process {process_id}", lambda: _program(process_id))


def _program(process_id):
    desktop = _pyatspi().Registry.getDesktop(0)
    desktop.set_cache_mask(0)
    for place in range(desktop.childCount):
        try:
            application = desktop.getChildAtIndex(place)
            if application and application.get_process_id() == process_id:
                application.set_cache_mask(0)
                return Node(application)
        except Exception as error:  # a program that has ended stays in the list for a while
            if not _has_gone(error):
                raise
    return None


class Node:
    """A place in the tree. What has gone raises an error when it is asked."""

    def __init__(self, accessible):
        self.accessible = accessible

    def __repr__(self):
        return f"{self.role} '{self.name}'"

    def __eq__(self, other):
        return self.accessible == other.accessible

    @property
    def role(self):
        return self.accessible.getRoleName()

    @property
    def name(self):
        return self.accessible.name or ""

    @property
    def states(self):
        return {state.value_nick for state in self.accessible.getState().getStates()}

    @property
    def text(self):
        return self.accessible.queryText().getText(0, -1)

    @property
    def value(self):
        return self.accessible.queryValue().currentValue

    @value.setter
    def value(self, number):
        self.accessible.queryValue().currentValue = number

    @property
    def parent(self):
        return Node(self.accessible.parent)

    @property
    def children(self):
        found = [self.accessible.getChildAtIndex(place) for place in range(self.accessible.childCount)]
        return [Node(child) for child in found if child]

    def walk(self):
        """This node and all below it that is on show, from the outside in."""
        yield self
        for child in self.children:
            if "showing" in child.states:
                yield from child.walk()

    def all(self, role=None, name=None):
        """What is on show with this role and this name, as it stands now; None is any."""
        return [node for node in self.walk() if role in (None, node.role) and name in (None, node.name)]

    def find(self, role, name):
        """The first such node on show; waits for it."""
        return wait_for(f"a {role} '{name}'", lambda: next(iter(self.all(role, name)), None))

    def gone(self, role, name):
        """Waits until nothing of this role and name is on show."""
        wait_for(f"the end of the {role} '{name}'", lambda: not self.all(role, name))

    @property
    def actions(self):
        action = self.accessible.queryAction()
        return [action.getName(place) for place in range(action.nActions)]

    def act(self, action=None):
        """Does the action of this name, or its first one."""
        self.accessible.queryAction().doAction(self.actions.index(action) if action else 0)

    def type(self, text):
        """Puts this in place of its text, as a screen reader's user edits it."""
        self.accessible.queryEditableText().setTextContents(text)

    def focus(self):
        self.accessible.queryComponent().grabFocus()

    def select(self, child):
        """Selects its child of this place."""
        self.accessible.querySelection().selectChild(child)

    def wait_state(self, state, on=True):
        wait_for(f"{self} to be {'' if on else 'not '}{state}", lambda: (state in self.states) == on)

    def wait_text(self, text):
        wait_for(f"{self} to read '{text}'", lambda: self.text == text)


class Told:
    """The events of these types, such as "object:property-change:accessible-value", as they come from all programs on the bus."""

    def __init__(self, *types):
        self.events = []  # (type, Node), in order
        self.types = types
        _pyatspi().Registry.registerEventListener(self._take, *types)

    def close(self):
        _pyatspi().Registry.deregisterEventListener(self._take, *self.types)

    def _take(self, event):
        self.events.append((str(event.type), Node(event.source)))

    def wait(self, what, condition):
        """Waits until condition(type, node) is true of an event that has come."""
        wait_for(f"word of {what}", lambda: any(condition(*event) for event in self.events))
