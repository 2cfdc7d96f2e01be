#pragma once

#include <QCollator>

/// Sorts layer names as people expect: letter case is ignored, and numbers are compared by value.
QCollator nameCollator();
