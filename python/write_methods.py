"""Writes the methods of mixtures and of their components from the library's catalogue, so that help, completion and
type checkers know every property with its unit and rule."""

import ctypes
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent / "src" / "velor"))

from _declarations import CProperty, load, sized, text  # noqa: E402

HEAD = '''"""The methods of all properties. Written by write_methods.py from the library's catalogue."""

from __future__ import annotations

from typing import Any, Literal, Tuple, Union, overload

from ._verdicts import Verdict, Verdicts
'''

CLASS = '''

class {name}:
    """{purpose}"""

    def _evaluate(self, code: str, T: Any, P: Any, with_verdict: bool) -> Any:
        raise NotImplementedError
'''

METHOD = '''
    @overload
    def {code}(self{arguments}, *, with_verdict: Literal[False] = ...) -> Any: ...

    @overload
    def {code}(self{arguments}, *, with_verdict: Literal[True]) -> Tuple[Any, Union[Verdict, Verdicts]]: ...

    def {code}(self{arguments}, *, with_verdict: bool = False) -> Any:
        """{caption}{symbol}{unit}.

{rule}        Parameters
        ----------
{parameters}        with_verdict : bool
            Give the verdicts as well; without them a warning tells what is not in range.

        Returns
        -------
        float, ndarray or quantity
            The property{unit}; NaN where there is no value.
        """
        return self._evaluate("{code}", {T}, {P}, with_verdict)
'''

PARAMETERS = {
    "T": "        T : array_like or quantity\n            Temperature [K].\n",
    "P": "        P : array_like or quantity\n            Pressure [Pa].\n",
}


def method(row):
    needed = "T" * row.needs_temperature + "P" * row.needs_pressure
    caption, symbol, unit, rule = (text(part) for part in (row.caption, row.symbol, row.unit, row.rule))
    return METHOD.format(
        code=text(row.code),
        caption=caption[0].upper() + caption[1:],
        symbol=f", {symbol}" if symbol else "",
        unit=f" [{unit}]" if unit else "",
        rule=f"        Rule: {rule}.\n\n" if rule else "",
        arguments="".join(f", {argument}: Any" for argument in needed),
        parameters="".join(PARAMETERS[argument] for argument in needed),
        T="T" if "T" in needed else "None",
        P="P" if "P" in needed else "None",
    )


def methods(library, kind):
    for index in range(getattr(library, f"velor_{kind}_property_count")()):
        row = sized(CProperty)
        getattr(library, f"velor_{kind}_property")(index, ctypes.byref(row))
        yield method(row)


def write_methods(path, output):
    library = load(path)
    parts = [HEAD]
    for kind, name, purpose in (
        ("mixture", "MixtureProperties", "Properties of a mixture, a method each."),
        ("pure", "PureProperties", "Properties of a component alone, a method each."),
    ):
        parts += [CLASS.format(name=name, purpose=purpose), *methods(library, kind)]
    Path(output).write_text("".join(parts), encoding="utf-8")
