#!/usr/bin/env python3
"""Times of the Python package beside the C call, numpy's own arithmetic and a loop, for an installed velor.

    python.py [--points 1000000] [--rounds 7]

A time is the least of the rounds. The C call is the library's function by ctypes on prepared arrays; the formula is the
same vapour pressure of ethanol written in numpy.
"""

import argparse
import threading
import time
import warnings

import numpy as np

import velor
from velor import _library

def least(rounds, work):
    times = []
    for _ in range(rounds):
        start = time.perf_counter()
        work()
        times.append(time.perf_counter() - start)
    return min(times)


def c_call(mixture, code, T):
    """The library's function with everything about it prepared, and its result into the same arrays."""
    current, handle = mixture._prepared.get()
    fractions = mixture._composition.of_points(T.shape)
    values, codes = np.empty(T.size), np.empty(T.size, np.intc)
    error = _library.sized(_library.CError)
    unread = np.zeros(1)
    series, nothing = _library._series(T), _library._series(unread)
    index = velor.properties[code].index
    arguments = (handle.pointer, index, series, nothing, _library.byref(fractions.passed), T.size, values.ctypes.data,
                 codes.ctypes.data, 1, _library.byref(error))
    return lambda: current.call("velor_evaluate", *arguments)


def formula(T):
    """ln(y) = A1 + A2/T + A3 ln(T) + A4 T^A5, with the whole exponent 2."""
    a1, a2, a3, a4, _, _ = velor.substances["ethanol"].correlations["TENS"].coefficients
    return np.exp(a1 + a2 / T + a3 * np.log(T) + a4 * T**2)


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
    pure, pair = velor.Mixture("ethanol"), velor.Mixture(["voda", "ethanol"], mole=[0.4, 0.6])
    assert np.allclose(formula(few), pure.TENS(few), rtol=1e-6)
    print(f"{'':42}{'ns/point':>10}{'ratio':>8}")
    for name, mixture in (("ethanol", pure), ("voda + ethanol", pair)):
        base = least(given.rounds, c_call(mixture, "TENS", T))
        loop = least(1, lambda: [mixture.TENS(one) for one in few]) * T.size / few.size
        works = {"C call": base, "m.TENS(T)": least(given.rounds, lambda: mixture.TENS(T)),
                 "numpy formula": least(given.rounds, lambda: formula(T)), "Python loop": loop}
        twice = least(given.rounds, lambda: in_two_threads(lambda: mixture.TENS(T))) / 2
        for what, seconds in {**works, "m.TENS(T) in two threads": twice}.items():
            print(f"{name if what == 'C call' else '':16}{what:26}{seconds / T.size * 1e9:10.1f}{seconds / base:8.2f}")
        print(f"{'':16}two threads are {works['m.TENS(T)'] / twice:.2f} times one")


if __name__ == "__main__":
    main()
