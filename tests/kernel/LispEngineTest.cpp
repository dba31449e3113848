#include "platform/kernel/CKvLispEngine.h"
#include "tests/kernel/Bench.h"

#include <functional>

using namespace host::kernel;

namespace {

/// What the handlers below do: handlers are plain functions.
std::function<int(CKvLispEngine &)> probeBehaviour;

int callProbe()
{
    return probeBehaviour(*ACTIVE_DOCUMENT()->lispEngine());
}

/// The chain as "5003:1 5016 5005:a 5017".
std::string chainText(const OdResBuf *link)
{
    QStringList parts;
    for (; link; link = link->next()) {
        QString text = QString::number(link->restype());
        const OdGePoint3d point = link->getPoint3d();
        switch (link->restype()) {
        case OdResBuf::kRtShort:
        case OdResBuf::kRtLong:
            text += u':' + QString::number(link->getInteger());
            break;
        case OdResBuf::kRtReal:
            text += u':' + QString::number(link->getDouble());
            break;
        case OdResBuf::kRtString:
            text += u':' + link->getString();
            break;
        case OdResBuf::kRtPoint:
        case OdResBuf::kRtPoint3d:
            text += QStringLiteral(":%1,%2,%3").arg(point.x).arg(point.y).arg(point.z);
            break;
        default:
            break;
        }
        parts.append(text);
    }
    return parts.join(u' ').toStdString();
}

class Engine : public Bench
{
protected:
    Engine() { document().lispEngine()->defineFunction(QStringLiteral("Probe"), callProbe); }
    ~Engine() override { probeBehaviour = nullptr; }
    /// What a call does that ends well.
    void does(const std::function<void(CKvLispEngine &)> &body)
    {
        probeBehaviour = [body](CKvLispEngine &engine) {
            body(engine);
            return kRtNormal;
        };
    }
};

TEST_F(Engine, argumentsArriveAsAChain)
{
    const std::pair<std::string, const char *> cases[] = {
        {"", ""},
        {"1", "5003:1"},
        {"32767 -32768", "5003:32767 5003:-32768"},
        {"32768 -32769", "5010:32768 5010:-32769"},
        {"2.5 \"Größe\" nil T", "5001:2.5 5005:Größe 5019 5021"},
        {"'(1.0 2.0)", "5002:1,2,0"},
        {"'(1.0 2.0 3.0)", "5009:1,2,3"},
        {"'(1 2.5 3)", "5009:1,2.5,3"},
        {"'(1 2 3)", "5016 5003:1 5003:2 5003:3 5017"},
        {"'(1.0 2.0 3.0 4.0)", "5016 5001:1 5001:2 5001:3 5001:4 5017"},
        {"'(\"a\" (\"b\" (2.5)) nil)", "5016 5005:a 5016 5005:b 5016 5001:2.5 5017 5017 5019 5017"},
        {"'(8 . \"0\")", "5016 5003:8 5005:0 5018"},
        {"'((10 1.5 2.5) (1.5 2.5))", "5016 5016 5003:10 5001:1.5 5001:2.5 5017 5002:1.5,2.5,0 5017"},
        {"'(10 1.5 2.5 . 3)", "5016 5003:10 5001:1.5 5001:2.5 5003:3 5018"},
    };
    std::string chain;
    does([&](CKvLispEngine &engine) { chain = chainText(engine.arguments()); });
    for (const auto &[arguments, expected] : cases) {
        EXPECT_EQ(lisp("(probe " + arguments + ")"), "nil");
        EXPECT_EQ(chain, expected) << arguments;
    }
}

/// Copies a chain into one value between list begin and list end.
OdResBufPtr listOf(const OdResBuf *link)
{
    OdResBufPtr first = OdResBuf::newRb(OdResBuf::kRtListBegin);
    OdResBuf *last = first.get();
    for (; link; link = link->next()) {
        OdResBufPtr copy;
        switch (link->restype()) {
        case OdResBuf::kRtReal:
            copy = OdResBuf::newReal(link->restype(), link->getDouble());
            break;
        case OdResBuf::kRtString:
            copy = OdResBuf::newString(link->restype(), link->getString());
            break;
        case OdResBuf::kRtPoint:
        case OdResBuf::kRtPoint3d:
            copy = OdResBuf::newPoint(link->restype(), link->getPoint3d());
            break;
        default:
            copy = OdResBuf::newInteger(link->restype(), link->getInteger());
        }
        last = last->setNext(std::move(copy));
    }
    last->setNext(OdResBuf::newRb(OdResBuf::kRtListEnd));
    return first;
}

TEST_F(Engine, valuesGoThereAndBack)
{
    does([](CKvLispEngine &engine) { engine.returnList(listOf(engine.arguments())); });
    const char *const values[] = {
        "(1 70000 2.5 \"Größe\" T nil)",
        "((1.0 2.0) (1.0 2.0 3.0) (1 2 3))",
        "((8 . \"0\") (10 1.5 2.5 3.5 4.5) (\"a\" (\"b\" (\"c\"))))",
        "((1 2 . 3))",
    };
    for (const char *value : values)
        EXPECT_EQ(lisp(std::string("(apply 'probe '") + value + ")"), value);
    lisp("(entmake '((0 . \"POINT\") (10 0 0 0)))");
    EXPECT_EQ(lisp("(equal (probe (entlast)) (list (entlast)))"), "T");
    EXPECT_EQ(lisp("(setq s (ssget \"X\"))(eq (ssname (car (probe s)) 0) (entlast))"), "T");
}

TEST_F(Engine, listsNestedDeeperThanTheStack)
{
    int links = 0;
    does([&](CKvLispEngine &engine) {
        for (const OdResBuf *link = engine.arguments(); link; link = link->next())
            ++links;
        engine.returnList(listOf(engine.arguments()));
    });
    EXPECT_EQ(lisp("(repeat 100000 (setq l (list l)))(equal (probe l) (list l))"), "T");
    EXPECT_EQ(links, 200001);
}

TEST_F(Engine, resultsOfEachKind)
{
    const std::vector<std::pair<std::function<void(CKvLispEngine &)>, const char *>> cases = {
        {[](CKvLispEngine &) {}, "nil"},
        {[](CKvLispEngine &e) { e.returnNil(); }, "nil"},
        {[](CKvLispEngine &e) { e.returnTrue(); }, "T"},
        {[](CKvLispEngine &e) { e.returnInteger(-70000); }, "-70000"},
        {[](CKvLispEngine &e) { e.returnReal(2.5); }, "2.5"},
        {[](CKvLispEngine &e) { e.returnString(QStringLiteral("Ä\"")); }, "\"Ä\\\"\""},
        {[](CKvLispEngine &e) {
             e.returnPoint({1.0, 2.0, 3.0});
         },
         "(1.0 2.0 3.0)"},
        {[](CKvLispEngine &e) { e.returnEntityName(OdDbObjectId(10)); }, "<Entity name: a>"},
        {[](CKvLispEngine &e) { e.returnEntityName({}); }, "nil"},
        {[](CKvLispEngine &e) { e.returnList(nullptr); }, "nil"},
        {[](CKvLispEngine &e) { e.returnList(OdResBuf::newRb(OdResBuf::kRtListBegin)); }, "nil"},
        {[](CKvLispEngine &e) { e.returnList(OdResBuf::newRb(OdResBuf::kRtListEnd)); }, "nil"},
        {[](CKvLispEngine &e) { e.returnInteger(1), e.returnString(QStringLiteral("last")); }, "\"last\""},
    };
    for (const auto &[body, expected] : cases) {
        does(body);
        EXPECT_EQ(lisp("(probe)"), expected);
    }
}

TEST_F(Engine, resultCodes)
{
    probeBehaviour = [](CKvLispEngine &) { return kRtError; };
    EXPECT_EQ(lisp("(probe 1)"), "error: bad argument: Probe in (PROBE)");
    EXPECT_EQ(lisp("(vl-catch-all-error-p (vl-catch-all-apply 'probe '()))"), "T");
    probeBehaviour = [](CKvLispEngine &) { return kRtCancel; };
    EXPECT_EQ(lisp("(defun *error* (m) (setq said m))(probe)").rfind("error: Function cancelled", 0), 0U);
    EXPECT_EQ(lisp("(setq *error* nil)said"), "\"Function cancelled\"");
    probeBehaviour = [](CKvLispEngine &engine) {
        engine.returnInteger(4);
        return kRtNone;
    };
    EXPECT_EQ(lisp("(probe)"), "4");
    probeBehaviour = [](CKvLispEngine &) -> int { throw std::runtime_error("oops"); };
    EXPECT_EQ(lisp("(probe)"), "error: Probe: oops in (PROBE)");
}

TEST_F(Engine, argumentsCanBeGivenBackEarly)
{
    std::string left;
    does([&](CKvLispEngine &engine) {
        engine.releaseArguments(nullptr);
        engine.releaseArguments(engine.arguments()->next());
        left = chainText(engine.arguments());
        engine.releaseArguments(engine.arguments());
        EXPECT_EQ(engine.arguments(), nullptr);
    });
    lisp("(probe 1 2 3)");
    EXPECT_EQ(left, "5003:1");
}

TEST_F(Engine, callsNest)
{
    std::string outer;
    does([&](CKvLispEngine &engine) {
        if (engine.arguments()->getInteger() == 1) {
            engine.returnString(QStringLiteral("outer"));
            document().run(QStringLiteral("(setq inner (probe 2))"));
            outer = chainText(engine.arguments());
        } else {
            engine.returnString(QStringLiteral("inner"));
        }
    });
    EXPECT_EQ(lisp("(list (probe 1 \"x\") inner)"), "(\"outer\" \"inner\")");
    EXPECT_EQ(outer, "5003:1 5005:x");
}

TEST_F(Engine, aHandlerWorksOnTheDocumentThatCalls)
{
    Document &first = document();
    session.documents().create();
    CKvDocument *seen = nullptr;
    does([&](CKvLispEngine &engine) {
        seen = ACTIVE_DOCUMENT();
        engine.returnInteger(3);
    });
    EXPECT_EQ(first.run(QStringLiteral("(probe)")).value, QStringLiteral("3"));
    EXPECT_EQ(seen, &first);
    EXPECT_EQ(ACTIVE_DOCUMENT(), &document());
}

TEST_F(Engine, functionsAndSymbolsComeAndGo)
{
    CKvLispEngine &engine = *document().lispEngine();
    does([](CKvLispEngine &lisp) { lisp.print(QStringLiteral("\nhello")); });
    engine.defineFunction(QStringLiteral("c:greet"), callProbe);
    EXPECT_TRUE(document().runCommand(QStringLiteral("greet")).ok);
    EXPECT_EQ(takePrinted(), "\nhello") << "typed as a command";
    lisp("(defun mine () 1)");
    for (const auto *name : {u"pRoBe", u"nosuch", u"mine"})
        engine.undefineFunction(QString::fromUtf16(name));
    EXPECT_EQ(lisp("(probe)").rfind("error: no function definition: PROBE", 0), 0U);
    EXPECT_EQ(lisp("(mine)"), "1") << "what a program defined itself";
    engine.setSymbol(QStringLiteral("LispCanceled"), *OdResBuf::newInteger(OdResBuf::kRtShort, 1));
    EXPECT_EQ(lisp("lispcanceled"), "1");
}

TEST_F(Engine, aHandlerLoadsAFile)
{
    const struct
    {
        const char *name;
        QString path;
        bool loads;
        const char *printed;
        const char *loaded;
    } rows[] = {
        {"good", write("good.lsp", "(setq loaded 7)"), true, "", "7"},
        {"with a blank and an umlaut", write("gr\xC3\xB6\xC3\x9F er.lsp", "(setq loaded 7)"), true, "", "7"},
        {"with an error", write("bad.lsp", "(setq loaded 7) (car 1)"), false, "bad argument type", "7"},
        {"never closed", write("open.lsp", "(setq loaded 7) (car"), false, "malformed list", "7"},
        {"missing", path("missing.lsp"), false, "missing.lsp", "nil"},
        {"folder", folder.path(), false, "error", "nil"},
    };
    for (const auto &row : rows) {
        lisp("(setq loaded nil)");
        bool loads = false;
        does([&](CKvLispEngine &engine) {
            loads = engine.loadFile(row.path);
            engine.returnInteger(1);
        });
        EXPECT_EQ(lisp("(probe)"), "1") << row.name;
        EXPECT_EQ(loads, row.loads) << row.name;
        const std::string printed = takePrinted();
        EXPECT_EQ(printed.empty(), row.loads) << row.name << ": " << printed;
        EXPECT_NE(printed.find(row.printed), std::string::npos) << row.name << ": " << printed;
        EXPECT_EQ(lisp("loaded"), row.loaded) << row.name;
    }
}

} // namespace
