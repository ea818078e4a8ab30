#!/usr/bin/env python3
"""Sorts source files into lots that can be compiled as one, which saves reading the same headers again.

  tools/source_lots.py SIZE FILE...

prints the number of each file's lot and the file, in lines.
"""

import pathlib
import re
import sys

OWN_NAME = re.compile(r"^(?:[A-Za-z][\w:<>,*& ]*[ *&])?(\w+)(?: final)?(?:\(|\{| = |$| :)", re.MULTILINE)
NO_NAME = re.compile(r"namespace|(?:TYPED_)?TEST(?:_[A-Z]+)?|[A-Z]+_TEST_SUITE_P")
BORROWED = re.compile(r"^ *using namespace (?!std)([\w:]+)", re.MULTILINE)


def lots_of(files, size):
    """Neighbours that seem to define nothing of the same name, and borrow the names of the same namespaces."""
    lots = []
    for file in files:
        text = pathlib.Path(file).read_text()
        names = {name for name in OWN_NAME.findall(text) if not NO_NAME.fullmatch(name)}
        borrowed = set(BORROWED.findall(text))
        for members, taken, also_borrowed in lots:
            if len(members) < size and borrowed == also_borrowed and taken.isdisjoint(names):
                members.append(file)
                taken.update(names)
                break
        else:
            lots.append(([file], names, borrowed))
    return [members for members, _, _ in lots]


if __name__ == "__main__":
    for number, lot in enumerate(lots_of(sys.argv[2:], int(sys.argv[1]))):
        for member in lot:
            print(number, member)
