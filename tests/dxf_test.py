"""Reads the DXF files of windows by a library of others, audits them and checks their
structure.

dxf_test.py LINTAVO WINDOW...
"""

import subprocess
import sys
import tempfile
from pathlib import Path

import ezdxf

# What stands on which layer, by what its id ends in.
LAYERS = {
    "RAHMEN": "rahmen",
    "FLUEGEL": "fluegel",
    "GLAS": "fuellung",
    "PANEELE": "fuellung",
    "SCHRAFFUR": "schraffur",
    "SPROSSEN": "sprosse",
    "SYMBOLE": "symbol",
    "BESCHLAEGE": "beschlag",
    "BEMASSUNG": "masz",
    "EINZELTEILE": "einzelteil",
    "ZUSATZTEILE": "zusatzteil",
    "UMRISS": "umriss",
}


def points_of(entity):
    kind = entity.dxftype()
    if kind == "LINE":
        return [entity.dxf.start, entity.dxf.end]
    if kind == "POLYLINE":
        return [vertex.dxf.location for vertex in entity.vertices]
    if kind == "SOLID":
        return [entity.dxf.vtx0, entity.dxf.vtx1, entity.dxf.vtx2]
    return [entity.dxf.insert]


def check(path):
    document = ezdxf.readfile(path)
    assert document.dxfversion == "AC1009", document.dxfversion
    auditor = document.audit()
    assert not auditor.errors and not auditor.fixes, auditor.errors + auditor.fixes
    low, high = document.header["$EXTMIN"], document.header["$EXTMAX"]
    ids = set()
    for entity in document.modelspace():
        (name,) = (tag.value for tag in entity.get_xdata("LINTAVO") if tag.code == 1000)
        ids.add(name)
        assert entity.dxf.layer in document.layers, entity.dxf.layer
        assert LAYERS.get(entity.dxf.layer, "") in name, (entity.dxf.layer, name)
        for point in points_of(entity):
            assert low[0] - 1e-5 <= point[0] <= high[0] + 1e-5, (name, point)
            assert low[1] - 1e-5 <= point[1] <= high[1] + 1e-5, (name, point)
    return document, ids


def main():
    tool, windows = sys.argv[1], sys.argv[2:]
    with tempfile.TemporaryDirectory() as folder:

        def draw(window, *options):
            target = Path(folder) / "window.dxf"
            subprocess.run([tool, "draw", window, "-o", target, *options], check=True)
            return check(target)

        for window in windows:
            draw(window, "--hidden-line", "--outside", "--scale", "1:20", "--title")
            document, ids = draw(window)
            assert {"umriss", "rahmen-0", "masz-0", "fluegel-0-fuellung"} <= ids, (window, ids)
        # A plain window: the frame part on the left, whose outline is that of the façade, and a
        # name with an umlaut.
        window = next(w for w in windows if w.endswith("drehkipp_einfluegelig.aqz"))
        document, ids = draw(window, "--title", "--no-dims")
        modelspace = document.modelspace()
        (outline,) = modelspace.query('POLYLINE[layer=="UMRISS"]')
        assert outline.is_closed
        corners = {(round(point.x, 6), round(point.y, 6)) for point in points_of(outline)}
        assert corners == {(0, 0), (100, 0), (100, 130), (0, 130)}, corners
        texts = [text.dxf.text for text in modelspace.query("TEXT")]
        assert "Küchenfenster links" in texts, texts
        sheet = Path(folder) / "sheet.dxf"
        subprocess.run([tool, "sheet", window, windows[0], "-o", sheet], check=True)
        document, ids = check(sheet)
        assert {"fenster-0-umriss", "fenster-1-umriss", "blatt"} <= ids, ids
    print(f"dxf_test: {len(windows)} windows in order")


main()
