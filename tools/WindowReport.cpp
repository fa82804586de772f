// A calculated window as tables for a reader.
#include "WindowReport.h"

#include <string>

#include "lintavo/drawing/Text.h"

#include "Table.h"

namespace lintavo::tools {
namespace {

using drawing::LengthText;
using drawing::ToDisplayText;

std::string WindowName(const CFeApi& window) {
  char name[256];
  const long length = window.GetFensterBezeichnung(name);
  return ToDisplayText(name, length);
}

std::string FluegelName(const CFeApi& window, long i) {
  char name[256];
  const long length = window.GetFluegelName(i, name);
  return ToDisplayText(name, length);
}

std::string ZMaszName(const CFeApi& window, long i) {
  char name[256];
  const long length = window.GetZMaszName(i, name);
  return ToDisplayText(name, length);
}

const char* FuellungText(eFeApiFuellArten art) {
  switch (art) {
    case eFeApiFuellungGlas:
      return "glass";
    case eFeApiFuellungKonstant:
      return "panel";
    case eFeApiFuellungLamellen:
      return "slats";
  }
  return "glass";
}

void PrintHead(const CFeApi& window, std::ostream& out) {
  out << "Name    " << WindowName(window) << '\n'
      << "Size    " << LengthText(window.GetFensterBreite()) << " x "
      << LengthText(window.GetFensterHoehe()) << '\n'
      << "Frame   width " << LengthText(window.GetRahmenBreite()) << ", thickness "
      << LengthText(window.GetRahmenDicke()) << ", " << window.GetAnzahlRahmenBauteile(1)
      << " frame parts, " << window.GetAnzahlRahmenBauteile(2) << " single parts\n";
}

void PrintSashes(const CFeApi& window, std::ostream& out) {
  const long count = window.GetAnzahlFluegel();
  if (count <= 0) return;
  using Align = Table::Align;
  Table table({{"#", Align::kRight},
               {"Sash"},
               {"Width", Align::kRight},
               {"Thickness", Align::kRight},
               {"Overlap", Align::kRight},
               {"Parts", Align::kRight},
               {"Bars", Align::kRight},
               {"Filling"}});
  for (long i = 0; i < count; ++i) {
    table.AddRow({std::to_string(i + 1), FluegelName(window, i),
                  LengthText(window.GetFluegelRahmenBreite(i)),
                  LengthText(window.GetFluegelRahmenDicke(i)),
                  LengthText(window.GetFluegelUeberschlag(i)),
                  std::to_string(window.GetFluegelAnzahlBauteile(1, i)),
                  std::to_string(window.GetFluegelAnzahlBauteile(3, i)),
                  std::string(FuellungText(window.GetFluegelFuellungArt(i))) + ' ' +
                      LengthText(window.GetFluegelFuellungDicke(i))});
  }
  out << '\n';
  table.Print(out);
}

const char* RoleText(long i, long horizontal, long vertical) {
  if (i == horizontal) return "overall width";
  if (i == vertical) return "overall height";
  return "";
}

void PrintDimensions(const CFeApi& window, std::ostream& out) {
  const long count = window.GetAnzahlZusatzMasze();
  if (count <= 0) return;
  long horizontal = -1;
  long vertical = -1;
  window.IsZMaszBreiteHoehe(horizontal, vertical);
  using Align = Table::Align;
  Table table({{"#", Align::kRight}, {"Dimension"}, {"Length", Align::kRight}, {""}});
  for (long i = 0; i < count; ++i) {
    table.AddRow({std::to_string(i + 1), ZMaszName(window, i), LengthText(window.GetZMaszLaenge(i)),
                  RoleText(i, horizontal, vertical)});
  }
  out << '\n';
  table.Print(out);
}

}  // namespace

void PrintReport(const CFeApi& window, std::ostream& out) {
  PrintHead(window, out);
  PrintSashes(window, out);
  PrintDimensions(window, out);
}

}  // namespace lintavo::tools
