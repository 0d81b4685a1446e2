#include "files/remembered_parameters.h"

#include <gtest/gtest.h>

#include "plan/parameters_file.h"
#include "tests/plan/text_form.h"
#include "tests/services/scratch_folder.h"

namespace fundlet {

using enum FocusCode;

const std::string kMinusZero("\x80\0\0\0\0\0\0\0", 8);
const std::string kThousand("\x40\x8F\x40\0\0\0\0\0", 8);

TEST(SaveParameters, WritesTheTextsOverTheRecordAndKeepsTheBytesAfterIt) {
  const ScratchFolder folder;
  folder.Write(kParametersFileName, std::string(44, 'x') + "tail");
  Plan plan;
  TextForm form;
  form.texts = {
      {StartYear, "-1.5"},     {StartAge, "40"},   {YearsLeft, "200"},       {COLA, "-0"},
      {StartFundlet, "1,000"}, {FundletAPR, "-0"}, {SocialSecurity, "1000"}, {EndFundlet, "1e3"}};
  SaveParameters(plan, form);
  EXPECT_EQ(folder.Read(kParametersFileName), "\xFF\xFF\x28\xC8" + kMinusZero + kThousand +
                                                  kMinusZero + kThousand + kThousand + "tail");
  EXPECT_TRUE(form.actions.empty());
  EXPECT_EQ(plan.YearsLeft, 200);
}

}  // namespace fundlet
