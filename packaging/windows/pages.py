#!/usr/bin/env python3
"""Makes pages for a browser of documents and manual pages, each in a file of its name.
   pages.py FOLDER FILE...: .md is Markdown, .1 a manual page"""

import html
import pathlib
import re
import subprocess
import sys

import markdown

PAGE = """<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width">
<title>{title}</title>
<style>
:root {{ color-scheme: light dark; }}
body {{ font: 16px/1.5 "Segoe UI", sans-serif; max-width: 60em; margin: 2em auto; padding: 0 1em; }}
h1, h2, h3 {{ line-height: 1.2; margin-top: 1.5em; }}
img {{ max-width: 100%; }}
table {{ border-collapse: collapse; display: block; overflow-x: auto; }}
th, td {{ border: 1px solid #8888; padding: 0.25em 0.6em; text-align: left; vertical-align: top; }}
table.head, table.foot {{ display: none; }}
code, pre {{ font-family: Consolas, monospace; font-size: 0.9em; }}
pre {{ border: 1px solid #8888; padding: 0.6em; overflow-x: auto; }}
</style>
</head>
<body>
{body}
</body>
</html>
"""


def of_markdown(path):
    text = path.read_text(encoding="utf-8")
    body = markdown.markdown(text, extensions=["tables", "fenced_code", "sane_lists", "toc"], output_format="html5")
    # A bar in a table's code is written with a backslash there.
    body = re.sub(r"<code>[^<]*</code>", lambda code: code.group().replace(r"\|", "|"), body)
    # Links to other documents lead to their pages.
    body = re.sub(r'href="(?![a-z]+:)([^"#]+)\.md(#[^"]*)?"', r'href="\1.html\2"', body)
    return re.search(r"^# (.*)$", text, re.MULTILINE).group(1), body


def of_manual(path):
    body = subprocess.run(["mandoc", "-T", "html", "-O", "fragment", path], check=True, capture_output=True,
                          text=True, encoding="utf-8").stdout
    return path.stem, f"<h1>{path.stem}</h1>\n{body}"


def main():
    folder = pathlib.Path(sys.argv[1])
    folder.mkdir(parents=True)
    for path in map(pathlib.Path, sys.argv[2:]):
        title, body = of_markdown(path) if path.suffix == ".md" else of_manual(path)
        page = PAGE.format(title=html.escape(title), body=body)
        (folder / f"{path.stem}.html").write_text(page, encoding="utf-8", newline="\n")


main()
