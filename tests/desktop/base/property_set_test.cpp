#include "desktop/base/property_set.h"

#include <optional>

#include <gtest/gtest.h>

#include "desktop/controls/label.h"
#include "desktop/controls/text_field.h"
#include "desktop/run/runtime.h"
#include "tests/services/scratch_folder.h"

namespace fundlet {
namespace {

using namespace std::string_literals;

// A window with a label and a field, in a program that has nothing else.
class Registry : public ::testing::Test {
 protected:
  void SetUp() override {
    SetVariable("QT_QPA_PLATFORM", "offscreen");
    runtime_.Start([this] { RegisterApplication(application_); }, [this] { window_.emplace(); });
    window_->_AddControl("Sign", std::make_unique<Label>(*window_));
    window_->_AddControl("Entry", std::make_unique<TextField>(*window_));
  }

  Label& Sign() { return window_->ControlOf<Label>("Sign"); }

  Application application_;
  Runtime runtime_{"desktop_test"};
  std::optional<Window> window_;
};
using PropertySet = Registry;

TEST_F(PropertySet, ErrorNamesObjectAndPropertyAndKeepsEarlierEntries) {
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

TEST_F(Registry, FindsControlsAndMenuItemsByUniqueNames) {
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
}

}  // namespace
}  // namespace fundlet
