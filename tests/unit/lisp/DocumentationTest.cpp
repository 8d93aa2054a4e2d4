// What docs/lisp.md says is true and complete.
#include <gtest/gtest.h>

#include "host/lisp/Machine.h"
#include "host/units/UnitFunctions.h"
#include "tests/support/TempFolder.h"
#include "tests/unit/lisp/Session.h"

namespace {

std::string documentation() { return bytesOf(WEX_SOURCE_FOLDER "/docs/lisp.md"); }

struct Example {
    std::string form;
    std::string value;
};

void addExample(std::string_view text, std::vector<Example>& examples) {
    if (size_t arrow = text.find(" => "); arrow != text.npos)
        examples.push_back({std::string(text.substr(0, arrow)), std::string(text.substr(arrow + 4))});
}

// From whole lines of code blocks, and from code between back-quotes in the text.
std::vector<Example> examplesOf(const std::string& text) {
    std::vector<Example> examples;
    bool inBlock = false;
    for (size_t start = 0, end; start < text.size(); start = end + 1) {
        end = std::min(text.find('\n', start), text.size());
        std::string_view line = std::string_view(text).substr(start, end - start);
        if (line.starts_with("```"))
            inBlock = !inBlock;
        else if (inBlock)
            addExample(line, examples);
        else
            for (size_t open = line.find('`'); open != line.npos;) {
                size_t close = line.find('`', open + 1);
                if (close == line.npos) break;
                addExample(line.substr(open + 1, close - open - 1), examples);
                open = line.find('`', close + 1);
            }
    }
    return examples;
}

struct WorkingFolder : TempFolder {
    WorkingFolder() { std::filesystem::current_path(path); }
    ~WorkingFolder() { std::filesystem::current_path(before); }
    const std::filesystem::path before = std::filesystem::current_path();
};

TEST(Documentation, ExamplesGiveWhatTheySay) {
    for (bool collectAlways : {false, true}) {
        WorkingFolder folder;
        Session session({.stackBytes = 256 * 1024});
        defineUnitFunctions(session.lisp);
        session.lisp.setCollectAlways(collectAlways);
        std::vector<Example> examples = examplesOf(documentation());
        EXPECT_GT(examples.size(), 150u);
        for (const auto& [form, value] : examples) EXPECT_EQ(session.run(form), value) << form;
    }
}

TEST(Documentation, NamesEveryFunction) {
    Session session;
    defineUnitFunctions(session.lisp);
    std::string text = documentation();
    for (const auto& [name, symbol] : session.lisp.machine().symbols) {
        if (!symbol->specialForm && !symbol->value.isFunction()) continue;
        std::string lower = lisp::toUtf8(lisp::lowerCase(name));
        bool combined = lower.size() > 3 && lower.find_first_not_of("ad", 1) == lower.size() - 1 &&
                        lower[0] == 'c' && lower.back() == 'r';
        bool named = text.find("`(" + lower + " ") != text.npos || text.find("`(" + lower + ")") != text.npos;
        EXPECT_TRUE(named || combined) << lower;
    }
}

}  // namespace
