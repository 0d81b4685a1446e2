#include "plan/parameters_file.h"

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
  stream.WriteInt16(static_cast<std::int16_t>(plan.StartYear));
  stream.WriteInt8(static_cast<std::int8_t>(plan.StartAge));
  stream.WriteInt8(static_cast<std::int8_t>(plan.YearsLeft));
  stream.WriteDouble(plan.COLA);
  stream.WriteDouble(plan.StartFundlet);
  stream.WriteDouble(plan.FundletAPR);
  stream.WriteDouble(plan.SocialSecurity);
  stream.WriteDouble(plan.EndFundlet);
}

void ReadParameters(BinaryStream& stream, Plan& plan) {
  plan.StartYear = stream.ReadInt16();
  // The sign is to go with the wider type. NOLINTNEXTLINE(bugprone-signed-char-misuse)
  plan.StartAge = stream.ReadInt8();
  // NOLINTNEXTLINE(bugprone-signed-char-misuse)
  plan.YearsLeft = stream.ReadInt8();
  plan.COLA = stream.ReadDouble();
  plan.StartFundlet = stream.ReadDouble();
  plan.FundletAPR = stream.ReadDouble();
  plan.SocialSecurity = stream.ReadDouble();
  plan.EndFundlet = stream.ReadDouble();
}

BinaryStream OpenRememberedParameters(Plan& plan) {
  const FolderItem file = ParametersFile();
  if (file.Exists()) {
    BinaryStream stream = BinaryStream::Open(file, true);
    ReadParameters(stream, plan);
    return stream;
  }
  SetDefaultParameters(plan);
  BinaryStream stream = BinaryStream::Create(file, true);
  stream.SetPosition(0);
  WriteParameters(stream, plan);
  return stream;
}

void StartParameters(Plan& plan, const std::function<void(const std::string&)>& alert) {
  try {
    OpenRememberedParameters(plan).Close();
  } catch (const std::exception&) {
    alert("File “" + std::string(kParametersFileName) + "” is busy.");
  }
}

}  // namespace fundlet
