#!/usr/bin/env python3
"""Runs the benchmarks and prints a table: each task's time beside its floor's, and whether the goal is met.

    ratios.py PROGRAM [--rounds 3] [--repetitions 9] [--filter REGEX]

A figure is the least of the rounds' medians, because other work on the machine only ever adds to a time.
"""

import argparse
import json
import os
import statistics
import subprocess
import sys
import tempfile


def names_of(program, pattern):
    """The benchmarks in the program's order; a run shuffles them."""
    listing = subprocess.run([program, f"--benchmark_filter={pattern}", "--benchmark_list_tests"],
                             check=True, capture_output=True, text=True)
    return listing.stdout.splitlines()


def run_once(program, pattern, repetitions):
    """Times of one round in nanoseconds, a list for each benchmark, and the goals told by the counters."""
    with tempfile.TemporaryDirectory() as folder:
        output = os.path.join(folder, "times.json")
        result = subprocess.run(
            [program, f"--benchmark_filter={pattern}", f"--benchmark_repetitions={repetitions}",
             "--benchmark_min_time=0.02", "--benchmark_enable_random_interleaving=true",
             f"--benchmark_out={output}", "--benchmark_out_format=json"],
            capture_output=True, text=True)
        if result.returncode != 0:
            sys.exit(result.stderr)
        with open(output, encoding="utf-8") as file:
            entries = json.load(file)["benchmarks"]
    times, goals = {}, {}
    for entry in entries:
        if entry["run_type"] != "iteration":
            continue
        times.setdefault(entry["run_name"], []).append(entry["cpu_time"])
        goals[entry["run_name"]] = next((key, entry[key]) for key in entry if key.startswith("goal_"))
    return times, goals


def judged(ours, floor, goal):
    """The goal as text and whether it is met."""
    kind, limit = goal
    if kind == "goal_ratio":
        return f"<= {limit:g} x", ours <= limit * floor
    if kind == "goal_overhead":
        return f"<= +{limit:g} ns", ours - floor <= limit
    return f"<= {limit:g} ns", ours <= limit


def main():
    parser = argparse.ArgumentParser(description="Times of the library beside the bare arithmetic.")
    parser.add_argument("program")
    parser.add_argument("--rounds", type=int, default=3)
    parser.add_argument("--repetitions", type=int, default=9)
    parser.add_argument("--filter", default=".")
    arguments = parser.parse_args()

    medians = {}
    for _ in range(arguments.rounds):
        times, goals = run_once(arguments.program, arguments.filter, arguments.repetitions)
        for name, values in times.items():
            medians.setdefault(name, []).append(statistics.median(values))

    missed = 0
    print(f"{'task':24}{'ours, ns':>12}{'floor, ns':>12}{'ratio':>8}  {'goal':12}")
    for name in names_of(arguments.program, arguments.filter):
        task, _, side = name.rpartition("/")
        if side != "velor":
            continue
        ours, floor = min(medians[name]), min(medians[task + "/floor"])
        text, met = judged(ours, floor, goals[name])
        missed += not met
        print(f"{task:24}{ours:12.1f}{floor:12.1f}{ours / floor:8.2f}  {text:12}{'met' if met else 'MISSED'}")
    print(f"{missed} missed" if missed else "all met")


if __name__ == "__main__":
    sys.exit(main())
