// The Lisp alone: calls, native calls, and the evaluation of an action.
//
//     lisp_bench [REPETITIONS]
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <vector>

#include "host/lisp/Interpreter.h"

namespace {

int g_repetitions = 15;

void measure(const char* key, const std::function<void()>& work) {
    std::vector<double> times;
    for (int i = 0; i < g_repetitions; ++i) {
        auto begun = std::chrono::steady_clock::now();
        work();
        std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - begun;
        times.push_back(time.count());
    }
    std::sort(times.begin(), times.end());
    std::printf("%-34s min %9.4f  med %9.4f ms  n=%zu\n", key, times[0], times[times.size() / 2],
                times.size());
    std::fflush(stdout);
}

}  // namespace

int main(int count, char** arguments) {
    if (count > 1) g_repetitions = std::max(1, std::atoi(arguments[1]));
    lisp::Interpreter lisp;
    lisp.defineNative(u"nothing", [](lisp::Call&) { return lisp::Value::nil(); });
    lisp.evalText(
        u"(defun fib (n) (if (< n 2) n (+ (fib (- n 1)) (fib (- n 2)))))"
        u"(defun c:OnActionEvent_benchOK () (setq $done T) (princ))",
        u"bench");
    auto text = [&](const char16_t* program) {
        return [&lisp, program] { lisp.evalText(program, u"bench"); };
    };
    measure("lisp.fib27", text(u"(fib 27)"));
    measure("lisp.million_native_calls", text(u"(repeat 1000000 (nothing))"));
    measure("lisp.million_conses", text(u"(repeat 1000000 (list 1))"));
    lisp::Root action(lisp, lisp.read(u"(c:OnActionEvent_benchOK)"));
    measure("lisp.million_actions_prepared", [&] {
        for (int i = 0; i < 1000000; ++i) lisp.eval(action);
    });
    measure("lisp.million_actions_by_name", [&] {
        for (int i = 0; i < 1000000; ++i) lisp.apply(u"c:OnActionEvent_benchOK", {});
    });
    return 0;
}
