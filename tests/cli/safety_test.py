#!/usr/bin/env python3
"""What a call must not do: write over the program's own files, drive the terminal, hide a failure."""
import json
import os
import subprocess
import unittest

from calling import BIRTH, PROGRAM, CommandLineTest

ESCAPE = "a\x1b[2Jb\u009bc\u202ed"
SHOWN = "a\u241b[2Jb<U+009B>c<U+202E>d"


class Safety(CommandLineTest):
    def run_to(self, output, *arguments):
        done = subprocess.run([PROGRAM, "--home", self.home, *arguments], stdout=output,
                              stderr=subprocess.PIPE, check=False, env=self.environment)
        return done.returncode, done.stderr.decode()

    def test_no_output_option_writes_over_the_programs_own_files(self):
        client = self.succeed("client", "add", "--name", "A", *BIRTH).strip()
        store = self.succeed("init").strip()
        backup = self.succeed("backup").strip()
        link, name = os.path.join(self.home, "link"), os.path.join(self.home, "name")
        os.symlink(store, link)
        os.link(store, name)
        template = os.path.join(self.home, "HoroscopeTemplate.htm")
        settings = os.path.join(self.environment["XDG_CONFIG_HOME"], "orvex",
                                "machine-settings.json")
        commands = [["export", "clients", "--file"], ["grid", "2026", "11", "--svg"],
                    ["grid", "2026", "11", "--ics"], ["horoscope", client, "--timeline"],
                    ["find", "Sun", "--degree", "100", "--ics"], ["crossings", "Moon", "--ics"]]
        for number, own in enumerate([store, backup, link, name, os.path.relpath(store), template,
                                      settings]):
            before = self.content(own)
            status, out, err = self.call(*commands[number % len(commands)], own)
            self.assertEqual((status, out), (1, ""), own)
            self.assertIn("belongs to Orvex+ itself", err)
            self.assertEqual(self.content(own), before)
        for command in commands:
            self.assertEqual(self.call(*command, store)[0], 1, command)
        pipe = os.path.join(self.home, "pipe")
        os.mkfifo(pipe)
        for command in commands:
            self.assertEqual(self.call(*command, pipe)[0], 1, command)
        self.assertEqual(os.listdir(self.home).count("pipe"), 1)

    def content(self, file):
        with open(file, "rb") as stream:
            return stream.read()

    def test_stored_texts_do_not_drive_the_terminal(self):
        self.succeed("client", "add", "--name", ESCAPE, *BIRTH)
        for arguments in (["client", "list"], ["client", "show", "1"], ["horoscope", "1"]):
            out = self.succeed(*arguments)
            self.assertIn(SHOWN, out)
            self.assertNotRegex(out, "[\x1b\u009b\u202e]")
        rows = json.loads(self.succeed("client", "list", "--json"))["rows"]
        self.assertEqual(rows[0]["cells"][0]["text"], ESCAPE)
        self.assertIn(ESCAPE, self.succeed("client", "list", "--csv"))
        self.succeed("group", "add", "g\x1b[1m")
        _, _, err = self.call("group", "add", "g\x1b[1m")
        self.assertIn("g\u241b[1m", err)

    def test_an_output_that_can_not_be_written_is_a_failure(self):
        self.succeed("init")
        with open("/dev/full", "wb") as full:
            for arguments in (["client", "list"], ["client", "list", "--json"], ["--version"]):
                status, err = self.run_to(full, *arguments)
                self.assertEqual((status, err), (1, "Standard output could not be written.\n"))
        reader, writer = os.pipe()
        os.close(reader)
        status, err = self.run_to(writer, "city", "list")
        os.close(writer)
        self.assertEqual((status, err), (1, "Standard output could not be written.\n"))

    def test_a_home_that_is_no_home_is_told(self):
        self.arguments = ["--home", ""]
        status, _, err = self.call("init")
        self.assertEqual(status, 2)
        self.assertIn("--home", err)
        self.environment.pop("HOME", None)
        done = subprocess.run([PROGRAM, "init"], capture_output=True, text=True, check=False,
                              env=self.environment)
        self.assertEqual(done.returncode, 1)
        self.assertIn("HOME", done.stderr)

    def test_a_text_that_is_no_utf8_is_refused(self):
        self.succeed("client", "add", "--name", "A", *BIRTH)
        bad = b"\xff\xed\xa0\x80"
        for arguments in (["client", "add", "--name", bad, *BIRTH],
                          ["client", "add", "--name", "B", *BIRTH, "--comments", bad],
                          ["client", "edit", "1", "--name", bad],
                          ["group", "add", bad], ["group", "rename", "1", bad],
                          ["remedy", "add", "1", "--problem", bad, "--remedy", "r"],
                          ["settings", "set", b"AstrologerName=" + bad]):
            done = subprocess.run([PROGRAM, "--home", self.home, *arguments], check=False,
                                  capture_output=True, env=self.environment)
            self.assertEqual(done.returncode, 1, arguments)
            self.assertIn(b"UTF-8", done.stderr)

    def test_a_lost_store_is_told_with_the_way_back(self):
        self.succeed("client", "add", "--name", "A", *BIRTH)
        self.succeed("client", "add", "--name", "B", *BIRTH)
        store, backup = self.succeed("init").strip(), self.succeed("backup").strip()
        os.remove(store)
        status, out, err = self.call("client", "list")
        self.assertEqual((status, out), (1, ""))
        self.assertIn(f'restore "{backup}"', err)
        self.assertFalse(os.path.exists(store))
        self.succeed("restore", backup)
        self.assertEqual(len(json.loads(self.succeed("client", "list", "--json"))["rows"]), 2)


if __name__ == "__main__":
    unittest.main()
