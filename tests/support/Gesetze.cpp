#include "tests/support/Gesetze.h"

#include <cstdlib>
#include <sstream>

#include "lintavo/ini/CIniFile.h"

#include "tests/support/Zufallsfenster.h"

namespace lintavo::test {
namespace {

constexpr std::uint64_t kErsterSeed = 1;
// After so many windows a law is known to be broken.
constexpr std::uint64_t kGenugVerstoesze = 3;

std::uint64_t Umgebung(const char* name, std::uint64_t sonst) {
  const char* text = std::getenv(name);
  return text ? std::strtoull(text, nullptr, 10) : sonst;
}

int AnzahlMeldungen() {
  return testing::UnitTest::GetInstance()->current_test_info()->result()->total_part_count();
}

void JederSeed(const std::function<void(std::uint64_t)>& versuch, std::uint64_t anzahl) {
  const std::uint64_t beginn = Umgebung("LINTAVO_ZUFALLSBEGINN", kErsterSeed);
  const std::uint64_t ende = beginn + Umgebung("LINTAVO_ZUFALLSFENSTER", anzahl);
  const std::uint64_t genug = Umgebung("LINTAVO_VERSTOESZE", kGenugVerstoesze);
  std::uint64_t verstoesze = 0;
  for (std::uint64_t seed = beginn; seed < ende && verstoesze < genug; ++seed) {
    const int meldungen = AnzahlMeldungen();
    versuch(seed);
    if (AnzahlMeldungen() == meldungen) continue;
    ++verstoesze;
    ADD_FAILURE() << "broken by seed " << seed;
  }
}

CIniFile Dokument(const std::string& text) {
  CIniFile document;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) document.AddLine(line);
  return document;
}

}  // namespace

void Berechne(CMFenster& fenster, bool automatisch) {
  const bool gut = fenster.Berechne(automatisch);
  CString text;
  fenster.GetFehler(text);
  EXPECT_TRUE(gut) << text;
}

CMFenster Gelesen(const Fensterentwurf& entwurf) {
  CMFenster fenster;
  CIniFile document = Dokument(MakroText(entwurf));
  EXPECT_TRUE(fenster.ReadFromBuffer(document));
  EXPECT_EQ(static_cast<std::size_t>(fenster.GetAnzahlFluegel()), entwurf.fluegel.size());
  fenster.GetPfostenVorlage().dBreite *= entwurf.maszstab;
  return fenster;
}

CMFenster Berechnet(const Fensterentwurf& entwurf) {
  CMFenster fenster = Gelesen(entwurf);
  Berechne(fenster, entwurf.pfostenAutomatisch);
  return fenster;
}

void JedesFenster(const Gesetz& gesetz, std::uint64_t anzahl) {
  JederSeed(
      [&](std::uint64_t seed) {
        const int meldungen = AnzahlMeldungen();
        const Fensterentwurf entwurf = Zufallsentwurf(seed);
        CMFenster fenster = Berechnet(entwurf);
        if (AnzahlMeldungen() == meldungen) gesetz(entwurf, fenster);
        if (AnzahlMeldungen() != meldungen) ADD_FAILURE() << MakroText(entwurf);
      },
      anzahl);
}

void JederWurf(const std::function<void(Wuerfel&)>& gesetz, std::uint64_t anzahl) {
  JederSeed(
      [&](std::uint64_t seed) {
        Wuerfel wuerfel(seed);
        gesetz(wuerfel);
      },
      anzahl);
}

std::vector<GEOM2_Polygon> UmrisseVon(const std::vector<CMBauteil>& teile) {
  std::vector<GEOM2_Polygon> umrisse;
  for (const CMBauteil& teil : teile) {
    if (teil.IsVorhanden()) teil.GetUmrissPunkte(umrisse.emplace_back());
  }
  return umrisse;
}

double Flaeche(const std::vector<GEOM2_Polygon>& polygone) {
  double summe = 0.0;
  for (const GEOM2_Polygon& polygon : polygone) summe += polygon.GetFlaeche();
  return summe;
}

}  // namespace lintavo::test
