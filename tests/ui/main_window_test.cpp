#include <QScreen>
#include <QToolTip>

#include "tests/ui/window_fixture.h"
#include "ui/main_layout.h"

namespace fundlet {

using MainWindow = StartedTest;
using Startup = FundletTest;

TEST_F(MainWindow, PlacesEachControlWithoutOverlap) {
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
}

TEST_F(MainWindow, MovesTheFocusByTabIndexPastADimmedButton) {
  std::vector<std::string> order;
  for (const main_layout::FieldRow& row : main_layout::Fields()) order.emplace_back(row.field);
  order.insert(order.end(), {"CalculateButton", "SaveButton", "RestoreButton"});
  for (const bool solved : {false, true}) {
    if (solved) {
      Calculate();
      order.insert(order.end() - 1, "PrintButton");
    }
    for (const std::string& name : order) {
      EXPECT_EQ(FocusName(), name);
      user::Press("Tab");
    }
    for (auto name = order.rbegin(); name != order.rend(); ++name) {
      user::Press("Shift+Backtab");
      EXPECT_EQ(FocusName(), *name);
    }
  }
}

TEST_F(MainWindow, ShiftsItsContentToTheFocusInATileThatIsTooSmall) {
  NativeWindow& window = Main().Native();
  const QSize full = window.size();
  window.setMinimumSize(0, 0);
  window.resize(260, 110);
  user::Settle();
  for (int control = 0; control < 11; ++control) {
    const QWidget& focused = *QApplication::focusWidget();
    EXPECT_EQ(focused.visibleRegion().boundingRect(), focused.rect()) << FocusName();
    user::Press("Tab");
  }
  window.resize(full);
  EXPECT_EQ(window.Content().pos(), QPoint(0, 0));
}

TEST_F(MainWindow, SolvesTheDefaultPlanByReturnAndRefocuses) {
  Paints wheel(Found("Windmill"));
  Fill("StartFundletField", "1000000");
  Calculate();
  EXPECT_EQ(Result(), "Initial Year Draw:  $73,325");
  EXPECT_EQ(FocusName(), "StartFundletField");
  EXPECT_EQ(Selected("StartFundletField"), "1,000,000");
  EXPECT_GT(wheel.count, 0);
  EXPECT_FALSE(Main().Windmill().Visible());
  Fill("YearsLeftField", "28");
  user::Click(Found("CalculateButton"));
  const std::string result = Result();
  EXPECT_NE(result, "Initial Year Draw:  $73,325");
  CalculateRefused();
  user::VisitAnotherWindow();
  EXPECT_EQ(Result(), result);
  EXPECT_TRUE(Found("PrintButton").isEnabled());
}

TEST_F(MainWindow, ReportsAPlanThatCannotBeSolved) {
  Calculate();
  Fill("YearsLeftField", "34");
  Fill("FundletAPRField", "90");
  ExpectMessage(&Calculate, "Unable to calculate annual draw with these parameters.");
  EXPECT_EQ(Result(), "Initial Year Draw:  $0");
  EXPECT_FALSE(Found("PrintButton").isEnabled());
  EXPECT_EQ(FocusName(), "FundletAPRField");
}

TEST_F(MainWindow, WrapsToolTipsAndShowsThemForADimmedButton) {
  const std::tuple<const char*, const char*, int> cases[] = {
      {"PrintButton", "save a schedule of draws", 2},
      {"YearsLeftField", "after the first year.\n\nUse the Edit", 3}};
  for (const auto& [control, part, lines] : cases) {
    QWidget& widget = Found(control);
    QWidget& window = *widget.window();
    QTest::mouseMove(window.windowHandle(), widget.mapTo(&window, QPoint(9, 9)));
    EXPECT_TRUE(QTest::qWaitFor([&] { return QToolTip::text().contains(part); })) << control;
    for (const QWidget* top : QApplication::topLevelWidgets()) {
      const auto* tip = qobject_cast<const QLabel*>(top);
      if (tip == nullptr || !tip->isVisible()) continue;
      EXPECT_EQ(tip->height() / tip->fontMetrics().lineSpacing(), lines) << control;
    }
  }
}

TEST_F(Startup, ReportsAFileThatCannotBeReadAndGoesOnUnlessTheDesktopAsksForTheEnd) {
  folder_.Write("Fundlet.Preferences", std::string(43, '\7'));
  ExpectMessage([this] { Start(); }, "File “Fundlet.Preferences” is busy.");
  user::Type("2010");
  user::Press("Tab");
  EXPECT_EQ(Text("StartYearField"), "2010");
  End();
  ExpectDialog([](QWidget&) {
    QEvent quit(QEvent::Quit);
    QCoreApplication::sendEvent(qApp, &quit);
  });
  Start();
  EXPECT_EQ(Window::Front(), nullptr);
  for (const QWidget* top : QApplication::topLevelWidgets()) EXPECT_FALSE(top->isVisible());
  EXPECT_EQ(RunWith([] {}), 0);
}

TEST_F(Startup, PlacesTheWindowOnScreensOfAnySize) {
  const std::tuple<int, int, int, int> cases[] = {
      {1440, 877, 350, 316}, {701, 220, -19, 24}, {743, 219, 1, 24}, {740, 221, 0, -11}};
  // The offscreen platform adds its margin to a position that lies before it.
  const auto shown_at = [](int position) { return position < 2 ? position + 2 : position; };
  for (const auto& [width, height, left, top] : cases) {
    UseScreen(width, height);
    Start();
    EXPECT_EQ(Main().Left(), shown_at(left)) << width;
    EXPECT_EQ(Main().Top(), shown_at(top)) << height;
    End();
  }
}

}  // namespace fundlet
