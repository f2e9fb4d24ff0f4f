"""The picture in a page is that of the game itself."""
import base64
import io
import os
import pathlib
import shutil
import subprocess
import tempfile
import unittest

import numpy
from PIL import Image

import browsers

recording = "tests/recordings/long-evening.kovreplay"
moments = [2500, 8200, 11600]  # ticks: in each of its three games
pages = ["menu", "help", "about", "config"]
width, height = 800, 600

tolerance = 24  # of 255, of each colour
least_equal = 0.995  # of all pixels
near = 3  # pixels
background = 8  # of 255: what differs less from the picture's corner is background


def native(words, folder):
    """Runs a program on a display of its own, among the game's files. Its pictures go into `folder`."""
    with tempfile.TemporaryDirectory() as work:
        for name in ("data", "fonts", "textures"):
            os.symlink(browsers.root / name, pathlib.Path(work, name))
        os.mkdir(pathlib.Path(work, "Songs"))
        subprocess.run(["xvfb-run", "-a", "-s", "-screen 0 1280x1024x24", *map(str, words)],
                       cwd=work, check=True, stderr=subprocess.DEVNULL)
    return {path.stem: Image.open(path).convert("RGB") for path in pathlib.Path(folder).iterdir()}


def in_page(browser, program, words, files=()):
    browser.get(browsers_server.address + "pictures.html")
    browser.set_script_timeout(120)
    made = browser.execute_async_script(
        "const [program, words, files, done] = arguments;"
        "const go = () => window.makePictures ? makePictures(program, words, files).then(done, e => done({error: String(e)})) : setTimeout(go, 50);"
        "go();", program, list(map(str, words)), list(files))
    assert "error" not in made, made["error"]
    return {pathlib.Path(name).stem: Image.open(io.BytesIO(base64.b64decode(data))).convert("RGB")
            for name, data in made.items()}


def spread(mask):
    """Grows it by `near` pixels."""
    for _ in range(near):
        grown = mask.copy()
        grown[1:] |= mask[:-1]
        grown[:-1] |= mask[1:]
        grown[:, 1:] |= mask[:, :-1]
        grown[:, :-1] |= mask[:, 1:]
        mask = grown
    return mask


def lit(picture):
    """What is no background: most of a picture is."""
    colours, counts = numpy.unique(picture.reshape(-1, 3), axis=0, return_counts=True)
    ground = colours[counts.argmax()].astype(int)
    return abs(picture.astype(int) - ground).max(axis=2) > tolerance


class Pictures(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        global browsers_server
        browsers_server = browsers.Server()
        cls.browser = browsers.chromium()
        shutil.rmtree(browsers.results / "pictures", ignore_errors=True)
        os.makedirs(browsers.results / "pictures")

    @classmethod
    def tearDownClass(cls):
        cls.browser.quit()
        browsers_server.close()

    def compare(self, name, ours, page):
        folder = browsers.results / "pictures"
        ours.save(folder / f"{name}-native.png")
        page.save(folder / f"{name}-page.png")
        a, b = numpy.asarray(ours), numpy.asarray(page)
        self.assertEqual(a.shape, b.shape)
        difference = abs(a.astype(int) - b).astype(numpy.uint8)
        Image.fromarray(difference).save(folder / f"{name}-difference.png")
        equal = (difference.max(axis=2) <= tolerance).mean()
        missing = (lit(a) & ~spread(lit(b))).sum()
        added = (lit(b) & ~spread(lit(a))).sum()
        print(f"{name}: {100 * equal:.3f} % of the pixels equal, {missing} missing, {added} added")
        with self.subTest(name):
            self.assertGreaterEqual(equal, least_equal)
            self.assertEqual((missing, added), (0, 0))

    def test_moments_of_a_recorded_game(self):
        with tempfile.TemporaryDirectory() as folder:
            ours = native([browsers.root / "build/release/tests/web/kov_moments",
                           browsers.root / recording, browsers.root, folder, *moments], folder)
            page = in_page(self.browser, "kov_moments",
                           ["/" + pathlib.Path(recording).name, "/kov", "/pictures", *moments],
                           [recording])
            self.assertEqual(set(ours), set(page))
            self.assertEqual(len(ours), len(moments))
            for name in sorted(ours):
                self.compare(name, ours[name], page[name])

    def test_pages(self):
        for scene, names in (("pages", pages), ("verdicts", ["game-over"])):
            with tempfile.TemporaryDirectory() as folder:
                ours = native([browsers.root / "build/release/tests/web/gallery/gallery", scene,
                               folder, width, height], folder)
                page = in_page(self.browser, "gallery", [scene, "/pictures", width, height])
                for name in names:
                    self.compare(name, ours[name], page[name])


if __name__ == "__main__":
    unittest.main(verbosity=2)
