"""Finds where a JPEG's Exif block stores its date texts, so a test can
check a save byte for byte: the 19 bytes of a date may change, nothing else.
Reads only what it needs: the APP1 Exif segment, IFD0 and the Exif IFD."""

import struct

TAG_DATETIME = 0x0132
TAG_EXIF_IFD = 0x8769
TAG_ORIGINAL = 0x9003
TAG_DIGITIZED = 0x9004


def _exif_tiff_start(data):
    """Byte position of the TIFF header inside the JPEG's Exif segment."""
    pos = 2
    while pos + 4 <= len(data) and data[pos] == 0xFF:
        marker = data[pos + 1]
        length = struct.unpack(">H", data[pos + 2:pos + 4])[0]
        if marker == 0xE1 and data[pos + 4:pos + 10] == b"Exif\0\0":
            return pos + 10
        if marker == 0xDA:
            break
        pos += 2 + length
    raise ValueError("no Exif segment")


def _entries(data, tiff, ifd_offset, endian):
    count = struct.unpack(endian + "H", data[tiff + ifd_offset:tiff + ifd_offset + 2])[0]
    for i in range(count):
        at = tiff + ifd_offset + 2 + 12 * i
        tag, kind, n, value = struct.unpack(endian + "HHII", data[at:at + 12])
        yield tag, kind, n, value


def date_positions(data):
    """{tag: absolute byte position of its 19-character text} for the
    dates the file has (DateTime, DateTimeOriginal, DateTimeDigitized)."""
    tiff = _exif_tiff_start(data)
    endian = "<" if data[tiff:tiff + 2] == b"II" else ">"
    ifd0 = struct.unpack(endian + "I", data[tiff + 4:tiff + 8])[0]
    found = {}
    exif_ifd = None
    for tag, _kind, n, value in _entries(data, tiff, ifd0, endian):
        if tag == TAG_DATETIME and n >= 19:
            found[tag] = tiff + value
        elif tag == TAG_EXIF_IFD:
            exif_ifd = value
    if exif_ifd is not None:
        for tag, _kind, n, value in _entries(data, tiff, exif_ifd, endian):
            if tag in (TAG_ORIGINAL, TAG_DIGITIZED) and n >= 19:
                found[tag] = tiff + value
    return found


def date_text(data, position):
    return data[position:position + 19].decode("ascii")
