#!/usr/bin/env python3
"""fine.py --program FOLDER [--record FILE] [--jobs N]: the largest set of the pictures, three times the layout's size.

Windows that are shown larger than double take theirs from here. They are packed, as nothing but the window reads them.
Draws only what changed."""
import argparse
import hashlib
import json
import multiprocessing
import os
import struct
import sys

import skin
import templates

ZOOM = 3


def path_of(row):
    """Path below the program folder, in its parts: ('Images', 'Main', 'close_down@3x.png')."""
    *parts, name = templates.path_of(row, 1)
    return (*parts, os.path.splitext(name)[0] + '@%dx.png' % ZOOM)


def draw(job):
    """Draws one picture; runs in a process of its own. Returns an error text or None."""
    path, svg, row = job
    try:
        png = skin.rsvg(svg, '-z', str(ZOOM), '-b', row['ground'] or '#000000')
    except skin.RenderError as error:
        return '%s: %s' % (os.path.basename(path), error)
    size = struct.unpack('>II', png[16:24])
    if size != (int(row['w']) * ZOOM, int(row['h']) * ZOOM):
        return '%s is drawn %d x %d' % (os.path.basename(path), *size)
    with open(path + '.new', 'wb') as file:
        file.write(png)
    os.replace(path + '.new', path)
    return None


def main():
    parser = argparse.ArgumentParser(description=__doc__.split('\n', maxsplit=1)[0])
    parser.add_argument('--program', metavar='FOLDER', required=True)
    parser.add_argument('--record', metavar='FILE', required=True)
    parser.add_argument('--jobs', type=int, default=2)
    options = parser.parse_args()
    source = templates.Skin()
    old, new, due = skin.load_record(options.record), {}, []
    for row in source.rows:
        svg = source.svg(row)
        path = os.path.join(options.program, *path_of(row))
        new[path] = hashlib.sha256(json.dumps([svg, row['ground'], skin.faces_of(svg)]).encode()).hexdigest()
        if old.get(path) != new[path] or not os.path.isfile(path):
            due.append((path, svg, row))
            os.makedirs(os.path.dirname(path), exist_ok=True)
    errors = []
    if due:
        with multiprocessing.Pool(max(1, min(options.jobs, len(due)))) as pool:
            for job, error in zip(due, pool.imap(draw, due)):
                if error:
                    errors.append(error)
                    del new[job[0]]
    with open(options.record, 'w', encoding='utf-8') as file:
        json.dump(new, file, indent=0, sort_keys=True)
    for error in errors:
        print('fine: ' + error, file=sys.stderr)
    return 1 if errors else 0


if __name__ == '__main__':
    sys.exit(main())
