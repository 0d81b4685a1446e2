#pragma once

#include <optional>
#include <string>

#include "services/folder_item.h"

namespace fundlet {

// Asks the user where to save a file. `filter` names the file types to show, empty for all;
// `proposed_name` is the first text of the name field. The dialog starts in the folder of the last
// file that it gave in this run, or in the user's documents folder or, without one, the home
// folder. It asks before it gives an existing file. Returns nullopt if the user cancels.
std::optional<FolderItem> GetSaveFolderItem(const std::string& filter,
                                            const std::string& proposed_name);

}  // namespace fundlet
