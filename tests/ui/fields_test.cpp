#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QPushButton>
#include <QToolTip>

#include "tests/ui/window_fixture.h"
#include "ui/global_module.h"
#include "ui/main_layout.h"

namespace fundlet {
namespace {

using Fields = StartedTest;
using FieldInput = StartedTest;
using HeldKey = StartedTest;

void Drop(QWidget& widget, const QString& text) {
  QMimeData data;
  data.setText(text);
  QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(&widget, &enter);
  QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  if (enter.isAccepted()) QCoreApplication::sendEvent(&widget, &drop);
}

// Sends a repeat of a held key, marked as such or as a release and a press at the same time.
void Repeat(QWidget& window, Qt::Key key, bool marked, Qt::KeyboardModifiers modifiers = {},
            const QString& text = "") {
  for (const auto type : {QEvent::KeyRelease, QEvent::KeyPress}) {
    QKeyEvent event(type, key, modifiers, marked ? 0 : 36, 0, 0, text, marked);
    event.setTimestamp(5);
    QCoreApplication::sendEvent(window.windowHandle(), &event);
  }
}

// Lets an input method compose the text over the whole text of the field.
void Compose(const QString& field, const QString& text) {
  user::Press("Ctrl+A");
  QInputMethodEvent composing(text, {});
  QCoreApplication::sendEvent(&Found(field), &composing);
}

TEST_F(Fields, SelectTheForcedValueAfterARefusalEvenIfAMenuWasOpened) {
  const std::tuple<const char*, const char*, const char*, Answer> refusals[] = {
      {"StartAgeField", "51", "52", ByKey(Qt::Key_Escape)},
      {"YearsLeftField", "41", "40", ByKey(Qt::Key_Return)},
      {"COLAField", "100", "99.99",
       [](QWidget& dialog) { user::Click(*dialog.findChild<QPushButton*>()); }},
      {"EndFundletField", "1000001", "0", user::CloseBox}};
  for (const auto& [field, typed, forced, answer] : refusals) {
    Fill(field, typed);
    ExpectDialog([&answer = answer](QWidget& dialog) {
      EXPECT_EQ(dynamic_cast<QMessageBox&>(dialog).icon(), QMessageBox::Warning);
      EXPECT_FALSE(dynamic_cast<QMessageBox&>(dialog).iconPixmap().isNull());
      Main().Native().findChild<QMenu*>("EditMenu")->aboutToShow();
      answer(dialog);
    });
    Calculate();
    EXPECT_EQ(FocusName(), field);
    EXPECT_EQ(Selected(field), forced);
  }
}

TEST_F(Fields, OpenTheHelpAndShowTheirValueOnceLeft) {
  for (const main_layout::FieldRow& row : main_layout::Fields()) {
    const QString field = QString::fromUtf8(row.field.data());
    Fill(field, "7.555");
    user::Press("F1");
    EXPECT_TRUE(GlobalModule::HelpShowing) << row.field;
    EXPECT_NE(Text(field), "7.555") << row.field;
    user::Press("Return");
    EXPECT_EQ(Selected(field), Text(field));
  }
}

TEST_F(Fields, RegainTheFocusAtActivationsUntilTheNextCalculation) {
  const std::function<void()> departures[] = {[] { user::Press("F1 Return"); },
                                              [] { user::VisitAnotherWindow(); }};
  CalculateRefused();
  for (const char* field : {"StartAgeField", "COLAField"}) {
    for (const auto& leave_and_return : departures) {
      Fill("COLAField", "1");
      leave_and_return();
      EXPECT_EQ(FocusName(), field);
      EXPECT_EQ(Text("COLAField"), "1.0");
    }
    Calculate();
  }
}

TEST_F(FieldInput, SelectsAllAtTheFirstClickAndAtADoubleClick) {
  QWidget& field = Found("EndFundletField");
  QWindow* window = field.window()->windowHandle();
  const QPoint head = field.mapTo(field.window(), QPoint(6, 10));
  for (const bool brings_focus : {true, false}) {
    QTest::mouseDClick(window, Qt::LeftButton, {}, head);
    user::Settle();
    QTest::mouseDClick(&field, Qt::LeftButton, {}, {6, 9});
    QTest::mouseMove(&field, {30, 9});
    QTest::mouseRelease(&field, Qt::LeftButton, {}, {30, 9});
    EXPECT_EQ(Selected("EndFundletField"), "100,000");
    if (brings_focus) user::Click(Found("StartYearField"));
    QTest::mousePress(window, Qt::LeftButton, {}, head);
    QTest::mouseMove(window, head + QPoint(20, 0));
    QTest::mouseRelease(window, Qt::LeftButton, {}, head + QPoint(20, 0));
    EXPECT_EQ(Selected("EndFundletField") == "100,000", brings_focus);
  }
}

TEST_F(FieldInput, AcceptsAPasteWholeOrNotAtAllAndIsNotLeftForAMenuOrAToolTip) {
  const std::function<void()> roads[] = {
      [] { user::Press("Ctrl+V"); },
      [] { user::Press("Alt+E Esc Alt Shift+Ins"); },
      [] { user::Choose("Edit", "Paste"); },
      [] {
        QToolTip::showText({}, "tip");
        user::OpenContextMenu();
        user::Pick("Paste");
      },
  };
  for (const auto& paste : roads) {
    Fill("SocialSecurityField", "7.5");
    user::Press("Ctrl+A");
    QGuiApplication::clipboard()->setText("1,234,567");
    paste();
    EXPECT_EQ(Selected("SocialSecurityField"), "7.5");
    QGuiApplication::clipboard()->setText("\u202F 25,000\n");
    paste();
    EXPECT_EQ(Text("SocialSecurityField"), "25,000");
    user::Press("Ctrl+Z");
    EXPECT_EQ(Text("SocialSecurityField"), "7.5");
  }
  QGuiApplication::clipboard()->setText("250");
  user::Press("Ctrl+A Ctrl+V");
  Repeat(Main().Native(), Qt::Key_V, true, Qt::ControlModifier);
  EXPECT_EQ(Text("SocialSecurityField"), "250");
  user::Press("Ctrl+A 7 Home Ctrl+V 1");
  EXPECT_EQ(Text("SocialSecurityField"), "25017") << "the caret stands behind the paste";
}

TEST_F(FieldInput, ReplacesTheTextByADropAndReadsIt) {
  QWidget& field = Found("FundletAPRField");
  Fill("COLAField", "3");
  Drop(field, "3.46");
  EXPECT_EQ(FocusName(), "FundletAPRField");
  EXPECT_EQ(ThePlan().COLA, 0.03);
  Drop(field, "3.4.6");
  EXPECT_EQ(Text("FundletAPRField"), "3.46");
  user::VisitAnotherWindow([&] { Drop(field, " 4.5"); });
  EXPECT_EQ(Text("FundletAPRField"), "4.5");
  EXPECT_EQ(ThePlan().FundletAPR, 0.045);
}

TEST_F(FieldInput, EntersWhatIsTypedWithinTheLimitUnlessItIsACommand) {
  const std::tuple<const char*, const char*, const char*, const char*> rows[] = {
      {"StartYearField", "12", "3 4 5 6", "1234"},
      {"StartYearField", "a😀b", "1 2", "a😀b1"},
      {"COLAField", "1", "Alt+S Alt+2 Meta+S Meta+2 Num+, Num+5", "1.5"},
      {"COLAField", "1", ", 5", "1,5"},
      {"StartFundletField", "1,000,000,000", "5", "1,000,000,000"},
      {"StartFundletField", "1,000,000,000", "Backspace 5", "1,000,000,00"},
      {"StartFundletField", "1,000,000,000", "Backspace 5 Ctrl+Z", "1,000,000,000"},
      {"StartFundletField", "1,000,000,000", "Backspace Backspace Backspace 5 6", "1,000,000,5"}};
  for (const auto& [field, given, keys, entered] : rows) {
    Fill(field, "");
    Main().ControlOf<TextField>(field).SetText(given);
    user::Press(QString("End ") + keys);
    EXPECT_EQ(Text(field), entered) << keys;
  }
  QGuiApplication::clipboard()->setText("123456789012");
  user::Press("Ctrl+A Ctrl+V");
  QInputMethodEvent commit;
  commit.setCommitString("123456789012");
  QCoreApplication::sendEvent(&Found("StartFundletField"), &commit);
  EXPECT_EQ(Text("StartFundletField"), "1,000,000,5") << "neither is a part of it entered";
}

TEST_F(FieldInput, IncludesACompositionForEveryCommand) {
  const std::function<void()> commands[] = {[] { user::Press("Ctrl+P"); },
                                            [] { user::Choose("File", "Remember Parameters"); },
                                            [] { user::Click(Found("SaveButton")); },
                                            [] { user::Press("F1"); },
                                            [] { user::VisitAnotherWindow(); },
                                            [] { user::OpenMenu("Edit"); }};
  for (const auto& command : commands) {
    Fill("COLAField", "3.25");
    Compose("COLAField", "7");
    command();
    EXPECT_EQ(ThePlan().COLA, 0.07);
    user::Press("Esc");
    user::Activate(Main());
  }
  Fill("COLAField", "3.25");
  Compose("COLAField", "123456");
  user::OpenMenu("Edit");
  user::Press("Esc");
  EXPECT_EQ(Selected("COLAField"), "3.25");
}

TEST_F(FieldInput, ShowsTheHeadOfTheTextOnceLeft) {
  Fill("StartYearField", "1e99");
  user::Press("Tab");
  EXPECT_GT(Text("StartYearField").size(), 15U);
  EXPECT_EQ(Found<QLineEdit>("StartYearField").cursorPosition(), 0);
  Fill("StartFundletField", "1000000000");
  user::Press("Tab");
  auto& money = Found<QLineEdit>("StartFundletField");
  EXPECT_LT(money.fontMetrics().horizontalAdvance(money.text()), money.width() - 4);
}

TEST_F(HeldKey, CalculatesNothingAndAnswersNoDialogButTypesAName) {
  const Answer only_by_a_fresh_key = [](QWidget& dialog) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape, Qt::Key_O, Qt::Key_Space}) {
      for (const bool marked : {true, false}) Repeat(dialog, key, marked);
      EXPECT_TRUE(dialog.isVisible()) << key;
    }
    ByKey(Qt::Key_Escape)(dialog);
  };
  Fill("StartAgeField", "51");
  for (const bool marked : {true, false}) Repeat(Main().Native(), Qt::Key_Return, marked);
  CalculateRefused(only_by_a_fresh_key);
  Calculate();
  QTest::simulateEvent(Main().Native().windowHandle(), true, Qt::Key_S, Qt::ControlModifier, {},
                       true, -1);
  user::Settle();
  ExpectDialog([&](QWidget& dialog) {
    auto& name = Found<QLineEdit>("fileNameEdit");
    name.setFocus();
    name.clear();
    Repeat(dialog, Qt::Key_X, true, {}, "x");
    QTest::keyClick(dialog.windowHandle(), Qt::Key_X, Qt::AltModifier);
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Comma, Qt::KeypadModifier);
    EXPECT_EQ(name.text(), "x,");
    EXPECT_EQ(name.completer(), nullptr);
    only_by_a_fresh_key(dialog);
  });
  user::Press("Ctrl+S");
}

}  // namespace
}  // namespace fundlet
