#include "Program.h"

#include "Editor.h"

#include <cstdio>

namespace sample {

namespace {

/// The text of the argument at `place`, a number's digits as well; empty where there is none.
QString textAt(const Value::List &arguments, std::size_t place)
{
    if (place >= arguments.size())
        return {};
    const auto *text = std::get_if<QString>(&arguments[place].data);
    return text ? *text : printed(arguments[place]);
}

QStringList textsFrom(const Value::List &arguments, std::size_t place)
{
    QStringList texts;
    for (; place < arguments.size(); ++place)
        texts.append(textAt(arguments, place));
    return texts;
}

Value documentCount(const Value::List & = {})
{
    return {qint64(documentManager().documentCount())};
}

Value activateDocument(const Value::List &arguments)
{
    const std::size_t place = textAt(arguments, 0).toUInt();
    const auto &documents = documentManager().documents();
    if (place < 1 || place > documents.size())
        throw LispError{QStringLiteral("there is no such document")};
    documentManager().activate(documents[place - 1].get());
    return arguments.front();
}

Value closeDocument(const Value::List &)
{
    documentManager().close();
    return documentCount();
}

Value saveDocument(const Value::List &)
{
    OdDbDatabase *database = documentManager().active()->database();
    editor().tell([&](OdEditorReactor &reactor) { reactor.beginSave(database, database->getFilename()); });
    // Here another host writes the file: the module has put into it what belongs there.
    return truth(true);
}

} // namespace

// [the end]
Program::~Program()
{
    while (documentManager().active())
        documentManager().close();
    m_module.unload();
}

void Program::unload()
{
    m_module.unload();
    // What the module leaves defined for as long as an engine lives ends here: its code is gone.
    for (const auto &document : documentManager().documents())
        document->engine()->forgetFunctions();
}
// [/the end]

void Program::openDocument(const QString &path)
{
    documentManager().open(path, [this](LispEngine &engine) { addFunctions(engine); });
}

void Program::addFunctions(LispEngine &engine)
{
    Lisp &lisp = engine.lisp();
    lisp.define(QStringLiteral("open-document"), [this](const Value::List &arguments) {
        openDocument(textAt(arguments, 0));
        return documentCount();
    });
    lisp.define(QStringLiteral("activate"), activateDocument);
    lisp.define(QStringLiteral("close-document"), closeDocument);
    lisp.define(QStringLiteral("save"), saveDocument);
    lisp.define(QStringLiteral("command"), [this](const Value::List &arguments) { return runCommand(arguments); });
    lisp.define(QStringLiteral("hand"), [this](const Value::List &arguments) { return addStep(arguments); });
    lisp.define(QStringLiteral("functions"),
                [&engine](const Value::List &) { return Value{qint64(engine.functionCount())}; });
    lisp.define(QStringLiteral("unload"), [this](const Value::List &) {
        unload();
        return truth(true);
    });
}

// [command]
Value Program::runCommand(const Value::List &arguments)
{
    OdEdCommand *command = commands().command(textAt(arguments, 0));
    if (!command)
        throw LispError{QStringLiteral("unknown command: ") + textAt(arguments, 0)};
    documentManager().active()->prompts().queue(textsFrom(arguments, 1));
    editor().tell<OdEdCommandStackReactor>([](auto &reactor) { reactor.commandWillStart(nullptr, nullptr); });
    command->execute(nullptr); // never throws; the document may be closed by it
    if (Document *active = documentManager().active())
        active->prompts().clearQueue();
    return {};
}
// [/command]

Value Program::addStep(const Value::List &arguments)
{
    const QStringList words = textsFrom(arguments, 0);
    if (words.value(0) == u"do")
        m_hand.add({{}, [this, text = words.value(1)] { run(text); }});
    else
        m_hand.add({words, {}});
    return truth(true);
}

// [run]
bool Program::run(const QString &text)
{
    try {
        for (const Value &form : read(text)) {
            Document *active = documentManager().active();
            if (!active)
                throw LispError{QStringLiteral("no document is open")};
            // The engine outlives its document where the user closes that meanwhile.
            const std::shared_ptr<LispEngine> engine = active->engine();
            editor().tell<OdEdLispEngineReactor>(
                [&form](auto &reactor) { reactor.lispWillStart(nullptr, printed(form)); });
            const Value value = engine->lisp().evaluate({form});
            std::printf("%s -> %s\n", qPrintable(printed(form)), qPrintable(printed(value)));
        }
        return true;
    } catch (const LispError &error) {
        std::printf("error: %s\n", qPrintable(error.text));
        return false;
    }
}
// [/run]

} // namespace sample
