"""The package as scripts use it; saved drawings are read back by another library."""

import ast
import contextlib
import inspect
import io
import os
import pathlib
import re
import shutil
import sys
import tempfile
import unittest

import dxflayers
import ezdxf

PROJECT = pathlib.Path(sys.argv.pop(1))
SAMPLES = PROJECT / "samples"


class Drawings(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.path = str(pathlib.Path(folder.name, "plan.dxf"))
        shutil.copy(SAMPLES / "office-floor.dxf", self.path)
        self.original = pathlib.Path(self.path).read_bytes()
        self.drawing = dxflayers.open(self.path)

    def saved(self):
        self.drawing.save()
        return ezdxf.readfile(self.path)

    def names(self):
        return {layer.name for layer in self.drawing.layers}

    def test_unchanged_is_saved_byte_for_byte(self):
        self.drawing.save()
        self.assertEqual(pathlib.Path(self.path).read_bytes(), self.original)

    def test_properties(self):
        layer = self.drawing.layer("a-door")
        values = {"off": True, "frozen": True, "locked": True, "plotted": False, "color_index": 3,
                  "lineweight": 35, "transparency": 40, "description": "门与窗", "name": "门"}
        with self.drawing.step("mark doors"):
            for name, value in values.items():
                setattr(layer, name, value)
        self.assertEqual(self.drawing.undo_name, "mark doors")
        self.assertEqual({name: getattr(layer, name) for name in values}, values)
        record = self.saved().layers.get("门")
        self.assertEqual((record.is_off(), record.is_frozen(), record.is_locked(), record.dxf.plot),
                         (True, True, True, 0))
        self.assertEqual((record.color, record.dxf.lineweight), (3, 35))
        self.assertAlmostEqual(record.transparency, 0.4, places=2)
        self.drawing.undo()
        self.drawing.save()
        self.assertEqual(pathlib.Path(self.path).read_bytes(), self.original)

    def test_step_left_by_an_exception_is_taken_back(self):
        before = self.names()
        with self.assertRaises(ZeroDivisionError):
            with self.drawing.step("half"):
                self.drawing.layer("A-DOOR").name = "X"
                1 / 0
        self.assertEqual(self.names(), before)
        self.assertFalse(self.drawing.modified)

    def test_rename_goes_round_in_circles_and_is_all_or_nothing(self):
        counts = {layer.name: layer.entity_count for layer in self.drawing.layers}
        self.drawing.rename({"A-DOOR": "A-WALL", "A-WALL": "A-DOOR"})
        after = {layer.name: layer.entity_count for layer in self.drawing.layers}
        self.assertEqual(after["A-DOOR"], counts["A-WALL"])
        for table in ({"A-DOOR": "A/B"}, {"A-DOOR": "A-GLAZ"}, {"0": "X"}):
            with self.subTest(table), self.assertRaises(dxflayers.Error):
                self.drawing.rename({"A-TABL": "TABLES", **table})
            self.assertIn("A-TABL", self.drawing)

    def test_merge_move_delete_purge(self):
        drawing = self.drawing
        doors = drawing.layer("A-DOOR").entity_count
        glass = drawing.layer("A-GLAZ").entity_count
        drawing.merge(["A-DOOR"], "A-GLAZ")
        self.assertEqual(drawing.layer("A-GLAZ").entity_count, doors + glass)
        drawing.add_layer("NEW")
        drawing.move(["A-GLAZ"], "NEW")
        self.assertEqual(drawing.layer("A-GLAZ").entity_count, 0)
        self.assertIn("A-GLAZ", drawing.purge())
        drawing.delete(["NEW"])
        document = self.saved()
        self.assertFalse({"A-DOOR", "A-GLAZ", "NEW"} & {layer.dxf.name for layer in document.layers})
        self.assertEqual(document.audit().errors, [])

    def test_states(self):
        drawing, las = self.drawing, str(pathlib.Path(self.path).with_suffix(".las"))
        drawing.save_state("before")
        drawing.layer("A-DOOR").off = True
        drawing.export_states(las, ["before"])
        drawing.remove_states(["before"])
        self.assertNotIn("before", drawing.states)
        self.assertEqual(drawing.import_states(las), [])
        drawing.restore_state("before")
        self.assertFalse(drawing.layer("A-DOOR").off)

    def test_standards(self):
        standard = str(SAMPLES / "office-standard.dxf")
        found = self.drawing.check([standard])
        self.assertTrue(found and all(one.rule and one.text for one in found))
        applied = [one for one in self.drawing.translate(standard) if one.outcome != "left-out"]
        self.assertTrue(applied)
        self.assertLess(len(self.drawing.check([standard])), len(found))

    def test_refusals_say_what_and_where(self):
        broken = pathlib.Path(self.path).with_name("broken.dxf")
        broken.write_bytes(self.original[: len(self.original) // 2])
        with self.assertRaisesRegex(dxflayers.Error, "[一-龥]") as refused:
            dxflayers.open(str(broken))
        self.assertGreater(refused.exception.line, 0)
        self.assertTrue(dxflayers.open(str(broken), partial=True).layers)
        layer = self.drawing.layer("A-DOOR")
        self.drawing.delete(["A-DOOR"])
        for act in (lambda: layer.name, lambda: self.drawing.layer("A-DOOR"),
                    lambda: setattr(self.drawing.layer("A-GLAZ"), "transparency", 91),
                    lambda: self.drawing.save("/no/such/folder/x.dxf")):
            with self.assertRaises(dxflayers.Error):
                act()

    def test_documented_tasks_run_as_they_stand(self):
        folder = pathlib.Path(self.path).parent
        shutil.copy(SAMPLES / "office-standard.dxf", folder / "standard.dxf")
        (folder / "names.csv").write_text("A-DOOR,门\nA-COLS,A-WALL\n", encoding="utf-8")
        self.addCleanup(os.chdir, os.getcwd())
        os.chdir(folder)
        text = (PROJECT / "docs" / "python.md").read_text(encoding="utf-8")
        tasks = re.findall(r"### (.*?)\n.*?```python\n(.*?)```", text, re.DOTALL)
        self.assertEqual(len(tasks), 5)
        for title, task in tasks:
            with self.subTest(title):
                self.assertLessEqual(len(task.splitlines()), 10)
                pathlib.Path("plan.dxf").write_bytes(self.original)
                said = io.StringIO()
                with contextlib.redirect_stdout(said):
                    exec(task, {})
                made = [path for path in folder.glob("plan*.*") if path.read_bytes() != self.original]
                self.assertTrue(made, said.getvalue())
                for path in folder.glob("plan*.dxf"):
                    self.assertEqual(ezdxf.readfile(path).audit().errors, [])
                    path.unlink()

    def test_sentences_in_english(self):
        self.addCleanup(dxflayers.use_language, "zh")
        dxflayers.use_language("en")
        with self.assertRaisesRegex(dxflayers.Error, "has no layer"):
            self.drawing.layer("nowhere")
        self.assertNotRegex(self.drawing.check([str(SAMPLES / "office-standard.dxf")])[0].text, "^[一-龥]")

    def test_stubs_say_what_is_there(self):
        stub = ast.parse((pathlib.Path(dxflayers.__file__).parent / "__init__.pyi").read_text())
        described = {node.name: node for node in stub.body if hasattr(node, "name")}
        self.assertEqual(set(described), set(dxflayers.__all__))

        def compare(name, thing, node):
            said = re.findall(r"(\w+): ", thing.__doc__.splitlines()[0].split("->")[0])
            self.assertEqual(said, [one.arg for one in node.args.args + node.args.kwonlyargs], name)

        for name in dxflayers.__all__:
            thing, node = getattr(dxflayers, name), described[name]
            if not inspect.isclass(thing):
                compare(name, thing, node)
            elif thing is not dxflayers.Error:
                members = {getattr(part, "name", None) or part.target.id: part
                           for part in node.body if isinstance(part, (ast.FunctionDef, ast.AnnAssign))}
                for member, value in vars(thing).items():
                    if not member.startswith("_"):
                        self.assertIn(member, members, name)
                    if callable(value) and not member.startswith("_"):
                        compare(f"{name}.{member}", value, members[member])


if __name__ == "__main__":
    unittest.main()
