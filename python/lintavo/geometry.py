"""Points, outlines and lines as plain immutable values."""

from __future__ import annotations

from typing import Iterable, NamedTuple, Tuple


class Point(NamedTuple):
    x: float
    y: float


class Box(NamedTuple):
    """Smallest rectangle with sides parallel to the axes."""

    left: float
    bottom: float
    right: float
    top: float

    @property
    def width(self) -> float:
        return self.right - self.left

    @property
    def height(self) -> float:
        return self.top - self.bottom


class Line(NamedTuple):
    """A line of a drawing, with the colour index and priority of its part."""

    start: Point
    end: Point
    colour: int = 0
    priority: int = 0


class Polygon(Tuple[Point, ...]):
    """A closed outline, counter-clockwise; the last point does not repeat the first.

    A tuple of points with a few answers of its own.
    """

    __slots__ = ()

    def __new__(cls, points: Iterable[Tuple[float, float]] = ()) -> "Polygon":
        return super().__new__(cls, (Point(x, y) for x, y in points))

    @property
    def area(self) -> float:
        """Signed area: positive for a counter-clockwise outline."""
        following = self[1:] + self[:1]
        return sum(a.x * b.y - b.x * a.y for a, b in zip(self, following)) / 2.0

    @property
    def box(self) -> Box:
        """The bounding box; ValueError for a polygon without points."""
        if not self:
            raise ValueError("a polygon without points has no box")
        xs = [point.x for point in self]
        ys = [point.y for point in self]
        return Box(min(xs), min(ys), max(xs), max(ys))

    def __repr__(self) -> str:
        return f"Polygon({[tuple(point) for point in self]!r})"
