"""Counts a carrier's week a second time, in another way than the importer, and compares.

    southwest.py GT1 PROJECT DATA SCRATCH

DATA is a folder of public tables (ontime-2008-06.csv.xz and others); without it the test is skipped.
"""

import collections
import csv
import datetime
import lzma
import pathlib
import shutil
import subprocess
import sys

SKIPPED = 77
NAMES = ["airports.dat", "airlines.dat", "ontime-2008-05.csv", "ontime-2008-06.csv", "plane-data.csv", "carriers.csv",
         "runways.csv"]


def rows(data, name):
    with lzma.open(data / (name + ".xz"), "rt", encoding="utf-8") as file:
        yield from csv.reader(file)


def models(project):
    with open(project / "data/types/models.csv", encoding="utf-8") as file:
        return list(csv.DictReader(file))


def type_of(table, maker, model):
    for row in table:
        same = len(model) >= len(row["model"]) and all(p in (".", m) for p, m in zip(row["model"], model))
        if row["maker"] in maker and same:
            return row["type"]
    return None


def minute(text):
    value = int(text) % 2400
    return value // 100 * 60 + value % 100


def band(miles):
    return sum(miles >= edge for edge in (250, 500, 800, 1200, 1800, 2600))


def most(counter):
    return min(counter, key=lambda key: (-counter[key], key))


def counted(project, data):
    """The week from the rows, one after the other: a dictionary for each flight."""
    table = models(project)
    tails = {}
    for row in rows(data, "plane-data.csv"):
        if len(row) > 4 and row[4]:
            tails[row[0]] = type_of(table, row[2].upper(), row[4].upper())
    usual = collections.defaultdict(collections.Counter)
    flights = {}
    week = [row for row in rows(data, "ontime-2008-06.csv") if row[8] == "WN"]
    for row in week:
        if tails.get(row[10]):
            usual[band(int(row[18]))][tails[row[10]]] += 1
    for row in sorted(week, key=lambda r: minute(r[5])):
        key = row[9], row[16], row[17]
        same = [f for f in flights.setdefault(key, []) if minute(row[5]) - f["first"] <= 10]
        if not same:
            same = [{"first": minute(row[5]), "times": collections.Counter(), "days": set(), "types": collections.Counter(),
                     "miles": int(row[18])}]
            flights[key] += same
        flight = same[-1]
        flight["times"][minute(row[5]), minute(row[7])] += 1
        flight["days"].add(datetime.date(int(row[0]), int(row[1]), int(row[2])).isoweekday())
        if tails.get(row[10]):
            flight["types"][tails[row[10]]] += 1
    out = set()
    for (number, origin, destination), found in flights.items():
        for flight in found:
            departure, arrival = most(flight["times"])
            kind = most(flight["types"] or usual[band(flight["miles"])])
            days = "".join(str(day) for day in sorted(flight["days"]))
            out.add((number, origin, destination, f"{departure // 60:02}{departure % 60:02}",
                     f"{arrival // 60:02}{arrival % 60:02}", days, kind))
    return out


def imported(gt1, project, data, scratch):
    program = scratch / "program"
    shutil.rmtree(scratch, ignore_errors=True)
    program.mkdir(parents=True)
    subprocess.run([gt1, "compile", project / "data/sample", program / "Data"], check=True, stdout=subprocess.DEVNULL)
    subprocess.run([gt1, "import", *(data / (name + ".xz") for name in NAMES), "--into", program, "--tables",
                    scratch / "tables", "--report", scratch / "report.txt"], check=True, capture_output=True)
    with open(scratch / "tables/flights.csv", encoding="utf-8") as file:
        flights = [row for row in csv.DictReader(file) if row["airline"] == "WN"]
    return {(row["number"], row["origin"], row["destination"], row["departure"], row["arrival"], row["days"],
             row["aircraft"]) for row in flights}, len(flights)


def main():
    gt1, project, data, scratch = sys.argv[1], *map(pathlib.Path, sys.argv[2:])
    if not (data / "ontime-2008-06.csv.xz").exists():
        print("skipped: no public tables beside the project")
        sys.exit(SKIPPED)
    expected = counted(project, data)
    found, number = imported(gt1, project, data, scratch)
    print(f"counted {len(expected)} flights, imported {number}")
    for flight in sorted(expected ^ found)[:10]:
        print("counted only:" if flight in expected else "imported only:", flight)
    sys.exit(0 if expected == found and number == len(expected) and number == 6378 else 1)


main()
