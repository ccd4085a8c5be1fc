#!/usr/bin/env python3
"""Gives every unfinished message of the English table its English text.

The English text of a message is its source, except for the keys listed in
the tab-separated file (context, key, English format), which
lumidate-translation-keys writes from the documents layer's format table.
The .ts file is edited as text, so lupdate's layout stays as it is.
"""
import re
import sys
from xml.sax.saxutils import escape, unescape

ENTITIES = {'"': "&quot;", "'": "&apos;"}


def main(ts_path, english_path):
    formats = {}
    with open(english_path, encoding="utf-8") as f:
        for line in f:
            context, key, english = line.rstrip("\n").split("\t")
            formats[(context, key)] = english
    with open(ts_path, encoding="utf-8") as f:
        text = f.read()

    context = None

    def fill(match):
        nonlocal context
        if match.group("name") is not None:
            context = unescape(match.group("name"), {v: k for k, v in ENTITIES.items()})
            return match.group(0)
        source = unescape(match.group("source"), {v: k for k, v in ENTITIES.items()})
        english = formats.get((context, source), source)
        return match.group("head") + "<translation>" + escape(english, {'"': "&quot;"}) + "</translation>"

    pattern = re.compile(
        r"<name>(?P<name>[^<]*)</name>"
        r"|(?P<head><source>(?P<source>[^<]*)</source>\s*)<translation type=\"unfinished\">[^<]*</translation>")
    with open(ts_path, "w", encoding="utf-8") as f:
        f.write(pattern.sub(fill, text))


if __name__ == "__main__":
    main(sys.argv[1], sys.argv[2])
