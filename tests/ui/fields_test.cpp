#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QTest>
#include <QToolTip>

#include "desktop/native_window.h"
#include "tests/ui/window_fixture.h"

namespace fundlet {
namespace {

using Validation = StartedTest;
using Fields = StartedTest;

struct Refusal {
  const char* field;
  const char* typed;
  const char* message;
  const char* forced;
  const char* other_field = nullptr;  // filled first
  const char* other_text = nullptr;
};

constexpr Refusal kRefusals[] = {
    {"StartYearField", "-1", "Start year must be at least 0.", "0"},
    {"StartAgeField", "51", "Age must be at least 52 years old.", "52"},
    {"StartAgeField", "96", "Age must be no more than 95 years old.", "95"},
    {"YearsLeftField", "3", "Life expectancy must be at least 4 years.", "4"},
    {"YearsLeftField", "41", "Life expectancy must be no more than 40 years.", "40"},
    {"YearsLeftField", "40", "Age plus life expectancy must be less than 100 years.", "39",
     "StartAgeField", "60"},
    {"COLAField", "-0.01", "COLA (Annual Cost of Living Adjustment) must be at least 0%.", "0.0"},
    {"COLAField", "100", "COLA (Annual Cost of Living Adjustment) must be less than 100%.",
     "99.99"},
    {"StartFundletField", "-1", "Initial fundlet must be at least $0.", "0"},
    {"StartFundletField", "1e9", "Initial fundlet must be at less than $1 billion.", "999,999,999"},
    {"FundletAPRField", "-0.01", "After-tax fundlet APR must be at least 0%.", "0.0"},
    {"FundletAPRField", "100", "After-tax fundlet APR must be less than 100%.", "99.99"},
    {"SocialSecurityField", "-1", "Annual social secuity must be at least $0.", "0"},
    {"SocialSecurityField", "100000", "Annual social secuity must be at less than $100,000.",
     "99,999"},
    {"EndFundletField", "-1", "Terminal fundlet must be at least $0.", "0"},
    {"EndFundletField", "1000001", "Terminal fundlet must be no more than the initial fundlet.",
     "0"},
};

TEST_F(Validation, ARefusalEndsOnTheFieldWithThePassingValueSelected) {
  const Answer answers[] = {ByKey(Qt::Key_Escape), ByKey(Qt::Key_Return), ByButton(), ByCloseBox()};
  for (const Refusal& refusal : kRefusals) {
    for (const Answer& answer : answers) {
      SCOPED_TRACE(refusal.message);
      user::Key(Qt::Key_R, Qt::ControlModifier);
      if (refusal.other_field != nullptr) Fill(refusal.other_field, refusal.other_text);
      Fill(refusal.field, refusal.typed);
      ExpectDialog(answer);
      Calculate();
      EXPECT_EQ(TakeDialogs(), std::vector<std::string>{refusal.message});
      EXPECT_EQ(FocusName(), refusal.field);
      EXPECT_EQ(Text(refusal.field), refusal.forced);
      EXPECT_EQ(Selected(refusal.field), refusal.forced);
      EXPECT_EQ(Result(), "Initial Year Draw:  $0");
    }
  }
}

TEST_F(Validation, TheNextPressPassesAfterARefusalAndMeetsTheNextBadValue) {
  Fill("COLAField", "100");
  Fill("EndFundletField", "-5");
  ExpectDialog(ByKey(Qt::Key_Return));
  Calculate();
  Fill("COLAField", "2");
  ExpectDialog(ByKey(Qt::Key_Return));
  Calculate();
  EXPECT_EQ(TakeDialogs().back(), "Terminal fundlet must be at least $0.");
  Calculate();
  EXPECT_NE(Result(), "Initial Year Draw:  $0");
}

TEST_F(Fields, AWholePlanIsTypedWithTabAndReturnOnly) {
  for (const char* text : {"2010", "70", "4", "2.5", "500000", "5", "20000", "100000"}) {
    user::Type(text);
    if (text != std::string_view("100000")) user::Key(Qt::Key_Tab);
  }
  Calculate();
  EXPECT_EQ(Result(), "Initial Year Draw:  $131,468");
  EXPECT_EQ(FocusName(), "EndFundletField");
}

TEST_F(Fields, LeavingAFieldShowsWhatItsTextWasReadAs) {
  const struct {
    const char *field, *typed, *shown;
  } cases[] = {
      {"StartYearField", "", "0"},
      {"StartYearField", "1,23", "1"},
      {"StartYearField", "19.9", "19"},
      {"StartYearField", "-0.5", "0"},
      {"StartAgeField", "3x", "3"},
      {"StartAgeField", " 7", "7"},
      {"YearsLeftField", "x", "0"},
      {"YearsLeftField", "99", "99"},
      {"COLAField", "", "0.0"},
      {"COLAField", "1,5", "1.0"},
      {"COLAField", "100", "100.0"},
      {"COLAField", "3.456", "3.46"},
      {"FundletAPRField", "3.125", "3.13"},
      {"FundletAPRField", "..5", "0.0"},
      {"StartFundletField", "1,234.56", "1,235"},
      {"StartFundletField", "9999999999", "9,999,999,999"},
      {"SocialSecurityField", "1,2,3", "123"},
      {"SocialSecurityField", "", "0"},
      {"EndFundletField", "1e3", "1,000"},
  };
  for (const auto& [field, typed, shown] : cases) {
    Fill(field, typed);
    EXPECT_EQ(Text(field), typed);
    user::Key(Qt::Key_Tab);
    EXPECT_EQ(Text(field), shown) << field << " " << typed;
  }
  EXPECT_EQ(ThePlan().StartFundlet, 9999999999.0);
}

TEST_F(Fields, AnyPastedTextIsReadOrRefusedAndNothingCrashes) {
  const QString texts[] = {QString(10'000, '9'), "１２３", "1e999", "-", "\n7\n", "NaN", "é😀",
                           QString(3, QChar(0)), "0x10"};
  for (const QString& text : texts) {
    for (const char* field : {"StartYearField", "COLAField", "SocialSecurityField"}) {
      Fill(field, "");
      QGuiApplication::clipboard()->setText(text);
      user::Key(Qt::Key_V, Qt::ControlModifier);
      EXPECT_LE(Found<QLineEdit>(field).text().size(), 6);
      user::Key(Qt::Key_Tab);
      EXPECT_FALSE(Text(field).empty());
    }
  }
}

TEST_F(Fields, AMenuOrAToolTipIsNoLossOfFocus) {
  Fill("StartFundletField", "1234.5");
  const std::function<void()> openings[] = {
      [] { user::OpenMenu("File"); },
      [] { user::Key(Qt::Key_E, Qt::AltModifier); },
  };
  for (const auto& open : openings) {
    open();
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    while (QApplication::activePopupWidget() != nullptr) user::Key(Qt::Key_Escape);
    if (FocusName() == "") user::Key(Qt::Key_Escape);  // the bar keeps the keys at first
    EXPECT_EQ(Text("StartFundletField"), "1234.5");
    EXPECT_EQ(ThePlan().StartFundlet, 1000000.0);
    EXPECT_EQ(FocusName(), "StartFundletField");
  }
  QToolTip::showText({}, "tip");
  user::Settle();
  EXPECT_EQ(Text("StartFundletField"), "1234.5");
  user::Type("6");
  QWidget& field = Found("StartFundletField");
  QContextMenuEvent event(QContextMenuEvent::Keyboard, {5, 5}, field.mapToGlobal(QPoint(5, 5)));
  QCoreApplication::sendEvent(&field, &event);
  user::Settle();
  ASSERT_NE(QApplication::activePopupWidget(), nullptr);
  EXPECT_EQ(Text("StartFundletField"), "1234.56");
  QApplication::activePopupWidget()->close();
}

TEST_F(Fields, WhatWasTypedIsReadWhenTheWindowIsLeft) {
  Fill("StartFundletField", "1234.56");
  QWidget other;
  other.show();
  other.activateWindow();
  user::Settle();
  EXPECT_EQ(Text("StartFundletField"), "1,235");
  EXPECT_EQ(ThePlan().StartFundlet, 1234.56);
  Main().Native().activateWindow();
  user::Settle();
  EXPECT_EQ(FocusName(), "StartFundletField");
  EXPECT_EQ(Selected("StartFundletField"), "1,235");
}

TEST_F(Fields, ActivationsLeadBackToTheRefusedFieldUntilTheNextPress) {
  Fill("StartAgeField", "10");
  ExpectDialog(ByKey(Qt::Key_Escape));
  Calculate();
  const auto leave_and_return = [] {
    user::Key(Qt::Key_F1);
    user::Key(Qt::Key_Return);
  };
  Fill("COLAField", "1");
  leave_and_return();
  EXPECT_EQ(FocusName(), "StartAgeField");
  EXPECT_EQ(Text("COLAField"), "1.0");
  Calculate();
  Fill("COLAField", "2");
  leave_and_return();
  EXPECT_EQ(FocusName(), "COLAField");
}

TEST_F(Fields, AClickSelectsTheWholeTextAndTheNextOnePlacesTheCaret) {
  QWidget& field = Found("EndFundletField");
  user::Click(field, QPoint(6, 10));
  EXPECT_EQ(Selected("EndFundletField"), "100,000");
  user::Click(field, QPoint(2, 10));
  user::Type("9");
  EXPECT_EQ(Text("EndFundletField"), "9100,000");
}

}  // namespace
}  // namespace fundlet
