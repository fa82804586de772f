#include "tests/support/Fensterentwurf.h"

#include <charconv>
#include <cmath>
#include <initializer_list>
#include <iterator>
#include <numeric>
#include <utility>

namespace lintavo::test {
namespace {

constexpr const char* kGangarten[] = {"Fe", "Dr", "Ki", "Kl", "DK", "HD",
                                      "Sw", "We", "Sc", "HS", "Fa", "HSK"};
constexpr const char* kAnschlaege[] = {"Li", "Re", "Ob", "Un"};
constexpr int kAnschlagLinks = 0;
constexpr int kAnschlagRechts = 1;

// As files write numbers: at most six decimals, trailing zeros dropped.
std::string Zahl(double wert) {
  char puffer[400];
  const auto ende =
      std::to_chars(std::begin(puffer), std::end(puffer), wert, std::chars_format::fixed, 6);
  std::string text(puffer, ende.ptr);
  text.erase(text.find_last_not_of('0') + 1);
  if (text.back() == '.') text.pop_back();
  if (text == "-0") text.erase(0, 1);
  return text;
}

class Text {
 public:
  void Abschnitt(const std::string& name) { text_.append("[").append(name).append("]\n"); }
  void Wert(const std::string& schluessel, const std::string& wert) {
    text_.append(schluessel).append("=").append(wert).append("\n");
  }
  void Flagge(const std::string& schluessel, bool wert) { Wert(schluessel, wert ? "1" : "0"); }
  void Zahlen(const std::string& schluessel, std::initializer_list<double> zahlen) {
    std::string liste;
    for (const double zahl : zahlen) {
      if (!liste.empty()) liste += ',';
      liste += Zahl(zahl);
    }
    Wert(schluessel, liste);
  }
  void Knoten(const std::string& schluessel, const Knotenentwurf& n) {
    if (n.frei) {
      Zahlen(schluessel, {double(n.j), double(n.k), n.x, n.y});
    } else {
      Zahlen(schluessel, {double(n.j), double(n.k)});
    }
  }
  std::string Fertig() && { return std::move(text_); }

 private:
  std::string text_;
};

std::string Nummeriert(const char* name, std::size_t i) {
  return std::string(name).append(std::to_string(i + 1));
}

double Gerundet(double ort) {
  return std::round(ort * 1e6) / 1e6;
}

// Distances of axes whose places have six decimals.
void SchreibeAchsen(const Fensterentwurf& entwurf, Text& text) {
  text.Abschnitt("Achsen");
  const auto schreibe = [&](const char* name, const std::vector<double>& abstaende) {
    double ort = 0.0;
    for (std::size_t i = 0; i < abstaende.size(); ++i) {
      const double davor = Gerundet(ort);
      ort += abstaende[i];
      text.Zahlen(Nummeriert(name, i), {Gerundet(ort) - davor});
    }
  };
  schreibe("Y", entwurf.zeilen);
  schreibe("X", entwurf.spalten);
}

void SchreibeMasz(const Maszentwurf& masz, Text& text) {
  text.Wert("Name", masz.name);
  text.Zahlen("Laenge", {masz.laenge, masz.abstand});
  text.Flagge("Richtung", masz.horizontal);
  text.Knoten("Knoten1", masz.knoten[0]);
  text.Knoten("Knoten2", masz.knoten[1]);
  if (masz.dritter) text.Knoten("Knoten3", *masz.dritter);
}

// `k` is the kind that files give a frame's parts: 2 the window's, 3 a sash's.
void SchreibeRahmenteile(const Querschnitt& vorlage, const std::vector<Querschnitt>& teile,
                         double k, Text& text) {
  text.Zahlen("RahmenDefaults",
              {vorlage.breite, vorlage.ueberschlag, 1.0, k, 1.0, k, vorlage.dicke});
  for (std::size_t i = 0; i < teile.size(); ++i) {
    text.Zahlen(Nummeriert("R", i),
                {teile[i].breite, teile[i].ueberschlag, 1.0, k, 1.0, k, teile[i].dicke});
  }
}

void SchreibeRahmen(const Fensterentwurf& entwurf, Text& text) {
  text.Abschnitt("Rahmen");
  text.Wert("Name", "Rahmen");
  text.Zahlen("Rahmendicke", {entwurf.rahmen.dicke});
  text.Zahlen("Knoten1", {0.0, 0.0});
  text.Zahlen("Knoten2", {double(entwurf.spalten.size()), double(entwurf.zeilen.size())});
  SchreibeRahmenteile(entwurf.rahmen, entwurf.rahmenteile, 2.0, text);
  std::size_t z = 0;
  for (const Pfostenentwurf& p : entwurf.pfosten) {
    text.Zahlen(Nummeriert("Z", z++),
                {double(p.von.j), double(p.von.k), double(p.bis.j), double(p.bis.k), p.breite,
                 p.dicke, 0.0, 1.0, 2.0, 1.0, 2.0});
  }
  for (const Zusatzteilentwurf& t : entwurf.aussenteile) {
    text.Zahlen(Nummeriert("Z", z++), {double(t.seite), t.breite, t.dicke, 1.0, 2.0, 1.0, 2.0,
                                       double(t.anfang), double(t.ende)});
  }
}

void SchreibeFuellung(const Fuellungsentwurf& f, Text& text) {
  text.Zahlen("Fuellung", {double(f.art), f.breite, f.abstand, f.dicke, 0.0, 0.0, 0.0, f.kurzeKante,
                           5.0, 5.0, 1.0, 1.0});
}

void SchreibeForm(const Fluegelentwurf& f, Text& text) {
  if (f.form == 1) {
    for (std::size_t i = 0; i < 4; ++i) {
      text.Zahlen(Nummeriert("X", i), {f.beiwertX[i].wert, f.beiwertX[i].fest ? 1.0 : 0.0});
    }
    for (std::size_t i = 0; i < 4; ++i) {
      text.Zahlen(Nummeriert("Y", i), {f.beiwertY[i].wert, f.beiwertY[i].fest ? 1.0 : 0.0});
    }
  }
  if (f.form == 2 || f.form == 4) {
    text.Zahlen("Stich", {f.stich});
    text.Zahlen("Stich unten", {f.stichUnten});
    text.Flagge("Korbbogen", f.korbbogen);
  }
  if (f.form == 4) text.Flagge("Gespiegelt", f.gespiegelt);
}

void SchreibeTeile(const Fluegelentwurf& f, Text& text) {
  SchreibeRahmenteile(f.vorlage, f.teile, 3.0, text);
  for (std::size_t i = 0; i < f.innenteile.size(); ++i) {
    const Zusatzteilentwurf& t = f.innenteile[i];
    text.Zahlen(Nummeriert("Z", i), {double(t.seite), t.breite, t.dicke, 1.0, 3.0, 1.0, 3.0});
  }
  for (std::size_t i = 0; i < f.sprossen.size(); ++i) {
    const Sprossenentwurf& s = f.sprossen[i];
    text.Zahlen(Nummeriert("S", i),
                {s.x, s.y, s.winkel, s.laenge, s.breite, 1.0, 4.0, 1.0, 4.0, s.dicke});
  }
  for (std::size_t i = 0; i < f.beschlaege.size(); ++i) {
    const Beschlagentwurf& b = f.beschlaege[i];
    text.Zahlen(Nummeriert("Beschlag", i), {double(b.typ), double(b.bauteil), double(b.art1),
                                            b.abstand1, double(b.art2), b.abstand2});
  }
}

void SchreibeFluegel(const Fluegelentwurf& f, Text& text) {
  text.Zahlen("Typ", {double(f.form), 0.0});
  text.Wert("Name", f.name);
  SchreibeFuellung(f.fuellung, text);
  text.Zahlen("Rahmendicke", {f.vorlage.dicke});
  text.Zahlen("Z-Versatz", {f.zVersatz});
  text.Flagge("Mit Rahmen", f.mitRahmen);
  text.Wert("OeffSeite", f.nachAussen ? "Au" : "In");
  text.Wert("Gangart", kGangarten[f.gangart]);
  text.Wert("Anschlag", kAnschlaege[f.anschlag]);
  text.Flagge("ZuerstAufgehend", f.zuerstAufgehend);
  text.Knoten("Knoten1", f.knoten1);
  text.Knoten("Knoten2", f.knoten2);
  if (f.jLinks != f.knoten1.j) text.Zahlen("KnotenAL", {double(f.jLinks), double(f.knoten1.k)});
  if (f.jRechts != f.knoten2.j) text.Zahlen("KnotenAR", {double(f.jRechts), double(f.knoten2.k)});
  SchreibeTeile(f, text);
  SchreibeForm(f, text);
}

// --- mirror ---------------------------------------------------------------------

class Spiegel {
 public:
  explicit Spiegel(const Fensterentwurf& entwurf)
      : n_(static_cast<int>(entwurf.spalten.size())), breite_(Breite(entwurf)) {}

  void Kehre(Knotenentwurf& knoten) const {
    knoten.j = n_ - knoten.j;
    if (knoten.frei) knoten.x = breite_ - knoten.x;
  }

  // A horizontal dimension runs the other way then, which its sign says.
  void Kehre(Maszentwurf& masz) const {
    for (Knotenentwurf& knoten : masz.knoten) Kehre(knoten);
    if (masz.dritter) {
      Kehre(*masz.dritter);
      if (masz.horizontal) std::swap(masz.knoten[1], *masz.dritter);
    } else if (masz.horizontal) {
      masz.laenge = -masz.laenge;
    }
  }

  void Kehre(Fluegelentwurf& f) const {
    f.teile.clear();
    f.innenteile.clear();
    f.beschlaege.clear();
    Kehre(f.knoten1);
    Kehre(f.knoten2);
    std::swap(f.knoten1.j, f.knoten2.j);
    f.jLinks = n_ - f.jLinks;
    f.jRechts = n_ - f.jRechts;
    std::swap(f.jLinks, f.jRechts);
    for (auto* beiwert : {f.beiwertX, f.beiwertY}) {
      std::swap(beiwert[0], beiwert[1]);
      std::swap(beiwert[2], beiwert[3]);
    }
    f.gespiegelt = f.form == 4 && !f.gespiegelt;
    if (f.anschlag == kAnschlagLinks || f.anschlag == kAnschlagRechts) {
      f.anschlag = kAnschlagLinks + kAnschlagRechts - f.anschlag;
    }
    for (Sprossenentwurf& s : f.sprossen) {
      s.x = breite_ - s.x;
      s.winkel = 180.0 - s.winkel;
    }
  }

 private:
  int n_;
  double breite_;
};

// --- enlarging ------------------------------------------------------------------

void Mal(double& laenge, double faktor) {
  laenge *= faktor;
}

void Mal(Querschnitt& q, double faktor) {
  for (double* laenge : {&q.breite, &q.ueberschlag, &q.dicke}) *laenge *= faktor;
}

void Mal(Knotenentwurf& knoten, double faktor) {
  knoten.x *= faktor;
  knoten.y *= faktor;
}

void Mal(Zusatzteilentwurf& teil, double faktor) {
  teil.breite *= faktor;
  teil.dicke *= faktor;
}

void Mal(Pfostenentwurf& pfosten, double faktor) {
  pfosten.breite *= faktor;
  pfosten.dicke *= faktor;
}

void Mal(Sprossenentwurf& s, double faktor) {
  for (double* laenge : {&s.x, &s.y, &s.laenge, &s.breite, &s.dicke}) *laenge *= faktor;
}

void Mal(Maszentwurf& masz, double faktor) {
  masz.laenge *= faktor;
  masz.abstand *= faktor;
  for (Knotenentwurf& knoten : masz.knoten) Mal(knoten, faktor);
  if (masz.dritter) Mal(*masz.dritter, faktor);
}

// Distances of fittings that are percentages stay.
void Mal(Beschlagentwurf& b, double faktor) {
  constexpr int kProzent = 1;
  if (b.art1 != kProzent) b.abstand1 *= faktor;
  if (b.art2 != kProzent) b.abstand2 *= faktor;
}

void Mal(Fluegelentwurf& f, double faktor);

template <class T>
void Mal(std::vector<T>& liste, double faktor) {
  for (T& eintrag : liste) Mal(eintrag, faktor);
}

void Mal(Fluegelentwurf& f, double faktor) {
  Mal(f.vorlage, faktor);
  Mal(f.teile, faktor);
  Mal(f.innenteile, faktor);
  Mal(f.sprossen, faktor);
  Mal(f.beschlaege, faktor);
  for (double* laenge : {&f.fuellung.abstand, &f.fuellung.breite, &f.fuellung.dicke,
                         &f.fuellung.kurzeKante, &f.zVersatz, &f.stich, &f.stichUnten}) {
    *laenge *= faktor;
  }
  for (Beiwertentwurf& beiwert : f.beiwertX) beiwert.wert *= faktor;
  for (Beiwertentwurf& beiwert : f.beiwertY) beiwert.wert *= faktor;
}

}  // namespace

double Breite(const Fensterentwurf& entwurf) {
  return std::accumulate(entwurf.spalten.begin(), entwurf.spalten.end(), 0.0);
}

double Hoehe(const Fensterentwurf& entwurf) {
  return std::accumulate(entwurf.zeilen.begin(), entwurf.zeilen.end(), 0.0);
}

std::string MakroText(const Fensterentwurf& entwurf) {
  Text text;
  text.Abschnitt("Allgemeines");
  text.Wert("Version", "1.00");
  text.Wert("Name", "Zufallsfenster " + std::to_string(entwurf.seed));
  SchreibeAchsen(entwurf, text);
  for (std::size_t i = 0; i < entwurf.masze.size(); ++i) {
    text.Abschnitt(Nummeriert("Masz", i));
    SchreibeMasz(entwurf.masze[i], text);
  }
  SchreibeRahmen(entwurf, text);
  for (std::size_t i = 0; i < entwurf.fluegel.size(); ++i) {
    text.Abschnitt(Nummeriert("Fluegel", i));
    SchreibeFluegel(entwurf.fluegel[i], text);
  }
  return std::move(text).Fertig();
}

Fensterentwurf Gespiegelt(const Fensterentwurf& entwurf) {
  const Spiegel spiegel(entwurf);
  Fensterentwurf bild = entwurf;
  bild.spalten.assign(entwurf.spalten.rbegin(), entwurf.spalten.rend());
  bild.rahmenteile.clear();
  bild.aussenteile.clear();
  for (Maszentwurf& masz : bild.masze) spiegel.Kehre(masz);
  for (Pfostenentwurf& pfosten : bild.pfosten) {
    spiegel.Kehre(pfosten.von);
    spiegel.Kehre(pfosten.bis);
  }
  for (Fluegelentwurf& fluegel : bild.fluegel) spiegel.Kehre(fluegel);
  return bild;
}

Fensterentwurf Versetzt(const Fensterentwurf& entwurf, int dj, int dk, double dx, double dy) {
  Fensterentwurf f = entwurf;
  const auto versetze = [&](Knotenentwurf& knoten) {
    knoten = {knoten.j + dj, knoten.k + dk, knoten.frei, knoten.x + dx, knoten.y + dy};
  };
  for (Maszentwurf& masz : f.masze) {
    for (Knotenentwurf& knoten : masz.knoten) versetze(knoten);
    if (masz.dritter) versetze(*masz.dritter);
  }
  for (Pfostenentwurf& pfosten : f.pfosten) {
    versetze(pfosten.von);
    versetze(pfosten.bis);
  }
  for (Fluegelentwurf& fluegel : f.fluegel) {
    versetze(fluegel.knoten1);
    versetze(fluegel.knoten2);
    fluegel.jLinks += dj;
    fluegel.jRechts += dj;
    for (Sprossenentwurf& s : fluegel.sprossen) {
      s.x += dx;
      s.y += dy;
    }
  }
  return f;
}

Fensterentwurf Vergroeszert(const Fensterentwurf& entwurf, double faktor) {
  Fensterentwurf grosz = entwurf;
  Mal(grosz.spalten, faktor);
  Mal(grosz.zeilen, faktor);
  Mal(grosz.masze, faktor);
  Mal(grosz.rahmen, faktor);
  Mal(grosz.rahmenteile, faktor);
  Mal(grosz.pfosten, faktor);
  Mal(grosz.aussenteile, faktor);
  Mal(grosz.fluegel, faktor);
  grosz.lochflaeche *= faktor * faktor;
  grosz.maszstab *= faktor;
  return grosz;
}

}  // namespace lintavo::test
