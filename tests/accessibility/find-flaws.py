#!/usr/bin/python3
"""find-flaws.py PROGRAM: fails unless the rules find all the flaws of FlawedWindow and nothing else."""

import sys

from naming_rules import complaints
from screen_reader import Program

FLAWS = [
    "no role: filler “Flawed”",
    "no name: filler “Flawed” > push button",
    "no name: filler “Flawed” > push button “…”",
    "no name: filler “Flawed” > text",
    "no name: filler “Flawed” > combo box “What is chosen”",
    "no role: filler “Flawed” > filler “Own”",
]


def main():
    with Program(sys.argv[1:]) as program:
        found = complaints(program.window("Flawed"))
    for flaw in sorted(set(FLAWS) - set(found)):
        print(f"not found: {flaw}", file=sys.stderr)
    for flaw in sorted(set(found) - set(FLAWS)):
        print(f"found: {flaw}", file=sys.stderr)
    return 0 if set(found) == set(FLAWS) else 1


if __name__ == "__main__":
    sys.exit(main())
