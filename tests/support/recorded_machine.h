#pragma once

#include "support/temporary_folder.h"

#include <filesystem>
#include <string>

namespace tarvo {

/// A copy of a machine of tests/data that a test may change. What the machine looks like some time later
/// stands in a folder of the same name with ".later" and holds only the files that differ.
class RecordedMachine {
public:
    explicit RecordedMachine(const std::string& name)
        : original_(std::filesystem::path(TARVO_TEST_DATA) / name),
          later_(std::filesystem::path(TARVO_TEST_DATA) / (name + ".later")) {
        copy(original_);
    }

    std::string root() const { return folder_.path().string(); }
    const TemporaryFolder& folder() const { return folder_; }
    /// Lets time pass, for sources that keep their files open too.
    void letTimePass() const { copy(later_); }
    /// Brings one file back to what it was, whatever stands in its place.
    void restore(const std::string& path) const {
        folder_.remove(path);
        std::filesystem::copy_file(original_ / path, folder_.path(path));
    }

private:
    void copy(const std::filesystem::path& from) const {
        using Options = std::filesystem::copy_options;
        std::filesystem::copy(from, folder_.path(),
                              Options::recursive | Options::copy_symlinks | Options::overwrite_existing);
    }

    TemporaryFolder folder_;
    std::filesystem::path original_;
    std::filesystem::path later_;
};

} // namespace tarvo
