"""The program as a screen reader has it: a tree of controls on the accessibility bus.

Nothing here knows a widget. A control is found by its role and name and used by the actions that
it offers, so what these tests can reach, a person who does not see the screen can reach too."""

import os
import signal
import subprocess
import time
import warnings

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, Gio, GLib  # noqa: E402

# The bindings call interfaces deprecated whose methods the library itself has not moved yet.
warnings.simplefilter("ignore", DeprecationWarning)

Gone = GLib.Error  # what the library raises for a control that has gone
Role = Atspi.Role
State = Atspi.StateType

PATIENCE = 30  # seconds; a machine may be busy, and a condition that comes true ends the wait
POLL = 0.02

# Enough to see every column's cells. A library has as many children as it has cells, and each is
# asked for by a message of its own.
ROWS_LOOKED_AT = 3
CHILDREN_LOOKED_AT = 150


class Missing(Exception):
    """Something that a screen reader needs did not turn up."""


def wait_for(what, condition, patience=PATIENCE):
    """The first answer of condition that is true; Missing after the time."""
    end = time.monotonic() + patience
    while True:
        try:
            answer = condition()
        except Gone:
            answer = None
        if answer:
            return answer
        if time.monotonic() > end:
            raise Missing(f"{what} did not come within {patience} seconds")
        time.sleep(POLL)


class Control:
    """One object of the tree. Each question is asked anew, since windows change."""

    def __init__(self, accessible):
        self._accessible = accessible

    def __eq__(self, other):
        return self._place() == other._place()

    def __hash__(self):
        return hash(self._place())

    def _place(self):
        return (self._accessible.app.bus_name, self._accessible.path)

    @property
    def name(self):
        return self._accessible.get_name() or ""

    @property
    def description(self):
        return self._accessible.get_description() or ""

    @property
    def role(self):
        return self._accessible.get_role()

    @property
    def role_name(self):
        return self._accessible.get_role_name()

    def has(self, state):
        return self._accessible.get_state_set().contains(state)

    @property
    def labels(self):
        """Names of the labels that belong to it."""
        return [
            relation.get_target(index).get_name() or ""
            for relation in self._accessible.get_relation_set()
            if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY
            for index in range(relation.get_n_targets())
        ]

    @property
    def table(self):
        """Its rows and columns; None when it is no table."""
        return self._accessible.get_table_iface()

    @property
    def actions(self):
        actions = self._accessible.get_action_iface()
        if not actions:
            return []
        return [actions.get_action_name(index) for index in range(actions.get_n_actions())]

    @property
    def children(self):
        """Those of a table or list only as far as its first rows."""
        count = self._accessible.get_child_count()
        table = self.table
        if table:
            # Headings stand in a row and in a column of their own.
            count = min(count, (table.get_n_columns() + 1) * (ROWS_LOOKED_AT + 1))
        children = []
        for index in range(min(count, CHILDREN_LOOKED_AT if not table else count)):
            child = self._accessible.get_child_at_index(index)
            if child:
                children.append(Control(child))
        return children

    def all(self):
        """Itself and everything in it, each with the path that leads to it."""
        return self._all([])

    def _all(self, above):
        path = [*above, self]
        yield path
        for child in self.children:
            yield from child._all(path)

    def __str__(self):
        return f"{self.role_name} “{self.name}”" if self.name else self.role_name

    # Finding

    def find(self, role, name=None):
        """The only one that is showing, of that role and name; waits for it."""

        def found():
            for path in self.all():
                control = path[-1]
                if control.role == role and name in (None, control.name):
                    if control.has(State.SHOWING):
                        return control
            return None

        return wait_for(f"{role.value_nick} “{name}” in {self}", found)

    def menu_item(self, menu, text):
        """The item of its menu bar with this text; the menu need not be open."""
        bar = self.find(Role.MENU_BAR)
        opener = wait_for(f"the menu {menu}", lambda: bar._item(menu))
        return wait_for(f"the item {text} of {menu}", lambda: opener.children[0]._item(text))

    def _item(self, text):
        return next((child for child in self.children if child.name == text), None)

    @property
    def parent(self):
        return Control(self._accessible.get_parent())

    # Acting

    def act(self, action):
        """Does what its action does. Does not wait for the answer, which comes only after a modal
        dialog that the action opens."""
        wait_for(f"the action {action} of {self}", lambda: action in self.actions)
        bus_name, path = self._place()
        accessibility_bus().call(
            bus_name, path, "org.a11y.atspi.Action", "DoAction",
            GLib.Variant("(i)", (self.actions.index(action),)),
            None, Gio.DBusCallFlags.NO_AUTO_START, -1, None, None)  # fmt: skip

    def press(self):
        self.act("Press")

    def choose(self, menu, text):
        """Chooses an item of its menu bar."""
        item = self.menu_item(menu, text)
        wait_for(f"{item} to be enabled", lambda: item.has(State.ENABLED))
        item.press()

    def write(self, text):
        """Puts a text in the place of that in it."""
        self._accessible.get_editable_text_iface().set_text_contents(text)


_accessibility_bus = None


def accessibility_bus():
    """The bus itself, for what the library can do only by waiting."""
    global _accessibility_bus
    if not _accessibility_bus:
        session = Gio.bus_get_sync(Gio.BusType.SESSION)
        address = session.call_sync(
            "org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress",
            None, GLib.VariantType("(s)"), Gio.DBusCallFlags.NONE, -1)[0]  # fmt: skip
        _accessibility_bus = Gio.DBusConnection.new_for_address_sync(
            address,
            Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT
            | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION)  # fmt: skip
    return _accessibility_bus


class Program:
    """A program on the bus. It ends with the `with` that it is used in."""

    def __init__(self, command):
        self._command = command

    def __enter__(self):
        environment = dict(os.environ, QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
        self._process = subprocess.Popen(self._command, env=environment)
        try:
            application = wait_for("the program on the accessibility bus", self._find)
        except BaseException:
            self._stop()
            raise
        # The library would answer from memory what has changed since.
        application.set_cache_mask(Atspi.Cache.NONE)
        self._application = Control(application)
        return self

    def __exit__(self, *_):
        self._stop()

    def _stop(self):
        if self._process.poll() is None:
            self._process.send_signal(signal.SIGKILL)
            self._process.wait()

    def _find(self):
        if self._process.poll() is not None:
            raise Missing(f"{self._command[0]} ended with status {self._process.returncode}")
        desktop = Atspi.get_desktop(0)
        for index in range(desktop.get_child_count()):
            application = desktop.get_child_at_index(index)
            if application and application.get_process_id() == self._process.pid:
                return application
        return None

    def windows(self):
        if self._process.poll() is not None:
            raise Missing(f"the program ended with status {self._process.returncode}")
        return [
            window for window in self._application.children if window.has(State.SHOWING)
        ]

    def window(self, name):
        return wait_for(
            f"the window {name}",
            lambda: next((window for window in self.windows() if window.name == name), None))  # fmt: skip

    def opened_by(self, act):
        """The window that comes up when act is called."""
        before = set(self.windows())
        act()
        return wait_for("a window", lambda: next(iter(set(self.windows()) - before), None))

    def wait_until_gone(self, window):
        wait_for("the end of the window", lambda: window not in self.windows())

    def wait_for_end(self):
        """Its exit status once it has ended by itself."""
        try:
            return self._process.wait(PATIENCE)
        except subprocess.TimeoutExpired:
            raise Missing("the program did not end") from None


def press_key(key):
    """Presses a key as a keyboard does; key is as xdotool writes it."""
    subprocess.run(["xdotool", "key", "--clearmodifiers", key], check=True)


def context_menu():
    """The context menu of what has the focus. It is in no window: only that one of its items gets
    the focus tells of it."""
    focused = []
    listener = Atspi.EventListener.new(lambda event: focused.append(Control(event.source)))
    listener.register("object:state-changed:focused")

    def item():
        while GLib.MainContext.default().iteration(False):
            pass
        return next((control for control in focused if control.role == Role.MENU_ITEM), None)

    try:
        press_key("Menu")
        press_key("Down")
        return wait_for("an item of a context menu", item).parent
    finally:
        listener.deregister("object:state-changed:focused")
