#include <cerrno>
#include <functional>
#include <sys/stat.h>

#include <gtest/gtest.h>

#include "services/binary_stream.h"
#include "services/text_output_stream.h"
#include "tests/services/scratch_folder.h"

namespace fundlet {
namespace {

namespace fs = std::filesystem;

TEST(BinaryStream, KeepsNumbersBitForBitInTheByteOrderAskedFor) {
  const ScratchFolder folder;
  const std::string most_first("\xFF\xFE\x9C\x3F\x94\x7A\xE1\x47\xAE\x14\x7B", 11);
  const std::string least_first("\xFE\xFF\x9C\x7B\x14\xAE\x47\xE1\x7A\x94\x3F", 11);
  for (const bool little : {false, true}) {
    BinaryStream stream = BinaryStream::Create(folder.Item("numbers"), true);
    stream.LittleEndian = little;
    stream.WriteInt16(-2);
    stream.WriteInt8(-100);
    stream.WriteDouble(0.02);
    EXPECT_EQ(folder.Read("numbers"), little ? least_first : most_first) << "nothing is buffered";
    stream.SetPosition(0);
    EXPECT_EQ(stream.ReadInt16(), -2);
    EXPECT_EQ(stream.ReadInt8(), -100);
    EXPECT_EQ(stream.ReadDouble(), 0.02);
  }
}

TEST(BinaryStream, NamesTheFileTheActionAndTheReasonOfAFailure) {
  const ScratchFolder folder;
  folder.Write("short", "abc");
  fs::create_directory(folder.Path() / "folder");
  ASSERT_EQ(mkfifo((folder.Path() / "pipe").c_str(), 0600), 0);
  const auto open = [](const FolderItem& item) { BinaryStream::Open(item, true); };
  const auto create = [](const FolderItem& item) { BinaryStream::Create(item, true); };
  const auto make_new = [](const FolderItem& item) { BinaryStream::Create(item, false); };
  const auto read = [](const FolderItem& item) { BinaryStream::Open(item, true).ReadDouble(); };
  const struct {
    std::function<void(const FolderItem&)> operation;
    FolderItem item;
    int number;
    std::string rest;
  } failures[] = {
      {open, folder.Item("gone ½/x"), ENOENT, "opened: its folder is not there."},
      {create, folder.Item("gone/x"), ENOENT, "created: its folder is not there."},
      {open, folder.Item("folder"), EISDIR, "opened: there is a folder of that name."},
      {create, folder.Item("folder"), EISDIR, "created: there is a folder of that name."},
      {open, folder.Item("pipe"), -2,
       "opened: there is something of that name that is not a file."},
      {open, folder.Item("short/x"), ENOTDIR, "opened: a part of its path is not a folder."},
      {create, folder.Item(std::string(300, 'x')), ENAMETOOLONG, "created: its name is too long."},
      {make_new, folder.Item("short"), 104, "created: there is a file of that name already."},
      {read, folder.Item("short"), -1, "read: the file is shorter than it should be."},
      {create, FolderItem().Child("x"), -3,
       "created: you have no folder of your own to keep it in."},
  };
  for (const auto& [operation, item, number, rest] : failures) {
    const std::string name = item.Path().empty() ? item.Name() : item.Path().string();
    try {
      operation(item);
      ADD_FAILURE() << name << " was to fail: " << rest;
    } catch (const IOException& failure) {
      EXPECT_EQ(failure.ErrorNumber(), number) << failure.what();
      EXPECT_EQ(failure.what(), "File “" + name + "” could not be " + rest);
    }
  }
  EXPECT_EQ(folder.Read("short"), "abc");
  EXPECT_NO_THROW(make_new(folder.Item("new")));
  EXPECT_THROW(TextOutputStream::Create(std::nullopt), NilObjectException);
}

TEST(IOException, HasAReasonForAFaultThatItDoesNotKnow) {
  EXPECT_EQ(ReasonText(0), "the system does not say why");
  EXPECT_EQ(ReasonText(99999), "the system reports fault number 99999");
}

TEST(Preferences, AreInTheConfigurationFolderOrInTheHomeFolder) {
  const ScratchFolder folder;
  const fs::path config = folder.Path() / "Konfiguration é" / "deep";
  const fs::path home = folder.Path() / "home";
  setenv("HOME", home.c_str(), 1);
  setenv("XDG_CONFIG_HOME", config.c_str(), 1);
  EXPECT_EQ(SpecialFolder::Preferences().Path(), config);
  EXPECT_EQ(fs::status(config).permissions(), fs::perms::owner_all) << "made, for nobody else";
  setenv("XDG_CONFIG_HOME", "relative/folder", 1);
  EXPECT_EQ(SpecialFolder::Preferences().Path(), home / ".config");
  unsetenv("XDG_CONFIG_HOME");
  EXPECT_EQ(SpecialFolder::Preferences().Path(), home / ".config");
  unsetenv("HOME");
  EXPECT_TRUE(SpecialFolder::Preferences().Path().empty());
  EXPECT_FALSE(SpecialFolder::Preferences().Child("x").Exists());
  EXPECT_EQ(SpecialFolder::Preferences().Child("x").Name(), "x");
}

}  // namespace
}  // namespace fundlet
