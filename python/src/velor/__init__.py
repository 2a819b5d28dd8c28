"""Physical properties of substances and mixtures.

Temperatures are kelvins, pressures pascals, compositions mole or mass fractions; :data:`properties` tells the unit of
each property. What is said to people is Czech.

Examples
--------
>>> import velor
>>> m = velor.Mixture(["voda", "ethanol"], mole=[0.4, 0.6])
>>> round(m.ROLW(300), -1)
830.0
"""

from ._catalogue import Catalogue, Property, properties, pure_properties
from ._equilibrium import Flash, SaturationPoint, Txy
from ._errors import (
    ClosedError,
    DatabaseError,
    Error,
    LibraryError,
    NoMemoryError,
    TypeMismatchError,
    UnknownPropertyError,
    UnknownSubstanceError,
    UsageError,
    VelorWarning,
)
from ._library import close, open
from ._mixture import Component, Mixture
from ._plots import plot_txy
from ._substances import Correlation, Database, Substance, substances
from ._verdicts import Verdict, Verdicts
from ._version import __version__

__all__ = [
    "Catalogue",
    "ClosedError",
    "Component",
    "Correlation",
    "Database",
    "DatabaseError",
    "Error",
    "Flash",
    "LibraryError",
    "Mixture",
    "NoMemoryError",
    "Property",
    "SaturationPoint",
    "Substance",
    "Txy",
    "TypeMismatchError",
    "UnknownPropertyError",
    "UnknownSubstanceError",
    "UsageError",
    "VelorWarning",
    "Verdict",
    "Verdicts",
    "__version__",
    "close",
    "open",
    "plot_txy",
    "properties",
    "pure_properties",
    "substances",
]
