"""The pages as they are written. A caption of the program stands in **bold** on a page, and nothing else does."""

import html
import re
from pathlib import Path

TOP = Path(__file__).resolve().parents[2]
FOLDER = TOP / "docs" / "manual"
README = TOP / "README.md"

CODE = re.compile(r"^```(\w*)\n(.*?)^```$", re.M | re.S)


class Page:
    def __init__(self, path):
        self.path = path
        self.name = path.name
        self.text = path.read_text(encoding="utf-8")
        self.prose = re.sub(r"`[^`\n]*`", "", CODE.sub("", self.text))

    def headings(self, level):
        return re.findall(rf"^{'#' * level} (.*)$", self.prose, re.M)

    def windows(self):
        return re.findall(r"^<!-- window (\w+) -->$", self.text, re.M)

    def bold(self):  # a sentence that stands in bold for weight alone ends in a full stop or lies across a line's end
        words = [" ".join(words.split()) for words in re.findall(r"\*\*(.+?)\*\*", self.prose, re.S)]
        return [html.unescape(word) for word in words]

    def pictures(self):
        return re.findall(r"!\[[^\]]*\]\(([^)]+)\)", self.prose)

    def links(self):
        return re.findall(r"(?<!!)\[[^\]]*\]\(([^)]+)\)", self.prose)

    def blocks(self, language):
        return [body for kind, body in CODE.findall(self.text) if kind == language]


def pages():
    return [Page(path) for path in sorted(FOLDER.glob("*.md"))]


def page(name):
    return Page(FOLDER / name)
