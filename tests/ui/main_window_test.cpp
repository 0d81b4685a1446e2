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

// In the order in which the controls are made.
constexpr Place kPlaces[] = {
    {"StaticText1", "Start with 1 Jan:", 19, 22, 107, 20, 0},
    {"StartYearField", "", 128, 22, 39, 20, 1},
    {"StaticText2", "Age on 1 Jan:", 195, 22, 86, 20, 2},
    {"StartAgeField", "65", 285, 22, 24, 20, 3},
    {"StaticText3", "Years", 319, 22, 38, 20, 4},
    {"StaticText4", "Life Expectancy:", 387, 22, 100, 20, 5},
    {"YearsLeftField", "27", 495, 22, 24, 20, 6},
    {"StaticText5", "Years", 531, 22, 40, 20, 7},
    {"StaticText6", "COLA:", 618, 22, 37, 20, 8},
    {"COLAField", "2.0", 658, 22, 44, 20, 9},
    {"StaticText7", "%", 707, 22, 21, 20, 10},
    {"Separator1", "", 20, 56, 690, 4, 11},
    {"StaticText8", "Initial Fundlet:  $", 20, 78, 113, 20, 12},
    {"StartFundletField", "1,000,000", 137, 78, 78, 20, 13},
    {"StaticText9", "After-Tax Fundlet APR:", 240, 78, 146, 20, 14},
    {"FundletAPRField", "5.0", 391, 78, 44, 20, 15},
    {"StaticText10", "%", 441, 78, 21, 20, 16},
    {"StaticText11", "Initial Social Security:  $", 497, 78, 151, 20, 17},
    {"SocialSecurityField", "20,000", 653, 78, 49, 20, 18},
    {"Separator2", "", 20, 116, 690, 4, 19},
    {"StaticText13", "Terminal Fundlet:  $", 18, 140, 131, 20, 20},
    {"CalculateButton", "Calculate Annual Draw", 288, 140, 164, 20, 22},
    {"EndFundletField", "100,000", 153, 140, 78, 20, 21},
    {"AnnualDrawField", "Initial Year Draw:  $0", 490, 137, 212, 20, 24},
    {"Windmill", "", 469, 141, 16, 16, 24},
    {"PrintButton", "Save Schedule", 288, 180, 164, 20, 26},
    {"SaveButton", "Remember Parameters", 20, 180, 164, 20, 25},
    {"RestoreButton", "Recall Paremeters", 538, 180, 164, 20, 27},
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
