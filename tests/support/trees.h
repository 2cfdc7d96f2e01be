#pragma once

#include "vnjson.h"

#include <QJsonObject>
#include <QStringList>

#include <vector>

/// The tree of a JSON text; fails the test when it is none.
vnsi::VnJsonPtr tree(const QString& json);
/// The tree as one line of JSON, members in the order of their keys.
QString toText(const vnsi::VnJsonPtr& node);
/// The members of an object as Qt has them.
QJsonObject toJsonObject(const vnsi::VnJsonPtr& node);
/// Writes the members of `json` into `target`, through nested objects.
void merge(const vnsi::VnJsonPtr& target, const QJsonObject& json);
void merge(const vnsi::VnJsonPtr& target, const QString& json);

/// The node itself and all containers in it.
std::vector<vnsi::VnJsonPtr> containersIn(const vnsi::VnJsonPtr& node);
/// The keys of an object's members.
QStringList keysOf(const vnsi::VnJsonPtr& node);
