#include "desktop/text_area.h"

#include <array>

#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QTextCursor>

#include "desktop/focus_reporting.h"
#include "desktop/native_window.h"
#include "desktop/qt_colour.h"
#include "desktop/qt_text.h"

namespace fundlet {

namespace {

class AreaWidget : public FocusReporting<QPlainTextEdit> {
 public:
  using FocusReporting::FocusReporting;

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    const bool read_only_key = isReadOnly() && NativeKey(*event);
    if (!read_only_key) FocusReporting::keyPressEvent(event);
  }

 private:
  // A text that cannot be edited has no use for Return.
  bool NativeKey(QKeyEvent& event) const {
    const bool used = static_cast<NativeWindow*>(window())->HandleKey(event);
    event.setAccepted(used);
    return used;
  }
};

AreaWidget& AreaOf(const Control& control) { return static_cast<AreaWidget&>(*control.Native()); }

}  // namespace

TextArea::TextArea(Window& window) : TextControl(window, new AreaWidget(window, *this)) {
  AreaOf(*this).setTabChangesFocus(true);
  // No label stands beside it, so a screen reader tells it by its window.
  AreaOf(*this).setAccessibleName(window.Native().windowTitle());
}

std::string TextArea::Text() const {
  return FromQt(AreaOf(*this).toPlainText().replace('\n', '\r'));
}

void TextArea::SetText(std::string_view text) {
  AreaOf(*this).setPlainText(ToQt(text).replace('\r', '\n'));
}

void TextArea::SetSelStart(std::int64_t start) {
  QPlainTextEdit& area = AreaOf(*this);
  QTextCursor cursor = area.textCursor();
  cursor.setPosition(UnitsOf(area.toPlainText(), start));
  area.setTextCursor(cursor);
}

void TextArea::SetSelLength(std::int64_t length) {
  QPlainTextEdit& area = AreaOf(*this);
  const QString text = area.toPlainText();
  QTextCursor cursor = area.textCursor();
  const std::int64_t start = SelStart();
  cursor.setPosition(UnitsOf(text, start));
  cursor.setPosition(UnitsOf(text, start + length), QTextCursor::KeepAnchor);
  area.setTextCursor(cursor);
}

std::int64_t TextArea::SelStart() const {
  const QPlainTextEdit& area = AreaOf(*this);
  return CharactersOf(area.toPlainText(), area.textCursor().selectionStart());
}

std::int64_t TextArea::SelLength() const {
  const QString selected = AreaOf(*this).textCursor().selectedText();
  return CharactersOf(selected, static_cast<int>(selected.size()));
}

void TextArea::SetReadOnly(bool read_only) {
  QPlainTextEdit& area = AreaOf(*this);
  area.setReadOnly(read_only);
  if (read_only) {
    area.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  }
}

void TextArea::SetScrollbarVertical(bool shown) {
  AreaOf(*this).setVerticalScrollBarPolicy(shown ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
}

void TextArea::SetScrollbarHorizontal(bool shown) {
  AreaOf(*this).setHorizontalScrollBarPolicy(shown ? Qt::ScrollBarAsNeeded
                                                   : Qt::ScrollBarAlwaysOff);
  AreaOf(*this).setLineWrapMode(shown ? QPlainTextEdit::NoWrap : QPlainTextEdit::WidgetWidth);
}

void TextArea::SetBorder(bool border) {
  AreaOf(*this).setFrameShape(border ? QFrame::StyledPanel : QFrame::NoFrame);
}

void TextArea::SetBackColor(Colour colour) { SetColour(AreaOf(*this), QPalette::Base, colour); }
void TextArea::SetTextColor(Colour colour) { SetColour(AreaOf(*this), QPalette::Text, colour); }

void TextArea::FireGotFocus() {
  if (GotFocus) GotFocus(*this);
}

const PropertySetter* TextArea::FindSetter(std::string_view name) const {
  static constexpr std::array kRows = {
      PropertyRow{"AcceptTabs", kNoEffect<bool>},
      PropertyRow{"Alignment", kNoEffect<std::int64_t>},
      PropertyRow{"AutomaticallyCheckSpelling", kNoEffect<bool>},
      PropertyRow{"BackColor", SetThrough<&TextArea::SetBackColor>::kFunction},
      PropertyRow{"Border", SetThrough<&TextArea::SetBorder>::kFunction},
      PropertyRow{"DataField", kNoEffect<std::string_view>},
      PropertyRow{"DataSource", kNoEffect<std::string_view>},
      PropertyRow{"Format", kNoEffect<std::string_view>},
      PropertyRow{"HideSelection", kNoEffect<bool>},
      PropertyRow{"LimitText", kNoEffect<std::int64_t>},
      PropertyRow{"LineHeight", kNoEffect<double>},
      PropertyRow{"LineSpacing", kNoEffect<double>},
      PropertyRow{"Mask", kNoEffect<std::string_view>},
      PropertyRow{"Multiline", kNoEffect<bool>},
      PropertyRow{"ReadOnly", SetThrough<&TextArea::SetReadOnly>::kFunction},
      PropertyRow{"ScrollbarHorizontal", SetThrough<&TextArea::SetScrollbarHorizontal>::kFunction},
      PropertyRow{"ScrollbarVertical", SetThrough<&TextArea::SetScrollbarVertical>::kFunction},
      PropertyRow{"Styled", kNoEffect<bool>},
      PropertyRow{"Text", SetThrough<&TextArea::SetText>::kFunction},
      PropertyRow{"TextColor", SetThrough<&TextArea::SetTextColor>::kFunction},
      PropertyRow{"UseFocusRing", SetThrough<&Control::SetUseFocusRing>::kFunction},
  };
  const PropertySetter* own = FindIn(kRows, name);
  return own != nullptr ? own : TextControl::FindSetter(name);
}

}  // namespace fundlet
