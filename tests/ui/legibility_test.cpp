#include <cmath>
#include <set>

#include <QFontInfo>
#include <QImage>
#include <QMenuBar>
#include <QPushButton>

#include "tests/ui/window_fixture.h"
#include "ui/main_layout.h"

namespace fundlet {
namespace {

constexpr double kScales[] = {1.0, 1.25, 1.5, 2.0, 3.0};

double Luminance(QRgb colour) {
  const auto part = [](int value) {
    const double share = value / 255.0;
    return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * part(qRed(colour)) + 0.7152 * part(qGreen(colour)) + 0.0722 * part(qBlue(colour));
}

QImage Picture(QWidget& window, double scale) {
  QImage image(window.size() * scale, QImage::Format_RGB32);
  image.setDevicePixelRatio(scale);
  window.render(&image);
  return image;
}

// The contrast between the lightest and the darkest colour within `part` of a picture.
double ContrastIn(const QImage& picture, const QRect& part) {
  const double scale = picture.devicePixelRatio();
  const QImage seen = picture.copy(QRect(part.topLeft() * scale, part.size() * scale));
  std::set<QRgb> colours;
  for (int y = 0; y < seen.height(); ++y) {
    for (int x = 0; x < seen.width(); ++x) colours.insert(seen.pixel(x, y));
  }
  const auto [dark, light] = std::minmax_element(
      colours.begin(), colours.end(), [](QRgb a, QRgb b) { return Luminance(a) < Luminance(b); });
  return (Luminance(*light) + 0.05) / (Luminance(*dark) + 0.05);
}

using Legibility = FundletTest;

// The area within a control's frame, in pixels of the window.
QRect Inside(const QWidget& widget) {
  const QPoint corner = widget.mapTo(widget.window(), QPoint(0, 0));
  return QRect(corner, widget.size()).adjusted(4, 3, -4, -3);
}

void ForEachControl(const std::function<void(const main_layout::ControlRow&, QWidget&)>& do_with) {
  for (const main_layout::ControlRow& row : main_layout::Controls()) {
    if (row.text.empty()) continue;
    do_with(row, *aFundletWindow::Instance()._ControlByName(row.name).Native());
  }
}

TEST_F(Legibility, FitsEveryTextInAnySystemFont) {
  for (const char* family : {"DejaVu Sans", "Liberation Sans", "Noto Sans"}) {
    Start(family);
    EXPECT_EQ(QFontInfo(Found("CalculateButton").font()).family(), family);
    Main().AnnualDrawField().SetText("Initial Year Draw:  $9,999,999,999");
    ForEachControl([&](const auto& row, QWidget& widget) {
      const bool label = qobject_cast<QLabel*>(&widget) != nullptr;
      const QMargins frame = QMargins() + (label ? 0 : 3);
      const QString text =
          label ? widget.property("text").toString() : QString::fromUtf8(row.text.data());
      const int stretch = widget.font().stretch();  // percent; 0 for a text that was not narrowed
      EXPECT_TRUE(stretch == 0 || stretch >= 80) << family << ", " << row.name << ": " << stretch;
      const QSize size = widget.fontMetrics().tightBoundingRect(text).size();
      EXPECT_EQ(size.boundedTo(widget.rect().marginsRemoved(frame).size()), size)
          << family << ", " << row.name;
    });
    End();
  }
}

TEST_F(Legibility, HoldsUnderAnyThemeAndScale) {
  Start();
  const QRect selected = Inside(Found("StartYearField")).adjusted(2, 2, -12, -2);
  EXPECT_NE(Picture(Main().Native(), 1.0).pixelColor(selected.topLeft()), Qt::white);
  const QPalette light = QApplication::palette();
  for (const QPalette& theme : {light, QPalette(QColor(40, 40, 44), QColor(25, 25, 28))}) {
    QApplication::setPalette(theme);
    user::Settle();
    for (const double scale : kScales) {
      const QImage picture = Picture(Main().Native(), scale);
      EXPECT_GE(ContrastIn(picture, selected), 7.0) << "the selected text";
      ForEachControl([&](const auto& row, QWidget& widget) {
        EXPECT_GE(ContrastIn(picture, Inside(widget)), widget.isEnabled() ? 7.0 : 4.5)
            << row.name << " at " << scale;
      });
    }
  }
  QApplication::setPalette(light);
}

TEST_F(Legibility, HoldsInTheMenusTheHelpAndTheMessages) {
  Start();
  user::OpenMenu("Edit");
  user::Press("Down");
  auto& menu = dynamic_cast<QMenu&>(*QApplication::activePopupWidget());
  const QImage items = Picture(menu, 1.0);
  for (QAction* item : menu.actions()) {
    if (!item->isVisible() || item->text().isEmpty()) continue;
    EXPECT_GE(ContrastIn(items, menu.actionGeometry(item)), item->isEnabled() ? 7.0 : 4.5)
        << item->text().toStdString();
  }
  menu.close();
  user::Settle();
  const auto expect_legible = [](QWidget& widget) {
    EXPECT_GE(ContrastIn(Picture(*widget.window(), 1.0), Inside(widget)), 7.0);
  };
  Main().Native().menuBar()->resize(60, 24);
  const QRect arrow = Inside(Found("qt_menubar_ext_button"));
  EXPECT_GE(ContrastIn(Picture(Main().Native(), 1.0), arrow), 4.5);
  user::Press("F1");
  expect_legible(Found("TextField"));
  expect_legible(Found("DoneButton"));
  user::Press("Return");
  CalculateRefused([&](QWidget& dialog) {
    expect_legible(Found<QLabel>("qt_msgbox_label"));
    expect_legible(*dialog.findChild<QPushButton*>());
    ByKey(Qt::Key_Return)(dialog);
  });
}

TEST_F(Legibility, IsThatOfTheFocusByARingAroundOneControl) {
  Start();
  for (const char* name : {"StartAgeField", "YearsLeftField", "EndFundletField", "SaveButton"}) {
    while (FocusName() != name) user::Press("Tab");
    const QImage picture = Picture(Main().Native(), 1.0);
    ForEachControl([&](const auto& row, QWidget& widget) {
      if (widget.focusPolicy() == Qt::NoFocus) return;
      const QRect above(widget.mapTo(widget.window(), QPoint(widget.width() / 2, -3)), QSize(1, 3));
      EXPECT_EQ(ContrastIn(picture, above) >= 3.0, row.name == name) << row.name;
    });
  }
}

}  // namespace
}  // namespace fundlet
