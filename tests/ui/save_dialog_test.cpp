#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTreeView>

#include "services/text.h"
#include "tests/ui/window_fixture.h"

namespace fundlet {
namespace {

namespace fs = std::filesystem;

using Texts = std::vector<std::string>;

const QString kProposed = "Draw Schedule.txt";

QLineEdit& Name() { return Found<QLineEdit>("fileNameEdit"); }

QPushButton& SaveButton() {
  return *Found<QDialogButtonBox>("buttonBox").button(QDialogButtonBox::Save);
}

void ByYes(QWidget& question) {
  user::Click(*dynamic_cast<QMessageBox&>(question).button(QMessageBox::Yes));
}

// The dialog starts in the folder Documents. In it, above it, beneath it and beside it are folders
// with a file "old" each, and links to some of them.
class SaveDialog : public FundletTest {
 protected:
  void SetUp() override {
    MakeFiles();
    Start();
    Calculate();
  }

  void MakeFiles() const {
    for (const char* folder : {".", "Documents", "Documents/sub", "beside"}) {
      fs::create_directories(folder_.Path() / folder);
      folder_.Write((fs::path(folder) / "old").string(), "old");
    }
    for (const auto& [link, target] : {std::pair("link", "../beside"), {"to old", "sub/old"}}) {
      std::error_code is_there;
      fs::create_symlink(target, folder_.Path() / "Documents" / link, is_there);
    }
  }

  // The text with "@" replaced by the folder of all these files.
  std::string Absolute(const std::string& text) const {
    return ReplaceAll(text, "@", folder_.Path().string());
  }

  void InDialog(const Answer& answer) {
    ExpectDialog(answer);
    user::Press("Ctrl+S");
  }

  // Types the name in the dialog key by key; presses Return or clicks Save.
  void Enter(const std::string& name, bool by_mouse = false) const {
    user::Replace(Absolute(name));
    if (by_mouse) return user::Click(SaveButton());
    user::Press("Return");
  }

  // The files that hold a schedule; they are removed.
  Texts TakeSchedules() const {
    Texts found;
    for (const auto& entry : fs::recursive_directory_iterator(folder_.Path())) {
      const std::string path = fs::relative(entry.path(), folder_.Path());
      const bool file = entry.is_regular_file() && !entry.is_symlink();
      if (file && folder_.Read(path).find("Age on") != path.npos) found.push_back(path);
    }
    for (const std::string& path : found) fs::remove(folder_.Path() / path);
    return found;
  }
};

TEST_F(SaveDialog, WritesExactlyTheFileThatIsTyped) {
  const std::pair<const char*, Texts> rows[] = {
      {"Documents/new", {"new"}},
      {"Documents/old", {"old", "@/Documents/old", "link/../old"}},
      {"Documents/sub/old", {"sub/old", "to old"}},
      {"old", {"../old", "~/old"}},
      {"new", {"@/new"}},
      {"beside/old", {"../beside/old", "@/beside//old", "link/old"}},
      {"Documents/a \"b\" c.txt", {"a \"b\" c.txt"}},
      {"Documents/ new ", {" new "}},
      {"Documents/:new", {":new"}},
      {"Documents/~new", {"~new"}}};
  const QString documents = QString::fromStdString(Absolute("@/Documents"));
  for (const auto& [written, texts] : rows) {
    for (const std::string& typed : texts) {
      for (const bool by_mouse : {false, true}) {
        SCOPED_TRACE(typed);
        MakeFiles();
        const bool asks = fs::exists(folder_.Path() / written);
        InDialog([&](QWidget& dialog) {
          dynamic_cast<QFileDialog&>(dialog).setDirectory(documents);
          if (asks) ExpectDialog(ByYes);
          Enter(typed, by_mouse);
          ForgetExpected();
          dialog.close();
        });
        EXPECT_EQ(TakeDialogs().size(), asks ? 2U : 1U);
        EXPECT_EQ(TakeSchedules(), Texts{written});
      }
    }
  }
}

TEST_F(SaveDialog, OpensInTheDocumentsAndThenInTheLastFolder) {
  for (const char* folder : {"Documents", "beside"}) {
    InDialog([&](QWidget& dialog) {
      EXPECT_EQ(dynamic_cast<QFileDialog&>(dialog).selectedFiles().value(0).toStdString(),
                folder_.Path() / folder / kProposed.toStdString());
      Enter("@/beside/new");
    });
    EXPECT_EQ(TakeSchedules(), Texts{"beside/new"});
  }
}

TEST_F(SaveDialog, OpensATypedFolderAndProposesTheNameThere) {
  InDialog([this](QWidget& dialog) {
    const auto& files = dynamic_cast<QFileDialog&>(dialog);
    const std::pair<const char*, const char*> rows[] = {
        {"sub", "@/Documents/sub"},     {"..", "@/Documents"},        {"../beside/", "@/beside"},
        {"~/Documents", "@/Documents"}, {"link", "@/Documents/link"}, {"//", "/"}};
    for (const auto& [typed, folder] : rows) {
      Enter(typed);
      EXPECT_EQ(files.directory().path().toStdString(), Absolute(folder));
      EXPECT_EQ(Name().selectedText(), kProposed);
    }
    dialog.close();
  });
}

TEST_F(SaveDialog, RefusesATextThatNamesNoFileAndKeepsIt) {
  const std::pair<const char*, Texts> rows[] = {
      {"Type a name for the file.", {"", "  ", ".", "@/Documents/"}},
      {"There is no folder “@/Documents/gone”. Choose another folder.", {"gone/", "gone/new"}},
      {"There is no folder “@/Documents/~root”. Choose another folder.", {"~root/new"}},
      {"“@/Documents/old” is not a folder. Choose another folder.", {"old/", "old/new"}},
      {"A file name cannot contain line breaks or tabs. Type the name without them.", {"a\nb"}}};
  InDialog([&](QWidget& dialog) {
    TakeDialogs();
    for (const auto& [refusal, texts] : rows) {
      for (const std::string& text : texts) {
        Name().setText(QString::fromStdString(Absolute(text)));
        ExpectMessage([] { user::Click(SaveButton()); }, "Save: " + Absolute(refusal));
        EXPECT_EQ(FocusName(), "fileNameEdit");
        EXPECT_EQ(Name().text().toStdString(), Absolute(text));
      }
    }
    dialog.close();
  });
}

TEST_F(SaveDialog, TakesTheFileOrFolderSelectedInTheList) {
  InDialog([this](QWidget& /*dialog*/) {
    auto& list = Found<QTreeView>("treeView");
    const auto select = [&](const char* name) {
      list.setFocus();
      while (list.currentIndex().data() != name) {
        user::Settle();
        for (const char* letters : {"", name}) list.keyboardSearch(letters);
      }
    };
    user::Replace("");
    select("sub");
    user::Click(SaveButton());
    EXPECT_EQ(Name().text(), "");
    EXPECT_TRUE(SaveButton().isEnabled());
    user::Type("mine");
    select("old");
    ExpectDialog(ByYes);
    user::Click(SaveButton());
  });
  EXPECT_EQ(TakeSchedules(), Texts{"Documents/sub/old"});
}

TEST_F(SaveDialog, AsksBeforeItReplacesAFileAndTakesTheQuestionWithIt) {
  const char* const kQuestion = "Save: old already exists.\nDo you want to replace it?";
  for (const auto answer : {QMessageBox::No, QMessageBox::Yes, QMessageBox::NoButton}) {
    InDialog([&](QWidget& dialog) {
      ExpectDialog([&](QWidget& question) {
        QWidget* button = dynamic_cast<QMessageBox&>(question).button(answer);
        if (button != nullptr) QTest::mouseClick(button, Qt::LeftButton);
        if (answer != QMessageBox::No) dialog.close();
        EXPECT_FALSE(question.isVisible());
        question.close();
      });
      Enter("old");
      dialog.close();
    });
    EXPECT_EQ(TakeDialogs(), (Texts{"Save", kQuestion}));
  }
  EXPECT_EQ(TakeSchedules(), Texts());
}

TEST_F(SaveDialog, FitsAMessageAboutALongNameOrPathOnTheScreen) {
  const QString path = ('/' + QString("x").repeated(60)).repeated(80);
  for (const QString& name :
       {'1' + QString("m").repeated(150) + '/', QString("😀").repeated(150) + "1/", path}) {
    InDialog([&](QWidget& dialog) {
      ExpectDialog([&](QWidget& message) {
        EXPECT_LT(Found<QLabel>("qt_msgbox_label").minimumSizeHint().width(), 600);
        EXPECT_LT(message.height(), message.screen()->availableSize().height());
        const QString text = dynamic_cast<QMessageBox&>(message).text();
        EXPECT_EQ(QString::fromUtf8(text.toUtf8()), text) << "not within a character";
        const auto* whole = message.findChild<QPlainTextEdit*>();
        EXPECT_EQ(whole != nullptr && whole->accessibleName() == "Whole message" &&
                      whole->toPlainText().contains(path),
                  name == path);
        message.close();
      });
      Name().setText(name);
      user::Click(SaveButton());
      dialog.close();
    });
  }
  const QString last = QString::fromStdString(TakeDialogs().back());
  EXPECT_TRUE(last.startsWith("“Save Schedule”") && last.endsWith("too long."))
      << last.toStdString();
}

}  // namespace
}  // namespace fundlet
