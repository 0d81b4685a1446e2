#include <QClipboard>
#include <QFileDialog>
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

TEST_F(Commands, ASolvedScheduleIsSavedFromButtonMenuAndKey) {
  const auto ways = Ways("PrintButton", "Save Schedule", Qt::Key_S);
  for (const Way& way : ways) way();
  Calculate();
  for (const Way& way : ways) {
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

TEST_F(Commands, AFileStaysWhenTheUserDoesNotHaveItReplaced) {
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
}

TEST_F(Commands, AFileThatCannotBeWrittenIsToldAndNothingIsLost) {
  Fill("COLAField", "3");
  fs::remove(folder_.Path() / "Fundlet.Preferences");
  fs::create_directory(folder_.Path() / "Fundlet.Preferences");
  ExpectDialog(ByKey(Qt::Key_Escape));
  user::Key(Qt::Key_P, Qt::ControlModifier);
  const std::vector<std::string> shown = TakeDialogs();
  ASSERT_EQ(shown.size(), 1U);
  EXPECT_NE(shown[0].find("“Remember Parameters” could not be carried out."), std::string::npos);
  EXPECT_NE(shown[0].find("Fundlet.Preferences"), std::string::npos);
  EXPECT_EQ(Text("COLAField"), "3.0");
  EXPECT_EQ(FocusName(), "COLAField");
  Calculate();
  EXPECT_NE(Result(), "Initial Year Draw:  $0");
}

TEST_F(Commands, TheLifeExpectancyIsThatOfTheAgeBeingTyped) {
  const struct {
    Qt::Key key;
    const char* years;
  } cases[] = {{Qt::Key_2, "14"}, {Qt::Key_4, "19"}, {Qt::Key_8, "23"}};
  for (const auto& [key, years] : cases) {
    Fill("StartAgeField", "70");
    user::Key(key, Qt::ControlModifier);
    EXPECT_EQ(Selected("YearsLeftField"), years);
    EXPECT_EQ(FocusName(), "YearsLeftField");
  }
  Fill("StartAgeField", "70");
  user::Choose("Edit", "Calculate life expectancy", "when 1/2 survive");
  EXPECT_EQ(Selected("YearsLeftField"), "14");
}

TEST_F(Enabling, TheEditItemsActOnTheFocusedTextWhenTheyCan) {
  const auto able = [](const char* item) {
    Main().EnableMenuItems();
    return Main().MenuBar()._Lookup(item).Enabled();
  };
  Fill("StartAgeField", "71");
  EXPECT_FALSE(able("EditCopy") || able("EditCut") || able("EditClear"));
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
        user::Choose("File", "Quit");
      },
      [this] {
        Fill("StartAgeField", "1");
        ExpectDialog(close_main);
        Calculate();
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
