"""A window made from a type template and a parameter file."""

from __future__ import annotations

import weakref
from typing import Optional

from . import _calls, _library
from .errors import ReadError, WriteError
from .window import Path, Window, encode_path


class Position:
    """A window in its place in a building, with 49 texts of its own.

    Released by ``close``, at the end of a ``with`` block, or with the object.
    """

    def __init__(self) -> None:
        handle = _calls.call("lintavo_position_create")
        if not handle:
            raise MemoryError
        self._handle: Optional[int] = handle
        self._finalizer = weakref.finalize(
            self, _library.main().lintavo_position_destroy, handle
        )

    @property
    def handle(self) -> int:
        """The handle of the C interface; ValueError once the position is closed."""
        if self._handle is None:
            raise ValueError("the position is closed")
        return self._handle

    def close(self) -> None:
        """Releases the position; doing so again is allowed."""
        self._handle = None
        self._finalizer()

    def __enter__(self) -> "Position":
        return self

    def __exit__(self, *_: object) -> None:
        self.close()

    @classmethod
    def from_parameters(cls, parameter_file: Path, base_directory: Path) -> "Position":
        """Makes the window of a parameter file; templates lie in the folder "Fenster"
        of the base directory, patterns in "Sprossen". Raises ReadError."""
        position = cls()
        function = "lintavo_position_read_from_parameter_file"
        paths = (encode_path(parameter_file), encode_path(base_directory))
        position._read(function, *paths)
        return position

    @classmethod
    def read(cls, path: Path) -> "Position":
        """Reads a saved position. Raises ReadError."""
        position = cls()
        position._read("lintavo_position_read_from_file", encode_path(path))
        return position

    def _read(self, function: str, *paths: bytes) -> None:
        if not _calls.call(function, self.handle, *paths):
            number = _calls.call("lintavo_position_get_error", self.handle)
            message = _calls.text("lintavo_position_get_error_msg", self.handle)
            raise ReadError(number, message or "the position cannot be read")

    def write(self, path: Path) -> None:
        """Writes the position as a macro file. Raises WriteError."""
        name = encode_path(path)
        if not _calls.call("lintavo_position_save_to_file", self.handle, name, None):
            raise WriteError(0, f"{path!r} cannot be written")

    def text(self, i: int) -> str:
        """Text ``i``, 1 to 49; empty for any other."""
        return _calls.text("lintavo_position_get_text", self.handle, i)

    def set_text(self, i: int, text: str) -> None:
        """Sets text ``i``, 1 to 49; IndexError for any other."""
        if not _calls.call("lintavo_position_set_text", self.handle, i, text.encode("utf-8")):
            raise IndexError(i)

    def window(self) -> Window:
        """A copy of the position's window."""
        window = Window()
        if not _calls.call("lintavo_position_get_fenster", self.handle, window.handle):
            raise MemoryError
        return window

    def set_window(self, window: Window) -> None:
        """Gives the position a copy of a window; its texts stay."""
        if not _calls.call("lintavo_position_set_fenster", self.handle, window.handle):
            raise MemoryError
