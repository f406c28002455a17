#!/usr/bin/env python3
"""Tests of the skin builder: templates, raster formats, fonts, the picture check."""
import os
import struct
import subprocess
import sys
import tempfile
import unittest
import zlib

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(HERE, '..', '..', 'tools', 'skin'))

import fonts      # noqa: E402
import rasters    # noqa: E402
import skin       # noqa: E402
import templates  # noqa: E402


def png(width, height, kind, filtered):
    """A PNG file around filtered rows: list of (filter, bytes)."""
    def chunk(tag, body):
        return struct.pack('>I', len(body)) + tag + body + struct.pack('>I', zlib.crc32(tag + body))
    raw = b''.join(bytes([f]) + row for f, row in filtered)
    return (rasters.PNG_SIGNATURE + chunk(b'IHDR', struct.pack('>IIBBBBB', width, height, 8, kind, 0, 0, 0)) +
            chunk(b'IDAT', zlib.compress(raw)) + chunk(b'IEND', b''))


def paeth(a, b, c):
    """The predictor as the PNG standard words it."""
    p = a + b - c
    pa, pb, pc = abs(p - a), abs(p - b), abs(p - c)
    return a if pa <= pb and pa <= pc else b if pb <= pc else c


def apply_filter(kind, row, above, pixel):
    out = bytearray()
    for i, v in enumerate(row):
        a = row[i - pixel] if i >= pixel else 0
        b = above[i]
        c = above[i - pixel] if i >= pixel else 0
        out.append((v - (0, a, b, (a + b) // 2, paeth(a, b, c))[kind]) & 255)
    return bytes(out)


class Templates(unittest.TestCase):
    def test_arithmetic(self):
        values = {'w': '142', 'h': '27', 'caption': 'OK'}
        for form, text in (('{{w}}', '142'), ('{{w-3}}', '139'), ('{{w+4}}', '146'), ('{{h/2}}', '13.5'),
                           ('{{h/2-8}}', '5.5'), ('{{w/2+11}}', '82'), ('a{{caption}}b', 'aOKb')):
            self.assertEqual(templates.substitute(form, values), text)

    def test_unknown_name_is_an_error(self):
        with self.assertRaises(KeyError):
            templates.substitute('{{width}}', {'w': '1'})
        with self.assertRaises(KeyError):
            templates.substitute('{{w*2}}', {'w': '1'})

    def test_every_picture_expands_whole(self):
        sources = templates.Skin()
        drawn = ['/'.join(templates.path_of(row, 1)) for row in sources.rows]
        self.assertEqual([name for name in skin.required() if name.endswith('.bmp') and name not in drawn], [])
        self.assertEqual(sorted(drawn), sorted(set(drawn)), 'a picture stands twice')
        for row in sources.rows:
            svg = sources.svg(row)
            self.assertNotIn('{{', svg, row['picture'])
            fonts.used_in_svg(svg)

    def test_paths(self):
        row = {'folder': '\\Images\\Main\\', 'picture': 'min_down'}
        self.assertEqual(templates.path_of(row, 1), ('Images', 'Main', 'min_down.bmp'))
        self.assertEqual(templates.path_of(row, 2), ('Images', 'Main', 'min_down@2x.bmp'))


class Rasters(unittest.TestCase):
    def test_all_filters(self):
        for kind, pixel in ((2, 3), (6, 4)):
            seed, rows = 7, []
            for _ in range(12):
                row = bytearray()
                for _ in range(9 * pixel):
                    seed = (seed * 1103515245 + 12345) & 0x7FFFFFFF
                    row.append((seed >> 16) & (255 if seed & 64 else 3))
                rows.append(bytes(row))
            filtered, above = [], bytes(9 * pixel)
            for y, row in enumerate(rows):
                filtered.append((y % 5, apply_filter(y % 5, row, above, pixel)))
                above = row
            self.assertEqual(rasters.read_png(png(9, 12, kind, filtered)), (9, 12, pixel, rows))

    def test_damaged_files(self):
        whole = png(2, 1, 2, [(0, b'\1\2\3\4\5\6')])
        for data in (b'', whole[:20], whole[:-14], b'GIF' + whole, png(2, 1, 2, [(0, b'\1')]),
                     png(2, 1, 2, [(7, b'\1\2\3\4\5\6')]), png(1, 1, 0, [(0, b'\1')])):
            with self.assertRaises(ValueError):
                rasters.read_png(data)

    def test_transparent_pixels_show_the_ground(self):
        row = bytes((10, 20, 30, 255, 200, 100, 50, 0, 100, 100, 100, 51))
        self.assertEqual(rasters.flatten([row], 4, (0, 50, 255)), [bytes((10, 20, 30, 0, 50, 255, 20, 60, 224))])

    def test_bmp_layout(self):
        data = rasters.bmp(1, 2, [b'\xff\x80\x01', b'\1\2\3'], 1)
        self.assertEqual(len(data), 62)
        self.assertEqual(data[:2], b'BM')
        self.assertEqual(struct.unpack_from('<IHHIIiiHHIIii', data, 2),
                         (62, 0, 0, 54, 40, 1, 2, 1, 24, 0, 8, 3780, 3780))
        self.assertEqual(data[54:], b'\3\2\1\0\1\x80\xff\0')
        self.assertEqual(rasters.bmp_size(data), (1, 2))
        self.assertIsNone(rasters.bmp_size(data[:-1]))
        self.assertIsNone(rasters.bmp_size(b'BM'))

    def test_drawing_a_picture(self):
        row = {'picture': 'p', 'w': '3', 'h': '2', 'ground': '#102030'}
        svg = ('<svg xmlns="http://www.w3.org/2000/svg" width="3" height="2" viewBox="0 0 3 2">'
               '<rect width="1" height="1" fill="#FF8000"/></svg>')
        data = skin.draw_picture(svg, row, 2)
        self.assertEqual(rasters.bmp_size(data), (6, 4))
        self.assertEqual(data, skin.draw_picture(svg, row, 2))
        top = data[54 + 3 * 20:]
        self.assertEqual(top[:6], b'\x00\x80\xff' * 2)
        self.assertEqual(top[6:18], b'\x30\x20\x10' * 4)
        with self.assertRaises(skin.RenderError):
            skin.draw_picture(svg, dict(row, w='4'), 1)
        with self.assertRaises(skin.RenderError):
            skin.draw_picture('<svg', row, 1)


class Fonts(unittest.TestCase):
    def test_faces_are_inherited(self):
        svg = ('<svg xmlns="http://www.w3.org/2000/svg"><g font-family="B612" font-weight="700"><text>a</text>'
               '<text font-weight="400" font-family="OCR B">b</text></g><text font-family="B612">c</text></svg>')
        self.assertEqual(fonts.used_in_svg(svg), {('B612', 700), ('OCR B', 400), ('B612', 400)})

    def test_missing_family_stops(self):
        with self.assertRaisesRegex(fonts.FontMissing, 'font missing: No Such Face bold'):
            fonts.find('No Such Face', 700)

    def test_missing_weight_stops(self):
        with self.assertRaises(fonts.FontMissing):
            fonts.find('OCR B', 700)

    def test_widths(self):
        metrics = fonts.metrics('DSEG7 Classic', 700)
        self.assertEqual(metrics.width('11', 20), metrics.width('88', 20))
        self.assertGreater(metrics.width('8', 40), metrics.width('8', 20))

    def test_fonts_come_with_licences(self):
        layout = {'fonts': {'a': {'family': 'Roboto Condensed', 'weight': 'medium', 'size': 12}}}
        with tempfile.TemporaryDirectory() as folder:
            fonts.copy_to(folder, layout)
            self.assertEqual(sorted(os.listdir(folder)),
                             ['Apache-2.0.txt', 'RobotoCondensed-Medium.ttf', 'fonts-roboto-unhinted-licence.txt'])


    def test_cubic_outlines_become_truetype_under_a_name_of_their_own(self):
        layout = {'fonts': {'a': {'family': 'B612', 'weight': 'bold', 'size': 12}}}
        with tempfile.TemporaryDirectory() as folder:
            with open(os.path.join(folder, 'B612-Bold.otf'), 'wb'):
                pass  # of an older build
            fonts.copy_to(folder, layout)
            self.assertEqual(sorted(os.listdir(folder)), ['B612-Bold.ttf', 'fonts-b612-licence.txt'])
            face = os.path.join(folder, 'B612-Bold.ttf')
            with open(face, 'rb') as file:
                self.assertEqual(file.read(4), b'\0\1\0\0')
            names = subprocess.run(['fc-scan', '-f', '%{family}|%{style}', face], stdout=subprocess.PIPE)
            self.assertEqual(names.stdout.decode(), 'Gatewise B612|Bold')
            new, old = fonts.Metrics(face), fonts.metrics('B612', 700)
            for text in ('Gatewise Terminal', '0123456789', 'WAVE To'):
                self.assertEqual(new.width(text, 1000), old.width(text, 1000))

    def test_a_conversion_is_not_repeated(self):
        layout = {'fonts': {'a': {'family': 'B612', 'weight': 'bold', 'size': 12}}}
        with tempfile.TemporaryDirectory() as folder:
            fonts.copy_to(folder, layout)
            face = os.path.join(folder, 'B612-Bold.ttf')
            before = os.stat(face).st_mtime_ns
            fonts.copy_to(folder, layout)
            self.assertEqual(os.stat(face).st_mtime_ns, before)


class Check(unittest.TestCase):
    def fill(self, folder):
        for name in skin.required():
            path = os.path.join(folder, *name.split('/'))
            os.makedirs(os.path.dirname(path), exist_ok=True)
            for ending, zoom in (('.bmp', 1), ('@2x.bmp', 2)):
                if name.endswith('.bmp'):
                    with open(path[:-4] + ending, 'wb') as file:
                        file.write(rasters.bmp(zoom, zoom, [bytes(3 * zoom)] * zoom, zoom))
            if name.endswith('.png'):
                with open(path, 'wb') as file:
                    file.write(b'')

    def test_faults(self):
        with tempfile.TemporaryDirectory() as folder:
            self.fill(folder)
            self.assertEqual(skin.find_faults(folder), [])
            main = os.path.join(folder, 'Images', 'Main')
            os.remove(os.path.join(main, 'enter_down.bmp'))
            os.remove(os.path.join(main, 'plus_mouse@2x.bmp'))
            with open(os.path.join(main, 'min_down.bmp'), 'wb') as file:
                file.write(b'BM')
            with open(os.path.join(main, 'min_mouse@2x.bmp'), 'wb') as file:
                file.write(rasters.bmp(3, 2, [bytes(9)] * 2, 2))
            os.remove(os.path.join(folder, 'Images', 'icon_48.png'))
            self.assertEqual(sorted(skin.find_faults(folder)), [
                'missing: Images/Main/enter_down.bmp', 'missing: Images/Main/plus_mouse@2x.bmp',
                'missing: Images/icon_48.png', 'no whole 24-bit BMP: Images/Main/min_down.bmp',
                'sizes do not match: Images/Main/min_mouse.bmp'])

    def test_the_list_covers_the_layout(self):
        names = set(skin.required())
        layout = templates.layout()
        for screen in layout['screens'].values():
            for control in screen['controls']:
                folder = templates.CLASS_FOLDER.get(control['kind'])
                if folder:
                    row = {'folder': folder, 'picture': control['picture']}
                    self.assertIn('/'.join(templates.path_of(row, 1)), names)


if __name__ == '__main__':
    unittest.main()
