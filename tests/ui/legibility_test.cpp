#include <cmath>
#include <map>

#include <QFontInfo>
#include <QImage>
#include <QLabel>
#include <QMenu>
#include <QPainter>
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

double Contrast(QRgb a, QRgb b) {
  const auto [low, high] = std::minmax({Luminance(a), Luminance(b)});
  return (high + 0.05) / (low + 0.05);
}

QImage Picture(QWidget& window, double scale) {
  QImage image(window.size() * scale, QImage::Format_RGB32);
  image.setDevicePixelRatio(scale);
  window.render(&image);
  return image;
}

// The contrast of what stands out most in a part of a picture to the colour that fills it.
double ContrastIn(const QImage& picture, const QRect& part) {
  std::map<QRgb, int> count;
  const QRect pixels(part.topLeft() * picture.devicePixelRatio(),
                     part.size() * picture.devicePixelRatio());
  for (int y = pixels.top(); y <= pixels.bottom(); ++y) {
    for (int x = pixels.left(); x <= pixels.right(); ++x) ++count[picture.pixel(x, y)];
  }
  const auto fill = std::max_element(
      count.begin(), count.end(), [](const auto& a, const auto& b) { return a.second < b.second; });
  double most = 1.0;
  for (const auto& [colour, pixel_count] : count) {
    most = std::max(most, Contrast(colour, fill->first));
  }
  return most;
}

// The width and height in pixels of the text of a widget, seen with more room than it needs.
QSize TextSize(QWidget& widget, int frame, double scale) {
  const QSize before = widget.size();
  widget.setFixedSize(before + QSize(80, 20));
  const QImage picture = Picture(widget, scale);
  QRect text;
  const QRect inside = picture.rect().marginsRemoved(QMargins() + static_cast<int>(frame * scale));
  const QRgb fill = picture.pixel(inside.bottomRight());
  for (int y = inside.top(); y <= inside.bottom(); ++y) {
    for (int x = inside.left(); x <= inside.right(); ++x) {
      if (Contrast(picture.pixel(x, y), fill) > 1.5) text |= QRect(x, y, 1, 1);
    }
  }
  widget.setFixedSize(before);
  return text.size();
}

using TextRoom = FundletTest;

TEST_F(TextRoom, IsEnoughForEveryTextInAnySystemFontAndScale) {
  for (const char* family : {"DejaVu Sans", "Liberation Sans", "Noto Sans"}) {
    Start(family);
    Main().ClearFocus();
    EXPECT_EQ(QFontInfo(Found("CalculateButton").font()).family(), family);
    for (const main_layout::ControlRow& row : main_layout::Controls()) {
      if (row.text.empty()) continue;
      QWidget& widget = *Main()._ControlByName(row.name).Native();
      const int frame = qobject_cast<QLabel*>(&widget) != nullptr ? 0 : 3;
      if (frame != 0) widget.setProperty("text", QString::fromUtf8(row.text.data()));
      if (row.name == "AnnualDrawField") {
        Main().AnnualDrawField().SetText("Initial Year Draw:  $9,999,999,999");
      }
      for (const double scale : kScales) {
        const QSize text = TextSize(widget, frame, scale);
        const QSize room = (widget.size() - 2 * QSize(frame, frame)) * scale;
        EXPECT_TRUE(text.width() > 0 && text.width() <= room.width() &&
                    text.height() <= room.height())
            << family << ", " << row.name << " at " << scale << ": " << text.width() << " by "
            << text.height() << " in " << room.width() << " by " << room.height();
      }
    }
    EndProgram();
  }
}

class Legibility : public StartedTest {
 protected:
  // The inside of a control, without its frame.
  static QRect Inside(QWidget& widget) {
    QWidget& window = *widget.window();
    return QRect(widget.mapTo(&window, QPoint(0, 0)), widget.size()).adjusted(4, 3, -4, -3);
  }
  static void ExpectLegible(double scale) {
    const QImage picture = Picture(*Found("CalculateButton").window(), scale);
    for (const main_layout::ControlRow& row : main_layout::Controls()) {
      if (row.text.empty()) continue;
      QWidget& widget = *Main()._ControlByName(row.name).Native();
      const double least = widget.isEnabled() ? 7.0 : 4.5;
      EXPECT_GE(ContrastIn(picture, Inside(widget)), least) << row.name << " at " << scale;
    }
  }
};

TEST_F(Legibility, HoldsUnderAnyThemeAndScale) {
  const QPalette light = QApplication::palette();
  for (const QPalette& theme : {light, QPalette(QColor(40, 40, 44), QColor(25, 25, 28))}) {
    QApplication::setPalette(theme);
    user::Settle();
    for (const double scale : kScales) ExpectLegible(scale);
  }
  QApplication::setPalette(light);
}

TEST_F(Legibility, HoldsInTheMenusTheHelpAndTheMessages) {
  user::OpenMenu("Edit");
  user::Key(Qt::Key_Down);
  auto& menu = dynamic_cast<QMenu&>(*QApplication::activePopupWidget());
  const QImage items = Picture(menu, 1.0);
  int disabled = 0;
  for (QAction* item : menu.actions()) {
    if (!item->isVisible() || item->text().isEmpty()) continue;
    disabled += item->isEnabled() ? 0 : 1;
    EXPECT_GE(ContrastIn(items, menu.actionGeometry(item)), item->isEnabled() ? 7.0 : 4.5)
        << item->text().toStdString();
  }
  EXPECT_GT(disabled, 0);
  menu.close();
  user::Settle();
  const auto expect_legible = [](QWidget& widget) {
    EXPECT_GE(ContrastIn(Picture(*widget.window(), 1.0), Inside(widget)), 7.0);
  };
  user::Key(Qt::Key_F1);
  expect_legible(Found("TextField"));
  expect_legible(Found("DoneButton"));
  user::Key(Qt::Key_Return);
  Fill("StartAgeField", "1");
  ExpectDialog([&](QWidget& dialog) {
    expect_legible(*dialog.findChild<QLabel*>("qt_msgbox_label"));
    expect_legible(*dialog.findChild<QPushButton*>());
    ByKey(Qt::Key_Return)(dialog);
  });
  Calculate();
}

TEST_F(Legibility, OfTheFocusIsARingThatStandsOutAroundOneControl) {
  for (const char* name : {"StartAgeField", "YearsLeftField", "EndFundletField", "SaveButton"}) {
    while (FocusName() != name) user::Key(Qt::Key_Tab);
    const QImage picture = Picture(*Found(name).window(), 1.0);
    for (const main_layout::ControlRow& row : main_layout::Controls()) {
      QWidget& widget = *Main()._ControlByName(row.name).Native();
      if (widget.focusPolicy() == Qt::NoFocus) continue;
      const QRect around(widget.mapTo(widget.window(), QPoint(0, 0)), widget.size());
      const QRgb ring = picture.pixel(around.center().x(), around.top() - 1);
      EXPECT_EQ(Contrast(ring, qRgb(0xCC, 0xFF, 0xCC)) >= 3.0, row.name == name) << row.name;
    }
  }
}

}  // namespace
}  // namespace fundlet
