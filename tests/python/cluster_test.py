"""The example for a cluster: a scheduler and two workers as processes, one of which is killed in the middle."""

import json
import os
import subprocess
import sys
import time

import numpy as np
import pytest

import velor

pytest.importorskip("distributed")
pandas = pytest.importorskip("pandas")
EXAMPLE = os.path.join(os.environ["VELOR_SOURCES"], "examples", "dask_sweep.py")


@pytest.fixture
def start(tmp_path):
    """Starts Python with arguments; what still runs at the end is ended."""
    processes = []

    def start(*arguments, **options):
        processes.append(subprocess.Popen([sys.executable, *arguments], cwd=tmp_path, text=True, **options))
        return processes[-1]

    yield start
    for process in reversed(processes):
        process.kill()
        process.wait()


def test_a_worker_that_dies_takes_nothing_with_it(start, tmp_path):
    place = tmp_path / "scheduler.json"
    local = ("--host", "127.0.0.1", "--no-dashboard", "--scheduler-file", str(place))
    start("-m", "distributed.cli.dask_scheduler", "--port", "0", *local, stderr=subprocess.DEVNULL)
    while not (place.exists() and place.read_text().endswith("}")):  # it is whole
        time.sleep(0.1)
    address = json.loads(place.read_text())["address"]
    worker = ("-m", "distributed.cli.dask_worker", address, "--no-nanny", "--nthreads", "1", "--no-dashboard")
    doomed, _ = [start(*worker, stderr=subprocess.DEVNULL) for _ in range(2)]
    folder, states = tmp_path / "results", 200_000
    sweep = start(EXAMPLE, address, str(folder), "--states", str(states), stdout=subprocess.PIPE)
    for line in sweep.stdout:
        if line.startswith("3/"):
            doomed.kill()
            break
    assert [line for line in sweep.stdout][-1].startswith("10/") and sweep.wait() == 0
    frame = pandas.concat(map(pandas.read_csv, sorted(folder.glob("part-*.csv"))), ignore_index=True)
    assert len(frame) == states and not frame.duplicated(["T", "P"]).any()
    some = frame.iloc[:: states // 997]
    x = some[["x(Ethanol)", "x(Voda)"]]
    mixture = velor.Mixture(["ethanol", "voda"], mole=x.to_numpy())
    for code in ("ROLW", "TENS"):
        values, _ = getattr(mixture, code)(some["T"], with_verdict=True)
        np.testing.assert_allclose(some[code], values, rtol=1e-12)
