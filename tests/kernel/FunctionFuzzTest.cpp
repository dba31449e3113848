// Every function with arguments at random: nothing hangs or crashes, and what is left is a drawing that opens again as
// it is. See FuzzBench for how long, from where and in which drawings.

#include "host/lisp/Interpreter.h"
#include "tests/kernel/FuzzBench.h"

namespace {

class FunctionFuzz : public FuzzBench
{
protected:
    /// Something that a function may be given, nested now and then.
    QString anyArgument(int depth)
    {
        if (depth > 0 && oneIn(6))
            return anyCall(depth - 1);
        if (oneIn(4))
            return anyList(depth);
        if (oneIn(5))
            return any(words());
        return anyAnswer();
    }
    QString anyCall(int depth)
    {
        QString call = u'(' + any(m_names);
        for (unsigned count = m_random() % 5; count > 0; --count)
            call += u' ' + anyArgument(depth);
        return call + u')';
    }
    void takeNames()
    {
        m_names.clear();
        for (const host::lisp::FunctionEntry &entry : document().interpreter().functions())
            // What repeats until something changes has no end by itself.
            if (entry.name != "WHILE")
                m_names.append(QString::fromStdString(entry.name).toLower());
    }

private:
    /// Fields of entities, filters and points, as lists and as pairs.
    QString anyList(int depth)
    {
        static const QStringList codes = {QStringLiteral("-4"),  QStringLiteral("-3"),  QStringLiteral("-1"),
                                          QStringLiteral("0"),   QStringLiteral("1"),   QStringLiteral("2"),
                                          QStringLiteral("5"),   QStringLiteral("8"),   QStringLiteral("10"),
                                          QStringLiteral("11"),  QStringLiteral("40"),  QStringLiteral("62"),
                                          QStringLiteral("70"),  QStringLiteral("90"),  QStringLiteral("100"),
                                          QStringLiteral("102"), QStringLiteral("210"), QStringLiteral("330"),
                                          QStringLiteral("360"), QStringLiteral("410"), QStringLiteral("1001")};
        QString list = QStringLiteral("(list");
        for (unsigned count = m_random() % 5; count > 0; --count)
            list += oneIn(2) ? QStringLiteral(" (cons %1 %2)").arg(any(codes), anyArgument(depth - 1))
                             : u' ' + anyArgument(depth - 1);
        return list + u')';
    }
    static const QStringList &words()
    {
        static const QStringList all =
            QStringLiteral(
                R"a('car|'+|'(lambda (x) x)|(function list)|'(x y)|'nan|'(nil)|t|"LINE"|"LAYER"|"x.lsp"|"r"|"w"|"a"|)a"
                R"a((entget (entlast))|(entget (entlast) '("*"))|(namedobjdict)|(tblobjname "LAYER" "0")|(open "x.lsp" "w")|)a"
                R"a((open "x.lsp" "r")|"C:X"|"(1 . 2"|"*error*"|"%d ~ [a-z]"|'(("a" 1) ("b" 2))|(vlax-ename->vla-object (entlast))|)a"
                R"a("*,~A"|"#@.*?"|"`"|"_X"|"CLAYER"|"OSMODE"|"1'-2 1/2\""|"45d30'"|"<or"|"or>"|'("A" (1000 . "x")))a")
                .split(u'|');
        return all;
    }

    QStringList m_names;
};

TEST_F(FunctionFuzz, NothingHangsOrCrashes)
{
    beginAnew();
    takeNames();
    repeatedly([&] {
        const QString call = anyCall(2);
        const QStringList faultsBefore = faults();
        const QByteArray before = drawing().toBytes();
        runTimed(call);
        if (!session.documents().active() || oneIn(64)) {
            beginAnew();
            return;
        }
        if (drawing().toBytes() != before)
            // What a program erases, others may refer to still.
            expectNoMore(faultsBefore, faults(), call);
    });
}

} // namespace
