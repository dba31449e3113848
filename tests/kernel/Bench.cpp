#include "tests/kernel/Bench.h"

using namespace host::kernel;

Bench::Bench() : session(homeIn("home"))
{
    QObject::connect(&session.documents(), &DocumentManager::opened, [this](Document *opened) {
        QObject::connect(opened, &Document::printed, [this](const QString &text) { m_printed += text; });
    });
    session.documents().create();
}

Bench::~Bench() = default;

std::string Bench::lisp(const std::string &text)
{
    const RunResult result = document().run(QString::fromStdString(text));
    // All of it stands in one line.
    return result.ok ? result.value.toStdString()
                     : "error: " + QString(result.error).remove(QStringLiteral(" (line 1)")).toStdString();
}

void Bench::type(const char *lines)
{
    session.input().pushTyped(QString::fromUtf8(lines));
}

void Bench::runQueued()
{
    while (!session.input().isEmpty())
        document().runQueued();
}

void Bench::runTyped(const char *lines)
{
    type(lines);
    runQueued();
}

std::string Bench::takePrinted()
{
    return std::exchange(m_printed, QString()).toStdString();
}

QString Bench::path(const char *name) const
{
    return folder.filePath(QString::fromUtf8(name));
}

QString Bench::write(const char *name, const QByteArray &content) const
{
    QFile file(path(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    return file.fileName();
}

QByteArray Bench::read(const char *name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

SessionOptions Bench::homeIn(const char *name) const
{
    return {.home = path(name), .supportFolders = {}, .helpFolder = {}};
}
