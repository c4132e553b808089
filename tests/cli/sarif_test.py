"""sarif_test.py TARVO: holds `tarvo rc compare --format sarif` against the schema of SARIF 2.1.0.

The schema is read from the classes that were generated from it (package python3-sarif-python-om): which
properties an object has, and which it must have. What these do not tell, the choices of a property and its
least value, is written down here. Exit status 77 without the package.
"""
import copy
import json
import re
import sys
import tempfile

import reports

try:
    import attr
    import sarif_om as om
except ImportError:
    reports.skip("the classes of the SARIF schema are not installed (python3-sarif-python-om)")

# The objects of which our reports are made; a list stands for an array. All other properties are plain values.
OBJECTS = {
    (om.SarifLog, "runs"): [om.Run],
    (om.Run, "tool"): om.Tool,
    (om.Run, "results"): [om.Result],
    (om.Tool, "driver"): om.ToolComponent,
    (om.ToolComponent, "rules"): [om.ReportingDescriptor],
    (om.ReportingDescriptor, "shortDescription"): om.MultiformatMessageString,
    (om.Result, "message"): om.Message,
    (om.Result, "locations"): [om.Location],
    (om.Result, "relatedLocations"): [om.Location],
    (om.Location, "physicalLocation"): om.PhysicalLocation,
    (om.Location, "logicalLocations"): [om.LogicalLocation],
    (om.Location, "message"): om.Message,
    (om.PhysicalLocation, "artifactLocation"): om.ArtifactLocation,
    (om.PhysicalLocation, "region"): om.Region,
}
VALUES = {
    (om.SarifLog, "version"): lambda value: value == "2.1.0",
    (om.Run, "columnKind"): lambda value: value in ("utf16CodeUnits", "unicodeCodePoints"),
    (om.Result, "level"): lambda value: value in ("none", "note", "warning", "error"),
    (om.Region, "startLine"): lambda value: type(value) is int and value >= 1,
    (om.ArtifactLocation, "uri"): lambda value: re.fullmatch(r"[\w.~:/?#\[\]@!$&'()*+,;=%-]+", value, re.ASCII),
}


def mistakes(value, kind, place="log"):
    """A line for everything in the value that the schema does not allow."""
    if isinstance(kind, list):
        if not isinstance(value, list):
            yield f"{place} is no array"
            return
        for index, item in enumerate(value):
            yield from mistakes(item, kind[0], f"{place}[{index}]")
        if any(item in value[:index] for index, item in enumerate(value)) and kind[0] is not om.Result:
            yield f"{place} has an item twice"
        return
    if not isinstance(value, dict):
        yield f"{place} is no object"
        return
    known = {field.metadata["schema_property_name"]: field for field in attr.fields(kind)}
    yield from (f"{place} lacks {name}" for name, field in known.items()
                if field.default is attr.NOTHING and name not in value)
    for name, item in value.items():
        if name not in known:
            yield f"{place} has {name}"
        elif (kind, name) in OBJECTS:
            yield from mistakes(item, OBJECTS[kind, name], f"{place}.{name}")
        elif isinstance(item, (dict, list)):
            yield f"{place}.{name} is no plain value"
        elif (kind, name) in VALUES and not VALUES[kind, name](item):
            yield f"{place}.{name} is {item!r}"


def spoilt(log):
    """The same log with a mistake of each kind, and the line that it must cause."""
    def copied(change):
        other = copy.deepcopy(log)
        change(other, other["runs"][0], other["runs"][0]["results"][0])
        return other
    yield "log.runs[0] lacks tool", copied(lambda log, run, result: run.pop("tool"))
    yield "log has more", copied(lambda log, run, result: log.update(more=1))
    yield "log.runs is no array", copied(lambda log, run, result: log.update(runs={}))
    yield "log.runs[0].results[0].level is 'bad'", copied(lambda log, run, result: result.update(level="bad"))
    yield "log.runs[0].results[0].message is no object", copied(lambda log, run, result: result.update(message="x"))
    yield ("log.runs[0].results[0].locations has an item twice",
           copied(lambda log, run, result: result["locations"].append(result["locations"][0])))


def main():
    with tempfile.TemporaryDirectory() as folder:
        log = json.loads(reports.compare(sys.argv[1], folder, "sarif"))
    found = list(mistakes(log, om.SarifLog))
    if not log["runs"][0]["results"]:
        found.append("the report has no result to look at")
    for expected, other in spoilt(log):
        if expected not in mistakes(other, om.SarifLog):
            found.append(f"this check does not find: {expected}")
    print(*found, sep="\n")
    sys.exit(1 if found else 0)


main()
