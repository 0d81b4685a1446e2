#pragma once

namespace fundlet {

// Shows a box with the program's icon, name and version over the frontmost window, or by itself if
// there is none. Returns when the user has closed it.
void ShowAboutBox();

}  // namespace fundlet
