#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "host/lisp/NearestName.h"
#include "host/lisp/Text.h"

TEST(NearestName, IsTheOneThatASlipMadeAnother) {
    const std::vector<std::u16string> names = {u"CATALOG", u"Cat",    u"MFG",          u"OK",   u"Cancel",
                                               u"LABEL1",  u"LABEL2", u"wex_set_tile", u"Größe"};
    struct Case {
        const char16_t* wanted;
        const char16_t* nearest;  // null: none is near enough
    };
    for (const Case& test : {
             Case{u"CATALOGE", u"CATALOG"},  // a letter too many
             Case{u"ctalog", u"CATALOG"},    // one too few
             Case{u"mfgg", u"MFG"},
             Case{u"KO", u"OK"},  // swapped
             Case{u"wex_set_itle", u"wex_set_tile"},
             Case{u"wxe_stetile", u"wex_set_tile"},  // three slips in eleven letters
             Case{u"LABEL", u"LABEL1"},              // the first of equally near ones
             Case{u"label2", u"LABEL2"},             // the same in another case
             Case{u"GRÖSSE", u"Größe"},
             Case{u"CART", u"Cat"},    // nearer than CATALOG
             Case{u"M", nullptr},      // two steps from MFG
             Case{u"CANAL", nullptr},  // two steps from Cancel, in five letters
             Case{u"something else", nullptr},
             Case{u"", nullptr},
         })
        EXPECT_EQ(lisp::nearestName(test.wanted, names),
                  test.nearest ? std::optional<std::u16string>(test.nearest) : std::nullopt)
            << lisp::toUtf8(test.wanted);
}

TEST(NearestName, NeedsLettersThatAreAlike) {
    const std::vector<std::u16string> letters = {u"X", u"YZ"};
    EXPECT_EQ(lisp::nearestName(u"W", letters), std::nullopt);
    EXPECT_EQ(lisp::nearestName(u"Y", letters), u"YZ");
    EXPECT_EQ(lisp::nearestName(u"W", {}), std::nullopt);
}
