#include "desktop/controls/control.h"

#include <algorithm>

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QRegularExpression>
#include <QWidget>

#include "desktop/base/application.h"
#include "desktop/base/qt_text.h"
#include "desktop/base/run_state.h"

namespace fundlet {

namespace {

#ifdef Q_OS_MACOS
constexpr auto kControlModifier = Qt::MetaModifier;
#else
constexpr auto kControlModifier = Qt::ControlModifier;
#endif

// Breaks the text at blanks into lines of at most 80 characters, if its words allow: QToolTip does
// not wrap plain text, and wraps rich text at a width of its own.
QString Wrapped(QString text) {
  static const QRegularExpression line("(.{0,80})(?: |\n|$)");
  return text.replace(line, "\\1\n").trimmed();
}

}  // namespace

std::string KeyText(const QKeyEvent& event) {
  const bool control_e = event.key() == Qt::Key_E && event.modifiers() == kControlModifier;
  const bool help = event.key() == Qt::Key_Help || event.key() == Qt::Key_F1 || control_e;
  return help ? App().HelpKey : FromQt(event.text());
}

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

std::string Control::Described() const { return "control “" + name_ + "”"; }

const std::array<PropertyRow, 12> Control::kCommonRows = {{
    {"TabIndex", 0, kInto<&Control::tab_index_>},
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

namespace {

constexpr const char* kSystemFont = "System";

// The font family of that name, or else the first of some similar ones that is installed.
QString AvailableFamily(const std::string& family) {
  if (family == kSystemFont) return QGuiApplication::font().family();
  for (const char* candidate : {family.c_str(), "Verdana", "DejaVu Sans", "Noto Sans", "Open Sans",
                                "Lucida Grande", "Segoe UI", "Liberation Sans"}) {
    if (QFontDatabase::hasFamily(candidate)) return candidate;
  }
  return QGuiApplication::font().family();
}

// The font, condensed just enough for the text to fit into `width` pixels, but to no less than half
// its normal width, because narrower text cannot be read; a still wider text overflows.
QFont NarrowedToFit(QFont font, const QString& text, int width) {
  const auto text_width = [&] { return QFontMetricsF(font).horizontalAdvance(text); };
  const qreal plain_width = text_width();
  if (plain_width <= width) return font;
  constexpr int kLeastStretch = 50;  // percent
  int stretch = static_cast<int>(QFont::Unstretched * width / plain_width);
  do {
    font.setStretch(std::max(stretch, kLeastStretch));
  } while (text_width() > width && --stretch >= kLeastStretch);
  return font;
}

}  // namespace

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
    {"Underline", false, kInto<&TextControl::underline_>},
    {"Italic", false, kInto<&TextControl::italic_>},
    {"Bold", false, kInto<&TextControl::bold_>},
    {"TextUnit", false},
    {"TextSize", 12.0F, kInto<&TextControl::pixels_>},
    {"TextFont", "System", kThrough<&TextControl::SetTextFont>},
}};

const std::array<PropertyRow, 3> TextControl::kDataBindingRows = {{
    {"InitialParent", ""},
    {"DataField", ""},
    {"DataSource", ""},
}};

}  // namespace fundlet
