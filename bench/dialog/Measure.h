// Times of work that is done again and again, and how they are printed.
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

template <class Work>
double timeOf(Work work) {
    const double begun = now();
    work();
    return now() - begun;
}

class Times {
  public:
    void add(double milliseconds) { m_times.push_back(milliseconds); }

    double least() const { return *std::min_element(m_times.begin(), m_times.end()); }
    double median() const {
        std::vector<double> sorted = m_times;
        std::sort(sorted.begin(), sorted.end());
        return sorted[sorted.size() / 2];
    }

    // One line: key  min X  med Y ms  n=N
    void print(const char* key) const {
        std::printf("%-34s min %9.4f  med %9.4f ms  n=%zu\n", key, least(), median(), m_times.size());
        std::fflush(stdout);
    }

    size_t count() const { return m_times.size(); }

  private:
    std::vector<double> m_times;
};

// Ours and the bare platform's, taken in turns. One line, as rows.lsp prints it.
struct Versus {
    Times ours, bare;

    void print(const char* key) const {
        std::printf(
            "%s  min %.4f  med %.4f ms  bare min %.4f  med %.4f ms  ratio min %.2f  med %.2f  n=%zu\n", key,
            ours.least(), ours.median(), bare.least(), bare.median(), ours.least() / bare.least(),
            ours.median() / bare.median(), ours.count());
        std::fflush(stdout);
    }
};
