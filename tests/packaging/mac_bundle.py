"""The files that the bundle of macOS is made of. The tools of the system that put it together are not here."""

import os
import pathlib
import plistlib
import re
import struct
import subprocess
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
MACOS = ROOT / "packaging" / "macos"


def property_list(name):
    """As it stands in the bundle: the build fills in what is between braces."""
    values = {"MACOSX_BUNDLE_EXECUTABLE_NAME": "Tarvin", "PROJECT_VERSION": "1.2.3", "CMAKE_OSX_DEPLOYMENT_TARGET": "14.0"}
    text = re.sub(r"\$\{(\w+)\}", lambda match: values[match[1]], (MACOS / name).read_text())
    return plistlib.loads(text.encode())


class Information(unittest.TestCase):
    def setUp(self):
        self.information = property_list("Info.plist.in")

    def test_the_program_has_the_identifier_that_its_settings_are_kept_under(self):
        self.assertEqual(self.information["CFBundleIdentifier"], "com.velmor.Tarvin")
        self.assertEqual(self.information["CFBundleName"], "Tarvin")
        self.assertEqual(self.information["CFBundleExecutable"], "Tarvin")
        self.assertEqual(self.information["CFBundlePackageType"], "APPL")

    def test_addresses_of_its_scheme_come_to_the_program(self):
        schemes = [scheme for kind in self.information["CFBundleURLTypes"] for scheme in kind["CFBundleURLSchemes"]]
        self.assertEqual(schemes, ["tarvin"])

    def test_it_wants_the_system_that_it_is_built_for(self):
        self.assertEqual(self.information["LSMinimumSystemVersion"], "14.0")

    def test_a_start_at_login_shows_nothing_in_the_dock(self):
        self.assertIs(self.information["LSUIElement"], True)

    def test_the_user_is_told_why_other_applications_are_asked(self):
        self.assertIn("applications", self.information["NSAppleEventsUsageDescription"])


class Entitlements(unittest.TestCase):
    def test_it_may_send_apple_events_and_has_no_sandbox(self):
        self.assertEqual(property_list("Tarvin.entitlements"), {"com.apple.security.automation.apple-events": True})


class Icon(unittest.TestCase):
    def test_every_size_is_drawn_for_one_and_for_two_pixels_a_point(self):
        with tempfile.TemporaryDirectory() as folder:
            iconset = pathlib.Path(folder) / "Tarvin.iconset"
            subprocess.run([os.environ["TARVIN_RENDER_ICONS"], "--iconset", iconset], check=True)
            found = {}
            for file in iconset.iterdir():
                content = file.read_bytes()
                self.assertEqual(content[:8], b"\x89PNG\r\n\x1a\n", file.name)
                found[file.name] = struct.unpack(">II", content[16:24])
        wanted = {}
        for size in (16, 32, 128, 256, 512):
            wanted[f"icon_{size}x{size}.png"] = (size, size)
            wanted[f"icon_{size}x{size}@2x.png"] = (2 * size, 2 * size)
        self.assertEqual(found, wanted)

    def test_it_has_the_name_that_the_information_gives_it(self):
        self.assertEqual(property_list("Info.plist.in")["CFBundleIconFile"], "Tarvin")
        self.assertIn("Tarvin.icns", (MACOS / "CMakeLists.txt").read_text())


if __name__ == "__main__":
    unittest.main()
