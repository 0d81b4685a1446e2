#!/usr/bin/env python3
"""Prints the times of solves and their ratios to the bare arithmetic: ratios.py JSON..."""

import json
import statistics
import sys


def solves(path):
    """The repetitions of each solve: by plan, then by kind."""
    found = {}
    for run in json.load(open(path))["benchmarks"]:
        if run["run_type"] != "iteration":
            continue
        if run.get("error_occurred"):
            sys.exit(f"{run['run_name']}: {run['error_message']}")
        kind, plan = run["run_name"].split("/")[:2]
        found.setdefault(plan, {}).setdefault(kind, []).append(run)
    return found


def median(runs, what):
    return statistics.median(run[what] for run in runs)


def rows(path):
    for plan, kinds in solves(path).items():
        if "bare" not in kinds:
            continue
        bare = median(kinds["bare"], "cpu_time")
        for kind in kinds.keys() - {"bare"}:
            time = median(kinds[kind], "cpu_time")
            month = 1e9 / median(kinds[kind], "items_per_second")
            yield (bare, f"{plan:20}{kinds[kind][0]['levels']:8.0f}{bare:11.4f}"
                         f"  {kind:7}{time:11.4f}{month:10.2f}{time / bare:8.3f}")


print("Solves and their bare arithmetic: medians of the processor's time, in milliseconds.")
print(f"{'plan':20}{'levels':>8}{'bare':>11}  {'':7}{'measured':>11}{'ns/month':>10}{'ratio':>8}")
for json_path in sys.argv[1:]:
    for _, row in sorted(rows(json_path)):
        print(row)
for json_path in sys.argv[1:]:
    for answer in solves(json_path).get("answer", {}).values():
        times = [run["real_time"] for run in answer]
        print(f"From Escape during a solve to the answer: {statistics.median(times):.1f} ms, "
              f"at most {max(times):.1f} ms in {len(times)} runs.")
