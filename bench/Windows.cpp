#include "Windows.h"

#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>
#include <vector>

namespace lintavo::bench {

std::string ExamplePath(const std::string& name) {
  return LINTAVO_EXAMPLES_DIR "/windows/" + name + ".aqz";
}

std::string FileText(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error(path);
  return {std::istreambuf_iterator<char>(file), {}};
}

CIniFile Document(const std::string& text) {
  CIniFile document;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    if (!line.empty()) document.AddLine(line.c_str());
  }
  return document;
}

CFeApi Example(const std::string& name) {
  CFeApi window;
  if (!window.ReadFromFile(ExamplePath(name).c_str())) throw std::runtime_error(name);
  return window;
}

CMFenster Grid(int side) {
  CMFenster window;
  window.GetRahmenPtr()->SetRahmenDefaults(7.0, 6.8, 0.0, 1, 2);
  window.GetAchsen().AddVerti(0.0);
  window.GetAchsen().AddHori(0.0);
  for (int i = 0; i < side; ++i) {
    window.GetAchsen().AddVerti(60.0);
    window.GetAchsen().AddHori(80.0);
  }
  for (int k = 0; k < side; ++k) {
    for (int j = 0; j < side; ++j) {
      window.AddFluegel(eFormRechteck, 0, CMKnoten(j, k), CMKnoten(j + 1, k + 1))
          ->SetRahmenDefaults(7.8, 6.8, 1.5, 1, 3);
    }
  }
  return window;
}

long ComponentCount(const CFeApi& window) {
  std::vector<CMBauteil> components;
  window.GetFensterPtr()->GetBauteile(components);
  return static_cast<long>(components.size());
}

}  // namespace lintavo::bench
