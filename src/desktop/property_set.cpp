#include "desktop/property_set.h"

#include <algorithm>
#include <bit>

namespace fundlet {

namespace {

template <typename Unsigned>
void AppendBytes(std::string& set, Unsigned bits) {
  for (std::size_t at = 0; at < sizeof(bits); ++at) set += static_cast<char>(bits >> (8 * at));
}

struct Encoder {
  std::string& set;

  void operator()(std::int64_t value) const { AppendBytes(set, static_cast<std::uint64_t>(value)); }
  void operator()(bool value) const { set += static_cast<char>(value ? 1 : 0); }
  void operator()(std::string_view value) const {
    AppendBytes(set, static_cast<std::uint32_t>(value.size()));
    set += value;
  }
  void operator()(float value) const { AppendBytes(set, std::bit_cast<std::uint32_t>(value)); }
  void operator()(double value) const { AppendBytes(set, std::bit_cast<std::uint64_t>(value)); }
  void operator()(Colour value) const {
    for (const std::uint8_t part : {value.red, value.green, value.blue, std::uint8_t{0}}) {
      set += static_cast<char>(part);
    }
  }
};

const Property* FindProperty(std::span<const Property> properties, std::string_view name) {
  const auto found =
      std::find_if(properties.begin(), properties.end(),
                   [name](const Property& property) { return property.name == name; });
  return found != properties.end() ? &*found : nullptr;
}

}  // namespace

std::string EncodePropertySet(std::span<const Property> order, std::span<const Property> own) {
  for (const Property& property : own) {
    if (FindProperty(order, property.name) == nullptr) {
      throw PropertyError("no place for the property “" + std::string(property.name) + "”");
    }
  }
  std::string set;
  for (const Property& entry : order) {
    const Property* given = FindProperty(own, entry.name);
    set.append(entry.name) += ' ';
    std::visit(Encoder{set}, given != nullptr ? given->value : entry.value);
  }
  return set;
}

const PropertySetter* FindIn(std::span<const PropertyRow> rows, std::string_view name) {
  const auto found = std::find_if(rows.begin(), rows.end(),
                                  [name](const PropertyRow& row) { return row.name == name; });
  return found != rows.end() ? &found->set : nullptr;
}

namespace {

// What is left of a property set, taken from the front.
class Remainder {
 public:
  explicit Remainder(std::string_view set) : rest_(set) {}
  bool Empty() const { return rest_.empty(); }

  std::string_view TakeName() {
    const std::size_t space = rest_.find(' ');
    if (space == std::string_view::npos) throw PropertyError("a name without a value");
    const std::string_view name = Take(space);
    Take(1);
    return name;
  }
  std::string_view Take(std::size_t count) {
    if (count > rest_.size()) throw PropertyError("the set ends inside the value");
    const std::string_view bytes = rest_.substr(0, count);
    rest_.remove_prefix(count);
    return bytes;
  }
  template <typename Unsigned>
  Unsigned TakeBits() {
    Unsigned bits = 0;
    const std::string_view bytes = Take(sizeof(Unsigned));
    for (std::size_t at = 0; at < bytes.size(); ++at) {
      bits |= static_cast<Unsigned>(static_cast<std::uint8_t>(bytes[at])) << (8 * at);
    }
    return bits;
  }

 private:
  std::string_view rest_;
};

// Takes a value of the kind that the setter wants, and sets it.
struct Applier {
  PropertyTarget& target;
  Remainder& rest;

  void operator()(SetFunction<std::int64_t> set) const {
    set(target, static_cast<std::int64_t>(rest.TakeBits<std::uint64_t>()));
  }
  void operator()(SetFunction<bool> set) const { set(target, rest.Take(1).front() != 0); }
  void operator()(SetFunction<std::string_view> set) const {
    const auto length = rest.TakeBits<std::uint32_t>();
    set(target, rest.Take(length));
  }
  void operator()(SetFunction<float> set) const {
    set(target, std::bit_cast<float>(rest.TakeBits<std::uint32_t>()));
  }
  void operator()(SetFunction<double> set) const {
    set(target, std::bit_cast<double>(rest.TakeBits<std::uint64_t>()));
  }
  void operator()(SetFunction<Colour> set) const {
    const std::string_view bytes = rest.Take(4);
    const auto part = [bytes](std::size_t at) { return static_cast<std::uint8_t>(bytes[at]); };
    set(target, Colour{part(0), part(1), part(2)});
  }
};

}  // namespace

void PropertyTarget::_SetProperties(std::string_view set) {
  Remainder rest(set);
  std::string name;
  applying_set_ = true;
  try {
    while (!rest.Empty()) {
      name.clear();
      name = rest.TakeName();
      const PropertySetter* setter = FindSetter(name);
      if (setter == nullptr) throw PropertyError("there is no such property");
      std::visit(Applier{*this, rest}, *setter);
    }
  } catch (const PropertyError& error) {
    applying_set_ = false;
    throw PropertyError(Described() + ", property “" + name + "”: " + error.what());
  }
  applying_set_ = false;
  SetApplied();
}

}  // namespace fundlet
