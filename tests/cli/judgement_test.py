#!/usr/bin/env python3
"""The commands of the judgement, called as a user does."""
import json
import os
import unittest

from calling import BIRTH, CommandLineTest

TABLES = ["MatterChain", "MatterCusps", "HouseGrades", "MatterPlanets", "MatterPeriods", "Rulers"]


def texts(table):
    return [[cell["text"] for cell in row["cells"]] for row in table["rows"]]


class Judgement(CommandLineTest):
    def setUp(self):
        super().setUp()
        self.succeed("client", "add", "--name", "Client", *BIRTH)

    def judged(self, *arguments):
        return json.loads(self.succeed("matter", *arguments, "--json"))

    def test_matters_are_listed_added_edited_and_deleted(self):
        shipped = texts(json.loads(self.succeed("matters", "--json")))
        self.assertEqual(shipped[0][:4], ["Marriage", "7", "2 11", "1 6 10"])
        self.assertEqual(self.succeed("matters"), self.succeed("matters", "list"))
        number = self.succeed("matters", "add", "--name", "Pilgrimage", "--main", "9",
                              "--supporting", "12 3", "--denying", "").strip()
        self.succeed("matters", "edit", number, "--denying", "2,8", "--source", "own")
        self.assertEqual(self.judged("1", "PILGRIMAGE")["captions"],
                         {"Matter": "Pilgrimage", "Houses": "9 | 3 12 | 2 8"})
        self.assertEqual(self.call("matters", "delete", number)[0], 1)
        self.succeed("matters", "delete", number, "--yes")
        self.assertEqual(texts(json.loads(self.succeed("matters", "list", "--json"))), shipped)

    def test_a_matter_has_all_its_tables_and_a_calendar(self):
        calendar = os.path.join(self.home, "periods.ics")
        judged = self.judged("1", "1", "--from", "2026-11-24", "--to", "2028-01-01",
                             "--at", "2026-11-24 10:00", "--ics", calendar)
        self.assertEqual(list(judged["tables"]), TABLES)
        periods = texts(judged["tables"]["MatterPeriods"])
        with open(calendar, encoding="utf-8") as file:
            self.assertEqual(file.read().count("BEGIN:VEVENT"), len(periods))
        self.assertGreater(len(periods), 3)
        plain = self.succeed("matter", "1", "Marriage")
        for table in TABLES:
            self.assertIn("\n" + table + "\n", plain)
        rotated = self.judged("1", "Marriage", "--rotate", "7")
        self.assertNotEqual(rotated["tables"]["HouseGrades"], judged["tables"]["HouseGrades"])

    def test_periods_reach_ten_years_from_their_begin(self):
        for now, arguments in (("2026-11-24 10:00:00", []),
                               ("2000-01-01 00:00:00", ["--from", "2026-11-24 10:00"])):
            periods = texts(json.loads(self.succeed(
                "--now", now, "matter", "1", "Marriage", "--json", *arguments))["tables"][
                    "MatterPeriods"])
            years = sorted({int(row[3].split()[-1]) for row in periods})
            self.assertEqual((years[0], years[-1]), (2026, 2036))

    def test_the_rulers_of_a_city_are_those_of_its_clock(self):
        here = json.loads(self.succeed("rulers", "--at", "2026-06-03 14:22", "--json"))
        there = json.loads(self.succeed("rulers", "--at", "2026-06-03 14:22", "--city", "1",
                                        "--json"))
        self.assertEqual(texts(here["tables"]["Rulers"])[0], ["Asc Star", "Moon", ""])
        self.assertNotEqual(here, there)
        now = ["--now", "2026-06-03 14:22:00", "rulers", "--json"]
        self.assertEqual(json.loads(self.succeed(*now)), here)

    def test_triggers_are_those_of_the_fruitful_planets_or_of_named_lords(self):
        span = ["--from", "2026-06-01", "--to", "2026-07-01", "--bodies", "moon,Sun", "--json"]
        at = ["--at", "2026-06-03 14:22"]
        fruitful = [row[0] for row in texts(self.judged("1", "Marriage", *at)["tables"]
                                            ["MatterPlanets"]) if row[6] == "Yes"]
        of_client = json.loads(self.succeed("triggers", "--client", "1", "--matter", "Marriage",
                                            *at, *span))["tables"]["Triggers"]
        named = json.loads(self.succeed("triggers", "--lords", ",".join(fruitful).lower(),
                                        *span))["tables"]["Triggers"]
        self.assertEqual([row[:6] for row in texts(of_client)], [row[:6] for row in texts(named)])
        self.assertTrue(all(row[6] for row in texts(of_client)))
        calendar = os.path.join(self.home, "triggers.ics")
        self.succeed("triggers", "--lords", "Sun,Moon,Mars,Mercury,Venus", *span,
                     "--ics", calendar)
        with open(calendar, encoding="utf-8") as file:
            self.assertIn("BEGIN:VEVENT", file.read())

    def test_the_bench_counts_the_events_that_were_noted(self):
        self.succeed("event", "add", "1", "--date", "2015-05-05", "--matter", "marriage",
                     "--remark", "in May")
        number = self.succeed("event", "add", "1", "--date", "2012-02-01", "--matter", "3").strip()
        self.succeed("event", "edit", number, "--date", "2012-03-01")
        self.assertEqual(texts(json.loads(self.succeed("event", "list", "1", "--json"))),
                         [["1 March 2012", "Service", ""], ["5 May 2015", "Marriage", "in May"]])
        bench = texts(json.loads(self.succeed("bench", "1", "--json"))["tables"]["BirthTimes"])
        self.assertEqual((bench[0][0], bench[-1][1]),
                         ("1990-07-05 14:20:00", "1990-07-05 14:40:00"))
        self.assertTrue(all(row[7].endswith(" of 2") for row in bench))
        self.assertEqual([row[8] for row in bench].count("Now"), 1)
        self.assertEqual(self.call("event", "delete", number)[0], 1)
        self.succeed("event", "delete", number, "--yes")
        self.assertEqual(len(json.loads(self.succeed("event", "list", "1", "--json"))["rows"]), 1)

    def test_what_cannot_be_judged_is_refused(self):
        self.succeed("client", "add", "--name", "Query", *BIRTH, "--horary", "77",
                     "--question", "When?")
        triggers = ["triggers", "--bodies", "Moon"]
        cases = [
            (1, ["matter", "1", "Nothing"], "There is no matter \"Nothing\""),
            (1, ["matter", "9", "Marriage"], "no client"),
            (1, ["matter", "1", "Marriage", "--rotate", "13"], "1 to 12"),
            (1, ["matter", "1", "Marriage", "--at", "soon"], "is no date"),
            (1, ["matter", "1", "Marriage", "--from", "2026-01-02", "--to", "2026-01-02"], "after"),
            (1, ["matters", "add", "--name", "A", "--main", "13", "--supporting", "2",
                 "--denying", "1"], "Main Cusp takes one house from 1 to 12."),
            (1, ["matters", "add", "--name", "A", "--main", "7", "--supporting", "2",
                 "--denying", "2"], "House 2 stands in two lists"),
            (1, ["matters", "edit", "99", "--name", "A"], "could not be retrieved"),
            (1, ["rulers", "--city", "999999"], "could not be retrieved"),
            (1, ["bench", "1", "--window", "121"], "1 to 120"),
            (1, ["bench", "1", "--window", "0"], "1 to 120"),
            (1, ["bench", "1", "--window", "ten"], "no whole number"),
            (1, ["bench", "2"], "The Ascendant of this chart is given"),
            (1, ["event", "add", "1", "--date", "2015-02-30", "--matter", "1"], "is no date"),
            (1, ["event", "add", "1", "--date", "2015-02-03", "--matter", "99"], "no matter"),
            (1, ["event", "add", "9", "--date", "2015-02-03", "--matter", "1"], "no client"),
            (1, ["event", "list", "9"], "no client"),
            (1, ["triggers", "--lords", "Sun", "--bodies", "Rahu"], "--bodies takes"),
            (1, [*triggers, "--lords", "Ascendant"], "--lords takes"),
            (1, [*triggers, "--lords", "Sun", "--from", "2026-02-01", "--to", "2026-01-01"],
             "after"),
            (1, [*triggers, "--client", "1", "--matter", "Nothing"], "no matter"),
            (2, triggers, ""),
            (2, [*triggers, "--client", "1"], ""),
            (2, [*triggers, "--lords", "Sun", "--matter", "1"], ""),
            (2, [*triggers, "--lords", "Sun", "--client", "1", "--matter", "1"], ""),
            (2, [*triggers, "--lords", "Sun", "--at", "2026-01-01"], ""),
            (2, ["matter", "1"], ""),
            (2, ["matters", "add", "--name", "A"], ""),
            (2, ["event"], ""),
            (2, ["bench"], ""),
        ]
        for wanted, call, message in cases:
            status, out, err = self.call(*call)
            self.assertEqual((status, out), (wanted, ""), call)
            self.assertIn(message, err, call)


if __name__ == "__main__":
    unittest.main()
