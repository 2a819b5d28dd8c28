"""The substances of a database: the finder, their constants and correlations."""

from __future__ import annotations

import itertools
import operator
import os
from ctypes import byref, c_double
from dataclasses import dataclass, field
from typing import Any, Dict, Iterator, List, Optional, Sequence, Tuple, Union

from . import _errors
from ._catalogue import pure_properties
from ._declarations import FOUND, INTERPRETED, SEVERAL, CCorrelation, CProvenance, CSubstance, sized, text
from ._library import DATABASE_PATH, Handle, library
from ._verdicts import warn


@dataclass(frozen=True)
class Correlation:
    """The equation of a pure property.

    Attributes
    ----------
    property : str
        The code of the property.
    unit : str
    type : int
        The number of the equation.
    equation : str
    coefficients : tuple of float
    t_min, t_max : float
        The range of validity [K].
    source : str
        Where its figures come from; empty where that is not told.
    deviation : float
        The largest one from the source over the range [%]; NaN where it is not known.
    is_estimate : bool
        Whether nothing was measured.
    """

    property: str
    unit: str
    type: int
    equation: str
    coefficients: Tuple[float, ...]
    t_min: float
    t_max: float
    source: str
    deviation: float
    is_estimate: bool


@dataclass(frozen=True)
class Substance:
    """A substance of a database.

    Attributes
    ----------
    number : int
    name, synonym, formula : str
    cas : str
        With hyphens; empty where it is not known.
    """

    number: int
    name: str
    synonym: str
    formula: str
    cas: str
    database: Database = field(repr=False)

    @property
    def further_names(self) -> Tuple[str, ...]:
        """Names beside name and synonym by which it is found."""
        return self.database._further_names(self)

    @property
    def constants(self) -> Dict[str, float]:
        """Constants by their keys; NaN where one is not known. :attr:`Database.constant_units` tells the units."""
        return {key: self.database._constant(self, k) for k, key in enumerate(self.database.constant_units)}

    @property
    def correlations(self) -> Dict[str, Correlation]:
        """The correlations that the database has of it, by the codes of the properties."""
        found = {code: self.database._correlation(self, code) for code in pure_properties}
        return {code: correlation for code, correlation in found.items() if correlation is not None}


Wanted = Union[str, int, Substance]


class Database:
    """The substances of a database by number, Czech or English name, formula or CAS number.

    Parameters
    ----------
    path : path-like, optional
        The database's file; without it the one that came with the package.

    Examples
    --------
    >>> import velor
    >>> velor.substances["H2O"].name
    'Voda'
    >>> [substance.name for substance in velor.substances.search("xylen")][:3]
    ['o-Xylen', 'm-Xylen', 'p-Xylen']
    >>> round(velor.substances["7732-18-5"].constants["Tkr"], 1)
    647.1
    """

    def __init__(self, path: Optional[Union[str, os.PathLike[str]]] = None) -> None:
        self._given = None if path is None else os.path.abspath(path)

    @property
    def path(self) -> str:
        """The database's file."""
        return str(DATABASE_PATH) if self._given is None else self._given

    def search(self, wanted: str) -> List[Substance]:
        """The substances that may be meant by a text.

        Parameters
        ----------
        wanted : str
            A number, a name, a formula, a CAS number or a part of a name.

        Returns
        -------
        list of Substance
            The one that is called so, or else the likeliest first; empty where nothing is alike.
        """
        return self._numbered(library().find(self._handle(), _text_of(wanted))[1])

    def __getitem__(self, wanted: Wanted) -> Substance:
        if isinstance(wanted, Substance):
            return wanted
        if not isinstance(wanted, str):
            return self._of_number(wanted)
        finding, numbers = library().find(self._handle(), wanted)
        candidates = self._numbered(numbers)
        if finding == INTERPRETED:
            warn(f"„{wanted}“ vyloženo jako {candidates[0].name} (č. {candidates[0].number}).")
        if finding in (FOUND, INTERPRETED):
            return candidates[0]
        raise _not_one(wanted, candidates, finding == SEVERAL)

    def __contains__(self, wanted: object) -> bool:
        if isinstance(wanted, str):
            return library().find(self._handle(), wanted)[0] == FOUND
        return any(wanted in (substance, substance.number) for substance in self)

    def __iter__(self) -> Iterator[Substance]:
        return iter(self._rows())

    def __len__(self) -> int:
        return len(self._rows())

    def __eq__(self, other: object) -> bool:
        return isinstance(other, Database) and self.path == other.path

    def __hash__(self) -> int:
        return hash(self.path)

    def __reduce__(self) -> Tuple[Any, ...]:
        return Database, (self._given,)

    def __repr__(self) -> str:
        return "velor.Database()" if self._given is None else f"velor.Database({self._given!r})"

    @property
    def supplement_note(self) -> str:
        """Why sources and further names are not told, in Czech; empty where they are."""
        return text(library().call("velor_database_supplement_note", self._handle().pointer))

    @property
    def constant_units(self) -> Dict[str, str]:
        """The unit of each constant, by its key."""
        told = library()
        count = told.call("velor_constant_count")
        return {
            text(told.call("velor_constant_key", k)): text(told.call("velor_constant_unit", k)) for k in range(count)
        }

    def _handle(self) -> Handle:
        return library().database(self.path)

    def _rows(self) -> List[Substance]:
        current, handle = library(), self._handle()
        if self.path not in current.substances:
            count = current.call("velor_database_count", handle.pointer)
            current.substances[self.path] = [self._row(handle, index) for index in range(count)]
        rows: List[Substance] = current.substances[self.path]
        return rows

    def _row(self, handle: Handle, index: int) -> Substance:
        row = sized(CSubstance)
        library().call("velor_database_substance", handle.pointer, index, byref(row))
        return Substance(row.number, text(row.name), text(row.synonym), text(row.formula), text(row.cas), self)

    def _numbered(self, numbers: Sequence[int]) -> List[Substance]:
        rows = {substance.number: substance for substance in self._rows()}
        return [rows[number] for number in numbers]

    def _of_number(self, wanted: Any) -> Substance:
        try:
            if isinstance(wanted, bool):
                raise TypeError
            number = operator.index(wanted)
        except TypeError:
            raise _errors.TypeMismatchError(
                f"Látka je číslo, název, vzorec nebo CAS, zadáno {wanted!r}.", _errors.TYPE_MISMATCH
            ) from None
        for substance in self._rows():
            if substance.number == number:
                return substance
        raise _not_one(str(number), [], False)

    def _constant(self, substance: Substance, k: int) -> float:
        value = c_double()
        library().call("velor_database_constant", self._handle().pointer, substance.number, k, byref(value))
        return value.value

    def _correlation(self, substance: Substance, code: str) -> Optional[Correlation]:
        row, correlation, provenance = pure_properties[code], sized(CCorrelation), sized(CProvenance)
        place = self._handle().pointer, substance.number, row.index
        library().call("velor_database_correlation", *place, byref(correlation))
        if not correlation.is_given:
            return None
        library().call("velor_database_provenance", *place, byref(provenance))
        return Correlation(
            code,
            row.unit,
            correlation.type,
            text(correlation.equation).strip(),
            tuple(correlation.coefficients),
            correlation.t_min,
            correlation.t_max,
            text(provenance.source),
            provenance.deviation,
            bool(provenance.is_estimate),
        )

    def _further_names(self, substance: Substance) -> Tuple[str, ...]:
        current, database = library(), self._handle().pointer
        told = (current.call("velor_database_further_name", database, substance.number, k) for k in itertools.count())
        return tuple(text(name) for name in itertools.takewhile(lambda name: name is not None, told))


def _text_of(wanted: object) -> str:
    if isinstance(wanted, str):
        return wanted
    raise _errors.TypeMismatchError(f"Hledaná látka je text, zadáno {wanted!r}.", _errors.TYPE_MISMATCH)


def _not_one(wanted: str, candidates: Sequence[Substance], is_ambiguous: bool) -> _errors.UnknownSubstanceError:
    names = [substance.name for substance in candidates]
    if is_ambiguous:
        told = f"„{wanted}“ může být více látek: {', '.join(names)}."
    else:
        told = f"Látka „{wanted}“ není v bázi."
        if names:
            told += f" Mohlo by jít o: {', '.join(names)}."
    return _errors.UnknownSubstanceError(told, _errors.SUBSCRIPT, names)


substances = Database()
