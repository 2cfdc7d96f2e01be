#pragma once

#include "hostextras.h"
#include "valuetree.h"

#include <QJsonObject>
#include <QStringList>

#include <vector>

/// Parses a JSON text to a tree. Fails the test when the text is invalid.
vnsi::VnJsonPtr tree(const QString& json);
/// The tree as one line of JSON with sorted keys.
QString toText(const vnsi::VnJsonPtr& node);
/// An object's members as Qt's JSON object.
QJsonObject toJsonObject(const vnsi::VnJsonPtr& node);
/// Writes the members of `json`, including nested ones, into `target`.
void merge(const vnsi::VnJsonPtr& target, const QJsonObject& json);
void merge(const vnsi::VnJsonPtr& target, const QString& json);

/// The node itself and all containers in it.
std::vector<vnsi::VnJsonPtr> containersIn(const vnsi::VnJsonPtr& node);
/// The keys of an object's members.
QStringList keysOf(const vnsi::VnJsonPtr& node);
