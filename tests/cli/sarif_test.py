"""sarif_test.py TARVO SCHEMAS: holds `tarvo rc compare --format sarif` against the schema of SARIF 2.1.0.

Exit status 77 without the package python3-jsonschema.
"""
import copy
import json
import re
import sys
import tempfile

import reports

try:
    import jsonschema
except ImportError:
    reports.skip("the reader of schemas is not installed (python3-jsonschema)")

FORMATS = jsonschema.FormatChecker(formats=())


@FORMATS.checks("uri-reference")
@FORMATS.checks("uri")
def is_reference(value):
    """Whether the text has the characters of a URI alone, and each percent sign its two digits."""
    return re.fullmatch(r"(?:[\w.~:/?#\[\]@!$&'()*+,;=-]|%[0-9A-Fa-f]{2})*", value, re.ASCII) is not None


def spoilt(log):
    """The same log with a mistake of each kind, and where it is."""
    def copied(change):
        other = copy.deepcopy(log)
        change(other, other["runs"][0], other["runs"][0]["results"][0])
        return other
    result_path = "$.runs[0].results[0]"
    yield "$.runs[0]", copied(lambda log, run, result: run.pop("tool"))
    yield "$", copied(lambda log, run, result: log.update(more=1))
    yield "$.runs", copied(lambda log, run, result: log.update(runs={}))
    yield f"{result_path}.level", copied(lambda log, run, result: result.update(level="bad"))
    yield f"{result_path}.message", copied(lambda log, run, result: result.update(message="x"))
    yield ("$.runs[0].tool.driver.rules",
           copied(lambda log, run, result: run["tool"]["driver"]["rules"].append(run["tool"]["driver"]["rules"][0])))
    yield (f"{result_path}.locations[0].physicalLocation.artifactLocation.uri",
           copied(lambda log, run, result: result["locations"][0]["physicalLocation"]["artifactLocation"].update(
               uri="a b")))


def main():
    tarvo, schemas = sys.argv[1:]
    with open(f"{schemas}/sarif-2.1.0-rtm.5.json", encoding="utf-8") as file:
        schema = json.load(file)
    jsonschema.Draft4Validator.check_schema(schema)
    validator = jsonschema.Draft4Validator(schema, format_checker=FORMATS)
    with tempfile.TemporaryDirectory() as folder:
        log = json.loads(reports.compare(tarvo, folder, "sarif"))
    found = [f"{error.json_path}: {error.message}" for error in validator.iter_errors(log)]
    if not log["runs"][0]["results"]:
        found.append("the report has no result to look at")
    for place, other in spoilt(log):
        if place not in [error.json_path for error in validator.iter_errors(other)]:
            found.append(f"this check does not find a mistake at {place}")
    print(*found, sep="\n")
    sys.exit(1 if found else 0)


main()
