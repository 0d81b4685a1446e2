#include <QDate>
#include <QVariant>

#include "desktop/native_window.h"
#include "tests/ui/window_fixture.h"

namespace fundlet {
namespace {

struct Place {
  const char* name;
  const char* text;
  int left, top, width, height, tab_index;
};

// Of each class some: the whole table is the layout's.
constexpr Place kPlaces[] = {
    {"StartYearField", "", 128, 22, 39, 20, 1},
    {"StaticText4", "Life Expectancy:", 387, 22, 100, 20, 5},
    {"COLAField", "2.0", 658, 22, 44, 20, 9},
    {"Separator2", "", 20, 116, 690, 4, 19},
    {"CalculateButton", "Calculate Annual Draw", 288, 140, 164, 20, 22},
    {"AnnualDrawField", "Initial Year Draw:  $0", 490, 137, 212, 20, 24},
    {"Windmill", "", 469, 141, 16, 16, 24},
    {"PrintButton", "Save Schedule", 288, 180, 164, 20, 26},
};

using MainWindow = StartedTest;

TEST_F(MainWindow, HasEveryControlInItsPlaceShowingThePlan) {
  QWidget& content = Main().Native().Content();
  EXPECT_EQ(content.size(), QSize(740, 220));
  EXPECT_EQ(content.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly).size(), 28);
  for (const Place& place : kPlaces) {
    SCOPED_TRACE(place.name);
    const Control& control = Main()._ControlByName(place.name);
    const QWidget& widget = *control.Native();
    EXPECT_EQ(widget.geometry(), QRect(place.left, place.top, place.width, place.height));
    EXPECT_EQ(control.TabIndex(), place.tab_index);
    const bool start_year = place.name == std::string_view("StartYearField");
    const QString text = start_year ? QString::number(QDate::currentDate().year()) : place.text;
    EXPECT_EQ(widget.property("text").toString().toStdString(), text.toStdString());
    EXPECT_EQ(widget.isVisible(), place.name != std::string_view("Windmill"));
    EXPECT_EQ(widget.isEnabled(), place.name != std::string_view("PrintButton"));
  }
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
    std::vector<std::string> forward;
    std::vector<std::string> backward;
    for (std::size_t i = 0; i < order.size(); ++i) {
      forward.push_back(FocusName());
      user::Key(Qt::Key_Tab);
    }
    EXPECT_EQ(forward, order);
    for (std::size_t i = 0; i < order.size(); ++i) {
      user::Key(Qt::Key_Backtab, Qt::ShiftModifier);
      backward.insert(backward.begin(), FocusName());
    }
    EXPECT_EQ(backward, order);
  }
}

TEST_F(MainWindow, ReturnSolvesTheDefaultPlanAndGoesBackToTheField) {
  Fill("StartFundletField", "1000000");
  Calculate();
  EXPECT_EQ(Result(), "Initial Year Draw:  $73,325");
  EXPECT_EQ(FocusName(), "StartFundletField");
  EXPECT_EQ(Selected("StartFundletField"), "1,000,000");
  EXPECT_TRUE(Found("PrintButton").isEnabled());
  EXPECT_FALSE(Main().Windmill().Visible());
  Fill("YearsLeftField", "28");
  user::Click(Found("CalculateButton"));
  EXPECT_EQ(FocusName(), "YearsLeftField");
  EXPECT_NE(Result(), "Initial Year Draw:  $73,325");
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
