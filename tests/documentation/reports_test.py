"""What the reports do before figures are kept: they put pieces together, continue a run that was interrupted, and write
whole files: reports_test.py SOURCE"""
import json
import pathlib
import sys
import tempfile
import unittest

sys.path.insert(0, f"{sys.argv.pop(1)}/tools/report")
sys.dont_write_bytecode = True
import accuracy
import common
import performance


def found(error, at="0x3F800000", lanes=100, rounded=90):
    return {"error": error, "at": at, "lanes": lanes, "rounded": rounded}


class Errors(unittest.TestCase):
    def test_the_largest_is_kept_by_its_value_and_lanes_are_added_up(self):
        # As texts, "9.5" would be above "1.2e+06". Of equal errors the place does not depend on the order of portions.
        portions = [found("9.5"), None, found("1.2e+06", "0x40000000"), found("1.2e+06", "0x3F900000", 7, 5)]
        for order in (portions, portions[::-1]):
            self.assertEqual(accuracy.combined(order), found("1.2e+06", "0x3F900000", 207, 185))
        self.assertEqual(accuracy.combined([found("inf"), found("3")])["error"], "inf")
        self.assertIsNone(accuracy.combined([None, None]))

    def test_portions_become_one_operation(self):
        one = 0x3FF << 3  # the magnitudes that begin as 1 does, in a cell of their sign and leading bits

        def portion(error, curve, of_part):
            return {"seconds": 1.5, "forms": [
                {"variants": ["default"], "width": 0, **found(error), "parts": {"small": of_part}, "curve": curve},
                {"variants": ["native"], "width": 4, **found("7"), "parts": None, "curve": [[one, 7]]}]}

        operation = {"operation": "expf", "family": "exponential", "symmetric": False, "over": "argument",
                     "sweeps": True}
        portions = [portion("0.5", [[one, 0.5]], found("0.1")),
                    portion("0.56", [[one, 0.25], [one | 1 << 14, 0.125]], None)]
        figures = accuracy.figures_of(operation, portions)
        default, native = figures["forms"]
        self.assertEqual((figures["seconds"], default["error"], default["lanes"]), (3, "0.56", 200))
        self.assertEqual(default["parts"], {"small": found("0.1")})
        right, left = ({each for each in curve if each} for curve in default["curves"])
        self.assertEqual((right, left), ({0.5}, {0.125}))
        self.assertEqual((native["width"], native["error"], len(native["curves"])), (4, "7", 1))
        of_magnitude = accuracy.figures_of(operation | {"symmetric": True}, portions)
        self.assertEqual(len(of_magnitude["forms"][0]["curves"]), 1)


class Times(unittest.TestCase):
    def test_each_time_comes_to_its_place(self):
        measured = {"expf/cycle/1": {"lane": 0.4}, "expf/lanemath/throughput/16": {"lane": 0.5, "ulp": 1},
                    "expf/lanemath/throughput/4": {"lane": 1.5}, "expf/lanemath/latency/1": {"lane": 9},
                    "expf/Sleef_expf4_u10/throughput/4": {"lane": 2}, "expf/expf/throughput/1": {"lane": 3},
                    "expf_native/lanemath/throughput/4": {"lane": 0.1}}
        form = performance.form_of("expf", "exponential", measured)
        self.assertEqual(list(form["lane"].items()), [("4", 1.5), ("16", 0.5)])
        self.assertEqual((form["cycle"], form["latency"], form["ulp"]), (0.4, 9, 1))
        self.assertEqual({library: (each["function"], each["width"], each["lane"])
                          for library, each in form["peers"].items()},
                         {"SLEEF": ("Sleef_expf4_u10", 4, 2), "C library": ("expf", 1, 3)})

    def test_measuring_again_keeps_the_lesser_times_alone(self):
        before = {"family": "exponential", "lane": {"1": 2.0, "4": 1.0}, "peers": {"SLEEF": {"lane": 3.0, "width": 4}}}
        again = {"family": "exponential", "lane": {"1": 1.5, "4": 1.25}, "peers": {"SLEEF": {"lane": 4.0, "width": 4}}}
        due = {"family": "exponential", "lane": {"1": 1.5, "4": 1.0}, "peers": {"SLEEF": {"lane": 3.0, "width": 4}}}
        self.assertEqual(performance.lesser(before, again), due)
        self.assertEqual(performance.lesser(before, {"lane": {"1": 1.0}})["lane"], {"1": 1.0, "4": 1.0})

    def test_the_common_path_is_what_runs_where_nothing_is_rare(self):
        def path(*lines):
            code = dict(enumerate(lines, 16))
            return performance.common_path(code, dict(zip(code, list(code)[1:])), 16)
        self.assertEqual(path("mulps %xmm0,%xmm1", "jne 14 <rare>", "jmp 14", "addps %xmm0,%xmm1", "ret"),
                         ["mulps %xmm0,%xmm1", "jne .Lrare", "ret"])
        self.assertIsNone(path("call 12 <f>", "ret"))
        self.assertIsNone(path("addps %xmm0,%xmm1", "jne 10 <f>", "ret"))
        self.assertIsNone(path("addps %xmm0,%xmm1", "jmp *%rax", "ret"))


class Files(unittest.TestCase):
    def setUp(self):
        self.temporary = tempfile.TemporaryDirectory()
        self.addCleanup(self.temporary.cleanup)
        self.folder = pathlib.Path(self.temporary.name)

    def test_a_run_continues_under_the_same_conditions_and_with_whole_pieces_alone(self):
        def measured(conditions, fresh=False):
            done = []
            journal = common.Journal(self.folder / "run", conditions, fresh)
            for name in ("expf", "logf"):
                piece = journal.piece(name, lambda: done.append(name) or [name])
                self.assertEqual(piece["measured"], [name])
            return done
        both = ["expf", "logf"]
        self.assertEqual(measured({"library": 1}), both)
        self.assertEqual(measured({"library": 1}), [])
        self.assertEqual(measured({"library": 2}), both)
        self.assertEqual(measured({"library": 2}, fresh=True), both)
        for name, due in (("logf", ["logf"]), ("conditions", both)):
            kept = self.folder / f"run/{name}.json"
            kept.write_text(kept.read_text()[:-3])  # as a machine that fails leaves it
            self.assertEqual(measured({"library": 2}), due)

    def test_a_file_is_replaced_as_a_whole_or_not_at_all(self):
        kept = self.folder / "performance.md"
        kept.write_text("before")
        with self.assertRaises(UnicodeEncodeError):
            common.write(kept, "half \ud800")
        self.assertEqual([path.name for path in self.folder.iterdir()], [kept.name])
        self.assertEqual(kept.read_text(), "before")
        with self.assertRaises(ValueError):  # JSON has no such number
            common.text_of({"forms": {"expf": {"lane": float("nan")}}})
        self.assertEqual(json.loads(common.text_of({"a": {"b": [1]}, "c": [2]})), {"a": {"b": [1]}, "c": [2]})

    def test_plots_of_an_earlier_report_are_noticed_and_removed(self):
        files = {"speed.md": "text", "speed-one.svg": "plot"}
        common.publish(self.folder, "speed", files, check=False)
        common.publish(self.folder, "speed", files, check=True)
        (self.folder / "speed-two.svg").write_text("plot")
        (self.folder / "other-two.svg").write_text("plot")
        with self.assertRaises(SystemExit):
            common.publish(self.folder, "speed", files, check=True)
        common.publish(self.folder, "speed", files, check=False)
        self.assertEqual({path.name for path in self.folder.iterdir()}, {*files, "other-two.svg"})


if __name__ == "__main__":
    unittest.main()
