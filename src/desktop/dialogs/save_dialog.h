#pragma once

#include <optional>
#include <string>

#include "services/folder_item.h"

namespace fundlet {

// Asks where to save a file. `filter` names the file types to show, empty for all; `proposed_name`
// stands in the dialog. It starts in the folder where the last file of this run went, or else in
// the user's documents, and asks before an existing file is taken. Nothing where the user cancels.
std::optional<FolderItem> GetSaveFolderItem(const std::string& filter,
                                            const std::string& proposed_name);

}  // namespace fundlet
