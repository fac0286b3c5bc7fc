#pragma once

#include <IOKit/IOKitLib.h>

namespace tarvo::macos_platform {

/// A service or an iterator of the I/O Registry, which its receiver has to release. May hold none.
class IOObject {
public:
    explicit IOObject(io_object_t object) : object_(object) {}
    ~IOObject() {
        if (object_ != 0) IOObjectRelease(object_);
    }
    IOObject(const IOObject&) = delete;
    IOObject& operator=(const IOObject&) = delete;

    io_object_t get() const { return object_; }
    explicit operator bool() const { return object_ != 0; }

private:
    io_object_t object_;
};

} // namespace tarvo::macos_platform
