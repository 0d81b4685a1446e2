#include "files/remembered_parameters.h"

#include "plan/entry_fields.h"
#include "plan/parameters_file.h"

namespace fundlet {

void SaveParameters(Plan& plan, const EntryForm& form) {
  const FolderItem file = ParametersFile();
  // Opened before any field is read, so that a failure leaves the plan unchanged.
  BinaryStream stream = file.Exists() ? BinaryStream::Open(file) : BinaryStream::Create(file);
  ReadAllFields(plan, form);
  stream.SetPosition(0);
  WriteParameters(stream, plan);
  stream.Close();
}

void RestoreParameters(Plan& plan, EntryForm& form) {
  BinaryStream stream = OpenOrCreateParametersFile(plan);
  DisplayParameters(plan, form);
  form.SelectAll(FocusCode::StartYear);
  form.ShowResult(ResultText(0.0));
  stream.Close();
  form.SetFocus(FocusCode::StartYear);
}

}  // namespace fundlet
