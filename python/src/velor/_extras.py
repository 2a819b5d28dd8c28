"""Packages that only some of it needs."""

from __future__ import annotations

import importlib
from typing import Any


def needed(module: str, extra: str) -> Any:
    """The module, or an ImportError that says how to get it."""
    try:
        return importlib.import_module(module)
    except ImportError as fault:
        package = module.partition(".")[0]
        raise ImportError(f"Chybí balíček {package}: pip install 'velor[{extra}]'", name=package) from fault
