#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "plan/entry_form.h"

// The main window as data: what it is made of, where everything stands and what it says.
namespace fundlet::main_layout {

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
  FocusCode code;
  std::string_view field;
  std::string_view label;
  int alignment;
};

// All controls, in the order in which they are made.
std::span<const ControlRow> Controls();
// The entry fields, in the order of their codes.
std::span<const FieldRow> Fields();
const FieldRow& Field(FocusCode code);

// The property sets.
std::string WindowSet();
std::string ControlSet(const ControlRow& row);

}  // namespace fundlet::main_layout
