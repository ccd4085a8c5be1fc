"""Edits the translations of a Qt .ts file as text, so that lupdate's layout
stays as it is.

fill(ts_path, translate, unfinished_only) walks the messages in file order;
translate(context, source) answers the new translation, or None to leave the
message alone. A filled message loses its "unfinished" mark.
"""
import re
from xml.sax.saxutils import escape, unescape

UNQUOTE = {"&quot;": '"', "&apos;": "'"}
_MESSAGE = (r"<name>(?P<name>[^<]*)</name>"
            r"|(?P<head><source>(?P<source>[^<]*)</source>\s*)<translation{}>[^<]*</translation>")


def fill(ts_path, translate, unfinished_only):
    with open(ts_path, encoding="utf-8") as f:
        text = f.read()
    context = None

    def replace(match):
        nonlocal context
        if match.group("name") is not None:
            context = unescape(match.group("name"), UNQUOTE)
            return match.group(0)
        translation = translate(context, unescape(match.group("source"), UNQUOTE))
        if translation is None:
            return match.group(0)
        return match.group("head") + "<translation>" + escape(translation, {'"': "&quot;"}) + "</translation>"

    pattern = re.compile(_MESSAGE.format(' type="unfinished"' if unfinished_only else "[^>]*"))
    with open(ts_path, "w", encoding="utf-8") as f:
        f.write(pattern.sub(replace, text))
