"""velor.h as ctypes sees it. Imports nothing of the package: the script that writes the methods uses it, too."""

from __future__ import annotations

import ctypes
from ctypes import POINTER, Structure, c_char, c_char_p, c_double, c_int, c_size_t, c_ssize_t, c_void_p, sizeof
from typing import Any, Dict, Optional, Tuple, Type

FOUND, INTERPRETED, UNKNOWN, SEVERAL = range(4)
WRONG_USE, RUN_TIME_ERROR, NO_MEMORY = 1, 2, 3


class CError(Structure):
    _fields_ = [("size", c_size_t), ("number", c_int), ("text", c_char * 256)]


class CProperty(Structure):
    _fields_ = [
        ("size", c_size_t),
        ("code", c_char_p),
        ("caption", c_char_p),
        ("symbol", c_char_p),
        ("unit", c_char_p),
        ("rule", c_char_p),
        ("phase", c_int),
        ("needs_temperature", c_int),
        ("needs_pressure", c_int),
    ]


class CSubstance(Structure):
    _fields_ = [
        ("size", c_size_t),
        ("number", c_int),
        ("name", c_char_p),
        ("synonym", c_char_p),
        ("formula", c_char_p),
        ("cas", c_char_p),
    ]


class CCorrelation(Structure):
    _fields_ = [
        ("size", c_size_t),
        ("is_given", c_int),
        ("type", c_int),
        ("equation", c_char_p),
        ("coefficients", c_double * 6),
        ("t_min", c_double),
        ("t_max", c_double),
    ]


class CProvenance(Structure):
    _fields_ = [("size", c_size_t), ("source", c_char_p), ("deviation", c_double), ("is_estimate", c_int)]


class CSettings(Structure):
    _fields_ = [("size", c_size_t), ("soave", c_int), ("clamped", c_int)]


class CSeries(Structure):
    _fields_ = [("values", c_void_p), ("count", c_size_t)]


class CCompositions(Structure):
    _fields_ = [
        ("size", c_size_t),
        ("values", c_void_p),
        ("count", c_size_t),
        ("component_stride", c_ssize_t),
        ("point_stride", c_ssize_t),
        ("by_mass", c_int),
        ("normalised", c_int),
    ]


class CFlashResults(Structure):
    _fields_ = [
        ("size", c_size_t),
        ("outcomes", c_void_p),
        ("verdicts", c_void_p),
        ("passes", c_void_p),
        ("vapour_fractions", c_void_p),
        ("temperatures", c_void_p),
        ("bubble_points", c_void_p),
        ("dew_points", c_void_p),
        ("material_residuals", c_void_p),
        ("energy_residuals", c_void_p),
        ("liquids", c_void_p),
        ("vapours", c_void_p),
        ("equilibriums", c_void_p),
        ("fraction_count", c_size_t),
        ("component_stride", c_ssize_t),
        ("point_stride", c_ssize_t),
    ]


_INDEX = (c_int,)
_FIND = (c_void_p, c_char_p, POINTER(c_int), POINTER(c_int), c_int, POINTER(c_int), POINTER(CError))
_RESULTS = (c_size_t, c_void_p, c_void_p, c_int, POINTER(CError))
_FUNCTIONS: Dict[str, Tuple[Optional[Type[Any]], Tuple[Any, ...]]] = {
    "velor_version": (c_char_p, ()),
    "velor_verdict_count": (c_int, ()),
    "velor_verdict_word": (c_char_p, _INDEX),
    "velor_verdict_mark": (c_char_p, _INDEX),
    "velor_verdict_note": (c_char_p, _INDEX),
    "velor_verdict_has_value": (c_int, _INDEX),
    "velor_mixture_property_count": (c_int, ()),
    "velor_mixture_property": (c_int, (c_int, POINTER(CProperty))),
    "velor_pure_property_count": (c_int, ()),
    "velor_pure_property": (c_int, (c_int, POINTER(CProperty))),
    "velor_database_open": (c_int, (c_char_p, POINTER(c_void_p), POINTER(CError))),
    "velor_database_close": (None, (c_void_p,)),
    "velor_database_count": (c_int, (c_void_p,)),
    "velor_database_substance": (c_int, (c_void_p, c_int, POINTER(CSubstance))),
    "velor_database_find": (c_int, _FIND),
    "velor_constant_count": (c_int, ()),
    "velor_constant_key": (c_char_p, _INDEX),
    "velor_constant_unit": (c_char_p, _INDEX),
    "velor_database_constant": (c_int, (c_void_p, c_int, c_int, POINTER(c_double))),
    "velor_database_correlation": (c_int, (c_void_p, c_int, c_int, POINTER(CCorrelation))),
    "velor_database_provenance": (c_int, (c_void_p, c_int, c_int, POINTER(CProvenance))),
    "velor_database_supplement_note": (c_char_p, (c_void_p,)),
    "velor_database_further_name": (c_char_p, (c_void_p, c_int, c_int)),
    "velor_mixture_create": (
        c_int,
        (c_void_p, POINTER(c_int), c_int, POINTER(CSettings), POINTER(c_void_p), POINTER(CError)),
    ),
    "velor_mixture_free": (None, (c_void_p,)),
    "velor_evaluate": (c_int, (c_void_p, c_int, CSeries, CSeries, POINTER(CCompositions)) + _RESULTS),
    "velor_evaluate_pure": (c_int, (c_void_p, c_int, c_int, CSeries) + _RESULTS),
    "velor_flash": (
        c_int,
        (c_void_p, c_int, CSeries, CSeries, POINTER(CCompositions), c_size_t, POINTER(CFlashResults), c_int)
        + (POINTER(CError),),
    ),
}


def load(path: str) -> ctypes.CDLL:
    """Errors: OSError where it cannot be loaded, AttributeError where a function is missing."""
    dll = ctypes.CDLL(path)
    for name, (result, arguments) in _FUNCTIONS.items():
        function = getattr(dll, name)
        function.restype = result
        function.argtypes = arguments
    return dll


def sized(structure: Type[Any]) -> Any:
    """A structure that tells its own size, as the library asks for."""
    return structure(sizeof(structure))


def text(found: Optional[bytes]) -> str:
    return (found or b"").decode("utf-8")
