#pragma once

#include <vector>

class Canvas;

/// Lets the user pick entities on the canvas and waits until that is over. Returns the entities in
/// ascending order, or none when the user cancelled. Afterwards the former selection is restored.
std::vector<int> pickEntities(Canvas& canvas);
