#include "tests/kernel/CommandDialogue.h"

#include "host/drawing/records/Entities.h"
#include "host/kernel/input/InputFeeder.h"
#include "host/kernel/variables/SystemVariables.h"

#include <ostream>

using namespace host::kernel;

namespace {

/// Gives one answer at a time, when it is asked for.
class OneByOne final : public InputFeeder
{
public:
    explicit OneByOne(QStringList answers) : m_answers(std::move(answers)) {}

    FeedResult feed(const PromptRequest &, InputQueue &queue) override
    {
        if (m_answers.isEmpty())
            return FeedResult::NobodyThere;
        queue.push(TextAnswer{m_answers.takeFirst()});
        return FeedResult::Supplied;
    }

private:
    QStringList m_answers;
};

QString number(double value)
{
    return QString::number(std::abs(value) < 1e-9 ? 0.0 : value, 'g', 6);
}

QString shown(const host::drawing::Field &field)
{
    using namespace host::drawing;
    if (const auto *flat = std::get_if<Vec2>(&field.value))
        return number(flat->x) + u',' + number(flat->y);
    if (const auto *point = std::get_if<Vec3>(&field.value))
        return number(point->x) + u',' + number(point->y) + u',' + number(point->z);
    if (const auto *real = std::get_if<double>(&field.value))
        return number(*real);
    if (const auto *integer = std::get_if<qint64>(&field.value))
        return QString::number(*integer);
    return field.text();
}

/// Where a justified text begins, and how large a stretched one is, is the font's affair.
bool isOfFont(const host::drawing::Drawing &drawing, host::drawing::RecordId id, int code)
{
    const qint64 horizontal = drawing.isType(id, "TEXT") ? drawing.tags(id).integer(72) : 0;
    const host::drawing::FieldList fields = drawing.fields(id);
    const bool isJustified = drawing.isType(id, "TEXT") && host::drawing::findField(fields, 11);
    return (code == 10 && isJustified) || (code == 40 && horizontal == 3) || (code == 41 && horizontal == 5);
}

const char *const helpers =
    "(defun line (a b c d) (entmake (list '(0 . \"LINE\") (list 10 (float a) (float b) 0.0) (list 11 (float c) (float "
    "d)"
    " 0.0))))"
    "(defun block (n e) (entmake (list '(0 . \"BLOCK\") (cons 2 n) '(70 . 0) '(10 0.0 0.0 0.0))) (entmake e)"
    " (entmake '((0 . \"ENDBLK\"))))"
    "(defun lock (n / e) (setq e (entget (tblobjname \"LAYER\" n))) (entmod (subst '(70 . 4) (assoc 70 e) e)))"
    "(defun layer (n) (setq n (entget (tblobjname \"LAYER\" n) '(\"*\"))) (append (mapcar '(lambda (c) (cdr (assoc c "
    "n)))"
    " '(70 62 6 370 290 420)) (cdadr (assoc -3 n))))"
    "(defun entry (k n) (entmake (append (list (cons 0 k) '(100 . \"AcDbSymbolTableRecord\") (cons 100 (cdr (assoc k"
    " '((\"LAYER\" . \"AcDbLayerTableRecord\") (\"LTYPE\" . \"AcDbLinetypeTableRecord\") (\"STYLE\" ."
    " \"AcDbTextStyleTableRecord\") (\"DIMSTYLE\" . \"AcDbDimStyleTableRecord\") (\"APPID\" ."
    " \"AcDbRegAppTableRecord\"))))) (cons 2 n) '(70 . 0)))))"
    "(defun xref (n) (entmake (list '(0 . \"BLOCK\") (cons 2 n) '(70 . 4) '(10 0.0 0.0 0.0) '(1 . \"none.dxf\")))"
    " (entmake '((0 . \"ENDBLK\"))))"
    "(defun layer-line (n) (entmake (list '(0 . \"LINE\") (cons 8 n) '(10 1.0 1.0 0.0) '(11 2.0 2.0 0.0))))";

} // namespace

std::ostream &operator<<(std::ostream &stream, const DialogueCase &row)
{
    return stream << row.name;
}

CommandDialogue::CommandDialogue()
{
    lisp(helpers);
}

void CommandDialogue::setUp()
{
    const auto setAxes = [&](const host::drawing::Vec3 &origin, const host::drawing::Vec3 &x,
                             const host::drawing::Vec3 &y) {
        document().variables().setInternally(u"UCSORG", origin);
        document().variables().setInternally(u"UCSXDIR", x);
        document().variables().setInternally(u"UCSYDIR", y);
    };
    QString text = QString::fromUtf8(GetParam().setUp);
    if (text.startsWith(QStringLiteral("turned")))
        setAxes({10.0, 20.0, 0.0}, {0.0, 1.0, 0.0}, {-1.0, 0.0, 0.0});
    else if (text.startsWith(QStringLiteral("tilted")))
        setAxes({0.0, 0.0, 5.0}, {1.0, 0.0, 0.0}, {0.0, 0.0, 1.0});
    if (text.startsWith(u't'))
        text.remove(0, 6);
    lisp(text.toStdString());
    takePrinted();
}

std::string CommandDialogue::dump()
{
    QStringList all;
    for (const host::drawing::RecordId id : drawing().entities().all()) {
        QStringList words = {QString::fromLatin1(drawing().typeName(id))};
        for (const host::drawing::Field &field : drawing().fields(id)) {
            static const QSet<int> left = {0, 5, 8, 38, 67, 90, 100, 330};
            const QString value = isOfFont(drawing(), id, field.code) ? QStringLiteral("0") : shown(field);
            if (!left.contains(field.code) && value != QStringLiteral("0") && value != QStringLiteral("Standard"))
                words.append(QString::number(field.code) + u'=' + value);
        }
        all.append(words.join(u' '));
    }
    return all.join(QStringLiteral("; ")).toStdString();
}

std::string CommandDialogue::arguments(const QStringList &answers)
{
    QString text;
    for (QString answer : answers)
        text += QStringLiteral(" \"%1\"").arg(answer.replace(u'\\', QStringLiteral("\\\\")));
    return text.toStdString();
}

void CommandDialogue::expectResult(const char *way)
{
    const std::string printed = takePrinted();
    EXPECT_EQ(GetParam().look ? lisp(GetParam().look) : dump(), GetParam().expected) << way << printed;
    EXPECT_NE(printed.find(GetParam().printed), std::string::npos) << way << printed;
}

TEST_P(CommandDialogue, IsTheSameInEveryWay)
{
    setUp();
    const QByteArray before = bytes();
    lisp("(command" + arguments(answers()) + ")");
    expectResult("(command)");
    EXPECT_EQ(lisp("(getvar \"CMDNAMES\")"), "\"\"");
    const bool isChanged = bytes() != before;
    if (isChanged)
        document().undoSteps().undo();
    EXPECT_EQ(bytes(), before) << "undone";

    runTyped((answers().join(u'\n') + u'\n').toUtf8().constData());
    expectResult("a script");
    if (isChanged)
        document().undoSteps().undo();
    EXPECT_EQ(bytes(), before) << "undone";

    OneByOne feeder(answers().mid(1));
    session.setFeeder(&feeder);
    document().runCommand(answers().front());
    session.setFeeder(nullptr);
    // Asked again, the user may well get further.
    if (*GetParam().printed == 0)
        expectResult("the window");
}

TEST_P(CommandDialogue, EscLeavesTheDrawingAsItWas)
{
    if (GetParam().esc == Esc::Keeps)
        GTEST_SKIP();
    setUp();
    const QByteArray before = bytes();
    for (qsizetype count = 1; count < answers().size(); ++count) {
        lisp("(command" + arguments(answers().mid(0, count)) + " nil)");
        EXPECT_EQ(bytes(), before) << "behind " << count << " answers";
    }
}
