#include "desktop/property_set.h"

#include "tests/ui/window_fixture.h"

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

using AppliedSet = StartedTest;
using Registry = StartedTest;

TEST_F(AppliedSet, ThatCannotBeAppliedNamesTheObjectAndThePropertyAfterSettingWhatComesBefore) {
  const std::pair<std::string, std::string> cases[] = {
      {"MenuBarVisible \x01", "property “MenuBarVisible”: there is no such property"},
      {"Left \x01\0"s, "property “Left”: the set ends inside the value"},
      {"Text \xFF\xFF\xFF\xFFx", "property “Text”: the set ends inside the value"},
      {"Text \x02\0\0\0okText"s, "property “”: a name without a value"},
  };
  for (const auto& [set, error] : cases) {
    EXPECT_EQ(ErrorOf([&] { Main().StartYearField()._SetProperties(set); }),
              "control “StartYearField”, " + error);
  }
  EXPECT_EQ(Text("StartYearField"), "ok");
  EXPECT_EQ(ErrorOf([] { Main()._SetProperties("TabIndex x"); }),
            "window “Fundlet”, property “TabIndex”: there is no such property");
  EXPECT_EQ(ErrorOf([] {
              const Property caption{"Caption", "x"};
              EncodePropertySet(Main().StaticText1().Properties(), {&caption, 1});
            }),
            "no place for the property “Caption”");
}

TEST_F(Registry, FindsControlsAndMenuItemsByNameOnly) {
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
