#include "MakroMutator.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <random>
#include <vector>

#include "lintavo/resources/StringTable.h"

namespace lintavo::fuzz {

namespace {

using Zeilen = std::vector<std::string>;

// Bounds of the format and of the types, the tolerances, and what is no number.
constexpr std::array kZahlen = {
    "0",
    "-0",
    "1",
    "-1",
    "2",
    "3",
    "0.5",
    "-0.5",
    "0.000001",
    "0.0000009",
    "-0.000001",
    "0.0001",
    "0.00011",
    "0.001",
    "0.0011",
    "0.1",
    "0.25",
    "0.99",
    "0.9901",
    "10",
    "24",
    "25",
    "45",
    "49",
    "50",
    "90",
    "99.9999",
    "100",
    "100.0001",
    "101",
    "180",
    "199",
    "360",
    "-180",
    "1000",
    "10000",
    "30000",
    "30001",
    "999999",
    "1000000",
    "1000000001",
    "1e9",
    "1e10",
    "1e15",
    "1e18",
    "1e30",
    "1e154",
    "1e155",
    "1e308",
    "-1e308",
    "1e400",
    "-1e400",
    "4.9e-324",
    "1e-300",
    "nan",
    "inf",
    "-inf",
    "2147483647",
    "-2147483648",
    "4294967296",
    "9223372036854775807",
    "-9223372036854775808",
    "0x10",
    "",
    " ",
    "3,4",
    "12;5",
    "+7",
};

constexpr std::array kKnoten = {"0,0",       "1,0",          "0,1",      "1,1",        "2,1",
                                "1,2",       "2,2",          "3,3",      "-1,0",       "0,-1",
                                "99,99",     "2147483647,0", "0,0,0,90", "1,1,80,120", "0,0,40,1e9",
                                "1,0,nan,0", "0,0,1,2,3"};

constexpr std::array kKurzTexte = {"In", "Au", "Fe", "Dr", "Ki",  "Kl", "DK", "HD", "Sw",
                                   "We", "Sc", "HS", "Fa", "HSK", "Li", "Re", "Ob", "Un"};

// Sections, and keys with the number of items that their lists have; "%" stands
// for a running number.
struct Eintrag {
  const char* key;
  int items;
};
constexpr std::array kEintraege = {
    Eintrag{"Y%", 1}, Eintrag{"X%", 1},  Eintrag{"R%", 7},  Eintrag{"Z%", 7},
    Eintrag{"Z%", 9}, Eintrag{"Z%", 11}, Eintrag{"S%", 10}, Eintrag{"Beschlag%", 6},
    Eintrag{"X%", 2}, Eintrag{"Y%", 2},
};

// One source of chance for one change; repeatable from its seed.
class Zufall {
 public:
  explicit Zufall(unsigned seed) : engine_(seed) {}

  std::size_t Bis(std::size_t n) { return n == 0 ? 0 : engine_() % n; }
  bool Einmal(std::size_t in) { return Bis(in) == 0; }
  template <class Liste>
  auto Aus(const Liste& liste) -> decltype(liste[0]) {
    return liste[Bis(liste.size())];
  }

 private:
  std::minstd_rand engine_;
};

Zeilen Trenne(std::string_view text, char trenner) {
  Zeilen pieces;
  while (true) {
    const std::size_t end = text.find(trenner);
    pieces.emplace_back(text.substr(0, end));
    if (end == std::string_view::npos) return pieces;
    text.remove_prefix(end + 1);
  }
}

std::string Verbinde(const Zeilen& pieces, char trenner) {
  std::string text;
  for (std::size_t i = 0; i < pieces.size(); ++i) {
    if (i != 0) text += trenner;
    text += pieces[i];
  }
  return text;
}

bool IstKopf(const std::string& line) {
  return !line.empty() && line[0] == '[';
}

std::string AlsText(double v) {
  char buffer[64];
  std::snprintf(buffer, sizeof buffer, "%.10g", v);
  return buffer;
}

std::string NeueZahl(Zufall& zufall, const std::string& before) {
  const double v = std::strtod(before.c_str(), nullptr);
  switch (zufall.Bis(12)) {
    case 0:
      return AlsText(-v);
    case 1:
      return AlsText(v + 1.0);
    case 2:
      return AlsText(v - 1.0);
    case 3:
      return AlsText(v * 2.0);
    case 4:
      return AlsText(v / 2.0);
    case 5:
      return AlsText(v * 10.0);
    case 6:
      return AlsText(v + (zufall.Einmal(2) ? 1e-6 : -1e-6));
    case 7:
      return AlsText(v + (zufall.Einmal(2) ? 1e-3 : -1e-3));
    case 8:
      return AlsText(static_cast<double>(zufall.Bis(20000)) / 100.0);
    case 9:
      return AlsText(static_cast<double>(zufall.Bis(5)));
    default:
      return zufall.Aus(kZahlen);
  }
}

// --- places ----------------------------------------------------------------------

// Index of a random line with a value, or the count when none was met.
std::size_t WertZeile(Zufall& zufall, const Zeilen& lines) {
  for (int tries = 0; tries < 20; ++tries) {
    const std::size_t i = zufall.Bis(lines.size());
    if (lines[i].find('=') != std::string::npos) return i;
  }
  return lines.size();
}

struct Abschnitt {
  std::size_t von;
  std::size_t bis;
};

Abschnitt AbschnittUm(const Zeilen& lines, std::size_t i) {
  std::size_t from = i;
  while (from > 0 && !IstKopf(lines[from])) --from;
  std::size_t to = i + 1;
  while (to < lines.size() && !IstKopf(lines[to])) ++to;
  return {from, to};
}

// Counts the last number of a text up: "Fluegel2]" becomes "Fluegel3]".
std::string Hochgezaehlt(const std::string& text) {
  std::size_t end = text.size();
  while (end > 0 && std::isdigit(static_cast<unsigned char>(text[end - 1])) == 0) --end;
  std::size_t start = end;
  while (start > 0 && std::isdigit(static_cast<unsigned char>(text[start - 1])) != 0) --start;
  if (start == end || end - start > 8) return text;
  return text.substr(0, start) + std::to_string(std::atol(text.c_str() + start) + 1) +
         text.substr(end);
}

// --- changes ---------------------------------------------------------------------

void AendereZahl(Zufall& zufall, Zeilen& lines) {
  const std::size_t i = WertZeile(zufall, lines);
  if (i == lines.size()) return;
  const std::size_t sign = lines[i].find('=') + 1;
  Zeilen items = Trenne(std::string_view(lines[i]).substr(sign), ',');
  std::string& item = items[zufall.Bis(items.size())];
  item = NeueZahl(zufall, item);
  lines[i] = lines[i].substr(0, sign) + Verbinde(items, ',');
}

void AendereListe(Zufall& zufall, Zeilen& lines) {
  const std::size_t i = WertZeile(zufall, lines);
  if (i == lines.size()) return;
  const std::size_t sign = lines[i].find('=') + 1;
  Zeilen items = Trenne(std::string_view(lines[i]).substr(sign), ',');
  const auto place = items.begin() + static_cast<std::ptrdiff_t>(zufall.Bis(items.size()));
  if (zufall.Einmal(2) && items.size() > 1) {
    items.erase(place);
  } else {
    items.insert(place, std::string(zufall.Aus(kZahlen)));
  }
  lines[i] = lines[i].substr(0, sign) + Verbinde(items, ',');
}

void TauscheWert(Zufall& zufall, Zeilen& lines) {
  const std::size_t i = WertZeile(zufall, lines);
  const std::size_t j = WertZeile(zufall, lines);
  if (i == lines.size() || j == lines.size()) return;
  lines[i] = lines[i].substr(0, lines[i].find('=')) + lines[j].substr(lines[j].find('='));
}

void SetzeKnoten(Zufall& zufall, Zeilen& lines) {
  static const std::array kKeys = {"Knoten1=", "Knoten2=", "Knoten3=", "KnotenAL=", "KnotenAR="};
  const std::string key = zufall.Aus(kKeys);
  const std::string line = key + zufall.Aus(kKnoten);
  const std::size_t start = zufall.Bis(lines.size());
  for (std::size_t n = 0; n < lines.size(); ++n) {
    std::string& candidate = lines[(start + n) % lines.size()];
    if (candidate.compare(0, key.size(), key) != 0) continue;
    candidate = line;
    return;
  }
  lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(start), line);
}

void SetzeKurzText(Zufall& zufall, Zeilen& lines) {
  static const std::array kKeys = {"OeffSeite=", "Gangart=", "Anschlag="};
  const std::string key = zufall.Aus(kKeys);
  for (std::string& line : lines) {
    if (line.compare(0, key.size(), key) == 0 && zufall.Einmal(2)) {
      line = key + zufall.Aus(kKurzTexte);
      return;
    }
  }
}

void SetzeForm(Zufall& zufall, Zeilen& lines) {
  const std::size_t i = zufall.Bis(lines.size());
  const Abschnitt section = AbschnittUm(lines, i);
  for (std::size_t n = section.von; n < section.bis; ++n) {
    if (lines[n].compare(0, 4, "Typ=") == 0)
      lines[n] = "Typ=" + AlsText(1.0 + static_cast<double>(zufall.Bis(4))) + ",0";
  }
  static const std::array kFormen = {
      "Stich=30", "Stich=45.5", "Stich unten=20", "Korbbogen=1", "Gespiegelt=1", "X1=20,0",
      "Y1=30,0",  "X2=25,1",    "Y2=25,1",        "Y3=-15,0",    "X4=10,1",      "Mit Rahmen=0"};
  lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(section.bis), zufall.Aus(kFormen));
}

void VerdoppleZeile(Zufall& zufall, Zeilen& lines) {
  const std::size_t i = zufall.Bis(lines.size());
  const std::size_t sign = lines[i].find('=');
  std::string line = lines[i];
  if (sign != std::string::npos) {
    line = Hochgezaehlt(line.substr(0, sign)) + line.substr(sign);
  }
  lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(i) + 1, line);
}

// Repeats a section under the next number; a sash moves on by one column.
void VerdoppleAbschnitt(Zufall& zufall, Zeilen& lines) {
  const Abschnitt section = AbschnittUm(lines, zufall.Bis(lines.size()));
  Zeilen copy(lines.begin() + static_cast<std::ptrdiff_t>(section.von),
              lines.begin() + static_cast<std::ptrdiff_t>(section.bis));
  copy[0] = Hochgezaehlt(copy[0]);
  for (std::string& line : copy) {
    if (line.compare(0, 6, "Knoten") != 0 || line.find('=') == std::string::npos) continue;
    const std::size_t sign = line.find('=') + 1;
    Zeilen items = Trenne(std::string_view(line).substr(sign), ',');
    std::string& index = items[zufall.Bis(std::min<std::size_t>(items.size(), 2))];
    index = AlsText(std::strtod(index.c_str(), nullptr) + 1.0);
    line = line.substr(0, sign) + Verbinde(items, ',');
  }
  lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(section.bis), copy.begin(), copy.end());
}

void StreicheZeile(Zufall& zufall, Zeilen& lines) {
  if (lines.size() < 2) return;
  lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(zufall.Bis(lines.size())));
}

void TauscheZeilen(Zufall& zufall, Zeilen& lines) {
  std::swap(lines[zufall.Bis(lines.size())], lines[zufall.Bis(lines.size())]);
}

// An entry with a list of the length that it should have, of plausible numbers.
void FuegeEintragEin(Zufall& zufall, Zeilen& lines) {
  const Eintrag& entry = zufall.Aus(kEintraege);
  std::string line = entry.key;
  line.replace(line.find('%'), 1, std::to_string(1 + zufall.Bis(4)));
  for (int n = 0; n < entry.items; ++n) {
    line += n == 0 ? '=' : ',';
    line += AlsText(static_cast<double>(zufall.Einmal(3) ? zufall.Bis(120) : zufall.Bis(4)));
  }
  const Abschnitt section = AbschnittUm(lines, zufall.Bis(lines.size()));
  lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(section.bis), line);
}

void FuegeTextEin(Zufall& zufall, Zeilen& lines) {
  const CString name = LoadText(static_cast<int>(zufall.Bis(96)));
  std::string line(name.View());
  line = zufall.Einmal(4) ? "[" + line + "]" : line + "=" + NeueZahl(zufall, "7");
  lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(zufall.Bis(lines.size())), line);
}

void AendereByte(Zufall& zufall, Zeilen& lines) {
  std::string& line = lines[zufall.Bis(lines.size())];
  if (line.empty()) return;
  line[zufall.Bis(line.size())] = static_cast<char>(zufall.Bis(256));
}

void VerlaengereZeile(Zufall& zufall, Zeilen& lines) {
  std::string& line = lines[zufall.Bis(lines.size())];
  line += std::string(1 + zufall.Bis(300), zufall.Einmal(2) ? '9' : ',');
}

using Aenderung = void (*)(Zufall&, Zeilen&);

// Named more often, chosen more often.
constexpr std::array<Aenderung, 24> kAenderungen = {
    AendereZahl,     AendereZahl,        AendereZahl,        AendereZahl,   AendereZahl,
    AendereZahl,     AendereZahl,        AendereListe,       TauscheWert,   SetzeKnoten,
    SetzeKnoten,     SetzeKurzText,      SetzeForm,          SetzeForm,     VerdoppleZeile,
    VerdoppleZeile,  VerdoppleAbschnitt, VerdoppleAbschnitt, StreicheZeile, TauscheZeilen,
    FuegeEintragEin, FuegeEintragEin,    FuegeTextEin,       AendereByte,
};

std::string Gekuerzt(std::string text, std::size_t maxSize) {
  if (text.size() > maxSize) text.resize(maxSize);
  return text;
}

}  // namespace

std::string MutiereMakro(std::string_view text, unsigned seed, std::size_t maxSize) {
  Zufall zufall(seed);
  Zeilen lines = Trenne(text, '\n');
  const std::size_t changes = 1 + zufall.Bis(4);
  for (std::size_t n = 0; n < changes; ++n) zufall.Aus(kAenderungen)(zufall, lines);
  if (zufall.Einmal(100)) VerlaengereZeile(zufall, lines);
  return Gekuerzt(Verbinde(lines, '\n'), maxSize);
}

std::string KreuzeMakros(std::string_view a, std::string_view b, unsigned seed,
                         std::size_t maxSize) {
  Zufall zufall(seed);
  Zeilen first = Trenne(a, '\n');
  const Zeilen second = Trenne(b, '\n');
  const Abschnitt cut = AbschnittUm(first, zufall.Bis(first.size()));
  const Abschnitt from = AbschnittUm(second, zufall.Bis(second.size()));
  const bool oneOnly = zufall.Einmal(2);
  const Zeilen tail(
      second.begin() + static_cast<std::ptrdiff_t>(from.von),
      oneOnly ? second.begin() + static_cast<std::ptrdiff_t>(from.bis) : second.end());
  if (!oneOnly) first.resize(cut.bis);
  first.insert(first.begin() + static_cast<std::ptrdiff_t>(cut.bis), tail.begin(), tail.end());
  return Gekuerzt(Verbinde(first, '\n'), maxSize);
}

}  // namespace lintavo::fuzz
