#include <QClipboard>
#include <QFileDialog>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

#include "desktop/message_sending.h"
#include "tests/ui/window_fixture.h"

namespace fundlet {
namespace {

namespace fs = std::filesystem;

using Commands = StartedTest;
using Enabling = StartedTest;
using AboutPanel = StartedTest;
using Closing = StartedTest;

using Way = std::function<void()>;

std::vector<Way> Ways(const QString& button, const QString& item, Qt::Key key) {
  return {[=] { user::Click(Found(button)); }, [=] { user::Choose("File", item); },
          [=] { user::Key(key, Qt::ControlModifier); }};
}

TEST_F(Commands, RememberAndRecallWorkFromButtonMenuAndKey) {
  const auto remember = Ways("SaveButton", "Remember Parameters", Qt::Key_P);
  const auto recall = Ways("RestoreButton", "Recall Parameters", Qt::Key_R);
  for (std::size_t way = 0; way < remember.size(); ++way) {
    const std::string age = std::to_string(60 + way);
    Fill("StartAgeField", age);
    remember[way]();
    EXPECT_EQ(folder_.Read("Fundlet.Preferences").at(2), static_cast<char>(60 + way));
    EXPECT_EQ(FocusName(), "StartAgeField");
    Fill("StartAgeField", "1");
    recall[way]();
    EXPECT_EQ(Text("StartAgeField"), age);
    EXPECT_EQ(FocusName(), "StartYearField");
    EXPECT_EQ(Selected("StartYearField"), Text("StartYearField"));
  }
}

TEST_F(Commands, TheScheduleIsSavedFromButtonMenuAndKey) {
  Calculate();
  for (const Way& way : Ways("PrintButton", "Save Schedule", Qt::Key_S)) {
    const fs::path file = folder_.Path() / "Plän 😀.txt";
    ExpectDialog(BySaving(file));
    way();
    const std::string saved = folder_.Read("Plän 😀.txt");
    EXPECT_EQ(std::count(saved.begin(), saved.end(), '\n'), 10 + 27);
    EXPECT_EQ(FocusName(), "StartYearField");
    fs::remove(file);
  }
}

TEST_F(Commands, TheSaveDialogProposesANameWhereTheLastScheduleWent) {
  Calculate();
  const auto proposal_after = [this](const Way& before) {
    before();
    std::string proposed;
    ExpectDialog([&](QWidget& dialog) {
      proposed = static_cast<QFileDialog&>(dialog).selectedFiles().value(0).toStdString();
      QTest::keyClick(dialog.windowHandle(), Qt::Key_Escape);
    });
    user::Key(Qt::Key_S, Qt::ControlModifier);
    return proposed;
  };
  fs::create_directories(folder_.Path() / "Documents");
  fs::create_directories(folder_.Path() / "elsewhere");
  EXPECT_EQ(proposal_after([] {}), folder_.Path() / "Documents" / "Draw Schedule.txt");
  EXPECT_EQ(proposal_after([this] {
              ExpectDialog(BySaving(folder_.Path() / "elsewhere" / "mine"));
              user::Key(Qt::Key_S, Qt::ControlModifier);
            }),
            folder_.Path() / "elsewhere" / "Draw Schedule.txt");
  EXPECT_FALSE(fs::exists(folder_.Path() / "elsewhere" / "Draw Schedule.txt"));
}

TEST_F(Commands, AFileIsReplacedOnlyWhenTheUserSaysSo) {
  Calculate();
  folder_.Write("old.txt", "old");
  const std::string path = folder_.Path() / "old.txt";
  ExpectDialog([&](QWidget& dialog) {
    ExpectDialog(ByKey(Qt::Key_Escape));
    BySaving(path)(dialog);
    dialog.close();
  });
  user::Key(Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(folder_.Read("old.txt"), "old");
  ExpectDialog([&](QWidget& dialog) {
    ExpectDialog([](QWidget& question) {
      user::Click(*static_cast<QMessageBox&>(question).button(QMessageBox::Yes));
    });
    BySaving(path)(dialog);
  });
  user::Key(Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(folder_.Read("old.txt").substr(0, 5), "Start");
}

TEST_F(Commands, AFileThatCannotBeWrittenIsToldAndNothingIsLost) {
  Fill("COLAField", "3");
  fs::remove(folder_.Path() / "Fundlet.Preferences");
  fs::create_directory(folder_.Path() / "Fundlet.Preferences");
  for (const Way& way : Ways("SaveButton", "Remember Parameters", Qt::Key_P)) {
    ExpectDialog(ByKey(Qt::Key_Escape));
    way();
    const std::vector<std::string> shown = TakeDialogs();
    ASSERT_EQ(shown.size(), 1U);
    EXPECT_NE(shown[0].find("“Remember Parameters” could not be carried out."), std::string::npos);
    EXPECT_NE(shown[0].find("Fundlet.Preferences"), std::string::npos);
    EXPECT_EQ(Text("COLAField"), "3.0");
    EXPECT_EQ(FocusName(), "COLAField");
  }
  Calculate();
  EXPECT_NE(Result(), "Initial Year Draw:  $0");
}

TEST_F(Commands, TheLifeExpectancyIsThatOfTheAgeBeingTyped) {
  const struct {
    const char* item;
    Qt::Key key;
    const char* years;
  } cases[] = {{"when 1/2 survive", Qt::Key_2, "14"},
               {"when 1/4 survive", Qt::Key_4, "19"},
               {"when 1/8 survive", Qt::Key_8, "23"}};
  for (const auto& [item, key, years] : cases) {
    for (const bool by_key : {false, true}) {
      Fill("StartAgeField", "70");
      if (by_key) {
        user::Key(key, Qt::ControlModifier);
      } else {
        user::Choose("Edit", "Calculate life expectancy", item);
      }
      EXPECT_EQ(Selected("YearsLeftField"), years) << item;
      EXPECT_EQ(FocusName(), "YearsLeftField");
    }
  }
}

TEST_F(Enabling, TheScheduleFollowsTheLastSolveAndTheRestIsAlwaysThere) {
  const auto check = [&](bool can_save) {
    Main().EnableMenuItems();
    EXPECT_EQ(Main().FileSave().Enabled(), can_save);
    EXPECT_EQ(Found("PrintButton").isEnabled(), can_save);
    if (can_save) ExpectDialog(ByKey(Qt::Key_Escape));
    user::Choose("File", "Save Schedule");
    for (const char* item : {"FileParams", "FileRestore", "FileQuit", "AppAbout", "EditSurvival",
                             "Survival2", "Survival3", "Survival8", "HelpFundlet"}) {
      EXPECT_TRUE(Main().MenuBar()._Lookup(item).Enabled()) << item;
    }
    if (can_save) ExpectDialog(ByKey(Qt::Key_Escape));
    user::Key(Qt::Key_S, Qt::ControlModifier);
    TakeDialogs();
  };
  check(false);
  Calculate();
  check(true);
  Fill("StartAgeField", "5");
  ExpectDialog(ByKey(Qt::Key_Escape));
  Calculate();
  check(true);
  Fill("FundletAPRField", "90");
  Fill("YearsLeftField", "40");
  Fill("StartAgeField", "55");
  ExpectDialog(ByKey(Qt::Key_Escape));
  Calculate();
  check(false);
}

TEST_F(Enabling, TheEditItemsActOnTheFocusedTextWhenTheyCan) {
  const auto able = [](const char* item) {
    Main().EnableMenuItems();
    return Main().MenuBar()._Lookup(item).Enabled();
  };
  QGuiApplication::clipboard()->clear();
  Fill("StartAgeField", "71");
  EXPECT_FALSE(able("EditCopy") || able("EditCut") || able("EditClear") || able("EditPaste"));
  const auto after = [](const char* command) {
    user::Choose("Edit", command);
    return Text("StartAgeField");
  };
  EXPECT_NE(after("Undo"), "71");
  user::Replace("71");
  user::Key(Qt::Key_Left, Qt::ShiftModifier);
  EXPECT_EQ(after("Copy"), "71");
  EXPECT_EQ(after("Cut"), "7");
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "1");
  EXPECT_EQ(after("Paste"), "71");
  user::Key(Qt::Key_Left, Qt::ShiftModifier);
  EXPECT_EQ(after("Clear"), "7");
}

TEST_F(AboutPanel, ShowsTheNameAndTheVersionAndComesBackToTheField) {
  Fill("COLAField", "3");
  ExpectDialog(ByKey(Qt::Key_Escape));
  user::Choose("File", "About Fundlet…");
  EXPECT_EQ(TakeDialogs(), std::vector<std::string>{"FundletVersion 5"});
  EXPECT_EQ(FocusName(), "COLAField");
}

TEST_F(AboutPanel, AFunctionThatIsNotFoundIsTold) {
  SetLibrariesPresent(false);
  ExpectDialog(ByKey(Qt::Key_Escape));
  user::Choose("File", "About Fundlet…");
  SetLibrariesPresent(true);
  EXPECT_EQ(TakeDialogs(),
            std::vector<std::string>{"“About Fundlet…” could not be carried out. The function "
                                     "“NSClassFromString” was not found in the library “Cocoa”."});
}

TEST_F(Closing, EndsTheProgramByMenuKeyAndCloseBoxAlsoWithHelpOrAMessageOpen) {
  static const Answer close_main = [](QWidget&) {
    user::CloseBox(*Found("StartYearField").window());
  };
  const std::function<void()> endings[] = {
      [] { user::Choose("File", "Quit"); },
      [] { user::Key(Qt::Key_Q, Qt::ControlModifier); },
      [] { user::CloseBox(*Found("StartYearField").window()); },
      [] {
        user::Key(Qt::Key_F1);
        user::CloseBox(*Found("StartYearField").window());
      },
      [] {
        user::Key(Qt::Key_F1);
        user::Choose("File", "Quit");
      },
      [this] {
        Fill("StartAgeField", "1");
        ExpectDialog(close_main);
        Calculate();
      },
      [this] {
        ExpectDialog(close_main);
        user::Choose("File", "About Fundlet…");
      },
      [this] {
        folder_.Write("old.txt", "old");
        Calculate();
        ExpectDialog([&](QWidget& dialog) {
          ExpectDialog(close_main);
          BySaving(folder_.Path() / "old.txt")(dialog);
        });
        user::Key(Qt::Key_S, Qt::ControlModifier);
      },
      [] { QCoreApplication::postEvent(qApp, new QEvent(QEvent::Quit)); },
  };
  for (const auto& ending : endings) {
    EXPECT_EQ(RunWith(ending), 0);
    EndProgram();
    Start();
  }
}

}  // namespace
}  // namespace fundlet
