#!/usr/bin/env python3
"""Adds up what test presets have written to build/junit:

    tests/total.py PRESET...

The line is "N passed, N failed". A preset of which nothing ran counts as one failure; so does a test that could not be started.
"""
import pathlib
import sys
from xml.etree import ElementTree

JUNIT = pathlib.Path(__file__).resolve().parents[1] / "build" / "junit"


def outcomes(preset):
    """For each test of the preset, whether it passed."""
    try:
        cases = ElementTree.parse(JUNIT / f"{preset}.xml").getroot().iter("testcase")
    except (FileNotFoundError, ElementTree.ParseError):
        cases = []
    return [case.get("status") == "run" for case in cases] or [False]


results = [passed for preset in sys.argv[1:] for passed in outcomes(preset)] or [False]
print(f"{results.count(True)} passed, {results.count(False)} failed")
sys.exit(False in results)
