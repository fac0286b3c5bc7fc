#pragma once

#include <cstddef>
#include <string_view>
#include <sys/mman.h>

namespace tarvo {

/// A file's bytes mapped for reading, for as long as this object lives. Reading the bytes here is safe only
/// while nobody shortens the file; handing them to a system call always is.
class FileMapping {
public:
    FileMapping(int descriptor, std::size_t size) : size_(size) {
#if defined(MAP_POPULATE)
        constexpr int flags = MAP_SHARED | MAP_POPULATE;
#else
        constexpr int flags = MAP_SHARED;
#endif
        void* const address = ::mmap(nullptr, size, PROT_READ, flags, descriptor, 0);
        if (address != MAP_FAILED) address_ = address;
    }
    FileMapping(const FileMapping&) = delete;
    FileMapping& operator=(const FileMapping&) = delete;
    ~FileMapping() {
        if (address_ != nullptr) ::munmap(address_, size_);
    }

    explicit operator bool() const {
        return address_ != nullptr;
    }
    std::string_view content() const {
        return {static_cast<const char*>(address_), size_};
    }

private:
    void* address_ = nullptr;
    std::size_t size_;
};

} // namespace tarvo
