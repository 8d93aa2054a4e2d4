// Texts of cells: short and long ones, shared, written over, and given back.
#include "src/platform/gridlib/CellText.h"

#include <gtest/gtest.h>

#include <random>

#include "src/platform/gridlib/TextMemory.h"

TEST(CellTextTest, KeepsEachTextWhateverItsLengthAndWhoCopiesIt) {
    std::mt19937 random(5);
    const auto below = [&](size_t limit) { return random() % limit; };
    std::vector<CellText> texts(50);
    std::vector<std::wstring> plain(50);
    for (int step = 0; step < 20'000; ++step) {
        const size_t at = below(texts.size()), other = below(texts.size());
        if (below(3) == 0) {
            texts[at] = texts[other];
            plain[at] = plain[other];
        } else {
            const size_t length = below(20) ? below(12) : below(2000);
            plain[at].assign(length, static_cast<wchar_t>(0x4E00 + below(3)));
            if (length > 0) plain[at][below(length)] = L'x';
            texts[at] = CellText(plain[at]);
        }
        ASSERT_EQ(texts[at].view(), plain[at]);
        ASSERT_EQ(texts[at].empty(), plain[at].empty());
        ASSERT_EQ(texts[at] == texts[other], plain[at] == plain[other]);
        ASSERT_EQ(texts[other].view(), plain[other]);
    }
}

TEST(TextMemoryTest, PiecesNeverOverlapAndAreUsedAgain) {
    std::mt19937 random(9);
    TextMemory memory;
    struct Piece {
        unsigned char* at;
        size_t bytes;
        unsigned char mark;
    };
    for (int round = 0; round < 3; ++round) {
        std::vector<Piece> pieces;
        const auto giveBack = [&](size_t i) {
            for (size_t at = 0; at < pieces[i].bytes; ++at) ASSERT_EQ(pieces[i].at[at], pieces[i].mark);
            memory.giveBack(pieces[i].at, pieces[i].bytes);
            pieces.erase(pieces.begin() + static_cast<std::ptrdiff_t>(i));
        };
        for (int step = 0; step < 3000; ++step) {
            if (!pieces.empty() && random() % 5 < 2) {
                giveBack(random() % pieces.size());
                continue;
            }
            const size_t bytes = 1 + random() % 600;
            const Piece piece{static_cast<unsigned char*>(memory.take(bytes)), bytes,
                              static_cast<unsigned char>(random())};
            ASSERT_EQ(reinterpret_cast<uintptr_t>(piece.at) % 8, 0u);
            std::fill_n(piece.at, bytes, piece.mark);
            pieces.push_back(piece);
        }
        while (!pieces.empty()) giveBack(pieces.size() - 1);
    }
    void* first = memory.take(40);
    memory.take(40);
    memory.giveBack(first, 40);
    EXPECT_EQ(memory.take(33), first);
}
