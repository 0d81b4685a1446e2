#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "desktop/base/property_set.h"
#include "plan/entry_form.h"

// The main window as data: its controls, with their places, sizes and texts.
namespace fundlet::main_layout {

inline constexpr Colour kPaleGreen{0xCC, 0xFF, 0xCC};  // the background of the windows

enum class ControlClass { Label, TextField, PushButton, Separator, ProgressWheel };

// One control. Positions and sizes are in pixels, within the content area.
struct ControlRow {
  std::string_view name;
  ControlClass control_class;
  int left;
  int top;
  int width;
  int height;
  int tab_index;
  std::string_view text;  // the caption of a button; empty for controls without a text
  std::string_view help_tag = {};
};

// One entry field, and the label that names it for a screen reader.
struct FieldRow {
  std::string_view field;
  std::string_view label;
};

// All controls, in the order of their creation.
std::span<const ControlRow> Controls();
// The entry fields, in the order of their codes.
std::span<const FieldRow> Fields();
const FieldRow& Field(FocusCode code);  // of a field, not of None

// The properties of the window and of each control that differ from the defaults of their class.
std::span<const Property> WindowProperties();
std::vector<Property> ControlProperties(const ControlRow& row);

}  // namespace fundlet::main_layout
