#include "desktop/base/property_set.h"

#include <gtest/gtest.h>

#include "desktop/controls/label.h"
#include "desktop/controls/text_field.h"
#include "tests/desktop/bare_window.h"
#include "tests/services/scratch_folder.h"

namespace fundlet {
namespace {

using namespace std::string_literals;

std::string Encoded(const PropertyRow& row) { return EncodePropertySet({&row, 1}, {}); }

TEST(PropertySet, EncodesEachKindOfValue) {
  EXPECT_EQ(Encoded({"Width", 740}), "Width \xE4\x02\0\0\0\0\0\0"s);
  EXPECT_EQ(Encoded({"Index", -2147483648}), "Index \0\0\0\x80\xFF\xFF\xFF\xFF"s);
  EXPECT_EQ(Encoded({"Bold", true}), "Bold \x01"s);
  EXPECT_EQ(Encoded({"TextUnit", false}), "TextUnit \0"s);
  EXPECT_EQ(Encoded({"Text", "é…"}), "Text \x05\0\0\0é…"s);
  EXPECT_EQ(Encoded({"Mask", ""}), "Mask \0\0\0\0"s);
  EXPECT_EQ(Encoded({"TextSize", 12.0F}), "TextSize \0\0\x40\x41"s);
  EXPECT_EQ(Encoded({"LineSpacing", 1.0}), "LineSpacing \0\0\0\0\0\0\xF0\x3F"s);
  EXPECT_EQ(Encoded({"BackColor", Colour{0xCC, 0xFF, 0xCE}}), "BackColor \xCC\xFF\xCE\0"s);
}

// A window with a label and a field.
class Registry : public BareWindow {
 protected:
  void SetUp() override {
    BareWindow::SetUp();
    Add<Label>("Sign");
    Add<TextField>("Entry");
  }

  Label& Sign() { return window_->ControlOf<Label>("Sign"); }
};
using AppliedSet = Registry;

TEST_F(AppliedSet, HasTheEntriesOfItsClassInTheirOrder) {
  const Property own[] = {{"Name", "Sign"}, {"Text", "%"}, {"Left", 707}};
  const std::string zero(8, '\0');
  EXPECT_EQ(
      EncodePropertySet(Sign().Properties(), own),
      "InitialParent \0\0\0\0DataField \0\0\0\0DataSource \0\0\0\0Underline \0Italic \0Bold \0"
      "TextUnit \0TextSize \0\0\x40\x41TextFont \x06\0\0\0System"
      "AutoDeactivate \x01HelpTag \0\0\0\0Transparent \0Selectable \0Visible \x01"
      "Enabled \x01Multiline \0TextColor \0\0\0\0TextAlign "s +
          zero + "Text \x01\0\0\0%TabIndex "s + zero + "TabPanelIndex " + zero +
          "LockBottom \0LockRight \0LockTop \0LockLeft \0Height "s + zero + "Width " + zero +
          "Top " + zero + "Left \xC3\x02\0\0\0\0\0\0"s +
          "Index \0\0\0\x80\xFF\xFF\xFF\xFFName \x04\0\0\0SignTabStop \x01"s);
}

TEST_F(AppliedSet, ThatCannotBeAppliedNamesTheObjectAndThePropertyAfterSettingWhatComesBefore) {
  const std::pair<std::string, std::string> cases[] = {
      {"MenuBarVisible \x01", "property “MenuBarVisible”: there is no such property"},
      {"Left \x01\0"s, "property “Left”: the set ends inside the value"},
      {"Text \xFF\xFF\xFF\xFFx", "property “Text”: the set ends inside the value"},
      {"Text \x02\0\0\0okText"s, "property “”: a name without a value"},
  };
  for (const auto& [set, error] : cases) {
    EXPECT_EQ(ErrorOf([&] { Sign()._SetProperties(set); }), "control “Sign”, " + error);
  }
  EXPECT_EQ(Sign().Text(), "ok");
  window_->SetTitle("Title");
  EXPECT_EQ(ErrorOf([&] { window_->_SetProperties("TabIndex x"); }),
            "window “Title”, property “TabIndex”: there is no such property");
  EXPECT_EQ(ErrorOf([&] {
              const Property caption{"Caption", "x"};
              EncodePropertySet(Sign().Properties(), {&caption, 1});
            }),
            "no place for the property “Caption”");
}

TEST_F(Registry, FindsControlsAndMenuItemsByNameOnlyAndEachOnce) {
  MenuBar bar;
  auto menu = std::make_unique<MenuItem>();
  auto item = std::make_unique<MenuItem>();
  menu->Name = "FileMenu";
  item->Name = "FileSave";
  menu->Append(std::move(item));
  bar.Append(std::move(menu));
  EXPECT_EQ(bar._Lookup("FileSave").Name, "FileSave");
  EXPECT_EQ(ErrorOf([&] { bar.Child("FileSave"); }), "The menu “” has no item “FileSave”.");
  EXPECT_EQ(ErrorOf([&] { bar._Lookup("filesave"); }), "The menus have no item “filesave”.");
  EXPECT_EQ(ErrorOf([&] { window_->_ControlByName("Sigh"); }), "The window has no control “Sigh”.");
  EXPECT_EQ(ErrorOf([&] { window_->ControlOf<Label>("Entry"); }),
            "The control “Entry” is of another class.");
  EXPECT_EQ(ErrorOf([&] { window_->_AddControl("Sign", std::make_unique<Label>(*window_)); }),
            "The window has a control “Sign” already.");
  EXPECT_EQ(window_->Content().children().size(), 2);
}

}  // namespace
}  // namespace fundlet
