/* A host's general settings and materials in C. The rules that hold for every
 * function are at the head of lintavo/lintavo_c.h. */
#pragma once

#include <stddef.h>

#include "lintavo/platform/Export.h"

#ifdef __cplusplus
extern "C" {
#endif

/** What a host configures once for all windows. */
typedef struct lintavo_settings lintavo_settings;

/** How dimensions are drawn, and pen widths. */
typedef struct lintavo_generelles {
  int pixel;                /**< 1: the five lengths are pixels */
  double maszlinien_faktor; /**< factor of the distance between dimension lines */
  double texthoehe;         /**< height of a character; first of the five lengths */
  double textbreite;        /**< width of a character */
  long min_textpixel;       /**< text smaller than this is not drawn */
  double hilfslinienlaenge; /**< length of extension lines */
  double pfeillaenge;       /**< length of arrowheads */
  double pfeilbreite;       /**< width of arrowheads; last of the five lengths */
  float stift_rahmen;       /**< pen widths */
  float stift_symbole;
  float stift_sprossen;
  float stift_maszlinien;
} lintavo_generelles;

/** The lists of materials. */
enum {
  LINTAVO_MATERIAL_BAUTEIL = 0, /**< of components */
  LINTAVO_MATERIAL_SYMBOL = 1,  /**< of opening symbols */
  LINTAVO_MATERIAL_MASZ = 2     /**< of dimensions */
};

/** How a material looks. Colours are red, green and blue, 0 to 1. */
typedef struct lintavo_material {
  float diffus[3];      /**< diffuse colour */
  float spiegel[3];     /**< specular colour */
  float alpha;          /**< share of transparency */
  float ambient_faktor; /**< ambient coefficient */
  float diffus_faktor;  /**< diffuse coefficient */
  float spiegel_faktor; /**< specular coefficient */
  float spiegel_exponent;
  unsigned int flags; /**< 1: has a texture, 16: both sides of a face are shown */
  float rgb2d[3];     /**< colour of plane drawings, 0 to 255 */
  int textur_id;      /**< given by the host, -1 before */
  double skale_x;     /**< scales of the texture */
  double skale_y;
} lintavo_material;

/** Settings with their defaults, to be returned through
 * lintavo_settings_destroy; null when there is no memory. */
LINTAVO_API lintavo_settings* lintavo_settings_create(void);
/** Releases the settings; null is left alone. */
LINTAVO_API void lintavo_settings_destroy(lintavo_settings* settings);

/* --- files ------------------------------------------------------------------ */

/** Reads the general settings; a missing key leaves its field alone. 0, and
 * nothing changed, when the file cannot be read. */
LINTAVO_API int lintavo_settings_read_generelles(lintavo_settings* settings, const char* path);
/** Writes the general settings as they are; the settings can be used on. 0 when
 * the file cannot be written. */
LINTAVO_API int lintavo_settings_save_generelles(const lintavo_settings* settings,
                                                 const char* path);
/** Replaces the three lists by the materials of a file. 0, and nothing changed,
 * when it cannot be read. */
LINTAVO_API int lintavo_settings_read_materials(lintavo_settings* settings, const char* path);
/** Replaces the material document, which colours are looked up in by prefix. 0,
 * and nothing changed, when it cannot be read. */
LINTAVO_API int lintavo_settings_read_material_ini_file(lintavo_settings* settings,
                                                        const char* path);

/* --- values ------------------------------------------------------------------ */

/** Copies the general settings. */
LINTAVO_API int lintavo_settings_get_generelles(const lintavo_settings* settings,
                                                lintavo_generelles* values);
/** Replaces the general settings. */
LINTAVO_API int lintavo_settings_set_generelles(lintavo_settings* settings,
                                                const lintavo_generelles* values);

/* In the following `list` is one of LINTAVO_MATERIAL_...; indices count from 0. */

/** Number of materials; 0 for an unknown list. */
LINTAVO_API long lintavo_settings_get_anzahl_materialien(const lintavo_settings* settings,
                                                         int list);
/** Copies material `i`. 0 for a bad index, the output is then left as it was. */
LINTAVO_API int lintavo_settings_get_material(const lintavo_settings* settings, int list, long i,
                                              lintavo_material* material);
/** Name of material `i`, of any length. Returns its length, 0 for a bad index. */
LINTAVO_API size_t lintavo_settings_get_material_name(const lintavo_settings* settings, int list,
                                                      long i, char* name, size_t size);
/** File name of the texture of material `i`, of any length. Returns its length,
 * 0 for a bad index. */
LINTAVO_API size_t lintavo_settings_get_texture_name(const lintavo_settings* settings, int list,
                                                     long i, char* name, size_t size);
/** Keeps the host's own number of a texture. 0 for a bad index. */
LINTAVO_API int lintavo_settings_set_texture_id(lintavo_settings* settings, int list, long i,
                                                int id);
/** Colour of plane drawings as red + 256 green + 65536 blue; 0 for a bad index. */
LINTAVO_API unsigned long lintavo_settings_get_color2d(const lintavo_settings* settings, int list,
                                                       long i);
/** The same from section `prefix` + `i` of the material document; 0 when the
 * section or its colour is missing. */
LINTAVO_API unsigned long lintavo_settings_get_color2d_from_ini(lintavo_settings* settings,
                                                                const char* prefix, long i);

#ifdef __cplusplus
}
#endif
