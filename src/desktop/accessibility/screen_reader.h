#pragma once

#include <vector>

#include <QAccessible>
#include <QObject>
#include <QPointer>

class QWidget;

namespace fundlet {

// What a screen reader is told of the program, and when. The handlers of one key may move the focus
// to and fro and write and select a text several times. The reader is told once they have run:
// first where the focus is now, then what has changed there, then what is to be announced. What
// comes to the same again is not told.
//
// There is one while the desktop runs.
class ScreenReader : public QObject {
 public:
  ScreenReader();
  ~ScreenReader() override;

  // Has the text spoken that the widget shows, wherever the focus is.
  static void Announce(QWidget& widget, const QString& text);

 private:
  // A text that can be read with a caret, as the reader knows it.
  struct Known {
    QPointer<QObject> object;
    QString text;
    int caret = -1;
    int selected_from = 0;
    int selected_to = 0;
  };
  struct Announcement {
    QPointer<QWidget> widget;
    QString text;
  };

  static void OnEvent(QAccessibleEvent* event);
  static Known StateOf(QObject* object);
  static void Send(QAccessibleEvent& event);
  static void TellText(const Known& before, const Known& now);
  static void TellSelection(const Known& before, const Known& now);
  static void Say(QWidget& widget, const QString& text);

  bool Keeps(const QAccessibleEvent& event);
  void NotifyFocusLater();  // where it is once the present event is done
  void TellSoon();
  void Tell();

  Known known_;                // where the reader knows the focus to be
  QPointer<QObject> focused_;  // where it has come to since
  std::vector<Announcement> announcements_;
  bool due_ = false;
};

}  // namespace fundlet
