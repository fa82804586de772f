"""Exported windows keep to their schema, and hold exactly what the façade answers.

export_test.py TOOL SOURCE_DIR, with the Python package to be found; status 77 where
there is no jsonschema.
"""

import json
import pathlib
import re
import subprocess
import sys
import tempfile

try:
    import jsonschema
except ImportError:
    sys.exit(77)

import lintavo

TOOL, SOURCE = sys.argv[1], pathlib.Path(sys.argv[2])


def export(*arguments):
    run = subprocess.run([TOOL, "export", "--json", *map(str, arguments)], capture_output=True)
    assert run.returncode == 0, run.stderr
    return json.loads(run.stdout.decode("utf-8"))


def closed(schema):
    """The schema without its leave to add members, so that none goes undescribed."""
    if isinstance(schema, dict):
        schema = {key: closed(value) for key, value in schema.items()}
        if "properties" in schema and "required" in schema:
            schema["additionalProperties"] = False
    elif isinstance(schema, list):
        schema = [closed(value) for value in schema]
    return schema


def ids_of(value):
    if isinstance(value, dict):
        if "id" in value:
            yield value["id"]
        for member in value.values():
            yield from ids_of(member)
    elif isinstance(value, list):
        for member in value:
            yield from ids_of(member)


def picture_ids(path):
    """Ids of parts in the picture of a window; others are groups and hatchings."""
    picture = subprocess.run([TOOL, "draw", path, "--format", "svg", "-o", "-"], capture_output=True)
    assert picture.returncode == 0, picture.stderr
    return set(re.findall(r' id="([^"]*-(?:[0-9]+|fuellung))"', picture.stdout.decode("utf-8")))


def points(polygon):
    return [list(point) for point in polygon]


def check_part(exported, part):
    assert exported["outline"] == points(part.outline), exported["id"]
    assert exported["axisLength"] == part.length
    assert [exported["startAngle"], exported["endAngle"]] == [part.start_angle, part.end_angle]
    length, width = part.blank
    assert abs(exported["width"] - width) < 1e-9, exported["id"]
    assert exported["radius"] is not None or abs(exported["length"] - length) < 1e-9
    assert len(exported["segments"]) in (0, len(part.segments))
    for segment, own in zip(exported["segments"], part.segments):
        assert segment["outline"] == points(own.outline), segment["id"]


def check_parts(exported, parts):
    assert len(exported) == len(parts)
    for pair in zip(exported, parts):
        check_part(*pair)


def check_window(exported, path):
    with lintavo.Window.read(path) as window:
        assert [exported["width"], exported["height"]] == [window.width, window.height]
        check_parts(exported["frame"]["parts"], window.frame_parts)
        check_parts(exported["frame"]["singleParts"], window.single_parts)
        assert len(exported["sashes"]) == len(window.sashes)
        for sash, own in zip(exported["sashes"], window.sashes):
            check_parts(sash["parts"], own.frame_parts)
            check_parts(sash["singleParts"], own.single_parts)
            check_parts(sash["bars"], own.bars)
            assert sash["innerOutline"] == points(own.polygon)
            assert sash["filling"]["outline"] == points(own.filling.outline)
            assert [s["outline"] for s in sash["filling"]["slats"]] == [
                points(slat) for slat in own.filling.slats
            ]
            assert len(sash["symbol"]["lines"]) == len(own.opening_symbol)
            assert len(sash["fittings"]) == len(own.fittings)
        names = [dimension.name for dimension in window.dimensions.all()]
        assert [dimension["name"] for dimension in exported["dimensions"]] == names
        assert len(exported["views"]["outside"]) == len(window.view(outside=True))


schema = json.loads((SOURCE / "docs/lintavo-window.schema.json").read_text("utf-8"))
files = sorted((SOURCE / "examples/windows").glob("*.aqz"))
document = export("--views", *files)
jsonschema.validate(document, closed(schema))
assert len(document["windows"]) == len(files) > 0
for exported, path in zip(document["windows"], files):
    ids = list(ids_of(exported))
    assert len(ids) == len(set(ids)), path
    shown = picture_ids(path)
    assert shown and shown <= set(ids), (path, shown - set(ids))
    check_window(exported, path)

# Names of any encoding come out as UTF-8, whatever stands in them.
source = (SOURCE / "examples/windows/rundfenster.aqz").read_bytes()
with tempfile.TemporaryDirectory() as folder:
    odd = pathlib.Path(folder) / "odd.aqz"
    odd.write_bytes(source.replace(b"Name=Rundfenster Giebel", b'Name=K\xfcche "1\\2"'))
    assert export(odd)["windows"][0]["name"] == 'Küche "1\\2"'
