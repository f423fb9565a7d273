"""Checks the schemas in docs/: that they are schemas, that the bundled files keep to them, and that
they judge each case of the table as it says. tst_SchemaCases holds the program to the same table."""

import json
import sys
from pathlib import Path

from jsonschema import Draft202012Validator

KINDS = {"site": "sites", "scenario": "scenarios"}


def load(path):
    return json.loads(path.read_text(encoding="utf-8"))


def bundled_failures(validator, folder):
    for path in sorted(folder.glob("*.json")):
        for error in validator.iter_errors(load(path)):
            yield f"{path}: {error.json_path}: {error.message}"


def case_failures(validator, cases, kind):
    for case in cases:
        if case["kind"] == kind and validator.is_valid(case["document"]) != case["valid"]:
            verdict = "refuses" if case["valid"] else "accepts"
            yield f"the schema of a {kind} {verdict} the case \"{case['name']}\""


def main():
    root = Path(sys.argv[1])
    cases = load(root / "Workbench/tests/data/schema-cases.json")
    failures = []
    for kind, folder in KINDS.items():
        schema = load(root / f"docs/{kind}.schema.json")
        Draft202012Validator.check_schema(schema)
        validator = Draft202012Validator(schema)
        failures += bundled_failures(validator, root / "Workbench" / folder)
        failures += case_failures(validator, cases, kind)
    print("\n".join(failures) or f"{len(cases)} cases as expected")
    return 1 if failures else 0


sys.exit(main())
