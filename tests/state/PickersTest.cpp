#include "state/pickers/DrawingPicker.h"
#include "tests/support/ModuleTest.h"

namespace {

TEST(DrawingPicker, GivesTheChosenDrawingUnlessItIsTheOneItIsFor)
{
    FakeHost host;
    const QString drawing = host.writeFile(u"door.dwg"_s, "x");
    ModalAnswers user;
    user.choose(drawing);
    EXPECT_EQ(pickDrawing(nullptr), drawing);
    user.choose(drawing);
    EXPECT_EQ(pickDrawing(
                  nullptr,
                  {.title = u"Symbol"_s, .filter = u"Drawing files (*.dwg *.dxf)"_s, .start = host.path(u"noname"_s)}),
              drawing);
    const QString own = QDir(host.path({})).absolutePath();
    EXPECT_EQ(user.shown(),
              (QStringList{u"choose \"Specify a drawing\" \"%1\" \"Drawing files (*.dwg)|Drawing exchange files "
                           "(*.dxf)\""_s.arg(own),
                           u"choose \"Symbol\" \"%1\" \"Drawing files (*.dwg *.dxf)\""_s.arg(own)}));

    host.document().fakeDatabase().setFilename(drawing);
    user.choose(drawing);
    user.press(QMessageBox::Ok);
    EXPECT_EQ(pickDrawing(nullptr), QString());
    EXPECT_EQ(user.shown().value(3), u"warning \"\" \"Error: Xref contains circular reference\" OK"_s);
}

TEST(DrawingPicker, FollowsReferencesBackToTheStart)
{
    const FakeHost host;
    ASSERT_TRUE(QDir().mkpath(host.path(u"parts"_s)));
    for (const QString &name : {u"host.dwg"_s, u"a.dwg"_s, u"b.dwg"_s, u"parts/c.dwg"_s})
        host.writeFile(name, "x");
    // References: "of>to|to of>to".
    const std::tuple<const char *, QString, bool> rows[] = {
        {"no references", {}, false},
        {"references without a circle", u"a.dwg>b.dwg b.dwg>parts/c.dwg"_s, false},
        {"itself", u"a.dwg>a.dwg"_s, true},
        {"the drawing it goes into", u"a.dwg>./host.dwg"_s, true},
        {"over another drawing", u"a.dwg>b.dwg b.dwg>A/../a.dwg|a.dwg"_s, true},
        {"from another folder, backslashes", u"a.dwg>parts\\c.dwg c.dwg>..\\host.dwg"_s, true},
        {"a path of another machine", u"a.dwg>D:\\plans\\host.dwg"_s, true},
        {"a circle of others", u"a.dwg>b.dwg b.dwg>b.dwg"_s, false},
        {"missing drawings", u"a.dwg>gone.dwg||\\"_s, false},
    };
    for (const auto &row : rows) {
        const auto referencesOf = [&](const QString &path) {
            for (const QString &entry : std::get<1>(row).split(u' '))
                if (entry.startsWith(QFileInfo(path).fileName() + u'>'))
                    return entry.section(u'>', 1).split(u'|');
            return QStringList();
        };
        EXPECT_EQ(leadsBack(host.path(u"a.dwg"_s), host.path(u"host.dwg"_s), referencesOf), std::get<2>(row))
            << std::get<0>(row);
    }
    EXPECT_TRUE(leadsBack(host.path(u"a.dwg"_s), host.path(u"parts/../a.dwg"_s)));
    EXPECT_FALSE(leadsBack(host.path(u"missing.dwg"_s), host.path(u"missing.dwg"_s)));
}

TEST(DrawingPicker, OpensOnlySoManyDrawings)
{
    const FakeHost host;
    int opened = 0;
    host.writeFile(u"0.dwg"_s, "x");
    const auto oneMore = [&](const QString &) {
        const QString next = u"%1.dwg"_s.arg(++opened);
        host.writeFile(next, "x");
        return QStringList{next};
    };
    EXPECT_FALSE(leadsBack(host.path(u"0.dwg"_s), {}, oneMore));
    EXPECT_EQ(opened, 1000);
}

} // namespace
