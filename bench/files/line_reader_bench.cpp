// Measures the line reader against std::getline into a string, on the same file. The counter
// `ratio` of each row is the time of getline divided by ours: above 1 we are faster. The last rows
// tell whether the time grows with the number of lines and no faster.
#include <benchmark/benchmark.h>
#include <stdlib.h>
#include <unistd.h>

#include <chrono>
#include <fstream>
#include <map>
#include <string>

#include "frame/line_file.h"

namespace orreryui {
namespace {

// A list of file names, a short line each, removed at the end of the program.
class LinesFile {
 public:
  explicit LinesFile(std::int64_t lines) {
    char name[] = "/tmp/orreryui-bench-XXXXXX";
    const int descriptor = mkstemp(name);
    if (descriptor == -1) std::abort();
    path_ = name;
    close(descriptor);
    std::ofstream file(path_, std::ios::binary);
    for (std::int64_t i = 0; i < lines; ++i) {
      file << "Data\\Point" << i << ".dat\r\n";
    }
  }
  ~LinesFile() { unlink(path_.c_str()); }
  LinesFile(const LinesFile&) = delete;
  LinesFile& operator=(const LinesFile&) = delete;
  const std::string& path() const { return path_; }

 private:
  std::string path_;
};

const std::string& PathOfLines(std::int64_t lines) {
  static std::map<std::int64_t, LinesFile> files;
  return files.try_emplace(lines, lines).first->second.path();
}

std::int64_t ReadWithGetline(const std::string& path) {
  std::ifstream file(path);
  std::string line;
  std::int64_t lines = 0;
  for (; std::getline(file, line); ++lines) benchmark::DoNotOptimize(line.data());
  return lines;
}

template <typename Line>
std::int64_t ReadWithLineReader(const std::string& path) {
  LineReader reader(path.c_str(), 200);
  Line line;
  std::int64_t lines = 0;
  for (; reader.ReadLine(line); ++lines) benchmark::DoNotOptimize(line);
  return lines - 1;  // the empty one behind the last line end
}

using Function = std::int64_t (*)(const std::string& path);

double Seconds(Function function, const std::string& path) {
  using Clock = std::chrono::steady_clock;
  const auto start = Clock::now();
  benchmark::DoNotOptimize(function(path));
  return std::chrono::duration<double>(Clock::now() - start).count();
}

// Runs both in turn, so that what else the machine does falls on both alike.
template <typename Line>
void BM_ReadLines(benchmark::State& state) {
  const std::string& path = PathOfLines(state.range(0));
  if (ReadWithLineReader<Line>(path) != state.range(0) || ReadWithGetline(path) != state.range(0)) {
    state.SkipWithError("the numbers of lines differ");
    return;
  }
  double theirs = 0;
  double mine = 0;
  for (auto _ : state) {
    theirs += Seconds(ReadWithGetline, path);
    const double seconds = Seconds(ReadWithLineReader<Line>, path);
    mine += seconds;
    state.SetIterationTime(seconds);
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
  state.SetComplexityN(state.range(0));
  state.counters["ratio"] = theirs / mine;
}
BENCHMARK(BM_ReadLines<std::string_view>)
    ->RangeMultiplier(10)
    ->Range(1000, 1'000'000)
    ->UseManualTime()
    ->Complexity(benchmark::oN);

}  // namespace
}  // namespace orreryui
