#!/usr/bin/env python3
"""Adds up what test presets have written to build/junit:

    tests/total.py PRESET...

The last line is "N passed, N failed". A preset of which nothing ran counts as one failure; so does a test that could not be started. What failed and
was run a second time, into PRESET-again.xml, counts as it then ended, and a line before the last names it.
"""
import pathlib
import sys
from xml.etree import ElementTree

JUNIT = pathlib.Path(__file__).resolve().parents[1] / "build" / "junit"


def cases(name):
    """For each test in a file, whether it passed."""
    try:
        found = ElementTree.parse(JUNIT / f"{name}.xml").getroot().iter("testcase")
    except (FileNotFoundError, ElementTree.ParseError):
        found = []
    return {case.get("name"): case.get("status") == "run" for case in found}


def outcomes(preset):
    """For each test of the preset, whether it passed at last."""
    again = cases(f"{preset}-again")
    if again:
        passed = [name for name, has_passed in again.items() if has_passed]
        print(f"{preset}: {len(again)} run a second time, {len(passed)} of them passed then: {' '.join(passed) or 'none'}")
    return [*{**cases(preset), **again}.values()] or [False]


results = [passed for preset in sys.argv[1:] for passed in outcomes(preset)] or [False]
print(f"{results.count(True)} passed, {results.count(False)} failed")
sys.exit(False in results)
