#!/usr/bin/env python3
"""Makes the guide's pages of the documents, for any browser, without a network:
  pages.py FOLDER
The guide comes as a page for each of its tasks, so that a window can lead to its own: what opens a file on a
desktop passes over a place inside it. The other documents that are installed are a page each."""

import html
import pathlib
import re
import shutil
import sys

import markdown
from markdown.extensions.toc import slugify

HERE = pathlib.Path(__file__).resolve().parent
# Those for who builds the program stay with the source.
NOT_INSTALLED = ("architecture.md", "testing.md")
EXTENSIONS = ["tables", "fenced_code", "toc", "sane_lists"]

STYLE = """
:root { color-scheme: light dark; --line: #bbb; --quiet: #595959; --back: #f1f1f1; --link: #0b57a4 }
@media (prefers-color-scheme: dark) {
  :root { --line: #555; --quiet: #b0b0b0; --back: #2a2a2a; --link: #8ab8f0 }
}
body { font: 1rem/1.5 sans-serif; max-width: 52rem; margin: 0 auto; padding: 1rem }
a { color: var(--link) }
nav { border-bottom: 1px solid var(--line); padding-bottom: .5rem }
nav a { margin-right: 1.5rem }
footer { border-top: 1px solid var(--line); margin-top: 2rem; padding-top: .5rem; color: var(--quiet) }
img { max-width: 100%; height: auto; border: 1px solid var(--line) }
table { border-collapse: collapse; display: block; overflow-x: auto }
th, td { border: 1px solid var(--line); padding: .3rem .6rem; text-align: left; vertical-align: top }
code { background: var(--back); padding: 0 .2rem }
pre { background: var(--back); padding: .6rem; overflow-x: auto }
"""

PAGE = """<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>{title} - Log Checker</title>
<style>{style}</style>
</head>
<body>
<nav aria-label="Guide"><a href="index.html">All tasks</a><a href="all-keys.html">All keys</a></nav>
<main>
{body}
</main>
{footer}</body>
</html>
"""


def slug(heading):
    """What a heading is linked by."""
    return slugify(heading, "-")


def sections(text):
    """The guide's opening, and each of its tasks with its heading."""
    opening, *rest = re.split(r"^## +", text, flags=re.MULTILINE)
    return opening, [(part.partition("\n")[0].strip(), part.partition("\n")[2]) for part in rest]


class Links:
    def __init__(self, tasks):
        self.tasks = {slug(heading) for heading, _ in tasks}

    def page_of(self, target, document):
        """The page, and the place in it, for a link in a document."""
        name, _, place = target.partition("#")
        name = name or document
        if name == "guide.md":
            if place and place not in self.tasks:
                raise SystemExit(f"{document} leads to guide.md#{place}, which is no task")
            return f"{place or 'index'}.html"
        if not name.endswith(".md"):
            return target
        page = name.removesuffix(".md") + ".html"
        return page + (f"#{place}" if place else "")

    def turn(self, body, document):
        return re.sub(r'(<a href=")([^":]+)(")',
                      lambda m: m[1] + html.escape(self.page_of(html.unescape(m[2]), document)) + m[3], body)


def as_html(text):
    return markdown.markdown(text, extensions=EXTENSIONS, output_format="html", tab_length=3)


def write(folder, name, title, body, footer=""):
    page = PAGE.format(title=html.escape(title), style=STYLE, body=body, footer=footer)
    (folder / f"{name}.html").write_text(page, encoding="utf-8")


def write_guide(folder, links, opening, tasks):
    title = opening.partition("\n")[0].lstrip("# ").strip()
    write(folder, "index", title, links.turn(as_html(opening), "guide.md"))
    for number, (heading, text) in enumerate(tasks):
        # What is below a task's heading is one step higher on a page of its own.
        text = re.sub(r"^##(#+ )", r"#\1", text, flags=re.MULTILINE)
        body = f"<h1>{html.escape(heading)}</h1>\n" + links.turn(as_html(text), "guide.md")
        footer = ""
        if number + 1 < len(tasks):
            following = tasks[number + 1][0]
            footer = (f'<footer>The next task: <a href="{slug(following)}.html">'
                      f"{html.escape(following)}</a></footer>\n")
        write(folder, slug(heading), heading, body, footer)


def main():
    folder = pathlib.Path(sys.argv[1])
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir(parents=True)
    opening, tasks = sections((HERE / "guide.md").read_text(encoding="utf-8"))
    links = Links(tasks)
    write_guide(folder, links, opening, tasks)
    for path in sorted(HERE.glob("*.md")):
        if path.name == "guide.md" or path.name in NOT_INSTALLED:
            continue
        text = path.read_text(encoding="utf-8")
        write(folder, path.stem, text.partition("\n")[0].lstrip("# "), links.turn(as_html(text), path.name))
    for path in HERE.glob("*.schema.json"):
        shutil.copy(path, folder)
    shutil.copytree(HERE / "pictures", folder / "pictures")


main()
