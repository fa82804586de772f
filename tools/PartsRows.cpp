// A cutting list as rows of texts, before it is known how they are written.
#include "PartsRows.h"

#include <algorithm>
#include <filesystem>
#include <map>

#include "lintavo/drawing/Text.h"

namespace lintavo::tools {
namespace {

class RowMaker {
 public:
  RowMaker(const std::vector<PartsWindow>& windows, const PartsStyle& style)
      : windows_(windows), style_(style), labels_(WindowLabels(windows)) {}

  PartsRow Row(const Stab& stab) const {
    PartsRow row = Begun(Gruppe::kStaebe, stab.art, stab.stellen);
    row[Spalte::kLaenge] = Number(stab.laenge);
    row[Spalte::kAchslaenge] = Number(stab.achslaenge);
    row[Spalte::kBreite] = Number(stab.breite);
    row[Spalte::kDicke] = Number(stab.dicke);
    row[Spalte::kSchnittAnfang] = Number(stab.winkelAnfang);
    row[Spalte::kSchnittEnde] = Number(stab.winkelEnde);
    if (stab.radius > 0.0) row[Spalte::kRadius] = Number(stab.radius);
    if (stab.segmente > 1) row[Spalte::kSegmente] = std::to_string(stab.segmente);
    return row;
  }

  PartsRow Row(const Scheibe& scheibe) const {
    PartsRow row = Begun(Gruppe::kScheiben, scheibe.art, scheibe.stellen);
    row[Spalte::kBreite] = Number(scheibe.breite);
    row[Spalte::kHoehe] = Number(scheibe.hoehe);
    row[Spalte::kDicke] = Number(scheibe.dicke);
    row[Spalte::kFlaeche] = Number(scheibe.flaeche);
    row[Spalte::kForm] = (scheibe.rechteckig ? kRechteckWort : kModellWort).In(style_.sprache);
    return row;
  }

  PartsRow Row(const Beschlaege& beschlaege) const {
    return Begun(Gruppe::kBeschlaege, beschlaege.art, beschlaege.stellen);
  }

 private:
  std::string Number(double value) const { return NumberText(value, style_); }

  PartsRow Begun(Gruppe gruppe, TeilArt art, const std::vector<Stelle>& stellen) const {
    PartsRow row;
    row.gruppe = gruppe;
    row.fenster = stellen.front().fenster;
    row[Spalte::kFenster] = labels_[row.fenster];
    row[Spalte::kAnzahl] = std::to_string(stellen.size());
    row[Spalte::kTeil] = ArtWort(art).In(style_.sprache);
    row[Spalte::kVerwendung] = Use(stellen);
    return row;
  }

  // "2× Rahmen, 4× Flügel links", of several windows each followed by its name.
  std::string Use(const std::vector<Stelle>& stellen) const {
    const bool named = windows_.size() > 1 && !style_.jeFenster;
    std::string text;
    for (auto from = stellen.begin(); from != stellen.end();) {
      const auto to = std::find_if(from, stellen.end(), [&](const Stelle& stelle) {
        return stelle.fenster != from->fenster || stelle.fluegel != from->fluegel;
      });
      const bool ends = to == stellen.end() || to->fenster != from->fenster;
      text += std::to_string(to - from) + "× " + Record(*from);
      if (ends && named) text += " (" + labels_[from->fenster] + ')';
      if (to != stellen.end()) text += ends ? "; " : ", ";
      from = to;
    }
    return text;
  }

  std::string Record(const Stelle& stelle) const {
    if (stelle.fluegel == kFrameRecord) return kRahmenWort.In(style_.sprache);
    const std::string& name =
        windows_[stelle.fenster].fluegel[static_cast<std::size_t>(stelle.fluegel)];
    if (!name.empty()) return name;
    return kFluegelWort.In(style_.sprache) + (' ' + std::to_string(stelle.fluegel + 1));
  }

  const std::vector<PartsWindow>& windows_;
  const PartsStyle& style_;
  std::vector<std::string> labels_;
};

}  // namespace

PartsWindow DescribeWindow(const std::string& file, const WindowView& view) {
  PartsWindow described;
  described.name = drawing::ToDisplayText(view.name);
  described.datei = drawing::ToDisplayText(file);
  described.breite = view.width;
  described.hoehe = view.height;
  for (const Sash& sash : view.sashes) {
    described.fluegel.push_back(drawing::ToDisplayText(sash.name));
  }
  return described;
}

std::string NumberText(double value, const PartsStyle& style) {
  std::string text = drawing::LengthText(value);
  std::replace(text.begin(), text.end(), '.', style.dezimalzeichen);
  return text;
}

std::vector<std::string> WindowLabels(const std::vector<PartsWindow>& windows) {
  std::vector<std::string> labels;
  std::map<std::string, int> uses;
  for (const PartsWindow& window : windows) {
    labels.push_back(window.name.empty() ? std::filesystem::path(window.datei).stem().string()
                                         : window.name);
    ++uses[labels.back()];
  }
  for (std::size_t i = 0; i < labels.size(); ++i) {
    if (uses[labels[i]] > 1) labels[i] += " #" + std::to_string(i + 1);
  }
  return labels;
}

std::vector<PartsRow> RowsOf(const PartsList& list, const std::vector<PartsWindow>& windows,
                             const PartsStyle& style) {
  const RowMaker maker(windows, style);
  std::vector<PartsRow> rows;
  for (const Stab& stab : list.staebe) rows.push_back(maker.Row(stab));
  for (const Scheibe& scheibe : list.scheiben) rows.push_back(maker.Row(scheibe));
  for (const Beschlaege& beschlaege : list.beschlaege) rows.push_back(maker.Row(beschlaege));
  return rows;
}

}  // namespace lintavo::tools
