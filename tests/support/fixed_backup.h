#pragma once

#include "platform/backup.h"

#include <map>
#include <vector>

namespace tarvo {

/// A backup tool that prints what the test says; a command without text cannot be started.
class FixedBackupTool : public BackupTool {
public:
    std::optional<std::string> output(const std::string& command) override {
        commands.push_back(command);
        const auto found = texts.find(command);
        return found == texts.end() ? std::nullopt : std::optional(found->second);
    }

    std::map<std::string, std::string> texts;
    std::vector<std::string> commands;
};

class FixedBackups : public Backups {
public:
    BackupState state() override { return answer; }
    BackupState answer;
};

} // namespace tarvo
