#pragma once

#include <QCollator>

/// Orders layers' names the way people look them up: letter case apart, numbers by their value.
QCollator nameCollator();
