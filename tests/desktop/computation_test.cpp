#include <QTimer>

#include "services/background.h"
#include "tests/ui/window_fixture.h"
#include "ui/global_module.h"

namespace fundlet {
namespace {

// A window whose default button does what the test says.
class Bench : public Window {
 public:
  Bench() {
    Add<TextField>("Field", 10);
    Add<PushButton>("Go", 40).SetDefault(true);
    Add<PushButton>("Other", 70).Action = [this](PushButton&) { log.push_back("other"); };
    Add<ProgressWheel>("Wheel", 100);
    _AddMenuHandler("FileParams", [this] {
      log.push_back("shortcut");
      return true;
    });
  }
  void Event_Activate() override { log.push_back("activate"); }
  void Event_Close() override {
    log.push_back("close");
    Quit(0);
  }

  std::vector<std::string> log;

 private:
  template <typename Kind>
  Kind& Add(const char* name, int top) {
    _AddControl(name, std::make_unique<Kind>(*this));
    Kind& control = ControlOf<Kind>(name);
    control.SetTop(top);
    control.SetWidth(80);
    control.SetHeight(20);
    return control;
  }
};

class BenchTest : public DesktopTest {
 protected:
  void SetUp() override {
    StartWith([this] {
      bench_ = static_cast<Bench*>(&ImplicitInstance("Bench", [] {
        auto window = std::make_unique<Bench>();
        window->SetWidth(200);
        window->SetHeight(150);
        window->Open();
        window->Show();
        return window;
      }));
    });
    bench_->log.clear();
  }

  void Do(const std::function<void()>& action) {
    bench_->ControlOf<PushButton>("Go").Action = [=](PushButton&) { action(); };
    QTest::keyClick(bench_->Native().windowHandle(), Qt::Key_Return);
    user::Settle();
  }
  // A computation that yields until it is stopped; the events happen while it runs.
  void Compute(const std::function<void()>& events) {
    bool stopped = false;
    int running = 0;
    Do([&] {
      EXPECT_EQ(++running, 1);
      bench_->log.push_back("begin");
      if (!stopped)
        QTimer::singleShot(0, &bench_->Native(), [&] {
          events();
          QTimer::singleShot(0, &bench_->Native(), [&] { stopped = true; });
        });
      while (!stopped && !UserCancelled()) RuntimeBackgroundTask();
      cancelled_ = UserCancelled();
      bench_->log.push_back("end");
      --running;
      while (!stopped) QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    });
    bench_->ControlOf<PushButton>("Go").Action = nullptr;
  }
  QWindow* Native() { return bench_->Native().windowHandle(); }

  Bench* bench_ = nullptr;
  bool cancelled_ = false;
};

using Gate = BenchTest;
using HeldInput = BenchTest;
using Wheel = BenchTest;
using Log = std::vector<std::string>;

TEST_F(Gate, AnExceptionEndsInOneAlertAndTheProgramRunsOn) {
  bench_->ControlOf<PushButton>("Go").SetCaption("Start");
  const std::pair<std::function<void()>, const char*> cases[] = {
      {[] { throw NilObjectException("It has gone."); }, "It has gone."},
      {[] { throw std::bad_alloc(); },
       "There is not enough memory. Close other programs and try again."},
      {[] { throw std::out_of_range("at"); }, "The program met a fault of its own (at)."},
      {[] { throw 7; }, "The program met a fault of its own."},
  };
  for (const auto& [fault, reason] : cases) {
    ExpectDialog(ByKey(Qt::Key_Escape));
    Do(fault);
    EXPECT_EQ(TakeDialogs(), Log{"“Start” could not be carried out. " + std::string(reason)});
    EXPECT_EQ(bench_->log.back(), "activate");
    user::Type("x");
  }
  EXPECT_EQ(bench_->ControlOf<TextField>("Field").Text(), "xxxx");
}

TEST_F(Gate, ActivationComesAfterTheHandlerThatOpenedTheDialog) {
  ExpectDialog(ByButton());
  Do([this] {
    GlobalModule::AlertBox("one");
    bench_->log.push_back("returned");
    ExpectDialog(ByCloseBox());
    GlobalModule::AlertBox("two");
    bench_->log.push_back("end");
  });
  EXPECT_EQ(bench_->log, (Log{"returned", "end", "activate"}));
}

TEST_F(Gate, AWindowClosedDuringAComputationClosesAfterIt) {
  EXPECT_EQ(RunWith([this] { Compute([this] { Native()->close(); }); }), 0);
  EXPECT_EQ(bench_->log, (Log{"begin", "end", "close"}));
}

TEST_F(Gate, AKeyHeldDownActsOnce) {
  bench_->ControlOf<PushButton>("Go").Action = [this](PushButton&) { bench_->log.push_back("go"); };
  for (const bool repeated : {false, true}) {
    QTest::simulateEvent(Native(), true, Qt::Key_Return, {}, "\r", repeated, -1);
    QTest::simulateEvent(Native(), true, Qt::Key_P, Qt::ControlModifier, {}, repeated, -1);
    user::Settle();
  }
  EXPECT_EQ(bench_->log, (Log{"go", "shortcut"}));
}

TEST_F(HeldInput, ComesAfterTheComputationInItsOrderAndNeverInsideIt) {
  Compute([this] {
    QTest::keyClick(Native(), 'a');
    QTest::keyClick(Native(), Qt::Key_Return);
    QTest::keyClick(Native(), Qt::Key_P, Qt::ControlModifier);
    QTest::mouseClick(Native(), Qt::LeftButton, {},
                      Found("Other").mapTo(&bench_->Native(), QPoint(40, 10)));
    QTest::keyClick(Native(), 'b');
    EXPECT_EQ(bench_->ControlOf<TextField>("Field").Text(), "");
    EXPECT_EQ(bench_->log, Log{"begin"});
  });
  EXPECT_FALSE(cancelled_);
  const auto typed = [this] { return bench_->ControlOf<TextField>("Field").Text(); };
  EXPECT_TRUE(QTest::qWaitFor([&] { return typed() == "ab"; }));
  EXPECT_EQ(bench_->log, (Log{"begin", "end", "begin", "end", "shortcut", "other"}));
}

TEST_F(HeldInput, AShortcutThatIsHeldDownActsOnce) {
  Compute([this] {
    for (const bool repeated : {false, true, true}) {
      QKeyEvent press(QEvent::KeyPress, Qt::Key_P, Qt::ControlModifier, "\x10", repeated);
      QCoreApplication::sendEvent(Native(), &press);
    }
  });
  user::Settle();
  EXPECT_EQ(bench_->log, (Log{"begin", "end", "shortcut"}));
}

TEST_F(HeldInput, OnlyTheCancellingKeysCancelAndOnlyTheComputationThatRuns) {
  const std::tuple<Qt::Key, Qt::KeyboardModifiers, bool> cases[] = {
      {Qt::Key_Escape, Qt::NoModifier, true},     {Qt::Key_Period, Qt::ControlModifier, true},
      {Qt::Key_Escape, Qt::ShiftModifier, false}, {Qt::Key_Period, Qt::NoModifier, false},
      {Qt::Key_C, Qt::ControlModifier, false},    {Qt::Key_Space, Qt::NoModifier, false},
  };
  for (const auto& [key, modifiers, cancels] : cases) {
    Compute([&, k = key, m = modifiers] { QTest::keyClick(Native(), k, m); });
    EXPECT_EQ(cancelled_, cancels) << key;
  }
  Do([this] { cancelled_ = UserCancelled(); });
  EXPECT_FALSE(cancelled_);
}

TEST_F(Wheel, TurnsWhileAComputationYields) {
  QWidget& wheel = Found("Wheel");
  const QImage before = wheel.grab().toImage();
  bool turned = false;
  Do([&] {
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&] { turned = wheel.grab().toImage() != before; });
    look.start(5);
    QDeadlineTimer patience(20'000);
    while (!turned && !patience.hasExpired()) RuntimeBackgroundTask();
  });
  EXPECT_TRUE(turned);
}

TEST_F(Wheel, IsPaintedAwayBeforeAnythingElseHappens) {
  auto& wheel = bench_->ControlOf<ProgressWheel>("Wheel");
  const Paints paints(bench_->Native().Content());
  wheel.SetVisible(false);
  wheel.Refresh(true);
  EXPECT_EQ(paints.count, 1);
}

}  // namespace
}  // namespace fundlet
