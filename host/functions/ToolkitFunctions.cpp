// The helpers that many programs take from a customary toolkit (acet-...).

#include "host/drawing/records/Entities.h"
#include "host/functions/FunctionGroups.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/documents/Session.h"
#include "host/kernel/lisp/LispConversion.h"
#include "host/lisp/Interpreter.h"
#include "platform/kernel/CKvMessageBox.h"

#include <QFileDialog>
#include <QGuiApplication>
#include <QSet>

namespace host::kernel {

namespace {

using lisp::Arguments;
using lisp::Value;

/// An argument after the texts that is given and not nil says that letter case does not count.
Qt::CaseSensitivity caseAt(Arguments &args, std::size_t index)
{
    return args.has(index) ? Qt::CaseInsensitive : Qt::CaseSensitive;
}

// (acet-str-find wanted text [ignorecase]) -> where it begins, counted from 1; nil when it is not there.
Value strFind(Arguments &args)
{
    const qsizetype found = stringAt(args, 1).indexOf(stringAt(args, 0), 0, caseAt(args, 2));
    return found < 0 ? Value() : Value::integer(static_cast<std::int32_t>(found) + 1);
}

// (acet-str-replace old new text [ignorecase]) -> text with each old one replaced.
Value strReplace(Arguments &args)
{
    const QString old = stringAt(args, 0);
    QString text = stringAt(args, 2);
    const QString inPlace = stringAt(args, 1);
    if (old.isEmpty())
        return args[2];
    args.interpreter().checkStringLength(static_cast<std::size_t>(text.size()) +
                                         static_cast<std::size_t>(text.count(old)) * inPlace.size() * 3);
    return toLisp(text.replace(old, inPlace, caseAt(args, 3)));
}

/// What an entity is but for its name and owner.
QByteArray contentOf(const drawing::Drawing &drawing, drawing::RecordId entity)
{
    constexpr int handleCode = 5;
    constexpr int ownerCode = 330;
    QByteArray content;
    for (const drawing::Tag &tag : drawing.tags(entity))
        if (tag.code != handleCode && tag.code != ownerCode)
            content += QByteArray::number(tag.code) + '\n' + tag.value.toByteArray() + '\n';
    return content;
}

// (acet-ss-remove-dups set) -> a new set in which of entities with the same groups only the first is; nil for nil. The
// drawing stays as it is.
Value removeDuplicates(Arguments &args)
{
    if (!args.has(0))
        return {};
    const Document &document = documentOf(args);
    QSet<QByteArray> seen;
    std::vector<drawing::RecordId> kept;
    for (const std::uint64_t name : args.selectionSet(0).entities) {
        const drawing::RecordId entity = recordFrom(document, name);
        if (!isValid(entity) || !document.drawing().isAlive(entity))
            continue;
        const QByteArray content = contentOf(document.drawing(), entity);
        if (!seen.contains(content)) {
            seen.insert(content);
            kept.push_back(entity);
        }
        args.interpreter().tick();
    }
    return toLisp(args.interpreter(), kept);
}

bool isKeyDown(Qt::KeyboardModifier key)
{
    return QGuiApplication::queryKeyboardModifiers().testFlag(key);
}

// (acet-sys-shift-down), (acet-sys-control-down) -> T while the key is held down.
Value shiftDown(Arguments &args)
{
    return args.boolean(isKeyDown(Qt::ShiftModifier));
}

Value controlDown(Arguments &args)
{
    return args.boolean(isKeyDown(Qt::ControlModifier));
}

// (acet-ui-message text [title [type]]) -> 1. A message box; in a run without a window the text is printed.
Value uiMessage(Arguments &args)
{
    Document &document = documentOf(args);
    QWidget *window = document.session().mainWindow();
    const QString title = args.has(1) ? stringAt(args, 1) : QObject::tr("Message");
    if (window)
        CKvMessageBox::information(window, title, stringAt(args, 0));
    else
        document.print(u'\n' + stringAt(args, 0) + u'\n');
    constexpr std::int32_t okPressed = 1;
    return Value::integer(okPressed);
}

// (acet-ui-pickdir [text [start [title]]]) -> a folder that the user chose, nil when there is none.
Value pickFolder(Arguments &args)
{
    Document &document = documentOf(args);
    if (!document.session().mainWindow())
        return {};
    const QString title = args.has(2) ? stringAt(args, 2) : QObject::tr("Choose a folder");
    QFileDialog dialog(document.session().mainWindow(), title, args.has(1) ? stringAt(args, 1) : QString());
    dialog.setObjectName(QStringLiteral("folderDialog"));
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return {};
    return toLisp(dialog.selectedFiles().constFirst());
}

// (acet-ui-progress text count), (acet-ui-progress number), (acet-ui-progress) -> what was given first. Programs say
// how far they are; it is not shown.
Value uiProgress(Arguments &args)
{
    return args[0];
}

// (acet-attsync block) -> T. Gives the insertions of a block the attributes that it defines, as ATTSYNC does.
Value attsync(Arguments &args)
{
    lisp::Interpreter &interpreter = args.interpreter();
    const Value call[] = {interpreter.symbol("COMMAND"), Value::string("_.ATTSYNC"), Value::string("_Name"),
                          Value::string(args.string(0))};
    interpreter.eval(Value::list(call));
    return args.boolean(true);
}

} // namespace

void addToolkitFunctions(lisp::Interpreter &interpreter)
{
    using lisp::Arity;
    static constexpr lisp::NativeRow rows[] = {
        {"acet-str-find", strFind, Arity::between(2, 4), "wanted text [ignorecase]",
         "where a text begins in another, counted from 1"},
        {"acet-str-replace", strReplace, Arity::between(3, 5), "old new text [ignorecase]",
         "a text with each old part replaced"},
        {"acet-ss-remove-dups", removeDuplicates, Arity::between(1, 3), "set [fuzz [ignored]]",
         "a set without entities that are the same as others"},
        {"acet-sys-shift-down", shiftDown, Arity::exactly(0), "", "T while the shift key is held down"},
        {"acet-sys-control-down", controlDown, Arity::exactly(0), "", "T while the control key is held down"},
        {"acet-ui-message", uiMessage, Arity::between(1, 3), "text [title [type]]", "shows a message"},
        {"acet-ui-pickdir", pickFolder, Arity::between(0, 3), "[text [start [title]]]",
         "a folder that the user chooses"},
        {"acet-ui-progress", uiProgress, Arity::between(0, 2), "[text] [count]", "nothing that is shown"},
        {"acet-attsync", attsync, Arity::exactly(1), "block",
         "gives the insertions of a block the attributes that it defines"},
    };
    interpreter.define(rows);
}

} // namespace host::kernel
