#include "host/kernel/running/CommandAliases.h"

#include "host/kernel/running/CommandTable.h"
#include "platform/kernel/CKvSystemServices.h"
#include "tests/kernel/Bench.h"
#include "tests/support/QtTestPrinters.h"

#include <QDir>
#include <QFileInfo>

using namespace host::kernel;

namespace {

class Aliases : public Bench
{
protected:
    Aliases() { lisp("(defun c:twice () (princ \"\\ntwice!\"))(defun c:q () (princ \"\\nown q!\"))"); }

    /// The user's alias file with a record for each "ALIAS COMMAND".
    void writeAliases(const QStringList &records)
    {
        QByteArray text = "<aliases>";
        for (const QString &record : records) {
            const QStringList words = record.split(u' ');
            text += QStringLiteral("<record command=\"%1\" alias=\"%2\"/>").arg(words[1], words[0]).toUtf8();
        }
        write("home/alias.xml", text + "</aliases>");
    }

    /// What a typed line printed.
    std::string typed(const char *line)
    {
        takePrinted();
        runTyped(line);
        return takePrinted();
    }

    int lines()
    {
        const QString count = document().run(QStringLiteral("(if (setq s (ssget \"X\")) (sslength s) 0)")).value;
        return count.toInt();
    }
};

TEST_F(Aliases, AreMadeWhenThereAreNone)
{
    EXPECT_FALSE(QFileInfo::exists(path("home/alias.xml")));
    typed("l 0,0 1,0 \n");
    EXPECT_EQ(lines(), 1);
    QFile file(path("home/alias.xml"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().contains("<record command=\"LINE\" alias=\"L\"/>"));
    // Every one of them is a command here.
    const AliasTable first = firstAliases();
    for (auto entry = first.cbegin(); entry != first.cend(); ++entry)
        EXPECT_TRUE(CommandTable::find(entry.value())) << entry.value().toStdString();
}

TEST_F(Aliases, ThatTheEditorIsToReadAreThere)
{
    const QString place = GetKvSystemServices()->userSupportFolder();
    EXPECT_TRUE(QFileInfo(place + QStringLiteral("alias.xml")).isFile()) << place.toStdString();
}

TEST_F(Aliases, RunCommandsFromEverywhere)
{
    writeAliases({QStringLiteral("X _.LINE"), QStringLiteral("tw Twice"), QStringLiteral("y x"),
                  QStringLiteral("x CIRCLE"), QStringLiteral("NONE NOSUCH"), QStringLiteral("V CLAYER")});
    typed("x 0,0 1,0 \n");
    EXPECT_EQ(lines(), 1) << "typed; the first of two records counts";
    lisp("(command \"_.X\" '(0 0) '(1 1) \"\")");
    EXPECT_EQ(lines(), 2) << "from Lisp";
    EXPECT_NE(typed("TW\n").find("twice!"), std::string::npos);
    EXPECT_NE(typed("\n").find("twice!"), std::string::npos) << "an empty line repeats it";
    EXPECT_NE(typed("l\n").find("Unknown command \"L\""), std::string::npos) << "what the file has not is none";
    EXPECT_NE(typed("none\n").find("Unknown command \"NOSUCH\""), std::string::npos);
    EXPECT_NE(typed("y\n").find("Unknown command \"X\""), std::string::npos) << "an alias stands for a command";
    EXPECT_NE(typed("v\n0\n").find("CLAYER"), std::string::npos) << "or a variable";
}

TEST_F(Aliases, CommandsComeFirst)
{
    writeAliases({QStringLiteral("LINE CIRCLE"), QStringLiteral("Q LINE"), QStringLiteral("CLAYER TWICE")});
    typed("line 0,0 1,0 \n");
    EXPECT_EQ(lisp("(cdr (assoc 0 (entget (entlast))))"), "\"LINE\"");
    EXPECT_NE(typed("q\n").find("own q!"), std::string::npos);
    lisp("(command \"Q\" '(0 0) '(1 1) \"\")");
    EXPECT_EQ(lines(), 2) << "(command) knows no Lisp commands";
    EXPECT_NE(typed("clayer\n").find("twice!"), std::string::npos) << "before variables";
}

TEST_F(Aliases, ChangesCountAtOnceAndDamageIsSaidOnce)
{
    writeAliases({QStringLiteral("X TWICE")});
    EXPECT_NE(typed("x\n").find("twice!"), std::string::npos);
    writeAliases({QStringLiteral("XX TWICE")});
    EXPECT_NE(typed("xx\n").find("twice!"), std::string::npos);
    EXPECT_NE(typed("x\n").find("Unknown command"), std::string::npos);

    const QByteArray broken[] = {"<aliases><record command=\"LINE\" alias=\"X\"/>", "",
                                 "<!DOCTYPE a [<!ENTITY e 'x'>]><a><record command='TWICE' alias='X'/></a>",
                                 "<a><b " + QByteArray("c='' ").repeated(100'000) + "/></a>"};
    for (const QByteArray &text : broken) {
        write("home/alias.xml", text);
        const std::string printed = typed("xx\n");
        EXPECT_NE(printed.find("cannot be read"), std::string::npos) << text.left(40).toStdString() << printed;
        EXPECT_NE(printed.find("twice!"), std::string::npos) << text.left(40).toStdString();
        EXPECT_EQ(typed("xx\n").find("cannot be read"), std::string::npos) << text.left(40).toStdString();
    }
    writeAliases({});
    EXPECT_NE(typed("xx\n").find("Unknown command"), std::string::npos) << "no aliases are aliases as well";
}

TEST_F(Aliases, FirstOnesCountWhereNoFileCanBeMade)
{
    // A folder in the place of the file refuses root as well.
    ASSERT_TRUE(QDir().mkpath(path("home/alias.xml")));
    const std::string printed = typed("l 0,0 1,0 \n");
    EXPECT_NE(printed.find("Not a regular file. The ones before"), std::string::npos) << printed;
    EXPECT_EQ(lines(), 1);
    CommandAliases nowhere(path("missing/alias.xml"));
    EXPECT_EQ(nowhere.refresh(), QString());
    EXPECT_EQ(nowhere.command(QStringLiteral("L")), QStringLiteral("LINE"));
}

} // namespace
