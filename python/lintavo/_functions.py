"""The functions of the C interface with their types, as its headers declare them."""

from __future__ import annotations

import ctypes
from typing import Any, Dict, List, Tuple


class OpeningStruct(ctypes.Structure):
    """lintavo_opening"""

    _fields_ = [
        ("schraege1", ctypes.c_int),
        ("schraege2", ctypes.c_int),
        ("winkel1", ctypes.c_double),
        ("winkel2", ctypes.c_double),
        ("leibung_a", ctypes.c_double),
        ("leibung_b", ctypes.c_double),
        ("leibung_c", ctypes.c_double),
        ("leibung_d", ctypes.c_double),
        ("tiefe", ctypes.c_double),
    ]


class Segment(ctypes.Structure):
    """lintavo_segment"""

    _fields_ = [
        ("x1", ctypes.c_double),
        ("y1", ctypes.c_double),
        ("x2", ctypes.c_double),
        ("y2", ctypes.c_double),
        ("farbe", ctypes.c_int),
        ("prio", ctypes.c_int),
    ]


class Generelles(ctypes.Structure):
    """lintavo_generelles"""

    _fields_ = [
        ("pixel", ctypes.c_int),
        ("maszlinien_faktor", ctypes.c_double),
        ("texthoehe", ctypes.c_double),
        ("textbreite", ctypes.c_double),
        ("min_textpixel", ctypes.c_long),
        ("hilfslinienlaenge", ctypes.c_double),
        ("pfeillaenge", ctypes.c_double),
        ("pfeilbreite", ctypes.c_double),
        ("stift_rahmen", ctypes.c_float),
        ("stift_symbole", ctypes.c_float),
        ("stift_sprossen", ctypes.c_float),
        ("stift_maszlinien", ctypes.c_float),
    ]


class Material(ctypes.Structure):
    """lintavo_material"""

    _fields_ = [
        ("diffus", ctypes.c_float * 3),
        ("spiegel", ctypes.c_float * 3),
        ("alpha", ctypes.c_float),
        ("ambient_faktor", ctypes.c_float),
        ("diffus_faktor", ctypes.c_float),
        ("spiegel_faktor", ctypes.c_float),
        ("spiegel_exponent", ctypes.c_float),
        ("flags", ctypes.c_uint),
        ("rgb2d", ctypes.c_float * 3),
        ("textur_id", ctypes.c_int),
        ("skale_x", ctypes.c_double),
        ("skale_y", ctypes.c_double),
    ]


HANDLE = ctypes.c_void_p
TEXT = ctypes.c_char_p
INT = ctypes.c_int
LONG = ctypes.c_long
SIZE = ctypes.c_size_t
DOUBLE = ctypes.c_double
DOUBLES = ctypes.POINTER(ctypes.c_double)
LONGS = ctypes.POINTER(ctypes.c_long)
OPENING = ctypes.POINTER(OpeningStruct)
SEGMENT = ctypes.POINTER(Segment)
GENERELLES = ctypes.POINTER(Generelles)
MATERIAL = ctypes.POINTER(Material)
ULONG = ctypes.c_ulong

#: Result and arguments of every function by name.
Signatures = Dict[str, Tuple[Any, List[Any]]]

FUNCTIONS: Signatures = {
    "lintavo_version": (TEXT, []),
    "lintavo_polygon_create": (HANDLE, []),
    "lintavo_polygon_destroy": (None, [HANDLE]),
    "lintavo_polygon_get_anzahl": (LONG, [HANDLE]),
    "lintavo_polygon_get_x": (DOUBLES, [HANDLE]),
    "lintavo_polygon_get_y": (DOUBLES, [HANDLE]),
    "lintavo_polygon_get_punkt": (INT, [HANDLE, LONG, DOUBLES, DOUBLES]),
    "lintavo_segments_create": (HANDLE, []),
    "lintavo_segments_destroy": (None, [HANDLE]),
    "lintavo_segments_get_anzahl": (LONG, [HANDLE]),
    "lintavo_segments_get_strecke": (INT, [HANDLE, LONG, SEGMENT]),
    "lintavo_bytes_create": (HANDLE, []),
    "lintavo_bytes_destroy": (None, [HANDLE]),
    "lintavo_bytes_set": (INT, [HANDLE, TEXT, SIZE]),
    "lintavo_bytes_get_size": (SIZE, [HANDLE]),
    "lintavo_bytes_get_data": (ctypes.c_void_p, [HANDLE]),
    "lintavo_window_create": (HANDLE, []),
    "lintavo_window_copy": (HANDLE, [HANDLE]),
    "lintavo_window_assign": (INT, [HANDLE, HANDLE]),
    "lintavo_window_destroy": (None, [HANDLE]),
    "lintavo_window_delete_fenster": (None, [HANDLE]),
    "lintavo_window_get_error_id": (LONG, [HANDLE]),
    "lintavo_window_get_error_msg": (SIZE, [HANDLE, TEXT, SIZE]),
    "lintavo_window_read_from_file": (INT, [HANDLE, TEXT]),
    "lintavo_window_read_from_compressed_file": (INT, [HANDLE, TEXT]),
    "lintavo_window_read_from_buffer": (INT, [HANDLE, TEXT, LONG, INT]),
    "lintavo_window_write_to_file": (INT, [HANDLE, TEXT]),
    "lintavo_window_write_parameter_formular": (INT, [HANDLE, TEXT, TEXT]),
    "lintavo_window_write_to_buffer": (INT, [HANDLE, HANDLE]),
    "lintavo_is_file_compressed": (INT, [TEXT]),
    "lintavo_is_file_temporary": (INT, [TEXT]),
    "lintavo_get_bezeichnung_from_file": (SIZE, [TEXT, TEXT, SIZE]),
    "lintavo_get_valid_makro_file": (SIZE, [TEXT, TEXT, SIZE]),
    "lintavo_window_get_fenster_bezeichnung": (SIZE, [HANDLE, TEXT, SIZE]),
    "lintavo_window_get_fenster_breite": (DOUBLE, [HANDLE]),
    "lintavo_window_get_fenster_hoehe": (DOUBLE, [HANDLE]),
    "lintavo_window_berechne": (INT, [HANDLE]),
    "lintavo_window_get_anzahl_zusatz_masze": (LONG, [HANDLE]),
    "lintavo_window_get_zmasz_name": (SIZE, [HANDLE, LONG, TEXT, SIZE]),
    "lintavo_window_get_zmasz_laenge": (DOUBLE, [HANDLE, LONG]),
    "lintavo_window_set_zmasz_laenge": (INT, [HANDLE, LONG, DOUBLE]),
    "lintavo_window_set_zmasz_laenge_mit_name": (INT, [HANDLE, LONG, DOUBLE]),
    "lintavo_window_is_zmasz_breite_hoehe": (INT, [HANDLE, LONGS, LONGS]),
    "lintavo_window_get_wand_oeffnung": (INT, [HANDLE, OPENING, HANDLE]),
    "lintavo_window_get_oeff_masze": (INT, [HANDLE, OPENING, DOUBLES, DOUBLES]),
    "lintavo_window_set_breite_hoehe": (INT, [HANDLE, OPENING, DOUBLE, DOUBLE]),
    "lintavo_window_get_rahmen_breite": (DOUBLE, [HANDLE]),
    "lintavo_window_get_rahmen_dicke": (DOUBLE, [HANDLE]),
    "lintavo_window_set_rahmen_breite": (INT, [HANDLE, DOUBLE]),
    "lintavo_window_set_rahmen_dicke": (INT, [HANDLE, DOUBLE]),
    "lintavo_window_get_rahmen_abschnitt": (DOUBLE, [HANDLE]),
    "lintavo_window_set_rahmen_abschnitt": (INT, [HANDLE, DOUBLE]),
    "lintavo_window_get_anzahl_rahmen_bauteile": (LONG, [HANDLE, LONG]),
    "lintavo_window_get_anzahl_rahmen_bauteil_segmente": (LONG, [HANDLE, LONG, LONG]),
    "lintavo_window_get_rahmen_bauteil_dicke": (DOUBLE, [HANDLE, LONG, LONG]),
    "lintavo_window_get_rahmen_bauteil_attribut": (LONG, [HANDLE, LONG, LONG, LONG]),
    "lintavo_window_get_fluegel_bauteil_attribut": (LONG, [HANDLE, LONG, LONG, LONG, LONG]),
    "lintavo_window_get_fluegel_fuellung_attribut": (LONG, [HANDLE, LONG, LONG]),
    "lintavo_window_get_rahmen_bauteil_typ": (LONG, [HANDLE, LONG, LONG]),
    "lintavo_window_get_rahmen_bauteil_umriss": (INT, [HANDLE, LONG, LONG, LONG, HANDLE, DOUBLES, DOUBLES, DOUBLES]),
    "lintavo_window_get_anzahl_fluegel": (LONG, [HANDLE]),
    "lintavo_window_get_fluegel_name": (SIZE, [HANDLE, LONG, TEXT, SIZE]),
    "lintavo_window_get_fluegel_rahmen_breite": (DOUBLE, [HANDLE, LONG]),
    "lintavo_window_get_fluegel_rahmen_dicke": (DOUBLE, [HANDLE, LONG]),
    "lintavo_window_get_fluegel_ueberschlag": (DOUBLE, [HANDLE, LONG]),
    "lintavo_window_get_fluegel_zversatz": (DOUBLE, [HANDLE, LONG, LONG]),
    "lintavo_window_set_fluegel_rahmen_breite": (INT, [HANDLE, LONG, DOUBLE]),
    "lintavo_window_set_fluegel_rahmen_dicke": (INT, [HANDLE, LONG, DOUBLE]),
    "lintavo_window_set_fluegel_ueberschlag": (INT, [HANDLE, LONG, DOUBLE]),
    "lintavo_window_set_fluegel_zversatz": (INT, [HANDLE, LONG, DOUBLE]),
    "lintavo_window_get_fluegel_anzahl_bauteile": (LONG, [HANDLE, LONG, LONG]),
    "lintavo_window_get_fluegel_anzahl_bauteil_segmente": (LONG, [HANDLE, LONG, LONG, LONG]),
    "lintavo_window_get_fluegel_bauteil_dicke": (DOUBLE, [HANDLE, LONG, LONG, LONG]),
    "lintavo_window_get_fluegel_bauteil_typ": (LONG, [HANDLE, LONG, LONG, LONG]),
    "lintavo_window_get_fluegel_bauteil_umriss": (INT, [HANDLE, LONG, LONG, LONG, LONG, HANDLE, DOUBLES, DOUBLES, DOUBLES]),
    "lintavo_window_get_fluegel_innen_polygon": (INT, [HANDLE, LONG, DOUBLE, HANDLE]),
    "lintavo_window_get_fluegel_fuellung_art": (INT, [HANDLE, LONG]),
    "lintavo_window_get_fluegel_fuellung_dicke": (DOUBLE, [HANDLE, LONG]),
    "lintavo_window_get_fluegel_fuellung_umriss": (INT, [HANDLE, LONG, HANDLE]),
    "lintavo_window_get_fluegel_anzahl_lamellen": (LONG, [HANDLE, LONG]),
    "lintavo_window_get_fluegel_lamellen_umriss": (INT, [HANDLE, LONG, LONG, HANDLE]),
    "lintavo_window_get_anzahl_beschlaege": (LONG, [HANDLE, LONG]),
    "lintavo_window_get_beschlag_punkt": (INT, [HANDLE, LONG, LONG, DOUBLES, DOUBLES, DOUBLES]),
    "lintavo_window_get_beschlag_typ": (LONG, [HANDLE, LONG, LONG]),
    "lintavo_window_get_anzahl_sprossen": (LONG, [HANDLE, LONG]),
    "lintavo_window_get_sprossen_breite": (DOUBLE, [HANDLE, LONG, LONG]),
    "lintavo_window_get_sprossen_dicke": (DOUBLE, [HANDLE, LONG, LONG]),
    "lintavo_window_set_sprossen_breite": (INT, [HANDLE, LONG, LONG, DOUBLE]),
    "lintavo_window_set_sprossen_dicke": (INT, [HANDLE, LONG, LONG, DOUBLE]),
    "lintavo_window_get_fluegel_gangart": (SIZE, [HANDLE, LONG, TEXT, SIZE]),
    "lintavo_window_get_fluegel_anschlag": (SIZE, [HANDLE, LONG, TEXT, SIZE]),
    "lintavo_window_get_fluegel_oeff_seite": (SIZE, [HANDLE, LONG, TEXT, SIZE]),
    "lintavo_window_get_fluegel_zuerst_aufgehend": (INT, [HANDLE, LONG]),
    "lintavo_window_get_box": (INT, [HANDLE, DOUBLE, DOUBLES, DOUBLES, DOUBLES, DOUBLES]),
    "lintavo_window_get_zmasz_linie": (INT, [HANDLE, LONG, HANDLE]),
    "lintavo_window_get_zmasz_hilfslinien": (INT, [HANDLE, LONG, DOUBLE, HANDLE]),
    "lintavo_window_get_zmasz_pfeile": (INT, [HANDLE, LONG, DOUBLE, DOUBLE, HANDLE, HANDLE]),
    "lintavo_window_get_ansicht": (INT, [HANDLE, INT, HANDLE]),
    "lintavo_window_get_fluegel_ansicht": (INT, [HANDLE, LONG, INT, HANDLE]),
    "lintavo_window_get_fluegel_oeffnungs_symbol": (INT, [HANDLE, LONG, HANDLE]),
    "lintavo_window_get_fluegel_glaslichte_hori": (INT, [HANDLE, LONG, HANDLE]),
    "lintavo_window_get_fluegel_glaslichte_vert": (INT, [HANDLE, LONG, HANDLE]),
    "lintavo_window_get_beschlag_zeichnung": (INT, [HANDLE, LONG, LONG, HANDLE]),
    "lintavo_position_create": (HANDLE, []),
    "lintavo_position_destroy": (None, [HANDLE]),
    "lintavo_position_read_from_parameter_file": (INT, [HANDLE, TEXT, TEXT]),
    "lintavo_position_read_from_file": (INT, [HANDLE, TEXT]),
    "lintavo_position_save_to_file": (INT, [HANDLE, TEXT, TEXT]),
    "lintavo_position_get_error": (LONG, [HANDLE]),
    "lintavo_position_get_error_msg": (SIZE, [HANDLE, TEXT, SIZE]),
    "lintavo_position_get_text": (SIZE, [HANDLE, LONG, TEXT, SIZE]),
    "lintavo_position_set_text": (INT, [HANDLE, LONG, TEXT]),
    "lintavo_position_get_fenster": (INT, [HANDLE, HANDLE]),
    "lintavo_position_set_fenster": (INT, [HANDLE, HANDLE]),
    "lintavo_settings_create": (HANDLE, []),
    "lintavo_settings_destroy": (None, [HANDLE]),
    "lintavo_settings_read_generelles": (INT, [HANDLE, TEXT]),
    "lintavo_settings_save_generelles": (INT, [HANDLE, TEXT]),
    "lintavo_settings_read_materials": (INT, [HANDLE, TEXT]),
    "lintavo_settings_read_material_ini_file": (INT, [HANDLE, TEXT]),
    "lintavo_settings_get_generelles": (INT, [HANDLE, GENERELLES]),
    "lintavo_settings_set_generelles": (INT, [HANDLE, GENERELLES]),
    "lintavo_settings_get_anzahl_materialien": (LONG, [HANDLE, INT]),
    "lintavo_settings_get_material": (INT, [HANDLE, INT, LONG, MATERIAL]),
    "lintavo_settings_get_material_name": (SIZE, [HANDLE, INT, LONG, TEXT, SIZE]),
    "lintavo_settings_get_texture_name": (SIZE, [HANDLE, INT, LONG, TEXT, SIZE]),
    "lintavo_settings_set_texture_id": (INT, [HANDLE, INT, LONG, INT]),
    "lintavo_settings_get_color2d": (ULONG, [HANDLE, INT, LONG]),
    "lintavo_settings_get_color2d_from_ini": (ULONG, [HANDLE, TEXT, LONG]),
}

DRAWING_FUNCTIONS: Signatures = {
    "lintavo_picture_status_text": (TEXT, [INT]),
    "lintavo_picture_format_from_path": (INT, [TEXT]),
    "lintavo_window_draw": (INT, [HANDLE, INT, INT, HANDLE]),
    "lintavo_window_draw_to_file": (INT, [HANDLE, INT, INT, TEXT]),
    "lintavo_window_draw_plan": (INT, [HANDLE, INT, INT, HANDLE, HANDLE]),
    "lintavo_window_draw_plan_to_file": (INT, [HANDLE, INT, INT, HANDLE, TEXT]),
}
