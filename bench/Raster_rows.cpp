// How the calculation and the front view grow with the number of sashes.
#include <memory>

#include "Rows.h"
#include "Windows.h"

namespace lintavo::bench {
namespace {

using Work = std::function<void()>;

std::shared_ptr<CMFenster> CalculatedGrid(int side, bool mullions) {
  auto window = std::make_shared<CMFenster>(Grid(side));
  Require(window->Berechne(mullions), "grid");
  return window;
}

Work Calculate(int side, bool mullions) {
  return [window = CalculatedGrid(side, mullions)] { Require(window->Berechne(false), "grid"); };
}

Work HiddenLines(int side) {
  return [window = CalculatedGrid(side, true)] {
    std::vector<CMStrecke> lines;
    Require(window->GetHiddenLineBild(lines, false), "hidden lines");
  };
}

}  // namespace

void AddGridRows(std::vector<Row>& rows) {
  for (const int side : {1, 2, 4, 8, 16, 20}) {
    const long sashes = static_cast<long>(side) * side;
    const auto add = [&](const char* operation, auto work) {
      rows.push_back({operation + std::to_string(sashes), work, sashes});
    };
    add("calculate/grid of ", [=] { return Calculate(side, false); });
    add("calculate/grid with mullions of ", [=] { return Calculate(side, true); });
    add("hidden lines/grid of ", [=] { return HiddenLines(side); });
  }
}

}  // namespace lintavo::bench
