"""The picture list and its templates: turns a row of buttons.csv into the text of one SVG file."""
import csv
import json
import os
import re
from xml.sax.saxutils import escape

ASSETS = os.path.normpath(os.path.join(os.path.dirname(os.path.abspath(__file__)), '..', '..', 'assets'))
SKIN = os.path.join(ASSETS, 'skin')
ICON_SIZES = (16, 32, 48, 64, 128, 256)

# Folder of each class of skinned button, as the program asks for it.
CLASS_FOLDER = {
    'FlatButton': '\\Images\\Menu\\',
    'FormButton': '\\Images\\Main\\',
    'boardButton': '\\Images\\Status\\',
    'switchButton': '\\Images\\Buttons\\',
    'midButton': '\\Images\\Buttons\\',
}


def read(name, skin=SKIN):
    with open(os.path.join(skin, *name.split('/')), encoding='utf-8') as file:
        return file.read()


def layout():
    """The parsed assets/layout.json."""
    with open(os.path.join(ASSETS, 'layout.json'), encoding='utf-8') as file:
        return json.load(file)


def number(value):
    return ('%.3f' % value).rstrip('0').rstrip('.')


def substitute(template, values):
    """Replaces {{name}}, and {{name/2}}, {{name+N}}, {{name-N}} and their combination. A name that `values` lacks
    raises KeyError: a typing error in a template must not draw a picture with a hole."""
    def place(match):
        form = re.fullmatch(r'(\w+?)(/2)?([+-]\d+)?', match.group(1))
        if not form:
            raise KeyError(match.group(1))
        name, half, add = form.groups()
        if not half and not add:
            return str(values[name])
        return number(float(values[name]) / (2 if half else 1) + float(add or 0))
    return re.sub(r'\{\{([^}]+)\}\}', place, template)


class Skin:
    """All sources of the skin: `rows` has one dict for each picture, in the order of buttons.csv."""

    def __init__(self, folder=SKIN):
        self.folder = folder
        self.icons = dict(re.findall(r'<symbol id="([^"]+)"[^>]*>(.*?)</symbol>', read('icons.svg', folder), re.S))
        with open(os.path.join(folder, 'states.csv'), encoding='utf-8', newline='') as file:
            self.states = {(row['family'], row['state']): row for row in csv.DictReader(file)}
        with open(os.path.join(folder, 'buttons.csv'), encoding='utf-8', newline='') as file:
            self.rows = list(csv.DictReader(file))
        self.pictures = {(row['folder'], row['picture']): row for row in self.rows}
        if len(self.pictures) != len(self.rows):
            raise ValueError('buttons.csv names a picture twice')

    def svg(self, row):
        """SVG text of one picture."""
        values = dict(row)
        values.update(pair.split('=') for pair in row['vars'].split(';') if pair)
        if row['family'] == 'background':
            return read(values['file'], self.folder)
        if row['state']:
            values.update(self.states[(row['family'], row['state'])])
        values['glyph'] = self.icons[row['icon']] if row['icon'] else ''
        values['caption'] = escape(row['caption'])
        return substitute(read('buttons/%s.svg' % row['family'].split('-')[0], self.folder), values)

    def app_icon(self):
        return read('app_icon.svg', self.folder)


def path_of(row, zoom):
    """Path of a picture below the program folder, in its parts: ('Images', 'Main', 'close_down@2x.bmp')."""
    parts = [part for part in row['folder'].split('\\') if part]
    return (*parts, row['picture'] + ('' if zoom == 1 else '@%dx' % zoom) + '.bmp')
