"""Packs two made-up pictures into a Windows icon and reads the directory back.

    test_icon.py FOLDER_OF_THE_TOOL
"""

import struct
import sys
import unittest

sys.path.insert(0, sys.argv.pop(1))
import icon


def png(width):
    return b"\x89PNG\r\n\x1a\n" + struct.pack(">I4sII", 13, b"IHDR", width, width) + b"picture of %d" % width


class Icon(unittest.TestCase):
    def test_each_picture_is_found_where_the_directory_says(self):
        pictures = [png(16), png(256)]
        data = icon.icon(pictures)
        self.assertEqual(struct.unpack_from("<HHH", data), (0, 1, 2))
        for number, (picture, size) in enumerate(zip(pictures, (16, 0))):  # 256 is written as 0
            width, height, colours, zero, planes, bits, length, offset = struct.unpack_from(
                "<BBBBHHII", data, 6 + 16 * number)
            self.assertEqual((width, height, colours, zero, planes, bits), (size, size, 0, 0, 1, 32))
            self.assertEqual(data[offset : offset + length], picture)

    def test_what_is_no_picture_is_refused(self):
        with self.assertRaises(SystemExit):
            icon.icon([b"BM no PNG"])


unittest.main()
