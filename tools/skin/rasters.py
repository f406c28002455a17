"""Raster files of the skin: reads the PNG files that rsvg-convert makes and writes 24-bit BMP files.

Both formats are handled here so that a build needs nothing but Python; the filters are written for speed, because the
double-sized backgrounds alone have ten million pixels."""
import itertools
import struct
import zlib

PNG_SIGNATURE = b'\x89PNG\r\n\x1a\n'
CHANNELS = {2: 3, 6: 4}  # colour type -> bytes of one pixel: RGB, RGBA


def png_chunks(data):
    """Yields (type, body) of each chunk. Raises ValueError when the file is no whole PNG."""
    if data[:8] != PNG_SIGNATURE:
        raise ValueError('no PNG signature')
    at = 8
    while at + 12 <= len(data):
        length, kind = struct.unpack_from('>I4s', data, at)
        if at + 12 + length > len(data):
            break
        yield kind, data[at + 8:at + 8 + length]
        if kind == b'IEND':
            return
        at += 12 + length
    raise ValueError('PNG file ends early')


def add_bytes(a, b):
    """Adds two byte strings of one length, each byte modulo 256; one long addition instead of a loop."""
    size = len(a)
    low = int.from_bytes(b'\x7f' * size, 'little')
    x, y = int.from_bytes(a, 'little'), int.from_bytes(b, 'little')
    return (((x & low) + (y & low)) ^ ((x ^ y) & ~low)).to_bytes(size, 'little')


def undo_average(deltas, above):
    out, left = bytearray(len(deltas)), 0
    for i, (delta, up) in enumerate(zip(deltas, above)):
        left = out[i] = (delta + ((left + up) >> 1)) & 255
    return out


def undo_paeth(deltas, above):
    out, left, corner = bytearray(len(deltas)), 0, 0
    for i, (delta, up) in enumerate(zip(deltas, above)):
        if up != corner:
            if left == corner:
                left = up
            else:
                to_left, to_up = abs(up - corner), abs(left - corner)
                to_corner = abs(left + up - corner - corner)
                if to_left > to_up or to_left > to_corner:
                    left = up if to_up <= to_corner else corner
        left = out[i] = (delta + left) & 255
        corner = up
    return out


def undo_row(kind, row, above, pixel):
    """Undoes filter `kind` (0 to 4) of one row; `pixel` is the number of bytes of a pixel."""
    if kind == 0:
        return row
    if kind == 2:
        return add_bytes(row, above)
    out = bytearray(len(row))
    for c in range(pixel):
        deltas = row[c::pixel]
        if kind == 1:
            out[c::pixel] = bytes(v & 255 for v in itertools.accumulate(deltas))
        elif kind == 3:
            out[c::pixel] = undo_average(deltas, above[c::pixel])
        elif kind == 4:
            out[c::pixel] = undo_paeth(deltas, above[c::pixel])
        else:
            raise ValueError('unknown PNG filter %d' % kind)
    return bytes(out)


def read_png(data):
    """PNG file -> (width, height, bytes of a pixel, list of rows). Only what rsvg-convert writes: 8-bit RGB or RGBA,
    not interlaced; anything else raises ValueError."""
    packed, head = [], None
    for kind, body in png_chunks(data):
        if kind == b'IHDR':
            head = struct.unpack('>IIBBBBB', body)
        elif kind == b'IDAT':
            packed.append(body)
    if head is None or head[2] != 8 or head[3] not in CHANNELS or head[6] != 0:
        raise ValueError('unexpected kind of PNG')
    width, height, pixel = head[0], head[1], CHANNELS[head[3]]
    raw = zlib.decompress(b''.join(packed))
    step = width * pixel + 1
    if len(raw) != step * height:
        raise ValueError('PNG file has a wrong length')
    rows, above = [], bytes(width * pixel)
    for at in range(0, len(raw), step):
        above = undo_row(raw[at], raw[at + 1:at + step], above, pixel)
        rows.append(above)
    return width, height, pixel, rows


def flatten(rows, pixel, ground):
    """Rows of RGB(A) pixels -> rows of RGB pixels on the colour `ground`, an (r, g, b) of 0 to 255."""
    if pixel == 3:
        return rows
    flat = []
    for row in rows:
        out = bytearray(len(row) // 4 * 3)
        alpha = row[3::4]
        for c in range(3):
            back = ground[c]
            out[c::3] = bytes((v * a + back * (255 - a) + 127) // 255 for v, a in zip(row[c::4], alpha))
        flat.append(bytes(out))
    return flat


def bmp(width, height, rows, zoom):
    """Rows of RGB pixels -> bytes of a 24-bit BMP file, bottom row first. The resolution says 96 dots per inch times
    zoom, so that a viewer shows both sizes of a picture equally large."""
    pad = bytes(-width * 3 % 4)
    body = bytearray()
    for row in reversed(rows):
        line = bytearray(width * 3)
        line[0::3], line[1::3], line[2::3] = row[2::3], row[1::3], row[0::3]
        body += line + pad
    metre = round(96 * zoom / 0.0254)
    head = struct.pack('<2sIHHI', b'BM', 54 + len(body), 0, 0, 54)
    info = struct.pack('<IiiHHIIiiII', 40, width, height, 1, 24, 0, len(body), metre, metre, 0, 0)
    return head + info + bytes(body)


def bmp_size(data):
    """(width, height) of a 24-bit BMP file, or None when the bytes are not a whole one."""
    if len(data) < 54 or data[:2] != b'BM':
        return None
    size, width, height, depth = (*struct.unpack_from('<I', data, 2), *struct.unpack_from('<ii', data, 18),
                                  struct.unpack_from('<H', data, 28)[0])
    if depth != 24 or size != len(data) or size != 54 + (width * 3 + 3) // 4 * 4 * height:
        return None
    return width, height
