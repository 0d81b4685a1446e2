// Prints every bit of the results of 4,000 plans, a line for each, and writes their records into a
// file, so that two platforms can be compared: plan_bits RECORDS_FILE

#include <bit>
#include <cinttypes>
#include <cstdio>
#include <random>

#include "plan/parameters_file.h"
#include "tests/plan/sample_plans.h"

namespace fundlet {
namespace {

// Random plans that are the same on every platform: the generator is, the standard distributions
// are not.
class Dice {
 public:
  double Upto(double most) { return static_cast<double>(random_() >> 11) * 0x1p-53 * most; }
  Plan Throw(double highest_cola, double highest_apr) {
    const auto years = static_cast<std::int64_t>(4 + random_() % 37);
    const double cola = Upto(highest_cola);
    const double apr = Upto(highest_apr);
    const double start = Upto(999'999'999);
    const double end = Upto(start);
    Plan plan = MakePlan(years, cola, apr, start, end, Upto(99'999));
    plan.StartYear = static_cast<std::int64_t>(random_() % 3000);
    plan.StartAge = static_cast<std::int64_t>(52 + random_() % 44);
    return plan;
  }

 private:
  std::mt19937_64 random_{5};
};

std::uint64_t Checksum(const Plan& plan) {
  std::uint64_t sum = 0;
  const auto add = [&sum](std::uint64_t bits) { sum = std::rotl(sum, 7) * 31 + bits; };
  for (const double balance : plan.Balance) add(std::bit_cast<std::uint64_t>(balance));
  for (const std::int64_t drawing : plan.Drawing) add(static_cast<std::uint64_t>(drawing));
  return sum;
}

void Print(int number, const Plan& plan) {
  std::printf("%d: %d years, COLA %.17g, APR %.17g, draw %016" PRIx64 ", arrays %016" PRIx64 "\n",
              number, static_cast<int>(plan.YearsLeft), plan.COLA, plan.FundletAPR,
              std::bit_cast<std::uint64_t>(plan.AnnualDraw), Checksum(plan));
}

void Compute(const FolderItem& records) {
  BinaryStream stream = BinaryStream::Create(records);
  Dice dice;
  for (int number = 1; number <= 4000; ++number) {
    // In turn, a plan that can be solved, and one level of any valid plan.
    Plan plan = number % 2 == 0 ? dice.Throw(0.03, 0.05) : dice.Throw(0.9999, 0.9999);
    WriteParameters(stream, plan);
    if (number % 2 == 0) {
      Solve(plan);
    } else {
      PrepareArrays(plan);
      plan.AnnualDraw = dice.Upto(2e9);
      for (std::int64_t year = 1; year <= plan.YearsLeft; ++year) {
        CalculateBalance(plan, year, plan.AnnualDraw);
      }
    }
    Print(number, plan);
  }
  stream.Close();
}

}  // namespace
}  // namespace fundlet

int main(int count, char** arguments) {
  if (count != 2) return 2;
  fundlet::Compute(fundlet::FolderItem(arguments[1]));
}
