"""The check of includes finds what it is there for."""
import importlib.util
import pathlib
import sys
import tempfile
import unittest

spec = importlib.util.spec_from_file_location("check_includes", sys.argv.pop(1))
check_includes = importlib.util.module_from_spec(spec)
spec.loader.exec_module(check_includes)


class CheckIncludes(unittest.TestCase):
    def faults(self, **files):
        """The faults of a tree, where a__b_h="..." is the file a/b.h; without the tree's own path."""
        with tempfile.TemporaryDirectory() as folder:
            src = pathlib.Path(folder)
            for name, text in files.items():
                floor, _, rest = name.partition("__")
                file = src / floor / ".".join(rest.rsplit("_", 1))
                file.parent.mkdir(exist_ok=True)
                file.write_text(text)
            return [fault.replace(src.as_posix() + "/", "") for fault in check_includes.faults(src)]

    def test_down_and_sideways_is_allowed(self):
        self.assertEqual(self.faults(
            api__a_cpp='#include "manager/m.h"\n#include "platform/p.h"\n#include "api/a.h"\n',
            platform__p_h="#pragma once\n#include <string>\n#include <kostyle/types.h>\n"), [])

    def test_up_names_file_line_and_both_floors(self):
        for name in ("model__style_h", "model__style_cpp"):
            found = self.faults(**{name: '#include <map>\n  # include "manager/m.h"\n'})
            file = "model/style." + name.rsplit("_", 1)[1]
            self.assertEqual(found, [f'{file}:2: model includes "manager/m.h" of manager, which is above it'])

    def test_every_floor_is_above_the_next(self):
        floors = ["api", "manager", "format", "model", "interfaces", "containers", "platform"]
        for above, below in zip(floors, floors[1:]):
            self.assertEqual(self.faults(**{f"{above}__a_h": f'#include "{below}/b.h"'}), [])
            self.assertEqual(len(self.faults(**{f"{below}__b_h": f'#include "{above}/a.h"'})), 1)

    def test_unknown_folder(self):
        self.assertEqual(len(self.faults(writer__w_h="")), 1)
        self.assertEqual(len(self.faults(top__x_h="", api__a_h="")), 1)
        self.assertEqual(len(self.faults(api__a_h='#include "writer/w.h"')), 1)

    def test_path_that_does_not_start_at_src(self):
        self.assertEqual(len(self.faults(model__a_h='#include "b.h"')), 1)
        self.assertEqual(len(self.faults(model__a_h='#include "../manager/m.h"')), 1)

    def test_operating_system_only_in_sources_of_platform(self):
        for header in ("unistd.h", "sys/stat.h", "windows.h", "uuid/uuid.h"):
            self.assertEqual(self.faults(platform__posix_cpp=f"#include <{header}>"), [])
            self.assertEqual(len(self.faults(platform__platform_h=f"#include <{header}>")), 1)
            self.assertEqual(len(self.faults(manager__m_cpp=f"#include <{header}>")), 1)

    def test_rapidjson_only_in_its_header(self):
        self.assertEqual(self.faults(format__json_h="#include <rapidjson/document.h>"), [])
        self.assertEqual(len(self.faults(format__reader_cpp="#include <rapidjson/document.h>")), 1)

    def test_macro_and_empty_tree(self):
        self.assertEqual(len(self.faults(api__a_h="#include HEADER")), 1)
        self.assertEqual(len(self.faults()), 1)


unittest.main()
