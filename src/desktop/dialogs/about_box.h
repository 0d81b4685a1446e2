#pragma once

namespace fundlet {

// Shows Qt's about box with the program's picture, name and version, over the frontmost
// window, until the user closes it.
void ShowAboutBox();

}  // namespace fundlet
