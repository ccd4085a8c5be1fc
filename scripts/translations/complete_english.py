#!/usr/bin/env python3
"""Gives every unfinished message of the English table its English text.

The English text of a message is its source, except for the keys listed in
the tab-separated file (context, key, English format), which
lumidate-translation-keys writes from the documents layer's format table.
The .ts file is edited as text, so lupdate's layout stays as it is.
"""
import sys

import ts_text


def main(ts_path, english_path):
    formats = {}
    with open(english_path, encoding="utf-8") as f:
        for line in f:
            context, key, english = line.rstrip("\n").split("\t")
            formats[(context, key)] = english
    ts_text.fill(ts_path, lambda context, source: formats.get((context, source), source), unfinished_only=True)


if __name__ == "__main__":
    main(sys.argv[1], sys.argv[2])
