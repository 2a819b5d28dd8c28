"""The C library: where it lies, what its functions take, and its life from the first use to :func:`close`."""

from __future__ import annotations

import os
import sys
import weakref
from ctypes import byref, c_double, c_int, c_void_p, sizeof
from pathlib import Path
from typing import Any, Callable, Dict, Optional, Sequence, Tuple

import numpy as np
from numpy.typing import NDArray

from . import _errors
from ._declarations import (
    NO_MEMORY,
    RUN_TIME_ERROR,
    UNKNOWN,
    WRONG_USE,
    CCompositions,
    CError,
    CFlashResults,
    CSeries,
    CSettings,
    load,
    sized,
    text,
)

FOLDER = Path(__file__).resolve().parent
LIBRARY_PATH = FOLDER / ("velor.dll" if sys.platform == "win32" else "libvelor.so")
DATABASE_PATH = FOLDER / "VELOR.DRC"

Values = NDArray[np.float64]
Codes = NDArray[np.int8]

_BLOCK = 1 << 16

_FLASH_NUMBERS = ("outcomes", "verdicts", "passes")
_FLASH_VALUES = (
    "vapour_fractions",
    "temperatures",
    "bubble_points",
    "dew_points",
    "material_residuals",
    "energy_residuals",
)
_FLASH_FRACTIONS = ("liquids", "vapours", "equilibriums")


class Handle:
    """What the library made, given back when nobody uses it any more; a call that is under way does."""

    def __init__(self, pointer: c_void_p, free: Callable[[c_void_p], None]) -> None:
        self.pointer = pointer
        weakref.finalize(self, free, pointer).atexit = False


class Fractions:
    """The compositions of all points, as the library reads them."""

    def __init__(self, fractions: Values, by_mass: bool, normalised: bool) -> None:
        """fractions: of shape (components) or (points, components), with any strides that are not negative."""
        if min(fractions.strides, default=0) < 0 or any(stride % sizeof(c_double) for stride in fractions.strides):
            fractions = np.ascontiguousarray(fractions)
        self._fractions = fractions
        self._by_mass = by_mass
        self._normalised = normalised

    def of(self, block: slice) -> CCompositions:
        """Those of some of the points; good as long as this lives."""
        fractions = self._fractions if self._fractions.ndim == 1 else self._fractions[block]
        strides = [stride // sizeof(c_double) for stride in fractions.strides]
        count = 1 + sum((length - 1) * stride for length, stride in zip(fractions.shape, strides))
        return CCompositions(
            sizeof(CCompositions),
            fractions.ctypes.data,
            max(count, 0),
            strides[-1],
            strides[0] if fractions.ndim == 2 else 0,
            self._by_mass,
            self._normalised,
        )


class Library:
    """The loaded library and the databases that it has open."""

    def __init__(self, path: Path) -> None:
        try:
            self._dll = load(str(path))
        except (OSError, AttributeError) as fault:
            raise _errors.LibraryError(f"Knihovnu {path} nelze načíst: {fault}") from fault
        self._databases: Dict[str, Handle] = {}
        self.substances: Dict[str, Any] = {}  # what was read of each database, by its path

    def call(self, name: str, *arguments: Any) -> Any:
        """A function that cannot fail."""
        return getattr(self._dll, name)(*arguments)

    def _checked(self, name: str, *arguments: Any) -> None:
        """A function whose last argument is the place for an error."""
        error = sized(CError)
        status = self.call(name, *arguments, byref(error))
        if status == 0:
            return
        told = text(error.text)
        if status == WRONG_USE:
            raise _errors.UsageError(told, _errors.INVALID_CALL)
        if status == NO_MEMORY:
            raise _errors.NoMemoryError(told)
        raise _errors.Error(told, error.number if status == RUN_TIME_ERROR else 0)

    def version(self) -> str:
        return text(self.call("velor_version"))

    def database(self, path: str) -> Handle:
        """The open database of that path; what is on the disk now is read at its first use."""
        if path not in self._databases:
            pointer = c_void_p()
            try:
                self._checked("velor_database_open", os.fsencode(path), byref(pointer))
            except _errors.Error as error:
                raise _errors.DatabaseError(f"Databázi {path} nelze načíst: {error.text}", error.number) from None
            self._databases[path] = Handle(pointer, self._dll.velor_database_close)
        return self._databases[path]

    def find(self, database: Handle, wanted: str) -> Tuple[int, Sequence[int]]:
        """How it was found, and the numbers of the substances."""
        finding, count = c_int(), c_int()
        encoded = wanted.encode("utf-8", "replace")
        if b"\0" in encoded:
            return UNKNOWN, ()
        capacity = self.call("velor_database_count", database.pointer)
        numbers = (c_int * capacity)()
        self._checked(
            "velor_database_find", database.pointer, encoded, byref(finding), numbers, capacity, byref(count)
        )
        return finding.value, numbers[: count.value]

    def mixture(self, database: Handle, numbers: Sequence[int], soave: bool, clamped: bool) -> Handle:
        settings = CSettings(sizeof(CSettings), soave, clamped)
        pointer = c_void_p()
        self._checked(
            "velor_mixture_create",
            database.pointer,
            (c_int * len(numbers))(*numbers),
            len(numbers),
            byref(settings),
            byref(pointer),
        )
        return Handle(pointer, self._dll.velor_mixture_free)

    def evaluate(
        self,
        mixture: Handle,
        property_index: int,
        temperatures: Values,
        pressures: Values,
        fractions: Fractions,
        points: int,
        threads: int,
    ) -> Tuple[Values, Codes]:
        """Values and verdicts; temperatures and pressures hold one number or one a point, without gaps."""

        def compute(block: slice, count: int, *results: Any) -> None:
            T, P, X = _series(temperatures, block), _series(pressures, block), fractions.of(block)
            self._checked("velor_evaluate", mixture.pointer, property_index, T, P, byref(X), count, *results)

        return _in_blocks(compute, points, threads)

    def evaluate_pure(
        self, mixture: Handle, property_index: int, component: int, temperatures: Values, points: int, threads: int
    ) -> Tuple[Values, Codes]:
        """The same of a component, from 0."""

        def compute(block: slice, count: int, *results: Any) -> None:
            T = _series(temperatures, block)
            self._checked("velor_evaluate_pure", mixture.pointer, property_index, component, T, count, *results)

        return _in_blocks(compute, points, threads)

    def flash(
        self,
        mixture: Handle,
        adiabatic: bool,
        temperatures: Values,
        pressures: Values,
        feeds: Fractions,
        points: int,
        components: int,
        threads: int,
    ) -> Dict[str, NDArray[Any]]:
        """The arrays of velor_flash_results by their names, fractions of shape (points, components)."""
        found: Dict[str, NDArray[Any]] = {name: np.empty(points, np.intc) for name in _FLASH_NUMBERS}
        found.update({name: np.empty(points) for name in _FLASH_VALUES})
        found.update({name: np.empty((points, components)) for name in _FLASH_FRACTIONS})
        results, all_points = CFlashResults(sizeof(CFlashResults)), slice(None)
        for name, array in found.items():
            setattr(results, name, array.ctypes.data)
        results.fraction_count, results.component_stride, results.point_stride = points * components, 1, components
        self._checked(
            "velor_flash",
            mixture.pointer,
            adiabatic,
            _series(temperatures, all_points),
            _series(pressures, all_points),
            byref(feeds.of(all_points)),
            points,
            byref(results),
            threads,
        )
        return found


def _series(values: Values, block: slice) -> CSeries:
    """One number for all points, or those of some; good as long as the array lives."""
    if values.size != 1:
        values = values[block]
    return CSeries(values.ctypes.data, values.size)


def _in_blocks(compute: Callable[..., None], points: int, threads: int) -> Tuple[Values, Codes]:
    """So many at once that the work stays in the processor's caches and Ctrl+C is heard, and each thread has its share.

    compute(block, count, values, verdicts, threads) takes the last three as the library does.
    """
    size = min(points, _BLOCK * threads)
    values, codes, found = np.empty(points), np.empty(points, np.int8), np.empty(size, np.intc)
    for start in range(0, points, size or 1):
        block = slice(start, min(start + size, points))
        count = block.stop - start
        compute(block, count, values[block].ctypes.data, found.ctypes.data, threads)
        codes[block] = found[:count]
    return values, codes


# ---- Its life ----------------------------------------------------------------------------------------------------

_current: Optional[Library] = None
_is_closed = False


def library() -> Library:
    """The library, loaded at the first use."""
    global _current
    current = _current
    if current is None:
        if _is_closed:
            raise _errors.ClosedError("Knihovna je zavřená; otevře ji velor.open().")
        # Threads that come at once may each make one; all of them work, and the last stays.
        current = _current = Library(LIBRARY_PATH)
    return current


def open() -> None:
    """Open the library again after :func:`close`. Before that the first use opens it."""
    global _is_closed
    _is_closed = False


def close() -> None:
    """Let go of all databases and prepared mixtures.

    What is computing ends as it should; whatever is asked for later raises :class:`ClosedError`. After :func:`open`
    every mixture works again, with databases as they are on the disk then. Until then it keeps its own constants.
    """
    global _current, _is_closed
    _is_closed = True
    _current = None
