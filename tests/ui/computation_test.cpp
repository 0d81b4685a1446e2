#include <QTimer>

#include "services/background.h"
#include "tests/ui/window_fixture.h"
#include "ui/global_module.h"
#include "ui/help_window.h"

namespace fundlet {

using Log = std::vector<std::string>;

// The program with an action of the test in place of calculating.
class Computation : public StartedTest {
 protected:
  static void Do(const std::function<void()>& action) {
    Main().CalculateButton().Action = [=](PushButton&) { action(); };
    Calculate();
  }
  // Runs a computation that yields, calls `events` while it runs, and then stops it.
  void Compute(const std::function<void()>& events) {
    bool stopped = false;
    Do([&] {
      log_.push_back("begin");
      if (!stopped)
        QTimer::singleShot(0, qApp, [&] {
          events();
          QTimer::singleShot(0, qApp, [&] { stopped = true; });
        });
      while (!stopped && !UserCancelled()) RuntimeBackgroundTask();
      cancelled_ = UserCancelled();
      log_.push_back(Main().IsOpen() ? "end" : "closed");
      while (!stopped) QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    });
    Main().CalculateButton().Action = nullptr;
  }
  // Taps the middle of a widget with a finger.
  static void Tap(QWidget& widget) {
    static QPointingDevice* const screen = QTest::createTouchDevice();
    const QPoint middle = widget.mapTo(widget.window(), widget.rect().center());
    QTest::touchEvent(widget.window()->windowHandle(), screen).press(0, middle);
    QTest::touchEvent(widget.window()->windowHandle(), screen).release(0, middle);
  }
  static QWindow* Native() { return Main().Native().windowHandle(); }

  Log log_;
  bool cancelled_ = false;
};

using Gate = Computation;
using HeldInput = Computation;
using Wheel = Computation;

TEST_F(Gate, ReportsAnExceptionOnceAndGoesOn) {
  const std::pair<std::function<void()>, const char*> cases[] = {
      {[] { throw NilObjectException("It has gone."); }, "It has gone."},
      {[] { throw std::bad_alloc(); },
       "There is not enough memory. Close other programs and try again."},
      {[] { throw std::out_of_range("at"); }, "The program met a fault of its own (at)."},
      {[] { throw 7; }, "The program met a fault of its own."}};
  for (const auto& [fault, reason] : cases) {
    ExpectMessage([&fault = fault] { Do(fault); },
                  "“Calculate Annual Draw” could not be carried out. " + std::string(reason));
    user::Type("x");
    EXPECT_EQ(Text("StartYearField"), "x");
  }
}

TEST_F(Gate, ClosesAWindowAfterTheComputation) {
  EXPECT_EQ(RunWith([this] { Compute([this] { Native()->close(); }); }), 0);
  EXPECT_EQ(log_, (Log{"begin", "end"}));
  EXPECT_FALSE(Main().IsOpen());
}

TEST_F(HeldInput, IsDeliveredInOrderAfterTheComputation) {
  Main().SaveButton().Action = [this](PushButton&) { log_.push_back("other"); };
  Main()._AddMenuHandler("FileParams", [this] {
    log_.push_back("shortcut");
    return true;
  });
  user::Replace("");
  Compute([this] {
    QTest::keyClick(Native(), 'a');
    QTest::keyClick(Native(), Qt::Key_Return);
    for (const bool held : {false, true, true}) {
      QKeyEvent press(QEvent::KeyPress, Qt::Key_P, Qt::ControlModifier, "\x10", held);
      QCoreApplication::sendEvent(Native(), &press);
    }
    QTest::mouseClick(Native(), Qt::LeftButton, {},
                      Found("SaveButton").mapTo(&Main().Native(), QPoint(40, 10)));
    Tap(Found("SaveButton"));
    QTest::keyClick(Native(), 'b');
    EXPECT_EQ(Text("StartYearField"), "");
    EXPECT_EQ(log_, Log{"begin"});
  });
  EXPECT_TRUE(QTest::qWaitFor([] { return Text("StartYearField") == "ab"; }));
  EXPECT_EQ(log_, (Log{"begin", "end", "begin", "end", "shortcut", "other", "other"}));
}

TEST_F(HeldInput, IncludesATouchOfTheHelpText) {
  user::Press("F1 Tab");
  user::Activate(Main());
  aHelpWindow& help = *GlobalModule::HelpWindow;
  help.TextField().GotFocus = [this](TextArea&) { log_.push_back("touched"); };
  Compute([&] {
    user::Activate(help);
    Tap(*Found<QPlainTextEdit>("TextField").viewport());
    user::Settle();
    EXPECT_EQ(log_, Log{"begin"});
  });
  EXPECT_TRUE(QTest::qWaitFor([&] { return log_.back() == "touched"; }));
}

TEST_F(HeldInput, LetsTheCancelKeysAloneActAtOnce) {
  const std::pair<const char*, bool> cases[] = {
      {"Esc", true}, {"Ctrl+.", true}, {"Shift+Esc", false}, {".", false}, {"Ctrl+Shift+.", true}};
  for (const auto& [key, cancels] : cases) {
    Compute([&, k = key] { user::Press(k); });
    EXPECT_EQ(cancelled_, cancels) << key;
  }
}

TEST_F(Wheel, TurnsWhileAComputationYields) {
  QWidget& wheel = Found("Windmill");
  Main().Windmill().SetVisible(true);
  const QImage before = wheel.grab().toImage();
  Do([&] {
    const QDeadlineTimer patience(20'000);
    while (wheel.grab().toImage() == before) {
      ASSERT_FALSE(patience.hasExpired());
      for (int count = 0; count < 100'000; ++count) RuntimeBackgroundTask();
    }
  });
  const Paints paints(Main().Native().Content());
  Main().Windmill().SetVisible(false);
  Main().Windmill().Refresh(true);
  EXPECT_EQ(paints.count, 1) << "it disappears at once";
}

}  // namespace fundlet
