"""Checks of the benchmark's own parts: the set generator's patching, the
floor program, and the arithmetic of the results table. Run by bench/run
before it measures anything (python3 -m unittest bench/test_bench.py)."""
import contextlib
import io
import json
import os
import shutil
import subprocess
import sys
import tempfile
import unittest

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

import gensets  # noqa: E402
import heicset  # noqa: E402
import measure  # noqa: E402
import rawset  # noqa: E402
import report  # noqa: E402

FORMATS = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "shared", "testdata", "formats")


def fake_base(big_endian=True):
    """Bytes laid out like the base file: the three placeholder dates and the
    three sub-second entries, between filler."""
    order = "big" if big_endian else "little"
    out = bytearray(b"\xff\xd8" + b"\x00" * 30)
    for text in gensets.PLACEHOLDERS.values():
        out += text.encode() + b"\0" + b"\x11" * 5
    for name, tag in gensets.SUBSEC_TAGS.items():
        out += tag.to_bytes(2, order) + (2).to_bytes(2, order) + (4).to_bytes(4, order)
        out += gensets.SUBSEC_PLACEHOLDERS[name].encode() + b"\0" + b"\x22" * 3
    return bytes(out)


class GeneratorTest(unittest.TestCase):
    def test_fields_are_found_in_both_byte_orders(self):
        for big in (True, False):
            data = fake_base(big)
            layout = gensets.locate_fields(data)
            for name, text in gensets.PLACEHOLDERS.items():
                self.assertEqual(data[layout[name]:layout[name] + 19], text.encode(), name)
            for name, text in gensets.SUBSEC_PLACEHOLDERS.items():
                self.assertEqual(data[layout[name]:layout[name] + 3], text.encode(), name)

    def test_a_placeholder_found_twice_is_refused(self):
        data = fake_base() + gensets.PLACEHOLDERS["DateTime"].encode() + b"\0"
        with self.assertRaises(RuntimeError):
            gensets.locate_fields(data)

    def test_patching_changes_only_the_six_fields(self):
        base = fake_base()
        layout = gensets.locate_fields(base)
        out = gensets.patched(base, layout, 4321)
        self.assertEqual(len(out), len(base))
        texts = gensets.dates_for(4321)
        touched = set()
        for name, text in texts.items():
            at = layout[name]
            self.assertEqual(out[at:at + len(text)], text.encode())
            touched.update(range(at, at + len(text)))
        for i in range(len(base)):
            if i not in touched:
                self.assertEqual(out[i], base[i], "byte %d" % i)

    def test_dates_differ_within_and_between_files(self):
        seen = set()
        for index in (1, 2, 59, 60, 999, 1000, 10000):
            d = gensets.dates_for(index)
            dates = [d["DateTimeOriginal"], d["DateTimeDigitized"], d["DateTime"]]
            self.assertEqual(len(set(dates)), 3)
            for text in dates:
                self.assertRegex(text, r"^\d{4}:\d\d:\d\d \d\d:\d\d:\d\d$")
            for key in ("SubSecTimeOriginal", "SubSecTimeDigitized", "SubSecTime"):
                self.assertRegex(d[key], r"^\d{3}$")
            self.assertNotIn(d["DateTimeOriginal"], seen)
            seen.add(d["DateTimeOriginal"])


@unittest.skipUnless(shutil.which("c++"), "no C++ compiler")
class FloorTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.dir = tempfile.mkdtemp(prefix="bench-floor-test-")
        cls.floor = os.path.join(cls.dir, "floor")
        source = os.path.join(os.path.dirname(os.path.abspath(__file__)), "floor.cpp")
        subprocess.run(["c++", "-std=c++20", "-O1", source, "-o", cls.floor], check=True)

    @classmethod
    def tearDownClass(cls):
        shutil.rmtree(cls.dir)

    def file_with(self, data):
        path = os.path.join(self.dir, "f.jpg")
        with open(path, "wb") as f:
            f.write(data)
        return path

    def test_write_puts_19_bytes_in_place_and_nothing_else(self):
        original = bytes(range(256)) * 4
        for extra in ([], ["--fsync"]):
            path = self.file_with(original)
            done = subprocess.run([self.floor, "write"] + extra + ["--at", "100", path],
                                  stdout=subprocess.DEVNULL)
            self.assertEqual(done.returncode, 0)
            with open(path, "rb") as f:
                after = f.read()
            self.assertEqual(after[:100], original[:100])
            self.assertEqual(after[100:119], b"2020:02:29 12:34:56")
            self.assertEqual(after[119:], original[119:])

    def test_failures_give_status_1_and_usage_status_2(self):
        path = self.file_with(b"x" * 10)
        missing = os.path.join(self.dir, "absent.jpg")
        cases = [
            (["read", path, missing], 1),
            (["write", "--at", "0", missing], 1),
            (["read", path], 0),
            (["write", path], 2),  # no offset
            (["copy", path], 2),
            (["read", "--also", "5", "0", path], 2),  # an empty range
        ]
        for args, status in cases:
            done = subprocess.run([self.floor] + args, capture_output=True)
            self.assertEqual(done.returncode, status, args)


def program(key, kind, walls, skip=None, rss=None, cpus=None):
    return {"key": key, "label": key, "kind": kind, "skip": skip, "walls": walls,
            "rss_kb": rss or [1024] * len(walls), "start_walls": [], "cpus": cpus or []}


class OtherSetsTest(unittest.TestCase):
    def test_the_dng_keeps_its_dates_in_its_head_and_its_sensor_data_at_the_end(self):
        data = rawset.dng_bytes(gensets.PLACEHOLDERS, gensets.SUBSEC_PLACEHOLDERS)
        self.assertGreater(len(data), 20e6)
        self.assertLess(max(gensets.locate_fields(data).values()), 2048)
        if shutil.which("exiftool"):
            with tempfile.NamedTemporaryFile(suffix=".dng") as f:
                f.write(data)
                f.flush()
                out = json.loads(subprocess.run(
                    ["exiftool", "-j", "-validate", "-FileType", "-SubIFD:StripOffsets",
                     "-SubIFD:StripByteCounts", f.name], capture_output=True, text=True).stdout)[0]
            self.assertEqual((out["Validate"], out["FileType"]), ("OK", "DNG"))
            self.assertEqual(out["StripOffsets"] + out["StripByteCounts"], len(data))

    @unittest.skipUnless(os.path.isdir(FORMATS), "the format test files are not there")
    def test_the_exif_item_of_real_heif_files_holds_their_dates(self):
        with open(os.path.join(FORMATS, "expected.json")) as f:
            records = [r for r in json.load(f) if r["format"] in ("HEIC", "HEIF", "AVIF")]
        self.assertGreater(len(records), 5)
        for record in records:
            with open(os.path.join(FORMATS, record["file"]), "rb") as f:
                at, length = heicset.exif_range(f.read())
            places = record["date_offsets"]
            offsets = [o for k in ("DateTimeOriginal", "CreateDate", "ModifyDate") for o in places[k] or []]
            for offset in offsets:
                self.assertTrue(at <= offset and offset + 19 <= at + length, (record["file"], offset))


class ReportTest(unittest.TestCase):
    def test_summary_is_per_file_median_and_spread(self):
        s = report.summary(program("x", "peer", [3.0, 1.0, 2.0], rss=[2048, 1024, 4096],
                                   cpus=[0.5, 0.7, 0.6]), 1000)
        self.assertAlmostEqual(s["cpu"], 0.0006)
        self.assertAlmostEqual(s["median"], 0.002)
        self.assertAlmostEqual(s["min"], 0.001)
        self.assertAlmostEqual(s["max"], 0.003)
        self.assertAlmostEqual(s["rss_mb"], 2.0)
        self.assertIsNone(report.summary(program("x", "peer", [1.0], skip="not built yet"), 10))
        self.assertIsNone(report.summary(program("x", "peer", []), 10))

    def test_per_file_units(self):
        cases = [(12.34e-6, "12.3 µs"), (99.9e-6, "99.9 µs"), (123.4e-6, "123 µs"),
                 (2.345e-3, "2.35 ms"), (0.25, "250 ms")]
        for seconds, text in cases:
            self.assertEqual(report.per_file(seconds), text)

    def test_goal_states(self):
        self.assertEqual(report.goal("g", 1.4, 1.5, True)[2], "met")
        self.assertEqual(report.goal("g", 1.6, 1.5, True)[2], "**missed**")
        self.assertEqual(report.goal("g", 120, 100, False)[2], "met")
        self.assertEqual(report.goal("g", 80, 100, False)[2], "**missed**")
        self.assertEqual(report.goal("g", None, 100, False)[1], "not measured")

    def test_rows_compare_with_the_floor_and_lumidate(self):
        result = {"count": 100, "programs": [
            program("floor", "floor", [0.001]),
            program("lumidate", "lumidate", [0.002]),
            program("jhead", "peer", [0.006]),
            program("exiv2", "peer", [], skip="not installed"),
        ]}
        rows = {r[0]: r for r in report.section_rows("read", result)}
        self.assertEqual(rows["lumidate"][5], "2.00x")
        self.assertEqual(rows["jhead"][5], "6.00x")
        self.assertEqual(rows["jhead"][6], "3.00x")
        self.assertEqual(rows["lumidate"][6], "–")
        self.assertEqual(rows["exiv2"][1], "not installed")

    def test_goal_rows_use_the_durable_floor_and_the_large_set(self):
        small = {"count": 10, "programs": [program("floor", "floor", [1.0]),
                                           program("lumidate", "lumidate", [1.2], rss=[200 * 1024])]}
        shift = {"count": 10, "programs": [program("floor-write", "floor", [0.1]),
                                           program("floor-fsync", "floor", [1.0]),
                                           program("lumidate", "lumidate", [1.5]),
                                           program("exiftool", "peer", [300.0]),
                                           program("jhead", "peer", [15.0])]}
        results = {"read": {"small": small}, "shift": {"large": shift},
                   "model": {"load_s": 3.0, "apply_s": 0.05, "thumbs_per_s": 100.0, "files": 10}}
        rows = {r[0]: r for r in report.goal_rows(results)}
        self.assertEqual(rows["dates / floor read, small set (≤ 1.5x)"][1:], ["1.20x", "met"])
        self.assertEqual(rows["dates / floor read, large set (≤ 1.5x)"][1], "not measured")
        self.assertEqual(rows["shift / floor write+fsync, large set (≤ 2x)"][1:], ["1.50x", "met"])
        self.assertEqual(rows["exiftool shift / Lumidate shift, large set (≥ 100x)"][1:], ["200.00x", "met"])
        self.assertEqual(rows["jhead shift / Lumidate shift, large set (≥ 20x)"][1:], ["10.00x", "**missed**"])
        self.assertEqual(rows["peak RSS of dates over the small set (< 150 MB)"][2], "**missed**")
        self.assertEqual(rows["model load / dates, small set (≤ 2x)"][1:], ["2.50x", "**missed**"])
        self.assertEqual(rows["model apply over 10 files (< 100 ms at 10,000)"][2], "met")
        self.assertEqual(rows["model undo over 10 files (< 100 ms at 10,000)"][1], "not measured")
        self.assertEqual(rows["thumbnails of 12 MP files per second, all cores (≥ 150)"][2], "**missed**")


    def test_model_runs_give_medians_and_the_load_is_compared_with_the_listing_beside_it(self):
        runs = [{"load_s": 0.3, "files": 10, "threads": 2, "sort_s": {"Edit": 0.004}},
                {"load_s": 0.1, "files": 10, "threads": 2, "sort_s": {"Edit": 0.001}},
                {"load_s": 0.2, "files": 10, "threads": 2, "sort_s": {"Edit": 0.002}}]
        model = report.median_record(runs)
        self.assertEqual((model["load_s"], model["files"], model["sort_s"]), (0.2, 10, {"Edit": 0.002}))
        model.update({"load_runs_s": [0.3, 0.1, 0.2], "dates_runs_s": [0.2, 0.1, 0.1], "dates_beside_s": 0.1})
        small = {"count": 10, "programs": [program("lumidate", "lumidate", [1.0])]}
        rows = {r[0]: r for r in report.goal_rows({"read": {"small": small}, "model": model})}
        self.assertEqual(rows["model load / dates, small set (≤ 2x)"][1:], ["2.00x", "met"])
        summary = report.model_summary(model)
        self.assertIn("3 runs, medians", summary)
        self.assertIn("200 ms (100 – 300 ms)", summary)


@unittest.skipUnless(os.path.exists(measure.TIME), "GNU time is not installed")
class MeasureTest(unittest.TestCase):
    def test_run_timed_reports_status_rss_and_last_error_line(self):
        with tempfile.TemporaryDirectory() as d:
            wall, rss, status, last, cpu = measure.run_timed(
                ["sh", "-c", "echo first >&2; echo last words >&2; exit 3"], d, d, "t")
        self.assertGreaterEqual(cpu, 0.0)
        self.assertEqual(status, 3)
        self.assertEqual(last, "last words")
        self.assertGreater(rss, 0)
        self.assertGreater(wall, 0)


@unittest.skipUnless(all(shutil.which(t) for t in ("cjpeg", "exiftool")) and os.path.exists(measure.TIME),
                     "cjpeg, exiftool or GNU time is not installed")
class MeasureSetTest(unittest.TestCase):
    """A shift that does nothing must not pass for a fast one, and a program
    that is missing or fails must be reported, not timed."""

    @classmethod
    def setUpClass(cls):
        cls.root = tempfile.mkdtemp(prefix="bench-measure-test-")
        gensets.build_set(cls.root, "small", 3)
        cls.folder = os.path.join(cls.root, "sets", "small")

    @classmethod
    def tearDownClass(cls):
        shutil.rmtree(cls.root)

    def measure(self, programs, shifting, restore=None):
        logs = os.path.join(self.root, "logs")
        os.makedirs(logs, exist_ok=True)
        with contextlib.redirect_stdout(io.StringIO()):
            result = measure.measure_set("t", self.folder, gensets.dates_for(1)["DateTimeOriginal"],
                                         programs, 2, os.path.join(self.root, "work"), logs, shifting,
                                         restore=restore)
        return {p["key"]: p for p in result["programs"]}

    def test_a_shared_copy_gets_its_dates_back_and_may_change_nothing_else(self):
        with open(os.path.join(self.folder, "layout.json")) as f:
            stamp = json.load(f)
        # Writes the first file's DateTimeOriginal one hour later, in place.
        later = "2014:03:08 08:22:01"
        shift = "printf '%s' | dd of=img-00001.jpg bs=1 seek=%d conv=notrunc status=none" % (
            later, stamp["fields"]["DateTimeOriginal"])
        programs = [
            measure.Program("dates", "dates", "lumidate", ["sh", "-c", shift, "sh"]),
            measure.Program("more", "more", "lumidate", ["sh", "-c", shift + "; printf x >> img-00001.jpg", "sh"]),
        ]
        got = self.measure(programs, True, lambda cwd: gensets.restore_fields(cwd, stamp))
        self.assertIsNone(got["dates"]["skip"])
        self.assertEqual(len(got["dates"]["walls"]), 2)
        self.assertEqual(got["more"]["skip"], "changed bytes of img-00001.jpg other than its dates")

    def test_shifting_is_checked_and_failures_are_reported(self):
        programs = [
            measure.Program("real", "real", "peer",
                            ["exiftool", "-q", "-overwrite_original_in_place", "-AllDates+=1"]),
            measure.Program("noop", "noop", "peer", ["true"]),
            measure.Program("broken", "broken", "peer", ["sh", "-c", "echo boom >&2; exit 4", "sh"]),
            measure.Program("absent", "absent", "lumidate", ["true"],
                            probe=[os.path.join(self.root, "no-such-cli")], missing="not built yet"),
        ]
        got = self.measure(programs, shifting=True)
        self.assertIsNone(got["real"]["skip"])
        self.assertEqual(len(got["real"]["walls"]), 2)
        self.assertIn("did not shift", got["noop"]["skip"])
        self.assertEqual(got["broken"]["skip"], "failed (exit 4): boom")
        self.assertEqual(got["absent"]["skip"], "not built yet")
        # The originals are never touched: shifting works on copies.
        gensets.check_with_exiftool(self.folder, [1, 3])

    def test_reading_is_timed_on_every_file(self):
        counter = os.path.join(self.root, "count.sh")
        with open(counter, "w") as f:
            f.write('echo "$#" >> "%s"\n' % os.path.join(self.root, "counts"))
            f.write('echo "%s"\n' % gensets.dates_for(1)["DateTimeOriginal"])
        silent = measure.Program("silent", "silent", "lumidate", ["true"])
        got = self.measure([measure.Program("c", "c", "peer", ["sh", counter]), silent], shifting=False)
        self.assertIn("did not list img-00001.jpg's DateTimeOriginal", got["silent"]["skip"])
        with open(os.path.join(self.root, "counts")) as f:
            counts = [int(line) for line in f]
        # warm-up, two one-file start-up runs, two timed runs
        self.assertEqual(sorted(counts), [1, 1, 3, 3, 3])
        self.assertEqual(len(got["c"]["walls"]), 2)


class RenderTest(unittest.TestCase):
    def test_skipped_programs_and_missing_model_still_give_every_section(self):
        read = {"count": 5, "programs": [program("floor", "floor", [0.01]),
                                         program("lumidate", "lumidate", [], skip="not built yet")]}
        machine = {"date": "d", "commit": "c", "lines": [("CPU", "x")]}
        text = report.render({"read": {"small": read}, "shift": {}, "model": None}, machine,
                             [("small", "5 files")], "bench/run", "Not measured.", "A note.")
        for part in ("## Machine", "## Sets", "small set (5 files)", "| lumidate | not built yet |",
                     "Not measured.", "## Goals", "## Notes\n\nA note."):
            self.assertIn(part, text)


if __name__ == "__main__":
    unittest.main()
