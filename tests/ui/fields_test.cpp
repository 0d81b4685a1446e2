#include <QToolTip>

#include "desktop/text_area.h"
#include "tests/ui/window_fixture.h"
#include "ui/global_module.h"
#include "ui/help_window.h"
#include "ui/main_layout.h"

namespace fundlet {
namespace {

using Fields = StartedTest;

TEST_F(Fields, ARefusalEndsOnTheFieldWithThePassingValueSelected) {
  Fill("StartAgeField", "60");
  user::Shortcut(Qt::Key_P);
  const std::tuple<const char*, const char*, const char*, Answer> refusals[] = {
      {"StartAgeField", "51", "52", ByKey(Qt::Key_Escape)},
      {"YearsLeftField", "40", "39", ByKey(Qt::Key_Return)},
      {"COLAField", "100", "99.99", ByButton()},
      {"EndFundletField", "1000001", "0", ByCloseBox()},
  };
  for (const auto& [field, typed, forced, answer] : refusals) {
    user::Shortcut(Qt::Key_R);
    Fill(field, typed);
    ExpectDialog([&answer = answer](QWidget& dialog) {
      EXPECT_EQ(static_cast<QMessageBox&>(dialog).icon(), QMessageBox::Warning);
      answer(dialog);
    });
    Calculate();
    EXPECT_EQ(FocusName(), field);
    EXPECT_EQ(Selected(field), forced);
    EXPECT_EQ(Result(), "Initial Year Draw:  $0");
  }
}

TEST_F(Fields, AMenuOrAToolTipIsNoLossOfFocus) {
  Fill("StartFundletField", "1234.5");
  const std::function<void()> openings[] = {
      [] { user::OpenMenu("File"); },
      [] { user::Key(Qt::Key_E, Qt::AltModifier); },
  };
  for (const auto& open : openings) {
    user::Shortcut(Qt::Key_A);
    open();
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    user::Key(Qt::Key_Escape);
    EXPECT_EQ(Selected("StartFundletField"), "1234.5");
    EXPECT_EQ(ThePlan().StartFundlet, 1000000.0);
    EXPECT_EQ(FocusName(), "StartFundletField");
    user::Key(Qt::Key_Alt);
    EXPECT_EQ(FocusName(), "StartFundletField");
  }
  QToolTip::showText({}, "tip");
  user::Settle();
  EXPECT_EQ(Text("StartFundletField"), "1234.5");
  user::Key(Qt::Key_End);
  user::Type("6");
  user::OpenContextMenu();
  ASSERT_NE(QApplication::activePopupWidget(), nullptr);
  EXPECT_EQ(Text("StartFundletField"), "1234.56");
  QApplication::activePopupWidget()->close();
}

TEST_F(Fields, EachOpensTheHelpAndShowsWhatWasReadWhenItIsLeft) {
  for (const main_layout::FieldRow& row : main_layout::Fields()) {
    const QString field = QString::fromUtf8(row.field.data());
    Fill(field, "7.555");
    user::Key(Qt::Key_F1);
    EXPECT_TRUE(GlobalModule::HelpShowing) << row.field;
    EXPECT_NE(Text(field), "7.555") << row.field;
    user::Key(Qt::Key_Return);
    EXPECT_EQ(Selected(field), Text(field));
  }
}

TEST_F(Fields, ActivationsLeadBackToTheRefusedFieldUntilTheNextPress) {
  CalculateRefused();
  const std::function<void()> departures[] = {
      [] {
        user::Key(Qt::Key_F1);
        user::Key(Qt::Key_Return);
      },
      [this] {
        ExpectDialog(ByKey(Qt::Key_Escape));
        user::Choose("File", "About Fundlet…");
      },
      [] { user::VisitAnotherWindow(); },
  };
  const auto expect_focus_after_each = [&](const char* field) {
    for (const auto& leave_and_return : departures) {
      Fill("COLAField", "1");
      leave_and_return();
      EXPECT_EQ(FocusName(), field);
      EXPECT_EQ(Text("COLAField"), "1.0");
    }
  };
  expect_focus_after_each("StartAgeField");
  Calculate();
  expect_focus_after_each("COLAField");
}

TEST_F(Fields, AClickSelectsTheWholeTextAndTheNextOnePlacesTheCaret) {
  QWidget& field = Found("EndFundletField");
  user::Click(field, QPoint(6, 10));
  EXPECT_EQ(Selected("EndFundletField"), "100,000");
  user::Click(field, QPoint(2, 10));
  user::Type("9");
  EXPECT_EQ(Text("EndFundletField"), "9100,000");
}

TEST_F(Fields, CountACharacterBeyondTheFirstPlaneOnce) {
  const auto check = [](auto& control) {
    control.SetText("a😀b😀");
    control.SetSelStart(2);
    control.SetSelLength(99);
    EXPECT_EQ(control.SelStart(), 2);
    EXPECT_EQ(control.SelLength(), 2);
    control.SetSelStart(1);
    control.SetSelLength(1);
    EXPECT_EQ(control.SelLength(), 1);
  };
  check(Main().COLAField());
  Main().COLAField().SetFocus();
  check(Main().COLAField());
  EXPECT_EQ(Selected("COLAField"), "😀");
  user::Key(Qt::Key_F1);
  check(GlobalModule::HelpWindow->TextField());
}

}  // namespace
}  // namespace fundlet
