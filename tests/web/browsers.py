"""Browsers and the server that the tests of the page share."""
import http.server
import os
import pathlib
import threading

from selenium import webdriver
from selenium.webdriver.chrome.service import Service as ChromeService
from selenium.webdriver.firefox.service import Service as FirefoxService

root = pathlib.Path(__file__).resolve().parent.parent.parent
site = root / "build/web"
programs = root / "build/wasm/tests/web"
# Where a path is looked for, the first that has it counting.
folders = [site, programs, root / "tests/web", root]
results = root / "build/web-tests"  # pictures for people to look at


class Handler(http.server.SimpleHTTPRequestHandler):
    protocol_version = "HTTP/1.1"

    def translate_path(self, path):
        name = path.split("?")[0].lstrip("/")
        if name in self.server.missing:
            return str(root / "no such file")
        found = (folder / name for folder in folders if (folder / name).exists())
        return str(next(found, root / "no such file"))

    def do_GET(self):
        self.server.asked.append(self.path.split("?")[0].lstrip("/"))
        super().do_GET()

    def log_message(self, *_):
        pass


class Server:
    """Serves the page and what the tests add to it on a port of its own."""

    def __init__(self):
        self.http = http.server.ThreadingHTTPServer(("127.0.0.1", 0), Handler)
        self.http.asked, self.http.missing = [], set()
        threading.Thread(target=self.http.serve_forever, daemon=True).start()

    @property
    def address(self):
        return f"http://localhost:{self.http.server_port}/"

    @property
    def asked(self):
        return self.http.asked

    @property
    def missing(self):
        """Paths that are answered as if they weren't there."""
        return self.http.missing

    def close(self):
        self.http.shutdown()
        self.http.server_close()


def chromium(width=1000, height=800, arguments=(), mobile=None):
    options = webdriver.ChromeOptions()
    for argument in ("--headless=new", "--no-sandbox", "--use-angle=swiftshader",
                     "--enable-unsafe-swiftshader", "--hide-scrollbars",
                     f"--window-size={width},{height}", *arguments):
        options.add_argument(argument)
    if mobile:
        options.add_experimental_option("mobileEmulation", mobile)
    options.set_capability("goog:loggingPrefs", {"browser": "ALL"})
    return webdriver.Chrome(options=options, service=ChromeService("/usr/bin/chromedriver"))
