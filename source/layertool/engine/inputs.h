#pragma once

#include "arguments.h"
#include "file/error.h"
#include "folderlock.h"
#include "job.h"
#include "verb.h"

namespace layertool {

/// The jobs of a run, and what to tell the user beforehand.
struct Plan
{
    std::vector<Job> jobs;
    QStringList notices;
};

/// Collects the drawings that the command line names: files, folders (searched for `*.dxf`, except
/// for the output folder) and lists. Each drawing is processed once, however often it is named. The
/// name of an output depends only on the drawing's own path, relative to the root or, outside of
/// it, absolute. Refuses empty input, unreadable lists, and outputs that would overwrite a drawing
/// or a file in `precious`.
drawing::Expected<Plan> planJobs(
    const Arguments& arguments, const VerbRow& verb, const QStringList& precious);

/// The shard that the option "K/N" asks for. Refuses any other form.
drawing::Expected<Shard> shardOf(const Arguments& arguments);

/// The jobs that belong to the shard.
std::vector<Job> jobsOf(const Shard& shard, const std::vector<Job>& jobs);

} // namespace layertool
