#include "desktop/controls/push_button.h"

#include <array>

#include <QKeyEvent>
#include <QPushButton>

#include "desktop/base/qt_text.h"
#include "desktop/controls/focus_reporting.h"

namespace fundlet {

namespace {

class ButtonWidget : public FocusReporting<QPushButton> {
 public:
  using FocusReporting::FocusReporting;

 protected:
  // On some platforms Return presses the button that has the focus. Here it presses the default
  // button on each.
  void keyPressEvent(QKeyEvent* event) override {
    if (!Owner().PressButtonFor(*event)) {
      FocusReporting::keyPressEvent(event);
    }
  }
};

ButtonWidget& ButtonOf(const Control& control) {
  return static_cast<ButtonWidget&>(*control.Native());
}

}  // namespace

PushButton::PushButton(ControlOwner& owner) : TextControl(owner, new ButtonWidget(owner)) {
  ButtonWidget& button = ButtonOf(*this);
  button.AttachTo(*this);
  button.setFocusPolicy(Qt::TabFocus);
  button.setAutoDefault(false);
  QObject::connect(&button, &QPushButton::clicked, &button, [this] {
    Gate().Enter(Caption(), [this] {
      if (Action) Action(*this);
    });
  });
}

std::string PushButton::Caption() const {
  return FromQt(ButtonOf(*this).text().replace("&&", "&"));
}

void PushButton::SetCaption(std::string_view caption) {
  ButtonOf(*this).setText(ToQt(caption).replace('&', "&&"));
  FitText();
}

void PushButton::SetDefault(bool is_default) {
  ButtonOf(*this).setDefault(is_default);
  default_ = is_default;
}

void PushButton::Press() { ButtonOf(*this).click(); }

int PushButton::WidthForText() const {
  constexpr int kFrames = 10;
  return Width() - kFrames;
}

PropertyTable PushButton::Properties() const {
  static const auto rows = Joined(std::to_array<PropertyRow>({{"InitialParent", ""}}), kFontRows,
                                  std::to_array<PropertyRow>({
                                      {"ButtonStyle", 0},
                                      {"AutoDeactivate", true},
                                      {"HelpTag", "", kThrough<&Control::SetHelpTag>},
                                      {"Visible", true, kThrough<&Control::SetVisible>},
                                      {"Enabled", true, kThrough<&Control::SetEnabled>},
                                      {"Cancel", false, kThrough<&PushButton::SetCancel>},
                                      {"Default", false, kThrough<&PushButton::SetDefault>},
                                      {"Caption", "", kThrough<&PushButton::SetCaption>},
                                      {"TabStop", true},
                                  }),
                                  kCommonRows);
  return rows;
}

}  // namespace fundlet
