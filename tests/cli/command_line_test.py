#!/usr/bin/env python3
"""Calls orvex-cli as a user does and checks exit status, standard output and standard error."""
import json
import os
import unittest
import zipfile
from xml.etree import ElementTree

from calling import BIRTH, PROGRAM, CommandLineTest

CHART = ["chart", "--birth", "1990-07-05 14:30", "--offset", "5.5",
         "--latitude", "19.07", "--longitude", "72.88"]


class CommandLine(CommandLineTest):
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
            (["client", "delete", "1"], "Are you sure you want to delete the selected Client?"),
            (["client", "delete", "55", "--yes"], "There is no client with that id."),
            (["client", "move", "55", "--group", "1"], "There is no client with that id."),
            (["search", "--gender", "X"], "--gender"),
            (["search", "--retro", "Sun"], "--retro"),
            (["import", "/nowhere.csv"], "could not be read"),
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

    def test_settings_are_checked_and_apply_to_the_next_command(self):
        changed = json.loads(self.succeed("settings", "set", "AstrologerName=O'Neil",
                                          "sortbyfield=BHD", "DefaultChartType=South Indian",
                                          "Orbit_30=0", "--json"))
        self.assertEqual((changed["AstrologerName"], changed["SortByField"], changed["Orbit_30"],
                          changed["DefaultChartType"]), ("O'Neil", "BHD", "0", "S"))
        self.assertEqual(json.loads(self.succeed("settings", "show", "--json")), changed)
        for setting, message in [("Orbit_150=4", "Value cannot be less than 0 or greater than 3."),
                                 ("Orbit_150=x", "Numeric value required."),
                                 ("AstrologerName=" + "x" * 51, "Name cannot exceed 50 characters."),
                                 ("RahuKetuCalculation=X", "takes one of M (Mean), T (True)")]:
            status, out, err = self.call("settings", "set", setting)
            self.assertEqual((status, out), (1, ""), setting)
            self.assertIn(message, err)
        for setting in ("Shoe=4", "Orbit_30"):
            self.assertEqual(self.call("settings", "set", setting)[0], 2)
        self.assertEqual(json.loads(self.succeed("settings", "show", "--json")), changed)

    def test_an_instant_chart_needs_a_group(self):
        self.assertEqual(self.succeed("--now", "2026-11-24 10:00", "instant"), "1\n")
        self.assertIn("Instant Chart - 24 Nov 2026 10:00", self.succeed("client", "list"))
        self.succeed("settings", "set", "ICGroupID=0")
        status, out, err = self.call("instant")
        self.assertEqual((status, out, err), (
            1, "", "Instant Chart not configured in Settings window. "
            "Do you wish to configure it now?\n"))
        self.assertEqual(len(json.loads(self.succeed("client", "list", "--json"))["rows"]), 1)

    def test_a_search_lists_and_counts_and_a_quote_finds_nothing(self):
        self.succeed("client", "add", "--name", "A", *BIRTH, "--comments", "it's work")
        found = json.loads(self.succeed("search", "--text", "work", "--groups", "1", "--after",
                                        "1990-07-05", "--before", "1990-07-06", "--json"))
        self.assertEqual(found["captions"]["Result"],
                         "Found 1 record(s). Double click on a record to View Horoscope.")
        self.assertEqual(found["tables"]["Results"]["rows"][0]["tag"], "1")
        self.assertIn("Found 0 record(s).", self.succeed("search", "--text", "it's"))
        status, out, err = self.call("search", "--groups", "")
        self.assertEqual((status, out, err), (
            1, "", "You need to select at least one Group from the list.\n"))

    def test_a_spreadsheet_holds_dates_numbers_and_harmless_texts(self):
        self.succeed("client", "add", "--name", "=1+1", *BIRTH, "--mobile", "009")
        file = os.path.join(self.home, "list.xlsx")
        self.succeed("export", "search", "--gender", "M", "--file", file)
        self.assertEqual(os.stat(file).st_mode & 0o777, 0o600)
        with zipfile.ZipFile(file) as book:
            sheet = book.read("xl/worksheets/sheet1.xml").decode()
            texts = book.read("xl/sharedStrings.xml").decode()
        self.assertNotIn("<f>", sheet)
        self.assertIn("<t>=1+1</t>", texts)
        self.assertIn("<t>009</t>", texts)
        self.assertIn('state="frozen"', sheet)
        self.assertRegex(sheet, r'<c r="D2" s="2"><v>33059\.6')  # 5 July 1990 as a day number
        self.assertIn('<c r="H2"><v>19.07283</v>', sheet)
        status, _, err = self.call("export", "birthdays", "--file", "/nowhere/x.xlsx")
        self.assertEqual((status, err), (1, "Could not export data to Microsoft Excel.\n"))

    def test_clients_go_out_as_csv_and_come_in_again(self):
        self.succeed("client", "add", "--name", "=1+1", *BIRTH, "--comments", "a\n\"b\",c")
        self.succeed("client", "add", "--name", "Q", *BIRTH, "--horary", "7", "--question", "-?")
        out = self.succeed("client", "list", "--csv")
        file = os.path.join(os.path.dirname(self.home), "clients.csv")
        with open(file, "w", encoding="utf-8", newline="") as stream:
            stream.write(out + "Bad,,1,,,,,,,,,,,,,\n")
        self.home += "2"
        status, printed, err = self.call("import", file, "--dry-run", "--json")
        self.assertEqual((status, json.loads(printed)["imported"]), (0, 2))
        self.assertIn("line 5: birth:", err)
        self.assertEqual(json.loads(self.succeed("client", "list", "--json"))["rows"], [])
        self.assertEqual(self.call("import", file)[0], 0)
        self.assertEqual(self.succeed("client", "list", "--csv"), out)
        status, printed, _ = self.call("import", file)
        self.assertEqual((status, printed), (0, "0 imported, 2 already stored, 1 refused\n"))

    def test_births_come_from_exchange_files_and_go_out_as_aaf(self):
        folder = os.path.join(os.path.dirname(self.home), "in")
        os.mkdir(folder)
        good = "#A93:Kumar,Ravi,m,5.7.1990,14:30,Pune,IN\n#B93:*,18N31,73E51,5hE00,0\n"
        for name, text in (("a.aaf", good), ("b.aaf", good.replace("Ravi", "Asha") + "bad\n")):
            with open(os.path.join(folder, name), "w", encoding="utf-8") as stream:
                stream.write(text)
        status, out, err = self.call("import", folder, "--json")
        self.assertEqual((status, json.loads(out)), (1, {
            "imported": 0, "alreadyStored": 0, "refused": [
                {"file": "b.aaf", "line": 3, "reason": "the line begins with no tag such as #A93:"}]}))
        self.assertIn("b.aaf line 3: ", err)
        self.assertIn("Nothing was imported, because lines were refused.\n", err)
        file = os.path.join(folder, "a.aaf")
        status, out, _ = self.call("import", file, "--dry-run", "--json")
        births = json.loads(out)["tables"]["Births"]
        captions = [column["caption"] for column in births["columns"]]
        cells = {name: cell["text"] for name, cell in zip(captions, births["rows"][0]["cells"])}
        self.assertEqual((status, cells["Offset in File"], cells["Offset of Clocks"]),
                         (0, "5", "5.5"))
        self.assertEqual(json.loads(self.succeed("client", "list", "--json"))["rows"], [])
        status, out, _ = self.call("import", folder, "--leave-out-refused")
        self.assertEqual((status, out), (0, "1 imported, 0 already stored, 1 refused\n"))
        status, out, _ = self.call("import", file)
        self.assertEqual((status, out), (0, "0 imported, 1 already stored, 0 refused\n"))
        written = []
        for words in (["client", "1"], ["clients", "--group", "1"], ["search", "--gender", "M"]):
            target = os.path.join(folder, words[0] + ".AAF")
            self.assertEqual(self.succeed("export", *words, "--file", target), target + "\n")
            with open(target, encoding="utf-8") as stream:
                written.append(stream.read())
        self.assertIn("#A93:Kumar,Ravi,m,5.7.1990,14:30,Pune,IN\n", written[0])
        self.assertEqual(written, written[:1] * 3)
        for words in (["client", "9", "--file", target], ["client", "1", "--file", "x.xlsx"],
                      ["birthdays", "--file", target]):
            self.assertEqual(self.call("export", *words)[0], 1, words)

    def test_a_deleted_client_comes_back_with_a_backup(self):
        self.succeed("client", "add", "--name", "A", *BIRTH)
        backup = self.succeed("backup").strip()
        self.assertEqual(self.succeed("client", "delete", "1", "--yes"), "1\n")
        self.assertEqual(json.loads(self.succeed("client", "list", "--json"))["rows"], [])
        self.succeed("restore", backup)
        self.assertEqual(len(json.loads(self.succeed("client", "list", "--json"))["rows"]), 1)
        status, out, err = self.call("restore", PROGRAM)
        self.assertEqual((status, out), (1, ""))
        self.assertIn("no database of Orvex+; nothing was changed", err)

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

    def test_graphs_are_private_well_formed_pictures_that_tell_their_matter(self):
        client = self.succeed("client", "add", "--name", "<Asha> & Rao", *BIRTH).strip()
        for arguments, option, told in (
                (["grid", "2026", "11"], "--svg", "Sagittarius"),
                (["horoscope", client], "--timeline", "Horoscope for <Asha> & Rao")):
            file = os.path.join(os.path.dirname(self.home), "graph.svg")
            self.succeed(*arguments, option, file)
            self.assertEqual(os.stat(file).st_mode & 0o777, 0o600)
            self.assertIn(told, "".join(ElementTree.parse(file).getroot().itertext()))
            status, _, err = self.call(*arguments, option, "/nowhere/graph.svg")
            self.assertEqual((status, err.strip() != ""), (1, True))

    def test_a_negative_number_is_a_value_and_not_an_option(self):
        chart = json.loads(self.succeed("chart", "--birth", "1990-07-05 14:30", "--offset", "-5",
                                        "--latitude", "-33.5", "--longitude", "-74.00597", "--json"))
        self.assertEqual((chart["moment"]["Hour"], chart["moment"]["Minute"]), (19, 26))

    def test_a_month_tells_its_changes_beside_its_table(self):
        tables = json.loads(self.succeed("grid", "2026", "11", "--json"))["tables"]
        self.assertEqual(list(tables), ["Grid", "Changes"])
        self.assertEqual([column["caption"] for column in tables["Changes"]["columns"]],
                         ["Date", "Time", "Planet", "Change"])
        rows = [[cell["text"] for cell in row["cells"]] for row in tables["Changes"]["rows"]]
        self.assertIn(["13 Nov 2026", "Mercury", "Mercury turns direct"],
                      [[row[0], *row[2:]] for row in rows])


if __name__ == "__main__":
    unittest.main()
