"""What callers pass as numbers: arrays and quantities with units become plain arrays in SI units, and back."""

from __future__ import annotations

from typing import Any, Optional, Tuple

import numpy as np

from . import _errors
from ._library import Values

Shape = Tuple[int, ...]


def _is_quantity(value: object) -> bool:
    """Of pint, which is not imported for it: who passes a quantity has it."""
    return all(hasattr(value, name) for name in ("magnitude", "units", "to"))


def unit_name(unit: str) -> str:
    """A unit of the catalogue as pint reads it."""
    return unit.replace("·", "*").replace("²", "**2").replace("³", "**3") or "dimensionless"


class Edge:
    """The door between the caller's numbers and plain ones. Results go out as quantities where one came in."""

    def __init__(self) -> None:
        self._quantity: Optional[Any] = None

    def take(self, value: Any, unit: str, name: str) -> Values:
        """The numbers in the unit. name: of the argument, for errors."""
        if _is_quantity(value):
            try:
                magnitude = value.to(unit_name(unit)).magnitude
            except Exception as fault:
                raise _errors.TypeMismatchError(
                    f"{name}: {value.units} nelze převést na {unit or 'číslo bez jednotky'}.", _errors.TYPE_MISMATCH
                ) from fault
            self._quantity = type(value)
            value = magnitude
        return numbers(value, name)

    def give(self, values: Values, unit: str) -> Any:
        """A float for one value without a shape, else the array."""
        plain = float(values) if values.ndim == 0 else values
        return plain if self._quantity is None else self._quantity(plain, unit_name(unit))


def numbers(value: Any, name: str) -> Values:
    """An array of doubles; the caller's own where it is one. Masked numbers are NaN."""
    if isinstance(value, np.ma.MaskedArray):
        value = np.where(value.mask, np.nan, value.data)
    try:
        array = np.asarray(value)
        if array.dtype.kind in "iufO":
            return array.astype(np.float64, copy=False)
    except (TypeError, ValueError):
        pass
    raise _errors.TypeMismatchError(f"{name}: zde patří čísla, zadáno {value!r:.80}.", _errors.TYPE_MISMATCH)


def common_shape(**shapes: Shape) -> Shape:
    """The shape that all of them broadcast to; the keywords are the names for the error."""
    try:
        return np.broadcast_shapes(*shapes.values())
    except ValueError:
        told = ", ".join(f"{name} {shape}" for name, shape in shapes.items())
        raise _errors.UsageError(f"Tvary polí si neodpovídají: {told}.", _errors.SUBSCRIPT) from None


def spread(array: Values, shape: Shape) -> Values:
    """One number for all points, or one each without gaps; the caller's own array where it is so already."""
    if array.size == 1:
        return array.reshape(1)
    return np.ascontiguousarray(array if array.shape == shape else np.broadcast_to(array, shape))
