#include "desktop/label.h"

#include <array>

#include <QLabel>

#include "desktop/qt_colour.h"
#include "desktop/qt_text.h"

namespace fundlet {

namespace {

QLabel& LabelOf(const Control& control) { return static_cast<QLabel&>(*control.Native()); }

Qt::Alignment HorizontalAlignment(std::int64_t align) {
  constexpr std::int64_t kCentre = 1;
  constexpr std::int64_t kRight = 2;
  if (align == kCentre) return Qt::AlignHCenter;
  return align == kRight ? Qt::AlignRight : Qt::AlignLeft;
}

}  // namespace

Label::Label(Window& window) : TextControl(window, new QLabel) {
  LabelOf(*this).setTextFormat(Qt::PlainText);
  LabelOf(*this).setFocusPolicy(Qt::NoFocus);
}

std::string Label::Text() const { return FromQt(LabelOf(*this).text()); }

void Label::SetText(std::string_view text) {
  LabelOf(*this).setText(ToQt(text));
  FitText();
}

void Label::SetTextAlign(std::int64_t align) {
  LabelOf(*this).setAlignment(HorizontalAlignment(align) | Qt::AlignVCenter);
}

void Label::SetTextColor(Colour colour) { SetColour(LabelOf(*this), QPalette::WindowText, colour); }

void Label::SetLabelFor(const Control& control) { LabelOf(*this).setBuddy(control.Native()); }

const PropertySetter* Label::FindSetter(std::string_view name) const {
  static constexpr std::array kRows = {
      PropertyRow{"DataField", kNoEffect<std::string_view>},
      PropertyRow{"DataSource", kNoEffect<std::string_view>},
      PropertyRow{"Multiline", kNoEffect<bool>},
      PropertyRow{"Selectable", kNoEffect<bool>},
      PropertyRow{"Text", SetThrough<&Label::SetText>::kFunction},
      PropertyRow{"TextAlign", SetThrough<&Label::SetTextAlign>::kFunction},
      PropertyRow{"TextColor", SetThrough<&Label::SetTextColor>::kFunction},
      PropertyRow{"Transparent", kNoEffect<bool>},
  };
  const PropertySetter* own = FindIn(kRows, name);
  return own != nullptr ? own : TextControl::FindSetter(name);
}

}  // namespace fundlet
