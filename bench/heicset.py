"""The base file of the HEIC set: the 12 MP set's base JPEG encoded by
libheif's heif-enc, which carries its Exif over as an Exif item; and where
that item lies, found by walking the file's boxes (meta, iinf, iloc) as a
reader must. The floor of a listing reads the file's head and, when the item
lies beyond it, the item's bytes."""
import struct
import subprocess

QUALITY = 70  # about 2.6 MB at 12 MP, like a phone's photo


def encode(jpeg_path, path):
    subprocess.run(["heif-enc", "-q", str(QUALITY), "-o", path, jpeg_path], check=True,
                   stdout=subprocess.DEVNULL)


def boxes(data, start, end):
    """(type, payload start, box end) of each box between start and end."""
    at = start
    while at + 8 <= end:
        size, kind = struct.unpack_from(">I4s", data, at)
        header = 8
        if size == 1:
            size, header = struct.unpack_from(">Q", data, at + 8)[0], 16
        elif size == 0:
            size = end - at
        if size < header or at + size > end:
            raise ValueError("box %r at %d overruns its parent" % (kind, at))
        yield kind.decode("latin-1"), at + header, at + size
        at += size


def child(data, start, end, kind):
    for k, payload, box_end in boxes(data, start, end):
        if k == kind:
            return payload, box_end
    raise ValueError("no %r box" % kind)


def exif_item_id(data, start, end):
    """The id of the item of type 'Exif' in an iinf box's payload."""
    version = data[start]
    first = start + 4 + (2 if version == 0 else 4)
    for kind, payload, box_end in boxes(data, first, end):
        if kind != "infe" or data[payload] < 2:
            continue
        wide = data[payload] >= 3
        item = struct.unpack_from(">I" if wide else ">H", data, payload + 4)[0]
        type_at = payload + 4 + (4 if wide else 2) + 2
        if data[type_at:type_at + 4] == b"Exif":
            return item
    raise ValueError("no Exif item")


def sized(data, at, size):
    return (int.from_bytes(data[at:at + size], "big") if size else 0), at + size


def item_extent(data, start, item):
    """(offset, length) of an item stored in one extent of the file, from an
    iloc box's payload."""
    version = data[start]
    offset_size, length_size = data[start + 4] >> 4, data[start + 4] & 15
    base_size, index_size = data[start + 5] >> 4, (data[start + 5] & 15 if version in (1, 2) else 0)
    count, at = sized(data, start + 6, 2 if version < 2 else 4)
    for _ in range(count):
        item_id, at = sized(data, at, 2 if version < 2 else 4)
        method = 0
        if version in (1, 2):
            method, at = sized(data, at, 2)
        at += 2  # data reference index
        base, at = sized(data, at, base_size)
        extents, at = sized(data, at, 2)
        spans = []
        for _ in range(extents):
            _, at = sized(data, at, index_size)
            offset, at = sized(data, at, offset_size)
            length, at = sized(data, at, length_size)
            spans.append((base + offset, length))
        if item_id == item:
            if method & 15 != 0 or len(spans) != 1:
                raise ValueError("the Exif item is not one extent of the file")
            return spans[0]
    raise ValueError("the Exif item has no location")


def exif_range(data):
    """Where the Exif item lies in a HEIC file: (offset, length)."""
    meta, meta_end = child(data, 0, len(data), "meta")
    payload = meta + 4  # version and flags
    iinf, iinf_end = child(data, payload, meta_end, "iinf")
    iloc, _ = child(data, payload, meta_end, "iloc")
    return item_extent(data, iloc, exif_item_id(data, iinf, iinf_end))
