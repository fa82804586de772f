"""Where the tests find the example windows, and the headers they check against."""

import os
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
WINDOWS = ROOT / "examples" / "windows"


def example(name: str) -> Path:
    return WINDOWS / name


def has_pictures() -> bool:
    """False where the drawing library was not built."""
    return os.environ.get("LINTAVO_WITHOUT_PICTURES") is None


needs_pictures = unittest.skipUnless(has_pictures(), "built without the drawing library")
