// The check of key lists against templates, run as a user runs it.
#include <gtest/gtest.h>

#include "tests/ui/host/HostProcess.h"

namespace {

TEST(CheckDialogs, tellsWhatIsWrongInKeyListsTemplatesAndRoomForTexts) {
    const HostRun run =
        startHost(L"testbin", {L"--check-dialogs", buildFolder() + L"\\testbin\\WexDialogs.d\\Odd.dll"});
    EXPECT_EQ(run.status, 1u);
    for (const char* line : {
             "ODD_KINDS: key \"nocontrol\" has no control: give the id 124",
             "ODD_KINDS: control 109 has no key",
             "ODD_OLD: control 65535 is what every unknown key would reach",
             "ODD_MISTAKES: key \"b\" stands twice",
             "ODD_MISTAKES: control 112 cuts off its text",
             "Odd.dll: template 2007 has no key list",
             "note: Odd.dll has key lists without a template: ODD_NO_TEMPLATE\n",
         })
        EXPECT_NE(run.output.find(line), std::string::npos) << line << "\n" << run.output;
    // The dialog of buttons is sound, and nothing is said of it: neither its icons nor its empty texts.
    EXPECT_EQ(run.output.find("ODD_BUTTONS"), std::string::npos) << run.output;
}

TEST(CheckDialogs, findsNothingInWhatIsShipped) {
    const HostRun run = startHost(L"bin", {L"--check-dialogs"});
    EXPECT_EQ(run.status, 0u);
    EXPECT_NE(run.output.find(", 0 mismatches\n"), std::string::npos) << run.output;
}

TEST(CheckDialogs, tellsAModuleThatIsMissing) {
    const HostRun run = startHost(L"bin", {L"--check-dialogs", L"no_such.dll"});
    EXPECT_EQ(run.status, 1u);
    EXPECT_NE(run.output.find("no_such.dll: can't be loaded"), std::string::npos) << run.output;
}

}  // namespace
