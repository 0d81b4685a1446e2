#pragma once

#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace fundlet {

// An item's effect on the text that has the focus.
enum class EditCommand { None, Undo, Cut, Copy, Paste, Clear };

// One item of the menus. Its name is unique in the whole tree. The tree is data; a window shows it.
//
// An item with the text "-" is a separator line. An empty item has no text and is not shown; an
// item whose children are all empty works as a command.
class MenuItem {
 public:
  virtual ~MenuItem() = default;

  std::string Name;
  std::string Text;
  bool AutoEnable = false;  // enabled at each menu update if a handler or editing command can act
  bool Visible = false;
  std::string KeyboardShortcut;  // such as "Cmd+S"; empty for none
  EditCommand Edits = EditCommand::None;

  void Append(std::unique_ptr<MenuItem> item) { children_.push_back(std::move(item)); }
  // The direct child of that name; NilObjectException if there is none.
  MenuItem& Child(std::string_view name) const;
  // The item of that name at any depth; NilObjectException if there is none.
  MenuItem& _Lookup(std::string_view name) const;

  // Whether the item can be chosen, as of the last menu update.
  void Enable() { enabled_ = true; }
  void Disable() { enabled_ = false; }
  bool Enabled() const { return enabled_; }

  bool IsSeparator() const { return Text == "-"; }
  bool IsShown() const { return Visible && !Text.empty(); }
  bool OpensMenu() const { return std::ranges::any_of(children_, &MenuItem::IsShown); }
  const std::vector<std::unique_ptr<MenuItem>>& Children() const { return children_; }
  // Calls the function for this item's descendants, depth first, in their order.
  void ForEach(const std::function<void(MenuItem&)>& visit) const;

 private:
  std::vector<std::unique_ptr<MenuItem>> children_;
  bool enabled_ = false;
};

// The item that quits; it needs no handler.
class QuitMenuItem : public MenuItem {};

// An item that a platform with an application menu shows in that menu.
class AppleMenuItem : public MenuItem {};

// The root of a tree of items; its children are the menus of the bar.
class MenuBar : public MenuItem {};

}  // namespace fundlet
