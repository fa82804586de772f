"""A host in Python: reads a window, fits it into an opening of the given size,
prints the outline of every frame part and draws the window.

host.py FILE WIDTH HEIGHT [PICTURE]
"""

import sys

import lintavo


def run(file, width, height, picture=None):
    with lintavo.Window.read(file) as window:
        window.fit(float(width), float(height))
        for number, part in enumerate(window.frame_parts):
            points = " ".join(f"({x:.1f}, {y:.1f})" for x, y in part.outline)
            print(f"part {number}, length {part.length:.1f}: {points}")
        if picture:
            window.draw(picture)


if __name__ == "__main__":
    if len(sys.argv) not in (4, 5):
        sys.exit(__doc__)
    try:
        run(*sys.argv[1:])
    except (lintavo.LintavoError, ValueError) as error:
        sys.exit(f"host: {error}")
