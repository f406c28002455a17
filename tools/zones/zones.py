"""Writes data/zones/zones.txt from the time zones of this machine (Debian: package tzdata).

    zones.py > data/zones/zones.txt

Two lines for each clock that zones share from 1987 to 2037: the names of the zones, and the clock: minutes ahead of
UTC at the beginning of 1987, then MINUTE:AHEAD for each change, minutes counted from that beginning. The table is
part of the project, so that an import makes the same times on every machine, also where the system has no zones.
"""

import datetime
import sys
import zoneinfo

UTC = datetime.timezone.utc
START = datetime.datetime(1987, 1, 1, tzinfo=UTC)
MINUTES = (datetime.datetime(2038, 1, 1, tzinfo=UTC) - START).days * 1440


def ahead(zone, minute):
    moment = START + datetime.timedelta(minutes=minute)
    return round(moment.astimezone(zone).utcoffset().total_seconds() / 60)


def clock(zone):
    """Offset at the start and the changes, found by halving the days on which the offset differs."""
    out = [str(ahead(zone, 0))]
    last = ahead(zone, 0)
    for day in range(1440, MINUTES + 1, 1440):
        now = ahead(zone, day)
        if now == last:
            continue
        low, high = day - 1440, day
        while high - low > 1:
            middle = (low + high) // 2
            low, high = (middle, high) if ahead(zone, middle) == last else (low, middle)
        out.append(f"{high}:{now}")
        last = now
    return " ".join(out)


def main():
    groups = {}
    for name in sorted(zoneinfo.available_timezones()):
        if name.startswith(("posix/", "right/", "Etc/")) or name in ("localtime", "posixrules", "Factory"):
            continue
        groups.setdefault(clock(zoneinfo.ZoneInfo(name)), []).append(name)
    for rule, names in sorted(groups.items(), key=lambda g: g[1]):
        sys.stdout.write(" ".join(names) + "\n" + rule + "\n")


main()
