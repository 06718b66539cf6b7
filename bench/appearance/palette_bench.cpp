// Measures loading the longest palette, 256 rows that were written by hand, with the colours of all
// levels. `ratio` is a millisecond divided by the time.
#include <benchmark/benchmark.h>
#include <stdlib.h>
#include <unistd.h>

#include <cstdio>

#include "appearance/palette_file.h"

namespace orreryui {
namespace {

void BM_Palette_Load(benchmark::State& state) {
  char path[] = "/tmp/orreryui-bench-XXXXXX";
  const int descriptor = mkstemp(path);
  if (descriptor == -1) return state.SkipWithError("no temporary file");
  for (int level = 0; level < kLevels; ++level) {
    dprintf(descriptor, "%4d %3d %3d %3d %9d m\r\n", 15 * level, level, 255 - level, 128, level);
  }
  close(descriptor);
  for (auto _ : state) benchmark::DoNotOptimize(InterpolatedColours(*ReadPalette(path)));
  state.counters["ratio"] = benchmark::Counter(1e-3, benchmark::Counter::kIsIterationInvariantRate);
  if (ReadPalette(path)->size() != kMostPalettePoints)
    state.SkipWithError("not all rows were read");
  unlink(path);
}
BENCHMARK(BM_Palette_Load)->UseRealTime();

}  // namespace
}  // namespace orreryui
