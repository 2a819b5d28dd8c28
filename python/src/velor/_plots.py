"""Pictures with matplotlib: full lines where every correlation is valid, dashed where values want care."""

from __future__ import annotations

from typing import TYPE_CHECKING, Any, Iterable, Iterator, List, Optional, Set, Tuple, Union

import numpy as np

from . import _errors
from ._arrays import Edge
from ._catalogue import Property
from ._equilibrium import ATMOSPHERE, Txy, txy
from ._extras import needed
from ._library import Codes, Values
from ._tables import rows_of
from ._verdicts import all_verdicts

if TYPE_CHECKING:
    from ._mixture import Mixture

UNITS = {"T": "K", "P": "Pa"}
ABSCISSAE = {"T": "teplota T [K]", "P": "tlak P [Pa]"}


def plot(
    mixture: Mixture, codes: Union[str, Iterable[str]], T: Any = None, P: Any = None, *, ax: Optional[Any] = None
) -> Any:
    """Draw properties over temperature or pressure.

    Parameters
    ----------
    codes : str or sequence of str
        Properties by their codes. Those of one unit share axes, others stand below each other.
    T, P : array_like or quantity
        Temperatures [K] and pressures [Pa]. The longer of the two is the abscissa; each number of the other has a
        curve.
    ax : matplotlib.axes.Axes, optional
        Axes to draw into; for properties of one unit.

    Returns
    -------
    matplotlib.axes.Axes or ndarray of them
        Full lines are in the range of all correlations, dashed ones are not; lines are broken where there is no value.
        A mixture of several compositions has a curve for each.
    """
    rows = rows_of(codes)
    panels = {row.unit: [other for other in rows if other.unit == row.unit] for row in rows}
    if ax is not None and len(panels) != 1:
        raise _errors.UsageError("Do jedněch os patří jen vlastnosti téže jednotky.", _errors.INVALID_CALL)
    states, along = _states(T, P)
    axes = [ax] if ax is not None else _new_axes(len(panels))
    for panel, members in zip(axes, panels.values()):
        careful: Set[int] = set()
        for row in members:
            for state_label, state in states if row.needs_pressure else states[:1]:
                for composition_label, one in _compositions(mixture):
                    labels = [row.code if len(members) > 1 else "", state_label, composition_label]
                    values, found = np.broadcast_arrays(*one._values(row, **state), state[along])[:2]
                    label = ", ".join(label for label in labels if label)
                    careful |= _draw(panel, state[along], values, found, label)
        _finish(panel, _ordinate(members), ABSCISSAE[along] if panel is axes[-1] else "", careful)
    axes[0].set_title(_title(mixture))
    return axes[0] if len(axes) == 1 else np.array(axes)


def plot_txy(diagram: Union[Mixture, Txy], P: Any = ATMOSPHERE, *, points: int = 101, ax: Optional[Any] = None) -> Any:
    """Draw the boiling diagram of two substances.

    Parameters
    ----------
    diagram : Mixture or Txy
        A mixture of two substances, or what its ``txy`` gave.
    P : float or quantity
        Pressure of a mixture [Pa].
    points : int
        How many compositions of a mixture.
    ax : matplotlib.axes.Axes, optional
        Axes to draw into.

    Returns
    -------
    matplotlib.axes.Axes
    """
    found = diagram if isinstance(diagram, Txy) else txy(diagram, P, points)
    panel = _new_axes(1)[0] if ax is None else ax
    careful = _draw(panel, found.x, found.bubble, found.bubble_verdicts.codes, "bod varu (kapalina x)")
    careful |= _draw(panel, found.x, found.dew, found.dew_verdicts.codes, "rosný bod (pára y)")
    panel.set_xlim(0, 1)
    panel.set_title(f"{' – '.join(found.names)} při {found.P:g} Pa (ideální směs)")
    _finish(panel, ABSCISSAE["T"], f"molový zlomek x, y – {found.names[0]}", careful)
    return panel


def _states(T: Any, P: Any) -> Tuple[List[Tuple[str, Any]], str]:
    """Temperatures and pressures of each curve with the curve's label, and which of them is the abscissa."""
    given = {"T": T, "P": P}
    arrays = {name: Edge().take(array, UNITS[name], name).ravel() for name, array in given.items() if array is not None}
    if not arrays:
        raise _errors.UsageError("Není přes co kreslit: zadejte T nebo P.", _errors.INVALID_CALL)
    along = max(arrays, key=lambda name: arrays[name].size)
    state = {along: arrays.pop(along)}
    for name, array in arrays.items():
        label = f"{name} = {{:g}} {UNITS[name]}"
        return [(label.format(one), {**state, name: np.asarray(one)}) for one in array], along
    return [("", state)], along


def _compositions(mixture: Mixture) -> Iterator[Tuple[str, Mixture]]:
    if not mixture.shape:
        yield "", mixture
        return
    for fractions in mixture.mole.reshape(-1, len(mixture.components)):
        shown = fractions[:1] if len(fractions) == 2 else fractions
        told = ", ".join(f"x({name}) = {fraction:.3g}" for name, fraction in zip(mixture.names, shown))
        yield told, mixture.with_composition(mole=fractions)


def _new_axes(count: int) -> List[Any]:
    pyplot = needed("matplotlib.pyplot", "plots")
    figure, axes = pyplot.subplots(
        count, squeeze=False, sharex=True, figsize=(6.4, 1.6 + 3.2 * count), layout="constrained"
    )
    return list(axes[:, 0])


def _draw(panel: Any, over: Values, values: Values, codes: Codes, label: str) -> Set[int]:
    """A curve: a segment is full where both of its ends are in range, a value between gaps is a dot. Gives the verdicts
    of what is dashed."""
    order = np.argsort(over, kind="stable")
    over, values, codes = over[order], values[order], codes[order]
    in_range = codes == 0
    is_full = np.isfinite(values) & in_range
    (line,) = panel.plot(over, np.where(is_full, values, np.nan), label=label or "_nolegend_")
    # Dashes reach to the neighbours in range, so that the curve is whole.
    reaches = ~in_range
    reaches[:-1] |= ~in_range[1:]
    reaches[1:] |= ~in_range[:-1]
    if not in_range.all():
        panel.plot(over, np.where(reaches, values, np.nan), linestyle="--", color=line.get_color(), label="_nolegend_")
    is_there = np.isfinite(values)
    alone = is_there & ~np.append(is_there[1:], False) & ~np.insert(is_there[:-1], 0, False)
    panel.plot(over[alone], values[alone], ".", color=line.get_color(), label="_nolegend_")
    return set(codes[np.isfinite(values) & ~in_range].tolist())


def _title(mixture: Mixture) -> str:
    names = " + ".join(mixture.names)
    if mixture.shape or len(mixture.names) == 1:
        return names
    return f"{names} (x = {'; '.join(f'{fraction:.3g}' for fraction in mixture.mole)})"


def _ordinate(members: List[Property]) -> str:
    if len(members) == 1:
        return members[0].label
    return ", ".join(row.symbol for row in members) + (f" [{members[0].unit}]" if members[0].unit else "")


def _finish(panel: Any, ordinate: str, abscissa: str, careful: Set[int]) -> None:
    """careful: the verdicts of what is dashed."""
    panel.set_ylabel(ordinate)
    panel.set_xlabel(abscissa)
    panel.grid(True, alpha=0.3)
    handles, labels = panel.get_legend_handles_labels()
    if careful:
        lines = needed("matplotlib.lines", "plots")
        handles.append(lines.Line2D([], [], color="grey", linestyle="--"))
        labels.append("čárkovaně: " + ", ".join(all_verdicts()[number].word for number in sorted(careful)))
    if handles:
        panel.legend(handles, labels, fontsize="small")
