// Prints all that the library computes, bit for bit, so that two builds can be
// compared: of every macro file named, in several sizes, of grids, and of random
// outlines and documents.
#include <string>

#include "Abfragen.h"
#include "Results.h"
#include "Windows.h"

namespace lintavo::bench {
namespace {

void Print(const char* title, const std::vector<double>& numbers) {
  std::printf("%s:", title);
  for (const double number : numbers) bench::Print(number);
  std::printf("\n");
}

void PrintWindow(CFeApi& window) {
  char text[256];
  window.GetErrorMsg(text);
  std::printf("error %ld %.256s\n", window.GetErrorID(), text);
  const fuzz::Antworten answers = fuzz::FrageAlles(window);
  Print("made", answers.Gebilde);
  Print("drawn", answers.Zeichnungen);
  Print("given", answers.Angaben);
  std::printf("%s\n", fuzz::Geschrieben(window).c_str());
}

void PrintFitted(const CFeApi& window, double width, double height) {
  CFeApi copy(window);
  const int set = copy.SetBreiteHoehe(fuzz::Laibung(), width, height);
  std::printf("%g x %g: %d", width, height, set);
  std::printf(" %d\n", copy.Berechne());
  PrintWindow(copy);
}

void PrintSlim(const CFeApi& window) {
  CFeApi copy(window);
  copy.SetRahmenBreite(3.0);
  for (long i = 0; i < copy.GetAnzahlFluegel(); ++i) {
    copy.SetFluegelRahmenBreite(i, 2.5);
    copy.SetFluegelUeberschlag(i, 0.5);
  }
  std::printf("slim: %d\n", copy.Berechne());
  PrintWindow(copy);
}

void PrintWithMullions(const CFeApi& window) {
  CMFenster model = *window.GetFensterPtr();
  std::printf("with mullions: %d\n", model.Berechne(true));
  CFeApi copy;
  copy.SetFenster(model);
  PrintWindow(copy);
}

void PrintSizes(CFeApi& window) {
  PrintWindow(window);
  if (window.GetErrorID() != 0) return;
  const double width = window.GetFensterBreite();
  const double height = window.GetFensterHoehe();
  PrintFitted(window, width * 1.1, height * 1.1);
  PrintFitted(window, width * 2.37, height * 0.8);
  PrintFitted(window, width * 0.45, height * 1.7);
  PrintFitted(window, width * 0.2, height * 0.2);
  PrintFitted(window, 240.0, 180.0);
  PrintSlim(window);
  PrintWithMullions(window);
}

void PrintFile(const char* path) {
  std::printf("== %s\n", path);
  CFeApi window;
  const std::string name(path);
  const bool compressed = CFeApi::IsFileCompressed(path) != 0;
  std::printf("read %d\n",
              compressed ? window.ReadFromCompressedFile(path) : window.ReadFromFile(path));
  PrintSizes(window);
}

void PrintGrid(int side, bool mullions) {
  std::printf("== grid %d %d\n", side, mullions);
  CMFenster grid = Grid(side);
  grid.Berechne(mullions);
  grid.Berechne(false);
  CFeApi window;
  window.SetFenster(grid);
  PrintWindow(window);
}

}  // namespace
}  // namespace lintavo::bench

int main(int argc, char** argv) {
  using namespace lintavo::bench;
  for (int i = 1; i < argc; ++i) PrintFile(argv[i]);
  for (const int side : {1, 2, 3, 5, 8}) {
    for (const bool mullions : {false, true}) PrintGrid(side, mullions);
  }
  PrintGeometry();
  PrintDocuments();
}
