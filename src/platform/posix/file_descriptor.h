#pragma once

#include <unistd.h>

#include <utility>

namespace tarvo {

/// An open file that is closed with its owner; -1 inside means none.
class FileDescriptor {
public:
    FileDescriptor() = default;
    explicit FileDescriptor(int number) : number_(number) {}
    FileDescriptor(FileDescriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept {
        std::swap(number_, other.number_);
        return *this;
    }
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;
    ~FileDescriptor() { reset(); }

    explicit operator bool() const { return number_ >= 0; }
    int get() const { return number_; }
    void reset() {
        if (number_ >= 0) ::close(std::exchange(number_, -1));
    }

private:
    int number_ = -1;
};

} // namespace tarvo
