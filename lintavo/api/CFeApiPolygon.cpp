#include "lintavo/api/CFeApiPolygon.h"

#include <algorithm>
#include <memory>

CFeApiPolygon::CFeApiPolygon(const CFeApiPolygon& other) {
  *this = other;
}

CFeApiPolygon& CFeApiPolygon::operator=(const CFeApiPolygon& other) {
  if (this == &other) return *this;
  Delete();
  if (!other.pdX || !other.pdY) return *this;
  SetOrder(other.lAnzahl);
  std::copy_n(other.pdX, other.lAnzahl, pdX);
  std::copy_n(other.pdY, other.lAnzahl, pdY);
  return *this;
}

CFeApiPolygon::~CFeApiPolygon() {
  Delete();
}

void CFeApiPolygon::SetOrder(int n) {
  const auto size = static_cast<std::size_t>(std::max(n, 0)) + 1;
  auto x = std::make_unique<double[]>(size);
  auto y = std::make_unique<double[]>(size);
  lAnzahl = std::max(n, 0);
  pdX = x.release();
  pdY = y.release();
}

void CFeApiPolygon::Delete() {
  delete[] pdX;
  delete[] pdY;
  pdX = nullptr;
  pdY = nullptr;
  lAnzahl = 0;
}
