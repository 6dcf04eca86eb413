#!/usr/bin/env python3
# Draws the utility's icon, a shield with a power sign, in every size that Windows asks for.
"""Usage: tools/icon/icon.py app/resources/app.ico"""
import math
import struct
import sys
import zlib

SIZES = (16, 20, 24, 32, 40, 48, 64, 256)
RIM, TOP, BOTTOM, SIGN = (18, 46, 99), (74, 144, 226), (25, 84, 166), (255, 255, 255)


def in_shield(x, y, inset):
    """True when the point lies in the shield; the shield fills the square -1..1, `inset` makes it smaller on every side."""
    half_width, top, tip = 0.86 - inset, -0.98 + inset, 0.99 - inset * 1.15
    if abs(x) > half_width or y > tip:
        return False
    # The upper edge rises to the corners and to the middle, as shields do.
    if y < top + 0.10 * (1 - abs(2 * abs(x) / half_width - 1)) ** 2:
        return False
    shoulder = -0.05
    if y <= shoulder:
        return True
    down = (y - shoulder) / (tip - shoulder)
    return abs(x) <= half_width * (1 - down ** 2.1) ** 0.9


def in_sign(px, py, size):
    """True when the point, in pixels, lies in the power sign. Its strokes are whole pixels wide, so that the small sizes stay crisp."""
    bar = max(2, 2 * round(size / 18))
    ring = max(1.6, size / 9.5)
    cx, cy, radius = size / 2, round(size * 0.50), size * 0.235
    bar_top, bar_bottom = round(cy - radius - bar * 0.75), round(cy + radius * 0.1)
    if abs(px - cx) <= bar / 2 and bar_top <= py <= bar_bottom:
        return True
    distance = math.hypot(px - cx, py - cy)
    gap = abs(px - cx) < bar / 2 + max(1, size / 20) and py < cy
    return abs(distance - radius) <= ring / 2 and not gap


def mix(first, second, part):
    return tuple(a + (b - a) * part for a, b in zip(first, second))


def draw(size):
    """Rows of (red, green, blue, alpha), top row first."""
    grid = 8 if size < 100 else 4
    rim = max(1.0, size / 22) * 2 / size
    rows = []
    for row in range(size):
        line = []
        for column in range(size):
            red = green = blue = covered = 0.0
            for sub in range(grid * grid):
                px = column + (sub % grid + 0.5) / grid
                py = row + (sub // grid + 0.5) / grid
                x, y = 2 * px / size - 1, 2 * py / size - 1
                if not in_shield(x, y, 0):
                    continue
                if in_sign(px, py, size):
                    colour = SIGN
                elif in_shield(x, y, rim):
                    # The left half catches the light.
                    colour = mix(mix(TOP, BOTTOM, (y + 1) / 2), SIGN, 0.10 if x < 0 else 0)
                else:
                    colour = RIM
                covered += 1
                red, green, blue = red + colour[0], green + colour[1], blue + colour[2]
            if covered:
                line.append((round(red / covered), round(green / covered), round(blue / covered), round(255 * covered / grid / grid)))
            else:
                line.append((0, 0, 0, 0))
        rows.append(line)
    return rows


def as_bitmap(rows):
    """A 32-bit bitmap without file header, bottom row first, followed by the 1-bit mask that icons carry."""
    size = len(rows)
    header = struct.pack('<IiiHHIIiiII', 40, size, size * 2, 1, 32, 0, 0, 0, 0, 0, 0)
    pixels = b''.join(bytes((b, g, r, a)) for line in reversed(rows) for r, g, b, a in line)
    mask = b''
    for line in reversed(rows):
        bits = ''.join('0' if pixel[3] >= 128 else '1' for pixel in line)
        bits += '0' * (-len(bits) % 32)
        mask += int(bits, 2).to_bytes(len(bits) // 8, 'big')
    return header + pixels + mask


def as_png(rows):
    def chunk(kind, data):
        return struct.pack('>I', len(data)) + kind + data + struct.pack('>I', zlib.crc32(kind + data))

    size = len(rows)
    raw = b''.join(b'\0' + bytes(value for pixel in line for value in pixel) for line in rows)
    return (b'\x89PNG\r\n\x1a\n' + chunk(b'IHDR', struct.pack('>IIBBBBB', size, size, 8, 6, 0, 0, 0))
            + chunk(b'IDAT', zlib.compress(raw, 9)) + chunk(b'IEND', b''))


def main():
    # Windows reads pictures of every size since Vista; small ones are no smaller for it.
    images = [as_png(draw(size)) if size >= 64 else as_bitmap(draw(size)) for size in SIZES]
    offset = 6 + 16 * len(images)
    directory = struct.pack('<HHH', 0, 1, len(images))
    for size, image in zip(SIZES, images):
        # 0 in the one-byte fields stands for 256.
        directory += struct.pack('<BBBBHHII', size % 256, size % 256, 0, 0, 1, 32, len(image), offset)
        offset += len(image)
    with open(sys.argv[1], 'wb') as file:
        file.write(directory + b''.join(images))


if __name__ == '__main__':
    main()
