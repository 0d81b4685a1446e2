#include "ui/property_orders.h"

namespace fundlet::order {

namespace {

constexpr Colour kBlack{0x00, 0x00, 0x00};
constexpr Colour kWhite{0xFF, 0xFF, 0xFF};
constexpr Colour kPaleGreen{0xCC, 0xFF, 0xCC};
constexpr std::int64_t kAlone = -2147483648;  // no member of an array of controls

constexpr Property kWindow[] = {
    {"Width", 0},
    {"Height", 0},
    {"MinWidth", 64},
    {"MinHeight", 64},
    {"MaxWidth", 32000},
    {"MaxHeight", 32000},
    {"Frame", 0},
    {"Title", ""},
    {"CloseButton", true},
    {"Resizeable", false},
    {"MaximizeButton", false},
    {"MinimizeButton", true},
    {"FullScreenButton", false},
    {"Composite", false},
    {"MacProcID", 0},
    {"Placement", 0},
    {"Visible", true},
    {"LiveResize", true},
    {"FullScreen", false},
    {"HasBackColor", true},
    {"BackColor", kPaleGreen},
    {"MenuBarVisible", true},
};

constexpr Property kLabel[] = {
    {"InitialParent", ""}, {"DataField", ""},    {"DataSource", ""},
    {"Underline", false},  {"Italic", false},    {"Bold", false},
    {"TextUnit", false},   {"TextSize", 12.0F},  {"TextFont", "System"},
    {"AutoDeactivate", true}, {"HelpTag", ""},   {"Transparent", false},
    {"Selectable", false}, {"Visible", true},    {"Enabled", true},
    {"Multiline", false},  {"TextColor", kBlack}, {"TextAlign", 0},
    {"Text", ""},          {"TabIndex", 0},      {"TabPanelIndex", 0},
    {"LockBottom", false}, {"LockRight", false}, {"LockTop", false},
    {"LockLeft", false},   {"Height", 0},        {"Width", 0},
    {"Top", 0},            {"Left", 0},          {"Index", kAlone},
    {"Name", ""},          {"TabStop", true},
};

constexpr Property kTextField[] = {
    {"InitialParent", ""}, {"DataField", ""},
    {"DataSource", ""},    {"AutomaticallyCheckSpelling", false},
    {"Alignment", 0},      {"AcceptTabs", false},
    {"LimitText", 0},      {"ReadOnly", false},
    {"Mask", ""},          {"Text", ""},
    {"CueText", ""},       {"Underline", false},
    {"Italic", false},     {"Bold", false},
    {"TextUnit", false},   {"TextSize", 12.0F},
    {"TextFont", "System"}, {"AutoDeactivate", true},
    {"HelpTag", ""},       {"Visible", true},
    {"Format", ""},        {"Enabled", true},
    {"BackColor", kWhite}, {"TextColor", kBlack},
    {"UseFocusRing", true}, {"Password", false},
    {"Border", true},      {"TabStop", true},
    {"TabIndex", 0},       {"TabPanelIndex", 0},
    {"LockBottom", false}, {"LockRight", false},
    {"LockTop", false},    {"LockLeft", false},
    {"Height", 0},         {"Width", 0},
    {"Top", 0},            {"Left", 0},
    {"Index", kAlone},     {"Name", ""},
};

constexpr Property kTextArea[] = {
    {"InitialParent", ""},      {"DataField", ""},
    {"DataSource", ""},         {"AutomaticallyCheckSpelling", true},
    {"Alignment", 0},           {"AcceptTabs", false},
    {"LimitText", 0},           {"ReadOnly", true},
    {"Mask", ""},               {"Text", ""},
    {"Underline", false},       {"Italic", false},
    {"Bold", false},            {"TextUnit", false},
    {"TextSize", 12.0F},        {"TextFont", "Geneva"},
    {"LineSpacing", 1.0},       {"LineHeight", 0.0},
    {"HideSelection", true},    {"AutoDeactivate", true},
    {"HelpTag", ""},            {"Visible", true},
    {"Format", ""},             {"Enabled", true},
    {"BackColor", kWhite},      {"TextColor", kBlack},
    {"UseFocusRing", false},    {"Styled", false},
    {"ScrollbarVertical", true}, {"ScrollbarHorizontal", false},
    {"Multiline", true},        {"Border", true},
    {"TabStop", true},          {"TabIndex", 0},
    {"TabPanelIndex", 0},       {"LockBottom", false},
    {"LockRight", false},       {"LockTop", false},
    {"LockLeft", false},        {"Height", 0},
    {"Width", 0},               {"Top", 0},
    {"Left", 0},                {"Index", kAlone},
    {"Name", ""},
};

constexpr Property kPushButton[] = {
    {"InitialParent", ""}, {"Underline", false},  {"Italic", false},
    {"Bold", false},       {"TextUnit", false},   {"TextSize", 12.0F},
    {"TextFont", "System"}, {"ButtonStyle", 0},   {"AutoDeactivate", true},
    {"HelpTag", ""},       {"Visible", true},     {"Enabled", true},
    {"Cancel", false},     {"Default", false},    {"Caption", ""},
    {"TabStop", true},     {"TabIndex", 0},       {"TabPanelIndex", 0},
    {"LockBottom", false}, {"LockRight", false},  {"LockTop", false},
    {"LockLeft", false},   {"Height", 0},         {"Width", 0},
    {"Top", 0},            {"Left", 0},           {"Index", kAlone},
    {"Name", ""},
};

constexpr Property kRule[] = {
    {"Enabled", true},     {"AutoDeactivate", true}, {"HelpTag", ""},
    {"Visible", true},     {"InitialParent", ""},    {"TabStop", true},
    {"TabIndex", 0},       {"TabPanelIndex", 0},     {"LockBottom", false},
    {"LockRight", false},  {"LockTop", false},       {"LockLeft", false},
    {"Height", 0},         {"Width", 0},             {"Top", 0},
    {"Left", 0},           {"Index", kAlone},        {"Name", ""},
};

}  // namespace

std::span<const Property> OfWindow() { return kWindow; }
std::span<const Property> OfLabel() { return kLabel; }
std::span<const Property> OfTextField() { return kTextField; }
std::span<const Property> OfTextArea() { return kTextArea; }
std::span<const Property> OfPushButton() { return kPushButton; }
std::span<const Property> OfRule() { return kRule; }

}  // namespace fundlet::order
