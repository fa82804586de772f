// JSON as text that people can read and compare line by line.
#include "JsonText.h"

#include <algorithm>
#include <cmath>

namespace lintavo::tools {
namespace {

constexpr std::size_t kStep = 2;

bool IsPlain(const Json& value) {
  return std::none_of(value.begin(), value.end(),
                      [](const Json& member) { return member.is_structured(); });
}

}  // namespace

Json JsonNumber(double value) {
  if (!std::isfinite(value)) return nullptr;
  return value == 0.0 ? 0.0 : value;
}

Json JsonPoint(double x, double y) {
  return Json::array({JsonNumber(x), JsonNumber(y)});
}

Json JsonPolygon(const GEOM2_Polygon& polygon) {
  Json points = Json::array();
  for (int i = 0; i < polygon.GetAnzahl(); ++i) {
    points.push_back(JsonPoint(polygon.GetEckpunkt(i).x, polygon.GetEckpunkt(i).y));
  }
  return points;
}

void JsonWriter::NextLine() {
  if (levels_.empty()) return;
  if (levels_.back().any) out_ << ',';
  levels_.back().any = true;
  out_ << '\n' << std::string(kStep * levels_.size(), ' ');
}

void JsonWriter::Begin(char opening, char closing) {
  NextLine();
  out_ << opening;
  levels_.push_back({closing});
}

void JsonWriter::Begin(const char* key, char opening, char closing) {
  NextLine();
  out_ << Json(key).dump() << ": " << opening;
  levels_.push_back({closing});
}

void JsonWriter::End() {
  const Level level = levels_.back();
  levels_.pop_back();
  if (level.any) out_ << '\n' << std::string(kStep * levels_.size(), ' ');
  out_ << level.closing;
  if (levels_.empty()) out_ << '\n';
}

void JsonWriter::Add(const Json& value) {
  NextLine();
  Write(value);
}

void JsonWriter::Add(const char* key, const Json& value) {
  NextLine();
  out_ << Json(key).dump() << ": ";
  Write(value);
}

void JsonWriter::Write(const Json& value) {
  if (!value.is_structured() || IsPlain(value)) {
    out_ << value.dump();
    return;
  }
  const bool object = value.is_object();
  out_ << (object ? '{' : '[');
  levels_.push_back({object ? '}' : ']'});
  for (const auto& [key, member] : value.items()) {
    if (object) {
      Add(key.c_str(), member);
    } else {
      Add(member);
    }
  }
  End();
}

}  // namespace lintavo::tools
