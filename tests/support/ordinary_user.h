#pragma once

#include "support/temporary_folder.h"

#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <unistd.h>

namespace tarvo {

/// While it lives, the test acts as a user without privileges: permissions hold for root too. Nothing when
/// the test is run by an ordinary user anyway.
class OrdinaryUser {
public:
    /// The folder and those in it become the user's; files keep their owners.
    explicit OrdinaryUser(const TemporaryFolder& folder) {
        if (::geteuid() != 0) return;
        give(folder.path());
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder.path())) {
            if (entry.is_directory()) give(entry.path());
        }
        became_ = ::seteuid(nobody) == 0;
    }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;
    ~OrdinaryUser() {
        if (became_ && ::seteuid(0) != 0) std::abort();
    }

    static constexpr uid_t nobody = 65534;

private:
    static void give(const std::filesystem::path& path) {
        if (::lchown(path.c_str(), nobody, nobody) != 0)
            throw std::runtime_error("cannot give the folder away");
    }

    bool became_ = false;
};

} // namespace tarvo
