#include "host/services/Crossing.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <memory_resource>
#include <string>

namespace {

// The type codes of a chain, less 5000, with blanks between them.
std::string codes(const HostValue* chain) {
    std::string text;
    for (; chain; chain = chain->next) text += std::to_string(chain->type - HV_NONE) + " ";
    return text;
}

class CrossingTest : public testing::Test {
  protected:
    OwnedChain chain(std::u16string_view form) {
        const lisp::Root value(m_lisp, m_lisp.evalText(form, u"test"));
        const lisp::Value one = value;
        return OwnedChain(chainOf({&one, 1}));
    }

    lisp::Interpreter m_lisp;
};

TEST_F(CrossingTest, EachValueHasItsTypeCode) {
    EXPECT_EQ(codes(chain(u"32767").get()), "3 ");
    EXPECT_EQ(codes(chain(u"32768").get()), "10 ");
    EXPECT_EQ(codes(chain(u"'(1.0 2.0)").get()), "2 ");
    EXPECT_EQ(codes(chain(u"'(1 2.0)").get()), "16 3 1 17 ");
    EXPECT_EQ(codes(chain(u"'(1.0 . 2.0)").get()), "16 1 1 17 ");
    EXPECT_EQ(codes(chain(u"'(nil (T) \"\" sym)").get()), "16 19 16 21 17 5 5 17 ");
    EXPECT_EQ(codes(chain(u"car").get()), "19 ");
}

// What a plug-in may hand over, right or wrong.
TEST_F(CrossingTest, ChainsOfAPluginMakeLists) {
    ChainBuilder builder;
    builder.append(HV_LIST_END);
    builder.append(HV_SHORT).value.shortValue = -1;
    builder.append(HV_ANGLE).value.realValue = 0.5;
    builder.append(HV_STRING);
    builder.append(HV_LIST_BEGIN);
    builder.append(1234);
    const OwnedChain chain(builder.take());
    EXPECT_EQ(m_lisp.print(listOfChain(m_lisp, chain.get())), u"(-1 0.5 \"\" (nil))");
    EXPECT_TRUE(listOfChain(m_lisp, nullptr).isNil());
    EXPECT_TRUE(valueOfChain(m_lisp, nullptr).isNil());
}

// As the arguments of a call: nothing of it is released by itself, also where the list can't be handed over.
TEST_F(CrossingTest, AChainInMemoryOfACallGoesWithTheMemory) {
    std::byte room[64];
    std::pmr::monotonic_buffer_resource memory(room, sizeof room);
    const lisp::Root value(m_lisp,
                           m_lisp.evalText(u"'(1 (\"a text\" \"\" 2.5) \"more than the room\")", u"test"));
    const lisp::Value one = value;
    EXPECT_EQ(m_lisp.print(valueOfChain(m_lisp, chainOf({&one, 1}, &memory))), m_lisp.print(value));
    m_lisp.evalText(u"(setq deep nil) (repeat 5000 (setq deep (list deep \"text\")))", u"test");
    const lisp::Value deep = m_lisp.getSymbol(u"deep");
    EXPECT_THROW(chainOf({&deep, 1}, &memory), lisp::Error);
}

HostValue* built(int type, ...) {
    va_list rest;
    va_start(rest, type);
    HostValue* chain = buildChain(type, rest);
    va_end(rest);
    return chain;
}

TEST_F(CrossingTest, BuildingTakesEveryCodeAndEndsAtEitherMark) {
    const double point[] = {1.5, -2.0, 9.0};
    const OwnedChain chain(built(HV_STRING, L"text", HV_STRING, nullptr, HV_SHORT, -5, HV_LONG, 70000,
                                 HV_REAL, 0.5, HV_ORIENT, 0.25, HV_POINT, point, HV_TRUE, HV_NIL, 0, HV_SHORT,
                                 1));
    EXPECT_EQ(m_lisp.print(listOfChain(m_lisp, chain.get())),
              u"(\"text\" \"\" -5 70000 0.5 0.25 (1.5 -2.0) T nil)");
    EXPECT_EQ(built(HV_NONE), nullptr);
    EXPECT_EQ(built(0), nullptr);
}

}  // namespace
