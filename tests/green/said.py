"""What a person reads of a report, and the paths in it."""

import json
import re

# From the root on; what ends a path in a message is in no name of the sample.
PATH = re.compile(r'(?<![A-Za-z0-9])/[^\n":;,(]*\\[^\n":;,(]*')


def strings(value):
    if isinstance(value, str):
        yield value
    elif isinstance(value, dict):
        for entry in value.values():
            yield from strings(entry)
    elif isinstance(value, list):
        for entry in value:
            yield from strings(entry)


def text_of(form, output):
    if form != "json":
        return output.decode("utf-8" if form == "text" else "latin-1")
    return "\n".join(strings(json.loads(output))) if output else ""


def mixed_paths(text):
    """The paths that begin with "/" and have the other separator further on."""
    return PATH.findall(text)
