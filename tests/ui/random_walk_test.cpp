#include <iterator>
#include <random>

#include "tests/ui/window_fixture.h"
#include "ui/global_module.h"
#include "ui/help_window.h"

namespace fundlet {
namespace {

class RandomWalk : public StartedTest {
 protected:
  int Below(int limit) { return std::uniform_int_distribution(0, limit - 1)(random_); }
  template <typename Range>
  const auto& OneOf(const Range& range) {
    return range[static_cast<std::size_t>(Below(static_cast<int>(std::size(range))))];
  }

  static bool HelpInFront() {
    return QApplication::activeWindow()->windowTitle() == "Fundlet Help";
  }

  void TypeSomething() {
    constexpr const char* kTexts[] = {"5", "0", ".", ",", "-", "99.99", "12", "1e9", "x", "67"};
    user::Type(OneOf(kTexts));
  }
  void PressKey() {
    constexpr Qt::Key kKeys[] = {Qt::Key_Tab,   Qt::Key_Tab,    Qt::Key_Backspace, Qt::Key_Return,
                                 Qt::Key_Space, Qt::Key_Escape, Qt::Key_Left,      Qt::Key_Delete};
    user::Key(OneOf(kKeys));
  }
  void PressShortcut() {
    constexpr char kLetters[] = {'S', 'P', 'R', 'Z', 'X', 'C', 'V', 'A', 'E', '2', '4', '8'};
    user::Key(static_cast<Qt::Key>(OneOf(kLetters)), Qt::ControlModifier);
  }
  void ChooseItem() {
    constexpr const char* kFile[] = {"Save Schedule", "Remember Parameters", "Recall Parameters",
                                     "About Fundlet…"};
    constexpr const char* kEdit[] = {"Undo", "Cut", "Copy", "Paste", "Clear"};
    switch (Below(3)) {
      case 0:
        return user::Choose("File", OneOf(kFile));
      case 1:
        return user::Choose("Edit", OneOf(kEdit));
      default:
        return user::Choose("Help", "Fundlet Help…");
    }
  }
  void ClickSomewhere() {
    constexpr const char* kControls[] = {"StartAgeField",   "YearsLeftField",  "FundletAPRField",
                                         "EndFundletField", "CalculateButton", "PrintButton",
                                         "SaveButton",      "RestoreButton",   "AnnualDrawField"};
    user::Click(Found(OneOf(kControls)));
  }
  void SwitchWindow() {
    if (GlobalModule::HelpShowing && Below(2) == 0) {
      user::CloseBox(GlobalModule::HelpWindow->Native());
    } else {
      user::VisitAnotherWindow();
    }
  }
  void TypeAPlanThatPasses() {
    if (HelpInFront()) return;
    const char* plan[] = {"2020", "60", "20", "2", "500000", "5", "1000", "0"};
    Fill("StartYearField", plan[0]);
    for (int field = 1; field < 8; ++field) {
      user::Key(Qt::Key_Tab);
      user::Type(plan[field]);
    }
  }
  void Step() {
    const int kind = Below(20);
    if (kind < 6) return TypeSomething();
    if (kind < 11) return PressKey();
    if (kind < 14) return PressShortcut();
    if (kind < 16) return ChooseItem();
    if (kind < 18) return ClickSomewhere();
    return kind == 18 ? SwitchWindow() : TypeAPlanThatPasses();
  }
  void AnswerAnyDialog() {
    ExpectDialog([this](QWidget& dialog) {
      AnswerAnyDialog();
      const bool saving = dialog.windowTitle() == "Save" && Below(2) == 0;
      const Answer answers[] = {ByKey(Qt::Key_Escape), ByCloseBox()};
      saving ? BySaving(folder_.Path() / ("plan" + std::to_string(saved_++)))(dialog)
             : OneOf(answers)(dialog);
    });
  }
  void Check() {
    const Plan& plan = ThePlan();
    ASSERT_FALSE(plan.Balance.empty() || plan.Drawing.empty() || plan.Surviving.empty());
    int help_windows = 0;
    for (const QWidget* top : QApplication::topLevelWidgets()) {
      help_windows += top->isVisible() && top->windowTitle() == "Fundlet Help" ? 1 : 0;
    }
    ASSERT_EQ(help_windows, GlobalModule::HelpShowing ? 1 : 0);
    ASSERT_EQ(Main().PrintButton().Enabled(), plan.OKtoPrint);
    if (!HelpInFront()) {
      Main().EnableMenuItems();
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

TEST_F(RandomWalk, LeavesTheProgramWholeAfterEveryStep) {
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
  if (GlobalModule::HelpShowing) user::CloseBox(GlobalModule::HelpWindow->Native());
  TypeAPlanThatPasses();
  Calculate();
  EXPECT_TRUE(ThePlan().OKtoPrint);
}

}  // namespace
}  // namespace fundlet
