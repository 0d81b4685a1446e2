#pragma once

#include <functional>
#include <string>

#include "plan/plan.h"
#include "services/binary_stream.h"
#include "services/folder_item.h"

// The file that keeps the eight parameters between runs: one record of 44 bytes with no heading.
//
//   offset  width  field           type
//        0      2  StartYear       signed integer
//        2      1  StartAge        signed integer
//        3      1  YearsLeft       signed integer
//        4      8  COLA            double, and so the four behind it
//       12      8  StartFundlet
//       20      8  FundletAPR
//       28      8  SocialSecurity
//       36      8  EndFundlet
//
// The most significant byte comes first. The whole numbers keep their low 16 or 8 bits.
namespace fundlet {

inline constexpr const char* kParametersFileName = "Fundlet.Preferences";

// Where the parameters are kept, whether the file exists or not.
FolderItem ParametersFile();

// The parameters of a first run: the present year and a plan to start from.
void SetDefaultParameters(Plan& plan);

// Write or read the eight fields at the stream's position. Each value that is read goes into the
// plan at once, so those before a failure stand. No value is tested. IOException.
void WriteParameters(BinaryStream& stream, const Plan& plan);
void ReadParameters(BinaryStream& stream, Plan& plan);

// The parameters file, open: the one that exists, read into the plan, or a new one with the
// defaults, which are then in the plan too. IOException.
BinaryStream OpenRememberedParameters(Plan& plan);

// Gives the plan its parameters when the program starts. A file that cannot be used is reported
// through the alert, and the start goes on. The plan then has the values read by that time, or the
// defaults where no file could be made or its folder may not be entered.
void StartParameters(Plan& plan, const std::function<void(const std::string&)>& alert);

}  // namespace fundlet
