#pragma once

#include <optional>
#include <string>

#include "services/folder_item.h"

namespace fundlet {

// Asks the user where to save a file. `filter` names the file types to show, as QFileDialog does,
// empty for all; `proposed_name` is the first text of the name field. The dialog starts in the
// folder of the last file that it gave in this run, or in the user's documents folder or, without
// one, the home folder. Before it returns an existing file, it asks whether to replace it. Returns
// nullopt if the user cancels or the dialog is dismissed.
std::optional<FolderItem> GetSaveFolderItem(const std::string& filter,
                                            const std::string& proposed_name);

}  // namespace fundlet
