"""The catalogue of properties: what the library says of each."""

from __future__ import annotations

from collections.abc import Mapping
from ctypes import byref
from dataclasses import dataclass
from typing import Dict, Iterator

from . import _errors
from ._declarations import CProperty, sized, text
from ._library import library

PHASES = ("any", "liquid", "gas")


@dataclass(frozen=True)
class Property:
    """A row of the catalogue.

    Attributes
    ----------
    code : str
        The name of the method that computes it.
    caption, symbol, unit, rule : str
        In Czech; the symbol and whose mixing rule it is are empty for pure properties, the unit for pure numbers.
    phase : str
        "any", "liquid" or "gas".
    needs_temperature, needs_pressure : bool
        What it depends on beside the composition.
    index : int
        Its place in the library's catalogue.
    """

    code: str
    caption: str
    symbol: str
    unit: str
    rule: str
    phase: str
    needs_temperature: bool
    needs_pressure: bool
    index: int

    @property
    def label(self) -> str:
        """For an axis or a column: "Hustota (l) ρ [kg/m³]"."""
        unit = f"[{self.unit}]" if self.unit else ""
        return " ".join(part for part in (self.caption, self.symbol, unit) if part)


class Catalogue(Mapping[str, Property]):
    """Properties by their codes, in any letter case, in the catalogue's order."""

    def __init__(self, kind: str) -> None:
        self._kind = kind
        self._read_rows: Dict[str, Property] = {}

    @property
    def _rows(self) -> Dict[str, Property]:
        if not self._read_rows:
            count = library().call(f"velor_{self._kind}_property_count")
            rows = [self._row(index) for index in range(count)]
            self._read_rows = {row.code: row for row in rows}
        return self._read_rows

    def _row(self, index: int) -> Property:
        row = sized(CProperty)
        library().call(f"velor_{self._kind}_property", index, byref(row))
        return Property(
            text(row.code),
            text(row.caption),
            text(row.symbol),
            text(row.unit),
            text(row.rule),
            PHASES[row.phase],
            bool(row.needs_temperature),
            bool(row.needs_pressure),
            index,
        )

    def __getitem__(self, code: str) -> Property:
        if not isinstance(code, str):
            raise _errors.TypeMismatchError(f"Zkratka vlastnosti je text, zadáno {code!r}.", _errors.TYPE_MISMATCH)
        row = self._rows.get(code.upper())
        if row is None:
            raise _errors.UnknownPropertyError(f"Vlastnost {code} v katalogu není.", _errors.SUBSCRIPT)
        return row

    def __iter__(self) -> Iterator[str]:
        return iter(self._rows)

    def __len__(self) -> int:
        return len(self._rows)

    def __repr__(self) -> str:
        return f"<velor.Catalogue: {', '.join(self)}>"


properties = Catalogue("mixture")
pure_properties = Catalogue("pure")
