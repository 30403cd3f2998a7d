"""Reads gcov's JSON, one document a line, and prints the coverage of src/: see scripts/coverage."""
import json
import os
import sys
from collections import defaultdict

root = os.getcwd() + "/src/"
lines = defaultdict(lambda: defaultdict(int))  # file -> line -> runs
branches = defaultdict(lambda: defaultdict(lambda: defaultdict(int)))  # file -> line -> branch -> runs
for document in sys.stdin:
    for each in json.loads(document)["files"]:
        name = os.path.normpath(os.path.join(os.getcwd(), each["file"]))
        if not name.startswith(root) or name.startswith(root + "desktop/"):
            continue
        name = name[len(root):]
        for line in each["lines"]:
            lines[name][line["line_number"]] += line["count"]
            # Where an exception leaves the line is no decision of the code.
            decided = [b for b in line["branches"] if not b["throw"]]
            for place, branch in enumerate(decided if len(decided) > 1 else []):
                branches[name][line["line_number"]][place, len(decided)] += branch["count"]


def untaken(name):
    # A template or inline function has one set of branches for each place that uses it.
    return [n for n, sides in sorted(branches[name].items())
            if lines[name][n] and any(count == 0 for count in sides.values())]


def percent(runs):
    return f"{100 * sum(1 for r in runs if r) / max(len(runs), 1):6.2f} % of {len(runs):5}"


chosen = [os.path.relpath(os.path.abspath(each), root) for each in sys.argv[1:]]
for name in chosen:
    print(f"{name}: lines {[n for n, runs in sorted(lines[name].items()) if not runs]}, "
          f"branches {untaken(name)}")
if not chosen:
    rooms = defaultdict(list)
    for name, counted in lines.items():
        rooms[name.split("/")[0]] += counted.values()
    for room in sorted(rooms):
        print(f"{room:12} {percent(rooms[room])} lines")
    print(f"{'all':12} {percent([r for runs in rooms.values() for r in runs])} lines")
