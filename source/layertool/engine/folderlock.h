#pragma once

#include "file/error.h"

#include <memory>

namespace layertool {

/// The part of all drawings that a run does.
struct Shard
{
    int number = 1; ///< From 1.
    int count = 1;
};

/// Keeps other runs out of an output folder while it lives. The shards of one division may work at
/// the same time, each once; a whole run, and shards of another division, may not.
class FolderLock
{
public:
    /// Refuses, with a sentence, while another run has the folder; waits for it when told to.
    static drawing::Expected<std::unique_ptr<FolderLock>> take(
        const QString& outFolder, const Shard& shard, bool waits);
    ~FolderLock();
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;

private:
    FolderLock() = default;
    drawing::Expected<void> lockFolder(const QString& folder, const Shard& shard, bool waits);
    drawing::Expected<void> lockShard(const QString& folder, const Shard& shard, bool waits);

    int m_folder = -1;
    int m_shard = -1;
};

} // namespace layertool
