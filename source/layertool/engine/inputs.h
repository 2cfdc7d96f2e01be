#pragma once

#include "arguments.h"
#include "file/error.h"
#include "folderlock.h"
#include "job.h"
#include "verb.h"

namespace layertool {

/// What there is to do, and what to say of it beforehand.
struct Plan
{
    std::vector<Job> jobs;
    QStringList notices;
};

/// The drawings that the command line names: files, folders (walked for `*.dxf`, the output folder
/// left out) and lists. Each is done once, however many ways lead to it. What outputs are called
/// follows from a drawing's own path alone: the one below the root or, for a drawing elsewhere, its
/// absolute one. Refuses an empty input, a list that cannot be read, and outputs that would take
/// the place of a drawing or of a file in `precious`.
drawing::Expected<Plan> planJobs(
    const Arguments& arguments, const VerbRow& verb, const QStringList& precious);

/// "K/N"; refuses anything else.
drawing::Expected<Shard> shardOf(const Arguments& arguments);

/// The part of the jobs that is the shard's.
std::vector<Job> jobsOf(const Shard& shard, const std::vector<Job>& jobs);

} // namespace layertool
