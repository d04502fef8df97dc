#!/usr/bin/env python3
"""Calls orvex-cli as a user does and checks exit status, standard output and standard error."""
import json
import os
import subprocess
import sys
import tempfile
import unittest

PROGRAM = os.path.abspath(sys.argv.pop())
BIRTH = ["--birth", "1990-07-05 14:30", "--city", "1"]
CHART = ["chart", "--birth", "1990-07-05 14:30", "--offset", "5.5",
         "--latitude", "19.07", "--longitude", "72.88"]


class CommandLine(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="cli-")
        self.addCleanup(folder.cleanup)
        self.home = os.path.join(folder.name, "home")
        self.environment = {"XDG_CONFIG_HOME": os.path.join(folder.name, "config"),
                            "PATH": os.environ["PATH"], "LC_ALL": "de_DE.UTF-8"}

    def call(self, *arguments):
        done = subprocess.run([PROGRAM, "--home", self.home, *arguments], capture_output=True,
                              text=True, check=False, env=self.environment)
        return done.returncode, done.stdout, done.stderr

    def succeed(self, *arguments):
        status, out, err = self.call(*arguments)
        self.assertEqual((status, err), (0, ""), arguments)
        return out

    def test_a_client_is_added_shown_listed_and_edited(self):
        name = "O'Neil; Drop table \"x\" % \u0905"
        self.assertEqual(self.succeed("client", "add", "--name", name, *BIRTH), "1\n")
        shown = json.loads(self.succeed("client", "show", "1", "--json"))
        self.assertEqual(shown["client"]["fullname"], name)
        self.assertEqual(len(shown["cusps"]["rows"]), 12)
        self.assertEqual(len(shown["planets"]["rows"]), 9)
        self.succeed("client", "edit", "1", "--offset", "-5", "--comments", "moved")
        shown = json.loads(self.succeed("client", "show", "1", "--json"))
        self.assertEqual((shown["client"]["fullname"], shown["client"]["offset"]), (name, "-5"))
        self.assertIn(name, self.succeed("client", "list"))

    def test_two_clients_added_at_once_have_their_own_planets(self):
        for _ in range(2):
            self.succeed("client", "add", "--name", "A", *BIRTH)
        shown = json.loads(self.succeed("client", "show", "2", "--json"))
        self.assertEqual(len(shown["planets"]["rows"]), 9)

    def test_refusals_exit_with_1_and_leave_standard_output_empty(self):
        self.succeed("init")
        cases = [
            (["client", "add", "--name", " ", *BIRTH], "Client Name is a mandatory field."),
            (["client", "add", "--name", "A", "--birth", "1990-02-30 10:00", "--city", "1"],
             "is no date"),
            (["client", "add", "--name", "A", "--birth", "0099-01-01 10:00", "--city", "1"],
             "is no date"),
            (["client", "add", "--name", "A", "--birth", "1990-01-01 10:00", "--city", "999999"],
             "No City selected. Cannot proceed."),
            (["client", "add", "--name", "A", *BIRTH, "--offset", "five"],
             "Please enter a numeric value."),
            (["client", "add", "--name", "A", *BIRTH, "--group", "77"], "no group"),
            (["client", "add", "--name", "A", *BIRTH, "--horary", "250", "--question", "?"],
             "Please enter a value between 1 to 249."),
            (["client", "add", "--name", "A", *BIRTH, "--gender", "X"], "--gender"),
            (["client", "show", "55"], "no client"),
            (["client", "edit", "55", "--name", "B"],
             "The record you are trying to edit could not be retrieved."),
            (["horoscope", "55"], "no client"),
            (["horoscope", "one"], "is no whole number"),
            (["city", "add", "--name", "X", "--timezone", "Mars/Base", "--latitude", "1",
              "--longitude", "1"], "Please select a Time Zone from the list."),
            (["city", "offset", "999999", "1990-01-01"],
             "The record you are trying to edit could not be retrieved."),
            (["group", "add", "general"], "The Group 'general' already exists in the database."),
            (["group", "delete", "1"], "Are you sure you want to delete"),
            ([*CHART, "--horary", "1000"], "--horary"),
            (["find", "Sun", "--degree", "abc"], "Numeric value required."),
            (["find", "Sun", "--degree", "-5"], "Value should be between 0 to 360 degrees."),
            (["find", "Sun", "--degree", "361"], "Value should be between 0 to 360 degrees."),
            (["find", "Sun", "--degree", "200", "--from", "2026-01-01", "--days", "3"],
             "Not found within the days to search."),
            (["find", "Pluto", "--degree", "1"], "no planet"),
            (["grid", "1499", "12"], "1500 to 2500"),
            (["grid", "2026", "11", "--time", "25:00"], "--time"),
            (["transit", "Mars", "2026-11-24", "--hour", "24"], "--hour"),
            (["--now", "yesterday", "client", "list"], "--now"),
        ]
        for arguments, message in cases:
            for json_flag in ([], ["--json"]):
                status, out, err = self.call(*arguments, *json_flag)
                self.assertEqual((status, out), (1, ""), arguments)
                self.assertIn(message, err)
        self.assertEqual(json.loads(self.succeed("client", "list", "--json"))["rows"], [])

    def test_words_that_are_off_exit_with_2_and_a_usage_line(self):
        for arguments in ([], ["nonsense"], ["client"], ["client", "add"], ["chart"],
                          ["sun", "2000-01-01", "--latitude", "1"], ["init", "--nonsense"],
                          ["horoscope", "1", "--aspects", "some"]):
            status, out, err = self.call(*arguments)
            self.assertEqual((status, out), (2, ""), arguments)
            self.assertIn("Usage", err)

    def test_the_home_is_private_and_a_broken_store_is_left_alone(self):
        store = self.succeed("init").strip()
        self.assertEqual(os.stat(store).st_mode & 0o777, 0o600)
        self.assertEqual(os.stat(self.home).st_mode & 0o777, 0o700)
        with open(store, "wb") as stream:
            stream.write(b"broken")
        status, out, err = self.call("client", "list")
        self.assertEqual((status, out), (1, ""))
        self.assertIn("could not find the database", err)
        with open(store, "rb") as stream:
            self.assertEqual(stream.read(), b"broken")

    def test_the_clocks_of_a_city(self):
        self.succeed("init")
        row = json.loads(self.succeed("city", "offset", "1", "1943-05-05 10:00", "--json"))
        texts = [cell["text"] for cell in row["rows"][0]["cells"]]
        self.assertEqual(texts[:5], ["Mumbai", "Asia/Kolkata", "1943-05-05 10:00:00", "5.5", "6.5"])

    def test_a_sky_without_its_files_or_beyond_them_is_told_of_once(self):
        self.environment["SE_EPHE_PATH"] = "/nowhere"
        status, out, err = self.call(*CHART, "--json")
        self.assertEqual((status, len(json.loads(out)["planets"])), (0, 9))
        self.assertEqual(err.count("were not found"), 1)
        del self.environment["SE_EPHE_PATH"]
        status, _, err = self.call("chart", "--birth", "9999-01-01 00:00", "--offset", "0",
                                   "--latitude", "0", "--longitude", "0")
        self.assertEqual((status, err.count("no positions for this date")), (0, 1))

    def test_found_transits_and_a_month_go_into_private_calendar_files(self):
        for arguments in (["find", "Moon", "--degree", "100", "--from", "2026-01-01", "--count",
                           "3"], ["grid", "2026", "11"]):
            file = os.path.join(os.path.dirname(self.home), "transits.ics")
            first = []
            for _ in range(2):
                self.succeed(*arguments, "--ics", file)
                with open(file, encoding="utf8", newline="") as stream:
                    text = stream.read()
                first.append([line for line in text.split("\r\n") if line.startswith("UID:")])
            self.assertEqual(os.stat(file).st_mode & 0o777, 0o600)
            self.assertEqual(first[0], first[1])
            self.assertGreater(len(first[0]), 2)

    def test_a_negative_number_is_a_value_and_not_an_option(self):
        chart = json.loads(self.succeed("chart", "--birth", "1990-07-05 14:30", "--offset", "-5",
                                        "--latitude", "-33.5", "--longitude", "-74.00597", "--json"))
        self.assertEqual((chart["moment"]["Hour"], chart["moment"]["Minute"]), (19, 26))


if __name__ == "__main__":
    unittest.main()
