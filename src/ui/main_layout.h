#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "desktop/base/property_set.h"
#include "plan/entry_form.h"

// The main window as data: what it is made of, where everything stands and what it says.
namespace fundlet::main_layout {

inline constexpr Colour kPaleGreen{0xCC, 0xFF, 0xCC};  // the background of the windows

enum class ControlClass { Label, TextField, PushButton, Separator, ProgressWheel };

// One control. Positions and sizes are in pixels of the content area.
struct ControlRow {
  std::string_view name;
  ControlClass control_class;
  int left;
  int top;
  int width;
  int height;
  int tab_index;
  std::string_view text;  // or the caption
  std::string_view help_tag = {};
};

// One entry field beyond its row: the parameter behind it, the label that names it, and the side
// on which its text stands. Its text at creation is the longest that can be typed.
struct FieldRow {
  std::string_view field;
  std::string_view label;
  std::int64_t alignment;
};

// All controls, in the order in which they are made.
std::span<const ControlRow> Controls();
// The entry fields, in the order of their codes.
std::span<const FieldRow> Fields();
const FieldRow& Field(FocusCode code);

// What the window and each control say other than their class does.
std::span<const Property> WindowProperties();
std::vector<Property> ControlProperties(const ControlRow& row);

}  // namespace fundlet::main_layout
