#include "desktop/base/property_set.h"

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

template <typename Named>
const Named* FindNamed(std::span<const Named> all, std::string_view name) {
  const auto found =
      std::find_if(all.begin(), all.end(), [name](const Named& one) { return one.name == name; });
  return found != all.end() ? &*found : nullptr;
}

}  // namespace

std::string EncodePropertySet(PropertyTable table, std::span<const Property> overrides) {
  for (const Property& property : overrides) {
    if (FindNamed(table, property.name) == nullptr) {
      throw PropertyError("no place for the property “" + std::string(property.name) + "”");
    }
  }
  std::string set;
  for (const PropertyRow& row : table) {
    const Property* given = FindNamed(overrides, row.name);
    set.append(row.name) += ' ';
    std::visit(Encoder{set}, given != nullptr ? given->value : row.default_value);
  }
  return set;
}

namespace {

// The part of a property set that has not been read yet.
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

// Reads a value of the same kind as the argument.
struct ValueTaker {
  Remainder& rest;

  PropertyValue operator()(std::int64_t) const {
    return static_cast<std::int64_t>(rest.TakeBits<std::uint64_t>());
  }
  PropertyValue operator()(bool) const { return rest.Take(1).front() != 0; }
  PropertyValue operator()(std::string_view) const {
    const auto length = rest.TakeBits<std::uint32_t>();
    return rest.Take(length);
  }
  PropertyValue operator()(float) const {
    return std::bit_cast<float>(rest.TakeBits<std::uint32_t>());
  }
  PropertyValue operator()(double) const {
    return std::bit_cast<double>(rest.TakeBits<std::uint64_t>());
  }
  PropertyValue operator()(Colour) const {
    const std::string_view bytes = rest.Take(4);
    const auto part = [bytes](std::size_t at) { return static_cast<std::uint8_t>(bytes[at]); };
    return Colour{part(0), part(1), part(2)};
  }
};

}  // namespace

void PropertyTarget::_SetProperties(std::string_view set) {
  struct Applying {
    bool& flag;
    ~Applying() { flag = false; }
  };
  applying_set_ = true;
  {
    const Applying until_done{applying_set_};
    ApplyEntries(set);
  }
  SetApplied();
}

void PropertyTarget::ApplyEntries(std::string_view set) {
  Remainder rest(set);
  std::string name;
  try {
    while (!rest.Empty()) {
      name.clear();
      name = rest.TakeName();
      const PropertyRow* row = FindNamed(Properties(), name);
      if (row == nullptr) throw PropertyError("there is no such property");
      const PropertyValue value = std::visit(ValueTaker{rest}, row->default_value);
      if (row->set != nullptr) row->set(*this, value);
    }
  } catch (const PropertyError& error) {
    throw PropertyError(Described() + ", property “" + name + "”: " + error.what());
  }
}

}  // namespace fundlet
