"""Screenshots of a display."""

import struct
import zlib


class Picture:
    """Takes a picture of a whole display."""

    def __init__(self, display):
        self.width, self.height = display.width, display.height
        data = display.x.pixels(0, 0, self.width, self.height)
        pixels = bytearray(3 * self.width * self.height)
        for channel in range(3):
            pixels[channel::3] = data[2 - channel::4]
        self.pixels = bytes(pixels)

    def at(self, x, y):
        start = (y * self.width + x) * 3
        return tuple(self.pixels[start:start + 3])

    def row(self, y, left=0, right=None):
        """Returns the colours of a row, or of its part from left up to, not including, right."""
        right = self.width if right is None else right
        part = self.pixels[(y * self.width + left) * 3:(y * self.width + right) * 3]
        return set(zip(part[::3], part[1::3], part[2::3]))

    def column(self, x, top=0, bottom=None):
        return {self.at(x, y) for y in range(top, self.height if bottom is None else bottom)}

    def border(self, rect):
        """Returns the set of colours along the inner edge of a rectangle."""
        return (self.row(rect.y, rect.x, rect.right)
                | self.row(rect.bottom - 1, rect.x, rect.right)
                | self.column(rect.x, rect.y, rect.bottom)
                | self.column(rect.right - 1, rect.y, rect.bottom))

    def colors(self, rect):
        found = set()
        for y in range(rect.y, rect.bottom):
            found |= self.row(y, rect.x, rect.right)
        return found

    def save(self, path):
        """Writes the picture to a PNG file."""
        size = 3 * self.width
        rows = b"".join(b"\0" + self.pixels[start:start + size]
                        for start in range(0, size * self.height, size))
        header = struct.pack(">IIBBBBB", self.width, self.height, 8, 2, 0, 0, 0)
        with open(path, "wb") as file:
            file.write(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header)
                       + chunk(b"IDAT", zlib.compress(rows, 1)) + chunk(b"IEND", b""))


def chunk(kind, data):
    """Returns a chunk of a PNG file."""
    return (struct.pack(">I", len(data)) + kind + data
            + struct.pack(">I", zlib.crc32(kind + data)))
