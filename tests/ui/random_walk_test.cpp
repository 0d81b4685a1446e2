#include <iterator>
#include <random>

#include "tests/ui/window_fixture.h"
#include "ui/global_module.h"
#include "ui/help_window.h"

namespace fundlet {
namespace {

constexpr const char* kTexts[] = {"5", "0", ".", ",", "-", "99.99", "12", "1e9", "x", "67"};
constexpr const char* kKeys[] = {"Tab",    "Tab",    "Backspace", "Return", "Space",
                                 "Esc",    "Left",   "Del",       "Ctrl+S", "Ctrl+P",
                                 "Ctrl+R", "Ctrl+Z", "Ctrl+X",    "Ctrl+C", "Ctrl+V",
                                 "Ctrl+A", "Ctrl+E", "Ctrl+2",    "Ctrl+4", "Ctrl+8"};
constexpr const char* kItems[] = {
    "File/Recall Parameters", "File/About Fundlet…", "Edit/Undo", "Edit/Cut", "Edit/Paste",
    "Help/Fundlet Help…"};
constexpr const char* kControls[] = {"StartAgeField", "EndFundletField", "CalculateButton",
                                     "PrintButton",   "RestoreButton",   "AnnualDrawField"};

class RandomWalk : public StartedTest {
 protected:
  int Below(int limit) { return std::uniform_int_distribution(0, limit - 1)(random_); }
  template <typename Range>
  const auto& OneOf(const Range& range) {
    return range[static_cast<std::size_t>(Below(static_cast<int>(std::size(range))))];
  }

  static void CloseHelp() {
    if (GlobalModule::HelpShowing) user::CloseBox(GlobalModule::HelpWindow->Native());
  }
  void ChooseItem() {
    const QString path = OneOf(kItems);
    user::Choose(path.section('/', 0, 0), path.section('/', 1));
  }
  void Step() {
    const std::function<void()> steps[] = {
        [this] { user::Type(OneOf(kTexts)); },
        [this] { user::Press(OneOf(kKeys)); },
        [this] { ChooseItem(); },
        [this] { user::Click(Found(OneOf(kControls))); },
        [] { user::VisitAnotherWindow(); },
        &CloseHelp,
    };
    OneOf(steps)();
  }
  void AnswerAnyDialog() {
    ExpectDialog([this](QWidget& dialog) {
      AnswerAnyDialog();
      const bool saving = dialog.windowTitle() == "Save" && Below(2) == 0;
      const Answer answers[] = {ByKey(Qt::Key_Escape), ByCloseBox()};
      saving ? BySaving((folder_.Path() / ("plan" + std::to_string(saved_++))).string())(dialog)
             : OneOf(answers)(dialog);
    });
  }
  void Check() {
    const Plan& plan = ThePlan();
    ASSERT_FALSE(plan.Balance.empty() || plan.Drawing.empty() || plan.Surviving.empty());
    ASSERT_EQ(VisibleWindows("Fundlet Help"), GlobalModule::HelpShowing ? 1 : 0);
    ASSERT_EQ(Main().PrintButton().Enabled(), plan.OKtoPrint);
    if (Window::Front() == &Main()) {
      Main().UpdateMenuItems();
      ASSERT_EQ(Main().FileSave().Enabled(), plan.OKtoPrint);
    }
    ASSERT_FALSE(Main().Windmill().Visible());
    ASSERT_EQ(QApplication::activePopupWidget(), nullptr);
    ASSERT_TRUE(Main().IsOpen());
  }

  unsigned seed_ = 20'260'101;
  std::mt19937 random_{seed_};
  int saved_ = 0;
};

TEST_F(RandomWalk, KeepsTheInvariantsAtEveryStep) {
  constexpr int kSteps = 3000;
  int solved = 0;
  AnswerAnyDialog();
  for (int step = 0; step < kSteps; ++step) {
    SCOPED_TRACE("seed " + std::to_string(seed_) + ", step " + std::to_string(step));
    Step();
    ASSERT_NO_FATAL_FAILURE(Check());
    solved += ThePlan().OKtoPrint ? 1 : 0;
  }
  EXPECT_GT(solved, 100);
  EXPECT_GT(saved_, 0);
  ForgetExpected();
}

}  // namespace
}  // namespace fundlet
