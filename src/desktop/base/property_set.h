#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>

// A property set describes a window or a control as one byte string. Its entries follow one
// another; each is the property's name in ASCII, one space, and the value. A value carries no mark
// of its kind, which the receiver knows from the name.
//
//   integer  8 bytes, least significant first, signed
//   boolean  1 byte, 0 or 1
//   string   4 bytes with the length, least significant first, then UTF-8
//   single   4 bytes, IEEE 754, least significant first
//   double   8 bytes, IEEE 754, least significant first
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

// A property set cannot be made or applied. The message names the property and, if a set is being
// applied, the object.
class PropertyError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

class PropertyTarget;

// One property of a class of objects. A class has one table of rows, in the order of the entries of
// its sets.
struct PropertyRow {
  std::string_view name;
  PropertyValue default_value;  // its kind is the kind of the property
  // Sets a value of that kind on an object of the class. Null for a property that has no effect
  // here: its value is read and dropped.
  void (*set)(PropertyTarget&, const PropertyValue&) = nullptr;
};
using PropertyTable = std::span<const PropertyRow>;

// The rows of all parts, in their order, as one table.
template <std::size_t... kSizes>
constexpr auto Joined(const std::array<PropertyRow, kSizes>&... parts) {
  std::array<PropertyRow, (kSizes + ...)> rows{};
  auto at = rows.begin();
  ((at = std::copy(parts.begin(), parts.end(), at)), ...);
  return rows;
}

// A set with one entry for each row of the table, in their order: with the value from `overrides`
// or, where `overrides` has none, the default. PropertyError for a property of `overrides` that the
// table lacks.
std::string EncodePropertySet(PropertyTable table, std::span<const Property> overrides);

// An object with properties.
class PropertyTarget {
 public:
  virtual ~PropertyTarget() = default;
  // The properties that objects of this class have.
  virtual PropertyTable Properties() const = 0;
  // Sets the properties of the set in its order. PropertyError for a name that the object's class
  // lacks and for a set that ends inside an entry; the entries before have then been applied.
  void _SetProperties(std::string_view set);

 protected:
  // The object's name in an error.
  virtual std::string Described() const = 0;
  bool ApplyingSet() const { return applying_set_; }
  // Called once after a whole set has been applied.
  virtual void SetApplied() {}

 private:
  void ApplyEntries(std::string_view set);

  bool applying_set_ = false;
};

// The setter of a row that calls this member function of the class.
template <auto Method>
inline constexpr auto kThrough = [](PropertyTarget& target, const PropertyValue& value) {
  [&]<typename Class, typename Value>(void (Class::*method)(Value)) {
    (static_cast<Class&>(target).*method)(std::get<Value>(value));
  }(Method);
};

template <typename Class, typename Value>
using DataMember = Value Class::*;

// The setter of a row that stores the value in this data member.
template <auto Member>
inline constexpr auto kInto = [](PropertyTarget& target, const PropertyValue& value) {
  [&]<typename Class, typename Value>(DataMember<Class, Value> member) {
    static_cast<Class&>(target).*member = std::get<Value>(value);
  }(Member);
};

}  // namespace fundlet
