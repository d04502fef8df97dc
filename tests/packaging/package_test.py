#!/usr/bin/env python3
"""Builds the Debian package, lays it out in a root of its own and works with what lies there.

    package_test.py BUILD_FOLDER
"""
import html.parser
import os
import pathlib
import subprocess
import sys
import tempfile


def run(*words, **options):
    return subprocess.run([str(word) for word in words], capture_output=True, text=True,
                          check=False, **options)


def expect(done, wanted, what):
    if not wanted:
        sys.exit(f"{what}: exit {done.returncode}\n{done.stdout}\n{done.stderr}")


class Page(html.parser.HTMLParser):
    """The links, pictures and styles that a page names, and the places in it that links lead to."""

    def __init__(self, page):
        super().__init__()
        self.addresses = []
        self.places = {""}
        self.feed(page.read_text(encoding="utf8"))

    def handle_starttag(self, tag, attrs):
        self.addresses += [value for name, value in attrs if name in ("href", "src")]
        self.places |= {value for name, value in attrs if name == "id"}


def check_guide(folder):
    """Every page and picture of the guide is led to, and every address leads somewhere."""
    led_to = {folder / "index.html", folder / "guide.css"}
    pages = {page: Page(page) for page in folder.glob("*.html")}
    for page, read in pages.items():
        for address in read.addresses:
            if address.startswith("https://"):
                continue
            name, _, place = address.partition("#")
            target = folder / name if name else page
            led_to.add(target)
            if not target.is_file() or place and place not in pages[target].places:
                sys.exit(f"{page.name} leads to {address}, which is not there")
    there = {file for file in folder.rglob("*") if file.is_file()}
    if len(there) < 20 or there != led_to:
        sys.exit(f"nothing in the guide leads to {there - led_to}")


def main():
    build = pathlib.Path(sys.argv[1])
    with tempfile.TemporaryDirectory() as scratch:
        scratch = pathlib.Path(scratch)
        made = run("cpack", "-B", scratch, "--config", build / "CPackConfig.cmake", cwd=build)
        packages = list(scratch.glob("*.deb"))
        expect(made, made.returncode == 0 and len(packages) == 1, "cpack")

        fields = run("dpkg-deb", "--field", packages[0], "Package", "Depends")
        expect(fields, "libqt6" in fields.stdout and "swe-basic-data" in fields.stdout, "Depends")

        root = scratch / "root"
        laid = run("dpkg-deb", "--extract", packages[0], root)
        expect(laid, laid.returncode == 0, "dpkg-deb")
        for file in ("share/applications/org.orvexplus.Orvex.desktop",
                     "share/metainfo/org.orvexplus.Orvex.metainfo.xml",
                     "share/icons/hicolor/scalable/apps/orvex.svg", "share/man/man1/orvex.1"):
            if not (root / "usr" / file).exists():
                sys.exit(f"{file} is not in the package")

        check_guide(root / "usr/share/doc/orvex/guide")

        # The program must find its tables beside itself, not in the tree that it was built from.
        program, home = root / "usr/bin/orvex-cli", scratch / "home"
        template = root / "usr/share/orvex/HoroscopeTemplate.htm"
        template.write_text(template.read_text(encoding="utf8") + "<!-- the installed one -->",
                            encoding="utf8")
        saved = run(program, "--home", home, "client", "add", "--name", "First Client",
                    "--birth", "1990-07-05 14:30", "--city", "1")
        expect(saved, saved.returncode == 0 and saved.stdout.strip() == "1", "client add")
        own = (home / "HoroscopeTemplate.htm").read_text(encoding="utf8")
        expect(saved, "the installed one" in own, "the template of the new home")

        bare = {**os.environ, "XDG_DATA_HOME": str(scratch / "data")}
        demo = run(program, "--demo", "client", "list", env=bare)
        expect(demo, demo.returncode == 0 and "Albert Einstein" in demo.stdout, "--demo")

        # Without a display the workbench says so and ends.
        bare = {k: v for k, v in os.environ.items()
                if k not in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM")}
        window = run(root / "usr/bin/orvex", "--home", home, env=bare)
        expect(window, window.returncode == 1 and "display" in window.stderr, "orvex")


if __name__ == "__main__":
    main()
