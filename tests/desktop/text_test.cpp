#include <QLabel>
#include <QTest>
#include <QToolTip>

#include "desktop/native_window.h"
#include "desktop/text_area.h"
#include "tests/ui/window_fixture.h"
#include "ui/global_module.h"
#include "ui/help_window.h"

namespace fundlet {
namespace {

using FieldLimit = StartedTest;
using Selection = StartedTest;
using ToolTip = StartedTest;

TEST_F(FieldLimit, HoldsForTypingButNotForTheProgram) {
  user::Replace("123456");
  EXPECT_EQ(Text("StartYearField"), "1234");
  Fill("StartFundletField", "");
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

TEST_F(ToolTip, StandsOnItsLinesAndOnADimmedButtonToo) {
  const struct {
    const char *control, *part;
    int lines;
  } cases[] = {{"PrintButton", "save a schedule of draws", 2},
               {"YearsLeftField", "after the first year.\n\nUse the Edit", 3}};
  for (const auto& [control, part, lines] : cases) {
    QWidget& widget = Found(control);
    QWidget& window = *widget.window();
    QTest::mouseMove(window.windowHandle(), widget.mapTo(&window, QPoint(9, 9)));
    EXPECT_TRUE(QTest::qWaitFor([&] { return QToolTip::text().contains(part); })) << control;
    for (const QWidget* top : QApplication::topLevelWidgets()) {
      const auto* tip = qobject_cast<const QLabel*>(top);
      if (tip == nullptr || !tip->isVisible()) continue;
      EXPECT_EQ(tip->height() / tip->fontMetrics().lineSpacing(), lines) << control;
    }
  }
}

}  // namespace
}  // namespace fundlet
