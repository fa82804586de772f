#include "Vergleich.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <string>

namespace lintavo::fuzz {

namespace {

// Numbers of a written file may differ by this much when a calculation starts
// from rounded values.
constexpr double kRundung = 2e-5;
constexpr double kRelativ = 1e-9;

bool IstZahl(const std::string& text, double& v) {
  char* end = nullptr;
  v = std::strtod(text.c_str(), &end);
  return !text.empty() && end == text.c_str() + text.size();
}

bool GleichesStueck(std::string_view a, std::string_view b) {
  double v = 0.0;
  double w = 0.0;
  return a == b || (IstZahl(std::string(a), v) && IstZahl(std::string(b), w) && GleicheZahl(v, w));
}

bool GleicheZeile(std::string_view a, std::string_view b) {
  if (a == b) return true;
  if (BisTrenner(a, '=') != BisTrenner(b, '=')) return false;
  while (!a.empty() && !b.empty()) {
    if (!GleichesStueck(BisTrenner(a, ','), BisTrenner(b, ','))) return false;
  }
  return a.empty() && b.empty();
}

}  // namespace

bool GleicheZahl(double a, double b) {
  if (!std::isfinite(a) || !std::isfinite(b)) return std::isfinite(a) == std::isfinite(b);
  return std::fabs(a - b) <= std::max(kRundung, kRelativ * std::fabs(a));
}

bool GleicheZahlen(const std::vector<double>& a, const std::vector<double>& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), GleicheZahl);
}

bool SindEndlich(const std::vector<double>& zahlen) {
  return std::all_of(zahlen.begin(), zahlen.end(), [](double v) { return std::isfinite(v); });
}

bool GleicherText(std::string_view a, std::string_view b) {
  while (!a.empty() && !b.empty()) {
    if (!GleicheZeile(BisTrenner(a, '#'), BisTrenner(b, '#'))) return false;
  }
  return a.empty() && b.empty();
}

std::string_view BisTrenner(std::string_view& rest, char trenner) {
  const std::size_t end = std::min(rest.find(trenner), rest.size());
  const std::string_view piece = rest.substr(0, end);
  rest.remove_prefix(std::min(end + 1, rest.size()));
  return piece;
}

}  // namespace lintavo::fuzz
