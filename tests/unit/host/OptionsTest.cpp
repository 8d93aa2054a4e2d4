#include "host/runner/Options.h"

#include <gtest/gtest.h>

namespace {

Options parse(std::vector<std::wstring> arguments) { return parseOptions(arguments); }

TEST(Options, FilesAndExpressionsKeepTheirOrder) {
    const Options options =
        parse({L"a.lsp", L"-e", L"-1", L"--support", L"x", L"b.lsp", L"--support", L"y", L"--", L"-c.lsp"});
    ASSERT_EQ(options.steps.size(), 4U);
    EXPECT_EQ(options.steps[0].text, L"a.lsp");
    EXPECT_TRUE(options.steps[1].isExpression);
    EXPECT_EQ(options.steps[1].text, L"-1");
    EXPECT_EQ(options.steps[3].text, L"-c.lsp");
    EXPECT_FALSE(options.steps[3].isExpression);
    EXPECT_EQ(options.supportFolders, (std::vector<std::wstring>{L"x", L"y"}));
    EXPECT_EQ(options.error, L"");
}

TEST(Options, WhatIsWrongIsNamed) {
    EXPECT_EQ(parse({L"--nope"}).error, L"--nope is no option");
    EXPECT_EQ(parse({L"--shots"}).error, L"--shots needs an operand");
    EXPECT_EQ(parse({L"--data", L"odbc:x"}).error, L"--data: odbc: x is no NAME=VALUE");
    EXPECT_EQ(parse({L"--data", L"x.sqlite", L"a.lsp"}).data, L"x.sqlite");
    EXPECT_EQ(parse({L"--timeout", L"2.5"}).timeoutSeconds, 2.5);
    EXPECT_EQ(parse({L"--check"}).error, L"--check needs a file");
    EXPECT_EQ(parse({L"--check", L"a.lsp", L"-e", L"1"}).error, L"--check reads files, and -e is none");
    EXPECT_EQ(parse({L"--headless", L"--language-server"}).error, L"");
    EXPECT_NE(parse({L"--warn=loud"}).error, L"");
    EXPECT_EQ(parse({L"--headless"}).error, L"--headless needs a program, -e or -i");
    EXPECT_EQ(parse({L"--headless", L"-i"}).error, L"");
    EXPECT_EQ(parse({L"--compare-pictures"}).error, L"--compare-pictures needs pairs of files");
    EXPECT_EQ(parse({L"--compare-pictures", L"a.png"}).error, L"--compare-pictures needs pairs of files");
    for (const wchar_t* text : {L"soon", L"", L"0", L"-1", L"5s", L"nan"}) {
        EXPECT_NE(parse({L"--timeout", text}).error, L"") << text;
    }
}

TEST(Options, WarningsAreForRunsWithoutAPerson) {
    EXPECT_EQ(parse({L"x.lsp"}).warningMode(), WarningMode::off);
    EXPECT_EQ(parse({L"x.lsp", L"--warn"}).warningMode(), WarningMode::on);
    EXPECT_EQ(parse({L"--play", L"x.lsp"}).warningMode(), WarningMode::on);
    EXPECT_EQ(parse({L"--headless", L"x.lsp", L"--warn=error"}).warningMode(), WarningMode::error);
    EXPECT_EQ(parse({L"--headless", L"x.lsp", L"--no-warn"}).warningMode(), WarningMode::off);
}

}  // namespace
