// The record table once more, step by step and without any of its short cuts: every record is a copy, pages
// are walked one by one, changes are searched from the first on.
#pragma once

#include <algorithm>
#include <optional>

#include "src/records/WexIndexError.h"
#include "tests/unit/records/MemoryStore.h"

struct PlainTable {
    struct Page {
        std::vector<Fields> rows;
        int state = 0;
    };
    using Found = std::vector<Fields>::iterator;

    int counted;  // by the store
    int count = -1;
    int pagedUpTo = 0;
    std::vector<Page> pages;
    std::vector<Fields> added, modified, deleted, queried;

    PlainTable(const std::vector<Fields>& rows, int storeCount) : counted(storeCount), queried(rows) {
        ask();
    }

    void ask() {
        count = counted;
        pages.resize(counted > 0 ? (counted + 99) / 100 : 0);
    }

    std::pair<int, int> locate(int n) {
        int page = n / 100, offset = n % 100;
        if (!deleted.empty()) {
            offset = n;
            int total = 0;
            for (page = 0; page < int(pages.size()); ++page) {
                const Page& at = pages[page];
                total += !at.rows.empty() ? int(at.rows.size()) : at.state == 0 ? 100 : 0;
                if (total > n) break;
                offset = n - total;
            }
        }
        if (page == int(pages.size())) pages.push_back({{}, 2});
        return {page, offset};
    }

    void load(int page) {
        pages[page].rows.clear();
        if (page * 100 >= count) return;
        int steps = 0;
        for (int i = page * 100; steps < 100 && i < count; ++i, ++steps) {
            if (i < int(queried.size())) {
                pages[page].rows.push_back(queried[i]);
            } else if (const size_t j = i - queried.size(); j < added.size()) {
                pages[page].rows.push_back(added[j]);
            }
        }
        pagedUpTo = page * 100 + steps;
        pages[page].state = 1;
    }

    // Null where the place has no row.
    Fields* At(int n, int* pageOfRow = nullptr) {
        if (count == -1) ask();
        if (unsigned(n) >= unsigned(std::max(count, 0))) throw WexIndexError();
        const auto [page, offset] = locate(n);
        if (page < 0 || page >= int(pages.size())) return nullptr;
        if (pages[page].rows.empty()) load(page);
        if (pageOfRow) *pageOfRow = page;
        const bool isThere = offset >= 0 && offset < int(pages[page].rows.size());
        return isThere ? &pages[page].rows[offset] : nullptr;
    }

    void Add(const Fields& record) {
        if (pages.empty()) pages.push_back({});
        const int last = int(pages.size()) - 1;
        if (pages[last].rows.size() >= 100) {
            pages.push_back({{}, 2});
        } else {
            if (pages[last].state == 0) load(last);
            pages[last].rows.push_back(record);
            pages[last].state = 3;
        }
        ++count;
        added.push_back(record);
    }

    int touch(int n) {
        if (n < 0) throw WexIndexError();
        const int page = locate(n).first;
        if (page < 0 || page >= int(pages.size())) throw WexIndexError();
        if (pages[page].state == 0) load(page);
        pages[page].state = 3;
        return page;
    }

    Fields& existing(int n, int* page = nullptr) {
        Fields* record = At(n, page);
        if (!record) throw WexIndexError();
        return *record;
    }

    static void write(Fields& entry, const Fields& values) {
        for (size_t field = 0; field < entry.size(); ++field)
            entry[field] = field < values.size() ? values[field] : L"";
    }

    void Update(int n, const Fields& values) {
        touch(n);
        Fields& record = existing(n);
        const Found inAdded = std::find(added.begin(), added.end(), record);
        const Found inModified = std::find(modified.begin(), modified.end(), record);
        if (inAdded != added.end()) {
            write(*inAdded, values);
        } else if (inModified != modified.end()) {
            write(*inModified, values);
        } else {
            modified.push_back(values);
        }
        write(record, values);
    }

    void Remove(int n) {
        const int touched = touch(n);
        if (pages[touched].rows.empty()) pages[touched].state = 4;
        int page = 0;
        Fields& row = existing(n, &page);
        const Fields record = row;
        const Found inAdded = std::find(added.begin(), added.end(), record);
        if (inAdded != added.end()) {
            added.erase(inAdded);
        } else {
            const Found inModified = std::find(modified.begin(), modified.end(), record);
            if (inModified != modified.end()) modified.erase(inModified);
            deleted.push_back(record);
        }
        pages[page].rows.erase(pages[page].rows.begin() + (&row - pages[page].rows.data()));
        --count;
    }

    void forgetChanges() {
        added.clear();
        modified.clear();
        deleted.clear();
    }
};
