#include "desktop/base/menu.h"

#include <algorithm>
#include <utility>

#include "services/exceptions.h"

namespace fundlet {

void MenuItem::Append(std::unique_ptr<MenuItem> item) { children_.push_back(std::move(item)); }

MenuItem& MenuItem::Child(std::string_view name) const {
  for (const auto& child : children_) {
    if (child->Name == name) return *child;
  }
  throw NilObjectException("The menu “" + Name + "” has no item “" + std::string(name) + "”.");
}

MenuItem* MenuItem::Find(std::string_view name) const {
  for (const auto& child : children_) {
    if (child->Name == name) return child.get();
    if (MenuItem* found = child->Find(name); found != nullptr) return found;
  }
  return nullptr;
}

MenuItem& MenuItem::_Lookup(std::string_view name) const {
  if (MenuItem* found = Find(name); found != nullptr) return *found;
  throw NilObjectException("The menus have no item “" + std::string(name) + "”.");
}

bool MenuItem::OpensMenu() const {
  return std::any_of(children_.begin(), children_.end(),
                     [](const auto& child) { return child->IsShown(); });
}

void MenuItem::ForEach(const std::function<void(MenuItem&)>& visit) const {
  for (const auto& child : children_) {
    visit(*child);
    child->ForEach(visit);
  }
}

}  // namespace fundlet
