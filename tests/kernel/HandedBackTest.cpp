// Entity lists of drawings made elsewhere, from the folder that ORTAKIT_CORPUS names and a folder "dwg" beside it.

#include "host/drawing/records/Entities.h"
#include "host/drawing/records/Layouts.h"
#include "host/kernel/lisp/EntityList.h"
#include "host/kernel/lisp/LispConversion.h"
#include "host/kernel/lisp/SelectionFilterList.h"
#include "host/lisp/Interpreter.h"
#include "host/lisp/Printer.h"
#include "tests/kernel/Bench.h"

#include <QDir>

using namespace host::drawing;
using namespace Qt::StringLiterals;
using host::lisp::Value;

namespace {

bool hasList(RecordKind kind)
{
    return kind >= RecordKind::Table && kind <= RecordKind::Object && kind != RecordKind::EndTable;
}

class Lists : public Bench
{
protected:
    /// Calls `visit` with every drawing of the corpus open.
    void forEachDrawing(const std::function<void()> &visit)
    {
        const QString corpus = qEnvironmentVariable("ORTAKIT_CORPUS");
        if (corpus.isEmpty())
            GTEST_SKIP() << "ORTAKIT_CORPUS does not name a folder of drawings";
        const QDir drawings(corpus);
        for (const QFileInfo &file :
             drawings.entryInfoList({u"*.dxf"_s}, QDir::Files) +
                 QDir(drawings.filePath(u"../dwg"_s)).entryInfoList({u"*.dxf"_s}, QDir::Files)) {
            SCOPED_TRACE(file.fileName().toStdString());
            if (session.documents().open(file.filePath()))
                visit();
        }
    }
};

TEST_F(Lists, handedBackChangeNothing)
{
    forEachDrawing([this] {
        const QByteArray before = drawing().toBytes();
        RecordId next = drawing().first();
        document().interpreter().define(
            "next-record",
            [&](host::lisp::Arguments &) {
                while (isValid(next) && !hasList(drawing().kind(next)))
                    next = drawing().next(next);
                return isValid(next) ? host::kernel::toLisp(std::exchange(next, drawing().next(next))) : Value();
            },
            host::lisp::Arity::exactly(0));
        takePrinted();
        EXPECT_EQ(lisp("(while (setq r (next-record))"
                       " (if (not (entmod (entget r '(\"*\")))) (setq refused (cons r refused)))) refused"),
                  "nil");
        EXPECT_EQ(drawing().toBytes(), before);
        EXPECT_EQ(takePrinted(), "");
    });
}

// What programs see of an entity, it is found by; but for the size of a paragraph, which is measured when it is read.
TEST_F(Lists, selectTheirEntities)
{
    forEachDrawing([this] {
        std::vector<RecordId> entities = drawing().entities().all();
        for (const RecordId block : drawing().layouts().blocks())
            for (const RecordId entity : drawing().children(block))
                entities.push_back(entity);
        for (const RecordId entity : entities) {
            const Value list = host::kernel::entityList(document(), entity, {});
            const bool isParagraph = drawing().isType(entity, "MTEXT");
            for (const Value &item : host::lisp::ListItems(list)) {
                const int code = item.car().asInteger();
                if (isParagraph && code == 101)
                    break;
                if (code < 0 || (isParagraph && (code == 42 || code == 43)) ||
                    (item.cdr().isString() && item.cdr().asString().find_first_of("*?#@.~[]-,`") != std::string::npos))
                    continue;
                const auto filter = host::kernel::filterFromList(document(), Value::list({item})).filter;
                ASSERT_TRUE(filter) << host::lisp::toText(item);
                EXPECT_TRUE(filter->matches(drawing(), entity)) << host::lisp::toText(item);
            }
        }
    });
}

} // namespace
