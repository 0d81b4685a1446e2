#include <iterator>
#include <random>

#include "tests/ui/window_fixture.h"
#include "ui/global_module.h"
#include "ui/help_window.h"

namespace fundlet {
namespace {

constexpr const char* kTexts[] = {"5", "0", ".", ",", "-", "99.99", "12", "1e9", "x", "67"};
constexpr Qt::Key kKeys[] = {Qt::Key_Tab,   Qt::Key_Tab,    Qt::Key_Backspace, Qt::Key_Return,
                             Qt::Key_Space, Qt::Key_Escape, Qt::Key_Left,      Qt::Key_Delete};
constexpr std::string_view kLetters = "SPRZXCVAE248";
constexpr const char* kControls[] = {"StartAgeField",   "YearsLeftField",  "FundletAPRField",
                                     "EndFundletField", "CalculateButton", "PrintButton",
                                     "SaveButton",      "RestoreButton",   "AnnualDrawField"};

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

  static void TypeAPlanThatPasses() {
    if (HelpInFront()) return;
    Fill("StartYearField", "");
    for (const char* text : {"2020", "60", "20", "2", "500000", "5", "1000", "0"}) {
      user::Type(text);
      user::Key(Qt::Key_Tab);
    }
  }
  static void CloseHelp() {
    if (GlobalModule::HelpShowing) user::CloseBox(GlobalModule::HelpWindow->Native());
  }
  void ChooseItem() {
    static const QStringList menus[] = {
        {"File", "Save Schedule", "Remember Parameters", "Recall Parameters", "About Fundlet…"},
        {"Edit", "Undo", "Cut", "Copy", "Paste", "Clear"},
        {"Help", "Fundlet Help…"}};
    const QStringList& menu = OneOf(menus);
    user::Choose(menu.front(), OneOf(menu.mid(1)));
  }
  void Step() {
    const std::function<void()> steps[] = {
        [this] { user::Type(OneOf(kTexts)); },
        [this] { user::Key(OneOf(kKeys)); },
        [this] { user::Shortcut(static_cast<Qt::Key>(OneOf(kLetters))); },
        [this] { ChooseItem(); },
        [this] { user::Click(Found(OneOf(kControls))); },
        [] { user::VisitAnotherWindow(); },
        &CloseHelp,
        &TypeAPlanThatPasses,
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
    if (!HelpInFront()) {
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
