#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QByteArrayView>

/// What a fuzzer's bytes say of a drawing, with a frame of header and tables around it, so that few bytes reach far:
/// a line a tag ("62 3"), blocks before a line "%", entities behind it.
struct FuzzedDrawing
{
    QByteArray blocks{};
    QByteArray entities{};

    explicit FuzzedDrawing(const QByteArray &bytes)
    {
        QByteArray *part = &blocks;
        for (const QByteArray &line : bytes.split('\n')) {
            if (line == "%") {
                part = &entities;
                continue;
            }
            if (line.isEmpty())
                continue;
            const qsizetype blank = line.indexOf(' ');
            *part +=
                (blank < 0 ? line : line.first(blank)) + '\n' + (blank < 0 ? QByteArray() : line.mid(blank + 1)) + '\n';
        }
        if (part == &blocks)
            blocks.swap(entities);
    }

    /// The text of a file of a version such as "AC1009".
    QByteArray text(const QByteArray &version) const
    {
        return "0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\n" + version +
               "\n9\n$HANDSEED\n5\nFFFF\n0\nENDSEC\n0\nSECTION\n2\nTABLES\n"
               "0\nTABLE\n2\nLTYPE\n0\nLTYPE\n2\nD\n70\n0\n3\n\n72\n65\n73\n2\n40\n3\n49\n2\n49\n-1\n0\nENDTAB\n"
               "0\nTABLE\n2\nLAYER\n0\nLAYER\n2\n0\n70\n0\n62\n7\n6\nCONTINUOUS\n"
               "0\nLAYER\n2\nF\n70\n1\n62\n3\n6\nD\n0\nENDTAB\n"
               "0\nTABLE\n2\nSTYLE\n0\nSTYLE\n2\nSTANDARD\n70\n0\n40\n0\n41\n1\n3\ntxt\n0\nENDTAB\n"
               "0\nTABLE\n2\nAPPID\n0\nAPPID\n2\nACAD\n70\n0\n0\nENDTAB\n"
               "0\nENDSEC\n0\nSECTION\n2\nBLOCKS\n" +
               blocks + "0\nENDSEC\n0\nSECTION\n2\nENTITIES\n" + entities + "0\nENDSEC\n0\nEOF\n";
    }
};
