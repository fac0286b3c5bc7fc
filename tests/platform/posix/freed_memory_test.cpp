#include "platform/posix/freed_memory.h"

#include "support/c_library_heap.h"

#include <gtest/gtest.h>

#include <cstring>
#include <fstream>
#include <memory>
#include <vector>

namespace tarvo {
namespace {

constexpr std::size_t blockSize = 16 << 10;
constexpr std::size_t blockCount = 2048;
constexpr std::size_t blockBytes = blockSize * blockCount;

std::size_t residentPages() {
    std::ifstream file("/proc/self/statm");
    std::size_t size = 0;
    std::size_t resident = 0;
    file >> size >> resident;
    return resident;
}

std::unique_ptr<char[]> used(std::size_t size) {
    auto block = std::make_unique<char[]>(size);
    std::memset(block.get(), 1, size);
    return block;
}

} // namespace

TEST(FreedMemory, GoesBackToTheSystemFromBelowWhatIsStillInUse) {
    if (!heapInUse()) GTEST_SKIP() << "this heap is not the C library's";
    std::vector<std::unique_ptr<char[]>> blocks;
    for (std::size_t index = 0; index < blockCount; ++index)
        blocks.push_back(used(blockSize));
    const auto above = used(4 * blockSize);
    blocks.clear();
    const std::size_t before = residentPages();
    returnFreedMemory();
    const std::size_t after = residentPages();
    if (before == 0) GTEST_SKIP() << "this system does not tell";
    constexpr std::size_t largestPage = 65536;
    EXPECT_LT(after + blockBytes / largestPage / 2, before);
    EXPECT_EQ(above[63], 1);
}

TEST(FreedMemory, MayBeAskedForWhenNothingIsFree) {
    returnFreedMemory();
    returnFreedMemory();
}

} // namespace tarvo
