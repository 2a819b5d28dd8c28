"""Flashes, bubble and dew points with the composition of the other phase. Methods of a mixture: the class takes them
over."""

from __future__ import annotations

from dataclasses import dataclass
from typing import TYPE_CHECKING, Any, Tuple, Union

import numpy as np

from . import _errors
from ._arrays import Edge
from ._catalogue import properties, pure_properties
from ._library import Codes, Values
from ._verdicts import Verdict, Verdicts, verdicts_of, warn_of

if TYPE_CHECKING:
    from ._mixture import Mixture

ATMOSPHERE = 101325.0


@dataclass(frozen=True)
class SaturationPoint:
    """Where a liquid begins to boil or a vapour to condense, by Raoult's law.

    Attributes
    ----------
    T : float, ndarray or quantity
        Temperature [K]; NaN where there is none.
    liquid, vapour : ndarray
        Mole fractions of the phases, along the last axis. A component above its critical temperature does not condense:
        the liquid has none of it.
    verdict : Verdict or Verdicts
    """

    T: Any
    liquid: Values
    vapour: Values
    verdict: Union[Verdict, Verdicts]


@dataclass(frozen=True)
class Txy:
    """The boiling diagram of two substances at one pressure; fractions are those of the first.

    Attributes
    ----------
    names : tuple of str
    P : float
        [Pa].
    x, y : ndarray
        Mole fractions in the liquid, and in the vapour above it where it boils.
    bubble, dew : ndarray
        Bubble and dew points of the composition x [K].
    bubble_verdicts, dew_verdicts : Verdicts
    """

    names: Tuple[str, ...]
    P: float
    x: Values
    y: Values
    bubble: Values
    dew: Values
    bubble_verdicts: Verdicts
    dew_verdicts: Verdicts


@dataclass(frozen=True)
class Flash:
    """What became of a feed: an array element for each point, or one number for one point.

    Attributes
    ----------
    outcome : str or ndarray of str
        "vapour", "liquid", "both" phases, "diverged" or "none", for which the verdict says why.
    verdict : Verdict or Verdicts
        The worst of the vapour pressures and enthalpies.
    T : float, ndarray or quantity
        Temperature after the flash [K].
    vapour_fraction : float or ndarray
        Moles of vapour per mole of feed.
    liquid, vapour, K : ndarray
        Mole fractions, 0 in a phase that is not there, and K = y / x; along the last axis.
    bubble, dew : float, ndarray or quantity
        Bubble and dew point of the feed [K].
    passes : int or ndarray
        Of the iteration; 0 where there was none.
    material_residual, energy_residual : float or ndarray
        sum(x (1 - K)), and of an adiabatic flash J/mol, as the last pass found them.
    """

    outcome: Any
    verdict: Union[Verdict, Verdicts]
    T: Any
    vapour_fraction: Any
    liquid: Values
    vapour: Values
    K: Values
    bubble: Any
    dew: Any
    passes: Any
    material_residual: Any
    energy_residual: Any


OUTCOMES = np.array(["none", "vapour", "liquid", "both", "diverged"])


def flash(mixture: Mixture, T: Any, P: Any = ATMOSPHERE, *, adiabatic: bool = False) -> Flash:
    """Flash the mixture as a feed, by Raoult's law.

    Parameters
    ----------
    T : array_like or quantity
        Temperature [K]; of an adiabatic flash that of the liquid feed.
    P : array_like or quantity
        Pressure after the flash [Pa].
    adiabatic : bool
        The feed's enthalpy is kept in place of the temperature.

    Returns
    -------
    Flash

    Examples
    --------
    >>> import velor
    >>> m = velor.Mixture(["pentan", "hexan", "heptan"], mole=[0.3, 0.3, 0.4])
    >>> result = m.flash(340, 101325)
    >>> result.outcome, round(result.vapour_fraction, 2), result.vapour.round(2)
    ('both', 0.27, array([0.54, 0.29, 0.17]))
    """
    edge = Edge()
    temperatures, pressures = edge.take(T, "K", "T"), edge.take(P, "Pa", "P")
    found = mixture._flashed(bool(adiabatic), temperatures, pressures)
    warn_of({"flash": found["verdicts"]})
    plain = Edge()
    outcomes, passes = OUTCOMES[found["outcomes"]], found["passes"]
    return Flash(
        outcome=str(outcomes) if outcomes.ndim == 0 else outcomes,
        verdict=verdicts_of(found["verdicts"]),
        T=edge.give(found["temperatures"], "K"),
        vapour_fraction=plain.give(found["vapour_fractions"], ""),
        liquid=found["liquids"],
        vapour=found["vapours"],
        K=found["equilibriums"],
        bubble=edge.give(found["bubble_points"], "K"),
        dew=edge.give(found["dew_points"], "K"),
        passes=int(passes) if passes.ndim == 0 else passes,
        material_residual=plain.give(found["material_residuals"], ""),
        energy_residual=plain.give(found["energy_residuals"], "J/mol"),
    )


def bubble_point(mixture: Mixture, P: Any = ATMOSPHERE) -> SaturationPoint:
    """Where the mixture as a liquid begins to boil, and the vapour above it.

    Parameters
    ----------
    P : array_like or quantity
        Pressure [Pa].

    Returns
    -------
    SaturationPoint

    Examples
    --------
    >>> import velor
    >>> m = velor.Mixture(["benzen", "toluen"], mole=[0.5, 0.5])
    >>> point = m.bubble_point(101325)
    >>> round(point.T), point.vapour.round(2)
    (365, array([0.71, 0.29]))
    """
    edge = Edge()
    T, codes, liquid = _point(mixture, "TBV", edge.take(P, "Pa", "P"))
    parts = np.where(liquid > 0, liquid * _vapour_pressures(mixture, T), 0.0)
    warn_of({"TBV": codes})
    return SaturationPoint(edge.give(T, "K"), liquid, _normalised(parts, T), verdicts_of(codes))


def dew_point(mixture: Mixture, P: Any = ATMOSPHERE) -> SaturationPoint:
    """Where the mixture as a vapour begins to condense, and the first liquid.

    Parameters
    ----------
    P : array_like or quantity
        Pressure [Pa].

    Returns
    -------
    SaturationPoint

    Examples
    --------
    >>> import velor
    >>> m = velor.Mixture(["benzen", "toluen"], mole=[0.5, 0.5])
    >>> round(m.dew_point().T)
    372
    """
    edge = Edge()
    T, codes, vapour = _point(mixture, "TRB", edge.take(P, "Pa", "P"))
    critical = np.array([component.substance.constants["Tkr"] for component in mixture.components])
    condenses = (vapour > 0) & (T[..., np.newaxis] < critical)
    with np.errstate(invalid="ignore", divide="ignore"):
        parts = np.where(condenses, vapour / _vapour_pressures(mixture, T), 0.0)
    warn_of({"TRB": codes})
    return SaturationPoint(edge.give(T, "K"), _normalised(parts, T), vapour, verdicts_of(codes))


def txy(mixture: Mixture, P: Any = ATMOSPHERE, points: int = 21) -> Txy:
    """The boiling diagram of the mixture's two substances, whatever its own composition.

    Parameters
    ----------
    P : float or quantity
        Pressure [Pa].
    points : int
        How many compositions, from one pure substance to the other.

    Returns
    -------
    Txy
    """
    pressure = Edge().take(P, "Pa", "P")
    if len(mixture.components) != 2 or pressure.ndim != 0 or points < 2:
        raise _errors.UsageError(
            "Diagram T-x-y je pro dvě látky, jeden tlak a aspoň dvě složení.", _errors.INVALID_CALL
        )
    x = np.linspace(0.0, 1.0, points)
    liquids = mixture.with_composition(mole=np.stack([x, 1.0 - x], axis=-1))
    bubble, codes, liquid = _point(liquids, "TBV", pressure)
    dew, dew_codes = liquids._values(properties["TRB"], P=pressure)
    warn_of({"TBV": codes, "TRB": dew_codes})
    parts = np.where(liquid > 0, liquid * _vapour_pressures(liquids, bubble), 0.0)
    y = _normalised(parts, bubble)[..., 0]
    return Txy(mixture.names, float(pressure), x, y, bubble, dew, Verdicts(codes), Verdicts(dew_codes))


def _point(mixture: Mixture, code: str, P: Values) -> Tuple[Values, Codes, Values]:
    """The temperatures, their verdicts, and the mole fractions spread over them."""
    T, codes = mixture._values(properties[code], P=P)
    return T, codes, np.broadcast_to(mixture.mole, (*T.shape, len(mixture.components)))


def _vapour_pressures(mixture: Mixture, T: Values) -> Values:
    """Of the components along a last axis."""
    row = pure_properties["TENS"]
    return np.stack([component._values(row, T)[0] for component in mixture.components], axis=-1)


def _normalised(parts: Values, T: Values) -> Values:
    """Fractions that are as the parts; NaN where there is no temperature."""
    with np.errstate(invalid="ignore", divide="ignore"):
        fractions = parts / parts.sum(axis=-1, keepdims=True)
    return np.where(np.isnan(T)[..., np.newaxis], np.nan, fractions)
