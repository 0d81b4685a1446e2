#include <QAccessible>
#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTest>

#include "desktop/native_window.h"
#include "services/background.h"
#include "tests/ui/window_fixture.h"
#include "ui/global_module.h"
#include "ui/help_window.h"

namespace fundlet {
namespace {

class Hand : public StartedTest {
 protected:
  static void Drop(QWidget& widget, const QString& text) {
    QMimeData data;
    data.setText(text);
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &enter);
    QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    if (enter.isAccepted()) QCoreApplication::sendEvent(&widget, &drop);
  }
  static void Paste(const QString& text) {
    QGuiApplication::clipboard()->setText(text);
    user::Key(Qt::Key_V, Qt::ControlModifier);
  }
  static void DoubleClick(QWidget& widget, QPoint at) {
    QWidget* window = widget.window();
    const QPoint place = widget.mapTo(window, at);
    QTest::mouseDClick(window->windowHandle(), Qt::LeftButton, {}, place);
    user::Settle();
  }
  static void Repeat(QWidget& window, Qt::Key key, Qt::KeyboardModifiers modifiers = {},
                     const QString& text = "") {
    for (const auto type : {QEvent::KeyRelease, QEvent::KeyPress}) {
      QKeyEvent event(type, key, modifiers, text, true);
      QCoreApplication::sendEvent(window.windowHandle(), &event);
    }
  }
};

// A repetition whose halves the toolkit takes for a release and a press of their own.
void RepeatUntold(QWidget& window, Qt::Key key) {
  constexpr quint32 kScanCode = 36;
  for (const auto type : {QEvent::KeyRelease, QEvent::KeyPress}) {
    QKeyEvent event(type, key, {}, kScanCode, 0, 0);
    event.setTimestamp(5);
    QCoreApplication::sendEvent(window.windowHandle(), &event);
  }
}

using HeldKey = Hand;
using HelpPage = Hand;
using AnEnd = FundletTest;
using ASmallScreen = FundletTest;

TEST_F(Hand, ADoubleClickSelectsTheWholeAmount) {
  for (const char* field : {"StartFundletField", "FundletAPRField"}) {
    for (const bool focused : {false, true}) {
      QWidget& widget = Found(field);
      if (focused) user::Click(widget);
      DoubleClick(widget, {widget.width() / 2, 10});
      EXPECT_EQ(Selected(field), Text(field));
    }
  }
  user::Type("25");
  EXPECT_EQ(Text("FundletAPRField"), "25");
}

TEST_F(Hand, APasteGoesInWholeOrNotAtAllByEveryRoad) {
  const auto by_context_menu = [] {
    QWidget& field = *QApplication::focusWidget();
    QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, field.mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(&field, &event);
    user::Settle();
    auto* menu = static_cast<QMenu*>(QApplication::activePopupWidget());
    for (QAction* action : menu->actions()) {
      if (action->text().remove('&') == "Paste") action->trigger();
    }
    menu->close();
    user::Settle();
  };
  const std::function<void()> roads[] = {
      [] { user::Key(Qt::Key_V, Qt::ControlModifier); },
      [] { user::Key(Qt::Key_Insert, Qt::ShiftModifier); },
      [] { user::Choose("Edit", "Paste"); },
      by_context_menu,
  };
  for (const auto& paste : roads) {
    Fill("SocialSecurityField", "7");
    user::Key(Qt::Key_A, Qt::ControlModifier);
    QGuiApplication::clipboard()->setText("1,234,567");
    paste();
    EXPECT_EQ(Text("SocialSecurityField"), "7");
    QGuiApplication::clipboard()->setText("\u202F 25,000\n");
    paste();
    EXPECT_EQ(Text("SocialSecurityField"), "25,000");
    user::Key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Text("SocialSecurityField"), "7");
  }
  Fill("StartFundletField", "");
  Paste("1,000,000,000");
  EXPECT_EQ(Text("StartFundletField"), "1000000000");
  user::Replace("");
  Paste("250");
  Repeat(Main().Native(), Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Text("StartFundletField"), "250");
}

TEST_F(Hand, ADropReplacesTheTextAndIsKeptByTheNextActivation) {
  QWidget& field = Found("FundletAPRField");
  Fill("FundletAPRField", "5.0");
  Drop(field, "3.46");
  EXPECT_EQ(Text("FundletAPRField"), "3.46");
  Drop(field, "3.4.6");
  EXPECT_EQ(Text("FundletAPRField"), "3.46");
  Fill("COLAField", "2");
  Drop(field, "4");
  EXPECT_EQ(FocusName(), "FundletAPRField");
  EXPECT_EQ(ThePlan().COLA, 0.02);
  QWidget other;
  other.show();
  other.activateWindow();
  user::Settle();
  Drop(field, " 4.5");
  user::Settle();
  other.close();
  Main().Native().activateWindow();
  user::Settle();
  EXPECT_EQ(Text("FundletAPRField"), "4.5");
  EXPECT_EQ(ThePlan().FundletAPR, 0.045);
}

TEST_F(Hand, TheLimitHoldsForWhatIsEnteredOverALongerTextAndUndoSurvives) {
  Fill("COLAField", "1.25");
  QInputMethodEvent commit;
  commit.setCommitString("34");
  QCoreApplication::sendEvent(&Found("COLAField"), &commit);
  EXPECT_EQ(Text("COLAField"), "1.25");
  Fill("StartFundletField", "");
  Main().StartFundletField().SetText("1,000,000,000");
  user::Key(Qt::Key_A, Qt::ControlModifier);
  Paste("123456789012");
  EXPECT_EQ(Text("StartFundletField"), "1,000,000,000");
  user::Key(Qt::Key_End);
  user::Key(Qt::Key_Backspace);
  user::Type("5");
  user::Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Text("StartFundletField"), "1,000,000,000");
  Fill("StartYearField", "");
  Main().StartYearField().SetText("😀😀😀");
  user::Type("12");
  EXPECT_EQ(Text("StartYearField"), "😀😀😀1");
}

TEST_F(Hand, AScreenReaderMeetsTheSameLimit) {
  QAccessibleInterface* field = QAccessible::queryAccessibleInterface(&Found("StartAgeField"));
  field->setText(QAccessible::Value, "400");
  EXPECT_EQ(Text("StartAgeField"), "65");
  field->setText(QAccessible::Value, "70");
  EXPECT_EQ(Text("StartAgeField"), "70");
}

TEST_F(Hand, ATextWithoutTheFocusIsSeenFromItsHead) {
  auto& field = Found<QLineEdit>("StartYearField");
  Fill("StartYearField", "1e99");
  user::Key(Qt::Key_Tab);
  EXPECT_GT(Text("StartYearField").size(), 15U);
  EXPECT_EQ(field.cursorPosition(), 0);
  Fill("StartFundletField", "1000000000");
  user::Key(Qt::Key_Tab);
  auto& money = Found<QLineEdit>("StartFundletField");
  EXPECT_EQ(Text("StartFundletField"), "1,000,000,000");
  EXPECT_LT(money.fontMetrics().horizontalAdvance(money.text()), money.width() - 4);
}

TEST_F(HeldKey, AnswersNoDialogButStillTypesAName) {
  const Answer only_by_a_fresh_key = [](QWidget& dialog) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape, Qt::Key_O, Qt::Key_Space}) {
      Repeat(dialog, key);
      RepeatUntold(dialog, key);
      EXPECT_TRUE(dialog.isVisible()) << key;
    }
    ByKey(Qt::Key_Escape)(dialog);
  };
  Fill("StartAgeField", "51");
  ExpectDialog(only_by_a_fresh_key);
  Calculate();
  ExpectDialog(only_by_a_fresh_key);
  user::Choose("File", "About Fundlet…");
  Fill("StartAgeField", "60");
  Calculate();
  ExpectDialog([&](QWidget& dialog) {
    auto* name = dialog.findChild<QLineEdit*>("fileNameEdit");
    name->setFocus();
    name->clear();
    Repeat(dialog, Qt::Key_X, {}, "x");
    EXPECT_EQ(name->text(), "x");
    if (QWidget* completer = QApplication::activePopupWidget()) completer->hide();
    only_by_a_fresh_key(dialog);
  });
  user::Key(Qt::Key_S, Qt::ControlModifier);
}

TEST_F(Hand, AMenuOpenedOverAMessageLeavesTheForcedValue) {
  Fill("StartAgeField", "51");
  ExpectDialog([](QWidget& dialog) {
    Main().Native().findChild<QMenu*>("EditMenu")->aboutToShow();
    ByKey(Qt::Key_Return)(dialog);
  });
  Calculate();
  EXPECT_EQ(Text("StartAgeField"), "52");
  user::Type("61");
  EXPECT_EQ(Text("StartAgeField"), "61");
}

TEST_F(HelpPage, IsFoundAsItWasLeftAndAPressPlacesTheCaretWhereItIs) {
  user::Key(Qt::Key_F1);
  auto& page = Found<QPlainTextEdit>("TextField");
  user::Key(Qt::Key_Down);
  EXPECT_EQ(page.verticalScrollBar()->value(), 1);
  EXPECT_EQ(page.textCursor().blockNumber(), 1);
  user::Key(Qt::Key_Tab);
  page.verticalScrollBar()->setValue(20);
  user::Click(*page.viewport(), {40, 100});
  EXPECT_EQ(page.verticalScrollBar()->value(), 20);
  EXPECT_TRUE(page.viewport()->rect().contains(page.cursorRect()));
  Main().Native().activateWindow();
  user::Settle();
  user::Key(Qt::Key_F1);
  EXPECT_EQ(page.verticalScrollBar()->value(), 20);
  user::Key(Qt::Key_Tab);
  user::Key(Qt::Key_Tab);
  EXPECT_EQ(page.textCursor().position(), 0);
  EXPECT_EQ(page.verticalScrollBar()->value(), 20);
  user::Key(Qt::Key_Up);
  EXPECT_EQ(page.verticalScrollBar()->value(), 19);
  EXPECT_TRUE(page.viewport()->rect().intersects(page.cursorRect()));
}

TEST_F(ASmallScreen, ShowsTheTitleBarOfTheHelpAndItsButton) {
  folder_.Write("screen", R"({"screens": [{"name": "small", "x": 0, "y": 0, "width": 683,
      "height": 384, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
  setenv("QT_QPA_PLATFORM", ("offscreen:configfile=" + folder_.Path().string() + "/screen").c_str(),
         1);
  Start();
  user::Key(Qt::Key_F1);
  const QRect help = GlobalModule::HelpWindow->Native().geometry();
  EXPECT_GT(help.top(), 20);
  EXPECT_LE(help.bottom(), 384);
  const QRect button = Found("DoneButton").geometry();
  EXPECT_EQ(button.top(), GlobalModule::HelpWindow->Height() - 35);
}

TEST_F(AnEnd, ThatTheDesktopAsksForEndsTheStartToo) {
  folder_.Write("Fundlet.Preferences", "x");
  ExpectDialog([](QWidget&) {
    QEvent quit(QEvent::Quit);
    QCoreApplication::sendEvent(qApp, &quit);
  });
  Start();
  EXPECT_EQ(Window::Front(), nullptr);
  for (const QWidget* top : QApplication::topLevelWidgets()) EXPECT_FALSE(top->isVisible());
  EXPECT_EQ(RunWith([] {}), 0);
}

}  // namespace
}  // namespace fundlet
