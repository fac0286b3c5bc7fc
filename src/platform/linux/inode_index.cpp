#include "platform/linux/inode_index.h"

#include <bit>

namespace tarvo::linux_platform {

namespace {

constexpr std::uint64_t goldenRatio = 0x9E3779B97F4A7C15U; // spreads the running numbers that inodes are

} // namespace

InodeIndex::InodeIndex(const std::vector<SocketRecord>& sockets) : sockets_(sockets) {
    slots_.resize(std::bit_ceil(2 * sockets.size() + 2));
    shift_ = 64U - static_cast<unsigned>(std::countr_zero(slots_.size()));
    for (std::uint32_t position = 0; position < sockets.size(); ++position) {
        const auto inode = sockets[position].inode;
        if (inode == 0) continue;
        if (auto& slot = slots_[slotOf(inode)]; slot == 0) slot = position + 1;
    }
}

const SocketRecord* InodeIndex::find(std::uint64_t inode) const {
    const auto slot = slots_[slotOf(inode)];
    return slot == 0 ? nullptr : &sockets_[slot - 1];
}

/// The slot that holds the inode, or the free one where it would stand.
std::size_t InodeIndex::slotOf(std::uint64_t inode) const {
    auto slot = static_cast<std::size_t>(inode * goldenRatio >> shift_);
    while (slots_[slot] != 0 && sockets_[slots_[slot] - 1].inode != inode)
        slot = (slot + 1) & (slots_.size() - 1);
    return slot;
}

} // namespace tarvo::linux_platform
