// Set operations on the stretches of a line, each one walk along both lists.
#include "lintavo/geom/Abschnitte_intern.h"

#include <algorithm>
#include <cstddef>

#include "lintavo/geom/Toleranzen.h"

namespace lintavo {
namespace {

void Anfuegen(double von, double bis, Abschnitte& abschnitte) {
  if (bis - von >= kNullLaenge) abschnitte.push_back({von, bis});
}

}  // namespace

void AbschnitteVereinigen(Abschnitte& abschnitte) {
  std::sort(abschnitte.begin(), abschnitte.end(),
            [](const Abschnitt& s, const Abschnitt& t) { return s.von < t.von; });
  std::size_t anzahl = 0;
  for (const Abschnitt& abschnitt : abschnitte) {
    if (anzahl > 0 && abschnitt.von < abschnitte[anzahl - 1].bis + kNullLaenge) {
      abschnitte[anzahl - 1].bis = std::max(abschnitte[anzahl - 1].bis, abschnitt.bis);
    } else {
      abschnitte[anzahl++] = abschnitt;
    }
  }
  abschnitte.resize(anzahl);
}

Abschnitte GemeinsameAbschnitte(const Abschnitte& a, const Abschnitte& b) {
  Abschnitte gemeinsam;
  auto s = a.begin();
  auto t = b.begin();
  while (s != a.end() && t != b.end()) {
    Anfuegen(std::max(s->von, t->von), std::min(s->bis, t->bis), gemeinsam);
    ++(s->bis < t->bis ? s : t);
  }
  return gemeinsam;
}

Abschnitte UebrigeAbschnitte(const Abschnitte& a, const Abschnitte& b) {
  Abschnitte uebrig;
  auto t = b.begin();
  for (const Abschnitt& s : a) {
    double von = s.von;
    while (t != b.end() && t->bis <= von) ++t;
    for (auto davor = t; davor != b.end() && davor->von < s.bis; ++davor) {
      Anfuegen(von, davor->von, uebrig);
      von = davor->bis;
      t = davor;
    }
    Anfuegen(von, s.bis, uebrig);
  }
  return uebrig;
}

}  // namespace lintavo
