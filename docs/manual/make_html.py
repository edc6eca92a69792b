"""Makes the manual for reading in a browser, without a network:

    make_html.py FOLDER

leaves the pages, their pictures and the sheet of the examples in FOLDER. Needs python3-markdown.
"""

import re
import shutil
import sys
from pathlib import Path

import markdown

HERE = Path(__file__).resolve().parent
PAGE = """<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>{title} - Marlbrook</title>
<link rel="stylesheet" href="manual.css">
</head>
<body>
<header><a href="index.html">The manual of Marlbrook</a></header>
<main>
{body}
</main>
</body>
</html>
"""


def make_page(source, folder):
    text = source.read_text(encoding="utf-8").replace("](../pictures/", "](pictures/")
    text = re.sub(r"(?<!!)\]\((\w+)\.md", r"](\1.html", text)
    maker = markdown.Markdown(extensions=["tables", "fenced_code", "toc"], extension_configs={"toc": {"toc_depth": "2-3"}})
    body = re.sub(r"<table>.*?</table>", r'<div class="wide">\g<0></div>', maker.convert(text), flags=re.S)
    title = re.search(r"^# (.*)$", text, re.M).group(1)
    if "<li>" in maker.toc:
        body = body.replace("</h1>", f"</h1>\n<nav>{maker.toc}</nav>", 1)
    (folder / source.with_suffix(".html").name).write_text(PAGE.format(title=title, body=body), encoding="utf-8")


def main():
    folder = Path(sys.argv[1])
    (folder / "pictures").mkdir(parents=True, exist_ok=True)
    for source in HERE.glob("*.md"):
        make_page(source, folder)
    for picture in (HERE.parent / "pictures").glob("*.png"):
        shutil.copy(picture, folder / "pictures")
    for file in ("manual.css", "lake_core.csv"):
        shutil.copy(HERE / file, folder)


main()
