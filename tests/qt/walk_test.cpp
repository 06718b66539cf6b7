// Walks through every dialog, as somebody without a mouse and somebody without sight go.
#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <functional>
#include <set>
#include <tuple>

#include "host/operation_table.h"
#include "host/sample_folder.h"
#include "platform/dialogs/dialog.h"
#include "platform/dialogs/front_end_loader.h"
#include "tests/qt/plugin.h"
#include "tests/support/each_template.h"

namespace orreryui {
namespace {

// A way to open a dialog until it is closed: a template alone, or an operation on real files.
struct Opening {
  std::string name;
  std::function<void()> open;
};

void PrintTo(const Opening& opening, std::ostream* out) { *out << opening.name; }

std::vector<Opening> AllOpenings() {
  std::vector<Opening> all;
  for (const DialogTemplate* shown : kAllTemplates) {
    all.push_back({"Template" + std::to_string(shown->number), [shown] {
                     const ScopedFrontEnd screen(LoadFrontEnd());
                     CDialog(*shown).DoModal();
                   }});
  }
  for (const host::Operation& operation : host::Operations()) {
    all.push_back({operation.name, [&operation] {
                     const host::SampleFolder data;
                     operation.call(InOrder(operation, data.StartValues(operation)));
                   }});
  }
  return all;
}

// Texts, frames, pages, and swatches that do nothing.
bool IsOnlySeen(const QWidget& widget) {
  if (widget.inherits("QLabel") || widget.inherits("QGroupBox")) return true;
  if (widget.focusPolicy() != Qt::NoFocus || widget.focusProxy() != nullptr) return false;
  const auto* const button = qobject_cast<const QPushButton*>(&widget);
  return button != nullptr ? button->text().isEmpty()
                           : widget.metaObject() == &QWidget::staticMetaObject;
}

// The widgets of the controls that the user can work on now.
QList<QWidget*> Controls(const QWidget& dialog) {
  QList<QWidget*> widgets = dialog.findChildren<QWidget*>();
  widgets.removeIf([](const QWidget* widget) {
    return widget->objectName().toInt() == 0 || !widget->isVisible() || !widget->isEnabled() ||
           IsOnlySeen(*widget);
  });
  return widgets;
}

class Walk : public testing::TestWithParam<Opening> {
 protected:
  static void In(const std::function<void(QWidget& dialog)>& walk) {
    bool walked = false;
    ThenInFront([&](QWidget& dialog) {
      walk(dialog);
      walked = true;
      QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    GetParam().open();
    EXPECT_TRUE(walked);
  }
};

using Widgets = std::set<const QWidget*>;

// By the arrow keys wherever they lead from a button of a group. What they open is closed again.
void GoByArrows(QWidget& dialog, QWidget& from, Widgets& reached) {
  const auto* const button = qobject_cast<QAbstractButton*>(&from);
  if (button == nullptr || button->group() == nullptr) return;
  for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down}) {
    from.setFocus(Qt::TabFocusReason);
    QTimer::singleShot(0, &dialog, [&dialog] {
      QWidget* const front = QApplication::activeModalWidget();
      if (front != nullptr && front != &dialog) front->close();
    });
    QTest::keyClick(&from, key);
    QWidget* const next = dialog.focusWidget();
    if (reached.insert(next).second) GoByArrows(dialog, *next, reached);
  }
}

TEST_P(Walk, TheKeyboardReachesEveryControl) {
  In([](QWidget& dialog) {
    Widgets reached;
    while (reached.insert(dialog.focusWidget()).second) {
      GoByArrows(dialog, *dialog.focusWidget(), reached);
      QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
    }
    for (const QWidget* control : Controls(dialog)) {
      EXPECT_TRUE(reached.count(control) != 0 || reached.count(control->focusProxy()) != 0)
          << control->objectName().toStdString();
    }
  });
}

// What a screen reader finds: objects, and kind, name and description of those that take input.
struct Found {
  std::set<const QObject*> objects;
  std::set<std::tuple<int, QString, QString>> names;
};

void Look(QAccessibleInterface& at, Found& found) {
  found.objects.insert(at.object());
  if (at.state().focusable) {
    const QString name = at.text(QAccessible::Name);
    const QString description = at.text(QAccessible::Description);
    const bool is_new = found.names.insert({at.role(), name, description}).second;
    const bool is_value = at.role() == QAccessible::ComboBox && name == at.text(QAccessible::Value);
    EXPECT_TRUE(!name.isEmpty() && is_new && !is_value)
        << at.role() << " called " << name.toStdString();
  }
  if (at.tableInterface() != nullptr || at.role() == QAccessible::List) return;
  for (int i = 0; i < at.childCount(); ++i) {
    if (!at.child(i)->state().invisible) Look(*at.child(i), found);
  }
}

TEST_P(Walk, AScreenReaderFindsEveryControlByAName) {
  In([](QWidget& dialog) {
    Found found;
    Look(*QAccessible::queryAccessibleInterface(&dialog), found);
    for (const QWidget* control : Controls(dialog)) {
      EXPECT_EQ(found.objects.count(control), 1U) << control->objectName().toStdString();
    }
  });
}

INSTANTIATE_TEST_SUITE_P(All, Walk, testing::ValuesIn(AllOpenings()),
                         [](const auto& opening) { return opening.param.name; });

}  // namespace
}  // namespace orreryui
