"""Mixtures and their components."""

from __future__ import annotations

import copy
import math
import os
import weakref
from dataclasses import dataclass
from typing import Any, Dict, Iterable, Optional, Tuple, Union

import numpy as np
from numpy.typing import NDArray

from . import _equilibrium, _errors, _plots, _tables
from ._arrays import Edge, Shape, common_shape, spread
from ._catalogue import Property, properties, pure_properties
from ._library import Codes, Fractions, Handle, Library, Values, library
from ._methods import MixtureProperties, PureProperties
from ._substances import Database, Substance, Wanted, substances
from ._verdicts import verdicts_of, warn_of

_UNREAD = np.zeros(1)

Path = Union[str, "os.PathLike[str]"]


@dataclass(frozen=True)
class _Definition:
    """What a mixture is; the whole of what is pickled."""

    numbers: Tuple[int, ...]
    database: Database
    soave: bool
    clamped: bool


class _Prepared:
    """The library's mixture of a definition, made at the first use and again after the library was closed."""

    def __init__(self, definition: _Definition) -> None:
        self._definition = definition
        self._made: Optional[Tuple[weakref.ref[Library], Handle]] = None

    def get(self) -> Tuple[Library, Handle]:
        current, made = library(), self._made
        if made is None or made[0]() is not current:
            wanted = self._definition
            database = current.database(wanted.database.path)
            handle = current.mixture(database, wanted.numbers, wanted.soave, wanted.clamped)
            made = self._made = weakref.ref(current), handle
        return current, made[1]

    def __reduce__(self) -> Tuple[Any, ...]:
        return _Prepared, (self._definition,)


@dataclass(frozen=True)
class _Composition:
    """Fractions of the last axis; those before it are points."""

    fractions: Values
    by_mass: bool
    normalised: bool

    @property
    def shape(self) -> Shape:
        return self.fractions.shape[:-1]

    def of_points(self, shape: Shape) -> Fractions:
        fractions, components = self.fractions, self.fractions.shape[-1]
        if fractions.ndim > 1:
            fractions = np.broadcast_to(fractions, (*shape, components)).reshape(-1, components)
        return Fractions(fractions, self.by_mass, self.normalised)


class Component(PureProperties):
    """A component of a mixture, with its properties by the mixture's settings.

    Attributes
    ----------
    substance : Substance
    """

    def __init__(self, mixture: Mixture, position: int, substance: Substance) -> None:
        self._mixture = mixture
        self._position = position
        self.substance = substance

    def _evaluate(self, code: str, T: Any, P: Any, with_verdict: bool) -> Any:
        edge = Edge()
        temperatures = edge.take(T, "K", "T")
        values, codes = self._values(pure_properties[code], temperatures)
        what = f"{code} ({self.substance.name})"
        return _given(edge, values, codes, pure_properties[code].unit, with_verdict, what)

    def _values(self, row: Property, T: Values) -> Tuple[Values, Codes]:
        current, handle = self._mixture._prepared.get()
        values, codes = current.evaluate_pure(
            handle, row.index, self._position, spread(T, T.shape), T.size, self._mixture.threads
        )
        return values.reshape(T.shape), codes.reshape(T.shape)

    def __repr__(self) -> str:
        return f"<velor.Component {self.substance.name}>"


class Mixture(MixtureProperties):
    """A mixture of 1 to 20 substances, which never changes.

    Parameters
    ----------
    substances : text, int, Substance or a sequence of them
        Each by its number, Czech or English name, formula or CAS number.
    mole, mass : array_like, optional
        Mole or mass fractions along the last axis; axes before it are points, which broadcast with temperatures and
        pressures. A substance alone needs none.
    normalised : bool
        Parts of any sum are divided by it.
    soave : bool
        Soave's equation of state in place of Redlich and Kwong's.
    clamped : bool
        Take temperatures into the validity range of each correlation.
    threads : int
        How many threads share the points of a call. They need no interpreter lock.
    database : path-like or Database, optional
        Without it the one that came with the package.

    Attributes
    ----------
    components : tuple of Component
        With the pure properties as methods.
    threads : int

    Examples
    --------
    >>> import velor
    >>> m = velor.Mixture(["voda", "ethanol"], mole=[0.4, 0.6])
    >>> round(m.ROLW(300), -1)
    830.0
    >>> m.ROLW([300, 320, 340]).round(-1)
    array([830., 810., 790.])
    >>> value, verdict = m.ROLW(535, with_verdict=True)
    >>> verdict.word
    'extrapolováno'
    """

    def __init__(
        self,
        substances: Union[Wanted, Iterable[Wanted]],
        *,
        mole: Any = None,
        mass: Any = None,
        normalised: bool = False,
        soave: bool = False,
        clamped: bool = False,
        threads: int = 1,
        database: Union[Path, Database, None] = None,
    ) -> None:
        chosen = _database(database)
        wanted = [substances] if isinstance(substances, (str, int, np.integer, Substance)) else list(substances)
        if isinstance(substances, (bytes, bytearray)):
            raise _errors.TypeMismatchError(
                f"Látka je číslo, název, vzorec nebo CAS, zadáno {substances!r}.", _errors.TYPE_MISMATCH
            )
        found = tuple(chosen[one] for one in wanted)
        if not 1 <= len(found) <= 20:
            raise _errors.UsageError(f"Směs má 1 až 20 látek, zadáno jich je {len(found)}.", _errors.SUBSCRIPT)
        numbers = tuple(substance.number for substance in found)
        self._prepared = _Prepared(_Definition(numbers, chosen, bool(soave), bool(clamped)))
        self._substances = found
        self._threads = _whole(threads)
        self._composition = self._checked(mole, mass, normalised)

    @property
    def shape(self) -> Shape:
        """Of the points that the composition has: () for one composition."""
        return self._composition.shape

    @property
    def threads(self) -> int:
        """Among how many threads the points of a call are shared."""
        return self._threads

    @property
    def components(self) -> Tuple[Component, ...]:
        return tuple(Component(self, i, substance) for i, substance in enumerate(self._substances))

    @property
    def names(self) -> Tuple[str, ...]:
        """The names of the components."""
        return tuple(substance.name for substance in self._substances)

    @property
    def mole(self) -> Values:
        """The mole fractions, along the last axis."""
        return self._fractions(by_mass=False)

    @property
    def mass(self) -> Values:
        """The mass fractions, along the last axis."""
        return self._fractions(by_mass=True)

    def with_composition(self, *, mole: Any = None, mass: Any = None, normalised: bool = False) -> Mixture:
        """The same substances and settings in another composition; what was prepared of them is shared.

        Parameters
        ----------
        mole, mass : array_like
        normalised : bool
            As of the class.

        Returns
        -------
        Mixture
        """
        other = copy.copy(self)
        other._composition = self._checked(mole, mass, normalised)
        return other

    flash = _equilibrium.flash
    bubble_point = _equilibrium.bubble_point
    dew_point = _equilibrium.dew_point
    txy = _equilibrium.txy
    table = _tables.table
    plot = _plots.plot

    def __repr__(self) -> str:
        kind = "mass" if self._composition.by_mass else "mole"
        fractions = np.array2string(self._composition.fractions, separator=", ", threshold=20)
        return f"velor.Mixture({list(self.names)}, {kind}={fractions})"

    def _checked(self, mole: Any, mass: Any, normalised: bool) -> _Composition:
        """The composition, refused where a lone one is none; of many each stands for itself."""
        if mole is None and mass is None and len(self._substances) == 1:
            mole = [1.0]
        if (mole is None) == (mass is None):
            raise _errors.UsageError("Složení se zadává jako mole= nebo mass=.", _errors.INVALID_CALL)
        name, given = ("mole", mole) if mass is None else ("mass", mass)
        fractions = Edge().take(given, "", name).copy()
        if fractions.ndim == 0 or fractions.shape[-1] != len(self._substances):
            raise _errors.UsageError(
                f"{name}: poslední osa má mít zlomek každé z {len(self._substances)} látek, pole má tvar"
                f" {fractions.shape}.",
                _errors.SUBSCRIPT,
            )
        fractions.flags.writeable = False
        composition = _Composition(fractions, mass is not None, bool(normalised))
        # The molar mass depends on nothing else.
        if fractions.ndim == 1 and np.isnan(self._values_of(composition, properties["VSM"], None, None)[0]):
            raise _errors.UsageError(
                f"{name}: {fractions} není složení, zlomky jsou nezáporné a jejich součet je 1.", _errors.INVALID_CALL
            )
        return composition

    def _fractions(self, by_mass: bool) -> Values:
        given = self._composition
        fractions = given.fractions
        if given.by_mass != by_mass:
            masses = np.array([substance.constants["Mv"] for substance in self._substances])
            fractions = fractions * masses if by_mass else fractions / masses
        elif not given.normalised:
            return fractions
        with np.errstate(invalid="ignore", divide="ignore"):
            return np.asarray(fractions / fractions.sum(axis=-1, keepdims=True))

    def _values(self, row: Property, T: Optional[Values] = None, P: Optional[Values] = None) -> Tuple[Values, Codes]:
        """Plain values and verdicts at T [K] and P [Pa]; what the property does not need is not looked at."""
        return self._values_of(self._composition, row, T, P)

    def _values_of(
        self, composition: _Composition, row: Property, T: Optional[Values], P: Optional[Values]
    ) -> Tuple[Values, Codes]:
        needed = {"T": T} if row.needs_temperature else {}
        needed.update({"P": P} if row.needs_pressure else {})
        state = {name: _there(array, name, row) for name, array in needed.items()}
        shape = common_shape(**{name: array.shape for name, array in state.items()}, složení=composition.shape)
        points = math.prod(shape)
        current, handle = self._prepared.get()
        spread_state = {name: spread(array, shape) for name, array in state.items()}
        values, codes = current.evaluate(
            handle,
            row.index,
            spread_state.get("T", _UNREAD),
            spread_state.get("P", _UNREAD),
            composition.of_points(shape),
            points,
            self.threads,
        )
        return values.reshape(shape), codes.reshape(shape)

    def _flashed(self, adiabatic: bool, T: Values, P: Values) -> Dict[str, NDArray[Any]]:
        """What the library's flash gives at T [K] and P [Pa], in the shape of the points."""
        shape = common_shape(T=T.shape, P=P.shape, složení=self.shape)
        feeds, points = self._composition.of_points(shape), math.prod(shape)
        current, handle = self._prepared.get()
        found = current.flash(
            handle, adiabatic, spread(T, shape), spread(P, shape), feeds, points, len(self._substances), self.threads
        )
        return {name: array.reshape(shape + array.shape[1:]) for name, array in found.items()}

    def _evaluate(self, code: str, T: Any, P: Any, with_verdict: bool) -> Any:
        row, edge = properties[code], Edge()
        temperatures = None if T is None else edge.take(T, "K", "T")
        pressures = None if P is None else edge.take(P, "Pa", "P")
        values, codes = self._values(row, temperatures, pressures)
        return _given(edge, values, codes, row.unit, with_verdict, code)


def _there(array: Optional[Values], name: str, row: Property) -> Values:
    if array is None:
        raise _errors.UsageError(f"Vlastnost {row.code} potřebuje {name}.", _errors.INVALID_CALL)
    return array


def _given(edge: Edge, values: Values, codes: Codes, unit: str, with_verdict: bool, what: str) -> Any:
    if not with_verdict:
        warn_of({what: codes})
        return edge.give(values, unit)
    return edge.give(values, unit), verdicts_of(codes)


def _database(given: Union[Path, Database, None]) -> Database:
    if isinstance(given, Database):
        return given
    return substances if given is None else Database(given)


def _whole(threads: Any) -> int:
    if not isinstance(threads, (int, np.integer)) or not 1 <= threads <= 256:
        raise _errors.UsageError(f"threads: počet vláken je celé číslo od 1 do 256, zadáno {threads!r}.", 5)
    return int(threads)
