#include "platform/posix/freed_memory.h"

#include "support/c_library_heap.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <memory>
#include <string>
#include <thread>
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

#if defined(__GLIBC__)

// As the C library describes them.
int heaps() {
    char* text = nullptr;
    std::size_t size = 0;
    FILE* const file = ::open_memstream(&text, &size);
    ::malloc_info(0, file);
    std::fclose(file);
    const std::string description(text, size);
    std::free(text); // NOLINT(cppcoreguidelines-no-malloc): the stream took it from there
    int count = 0;
    for (auto at = description.find("<heap "); at != std::string::npos;
         at = description.find("<heap ", at + 1))
        ++count;
    return count;
}

#endif

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

#if defined(__GLIBC__)

// In a process of its own: in this one other tests have had threads already.
TEST(SharedHeapDeathTest, IsTheOnlyOneWhenAThreadHasTakenMemory) {
    if (!heapInUse()) GTEST_SKIP() << "this heap is not the C library's";
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto heapsAfterAThread = [] {
        std::thread([] { used(blockSize); }).join();
        return heaps();
    };
    EXPECT_EXIT(shareOneHeap(); std::_Exit(heapsAfterAThread()), testing::ExitedWithCode(1), "");
}

#endif

TEST(FreedMemory, MayBeAskedForWhenNothingIsFree) {
    returnFreedMemory();
    returnFreedMemory();
}

} // namespace tarvo
