#include <cstdlib>
#include <string>

#include "desktop/property_set.h"

namespace fundlet {
namespace {

// Has one property of each kind, and writes down what is set.
class Target : public PropertyTarget {
 public:
  std::string written;

 protected:
  std::string Described() const override { return "a target"; }
  const PropertySetter* FindSetter(std::string_view name) const override {
    static constexpr PropertyRow kRows[] = {
        {"i", Write<std::int64_t, 'i'>},     {"b", Write<bool, 'b'>},
        {"t", Write<std::string_view, 't'>}, {"f", Write<float, 'f'>},
        {"d", Write<double, 'd'>},           {"c", Write<Colour, 'c'>}};
    return FindIn(kRows, name);
  }

 private:
  template <typename Value, char kName>
  static void Write(PropertyTarget& target, Value value) {
    const char name = kName;
    const Property property{{&name, 1}, value};
    static_cast<Target&>(target).written += EncodePropertySet({&property, 1}, {});
  }
};

}  // namespace
}  // namespace fundlet

// Any bytes are applied or refused, and what has been set is encoded as a set that sets the same.
extern "C" int LLVMFuzzerTestOneInput(const char* bytes, std::size_t count) {
  using namespace fundlet;
  Target first;
  try {
    first._SetProperties({bytes, count});
  } catch (const PropertyError&) {
    if (count == 0) std::abort();
  }
  Target second;
  second._SetProperties(first.written);
  if (second.written != first.written) std::abort();
  return 0;
}
