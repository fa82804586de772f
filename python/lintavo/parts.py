"""Components, fittings and dimensions of a window."""

from __future__ import annotations

import enum
import math
from dataclasses import dataclass
from typing import TYPE_CHECKING, Iterator, List, MutableMapping, Tuple

from . import _calls
from .geometry import Line, Polygon

if TYPE_CHECKING:
    from .window import Window


class PartKind(enum.IntEnum):
    """Kinds of components."""

    FRAME = 1  #: frame parts
    SINGLE = 2  #: mullions, transoms and extra parts
    BAR = 3  #: glazing bars


class FillingKind(enum.IntEnum):
    """Kinds of a sash's filling."""

    GLASS = 0
    PANEL = 1
    SLATS = 2


@dataclass(frozen=True)
class Part:
    """A component, or one straight segment of a bent one, as last calculated."""

    kind: PartKind
    index: int
    outline: Polygon
    length: float  #: of the axis; for a whole component the sum of its segments
    start_angle: float  #: cut at the start, degrees
    end_angle: float  #: cut at the end, degrees
    thickness: float
    segments: Tuple["Part", ...] = ()  #: of a whole component; straight ones have one

    @property
    def blank(self) -> Tuple[float, float]:
        """Length and width of the bar that the part is cut from: how far its outline
        reaches along its axis, from tip to tip, and across it. A bent part is developed
        along its longer edge, its segments taken as they are."""
        if len(self.segments) > 1:
            right, left = (sum(edge) for edge in zip(*map(Part._edges, self.segments)))
            return max(right, left), self.segments[0].blank[1]
        along, across = self._in_axis()
        return max(along) - min(along), max(across) - min(across)

    def _in_axis(self) -> Tuple[List[float], List[float]]:
        """Positions of a straight part's corners along and across its axis: right start,
        right end, left end, left start."""
        a, b, c, d = self.outline
        start, end = (a, b) if math.dist(a, b) > 1e-6 else (d, c)
        length = math.dist(start, end)
        x, y = (end.x - start.x) / length, (end.y - start.y) / length
        along = [point.x * x + point.y * y for point in self.outline]
        across = [point.y * x - point.x * y for point in self.outline]
        return along, across

    def _edges(self) -> Tuple[float, float]:
        a, b, c, d = self._in_axis()[0]
        return b - a, c - d


@dataclass(frozen=True)
class Fitting:
    """A handle or a hinge: where it sits, its direction in degrees, its drawing."""

    x: float
    y: float
    angle: float
    lines: Tuple[Line, ...]


class Dimension:
    """One dimension of a window, by its place in the list."""

    def __init__(self, window: "Window", index: int) -> None:
        self._window = window
        self.index = index

    @property
    def name(self) -> str:
        return _calls.text("lintavo_window_get_zmasz_name", self._window.handle, self.index)

    @property
    def length(self) -> float:
        """The stored length, at least 1e-6 when set. ``calculate`` applies it."""
        return abs(self.signed_length)

    @length.setter
    def length(self, value: float) -> None:
        handle = self._window.handle
        if not _calls.call("lintavo_window_set_zmasz_laenge", handle, self.index, value):
            raise ValueError(f"{value!r} is no length for the dimension {self.name!r}")

    @property
    def signed_length(self) -> float:
        """The stored length, negative where the dimension is counted to the other side."""
        return _calls.call("lintavo_window_get_zmasz_laenge", self._window.handle, self.index)

    @property
    def line(self) -> Tuple[Line, ...]:
        """The dimension line, as last calculated."""
        return _calls.lines("lintavo_window_get_zmasz_linie", self._window.handle, self.index)

    def extension_lines(self, length: float) -> Tuple[Line, ...]:
        """The two extension lines, each ``length`` long."""
        return _calls.lines(
            "lintavo_window_get_zmasz_hilfslinien", self._window.handle, self.index, length
        )

    def __repr__(self) -> str:
        return f"<Dimension {self.index} {self.name!r} {self.length:g}>"


class Dimensions(MutableMapping[str, float]):
    """A window's dimensions by name, names compared without case.

    Setting stores a length for every dimension of the name; ``Window.calculate``
    then applies it. Dimensions can neither be added nor removed. The same name may
    stand for several dimensions: ``all`` lists every single one.
    """

    def __init__(self, window: "Window") -> None:
        self._window = window

    def all(self) -> List[Dimension]:
        """Every dimension in the order of the window's file."""
        count = _calls.call("lintavo_window_get_anzahl_zusatz_masze", self._window.handle)
        return [Dimension(self._window, index) for index in range(count)]

    def _find(self, name: str) -> Dimension:
        wanted = name.casefold()
        for dimension in self.all():
            if dimension.name.casefold() == wanted:
                return dimension
        raise KeyError(name)

    def __getitem__(self, name: str) -> float:
        return self._find(name).length

    def __setitem__(self, name: str, length: float) -> None:
        index = self._find(name).index
        handle = self._window.handle
        if not _calls.call("lintavo_window_set_zmasz_laenge_mit_name", handle, index, length):
            raise ValueError(f"{length!r} is no length for the dimension {name!r}")

    def __delitem__(self, name: str) -> None:
        raise TypeError("a window's dimensions cannot be removed")

    def __iter__(self) -> Iterator[str]:
        seen = set()
        for dimension in self.all():
            name = dimension.name
            if name.casefold() not in seen:
                seen.add(name.casefold())
                yield name

    def __len__(self) -> int:
        return sum(1 for _ in self)

    def __repr__(self) -> str:
        return f"Dimensions({dict(self)!r})"
