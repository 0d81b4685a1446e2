#include <QDate>
#include <QScreen>

#include "desktop/native_window.h"
#include "tests/ui/window_fixture.h"
#include "ui/main_layout.h"

namespace fundlet {
namespace {

using MainWindow = StartedTest;

TEST_F(MainWindow, HasEveryControlInItsPlaceAndNoneOnAnother) {
  QWidget& content = Main().Native().Content();
  EXPECT_EQ(content.size(), QSize(740, 220));
  EXPECT_EQ(content.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly).size(), 28);
  QRegion taken;
  for (const main_layout::ControlRow& row : main_layout::Controls()) {
    const QWidget& widget = *Main()._ControlByName(row.name).Native();
    EXPECT_EQ(widget.geometry(), QRect(row.left, row.top, row.width, row.height)) << row.name;
    EXPECT_FALSE(taken.intersects(widget.geometry())) << row.name;
    EXPECT_EQ(widget.isVisible(), row.name != "Windmill");
    EXPECT_EQ(widget.isEnabled(), row.name != "PrintButton");
    const auto alignment = widget.property("alignment").value<Qt::Alignment>();
    const bool right = row.text == "99.99" || row.name == "AnnualDrawField";
    EXPECT_EQ(alignment.testFlag(Qt::AlignRight), right) << row.name;
    taken += widget.geometry();
  }
  const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
  EXPECT_EQ(Main().Left(), (screen.width() - 740) / 2);
  EXPECT_EQ(Main().Top(), (screen.height() - 220 - 24) / 2);
  EXPECT_EQ(Text("StartYearField"), QDate::currentDate().toString("yyyy").toStdString());
  EXPECT_EQ(FocusName(), "StartYearField");
  EXPECT_EQ(Selected("StartYearField"), Text("StartYearField"));
}

TEST_F(MainWindow, TabGoesByTheTabIndexAndLeavesTheDimmedButtonOut) {
  std::vector<std::string> order = {"StartYearField",      "StartAgeField",     "YearsLeftField",
                                    "COLAField",           "StartFundletField", "FundletAPRField",
                                    "SocialSecurityField", "EndFundletField",   "CalculateButton",
                                    "SaveButton",          "RestoreButton"};
  for (const bool solved : {false, true}) {
    if (solved) {
      Calculate();
      order.insert(order.end() - 1, "PrintButton");
    }
    for (const std::string& name : order) {
      EXPECT_EQ(FocusName(), name);
      user::Key(Qt::Key_Tab);
    }
    for (auto name = order.rbegin(); name != order.rend(); ++name) {
      user::Key(Qt::Key_Backtab, Qt::ShiftModifier);
      EXPECT_EQ(FocusName(), *name);
    }
  }
}

TEST_F(MainWindow, ReturnSolvesTheDefaultPlanAndGoesBackToTheField) {
  Paints wheel(Found("Windmill"));
  Fill("StartFundletField", "1000000");
  Calculate();
  EXPECT_EQ(Result(), "Initial Year Draw:  $73,325");
  EXPECT_EQ(FocusName(), "StartFundletField");
  EXPECT_EQ(Selected("StartFundletField"), "1,000,000");
  EXPECT_TRUE(Found("PrintButton").isEnabled());
  EXPECT_GT(wheel.count, 0);
  EXPECT_FALSE(Main().Windmill().Visible());
  Fill("YearsLeftField", "28");
  user::Click(Found("CalculateButton"));
  EXPECT_EQ(FocusName(), "YearsLeftField");
  const std::string result = Result();
  EXPECT_NE(result, "Initial Year Draw:  $73,325");
  Fill("StartAgeField", "1");
  ExpectDialog(ByKey(Qt::Key_Return));
  Calculate();
  user::VisitAnotherWindow(Main().Native());
  EXPECT_EQ(Result(), result);
  EXPECT_TRUE(Found("PrintButton").isEnabled());
}

TEST_F(MainWindow, APlanThatCannotBeSolvedIsToldAndTheNextOneSolves) {
  Calculate();
  Fill("YearsLeftField", "34");
  Fill("FundletAPRField", "90");
  ExpectDialog(ByKey(Qt::Key_Return));
  Calculate();
  EXPECT_EQ(TakeDialogs(),
            (std::vector<std::string>{"Unable to calculate annual draw with these parameters."}));
  EXPECT_EQ(Result(), "Initial Year Draw:  $0");
  EXPECT_FALSE(Found("PrintButton").isEnabled());
  EXPECT_EQ(FocusName(), "FundletAPRField");
  Fill("FundletAPRField", "5");
  Fill("YearsLeftField", "27");
  Calculate();
  EXPECT_EQ(Result(), "Initial Year Draw:  $73,325");
  EXPECT_TRUE(Found("PrintButton").isEnabled());
}

}  // namespace
}  // namespace fundlet
