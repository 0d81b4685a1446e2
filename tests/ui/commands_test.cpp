#include <QFileDialog>

#include "desktop/dialogs/objective_c.h"
#include "tests/ui/window_fixture.h"

namespace fundlet {
namespace {

namespace fs = std::filesystem;

using Commands = StartedTest;
using Texts = std::vector<std::string>;
using Way = std::function<void()>;

std::vector<Way> Ways(const QString& button, const QString& item, Qt::Key key) {
  return {[=] { user::Click(Found(button)); }, [=] { user::Choose("File", item); },
          [=] { user::Key(key, Qt::ControlModifier); }};
}

TEST_F(Commands, WorkFromButtonMenuAndShortcut) {
  const auto remember = Ways("SaveButton", "Remember Parameters", Qt::Key_P);
  const auto recall = Ways("RestoreButton", "Recall Parameters", Qt::Key_R);
  const auto save = Ways("PrintButton", "Save Schedule", Qt::Key_S);
  for (const Way& nothing_solved : save) nothing_solved();
  for (std::size_t way = 0; way < save.size(); ++way) {
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
    Calculate();
    const std::string name = "Plän 😀 " + age;
    ExpectDialog(BySaving((folder_.Path() / name).string()));
    save[way]();
    const std::string saved = folder_.Read(name);
    EXPECT_EQ(std::count(saved.begin(), saved.end(), '\n'), 10 + 27);
    EXPECT_EQ(FocusName(), "StartYearField");
  }
}

TEST_F(Commands, ProposeTheDocumentsAndThenTheLastFolder) {
  for (const char* folder : {"Documents", "elsewhere"}) {
    fs::create_directories(folder_.Path() / folder);
  }
  Calculate();
  for (const char* folder : {"Documents", "elsewhere"}) {
    ExpectDialog([=, this](QWidget& dialog) {
      EXPECT_EQ(static_cast<QFileDialog&>(dialog).selectedFiles().value(0).toStdString(),
                folder_.Path() / folder / "Draw Schedule.txt");
      BySaving(folder_.Path() / "elsewhere" / "mine")(dialog);
      dialog.close();
    });
    user::Shortcut(Qt::Key_S);
    fs::remove(folder_.Path() / "elsewhere" / "mine");
  }
}

TEST_F(Commands, ReportAFileThatCannotBeWrittenAndKeepTheTexts) {
  Fill("COLAField", "3");
  fs::remove(folder_.Path() / "Fundlet.Preferences");
  fs::create_directory(folder_.Path() / "Fundlet.Preferences");
  ExpectDialog(ByKey(Qt::Key_Escape));
  user::Shortcut(Qt::Key_P);
  EXPECT_EQ(TakeDialogs(), Texts{"“Remember Parameters” could not be carried out. File “" +
                                 (folder_.Path() / "Fundlet.Preferences").string() +
                                 "” could not be opened: there is a folder of that name."});
  EXPECT_EQ(Text("COLAField"), "3.0");
  EXPECT_EQ(FocusName(), "COLAField");
}

TEST_F(Commands, ComputeLifeExpectancyForTheAgeBeingTyped) {
  const std::pair<Way, const char*> cases[] = {
      {[] { user::Shortcut(Qt::Key_2); }, "14"},
      {[] { user::Shortcut(Qt::Key_4); }, "19"},
      {[] {
         constexpr quint32 kKeyOfTwo = 11;
         QKeyEvent press(QEvent::KeyPress, Qt::Key_Eacute, Qt::ControlModifier, kKeyOfTwo, 0, 0,
                         "é");
         QCoreApplication::sendEvent(QGuiApplication::focusWindow(), &press);
       },
       "14"},
      {[] { user::Shortcut(Qt::Key_8); }, "23"},
      {[] { user::Choose("Edit", "Calculate life expectancy", "when 1/2 survive"); }, "14"},
  };
  for (const auto& [choose, years] : cases) {
    Fill("StartAgeField", "70");
    choose();
    EXPECT_EQ(Selected("YearsLeftField"), years);
    EXPECT_EQ(FocusName(), "YearsLeftField");
  }
}

TEST_F(Commands, EditTheFocusedTextIfTheyCan) {
  const auto able = [](const char* item) {
    Main().UpdateMenuItems();
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
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "1");
  user::Key(Qt::Key_Left, Qt::ShiftModifier);
  EXPECT_EQ(after("Cut"), "");
  EXPECT_EQ(after("Paste"), "71");
  user::Key(Qt::Key_Left, Qt::ShiftModifier);
  EXPECT_EQ(after("Clear"), "7");
}

TEST_F(Commands, ShowTheVersionOrReportAMissingFunction) {
  Fill("COLAField", "3");
  for (const bool found : {true, false}) {
    SimulateMissingLibraries(!found);
    ExpectDialog(ByKey(Qt::Key_Escape));
    user::Choose("File", "About Fundlet…");
    EXPECT_EQ(FocusName(), "COLAField");
  }
  SimulateMissingLibraries(false);
  EXPECT_EQ(TakeDialogs(),
            (Texts{"About Fundlet: FundletVersion " FUNDLET_VERSION,
                   "“About Fundlet…” could not be carried out. The function “NSClassFromString” "
                   "was not found in the library “Cocoa”."}));
}

TEST_F(Commands, EndTheProgramEvenWithHelpOrAMessageOpen) {
  static const Way close_main = [] { user::CloseBox(*Found("StartYearField").window()); };
  const Answer by_closing_main = [](QWidget& /*dialog*/) { close_main(); };
  const Way endings[] = {
      [] { user::Choose("File", "Quit"); },
      [] { user::Shortcut(Qt::Key_Q); },
      close_main,
      [] {
        user::Key(Qt::Key_F1);
        user::Choose("File", "Quit");
      },
      [&] { CalculateRefused(by_closing_main); },
      [&] {
        folder_.Write("old.txt", "old");
        Calculate();
        ExpectDialog([&](QWidget& dialog) {
          ExpectDialog(by_closing_main);
          BySaving((folder_.Path() / "old.txt").string())(dialog);
        });
        user::Shortcut(Qt::Key_S);
      },
      [] { QCoreApplication::postEvent(qApp, new QEvent(QEvent::Quit)); },
  };
  for (const Way& ending : endings) {
    EXPECT_EQ(RunWith(ending), 0);
    End();
    Start();
  }
}

}  // namespace
}  // namespace fundlet
