#include "ui/help_text.h"

namespace fundlet {

namespace {

// An empty line separates two paragraphs.
constexpr const char* kLines[] = {
    "Fundlet",
    "Version " FUNDLET_VERSION,
    "",
    "This \"Fundlet\" program determines the optimal inflation-adjusted dollar draw that can "
    "be made each year from a financial fundlet (e.g., an investment in bonds, stocks, CDs, "
    "etc.) for the rest of your life.",
    "",
    "You must specify a number of parameters and then the program uses a recursive \"hill "
    "climbing\" algorithm to determine the optimal draws from the fundlet. As a heuristic "
    "algorithm, it is not guaranteed to calculate a result for all possible parameters, but it "
    "will for most parameters of interest. When it can't, it will tell you and you can change "
    "the parameters.",
    "",
    "You specify the year when the draws are to begin, your age on January 1st of that year, "
    "your remaining life expectancy in years, your expected COLA (annual cost of living "
    "adjustment, i.e., inflation rate), the size of your fundlet at the beginning of the first "
    "year, the annual percent rate (APR) you expect to earn annually after tax on your "
    "fundlet, the amount (if any) of social security you will receive after-tax in the first "
    "year, and the size of the fundlet you wish to remain at the end of your life expectancy "
    "(your \"terminal\" fundlet) which of course may be zero.",
    "",
    "(The social security entry can also include after-tax earned income and pensions that are "
    "subject to COLA.)",
    "",
    "You can optionally have the program look at your current age and compute your life "
    "expectancy for any one of three cases: the number of years for which one-half of people "
    "your age are expected to survive, one-quarter are expected to survive, or one-eighth are "
    "expected to survive. (See the Edit menu.)",
    "",
    "You can ask the program to remember your current parameters, and ask it to recall those "
    "parameters in the current or in a future session with the program.",
    "",
    "You can hover the cursor over any parameter or button and a brief note will appear "
    "explaining that parameter.",
    "",
    "After entering all the parameters and then calculating the annual draws, the program "
    "displays the draw for the first year.",
    "",
    "You can save a schedule of inflation-adjusted annual draws to a tab-delimited text file "
    "which you can import into a spreadsheet program to view and even chart. The schedule "
    "contains a list of the parameters used and for each year it lists the year, your age at "
    "the beginning of the year, the balance in the fundlet at the beginning of the year, the "
    "draw for that year, the balance in the fundlet at the end of the year, and your age at "
    "the end of the year.",
    "",
    "The algorithm:",
    "",
    "(1) The program makes an initial guess of the first year's draw.",
    "(2) Each month for the duration of the life expectancy, the program:",
    "(2-a) Adds the income from the fundlet to the fundlet. The income is calculated as the "
    "APR times the fundlet divided by 12.",
    "(2-b) Adds the inflation-adjusted annual social security divided by 12 to the fundlet.",
    "(2-c) Subtracts the inflation-adjusted annual draw divided by 12 from the fundlet.",
    "(3) If step 2 does not result in the required terminal fundlet, the program modifies the "
    "initial guess of the first year's draw and repeats step 2.",
    "(4) If steps 2 and 3 do not converge to the required terminal fundlet, the program posts "
    "an alert saying that it is unable to calculate the annual draws with the given "
    "parameters, and you can change the parameters and try again.",
    "",
    "Multiple Fundlets:",
    "",
    "If you have multiple fundlet investments each returning a different APR, you should make "
    "a different calculation for each. (Only one should contain social security.) The sum of "
    "the terminal fundlets for all calculations should add up to the total terminal fundlet "
    "you wish to have at the end of your chosen life expectancy. Then you can sum the annual "
    "draws to arrive at the total annual draws.",
    "",
    "For instance, if you have one fundlet larger than the others, you can set the terminal "
    "fundlet for that one to the total amount, and set the terminal fundlets for the others to "
    "zero. The resulting total of annual draws will be the same regardless of how you split up "
    "the terminal fundlet among the calculations.",
    "",
    "Recommendations:",
    "",
    "You should establish a budget for the first year which doesn't exceed the calculated "
    "draw. You should rerun the program at the beginning of each subsequent year to take into "
    "account changes in life expectancy as you succeed in living yet another year, in the COLA "
    "if inflation increases or decreases, in the APR if you rebalance your investment(s), and "
    "in the social security payments.",
    "",
    "Limitations:",
    "",
    "Age must be no less than 52 years and no more than 95 years. Life Expectancy must be no "
    "less than 4 years, no more than 40 years and the sum of Age and Life Expectancy no more "
    "than 99 years. Initial Fundlet must be less than $1 billion. Initial Social Security must "
    "be less than $100,000. Terminal Fundlet must by no more than Initial Fundlet. (These "
    "limitations increase the likelihood that the program will find the optimal draws.)",
    "",
    "You may view this window at any time by pressing the Help key (or control-e).",
};

}  // namespace

std::string HelpText() {
  std::string text;
  for (const char* line : kLines) {
    if (!text.empty()) text += '\r';
    text += line;
  }
  return text;
}

}  // namespace fundlet
