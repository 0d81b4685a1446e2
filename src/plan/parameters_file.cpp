#include "plan/parameters_file.h"

#include "plan/entry_fields.h"
#include "services/date.h"

namespace fundlet {

FolderItem ParametersFile() { return SpecialFolder::Preferences().Child(kParametersFileName); }

void SetDefaultParameters(Plan& plan) {
  plan.StartYear = Date().Year();
  plan.StartAge = 65;
  plan.YearsLeft = 27;
  plan.COLA = 0.02;
  plan.StartFundlet = 1000000;
  plan.FundletAPR = 0.05;
  plan.SocialSecurity = 20000;
  plan.EndFundlet = 100000;
}

void WriteParameters(BinaryStream& stream, const Plan& plan) {
  for (const FocusCode field : kFocusCodes) {
    const Parameter& parameter = ParameterOf(field);
    if (field == FocusCode::StartYear) {
      stream.WriteInt16(static_cast<std::int16_t>(plan.StartYear));
    } else if (parameter.whole != nullptr) {
      stream.WriteInt8(static_cast<std::int8_t>(plan.*parameter.whole));
    } else {
      stream.WriteDouble(plan.*parameter.Real());
    }
  }
}

void ReadParameters(BinaryStream& stream, Plan& plan) {
  for (const FocusCode field : kFocusCodes) {
    const Parameter& parameter = ParameterOf(field);
    if (field == FocusCode::StartYear) {
      plan.StartYear = stream.ReadInt16();
    } else if (parameter.whole != nullptr) {
      // The conversion keeps the sign. NOLINTNEXTLINE(bugprone-signed-char-misuse)
      plan.*parameter.whole = stream.ReadInt8();
    } else {
      plan.*parameter.Real() = stream.ReadDouble();
    }
  }
}

BinaryStream OpenOrCreateParametersFile(Plan& plan) {
  const FolderItem file = ParametersFile();
  if (file.Exists()) {
    BinaryStream stream = BinaryStream::Open(file);
    ReadParameters(stream, plan);
    return stream;
  }
  SetDefaultParameters(plan);
  BinaryStream stream = BinaryStream::Create(file);
  stream.SetPosition(0);
  WriteParameters(stream, plan);
  return stream;
}

void StartParameters(Plan& plan, EntryForm& form) {
  try {
    // If the folder cannot be entered, there may be no file yet, so the plan starts with the
    // defaults; a file that is there and cannot be read leaves zeros.
    if (ParametersFile().IsUnreachable()) SetDefaultParameters(plan);
    OpenOrCreateParametersFile(plan).Close();
  } catch (const std::exception&) {
    form.Alert("File “" + std::string(kParametersFileName) + "” is busy.");
  }
}

}  // namespace fundlet
