// Nothing reachable is collected, everything else is, and the limit holds.
#include <gtest/gtest.h>

#include "tests/unit/lisp/Session.h"

namespace {

using lisp::Call;
using lisp::ListBuilder;
using lisp::Root;
using lisp::Value;

TEST(Memory, GarbageOfEveryKindIsTakenBack) {
    Session session;
    auto inUseAfter = [&](const char* program) {
        session.run(program);
        return session.lisp.heapBytesInUse();
    };
    for (const char* program :
         {"(repeat 500000 (list 1 2 3))",
          "(repeat 100000 (strcat \"a long enough text to be on the heap\" \"b\"))",
          "(repeat 100000 (eval (list '+ 1 2)))", "(repeat 100000 (eval '(lambda (x) x)))",
          "(repeat 50000 (eval (list 'lambda '(x) (list 'list 'x))))",
          "(defun f () 1) (repeat 50000 (eval (list 'defun 'f nil 2)))"})
        EXPECT_LT(inUseAfter(program), size_t(32) << 20) << program;
}

TEST(Memory, RootsAndBuildersKeepWhatTheyHold) {
    Session session;
    session.lisp.setCollectAlways(true);
    Root first(session.lisp, session.lisp.list({session.lisp.string(u"kept")}));
    {
        Root second(session.lisp, session.lisp.string(u"second"));
        Root third(session.lisp);
        third = session.lisp.cons(second, first);
        session.run("(list 1 2 3)");
        EXPECT_EQ(session.lisp.print(third), u"(\"second\" \"kept\")");
    }
    ListBuilder builder(session.lisp);
    for (int i = 0; i < 3; ++i) {
        builder.add(session.lisp.string(u"text"));
        session.run("(list 1 2 3)");
    }
    builder.finishWith(first);
    session.run("(list 1 2 3)");
    EXPECT_EQ(session.lisp.print(builder.list()), u"(\"text\" \"text\" \"text\" \"kept\")");
}

TEST(Memory, APreparedFormStaysPrepared) {
    Session session;
    session.run("(setq calls 0) (defun act () (setq calls (1+ calls)))");
    Root form(session.lisp, session.lisp.read(u"(act)"));
    session.lisp.eval(form);
    size_t before = session.lisp.heapBytesInUse();
    for (int i = 0; i < 100; ++i) session.lisp.eval(form);
    EXPECT_EQ(session.lisp.heapBytesInUse(), before);
    EXPECT_EQ(session.run("calls"), "101");
    session.run("(defun act () (setq calls 0))");
    session.lisp.eval(form);
    EXPECT_EQ(session.run("calls"), "0");
}

TEST(Memory, TheLimitIsALispErrorAndTheProgramMayGoOn) {
    Session session({.heapBytes = size_t(16) << 20});
    for (const char* program : {"(setq s \"0123456789\") (while T (setq s (strcat s s)))",
                                "(setq s nil) (while T (setq s (cons 1 s)))", "(range 1000000000)",
                                "(setq s '(1)) (while T (setq s (append s s)))"}) {
        std::string result = session.run(program);
        EXPECT_NE(result.find("out of memory"), result.npos) << program << result;
        session.lisp.setSymbol(u"s", Value::nil());
        EXPECT_EQ(session.run("(repeat 5000 (list 1)) (length (range 1000))"), "1000");
    }
}

}  // namespace
