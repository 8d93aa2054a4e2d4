// The check of key lists against templates, run as a user runs it.
#include <gtest/gtest.h>

#include "tests/ui/host/HostProcess.h"

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
             "ODD_LONG: has a key list of 1618 characters, which is cut at 1499",
             "ODD_LOOKS: control 113 has the mnemonic \"b\" of control 111",
             "ODD_LOOKS: control 116 can't be reached by the Tab key",
             "ODD_LOOKS: control 114 overlaps control 112",
             "ODD_LOOKS: control 115 lies outside of the dialog",
             // Gray on the dialog's gray is too pale under Wine; other systems may have stronger grays.
             "ODD_LOOKS: control 117 shows its text at a contrast of ",
             "ODD_LOOKS: control 118 cuts off its text",
             "ODD_LOOKS: control 119 is too low for a line of text",
             "Odd.dll: template 2007 has no key list",
             "note: Odd.dll has key lists without a template: ODD_NO_TEMPLATE, ODD_LONG\n",
         })
        EXPECT_TRUE(has(run.output, line));
    // Icons need no room for their captions, and what is sound at one scale is sound at the others.
    EXPECT_FALSE(has(run.output, "ODD_BUTTONS: control 123 cuts off"));
    EXPECT_FALSE(has(run.output, "ODD_LOOKS: at "));
}

TEST(CheckDialogs, findsNothingInWhatIsShipped) {
    const HostRun run = startHost(L"bin", {L"--check-dialogs"});
    EXPECT_EQ(run.status, 0u);
    EXPECT_TRUE(has(run.output, ", 0 mismatches\n"));
}

// The names of all dialogs with their titles, and the tiles of one of the product and of one of an add-on.
TEST(ShowDialogs, tellsNamesAndTiles) {
    const HostRun all = startHost(L"bin", {L"--dialogs"});
    EXPECT_EQ(all.status, 0u);
    EXPECT_TRUE(has(all.output, "\nCONFIRM_DELREC "));
    EXPECT_TRUE(has(all.output, " Wire Gauge "));
    EXPECT_TRUE(has(all.output, " WireGauge.dll\n"));

    const HostRun tiles = startHost(L"bin", {L"--dialogs", L"wire_gauge", L"NO_SUCH", L"SWITCH_CAT_FILE"});
    EXPECT_EQ(tiles.status, 1u);
    EXPECT_EQ(tiles.output.substr(0, 11), "WIRE_GAUGE:") << tiles.output;
    for (const char* row :
         {"\n B_PICK ", " 117 ", " image button ", "\n LABEL0 ", "\n CANCEL ", " 2 ", "Cancel\n",
          "SWITCH_CAT_FILE: Switch Catalog File\n", " default button ", " edit box, read only\n"})
        EXPECT_TRUE(has(tiles.output, row));
    EXPECT_TRUE(has(tiles.errors, "there is no dialog NO_SUCH"));
}

// One of the two files that the product's dialogs lie in brings the other.
TEST(CheckDialogs, takesTheProductByOneHalf) {
    const HostRun run =
        startHost(L"testbin", {L"--check-dialogs", buildFolder() + L"\\bin\\WexDialogsRes.dll"});
    EXPECT_EQ(run.status, 0u);
    EXPECT_TRUE(has(run.output, " in 2 modules, 0 mismatches\n"));
}

// A folder of add-ons, without the product: one that can't be loaded, one with capitals in its file name, and
// its twin.
TEST(CheckDialogs, goesOnAfterAModuleThatIsNoneAndTellsWhatIsTaken) {
    namespace fs = std::filesystem;
    const fs::path folder = fs::path(buildFolder()) / L"checkbin", addOns = folder / L"WexDialogs.d";
    fs::remove_all(folder);
    fs::create_directories(addOns);
    for (const wchar_t* file : {L"wexhost.exe", L"hostapi.dll"})
        fs::create_hard_link(fs::path(buildFolder()) / L"bin" / file, folder / file);
    const fs::path odd = fs::path(buildFolder()) / L"testbin" / L"WexDialogs.d" / L"Odd.dll";
    fs::copy_file(odd, addOns / L"FIRST.DLL");
    fs::copy_file(odd, folder / L"Twin.dll");
    std::ofstream(addOns / L"Broken.dll") << "no module";

    const HostRun all = startHost(L"checkbin", {L"--check-dialogs"});
    const HostRun twin = startHost(L"checkbin", {L"--check-dialogs", (folder / L"Twin.dll").wstring()});
    const HostRun inFolder = startHost(L"checkbin", {L"--check-dialogs", addOns.wstring()});
    fs::remove_all(folder);
    EXPECT_EQ(all.status, 1u);
    EXPECT_TRUE(has(inFolder.output, "WexDialogs.d: is a folder: name the modules in it"));
    EXPECT_TRUE(has(all.output, "Broken.dll: can't be loaded"));
    EXPECT_TRUE(has(all.output, "ODD_MISTAKES: key \"b\" stands twice"));
    EXPECT_FALSE(has(all.output, "ODD_KINDS: is in"));
    EXPECT_TRUE(has(twin.output, "ODD_KINDS: is in FIRST.DLL already"));
}
