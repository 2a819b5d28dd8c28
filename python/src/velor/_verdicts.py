"""Verdicts: how a value came about, or why there is none."""

from __future__ import annotations

import functools
import sys
import warnings
from dataclasses import dataclass
from pathlib import Path
from typing import Any, Dict, Iterator, Mapping, Tuple, Union

import numpy as np
from numpy.typing import NDArray

from ._declarations import text
from ._errors import VelorWarning
from ._library import FOLDER, Codes, library


@dataclass(frozen=True)
class Verdict:
    """How a value came about.

    Attributes
    ----------
    number : int
        Those that weigh more are greater; 0 is a value in the range of all correlations.
    word : str
        One Czech word for machines.
    mark : str
        The sign that tables show behind the value.
    note : str
        A Czech sentence; empty where there is nothing to say.
    has_value : bool
        False where the value is NaN.
    """

    number: int
    word: str
    mark: str
    note: str
    has_value: bool

    @property
    def in_range(self) -> bool:
        """Whether there is nothing to say."""
        return self.number == 0

    def __str__(self) -> str:
        return self.word


@functools.lru_cache(maxsize=None)
def all_verdicts() -> Tuple[Verdict, ...]:
    """Every verdict there is, by its number."""
    told = library()
    return tuple(
        Verdict(
            number,
            text(told.call("velor_verdict_word", number)),
            text(told.call("velor_verdict_mark", number)),
            text(told.call("velor_verdict_note", number)),
            bool(told.call("velor_verdict_has_value", number)),
        )
        for number in range(told.call("velor_verdict_count"))
    )


class Verdicts:
    """The verdicts on an array of values, in its shape.

    Indexing by numbers gives a :class:`Verdict`, by slices :class:`Verdicts`.

    Attributes
    ----------
    codes : ndarray of int
        The number of each verdict.
    """

    def __init__(self, codes: Codes) -> None:
        self.codes = codes

    @property
    def shape(self) -> Tuple[int, ...]:
        return self.codes.shape

    @property
    def words(self) -> NDArray[Any]:
        """The word of each."""
        return np.array([verdict.word for verdict in all_verdicts()])[self.codes]

    @property
    def has_value(self) -> NDArray[np.bool_]:
        return np.array([verdict.has_value for verdict in all_verdicts()])[self.codes]

    @property
    def in_range(self) -> NDArray[np.bool_]:
        """Where there is nothing to say of the value."""
        return np.equal(self.codes, 0)

    def counts(self) -> Dict[Verdict, int]:
        """How often each verdict occurs, those that weigh more first."""
        numbers = np.bincount(self.codes.ravel(), minlength=len(all_verdicts()))
        found = [verdict for verdict in reversed(all_verdicts()) if numbers[verdict.number]]
        return {verdict: int(numbers[verdict.number]) for verdict in found}

    def __len__(self) -> int:
        return len(self.codes)

    def __iter__(self) -> Iterator[Union[Verdict, Verdicts]]:
        return (self[i] for i in range(len(self)))

    def __getitem__(self, index: Any) -> Union[Verdict, Verdicts]:
        found = self.codes[index]
        return verdicts_of(np.asarray(found))

    def __repr__(self) -> str:
        return f"Verdicts({np.array2string(self.words, threshold=20)})"


def verdicts_of(codes: Codes) -> Union[Verdict, Verdicts]:
    """One verdict for a number without a shape."""
    return all_verdicts()[int(codes)] if codes.ndim == 0 else Verdicts(codes)


def _caller() -> int:
    """The stack level of the first caller outside the package."""
    level, frame = 1, sys._getframe(1)
    while frame.f_back is not None and Path(frame.f_code.co_filename).parent == FOLDER:
        level, frame = level + 1, frame.f_back
    return level


def warn(message: str) -> None:
    """Tell the caller of the package."""
    warnings.warn(message, VelorWarning, stacklevel=_caller())


def warn_of(computed: Mapping[str, Codes]) -> None:
    """Tell once which values of what was computed are not in range."""
    told = []
    for what, codes in computed.items():
        if codes.any():
            counts = Verdicts(codes).counts().items()
            notes = [f"{one.word} ({count}): {one.note}" for one, count in counts if not one.in_range]
            told.append(f"{what}, {np.count_nonzero(codes)} z {codes.size} hodnot: {' '.join(notes)}")
    if told:
        warn("\n".join(told))
