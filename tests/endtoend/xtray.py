"""The item where no panel asks for it on the bus."""

import re
import shutil
import unittest

from session import Session, until


class XTray(Session):
    def test_without_a_panel_on_the_bus_the_item_sits_in_the_x_tray_and_shows_its_menu(self):
        if not shutil.which("trayer"):
            self.skipTest("not installed: trayer")
        self.desktop.start("trayer", "--edge", "top", "--align", "left", "--height", "24", "--widthtype", "request")
        until("a tray", lambda: b'"trayer"' in self.desktop.ask("xwininfo", "-root", "-tree"))
        self.start_program("--startup")
        until("the line in the log", lambda: "The menu bar item is shown in the X tray." in self.log())

        def item():
            """The window of the item is as small as the tray, and on the screen."""
            return [place for width, height, place in self.windows() if width <= 30 and height <= 30 and min(place) >= 0]
        until("the item in the tray", item)

        def menus():
            return [width for width, height, _ in self.windows() if width > 150 and height > 150]
        self.assertFalse(menus())
        x, y = item()[0]
        self.desktop.ask("xdotool", "mousemove", x + 8, y + 8, "click", "3")
        until("the menu", menus)

    def windows(self):
        """Width, height and place of every shown window of the program."""
        for line in self.desktop.ask("xwininfo", "-root", "-tree").decode(errors="replace").splitlines():
            found = re.search(r'(0x[0-9a-f]+) .*\("tarvin".*?(\d+)x(\d+)\S+\s+\+(-?\d+)\+(-?\d+)', line)
            if found and b"IsViewable" in self.desktop.ask("xwininfo", "-id", found[1]):
                width, height, x, y = (int(number) for number in found.groups()[1:])
                yield width, height, (x, y)


if __name__ == "__main__":
    unittest.main()
