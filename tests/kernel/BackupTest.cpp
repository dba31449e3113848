#include "platform/kernel/CKvSystemServices.h"
#include "tests/kernel/Bench.h"

#include <QDir>

using namespace host::kernel;
using namespace Qt::StringLiterals;

namespace {

/// A drawing "plan.dxf" that was saved once, and a folder "bak" for backups.
class Backup : public Bench
{
protected:
    Backup()
    {
        EXPECT_TRUE(QDir(folder.path()).mkpath(u"bak"_s));
        EXPECT_TRUE(QDir(folder.path()).mkpath(u"other"_s));
        setFolder(path("bak"));
        EXPECT_TRUE(document().saveAs(path("plan.dxf")));
    }

    void setFolder(const QString &name)
    {
        services()->setStringSetting(u"SETBACKUPFOLDER"_s, u"setbackupfolder"_s, name);
    }
    static CKvSystemServices *services() { return GetKvSystemServices(); }
    QStringList backups() const
    {
        return QDir(path("bak")).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
    }
};

TEST_F(Backup, holdsWhatASaveReplaced)
{
    EXPECT_TRUE(backups().isEmpty()) << "there was nothing to replace";
    const QByteArray first = read("plan.dxf");
    change();
    EXPECT_TRUE(document().save());
    EXPECT_EQ(read("bak/plan.bak"), first);
    const QByteArray second = read("plan.dxf");
    EXPECT_NE(first, second);

    change();
    type("qsave\n");
    EXPECT_TRUE(document().runQueued().ok);
    EXPECT_EQ(read("bak/plan.bak"), second) << "of the last save only";

    write("other/detail.v2.dxf", "someone else's");
    EXPECT_TRUE(document().saveAs(path("new.dxf")));
    EXPECT_TRUE(document().saveAs(path("other/detail.v2.dxf")));
    EXPECT_EQ(read("bak/detail.v2.bak"), "someone else's") << "another drawing that was saved over";
    write("other/plan.dxf", "an older run's result");
    EXPECT_TRUE(document().saveCopy(path("other/plan.dxf")));
    EXPECT_EQ(read("bak/plan.bak"), "an older run's result");
    EXPECT_EQ(document().path(), path("other/detail.v2.dxf"));
    EXPECT_EQ(backups(), (QStringList{u"detail.v2.bak"_s, u"plan.bak"_s})) << "and nothing half made";
    EXPECT_EQ(takePrinted().find("No backup"), std::string::npos);
}

TEST_F(Backup, goesOnlyWhenTheDrawingIsSaved)
{
    write("bak/plan.bak", "older");
    EXPECT_FALSE(document().saveAs(path("other"))) << "a folder";
    write("other/plan.dwg", "x");
    EXPECT_FALSE(document().saveAs(path("other/plan.dwg")));
    EXPECT_EQ(read("bak/plan.bak"), "older");
    EXPECT_EQ(backups(), QStringList{u"plan.bak"_s});
    setFolder({});
    EXPECT_TRUE(document().save());
    EXPECT_EQ(read("bak/plan.bak"), "older") << "no folder, no backup";
}

TEST_F(Backup, isNoReasonNotToSave)
{
    QDir(folder.path()).mkpath(u"full/plan.bak"_s);
    const struct
    {
        const char *what;
        QString folder;
        std::string reason;
    } rows[] = {
        {"gone", path("nowhere"), "there is no folder " + path("nowhere").toStdString()},
        {"a file", path("plan.dxf"), "there is no folder " + path("plan.dxf").toStdString()},
        {"taken by a folder", path("full"), ""},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        setFolder(row.folder);
        takePrinted();
        change();
        EXPECT_TRUE(document().save());
        EXPECT_FALSE(document().isModified());
        const std::string printed = takePrinted();
        EXPECT_NE(printed.find("\nNo backup of " + path("plan.dxf").toStdString() + ": " + row.reason),
                  std::string::npos)
            << printed;
    }
    EXPECT_EQ(QDir(path("full")).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).size(), 1);
}

TEST_F(Backup, neverTakesThePlaceOfTheDrawing)
{
    EXPECT_TRUE(document().saveAs(path("bak/odd.bak")));
    const QByteArray before = read("bak/odd.bak");
    change();
    EXPECT_TRUE(document().save());
    EXPECT_NE(read("bak/odd.bak"), before);
    EXPECT_NE(takePrinted().find("would take the place of the drawing"), std::string::npos);
    EXPECT_TRUE(QFile::link(path("bak"), path("link")));
    setFolder(path("link"));
    EXPECT_TRUE(document().save());
    EXPECT_NE(takePrinted().find("would take the place of the drawing"), std::string::npos) << "by another way too";
}

TEST_F(Backup, isReadByWhoMayReadTheDrawing)
{
    const auto own = QFile::ReadOwner | QFile::WriteOwner;
    EXPECT_TRUE(QFile::setPermissions(path("plan.dxf"), own));
    EXPECT_TRUE(document().save());
    EXPECT_EQ(QFile::permissions(path("bak/plan.bak")) & (QFile::ReadGroup | QFile::ReadOther), 0);
}

TEST_F(Backup, theFolderIsKeptBetweenSessions)
{
    const QString name = u"odd, [name]=\"1\"; größe\\n % @x"_s;
    setFolder(name);
    services()->setStringSetting(u"SETBACKUPFOLDER"_s, u"other"_s, u"x"_s);
    const Session next(homeIn("home"));
    EXPECT_EQ(services()->stringSetting(u"SETBACKUPFOLDER"_s, u"setbackupfolder"_s), name);
    EXPECT_EQ(services()->stringSetting(u"SETBACKUPFOLDER"_s, u"none"_s), QString());
    EXPECT_EQ(services()->licenceState(), KvLicence::None);
}

TEST_F(Backup, settingsThatCannotBeKeptAreTold)
{
    QFile::remove(session.settings().path());
    QDir().mkpath(session.settings().path());
    setFolder(path("bak"));
    EXPECT_NE(takePrinted().find("SETBACKUPFOLDER: the setting cannot be written to"), std::string::npos);
}

} // namespace
