#!/usr/bin/env python3
"""Tests of the layout check: each kind of fault that it must find, put into an otherwise good layout."""
import copy
import json
import os
import sys
import unittest

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(HERE, '..', '..', 'tools', 'skin'))

import layout_check  # noqa: E402
import templates     # noqa: E402


class LayoutCheck(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.good = templates.layout()
        cls.sources = templates.Skin()
        with open(layout_check.SAMPLES, encoding='utf-8') as file:
            cls.samples = json.load(file)

    def setUp(self):
        self.layout = copy.deepcopy(self.good)

    def control(self, screen, name):
        return next(c for c in self.layout['screens'][screen]['controls'] if c['name'] == name)

    def findings(self, screen, samples=None):
        body = self.layout['screens'][screen]
        texts = self.samples[screen] if samples is None else samples
        return (layout_check.check_places(screen, body) + layout_check.check_pictures(screen, body, self.sources) +
                layout_check.check_tabs(screen, body) + layout_check.check_fit(self.layout, screen, body, texts) +
                layout_check.check_contrast(self.layout, screen, body, texts, self.sources)[0])

    def test_control_outside_its_container(self):
        self.control('SelectForm', 'closeButton')['x'] = 420
        self.assertEqual(self.findings('SelectForm'), ['SelectForm.closeButton leaves BG'])

    def test_overlap(self):
        self.control('SelectForm', 'List1')['h'] = 330
        self.assertEqual(self.findings('SelectForm'), ['SelectForm.selectButton overlaps SelectForm.List1'])

    def test_overlap_within_an_array(self):
        self.control('InfoForm', 'monday_label')['w'] = 60
        self.assertIn('InfoForm.tuesday_label overlaps InfoForm.monday_label', self.findings('InfoForm'))

    def test_picture(self):
        self.control('SelectForm', 'selectButton')['picture'] = 'selct_disabled'
        self.control('SelectForm', 'closeButton')['w'] = 23
        self.assertEqual(self.findings('SelectForm'), [
            'SelectForm.closeButton is 23 x 19, its picture 24 x 19',
            'SelectForm.selectButton has no picture \\Images\\Buttons\\selct_disabled'])

    def test_background(self):
        self.layout['screens']['WaitForm']['containers']['BG']['w'] = 321
        self.assertEqual(self.findings('WaitForm'), ['WaitForm.BG is 321 x 120, its picture 320 x 120'])

    def test_tab_order(self):
        self.control('SelectForm', 'List1')['tab'] = 3
        self.assertEqual(self.findings('SelectForm'), ['SelectForm: tab order has gaps or doubles'])

    def test_text_too_wide(self):
        text = 'Finding the nearest airports of all the countries of the world'
        found = self.findings('WaitForm', {'infoLABEL': [text]})
        self.assertEqual(len(found), 1)
        self.assertIn('WaitForm.infoLABEL', found[0])
        self.control('WaitForm', 'infoLABEL')['ellipsis'] = 'right'
        self.assertEqual(self.findings('WaitForm', {'infoLABEL': [text]}), [])

    def test_text_too_high(self):
        found = self.findings('MsgForm', {'Msg_LABEL': ['one\n' * 12]})
        self.assertEqual(found, ['MsgForm.Msg_LABEL: 13 lines are 291 high in 240'])

    def test_column_too_narrow(self):
        found = self.findings('FlightForm', {'FlightList': [['NS 1', 'Boeing', '0840', 'half past eight in the morning']]})
        self.assertEqual(len(found), 1)
        self.assertIn('FlightForm.FlightList', found[0])

    def test_contrast(self):
        self.control('WaitForm', 'infoLABEL')['color'] = '#303030'
        found = self.findings('WaitForm')
        self.assertEqual(len(found), 1)
        self.assertIn('WaitForm.infoLABEL: contrast 1.', found[0])

    def test_contrast_under_the_highlight(self):
        for control in self.layout['screens']['MainForm']['controls']:
            if 'highlight' in control:
                control['highlight'] = '#1B2A33'
        found = [text for text in self.findings('MainForm') if 'contrast' in text]
        self.assertTrue(found)
        self.assertTrue(all('log' in text or 'pic_' in text for text in found), found)

    def test_contrast_of_an_own_back(self):
        self.control('InfoForm', 'origin')['back'] = '#FFFFFF'
        self.assertEqual(self.findings('InfoForm'), ['InfoForm.origin: contrast 1.00 of #FFFFFF'])

    def test_styles(self):
        self.layout['styles']['list']['text'] = '#333333'
        found = layout_check.check_styles(self.layout, self.sources)
        self.assertEqual([text.split(':')[0] for text in found], ['style list', 'style list'])

    def test_captions(self):
        sources = templates.Skin()
        for picture, caption in (('path_regular', 'Browse for a folder'), ('ok_regular', 'ALL RIGHT THEN'),
                                 ('print_reg', 'Print it all')):
            next(row for row in sources.rows if row['picture'] == picture)['caption'] = caption
        self.assertEqual(len(layout_check.check_keys(sources)), 3)

    def test_unknown_sample(self):
        self.assertEqual(layout_check.check_names(self.layout, {'WaitForm': {'lostLABEL': ['']}}),
                         ['sample for unknown control WaitForm.lostLABEL'])

    def test_contrast_values(self):
        self.assertAlmostEqual(layout_check.contrast(layout_check.luminance((255, 255, 255)),
                                                     layout_check.luminance((0, 0, 0))), 21)
        self.assertAlmostEqual(layout_check.contrast(layout_check.luminance((119, 119, 119)),
                                                     layout_check.luminance((255, 255, 255))), 4.48, places=2)


if __name__ == '__main__':
    unittest.main()
