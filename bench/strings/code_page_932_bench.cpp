// Measures the conversion of text against the C library's iconv on the same text. The counter
// `ratio` of each of our rows is the time of iconv divided by ours: above 1 we are faster.
#include <benchmark/benchmark.h>
#include <iconv.h>

#include <chrono>
#include <string>

#include "platform/strings/code_page_932.h"

namespace orreryui {
namespace {

// A line of an album file, mostly of double-byte characters, and a path, all of ASCII.
const char kAlbumLine[] =
    "鎌倉(計12地点)$C:\\Data\\ｱﾙﾊﾞﾑ\\鎌倉の大仏と江ノ島.jpg#神奈川県鎌倉市長谷四丁目@メモ：海岸線";
const char kPath[] = "C:\\Program Files\\Viewer\\Data\\Albums\\1999\\Summer\\RoutMstr.dat|";
constexpr int kLines = 200;

std::string Repeated(const char* line) {
  std::string text;
  for (int i = 0; i < kLines; ++i) (text += line) += "\r\n";
  return text;
}

class Iconv {
 public:
  Iconv(const char* to, const char* from) : handle_(iconv_open(to, from)) {}
  ~Iconv() {
    if (IsOpen()) iconv_close(handle_);
  }
  Iconv(const Iconv&) = delete;
  Iconv& operator=(const Iconv&) = delete;

  bool IsOpen() const { return handle_ != reinterpret_cast<iconv_t>(-1); }

  std::string Convert(const std::string& text) const {
    std::string result(text.size() * 3, '\0');
    char* in = const_cast<char*>(text.data());
    std::size_t in_left = text.size();
    char* out = result.data();
    std::size_t out_left = result.size();
    iconv(handle_, &in, &in_left, &out, &out_left);
    result.resize(result.size() - out_left);
    return result;
  }

 private:
  iconv_t handle_;
};

template <class Function>
double SecondsPerCall(const Function& function) {
  using Clock = std::chrono::steady_clock;
  constexpr int kCalls = 500;
  const auto start = Clock::now();
  for (int i = 0; i < kCalls; ++i) benchmark::DoNotOptimize(function());
  return std::chrono::duration<double>(Clock::now() - start).count() / kCalls;
}

// Runs `ours` as the benchmark and iconv before it. Both must give the same text.
template <class Function>
void Compare(benchmark::State& state, const char* to, const char* from, const std::string& text,
             const Function& ours) {
  const Iconv iconv(to, from);
  if (!iconv.IsOpen() || iconv.Convert(text) != ours()) {
    state.SkipWithError("iconv lacks the code page or converts otherwise");
    return;
  }
  const double theirs = SecondsPerCall([&] { return iconv.Convert(text); });
  const double mine = SecondsPerCall(ours);
  for (auto _ : state) benchmark::DoNotOptimize(ours());
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
  state.counters["ratio"] = theirs / mine;
}

void BM_CodePage932_ToUtf8(benchmark::State& state, const char* line) {
  const std::string bytes = FromUtf8(Repeated(line)).bytes;
  Compare(state, "UTF-8", "CP932", bytes, [&] { return ToUtf8(bytes); });
}
BENCHMARK_CAPTURE(BM_CodePage932_ToUtf8, Japanese, kAlbumLine);
BENCHMARK_CAPTURE(BM_CodePage932_ToUtf8, Ascii, kPath);

void BM_CodePage932_FromUtf8(benchmark::State& state, const char* line) {
  const std::string text = Repeated(line);
  Compare(state, "CP932", "UTF-8", text, [&] { return FromUtf8(text).bytes; });
}
BENCHMARK_CAPTURE(BM_CodePage932_FromUtf8, Japanese, kAlbumLine);
BENCHMARK_CAPTURE(BM_CodePage932_FromUtf8, Ascii, kPath);

}  // namespace
}  // namespace orreryui
