"""The package as a script uses it."""

import copy
import gc
import math
import pickle
import tempfile
import threading
import unittest
import unittest.mock
import xml.etree.ElementTree
from pathlib import Path

import lintavo
from lintavo import _calls, _library
from support import WINDOWS, example, needs_pictures


def rectangle_window():
    return lintavo.Window.read(example("drehkipp_einfluegelig.aqz"))


class Reading(unittest.TestCase):
    def test_every_example_window_is_read_and_tiled_by_its_frame(self):
        paths = sorted(p for p in WINDOWS.iterdir() if p.suffix in (".aqz", ".cqz"))
        self.assertTrue(paths)
        for path in paths:
            with self.subTest(path.name), lintavo.Window.read(path) as window:
                self.assertGreater(window.width, 0)
                self.assertTrue(window.sashes)
                for part in window.frame_parts:
                    self.assertGreater(part.outline.area, 0)
                    total = sum(segment.length for segment in part.segments)
                    self.assertAlmostEqual(part.length, total, places=6)

    def test_blanks_reach_from_tip_to_tip(self):
        # The window is L-shaped: the mitre in its inward corner reaches 7 beyond the axes
        # of 80 and 110.
        with lintavo.Window.read(example("balkontuer_mit_fenster.aqz")) as window:
            blanks = [part.blank for part in window.frame_parts]
        expected = [(90, 5), (87, 7), (117, 7), (130, 7), (200, 7), (210, 7)]
        for blank, (length, width) in zip(blanks, expected):
            self.assertAlmostEqual(blank[0], length)
            self.assertAlmostEqual(blank[1], width)

    def test_compressed_and_plain_file_give_the_same_window(self):
        with rectangle_window() as plain:
            with lintavo.Window.read(example("drehkipp_einfluegelig.cqz")) as compressed:
                self.assertEqual(plain.frame_parts, compressed.frame_parts)

    def test_a_missing_file_raises_with_number_and_text(self):
        with self.assertRaises(lintavo.ReadError) as caught:
            lintavo.Window.read("/nowhere/fenster.aqz")
        self.assertEqual(caught.exception.number, 28)
        self.assertIn("/nowhere/fenster.aqz", caught.exception.text)
        with self.assertRaises(lintavo.LintavoError):
            lintavo.Window.read("/nowhere/fenster.cqz")

    def test_there_and_back(self):
        with rectangle_window() as window, tempfile.TemporaryDirectory() as folder:
            path = Path(folder) / "Größe 1.aqz"
            window.write(path)
            self.assertEqual(lintavo.stored_name(path), window.name)
            self.assertEqual(lintavo.find_window_file(folder), str(path))
            with lintavo.Window.read(path) as from_file:
                self.assertEqual(from_file.to_bytes(), window.to_bytes())
            with lintavo.Window.from_bytes(window.to_bytes()) as from_bytes:
                self.assertEqual(from_bytes.frame_parts, window.frame_parts)
            with self.assertRaises(lintavo.WriteError):
                window.write(Path(folder) / "nowhere" / "a.aqz")

    def test_a_folder_without_windows(self):
        with tempfile.TemporaryDirectory() as folder:
            self.assertIsNone(lintavo.find_window_file(folder))


class Changing(unittest.TestCase):
    def test_fit_gives_the_size_asked_for(self):
        with rectangle_window() as window:
            window.fit(200, 120)
            self.assertAlmostEqual(window.width, 200)
            self.assertAlmostEqual(window.height, 120)

    def test_reveals_are_margins_between_opening_and_frame(self):
        # The wall covers the frame by 3 above, 2 below, 4 right and 5 left: the frame is
        # larger than the opening of 200 x 120 by as much.
        margins = lintavo.Opening(top=3, bottom=2, right=4, left=5)
        with rectangle_window() as window:
            window.fit(200, 120, margins)
            self.assertAlmostEqual(window.width, 209)
            self.assertAlmostEqual(window.height, 125)
            box = window.opening_polygon(margins).box
            self.assertAlmostEqual(box.width, 200)
            self.assertAlmostEqual(box.height, 120)

    def test_a_splay_widens_by_its_tangent(self):
        with rectangle_window() as window:
            splayed = lintavo.Opening(right_splay=math.pi / 4, depth=10)
            box = window.opening_polygon(splayed).box
            self.assertAlmostEqual(box.width, window.width + 10)

    def test_dimensions_are_stored_and_applied_by_calculate(self):
        with rectangle_window() as window:
            before = window.width
            window.dimensions["breite"] = before + 40
            self.assertEqual(window.dimensions["Breite"], before + 40)
            self.assertAlmostEqual(window.width, before)
            window.calculate()
            self.assertAlmostEqual(window.width, before + 40)

    def test_dimensions_behave_as_a_mapping_of_fixed_names(self):
        with rectangle_window() as window:
            dimensions = window.dimensions
            self.assertEqual(set(dimensions), {"Breite", "Hoehe"})
            self.assertEqual(len(dimensions), 2)
            self.assertNotIn("Tiefe", dimensions)
            with self.assertRaises(KeyError):
                dimensions["Tiefe"] = 10
            with self.assertRaises(TypeError):
                del dimensions["Breite"]
            for bad in (0.0, -1.0, math.nan):
                with self.subTest(bad), self.assertRaises(ValueError):
                    dimensions["Breite"] = bad
            self.assertEqual(dimensions.all()[0].line[0].start._fields, ("x", "y"))

    def test_an_impossible_size_raises_and_the_window_can_be_used_on(self):
        with rectangle_window() as window:
            with self.assertRaises(lintavo.CalculationError) as caught:
                window.fit(5, 5)
            self.assertGreater(caught.exception.number, 0)
            self.assertTrue(caught.exception.text)
            window.fit(100, 100)
            self.assertAlmostEqual(window.width, 100)

    def test_measures_of_frame_and_sash(self):
        with rectangle_window() as window:
            sash = window.sashes[0]
            inner = sash.polygon.box.width
            window.frame_width += 1
            sash.frame_width += 2
            window.calculate()
            # Each of the two sides takes the frame's and the sash's share.
            self.assertAlmostEqual(sash.polygon.box.width, inner - 2 * (1 + 2))
            self.assertAlmostEqual(sash.inner_polygon(1.5).box.width, inner - 6 + 3)
            with self.assertRaises(ValueError):
                window.frame_section = -1
            window.frame_section = 40
            self.assertEqual(window.frame_section, 40)
            window.frame_section = 0
            self.assertEqual(window.frame_section, 100)
            with self.assertRaises(ValueError):
                sash.frame_width = 0
            with self.assertRaises(ValueError):
                window.frame_thickness = -1


class Sashes(unittest.TestCase):
    def test_bars_and_filling(self):
        with lintavo.Window.read(example("sprossen_und_zusatzteile.aqz")) as window:
            sash = window.sashes[0]
            self.assertTrue(sash.bars)
            self.assertIs(sash.filling.kind, lintavo.FillingKind.GLASS)
            self.assertTrue(all(bar.kind is lintavo.PartKind.BAR for bar in sash.bars))
            sash.set_bar(0, width=3.5)
            window.calculate()
            box = sash.bars[0].outline.box
            self.assertAlmostEqual(min(box.width, box.height), 3.5)

    def test_slats(self):
        with lintavo.Window.read(example("lamellen_mit_deckleisten.aqz")) as window:
            filling = next(
                s.filling for s in window.sashes if s.filling.kind is lintavo.FillingKind.SLATS
            )
            self.assertTrue(filling.slats)
            for slat in filling.slats:
                self.assertGreater(slat.area, 0)

    def test_opening_symbol_lies_within_the_window(self):
        with rectangle_window() as window:
            symbol = window.sashes[0].opening_symbol
            self.assertTrue(symbol)
            for line in symbol:
                for point in (line.start, line.end):
                    self.assertTrue(0 <= point.x <= window.width)
                    self.assertTrue(0 <= point.y <= window.height)


class Life(unittest.TestCase):
    def test_a_closed_window_says_so(self):
        window = rectangle_window()
        sash = window.sashes[0]
        window.close()
        window.close()
        self.assertEqual(repr(window), "<Window, closed>")
        for use in (lambda: window.width, lambda: sash.polygon, lambda: window.fit(1, 1)):
            with self.assertRaises(ValueError):
                use()

    def test_views_keep_their_window_alive(self):
        sash = rectangle_window().sashes[0]
        gc.collect()
        self.assertTrue(sash.polygon)

    def test_copies_are_independent(self):
        with rectangle_window() as window:
            before = window.width
            for copied in (window.copy(), copy.copy(window), copy.deepcopy(window)):
                with copied:
                    copied.fit(before + 30, 100)
                    self.assertAlmostEqual(copied.width, before + 30)
            self.assertAlmostEqual(window.width, before)

    def test_an_empty_window(self):
        with lintavo.Window() as window:
            self.assertEqual(window.width, 0.0)
            self.assertEqual(window.sashes, [])
            self.assertEqual(window.frame_parts, [])
            self.assertEqual(dict(window.dimensions), {})
            self.assertEqual(window.opening_polygon(), ())
            with self.assertRaises(lintavo.CalculationError):
                window.fit(100, 100)

    def test_windows_in_threads(self):
        widths = {}

        def work(width):
            with rectangle_window() as window:
                window.fit(width, 100)
                widths[width] = window.width

        threads = [threading.Thread(target=work, args=(100.0 + i,)) for i in range(8)]
        for thread in threads:
            thread.start()
        for thread in threads:
            thread.join()
        self.assertEqual(len(widths), 8)
        for asked, got in widths.items():
            self.assertAlmostEqual(asked, got)

    def test_errors_can_be_pickled(self):
        error = pickle.loads(pickle.dumps(lintavo.ReadError(28, "nicht vorhanden")))
        self.assertEqual((error.number, error.text), (28, "nicht vorhanden"))
        error = pickle.loads(pickle.dumps(lintavo.LibraryNotFound("nowhere")))
        self.assertEqual(error.text, "nowhere")


class Loading(unittest.TestCase):
    def test_a_library_that_the_user_names_is_taken_or_reported(self):
        with tempfile.TemporaryDirectory() as folder:
            with unittest.mock.patch.dict("os.environ", {"LINTAVO_LIBRARY": folder}):
                with self.assertRaises(lintavo.LibraryNotFound) as caught:
                    _library._load("lintavo", {})
        self.assertIn(folder, caught.exception.text)


class Texts(unittest.TestCase):
    def test_utf8_is_taken_as_such_and_anything_else_as_windows_1252(self):
        self.assertEqual(_calls.decode("Höhe".encode("utf-8")), "Höhe")
        self.assertEqual(_calls.decode("Höhe €".encode("cp1252")), "Höhe €")
        self.assertEqual(_calls.decode(b"a\x81b"), "a\ufffdb")

    def test_a_character_cut_by_the_text_limit_is_dropped(self):
        self.assertEqual(_calls.decode(b"n" * 255 + b"\xc3"), "n" * 255)


class Geometry(unittest.TestCase):
    def test_area_and_box(self):
        square = lintavo.Polygon([(0, 0), (2, 0), (2, 2), (0, 2)])
        self.assertEqual(square.area, 4.0)
        self.assertEqual(lintavo.Polygon(square[::-1]).area, -4.0)
        self.assertEqual(square.box, (0, 0, 2, 2))
        self.assertEqual(lintavo.Polygon().area, 0.0)
        with self.assertRaises(ValueError):
            _ = lintavo.Polygon().box


@needs_pictures
class Pictures(unittest.TestCase):
    def test_svg_is_well_formed_and_shown_by_notebooks(self):
        with rectangle_window() as window:
            for picture in (window.svg(), window._repr_svg_()):
                root = xml.etree.ElementTree.fromstring(picture)
                self.assertTrue(root.tag.endswith("svg"))

    def test_the_ending_says_the_format(self):
        signatures = {
            "png": b"\x89PNG",
            "pdf": b"%PDF",
            "svg": b"<?xml",
            "dxf": b"  0\r\nSECTION",
        }
        with rectangle_window() as window, tempfile.TemporaryDirectory() as folder:
            for ending, signature in signatures.items():
                path = Path(folder) / f"bild.{ending}"
                window.draw(path)
                self.assertTrue(path.read_bytes().startswith(signature))
            self.assertTrue(window.png().startswith(signatures["png"]))
            self.assertTrue(window.pdf().startswith(signatures["pdf"]))
            with self.assertRaises(lintavo.PictureError):
                window.draw(Path(folder) / "bild.bmp")
            with self.assertRaises(lintavo.PictureError):
                window.draw(Path(folder) / "nowhere" / "bild.svg")

    def test_options_change_the_picture(self):
        options = lintavo.PictureOptions
        with rectangle_window() as window:
            full = len(window.svg())
            self.assertLess(len(window.svg(options.NO_DIMENSIONS)), full)
            self.assertLess(len(window.svg(options.NO_DIMENSIONS | options.NO_SYMBOLS)), full)
            with self.assertRaises(lintavo.PictureError):
                window.svg(1024)

    def test_plans_are_to_scale_and_as_fine_as_asked_for(self):
        options = lintavo.PictureOptions.TITLE
        with rectangle_window() as window:
            picture = window.svg(options, lintavo.Plan(scale=20))
            self.assertIn('mm"', picture)
            self.assertIn("1:20", picture)
            png = window.png(plan=lintavo.Plan(pixels=300))
            self.assertEqual(int.from_bytes(png[16:20], "big"), 300)
            with self.assertRaises(lintavo.PictureError):
                window.svg(plan=lintavo.Plan(scale=-1.0))

    def test_an_empty_window_has_no_picture(self):
        with lintavo.Window() as window:
            self.assertIsNone(window._repr_svg_())
            with self.assertRaises(lintavo.PictureError) as caught:
                window.svg()
            self.assertGreater(caught.exception.number, 0)


if __name__ == "__main__":
    unittest.main()
