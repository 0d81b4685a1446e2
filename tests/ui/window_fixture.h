#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include "desktop/run/runtime.h"
#include "desktop/windows/native_window.h"
#include "tests/services/scratch_folder.h"
#include "ui/main_window.h"

namespace fundlet {

// The user's actions with keyboard and mouse. Each sends its events to a QWindow, so that Qt looks
// for shortcuts, moves the focus and opens popups as for real input, and returns when the program
// has processed every event that follows.
namespace user {

void Settle();                    // processes all pending events
void Press(const QString& keys);  // one after the other, such as "Ctrl+A Backspace"
void Type(const std::string& text);
void Replace(const std::string& text);                       // selects all, then types
void Click(QWidget& widget, std::optional<QPoint> at = {});  // at the middle by default
void Activate(const Window& window);
void CloseBox(QWidget& window);
// Activates a window that is not the program's, calls `meanwhile`, and activates the main window.
void VisitAnotherWindow(const std::function<void()>& meanwhile = [] {});
// Menus and items are given by the texts shown: a menu of the active window's menu bar, the context
// menu of the focused widget, an item of the open menu, and both in one.
void OpenMenu(const QString& menu);
void OpenContextMenu();
void Pick(const QString& item, const QString& subitem = "");
void Choose(const QString& menu, const QString& item, const QString& subitem = "");

}  // namespace user

// The widget with that object name in a visible window; std::runtime_error if there is none.
template <typename Widget = QWidget>
Widget& Found(const QString& name) {
  for (const QWidget* top : QApplication::topLevelWidgets()) {
    if (!top->isVisible()) continue;
    if (auto* widget = top->findChild<Widget*>(name)) return *widget;
  }
  throw std::runtime_error("no widget " + name.toStdString());
}
// Counts the paint events of a widget.
struct Paints : QObject {
  explicit Paints(QWidget& widget) { widget.installEventFilter(this); }
  bool eventFilter(QObject* /*object*/, QEvent* event) override {
    count += event->type() == QEvent::Paint ? 1 : 0;
    return false;
  }
  int count = 0;
};
std::ptrdiff_t VisibleWindows(const QString& title);
// The names of the enabled items for editing, after a menu update of that window.
std::string EnabledEditing(Window& window);
std::string FocusName();  // the focused widget's object name; empty if there is none

// Answers a dialog as the user would; user::CloseBox is one too.
using Answer = std::function<void(QWidget& dialog)>;
Answer ByKey(Qt::Key key);
Answer BySaving(
    const std::string& path);  // pastes the path into the save dialog and presses Return

// Runs the program on Qt's offscreen platform with an empty preferences folder. A dialog without an
// expected answer is closed and fails the test.
class FundletTest : public ::testing::Test {
 protected:
  FundletTest() {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("HOME", folder_.Path().string().c_str());
  }
  ~FundletTest() override {
    EXPECT_TRUE(expected_.empty()) << "an expected dialog was not shown";
    End();
  }

  void UseScreen(int width, int height);  // in pixels; to be called before Start
  void Start(const QString& system_font = "");
  // Runs the event loop, which calls `action` first, until Quit. Returns the exit status.
  int RunWith(const std::function<void()>& action) {
    QTimer::singleShot(0, watchdog_.get(), action);
    return runtime_->Run();
  }
  void End();  // ends the run and keeps the preferences folder for the next
  void ExpectDialog(Answer answer) { expected_.push_back(std::move(answer)); }
  void ForgetExpected() { expected_.clear(); }
  // Expects that the action shows this message alone, which is answered by Escape.
  void ExpectMessage(const std::function<void()>& action, const std::string& message) {
    ExpectDialog(ByKey(Qt::Key_Escape));
    action();
    EXPECT_EQ(TakeDialogs(), std::vector{message});
  }
  // Titles and texts of the dialogs since the last call, without the usual title "Fundlet".
  std::vector<std::string> TakeDialogs() { return std::exchange(shown_, {}); }

  static aFundletWindow& Main() { return aFundletWindow::Instance(); }
  static Plan& ThePlan() { return Main().ThePlan(); }
  static std::string Text(const QString& field) {
    return Found<QLineEdit>(field).text().toStdString();
  }
  static std::string Selected(const QString& field) {
    return Found<QLineEdit>(field).selectedText().toStdString();
  }
  static std::string Result() { return Main().AnnualDrawField().Text(); }
  // Moves the focus to the field by Tab and replaces its text by typing.
  static void Fill(const QString& field, const std::string& text) {
    for (int tab = 0; tab < 12 && FocusName() != field.toStdString(); ++tab) user::Press("Tab");
    user::Replace(text);
  }
  static void Calculate() { user::Press("Return"); }
  // Calculates with an age of 51 years, which is refused, and answers the message.
  void CalculateRefused(Answer answer = ByKey(Qt::Key_Escape)) {
    Fill("StartAgeField", "51");
    ExpectDialog(std::move(answer));
    Calculate();
  }

  ScratchFolder folder_;

 private:
  void Watch();

  std::optional<Runtime> runtime_;
  std::unique_ptr<QObject> watchdog_;
  std::deque<Answer> expected_;
  std::vector<std::string> shown_;
  QWidget* handled_ = nullptr;
};

// Starts the program with the default parameters.
class StartedTest : public FundletTest {
 protected:
  void SetUp() override { Start(); }
};

}  // namespace fundlet
