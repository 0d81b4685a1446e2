#include <cerrno>
#include <functional>
#include <sys/stat.h>
#include <tuple>

#include <gtest/gtest.h>

#include "services/binary_stream.h"
#include "services/text_output_stream.h"
#include "tests/services/scratch_folder.h"

namespace fundlet {

namespace fs = std::filesystem;

TEST(BinaryStream, NamesFileActionAndReasonOfAFailure) {
  const ScratchFolder folder;
  folder.Write("short", "abc");
  fs::create_directory(folder.Path() / "folder");
  fs::create_symlink("gone/x", folder.Path() / "link");
  ASSERT_EQ(mkfifo((folder.Path() / "pipe").c_str(), 0600), 0);
  const auto open = &BinaryStream::Open;
  const auto create = &BinaryStream::Create;
  const auto read = [](const FolderItem& item) { BinaryStream::Open(item).ReadDouble(); };
  using Operation = std::function<void(const FolderItem&)>;
  const std::tuple<Operation, FolderItem, std::string> failures[] = {
      {open, folder.Item("gone ½/x"), "opened: its folder is not there."},
      {create, folder.Item("gone/x"), "created: its folder is not there."},
      {open, folder.Item("gone"), "opened: it is not there."},
      {create, folder.Item("link"),
       "created: it is a link, and what the link leads to is not there."},
      {create, folder.Item("gone/"), "created: only a folder's name may end like this."},
      {open, folder.Item("folder"), "opened: there is a folder of that name."},
      {create, folder.Item("folder"), "created: there is a folder of that name."},
      {open, folder.Item("pipe"), "opened: there is something of that name that is not a file."},
      {open, folder.Item("short/x"), "opened: a part of its path is not a folder."},
      {create, folder.Item(std::string(300, 'x')), "created: its name is too long."},
      {read, folder.Item("short"), "read: the file is shorter than it should be."},
      {create, FolderItem().Child("x"), "created: you have no folder of your own to keep it in."}};
  for (const auto& [operation, item, rest] : failures) {
    const std::string name = item.Path().empty() ? item.Name() : item.Path().string();
    EXPECT_EQ(ErrorOf([&o = operation, &i = item] { o(i); }),
              "File “" + name + "” could not be " + rest);
  }
  EXPECT_EQ(IOException(FileAction::Open, "x", EISDIR).ErrorNumber(), EISDIR);
  EXPECT_THROW(TextOutputStream::Create(std::nullopt), NilObjectException);
  EXPECT_EQ(ReasonText(0), "the system does not say why");
  EXPECT_EQ(ReasonText(99999), "the system reports fault number 99999");
}

TEST(BinaryStream, CreatesAFileForItsOwnerAloneUnlikeATextStream) {
  const ScratchFolder folder;
  const mode_t before = umask(0022);
  BinaryStream::Create(folder.Item("plan")).Close();
  TextOutputStream::Create(folder.Item("text")).Close();
  umask(before);
  const auto rights = [&](const char* name) {
    return fs::status(folder.Path() / name).permissions();
  };
  EXPECT_EQ(rights("plan"), fs::perms{0600});
  EXPECT_EQ(rights("text"), fs::perms{0644});
  fs::permissions(folder.Path() / "plan", fs::perms{0664});
  BinaryStream::Create(folder.Item("plan")).Close();
  EXPECT_EQ(rights("plan"), fs::perms{0664}) << "as the user has set them";
}

TEST(BinaryStream, NamesTheActionOfAnyCallThatFails) {
  const ScratchFolder folder;
  folder.Write("file", "abc");
  const std::pair<std::function<void(BinaryStream&)>, const char*> calls[] = {
      {[](BinaryStream& stream) { stream.ReadInt8(); }, "read"},
      {[](BinaryStream& stream) { stream.WriteInt8(1); }, "written"},
      {[](BinaryStream& stream) { stream.SetPosition(0); }, "written"},
      {[](BinaryStream& stream) { stream.Close(); }, "written to the end"}};
  for (const auto& [call, action] : calls) {
    const int next = dup(0);
    close(next);
    BinaryStream stream = BinaryStream::Open(folder.Item("file"));
    ASSERT_EQ(close(next), 0) << "closes the stream's own file";
    const std::string error = ErrorOf([&stream, &c = call] { c(stream); });
    EXPECT_NE(error.find(std::string("be ") + action + ": the "), std::string::npos) << error;
  }
}

TEST(Preferences, AreInTheConfigurationFolderOrInTheHomeFolder) {
  const ScratchFolder folder;
  const fs::path config = folder.Path() / "Konfiguration é" / "deep";
  const fs::path home = folder.Path() / "home";
  setenv("HOME", home.c_str(), 1);
  setenv("XDG_CONFIG_HOME", config.c_str(), 1);
  EXPECT_EQ(SpecialFolder::Preferences().Path(), config);
  EXPECT_EQ(fs::status(config).permissions(), fs::perms::owner_all) << "created for nobody else";
  setenv("XDG_CONFIG_HOME", "relative/folder", 1);
  EXPECT_EQ(SpecialFolder::Preferences().Path(), home / ".config");
  unsetenv("XDG_CONFIG_HOME");
  EXPECT_EQ(SpecialFolder::Preferences().Path(), home / ".config");
  unsetenv("HOME");
  EXPECT_TRUE(SpecialFolder::Preferences().Path().empty());
  EXPECT_FALSE(SpecialFolder::Preferences().Child("x").Exists());
  EXPECT_EQ(SpecialFolder::Preferences().Child("x").Name(), "x");
}

}  // namespace fundlet
