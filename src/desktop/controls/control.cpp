#include "desktop/controls/control.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QWidget>

#include "desktop/base/qt_text.h"
#include "desktop/base/run_state.h"
#include "desktop/drawing/text_fit.h"

namespace fundlet {

namespace {

// Breaks lines at blanks, after at most 80 characters where there is a blank: QToolTip does not
// wrap plain text, and wraps rich text at a width of its own.
QString Wrapped(const QString& text) {
  constexpr qsizetype kLineLength = 80;
  QString wrapped = text;
  for (qsizetype line = 0; wrapped.size() - line > kLineLength;) {
    const qsizetype line_end = wrapped.indexOf('\n', line);
    const bool fits = line_end >= 0 && line_end - line <= kLineLength;
    const qsizetype blank = wrapped.lastIndexOf(' ', line + kLineLength);
    if (!fits && blank <= line) break;
    if (!fits) wrapped[blank] = '\n';
    line = (fits ? line_end : blank) + 1;
  }
  return wrapped;
}

}  // namespace

Control::Control(ControlOwner& owner, QWidget* native) : owner_(owner), native_(native) {
  native_->setParent(&owner.Content());
}

int Control::Left() const { return native_->x(); }
int Control::Top() const { return native_->y(); }
int Control::Width() const { return native_->width(); }
int Control::Height() const { return native_->height(); }

void Control::SetLeft(std::int64_t left) { native_->move(static_cast<int>(left), Top()); }
void Control::SetTop(std::int64_t top) { native_->move(Left(), static_cast<int>(top)); }

void Control::SetWidth(std::int64_t width) {
  native_->setFixedWidth(static_cast<int>(width));
  FitText();
}

void Control::SetHeight(std::int64_t height) { native_->setFixedHeight(static_cast<int>(height)); }

bool Control::Visible() const { return !native_->isHidden(); }
void Control::SetVisible(bool visible) { native_->setVisible(visible); }
bool Control::Enabled() const { return native_->isEnabled(); }
void Control::SetEnabled(bool enabled) { native_->setEnabled(enabled); }

void Control::SetHelpTag(std::string_view text) {
  const QString plain = ToQt(text).replace('\r', '\n');
  native_->setAccessibleDescription(plain);
  native_->setToolTip(Wrapped(plain));
}

void Control::Refresh(bool at_once) {
  // A hidden widget is not repainted; its parent repaints the area that it covered.
  const bool hidden = native_->isHidden();
  QWidget& painted = hidden ? *native_->parentWidget() : *native_;
  const QRect area = hidden ? native_->geometry() : native_->rect();
  if (at_once) {
    painted.repaint(area);
  } else {
    painted.update(area);
  }
}

void Control::SetFocus() {
  if (owner_.Focused() == this) {
    Gate().EnterWithin([this] { FireGotFocus(); });
    return;
  }
  native_->setFocus(Qt::OtherFocusReason);
  // In an inactive window, QWidget::setFocus() sends no focus event.
  owner_.OnFocusGained(*this);
}

void Control::SetName(std::string_view name) {
  name_ = name;
  native_->setObjectName(ToQt(name));
}

void Control::SetTabIndex(std::int64_t index) { tab_index_ = static_cast<int>(index); }

std::string Control::Described() const { return "control “" + name_ + "”"; }

const std::array<PropertyRow, 12> Control::kCommonRows = {{
    {"TabIndex", 0, kThrough<&Control::SetTabIndex>},
    {"TabPanelIndex", 0},
    {"LockBottom", false},
    {"LockRight", false},
    {"LockTop", false},
    {"LockLeft", false},
    {"Height", 0, kThrough<&Control::SetHeight>},
    {"Width", 0, kThrough<&Control::SetWidth>},
    {"Top", 0, kThrough<&Control::SetTop>},
    {"Left", 0, kThrough<&Control::SetLeft>},
    {"Index", -2147483648},  // not in an array of controls
    {"Name", "", kThrough<&Control::SetName>},
}};

PropertyTable ShapeControl::Properties() const {
  static const auto rows = Joined(std::to_array<PropertyRow>({
                                      {"Enabled", true, kThrough<&Control::SetEnabled>},
                                      {"AutoDeactivate", true},
                                      {"HelpTag", "", kThrough<&Control::SetHelpTag>},
                                      {"Visible", true, kThrough<&Control::SetVisible>},
                                      {"InitialParent", ""},
                                      {"TabStop", true},
                                  }),
                                  kCommonRows);
  return rows;
}

namespace {

constexpr const char* kSystemFont = "System";

// The font family of that name, or else the first of some similar ones that is installed.
QString AvailableFamily(const std::string& family) {
  if (family == kSystemFont) return QGuiApplication::font().family();
  for (const char* humanist : {family.c_str(), "Verdana", "DejaVu Sans", "Noto Sans", "Open Sans",
                               "Lucida Grande", "Segoe UI", "Liberation Sans"}) {
    if (QFontDatabase::hasFamily(humanist)) return humanist;
  }
  return QGuiApplication::font().family();
}

}  // namespace

void TextControl::SetTextFont(std::string_view family) {
  family_ = family;
  FitText();
}

void TextControl::SetTextSize(float pixels) {
  pixels_ = pixels;
  FitText();
}

void TextControl::SetBold(bool bold) {
  bold_ = bold;
  FitText();
}

void TextControl::SetItalic(bool italic) {
  italic_ = italic;
  FitText();
}

void TextControl::SetUnderline(bool underline) {
  underline_ = underline;
  FitText();
}

void TextControl::FitText() {
  if (ApplyingSet()) return;
  QFont font(AvailableFamily(family_));
  font.setPixelSize(static_cast<int>(pixels_));
  font.setBold(bold_);
  font.setItalic(italic_);
  font.setUnderline(underline_);
  const QFont fitted = NarrowedToFit(font, ToQt(WidestText()), WidthForText());
  if (fitted != Native()->font()) Native()->setFont(fitted);
}

const std::array<PropertyRow, 6> TextControl::kFontRows = {{
    {"Underline", false, kThrough<&TextControl::SetUnderline>},
    {"Italic", false, kThrough<&TextControl::SetItalic>},
    {"Bold", false, kThrough<&TextControl::SetBold>},
    {"TextUnit", false},
    {"TextSize", 12.0F, kThrough<&TextControl::SetTextSize>},
    {"TextFont", "System", kThrough<&TextControl::SetTextFont>},
}};

const std::array<PropertyRow, 3> TextControl::kDataBindingRows = {{
    {"InitialParent", ""},
    {"DataField", ""},
    {"DataSource", ""},
}};

}  // namespace fundlet
