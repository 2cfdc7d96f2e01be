#pragma once

#include "file/error.h"

#include <memory>

namespace layertool {

/// The share of all drawings that one run handles.
struct Shard
{
    int number = 1; ///< Counted from 1.
    int count = 1;
};

/// Keeps other runs out of an output folder while it exists. Different shards of the same division
/// may work at the same time; a whole run, or a shard of another division, may not.
class FolderLock
{
public:
    /// Locks the folder. While another run has it, waits if `waits` is set and otherwise refuses
    /// with a sentence.
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
