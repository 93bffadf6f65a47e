# SPDX-License-Identifier: GPL-3.0-or-later
"""The accessibility bus, and what a listener gets from it: roles, names, states, texts, values and actions.

Everything goes over the bus as a screen reader's calls do; nothing is kept from one call to the next, so what is read
is what the program says now.
"""
import time

from gi.repository import Gio, GLib

REGISTRY = "org.a11y.atspi.Registry"
ROOT = "/org/a11y/atspi/accessible/root"
ACCESSIBLE = "org.a11y.atspi.Accessible"
COMPONENT = "org.a11y.atspi.Component"
ACTION = "org.a11y.atspi.Action"
TEXT = "org.a11y.atspi.Text"
EDITABLE = "org.a11y.atspi.EditableText"
VALUE = "org.a11y.atspi.Value"
PROPERTIES = "org.freedesktop.DBus.Properties"
WAIT_MS = 10_000

PROPERTIES_OF = {
    ACCESSIBLE: ("Name", "Description", "Parent", "ChildCount"),
    "org.a11y.atspi.Application": ("ToolkitName", "Version", "Id"),
    ACTION: ("NActions",),
    TEXT: ("CharacterCount", "CaretOffset"),
    VALUE: ("MinimumValue", "MaximumValue", "MinimumIncrement", "CurrentValue"),
}

STATES = {4: "checked", 7: "editable", 8: "enabled", 11: "focusable", 12: "focused", 22: "selectable",
          24: "sensitive", 25: "showing", 30: "visible", 41: "checkable"}


class Fault(Exception):
    """Something that a listener could not put up with."""


class Gone(Exception):
    """What was asked went away meanwhile."""


class Bus:
    """One connection to the accessibility bus."""

    def __init__(self, address):
        flags = Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION
        self.connection = Gio.DBusConnection.new_for_address_sync(address, flags, None, None)
        self.connection.set_exit_on_close(False)

    def call(self, who, path, interface, method, kinds="", *values):
        arguments = GLib.Variant(f"({kinds})", values) if kinds else None
        return self.connection.call_sync(who, path, interface, method, arguments, None, Gio.DBusCallFlags.NONE,
                                         WAIT_MS, None).unpack()

    def applications(self):
        return [Thing(self, who, path) for who, path in self.call(REGISTRY, ROOT, ACCESSIBLE, "GetChildren")[0]]


class Thing:
    """An accessible object of the program."""

    def __init__(self, bus, who, path):
        self.bus, self.who, self.path = bus, who, path

    def __eq__(self, other):
        return self.path == other.path

    def __hash__(self):
        return hash(self.path)

    def call(self, interface, method, kinds="", *values):
        try:
            return self.bus.call(self.who, self.path, interface, method, kinds, *values)
        except GLib.Error as error:
            gone = any(word in error.message for word in ("UnknownObject", "UnknownInterface"))
            raise (Gone if gone else Fault)(f"{method} {values} of {self.path}: {error.message}") from error

    def get(self, name, interface=ACCESSIBLE):
        return self.call(PROPERTIES, "Get", "ss", interface, name)[0]

    def name(self):
        return self.get("Name")

    def description(self):
        return self.get("Description")

    def role(self):
        return self.call(ACCESSIBLE, "GetRoleName")[0]

    def states(self):
        low, high = self.call(ACCESSIBLE, "GetState")[0]
        bits = low | high << 32
        return {word for bit, word in STATES.items() if bits >> bit & 1}

    def interfaces(self):
        return set(self.call(ACCESSIBLE, "GetInterfaces")[0])

    def children(self):
        return [Thing(self.bus, who, path) for who, path in self.call(ACCESSIBLE, "GetChildren")[0]]

    def actions(self):
        return [action[0] for action in self.call(ACTION, "GetActions")[0]] if ACTION in self.interfaces() else []

    def act(self, *wanted):
        """Does the first of the wanted actions that there is."""
        offered = self.actions()
        for action in wanted:
            if action in offered:
                if not self.call(ACTION, "DoAction", "i", offered.index(action))[0]:
                    raise Fault(f"'{self.name()}' refuses {action}")
                return
        raise Fault(f"'{self.name()}' offers {offered}, wanted {wanted}")

    def text(self):
        return self.call(TEXT, "GetText", "ii", 0, -1)[0]

    def value(self):
        return self.get("CurrentValue", VALUE)

    def set_value(self, value):
        self.call(PROPERTIES, "Set", "ssv", VALUE, "CurrentValue", GLib.Variant("d", value))

    def write(self, text):
        if not self.call(EDITABLE, "SetTextContents", "s", text)[0]:
            raise Fault(f"'{self.name()}' takes no text")

    def prod(self):
        """Asks for all there is to ask, as a curious tool does, and tells what does not fit together.

        Property by property: of GetAll, whatever the object, every program of Qt 6.4.2 dies.
        """
        for interface in self.interfaces() & PROPERTIES_OF.keys():
            for name in PROPERTIES_OF[interface]:
                self.get(name, interface)
        for question in ("GetAttributes", "GetRelationSet", "GetRole", "GetLocalizedRoleName", "GetApplication"):
            self.call(ACCESSIBLE, question)
        if COMPONENT in self.interfaces():
            self.call(COMPONENT, "GetExtents", "u", 0)
        return [fault for place, child in enumerate(self.children()) for fault in self._misplaced(child, place)]

    def _misplaced(self, child, place):
        if child.get("Parent")[1] != self.path:
            yield f"'{child.name()}' does not say that it lies in '{self.name()}'"
        elif child.call(ACCESSIBLE, "GetIndexInParent")[0] != place:
            yield f"'{child.name()}' is child {place} of '{self.name()}' and says another number"


class Heard:
    """A thing as it was just now, with those that lie in it."""

    def __init__(self, thing, inside=None):
        self.thing, self.inside, self.parts = thing, inside, []
        self.states = thing.states()
        if self.shows():
            self.role, self.name = thing.role(), thing.name()
            self.text = thing.text() if "editable" in self.states else ""

    def shows(self):
        return "showing" in self.states

    def pressable(self):
        return self.shows() and "sensitive" in self.states

    def all(self):
        yield self
        for part in self.parts:
            yield from part.all()

    def __str__(self):
        return f"{self.role} '{self.name}'" + ("" if self.pressable() else " (grey)")


def open_bus():
    """The accessibility bus of this session, which starts it."""
    try:
        session = Gio.bus_get_sync(Gio.BusType.SESSION)
        address = session.call_sync("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", None, None,
                                    Gio.DBusCallFlags.NONE, WAIT_MS, None).unpack()[0]
        return Bus(address)
    except GLib.Error as error:
        raise Fault(f"there is no accessibility bus: {error.message}") from error


def listen(thing, into=lambda heard: True, inside=None):
    """Reads what shows of a thing and of all that lies in it, as far `into` it as is wanted."""
    heard = Heard(thing, inside)
    if heard.shows() and into(heard):
        parts = (listen(child, into, heard) for child in thing.children())
        heard.parts = [part for part in parts if part.shows()]
    return heard


def wait_for(what, seconds, pause=0.02):
    """What `what` gives as soon as it gives anything; what it gives last when the time is over."""
    end = time.monotonic() + seconds
    while True:
        found = what()
        if found or time.monotonic() > end:
            return found
        time.sleep(pause)
