#pragma once

#include <optional>

// How far apart, in pixels, the two contacts on the board are; nothing while there are not two.
std::optional<int> contactDistance();

// What a change of the distance between two contacts on the board means for the zoom.
enum class ZoomStep { None, In, Out };

// The step from the distance at the last decision to the distance now, both in pixels. `isDecision` tells
// whether the distance now is to be remembered as the last.
ZoomStep zoomStep(int lastDistance, int distance, bool *isDecision);
