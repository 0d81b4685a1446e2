#include "desktop/dialogs/objective_c.h"
#include "tests/ui/window_fixture.h"

namespace fundlet {

namespace fs = std::filesystem;

using Commands = StartedTest;
using Way = std::function<void()>;

TEST_F(Commands, WorkFromButtonMenuAndShortcut) {
  const auto ways = [](const QString& button, const QString& item, const QString& key) {
    return std::vector<Way>{[=] { user::Click(Found(button)); },
                            [=] { user::Choose("File", item); }, [=] { user::Press(key); }};
  };
  const auto remember = ways("SaveButton", "Remember Parameters", "Ctrl+P");
  const auto recall = ways("RestoreButton", "Recall Parameters", "Ctrl+R");
  const auto save = ways("PrintButton", "Save Schedule", "Ctrl+S");
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
    EXPECT_EQ(Result(), "Initial Year Draw:  $0");
    Calculate();
    const std::string name = "Plän 😀 " + age;
    ExpectDialog(BySaving((folder_.Path() / name).string()));
    save[way]();
    const std::string saved = folder_.Read(name);
    EXPECT_EQ(std::count(saved.begin(), saved.end(), '\n'), 10 + 27);
  }
}

TEST_F(Commands, ReportAFileThatCannotBeOpenedAndKeepTheTexts) {
  Fill("COLAField", "3");
  const fs::path file = folder_.Path() / "Fundlet.Preferences";
  fs::remove(file);
  fs::create_directory(file);
  const std::string reason = " Parameters” could not be carried out. File “" + file.string() +
                             "” could not be opened: there is a folder of that name.";
  ExpectMessage([] { user::Press("Ctrl+P"); }, "“Remember" + reason);
  ExpectMessage([] { user::Press("Ctrl+R"); }, "“Recall" + reason);
  EXPECT_EQ(Text("COLAField"), "3.0");
  EXPECT_EQ(FocusName(), "COLAField");
}

TEST_F(Commands, ComputeLifeExpectancyForTheAgeBeingTyped) {
  const std::pair<Way, const char*> cases[] = {
      {[] { user::Press("Ctrl+2"); }, "14"},
      {[] { user::Press("Ctrl+4"); }, "19"},
      {[] {
         constexpr quint32 kKeyOfTwo = 11;
         QKeyEvent press(QEvent::KeyPress, Qt::Key_Eacute, Qt::ControlModifier, kKeyOfTwo, 0, 0,
                         "é");
         QCoreApplication::sendEvent(QGuiApplication::focusWindow(), &press);
       },
       "14"},
      {[] { user::Press("Ctrl+8"); }, "23"},
      {[] { user::Choose("Edit", "Calculate life expectancy", "when 1/2 survive"); }, "14"}};
  for (const auto& [choose, years] : cases) {
    Fill("StartAgeField", "70");
    choose();
    EXPECT_EQ(Selected("YearsLeftField"), years);
    EXPECT_EQ(FocusName(), "YearsLeftField");
  }
}

TEST_F(Commands, EditTheFocusedTextIfTheyCan) {
  Fill("StartAgeField", "71");
  EXPECT_EQ(EnabledEditing(Main()), "EditUndoEditPaste");
  const auto after = [](const char* command) {
    user::Choose("Edit", command);
    return Text("StartAgeField");
  };
  EXPECT_NE(after("Undo"), "71");
  user::Replace("71");
  user::Press("Shift+Left");
  EXPECT_EQ(after("Copy"), "71");
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "1");
  user::Press("Shift+Left");
  EXPECT_EQ(after("Cut"), "");
  EXPECT_EQ(after("Paste"), "71");
  user::Press("Shift+Left");
  EXPECT_EQ(after("Clear"), "7");
}

TEST_F(Commands, ShowTheVersionOrReportAMissingFunction) {
  const Way about = [] { user::Choose("File", "About Fundlet…"); };
  Fill("COLAField", "3");
  ExpectMessage(about, "About Fundlet: FundletVersion " FUNDLET_VERSION);
  SimulateMissingLibraries(true);
  ExpectMessage(about,
                "“About Fundlet…” could not be carried out. The function “NSClassFromString” was "
                "not found in the library “Cocoa”.");
  SimulateMissingLibraries(false);
  EXPECT_EQ(FocusName(), "COLAField");
}

TEST_F(Commands, EndTheProgramEvenWithHelpOrAMessageOpen) {
  static const Way close_main = [] { user::CloseBox(*Found("StartYearField").window()); };
  const Answer by_closing_main = [](QWidget& /*dialog*/) { close_main(); };
  const Way endings[] = {[] { user::Choose("File", "Quit"); },
                         [] { user::Press("Ctrl+Q"); },
                         close_main,
                         [] {
                           user::Press("F1");
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
                           user::Press("Ctrl+S");
                         },
                         [] { QCoreApplication::postEvent(qApp, new QEvent(QEvent::Quit)); }};
  for (const Way& ending : endings) {
    EXPECT_EQ(RunWith(ending), 0);
    End();
    Start();
  }
}

}  // namespace fundlet
