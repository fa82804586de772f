"""The few shapes that calls of the C interface have, as Python functions."""

from __future__ import annotations

import ctypes
from contextlib import contextmanager
from typing import TYPE_CHECKING, Any, Iterator, List, Optional, Tuple

from . import _library
from ._functions import Segment
from .geometry import Line, Point, Polygon

if TYPE_CHECKING:
    from .parts import Part, PartKind

#: Suffices for every text of a window, its terminating zero included.
_TEXT_SIZE = 257

_ALL_SEGMENTS = -1


def decode(data: bytes) -> str:
    """Text of a window's file, whose encoding is not stated: UTF-8 where it is that,
    otherwise Windows-1252. A character cut off at the end is dropped."""
    try:
        return data.decode("utf-8")
    except UnicodeDecodeError as problem:
        cut = problem.reason == "unexpected end of data" and len(data) >= _TEXT_SIZE - 1
        if cut:
            return data[: problem.start].decode("utf-8")
        return data.decode("cp1252", errors="replace")


def call(function: str, *arguments: Any) -> Any:
    """The plain result of a function."""
    return getattr(_library.main(), function)(*arguments)


def text(function: str, *arguments: Any) -> str:
    """The text that a function hands out behind its other arguments."""
    return decode(text_bytes(function, *arguments))


def text_bytes(function: str, *arguments: Any) -> bytes:
    """The same as it stands, for paths."""
    size = _TEXT_SIZE
    while True:
        buffer = ctypes.create_string_buffer(size)
        length = call(function, *arguments, buffer, size)
        if length < size:
            return buffer.raw[:length]
        size = length + 1


def numbers(function: str, count: int, *arguments: Any) -> Optional[Tuple[float, ...]]:
    """The numbers that a function hands out behind its other arguments; None on failure."""
    values = [ctypes.c_double() for _ in range(count)]
    if not call(function, *arguments, *(ctypes.byref(value) for value in values)):
        return None
    return tuple(value.value for value in values)


@contextmanager
def record(kind: str) -> Iterator[int]:
    """A handle of the given kind for the time of one call."""
    handle = call(f"lintavo_{kind}_create")
    if not handle:
        raise MemoryError
    try:
        yield handle
    finally:
        call(f"lintavo_{kind}_destroy", handle)


def content_of(bytes_handle: int) -> bytes:
    size = call("lintavo_bytes_get_size", bytes_handle)
    return ctypes.string_at(call("lintavo_bytes_get_data", bytes_handle), size)


def to_polygon(handle: int) -> Polygon:
    count = call("lintavo_polygon_get_anzahl", handle)
    if count <= 0:
        return Polygon()
    xs = call("lintavo_polygon_get_x", handle)
    ys = call("lintavo_polygon_get_y", handle)
    return Polygon(zip(xs[:count], ys[:count]))


def polygon(function: str, *arguments: Any) -> Polygon:
    """The polygon that a function fills; empty on failure."""
    with record("polygon") as handle:
        return to_polygon(handle) if call(function, *arguments, handle) else Polygon()


def lines(function: str, *arguments: Any) -> Tuple[Line, ...]:
    """The segments that a function fills; none on failure."""
    with record("segments") as handle:
        if not call(function, *arguments, handle):
            return ()
        return tuple(
            _line(handle, i) for i in range(call("lintavo_segments_get_anzahl", handle))
        )


def _line(handle: int, i: int) -> Line:
    segment = Segment()
    call("lintavo_segments_get_strecke", handle, i, ctypes.byref(segment))
    return Line(
        Point(segment.x1, segment.y1),
        Point(segment.x2, segment.y2),
        segment.farbe,
        segment.prio,
    )


def parts(owner: str, window: int, kind: "PartKind", *sash: int) -> List["Part"]:
    """All components of one kind: of the frame ("rahmen"), or of a sash ("fluegel")
    with its index."""
    names = {
        "rahmen": "lintavo_window_get_anzahl_rahmen_bauteile",
        "fluegel": "lintavo_window_get_fluegel_anzahl_bauteile",
    }
    count = max(0, call(names[owner], window, int(kind), *sash))
    found = (_part(owner, window, kind, *sash, i) for i in range(count))
    return [part for part in found if part is not None]


def _part(owner: str, window: int, kind: "PartKind", *place: int) -> Optional["Part"]:
    names = {
        "rahmen": "lintavo_window_get_anzahl_rahmen_bauteil_segmente",
        "fluegel": "lintavo_window_get_fluegel_anzahl_bauteil_segmente",
    }
    count = max(0, call(names[owner], window, int(kind), *place))
    segments = (_segment(owner, window, kind, *place, segment=s) for s in range(count))
    whole = tuple(segment for segment in segments if segment is not None)
    return _segment(owner, window, kind, *place, segment=_ALL_SEGMENTS, segments=whole)


def _segment(
    owner: str,
    window: int,
    kind: "PartKind",
    *place: int,
    segment: int,
    segments: Tuple["Part", ...] = (),
) -> Optional["Part"]:
    from .parts import Part  # parts.py itself calls this module

    arguments = (window, int(kind), *place)
    with record("polygon") as outline:
        measures = numbers(
            f"lintavo_window_get_{owner}_bauteil_umriss", 3, *arguments, segment, outline
        )
        if measures is None:
            return None
        thickness = call(f"lintavo_window_get_{owner}_bauteil_dicke", *arguments)
        return Part(kind, place[-1], to_polygon(outline), *measures, thickness, segments)
