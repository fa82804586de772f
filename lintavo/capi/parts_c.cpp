// Frame and sashes for C: each function hands its arguments to the façade.
#include "lintavo/capi/parts_c.h"

#include "lintavo/capi/Handles_intern.h"

using lintavo::capi::HandOutText;
using lintavo::capi::Output;
using lintavo::capi::Record;

// --- the frame ---------------------------------------------------------------

double lintavo_window_get_rahmen_breite(const lintavo_window* window) {
  return window ? window->api.GetRahmenBreite() : 0.0;
}

double lintavo_window_get_rahmen_dicke(const lintavo_window* window) {
  return window ? window->api.GetRahmenDicke() : 0.0;
}

int lintavo_window_set_rahmen_breite(lintavo_window* window, double width) {
  return window ? window->api.SetRahmenBreite(width) : 0;
}

int lintavo_window_set_rahmen_dicke(lintavo_window* window, double thickness) {
  return window ? window->api.SetRahmenDicke(thickness) : 0;
}

double lintavo_window_get_rahmen_abschnitt(const lintavo_window* window) {
  return window ? window->api.GetRahmenAbschnitt() : 0.0;
}

int lintavo_window_set_rahmen_abschnitt(lintavo_window* window, double length) {
  return window ? window->api.SetRahmenAbschnitt(length) : 0;
}

long lintavo_window_get_anzahl_rahmen_bauteile(const lintavo_window* window, long art) {
  return window ? window->api.GetAnzahlRahmenBauteile(art) : 0;
}

long lintavo_window_get_anzahl_rahmen_bauteil_segmente(const lintavo_window* window, long art,
                                                       long i) {
  return window ? window->api.GetAnzahlRahmenBauteilSegmente(art, i) : 0;
}

double lintavo_window_get_rahmen_bauteil_dicke(const lintavo_window* window, long art, long i) {
  return window ? window->api.GetRahmenBauteilDicke(art, i) : 0.0;
}

long lintavo_window_get_rahmen_bauteil_typ(const lintavo_window* window, long art, long i) {
  return window ? window->api.GetRahmenBauteilTyp(art, i) : -1;
}

long lintavo_window_get_rahmen_bauteil_attribut(const lintavo_window* window, long art, long i,
                                                long n) {
  return window ? window->api.GetRahmenBauteilAttribut(art, i, n) : 0;
}

int lintavo_window_get_rahmen_bauteil_umriss(const lintavo_window* window, long art, long i,
                                             long segment, lintavo_polygon* outline, double* length,
                                             double* start_angle, double* end_angle) {
  return window
             ? window->api.GetRahmenBauteilUmriss(art, i, segment, Record(outline), Output(length),
                                                  Output(start_angle), Output(end_angle))
             : 0;
}

// --- the sashes --------------------------------------------------------------

long lintavo_window_get_anzahl_fluegel(const lintavo_window* window) {
  return window ? window->api.GetAnzahlFluegel() : -1;
}

size_t lintavo_window_get_fluegel_name(const lintavo_window* window, long i, char* name,
                                       size_t size) {
  return HandOutText(
      name, size, [&](char(&to)[256]) { return window ? window->api.GetFluegelName(i, to) : 0; });
}

double lintavo_window_get_fluegel_rahmen_breite(const lintavo_window* window, long i) {
  return window ? window->api.GetFluegelRahmenBreite(i) : 0.0;
}

double lintavo_window_get_fluegel_rahmen_dicke(const lintavo_window* window, long i) {
  return window ? window->api.GetFluegelRahmenDicke(i) : 0.0;
}

double lintavo_window_get_fluegel_ueberschlag(const lintavo_window* window, long i) {
  return window ? window->api.GetFluegelUeberschlag(i) : 0.0;
}

double lintavo_window_get_fluegel_zversatz(const lintavo_window* window, long i, long side) {
  return window ? window->api.GetFluegelZVersatz(i, side) : 0.0;
}

int lintavo_window_set_fluegel_rahmen_breite(lintavo_window* window, long i, double width) {
  return window ? window->api.SetFluegelRahmenBreite(i, width) : 0;
}

int lintavo_window_set_fluegel_rahmen_dicke(lintavo_window* window, long i, double thickness) {
  return window ? window->api.SetFluegelRahmenDicke(i, thickness) : 0;
}

int lintavo_window_set_fluegel_ueberschlag(lintavo_window* window, long i, double overlap) {
  return window ? window->api.SetFluegelUeberschlag(i, overlap) : 0;
}

int lintavo_window_set_fluegel_zversatz(lintavo_window* window, long i, double offset) {
  return window ? window->api.SetFluegelZVersatz(i, offset) : 0;
}

long lintavo_window_get_fluegel_anzahl_bauteile(const lintavo_window* window, long art,
                                                long fluegel) {
  return window ? window->api.GetFluegelAnzahlBauteile(art, fluegel) : 0;
}

long lintavo_window_get_fluegel_anzahl_bauteil_segmente(const lintavo_window* window, long art,
                                                        long fluegel, long i) {
  return window ? window->api.GetFluegelAnzahlBauteilSegmente(art, fluegel, i) : 0;
}

double lintavo_window_get_fluegel_bauteil_dicke(const lintavo_window* window, long art,
                                                long fluegel, long i) {
  return window ? window->api.GetFluegelBauteilDicke(art, fluegel, i) : 0.0;
}

long lintavo_window_get_fluegel_bauteil_typ(const lintavo_window* window, long art, long fluegel,
                                            long i) {
  return window ? window->api.GetFluegelBauteilTyp(art, fluegel, i) : -1;
}

long lintavo_window_get_fluegel_bauteil_attribut(const lintavo_window* window, long art,
                                                 long fluegel, long i, long n) {
  return window ? window->api.GetFluegelBauteilAttribut(art, fluegel, i, n) : 0;
}

long lintavo_window_get_fluegel_fuellung_attribut(const lintavo_window* window, long i, long n) {
  return window ? window->api.GetFluegelFuellungAttribut(i, n) : 0;
}

int lintavo_window_get_fluegel_bauteil_umriss(const lintavo_window* window, long art, long fluegel,
                                              long i, long segment, lintavo_polygon* outline,
                                              double* length, double* start_angle,
                                              double* end_angle) {
  return window ? window->api.GetFluegelBauteilUmriss(art, fluegel, i, segment, Record(outline),
                                                      Output(length), Output(start_angle),
                                                      Output(end_angle))
                : 0;
}

int lintavo_window_get_fluegel_innen_polygon(const lintavo_window* window, long i, double d,
                                             lintavo_polygon* polygon) {
  return window ? window->api.GetFluegelInnenPolygon(i, d, Record(polygon)) : 0;
}

// --- a sash's filling, fittings and bars -------------------------------------

int lintavo_window_get_fluegel_fuellung_art(const lintavo_window* window, long i) {
  return window ? window->api.GetFluegelFuellungArt(i) : eFeApiFuellungGlas;
}

double lintavo_window_get_fluegel_fuellung_dicke(const lintavo_window* window, long i) {
  return window ? window->api.GetFluegelFuellungDicke(i) : 0.0;
}

int lintavo_window_get_fluegel_fuellung_umriss(const lintavo_window* window, long i,
                                               lintavo_polygon* outline) {
  return window ? window->api.GetFluegelFuellungUmriss(i, Record(outline)) : 0;
}

long lintavo_window_get_fluegel_anzahl_lamellen(const lintavo_window* window, long i) {
  return window ? window->api.GetFluegelAnzahlLamellen(i) : 0;
}

int lintavo_window_get_fluegel_lamellen_umriss(const lintavo_window* window, long i, long j,
                                               lintavo_polygon* outline) {
  return window ? window->api.GetFluegelLamellenUmriss(i, j, Record(outline)) : 0;
}

long lintavo_window_get_anzahl_beschlaege(const lintavo_window* window, long i) {
  return window ? window->api.GetAnzahlBeschlaege(i) : -1;
}

int lintavo_window_get_beschlag_punkt(const lintavo_window* window, long i, long j, double* x,
                                      double* y, double* angle) {
  return window ? window->api.GetBeschlagPunkt(i, j, Output(x), Output(y), Output(angle)) : 0;
}

long lintavo_window_get_beschlag_typ(const lintavo_window* window, long i, long j) {
  return window ? window->api.GetBeschlagTyp(i, j) : -1;
}

int lintavo_window_get_fluegel_zuerst_aufgehend(const lintavo_window* window, long i) {
  return window ? window->api.GetFluegelZuerstAufgehend(i) : 0;
}

long lintavo_window_get_anzahl_sprossen(const lintavo_window* window, long i) {
  return window ? window->api.GetAnzahlSprossen(i) : -1;
}

double lintavo_window_get_sprossen_breite(const lintavo_window* window, long i, long j) {
  return window ? window->api.GetSprossenBreite(i, j) : 0.0;
}

double lintavo_window_get_sprossen_dicke(const lintavo_window* window, long i, long j) {
  return window ? window->api.GetSprossenDicke(i, j) : 0.0;
}

int lintavo_window_set_sprossen_breite(lintavo_window* window, long i, long j, double width) {
  return window ? window->api.SetSprossenBreite(i, j, width) : 0;
}

int lintavo_window_set_sprossen_dicke(lintavo_window* window, long i, long j, double thickness) {
  return window ? window->api.SetSprossenDicke(i, j, thickness) : 0;
}

// --- how a sash opens --------------------------------------------------------

size_t lintavo_window_get_fluegel_gangart(const lintavo_window* window, long i, char* text,
                                          size_t size) {
  return HandOutText(text, size, [&](char(&to)[256]) {
    return window ? window->api.GetFluegelGangart(i, to) : 0;
  });
}

size_t lintavo_window_get_fluegel_anschlag(const lintavo_window* window, long i, char* text,
                                           size_t size) {
  return HandOutText(text, size, [&](char(&to)[256]) {
    return window ? window->api.GetFluegelAnschlag(i, to) : 0;
  });
}

size_t lintavo_window_get_fluegel_oeff_seite(const lintavo_window* window, long i, char* text,
                                             size_t size) {
  return HandOutText(text, size, [&](char(&to)[256]) {
    return window ? window->api.GetFluegelOeffSeite(i, to) : 0;
  });
}
