#!/usr/bin/env python3
"""Names of unnamed namespaces that stand in two files of one library, or in one of its headers too.

The files of a library are compiled in batches, so such a name must be one file's own, or have one
home that both include: a second routine of that name would be called in its place. Prints a line a
name.
"""
import collections
import pathlib
import re

CONSTANT = re.compile(r"(?:inline |static )?(?:constexpr|const)\b[^=({]*?\b(k[A-Z]\w*)")
KIND = re.compile(r"(?:struct|class|enum class) (\w+)|using (\w+) =")
ROUTINE = re.compile(r"[A-Za-z_][\w:<>,&* ]*[ &*>](\w+)\(")


def names_inside(text):
    inside = False
    for line in text.splitlines():
        if line == "namespace {":
            inside = True
        elif line == "}  // namespace":
            inside = False
        elif inside and (found := CONSTANT.match(line) or KIND.match(line) or ROUTINE.match(line)):
            yield next(name for name in found.groups() if name)


homes = collections.defaultdict(set)
for file in pathlib.Path("src").rglob("*.cpp"):
    for name in names_inside(file.read_text()):
        homes[file.parent, name].add(file.name)
for file in pathlib.Path("src").rglob("*.h"):
    for name in filter(None, map(ROUTINE.match, file.read_text().splitlines())):
        if (file.parent, name.group(1)) in homes:
            homes[file.parent, name.group(1)].add(file.name)
for (folder, name), files in sorted(homes.items()):
    if len(files) > 1:
        print(f"{folder}: {name} in {', '.join(sorted(files))}")
