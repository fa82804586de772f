"""A sash and its filling: live views into a window."""

from __future__ import annotations

from typing import TYPE_CHECKING, List, Tuple

from . import _calls
from .geometry import Line, Polygon
from .parts import FillingKind, Fitting, Part, PartKind

if TYPE_CHECKING:
    from .window import Window


def _stored(result: int, value: float) -> None:
    if not result:
        raise ValueError(f"{value!r} is no measure for this part, or the part is not there")


class Filling:
    """What fills a sash."""

    def __init__(self, sash: "Sash") -> None:
        self._sash = sash

    @property
    def kind(self) -> FillingKind:
        return FillingKind(self._sash._call("lintavo_window_get_fluegel_fuellung_art"))

    @property
    def thickness(self) -> float:
        return self._sash._call("lintavo_window_get_fluegel_fuellung_dicke")

    @property
    def outline(self) -> Polygon:
        """Contour of the filling; empty where there is none."""
        name = "lintavo_window_get_fluegel_fuellung_umriss"
        return _calls.polygon(name, self._sash.handle, self._sash.index)

    @property
    def slats(self) -> Tuple[Polygon, ...]:
        """What is seen of each slat: its strip of the inner contour."""
        count = self._sash._call("lintavo_window_get_fluegel_anzahl_lamellen")
        name = "lintavo_window_get_fluegel_lamellen_umriss"
        return tuple(
            _calls.polygon(name, self._sash.handle, self._sash.index, j) for j in range(count)
        )


class Sash:
    """Sash ``index`` of a window. Measures that are set are stored, and applied by
    ``Window.calculate``; everything else answers from the last calculation."""

    def __init__(self, window: "Window", index: int) -> None:
        self._window = window
        self.index = index

    @property
    def handle(self) -> int:
        return self._window.handle

    def _call(self, function: str, *arguments):
        return _calls.call(function, self.handle, self.index, *arguments)

    def _text(self, function: str) -> str:
        return _calls.text(function, self.handle, self.index)

    # --- what it is

    @property
    def name(self) -> str:
        return self._text("lintavo_window_get_fluegel_name")

    @property
    def opening_kind(self) -> str:
        """Short text of the opening kind, "DK" for tilt and turn; may be empty."""
        return self._text("lintavo_window_get_fluegel_gangart")

    @property
    def hinge_side(self) -> str:
        return self._text("lintavo_window_get_fluegel_anschlag")

    @property
    def opening_side(self) -> str:
        return self._text("lintavo_window_get_fluegel_oeff_seite")

    # --- measures

    @property
    def frame_width(self) -> float:
        """Width of the frame parts, 0.0 without any; at least 1e-6 when set."""
        return self._call("lintavo_window_get_fluegel_rahmen_breite")

    @frame_width.setter
    def frame_width(self, value: float) -> None:
        _stored(self._call("lintavo_window_set_fluegel_rahmen_breite", value), value)

    @property
    def frame_thickness(self) -> float:
        """Thickness of the frame parts, 0.0 without any; at least 1e-6 when set."""
        return self._call("lintavo_window_get_fluegel_rahmen_dicke")

    @frame_thickness.setter
    def frame_thickness(self, value: float) -> None:
        _stored(self._call("lintavo_window_set_fluegel_rahmen_dicke", value), value)

    @property
    def overlap(self) -> float:
        """Overlap of the sash on its frame."""
        return self._call("lintavo_window_get_fluegel_ueberschlag")

    @overlap.setter
    def overlap(self, value: float) -> None:
        _stored(self._call("lintavo_window_set_fluegel_ueberschlag", value), value)

    @property
    def inside_offset(self) -> float:
        """Depth offset of the sash on the inside of the building."""
        return self._call("lintavo_window_get_fluegel_zversatz", 0)

    @property
    def outside_offset(self) -> float:
        """Depth offset of the sash on the outside of the building."""
        return self._call("lintavo_window_get_fluegel_zversatz", 1)

    def set_offset(self, value: float) -> None:
        """Stores the depth offset, at least 0.0, of the side the sash opens to."""
        _stored(self._call("lintavo_window_set_fluegel_zversatz", value), value)

    def set_bar(self, index: int, *, width: float = 0.0, thickness: float = 0.0) -> None:
        """Stores the width, the thickness or both of a glazing bar."""
        if width:
            _stored(self._call("lintavo_window_set_sprossen_breite", index, width), width)
        if thickness:
            _stored(self._call("lintavo_window_set_sprossen_dicke", index, thickness), thickness)

    # --- what it consists of

    @property
    def polygon(self) -> Polygon:
        """The inner outline with inner extra parts; empty where there is none."""
        return self.inner_polygon(0.0)

    def inner_polygon(self, outwards: float) -> Polygon:
        """The inner outline moved outwards: the rebate in which the glass sits."""
        name = "lintavo_window_get_fluegel_innen_polygon"
        return _calls.polygon(name, self.handle, self.index, outwards)

    def _parts(self, kind: PartKind) -> List[Part]:
        return _calls.parts("fluegel", self.handle, kind, self.index)

    @property
    def frame_parts(self) -> List[Part]:
        return self._parts(PartKind.FRAME)

    @property
    def single_parts(self) -> List[Part]:
        return self._parts(PartKind.SINGLE)

    @property
    def bars(self) -> List[Part]:
        """The glazing bars that have a width and a length."""
        return self._parts(PartKind.BAR)

    @property
    def filling(self) -> Filling:
        return Filling(self)

    @property
    def fittings(self) -> List[Fitting]:
        """Handles and hinges; those that have no place are left out."""
        count = max(0, self._call("lintavo_window_get_anzahl_beschlaege"))
        found = []
        for j in range(count):
            place = _calls.numbers(
                "lintavo_window_get_beschlag_punkt", 3, self.handle, self.index, j
            )
            if place is not None:
                name = "lintavo_window_get_beschlag_zeichnung"
                found.append(Fitting(*place, _calls.lines(name, self.handle, self.index, j)))
        return found

    # --- lines

    @property
    def opening_symbol(self) -> Tuple[Line, ...]:
        """The opening symbol; empty for a sash that shows none."""
        return self._lines("lintavo_window_get_fluegel_oeffnungs_symbol")

    @property
    def clear_widths(self) -> Tuple[Line, ...]:
        """Clear glass widths between the axes of the bars, from left to right."""
        return self._lines("lintavo_window_get_fluegel_glaslichte_hori")

    @property
    def clear_heights(self) -> Tuple[Line, ...]:
        """Clear glass heights between the axes of the bars, from bottom to top."""
        return self._lines("lintavo_window_get_fluegel_glaslichte_vert")

    def view(self, *, symbol: bool = False) -> Tuple[Line, ...]:
        """The sash alone with hidden lines removed, on request with its symbol."""
        return self._lines("lintavo_window_get_fluegel_ansicht", int(symbol))

    def _lines(self, function: str, *arguments: int) -> Tuple[Line, ...]:
        return _calls.lines(function, self.handle, self.index, *arguments)

    def __repr__(self) -> str:
        return f"<Sash {self.index} {self.name!r}>"
