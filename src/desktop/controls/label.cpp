#include "desktop/controls/label.h"

#include <array>

#include <QLabel>

#include "desktop/accessibility/screen_reader_notifier.h"
#include "desktop/base/qt_text.h"
#include "desktop/controls/qt_properties.h"

namespace fundlet {

namespace {

QLabel& LabelOf(const Control& control) { return static_cast<QLabel&>(*control.Native()); }

}  // namespace

Label::Label(ControlOwner& owner) : TextControl(owner, new QLabel) {
  LabelOf(*this).setTextFormat(Qt::PlainText);
  LabelOf(*this).setFocusPolicy(Qt::NoFocus);
}

std::string Label::Text() const { return FromQt(LabelOf(*this).text()); }

void Label::SetText(std::string_view text) {
  LabelOf(*this).setText(ToQt(text));
  FitText();
  if (announced_) ScreenReaderNotifier::Announce(LabelOf(*this), ToQt(text));
}

void Label::SetTextAlign(std::int64_t align) {
  LabelOf(*this).setAlignment(AlignmentOf(align, kLabelAlignment));
}

void Label::SetTextColor(Colour colour) { SetColour(LabelOf(*this), QPalette::WindowText, colour); }

void Label::SetLabelFor(const Control& control) { LabelOf(*this).setBuddy(control.Native()); }

PropertyTable Label::Properties() const {
  static const auto rows =
      Joined(kDataBindingRows, kFontRows,
             std::to_array<PropertyRow>({
                 {"AutoDeactivate", true},
                 {"HelpTag", "", kThrough<&Control::SetHelpTag>},
                 {"Transparent", false},
                 {"Selectable", false},
                 {"Visible", true, kThrough<&Control::SetVisible>},
                 {"Enabled", true, kThrough<&Control::SetEnabled>},
                 {"Multiline", false},
                 {"TextColor", kBlack, kThrough<&Label::SetTextColor>},
                 {"TextAlign", kLabelAlignment.left, kThrough<&Label::SetTextAlign>},
                 {"Text", "", kThrough<&Label::SetText>},
             }),
             kCommonRows, std::to_array<PropertyRow>({{"TabStop", true}}));
  return rows;
}

}  // namespace fundlet
