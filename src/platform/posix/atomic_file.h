#pragma once

#include "platform/stored_file.h"

#include <cstdint>
#include <filesystem>
#include <span>

struct iovec;

namespace tarvo {

/// A file that is replaced by writing a second one beside it (mode 0600) and renaming that over it.
///
/// The rename waits for no disk. A killed program loses nothing, because what was written is the kernel's by
/// then; after a power cut the file holds this content or an earlier one. So that the second also holds on
/// file systems that may commit a rename before the data, write-back of the data is started first (Linux).
class AtomicFile : public StoredFile {
public:
    enum class Durability {
        afterKill,    ///< as above
        afterPowerCut ///< the content is on the disk before the rename: for files that are written seldom
    };

    /// Creates the file's folder (mode 0700) with those above it; a failure shows in the later reads and
    /// writes. An empty path is a file that can be neither read nor written.
    explicit AtomicFile(std::filesystem::path path, Durability durability = Durability::afterKill);

    std::optional<std::string> read(std::size_t limit) override;
    bool replace(std::string_view content) override;
    bool replaceKeeping(std::string_view head, ContentRange kept, std::string_view tail) override;

    const std::filesystem::path& path() const { return path_; }

private:
    /// Tells the file that was written last from any other and from its own later states.
    struct Identity {
        std::uint64_t device = 0;
        std::uint64_t inode = 0;
        std::int64_t size = 0;
        std::int64_t modifiedNanoseconds = 0;
        bool operator==(const Identity&) const = default;
    };

    static std::optional<Identity> identify(int descriptor);
    bool replaceWith(std::span<iovec> pieces);

    std::filesystem::path path_;
    std::filesystem::path temporaryPath_;
    Durability durability_;
    std::optional<Identity> written_;
};

} // namespace tarvo
