"""The doctor of the installation: python -m velor."""

from __future__ import annotations

import platform
import sys
import warnings
from importlib import metadata
from typing import Any, Callable, List, NamedTuple

import numpy as np

import velor

from . import _library


class Known(NamedTuple):
    """A published figure, and how near the data and the equations come to it."""

    what: str
    compute: Callable[[], Any]
    published: float
    unit: str
    within: float  # of itself


def _one(substance: str) -> velor.Mixture:
    return velor.Mixture(substance)


# IAPWS-95 of water, NIST Chemistry WebBook of the others.
KNOWN: List[Known] = [
    Known("voda: kritická teplota", lambda: velor.substances["voda"].constants["Tkr"], 647.096, "K", 1e-4),
    Known("voda: molární hmotnost", lambda: _one("voda").VSM(), 0.018015, "kg/mol", 1e-3),
    Known("voda: bod varu při 101325 Pa", lambda: _one("voda").TBV(101325), 373.124, "K", 1e-3),
    Known("voda: hustota kapaliny při 300 K", lambda: _one("voda").ROLW(300), 996.5, "kg/m³", 2e-3),
    Known("voda: viskozita kapaliny při 300 K", lambda: _one("voda").ETAL(300), 8.54e-4, "Pa·s", 0.03),
    Known("voda: povrchové napětí při 300 K", lambda: _one("voda").SIGMA(300), 0.0717, "N/m", 0.02),
    Known("ethanol: bod varu při 101325 Pa", lambda: _one("ethanol").TBV(101325), 351.4, "K", 3e-3),
    Known("methan: hustota plynu, 150 K, 1.04 MPa", lambda: _one("methan").RROGW(150, 1.04e6), 16.33, "kg/m³", 0.03),
    Known("dusík: viskozita plynu při 300 K", lambda: _one("dusík").ETAG(300), 1.79e-5, "Pa·s", 0.03),
    Known("benzen: výparné teplo při 353.2 K", lambda: _one("benzen").DHV(353.2), 30720.0, "J/mol", 0.03),
]


def _told(name: str, value: str) -> None:
    print(f"{name + ':':23}{value}")


def _version_of(package: str) -> str:
    try:
        return f"{package} {metadata.version(package)}"
    except metadata.PackageNotFoundError:
        return f"{package} není"


def _installation() -> None:
    _told("Python", f"{platform.python_version()}, {platform.system()} {platform.machine()}")
    _told("numpy", np.__version__)
    _told("volitelné balíčky", ", ".join(map(_version_of, ("pandas", "matplotlib", "pint", "distributed"))))
    _told("velor", velor.__version__)
    version = _library.library().version()
    _told("knihovna", f"{_library.LIBRARY_PATH}, verze {version}")
    if version != velor.__version__:
        raise velor.LibraryError("Knihovna a balíček nejsou téže verze.")
    _told("databáze", f"{velor.substances.path}, {len(velor.substances)} látek")
    _told("zdroje a další jména", velor.substances.supplement_note or "v doplňku databáze")
    _told("vlastnosti", f"{len(velor.properties)} směsí, {len(velor.pure_properties)} čistých látek")


def _is_met(known: Known) -> bool:
    value = known.compute()
    is_met = bool(abs(value - known.published) <= known.within * known.published)
    told = "v pořádku" if is_met else "NESOUHLASÍ"
    print(f"  {told:11}{known.what}: {value:.6g} {known.unit} (má být {known.published:g})")
    return is_met


def main() -> int:
    """0 where all is well."""
    for stream in (sys.stdout, sys.stderr):
        getattr(stream, "reconfigure", lambda **_: None)(errors="replace")
    try:
        _installation()
        print("známé hodnoty:")
        with warnings.catch_warnings():
            warnings.simplefilter("ignore", velor.VelorWarning)
            is_well = all([_is_met(known) for known in KNOWN])
    except velor.Error as error:
        print(f"CHYBA: {error}", file=sys.stderr)
        return 1
    print("Instalace je v pořádku." if is_well else "Instalace v pořádku není.")
    return 0 if is_well else 1


if __name__ == "__main__":
    sys.exit(main())
