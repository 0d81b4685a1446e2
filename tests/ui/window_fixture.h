#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QTest>
#include <gtest/gtest.h>

#include "desktop/run/runtime.h"
#include "desktop/windows/native_window.h"
#include "tests/plan/focus_code_name.h"
#include "tests/services/scratch_folder.h"
#include "ui/main_window.h"

namespace fundlet {

// What a person does at the keyboard and with the mouse. Every event goes to a QWindow, so that
// shortcuts, focus and popups take their real way; each action returns when what follows from it is
// done.
namespace user {

void Settle();
void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
void Shortcut(Qt::Key key);  // with the control key
void Type(const std::string& text);
void Replace(const std::string& text);                       // selects all, then types
void Click(QWidget& widget, std::optional<QPoint> at = {});  // in its middle, where none is named
void Activate(const Window& window);
void CloseBox(QWidget& window);
// Goes to a window that is not the program's, and back.
void VisitAnotherWindow(const std::function<void()>& meanwhile = [] {});
// A menu on the active window's bar, or of the widget that has the focus, and an item of the open
// menu; texts are as shown.
void OpenMenu(const QString& menu);
void OpenContextMenu();
void Pick(const QString& item, const QString& subitem = "");
void Choose(const QString& menu, const QString& item, const QString& subitem = "");

}  // namespace user

// The widget of that object name in a visible window; the test ends where there is none.
template <typename Widget = QWidget>
Widget& Found(const QString& name) {
  for (const QWidget* top : QApplication::topLevelWidgets()) {
    if (!top->isVisible()) continue;
    if (auto* widget = top->findChild<Widget*>(name)) return *widget;
  }
  throw std::runtime_error("no widget " + name.toStdString());
}
// Counts how often a widget is painted.
struct Paints : QObject {
  explicit Paints(QWidget& widget) { widget.installEventFilter(this); }
  bool eventFilter(QObject* /*object*/, QEvent* event) override {
    count += event->type() == QEvent::Paint ? 1 : 0;
    return false;
  }
  int count = 0;
};
int VisibleWindows(const QString& title);
std::string FocusName();  // the object name of the widget that has the focus, empty for none

// How a person answers a dialog.
using Answer = std::function<void(QWidget& dialog)>;
Answer ByKey(Qt::Key key);
Answer ByButton();  // a click on its default button
Answer ByCloseBox();
Answer BySaving(const std::string& path);  // in the save dialog: pastes the path, presses Return

// The program on a desktop of its own, with a preferences folder of its own. A dialog that no test
// expects is closed and fails the test.
class FundletTest : public ::testing::Test {
 protected:
  FundletTest();
  ~FundletTest() override;

  void UseScreen(int width, int height);  // in pixels; to be called before Start
  void Start(const QString& system_font = "");
  // Runs the event loop with the action as its first event, until Quit; gives the exit status.
  int RunWith(const std::function<void()>& action);
  void End();  // ends the run; the preferences folder stays
  void ExpectDialog(Answer answer) { expected_.push_back(std::move(answer)); }
  void ForgetExpected() { expected_.clear(); }
  std::vector<std::string> TakeDialogs();  // the texts of those shown since the last call

  static aFundletWindow& Main() { return aFundletWindow::Instance(); }
  static Plan& ThePlan() { return Main().ThePlan(); }
  static std::string Text(const QString& field) {
    return Found<QLineEdit>(field).text().toStdString();
  }
  static std::string Selected(const QString& field) {
    return Found<QLineEdit>(field).selectedText().toStdString();
  }
  static std::string Result() { return Main().AnnualDrawField().Text(); }
  // Goes to the field by Tab and types over what it holds.
  static void Fill(const QString& field, const std::string& text);
  static void Calculate() { user::Key(Qt::Key_Return); }
  void CalculateRefused(Answer answer = ByKey(Qt::Key_Escape));  // for an age of 51 years

  ScratchFolder folder_;

 private:
  void Watch();
  void Handle(QWidget& dialog);

  std::optional<Runtime> runtime_;
  std::unique_ptr<QObject> watchdog_;
  std::deque<Answer> expected_;
  std::vector<std::string> shown_;
  QWidget* handled_ = nullptr;
};

// A program already started, with the defaults.
class StartedTest : public FundletTest {
 protected:
  void SetUp() override { Start(); }
};

}  // namespace fundlet
