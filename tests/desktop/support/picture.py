"""Pictures of what a display shows."""

import subprocess


class Picture:
    """Takes a picture of a whole display, or of a part of it."""

    def __init__(self, display, window="root"):
        data = subprocess.run(["import", "-silent", "-window", str(window), "-depth", "8", "ppm:-"],
                              env=display.environment, check=True, timeout=20,
                              stdout=subprocess.PIPE).stdout
        header, size, depth, pixels = data.split(b"\n", 3)
        if header != b"P6" or depth != b"255":
            raise RuntimeError("the picture has an unexpected form")
        self.width, self.height = map(int, size.split())
        self.pixels = pixels

    def at(self, x, y):
        start = (y * self.width + x) * 3
        return tuple(self.pixels[start:start + 3])

    def row(self, y, left=0, right=None):
        """The colours of a row, or of the part of it from left up to right."""
        right = self.width if right is None else right
        part = self.pixels[(y * self.width + left) * 3:(y * self.width + right) * 3]
        return set(zip(part[::3], part[1::3], part[2::3]))

    def column(self, x, top=0, bottom=None):
        return {self.at(x, y) for y in range(top, self.height if bottom is None else bottom)}

    def border(self, rect):
        """The colours along the inner edge of a part."""
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
        subprocess.run(["convert", "ppm:-", path], check=True, timeout=20,
                       input=f"P6\n{self.width} {self.height}\n255\n".encode() + self.pixels)
