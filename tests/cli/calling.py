"""Calls orvex-cli as a user does, in a home of its own."""
import os
import subprocess
import sys
import tempfile
import unittest

PROGRAM = os.path.abspath(sys.argv.pop())
BIRTH = ["--birth", "1990-07-05 14:30", "--city", "1"]


class CommandLineTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="cli-")
        self.addCleanup(folder.cleanup)
        self.home = os.path.join(folder.name, "home")
        self.arguments = None  # before every command; the home where there are none
        self.environment = {"XDG_CONFIG_HOME": os.path.join(folder.name, "config"),
                            "PATH": os.environ["PATH"], "LC_ALL": "de_DE.UTF-8"}

    def call(self, *arguments, **how):
        done = subprocess.run([PROGRAM, *(self.arguments or ["--home", self.home]), *arguments],
                              capture_output=True, text=True, check=False, env=self.environment,
                              **how)
        return done.returncode, done.stdout, done.stderr

    def succeed(self, *arguments):
        status, out, err = self.call(*arguments)
        self.assertEqual((status, err), (0, ""), arguments)
        return out
