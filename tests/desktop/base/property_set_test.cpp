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
    window_->SetTitle("Title");
  }

  Application application_;
  Runtime runtime_{"desktop_test"};
  std::optional<Window> window_;
};

TEST_F(Registry, NamesObjectAndPropertyOfAnError) {
  auto& sign = window_->ControlOf<Label>("Sign");
  const auto set = [&](const std::string& bytes) {
    return [&, bytes] { sign._SetProperties(bytes); };
  };
  const Property caption{"Caption", "x"};
  const MenuBar bar;
  const std::pair<std::function<void()>, const char*> errors[] = {
      {set("MenuBarVisible \x01"),
       "control “Sign”, property “MenuBarVisible”: there is no such property"},
      {set("Left \x01\0"s), "control “Sign”, property “Left”: the set ends inside the value"},
      {set("Text \xFF\xFF\xFF\xFFx"),
       "control “Sign”, property “Text”: the set ends inside the value"},
      {set("Text \x02\0\0\0okText"s), "control “Sign”, property “”: a name without a value"},
      {[&] { window_->_SetProperties("TabIndex x"); },
       "window “Title”, property “TabIndex”: there is no such property"},
      {[&] {
         EncodePropertySet(sign.Properties(), {&caption, 1});
       },
       "no place for the property “Caption”"},
      {[&] { bar._Lookup("filesave"); }, "The menus have no item “filesave”."},
      {[&] { window_->_ControlByName("Sigh"); }, "The window has no control “Sigh”."},
      {[&] { window_->ControlOf<Label>("Entry"); }, "The control “Entry” is of another class."},
      {[&] { window_->_AddControl("Sign", std::make_unique<Label>(*window_)); },
       "The window has a control “Sign” already."},
  };
  for (const auto& [action, error] : errors) EXPECT_EQ(ErrorOf(action), error);
  EXPECT_EQ(sign.Text(), "ok") << "an error keeps the entries before it";
}

}  // namespace
}  // namespace fundlet
