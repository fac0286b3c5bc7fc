#pragma once

#include <CoreFoundation/CoreFoundation.h>

namespace tarvo::macos_platform {

/// An object that a Create or Copy function answered, which its receiver has to release. May hold none.
template <typename Reference>
class CFObject {
public:
    explicit CFObject(Reference object) : object_(object) {}
    ~CFObject() {
        if (object_) CFRelease(object_);
    }
    CFObject(const CFObject&) = delete;
    CFObject& operator=(const CFObject&) = delete;

    Reference get() const { return object_; }
    explicit operator bool() const { return object_ != nullptr; }

private:
    Reference object_;
};

} // namespace tarvo::macos_platform
