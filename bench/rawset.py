"""The base file of the RAW set: a DNG laid out as cameras and converters
write them. IFD0 describes a small RGB preview and holds Make, Model,
DateTime, the DNG version and a SubIFDs pointer; the SubIFD describes the
sensor data, one uncompressed 16-bit CFA strip of about 21 MB; the Exif IFD
holds the other two dates and the sub-seconds. Every directory and value
lies in the first 2 KB, the preview follows, the sensor strip comes last, so
a reader that needs the dates never has to go past the file's head.

Written by hand rather than by a converter (Debian has no DNG writer); the
dates are the same placeholders as the JPEG sets', patched per file by
gensets."""
import random
import struct

MAKE, MODEL = "BenchCam", "BC-24 Raw"
SENSOR = (4032, 2688)  # 16 bits a photosite: 21.7 MB of sensor data
PREVIEW = (256, 171)

# TIFF field types: their codes and sizes.
BYTE, ASCII, SHORT, LONG, RATIONAL, UNDEFINED, SRATIONAL = 1, 2, 3, 4, 5, 7, 10
TYPE_SIZE = {BYTE: 1, ASCII: 1, SHORT: 2, LONG: 4, RATIONAL: 8, UNDEFINED: 1, SRATIONAL: 8}


def ascii_value(text):
    return text.encode() + b"\0"


def value_bytes(kind, values):
    """The little-endian bytes of an entry's values, and its count."""
    if kind in (ASCII, UNDEFINED, BYTE):
        data = values if isinstance(values, bytes) else bytes(values)
        return data, len(data)
    if kind in (RATIONAL, SRATIONAL):
        form = "<%d%s" % (2 * len(values), "i" if kind == SRATIONAL else "I")
        return struct.pack(form, *[n for pair in values for n in pair]), len(values)
    form = "<%d%s" % (len(values), "H" if kind == SHORT else "I")
    return struct.pack(form, *values), len(values)


def directory(entries, at):
    """One IFD at file offset `at` followed by the values that do not fit in
    their entries. `entries` are (tag, type, values); answers the bytes."""
    entries = sorted(entries)
    table_end = at + 2 + 12 * len(entries) + 4
    table, extra = bytearray(struct.pack("<H", len(entries))), bytearray()
    for tag, kind, values in entries:
        data, count = value_bytes(kind, values)
        table += struct.pack("<HHI", tag, kind, count)
        if len(data) <= 4:
            table += data.ljust(4, b"\0")
        else:
            table += struct.pack("<I", table_end + len(extra))
            extra += data + b"\0" * (len(data) % 2)  # values start on even offsets
    table += struct.pack("<I", 0)  # no next IFD
    return bytes(table + extra)


def ifd0(dates, exif_at, sub_at, preview_at):
    width, height = PREVIEW
    return [
        (0x00FE, LONG, [1]),  # NewSubfileType: reduced-resolution preview
        (0x0100, LONG, [width]), (0x0101, LONG, [height]), (0x0102, SHORT, [8, 8, 8]),
        (0x0103, SHORT, [1]), (0x0106, SHORT, [2]),
        (0x010F, ASCII, ascii_value(MAKE)), (0x0110, ASCII, ascii_value(MODEL)),
        (0x0111, LONG, [preview_at]), (0x0112, SHORT, [1]), (0x0115, SHORT, [3]),
        (0x0116, LONG, [height]), (0x0117, LONG, [width * height * 3]), (0x011C, SHORT, [1]),
        (0x0131, ASCII, ascii_value("BenchCam firmware 1.0")),
        (0x0132, ASCII, ascii_value(dates["DateTime"])),
        (0x014A, LONG, [sub_at]), (0x8769, LONG, [exif_at]),
        (0xC612, BYTE, [1, 4, 0, 0]), (0xC613, BYTE, [1, 1, 0, 0]),
        (0xC614, ASCII, ascii_value(MAKE + " " + MODEL)),
        (0xC621, SRATIONAL, [(6722, 10000), (-635, 10000), (-963, 10000), (-4287, 10000), (12460, 10000),
                             (2028, 10000), (-908, 10000), (2162, 10000), (5668, 10000)]),
        (0xC628, RATIONAL, [(473, 1000), (1000, 1000), (624, 1000)]),
        (0xC65A, SHORT, [21]),  # CalibrationIlluminant1: D65
    ]


def sensor_ifd(sensor_at):
    width, height = SENSOR
    return [
        (0x00FE, LONG, [0]), (0x0100, LONG, [width]), (0x0101, LONG, [height]),
        (0x0102, SHORT, [16]), (0x0103, SHORT, [1]), (0x0106, SHORT, [32803]),  # CFA
        (0x0111, LONG, [sensor_at]), (0x0115, SHORT, [1]), (0x0116, LONG, [height]),
        (0x0117, LONG, [width * height * 2]), (0x011C, SHORT, [1]),
        (0x828D, SHORT, [2, 2]), (0x828E, BYTE, [0, 1, 1, 2]),
        (0xC61A, LONG, [256]), (0xC61D, LONG, [4095]),
    ]


def exif_ifd(dates, subsec):
    return [
        (0x829A, RATIONAL, [(1, 125)]), (0x829D, RATIONAL, [(56, 10)]), (0x8827, SHORT, [200]),
        (0x9000, UNDEFINED, b"0231"),
        (0x9003, ASCII, ascii_value(dates["DateTimeOriginal"])),
        (0x9004, ASCII, ascii_value(dates["DateTimeDigitized"])),
        (0x9290, ASCII, ascii_value(subsec["SubSecTime"])),
        (0x9291, ASCII, ascii_value(subsec["SubSecTimeOriginal"])),
        (0x9292, ASCII, ascii_value(subsec["SubSecTimeDigitized"])),
        (0x920A, RATIONAL, [(35, 1)]),
    ]


def sensor_data(seed):
    """12-bit values in 16-bit little-endian photosites, rows drawn from a few
    random patterns so that 21 MB take well under a second."""
    width, height = SENSOR
    rnd = random.Random(seed)
    patterns = []
    for _ in range(64):
        row = bytearray(rnd.randbytes(width * 2))
        row[1::2] = bytes(b & 0x0F for b in row[1::2])
        patterns.append(bytes(row))
    return b"".join(patterns[rnd.randrange(64)] for _ in range(height))


def preview_data():
    width, height = PREVIEW
    return bytes((x * 255 // width) for _ in range(height) for x in range(width) for _ in range(3))


def dng_bytes(dates, subsec, seed=24):
    """The whole file. Directories are laid out twice: once to learn their
    sizes, once with the offsets those sizes give."""
    sizes = [0, 0, 0]
    for _ in range(2):
        exif_at = 8 + sizes[0]
        sub_at = exif_at + sizes[1]
        preview_at = sub_at + sizes[2]
        sensor_at = preview_at + PREVIEW[0] * PREVIEW[1] * 3
        parts = [directory(ifd0(dates, exif_at, sub_at, preview_at), 8),
                 directory(exif_ifd(dates, subsec), exif_at),
                 directory(sensor_ifd(sensor_at), sub_at)]
        sizes = [len(p) for p in parts]
    return b"II*\0" + struct.pack("<I", 8) + b"".join(parts) + preview_data() + sensor_data(seed)
