#include "src/dialog/DialogRegistry.h"

#include <gtest/gtest.h>

#include <random>
#include <set>

namespace {

struct FakeDialog {
    explicit FakeDialog(std::set<const FakeDialog*>& alive) : m_alive(alive) { m_alive.insert(this); }
    ~FakeDialog() { m_alive.erase(this); }

    bool running = false;

  private:
    std::set<const FakeDialog*>& m_alive;
};

using Registry = DialogRegistry<FakeDialog>;

// Programs make, start and mistype dialogs in any order, from inside of running ones: no dialog that runs may
// be deleted under its own frames, and the current one is always the newest or none.
class RandomProgram {
  public:
    explicit RandomProgram(unsigned seed) : m_random(seed) {}

    void act(int depth) {
        for (int step = 0; step < 6; ++step) {
            switch (m_random() % 4) {
                case 0:
                case 1:
                    m_registry.add(std::make_unique<FakeDialog>(m_alive));
                    break;
                case 2:
                    m_registry.clearCurrent();
                    break;
                case 3:
                    start(depth);
                    break;
            }
            check();
        }
    }

  private:
    void start(int depth) {
        FakeDialog* dialog = m_registry.current();
        if (!dialog || dialog->running || depth == 0) return;
        dialog->running = true;
        act(depth - 1);
        ASSERT_TRUE(m_alive.contains(dialog)) << "deleted while it ran";
        dialog->running = false;
        m_registry.removeNewest();
    }

    void check() {
        FakeDialog* current = m_registry.current();
        EXPECT_TRUE(!current || current == m_registry.newest());
        EXPECT_EQ(m_alive.size(), m_registry.dialogs().size());
    }

    std::set<const FakeDialog*> m_alive;
    Registry m_registry;
    std::mt19937 m_random;
};

TEST(DialogRegistry, AnyOrderOfCallsKeepsRunningDialogsAlive) {
    for (unsigned seed = 0; seed < 300; ++seed) RandomProgram(seed).act(8);
}

}  // namespace
