#!/usr/bin/env python3
"""Builds what the program shows: its pictures, typefaces and help pages.

  skin.py --program FOLDER [--record FILE] [--jobs N]   bring the program folder up to date, drawing only what changed
  skin.py --check FOLDER                                fail unless the folder has every picture of required.txt

Needs rsvg-convert (package librsvg2-bin) and fc-match (package fontconfig)."""
import argparse
import hashlib
import json
import multiprocessing
import os
import subprocess
import sys

import fonts
import help_pages
import rasters
import templates

ZOOMS = (1, 2)
HERE = os.path.dirname(os.path.abspath(__file__))


class RenderError(Exception):
    """rsvg-convert failed or drew a picture of a wrong size."""


def rsvg(svg, *options):
    """SVG text -> bytes of a PNG file."""
    try:
        run = subprocess.run(['rsvg-convert', *options], input=svg.encode(), stdout=subprocess.PIPE,
                             stderr=subprocess.PIPE, check=False)
    except FileNotFoundError:
        raise RenderError('rsvg-convert is missing (package librsvg2-bin)') from None
    if run.returncode != 0:
        raise RenderError('rsvg-convert: ' + run.stderr.decode(errors='replace').strip())
    return run.stdout


def colour(text):
    """'#RRGGBB' -> (r, g, b); the empty text is black."""
    return tuple(int(text[i:i + 2], 16) for i in (1, 3, 5)) if text else (0, 0, 0)


def draw_picture(svg, row, zoom):
    """Bytes of the BMP file of one picture."""
    width, height, pixel, rows = rasters.read_png(rsvg(svg, '-z', str(zoom)))
    if (width, height) != (int(row['w']) * zoom, int(row['h']) * zoom):
        raise RenderError('%s is drawn %d x %d' % (row['picture'], width, height))
    return rasters.bmp(width, height, rasters.flatten(rows, pixel, colour(row['ground'])), zoom)


def work(job):
    """Draws one file; runs in a process of its own. Returns an error text or None."""
    path, svg, row, zoom, size = job
    try:
        data = draw_picture(svg, row, zoom) if row else rsvg(svg, '-w', str(size), '-h', str(size))
    except (RenderError, ValueError) as error:
        return '%s: %s' % (os.path.basename(path), error)
    beside = path + '.new'
    with open(beside, 'wb') as file:
        file.write(data)
    os.replace(beside, path)
    return None


def all_jobs(skin, folder):
    """One job for each file to draw: (path, SVG text, row or None, zoom, icon size)."""
    jobs = []
    for row in skin.rows:
        svg = skin.svg(row)
        jobs += [(os.path.join(folder, *templates.path_of(row, zoom)), svg, row, zoom, 0) for zoom in ZOOMS]
    icon = skin.app_icon()
    for size in templates.ICON_SIZES:
        jobs.append((os.path.join(folder, 'Images', 'icon_%d.png' % size), icon, None, 1, size))
    return jobs


def fingerprint(job, faces, tool):
    """What a file was drawn from; it is drawn again when this changes."""
    _, svg, row, zoom, size = job
    text = json.dumps([svg, row['ground'] if row else '', zoom, size, faces, tool])
    return hashlib.sha256(text.encode()).hexdigest()


def faces_of(svg):
    """Files of the typefaces of one picture with their lengths; raises FontMissing."""
    paths = [fonts.find(*face) for face in sorted(fonts.used_in_svg(svg))]
    return [(path, os.path.getsize(path)) for path in paths]


def tool_text():
    """The drawing code itself, so that a change of it draws everything again."""
    text = ''
    for name in ('rasters.py', 'skin.py'):
        with open(os.path.join(HERE, name), encoding='utf-8') as file:
            text += file.read()
    return hashlib.sha256(text.encode()).hexdigest()


def load_record(path):
    """The fingerprints of the last run; an unreadable record only costs a full drawing."""
    try:
        with open(path, encoding='utf-8') as file:
            record = json.load(file)
        return record if isinstance(record, dict) else {}
    except (OSError, ValueError):
        return {}


def draw_all(folder, record_path, processes):
    """Draws every picture that is missing or whose sources changed. Returns the number drawn and the error texts."""
    skin = templates.Skin()
    jobs = all_jobs(skin, folder)
    tool, old, new, due = tool_text(), load_record(record_path), {}, []
    known = {svg: faces_of(svg) for svg in {job[1] for job in jobs}}
    for job in jobs:
        print_of_job = fingerprint(job, known[job[1]], tool)
        new[job[0]] = print_of_job
        if old.get(job[0]) != print_of_job or not os.path.isfile(job[0]):
            due.append(job)
            os.makedirs(os.path.dirname(job[0]), exist_ok=True)
    due.sort(key=lambda job: -int(job[2]['w']) * int(job[2]['h']) * job[3] if job[2] else 0)
    errors = []
    if due:
        with multiprocessing.Pool(min(processes, len(due))) as pool:
            for job, error in zip(due, pool.imap(work, due)):
                if error:
                    errors.append(error)
                    del new[job[0]]
    with open(record_path, 'w', encoding='utf-8') as file:
        json.dump(new, file, indent=0, sort_keys=True)
    return len(due), errors


def required():
    """Pictures that the program asks for: paths below the program folder, '/' between the parts."""
    with open(os.path.join(HERE, 'required.txt'), encoding='utf-8') as file:
        lines = [line.split('#')[0].strip() for line in file]
    return [line for line in lines if line]


def find_faults(folder):
    """Texts on required pictures that are missing, damaged or of unequal sizes."""
    faults = []
    for name in required():
        stem, ending = os.path.splitext(name)
        if ending != '.bmp':
            if not os.path.isfile(os.path.join(folder, *name.split('/'))):
                faults.append('missing: ' + name)
            continue
        sizes = []
        for zoom in ZOOMS:
            picture = stem + ('' if zoom == 1 else '@%dx' % zoom) + ending
            try:
                with open(os.path.join(folder, *picture.split('/')), 'rb') as file:
                    sizes.append(rasters.bmp_size(file.read()))
            except OSError:
                faults.append('missing: ' + picture)
                continue
            if sizes[-1] is None:
                faults.append('no whole 24-bit BMP: ' + picture)
        if len(sizes) == 2 and None not in sizes and sizes[1] != (sizes[0][0] * 2, sizes[0][1] * 2):
            faults.append('sizes do not match: ' + name)
    return faults


def copy_pages(folder):
    """Brings the help pages up to date; one that is no longer ours goes away."""
    target = os.path.join(folder, 'help')
    pages = {name: help_pages.page(name) for name, _, _ in help_pages.PAGES}
    pages['style.css'] = help_pages.read('style.css')
    os.makedirs(target, exist_ok=True)
    for name in set(os.listdir(target)) - set(pages):
        os.remove(os.path.join(target, name))
    for name, text in pages.items():
        write_changed(text, os.path.join(target, name))


def write_changed(text, target):
    if os.path.isfile(target):
        with open(target, encoding='utf-8', newline='') as file:
            if file.read() == text:
                return
    with open(target, 'w', encoding='utf-8', newline='') as file:
        file.write(text)


def main():
    parser = argparse.ArgumentParser(description='Builds what the program shows.')
    parser.add_argument('--program', metavar='FOLDER', help='the program folder to bring up to date')
    parser.add_argument('--record', metavar='FILE', help='what was drawn from which sources (default: FOLDER.drawn)')
    parser.add_argument('--jobs', type=int, default=2, help='pictures drawn at the same time (default: 2)')
    parser.add_argument('--check', metavar='FOLDER', help='the program folder to check')
    options = parser.parse_args()
    errors = []
    try:
        if options.program:
            folder = os.path.abspath(options.program)
            os.makedirs(folder, exist_ok=True)
            count, errors = draw_all(folder, options.record or folder + '.drawn', max(1, options.jobs))
            fonts.copy_to(os.path.join(folder, 'Fonts'), templates.layout())
            copy_pages(folder)
            if count:
                print('skin: %d pictures drawn' % count)
        if options.check:
            errors = errors + find_faults(options.check)
    except (fonts.FontMissing, RenderError, OSError) as error:
        errors = [str(error)]
    for error in errors:
        print('skin: ' + error, file=sys.stderr)
    return 1 if errors else 0


if __name__ == '__main__':
    sys.exit(main())
