#include "desktop/base/menu.h"

#include "services/exceptions.h"

namespace fundlet {

MenuItem& MenuItem::Child(std::string_view name) const {
  const auto found = std::ranges::find(children_, name, &MenuItem::Name);
  if (found != children_.end()) return **found;
  throw NilObjectException("The menu “" + Name + "” has no item “" + std::string(name) + "”.");
}

MenuItem& MenuItem::_Lookup(std::string_view name) const {
  MenuItem* found = nullptr;
  ForEach([&](MenuItem& item) { found = item.Name == name ? &item : found; });
  if (found != nullptr) return *found;
  throw NilObjectException("The menus have no item “" + std::string(name) + "”.");
}

void MenuItem::ForEach(const std::function<void(MenuItem&)>& visit) const {
  for (const auto& child : children_) {
    visit(*child);
    child->ForEach(visit);
  }
}

}  // namespace fundlet
