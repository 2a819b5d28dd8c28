"""What the package raises and warns of. Texts are the library's: Czech."""

from __future__ import annotations

from typing import Sequence

INVALID_CALL = 5
SUBSCRIPT = 9
TYPE_MISMATCH = 13


class Error(Exception):
    """What the library or the package refuses.

    Attributes
    ----------
    text : str
        What is wrong, in Czech.
    number : int
        The classic number of the error: 5 invalid call, 9 an index or a length, 13 a wrong type, 53 file not found ...;
        0 where it has none.
    """

    def __init__(self, text: str, number: int = 0) -> None:
        super().__init__(text, number)
        self.text = text
        self.number = number

    def __str__(self) -> str:
        return f"{self.text} (chyba {self.number})" if self.number else self.text


class UsageError(Error, ValueError):
    """A length, a shape or a value that does not fit."""


class TypeMismatchError(Error, TypeError):
    """A text or another thing where numbers belong, a unit of another quantity."""


class UnknownPropertyError(Error, KeyError):
    """A code that is not in the catalogue."""


class UnknownSubstanceError(Error, KeyError):
    """A name that no substance or more than one has.

    Attributes
    ----------
    candidates : tuple of str
        The names of those that may have been meant, the likeliest first.
    """

    def __init__(self, text: str, number: int = 0, candidates: Sequence[str] = ()) -> None:
        super().__init__(text, number)
        self.args = (text, number, tuple(candidates))  # for pickle
        self.candidates = tuple(candidates)


class DatabaseError(Error):
    """A database that cannot be read; the number tells why: 53, 70, 75, 76 or 13 where the file is none."""


class LibraryError(Error):
    """The library was not found or cannot be loaded."""


class ClosedError(LibraryError):
    """The library was closed by :func:`velor.close`."""


class NoMemoryError(Error, MemoryError):
    """There is no memory for the computation."""


class VelorWarning(UserWarning):
    """Values that are missing or to be read with care; told once a call."""


for _public in (Error, *Error.__subclasses__(), ClosedError, VelorWarning):
    _public.__module__ = "velor"  # where callers know them from
