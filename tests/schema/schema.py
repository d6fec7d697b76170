"""The schema of the JSON reports, and a validator for it that is not ours."""

import json
import pathlib

import jsonschema

FILE = pathlib.Path(__file__).resolve().parents[2] / "docs/logcheck.schema.json"


def validator():
    schema = json.loads(FILE.read_text())
    jsonschema.Draft202012Validator.check_schema(schema)
    return jsonschema.Draft202012Validator(schema)


def for_a_report():
    """For one report alone, so that what is wrong is said of its parts."""
    schema = json.loads(FILE.read_text())
    del schema["anyOf"]
    return jsonschema.Draft202012Validator(schema | {"$ref": "#/$defs/report"})
