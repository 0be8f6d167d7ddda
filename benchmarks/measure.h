#pragma once

// One measured run in a process of its own: its time, its peak memory and the bytes it wrote, as one line of text.

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>
#include <sys/resource.h>

namespace bench {

/// What one run did.
struct run_result
{
    double build_seconds = 0;
    double write_seconds = 0; ///< checks and clean-up included
    long long bytes_written = 0;
    double text_seconds = 0; ///< writing alone; 0 where it is not measured apart
    long long text_bytes = 0;
    long kilobytes = 0; ///< peak memory of what counts; 0 for that of the whole run
};

using clock = std::chrono::steady_clock;

inline double seconds_since(clock::time_point start)
{
    return std::chrono::duration<double>(clock::now() - start).count();
}

inline long peak_kilobytes()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

/// usage: PROGRAM WORKLOAD N. Prints "workload N build write kilobytes bytes text_seconds text_bytes"; the workload
/// "empty" measures the program itself.
inline int main_of(int argc, char ** argv, std::function<run_result(std::string const &, int)> const & run)
{
    if (argc != 3) {
        std::fprintf(stderr, "usage: %s WORKLOAD N\n", argv[0]);
        return 64;
    }
    std::string const workload = argv[1];
    int const n = std::atoi(argv[2]);
    run_result const result = workload == "empty" ? run_result{} : run(workload, n);
    std::printf("%s %d %.6f %.6f %ld %lld %.6f %lld\n", workload.c_str(), n, result.build_seconds, result.write_seconds,
                result.kilobytes ? result.kilobytes : peak_kilobytes(), result.bytes_written, result.text_seconds,
                result.text_bytes);
    return 0;
}

} // namespace bench
