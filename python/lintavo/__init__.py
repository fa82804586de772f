"""Parametric windows: read, fit, change, calculate and draw them.

    import lintavo

    with lintavo.Window.read("fenster.aqz") as window:
        window.fit(180, 150)
        window.dimensions["Kaempfer"] = 40
        window.calculate()
        for part in window.frame_parts:
            print(part.length, part.start_angle, part.end_angle)
        window.draw("fenster.svg")

Lengths are in the window's own drawing units, x runs to the right and y upwards,
angles are in degrees unless said otherwise. The package calls the C interface of
the library ``lintavo``; see ``lintavo.library_version``.
"""

from ._library import library_version
from .errors import (
    CalculationError,
    LibraryNotFound,
    LintavoError,
    PictureError,
    ReadError,
    WriteError,
)
from .geometry import Box, Line, Point, Polygon
from .parts import Dimension, Dimensions, FillingKind, Fitting, Part, PartKind
from .sash import Filling, Sash
from .position import Position
from .window import (
    Opening,
    PictureOptions,
    Plan,
    Unit,
    Window,
    find_window_file,
    stored_name,
)

__all__ = [
    "Box",
    "CalculationError",
    "Dimension",
    "Dimensions",
    "Filling",
    "FillingKind",
    "Fitting",
    "LibraryNotFound",
    "Line",
    "LintavoError",
    "Opening",
    "Part",
    "PartKind",
    "PictureError",
    "PictureOptions",
    "Plan",
    "Point",
    "Polygon",
    "Position",
    "ReadError",
    "Sash",
    "Unit",
    "Window",
    "WriteError",
    "find_window_file",
    "library_version",
    "stored_name",
]
