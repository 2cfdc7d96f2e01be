#pragma once

#include <QStringList>

#include <optional>

/// What the layer walk remembers from one use to the next.
namespace vnsi::walksettings {

struct Settings
{
    std::optional<bool> restores; ///< Whether closing restores the layers; none: never chosen.
    QStringList filters;          ///< In the order of the list.
};

Settings load();
void save(const Settings& settings);

} // namespace vnsi::walksettings
