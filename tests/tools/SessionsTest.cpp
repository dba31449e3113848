// The tools and Lisp programs as a user drives them: every session in the folders beside this file, in tests/programs
// and in samples/sessions is a test, named by its folder and its file.

#include "host/app/batch/BatchWork.h"
#include "host/app/playback/SessionPlayer.h"
#include "tests/support/QtTestPrinters.h"
#include "tests/tools/ToolRun.h"

#include <QDir>
#include <QFileInfo>

#include <gtest/gtest.h>

using namespace host::app;
using namespace Qt::StringLiterals;

namespace {

QString inSource(const QString &path)
{
    return qEnvironmentVariable("ORTAKIT_SOURCE") + u'/' + path;
}

/// Whether a drawing made elsewhere is sound before anything is done to it.
bool isSoundElsewhere(const QString &path)
{
    static QHash<QString, bool> known;
    if (!known.contains(path))
        known.insert(path, tools_test::complaints(path).isEmpty());
    return known.value(path);
}

/// Plays the cases of one session, with a home of its own.
class PlayedSession : public testing::Test
{
public:
    explicit PlayedSession(QString path) : m_path(std::move(path)) {}

    void TestBody() override
    {
        m_script = readPlayback(m_path);
        for (const ScriptError &error : m_script.errors)
            GTEST_MESSAGE_AT_(qPrintable(m_path), error.line, qPrintable(error.message),
                              testing::TestPartResult::kNonFatalFailure);
        if (!m_script.errors.isEmpty())
            return;
        if (QFileInfo(m_path).dir().dirName() == u"sessions"_s)
            m_script.steps += parsePlayback(u"expect-sound"_s).steps;
        if (m_script.drawing.section(u' ', 0, 0) == u"elsewhere"_s)
            playElsewhere(m_script.drawing.split(u' ').mid(1));
        else
            playOver(m_script.drawing);
    }

private:
    /// Over each drawing of the folder of drawings made elsewhere that the reader finds sound: over as many at least as
    /// `words` say, or those that they name.
    void playElsewhere(const QStringList &words)
    {
        const QString folder = qEnvironmentVariable("ORTAKIT_CORPUS");
        if (folder.isEmpty())
            GTEST_SKIP() << "ORTAKIT_CORPUS names no folder of drawings";
        bool isNumber = false;
        const qsizetype least = words.value(0).toInt(&isNumber);
        qsizetype played = 0;
        for (const QFileInfo &file : QDir(folder).entryInfoList(isNumber ? QStringList{u"*.dxf"_s} : words))
            played += isSoundElsewhere(file.filePath()) && playOver(file.filePath()) ? 1 : 0;
        EXPECT_GE(played, isNumber ? least : words.size()) << "drawings";
    }

    /// False when a session says of a drawing that it is not for it.
    bool playOver(const QString &drawing)
    {
        bool wasPlayed = false;
        for (const PlaybackCase &one : casesToPlay(m_script)) {
            SCOPED_TRACE((one.name + u" over "_s + drawing).toStdString());
            const host::kernel::OpenOutcome opened = open(drawing);
            if (!opened) {
                ADD_FAILURE() << opened.error.toStdString();
                return false;
            }
            const PlaybackResult result = runCase(one, *opened.document, options());
            if (!result.ok)
                GTEST_MESSAGE_AT_(qPrintable(m_path), result.line, qPrintable(result.message + u'\n' + result.printed),
                                  testing::TestPartResult::kNonFatalFailure);
            m_bench.documents().close(opened.document);
            wasPlayed = wasPlayed || !result.wasLeft;
        }
        return wasPlayed;
    }

    host::kernel::OpenOutcome open(const QString &drawing)
    {
        if (drawing == u"new"_s)
            return {m_bench.documents().create(), {}, {}};
        return openToRead(m_bench, QDir(QFileInfo(m_path).absolutePath()).filePath(drawing));
    }

    PlaybackOptions options() const
    {
        PlaybackOptions options;
        options.variables.insert(u"SESSION_DIR"_s, QFileInfo(m_path).absolutePath());
        options.outFolder = m_folder.path(u"out"_s);
        QDir().mkpath(options.outFolder);
        options.audit = tools_test::complaints;
        return options;
    }

    const QString m_path;
    PlaybackScript m_script;
    tools_test::ToolRun m_folder;
    QWidget m_parentOfDialogs;
    Workbench m_bench{m_folder.workbench(), &m_parentOfDialogs};
};

/// The names are those that GoogleTest's filter and CTest can tell.
void registerSession(const QString &suite, const QFileInfo &file)
{
    const QByteArray name = file.completeBaseName().replace(u'-', u'_').toUtf8();
    testing::RegisterTest(suite.toUtf8().constData(), name.constData(), nullptr, nullptr, __FILE__, __LINE__,
                          [path = file.filePath()]() -> testing::Test * { return new PlayedSession(path); });
}

void registerSessionsOf(const QString &suite, const QDir &folder)
{
    for (const QFileInfo &file : folder.entryInfoList({u"*.session"_s}))
        registerSession(suite, file);
}

bool registerSessions()
{
    for (const QFileInfo &folder : QDir(inSource(u"tests/tools"_s)).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot))
        registerSessionsOf(folder.fileName(), folder.filePath());
    registerSessionsOf(u"programs"_s, inSource(u"tests/programs"_s));
    registerSessionsOf(u"samples"_s, inSource(u"samples/sessions"_s));
    return true;
}

[[maybe_unused]] const bool areSessionsRegistered = registerSessions();

} // namespace
