// The time from an operation's call to the first paint of its dialog, when everything is warm,
// against a bare dialog made with Qt alone that has the same widgets in the same places. `ratio` is
// the time of the bare dialog divided by ours.
#include <benchmark/benchmark.h>
#include <orreryui/orreryui.h>

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <functional>
#include <utility>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kVisits = 41;

// One widget of a dialog, as the bare dialog repeats it.
struct Recipe {
  QByteArray class_name;
  QRect place;
  QString text;
  QStringList items;
};

struct DialogRecipe {
  QSize size;
  std::vector<Recipe> widgets;
};

// The name of the class of Qt that a widget is, or is derived from.
QByteArray QtClassOf(const QWidget& widget) {
  const QMetaObject* meta = widget.metaObject();
  while (QByteArray(meta->className()).contains("::") || meta->className()[0] != 'Q') {
    meta = meta->superClass();
  }
  return meta->className();
}

Recipe RecipeOf(const QWidget& widget, const QWidget& window) {
  Recipe recipe{QtClassOf(widget), {widget.mapTo(&window, QPoint(0, 0)), widget.size()}, {}, {}};
  if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) {
    for (int i = 0; i < combo->count(); ++i) recipe.items << combo->itemText(i);
    recipe.text = combo->currentText();
  } else if (const auto* list = qobject_cast<const QListWidget*>(&widget)) {
    for (int i = 0; i < list->count(); ++i) recipe.items << list->item(i)->text();
  } else if (const auto* edit = qobject_cast<const QPlainTextEdit*>(&widget)) {
    recipe.text = edit->toPlainText();
  } else {
    recipe.text = widget.property("text").toString() + widget.property("title").toString();
  }
  return recipe;
}

// The widgets that stand for controls: those with a number, the parts of a combo box whose list is
// always open, and fixed texts and frames.
DialogRecipe RecipeOf(const QWidget& window) {
  DialogRecipe recipe{window.size(), {}};
  for (const QWidget* widget : window.findChildren<QWidget*>()) {
    bool numbered = false;
    widget->objectName().toInt(&numbered);
    const bool fixed =
        qobject_cast<const QLabel*>(widget) || qobject_cast<const QGroupBox*>(widget);
    const bool part = widget->objectName() == "edit" || widget->objectName() == "list";
    if (numbered || part || fixed) recipe.widgets.push_back(RecipeOf(*widget, window));
  }
  return recipe;
}

QWidget* Make(const Recipe& recipe, QWidget* window) {
  if (recipe.class_name == "QLabel") return new QLabel(recipe.text, window);
  if (recipe.class_name == "QPushButton") return new QPushButton(recipe.text, window);
  if (recipe.class_name == "QCheckBox") return new QCheckBox(recipe.text, window);
  if (recipe.class_name == "QRadioButton") return new QRadioButton(recipe.text, window);
  if (recipe.class_name == "QGroupBox") return new QGroupBox(recipe.text, window);
  if (recipe.class_name == "QLineEdit") return new QLineEdit(recipe.text, window);
  if (recipe.class_name == "QPlainTextEdit") return new QPlainTextEdit(recipe.text, window);
  if (recipe.class_name == "QListWidget") {
    auto* list = new QListWidget(window);
    list->addItems(recipe.items);
    return list;
  }
  if (recipe.class_name == "QComboBox") {
    auto* combo = new QComboBox(window);
    combo->setEditable(true);
    combo->addItems(recipe.items);
    return combo;
  }
  return new QWidget(window);
}

void RunBareDialog(const DialogRecipe& recipe) {
  QDialog dialog;
  dialog.setObjectName("bare");
  for (const Recipe& widget : recipe.widgets) Make(widget, &dialog)->setGeometry(widget.place);
  dialog.setFixedSize(recipe.size);
  dialog.exec();
}

// Waits for the first paint of a window, tells when it was, and presses Esc in it.
class Visitor : public QObject {
 public:
  explicit Visitor(QString window) : window_(std::move(window)) { qApp->installEventFilter(this); }

  Clock::time_point painted;
  std::function<void(const QWidget&)> on_paint = [](const QWidget&) {};

  bool eventFilter(QObject* object, QEvent* event) override {
    if (seen_ || event->type() != QEvent::Paint || object->objectName() != window_) return false;
    seen_ = true;
    // Behind the paint event of the window, and of the widgets in it.
    QTimer::singleShot(0, this, [this, object] { Leave(static_cast<QWidget&>(*object)); });
    return false;
  }

 private:
  void Leave(QWidget& window) {
    painted = Clock::now();
    on_paint(window);
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(&window, &escape);
  }

  QString window_;
  bool seen_ = false;
};

double SecondsToPaint(const QString& window, const std::function<void()>& run) {
  Visitor visitor(window);
  const auto start = Clock::now();
  run();
  return std::chrono::duration<double>(visitor.painted - start).count();
}

double Median(std::vector<double> values) {
  std::nth_element(values.begin(), values.begin() + kVisits / 2, values.end());
  return values[kVisits / 2];
}

// The two dialogs are visited in turns, so that whatever else the machine does meets both.
void Compare(benchmark::State& state, const QString& window, const std::function<void()>& call) {
  DialogRecipe recipe;
  {
    Visitor visitor(window);
    visitor.on_paint = [&recipe](const QWidget& shown) { recipe = RecipeOf(shown); };
    call();
  }
  if (recipe.widgets.empty()) return state.SkipWithError("the dialog didn't come to the screen");
  std::vector<double> ours, bare;
  for (int i = 0; i < kVisits; ++i) {
    bare.push_back(SecondsToPaint("bare", [&recipe] { RunBareDialog(recipe); }));
    ours.push_back(SecondsToPaint(window, call));
  }
  for (auto _ : state) state.SetIterationTime(Median(ours));
  state.counters["ratio"] = Median(bare) / Median(ours);
}

void BM_FirstPaint_DataSource(benchmark::State& state) {
  Compare(state, "134", [] { orreryui::OnDataSourceSet(0, "on", ""); });
}
BENCHMARK(BM_FirstPaint_DataSource)->UseManualTime()->Iterations(1);

void BM_FirstPaint_Range(benchmark::State& state) {
  Compare(state, "146",
          [] { orreryui::OnRengeConfirm("135.0000", "34.5000", "135.5000", "34.0000"); });
}
BENCHMARK(BM_FirstPaint_Range)->UseManualTime()->Iterations(1);

void BM_FirstPaint_Palette(benchmark::State& state) {
  Compare(state, "177", [] { orreryui::OnMapPalleteSet(0, "", SAMPLE_PALETTES, 0, 0, 0); });
}
BENCHMARK(BM_FirstPaint_Palette)->UseManualTime()->Iterations(1);

void BM_FirstPaint_MapType(benchmark::State& state) {
  Compare(state, "159",
          [] { orreryui::OnMapTypeSet(0, 21, 10001, 50102, 1, SAMPLE_PALETTES, ""); });
}
BENCHMARK(BM_FirstPaint_MapType)->UseManualTime()->Iterations(1);

}  // namespace

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
