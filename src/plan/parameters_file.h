#pragma once

#include "plan/entry_form.h"
#include "plan/plan.h"
#include "services/binary_stream.h"
#include "services/folder_item.h"

// The file that keeps the eight parameters between runs: one record of 44 bytes, without a header.
//
//   offset  width  field           type
//        0      2  StartYear       signed integer
//        2      1  StartAge        signed integer
//        3      1  YearsLeft       signed integer
//        4      8  COLA            double, like the four fields after it
//       12      8  StartFundlet
//       20      8  FundletAPR
//       28      8  SocialSecurity
//       36      8  EndFundlet
//
// The most significant byte comes first. The whole numbers keep their low 16 or 8 bits.
namespace fundlet {

inline constexpr const char* kParametersFileName = "Fundlet.Preferences";

// The place of the parameters file, whether the file exists or not. It has no path if the user has
// no home folder.
FolderItem ParametersFile();

// Sets the parameters of a first run: a sample plan that begins in the present year.
void SetDefaultParameters(Plan& plan);

// Write or read the eight parameters at the stream's position. Each value goes into the plan as
// soon as it is read, so the values read before a failure remain in the plan. No value is tested.
// Both throw IOException.
void WriteParameters(BinaryStream& stream, const Plan& plan);
void ReadParameters(BinaryStream& stream, Plan& plan);

// Opens the parameters file and reads it into the plan. If there is none, sets the defaults and
// creates the file with them. Throws IOException.
BinaryStream OpenOrCreateParametersFile(Plan& plan);

// Sets the parameters when the program starts, from the file or to the defaults. If the file cannot
// be used, the form shows an alert, and the start goes on: the plan then has the values read before
// the failure, or the defaults if no file could be created or its folder may not be entered. Calls
// nothing else of the form. Throws only what the alert throws.
void StartParameters(Plan& plan, EntryForm& form);

}  // namespace fundlet
