#include "lispfuncs/BackupFolder.h"
#include "lispfuncs/LicenceState.h"
#include "lispfuncs/RemoteText.h"
#include "platform/rx/OdError.h"
#include "tests/support/ModuleTest.h"

#include <QDir>

namespace {

class Services : public testing::Test
{
protected:
    Services()
    {
        lisp.defineFunction(u"c:setbackupfolder"_s, ortakit::setBackupFolder);
        lisp.defineFunction(u"CreateRtext"_s, ortakit::createRtext);
        lisp.defineFunction(u"KORA_IsItDemoVersion"_s, ortakit::isItDemoVersion);
        QDir().mkpath(host.path(u"old"_s));
        QDir().mkpath(host.path(u"new folder"_s));
        setting() = host.path(u"old"_s);
    }

    QString &setting() { return host.settings[u"SETBACKUPFOLDER/setbackupfolder"_s]; }

    FakeHost host;
    ortakit::test::FakeLispEngine &lisp = host.document().lisp();
};

TEST_F(Services, TheBackupFolderIsWhatTheUserEntered)
{
    const QString old = host.path(u"old"_s);
    const QString file = host.writeFile(u"file"_s, "x");
    const std::tuple<const char *, FakeAnswer, QString, QString> rows[] = {
        {"a folder", {kRtNormal, host.path(u"new folder"_s), {}}, host.path(u"new folder"_s), {}},
        {"Enter keeps what there is", {kRtNormal, {}, {}}, old, {}},
        {"below the current folder", {kRtNormal, u"."_s, {}}, u"."_s, {}},
        {"none", {kRtKeyword, {}, u"."_s}, {}, {}},
        {"another keyword", {kRtKeyword, {}, u"x"_s}, old, u"\n\"\" is a invalid directory."_s},
        {"cancelled", {kRtCancel, {}, {}}, old, {}},
        {"nothing, where the host asks again", {kRtNone, {}, {}}, old, {}},
        {"no such folder", {kRtNormal, u"/no/such"_s, {}}, old, u"\n\"/no/such\" is a invalid directory."_s},
        {"a file", {kRtNormal, file, {}}, old, u"\n\"%1\" is a invalid directory."_s.arg(file)},
        {"empty", {kRtNormal, u""_s, {}}, old, u"\n\"\" is a invalid directory."_s},
    };
    for (const auto &[what, answer, kept, printed] : rows) {
        SCOPED_TRACE(what);
        setting() = old;
        lisp.clearPrinted();
        host.document().input().answer(answer);
        EXPECT_EQ(lisp.call(u"C:SetBackupFolder"_s), kRtNormal);
        EXPECT_EQ(setting(), kept);
        EXPECT_EQ(lisp.printed(), printed);
        EXPECT_EQ(lisp.result(), u"");
    }
    EXPECT_EQ(
        host.document().input().requests().first(2),
        (QStringList{u"initget 0 . for none,."_s,
                     u"getString with spaces \"Specify new path for Backup folder [. for none,.] <%1>: \" default %1"_s
                         .arg(old)}));
}

TEST_F(Services, ATildeOpensTheFolderChooser)
{
    const std::pair<QString, QString> rows[] = {{host.path(u"new folder"_s), {}},
                                                {{}, u"\n\"\" is a invalid directory."_s}};
    for (const auto &[chosen, printed] : rows) {
        setting() = host.path(u"old"_s);
        ModalAnswers user;
        user.choose(chosen);
        host.document().input().answer({kRtNormal, u"~"_s, {}});
        EXPECT_EQ(lisp.call(u"c:setbackupfolder"_s), kRtNormal);
        EXPECT_TRUE(user.shown().value(0).startsWith(u"choose \"Specify folder\" \"%1\""_s.arg(host.path(u"old"_s))))
            << user.shown().join(u'\n').toStdString();
        EXPECT_EQ(lisp.printed(), printed);
        EXPECT_EQ(setting(), chosen.isEmpty() ? host.path(u"old"_s) : chosen);
    }
}

TEST_F(Services, RemoteTextsWantFourArgumentsOfTheirTypes)
{
    const std::tuple<const char *, QVariantList, QStringList, QString, int> rows[] = {
        {"a file", {u"note.txt"_s, 0.0, 2.5, u""_s}, {u"start"_s, u"append"_s, u"end"_s, u"flush"_s}, u"<1>"_s, 1},
        {"more", {u"note.txt"_s, 0.0, 2.5, u"x"_s, 1, 2}, {u"start"_s, u"append"_s, u"end"_s, u"flush"_s}, u"<1>"_s, 3},
        {"none", {}, {u"start"_s, u"end"_s}, {}, -1},
        {"three", {u"note.txt"_s, 0.0, 2.5}, {u"start"_s, u"end"_s}, {}, -1},
        {"no real for the height", {u"note.txt"_s, 0.0, 2, u""_s}, {u"start"_s, u"end"_s}, {}, -1},
        {"no real for the angle", {u"note.txt"_s, 0, 2.5, u""_s}, {u"start"_s, u"end"_s}, {}, -1},
        {"nil", {u"note.txt"_s, 0.0, 2.5, QVariant()}, {u"start"_s, u"end"_s}, {}, -1},
    };
    for (const auto &[what, arguments, steps, result, released] : rows) {
        SCOPED_TRACE(what);
        FakeHost other;
        auto &engine = other.document().lisp();
        engine.defineFunction(u"CreateRtext"_s, ortakit::createRtext);
        EXPECT_EQ(engine.call(u"createrTEXT"_s, arguments), kRtNormal);
        EXPECT_EQ(other.document().fakeDatabase().steps(), steps);
        EXPECT_EQ(engine.result(), result);
        EXPECT_EQ(engine.releasedArguments(), released);
    }
}

TEST_F(Services, WhatTheDatabaseRefusesPassesOnAndEndsTheOperation)
{
    auto &database = host.document().fakeDatabase();
    database.refuseEntities(u"no room"_s);
    EXPECT_THROW(lisp.call(u"CreateRtext"_s, {u"a"_s, 0.0, 1.0, u""_s}), OdError);
    EXPECT_THROW(lisp.call(u"CreateRtext"_s, {u"a"_s, 0.0, 0.0, u""_s}), OdError) << "no height";
    EXPECT_THROW(lisp.call(u"CreateRtext"_s, {u"a"_s, qInf(), 1.0, u""_s}), OdError);
    EXPECT_EQ(database.steps(), (QStringList{u"start"_s, u"end"_s, u"start"_s, u"end"_s, u"start"_s, u"end"_s}));
}

TEST_F(Services, OnlyADemoVersionIsOne)
{
    const std::pair<KvLicence, QString> rows[] = {
        {KvLicence::Full, u"nil"_s}, {KvLicence::Demo, u"T"_s}, {KvLicence::None, u"nil"_s}};
    for (const auto &[licence, result] : rows) {
        host.licence = licence;
        EXPECT_EQ(lisp.call(u"KORA_IsItDemoVersion"_s), kRtNormal);
        EXPECT_EQ(lisp.result(), result);
    }
}

} // namespace
