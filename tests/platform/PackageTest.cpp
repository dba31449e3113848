#include "tests/platform/DevelopmentPackage.h"

#include <QDirIterator>
#include <QFileInfo>

#include <gtest/gtest.h>

namespace {

using namespace Qt::StringLiterals;
using namespace ortakit::test;

QStringList filesBelow(const QString &folder)
{
    QStringList files;
    for (QDirIterator found(folder, QDir::Files, QDirIterator::Subdirectories); found.hasNext();)
        files.append(found.next());
    return files;
}

TEST(DevelopmentPackage, BuildsTheSampleHostFromWhatIsInstalled)
{
    const DevelopmentPackage &package = DevelopmentPackage::installed();
    EXPECT_EQ(package.installLog.toStdString(), "");
    EXPECT_TRUE(QFileInfo(package.sampleHost).isExecutable()) << package.buildLog.toStdString();
    EXPECT_TRUE(package.buildLog.contains(u"The host defines all "_s)) << package.buildLog.toStdString();
}

TEST(DevelopmentPackage, HasNoPathOfTheBuildInIt)
{
    const QStringList files = filesBelow(DevelopmentPackage::installed().prefix);
    for (const QString &file : files) {
        if (file.endsWith(u".so"_s))
            continue;
        const QString text = textOf(file);
        for (const char *variable : {"ORTAKIT_BUILD", "ORTAKIT_SOURCE"})
            EXPECT_FALSE(text.contains(qEnvironmentVariable(variable))) << variable << " in " << file.toStdString();
    }
    EXPECT_GT(files.size(), 50);
}

TEST(DevelopmentPackage, NamesEverythingThatAHostLacks)
{
    const DevelopmentPackage &package = DevelopmentPackage::installed();
    QString script;
    for (const QString &file : filesBelow(package.prefix)) {
        if (file.endsWith(u"/OrtakitCheckHost.cmake"_s))
            script = file;
    }
    const auto check = [&](const QString &host) {
        return runProgram(QStringLiteral(SAMPLE_CMAKE),
                          {u"-DNM="_s + QStringLiteral(SAMPLE_NM), u"-DMODULE="_s + QStringLiteral(MODULE_FILE),
                           u"-DHOST="_s + host, u"-P"_s, script},
                          package.prefix);
    };
    const Ended whole = check(package.sampleHost);
    EXPECT_EQ(whole.status, 0) << whole.messages.toStdString();
    const Ended stranger = check(QStringLiteral(SAMPLE_CMAKE));
    EXPECT_EQ(stranger.status, 1);
    for (const char *name : {"odedEditor()", "typeinfo for CKvDialog", "OdResBuf::~OdResBuf()", "CKvUtils::blocks("})
        EXPECT_TRUE(stranger.messages.contains(QString::fromLatin1(name))) << stranger.messages.toStdString();
    EXPECT_FALSE(stranger.messages.contains(u"QString::"_s)) << "what Qt defines is no business of the host";
}

} // namespace
