#include <QContextMenuEvent>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTimer>

#include "desktop/base/run_state.h"
#include "desktop/base/screen.h"
#include "desktop/controls/push_button.h"
#include "desktop/controls/text_area.h"
#include "desktop/controls/text_field.h"
#include "services/background.h"
#include "tests/desktop/bare_window.h"

namespace fundlet {
namespace {

using Windows = BareWindow;
using Mouse = BareWindow;
using Dialogs = BareWindow;
using Yields = BareWindow;

TEST_F(Windows, ShowEachOfTheirProperties) {
  NativeWindow& native = window_->Native();
  const std::pair<const char*, Qt::WindowType> buttons[] = {
      {"CloseButton", Qt::WindowCloseButtonHint},
      {"MaximizeButton", Qt::WindowMaximizeButtonHint},
      {"MinimizeButton", Qt::WindowMinimizeButtonHint},
      {"FullScreenButton", Qt::WindowFullscreenButtonHint}};
  for (const auto& [name, hint] : buttons) {
    for (const bool present : {true, false}) {
      Set(*window_, {name, present});
      EXPECT_EQ(native.windowFlags().testFlag(hint), present) << name;
    }
  }
  Set(*window_, {"Title", "x"});
  EXPECT_EQ(native.windowTitle(), "x");
  Set(*window_, {"BackColor", Colour{1, 2, 3}});
  EXPECT_EQ(native.centralWidget()->palette().color(QPalette::Window).name(), "#010203");
  for (const bool painted : {true, false}) {
    Set(*window_, {"HasBackColor", painted});
    EXPECT_EQ(native.centralWidget()->autoFillBackground(), painted);
  }
  Set(*window_, {"Width", 301});
  Set(*window_, {"Height", 201});
  Set(*window_, {"Placement", 2});
  Set(*window_, {"MenuBarVisible", false});
  Show();
  EXPECT_EQ(native.Menus(), nullptr);
  EXPECT_EQ(native.Content().size(), QSize(301, 201));
  const Screen screen(0);
  EXPECT_EQ(window_->Left(), (screen.AvailableWidth() - 301) / 2);
  EXPECT_EQ(window_->Top(), (screen.AvailableHeight() - 201) / 2);
}

TEST_F(Windows, KeepTheirLimitsWhenTheUserResizesThem) {
  const Property own[] = {{"Width", 350},      {"Height", 250},   {"MinWidth", 300},
                          {"MinHeight", 200},  {"MaxWidth", 500}, {"MaxHeight", 400},
                          {"Resizeable", true}};
  for (const Property& property : own) Set(*window_, property);
  Show();
  EXPECT_EQ(window_->resizes, 0);
  const auto resized_to = [&](int width, int height) {
    window_->Native().resize(width, height);
    QCoreApplication::processEvents();
    EXPECT_EQ(window_->Native().Content().size(), QSize(window_->Width(), window_->Height()));
    return QSize(window_->Width(), window_->Height());
  };
  EXPECT_EQ(resized_to(9, 9), QSize(300, 200));
  EXPECT_EQ(resized_to(999, 999), QSize(500, 400));
  EXPECT_EQ(window_->resizes, 2);
  Set(*window_, {"Resizeable", false});
  EXPECT_EQ(resized_to(9, 9), QSize(500, 400));
  EXPECT_EQ(resized_to(999, 999), QSize(500, 400));
}

TEST_F(Windows, ReadAPageByLinesFromWhatIsSeenOfIt) {
  auto& area = Add<TextArea>("area");
  auto& page = static_cast<QPlainTextEdit&>(*area.Native());
  area.SetWidth(200);
  area.SetHeight(100);
  area.SetReadOnly(true);
  std::string lines;
  for (int line = 0; line < 100; ++line) lines += "line\r";
  area.SetText(lines);
  Show();
  area.SetFocus();
  const auto first_line = [&] { return page.verticalScrollBar()->value(); };
  Key(Qt::Key_Down);
  Key(Qt::Key_Down, Qt::KeypadModifier);
  EXPECT_EQ(first_line(), 2);
  EXPECT_EQ(page.textCursor().blockNumber(), 2);
  Key(Qt::Key_Up, Qt::KeypadModifier);
  EXPECT_EQ(first_line(), 1);
  Key(Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(first_line(), 1);
  EXPECT_EQ(area.SelLength(), 5);
  for (const Qt::Key key : {Qt::Key_Home, Qt::Key_Right, Qt::Key_PageDown}) {
    page.verticalScrollBar()->setValue(50);
    Key(key);
    EXPECT_GE(page.textCursor().blockNumber(), 50) << key;
    area.SetSelStart(0);
  }
  page.verticalScrollBar()->setValue(50);
  Key(Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(area.SelLength(), 500);
}

class Press : public Mouse {
 protected:
  void SetUp() override {
    Mouse::SetUp();
    field_ = &Add<TextField>("field");
    other_ = &Add<TextField>("other");
    field_->SetWidth(200);
    other_->SetTop(50);
    field_->SetText("123456");
    field_->GotFocus = [](TextField& field) {
      field.SetSelStart(0);
      field.SetSelLength(6);
    };
    Show();
  }
  void Begin(int x, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mousePress(Native(), button, {}, At(x));
  }
  void MoveTo(int x) { QTest::mouseMove(Native(), At(x)); }
  void End(int x, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseRelease(Native(), button, {}, At(x));
    QCoreApplication::processEvents();
  }
  QPoint At(int x) { return field_->Native()->mapTo(&window_->Native(), QPoint(x, 8)); }

  TextField* field_ = nullptr;
  TextField* other_ = nullptr;
};

TEST_F(Press, ThatBringsTheFocusSelectsTheWholeTextAndTheNextOneAPart) {
  other_->SetFocus();
  Begin(3);
  MoveTo(30);
  End(30);
  EXPECT_EQ(field_->SelLength(), 6);
  Begin(3);
  MoveTo(20);
  End(20);
  EXPECT_GT(field_->SelLength(), 0);
  EXPECT_LT(field_->SelLength(), 6);
  QTest::mouseDClick(Native(), Qt::LeftButton, {}, At(3));
  EXPECT_EQ(field_->SelLength(), 6);
  Begin(60);
  End(60);
  EXPECT_EQ(field_->SelLength(), 0);
}

TEST_F(Press, ThatOpensAMenuLeavesNothingForTheNextOne) {
  other_->SetFocus();
  Begin(3, Qt::RightButton);
  const QPoint place(3, 8);
  QContextMenuEvent menu(QContextMenuEvent::Mouse, place, field_->Native()->mapToGlobal(place));
  QCoreApplication::sendEvent(field_->Native(), &menu);
  Begin(3);
  End(3);
  EXPECT_EQ(field_->SelLength(), 0);
}

TEST_F(Dialogs, AreBroughtToTheFrontByAPressOrAKeyAndNothingElseHappens) {
  int pressed = 0;
  auto& button = Add<PushButton>("button");
  button.SetWidth(100);
  button.SetHeight(20);
  button.SetDefault(true);
  button.Action = [&](PushButton&) { ++pressed; };
  Show();
  const QPoint place = button.Native()->mapTo(&window_->Native(), QPoint(9, 9));
  const std::pair<std::function<void()>, bool> inputs[] = {
      {[&] { QTest::mouseClick(Native(), Qt::LeftButton, {}, place); }, true},
      {[&] { QTest::keyClick(Native(), Qt::Key_Return); }, true},
      {[&] { QTest::mouseMove(Native(), place); }, false},
  };
  QMessageBox box(&window_->Native());
  box.addButton(QMessageBox::Ok);
  QTimer::singleShot(0, &box, [&] {
    for (const auto& [input, raises] : inputs) {
      window_->Native().activateWindow();
      QCoreApplication::processEvents();
      EXPECT_EQ(QApplication::activeWindow(), &window_->Native());
      input();
      QCoreApplication::processEvents();
      EXPECT_EQ(QApplication::activeWindow() == &box, raises);
    }
    window_->activations = 0;
    box.reject();
  });
  Window::RunDialog(box, &*window_);
  QCoreApplication::processEvents();
  EXPECT_EQ(pressed, 0);
  EXPECT_EQ(window_->activations, 1);
  EXPECT_EQ(QApplication::activeWindow(), &window_->Native());
}

TEST_F(Yields, LetQtWorkEveryFewMilliseconds) {
  int turns = 0;
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, [&] { ++turns; });
  timer.start(0);
  QElapsedTimer clock;
  Gate().Enter("", [&] {
    clock.start();
    while (!clock.hasExpired(200)) RuntimeBackgroundTask();
  });
  EXPECT_GE(turns, 2);
  EXPECT_LE(turns, clock.elapsed() / 8 + 1);
}

}  // namespace
}  // namespace fundlet
