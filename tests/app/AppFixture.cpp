#include "tests/app/AppFixture.h"

#include "host/lisp/Arguments.h"
#include "host/lisp/Interpreter.h"
#include "tests/app/SampleBox.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace host::app::test {

QByteArray smallDrawing()
{
    return "0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\nAC1015\n9\n$HANDSEED\n5\n100\n0\nENDSEC\n"
           "0\nSECTION\n2\nTABLES\n0\nTABLE\n2\nLAYER\n5\n2\n100\nAcDbSymbolTable\n70\n1\n"
           "0\nLAYER\n5\n10\n100\nAcDbSymbolTableRecord\n100\nAcDbLayerTableRecord\n2\n0\n70\n0\n62\n7\n6\nCONTINUOUS\n"
           "0\nENDTAB\n0\nENDSEC\n"
           "0\nSECTION\n2\nENTITIES\n"
           "0\nLINE\n5\n2A\n100\nAcDbEntity\n8\n0\n100\nAcDbLine\n10\n0.0\n20\n0.0\n30\n0.0\n11\n10.0\n21\n0.0\n31\n0."
           "0\n"
           "0\nCIRCLE\n5\n2B\n100\nAcDbEntity\n8\n0\n100\nAcDbCircle\n10\n5.0\n20\n5.0\n30\n0.0\n40\n2.0\n"
           "0\nLINE\n5\n2C\n100\nAcDbEntity\n8\n0\n100\nAcDbLine\n10\n0.0\n20\n10.0\n30\n0.0\n11\n10.0\n21\n10."
           "0\n31\n0.0\n"
           "0\nENDSEC\n0\nEOF\n";
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
