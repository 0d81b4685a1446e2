#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>

// A property set describes a window or a control as one byte string: entry after entry, each the
// property's name in ASCII, one space, and the value. A value carries no mark of its kind; the
// receiver knows it from the name.
//
//   integer  8 bytes, least significant first, signed
//   boolean  1 byte, 0 or 1
//   string   4 bytes with the length, least significant first, then UTF-8
//   single   4 bytes, IEEE 754, least significant first
//   double   8 bytes, likewise
//   colour   4 bytes: red, green, blue, 0
namespace fundlet {

struct Colour {
  std::uint8_t red;
  std::uint8_t green;
  std::uint8_t blue;
  bool operator==(const Colour&) const = default;
};
inline constexpr Colour kBlack{0x00, 0x00, 0x00};
inline constexpr Colour kWhite{0xFF, 0xFF, 0xFF};

using PropertyValue = std::variant<std::int64_t, bool, std::string_view, float, double, Colour>;

struct Property {
  std::string_view name;
  PropertyValue value;
};

// A property set that cannot be made or applied. The message names the object and the property.
class PropertyError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

class PropertyTarget;

// One property of a class of objects, for the table of all of them in the order of their entries.
struct PropertyRow {
  std::string_view name;
  PropertyValue common;  // where an object says no other; it also tells the kind of the value
  // Sets a value of that kind on an object of the class; null where this platform has no use for
  // the property, whose value is then read and dropped.
  void (*set)(PropertyTarget&, const PropertyValue&) = nullptr;
};
using PropertyTable = std::span<const PropertyRow>;

// The tables one behind the other, as one.
template <std::size_t... kSizes>
constexpr auto Joined(const std::array<PropertyRow, kSizes>&... parts) {
  std::array<PropertyRow, (kSizes + ...)> rows{};
  auto at = rows.begin();
  ((at = std::copy(parts.begin(), parts.end(), at)), ...);
  return rows;
}

// A set with one entry for each row, in their order, each with its value from `own`, or with the
// common one where `own` has none. PropertyError for a property of `own` that the table lacks.
std::string EncodePropertySet(PropertyTable table, std::span<const Property> own);

// Something that has properties.
class PropertyTarget {
 public:
  virtual ~PropertyTarget() = default;
  // The properties that objects of this class have.
  virtual PropertyTable Properties() const = 0;
  // Sets each named property in turn. PropertyError for a name that the object does not know and
  // for a set that ends in the middle of an entry; the entries before it have been set.
  void _SetProperties(std::string_view set);

 protected:
  // What the object is called in an error.
  virtual std::string Described() const = 0;
  // Whether a set is being applied, and what is to be done once when it has been.
  bool ApplyingSet() const { return applying_set_; }
  virtual void SetApplied() {}

 private:
  void ApplyEntries(std::string_view set);

  bool applying_set_ = false;
};

template <auto Method>
struct PropertyMethod;
template <typename Class, typename Value, void (Class::*Method)(Value)>
struct PropertyMethod<Method> {
  static void Set(PropertyTarget& target, const PropertyValue& value) {
    (static_cast<Class&>(target).*Method)(std::get<Value>(value));
  }
};

// How a row sets its property: through a member function of the class.
template <auto Method>
inline constexpr auto kThrough = &PropertyMethod<Method>::Set;

}  // namespace fundlet
