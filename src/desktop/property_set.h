#pragma once

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

// A set with the entries of `order`, in that order, each with its value from `own`, or with the one
// given in `order` where `own` has none. PropertyError for a property of `own` that `order` lacks.
std::string EncodePropertySet(std::span<const Property> order, std::span<const Property> own);

// Something that has properties: how one value is set on it.
class PropertyTarget;
template <typename Value>
using SetFunction = void (*)(PropertyTarget&, Value);
using PropertySetter =
    std::variant<SetFunction<std::int64_t>, SetFunction<bool>, SetFunction<std::string_view>,
                 SetFunction<float>, SetFunction<double>, SetFunction<Colour>>;

struct PropertyRow {
  std::string_view name;
  PropertySetter set;
};

class PropertyTarget {
 public:
  virtual ~PropertyTarget() = default;
  // Sets each named property in turn. PropertyError for a name that the object does not know and
  // for a set that ends in the middle of an entry; the entries before it have been set.
  void _SetProperties(std::string_view set);

 protected:
  // What the object is called in an error.
  virtual std::string Described() const = 0;
  // The setter of a property; null where the object does not have it.
  virtual const PropertySetter* FindSetter(std::string_view name) const = 0;
  // Whether a set is being applied, and what is to be done once when it has been.
  bool ApplyingSet() const { return applying_set_; }
  virtual void SetApplied() {}

 private:
  bool applying_set_ = false;
};

// The row of a table of properties that is set through a member function of its class.
template <auto Method>
struct SetThrough;
template <typename Class, typename Value, void (Class::*Method)(Value)>
struct SetThrough<Method> {
  static void Call(PropertyTarget& target, Value value) {
    (static_cast<Class&>(target).*Method)(value);
  }
  static constexpr SetFunction<Value> kFunction = &Call;
};

// A property that this platform has no use for: its value is read, and nothing follows.
template <typename Value>
inline constexpr SetFunction<Value> kNoEffect = [](PropertyTarget&, Value) {};

const PropertySetter* FindIn(std::span<const PropertyRow> rows, std::string_view name);

}  // namespace fundlet
