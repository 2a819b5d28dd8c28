#!/usr/bin/env python3
"""Times of the Python package beside the C call, numpy's own arithmetic and a loop, for an installed velor.

    python.py [--points 1000000] [--rounds 7]

A time is the least of the rounds. The C call is the library's function by ctypes on prepared arrays; the formula is the
same vapour pressure of water written in numpy.
"""

import argparse
import threading
import time
import warnings
from ctypes import byref

import numpy as np

import velor
from velor._declarations import CError, CSeries, sized

def least(rounds, works):
    """The least time of each in nanoseconds; they take turns, so that other work on the machine meets all of them."""
    times = {name: [] for name in works}
    for _ in range(rounds):
        for name, work in works.items():
            start = time.perf_counter()
            work()
            times[name].append(time.perf_counter() - start)
    return {name: min(of) * 1e9 for name, of in times.items()}


def c_call(mixture, code, T):
    """The library's function with everything about it prepared, and its results into the same arrays each time."""
    current, handle = mixture._prepared.get()
    fractions, unread = mixture._composition.of_points(T.shape), np.zeros(1)
    values, codes = np.empty(T.size), np.empty(T.size, np.intc)
    series = [CSeries(array.ctypes.data, array.size) for array in (T, unread)]
    compositions, error = fractions.of(slice(None)), sized(CError)
    arguments = (handle.pointer, velor.properties[code].index, *series, byref(compositions), T.size,
                 values.ctypes.data, codes.ctypes.data, 1, byref(error))

    def call(kept=(fractions, unread, values, codes)):  # pointers alone keep nothing alive
        current.call("velor_evaluate", *arguments)

    return call


def formula(T):
    """Wagner's equation: ln(y/A6) = (A1 t + A2 t^1.5 + A3 t^3 + A4 t^6) A5/T, t = 1 - T/A5."""
    a1, a2, a3, a4, critical, pressure = velor.substances["voda"].correlations["TENS"].coefficients
    t = 1 - T / critical
    return pressure * np.exp((a1 * t + a2 * t * np.sqrt(t) + a3 * t**3 + a4 * t**6) * critical / T)


def in_two_threads(work):
    threads = [threading.Thread(target=work) for _ in range(2)]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--points", type=int, default=1_000_000)
    parser.add_argument("--rounds", type=int, default=7)
    given = parser.parse_args()
    warnings.simplefilter("ignore", velor.VelorWarning)
    T = np.linspace(280, 380, given.points)
    few = T[:: max(given.points // 1000, 1)]
    pure, pair = velor.Mixture("voda"), velor.Mixture(["voda", "ethanol"], mole=[0.4, 0.6])
    assert np.allclose(formula(few), pure.TENS(few), rtol=1e-6)
    print(f"{'':48}{'ns/point':>12}{'ratio':>10}")
    for name, mixture in (("voda", pure), ("voda + ethanol", pair)):
        works = {"C call": c_call(mixture, "TENS", T), "m.TENS(T)": lambda: mixture.TENS(T),
                 "numpy formula of water": lambda: formula(T),
                 "two threads, one m.TENS(T) each": lambda: in_two_threads(lambda: mixture.TENS(T))}
        times = {what: each / T.size for what, each in least(given.rounds, works).items()}
        times["Python loop"] = least(1, {"": lambda: [mixture.TENS(one) for one in few]})[""] / few.size
        for what, each in times.items():
            print(f"{name if what == 'C call' else '':16}{what:32}{each:12.1f}{each / times['C call']:10.2f}")
        gain = 2 * times["m.TENS(T)"] / times["two threads, one m.TENS(T) each"]
        print(f"{'':16}two threads do {gain:.2f} times as much as one")


if __name__ == "__main__":
    main()
