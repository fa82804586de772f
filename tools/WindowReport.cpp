// A calculated window as tables for a reader.
#include "WindowReport.h"

#include <string>

#include "lintavo/drawing/Text.h"

#include "Errors.h"
#include "System.h"
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

// Opening kind, hinge side and opening side, as in "DK Li In".
std::string OpeningText(const CFeApi& window, long i) {
  std::string all;
  char text[256];
  for (const auto query :
       {&CFeApi::GetFluegelGangart, &CFeApi::GetFluegelAnschlag, &CFeApi::GetFluegelOeffSeite}) {
    const long length = (window.*query)(i, text);
    const std::string word = ToDisplayText(text, length);
    if (!word.empty()) all += (all.empty() ? "" : " ") + word;
  }
  return all;
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

void PrintSashes(const CFeApi& window, std::ostream& out, std::size_t width) {
  const long count = window.GetAnzahlFluegel();
  if (count <= 0) return;
  using Align = Table::Align;
  Table table({{"#", Align::kRight},
               {"Sash"},
               {"Opening"},
               {"Width", Align::kRight},
               {"Thickness", Align::kRight},
               {"Overlap", Align::kRight},
               {"Parts", Align::kRight},
               {"Bars", Align::kRight},
               {"Filling"}});
  for (long i = 0; i < count; ++i) {
    table.AddRow({std::to_string(i + 1), FluegelName(window, i), OpeningText(window, i),
                  LengthText(window.GetFluegelRahmenBreite(i)),
                  LengthText(window.GetFluegelRahmenDicke(i)),
                  LengthText(window.GetFluegelUeberschlag(i)),
                  std::to_string(window.GetFluegelAnzahlBauteile(1, i)),
                  std::to_string(window.GetFluegelAnzahlBauteile(3, i)),
                  std::string(FuellungText(window.GetFluegelFuellungArt(i))) + ' ' +
                      LengthText(window.GetFluegelFuellungDicke(i))});
  }
  out << '\n';
  table.Print(out, width);
}

const char* RoleText(long i, long horizontal, long vertical) {
  if (i == horizontal) return "overall width";
  if (i == vertical) return "overall height";
  return "";
}

void PrintDimensions(const CFeApi& window, std::ostream& out, std::size_t width) {
  const long count = window.GetAnzahlZusatzMasze();
  if (count <= 0) return;
  long horizontal = -1;
  long vertical = -1;
  window.IsZMaszBreiteHoehe(horizontal, vertical);
  using Align = Table::Align;
  Table table({{"#", Align::kRight}, {"Dimension"}, {"Length", Align::kRight}, {""}});
  for (long i = 0; i < count; ++i) {
    table.AddRow({std::to_string(i + 1), DimensionName(window, i),
                  LengthText(window.GetZMaszLaenge(i)), RoleText(i, horizontal, vertical)});
  }
  out << '\n';
  table.Print(out, width);
}

}  // namespace

std::string DimensionName(const CFeApi& window, long i) {
  char name[256];
  const long length = window.GetZMaszName(i, name);
  return ToDisplayText(name, length);
}

void PrintReport(const CFeApi& window, std::ostream& out, std::size_t width) {
  PrintHead(window, out);
  PrintSashes(window, out, width);
  PrintDimensions(window, out, width);
}

ReportPrinter::ReportPrinter(bool several, std::ostream& out)
    : several_(several), width_(TerminalWidth(Stream::kOut)), out_(out) {}

void ReportPrinter::Print(const std::string& path, const CFeApi& window) {
  if (!first_) out_ << '\n';
  first_ = false;
  if (several_) out_ << "File    " << DisplayName(path) << '\n';
  PrintReport(window, out_, width_);
}

void ReportPrinter::PrintResult(const std::string& path, const std::string& target,
                                const CFeApi& window, const std::string& head) {
  if (target == kStandardStream || (several_ && !target.empty())) return;
  if (!several_) out_ << head;
  Print(path, window);
  if (!target.empty()) out_ << "\nWritten to " << ToDisplayText(target) << '\n';
}

}  // namespace lintavo::tools
