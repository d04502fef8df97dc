#!/usr/bin/env python3
"""The demonstration: filled once, whole, private, and apart from the user's own home."""
import json
import os
import shutil
import unittest

from calling import CommandLineTest

# Tables that wait for a choice of the astrologer, or for a remedy.
MAY_BE_EMPTY = {"RotatedTable", "RemedyTable", "LalKitabYear", "TransitNow"}


class Demonstration(CommandLineTest):
    def setUp(self):
        super().setUp()
        self.data = os.path.join(os.path.dirname(self.home), "data")
        self.demo_folder = os.path.join(self.data, "orvex-demo")
        # Whatever the user has stays as it is: an own home, found in each of the usual ways.
        self.own = self.succeed("init").strip()
        with open(self.own, "rb") as stream:
            self.before = stream.read()
        self.settings = self.machine_settings()
        self.environment.update(XDG_DATA_HOME=self.data, ORVEX_HOME=self.home)

    def machine_settings(self):
        file = os.path.join(self.environment["XDG_CONFIG_HOME"], "orvex", "machine-settings.json")
        with open(file, encoding="utf8") as stream:
            return stream.read()

    def demo(self, *arguments):
        self.arguments = ["--demo"]
        return json.loads(self.succeed(*arguments, "--json"))

    def names(self):
        return [row["cells"][0]["text"] for row in self.demo("client", "list")["rows"]]

    def test_births_events_and_queries_open_with_full_tables(self):
        clients = self.demo("client", "list")["rows"]
        queries = [row for row in clients if row["cells"][0]["text"].startswith("Query: ")]
        self.assertEqual((len(clients), len(queries)), (57, 2))
        for row in clients:
            opened = self.demo("horoscope", row["tag"])
            empty = {name for name, table in opened["tables"].items() if not table["rows"]}
            self.assertLessEqual(empty, MAY_BE_EMPTY, row)
            self.assertEqual(len(opened["tables"]["PlanetTable"]["rows"]), 9)
            comments = opened["client"]["comments"]
            self.assertIn("query" if row in queries else "not from a record" if "memory" in comments
                          else "time is invented too" if "Invented" in comments else "ource",
                          comments)
        groups = [row["cells"][0]["text"] for row in self.demo("group", "list")["rows"]]
        self.assertEqual(groups, ["Artists", "Events", "General", "Invented clients", "Leaders",
                                  "Musicians", "Nations", "Queries", "Scientists", "Writers"])
        for query in queries:
            self.assertNotEqual(self.demo("remedy", "list", query["tag"])["rows"], [])

    def test_births_before_zones_run_on_the_local_mean_time_of_their_place(self):
        client = next(row for row in self.demo("client", "list")["rows"]
                      if row["cells"][0]["text"] == "Albert Einstein")
        shown = self.demo("client", "show", client["tag"])["client"]
        self.assertAlmostEqual(float(shown["offset"]) * 15, float(shown["longitude"]), places=2)
        moon = next(row for row in self.demo("horoscope", client["tag"])
                    ["tables"]["PlanetTable"]["rows"] if row["cells"][0]["text"] == "Moon")
        self.assertEqual(moon["cells"][2]["text"], "Scorpio")

    def test_a_later_start_leaves_what_the_user_made_of_it(self):
        first = self.demo("client", "list")["rows"][0]["tag"]
        self.demo("client", "delete", first, "--yes")
        self.assertEqual(len(self.names()), 56)
        # A fill that broke off is ended, and nothing comes twice.
        os.remove(os.path.join(self.demo_folder, "Demo filled"))
        self.assertEqual(len(self.names()), 57)
        self.assertEqual(len(set(self.names())), 57)
        # The whole folder away: filled anew.
        shutil.rmtree(self.demo_folder)
        self.assertEqual(len(self.names()), 57)

    def test_the_users_own_home_and_settings_stay_as_they_are(self):
        self.demo("client", "add", "--name", "A", "--birth", "1990-07-05 14:30", "--city", "1")
        with open(self.own, "rb") as stream:
            self.assertEqual(stream.read(), self.before)
        self.assertEqual(self.machine_settings(), self.settings)
        self.assertEqual(os.listdir(self.data), ["orvex-demo"])
        for folder, _, files in os.walk(self.demo_folder):
            self.assertEqual(os.stat(folder).st_mode & 0o777, 0o700)
            for file in files:
                self.assertEqual(os.stat(os.path.join(folder, file)).st_mode & 0o077, 0)
        self.arguments = ["--demo", "--home", self.home]
        self.assertEqual(self.call("client", "list")[:2], (2, ""))


if __name__ == "__main__":
    unittest.main()
