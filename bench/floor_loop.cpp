// The floor as a whole program: reads and parses the files of a tick every so many seconds, and does nothing
// else. Usage: floor_loop SECONDS

#include "floor_reader.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <thread>

int main(int count, char** arguments) {
    const double seconds = count == 2 ? std::atof(arguments[1]) : 0;
    if (seconds <= 0) {
        std::fputs("usage: floor_loop SECONDS\n", stderr);
        return 2;
    }
    tarvo::bench::FloorReader floor("");
    for (;;) {
        std::printf("%llx\n", static_cast<unsigned long long>(floor.tick()));
        std::fflush(stdout);
        std::this_thread::sleep_for(std::chrono::duration<double>(seconds));
    }
}
