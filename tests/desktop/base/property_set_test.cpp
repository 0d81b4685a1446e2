#include "desktop/base/property_set.h"

#include <optional>

#include <gtest/gtest.h>

#include "desktop/controls/label.h"
#include "desktop/run/runtime.h"
#include "tests/services/scratch_folder.h"

namespace fundlet {
namespace {

using namespace std::string_literals;

// A window with a label, in a program that has nothing else.
class PropertySet : public ::testing::Test {
 protected:
  void SetUp() override {
    SetVariable("QT_QPA_PLATFORM", "offscreen");
    runtime_.Start([this] { RegisterApplication(application_); }, [this] { window_.emplace(); });
    window_->_AddControl("Sign", std::make_unique<Label>(*window_));
    window_->SetTitle("Title");
  }

  Application application_;
  Runtime runtime_{"desktop_test"};
  std::optional<Window> window_;
};

TEST_F(PropertySet, ErrorNamesObjectAndPropertyAndKeepsEarlierEntries) {
  auto& sign = window_->ControlOf<Label>("Sign");
  const auto set = [&](const std::string& bytes) {
    return [&, bytes] { sign._SetProperties(bytes); };
  };
  const Property caption{"Caption", "x"};
  const auto encode = [&] { EncodePropertySet(sign.Properties(), {&caption, 1}); };
  const std::pair<std::function<void()>, const char*> errors[] = {
      {set("MenuBarVisible \x01"),
       "control “Sign”, property “MenuBarVisible”: there is no such property"},
      {set("Left \x01\0"s), "control “Sign”, property “Left”: the set ends inside the value"},
      {set("Text \xFF\xFF\xFF\xFFx"),
       "control “Sign”, property “Text”: the set ends inside the value"},
      {set("Text \x02\0\0\0okText"s), "control “Sign”, property “”: a name without a value"},
      {[&] { window_->_SetProperties("TabIndex x"); },
       "window “Title”, property “TabIndex”: there is no such property"},
      {encode, "no place for the property “Caption”"},
  };
  for (const auto& [action, error] : errors) EXPECT_EQ(ErrorOf(action), error);
  EXPECT_EQ(sign.Text(), "ok");
}

}  // namespace
}  // namespace fundlet
