"""The typefaces of the skin: asks fontconfig for them, reads their widths, copies them beside the program."""
import functools
import os
import re
import shutil
import struct
import subprocess
import sys
import xml.etree.ElementTree as ElementTree

WEIGHTS = {'regular': 400, 'medium': 500, 'bold': 700}
FONTCONFIG_WEIGHT = {400: 80, 500: 100, 700: 200}
WEIGHT_NAME = {number: name for name, number in WEIGHTS.items()}

# Where each family comes from, and the licence text that its package only refers to.
PACKAGES = {
    'B612': ('fonts-b612', None),
    'Roboto Condensed': ('fonts-roboto-unhinted', 'Apache-2.0'),
    'DSEG7 Classic': ('fonts-dseg', None),
    'OCR B': ('fonts-ocr-b', None),
}
TRUETYPE = os.path.join(os.path.dirname(os.path.abspath(__file__)), 'truetype.py')
LICENCES = '/usr/share/common-licenses'
DOCUMENTS = '/usr/share/doc'


class FontMissing(Exception):
    """A typeface is not installed; the text says which one and where it comes from."""


@functools.lru_cache(None)
def find(family, weight):
    """File of a typeface, weight 400, 500 or 700. Raises FontMissing when fontconfig would
    fall back to another one or thicken a lighter one."""
    query = '%s:slant=0:weight=%d' % (family, FONTCONFIG_WEIGHT[weight])
    answer = '%{family}\n%{weight}\n%{embolden}\n%{file}'
    try:
        run = subprocess.run(['fc-match', '-f', answer, query], stdout=subprocess.PIPE, check=True)
    except FileNotFoundError:
        raise FontMissing('fc-match is missing (package fontconfig)') from None
    families, found, thickened, path = run.stdout.decode().split('\n')
    exact = int(float(found)) == FONTCONFIG_WEIGHT[weight] and thickened != 'True'
    if family not in families.split(',') or not exact:
        package = PACKAGES.get(family, ('unknown', None))[0]
        raise FontMissing('font missing: %s %s (Debian package %s); found only %s' %
                          (family, WEIGHT_NAME[weight], package, os.path.basename(path)))
    return path


def used_in_svg(text):
    """Set of the (family, weight) that the texts of an SVG file ask for."""
    used = set()

    def walk(node, family, weight):
        family = node.get('font-family', family)
        weight = int(node.get('font-weight', weight))
        if node.tag.endswith('}text') and family:
            used.add((family, weight))
        for child in node:
            walk(child, family, weight)

    walk(ElementTree.fromstring(text), None, 400)
    return used


def used_in_layout(layout):
    """Set of the (family, weight) of all roles of the layout: those that the program itself draws with."""
    return {(role['family'], WEIGHTS[role['weight']]) for role in layout['fonts'].values()}


def copy_to(folder, layout):
    """Copies the typefaces that the program draws with, and their licences, into `folder`."""
    os.makedirs(folder, exist_ok=True)
    for family, weight in sorted(used_in_layout(layout)):
        path = find(family, weight)
        target = os.path.join(folder, shipped_name(path))
        if is_cubic(path):
            convert(path, target)
        else:
            refresh(path, target)
        package, licence = PACKAGES[family]
        refresh_licence(os.path.join(DOCUMENTS, package, 'copyright'), os.path.join(folder, package + '-licence.txt'))
        if licence:
            refresh_licence(os.path.join(LICENCES, licence), os.path.join(folder, licence + '.txt'))


def is_cubic(path):
    """Whether a face has outlines whose stems screens darken."""
    with open(path, 'rb') as file:
        return file.read(4) == b'OTTO'


def shipped_name(path):
    """Name of the file in which a face lies beside the program."""
    name = os.path.basename(path)
    return os.path.splitext(name)[0] + '.ttf' if is_cubic(path) else name


@functools.lru_cache(None)
def converter():
    """Command that writes a face as TrueType: an interpreter that has Debian's library for fonts."""
    for python in (sys.executable, '/usr/bin/python3'):
        try:
            if subprocess.run([python, '-c', 'import fontTools'], stderr=subprocess.DEVNULL).returncode == 0:
                return [python, '-B', TRUETYPE]
        except OSError:
            continue
    raise FontMissing('fontTools is missing (package python3-fonttools)')


def convert(source, target):
    """Writes a face as TrueType unless the target is newer than its source and the tool, and takes away the face
    as it was."""
    stale = os.path.join(os.path.dirname(target), os.path.basename(source))
    if stale != target and os.path.isfile(stale):
        os.remove(stale)
    if os.path.isfile(target):
        if os.stat(target).st_mtime >= max(os.stat(path).st_mtime for path in (source, TRUETYPE)):
            return
    subprocess.run(converter() + [source, target], check=True)


def refresh(source, target):
    """Copies a file unless the target is as long and not older."""
    if not os.path.isfile(source):
        raise FontMissing('licence or font file missing: ' + source)
    if os.path.isfile(target):
        old, new = os.stat(target), os.stat(source)
        if old.st_size == new.st_size and old.st_mtime >= new.st_mtime:
            return
    shutil.copyfile(source, target)


def refresh_licence(source, target):
    """As `refresh`; a system that keeps its licences elsewhere builds for itself, not to pass on."""
    if os.path.isdir(LICENCES):
        refresh(source, target)
    else:
        print('not found, put it beside the typeface before you pass the program on: ' + source, file=sys.stderr)


class Metrics:
    """Advance widths of one TrueType or OpenType file."""

    def __init__(self, path):
        with open(path, 'rb') as file:
            data = file.read()
        tables = {}
        for i in range(struct.unpack_from('>H', data, 4)[0]):
            tag, _, at, _ = struct.unpack_from('>4sIII', data, 12 + 16 * i)
            tables[tag] = at
        self.units = struct.unpack_from('>H', data, tables[b'head'] + 18)[0]
        count = struct.unpack_from('>H', data, tables[b'hhea'] + 34)[0]
        self.advance = [struct.unpack_from('>H', data, tables[b'hmtx'] + 4 * i)[0] for i in range(count)]
        self.glyph = {}
        start = tables[b'cmap']
        for i in range(struct.unpack_from('>H', data, start + 2)[0]):
            at = start + struct.unpack_from('>I', data, start + 8 + 8 * i)[0]
            if struct.unpack_from('>H', data, at)[0] == 4:
                self._read_map(data, at)

    def _read_map(self, data, at):
        """Adds a segment map (format 4); the end of the last segment is no character."""
        n = struct.unpack_from('>H', data, at + 6)[0] // 2
        ends, starts = (struct.unpack_from('>%dH' % n, data, at + o) for o in (14, 16 + 2 * n))
        shifts = struct.unpack_from('>%dh' % n, data, at + 16 + 4 * n)
        offsets = struct.unpack_from('>%dH' % n, data, at + 16 + 6 * n)
        for k in range(n):
            for char in range(starts[k], min(ends[k], 0xFFFE) + 1):
                if offsets[k]:
                    place = at + 16 + 6 * n + 2 * k + offsets[k] + 2 * (char - starts[k])
                    glyph = struct.unpack_from('>H', data, place)[0]
                    glyph = (glyph + shifts[k]) & 0xFFFF if glyph else 0
                else:
                    glyph = (char + shifts[k]) & 0xFFFF
                if glyph:
                    self.glyph.setdefault(char, glyph)

    def width(self, text, size):
        """Width of a text in pixels when set in `size` pixels. A character that the face lacks counts as its box."""
        last = len(self.advance) - 1
        return sum(self.advance[min(self.glyph.get(ord(c), 0), last)] for c in text) * size / self.units


@functools.lru_cache(None)
def metrics(family, weight):
    return Metrics(find(family, weight))


def text_width(layout, role, text):
    """Width in pixels of one line in a font role of the layout."""
    font = layout['fonts'][role]
    return metrics(font['family'], WEIGHTS[font['weight']]).width(text, font['size'])


def wrap(layout, role, text, width):
    """Lines of a text that breaks at blanks, as a wrapping label shows it."""
    lines = []
    for paragraph in re.split('\r\n|\n', text):
        line = ''
        for word in paragraph.split(' '):
            longer = line + ' ' + word if line else word
            if line and text_width(layout, role, longer) > width:
                lines.append(line)
                line = word
            else:
                line = longer
        lines.append(line)
    return lines


def missing():
    """What is not installed of the typefaces that pictures and program are drawn with, a line for each."""
    out = []
    for family in PACKAGES:
        try:
            find(family, WEIGHTS['bold' if family == 'DSEG7 Classic' else 'regular'])
        except FontMissing as failure:
            out.append(str(failure))
    try:
        converter()
    except FontMissing as failure:
        out.append(str(failure))
    return out


if __name__ == '__main__':
    print('\n'.join(missing()))
