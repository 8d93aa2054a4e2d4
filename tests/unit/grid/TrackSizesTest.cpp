// Sums and hits of row heights, against a plain array.
#include <gtest/gtest.h>

#include <random>

#include "src/platform/gridlib/TrackView.h"

// Sizes of every kind at random, also hidden ones, with the count going up and down over block borders.
TEST(TrackSizesTest, AgreesWithAPlainArray) {
    std::mt19937 random(7);
    const auto below = [&](uint32_t limit) { return static_cast<uint32_t>(random() % limit); };
    TrackSizes sizes(17);
    std::vector<int32_t> plain(1, 17);
    for (int step = 0; step < 3000; ++step) {
        if (below(8) == 0) {
            const uint32_t count = 1 + below(below(4) ? 2000 : 20);
            sizes.setCount(count);
            plain.resize(count, 17);
        } else {
            const uint32_t from = below(2200), to = from + below(below(3) ? 4 : 1500);
            const int32_t size = static_cast<int32_t>(below(4) == 0 ? 0 : below(60));
            sizes.set(from, to, size);
            for (uint32_t i = from; i <= to && i < plain.size(); ++i) plain[i] = size;
        }
        const uint32_t at = below(static_cast<uint32_t>(plain.size()));
        int64_t offset = 0;
        for (uint32_t i = 0; i < at; ++i) offset += plain[i];
        ASSERT_EQ(sizes.size(at), plain[at]);
        ASSERT_EQ(sizes.offset(at), offset);
        if (plain[at] > 0) {
            ASSERT_EQ(sizes.at(offset), at);
            ASSERT_EQ(sizes.at(offset + plain[at] - 1), at);
        }
        ASSERT_EQ(sizes.at(sizes.total()), plain.size());
    }
}

TEST(TrackSizesTest, ServesTheLargestTable) {
    TrackSizes sizes(17);
    sizes.setCount(0x7FFFFFFF);
    sizes.set(0x7FFFFFFE, 0x7FFFFFFE, 100);
    sizes.set(5, 5, 40);
    EXPECT_EQ(sizes.total(), int64_t{0x7FFFFFFF} * 17 + 83 + 23);
    EXPECT_EQ(sizes.at(sizes.total() - 1), 0x7FFFFFFEu);
    EXPECT_EQ(sizes.at(int64_t{1'000'000'000} * 17 + 23), 1'000'000'000u);

    sizes.set(5, 5, -1);
    sizes.set(5, 5, TrackSizes::LARGEST + 1);
    EXPECT_EQ(sizes.size(5), 40) << "a size out of range is ignored";
}

// At every scale a row is hit from its first pixel to its last, scrolling stops when the last row is in view,
// and a row that is revealed is in view as a whole.
TEST(TrackViewTest, HitsAndReveals) {
    std::mt19937 random(3);
    TrackSizes sizes(17);
    sizes.setCount(1200);
    for (uint32_t i = 0; i < 400; ++i)
        sizes.set(random() % 1200, random() % 1200, static_cast<int32_t>(random() % 50));
    sizes.set(0, 0, 21);
    sizes.set(1199, 1199, 30);
    for (const int dots : {96, 120, 144, 192}) {
        SCOPED_TRACE(dots);
        TrackView view(sizes);
        view.setScale(dots);
        view.setLength(600);
        view.setFirst(1'000'000);
        EXPECT_LE(view.end(1199), 600);
        EXPECT_EQ(view.lastInView(), 1199u);
        for (int round = 0; round < 300; ++round) {
            const uint32_t at = 1 + random() % 1199;
            view.reveal(at);
            if (sizes.size(at) == 0) continue;
            ASSERT_GE(view.start(at), view.headerEnd());
            ASSERT_LE(view.end(at), 600);
            ASSERT_EQ(view.at(view.start(at)), at);
            ASSERT_EQ(view.at(view.end(at) - 1), at);
        }
        EXPECT_EQ(view.at(0), 0u);
        view.setFirst(-5);
        EXPECT_EQ(view.first(), 1u);
    }
}

// By lines, by pages and by the bar, forth and back: each pixel of it comes into view, those behind it too.
TEST(TrackViewTest, OneLargerThanTheViewIsScrolledThrough) {
    using Stride = TrackView::Stride;
    TrackSizes sizes(70);
    sizes.setCount(5);
    sizes.set(2, 2, 1000);
    TrackView view(sizes);
    view.setLength(270);
    const auto scrollToTheEnd = [&](int64_t count, Stride stride) {
        std::vector<int> starts;
        while (view.scrollBy(count, stride)) {
            EXPECT_EQ(view.at(70), view.first());
            starts.push_back(view.start(2));
        }
        return starts;
    };
    EXPECT_EQ(scrollToTheEnd(1, Stride::whole), (std::vector{70, -130, -330, -530, -730, -930}));
    EXPECT_EQ(view.first(), 3u);
    EXPECT_EQ(view.bar(), (TrackView::Bar{70 + 1000 + 199, 200, 70 + 1000}));
    EXPECT_EQ(scrollToTheEnd(-1, Stride::quarter).size(), 1u + 800 / 50 + 1);
    EXPECT_EQ(view.first(), 1u);
    view.setBarPosition(70 + 640);
    EXPECT_EQ(view.start(2), 70 - 640);
    EXPECT_EQ(view.end(2), 430);
    EXPECT_FALSE(view.reveal(2)) << "it is in view, as far as it can be";
    EXPECT_TRUE(view.reveal(3));
    EXPECT_EQ(view.first(), 3u);
    view.setFirst(2, 500);
    sizes.set(2, 2, 80);
    EXPECT_EQ(view.start(view.first()), 70) << "what has become small is shown from its beginning";
}

TEST(TrackViewTest, ABarReachesTheEndOfTheLargestTable) {
    TrackSizes sizes(17);
    sizes.setCount(0x7FFFFFFF);
    TrackView view(sizes);
    view.setScale(192);
    view.setLength(900);
    const TrackView::Bar bar = view.bar();
    EXPECT_GT(bar.last, 1 << 29);
    view.setBarPosition(bar.last);
    EXPECT_EQ(view.first(), view.lastFirst());
    EXPECT_EQ(view.bar().position + bar.page, bar.last + 1);
}
