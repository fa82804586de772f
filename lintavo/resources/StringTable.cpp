// The one table of texts. Files are written and read with the same entries, so
// the two directions cannot drift apart.
#include "lintavo/resources/StringTable.h"

#include <array>
#include <charconv>
#include <cstddef>

namespace {

using lintavo::StringId;

struct Entry {
  StringId id;
  const char* text;
};

// Spelling slips and double blanks inside the messages are the texts' own:
// hosts compare with them.
constexpr Entry kEntries[] = {
    {StringId::Allgemeines, "Allgemeines"},
    {StringId::Version, "Version"},
    {StringId::Name, "Name"},
    {StringId::Bitmap1, "Bitmap1"},
    {StringId::Bitmap2, "Bitmap2"},
    {StringId::Typ, "Typ"},
    {StringId::Text, "Text"},
    {StringId::Achsen, "Achsen"},
    {StringId::PraefixX, "X"},
    {StringId::PraefixY, "Y"},
    {StringId::MaszSektion, "Masz"},
    {StringId::Laenge, "Laenge"},
    {StringId::Richtung, "Richtung"},
    {StringId::Knoten1, "Knoten1"},
    {StringId::Knoten2, "Knoten2"},
    {StringId::Knoten3, "Knoten3"},
    {StringId::Rahmen, "Rahmen"},
    {StringId::Fluegel, "Fluegel"},
    {StringId::MeldungKeinRahmenpolygon, "Das Rahmenpolygon kann nicht erzeugt werden !"},
    {StringId::MeldungKeinFluegelpolygon,
     "Das Rahmenpolygon von Flügel Nr.%s kann nicht erzeugt werden !"},
    {StringId::Masze, "Masze"},
    {StringId::MeldungFluegelflaecheNull, "Die Flügelfläche ist gleich Null !"},
    {StringId::MeldungFluegelUeberlappen, "Die Flügel überlappen sich !"},
    {StringId::MeldungZusatzmaszNichtAngebracht,
     "Das Zusatzmaß '%s' kann nicht angebracht werden !"},
    {StringId::Sprossenbild, "Sprossenbild"},
    {StringId::Fuellung, "Fuellung"},
    {StringId::MeldungKeinFenstertyp,
     "In der Parameterdatei ist keine Angabe für den Fenstertyp !"},
    {StringId::MeldungDateiFehlt, "Die Datei '%s' ist nicht vorhanden !"},
    {StringId::Rahmendicke, "Rahmendicke"},
    {StringId::ZVersatz, "Z-Versatz"},
    {StringId::RahmenDefaults, "RahmenDefaults"},
    {StringId::SprossenDefaults, "SprossenDefaults"},
    {StringId::KnotenAL, "KnotenAL"},
    {StringId::KnotenAR, "KnotenAR"},
    {StringId::MitRahmen, "Mit Rahmen"},
    {StringId::OeffSeite, "OeffSeite"},
    {StringId::Gangart, "Gangart"},
    {StringId::Anschlag, "Anschlag"},
    {StringId::ZuerstAufgehend, "ZuerstAufgehend"},
    {StringId::PraefixR, "R"},
    {StringId::MeldungDateiNichtGespeichert, "Die Datei '%s' kann nicht gespeichert werden !"},
    {StringId::PraefixZ, "Z"},
    {StringId::PraefixS, "S"},
    {StringId::PraefixF, "F"},
    {StringId::PraefixA, "A"},
    {StringId::MeldungBezugspunktLinks, "Der linke Bezugspunkt liegt innerhalb des Flügels !"},
    {StringId::MeldungBezugspunktRechts, "Der rechte Bezugspunkt liegt innenhalb des Flügels !"},
    {StringId::MeldungKeinePosition, "Es wurde noch keine Position geladen !"},
    {StringId::MeldungZusatzmaszLaenge, "Die Länge des Zusatzmaßes '%s' ist unzulässig !"},
    {StringId::PraefixD, "D"},
    {StringId::Stich, "Stich"},
    {StringId::StichUnten, "Stich unten"},
    {StringId::MeldungSprossenbild,
     "Der Flügel '%s' enthält eine unzulässige Sprossenbild-Bezeichnung !"},
    {StringId::Korbbogen, "Korbbogen"},
    {StringId::Gespiegelt, "Gespiegelt"},
    {StringId::Skalieren, "Skalieren"},
    {StringId::Bereich, "Bereich"},
    {StringId::Breite, "Breite"},
    {StringId::Hoehe, "Hoehe"},
    {StringId::Dicke, "Dicke"},
    {StringId::Fenster, "Fenster"},
    {StringId::Sprossen, "Sprossen"},
    {StringId::Vermaszung, "Vermaszung"},
    {StringId::AngabenInPixel, "Angaben in Pixel"},
    {StringId::MaszlinienAbstandsFaktor, "MaszlinienAbstandsFaktor"},
    {StringId::Texthoehe, "Texthoehe"},
    {StringId::Textbreite, "Textbreite"},
    {StringId::MinTextpixel, "minTextpixel"},
    {StringId::Hilfslinienlaenge, "Hilfslinienlaenge"},
    {StringId::Pfeillaenge, "Pfeillaenge"},
    {StringId::Pfeilbreite, "Pfeilbreite"},
    {StringId::Stiftbreiten, "Stiftbreiten"},
    {StringId::Oeffnungssymbole, "Oeffnungssymbole"},
    {StringId::Maszlinien, "Maszlinien"},
    {StringId::Bauteil, "Bauteil"},
    {StringId::Oeffnungssymbol, "Oeffnungssymbol"},
    {StringId::Rgb2d, "RGB2d"},
    {StringId::Kdiffus, "kdiffus"},
    {StringId::Kambient, "kambient"},
    {StringId::MeldungZuVieleBauteile,
     "Unzulässige Eingabe wegen Formänderung (zu viele Rahmenbauteile) !"},
    {StringId::MeldungZuWenigBauteile,
     "Unzulässige Eingabe wegen Formänderung  (zu wenig Rahmenbauteile) !"},
    {StringId::MeldungZuVieleBauteileFluegel,
     "Unzulässige Eingabe wegen Formänderung !\n\n"
     "Es sind zu viele Rahmenbauteile im Flügel '%s'."},
    {StringId::Kspiegel, "kspiegel"},
    {StringId::MeldungZuWenigBauteileFluegel,
     "Unzulässige Eingabe wegen Formänderung !\n\n"
     "Es sind zu wenig Rahmenbauteile im Flügel '%s'."},
    {StringId::MeldungFormaenderungFluegel,
     "Unzulässige Eingabe wegen Formänderung im Flügel '%s' !"},
    {StringId::Alpha, "alpha"},
    {StringId::Oe, "Oe"},
    {StringId::RgbDiffus, "RGBDiffus"},
    {StringId::RgbSpiegel, "RGBSpiegel"},
    {StringId::Textur, "Textur"},
    {StringId::XSkalierung, "X-Skalierung"},
    {StringId::YSkalierung, "Y-Skalierung"},
    {StringId::Beidseitig, "Beidseitig"},
    {StringId::MeldungBauteilFehlt, "Ein Zusatzteil verweist auf ein fehlendes Bauteil !"},
};

// The only text outside the dense numbers.
constexpr const char* kBeschlag = "Beschlag%d";

constexpr std::size_t kNumbers = 96;  // 0 is no text

// The texts by number; null where a number is free. A number given twice does
// not compile.
constexpr std::array<const char*, kNumbers> TextsByNumber() {
  std::array<const char*, kNumbers> texts{};
  for (const Entry& entry : kEntries) {
    const char*& place = texts.at(static_cast<std::size_t>(entry.id));
    if (place != nullptr) throw "number used twice";
    place = entry.text;
  }
  return texts;
}

constexpr std::array<const char*, kNumbers> kTexts = TextsByNumber();

const char* Lookup(int id) {
  if (id == static_cast<int>(StringId::Beschlag)) return kBeschlag;
  return id >= 0 && static_cast<std::size_t>(id) < kNumbers ? kTexts[static_cast<std::size_t>(id)]
                                                            : nullptr;
}

}  // namespace

namespace lintavo {

CString LoadText(int id) {
  return Lookup(id);
}

const char* Text(StringId id) {
  const char* text = Lookup(static_cast<int>(id));
  return text != nullptr ? text : "";
}

CString NumberedName(const CString& prefix, long n) {
  char digits[24];
  const auto result = std::to_chars(digits, digits + sizeof digits, n);
  return prefix + CString(std::string_view(digits, static_cast<std::size_t>(result.ptr - digits)));
}

CString NumberedName(StringId id, long n) {
  const std::string_view text = Text(id);
  const std::size_t place = text.find("%d");
  if (place == std::string_view::npos) return NumberedName(CString(text), n);
  return NumberedName(CString(text.substr(0, place)), n) + CString(text.substr(place + 2));
}

}  // namespace lintavo

bool CString::LoadString(int id) {
  const char* text = Lookup(id);
  *this = text;
  return text != nullptr;
}
