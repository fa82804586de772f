// JSON as text that people can read and compare line by line.
#include "JsonText.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace lintavo::tools {
namespace {

constexpr std::size_t kStep = 2;

bool IsPlain(const Json& value) {
  return std::none_of(value.begin(), value.end(),
                      [](const Json& member) { return member.is_structured(); });
}

void NewLine(std::size_t indent, std::ostream& out) {
  out << '\n' << std::string(indent, ' ');
}

}  // namespace

Json JsonNumber(double value) {
  if (!std::isfinite(value)) return nullptr;
  return value == 0.0 ? 0.0 : value;
}

Json JsonPoint(double x, double y) {
  return Json::array({JsonNumber(x), JsonNumber(y)});
}

Json JsonPolygon(const CFeApiPolygon& polygon) {
  Json points = Json::array();
  for (int i = 0; i < polygon.lAnzahl; ++i) {
    points.push_back(JsonPoint(polygon.pdX[i], polygon.pdY[i]));
  }
  return points;
}

void WriteJson(const Json& value, std::size_t indent, std::ostream& out) {
  if (!value.is_structured() || IsPlain(value)) {
    out << value.dump();
    return;
  }
  const bool object = value.is_object();
  out << (object ? '{' : '[');
  bool first = true;
  for (const auto& [key, member] : value.items()) {
    if (!first) out << ',';
    first = false;
    NewLine(indent + kStep, out);
    if (object) out << Json(key).dump() << ": ";
    WriteJson(member, indent + kStep, out);
  }
  NewLine(indent, out);
  out << (object ? '}' : ']');
}

}  // namespace lintavo::tools
