#!/usr/bin/env python3
"""Fills messages of a .ts file from a tab-separated list.

    apply_translations.py lumidate_ja.ts new-texts.tsv

Each line of the list is "context<TAB>source<TAB>translation" (a line
starting with "#" is a comment). A message with that context and source gets
the translation and loses its "unfinished" mark. Lines that match no message
are reported, so a misspelt source does not pass unnoticed.
"""
import re
import sys
from xml.sax.saxutils import escape, unescape

UNQUOTE = {"&quot;": '"', "&apos;": "'"}


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
    with open(ts_path, encoding="utf-8") as f:
        text = f.read()
    context = None

    def fill(match):
        nonlocal context
        if match.group("name") is not None:
            context = unescape(match.group("name"), UNQUOTE)
            return match.group(0)
        key = (context, unescape(match.group("source"), UNQUOTE))
        if key not in texts:
            return match.group(0)
        used.add(key)
        return match.group("head") + "<translation>" + escape(texts[key], {'"': "&quot;"}) + "</translation>"

    pattern = re.compile(
        r"<name>(?P<name>[^<]*)</name>"
        r"|(?P<head><source>(?P<source>[^<]*)</source>\s*)<translation[^>]*>[^<]*</translation>")
    text = pattern.sub(fill, text)
    with open(ts_path, "w", encoding="utf-8") as f:
        f.write(text)
    for context, source in sorted(set(texts) - used):
        print(f"no message {context!r} {source!r}", file=sys.stderr)
    return 1 if set(texts) - used else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1], sys.argv[2]))
