#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <set>
#include <string>

#include "host/check/Knowledge.h"
#include "host/lisp/Interpreter.h"
#include "host/lisp/Text.h"
#include "src/LispSignatures.h"

namespace {

// The calls in the headings of docs/lisp-functions.md, without their asterisks.
std::set<std::string> headingCalls() {
    std::ifstream file(WEX_SOURCE_FOLDER "/docs/lisp-functions.md");
    std::set<std::string> calls;
    for (std::string line; std::getline(file, line);) {
        if (!line.starts_with("### (")) continue;
        std::erase(line, '*');
        for (size_t at = line.find('('); at != line.npos; at = line.find('(', at + 1))
            calls.insert(line.substr(at + 1, line.find(')', at) - at - 1));
    }
    return calls;
}

TEST(Signatures, AreThoseOfTheDocument) {
    std::set<std::string> told;
    for (const wchar_t* signature : LISP_SIGNATURES) {
        const std::wstring_view text(signature);
        told.insert(lisp::toUtf8(check::parseSignature(std::u16string(text.begin(), text.end())).usage));
    }
    EXPECT_EQ(told, headingCalls());
}

// The functions of sessions are the Windows host's, which refuses to check where one is missing.
TEST(Signatures, OfTheLanguageHaveTheirFunctions) {
    check::Knowledge knowledge;
    addFunctions(knowledge, lisp::Interpreter().machine());
    for (const std::u16string_view missed : describeHostFunctions(knowledge))
        EXPECT_TRUE(missed.starts_with(u"ui_")) << lisp::toUtf8(missed);
}

TEST(Signatures, TellCountsAndRoles) {
    const check::Function item = check::parseSignature(u"f tile:tree+grid [row:int [column:int]] text:text");
    EXPECT_EQ(item.minimum, 2);
    EXPECT_EQ(item.maximum, 4);
    EXPECT_EQ(item.argument(0).role, check::Role::tile);
    EXPECT_EQ(check::wordsOfKinds(item.argument(0).kinds), u"tree or grid");
    // Which argument stands in the second place depends on how many there are.
    EXPECT_EQ(item.argument(1).role, check::Role::any);
    const check::Function any = check::parseSignature(u"f title:text [control:tile …]");
    EXPECT_EQ(any.minimum, 1);
    EXPECT_EQ(any.maximum, -1);
    EXPECT_EQ(any.argument(7).role, check::Role::tile);
}

}  // namespace
