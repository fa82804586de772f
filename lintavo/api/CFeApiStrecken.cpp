#include "lintavo/api/CFeApiStrecken.h"

#include <algorithm>
#include <memory>

CFeApiStrecken::CFeApiStrecken(const CFeApiStrecken& other) {
  *this = other;
}

CFeApiStrecken& CFeApiStrecken::operator=(const CFeApiStrecken& other) {
  if (this == &other) return *this;
  SetOrder(other.lAnzahl);
  for (double* CFeApiStrecken::*werte : {&CFeApiStrecken::pdX1, &CFeApiStrecken::pdY1,
                                         &CFeApiStrecken::pdX2, &CFeApiStrecken::pdY2}) {
    std::copy_n(other.*werte, lAnzahl, this->*werte);
  }
  std::copy_n(other.piFarbe, lAnzahl, piFarbe);
  std::copy_n(other.piPrio, lAnzahl, piPrio);
  return *this;
}

CFeApiStrecken::~CFeApiStrecken() {
  Delete();
}

void CFeApiStrecken::SetOrder(int n) {
  const auto size = static_cast<std::size_t>(std::max(n, 0));
  // Everything is allocated before anything is released.
  auto x1 = std::make_unique<double[]>(size);
  auto y1 = std::make_unique<double[]>(size);
  auto x2 = std::make_unique<double[]>(size);
  auto y2 = std::make_unique<double[]>(size);
  auto farbe = std::make_unique<int[]>(size);
  auto prio = std::make_unique<int[]>(size);
  Delete();
  lAnzahl = static_cast<int>(size);
  pdX1 = x1.release();
  pdY1 = y1.release();
  pdX2 = x2.release();
  pdY2 = y2.release();
  piFarbe = farbe.release();
  piPrio = prio.release();
}

void CFeApiStrecken::Delete() {
  for (double* CFeApiStrecken::*werte : {&CFeApiStrecken::pdX1, &CFeApiStrecken::pdY1,
                                         &CFeApiStrecken::pdX2, &CFeApiStrecken::pdY2}) {
    delete[](this->*werte);
    this->*werte = nullptr;
  }
  delete[] piFarbe;
  delete[] piPrio;
  piFarbe = nullptr;
  piPrio = nullptr;
  lAnzahl = 0;
}
