#!/usr/bin/env python3
"""Runs the command line on worked cases and compares what it prints with what they expect.

    golden_test.py ORVEX_CLI CASES.json

A case: {"setup": [[arguments], ...], "args": [arguments], "want": JSON}. The setup runs first, in a
home of its own; cases without one share a home. Only what "want" names is compared; an empty object
stands for anything, a plain text for a cell with that text. Exit status 1 where anything differs or
fewer cases ran than the file holds.
"""
import json
import os
import re
import shutil
import subprocess
import sys
import tempfile


def differences(want, got, where):
    if want == {}:
        if got is None:
            yield f"{where}: missing"
        return
    if isinstance(want, dict):
        if not isinstance(got, dict):
            yield f"{where}: wanted an object, got {got!r}"
            return
        for key, value in want.items():
            if key in got or value not in ("", None):
                yield from differences(value, got.get(key), f"{where}.{key}")
    elif isinstance(want, list):
        if not isinstance(got, list) or len(want) != len(got):
            yield f"{where}: wanted {len(want)} items, got {got!r}"
            return
        for place, pair in enumerate(zip(want, got)):
            yield from differences(*pair, f"{where}[{place}]")
    elif isinstance(want, (str, bool)) or want is None:
        text = got.get("text", "") if isinstance(want, str) and isinstance(got, dict) else got
        if want != text:
            yield f"{where}: wanted {want!r}, got {text!r}"
    elif not isinstance(got, (int, float)) or abs(want - got) > 1e-9 * max(1.0, abs(want)):
        yield f"{where}: wanted {want!r}, got {got!r}"


def faults_of(program, case, home):
    for arguments in [*case.get("setup", []), case["args"]]:
        done = subprocess.run([program, "--home", home, *arguments],
                              capture_output=True, text=True, check=False)
        if done.returncode:
            return [f"{arguments}: exit {done.returncode}: {done.stderr.strip()}"]
    try:
        got = json.loads(done.stdout)
    except ValueError as error:
        return [f"no JSON: {error}"]
    return list(differences(case["want"], got, ""))


def new_home(made, home):
    """A home like the one that was made once: its tables hold 50,000 towns."""
    if not os.path.exists(home):
        shutil.copytree(made, home)


def main():
    program, file = os.path.abspath(sys.argv[1]), sys.argv[2]
    with open(file, encoding="utf8") as stream:
        text = stream.read()
    expected = len(re.findall(r'"want":', text))
    ran = failed = 0
    with tempfile.TemporaryDirectory(prefix="golden-") as folder:
        os.environ["XDG_CONFIG_HOME"] = os.path.join(folder, "config")
        made = os.path.join(folder, "made")
        subprocess.run([program, "--home", made, "init"], check=True, capture_output=True)
        for number, case in enumerate(json.loads(text)["cases"]):
            home = os.path.join(folder, str(number) if case.get("setup") else "shared")
            new_home(made, home)
            faults = faults_of(program, case, home)
            ran += 1
            if faults:
                failed += 1
                print(f"case {number}: {' '.join(case['args'])}", *faults[:10], sep="\n    ")
    print(f"{ran - failed} of {ran} cases agree")
    return 1 if failed or ran == 0 or ran != expected else 0


if __name__ == "__main__":
    sys.exit(main())
