// A host in a few lines: reads a window, fits it into an opening of the given
// size, and prints the outline of every frame part.
#include <cstdio>
#include <cstdlib>

#include "lintavo/api/CFeApi.h"

int main(int argc, char** argv) {
  CFeApi window;
  if (argc != 4 || !window.ReadFromFile(argv[1])) return 1;
  const CFeApiWandOeffnungsParameter noReveals;
  window.SetBreiteHoehe(noReveals, std::atof(argv[2]), std::atof(argv[3]));
  if (!window.Berechne()) return 1;
  for (long part = 0; part < window.GetAnzahlRahmenBauteile(1); ++part) {
    CFeApiPolygon outline;
    double length = 0.0, cutAtStart = 0.0, cutAtEnd = 0.0;
    window.GetRahmenBauteilUmriss(1, part, -1, outline, length, cutAtStart, cutAtEnd);
    std::printf("part %ld, length %.1f:", part, length);
    for (int i = 0; i < outline.lAnzahl; ++i) {
      std::printf(" (%.1f, %.1f)", outline.pdX[i], outline.pdY[i]);
    }
    std::printf("\n");
  }
}
