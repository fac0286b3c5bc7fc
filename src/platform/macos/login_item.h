#pragma once

namespace tarvo::macos_platform {

/// Starts the application with the user's session, as one of the user's login items. The system's list is the
/// only state: what the user changes there is what counts. Main thread only.
class LoginItem {
public:
    bool isOn() const;
    /// Where the system refuses everything stays as it was.
    void setOn(bool on);
};

} // namespace tarvo::macos_platform
