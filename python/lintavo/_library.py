"""Finds and loads the shared libraries and declares their functions."""

from __future__ import annotations

import ctypes
import functools
import os
import sys
from pathlib import Path
from typing import List

from ._functions import DRAWING_FUNCTIONS, FUNCTIONS, Signatures
from .errors import LibraryNotFound

#: Names a folder, or the file of the main library, to load from.
LIBRARY_VARIABLE = "LINTAVO_LIBRARY"

#: The major version of the C interface that this package speaks.
_MAJOR = 1


def _file_name(name: str) -> str:
    if sys.platform == "win32":
        return f"lib{name}.dll"
    if sys.platform == "darwin":
        return f"lib{name}.{_MAJOR}.dylib"
    return f"lib{name}.so.{_MAJOR}"


def _candidates(name: str) -> List[str]:
    file_name = _file_name(name)
    chosen = os.environ.get(LIBRARY_VARIABLE)
    if chosen:
        # What the user names is taken or reported, never silently passed over.
        path = Path(chosen)
        if path.is_dir():
            return [str(path / file_name)]
        return [str(path if name == "lintavo" else path.parent / file_name)]
    beside = Path(__file__).resolve().parent / file_name
    return [str(beside), file_name] if beside.exists() else [file_name]


def _load(name: str, functions: Signatures) -> ctypes.CDLL:
    problems = []
    for candidate in _candidates(name):
        try:
            library = ctypes.CDLL(candidate)
            for function, (result, arguments) in functions.items():
                declared = getattr(library, function)
                declared.restype = result
                declared.argtypes = arguments
            return library
        except (OSError, AttributeError) as problem:
            problems.append(str(problem))
    raise LibraryNotFound(
        f"the library {name} cannot be loaded: {'; '.join(problems)}. "
        f"Install it, or set {LIBRARY_VARIABLE} to the folder it lies in."
    )


@functools.lru_cache(maxsize=None)
def main() -> ctypes.CDLL:
    """The library itself."""
    return _load("lintavo", FUNCTIONS)


@functools.lru_cache(maxsize=None)
def drawing() -> ctypes.CDLL:
    """The library of pictures."""
    main()
    return _load("lintavo-drawing", DRAWING_FUNCTIONS)


def library_version() -> str:
    """Version of the loaded library, "1.0.0"."""
    return main().lintavo_version().decode("ascii")
