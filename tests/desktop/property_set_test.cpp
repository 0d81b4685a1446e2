#include "desktop/property_set.h"

#include "tests/ui/window_fixture.h"
#include "ui/main_layout.h"

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

std::string Int(int value) {
  return {static_cast<char>(value & 0xFF), static_cast<char>(value >> 8), 0, 0, 0, 0, 0, 0};
}

using AppliedSet = StartedTest;
using Registry = StartedTest;

TEST_F(AppliedSet, HasTheEntriesOfItsClassInTheirOrder) {
  const auto& row = main_layout::Controls()[10];
  EXPECT_EQ(
      EncodePropertySet(Main().StaticText7().Properties(), main_layout::ControlProperties(row)),
      "InitialParent \0\0\0\0DataField \0\0\0\0DataSource \0\0\0\0Underline \0Italic \0Bold \0"
      "TextUnit \0TextSize \0\0\x40\x41TextFont \x06\0\0\0System"
      "AutoDeactivate \x01HelpTag \0\0\0\0Transparent \0Selectable \0Visible \x01"
      "Enabled \x01Multiline \0TextColor \0\0\0\0TextAlign "s +
          Int(0) + "Text \x01\0\0\0%TabIndex "s + Int(10) + "TabPanelIndex " + Int(0) +
          "LockBottom \0LockRight \0LockTop \0LockLeft \0Height "s + Int(20) + "Width " + Int(21) +
          "Top " + Int(22) + "Left " + Int(707) +
          "Index \0\0\0\x80\xFF\xFF\xFF\xFFName \x0B\0\0\0StaticText7TabStop \x01"s);
}

std::string ErrorOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const std::exception& error) {
    return error.what();
  }
  return "";
}

TEST_F(AppliedSet, ASetThatCannotBeAppliedNamesTheObjectAndTheProperty) {
  const struct {
    std::string set, error;
  } cases[] = {
      {"Colour x", "control “StartYearField”, property “Colour”: there is no such property"},
      {"MenuBarVisible \x01",
       "control “StartYearField”, property “MenuBarVisible”: there is no such property"},
      {"Left \x01\0"s, "control “StartYearField”, property “Left”: the set ends inside the value"},
      {"Text \xFF\xFF\xFF\xFFx",
       "control “StartYearField”, property “Text”: the set ends inside the value"},
      {"Text", "control “StartYearField”, property “”: a name without a value"},
      {"Bold \0Text"s, "control “StartYearField”, property “”: a name without a value"},
  };
  for (const auto& [set, error] : cases) {
    EXPECT_EQ(ErrorOf([&] { Main().StartYearField()._SetProperties(set); }), error);
  }
  EXPECT_EQ(ErrorOf([] { Main()._SetProperties("TabIndex " + Int(1)); }),
            "window “Fundlet”, property “TabIndex”: there is no such property");
  EXPECT_EQ(ErrorOf([] {
              const Property caption{"Caption", "x"};
              EncodePropertySet(Main().StaticText1().Properties(), {&caption, 1});
            }),
            "no place for the property “Caption”");
}

TEST_F(AppliedSet, TheEntriesBeforeAFaultHaveBeenSet) {
  EXPECT_THROW(Main().StaticText1()._SetProperties("Text \x02\0\0\0okWidth "s), PropertyError);
  EXPECT_EQ(Main().StaticText1().Text(), "ok");
}

TEST_F(Registry, ControlsAndMenuItemsAreFoundByNameOnly) {
  EXPECT_EQ(ErrorOf([] { Main().MenuBar().Child("Survival2"); }),
            "The menu “” has no item “Survival2”.");
  EXPECT_EQ(ErrorOf([] { Main().MenuBar()._Lookup("survival2"); }),
            "The menus have no item “survival2”.");
  EXPECT_EQ(ErrorOf([] { Main()._ControlByName("StaticText12"); }),
            "The window has no control “StaticText12”.");
  EXPECT_EQ(ErrorOf([] { Main().ControlOf<Label>("Windmill"); }),
            "The control “Windmill” is of another class.");
}

}  // namespace
}  // namespace fundlet
