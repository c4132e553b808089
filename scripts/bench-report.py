#!/usr/bin/env python3
"""Runs the benchmark targets of bench/targets and says of each whether its limit holds.

bench-report.py --targets FOLDER --out FOLDER --linux BIN_FOLDER [--mingw BIN_FOLDER --launcher PROGRAM]
                [PROGRAM...]

Each target runs its own pair of benchmarks in one process, repetitions interleaved, and the ratio is taken
repetition by repetition, so that a slow minute of the machine falls on both. Exit status: 0 all hold, 1 one is
short, 2 one could not be measured.
"""
import argparse
import glob
import json
import os
import re
import statistics
import subprocess
import sys

UNITS = {"ns": 1.0, "us": 1e3, "ms": 1e6, "s": 1e9}
KNOWN = {"name", "where", "ours", "peers", "limit", "factor", "plus_ns", "value", "repetitions", "min_time"}


class Unmeasured(Exception):
    """The target's benchmarks did not run; the text says why."""


def load_targets(folder, programs):
    targets = []
    for path in sorted(glob.glob(os.path.join(folder, "*.json"))):
        program = os.path.splitext(os.path.basename(path))[0]
        if programs and program not in programs:
            continue
        with open(path, encoding="utf-8") as file:
            for number, target in enumerate(json.load(file)):
                unknown = set(target) - KNOWN
                if unknown or not {"name", "ours", "limit"} <= set(target):
                    sys.exit(f"{path}: target {number + 1}: unknown or missing members {sorted(unknown)}")
                if target.get("repetitions", 9) < 7:
                    sys.exit(f"{path}: {target['name']}: at least seven repetitions")
                targets.append({**target, "program": program})
    return targets


def repetitions_of(report, target):
    """For each benchmark of the target the values of its repetitions, in order."""
    runs = {}
    for run in report["benchmarks"]:
        if run.get("run_type") != "iteration":
            continue
        if run.get("error_occurred"):
            raise Unmeasured(f"{run['run_name']}: {run.get('error_message', 'failed')}")
        # The run name carries the library's arguments ("name/repeats:9") behind the name itself.
        name = re.sub(r"/(min_time|repeats|iterations|real_time|process_time|manual_time).*", "", run["run_name"])
        if "value" in target:
            if target["value"] not in run:
                raise Unmeasured(f"{name} has no counter {target['value']}")
            value = run[target["value"]]
        else:
            value = run["real_time"] * UNITS[run["time_unit"]]
        runs.setdefault(name, []).append((run.get("repetition_index", 0), value))
    return {name: [value for _, value in sorted(values)] for name, values in runs.items()}


def ratio_of(report, target):
    runs = repetitions_of(report, target)
    for name in [target["ours"], *target.get("peers", [])]:
        if name not in runs:
            raise Unmeasured(f"{target['program']} has no benchmark {name}")
    ours = runs[target["ours"]]
    if not target.get("peers"):
        return statistics.median(ours)
    ratios = []
    for index, value in enumerate(ours):
        fastest = min(runs[name][index] for name in target["peers"])
        ratios.append(value / (fastest * target.get("factor", 1) + target.get("plus_ns", 0)))
    return statistics.median(ratios)


def run_target(target, number, arguments):
    on_windows = target.get("where", "linux") == "mingw"
    program = os.path.join(arguments.mingw if on_windows else arguments.linux, target["program"])
    command = [arguments.launcher, program + ".exe"] if on_windows else [program]
    out = f"{number:03d}-{target['program']}.json"
    names = [target["ours"], *target.get("peers", [])]
    command += [
        "--benchmark_filter=^(" + "|".join(re.escape(name) for name in names) + ")(/.*)?$",
        f"--benchmark_repetitions={target.get('repetitions', 9)}",
        "--benchmark_enable_random_interleaving=true",
        f"--benchmark_min_time={target.get('min_time', 0.1)}",
        "--benchmark_out=" + out,
        "--benchmark_out_format=json",
    ]
    path = os.path.join(arguments.out, out)
    if os.path.exists(path):
        os.remove(path)
    done = subprocess.run(command, cwd=arguments.out, capture_output=True, text=True, errors="replace", check=False)
    if done.returncode != 0 or not os.path.exists(path):
        last = (done.stderr.strip() or done.stdout.strip() or "no output").splitlines()[-1]
        raise Unmeasured(f"exit {done.returncode}: {last}")
    with open(path, encoding="utf-8") as file:
        return ratio_of(json.load(file), target)


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--targets", required=True)
    parser.add_argument("--out", required=True)
    parser.add_argument("--linux", required=True)
    parser.add_argument("--mingw")
    parser.add_argument("--launcher")
    parser.add_argument("programs", nargs="*")
    arguments = parser.parse_args()
    os.makedirs(arguments.out, exist_ok=True)
    targets = load_targets(arguments.targets, arguments.programs)
    if not targets:
        sys.exit("no target matches")
    lines, status = [], 0
    for number, target in enumerate(targets):
        print(f"[{number + 1}/{len(targets)}] {target['program']}: {target['name']}", file=sys.stderr, flush=True)
        try:
            ratio = run_target(target, number, arguments)
        except Unmeasured as reason:
            lines.append((target["name"], "-", target["limit"], f"short (not measured: {reason})"))
            status = 2
            continue
        holds = ratio <= target["limit"]
        lines.append((target["name"], f"{ratio:.3f}", target["limit"], "holds" if holds else "short"))
        status = max(status, 0 if holds else 1)
    width = max(len(line[0]) for line in lines)
    for name, ratio, limit, verdict in lines:
        print(f"{name:<{width}}  {ratio:>8}  {limit:>6}  {verdict}")
    sys.exit(status)


main()
