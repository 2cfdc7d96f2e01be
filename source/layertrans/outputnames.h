#pragma once

#include "outcome.h"

#include <QStringList>

#include <tl/expected.hpp>

/// What there is to do, and what to say of it beforehand.
struct Plan
{
    std::vector<Job> jobs;
    QStringList notices;
};

/// Gives each drawing a name of its own in `out`. Of drawings that share a base name the later ones
/// get a number behind it, by their order alone, so that all parts of a list that is split among
/// machines agree. A drawing given twice is done once. Refuses, with a sentence, when an output
/// would take the place of a drawing or of a file in `precious`.
tl::expected<Plan, QString> planOutputs(
    const QStringList& drawings, const QString& out, const QStringList& precious);
