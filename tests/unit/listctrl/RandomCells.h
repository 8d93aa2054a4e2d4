// Cells that make a sort difficult: few different ones, all kinds, and texts that look like distances but
// can't be parsed.
#pragma once

#include <iterator>
#include <random>
#include <string>

class RandomCells {
  public:
    explicit RandomCells(unsigned seed) : m_random(seed) {}

    int below(int limit) { return static_cast<int>(m_random() % static_cast<unsigned>(limit)); }

    // One of the cells of `mix`: 0 numbers, 1 feet and inches, 2 texts, above that anything.
    std::wstring cell(int mix) {
        switch (mix) {
            case 0:
                return std::to_wstring(below(20));
            case 1:
                return std::to_wstring(below(4)) + L"'-" + std::to_wstring(below(12)) + L"\"";
            case 2:
                return std::wstring(1, static_cast<wchar_t>(L'A' + below(6)));
            default:
                return below(3) ? known() : spelled();
        }
    }

  private:
    std::wstring known() {
        static const wchar_t* const cells[] = {L"",   L"0",    L"9",      L"10",    L"100",    L"a10",
                                               L"-5", L"-",    L"1/2",    L"1/",    L"1'-6\"", L"1' ",
                                               L"18", L"18.0", L"1.5E+1", L"1.5E+", L"2E",     L"1-1",
                                               L"..", L"12A",  L"B",      L"b",     L" "};
        return cells[below(static_cast<int>(std::size(cells)))];
    }
    std::wstring spelled() {
        static const std::wstring letters = L"0123.-/' \"Ee+aZ";
        std::wstring text;
        for (int length = below(5); length > 0; --length)
            text += letters[below(static_cast<int>(letters.size()))];
        return text;
    }

    std::mt19937 m_random;
};
