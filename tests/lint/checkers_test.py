"""The checks under tools, on small trees that break one rule each."""

import pathlib
import subprocess
import sys
import tempfile
import unittest

TOOLS = pathlib.Path(__file__).resolve().parent.parent.parent / "tools"


class Checked(unittest.TestCase):
    """A tree of its own for each test; `check` runs one tool over it and gives what the tool says."""

    def setUp(self):
        directory = tempfile.TemporaryDirectory(prefix="checked tree ")
        self.addCleanup(directory.cleanup)
        self.root = pathlib.Path(directory.name)

    def write(self, name, text):
        file = self.root / name
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text(text)

    def check(self, tool):
        outcome = subprocess.run([sys.executable, TOOLS / tool, self.root], capture_output=True, text=True)
        self.assertEqual(outcome.stderr, "")
        return outcome.returncode, outcome.stdout


class Includes(Checked):
    def setUp(self):
        super().setUp()
        self.folder("model", "tarvin_model")
        self.folder("profiles", "tarvin_profiles", "tarvin_model")
        self.folder("actions", "tarvin_actions", "tarvin_profiles")
        self.folder("platform/posix", "tarvin_posix")
        self.folder("platform/linux/x11", "tarvin_linux_x11", "tarvin_model Qt6::Widgets PkgConfig::XCB")
        self.folder("app", "tarvin_app", "tarvin_actions tarvin_linux_x11")
        self.write("src/model/FKey.h", "#pragma once\n#include <QString>\n#include <array>\n")

    def folder(self, name, target, links=""):
        self.write(f"src/{name}/CMakeLists.txt", f"tarvin_library({target} SOURCES A.cpp LINKS {links}) # as ever\n")

    def assertAccepted(self, name, text):
        self.write(name, text)
        code, said = self.check("check-includes")
        self.assertEqual(code, 0, said)

    def assertRejected(self, name, text, *words):
        self.write(name, text)
        code, said = self.check("check-includes")
        self.assertEqual(code, 1, said)
        for word in words:
            self.assertIn(word, said)

    def test_a_folder_may_include_what_it_links_directly_or_not(self):
        self.assertAccepted("src/actions/A.cpp", '#include "model/FKey.h"\n#include <QString>\n#include <vector>\n')

    def test_a_folder_may_not_include_a_folder_further_out(self):
        self.write("src/actions/A.h", "")
        self.assertRejected("src/profiles/A.cpp", '\n#include "actions/A.h"\n', "src/profiles/A.cpp:2:", "does not link actions")

    def test_a_rule_folder_may_not_include_a_widget(self):
        self.assertRejected("src/profiles/A.cpp", "#include <QWidget>\n", "profiles knows Qt Core only")

    def test_a_rule_folder_may_not_include_a_widget_by_the_name_of_its_module(self):
        self.assertRejected("src/profiles/A.cpp", "#include <QtWidgets/QWidget>\n", "profiles knows Qt Core only")

    def test_a_link_line_does_not_open_a_rule_folder_to_another_module(self):
        self.folder("profiles", "tarvin_profiles", "tarvin_model Qt6::DBus")
        self.assertRejected("src/profiles/A.cpp", "#include <QDBusConnection>\n", "profiles knows Qt Core only")

    def test_a_platform_may_include_a_module_that_it_links(self):
        self.assertAccepted("src/platform/linux/x11/A.cpp", "#include <QGuiApplication>\n#include <xcb/xcb.h>\n")

    def test_a_platform_may_not_include_a_module_that_it_does_not_link(self):
        self.assertRejected("src/platform/linux/x11/A.cpp", "#include <QDBusMessage>\n", "does not link Qt6::DBus")

    def test_headers_of_the_display_server_stay_in_their_folders(self):
        self.assertRejected("src/app/A.cpp", "#include <X11/Xlib.h>\n", "<X11/Xlib.h> may appear only in")

    def test_headers_of_the_kernel_stay_in_their_folders(self):
        self.assertRejected("src/platform/posix/A.cpp", "#include <linux/input.h>\n", "<linux/input.h> may appear only in")

    def test_system_calls_stay_out_of_the_rules(self):
        self.assertRejected("src/model/A.cpp", "#include <unistd.h>\n", "<unistd.h> may appear only in")

    def test_an_unknown_library_is_rejected(self):
        self.assertRejected("src/model/A.cpp", "#include <boost/any.hpp>\n", "no header that any folder may include")

    def test_includes_are_written_from_the_source_folder(self):
        self.assertRejected("src/model/A.cpp", '#include "FKey.h"\n', "includes are written from there")

    def test_a_commented_include_is_none(self):
        self.assertAccepted("src/model/A.cpp", "// #include <QWidget>\n/*\n#include <unistd.h>\n*/\n")

    def test_code_does_not_ask_for_the_platform(self):
        self.assertRejected("src/actions/A.cpp", "\n\n#if defined(Q_OS_LINUX)\n#endif\n", "src/actions/A.cpp:3:", "Q_OS_LINUX")

    def test_the_composition_root_may_ask_for_the_platform(self):
        self.assertAccepted("src/app/A.cpp", "#ifdef __APPLE__\n#endif\n")

    def test_a_rule_reads_no_clock(self):
        self.assertRejected("src/actions/A.cpp", "auto now = std::chrono::steady_clock::now();\n", "Scheduler port")

    def test_a_platform_reads_a_clock(self):
        self.assertAccepted("src/platform/posix/A.cpp", "auto now = std::chrono::steady_clock::now();\n")

    def test_objective_c_stays_in_its_folder(self):
        self.assertRejected("src/app/A.mm", "int main();\n", "Objective-C")

    def test_folders_do_not_link_each_other(self):
        self.folder("model", "tarvin_model", "tarvin_profiles")
        self.assertRejected("src/model/A.cpp", "", "link each other")


class Documents(Checked):
    def setUp(self):
        super().setUp()
        self.write("src/model/FKey.h", "")

    def assertSaid(self, text, code, *words):
        self.write("README.md", text)
        got, said = self.check("check-docs")
        self.assertEqual(got, code, said)
        for word in words:
            self.assertIn(word, said)

    def test_names_of_files_folders_and_commands_pass(self):
        self.assertSaid("`src/model/FKey.h`, `FKey.h`, `model/FKey.h`, `src/model/`, `./test rules`, `build/x`, `a/b`", 0)

    def test_a_file_that_is_gone_is_found(self):
        self.assertSaid("All is well.\nSee `src/model/Gone.h`.", 1, "README.md:2:", "src/model/Gone.h")

    def test_a_bare_name_that_is_gone_is_found(self):
        self.assertSaid("See `Gone.h`.", 1, "Gone.h")

    def test_a_link_that_leads_nowhere_is_found(self):
        self.assertSaid("See [the map](docs/map.md#top).", 1, "docs/map.md")

    def test_a_link_to_a_web_page_passes(self):
        self.assertSaid("See [a page](https://example.org/map.md).", 0)

    def test_a_block_of_code_is_left_alone(self):
        self.assertSaid("```\n`src/model/Gone.h`\n```", 0)


class InstallPackages(unittest.TestCase):
    def test_the_list_of_packages_is_one_of_names(self):
        outcome = subprocess.run([TOOLS / "install-packages", "--list", "build", "test", "demo"], capture_output=True, text=True)
        self.assertEqual((outcome.returncode, outcome.stderr), (0, ""))
        names = outcome.stdout.split("\n")[:-1]
        self.assertIn("qt6-base-dev", names)
        for name in names:
            self.assertRegex(name, r"^[a-z0-9][a-z0-9+.-]+$")


class MacosPlatform(Checked):
    """Single files against the declarations, as the files of the platform are read."""

    def found_in(self, body):
        self.write("Sample.mm", '#import <Foundation/Foundation.h>\n\nvoid sample()\n{\n' + body + "\n}\n")
        outcome = subprocess.run([sys.executable, TOOLS / "check-macos", self.root / "Sample.mm"], capture_output=True, text=True)
        self.assertEqual(outcome.stderr, "")
        return outcome.returncode, outcome.stdout

    def test_what_the_frameworks_declare_passes(self):
        code, said = self.found_in("    (void)[[NSProcessInfo processInfo] systemUptime];")
        self.assertEqual(code, 0, said)

    def test_a_selector_that_does_not_exist_is_found(self):
        code, said = self.found_in("    (void)[[NSProcessInfo processInfo] systemUpTime];")
        self.assertEqual(code, 1)
        self.assertIn("systemUpTime", said)

    def test_every_file_that_is_read_here_is_built_on_a_mac(self):
        root = TOOLS.parent
        listed = subprocess.run([sys.executable, TOOLS / "check-macos", "--list"], capture_output=True, text=True).stdout.split()
        self.assertIn("src/app/MacProgram.cpp", listed)
        self.assertEqual(sorted(name for name in listed if name.endswith(".mm")),
                         sorted(file.relative_to(root).as_posix() for file in root.glob("src/**/*.mm")))
        for name in listed:
            built = (root / name).parent / "CMakeLists.txt"
            self.assertRegex(built.read_text(), rf"[\s ]{pathlib.Path(name).name}\b", name)

    def test_a_value_of_the_wrong_type_is_found(self):
        code, said = self.found_in("    NSString* text = [NSProcessInfo processInfo];\n    (void)text;")
        self.assertEqual(code, 1)
        self.assertIn("NSString", said)


if __name__ == "__main__":
    unittest.main()
