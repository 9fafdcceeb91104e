#!/usr/bin/python3
"""Each check of the tree finds what it is for: a small tree with one fault in it, and the complaint."""

import pathlib
import subprocess
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools"))
from checks import dependencies, floors, forms, layout, registered, sizes, words  # noqa: E402
from checks.tree import Tree  # noqa: E402


def complaints(check, files):
    with tempfile.TemporaryDirectory() as folder:
        root = pathlib.Path(folder)
        subprocess.run(["git", "init", "-q", folder], check=True)
        for name, text in files.items():
            (root / name).parent.mkdir(parents=True, exist_ok=True)
            (root / name).write_text(text)
        return check(Tree(root))


class Checks(unittest.TestCase):
    def assert_complains(self, check, files, about):
        self.assertTrue(any(about in complaint for complaint in complaints(check, files)), about)

    def assert_silent(self, check, files):
        self.assertEqual(complaints(check, files), [])

    def test_an_include_may_run_down_but_not_up(self):
        self.assert_silent(floors.check, {"shell/a.cpp": '#include "playlist/b.h"\n#include <string>\n'})
        self.assert_complains(floors.check, {"output/a.cpp": '#include "playlist/b.h"\n'}, "output lies below playlist")

    def test_a_name_declared_ahead_may_not_be_one_from_above(self):
        station = {"settings/Station.h": "class Station : public Base {\n};\nenum class Mode { kOne };\n"}
        below = {"platform/toolkit/Forms.h": "class Station;\n"}
        self.assert_complains(floors.check, {**station, **below}, "Forms.h declares Station: platform lies below")
        self.assert_complains(floors.check, {**station, "platform/a.h": "enum class Mode : int;\n"}, "declares Mode")
        self.assert_silent(floors.check, {**station, "output/frmX.h": "class Station;\nclass Elsewhere;\n"})
        real = {"platform/qt/QtWorld.h": "class QtWorld {\n};\n", "shell/frmX.h": "class QtWorld;\n"}
        self.assert_complains(floors.check, real, "only app/ chooses a world")

    def test_forms_of_one_floor_are_strangers(self):
        self.assert_complains(floors.check, {"ads/a.h": '#include "playlist/b.h"\n'}, "do not know each other")
        self.assert_silent(floors.check, {"ads/a.h": '#include "ads/b.h"\n', "playlist/c.h": '#include "settings/d.h"\n'})

    def test_the_core_knows_the_standard_library_alone(self):
        self.assert_complains(floors.check, {"output/a.cpp": "#include <QString>\n"}, "Qt, libmpv and X11")
        self.assert_complains(floors.check, {"settings/a.cpp": "#include <unistd.h>\n"}, "standard library")
        self.assert_complains(floors.check, {"output/a.cpp": '#include "platform/qt/b.h"\n'}, "only app/ chooses")
        self.assert_silent(floors.check, {"platform/qt/a.cpp": "#include <QString>\n"})
        self.assert_silent(floors.check, {"platform/posix/a.cpp": "#include <unistd.h>\n"})

    def test_controls_and_widgets_are_the_same(self):
        header = 'class frmX { Label a{*this, "a"}; Frame b{*this, "b"}; Timer t{*this, "t"}; };\n'

        def layout_of(*names):
            widgets = "".join(f'<widget class="QLabel" name="{name}"/>' for name in names)
            return f'<ui><widget class="QWidget" name="frmX">{widgets}</widget></ui>'

        self.assert_silent(forms.check, {"shell/frmX.h": header, "shell/frmX.ui": layout_of("a", "b", "layRest")})
        self.assert_complains(forms.check, {"shell/frmX.h": header, "shell/frmX.ui": layout_of("a")}, "no widget b")
        self.assert_complains(
            forms.check, {"shell/frmX.h": header, "shell/frmX.ui": layout_of("a", "b", "c")}, "no control c"
        )

    def test_a_source_that_nothing_builds_is_found(self):
        files = {"a/CMakeLists.txt": "add_library(a one.cpp)\n", "a/one.cpp": "", "a/two.cpp": ""}
        self.assert_complains(registered.check, files, "a/two.cpp is built by nothing")

    def test_layout_words_and_sizes(self):
        self.assert_complains(layout.check, {"a.cpp": "int  main( ){}\n", ".clang-format": "BasedOnStyle: Google\n"}, "a.cpp")
        self.assert_complains(words.check, {"a.md": "see Part" + " 3.1\n"}, "a.md:1")
        self.assert_complains(words.check, {"a.cpp": "// in /ro" + "ot/x\n"}, "a.cpp:1")
        self.assert_silent(words.check, {"a.md": "a part of the station\n"})
        self.assert_complains(sizes.check, {"a.cpp": "\n" * 501}, "501 lines")

    def test_a_package_without_a_reason_is_found(self):
        reasons = {"docs/decisions/dependencies.md": "| `one` | why |\n"}
        self.assert_silent(dependencies.check, {"tools/packages.txt": "one\n", **reasons})
        self.assert_complains(dependencies.check, {"tools/packages.txt": "one\ntwo\n", **reasons}, "no reason for two")
        self.assert_complains(dependencies.check, {"tools/packages.txt": "", **reasons}, "explains one")


if __name__ == "__main__":
    unittest.main()
