#pragma once

#include <ctime>

/// Processor time of this process, all threads together, in seconds.
[[nodiscard]] inline double ProcessSeconds() {
  timespec time{};
  ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}
