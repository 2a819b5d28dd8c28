"""A sweep over many states of a mixture on a cluster: dask.distributed shares them among its workers, and what a worker
that dies had in hand is computed again by the others.

    dask-scheduler &                                  # on one machine
    dask-worker tcp://scheduler:8786 &                # on each of the others; velor is installed there, too
    python dask_sweep.py tcp://scheduler:8786 sweep   # a folder with results

Each state has a temperature, a pressure and a composition of its own. Results go to the folder part by part, as Parquet
where pyarrow is installed, else as CSV; parts that are there already are not computed again.
"""

import argparse
import importlib.util
import os
import warnings
from pathlib import Path

import numpy as np
from dask.distributed import Client, as_completed

import velor

CODES = ("ROLW", "ETAL", "TENS", "RROGW")
PART = 20_000  # states


def states(part, count):
    """The states of a part, the same wherever they are made: temperatures [K], pressures [Pa], fractions of ethanol."""
    chance = np.random.default_rng([2024, part])
    return chance.uniform(280, 380, count), chance.uniform(5e4, 5e5, count), chance.uniform(0, 1, count)


def computed(mixture, part, count):
    """The table of a part. Runs on a worker, to which the mixture travels by its definition."""
    T, P, x = states(part, count)
    with warnings.catch_warnings():
        warnings.simplefilter("ignore", velor.VelorWarning)  # the table has the verdicts
        return mixture.with_composition(mole=np.stack([x, 1 - x], axis=-1)).table(CODES, T=T, P=P, with_verdict=True)


def save(frame, path):
    """All of it or nothing: a part that is there is whole."""
    unfinished = path.with_name(path.name + ".part")
    if path.suffix == ".parquet":
        frame.to_parquet(unfinished)
    else:
        frame.to_csv(unfinished, index=False)
    os.replace(unfinished, path)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("scheduler", help="its address, e.g. tcp://scheduler:8786")
    parser.add_argument("folder", type=Path)
    parser.add_argument("--states", type=int, default=1_000_000)
    given = parser.parse_args()
    given.folder.mkdir(parents=True, exist_ok=True)
    suffix = ".parquet" if importlib.util.find_spec("pyarrow") else ".csv"
    parts = range((given.states + PART - 1) // PART)
    paths = {part: given.folder / f"part-{part:05}{suffix}" for part in parts}
    missing = [part for part in parts if not paths[part].exists()]

    mixture = velor.Mixture(["ethanol", "voda"], mole=[0.5, 0.5])
    with Client(given.scheduler) as client:
        counts = [min(PART, given.states - part * PART) for part in missing]
        tasks = client.map(computed, [mixture] * len(missing), missing, counts, pure=False, retries=3)
        numbers = dict(zip(tasks, missing))
        for done, (task, frame) in enumerate(as_completed(tasks, with_results=True), 1):
            save(frame, paths[numbers.pop(task)])
            task.release()
            print(f"{done}/{len(missing)}", flush=True)


if __name__ == "__main__":
    main()
