"""The declared functions agree with the headers of the C interface: a name, a type
or an argument that differs would read wrong memory instead of failing."""

import ctypes
import re
import unittest

from lintavo import _functions
from support import ROOT

MAIN_HEADERS = sorted((ROOT / "lintavo" / "capi").glob("*_c.h"))
DRAWING_HEADERS = [ROOT / "drawing" / "include" / "lintavo" / "drawing_c.h"]

PLAIN = {
    "void": None,
    "int": _functions.INT,
    "long": _functions.LONG,
    "size_t": _functions.SIZE,
    "double": _functions.DOUBLE,
    "char*": _functions.TEXT,
    "double*": _functions.DOUBLES,
    "long*": _functions.LONGS,
    "lintavo_opening*": _functions.OPENING,
    "lintavo_segment*": _functions.SEGMENT,
    "lintavo_generelles*": _functions.GENERELLES,
    "lintavo_material*": _functions.MATERIAL,
    "unsigned long": _functions.ULONG,
}


def to_ctypes(c_type):
    c_type = c_type.replace("const ", "").strip()
    if c_type not in PLAIN and re.fullmatch(r"lintavo_\w+\*", c_type):
        return _functions.HANDLE
    return PLAIN[c_type]


def to_field(field, c_type):
    name, _, length = field.rstrip("]").partition("[")
    plain = {"float": ctypes.c_float, "unsigned int": ctypes.c_uint}.get(c_type)
    field_type = plain or PLAIN[c_type]
    return name, field_type * int(length) if length else field_type


def declared(headers):
    functions = {}
    for header in headers:
        text = re.sub(r"/\*.*?\*/", "", header.read_text("utf-8"), flags=re.S)
        pattern = r"LINTAVO(?:_DRAWING)?_API\s+([\w\s]+?\*?)\s*\b(lintavo_\w+)\(([^)]*)\);"
        for result, name, arguments in re.findall(pattern, text):
            types = [] if arguments == "void" else arguments.split(",")
            types = [re.sub(r"\w+\s*$", "", " ".join(part.split())) for part in types]
            functions[name] = (to_ctypes(result), [to_ctypes(part) for part in types])
        count = len(re.findall(r"\bLINTAVO(?:_DRAWING)?_API\b", text))
        assert count == len(re.findall(pattern, text)), f"{header} holds what is not understood"
    return functions


class Functions(unittest.TestCase):
    maxDiff = None

    def test_main_library(self):
        expected = declared(MAIN_HEADERS)
        # Bytes may hold zeroes, so their address is taken instead of a text.
        expected["lintavo_bytes_get_data"] = (_functions.HANDLE, [_functions.HANDLE])
        self.assertEqual(_functions.FUNCTIONS, expected)

    def test_drawing_library(self):
        self.assertEqual(_functions.DRAWING_FUNCTIONS, declared(DRAWING_HEADERS))

    def test_records(self):
        text = "".join(header.read_text("utf-8") for header in MAIN_HEADERS)
        for name, record in [
            ("lintavo_opening", _functions.OpeningStruct),
            ("lintavo_segment", _functions.Segment),
            ("lintavo_generelles", _functions.Generelles),
            ("lintavo_material", _functions.Material),
        ]:
            body = re.search(r"struct %s \{(.*?)\}" % name, text, re.S).group(1)
            body = re.sub(r"/\*.*?\*/", "", body, flags=re.S)
            fields = []
            for c_type, names in re.findall(r"([a-z]+(?: int)?) ([\w, \[\]]+);", body):
                fields += [to_field(field.strip(), c_type) for field in names.split(",")]
            self.assertEqual(record._fields_, fields)


if __name__ == "__main__":
    unittest.main()
