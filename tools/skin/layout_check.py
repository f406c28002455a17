#!/usr/bin/env python3
"""Holds assets/layout.json to the design: nothing leaves its container or covers its neighbour, every key has its picture
in its size, every text fits its box and reaches its contrast. The texts are those of the layout itself and the longest
ones that the screens show, from tests/skin/samples.json. Prints one line for each finding and fails when there is one.

  layout_check.py [--verbose]
  layout_check.py --texts FILE     writes how it measures all of these texts, for the window's test"""
import json
import os
import re
import sys

import fonts
import rasters
import skin
import templates

SAMPLES = os.path.join(templates.ASSETS, '..', 'tests', 'skin', 'samples.json')
CAPITAL = 0.72       # height of the capitals of all faces but the seven-segment one, in parts of the size
ASCENT = 0.95        # height that a line of text takes in its box
CHECK_INDENT = 21    # text of a check or option box, from its left edge
COMBO_INSETS = 34    # left padding and arrow field of a combo box
FIELD_INSETS = 12
LIST_INSETS = 12
ROW = 20
HIGHLIGHT = 0.75     # opacity of the highlight of a log row
NORMAL, LARGE = 4.5, 3.0
# Kinds that lie over or under others on purpose.
LAYERS = ('hitarea', 'shape', 'frame', 'FlightInfo', 'container')
LISTS = ('listbox', 'listview', 'filelist', 'folderlist')


# ---------------------------------------------------------------- geometry
def instances(control):
    """Yields (index or None, x, y) of a control or of each member of its control array."""
    index = control.get('index')
    if not isinstance(index, list):
        yield index, control['x'], control['y']
        return
    dx, dy = control.get('pitch', [0, 0])
    for n in range(index[1] - index[0] + 1):
        yield index[0] + n, control['x'] + dx * n, control['y'] + dy * n


def label_of(screen, control, index=None):
    return '%s.%s%s' % (screen, control['name'], '' if index is None else '(%d)' % index)


def check_places(name, screen):
    """Findings on controls that leave their container or overlap another one."""
    findings, boxes = [], []
    for control in screen['controls']:
        room = screen['containers'][control['in']]
        for index, x, y in instances(control):
            right, foot = x + control['w'], y + control['h']
            who = label_of(name, control, index)
            if x < 0 or y < 0 or right > room['w'] or foot > room['h']:
                findings.append('%s leaves %s' % (who, control['in']))
            # A line that shows only where others are empty lies over them.
            if control['kind'] in LAYERS or 'highlight' in control or 'over' in control:
                continue
            for other, group, x2, y2, right2, foot2 in boxes:
                if group == control['in'] and x < right2 and x2 < right and y < foot2 and y2 < foot:
                    findings.append('%s overlaps %s' % (who, other))
            boxes.append((who, control['in'], x, y, right, foot))
    return findings


def check_pictures(name, screen, sources):
    """Findings on keys and backgrounds whose picture is missing or of another size."""
    def size_of(path):
        folder, stem = path[:path.rindex('\\') + 1], path[path.rindex('\\') + 1:].removesuffix('.bmp')
        row = sources.pictures.get((folder, stem))
        return row and (int(row['w']), int(row['h']))
    wanted = []
    for control in screen['controls']:
        folder = templates.CLASS_FOLDER.get(control['kind'], '')
        if folder or control['kind'] == 'picture':
            wanted.append((label_of(name, control), folder + control['picture'], control))
    for key, room in screen['containers'].items():
        if room.get('background'):
            wanted.append(('%s.%s' % (name, key), room['background'], room))
    findings = []
    for who, path, box in wanted:
        size = size_of(path)
        if size is None:
            findings.append('%s has no picture %s' % (who, path))
        elif size != (box['w'], box['h']):
            findings.append('%s is %d x %d, its picture %d x %d' % (who, box['w'], box['h'], *size))
    return findings


def check_tabs(name, screen):
    """Findings on the tab order: it counts 1, 2, 3 ... within a screen."""
    tabs = sorted(control['tab'] for control in screen['controls'] if 'tab' in control)
    return [] if tabs == list(range(1, len(tabs) + 1)) else ['%s: tab order has gaps or doubles' % name]


# ---------------------------------------------------------------- texts
def column_widths(control):
    """Widths of the columns of a list view; their layout is a product such as w/80*12."""
    widths = []
    for column in control['columns']:
        factors = re.fullmatch(r'w(?:/(\d+)\*(\d+)|\*(\d+)/(\d+))', column['width'])
        if not factors:
            raise ValueError('column width ' + column['width'])
        divisor, factor = (factors.group(1), factors.group(2)) if factors.group(1) else (factors.group(4), factors.group(3))
        widths.append(int(control['w'] / int(divisor) * int(factor)))
    return widths


def texts_of(control, index, samples):
    """The texts that a control shows: its own and the samples'. For list views, rows."""
    own = [control['text']] if control.get('text') else []
    own += control.get('items', [])
    own = [text for text in own if not text.startswith('(')]
    array = samples.get(control['name'], [])
    return own + samples.get('%s(%s)' % (control['name'], index), array)


def list_boxes(control, texts):
    """(role, text, width) of the heads and cells of a list."""
    if 'columns' not in control:
        return [(control['font'], text, control['w'] - LIST_INSETS - 2) for text in texts]
    boxes, widths = [], column_widths(control)
    for column, width in zip(control['columns'], widths):
        boxes.append((control['headFont'], column['text'], width - 10))
    for row in texts:
        boxes += [(control['font'], cell, width - LIST_INSETS) for cell, width in zip(row, widths)]
    return boxes


def text_boxes(control, texts):
    """(role, text, width, lines that fit) of the texts that a control shows inside itself."""
    kind, font, width = control['kind'], control.get('font'), control['w']
    if not font:
        return []
    if kind in LISTS:
        return [(*box, 1) for box in list_boxes(control, texts)]
    if kind in ('check', 'option'):
        width -= CHECK_INDENT
    elif kind in ('combo', 'drive'):
        width -= COMBO_INSETS
    elif kind == 'frame':
        width -= 26
    elif kind == 'textbox':
        width -= FIELD_INSETS
    elif kind == 'label' and control.get('back') and control.get('align') != 'center':
        width -= 16
    lines = 1
    if control.get('wrap') or control.get('multiline'):
        lines = control.get('lines', 0)
    elif 'lines' in control:
        lines = control['lines']
    return [(font, text, width, lines) for text in texts]


def wraps(control):
    return bool(control.get('wrap') or control.get('multiline'))


def lines_of(layout, control, role, text, width):
    return fonts.wrap(layout, role, text, width) if wraps(control) else text.split('\n')


def measured(layout, samples):
    """All texts with the lines that they break into in their boxes, and the widths of these."""
    rows = []
    for name, screen in layout['screens'].items():
        for control in screen['controls']:
            index, _, _ = next(instances(control))
            texts = texts_of(control, index, samples.get(name, {}))
            for role, text, width, _ in text_boxes(control, texts):
                lines = lines_of(layout, control, role, text, width)
                rows.append({'who': label_of(name, control, index), 'role': role, 'text': text, 'width': width,
                             'wraps': wraps(control), 'lines': lines,
                             'widths': [fonts.text_width(layout, role, line) for line in lines]})
    return rows


def check_fit(layout, name, screen, samples):
    """Findings on texts wider or higher than their box. A box with an ellipsis may cut its text."""
    findings = []
    for control in screen['controls']:
        index, _, _ = next(instances(control))  # the members of an array share texts and size
        for role, text, width, limit in text_boxes(control, texts_of(control, index, samples)):
            findings += fit_of(layout, label_of(name, control, index), control, role, text, width, limit)
    return findings


def fit_of(layout, who, control, role, text, width, limit):
    font = layout['fonts'][role]
    lines = lines_of(layout, control, role, text, width)
    findings = []
    widest = max(fonts.text_width(layout, role, line) for line in lines)
    if widest > width + 0.5 and 'ellipsis' not in control:
        findings.append('%s: %.0f wide in %d: %r' % (who, widest, width, text[:60]))
    if limit and len(lines) > limit and 'ellipsis' not in control:
        findings.append('%s: %d lines where %d are shown: %r' % (who, len(lines), limit, text[:60]))
    if control['kind'] in ('label', 'textbox', 'check', 'option'):
        shown = min(len(lines), limit or len(lines))
        height = font.get('line', font['size'] * 1.25) * (shown - 1) + font['size'] * ASCENT
        if height > control['h'] + 1:
            findings.append('%s: %d lines are %.0f high in %d' % (who, shown, height, control['h']))
    return findings


def check_keys(sources):
    """Findings on captions that reach the edge of their key or meet its icon."""
    findings = []
    for row in sources.rows:
        family, width = row['family'], int(row['w'])
        caption = fonts.metrics('B612', 700).width(row['caption'], 11)
        if family == 'key' and 35 + caption + 8 > width:
            findings.append('%s: caption needs %.0f of %d' % (row['picture'], 35 + caption + 8, width))
        if family == 'mid':
            caption += 0.6 * len(row['caption'])
            if width / 2 + 11 - caption / 2 < 30 or width / 2 + 11 + caption / 2 > width - 6:
                findings.append('%s: caption meets its icon or edge' % row['picture'])
        if family == 'menu':
            values = dict(pair.split('=') for pair in row['vars'].split(';'))
            caption = fonts.metrics('B612', 700).width(row['caption'], float(values['size']))
            caption += float(values['track']) * len(row['caption'])
            if float(values['tx']) + caption > width - 4:
                findings.append('%s: caption leaves its key' % row['picture'])
    return findings


# ---------------------------------------------------------------- contrast
def luminance(colour):
    """Relative luminance of (r, g, b) of 0 to 255, as the web accessibility guidelines define it."""
    def linear(value):
        value /= 255
        return value / 12.92 if value <= 0.03928 else ((value + 0.055) / 1.055) ** 2.4
    return 0.2126 * linear(colour[0]) + 0.7152 * linear(colour[1]) + 0.0722 * linear(colour[2])


def contrast(a, b):
    """Contrast of two luminances, 1 to 21."""
    return (max(a, b) + 0.05) / (min(a, b) + 0.05)


def needed(font, disabled=False):
    large = font['size'] >= 24 or (font['size'] >= 18.66 and font['weight'] == 'bold')
    return LARGE if disabled or large else NORMAL


class Ground:
    """Pixels of one background with everything opaque that lies on it below the texts."""

    def __init__(self, sources, path):
        row = sources.pictures[(path[:path.rindex('\\') + 1], path[path.rindex('\\') + 1:-4])]
        png = skin.rsvg(sources.svg(row), '-z', '1')
        self.width, self.height, pixel, rows = rasters.read_png(png)
        self.rows = [bytearray(line) for line in rasters.flatten(rows, pixel, skin.colour(row['ground']))]

    def fill(self, x, y, w, h, colour, opacity=1.0):
        for line in self.rows[y:y + h]:
            for at in range(x * 3, (x + w) * 3):
                line[at] = round(line[at] * (1 - opacity) + colour[at % 3] * opacity)

    def extremes(self, x, y, w, h):
        """Darkest and lightest luminance of an area, without the outermost two per cent on either side."""
        values = {}
        for line in self.rows[max(0, y):y + h]:
            for at in range(max(0, x) * 3, min(self.width, x + w) * 3, 3):
                colour = bytes(line[at:at + 3])
                values[colour] = values.get(colour, 0) + 1
        ranked = sorted((luminance(colour), count) for colour, count in values.items())
        total = sum(count for _, count in ranked)
        return self._rank(ranked, total * 0.02), self._rank(ranked, total * 0.98)

    @staticmethod
    def _rank(ranked, place):
        for value, count in ranked:
            place -= count
            if place <= 0:
                return value
        return ranked[-1][0]


def text_area(layout, control, x, y, texts):
    """The part of a label's box that its longest sample covers."""
    font = layout['fonts'][control['font']]
    if control['kind'] != 'label' or control.get('wrap') or not texts:
        return x, y, control['w'], control['h']
    width = max(fonts.text_width(layout, control['font'], line) for text in texts for line in text.split('\n'))
    width = min(control['w'], int(width) + 1)
    height = min(control['h'], int(font['size'] * CAPITAL) + 2)
    if control.get('valign') == 'top' or 'lines' in control:
        height = control['h']
    left = {'left': 0, 'center': (control['w'] - width) // 2, 'right': control['w'] - width}[control['align']]
    return x + left, y + (control['h'] - height) // 2, width, height


def colours_of(layout, control, index):
    """(colour, is it a disabled one) of everything that a label can be coloured with."""
    name, fixed = control['name'], layout['fixedColors']
    odd = index is not None and index % 2 == 1 and 'colorOdd' in control
    colours = [(control['colorOdd'] if odd else control['color'], False)]
    if name == 'clock_time':
        colours = [('#00%02X00' % shade, False) for shade in (111, 255)]
    if name == 'status_LABEL' and index is not None and index < 20:
        colours += [(colour, False) for colour in fixed['status']['odd' if odd else 'even'].values()]
    if 'hover' in control:
        colours.append((control['hover'], False))
    if control['kind'] in ('check', 'option') and 'disabledText' in layout['styles'][control['kind']]:
        colours.append((layout['styles'][control['kind']]['disabledText'], True))
    if 'disabled' in control:
        colours.append((control['disabled'], True))
    return colours


def paint_shapes(ground, screen, container):
    for control in screen['controls']:
        if control['in'] == container and control['kind'] == 'shape':
            ground.fill(control['x'], control['y'], control['w'], control['h'], skin.colour(control['back']))


PANEL = '#1B2127'


def on_ground(screen, container):
    """The container whose background shows through under `container`, and where the latter lies in it."""
    room = screen['containers'][container]
    if room.get('background'):
        return container, 0, 0
    return 'BG', room['x'], room['y']


def check_contrast(layout, name, screen, samples, sources):
    """Findings on texts too close to what lies under them, and the lowest contrast of the screen."""
    findings, lowest, grounds, lit = [], 99.0, {}, {}
    for control in screen['controls']:
        if not control.get('font') or control['kind'] not in ('label', 'check', 'option', 'frame'):
            continue
        base, dx, dy = on_ground(screen, control['in'])
        path = screen['containers'][base].get('background')
        if path is None:
            # A screen without a skin stands on the bare panel.
            control = dict(control, back=control.get('back', PANEL))
        elif base not in grounds:
            grounds[base], lit[base] = Ground(sources, path), Ground(sources, path)
            paint_shapes(grounds[base], screen, base)
            paint_highlights(lit[base], screen, base)
        for index, x, y in instances(control):
            texts = texts_of(control, index, samples)
            area = text_area(layout, control, x + dx, y + dy, texts)
            if control.get('back'):
                spans = [(luminance(skin.colour(control['back'])),) * 2]
            else:
                spans = [grounds[base].extremes(*area)]
                if name == 'MainForm' and base == 'log_pic':
                    spans.append(lit[base].extremes(*area))
            for colour, disabled in colours_of(layout, control, index):
                own = luminance(skin.colour(colour))
                value = min(contrast(own, edge) for span in spans for edge in span)
                if value < needed(layout['fonts'][control['font']], disabled):
                    findings.append('%s: contrast %.2f of %s' % (label_of(name, control, index), value, colour))
                if not disabled:
                    lowest = min(lowest, value)
    return findings, lowest


def paint_highlights(ground, screen, container):
    for control in screen['controls']:
        if control['in'] == container and 'highlight' in control:
            for _, x, y in instances(control):
                ground.fill(x, y, control['w'], control['h'], skin.colour(control['highlight']), HIGHLIGHT)


# Colour pairs of the standard controls: style, text, ground.
STYLE_PAIRS = (
    ('textbox', 'text', 'back'), ('textbox', 'disabledText', 'disabledBack'), ('textbox', 'selectText', 'select'),
    ('combo', 'text', 'back'), ('combo', 'disabledText', 'disabledBack'), ('combo', 'arrow', 'arrowField'),
    ('combo', 'popupSelectText', 'popupSelect'), ('list', 'text', 'back'), ('list', 'text', 'stripe'),
    ('list', 'selectedText', 'selected'), ('list', 'headText', 'head'), ('list', 'disabledText', 'stripe'),
    ('tooltip', 'text', 'back'), ('check', 'mark', 'back'), ('option', 'mark', 'back'), ('updown', 'arrow', 'face'),
)


def check_styles(layout, sources):
    """Findings on the colours of standard controls and on the inks of all key faces."""
    findings = []
    for style, text, back in STYLE_PAIRS:
        colours = layout['styles'][style]
        value = contrast(luminance(skin.colour(colours[text])), luminance(skin.colour(colours[back])))
        if value < (LARGE if text.startswith('disabled') else NORMAL):
            findings.append('style %s: contrast %.2f of %s on %s' % (style, value, text, back))
    for (family, state), row in sources.states.items():
        captioned = family in ('key', 'mid', 'menu') and not state.startswith('dis')
        for face in ('face0', 'face1'):
            value = contrast(luminance(skin.colour(row['ink'])), luminance(skin.colour(row[face])))
            if value < (NORMAL if captioned else LARGE):
                findings.append('family %s %s: contrast %.2f of its ink on %s' % (family, state, value, face))
    return findings


# ---------------------------------------------------------------- all together
def check_names(layout, samples):
    """Findings on samples for controls that the layout no longer has."""
    findings = []
    for name, texts in samples.items():
        known = {control['name'] for control in layout['screens'].get(name, {'controls': []})['controls']}
        findings += ['sample for unknown control %s.%s' % (name, key) for key in texts if key.split('(')[0] not in known]
    return findings


def check_all(layout, samples, sources, verbose=False):
    findings = check_names(layout, samples) + check_keys(sources) + check_styles(layout, sources)
    for name, screen in layout['screens'].items():
        texts = samples.get(name, {})
        findings += check_places(name, screen) + check_pictures(name, screen, sources) + check_tabs(name, screen)
        findings += check_fit(layout, name, screen, texts)
        faint, lowest = check_contrast(layout, name, screen, texts, sources)
        findings += faint
        if verbose:
            print('%-14s lowest contrast %.2f' % (name, lowest))
    return findings


def main():
    with open(SAMPLES, encoding='utf-8') as file:
        samples = json.load(file)
    if sys.argv[1:2] == ['--texts']:
        with open(sys.argv[2], 'w', encoding='utf-8') as file:
            json.dump(measured(templates.layout(), samples), file, indent=0)
        return 0
    findings = check_all(templates.layout(), samples, templates.Skin(), '--verbose' in sys.argv[1:])
    for finding in findings:
        print(finding)
    print('%d findings' % len(findings))
    return 1 if findings else 0


if __name__ == '__main__':
    sys.exit(main())
