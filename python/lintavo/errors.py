"""What can go wrong, with the library's number and text."""


class LintavoError(Exception):
    """An operation failed.

    ``number`` is the library's error number, 0 where it has none for this; ``text``
    says what was wrong (the library's own texts are German).
    """

    def __init__(self, number: int, text: str) -> None:
        super().__init__(number, text)
        self.number = number
        self.text = text

    def __str__(self) -> str:
        return f"{self.text} ({self.number})" if self.number else self.text


class ReadError(LintavoError):
    """A window could not be read."""


class WriteError(LintavoError):
    """A window could not be written."""


class CalculationError(LintavoError):
    """A window could not be calculated; the changes that led there remain stored."""


class PictureError(LintavoError):
    """A picture could not be made; ``number`` is the drawing library's status."""


class LibraryNotFound(LintavoError):
    """The shared library is not where it was looked for."""

    def __init__(self, text: str) -> None:
        super().__init__(0, text)

    def __reduce__(self):  # the other errors keep both arguments
        return (LibraryNotFound, (self.text,))
