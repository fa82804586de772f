// A cutting list as tables for a reader, and as CSV for spreadsheets.
#include "PartsText.h"

#include <algorithm>
#include <span>
#include <string_view>

#include "PartsRows.h"
#include "Table.h"

namespace lintavo::tools {
namespace {

constexpr Spalte kStabSpalten[] = {Spalte::kAnzahl,        Spalte::kTeil,        Spalte::kLaenge,
                                   Spalte::kAchslaenge,    Spalte::kBreite,      Spalte::kDicke,
                                   Spalte::kSchnittAnfang, Spalte::kSchnittEnde, Spalte::kRadius,
                                   Spalte::kSegmente,      Spalte::kVerwendung};
constexpr Spalte kScheibenSpalten[] = {Spalte::kAnzahl, Spalte::kTeil,      Spalte::kBreite,
                                       Spalte::kHoehe,  Spalte::kDicke,     Spalte::kFlaeche,
                                       Spalte::kForm,   Spalte::kVerwendung};
constexpr Spalte kBeschlagSpalten[] = {Spalte::kAnzahl, Spalte::kTeil, Spalte::kVerwendung};

struct Abschnitt {
  Gruppe gruppe;
  Wort titel;
  std::span<const Spalte> spalten;
};

constexpr Abschnitt kAbschnitte[] = {
    {Gruppe::kStaebe, kStaebeWort, kStabSpalten},
    {Gruppe::kScheiben, kScheibenWort, kScheibenSpalten},
    {Gruppe::kBeschlaege, kBeschlaegeWort, kBeschlagSpalten},
};

bool IsText(Spalte spalte) {
  return spalte == Spalte::kFenster || spalte == Spalte::kTeil || spalte == Spalte::kForm ||
         spalte == Spalte::kVerwendung;
}

Table::Column ColumnOf(Spalte spalte, const PartsStyle& style) {
  return {SpaltenTitel(spalte).In(style.sprache),
          IsText(spalte) ? Table::Align::kLeft : Table::Align::kRight};
}

void PrintWindows(std::span<const PartsWindow> windows, std::size_t first, const PartsStyle& style,
                  std::ostream& out) {
  Table table({{"#", Table::Align::kRight},
               ColumnOf(Spalte::kFenster, style),
               ColumnOf(Spalte::kBreite, style),
               ColumnOf(Spalte::kHoehe, style),
               {kDateiWort.In(style.sprache)}});
  for (std::size_t i = 0; i < windows.size(); ++i) {
    table.AddRow({std::to_string(first + i + 1), windows[i].name,
                  NumberText(windows[i].breite, style), NumberText(windows[i].hoehe, style),
                  windows[i].datei});
  }
  table.Print(out, style.spalten);
}

void PrintAbschnitt(const Abschnitt& abschnitt, std::span<const PartsRow> rows,
                    const PartsStyle& style, std::ostream& out) {
  std::vector<Table::Column> columns;
  for (const Spalte spalte : abschnitt.spalten) columns.push_back(ColumnOf(spalte, style));
  Table table(std::move(columns));
  bool any = false;
  for (const PartsRow& row : rows) {
    if (row.gruppe != abschnitt.gruppe) continue;
    std::vector<std::string> cells;
    for (const Spalte spalte : abschnitt.spalten) cells.push_back(row[spalte]);
    table.AddRow(std::move(cells));
    any = true;
  }
  if (!any) return;
  out << '\n' << abschnitt.titel.In(style.sprache) << '\n';
  table.Print(out, style.spalten);
}

void PrintProfile(std::span<const Profil> profile, const PartsStyle& style, std::ostream& out) {
  if (profile.empty()) return;
  Table table({ColumnOf(Spalte::kAnzahl, style),
               ColumnOf(Spalte::kTeil, style),
               ColumnOf(Spalte::kBreite, style),
               ColumnOf(Spalte::kDicke, style),
               {kGesamtlaengeWort.In(style.sprache), Table::Align::kRight}});
  for (const Profil& profil : profile) {
    table.AddRow({std::to_string(profil.anzahl), ArtWort(profil.art).In(style.sprache),
                  NumberText(profil.breite, style), NumberText(profil.dicke, style),
                  NumberText(profil.laenge, style)});
  }
  out << '\n' << kProfileWort.In(style.sprache) << '\n';
  table.Print(out, style.spalten);
}

void PrintAbschnitte(std::span<const PartsRow> rows, const PartsStyle& style, std::ostream& out) {
  for (const Abschnitt& abschnitt : kAbschnitte) PrintAbschnitt(abschnitt, rows, style, out);
}

// A spreadsheet reckons what begins so, unless it is a number of ours.
bool LooksLikeFormula(const std::string& cell) {
  return !cell.empty() && std::string_view("=+-@").find(cell.front()) != std::string_view::npos;
}

std::string CsvCell(const std::string& cell, char separator) {
  if (cell.find_first_of(std::string("\"\r\n") + separator) == std::string::npos) return cell;
  std::string quoted = "\"";
  for (const char c : cell) quoted.append(c == '"' ? 2 : 1, c);
  return quoted + '"';
}

std::vector<Spalte> CsvSpalten(const PartsStyle& style) {
  std::vector<Spalte> spalten;
  for (std::size_t i = 0; i < kAnzahlSpalten; ++i) spalten.push_back(static_cast<Spalte>(i));
  if (!style.jeFenster) std::erase(spalten, Spalte::kFenster);
  return spalten;
}

}  // namespace

void PrintPartsTables(const PartsList& list, const std::vector<PartsWindow>& windows,
                      const PartsStyle& style, std::ostream& out) {
  const std::vector<PartsRow> rows = RowsOf(list, windows, style);
  const std::vector<Profil> profile = ProfileOf(list, style.jeFenster);
  if (!style.jeFenster) {
    PrintWindows(windows, 0, style, out);
    PrintAbschnitte(rows, style, out);
    PrintProfile(profile, style, out);
    return;
  }
  for (std::size_t i = 0; i < windows.size(); ++i) {
    if (i > 0) out << '\n';
    std::vector<PartsRow> own;
    std::copy_if(rows.begin(), rows.end(), std::back_inserter(own),
                 [=](const PartsRow& row) { return row.fenster == i; });
    std::vector<Profil> ownProfile;
    std::copy_if(profile.begin(), profile.end(), std::back_inserter(ownProfile),
                 [=](const Profil& profil) { return profil.fenster == i; });
    PrintWindows({&windows[i], 1}, i, style, out);
    PrintAbschnitte(own, style, out);
    PrintProfile(ownProfile, style, out);
  }
}

void WritePartsCsv(const PartsList& list, const std::vector<PartsWindow>& windows,
                   const PartsStyle& style, std::ostream& out) {
  const char separator = style.dezimalzeichen == ',' ? ';' : ',';
  const std::vector<Spalte> spalten = CsvSpalten(style);
  const auto line = [&](auto cellOf) {
    for (std::size_t i = 0; i < spalten.size(); ++i) {
      if (i > 0) out << separator;
      out << CsvCell(cellOf(spalten[i]), separator);
    }
    out << "\r\n";
  };
  line([&](Spalte spalte) { return std::string(SpaltenTitel(spalte).In(style.sprache)); });
  for (const PartsRow& row : RowsOf(list, windows, style)) {
    line([&](Spalte spalte) {
      const std::string& cell = row[spalte];
      return IsText(spalte) && LooksLikeFormula(cell) ? '\'' + cell : cell;
    });
  }
}

}  // namespace lintavo::tools
