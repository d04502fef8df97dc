#!/usr/bin/env python3
"""Reports and chart pictures as files: what is written, what a checker of HTML says, and what a
failure leaves."""
import json
import os
import re
import resource
import shutil
import subprocess
import unittest

from calling import BIRTH, CommandLineTest

HOSTILE = "a 'b' \"c\" $(id);&<i> %41 #x ?y \u0905"
STARTS = {"bmp": b"BM", "png": b"\x89PNG", "svg": b"<?xml", "pdf": b"%PDF-", "htm": b"<!DOCTYPE"}

# What the fixed fragments of the report force: presentation in tags, cells without a text, and
# pictures without a description.
FORCED = re.compile(
    r"<font> element removed from HTML5"
    r"|<(td|table|div)> attribute \"(align|width|height|bgcolor|valign|border|cellspacing|"
    r"cellpadding)\" not allowed for HTML5"
    r"|trimming empty <font>"
    r"|<font> attribute \"color\" lacks value"
    r"|<img> lacks \"alt\" attribute")


class Reports(CommandLineTest):
    def setUp(self):
        super().setUp()
        self.succeed("client", "add", "--name", HOSTILE, *BIRTH, "--comments", "a <b> & [DBA1]")

    def write(self, *arguments):
        return self.succeed("report", *arguments).splitlines()

    def assert_files(self, files):
        for file in files:
            with open(file, "rb") as stream:
                self.assertTrue(stream.read(9).startswith(STARTS[file[-3:]]), file)
            self.assertEqual(os.stat(file).st_mode & 0o777, 0o600)

    def contents(self, folder):
        found = {}
        for name in os.listdir(folder):
            with open(os.path.join(folder, name), "rb") as stream:
                found[name] = stream.read()
        return found

    def test_a_report_stands_beside_its_pictures_and_its_pdf(self):
        charts = os.path.join(self.home, "Charts")
        written = self.write("1", "--pdf")
        self.assertEqual(written, [os.path.join(charts, name) for name in ("1.htm", "1.pdf")])
        self.assertEqual(sorted(os.listdir(charts)),
                         ["1.htm", "1.pdf", "Chalit-1.bmp", "Rashi-1.bmp"])
        self.assert_files(os.path.join(charts, name) for name in os.listdir(charts))
        self.assertEqual(json.loads(self.succeed("report", "1", "--json")), {"report": written[0]})

    def test_a_checker_finds_only_what_the_fragments_force(self):
        tidy = shutil.which("tidy")
        if tidy is None:
            self.skipTest("tidy is not installed")
        self.succeed("client", "add", "--name", "Q", *BIRTH, "--horary", "7", "--question", "<?>")
        self.succeed("remedy", "add", "1", "--problem", "<p>", "--remedy", "a & b")
        for profile in ("", "A & <B> \"C\""):
            for key in ("Name", "Organization", "ContactDetails"):
                self.succeed("settings", "set", f"Astrologer{key}={profile}")
            for arguments in (["1", "--style", "N"], ["2", "--style", "E"],
                              ["2", "--style", "S", "--detail", "DBA"]):
                (file,) = self.write(*arguments)
                said = subprocess.run([tidy, "-e", "-q", "-utf8", file], capture_output=True,
                                      text=True, check=False).stderr
                self.assertIn("<font> element removed", said)
                others = [line for line in said.splitlines() if not FORCED.search(line)]
                self.assertEqual(others, [], (profile, arguments))

    def test_a_batch_goes_past_a_client_that_fails_and_names_it(self):
        self.succeed("client", "add", "--name", "B", *BIRTH)
        charts = os.path.join(self.home, "Charts")
        both = [os.path.join(charts, "1.htm"), os.path.join(charts, "2.htm")]
        status, out, err = self.call("report", "--group", "1", "--style", "S")
        self.assertEqual((status, sorted(out.splitlines())), (0, both))
        self.assertEqual(err, "Report 1 of 2\nReport 2 of 2\n")
        status, out, err = self.call("report", "--ids", "1,99,2", "--json")
        self.assertEqual((status, json.loads(out)["reports"]), (1, both))
        self.assertIn("No report was written for:\nclient 99: ", err)
        for arguments in ([], ["1", "--group", "1"], ["1", "--detail", "D"], ["1", "--style", "W"]):
            self.assertEqual(self.call("report", *arguments)[:2], (2, ""), arguments)
        self.assertEqual(self.call("report", "99")[:2], (1, ""))

    def test_a_full_disk_leaves_the_old_report_with_its_pictures(self):
        charts = os.path.join(self.home, "Charts")
        self.write("1", "--style", "E")
        before = self.contents(charts)
        bitmap = len(before["Rashi-1.bmp"])
        # Room for a picture but not for the page, then for neither.
        for room in (bitmap, bitmap // 2):
            status, out, err = self.call(
                "report", "1", "--detail", "DBAS", restore_signals=False,
                preexec_fn=lambda room=room: resource.setrlimit(resource.RLIMIT_FSIZE, (room, room)))
            self.assertEqual((status, out), (1, ""))
            self.assertIn("could not be written", err)
            self.assertEqual(self.contents(charts), before)

    def test_a_chart_folder_that_is_a_file_is_told_and_left_alone(self):
        file = os.path.join(os.path.dirname(self.home), "file")
        with open(file, "w", encoding="utf8") as stream:
            stream.write("kept")
        self.succeed("settings", "set", "chartpath=" + os.path.join(file, "Charts"))
        status, out, err = self.call("report", "1")
        self.assertEqual((status, out), (1, ""))
        self.assertIn("The chart folder " + file, err)
        os.remove(os.path.join(self.home, "HoroscopeTemplate.htm"))
        status, out, err = self.call("report", "1")
        self.assertEqual((status, out, err), (
            1, "", "The HTML template file was not found or cannot be accessed.\n"))
        with open(file, encoding="utf8") as stream:
            self.assertEqual(stream.read(), "kept")

    def test_folders_with_odd_names_hold_reports_and_pictures(self):
        folder = os.path.join(os.path.dirname(self.home), HOSTILE)
        self.succeed("settings", "set", "chartpath=" + folder)
        self.write("1", "--pdf")
        self.succeed("charts", "1", "--picture", os.path.join(folder, "deeper"), "--style", "S")
        for where in (folder, os.path.join(folder, "deeper")):
            files = [entry.path for entry in os.scandir(where) if entry.is_file()]
            self.assertEqual(len(files), 4 if where == folder else 6)
            self.assert_files(files)
        with open(os.path.join(folder, "1.htm"), encoding="utf8") as stream:
            page = stream.read()
        self.assertNotIn("$(id);&<i>", page)
        self.assertIn("%2541 %23x %3Fy", page)

    def test_a_sheet_is_one_private_page_and_never_takes_the_place_of_own_files(self):
        file = os.path.join(os.path.dirname(self.home), "sheet.pdf")
        for arguments in (["--paper", "A5"], ["--style", "S"]):
            self.assertEqual(self.succeed("sheet", "1", "--file", file, *arguments), file + "\n")
            self.assert_files([file])
            said = subprocess.run(["pdfinfo", file], capture_output=True, text=True, check=True)
            self.assertRegex(said.stdout, r"Pages: +1\n")
        store = os.path.join(self.home, "Data", "ORVD.mdb")
        status, out, err = self.call("sheet", "1", "--file", store)
        self.assertEqual((status, out), (1, ""))
        self.assertIn("belongs to Orvex+ itself", err)
        self.assertEqual(self.call("sheet", "1", "--file", file, "--paper", "A3")[0], 2)

    def test_pictures_that_cannot_be_written_leave_the_old_ones(self):
        folder = os.path.join(os.path.dirname(self.home), "pictures")
        self.succeed("charts", "1", "--picture", folder)
        before = self.contents(folder)
        status, out, err = self.call("charts", "1", "--style", "E", "--picture",
                                     os.path.join(folder, "Rashi-1.png"))
        self.assertEqual((status, out), (1, ""))
        self.assertIn("could not be made", err)
        os.mkdir(os.path.join(folder, "Chalit-2.svg"))
        self.succeed("client", "add", "--name", "B", *BIRTH)
        self.assertEqual(self.call("charts", "2", "--picture", folder)[0], 1)
        os.rmdir(os.path.join(folder, "Chalit-2.svg"))
        self.assertEqual(self.contents(folder), before)


if __name__ == "__main__":
    unittest.main()
