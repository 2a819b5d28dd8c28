"""Tables of properties as data frames. A method of a mixture: the class takes it over."""

from __future__ import annotations

from typing import TYPE_CHECKING, Any, Dict, Iterable, List, Union

import numpy as np

from ._arrays import Edge, common_shape
from ._catalogue import Property, properties
from ._extras import needed
from ._verdicts import Verdicts, warn_of

if TYPE_CHECKING:
    from ._mixture import Mixture


def rows_of(codes: Union[str, Iterable[str]]) -> List[Property]:
    """The catalogue's rows of one code or several."""
    return [properties[code] for code in ([codes] if isinstance(codes, str) else codes)]


def table(
    mixture: Mixture, codes: Union[str, Iterable[str]], T: Any = None, P: Any = None, *, with_verdict: bool = False
) -> Any:
    """Properties at many points as a table, a row for each point.

    Parameters
    ----------
    codes : str or sequence of str
        Properties by their codes.
    T : array_like or quantity
        Temperatures [K].
    P : array_like or quantity
        Pressures [Pa]; for properties that need them.
    with_verdict : bool
        A column with the verdict's word behind every property's, as "ROLW_stav"; without them a warning tells what is
        not in range.

    Returns
    -------
    pandas.DataFrame
        Columns T, P and the mole fractions as far as they were given as arrays, then the properties.
        ``attrs["units"]`` and ``attrs["captions"]`` tell of each column its unit and what it is.

    Examples
    --------
    >>> import velor
    >>> m = velor.Mixture(["voda", "ethanol"], mole=[0.4, 0.6])
    >>> frame = m.table(["ROLW", "ETAL"], T=[300, 320])
    >>> frame.attrs["units"]
    {'T': 'K', 'ROLW': 'kg/m³', 'ETAL': 'Pa·s'}
    """
    pandas = needed("pandas", "tables")
    edge, rows = Edge(), rows_of(codes)
    state = {
        name: edge.take(given, unit, name) for name, given, unit in (("T", T, "K"), ("P", P, "Pa")) if given is not None
    }
    shape = common_shape(**{name: array.shape for name, array in state.items()}, složení=mixture.shape)
    columns: Dict[str, Any] = {name: np.broadcast_to(array, shape).ravel() for name, array in state.items()}
    units = {"T": "K", "P": "Pa"}
    captions = {"T": "teplota", "P": "tlak"}
    if mixture.shape:
        fractions = np.broadcast_to(mixture.mole, (*shape, len(mixture.components)))
        for i, name in enumerate(mixture.names):
            columns[f"x({name})"] = fractions[..., i].ravel()
            captions[f"x({name})"] = "molový zlomek"
    told = {}
    for row in rows:
        values, found = mixture._values(row, state.get("T"), state.get("P"))
        columns[row.code] = np.broadcast_to(values, shape).ravel()
        units[row.code], captions[row.code] = row.unit, row.caption
        told[row.code] = found
        if with_verdict:
            columns[f"{row.code}_stav"] = np.broadcast_to(Verdicts(found).words, shape).ravel()
            captions[f"{row.code}_stav"] = "jak hodnota vznikla"
    if not with_verdict:
        warn_of(told)
    frame = pandas.DataFrame(columns)
    frame.attrs["units"] = {name: units.get(name, "") for name in columns}
    frame.attrs["captions"] = {name: captions[name] for name in columns}
    return frame
