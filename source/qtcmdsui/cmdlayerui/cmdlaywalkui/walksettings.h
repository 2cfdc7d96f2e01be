#pragma once

#include <QStringList>

#include <optional>

/// What the layer walk remembers between two uses.
namespace vnsi::walksettings {

struct Settings
{
    std::optional<bool> restores; ///< Whether closing restores the layers; empty when never chosen.
    QStringList filters;          ///< In the order in which they are listed.
};

Settings load();
void save(const Settings& settings);

} // namespace vnsi::walksettings
