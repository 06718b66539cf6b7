// Measures reading an attached text file against std::getline with the lines joined to a string, on
// the same file of 100 MB. `ratio` is the time of getline divided by ours.
#include <benchmark/benchmark.h>
#include <stdlib.h>
#include <unistd.h>

#include <chrono>
#include <fstream>
#include <string>

#include "presentation/attached_text.h"

namespace orreryui {
namespace {

constexpr std::size_t kBytes = 100u << 20;

// Removed at the end of the program.
class TextFile {
 public:
  TextFile() {
    const int descriptor = mkstemp(path_);
    if (descriptor == -1) std::abort();
    close(descriptor);
    std::ofstream file(path_, std::ios::binary);
    const std::string line = "The Great Buddha is of bronze, and 11 metres high.\r\n";
    for (std::size_t size = 0; size < kBytes; size += line.size()) file << line;
  }
  ~TextFile() { unlink(path_); }
  TextFile(const TextFile&) = delete;
  TextFile& operator=(const TextFile&) = delete;
  const char* path() const { return path_; }

 private:
  char path_[32] = "/tmp/orreryui-bench-XXXXXX";
};

std::string ReadWithGetline(const char* path) {
  std::ifstream file(path, std::ios::binary);
  std::string text, line;
  while (std::getline(file, line)) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (line == "999") break;
    text.append(line).append("\r\n");
  }
  return text;
}

template <typename Function>
double Seconds(Function function) {
  const auto start = std::chrono::steady_clock::now();
  benchmark::DoNotOptimize(function());
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// Both in turn, so that what else the machine does falls on both alike.
void BM_AttachedText_Read(benchmark::State& state) {
  const TextFile file;
  double theirs = 0;
  double ours = 0;
  for (auto _ : state) {
    theirs += Seconds([&] { return ReadWithGetline(file.path()); });
    const double seconds = Seconds([&] { return ReadMainText(file.path()); });
    ours += seconds;
    state.SetIterationTime(seconds);
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(kBytes));
  state.counters["ratio"] = theirs / ours;
}
BENCHMARK(BM_AttachedText_Read)->UseManualTime()->Iterations(5);

}  // namespace
}  // namespace orreryui
