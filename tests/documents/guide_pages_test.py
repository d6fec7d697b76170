#!/usr/bin/env python3
"""The guide's pages, as they lie beside the programs: each task has one, every link of every page leads to what is
there, pictures have words, and the page of all keys can be reached from everywhere. Takes the programs' folder."""

import html.parser
import pathlib
import re
import sys
import urllib.parse

HERE = pathlib.Path(__file__).resolve().parent.parent.parent
GUIDE = pathlib.Path(sys.argv[1]) / "guide"
WITHOUT_END = {"meta", "img", "br", "hr", "link"}


class Page(html.parser.HTMLParser):
    def __init__(self, path):
        super().__init__()
        self.links, self.places, self.problems, self.open, self.heading = [], set(), [], [], ""
        self.feed(path.read_text(encoding="utf-8"))
        if self.open:
            self.problems.append(f"<{self.open[-1]}> has no end")

    def handle_starttag(self, tag, attributes):
        facts = dict(attributes)
        if "id" in facts:
            self.places.add(facts["id"])
        if tag == "a":
            self.links.append(facts["href"])
        if tag == "img":
            self.links.append(facts["src"])
            if not facts.get("alt"):
                self.problems.append(f"{facts['src']} has no words")
        if tag not in WITHOUT_END:
            self.open.append(tag)

    def handle_endtag(self, tag):
        if not self.open or self.open.pop() != tag:
            self.problems.append(f"</{tag}> ends something else")

    def handle_data(self, data):
        if self.open and self.open[-1] == "h1":
            self.heading += data


def problems_of(name, page, pages):
    yield from page.problems
    for link in page.links:
        target, _, place = urllib.parse.unquote(link).partition("#")
        if ":" in link:
            if not link.startswith("https://"):
                yield f"leads to {link}"
        elif not (GUIDE / (target or name)).is_file():
            yield f"leads to {link}, which is not there"
        elif place and place not in pages[target or name].places:
            yield f"leads to a place that is not there: {link}"
    for everywhere in ("index.html", "all-keys.html"):
        if everywhere not in page.links:
            yield f"does not lead to {everywhere}"


def main():
    pages = {path.name: Page(path) for path in sorted(GUIDE.glob("*.html"))}
    wrong = [f"{name} {problem}" for name, page in pages.items() for problem in problems_of(name, page, pages)]
    tasks = re.findall(r"^## (.+)$", (HERE / "docs/guide.md").read_text(encoding="utf-8"), re.MULTILINE)
    headings = [page.heading for page in pages.values()]
    wrong += [f"no page of its own: {task}" for task in tasks if headings.count(task) != 1]
    index = pages["index.html"]
    wrong += [f"the list of tasks does not lead to {name}" for name, page in pages.items()
              if page.heading in tasks and name not in index.links]
    for line in wrong:
        print(line)
    print(f"{len(pages)} pages")
    return 1 if wrong or len(tasks) < 10 else 0


sys.exit(main())
