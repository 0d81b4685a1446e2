#include "files/remembered_parameters.h"

#include <gtest/gtest.h>

#include "plan/parameters_file.h"
#include "tests/plan/text_form.h"
#include "tests/services/scratch_folder.h"

namespace fundlet {
namespace {

namespace fs = std::filesystem;

const std::string kMinusZero("\x80\0\0\0\0\0\0\0", 8);
const std::string kThousand("\x40\x8F\x40\0\0\0\0\0", 8);

TEST(SaveParameters, WritesTheTextsOverTheRecordAndKeepsTheBytesAfterIt) {
  const ScratchFolder folder;
  folder.Write(kParametersFileName, std::string(44, 'x') + "tail");
  Plan plan;
  TextForm form({{FocusCode::StartYear, "-1.5"},
                 {FocusCode::StartAge, "40"},
                 {FocusCode::YearsLeft, "200"},
                 {FocusCode::COLA, "-0"},
                 {FocusCode::StartFundlet, "1,000"},
                 {FocusCode::FundletAPR, "-0"},
                 {FocusCode::SocialSecurity, "1000"},
                 {FocusCode::EndFundlet, "1e3"}});
  SaveParameters(plan, form);
  EXPECT_EQ(folder.Read(kParametersFileName), "\xFF\xFF\x28\xC8" + kMinusZero + kThousand +
                                                  kMinusZero + kThousand + kThousand + "tail");
  EXPECT_TRUE(form.actions.empty());
  EXPECT_EQ(plan.YearsLeft, 200);
}

TEST(RememberedParameters, LeavePlanAndTextsUnchangedIfTheirFolderCannotBeEntered) {
  const ScratchFolder folder;
  folder.Write(kParametersFileName, "kept");
  fs::permissions(folder.Path(), fs::perms::none);
  Plan plan;
  TextForm form;
  EXPECT_THROW((OrdinaryUser(), SaveParameters(plan, form)), IOException);
  EXPECT_THROW((OrdinaryUser(), RestoreParameters(plan, form)), IOException);
  fs::permissions(folder.Path(), fs::perms::all);
  EXPECT_EQ(folder.Read(kParametersFileName), "kept");
  EXPECT_EQ(plan.StartAge, 0);
  EXPECT_TRUE(form.actions.empty());
}

}  // namespace
}  // namespace fundlet
