#include "tests/support/Zellen.h"

namespace lintavo::test {
namespace {

bool Beruehren(const Feld& a, const Feld& b) {
  const bool nebeneinander = (a.j1 == b.j0 || b.j1 == a.j0) && a.k0 < b.k1 && b.k0 < a.k1;
  const bool uebereinander = (a.k1 == b.k0 || b.k1 == a.k0) && a.j0 < b.j1 && b.j0 < a.j1;
  return nebeneinander || uebereinander;
}

}  // namespace

bool HaengenZusammen(const std::vector<Feld>& felder) {
  std::vector<bool> erreicht(felder.size(), false);
  std::vector<std::size_t> offen{0};
  erreicht[0] = true;
  std::size_t anzahl = 1;
  while (!offen.empty()) {
    const Feld von = felder[offen.back()];
    offen.pop_back();
    for (std::size_t i = 0; i < felder.size(); ++i) {
      if (erreicht[i] || !Beruehren(von, felder[i])) continue;
      erreicht[i] = true;
      offen.push_back(i);
      ++anzahl;
    }
  }
  return anzahl == felder.size();
}

}  // namespace lintavo::test
