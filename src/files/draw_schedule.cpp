#include "files/draw_schedule.h"

#include <algorithm>
#include <array>
#include <string>

#include "plan/entry_fields.h"
#include "services/background.h"
#include "services/format.h"
#include "services/text.h"
#include "services/text_output_stream.h"

namespace fundlet {

namespace {

constexpr std::size_t kColumns = 6;
using Cells = std::array<std::string, kColumns>;

std::string Line(const Cells& cells) {
  std::string line = cells.front();
  for (std::size_t column = 1; column < kColumns; ++column) line += Chr(9) + cells.at(column);
  return line;
}

std::array<std::string, 9> ParameterBlock(const Plan& plan) {
  const auto shown = [&plan](FocusCode field) { return ShownText(plan, field); };
  return {"Start with 1 Jan " + shown(FocusCode::StartYear),
          "Age on 1 Jan: " + shown(FocusCode::StartAge) + " Years",
          "Life Expectancy: " + shown(FocusCode::YearsLeft) + " Years",
          "COLA: " + shown(FocusCode::COLA) + "%",
          "Initial Fundlet: $" + shown(FocusCode::StartFundlet),
          "After-Tax Fundlet APR: " + shown(FocusCode::FundletAPR) + "%",
          "IInitial Social Security: $" + shown(FocusCode::SocialSecurity),
          "Terminal Fundlet: $" + shown(FocusCode::EndFundlet),
          ""};
}

const Cells kHeadings = {"Year", "Age on 1 Jan",   "Begining Balance",
                         "Draw", "Ending Balance", "Age on 31 Dec"};

Cells Row(const Plan& plan, std::int64_t year) {
  const auto index = static_cast<std::size_t>(year);
  const auto dollars = [](double amount) { return Format(amount, mask::kDollars); };
  return {
      Str(plan.StartYear + year - 1),      Str(plan.StartAge + year - 1),
      dollars(plan.Balance.at(index - 1)), dollars(static_cast<double>(plan.Drawing.at(index - 1))),
      dollars(plan.Balance.at(index)),     Str(plan.StartAge + year)};
}

std::int64_t LastSolvedYear(const Plan& plan) {
  return static_cast<std::int64_t>(plan.Balance.size()) - 1;
}

}  // namespace

void SaveSchedule(const Plan& plan, const FolderItem& file) {
  TextOutputStream stream = TextOutputStream::Create(file);
  for (const std::string& parameter : ParameterBlock(plan)) stream.WriteLine(Line({parameter}));
  stream.WriteLine(Line(kHeadings));
  for (std::int64_t year = 1; year <= std::min(plan.YearsLeft, LastSolvedYear(plan)); ++year) {
    stream.WriteLine(Line(Row(plan, year)));
    RuntimeBackgroundTask();
  }
  stream.Close();
  file.SetMacCreator("ttxt");
}

}  // namespace fundlet
