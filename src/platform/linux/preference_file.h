#pragma once

#include "platform/linux/file_identity.h"
#include "platform/linux/preference_document.h"
#include "platform/preference_store.h"

#include <map>
#include <optional>
#include <string>

namespace tarvo::linux_platform {

/// The preferences in one file (see PreferenceDocument), read at once and replaced whole on each change.
/// Before a write the file is read again, so that several instances of the program keep each other's keys. A
/// file that cannot be understood counts as empty and is set aside as "<path>.damaged-<time>" before the
/// first write. Where nothing can be written a changed value holds for this run. Main thread only.
class PreferenceFile : public PreferenceStore {
public:
    /// Nothing is read or written where the path is empty.
    PreferenceFile(std::string path, const Clock& clock);

    std::optional<PreferenceValue> object(std::string_view key) const override;
    void set(std::string_view key, PreferenceValue value) override;
    void remove(std::string_view key) override;
    Subscription observe(std::function<void()> changed) override {
        return changed_.observe(std::move(changed));
    }

    /// Looks whether another program has replaced the file, reads it and tells the observers if a value is
    /// now another. Costs one look at the file's identity when nothing happened; own writes do not count.
    bool reloadIfChanged();

    const std::string& path() const { return path_; }

private:
    /// A change that the file does not hold yet; absent removes the key.
    using Changes = std::map<std::string, std::optional<PreferenceValue>, std::less<>>;

    void change(std::string_view key, std::optional<PreferenceValue> value);
    void load();
    void loadIfChanged();
    void save();

    std::string path_;
    const Clock& clock_;
    PreferenceDocument document_; ///< as last read or written
    Changes pending_;             ///< win over the document
    std::optional<FileIdentity> seen_;
    bool damaged_ = false;
    Observers<> changed_;
};

} // namespace tarvo::linux_platform
