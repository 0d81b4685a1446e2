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

QLineEdit& NameIn(const QWidget& dialog) { return *dialog.findChild<QLineEdit*>("fileNameEdit"); }

QPushButton& SaveIn(const QWidget& dialog) {
  return *dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save);
}

void Confirm(const QWidget& dialog, bool by_mouse) {
  if (by_mouse) {
    user::Click(SaveIn(dialog));
  } else {
    user::Press("Return");
  }
}

void ByYes(QWidget& question) {
  const auto* box = qobject_cast<QMessageBox*>(&question);
  QAbstractButton* yes = box != nullptr ? box->button(QMessageBox::Yes) : nullptr;
  ASSERT_NE(yes, nullptr) << "the dialog is no question";
  user::Click(*yes);
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
  void Enter(QWidget& dialog, const std::string& name, bool by_mouse = false) const {
    user::Replace(Absolute(name));
    Confirm(dialog, by_mouse);
  }

  // The files that hold a schedule; they are removed.
  Texts TakeSchedules() const {
    Texts found;
    for (const auto& entry : fs::recursive_directory_iterator(folder_.Path())) {
      const std::string path = fs::relative(entry.path(), folder_.Path());
      if (entry.is_symlink() || entry.is_directory()) continue;
      if (folder_.Read(path).find("Age on") == std::string::npos) continue;
      found.push_back(path);
    }
    for (const std::string& path : found) fs::remove(folder_.Path() / path);
    return found;
  }
};

TEST_F(SaveDialog, WritesExactlyTheFileThatIsTyped) {
  const std::pair<const char*, const char*> rows[] = {
      {"new", "Documents/new"},
      {"old", "Documents/old"},
      {"./old", "Documents/old"},
      {"sub/old", "Documents/sub/old"},
      {"sub/new", "Documents/sub/new"},
      {"../old", "old"},
      {"../new", "new"},
      {"../beside/old", "beside/old"},
      {"~/old", "old"},
      {"@/Documents/old", "Documents/old"},
      {"@/beside//old", "beside/old"},
      {"@/new", "new"},
      {"link/old", "beside/old"},
      {"link/../old", "Documents/old"},
      {"to old", "Documents/sub/old"},
      {"a \"b\" c.txt", "Documents/a \"b\" c.txt"},
      {" new ", "Documents/ new "},
      {":new", "Documents/:new"},
      {"~new", "Documents/~new"},
  };
  const QString documents = QString::fromStdString(Absolute("@/Documents"));
  for (const bool by_mouse : {false, true}) {
    for (const auto& [typed, written] : rows) {
      SCOPED_TRACE(typed);
      MakeFiles();
      const bool asks = fs::exists(folder_.Path() / written);
      Texts shown = {"Save"};
      if (asks) {
        shown.push_back("Save: " + fs::path(typed).filename().string() +
                        " already exists.\nDo you want to replace it?");
      }
      InDialog([&, typed = typed](QWidget& dialog) {
        static_cast<QFileDialog&>(dialog).setDirectory(documents);
        if (asks) ExpectDialog(ByYes);
        Enter(dialog, typed, by_mouse);
        ForgetExpected();
        dialog.close();
      });
      EXPECT_EQ(TakeDialogs(), shown);
      EXPECT_EQ(TakeSchedules(), Texts{written});
    }
  }
}

TEST_F(SaveDialog, OpensInTheDocumentsAndThenInTheLastFolder) {
  for (const char* folder : {"Documents", "beside"}) {
    InDialog([&](QWidget& dialog) {
      EXPECT_EQ(static_cast<QFileDialog&>(dialog).selectedFiles().value(0).toStdString(),
                folder_.Path() / folder / kProposed.toStdString());
      Enter(dialog, "@/beside/new");
    });
    EXPECT_EQ(TakeSchedules(), Texts{"beside/new"});
  }
}

TEST_F(SaveDialog, OpensATypedFolderAndProposesTheNameThere) {
  InDialog([this](QWidget& dialog) {
    const auto& files = static_cast<QFileDialog&>(dialog);
    const std::pair<const char*, const char*> rows[] = {
        {"sub", "@/Documents/sub"},     {"..", "@/Documents"},        {"../beside/", "@/beside"},
        {"~/Documents", "@/Documents"}, {"link", "@/Documents/link"}, {"//", "/"},
    };
    for (const auto& [typed, folder] : rows) {
      Enter(dialog, typed);
      EXPECT_EQ(files.directory().path().toStdString(), Absolute(folder));
      EXPECT_EQ(NameIn(dialog).selectedText(), kProposed);
    }
    dialog.close();
  });
  EXPECT_EQ(TakeSchedules(), Texts());
}

TEST_F(SaveDialog, RefusesATextThatNamesNoFileAndKeepsIt) {
  const std::pair<std::string, std::string> rows[] = {
      {"", "Type a name for the file."},
      {"  ", "Type a name for the file."},
      {".", "Type a name for the file."},
      {"@/Documents/", "Type a name for the file."},
      {"gone/", "There is no folder “@/Documents/gone”. Choose another folder."},
      {"gone/new", "There is no folder “@/Documents/gone”. Choose another folder."},
      {"~root/new", "There is no folder “@/Documents/~root”. Choose another folder."},
      {"old/", "“@/Documents/old” is not a folder. Choose another folder."},
      {"old/new", "“@/Documents/old” is not a folder. Choose another folder."},
      {"a\nb", "A file name cannot contain line breaks or tabs. Type the name without them."},
  };
  InDialog([&](QWidget& dialog) {
    TakeDialogs();
    for (const auto& [typed, refusal] : rows) {
      NameIn(dialog).setText(QString::fromStdString(Absolute(typed)));
      for (const bool by_mouse : {false, true}) {
        ExpectDialog(ByKey(Qt::Key_Return));
        Confirm(dialog, by_mouse);
        EXPECT_EQ(TakeDialogs(), Texts{"Save: " + Absolute(refusal)});
        EXPECT_EQ(FocusName(), "fileNameEdit");
        EXPECT_EQ(NameIn(dialog).text().toStdString(), Absolute(typed));
      }
    }
    dialog.close();
  });
  EXPECT_EQ(TakeSchedules(), Texts());
}

TEST_F(SaveDialog, TakesTheFileOrFolderSelectedInTheList) {
  InDialog([this](QWidget& dialog) {
    auto& list = *dialog.findChild<QTreeView*>("treeView");
    const auto select = [&](const char* name) {
      const auto in_list = [&] {
        return list.model()->match(list.model()->index(0, 0, list.rootIndex()), Qt::DisplayRole,
                                   name);
      };
      while (in_list().isEmpty()) user::Settle();
      list.setFocus();
      list.selectionModel()->select(
          in_list().front(), QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    };
    user::Replace("");
    select("sub");
    Confirm(dialog, true);
    EXPECT_EQ(NameIn(dialog).text(), "");
    EXPECT_TRUE(SaveIn(dialog).isEnabled());
    user::Type("mine");
    select("old");
    ExpectDialog(ByYes);
    Confirm(dialog, true);
  });
  EXPECT_EQ(TakeSchedules(), Texts{"Documents/sub/old"});
}

TEST_F(SaveDialog, AsksBeforeItReplacesAFileAndTakesTheQuestionWithIt) {
  for (const auto answer : {QMessageBox::No, QMessageBox::Yes, QMessageBox::NoButton}) {
    InDialog([&](QWidget& dialog) {
      ExpectDialog([&](QWidget& question) {
        QWidget* button = static_cast<QMessageBox&>(question).button(answer);
        if (button != nullptr) QTest::mouseClick(button, Qt::LeftButton);
        if (answer != QMessageBox::No) dialog.close();
        EXPECT_FALSE(question.isVisible());
        question.close();
      });
      Enter(dialog, "old");
      dialog.close();
    });
  }
  EXPECT_EQ(TakeSchedules(), Texts());
}

TEST_F(SaveDialog, BreaksTheLinesOfAMessageAboutALongName) {
  InDialog([this](QWidget& dialog) {
    for (const char* letter : {"m", "😀"}) {
      ExpectDialog([](QWidget& message) {
        EXPECT_LT(message.findChild<QLabel*>("qt_msgbox_label")->minimumSizeHint().width(), 600);
        const QString text = static_cast<QMessageBox&>(message).text();
        EXPECT_EQ(QString::fromUtf8(text.toUtf8()), text) << "not within a character";
        message.close();
      });
      NameIn(dialog).setText('1' + QString(letter).repeated(150) + '/');
      Confirm(dialog, true);
    }
    dialog.close();
  });
}

TEST_F(SaveDialog, FitsAMessageAboutALongPathOnTheScreen) {
  const QString path = ('/' + QString("x").repeated(60)).repeated(80);
  InDialog([&](QWidget& dialog) {
    ExpectDialog([&](QWidget& message) {
      EXPECT_LT(message.height(), message.screen()->availableSize().height());
      const QString text = static_cast<QMessageBox&>(message).text();
      EXPECT_TRUE(text.startsWith("“Save Schedule”") && text.endsWith("too long."))
          << text.toStdString();
      const auto* whole = message.findChild<QPlainTextEdit*>();
      EXPECT_TRUE(whole != nullptr && whole->toPlainText().contains(path));
      message.close();
    });
    NameIn(dialog).setText(path);
    Confirm(dialog, true);
  });
}

}  // namespace
}  // namespace fundlet
