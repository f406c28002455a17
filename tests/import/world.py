"""Makes the world from public tables and looks at what came out.

    world.py GT1 GTDRIVE TEST_PROGRAMS PROJECT DATA SCRATCH [--any-time]

DATA is a folder of public tables; without it the test is skipped. What came out is flown: GTDRIVE works a day at a large
airport, TEST_PROGRAMS makes 500 plans and reads back what other programs get of them.
"""

import collections
import csv
import hashlib
import json
import math
import os
import pathlib
import random
import resource
import shutil
import subprocess
import sys
import time

SKIPPED = 77
SECONDS = 180
MEGABYTES = 1500


def fail(text):
    sys.exit("failed: " + text)


def table(folder, name):
    with open(folder / name, encoding="utf-8") as file:
        return list(csv.DictReader(file))


def vector(latitude, longitude):
    a, b = math.radians(float(latitude)), math.radians(float(longitude))
    return math.cos(a) * math.cos(b), math.cos(a) * math.sin(b), math.sin(a)


def miles(a, b):
    return 3440.065 * 2 * math.asin(min(1, 0.5 * math.dist(a, b)))


def digests(folder):
    return {str(path.relative_to(folder)): hashlib.sha256(path.read_bytes()).hexdigest()
            for path in sorted(folder.rglob("*")) if path.is_file()}


def run(gt1, sources, program, *more):
    begin = time.monotonic()
    done = subprocess.run([gt1, "import", *sources, "--into", program, "--name", "World", *more], capture_output=True,
                          text=True)
    return done, time.monotonic() - begin


def names(rows, key):
    """Records by the name that plans give them: key, key.2 and so on."""
    out = {}
    for row in rows:
        name, again = row[key], 1
        while name in out:
            again += 1
            name = f"{row[key]}.{again}"
        out[name] = vector(row["latitude"], row["longitude"])
    return out


def look_at_plans(tables):
    airports = {row["iata"]: vector(row["latitude"], row["longitude"]) for row in table(tables, "airports.csv")}
    shared = tables / "shared"
    records = {"V": names(table(shared, "vor.csv"), "ident"), "N": names(table(shared, "ndb.csv"), "ident"),
               "I": names(table(shared, "fixes.csv"), "key"), "H": names(table(shared, "jets.csv"), "key")}
    plans = collections.defaultdict(list)
    for row in table(tables, "plans.csv"):
        plans[int(row["plan"])].append(row)
    kinds = collections.Counter()
    for number, points in plans.items():
        kinds.update(point["kind"] for point in points)
        if len(points) > 100:
            fail(f"plan {number} has {len(points)} points")
        inside = [i for i in range(1, len(points) - 1)
                  if points[i]["airway"] and points[i]["airway"] == points[i + 1]["airway"]]
        if len(points) > 28 and inside:
            fail(f"plan {number} has {len(points)} points, some of which could go")
        if not points[0]["origin"] or not points[0]["kind"]:
            continue
        ends = airports[points[0]["origin"]], airports[points[0]["destination"]]
        way = [ends[0], *(records[p["kind"]][p["fix"]] for p in points), ends[1]]
        length = sum(miles(a, b) for a, b in zip(way, way[1:]))
        if length > 1.351 * miles(*ends) + 0.1:
            fail(f"plan {number} is {length:.0f} nm long for {miles(*ends):.0f}")
    if any(kinds[kind] == 0 for kind in "VNIH"):
        fail(f"not all kinds of points are in use: {kinds}")
    return len(plans), kinds


def drive(gtdrive, program, *words):
    """The answers to the words, from a first start: a value where one is printed, else None."""
    (program / "GT.cfg").unlink(missing_ok=True)
    done = subprocess.run([gtdrive, program], input="\n".join(words) + "\n", capture_output=True, text=True, check=True)
    answers, value = [], None
    for line in done.stdout.splitlines():
        if line.startswith("error"):
            fail(f"{words[len(answers)]}: {line}")
        if line == "ok" or line.startswith("modal "):
            answers.append(value)
            value = None
        else:
            value = json.loads(line)
    return dict(zip(words, answers))


def look_at_board(gtdrive, program, tables):
    """Atlanta: the board, the picker's search and the airports nearby, against the plain tables."""
    airports = table(tables, "airports.csv")
    home = next(row for row in airports if row["icao"] == "KATL")
    flights = sum(row["origin"] == home["iata"] for row in table(tables, "flights.csv"))
    said = drive(gtdrive, program, "now 2008-06-18 07:05:00", "start", "get MainForm.routeCombo items")
    sets = said["get MainForm.routeCombo items"]
    said = drive(gtdrive, program, "now 2008-06-18 07:05:00", "start", f"choose MainForm.routeCombo {sets.index('World')}",
                 "click MsgForm.okButton", "type MainForm.departureText KATL", "key MainForm.departureText enter",
                 "get SelectForm.List1", "choose SelectForm.List1 0", "click SelectForm.selectButton", "global HomeIndex",
                 "global DepartureFlights", "global BoardRows", "click MainForm.arrivalButton", "get SelectForm.List1 items",
                 "choose SelectForm.List1 0", "click SelectForm.selectButton", "choose FlightForm.FlightList 0",
                 "dblclick FlightForm.FlightList", "plan", "key MainForm.altSearch enter",
                 "get SelectForm.List1 text")
    if not said["get SelectForm.List1"][0].startswith("KATL"):
        fail(f"the search for KATL found {said['get SelectForm.List1'][:3]}")
    if len(said["global DepartureFlights"]) != flights or flights < 500:
        fail(f"{len(said['global DepartureFlights'])} departures on the board's day, {flights} in the table")
    rows = [row for row in said["global BoardRows"] if row]
    if len(rows) != 8: # a full board
        fail(f"a board of {len(rows)} rows")
    if not said["plan"]["points"]:
        fail("no plan")
    print(f"KATL: {flights} departures, {len(said['get SelectForm.List1 items'])} destinations")


def look_at_programs(test_programs, program):
    subprocess.run([test_programs, "--gtest_filter=WorldSet.*", "--gtest_brief=1"], check=True,
                   env=dict(os.environ, GATEWISE_WORLD=str(program)))


def main():
    gt1, gtdrive, test_programs, project, data, scratch = *sys.argv[1:4], *map(pathlib.Path, sys.argv[4:7])
    if not (data / "routes.dat.xz").exists():
        print("skipped: no public tables beside the project")
        sys.exit(SKIPPED)
    shutil.rmtree(scratch, ignore_errors=True)
    program = scratch / "program"
    program.mkdir(parents=True)
    subprocess.run([gt1, "compile", project / "data/sample", program / "Data"], check=True, stdout=subprocess.DEVNULL)
    before = digests(program)
    old = {name: (program / "Data" / name).read_bytes() for name in ("VOR.gt1", "ISC.gt1", "JRT.gt1", "aircraft.gt1")}
    sources = sorted(data.glob("*.xz"))
    done, seconds = run(gt1, sources, program, "--tables", scratch / "tables")
    if done.returncode != 0:
        fail(done.stderr)
    memory = resource.getrusage(resource.RUSAGE_CHILDREN).ru_maxrss // 1024
    print(f"{seconds:.1f} seconds, {memory} MB")
    if "--any-time" not in sys.argv and (seconds > SECONDS or memory > MEGABYTES):
        fail("too slow or too large")
    for name, content in old.items():
        if not (program / "Data" / name).read_bytes().startswith(content):
            fail(f"{name} did not grow at its end")
    if {k: v for k, v in digests(program).items() if k in before and "Data/index" in k} != \
            {k: v for k, v in before.items() if "Data/index" in k}:
        fail("the main set's own files changed")
    number, kinds = look_at_plans(scratch / "tables")
    print(f"{number} plans, points {dict(kinds)}")
    first = digests(program)
    random.Random(1).shuffle(sources)
    done, _ = run(gt1, sources, program)
    if done.returncode != 0 or digests(program) != first:
        fail("the same sources in another order made other bytes")
    look_at_programs(test_programs, program)
    look_at_board(gtdrive, program, scratch / "tables")


main()
