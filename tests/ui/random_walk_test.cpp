#include <iterator>
#include <random>

#include "tests/ui/window_fixture.h"
#include "ui/global_module.h"
#include "ui/help_window.h"

namespace fundlet {

constexpr const char* kKeys[] = {
    "5",      "0",      ".",      ",",      "-",      "1 e 9",     "6 7",    "x",      "Tab",
    "Return", "Space",  "Esc",    "Left",   "Del",    "Backspace", "Ctrl+S", "Ctrl+P", "Ctrl+R",
    "Ctrl+Z", "Ctrl+X", "Ctrl+C", "Ctrl+V", "Ctrl+A", "Ctrl+E",    "Ctrl+2", "Ctrl+4", "Ctrl+8"};
constexpr const char* kControls[] = {"StartAgeField", "EndFundletField", "CalculateButton",
                                     "PrintButton",   "RestoreButton",   "AnnualDrawField"};

class RandomWalk : public StartedTest {
 protected:
  template <typename Range>
  const auto& OneOf(const Range& range) {
    return range[std::uniform_int_distribution<std::size_t>(0, std::size(range) - 1)(random_)];
  }
  void AnswerAnyDialog() {
    ExpectDialog([this](QWidget& dialog) {
      AnswerAnyDialog();
      const bool saves =
          dialog.windowTitle() == "Save" && qobject_cast<QMessageBox*>(&dialog) == nullptr;
      const Answer answers[] = {
          ByKey(Qt::Key_Escape), user::CloseBox,
          saves ? BySaving((folder_.Path() / "plan").string()) : user::CloseBox};
      OneOf(answers)(dialog);
    });
  }

  std::mt19937 random_{20'260'101};
};

TEST_F(RandomWalk, KeepsTheInvariantsAtEveryStep) {
  const std::function<void()> steps[] = {[this] { user::Press(OneOf(kKeys)); },
                                         [this] { user::Press(OneOf(kKeys)); },
                                         [this] { user::Click(Found(OneOf(kControls))); },
                                         [] { user::Choose("File", "About Fundlet…"); },
                                         [] { user::Choose("Edit", "Paste"); },
                                         [] { user::VisitAnotherWindow(); },
                                         [] {
                                           if (GlobalModule::HelpShowing)
                                             user::CloseBox(GlobalModule::HelpWindow->Native());
                                         }};
  int solved = 0;
  AnswerAnyDialog();
  for (int step = 0; step < 3000; ++step) {
    SCOPED_TRACE("step " + std::to_string(step));
    OneOf(steps)();
    ASSERT_EQ(VisibleWindows("Fundlet Help"), GlobalModule::HelpShowing ? 1 : 0);
    ASSERT_EQ(Main().PrintButton().Enabled(), ThePlan().OKtoPrint);
    ASSERT_FALSE(Main().Windmill().Visible());
    ASSERT_EQ(QApplication::activePopupWidget(), nullptr);
    solved += ThePlan().OKtoPrint ? 1 : 0;
  }
  EXPECT_GT(solved, 100);
  ForgetExpected();
}

}  // namespace fundlet
