// The words in pictures.
#include <algorithm>
#include <cstddef>
#include <utility>

#include "lintavo/drawing/Text.h"

#include "paper/Words_intern.h"

namespace lintavo::drawing {
namespace {

// One text in every language.
struct Word {
  const char* deutsch;
  const char* english;

  const char* In(Language language) const {
    return language == Language::kEnglish ? english : deutsch;
  }
};

// A short text of the macro file and what it says.
struct ShortText {
  const char* text;
  Word word;
};

constexpr ShortText kGangarten[] = {
    {"Fe", {"fest", "fixed"}},
    {"Dr", {"Dreh", "turn"}},
    {"Ki", {"Kipp", "tilt"}},
    {"Kl", {"Klapp", "top-hung"}},
    {"DK", {"Drehkipp", "tilt and turn"}},
    {"HD", {"Hebedreh", "lift and turn"}},
    {"Sw", {"Schwing", "horizontal pivot"}},
    {"We", {"Wende", "vertical pivot"}},
    {"Sc", {"Schiebe", "sliding"}},
    {"HS", {"Hebeschiebe", "lift and slide"}},
    {"Fa", {"Falt", "folding"}},
    {"HSK", {"Schiebekipp", "tilt and slide"}},
};

// The side of the hinges, for the kinds that turn about an upright axis.
constexpr ShortText kSeiten[] = {{"Li", {"links", "left"}}, {"Re", {"rechts", "right"}}};

constexpr Word kNachAussen = {"nach außen", "outwards"};
constexpr Word kFluegel = {"Flügel", "Sash"};
constexpr Word kScale = {"Maßstab", "Scale"};
constexpr Word kNoScale = {"ohne Maßstab", "not to scale"};
constexpr Word kFromInside = {"Ansicht von innen", "seen from inside"};
constexpr Word kFromOutside = {"Ansicht von außen", "seen from outside"};
constexpr Word kSchedule = {"Fensterliste", "Window schedule"};
constexpr Word kSheet = {"Blatt", "Sheet"};
constexpr Word kOf = {"von", "of"};
constexpr Word kNotDrawn = {"nicht darstellbar", "cannot be shown"};

template <std::size_t N>
const Word* Find(const ShortText (&table)[N], const std::string& text) {
  const auto* found =
      std::find_if(table, table + N, [&](const ShortText& entry) { return text == entry.text; });
  return found == table + N ? nullptr : &found->word;
}

// Whether the hinge side says something of the kind: the others have one side only.
bool HasSide(const std::string& gangart) {
  for (const char* text : {"Dr", "DK", "HD", "Sc", "HS", "HSK", "Fa"}) {
    if (gangart == text) return true;
  }
  return false;
}

// "1, 3–5" of ascending numbers.
std::string Ranges(const std::vector<std::size_t>& numbers) {
  std::string text;
  for (std::size_t i = 0; i < numbers.size();) {
    std::size_t last = i;
    while (last + 1 < numbers.size() && numbers[last + 1] == numbers[last] + 1) ++last;
    if (!text.empty()) text += ", ";
    text += std::to_string(numbers[i]);
    if (last > i) text += (last > i + 1 ? "–" : ", ") + std::to_string(numbers[last]);
    i = last + 1;
  }
  return text;
}

}  // namespace

std::string WithDecimalMark(std::string number, Language language) {
  if (language == Language::kDeutsch) std::replace(number.begin(), number.end(), '.', ',');
  return number;
}

const char* UnitText(LengthUnit unit) {
  switch (unit) {
    case LengthUnit::kMillimetre:
      return "mm";
    case LengthUnit::kCentimetre:
      return "cm";
    case LengthUnit::kMetre:
      return "m";
  }
  return "";
}

std::string SizeText(const Scene& scene, const PlanOptions& plan) {
  return WithDecimalMark(LengthText(scene.breite) + " × " + LengthText(scene.hoehe),
                         plan.language) +
         ' ' + UnitText(plan.unit);
}

std::string ScaleText(double scale, Language language) {
  if (!(scale > 0.0)) return kNoScale.In(language);
  return kScale.In(language) + std::string(" 1:") + WithDecimalMark(LengthText(scale), language);
}

const char* ViewText(ViewSide side, Language language) {
  return (side == ViewSide::kInside ? kFromInside : kFromOutside).In(language);
}

std::string OpeningText(const Oeffnung& oeffnung, Language language) {
  const Word* const gangart = Find(kGangarten, oeffnung.gangart);
  std::string text = gangart ? gangart->In(language) : oeffnung.gangart;
  if (oeffnung.gangart == "Fe") return text;
  const Word* const side = Find(kSeiten, oeffnung.anschlag);
  if (side && HasSide(oeffnung.gangart)) text += std::string(" ") + side->In(language);
  if (oeffnung.oeffSeite == "Au") text += std::string(" ") + kNachAussen.In(language);
  return text;
}

std::vector<std::string> OpeningTexts(const Scene& scene, Language language) {
  std::vector<std::pair<std::string, std::vector<std::size_t>>> kinds;
  for (std::size_t i = 0; i < scene.fluegel.size(); ++i) {
    const std::string text = OpeningText(scene.fluegel[i], language);
    auto kind = std::find_if(kinds.begin(), kinds.end(),
                             [&](const auto& known) { return known.first == text; });
    if (kind == kinds.end()) kind = kinds.insert(kind, {text, {}});
    kind->second.push_back(i + 1);
  }
  std::vector<std::string> texts;
  for (const auto& [text, numbers] : kinds) {
    texts.push_back(kFluegel.In(language) + std::string(" ") + Ranges(numbers) + ": " + text);
  }
  return texts;
}

const char* ScheduleText(Language language) {
  return kSchedule.In(language);
}

std::string SheetText(std::size_t number, std::size_t count, Language language) {
  return kSheet.In(language) + std::string(" ") + std::to_string(number) + ' ' + kOf.In(language) +
         ' ' + std::to_string(count);
}

const char* NotDrawnText(Language language) {
  return kNotDrawn.In(language);
}

}  // namespace lintavo::drawing
