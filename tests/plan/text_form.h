#pragma once

#include <functional>
#include <iterator>
#include <map>
#include <ostream>
#include <string>
#include <vector>

#include "plan/entry_form.h"

namespace fundlet {

// The name of a field's code, or of None.
inline std::string NameOf(FocusCode code) {
  constexpr const char* kNames[] = {"None",       "StartYear",      "StartAge",
                                    "YearsLeft",  "COLA",           "StartFundlet",
                                    "FundletAPR", "SocialSecurity", "EndFundlet"};
  static_assert(std::size(kNames) == kFieldCount + 1);
  return kNames[static_cast<std::size_t>(code)];
}

// What a failed test prints.
inline void PrintTo(FocusCode code, std::ostream* out) { *out << NameOf(code); }

// The texts of fields, by their codes.
using Texts = std::map<FocusCode, std::string>;

// A form without a window: the eight texts of a valid plan, and a list of all calls that change
// something or show something, in order.
struct TextForm : EntryForm {
  Texts texts = {{FocusCode::StartYear, "2010"},        {FocusCode::StartAge, "70"},
                 {FocusCode::YearsLeft, "4"},           {FocusCode::COLA, "2.5"},
                 {FocusCode::StartFundlet, "500,000"},  {FocusCode::FundletAPR, "5"},
                 {FocusCode::SocialSecurity, "20,000"}, {FocusCode::EndFundlet, "100,000"}};
  std::vector<std::string> actions;
  std::function<void()> while_alerting = [] {};

  explicit TextForm(const Texts& others = {}) {
    for (const auto& [field, text] : others) texts.at(field) = text;
  }

  std::string Text(FocusCode field) const override { return texts.at(field); }
  void SetText(FocusCode field, const std::string& text) override {
    texts.at(field) = text;
    actions.push_back("text " + NameOf(field) + " " + text);
  }
  void SelectAll(FocusCode field) override { actions.push_back("select " + NameOf(field)); }
  void SetFocus(FocusCode field) override { actions.push_back("focus " + NameOf(field)); }
  void ShowResult(const std::string& text) override { actions.push_back("result " + text); }
  void Alert(const std::string& message) override {
    actions.push_back("alert " + message);
    while_alerting();
  }
};

}  // namespace fundlet
