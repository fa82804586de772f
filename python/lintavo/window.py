"""The window: reading, changing, calculating, writing, drawing."""

from __future__ import annotations

import ctypes
import enum
import os
import sys
import weakref
from dataclasses import dataclass
from typing import Any, List, NamedTuple, Optional, Tuple, Type, Union

from . import _calls, _library
from ._functions import OpeningStruct
from .errors import CalculationError, LintavoError, PictureError, ReadError, WriteError
from .geometry import Box, Line, Polygon
from .parts import Dimensions, Part, PartKind
from .sash import Sash

Path = Union[str, "os.PathLike[str]"]

_LINE_END = ord("#")
_SVG, _PDF, _PNG, _DXF = 0, 1, 2, 3
_PICTURE_OK = 0


def encode_path(path: Path) -> bytes:
    """A path as the library takes it: UTF-8 on Windows, elsewhere the system's own
    bytes."""
    name = os.fspath(path)
    return name.encode("utf-8") if sys.platform == "win32" else os.fsencode(name)


@dataclass(frozen=True)
class Opening:
    """Margins between a frame and its wall opening; a positive reveal makes the
    opening smaller than the frame on that side. Splay angles are in radians; a
    splay replaces the reveal of its side by tan(angle) * depth outwards."""

    top: float = 0.0
    bottom: float = 0.0
    right: float = 0.0
    left: float = 0.0
    right_splay: Optional[float] = None
    left_splay: Optional[float] = None
    depth: float = 0.0

    def _struct(self) -> OpeningStruct:
        return OpeningStruct(
            schraege1=int(self.right_splay is not None),
            schraege2=int(self.left_splay is not None),
            winkel1=self.right_splay or 0.0,
            winkel2=self.left_splay or 0.0,
            leibung_a=self.top,
            leibung_b=self.bottom,
            leibung_c=self.right,
            leibung_d=self.left,
            tiefe=self.depth,
        )


def _margins(opening: Optional[Opening]):
    return None if opening is None else ctypes.byref(opening._struct())


class PictureOptions(enum.IntFlag):
    """What a picture shows; combined by ``|``."""

    NONE = 0  #: filled shapes from inside, with dimensions and opening symbols
    OUTSIDE = 1  #: seen from outside
    NO_DIMENSIONS = 2  #: without dimension lines and their texts
    NO_SYMBOLS = 4  #: without opening symbols
    VISIBLE_EDGES = 8  #: visible edges instead of filled shapes
    CHAINS = 16  #: dimension lines in rows below and left of the drawing
    TITLE = 32  #: name, size, scale and opening kinds below the drawing
    ENGLISH = 64  #: words in English instead of German


class Unit(enum.IntEnum):
    """What one unit of a window's numbers is."""

    MILLIMETRE = 0
    CENTIMETRE = 1
    METRE = 2


class Plan(NamedTuple):
    """How a picture stands on paper."""

    scale: float = 0.0  #: 20 draws to a scale of 1:20; 0 fits into a picture of usual size
    unit: Unit = Unit.CENTIMETRE  #: only a scale asks for it
    pixels: int = 0  #: width of a PNG in pixels; 0 leaves that to ``dpi``
    dpi: float = 0.0  #: pixels per inch of a PNG; 0 is the usual size


class _PlanRecord(ctypes.Structure):
    _fields_ = [
        ("scale", ctypes.c_double),
        ("unit", ctypes.c_int),
        ("pixels", ctypes.c_int),
        ("dpi", ctypes.c_double),
    ]


def _record_of(plan: Plan) -> Any:
    return ctypes.byref(_PlanRecord(plan.scale, plan.unit, plan.pixels, plan.dpi))


class Window:
    """A parametric window.

    ``Window()`` is empty; ``Window.read`` and ``Window.from_bytes`` make calculated
    ones. Setting a dimension or a measure stores it, ``calculate`` applies what was
    stored, everything else answers from the last calculation. The window's memory is
    released by ``close``, at the end of a ``with`` block, or with the object. One
    window is used by one thread at a time.
    """

    def __init__(self) -> None:
        self._own(_calls.call("lintavo_window_create"))

    def _own(self, handle: Optional[int]) -> None:
        if not handle:
            raise MemoryError
        self._handle: Optional[int] = handle
        self._finalizer = weakref.finalize(
            self, _library.main().lintavo_window_destroy, handle
        )

    @property
    def handle(self) -> int:
        """The handle of the C interface; ValueError once the window is closed."""
        if self._handle is None:
            raise ValueError("the window is closed")
        return self._handle

    def close(self) -> None:
        """Releases the window; doing so again is allowed."""
        self._handle = None
        self._finalizer()

    def __enter__(self) -> "Window":
        return self

    def __exit__(self, *_: object) -> None:
        self.close()

    # --- reading and writing

    @classmethod
    def read(cls, path: Path) -> "Window":
        """Reads a plain or compressed macro file and calculates. Raises ReadError."""
        window = cls()
        name = encode_path(path)
        compressed = _calls.call("lintavo_is_file_compressed", name)
        function = "lintavo_window_read_from_" + ("compressed_file" if compressed else "file")
        if not _calls.call(function, window.handle, name):
            raise window._failure(ReadError, f"{os.fspath(path)!r} cannot be read")
        return window

    @classmethod
    def from_bytes(cls, data: bytes) -> "Window":
        """Reads what ``to_bytes`` made and calculates. Raises ReadError."""
        window = cls()
        function = "lintavo_window_read_from_buffer"
        if not _calls.call(function, window.handle, data, len(data), _LINE_END):
            raise window._failure(ReadError, "the bytes cannot be read")
        return window

    def to_bytes(self) -> bytes:
        """The lines of the macro file, each followed by "#"."""
        with _calls.record("bytes") as block:
            if not _calls.call("lintavo_window_write_to_buffer", self.handle, block):
                raise WriteError(0, "the window cannot be written")
            return _calls.content_of(block)

    def write(self, path: Path) -> None:
        """Writes a plain macro file. Raises WriteError."""
        if not _calls.call("lintavo_window_write_to_file", self.handle, encode_path(path)):
            raise WriteError(0, f"{os.fspath(path)!r} cannot be written")

    def copy(self) -> "Window":
        """A window of its own with all that this one holds."""
        copied = type(self).__new__(type(self))
        copied._own(_calls.call("lintavo_window_copy", self.handle))
        return copied

    __copy__ = copy

    def __deepcopy__(self, _: object) -> "Window":
        return self.copy()

    def _failure(self, kind: Type[LintavoError], otherwise: str) -> LintavoError:
        number = _calls.call("lintavo_window_get_error_id", self.handle)
        message = _calls.text("lintavo_window_get_error_msg", self.handle)
        return kind(number, message) if number and message else kind(number, otherwise)

    # --- the whole

    @property
    def name(self) -> str:
        """The window's designation."""
        return _calls.text("lintavo_window_get_fenster_bezeichnung", self.handle)

    @property
    def width(self) -> float:
        """Overall width; 0.0 for an empty window."""
        return _calls.call("lintavo_window_get_fenster_breite", self.handle)

    @property
    def height(self) -> float:
        """Overall height; 0.0 for an empty window."""
        return _calls.call("lintavo_window_get_fenster_hoehe", self.handle)

    @property
    def dimensions(self) -> Dimensions:
        """The dimensions by which the window can be changed."""
        return Dimensions(self)

    def calculate(self) -> None:
        """Applies what was stored. Raises CalculationError."""
        if not _calls.call("lintavo_window_berechne", self.handle):
            raise self._failure(CalculationError, "the window cannot be calculated")

    def fit(self, width: float, height: float, opening: Optional[Opening] = None) -> None:
        """Fits the window into a wall opening and calculates. Raises CalculationError,
        also for a window without dimensions for its overall width and height."""
        function = "lintavo_window_set_breite_hoehe"
        if not _calls.call(function, self.handle, _margins(opening), width, height):
            raise CalculationError(0, f"the window cannot be fitted into {width} x {height}")
        self.calculate()

    def opening_polygon(self, opening: Optional[Opening] = None) -> Polygon:
        """Outline of the wall opening that the window fits into."""
        function = "lintavo_window_get_wand_oeffnung"
        return _calls.polygon(function, self.handle, _margins(opening))

    # --- the frame

    @property
    def frame_width(self) -> float:
        """Width of the first frame part; sets the width of all, at least 1e-6."""
        return _calls.call("lintavo_window_get_rahmen_breite", self.handle)

    @frame_width.setter
    def frame_width(self, value: float) -> None:
        if not _calls.call("lintavo_window_set_rahmen_breite", self.handle, value):
            raise ValueError(f"{value!r} is no width for the frame")

    @property
    def frame_thickness(self) -> float:
        """Thickness of the first frame part; sets that of all, at least 1e-6."""
        return _calls.call("lintavo_window_get_rahmen_dicke", self.handle)

    @frame_thickness.setter
    def frame_thickness(self, value: float) -> None:
        if not _calls.call("lintavo_window_set_rahmen_dicke", self.handle, value):
            raise ValueError(f"{value!r} is no thickness for the frame")

    @property
    def frame_section(self) -> float:
        """Sides shorter than this that turn by less than 25 degrees are merged into one
        bent frame part. Where none is set it is 100 or, if that is more, a sixth of the
        larger extent of the calculated frame; setting 0 gives that back. No file has it:
        reading another window keeps it, copies have it."""
        return _calls.call("lintavo_window_get_rahmen_abschnitt", self.handle)

    @frame_section.setter
    def frame_section(self, value: float) -> None:
        if not _calls.call("lintavo_window_set_rahmen_abschnitt", self.handle, value):
            raise ValueError(f"{value!r} is no length of a section")

    @property
    def frame_parts(self) -> List[Part]:
        return _calls.parts("rahmen", self.handle, PartKind.FRAME)

    @property
    def single_parts(self) -> List[Part]:
        """Mullions, transoms and extra parts of the frame."""
        return _calls.parts("rahmen", self.handle, PartKind.SINGLE)

    @property
    def sashes(self) -> List[Sash]:
        count = max(0, _calls.call("lintavo_window_get_anzahl_fluegel", self.handle))
        return [Sash(self, index) for index in range(count)]

    # --- drawings

    def view(self, *, outside: bool = False) -> Tuple[Line, ...]:
        """The front view with hidden lines removed, from inside or outside."""
        return _calls.lines("lintavo_window_get_ansicht", self.handle, int(outside))

    def box(self, overhang: float = 0.0) -> Optional[Box]:
        """The bounding box with all dimensions, whose extension lines are ``overhang``
        long; None for an empty window."""
        found = _calls.numbers("lintavo_window_get_box", 4, self.handle, overhang)
        return None if found is None else Box(*found)

    def _picture(self, picture_format: int, options: PictureOptions, plan: Plan) -> bytes:
        with _calls.record("bytes") as block:
            draw = _library.drawing().lintavo_window_draw_plan
            _check_picture(
                draw(self.handle, picture_format, int(options), _record_of(plan), block)
            )
            return _calls.content_of(block)

    def svg(self, options: PictureOptions = PictureOptions.NONE, plan: Plan = Plan()) -> str:
        """The picture as SVG text. Raises PictureError."""
        return self._picture(_SVG, options, plan).decode("utf-8")

    def dxf(self, options: PictureOptions = PictureOptions.NONE, plan: Plan = Plan()) -> bytes:
        """The picture as DXF R12 in the window's own coordinates. Raises PictureError."""
        return self._picture(_DXF, options, plan)

    def pdf(self, options: PictureOptions = PictureOptions.NONE, plan: Plan = Plan()) -> bytes:
        """The picture as PDF. Raises PictureError."""
        return self._picture(_PDF, options, plan)

    def png(self, options: PictureOptions = PictureOptions.NONE, plan: Plan = Plan()) -> bytes:
        """The picture as PNG. Raises PictureError."""
        return self._picture(_PNG, options, plan)

    def draw(
        self, path: Path, options: PictureOptions = PictureOptions.NONE, plan: Plan = Plan()
    ) -> None:
        """Draws a file whose ending says the format: svg, dxf, pdf, png. Raises PictureError."""
        library = _library.drawing()
        name = encode_path(path)
        picture_format = library.lintavo_picture_format_from_path(name)
        draw = library.lintavo_window_draw_plan_to_file
        _check_picture(draw(self.handle, picture_format, int(options), _record_of(plan), name))

    def _repr_svg_(self) -> Optional[str]:
        """What a notebook shows; nothing for a window that cannot be drawn."""
        try:
            return self.svg()
        except LintavoError:
            return None

    def __repr__(self) -> str:
        if self._handle is None:
            return "<Window, closed>"
        return f"<Window {self.name!r} {self.width:g} x {self.height:g}>"


def _check_picture(status: int) -> None:
    if status != _PICTURE_OK:
        message = _library.drawing().lintavo_picture_status_text(status).decode("ascii")
        raise PictureError(status, message)


def stored_name(path: Path) -> str:
    """The designation that a macro file stores, without reading the whole window."""
    return _calls.text("lintavo_get_bezeichnung_from_file", encode_path(path))


def find_window_file(directory: Path) -> Optional[str]:
    """The first macro file in a folder and the folders below; None without any."""
    found = _calls.text_bytes("lintavo_get_valid_makro_file", encode_path(directory))
    return os.fsdecode(found) or None
