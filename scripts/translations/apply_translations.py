#!/usr/bin/env python3
"""Fills messages of a .ts file from a tab-separated list.

    apply_translations.py lumidate_ja.ts new-texts.tsv

Each line of the list is "context<TAB>source<TAB>translation" (a line
starting with "#" is a comment). A message with that context and source gets
the translation and loses its "unfinished" mark. Lines that match no message
are reported, so a misspelt source does not pass unnoticed.
"""
import sys

import ts_text


def read_list(path):
    texts = {}
    with open(path, encoding="utf-8") as f:
        for line in f:
            line = line.rstrip("\n")
            if not line or line.startswith("#"):
                continue
            context, source, translation = line.split("\t")
            texts[(context, source)] = translation
    return texts


def main(ts_path, list_path):
    texts = read_list(list_path)
    used = set()

    def translate(context, source):
        if (context, source) not in texts:
            return None
        used.add((context, source))
        return texts[(context, source)]

    ts_text.fill(ts_path, translate, unfinished_only=False)
    for context, source in sorted(set(texts) - used):
        print(f"no message {context!r} {source!r}", file=sys.stderr)
    return 1 if set(texts) - used else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1], sys.argv[2]))
