// Times of one piece of work, done again and again, and how they are printed.
#pragma once

#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <vector>

// Milliseconds since some moment.
inline double now() {
    LARGE_INTEGER ticks, frequency;
    QueryPerformanceCounter(&ticks);
    QueryPerformanceFrequency(&frequency);
    return static_cast<double>(ticks.QuadPart) * 1000.0 / static_cast<double>(frequency.QuadPart);
}

class Times {
  public:
    void add(double milliseconds) { m_times.push_back(milliseconds); }

    double median() const {
        std::vector<double> sorted = m_times;
        std::sort(sorted.begin(), sorted.end());
        return sorted[sorted.size() / 2];
    }

    // One line: key  min X  med Y ms  n=N
    void print(const char* key) const {
        std::printf("%-34s min %9.4f  med %9.4f ms  n=%zu\n", key,
                    *std::min_element(m_times.begin(), m_times.end()), median(), m_times.size());
        std::fflush(stdout);
    }

  private:
    std::vector<double> m_times;
};
