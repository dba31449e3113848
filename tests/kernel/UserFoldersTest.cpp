#include "host/kernel/files/UserFolders.h"

#include "host/kernel/documents/Session.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <array>
#include <gtest/gtest.h>

using namespace host::kernel;

namespace {

/// The system's places in a folder of the test, put back afterwards.
class UserPlaces : public ::testing::Test
{
protected:
    UserPlaces()
    {
        for (const char *name : variables) {
            before.append(qgetenv(name));
            qputenv(name, path(QString::fromLatin1(name)).toUtf8());
        }
        qunsetenv("ORTAKIT_HOME");
    }
    ~UserPlaces() override
    {
        for (qsizetype i = 0; i < before.size(); ++i)
            before[i].isNull() ? qunsetenv(variables[i]) : qputenv(variables[i], before[i]);
    }

    QString path(const QString &name) const { return folder.filePath(name); }
    void write(const QString &name, const QByteArray &bytes) const
    {
        EXPECT_TRUE(QDir().mkpath(QFileInfo(path(name)).path()));
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }

    static constexpr std::array<const char *, 4> variables = {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME",
                                                              "ORTAKIT_HOME"};
    const QTemporaryDir folder;
    QList<QByteArray> before;
};

TEST_F(UserPlaces, dataSettingsAndCacheAreApartUnlessAHomeIsNamed)
{
    const UserFolders apart = userFolders();
    EXPECT_EQ(apart.data, path(QStringLiteral("XDG_DATA_HOME/ortakit")));
    EXPECT_EQ(apart.settings, path(QStringLiteral("XDG_CONFIG_HOME/ortakit")));
    EXPECT_EQ(apart.cache, path(QStringLiteral("XDG_CACHE_HOME/ortakit")));
    const UserFolders together = userFolders(path(QStringLiteral("x/../home/")));
    EXPECT_EQ(together.data, path(QStringLiteral("home")));
    EXPECT_EQ(together.settings, together.data);
    EXPECT_EQ(together.cache, path(QStringLiteral("home/cache")));

    Session session;
    session.setLispHeapLimit(77);
    EXPECT_TRUE(QFileInfo::exists(apart.settings + QStringLiteral("/settings.ini")));
    EXPECT_FALSE(QFileInfo::exists(apart.data + QStringLiteral("/settings.ini")));
    EXPECT_TRUE(QFileInfo(apart.data + QStringLiteral("/Template")).isDir());
}

TEST_F(UserPlaces, settingsOfOlderVersionsAreMoved)
{
    const QString name = QStringLiteral("settings.ini");
    write(QStringLiteral("XDG_DATA_HOME/ortakit/settings.ini"), "[LISPHEAPMAX]\nlispheapmax=99\n");
    const UserFolders folders = userFolders();
    EXPECT_EQ(Session().lispHeapLimit(), 99);
    EXPECT_FALSE(QFileInfo::exists(folders.data + u'/' + name));
    EXPECT_TRUE(QFileInfo::exists(folders.settings + u'/' + name));
    // Newer ones stay as they are, and what an older version writes later is its own.
    write(QStringLiteral("XDG_DATA_HOME/ortakit/settings.ini"), "[LISPHEAPMAX]\nlispheapmax=55\n");
    EXPECT_EQ(Session().lispHeapLimit(), 99);
    EXPECT_TRUE(QFileInfo::exists(folders.data + u'/' + name));
}

TEST_F(UserPlaces, settingsThatCannotBeMovedAreUsedWhereTheyAre)
{
    const UserFolders folders = userFolders();
    const QString name = QStringLiteral("registry.ini");
    write(QStringLiteral("elsewhere.ini"), "[General]\n");
    EXPECT_TRUE(QDir().mkpath(folders.data));
    EXPECT_TRUE(QFile::link(QStringLiteral("../../elsewhere.ini"), folders.data + u'/' + name));
    EXPECT_EQ(settingsFile(folders, name), folders.data + u'/' + name) << "a link is relative to where it is";
    // A file stands where the folder would be made.
    write(QStringLiteral("XDG_CONFIG_HOME"), "");
    write(QStringLiteral("XDG_DATA_HOME/ortakit/workbench.ini"), "[General]\n");
    EXPECT_EQ(settingsFile(folders, QStringLiteral("workbench.ini")), folders.data + QStringLiteral("/workbench.ini"));
    EXPECT_EQ(settingsFile(folders, QStringLiteral("none.ini")), folders.settings + QStringLiteral("/none.ini"));
}

} // namespace
