// What it takes to open a text of 100 MB, scroll from its start to its end and close it, through
// the exported operation and with the window of the Qt front end. Each measurement takes a process
// of its own. `ratio` is three times the size of the file divided by the most memory that the
// process held.
#include <benchmark/benchmark.h>
#include <orreryui/orreryui.h>
#include <stdlib.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QApplication>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <fstream>
#include <string>

namespace {

constexpr std::size_t kBytes = 100u << 20;
constexpr int kStops = 50;

// Removed at the end of the measurement.
class TextFile {
 public:
  explicit TextFile(const std::string& line) {
    const int descriptor = mkstemp(path_);
    if (descriptor == -1) std::abort();
    close(descriptor);
    std::ofstream file(path_, std::ios::binary);
    for (std::size_t size = 0; size < kBytes; size += line.size()) file << line;
  }
  ~TextFile() { unlink(path_); }
  TextFile(const TextFile&) = delete;
  TextFile& operator=(const TextFile&) = delete;
  const char* path() const { return path_; }

 private:
  char path_[32] = "/tmp/orreryui-bench-XXXXXX";
};

// The scroll bar over the whole text; null if there is none.
QScrollBar* LongBar(const QWidget& edit) {
  for (QScrollBar* bar : edit.findChildren<QScrollBar*>()) {
    if (bar->isVisible() && bar->orientation() == Qt::Vertical) return bar;
  }
  return nullptr;
}

// Whether the last lines of the text were seen.
bool ScrollToTheEnd() {
  QWidget* const window = QApplication::activeModalWidget();
  auto* const edit = window ? window->findChild<QPlainTextEdit*>("1050") : nullptr;
  QScrollBar* const bar = edit ? LongBar(*edit) : nullptr;
  if (!bar) return false;
  for (int stop = 1; stop <= kStops; ++stop) {
    bar->setValue(int(qint64(bar->maximum()) * stop / kStops));
    window->grab();
    QApplication::processEvents();
  }
  const bool at_end = bar->value() > int(kBytes / 200);
  window->findChild<QPushButton*>("1")->click();
  return at_end;
}

// In kB; 0 if it isn't known.
double PeakMemory() {
  std::ifstream file("/proc/self/status");
  std::string word;
  double size = 0;
  while (file >> word) {
    if (word == "VmHWM:") file >> size;
  }
  return size;
}

struct Visit {
  double seconds = 0;
  double peak = 0;  // in kB; 0 if the visit failed
};

Visit VisitText(const char* path) {
  int count = 1;
  char name[] = "long_text_bench";
  char* arguments[] = {name, nullptr};
  QApplication application(count, arguments);
  bool seen = false;
  QTimer::singleShot(0, [&] {
    seen = ScrollToTheEnd();
    if (!seen) _exit(1);
  });
  const auto start = std::chrono::steady_clock::now();
  orreryui::OnTextDisplayDaialog(path, "100 MB", "");
  const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
  return {time.count(), seen ? PeakMemory() : 0};
}

Visit VisitInAProcess(const char* path) {
  int ends[2];
  if (pipe(ends) != 0) return {};
  const pid_t child = fork();
  if (child == 0) {
    const Visit visit = VisitText(path);
    _exit(write(ends[1], &visit, sizeof visit) == sizeof visit ? 0 : 1);
  }
  close(ends[1]);
  Visit visit;
  if (read(ends[0], &visit, sizeof visit) != sizeof visit) visit = {};
  close(ends[0]);
  waitpid(child, nullptr, 0);
  return visit;
}

void BM_LongText(benchmark::State& state, const std::string& line) {
  const TextFile file(line);
  for (auto _ : state) {
    const Visit visit = VisitInAProcess(file.path());
    if (visit.peak <= 0) return state.SkipWithError("the end of the text wasn't seen");
    state.SetIterationTime(visit.seconds);
    state.counters["MB"] = visit.peak / 1024;
    state.counters["ratio"] = 3.0 * kBytes / 1024 / visit.peak;
  }
}
BENCHMARK_CAPTURE(BM_LongText, ascii, "The Great Buddha is of bronze, and 11 metres high.\r\n")
    ->UseManualTime()
    ->Iterations(1);
// "Kamakura no Daibutsu" in half-width and in full-width characters of code page 932.
BENCHMARK_CAPTURE(BM_LongText, katakana, "\xB6\xCF\xB8\xD7\xC9\xC0\xDE\xB2\xCC\xDE\xC2\n")
    ->UseManualTime()
    ->Iterations(1);
BENCHMARK_CAPTURE(BM_LongText, kanji,
                  "\x8A\x99\x91\x71\x82\xCC\x91\xE5\x95\xA7\x8A\x99\x91\x71\x82\xCC\x91\xE5\r\n")
    ->UseManualTime()
    ->Iterations(1);
BENCHMARK_CAPTURE(BM_LongText, short_lines, "a\n")->UseManualTime()->Iterations(1);

}  // namespace

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
