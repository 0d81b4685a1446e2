#pragma once

#include <span>

#include "desktop/property_set.h"

// The order of the entries in the property sets of each class, and the value that an entry has
// where a window or control says no other.
namespace fundlet::order {

std::span<const Property> OfWindow();
std::span<const Property> OfLabel();
std::span<const Property> OfTextField();
std::span<const Property> OfTextArea();
std::span<const Property> OfPushButton();
std::span<const Property> OfRule();  // Separator and ProgressWheel

}  // namespace fundlet::order
