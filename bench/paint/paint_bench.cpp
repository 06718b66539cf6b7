// What it takes of the processor from an operation's call to the first paint of its dialog, when
// everything is warm, against a bare dialog made with Qt alone that has the same widgets in the
// same places, with the same content. `ratio` is the time of the bare dialog divided by ours.
//
// The growth of that time with the content: `ratio` is ten times the time divided by the time for
// ten times the rows or characters.
#include <benchmark/benchmark.h>
#include <orreryui/orreryui.h>
#include <time.h>

#include <QAbstractButton>
#include <QAbstractScrollArea>
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
#include <QTabBar>
#include <QTemporaryDir>
#include <QTimer>
#include <QTreeWidget>
#include <algorithm>
#include <fstream>
#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace {

using namespace orreryui;

constexpr int kVisits = 101;

// Of all threads of this process.
double ProcessorSeconds() {
  timespec used{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &used);
  return static_cast<double>(used.tv_sec) + static_cast<double>(used.tv_nsec) * 1e-9;
}

// One widget of a dialog, as the bare dialog repeats it.
struct Recipe {
  QByteArray class_name;
  QRect place;
  QString text;
  QStringList items;
  QList<QStringList> rows;
  bool wraps = false;
  Qt::ScrollBarPolicy vertical_bar = Qt::ScrollBarAsNeeded;
  bool visible = true;
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
  Recipe recipe;
  recipe.class_name = QtClassOf(widget);
  recipe.place = {widget.mapTo(&window, QPoint(0, 0)), widget.size()};
  recipe.visible = widget.isVisibleTo(&window);
  if (const auto* area = qobject_cast<const QAbstractScrollArea*>(&widget)) {
    recipe.vertical_bar = area->verticalScrollBarPolicy();
  }
  if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) {
    for (int i = 0; i < combo->count(); ++i) recipe.items << combo->itemText(i);
    recipe.text = combo->currentText();
  } else if (const auto* list = qobject_cast<const QListWidget*>(&widget)) {
    for (int i = 0; i < list->count(); ++i) recipe.items << list->item(i)->text();
  } else if (const auto* tree = qobject_cast<const QTreeWidget*>(&widget)) {
    for (int i = 0; i < tree->columnCount(); ++i) recipe.items << tree->headerItem()->text(i);
    for (int i = 0; i < tree->topLevelItemCount(); ++i) {
      recipe.rows << QStringList();
      for (int column = 0; column < tree->columnCount(); ++column) {
        recipe.rows.back() << tree->topLevelItem(i)->text(column);
      }
    }
  } else if (const auto* tabs = qobject_cast<const QTabBar*>(&widget)) {
    for (int i = 0; i < tabs->count(); ++i) recipe.items << tabs->tabText(i);
  } else if (const auto* edit = qobject_cast<const QPlainTextEdit*>(&widget)) {
    recipe.text = edit->toPlainText();
    recipe.wraps = edit->lineWrapMode() != QPlainTextEdit::NoWrap;
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
  if (recipe.class_name == "QPlainTextEdit") {
    auto* edit = new QPlainTextEdit(window);
    if (!recipe.wraps) edit->setLineWrapMode(QPlainTextEdit::NoWrap);
    edit->setPlainText(recipe.text);
    return edit;
  }
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
  if (recipe.class_name == "QTreeWidget") {
    auto* tree = new QTreeWidget(window);
    tree->setHeaderLabels(recipe.items);
    for (const QStringList& row : recipe.rows) new QTreeWidgetItem(tree, row);
    return tree;
  }
  if (recipe.class_name == "QTabBar") {
    auto* tabs = new QTabBar(window);
    for (const QString& caption : recipe.items) tabs->addTab(caption);
    return tabs;
  }
  return new QWidget(window);
}

void RunBareDialog(const DialogRecipe& recipe) {
  QDialog dialog;
  dialog.setObjectName("bare");
  for (const Recipe& widget : recipe.widgets) {
    QWidget* made = Make(widget, &dialog);
    if (auto* area = qobject_cast<QAbstractScrollArea*>(made)) {
      area->setVerticalScrollBarPolicy(widget.vertical_bar);
    }
    made->setGeometry(widget.place);
    made->setVisible(widget.visible);
  }
  dialog.setFixedSize(recipe.size);
  dialog.exec();
}

// Waits for the first paint of a window, tells when it was, and presses Esc in it.
class Visitor : public QObject {
 public:
  explicit Visitor(QString window) : window_(std::move(window)) { qApp->installEventFilter(this); }

  double painted = 0;
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
    painted = ProcessorSeconds();
    on_paint(window);
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(&window, &escape);
  }

  QString window_;
  bool seen_ = false;
};

double SecondsToPaint(const QString& window, const std::function<void()>& run) {
  Visitor visitor(window);
  const double start = ProcessorSeconds();
  run();
  return visitor.painted - start;
}

// What the visits cost at least: whatever else the machine does only adds to that.
double Least(const std::vector<double>& seconds) {
  return *std::min_element(seconds.begin(), seconds.end());
}

// A dialog, and the operation that shows it.
struct Visit {
  const char* name;
  const char* window;
  std::function<void()> call;
};

DialogRecipe LookAt(const Visit& visit) {
  DialogRecipe recipe;
  Visitor visitor(visit.window);
  visitor.on_paint = [&recipe](const QWidget& shown) { recipe = RecipeOf(shown); };
  visit.call();
  return recipe;
}

// The two dialogs are visited in turns, so that whatever else the machine does meets both.
void CompareWithBare(benchmark::State& state, const Visit& visit) {
  const DialogRecipe recipe = LookAt(visit);
  if (recipe.widgets.empty()) return state.SkipWithError("the dialog didn't come to the screen");
  std::vector<double> ours, bare;
  for (int i = 0; i < kVisits; ++i) {
    bare.push_back(SecondsToPaint("bare", [&recipe] { RunBareDialog(recipe); }));
    ours.push_back(SecondsToPaint(visit.window, visit.call));
  }
  for (auto _ : state) state.SetIterationTime(Least(ours));
  state.counters["ratio"] = Least(bare) / Least(ours);
}

void CompareSizes(benchmark::State& state, const Visit& small, const Visit& large) {
  std::vector<double> once, tenfold;
  for (int i = 0; i < kVisits; ++i) {
    once.push_back(SecondsToPaint(small.window, small.call));
    tenfold.push_back(SecondsToPaint(large.window, large.call));
  }
  for (auto _ : state) state.SetIterationTime(Least(tenfold));
  state.counters["ratio"] = 10 * Least(once) / Least(tenfold);
}

constexpr char kAlbum[] = SAMPLE_DATA "album/kamakura.alb";
constexpr char kPalettes[] = SAMPLE_DATA "palettes/";
constexpr char kMaps[] = SAMPLE_DATA "maps/";
constexpr char kText[] = SAMPLE_DATA "album/hase.txt";

const Visit kDialogs[] = {
    {"MapType", "159", [] { OnMapTypeSet(0, 21, 10001, 50102, 1, kPalettes, ""); }},
    {"Palette", "177", [] { OnMapPalleteSet(0, "", kPalettes, 0, 0, 0); }},
    {"Legend", "158", [] { OnLegendElevetion(0, kPalettes, 0); }},
    {"AlbumRegist", "148", [] { OnDLLAlbumRegist(0, "139.5503", "35.3190", kAlbum, "1"); }},
    {"AlbumUpdate", "147", [] { OnAlbumUpdate(1, "", kAlbum, "", "", "", "", ""); }},
    {"DataSource", "134", [] { OnDataSourceSet(0, "on", SAMPLE_DATA); }},
    {"RouteSelect", "157", [] { OnRouteInformation(0, "AUTO", "", kMaps); }},
    {"AlbumFiles", "149",
     [] {
       OnRouteRegistModule(0, 4, kMaps, "", "", kAlbum, "", "", "", "", "", "", "", "AUTO", "");
     }},
    {"MenuFile", "141", [] { OnDlgMenuBarFileUpdate(SAMPLE_DATA, "", 0); }},
    {"MenuSlide", "135", [] { OnDlgMenuBarSlideSet(SAMPLE_DATA, "AUTO", 5); }},
    {"Slide", "142", [] { OnSlideSet(1, 5, 1, "ON", "AUTO", "on", "on", "off"); }},
    {"TextView", "152", [] { OnTextDisplayDaialog(kText, "", ""); }},
    {"Memo", "133", [] { OnMemoDisplay(1, 0, kText, ""); }},
    {"Retrieval", "170", [] { OnGnpfRetrieveSet(110, 0, 0, 0, 0, 3, 2, 2, 12, "", "", ""); }},
    {"Range", "146", [] { OnRengeConfirm("135.0000", "34.5000", "135.5000", "34.0000"); }},
};

// A folder with a list of `rows` maps, one of `rows` data files with long names, and a text of one
// line of `characters` ASCII letters.
class Content {
 public:
  Content(int rows, int characters) {
    std::ofstream maps(path("RoutMstr.dat")), files(path("BINDER.DAT")), text(path("long.txt"));
    for (int row = 0; row < rows; ++row) {
      maps << "map " << row << "@C:\\maps\\G" << row << ".41R\r\n";
      files << std::string(150, 'x') << row << "\r\n";
    }
    for (int character = 0; character < characters; ++character) {
      text << static_cast<char>('a' + character % 26);
    }
  }
  // In the folder, which itself has its separator behind it.
  std::string path(const char* name) const { return folder_.path().toStdString() + "/" + name; }

 private:
  QTemporaryDir folder_;
};

Visit ListVisit(const Content& content) {
  return {"List", "157",
          [&content] { OnRouteInformation(0, "AUTO", "", content.path("").c_str()); }};
}

Visit ComboVisit(const Content& content) {
  return {"Combo", "134", [&content] { OnDataSourceSet(0, "on", content.path("").c_str()); }};
}

Visit TextVisit(const Content& content) {
  return {"LongLine", "152",
          [&content] { OnTextDisplayDaialog(content.path("long.txt").c_str(), "", ""); }};
}

void Register(const Visit& visit) {
  benchmark::RegisterBenchmark((std::string("BM_FirstPaint_") + visit.name).c_str(),
                               [visit](benchmark::State& state) { CompareWithBare(state, visit); })
      ->UseManualTime()
      ->Iterations(1);
}

void RegisterGrowth(const Visit& small, const Visit& large) {
  benchmark::RegisterBenchmark(
      (std::string("BM_Growth_") + large.name).c_str(),
      [small, large](benchmark::State& state) { CompareSizes(state, small, large); })
      ->UseManualTime()
      ->Iterations(1);
}

}  // namespace

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  for (const Visit& dialog : kDialogs) Register(dialog);
  const Content few(9, 10'000), some(51, 0), many(99, 100'000), most(512, 0);
  Register(ListVisit(most));
  Register(ComboVisit(many));
  Register(TextVisit(many));
  RegisterGrowth(ListVisit(some), ListVisit(most));
  RegisterGrowth(ComboVisit(few), ComboVisit(many));
  RegisterGrowth(TextVisit(few), TextVisit(many));
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
