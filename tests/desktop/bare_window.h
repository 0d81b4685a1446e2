#pragma once

#include <cstdlib>
#include <memory>
#include <optional>
#include <string>

#include <QTest>
#include <gtest/gtest.h>

#include "desktop/run/runtime.h"
#include "desktop/windows/native_window.h"

namespace fundlet {

// A window without controls, in a program that has nothing else.
class BareWindow : public ::testing::Test {
 protected:
  struct CountingWindow : Window {
    void Event_Activate() override { ++activations; }
    void Event_Resized() override { ++resizes; }
    int activations = 0;
    int resizes = 0;
  };

  void SetUp() override {
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    application_.IconFiles = "no icon of size %1";
    runtime_.Start([this] { RegisterApplication(application_); }, [this] { window_.emplace(); });
    window_->SetMenuBar(menu_bar_);
    window_->SetWidth(400);
    window_->SetHeight(300);
    window_->Open();
  }

  template <typename ControlClass>
  ControlClass& Add(const std::string& name) {
    window_->_AddControl(name, std::make_unique<ControlClass>(*window_));
    return window_->ControlOf<ControlClass>(name);
  }
  static void Set(PropertyTarget& target, const Property& property) {
    for (const PropertyRow& row : target.Properties()) {
      if (row.name != property.name) continue;
      target._SetProperties(EncodePropertySet({&row, 1}, {&property, 1}));
    }
  }
  void Show() {
    window_->Show();
    QCoreApplication::processEvents();
  }
  QWindow* Native() { return window_->Native().windowHandle(); }
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(Native(), key, modifiers);
    QCoreApplication::processEvents();
  }

  Application application_;
  MenuBar menu_bar_;
  Runtime runtime_{"desktop_test"};
  std::optional<CountingWindow> window_;
};

}  // namespace fundlet
