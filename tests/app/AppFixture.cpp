#include "tests/app/AppFixture.h"

#include "host/lisp/Arguments.h"
#include "host/lisp/Interpreter.h"
#include "tests/app/SampleBox.h"
#include "tests/dwg/making/Circles.h"
#include "tests/support/Texts.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace host::app::test {

QByteArray dwgFile(int whole, int damaged)
{
    const dwg::test::FileBytes file = dwg::test::circlesFile(dwg::Release::R2010, whole, damaged);
    return {reinterpret_cast<const char *>(file.data()), qsizetype(file.size())};
}

QByteArray smallDrawing()
{
    return ortakit::test::dxfText(R"(
0 SECTION 2 HEADER 9 $ACADVER 1 AC1015 9 $HANDSEED 5 100 0 ENDSEC
0 SECTION 2 TABLES 0 TABLE 2 LAYER 5 2 100 AcDbSymbolTable 70 1
0 LAYER 5 10 100 AcDbSymbolTableRecord 100 AcDbLayerTableRecord 2 0 70 0 62 7 6 CONTINUOUS
0 ENDTAB 0 ENDSEC
0 SECTION 2 ENTITIES
0 LINE 5 2A 100 AcDbEntity 8 0 100 AcDbLine 10 0.0 20 0.0 30 0.0 11 10.0 21 0.0 31 0.0
0 CIRCLE 5 2B 100 AcDbEntity 8 0 100 AcDbCircle 10 5.0 20 5.0 30 0.0 40 2.0
0 LINE 5 2C 100 AcDbEntity 8 0 100 AcDbLine 10 0.0 20 10.0 30 0.0 11 10.0 21 10.0 31 0.0
0 ENDSEC 0 EOF)");
}

QString TestFolder::write(const QString &name, const QByteArray &bytes) const
{
    QFile file(path(name));
    EXPECT_TRUE(QFileInfo(file).dir().mkpath(u"."_s) && file.open(QIODevice::WriteOnly)) << name.toStdString();
    file.write(bytes);
    return file.fileName();
}

QByteArray TestFolder::read(const QString &name) const
{
    QFile file(path(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    return file.readAll();
}

HostFixture::HostFixture() : session({.home = folder.filePath(u"home"_s), .supportFolders = {}, .helpFolder = {}})
{
    const kernel::OpenOutcome opened = session.documents().open(write(u"small.dxf"_s, smallDrawing()));
    EXPECT_TRUE(opened) << opened.error.toStdString();
    document = opened.document;
    if (document)
        defineSampleBox(*document);
}

void defineSampleBox(kernel::Document &document)
{
    lisp::Interpreter &interpreter = document.interpreter();
    const auto show = [&document, &interpreter](bool isStubborn) {
        SampleBox box(document.session().mainWindow());
        box.isStubborn = isStubborn;
        const bool accepted = box.exec() == QDialog::Accepted;
        interpreter.setVariable("entered", lisp::Value::string(box.name().toStdString()));
        return interpreter.boolean(accepted);
    };
    interpreter.define(
        "samplebox", [show](lisp::Arguments &) { return show(false); }, lisp::Arity::any());
    interpreter.define(
        "stubbornbox", [show](lisp::Arguments &) { return show(true); }, lisp::Arity::any());
}

} // namespace host::app::test
