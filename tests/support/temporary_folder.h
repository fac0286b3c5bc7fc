#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>

namespace tarvo {

/// A folder of its own for one test, removed at its end. Paths are given relative to it.
class TemporaryFolder {
public:
    TemporaryFolder() {
        auto pattern = (std::filesystem::temp_directory_path() / "tarvo-test-XXXXXX").string();
        if (::mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no temporary folder");
        path_ = pattern;
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

    const std::filesystem::path& path() const { return path_; }
    std::string path(std::string_view relative) const { return (path_ / strip(relative)).string(); }

    /// Writes the text in place of what the file held, making the folders above it.
    void write(std::string_view relative, std::string_view text) const {
        const auto target = path_ / strip(relative);
        std::filesystem::create_directories(target.parent_path());
        std::ofstream(target, std::ios::binary) << text;
    }
    void makeFolder(std::string_view relative) const {
        std::filesystem::create_directories(path_ / strip(relative));
    }
    void link(std::string_view relative, std::string_view target) const {
        const auto name = path_ / strip(relative);
        std::filesystem::create_directories(name.parent_path());
        std::filesystem::create_symlink(target, name);
    }
    void remove(std::string_view relative) const { std::filesystem::remove_all(path_ / strip(relative)); }

private:
    static std::string_view strip(std::string_view relative) {
        while (relative.starts_with('/'))
            relative.remove_prefix(1);
        return relative;
    }

    std::filesystem::path path_;
};

} // namespace tarvo
