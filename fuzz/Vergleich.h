// When two answers of a window are the same: numbers up to the rounding of files.
#pragma once

#include <string_view>
#include <vector>

namespace lintavo::fuzz {

/// Equal but for what a calculation makes of the six decimals that a file has;
/// two that are not finite count as equal.
bool GleicheZahl(double a, double b);
bool GleicheZahlen(const std::vector<double>& a, const std::vector<double>& b);
bool SindEndlich(const std::vector<double>& zahlen);

/// The same for texts of `WriteToBuffer`, number by number.
bool GleicherText(std::string_view a, std::string_view b);

/// Takes what stands before the next `trenner` off `rest`, and the separator.
std::string_view BisTrenner(std::string_view& rest, char trenner);

}  // namespace lintavo::fuzz
