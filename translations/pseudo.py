#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Makes a catalogue in which every text is half as long again, in letters that no source has.

usage: pseudo.py CATALOGUE.ts RESULT.ts

A picture of the result shows whether a text is cut, and whether it goes through a catalogue at all.
Placeholders, line breaks, and the colon and blanks at a text's end stay as they are.
"""

import re
import sys
import xml.etree.ElementTree as ElementTree

LETTERS = str.maketrans("AEIOUaeiounycs", "ÅÉÎØÛåéîøûñýçš")
PADDING = "~"
PLACEHOLDER = re.compile(r"(%n|%L?\d+|&)")


def lengthened(source):
    """The pseudo text of `source`."""
    body = source.rstrip(" :.\n")
    tail = source[len(body):]
    parts = PLACEHOLDER.split(body)
    words = "".join(part if PLACEHOLDER.fullmatch(part) else part.translate(LETTERS) for part in parts)
    return words + PADDING * ((len(source) + 1) // 2) + tail


def main(catalogue, result):
    tree = ElementTree.parse(catalogue)
    root = tree.getroot()
    root.set("language", "en")
    for message in root.iter("message"):
        translation = message.find("translation")
        translation.attrib.pop("type", None)
        translation.text = lengthened(message.find("source").text)
    tree.write(result, encoding="utf-8", xml_declaration=True)


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    main(sys.argv[1], sys.argv[2])
