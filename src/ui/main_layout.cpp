#include "ui/main_layout.h"

#include <iterator>

#include "desktop/controls/control.h"
#include "services/text.h"

namespace fundlet::main_layout {

namespace {

using enum ControlClass;

constexpr ControlRow kControls[] = {
    {"StaticText1", Label, 19, 22, 107, 20, 0, "Start with 1 Jan:"},
    {"StartYearField", TextField, 128, 22, 39, 20, 1, "9999",
     "Enter the year in which you will first draw money from your fundlet."},
    {"StaticText2", Label, 195, 22, 86, 20, 2, "Age on 1 Jan:"},
    {"StartAgeField", TextField, 285, 22, 24, 20, 3, "99",
     "Enter your age in years (52-95) on January 1st of the first year."},
    {"StaticText3", Label, 319, 22, 38, 20, 4, "Years"},
    {"StaticText4", Label, 387, 22, 100, 20, 5, "Life Expectancy:"},
    {"YearsLeftField", TextField, 495, 22, 24, 20, 6, "99",
     "Enter the number of years (4-40) you expect to live after the first year.\r\rUse the Edit "
     "menu to fill in standard life expectancies."},
    {"StaticText5", Label, 531, 22, 40, 20, 7, "Years"},
    {"StaticText6", Label, 618, 22, 37, 20, 8, "COLA:"},
    {"COLAField", TextField, 658, 22, 44, 20, 9, "99.99",
     "Enter your expected long-term annual cost of living adjustment (COLA) in percent. This is "
     "the same as the expected annual inflation rate."},
    {"StaticText7", Label, 707, 22, 21, 20, 10, "%"},
    {"Separator1", Separator, 20, 56, 690, 4, 11, ""},
    {"StaticText8", Label, 20, 78, 113, 20, 12, "Initial Fundlet:  $"},
    {"StartFundletField", TextField, 137, 78, 78, 20, 13, "999,999,999",
     "Enter the value of your fundlet at the beginning of the first year (up to $1 billion)."},
    {"StaticText9", Label, 240, 78, 146, 20, 14, "After-Tax Fundlet APR:"},
    {"FundletAPRField", TextField, 391, 78, 44, 20, 15, "99.99",
     "Enter the after-tax annual percentage rate (APR) you expect to earn on your fundlet."},
    {"StaticText10", Label, 441, 78, 21, 20, 16, "%"},
    {"StaticText11", Label, 497, 78, 151, 20, 17, "Initial Social Security:  $"},
    {"SocialSecurityField", TextField, 653, 78, 49, 20, 18, "99,999",
     "Enter the amount of after-tax social security you will receive in the first year (up to "
     "$100,000)."},
    {"Separator2", Separator, 20, 116, 690, 4, 19, ""},
    {"StaticText13", Label, 18, 140, 131, 20, 20, "Terminal Fundlet:  $"},
    {"CalculateButton", PushButton, 288, 140, 164, 20, 22, "Calculate Annual Draw",
     "Click this button to calculate the amount of money you can draw from your fundlet in the "
     "first year to ensure that your fundlet will last till you die, leaving the terminal amount."},
    {"EndFundletField", TextField, 153, 140, 78, 20, 21, "999,999,999",
     "Enter the value of your fundlet that you wish to remain at the end of your life expectancy "
     "(up to $1 billion, but not greater than the initial fundlet)."},
    {"AnnualDrawField", Label, 490, 137, 212, 20, 24, "Initial Year Draw:  $9,999,999,999",
     "This is the amount of money you can draw from your fundlet in the first year to ensure that "
     "your fundlet will last till you die, leaving the terminal amount."},
    {"Windmill", ProgressWheel, 469, 141, 16, 16, 24, ""},
    {"PrintButton", PushButton, 288, 180, 164, 20, 26, "Save Schedule",
     "Click this button to save a schedule of draws to a tab=delimited file which can be imported "
     "into a spreadsheet program."},
    {"SaveButton", PushButton, 20, 180, 164, 20, 25, "Remember Parameters",
     "Click this button to remember the current set of parameters."},
    {"RestoreButton", PushButton, 538, 180, 164, 20, 27, "Recall Paremeters",
     "Click this button to recall the previously remembered set of paremeters."},
};

constexpr FieldRow kFields[] = {
    {"StartYearField", "StaticText1"},       {"StartAgeField", "StaticText2"},
    {"YearsLeftField", "StaticText4"},       {"COLAField", "StaticText6"},
    {"StartFundletField", "StaticText8"},    {"FundletAPRField", "StaticText9"},
    {"SocialSecurityField", "StaticText11"}, {"EndFundletField", "StaticText13"},
};
static_assert(std::size(kFields) == kFieldCount);

// Properties of single controls, beyond those of their class and of their row.
struct OwnProperty {
  std::string_view control;
  Property property;
};

constexpr OwnProperty kOwnProperties[] = {
    {"COLAField", {"Alignment", kFieldAlignment.right}},
    {"FundletAPRField", {"Alignment", kFieldAlignment.right}},
    {"AnnualDrawField", {"TextAlign", kLabelAlignment.right}},
    {"Windmill", {"Visible", false}},
    {"CalculateButton", {"Default", true}},
    {"PrintButton", {"Enabled", false}},
    {"RestoreButton", {"LockRight", true}},
};

void AddTextProperties(const ControlRow& row, std::vector<Property>& own) {
  if (row.control_class == PushButton) own.push_back({"Caption", row.text});
  if (row.control_class == Label || row.control_class == TextField) {
    own.push_back({"Text", row.text});
  }
  // The text of a field at its creation is the longest that the user can type.
  if (row.control_class == TextField) {
    own.push_back({"LimitText", static_cast<std::int64_t>(Len(row.text))});
  }
}

}  // namespace

std::span<const ControlRow> Controls() { return kControls; }
std::span<const FieldRow> Fields() { return kFields; }
const FieldRow& Field(FocusCode code) { return Fields()[static_cast<std::size_t>(code) - 1]; }

std::span<const Property> WindowProperties() {
  static constexpr Property kOwn[] = {
      {"Title", "Fundlet"}, {"Width", 740}, {"Height", 220}, {"BackColor", kPaleGreen}};
  return kOwn;
}

std::vector<Property> ControlProperties(const ControlRow& row) {
  std::vector<Property> own = {
      {"Name", row.name},        {"Left", row.left},     {"Top", row.top},
      {"Width", row.width},      {"Height", row.height}, {"TabIndex", row.tab_index},
      {"HelpTag", row.help_tag},
  };
  AddTextProperties(row, own);
  for (const auto& [control, property] : kOwnProperties) {
    if (control == row.name) own.push_back(property);
  }
  return own;
}

}  // namespace fundlet::main_layout
