#pragma once

#include "ui/sections/card_section.h"

namespace tarvo::ui {

/// Traffic of the disks and the mounted volumes.
class DiskSection : public CardSection {
public:
    DiskSection(DetailContext& context, QWidget* parent);
    const std::vector<DiskVolume>& volumes() const { return volumes_; }
    bool isLoading() const { return loading_.isLoading(); }

protected:
    void appear() override { loading_.start(); }

private:
    std::vector<DiskVolume> volumes_;
    Loading<std::vector<DiskVolume>> loading_;
};

} // namespace tarvo::ui
