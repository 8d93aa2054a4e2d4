#!/usr/bin/python3
"""Usage: make-pages.py FOLDER FILE.md …    writes the documents as pages for a browser

Each page lies in the folder as its document does in the tree, and links to documents lead to their pages.
"""
import pathlib
import re
import sys

import markdown

PAGE = """<!doctype html>
<html lang="en">
<meta charset="utf-8">
<meta name="viewport" content="width=device-width">
<title>{title}</title>
<style>
body {{ font: 16px/1.5 "Segoe UI", "Liberation Sans", sans-serif; max-width: 60em; margin: 2em auto; padding: 0 1em; color: #222 }}
h1, h2, h3 {{ line-height: 1.2; margin-top: 1.6em }}
code {{ font: 14px Consolas, "Liberation Mono", monospace; background: #f3f4f6; padding: 1px 3px }}
pre {{ background: #f3f4f6; padding: .8em 1em; overflow-x: auto; border-radius: 4px }}
pre code {{ padding: 0 }}
table {{ border-collapse: collapse; margin: 1em 0 }}
th, td {{ border: 1px solid #d5d8dc; padding: .3em .7em; text-align: left; vertical-align: top }}
th {{ background: #f3f4f6 }}
img {{ max-width: 100% }}
a {{ color: #0b57a4 }}
</style>
{body}
"""


def anchor(heading, _separator):
    """The anchor of a heading as the web sites that show the documents make it."""
    return re.sub(r"[^\w\- ]", "", heading.lower()).replace(" ", "-")


def page_of(text):
    converter = markdown.Markdown(extensions=["tables", "fenced_code", "sane_lists", "toc"],
                                  extension_configs={"toc": {"slugify": anchor}})
    body = re.sub(r'(href="[^":#]*)\.md(["#])', r"\1.html\2", converter.convert(text))
    title = re.search(r"^# (.+)", text, re.M)
    return PAGE.format(title=title.group(1) if title else "WexDialogs", body=body)


def main(folder, *documents):
    for name in documents:
        page = pathlib.Path(folder, name).with_suffix(".html")
        page.parent.mkdir(parents=True, exist_ok=True)
        page.write_text(page_of(pathlib.Path(name).read_text(encoding="utf-8")), encoding="utf-8")


if __name__ == "__main__":
    if len(sys.argv) < 3:
        sys.exit(__doc__)
    main(*sys.argv[1:])
