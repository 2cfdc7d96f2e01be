#pragma once

#include <vector>

class Canvas;

/// Lets the user pick entities on the canvas and returns when that is over: the entities,
/// ascending; none when the user gave up. What was selected before is selected again then.
std::vector<int> pickEntities(Canvas& canvas);
