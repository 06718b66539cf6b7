// What it costs a host to load the library and show nothing: time, against a library that links to
// Qt Widgets, and memory, against a process that hasn't loaded it. Each measurement takes a process
// of its own, which loads one library once.
#include <benchmark/benchmark.h>
#include <dlfcn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

namespace {

constexpr int kProcesses = 31;

// What `measure` returns in a process of its own; negative if it failed there.
double InAProcess(const std::function<double()>& measure) {
  int ends[2];
  if (pipe(ends) != 0) return -1;
  const pid_t child = fork();
  if (child == 0) {
    const double result = measure();
    const bool written = write(ends[1], &result, sizeof result) == sizeof result;
    _exit(written ? 0 : 1);
  }
  close(ends[1]);
  double result = -1;
  if (read(ends[0], &result, sizeof result) != sizeof result) result = -1;
  close(ends[0]);
  waitpid(child, nullptr, 0);
  return result;
}

double SecondsToLoad(const char* library) {
  const auto start = std::chrono::steady_clock::now();
  if (!dlopen(library, RTLD_NOW | RTLD_LOCAL)) return -1;
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// The memory in kB that this process holds and no other shares.
double PrivateMemory() {
  std::ifstream file("/proc/self/smaps_rollup");
  std::string word;
  double total = 0;
  while (file >> word) {
    double size = 0;
    if ((word == "Private_Clean:" || word == "Private_Dirty:") && file >> size) total += size;
  }
  return total;
}

double MemoryToLoad(const char* library) {
  PrivateMemory();  // what the reading itself needs is there from now on
  const double before = PrivateMemory();
  if (!dlopen(library, RTLD_NOW | RTLD_LOCAL)) return -1;
  return PrivateMemory() - before;
}

double MedianOf(const std::function<double()>& measure) {
  std::vector<double> results;
  for (int i = 0; i < kProcesses; ++i) results.push_back(InAProcess(measure));
  std::nth_element(results.begin(), results.begin() + kProcesses / 2, results.end());
  return results[kProcesses / 2];
}

// ratio: the time of the control library divided by ours.
void BM_Load_Time(benchmark::State& state) {
  const double control = MedianOf([] { return SecondsToLoad(CONTROL_LIBRARY); });
  const double ours = MedianOf([] { return SecondsToLoad(ORRERYUI_LIBRARY); });
  if (control < 0 || ours < 0) return state.SkipWithError("a library can't be loaded");
  for (auto _ : state) state.SetIterationTime(ours);
  state.counters["ratio"] = control / ours;
}
BENCHMARK(BM_Load_Time)->UseManualTime()->Iterations(1);

// ratio: 1 MB divided by what the loaded library adds to the process.
void BM_Load_Memory(benchmark::State& state) {
  const double added = MedianOf([] { return MemoryToLoad(ORRERYUI_LIBRARY); });
  if (added <= 0) return state.SkipWithError("the library can't be loaded");
  for (auto _ : state) state.SetIterationTime(1);
  state.counters["kB"] = added;
  state.counters["ratio"] = 1024 / added;
}
BENCHMARK(BM_Load_Memory)->UseManualTime()->Iterations(1);

}  // namespace

BENCHMARK_MAIN();
