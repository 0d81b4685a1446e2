#include "ui/help_window.h"

#include <QAction>
#include <QScrollBar>

#include "tests/ui/window_fixture.h"
#include "ui/global_module.h"
#include "ui/help_text.h"

namespace fundlet {

using Help = StartedTest;
using SmallScreen = FundletTest;

TEST_F(Help, OpensByEveryRouteAndOnlyOnce) {
  for (const char* keys : {"Ctrl+E", "Help", "F1", "Alt+H Return"}) {
    Fill("COLAField", "3.1");
    user::Press(keys);
    const aHelpWindow* first = GlobalModule::HelpWindow.get();
    user::Activate(Main());
    EXPECT_EQ(Text("COLAField"), "3.1");
    user::Press("F1");
    user::Choose("Help", "Fundlet Help…");
    EXPECT_EQ(GlobalModule::HelpWindow.get(), first);
    EXPECT_EQ(VisibleWindows("Fundlet Help"), 1);
    user::Press("Return");
    EXPECT_EQ(VisibleWindows("Fundlet Help"), 0);
    EXPECT_EQ(FocusName(), "COLAField");
  }
  Main().ClearFocus();
  user::Press("Ctrl+E");
  EXPECT_EQ(VisibleWindows("Fundlet Help"), 1);
}

TEST_F(Help, FollowsTheSizeOfItsWindowOnceResized) {
  user::Press("F1");
  GlobalModule::HelpWindow->Native().resize(100, 100);
  user::Settle();
  EXPECT_EQ(GlobalModule::HelpWindow->Native().Content().size(), QSize(400, 300));
  EXPECT_EQ(Found("TextField").geometry(), QRect(20, 20, 354, 226));
  EXPECT_EQ(Found("DoneButton").geometry(), QRect(305, 265, 69, 18));
  EXPECT_EQ(GlobalModule::HelpWindow->Native().maximumWidth(), 32000);
}

TEST_F(Help, OffersCopyOnlyWhileTextIsSelectedAndNoOtherEditing) {
  user::Press("F1");
  auto& area = Found<QPlainTextEdit>("TextField");
  user::Type("x");
  user::Press("Del");
  EXPECT_EQ(GlobalModule::HelpWindow->TextField().Text(), HelpText());
  EXPECT_EQ(EnabledEditing(*GlobalModule::HelpWindow), "");
  for (int i = 0; i < 7; ++i) user::Press("Shift+Right");
  user::OpenContextMenu();
  EXPECT_EQ(QApplication::activePopupWidget(),
            GlobalModule::HelpWindow->Native().findChild<QMenu*>("EditMenu"));
  user::Press("Esc Tab Ctrl+C");
  EXPECT_EQ(EnabledEditing(*GlobalModule::HelpWindow), "EditCopy");
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "Fundlet");
  user::Click(*area.viewport());
  EXPECT_EQ(area.textCursor().selectedText(), "");
  user::Press("Ctrl+A");
  user::Activate(Main());
  GlobalModule::HelpWindow->UpdateMenuItems();
  GlobalModule::HelpWindow->Native().findChild<QAction*>("EditCopy")->trigger();
  EXPECT_EQ(QGuiApplication::clipboard()->text().left(8).toStdString(), "Fundlet\n")
      << "a desktop may let a menu be chosen from before its window has become the active one";
}

TEST_F(Help, KeepsItsPlaceAndPutsTheCaretWhereItIsPressed) {
  user::Press("F1");
  auto& page = Found<QPlainTextEdit>("TextField");
  user::Press("Num+Down");
  EXPECT_EQ(page.verticalScrollBar()->value(), 1);
  EXPECT_EQ(page.textCursor().blockNumber(), 1);
  user::Press("Tab");
  page.verticalScrollBar()->setValue(20);
  user::Click(*page.viewport(), QPoint(40, 100));
  EXPECT_EQ(page.verticalScrollBar()->value(), 20);
  EXPECT_TRUE(page.viewport()->rect().contains(page.cursorRect()));
  user::Activate(Main());
  user::Press("F1");
  EXPECT_EQ(page.verticalScrollBar()->value(), 20);
  user::Press("Tab Tab");
  EXPECT_EQ(page.textCursor().position(), 0);
  EXPECT_EQ(page.verticalScrollBar()->value(), 20);
  user::Press("Up");
  EXPECT_EQ(page.verticalScrollBar()->value(), 19);
  EXPECT_TRUE(page.viewport()->rect().intersects(page.cursorRect()));
  user::Press("Ctrl+Home");
  page.verticalScrollBar()->setValue(20);
  user::Press("Shift+Right");
  EXPECT_EQ(page.textCursor().selectedText(), "F") << "a selection begins where the caret is";
}

TEST_F(SmallScreen, ShowsTheHelpAndTheSaveDialogWhole) {
  UseScreen(683, 384);
  Start();
  user::Press("F1");
  const QRect help = GlobalModule::HelpWindow->Native().geometry();
  EXPECT_GT(help.top(), 20);
  EXPECT_LE(help.bottom(), 384);
  EXPECT_EQ(Found("DoneButton").y(), GlobalModule::HelpWindow->Height() - 35);
  user::Press("Return");
  Calculate();
  ExpectDialog([](QWidget& dialog) {
    EXPECT_LE(dialog.height(), 384 - 40);
    dialog.close();
  });
  user::Press("Ctrl+S");
}

}  // namespace fundlet
