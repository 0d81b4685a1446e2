#include "desktop/base/property_set.h"

#include <algorithm>
#include <bit>
#include <type_traits>

#include <QScopedValueRollback>

namespace fundlet {

namespace {

// The unsigned integer with the size of a number.
template <typename Number>
using BitsOf = std::conditional_t<sizeof(Number) == 8, std::uint64_t, std::uint32_t>;

// Appends a value to a set.
struct Encoder {
  std::string& set;

  template <typename Number>
  void operator()(Number value) const {
    const auto bits = std::bit_cast<BitsOf<Number>>(value);
    for (std::size_t at = 0; at < sizeof(bits); ++at) set += static_cast<char>(bits >> (8 * at));
  }
  void operator()(bool value) const { set += static_cast<char>(value ? 1 : 0); }
  void operator()(std::string_view value) const {
    (*this)(static_cast<std::uint32_t>(value.size()));
    set += value;
  }
  void operator()(Colour value) const {
    (*this)(value.red | std::uint32_t{value.green} << 8U | std::uint32_t{value.blue} << 16U);
  }
};

// Reads a set from its start.
class Decoder {
 public:
  explicit Decoder(std::string_view set) : rest_(set) {}
  bool AtEnd() const { return rest_.empty(); }

  std::string_view TakeName() {
    const std::size_t space = rest_.find(' ');
    if (space == std::string_view::npos) throw PropertyError("a name without a value");
    return Take(space + 1).substr(0, space);
  }

  // Reads a value of the same kind as the argument.
  template <typename Number>
  PropertyValue operator()(Number /*kind*/) {
    return TakeNumber<Number>();
  }
  PropertyValue operator()(bool /*kind*/) { return Take(1).front() != 0; }
  PropertyValue operator()(std::string_view /*kind*/) { return Take(TakeNumber<std::uint32_t>()); }
  PropertyValue operator()(Colour /*kind*/) {
    const auto bits = TakeNumber<std::uint32_t>();
    const auto part = [bits](int shift) { return static_cast<std::uint8_t>(bits >> shift); };
    return Colour{part(0), part(8), part(16)};
  }

 private:
  std::string_view Take(std::size_t count) {
    if (count > rest_.size()) throw PropertyError("the set ends inside the value");
    const std::string_view bytes = rest_.substr(0, count);
    rest_.remove_prefix(count);
    return bytes;
  }
  template <typename Number>
  Number TakeNumber() {
    BitsOf<Number> bits = 0;
    for (std::size_t shift = 0; const char byte : Take(sizeof(bits))) {
      bits |= static_cast<BitsOf<Number>>(static_cast<std::uint8_t>(byte)) << shift;
      shift += 8;
    }
    return std::bit_cast<Number>(bits);
  }

  std::string_view rest_;
};

template <typename Named>
const Named* FindNamed(std::span<const Named> all, std::string_view name) {
  const auto found = std::ranges::find(all, name, &Named::name);
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

void PropertyTarget::_SetProperties(std::string_view set) {
  ApplyEntries(set);
  SetApplied();
}

void PropertyTarget::ApplyEntries(std::string_view set) {
  const QScopedValueRollback applying(applying_set_, true);
  std::string_view name;
  try {
    for (Decoder decoder(set); !decoder.AtEnd(); name = {}) {
      name = decoder.TakeName();
      const PropertyRow* row = FindNamed(Properties(), name);
      if (row == nullptr) throw PropertyError("there is no such property");
      const PropertyValue value = std::visit(decoder, row->default_value);
      if (row->set != nullptr) row->set(*this, value);
    }
  } catch (const PropertyError& error) {
    throw PropertyError(Described() + ", property “" + std::string(name) + "”: " + error.what());
  }
}

}  // namespace fundlet
