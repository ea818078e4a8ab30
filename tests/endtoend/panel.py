"""A panel as desktops have it: it takes in the items of programs over the session bus and shows their menus. Runs with the
Python of the system, which has the bus; takes one command in JSON on a line and answers with one."""

import json
import sys

import dbus
import dbus.mainloop.glib
import dbus.service
from gi.repository import GLib

WATCHER = "org.kde.StatusNotifierWatcher"
ITEM = "org.kde.StatusNotifierItem"
MENU = "com.canonical.dbusmenu"


class Watcher(dbus.service.Object):
    def __init__(self, bus):
        super().__init__(bus, "/StatusNotifierWatcher")
        self.items = []

    @dbus.service.method(WATCHER, in_signature="s", sender_keyword="sender")
    def RegisterStatusNotifierItem(self, service, sender=None):
        self.items.append(sender if service.startswith("/") else service)
        self.StatusNotifierItemRegistered(service)

    @dbus.service.method(WATCHER, in_signature="s")
    def RegisterStatusNotifierHost(self, service):
        self.StatusNotifierHostRegistered()

    @dbus.service.signal(WATCHER, signature="s")
    def StatusNotifierItemRegistered(self, service):
        pass

    @dbus.service.signal(WATCHER)
    def StatusNotifierHostRegistered(self):
        pass

    @dbus.service.method(dbus.PROPERTIES_IFACE, in_signature="ss", out_signature="v")
    def Get(self, interface, name):
        return self.GetAll(interface)[name]

    @dbus.service.method(dbus.PROPERTIES_IFACE, in_signature="s", out_signature="a{sv}")
    def GetAll(self, interface):
        return {"IsStatusNotifierHostRegistered": True, "ProtocolVersion": dbus.Int32(0),
                "RegisteredStatusNotifierItems": dbus.Array(self.items, signature="s")}

    @dbus.service.method(dbus.INTROSPECTABLE_IFACE, out_signature="s", path_keyword="path", connection_keyword="connection")
    def Introspect(self, path, connection):
        """The bindings leave out the properties, which toolkits look for."""
        properties = "".join(f'<property name="{name}" type="{kind}" access="read"/>' for name, kind in (
            ("IsStatusNotifierHostRegistered", "b"), ("ProtocolVersion", "i"), ("RegisteredStatusNotifierItems", "as")))
        start = f'<interface name="{WATCHER}">'
        return super().Introspect(path, connection).replace(start, start + properties)


class Panel:
    def __init__(self):
        self.bus = dbus.SessionBus()
        self.name = dbus.service.BusName(WATCHER, self.bus)
        self.watcher = Watcher(self.bus)
        self.loop = GLib.MainLoop()
        GLib.io_add_watch(sys.stdin, GLib.IO_IN | GLib.IO_HUP, self.read)

    def read(self, *_):
        line = sys.stdin.readline()
        if not line:
            self.loop.quit()
            return False
        command, *arguments = json.loads(line)
        try:
            answer = getattr(self, command)(*arguments)
        except (dbus.DBusException, LookupError) as error:
            answer = {"error": str(error)}
        print(json.dumps(answer), flush=True)
        return True

    def items(self):
        return [str(item) for item in self.watcher.items]

    def properties(self):
        item = self.bus.get_object(self.watcher.items[-1], "/StatusNotifierItem", introspect=False)
        found = dbus.Interface(item, dbus.PROPERTIES_IFACE).GetAll(ITEM)
        return {"id": str(found["Id"]), "title": str(found["Title"]), "category": str(found["Category"]),
                "pixmaps": [int(picture[0]) for picture in found.get("IconPixmap", [])], "icon": str(found.get("IconName", "")),
                "menu": str(found["Menu"])}

    def layout(self):
        service = self.watcher.items[-1]
        menu = dbus.Interface(self.bus.get_object(service, self.properties()["menu"], introspect=False), MENU)
        menu.AboutToShow(0)
        return menu, menu.GetLayout(0, -1, dbus.Array([], signature="s"))[1]

    def menu(self):
        """The visible entries as a user sees them."""
        return self.entries(self.layout()[1][2])

    def entries(self, children):
        shown = []
        for number, properties, below in children:
            if not properties.get("visible", True):
                continue
            entry = {"id": int(number), "text": self.text(properties), "enabled": bool(properties.get("enabled", True))}
            if properties.get("type") == "separator":
                entry = {"separator": True}
            elif properties.get("toggle-type"):
                entry["checked"] = int(properties.get("toggle-state", -1)) == 1
            if below:
                entry["entries"] = self.entries(below)
            shown.append(entry)
        return shown

    @staticmethod
    def text(properties):
        """One underscore marks the next letter, two are one."""
        label = str(properties.get("label", ""))
        return label.replace("__", "\0").replace("_", "").replace("\0", "_")

    def click(self, text):
        menu, root = self.layout()

        def find(entries):
            for entry in entries:
                if entry.get("text") == text:
                    return entry
                below = find(entry.get("entries", []))
                if below:
                    return below
            return None
        entry = find(self.entries(root[2]))
        if not entry:
            raise LookupError(f"no entry {text}")
        if not entry["enabled"]:
            raise LookupError(f"greyed out: {text}")
        menu.Event(entry["id"], "clicked", dbus.String("", variant_level=1), dbus.UInt32(0))
        return "clicked"


dbus.mainloop.glib.DBusGMainLoop(set_as_default=True)
Panel().loop.run()
