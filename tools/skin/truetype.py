#!/usr/bin/env python3
"""truetype.py SOURCE TARGET: writes an OpenType face with cubic outlines as TrueType.

Screens darken the stems of cubic outlines and leave TrueType ones as drawn: only the latter look as the pictures of
the skin do. The family gets "Gatewise " before its name, so that no face of the computer can stand in for it. Widths,
kerning and the licence's notices inside of the file stay. Needs Debian's python3-fonttools."""
import sys

from fontTools.pens.cu2quPen import Cu2QuPen
from fontTools.pens.ttGlyphPen import TTGlyphPen
from fontTools.ttLib import TTFont, newTable

PREFIX = 'Gatewise '
FAMILY_NAMES = (1, 4, 16)  # records of the name table that begin with the family
POSTSCRIPT_NAME = 6
TOLERANCE = 1.0  # farthest that a curve may move, in units of a thousandth of the em


def rename(font):
    for record in font['name'].names:
        if record.nameID in FAMILY_NAMES:
            record.string = PREFIX + record.toUnicode()
        if record.nameID == POSTSCRIPT_NAME:
            record.string = PREFIX.strip() + '-' + record.toUnicode()


def bend(font):
    """Puts quadratic outlines in the place of the cubic ones."""
    order = font.getGlyphOrder()
    glyphs = font.getGlyphSet()
    units = font['head'].unitsPerEm
    outlines = {}
    for name in order:
        pen = TTGlyphPen(glyphs)
        glyphs[name].draw(Cu2QuPen(pen, TOLERANCE * units / 1000, reverse_direction=True))
        outlines[name] = pen.glyph()
    font['loca'] = newTable('loca')
    font['glyf'] = glyf = newTable('glyf')
    glyf.glyphOrder = order
    glyf.glyphs = outlines
    for name in order:
        outlines[name].recalcBounds(glyf)
        width, _ = font['hmtx'][name]
        font['hmtx'][name] = (width, getattr(outlines[name], 'xMin', 0))
    for table in ('CFF ', 'VORG'):
        if table in font:
            del font[table]
    font.sfntVersion = '\000\001\000\000'
    return order


def describe(font, order):
    """The tables that TrueType has beside the outlines."""
    font['maxp'] = maxp = newTable('maxp')
    maxp.tableVersion = 0x00010000
    maxp.numGlyphs = len(order)
    for field in ('maxZones', 'maxTwilightPoints', 'maxStorage', 'maxFunctionDefs', 'maxInstructionDefs',
                  'maxStackElements', 'maxSizeOfInstructions', 'maxComponentElements'):
        setattr(maxp, field, 1 if field == 'maxZones' else 0)
    post = font['post']
    post.formatType = 2.0
    post.extraNames = []
    post.mapping = {}
    post.glyphOrder = order


def convert(source, target):
    font = TTFont(source, recalcTimestamp=False)  # the same bytes in every build
    describe(font, bend(font))
    rename(font)
    font.save(target)


if __name__ == '__main__':
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    convert(sys.argv[1], sys.argv[2])
