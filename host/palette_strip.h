// Shows a palette as the viewer's legend would: its colours side by side over the elevations, from
// the sea to 4,000 m, and the palette's name above them.
#ifndef ORRERYUI_HOST_PALETTE_STRIP_H_
#define ORRERYUI_HOST_PALETTE_STRIP_H_

#include <QColor>
#include <QWidget>
#include <array>
#include <string>

namespace orreryui::host {

class PaletteStrip : public QWidget {
 public:
  PaletteStrip();

  // Elevations count in levels, steps of 15 m.
  static constexpr int kLevels = 256;

  // Reads the palette `number`, counted from 0, of the list in `folder`, which ends in its
  // separator. One that can't be read is shown as such.
  void Show(const std::string& folder, int number);

  // The bar of colours, in the coordinates of this widget.
  QRect Bar() const;

 protected:
  void paintEvent(QPaintEvent*) override;

 private:
  int ColumnOf(int level) const;

  QString name_;  // empty: there is nothing to show
  std::array<QColor, kLevels> colours_;
};

}  // namespace orreryui::host

#endif  // ORRERYUI_HOST_PALETTE_STRIP_H_
