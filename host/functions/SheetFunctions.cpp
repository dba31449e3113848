// Sheets of this and other drawings, and what makes one drawing of them.

#include "host/drawing/editing/CopyBetweenDrawings.h"
#include "host/drawing/editing/RenameLayer.h"
#include "host/drawing/editing/SheetMerge.h"
#include "host/drawing/file/NewDrawing.h"
#include "host/drawing/file/Save.h"
#include "host/drawing/geometry/EntityGeometry.h"
#include "host/drawing/records/Journal.h"
#include "host/drawing/records/LayoutTabs.h"
#include "host/drawing/records/Tables.h"
#include "host/functions/FunctionGroups.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/documents/Session.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/lisp/LispConversion.h"
#include "host/lisp/Interpreter.h"

#include <QFileInfo>

#include <cmath>

namespace host::kernel {

namespace {

using drawing::Drawing;
using lisp::Arguments;
using lisp::Value;

/// A sheet as a program names it: of the file, or of the drawing itself where that is empty.
struct WantedSheet
{
    QString file;
    drawing::MergedSheet sheet;
};

struct Clash
{
    QString file;
    drawing::KeptName name;
};

struct MergeOutcome
{
    QString error;
    int skipped = 0;
    std::vector<Clash> clashes;
};

/// The sheets of a list of (file layout name).
std::vector<WantedSheet> sheetsAt(Arguments &args, std::size_t index)
{
    std::vector<WantedSheet> sheets;
    for (Value rest = args.list(index); rest.isCons(); rest = rest.cdr()) {
        const Value &file = rest.car().car();
        const Value &layout = rest.car().cdr().car();
        const Value &name = rest.car().cdr().cdr().car();
        if (!(file.isNil() || file.isString()) || !layout.isString() || !name.isString())
            args.badValue(index, "sheet");
        sheets.push_back({file.isNil() ? QString() : fromUtf8(file.asString()),
                          {fromUtf8(layout.asString()), fromUtf8(name.asString())}});
    }
    return sheets;
}

/// Brings sheets of several drawings into one.
class Merge
{
public:
    Merge(const Drawing &own, Drawing &target, drawing::NameClash clash) : m_own(own), m_target(target), m_clash(clash)
    {
    }

    MergeOutcome run(const std::vector<WantedSheet> &sheets, bool renamesOwn)
    {
        const drawing::JournalGroup group(m_target.journal(), QStringLiteral("merge"));
        QStringList files;
        for (const WantedSheet &wanted : sheets) {
            if (!files.contains(wanted.file))
                files.append(wanted.file);
        }
        for (const QString &file : files) {
            std::vector<drawing::MergedSheet> ofFile;
            for (const WantedSheet &wanted : sheets) {
                if (wanted.file == file)
                    ofFile.push_back(wanted.sheet);
            }
            if (file.isEmpty() && renamesOwn)
                rename(ofFile);
            else
                mergeFile(file, ofFile);
            if (!m_outcome.error.isEmpty())
                return m_outcome;
        }
        putInOrder(sheets);
        return m_outcome;
    }

private:
    /// Two steps, as sheets may take each other's names.
    void rename(const std::vector<drawing::MergedSheet> &sheets)
    {
        const auto interim = [](std::size_t number) { return QStringLiteral("\x01%1").arg(number); };
        for (std::size_t i = 0; i < sheets.size(); ++i) {
            if (!drawing::renameSheet(m_target, sheets[i].layout, interim(i)))
                m_outcome.error = Functions::tr("there is no sheet \"%1\"").arg(sheets[i].layout);
            else if (!drawing::isSymbolName(sheets[i].name, m_target.version()))
                m_outcome.error = Functions::tr("\"%1\" cannot be the name of a sheet").arg(sheets[i].name);
            if (!m_outcome.error.isEmpty())
                return;
        }
        for (std::size_t i = 0; i < sheets.size(); ++i) {
            if (!drawing::renameSheet(m_target, interim(i), sheets[i].name))
                m_outcome.error = Functions::tr("there is a sheet \"%1\" already").arg(sheets[i].name);
        }
    }

    void mergeFile(const QString &file, const std::vector<drawing::MergedSheet> &sheets)
    {
        const drawing::ReadResult opened = file.isEmpty() ? drawing::ReadResult() : Drawing::open(file);
        if (!file.isEmpty() && !opened) {
            m_outcome.error = QStringLiteral("%1: %2").arg(file, opened.error.message());
            return;
        }
        const Drawing &source = file.isEmpty() ? m_own : *opened.drawing;
        const drawing::MergeResult result = drawing::mergeSheets(
            source, sheets, m_target,
            {.clash = m_clash, .prefix = prefixOf(source), .takesEmptySheet = true, .modelOffset = offsetFor(source)});
        if (!result)
            m_outcome.error = file.isEmpty() ? result.error : QStringLiteral("%1: %2").arg(file, result.error);
        m_outcome.skipped += result.skipped;
        for (const drawing::KeptName &name : result.clashes)
            m_outcome.clashes.push_back({file, name});
    }

    static QString prefixOf(const Drawing &source)
    {
        const QString name = QFileInfo(source.path()).completeBaseName();
        return (name.isEmpty() ? QStringLiteral("Drawing") : name) + u'$';
    }

    /// Moves the source's model to the right of what the target's model holds, by a whole number.
    drawing::Vec3 offsetFor(const Drawing &source) const
    {
        const auto modelBox = [](const Drawing &drawing) {
            return drawing::spaceBox(drawing, drawing.entities().inSpace(drawing::Space::Model));
        };
        const drawing::Box taken = modelBox(m_target);
        const drawing::Box own = modelBox(source);
        if (taken.isEmpty() || own.isEmpty())
            return {};
        const double gap = 0.1 * (own.high.x - own.low.x);
        return {std::ceil(taken.high.x - own.low.x + gap), 0.0, 0.0};
    }

    /// The merged sheets stand behind all others, in the order in which they were named.
    void putInOrder(const std::vector<WantedSheet> &sheets)
    {
        const std::vector<drawing::LayoutTab> all = drawing::layoutTabs(m_target);
        const auto placeOf = [&](const drawing::LayoutTab &layout) {
            return std::find_if(sheets.begin(), sheets.end(), [&](const WantedSheet &wanted) {
                return wanted.sheet.name.compare(layout.name, Qt::CaseInsensitive) == 0;
            });
        };
        qint64 last = 0;
        for (const drawing::LayoutTab &layout : all) {
            if (placeOf(layout) == sheets.end())
                last = std::max(last, layout.order);
        }
        for (const drawing::LayoutTab &layout : all) {
            const auto place = placeOf(layout);
            if (place != sheets.end())
                drawing::setOrder(m_target, layout, last + 1 + (place - sheets.begin()));
        }
    }

    const Drawing &m_own;
    Drawing &m_target;
    drawing::NameClash m_clash;
    MergeOutcome m_outcome;
};

Value clashList(const MergeOutcome &outcome)
{
    std::vector<Value> clashes;
    for (const Clash &clash : outcome.clashes)
        clashes.push_back(
            Value::list({clash.file.isEmpty() ? Value() : toLisp(clash.file),
                         toLisp(QString::fromLatin1(drawing::tableTypeName(clash.name.kind).toByteArray())),
                         toLisp(clash.name.name)}));
    return Value::list(clashes);
}

/// Whether a new drawing of this path would go over one that sheets come from.
bool isSource(const Document &document, const std::vector<WantedSheet> &sheets, const QString &path)
{
    const QString target = QFileInfo(path).canonicalFilePath();
    const auto isSame = [&](const QString &source) { return QFileInfo(source).canonicalFilePath() == target; };
    return !target.isEmpty() &&
           (isSame(document.path()) || std::any_of(sheets.begin(), sheets.end(), [&](const WantedSheet &wanted) {
                return !wanted.file.isEmpty() && isSame(wanted.file);
            }));
}

/// What a new drawing measures in: as the first of what it is made of.
std::unique_ptr<Drawing> newTarget(const Drawing &own, const std::vector<WantedSheet> &sheets)
{
    const QString first = sheets.empty() ? QString() : sheets.front().file;
    const drawing::ReadResult opened = first.isEmpty() ? drawing::ReadResult() : Drawing::open(first);
    return drawing::newDrawingLike(opened ? *opened.drawing : own);
}

// (drawing-sheets [file]) -> the sheets of a drawing file, or of this drawing, in the order of their tabs: a list of
// (name . T), nil behind those on which nothing is drawn. A text says why the file cannot be read.
Value drawingSheets(Arguments &args)
{
    const drawing::ReadResult opened = args.has(0) ? Drawing::open(stringAt(args, 0)) : drawing::ReadResult();
    if (args.has(0) && !opened)
        return toLisp(opened.error.message());
    const Drawing &drawing = args.has(0) ? *opened.drawing : documentOf(args).drawing();
    std::vector<Value> sheets;
    for (const drawing::LayoutTab &layout : drawing::layoutTabs(drawing)) {
        if (!layout.isModel())
            sheets.push_back(Value::cons(toLisp(layout.name), args.boolean(drawing::isSheetUsed(drawing, layout))));
    }
    return Value::list(sheets);
}

// (merge-clashes target sheets) -> what (merge-sheets) would meet: a list of (file table name), a text when it would
// fail. Nothing changes.
Value mergeClashes(Arguments &args)
{
    const Drawing &own = documentOf(args).drawing();
    const std::vector<WantedSheet> sheets = sheetsAt(args, 1);
    const std::unique_ptr<Drawing> trial =
        args.has(0) ? newTarget(own, sheets) : std::move(Drawing::fromBytes(own.toBytes()).drawing);
    const MergeOutcome outcome = Merge(own, *trial, drawing::NameClash::Keep).run(sheets, !args.has(0));
    return outcome.error.isEmpty() ? clashList(outcome) : toLisp(outcome.error);
}

// (merge-sheets target sheets prefixed) makes sheets, a list of (file layout name) with nil for this drawing's own, the
// last tabs of this drawing, or those of a new drawing with the path target. Their model spaces come to stand beside
// each other. Of definitions of one name that differ, the target's stands for all, or with prefixed each has its own.
// -> the number of entities left out; a text says why nothing was merged.
Value mergeSheets(Arguments &args)
{
    Drawing &own = documentOf(args).drawing();
    const std::vector<WantedSheet> sheets = sheetsAt(args, 1);
    const auto clash = args.has(2) ? drawing::NameClash::Prefix : drawing::NameClash::Keep;
    const QString path = args.has(0) ? stringAt(args, 0) : QString();
    if (isSource(documentOf(args), sheets, path))
        return toLisp(Functions::tr("%1 is one of the drawings that sheets come from").arg(path));
    if (const auto obstacle = obstacleToWriting(path, &documentOf(args).session()); args.has(0) && obstacle)
        return toLisp(obstacle->text);
    // What fails half way must not leave half a drawing.
    const std::unique_ptr<Drawing> made =
        args.has(0) ? newTarget(own, sheets) : std::move(Drawing::fromBytes(own.toBytes()).drawing);
    MergeOutcome outcome = Merge(own, *made, clash).run(sheets, !args.has(0));
    if (outcome.error.isEmpty() && args.has(0))
        outcome.error = drawing::saveCopy(*made, path).error;
    if (!outcome.error.isEmpty())
        return toLisp(outcome.error);
    if (!args.has(0))
        outcome = Merge(own, own, clash).run(sheets, true);
    return outcome.error.isEmpty() ? Value::integer(outcome.skipped) : toLisp(outcome.error);
}

} // namespace

void addSheetFunctions(lisp::Interpreter &interpreter)
{
    static constexpr lisp::NativeRow rows[] = {
        {"drawing-sheets", drawingSheets, lisp::Arity::between(0, 1), "[file]", "the sheets of a drawing"},
        {"merge-clashes", mergeClashes, lisp::Arity::exactly(2), "files mode",
         "names that mean different things in drawings that are to become one"},
        {"merge-sheets", mergeSheets, lisp::Arity::exactly(3), "file sheets options",
         "puts sheets of drawings into one"},
    };
    interpreter.define(rows);
}

} // namespace host::kernel
