#include <QClipboard>
#include <QFontMetricsF>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QToolTip>

#include "desktop/native_window.h"
#include "desktop/text_area.h"
#include "tests/ui/window_fixture.h"
#include "ui/global_module.h"
#include "ui/help_window.h"
#include "ui/main_layout.h"

namespace fundlet {
namespace {

using FieldLimit = StartedTest;
using Selection = StartedTest;
using TextRoom = FundletTest;
using ToolTip = StartedTest;

TEST_F(FieldLimit, HoldsForTypingAndPastingButNotForTheProgram) {
  user::Replace("123456");
  EXPECT_EQ(Text("StartYearField"), "1234");
  Fill("StartFundletField", "");
  QGuiApplication::clipboard()->setText("1234567890123");
  user::Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Text("StartFundletField"), "12345678901");
  Main().StartFundletField().SetText("1,000,000,000");
  EXPECT_EQ(Text("StartFundletField"), "1,000,000,000");
  user::Type("5");
  EXPECT_EQ(Text("StartFundletField"), "1,000,000,000");
  user::Key(Qt::Key_Backspace);
  user::Type("56");
  EXPECT_EQ(Text("StartFundletField"), "1,000,000,00");
  user::Key(Qt::Key_Backspace);
  user::Key(Qt::Key_Backspace);
  user::Type("56");
  EXPECT_EQ(Text("StartFundletField"), "1,000,000,5");
}

TEST_F(Selection, CountsACharacterBeyondTheFirstPlaneOnce) {
  const auto check = [](auto& control) {
    control.SetText("a😀b😀");
    control.SetSelStart(1);
    control.SetSelLength(2);
    EXPECT_EQ(control.SelStart(), 1);
    EXPECT_EQ(control.SelLength(), 2);
    control.SetSelLength(99);
    EXPECT_EQ(control.SelLength(), 3);
    control.SetSelStart(4);
    EXPECT_EQ(control.SelStart(), 4);
    EXPECT_EQ(control.SelLength(), 0);
  };
  check(Main().COLAField());
  Main().COLAField().SetFocus();
  check(Main().COLAField());
  Main().COLAField().SetSelStart(1);
  Main().COLAField().SetSelLength(1);
  EXPECT_EQ(Selected("COLAField"), "😀");
  user::Key(Qt::Key_F1);
  check(GlobalModule::HelpWindow->TextField());
}

// Both ends of the text are inside the field's frame at once.
void ExpectSeenWhole(QLineEdit& field) {
  field.setFocus();
  field.selectAll();
  field.grab();  // the text is scrolled when it is painted
  const QPoint start = field.inputMethodQuery(Qt::ImAnchorRectangle).toRect().center();
  const QPoint end = field.inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
  EXPECT_GE(start.x(), 1);
  EXPECT_LE(end.x(), field.width() - 1);
  EXPECT_GT(end.x(), start.x());
}

TEST_F(TextRoom, EveryTextIsSeenWholeInAnySystemFont) {
  for (const char* family : {"DejaVu Sans", "Liberation Sans", "Noto Sans"}) {
    Start(family);
    Main().AnnualDrawField().SetText("Initial Year Draw:  $9,999,999,999");
    for (const main_layout::ControlRow& row : main_layout::Controls()) {
      SCOPED_TRACE(std::string(family) + " " + std::string(row.name));
      QWidget& widget = *Main()._ControlByName(row.name).Native();
      const QString text = QString::fromUtf8(row.text.data(), static_cast<int>(row.text.size()));
      if (auto* field = qobject_cast<QLineEdit*>(&widget)) {
        Main().ControlOf<TextField>(row.name).SetText(row.text);
        ExpectSeenWhole(*field);
        continue;
      }
      if (!text.isEmpty()) {
        EXPECT_EQ(QFontInfo(widget.font()).family(), family);
      }
      EXPECT_LE(QFontMetricsF(widget.font()).horizontalAdvance(text), widget.width());
    }
    EndProgram();
  }
}

TEST_F(ToolTip, WrapsAndShowsOnADimmedButtonToo) {
  const struct {
    const char *control, *part;
  } cases[] = {{"PrintButton", "save a schedule of draws"},
               {"YearsLeftField", "after the first year.<br><br>Use the Edit"},
               {"CalculateButton", "will last till you die"}};
  for (const auto& [control, part] : cases) {
    QWidget& widget = Found(control);
    QWidget& window = *widget.window();
    QTest::mouseMove(window.windowHandle(), widget.mapTo(&window, QPoint(9, 9)));
    EXPECT_TRUE(QTest::qWaitFor([&] { return QToolTip::text().contains(part); })) << control;
    for (const QWidget* top : QApplication::topLevelWidgets()) {
      const auto* tip = qobject_cast<const QLabel*>(top);
      if (tip == nullptr || !tip->isVisible()) continue;
      EXPECT_GE(tip->height(), 2 * tip->fontMetrics().height());
    }
  }
}

}  // namespace
}  // namespace fundlet
