#!/usr/bin/env python3
"""Tests of the help pages: whole HTML, no dead link, no lost picture, the same way through all pages on each."""
import html.parser
import os
import re
import sys
import unittest

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(HERE, '..', '..', 'tools', 'skin'))

import fonts       # noqa: E402
import help_pages  # noqa: E402
import templates   # noqa: E402

START = 'gt_gt.htm'
VOID = ('meta', 'link', 'img', 'br')


class Page(html.parser.HTMLParser):
    """One page: its links, pictures, ids, and the tags that are not closed in order."""

    def __init__(self, name):
        super().__init__()
        self.links, self.pictures, self.sheets, self.menu = [], [], [], []
        self.open, self.faults, self.current, self.title = [], [], [], ''
        self.feed(help_pages.page(name))
        self.faults += self.open

    def handle_starttag(self, tag, attrs):
        values = dict(attrs)
        if tag == 'a':
            (self.menu if 'nav' in self.open else self.links).append(values['href'])
            if 'aria-current' in values:
                self.current.append(values['href'])
        elif tag == 'img':
            self.pictures.append(values)
        elif tag == 'link':
            self.sheets.append(values['href'])
        if tag not in VOID:
            self.open.append(tag)

    def handle_endtag(self, tag):
        if self.open and self.open[-1] == tag:
            self.open.pop()
        else:
            self.faults.append('/' + tag)

    def handle_data(self, data):
        if self.open and self.open[-1] == 'title':
            self.title += data


class Help(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.names = sorted(name for name in os.listdir(help_pages.TEXTS) if name.endswith('.htm'))
        cls.pages = {name: Page(name) for name in cls.names}

    def test_start_page(self):
        self.assertIn(START, self.names)
        self.assertEqual(set(self.pages[START].links), set(self.names) - {START})

    def test_pages_are_whole(self):
        for name, page in self.pages.items():
            self.assertEqual(page.faults, [], name)
            self.assertIn('Gatewise Terminal', page.title, name)
            self.assertEqual(page.sheets, ['style.css'], name)

    def test_every_page_leads_to_every_page(self):
        for name, page in self.pages.items():
            self.assertEqual(page.menu, self.pages[START].menu, name)
            self.assertEqual(page.current, [name])
        self.assertEqual(sorted(self.pages[START].menu), self.names)

    def test_links_stay_inside(self):
        for name, page in self.pages.items():
            for link in page.links:
                self.assertIn(link, self.names, name)

    def test_pictures_exist_in_their_size(self):
        made = {'../' + '/'.join(templates.path_of(row, 2)): row for row in templates.Skin().rows}
        shown = [picture for page in self.pages.values() for picture in page.pictures]
        self.assertGreater(len(shown), 10)
        for picture in shown:
            row = made[picture['src']]
            self.assertEqual((picture['width'], picture['height']), (row['w'], row['h']), picture['src'])
            self.assertTrue(picture['alt'])

    def test_fonts_are_shipped(self):
        with open(os.path.join(help_pages.TEXTS, 'style.css'), encoding='utf-8') as file:
            named = set(re.findall(r'url\("\.\./Fonts/([^"]+)"\)', file.read()))
        shipped = {fonts.shipped_name(fonts.find(*face)) for face in fonts.used_in_layout(templates.layout())}
        self.assertTrue(named)
        self.assertLessEqual(named, shipped)


if __name__ == '__main__':
    unittest.main()
