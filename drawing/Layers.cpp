// The order in which a window's layers cover each other, from the façade's answers:
// the same rule as that of the library's view with hidden lines removed.
#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <string_view>
#include <tuple>
#include <utility>

#include "lintavo/geom/Toleranzen.h"

#include "Layers_intern.h"

namespace lintavo::drawing {
namespace {

constexpr long kArtRahmenteile = 1;

enum Lage { kHinterDemRahmen, kRahmen, kVorDemRahmen };

// A macro file as the façade hands it out, each line followed by '#'.
class MacroBuffer {
 public:
  explicit MacroBuffer(const CFeApi& window) : window_(window) {
    window.WriteToBuffer(&length_, &text_);
  }
  ~MacroBuffer() { window_.FreeBuffer(&text_); }
  MacroBuffer(const MacroBuffer&) = delete;
  MacroBuffer& operator=(const MacroBuffer&) = delete;

  std::string_view Text() const {
    if (text_ == nullptr || length_ <= 0) return {};
    return {text_, static_cast<std::size_t>(length_)};
  }

 private:
  const CFeApi& window_;
  long length_ = 0;
  char* text_ = nullptr;
};

// The index of the sash whose section a header opens, -1 for other sections.
long FluegelOfHeader(std::string_view line) {
  constexpr std::string_view kHeader = "[Fluegel";
  if (line.substr(0, kHeader.size()) != kHeader) return -1;
  long number = 0;
  const char* const end = line.data() + line.size();
  const auto result = std::from_chars(line.data() + kHeader.size(), end, number);
  return result.ec == std::errc() && number > 0 ? number - 1 : -1;
}

// For every sash whether it is the leaf of a pair that opens first. No query tells
// it, the window's macro file does.
std::vector<bool> OpensFirst(const CFeApi& window) {
  const long count = window.GetAnzahlFluegel();
  std::vector<bool> first(count > 0 ? static_cast<std::size_t>(count) : 0, false);
  if (count < 2) return first;
  const MacroBuffer buffer(window);
  std::string_view rest = buffer.Text();
  long fluegel = -1;
  for (std::size_t end = rest.find('#'); end != std::string_view::npos; end = rest.find('#')) {
    const std::string_view line = rest.substr(0, end);
    rest.remove_prefix(end + 1);
    if (!line.empty() && line.front() == '[') fluegel = FluegelOfHeader(line);
    if (line == "ZuerstAufgehend=1" && fluegel >= 0 && fluegel < count) {
      first[static_cast<std::size_t>(fluegel)] = true;
    }
  }
  return first;
}

// A pane without a sash frame sits in the rebate of the window's frame, which
// covers it from both sides.
Lage LageOf(const CFeApi& window, long fluegel, ViewSide side) {
  if (window.GetFluegelAnzahlBauteile(kArtRahmenteile, fluegel) == 0) return kHinterDemRahmen;
  return OpensTowards(window, fluegel, side) ? kVorDemRahmen : kHinterDemRahmen;
}

// How near a sash is to the viewer, in whole steps of the smallest length, so that
// the same depth reckoned in two ways compares equal.
double Naehe(const CFeApi& window, long fluegel, ViewSide side) {
  const double tiefe = window.GetFluegelZVersatz(fluegel, side == ViewSide::kInside ? 0 : 1);
  const double schritte = std::round(-tiefe / kNullLaenge);
  return std::isnan(schritte) ? 0.0 : schritte;
}

}  // namespace

bool OpensTowards(const CFeApi& window, long fluegel, ViewSide side) {
  char text[256];
  const long length = window.GetFluegelOeffSeite(fluegel, text);
  const std::string_view oeffSeite(text, static_cast<std::size_t>(std::clamp(length, 0L, 256L)));
  return (oeffSeite == "Au") == (side == ViewSide::kOutside);
}

std::vector<long> LayersFromBehind(const CFeApi& window, ViewSide side) {
  using Key = std::tuple<Lage, double, bool, bool, long>;
  std::vector<std::pair<Key, long>> layers;
  layers.push_back({{kRahmen, 0.0, false, false, 0}, kRahmenEbene});
  const std::vector<bool> first = OpensFirst(window);
  const long count = window.GetAnzahlFluegel();
  for (long i = 0; i < count; ++i) {
    // Of leaves at equal depth the one that opens first, then the earlier one, is
    // nearer to the side to which they open.
    const bool towards = OpensTowards(window, i, side);
    const bool nearer = first[static_cast<std::size_t>(i)] == towards;
    layers.push_back(
        {{LageOf(window, i, side), Naehe(window, i, side), towards, nearer, towards ? -i : i}, i});
  }
  std::sort(layers.begin(), layers.end());
  std::vector<long> order;
  order.reserve(layers.size());
  for (const auto& layer : layers) order.push_back(layer.second);
  return order;
}

}  // namespace lintavo::drawing
