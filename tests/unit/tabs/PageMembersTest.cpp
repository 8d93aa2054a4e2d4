#include "src/tabs/PageMembers.h"

#include <gtest/gtest.h>

#include <string>

#include "src/platform/base/CInvalidArgException.h"

namespace {

using Controls = std::vector<CWnd*>;

// Stands for the control of that number; nothing looks into it.
CWnd* control(int id) { return reinterpret_cast<CWnd*>(static_cast<intptr_t>(id)); }

Controls controls(std::initializer_list<int> ids) {
    Controls made;
    for (const int id : ids) made.push_back(control(id));
    return made;
}

// "a" is control 1, "b" 2 and "c" 3; ids from 1 to 9 exist.
const ControlLookup lookup = {
    [](const wchar_t* key) { return std::wstring(key) == L"none" ? nullptr : control(key[0] - L'a' + 1); },
    [](int id) { return id < 10 ? control(id) : nullptr; },
};

// The node of a key, of a control id, or of a type without a payload.
struct Argument : HostValue {
    Argument(const wchar_t* key) : HostValue{nullptr, HV_STRING, {}} {
        value.stringValue = const_cast<wchar_t*>(key);
    }
    Argument(int id) : HostValue{nullptr, HV_SHORT, {}} { value.shortValue = static_cast<int16_t>(id); }
    Argument(HostValueType type) : HostValue{nullptr, type, {}} {}
};

Controls members(std::vector<Argument> arguments) {
    for (size_t i = 1; i < arguments.size(); ++i) arguments[i - 1].next = &arguments[i];
    return membersOf(arguments.empty() ? nullptr : &arguments[0], lookup);
}

TEST(PageMembers, AreNamedByKeysAndIds) {
    EXPECT_EQ(members({}), Controls());
    EXPECT_EQ(members({L"b", 7, L"a", L"a"}), controls({2, 7, 1, 1}));
    EXPECT_EQ(members({L"none", 10, L"c"}), controls({3}));
}

TEST(PageMembers, AnotherKindOfArgumentStandsForWhatWasFoundLast) {
    EXPECT_EQ(members({L"a", HV_REAL, L"b"}), controls({1, 1, 2}));
    EXPECT_EQ(members({HV_NIL, L"a", HV_LIST_BEGIN, L"b", HV_LIST_END}), controls({1, 1, 2, 2}));
    EXPECT_EQ(members({L"a", L"none", HV_NIL}), controls({1})) << "the look-up that failed found nothing";
}

TEST(PageMembers, NoneIsHiddenAndShownOrTwiceInAList) {
    PageMembers pages;
    int page = 0;
    for (const Controls& list : {controls({1, 9, 9}), controls({9, 2, 9})}) {
        pages.addPage();
        for (CWnd* member : list) pages.add(page, member);
        ++page;
    }
    EXPECT_EQ(pages.changeTo(1).hide, controls({1}));
    EXPECT_EQ(pages.changeTo(1).show, controls({9, 2}));
    for (const int none : {-1, 2}) {
        EXPECT_EQ(pages.changeTo(none).hide, controls({1, 9, 2}));
        EXPECT_THROW(pages.add(none, control(2)), CInvalidArgException);
    }
}

}  // namespace
