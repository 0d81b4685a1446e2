#pragma once

#include <array>
#include <functional>
#include <string>
#include <vector>

#include "plan/entry_form.h"

namespace fundlet {

// Eight texts with no window behind them, and a list of all that was asked of them, in order.
struct TextForm : EntryForm {
  std::array<std::string, 8> texts = {"2010",    "70", "4",      "2.5",
                                      "500,000", "5",  "20,000", "100,000"};
  std::vector<std::string> actions;
  std::function<void()> while_alerting = [] {};

  static std::string Code(FocusCode field) { return std::to_string(static_cast<int>(field)); }
  std::string& At(FocusCode field) { return texts.at(static_cast<std::size_t>(field) - 1); }

  std::string Text(FocusCode field) const override {
    return texts.at(static_cast<std::size_t>(field) - 1);
  }
  void SetText(FocusCode field, const std::string& text) override {
    At(field) = text;
    actions.push_back("text " + Code(field) + " " + text);
  }
  void SelectAll(FocusCode field) override { actions.push_back("select " + Code(field)); }
  void SetFocus(FocusCode field) override { actions.push_back("focus " + Code(field)); }
  void ShowResult(const std::string& text) override { actions.push_back("result " + text); }
  void Alert(const std::string& message) override {
    actions.push_back("alert " + message);
    while_alerting();
  }
};

}  // namespace fundlet
