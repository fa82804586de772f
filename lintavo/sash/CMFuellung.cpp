#include "lintavo/sash/CMFuellung.h"

void CMFuellung::SetGlas(double d) {
  lArt = eFuellungGlas;
  D3 = d;
}

void CMFuellung::SetKonstant(double d) {
  lArt = eFuellungKonstant;
  D3 = d;
}

void CMFuellung::SetLamellen(double width, double thickness) {
  lArt = eFuellungLamellen;
  D1 = 0.0;
  D2 = width;
  D3 = thickness;
}
