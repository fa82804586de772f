// What a host waits for: reading, fitting, calculating and drawing a window,
// and how the calculation grows with the number of sashes.
#include <cmath>
#include <stdexcept>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "lintavo/api/CFeApi.h"
#include "lintavo/model/CMFenster.h"

namespace {

std::string Pfad(const char* name) {
  return std::string(LINTAVO_EXAMPLES_DIR "/windows/") + name + ".aqz";
}

CFeApi Gelesen(const char* name) {
  CFeApi api;
  if (!api.ReadFromFile(Pfad(name).c_str())) throw std::runtime_error(Pfad(name));
  return api;
}

void Lesen(benchmark::State& state, const char* name) {
  const std::string path = Pfad(name);
  CFeApi api;
  for (auto _ : state) benchmark::DoNotOptimize(api.ReadFromFile(path.c_str()));
}

// Two sizes in turn, so that every round moves axes and rebuilds all.
void Einpassen(benchmark::State& state, const char* name) {
  CFeApi api = Gelesen(name);
  const CFeApiWandOeffnungsParameter param;
  const double width = api.GetFensterBreite();
  const double height = api.GetFensterHoehe();
  double factor = 1.0;
  for (auto _ : state) {
    factor = 2.1 - factor;
    const int ok = api.SetBreiteHoehe(param, width * factor, height * factor) && api.Berechne();
    if (!ok) state.SkipWithError("the window does not fit");
  }
}

void Berechnen(benchmark::State& state, const char* name) {
  CFeApi api = Gelesen(name);
  for (auto _ : state) benchmark::DoNotOptimize(api.Berechne());
}

long Umrisse(const CFeApi& api) {
  CFeApiPolygon polygon;
  double length;
  double start;
  double end;
  long points = 0;
  for (const long kind : {1L, 2L}) {
    for (long i = 0; i < api.GetAnzahlRahmenBauteile(kind); ++i) {
      api.GetRahmenBauteilUmriss(kind, i, -1, polygon, length, start, end);
      points += polygon.lAnzahl;
    }
  }
  for (long sash = 0; sash < api.GetAnzahlFluegel(); ++sash) {
    for (const long kind : {1L, 2L, 3L}) {
      for (long i = 0; i < api.GetFluegelAnzahlBauteile(kind, sash); ++i) {
        api.GetFluegelBauteilUmriss(kind, sash, i, -1, polygon, length, start, end);
        points += polygon.lAnzahl;
      }
    }
  }
  return points;
}

void AlleUmrisse(benchmark::State& state, const char* name) {
  const CFeApi api = Gelesen(name);
  for (auto _ : state) benchmark::DoNotOptimize(Umrisse(api));
}

void GanzerUmlauf(benchmark::State& state, const char* name) {
  const std::string path = Pfad(name);
  const CFeApiWandOeffnungsParameter param;
  CFeApi api = Gelesen(name);
  const double width = api.GetFensterBreite() * 1.1;
  const double height = api.GetFensterHoehe() * 1.1;
  for (auto _ : state) {
    if (!api.ReadFromFile(path.c_str()) || !api.SetBreiteHoehe(param, width, height) ||
        !api.Berechne()) {
      state.SkipWithError("the window does not fit");
    }
    benchmark::DoNotOptimize(Umrisse(api));
  }
}

// A square grid of sashes, with mullions and transoms between them on request.
CMFenster Raster(int side) {
  CMFenster fenster;
  fenster.GetRahmenPtr()->SetRahmenDefaults(7.0, 6.8, 0.0, 1, 2);
  fenster.GetAchsen().AddVerti(0.0);
  fenster.GetAchsen().AddHori(0.0);
  for (int i = 0; i < side; ++i) {
    fenster.GetAchsen().AddVerti(60.0);
    fenster.GetAchsen().AddHori(80.0);
  }
  for (int k = 0; k < side; ++k) {
    for (int j = 0; j < side; ++j) {
      fenster.AddFluegel(eFormRechteck, 0, CMKnoten(j, k), CMKnoten(j + 1, k + 1))
          ->SetRahmenDefaults(7.8, 6.8, 1.5, 1, 3);
    }
  }
  return fenster;
}

void RasterBerechnen(benchmark::State& state, bool mitPfosten) {
  const int side = static_cast<int>(std::lround(std::sqrt(static_cast<double>(state.range(0)))));
  CMFenster fenster = Raster(side);
  if (!fenster.Berechne(mitPfosten)) state.SkipWithError("the grid cannot be calculated");
  for (auto _ : state) benchmark::DoNotOptimize(fenster.Berechne(false));
  // Seconds a sash, shown as nanoseconds: what must stay level.
  state.counters["je_Fluegel"] = benchmark::Counter(
      static_cast<double>(state.range(0)),
      benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

// The front view with hidden lines removed, from inside.
void RasterAnsicht(benchmark::State& state) {
  const int side = static_cast<int>(std::lround(std::sqrt(static_cast<double>(state.range(0)))));
  CMFenster fenster = Raster(side);
  if (!fenster.Berechne(true)) state.SkipWithError("the grid cannot be calculated");
  std::vector<CMStrecke> lines;
  for (auto _ : state) benchmark::DoNotOptimize(fenster.GetHiddenLineBild(lines, false));
  state.counters["je_Fluegel"] = benchmark::Counter(
      static_cast<double>(state.range(0)),
      benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

#define JE_BEISPIEL(operation)                                                        \
  BENCHMARK_CAPTURE(operation, drehkipp_einfluegelig, "drehkipp_einfluegelig");       \
  BENCHMARK_CAPTURE(operation, dreiteilig_mit_oberlicht, "dreiteilig_mit_oberlicht"); \
  BENCHMARK_CAPTURE(operation, rundbogen_dreiteilig, "rundbogen_dreiteilig");         \
  BENCHMARK_CAPTURE(operation, raster_3x3, "raster_3x3")

JE_BEISPIEL(Lesen);
JE_BEISPIEL(Berechnen);
JE_BEISPIEL(Einpassen);
JE_BEISPIEL(AlleUmrisse);
JE_BEISPIEL(GanzerUmlauf);

BENCHMARK_CAPTURE(RasterBerechnen, Fluegel, false)
    ->Arg(1)
    ->Arg(4)
    ->Arg(16)
    ->Arg(64)
    ->Arg(256)
    ->Arg(400);
BENCHMARK_CAPTURE(RasterBerechnen, mit_Pfosten, true)
    ->Arg(1)
    ->Arg(4)
    ->Arg(16)
    ->Arg(64)
    ->Arg(256)
    ->Arg(400);

BENCHMARK(RasterAnsicht)->Arg(1)->Arg(4)->Arg(16)->Arg(64)->Arg(256)->Arg(400);

}  // namespace
