#include "lintavo/model/CMKnoten.h"

void CMKnoten::Set(int j, int k) {
  iJ = j;
  iK = k;
  bEckpunkt = false;
}

void CMKnoten::SetEckpu(double x, double y) {
  dX = x;
  dY = y;
  bEckpunkt = true;
}

void CMKnoten::SetEckpu(int j, int k, double x, double y) {
  iJ = j;
  iK = k;
  SetEckpu(x, y);
}
