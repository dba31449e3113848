#pragma once

#include "formats/TextReading.h"

#include <QList>

namespace ortakit {

// Linetype and shape sources are lists of definitions. The first line of each begins with "*" and has fields with ","
// between; the lines behind it, and those before the first, are no matter of who lists what is defined.

/// What was odd about a header that is listed all the same.
enum class HeaderOddity
{
    TooFewFields,
    NoName,
    TooMany, ///< of the listing: no more headers are listed from here on
};

/// An oddity and where it was met.
struct HeaderDiagnostic
{
    qsizetype line = 0; ///< from 1
    HeaderOddity oddity = HeaderOddity::NoName;
    QString text; ///< the whole line

    bool operator==(const HeaderDiagnostic &) const = default;
};

/// The most headers that are listed: large fonts have some ten thousand.
inline constexpr qsizetype mostHeaders = 200'000;

/// Goes from header to header of a text. Costs a pass over the text.
class DefinitionHeaderReader
{
public:
    /// Headers of this kind have `fieldCount` fields, among them, counted from 0, the name. `text` must outlive the
    /// reader.
    DefinitionHeaderReader(QByteArrayView text, qsizetype fieldCount, qsizetype nameField);

    /// Goes to the next header; false when there is none left.
    bool next();
    /// A field of the header as it stands, the first one without its "*"; empty when the header has no such field.
    QString field(qsizetype number) const { return decoded(fieldBytes(number)); }
    /// What was odd about the headers passed so far.
    const QList<HeaderDiagnostic> &diagnostics() const { return m_diagnostics; }

private:
    QByteArrayView fieldBytes(qsizetype number) const;
    void noteOddities();

    LineReader m_lines;
    qsizetype m_fieldCount;
    qsizetype m_nameField;
    qsizetype m_count = 0;
    QByteArrayView m_header; ///< without its "*"
    QList<HeaderDiagnostic> m_diagnostics;
};

/// What a source defines: headers of one kind in the order of the text.
template <class Header>
struct DefinitionListing
{
    QList<Header> definitions;
    QList<HeaderDiagnostic> diagnostics;
    QString error; ///< why the file could not be read; empty when it was
};

/// Lists the headers that the reader comes to, each as `take` makes it of the reader that stands at it.
template <class Header>
DefinitionListing<Header> listDefinitions(DefinitionHeaderReader headers,
                                          Header (*take)(const DefinitionHeaderReader &))
{
    DefinitionListing<Header> listing;
    while (headers.next())
        listing.definitions.append(take(headers));
    listing.diagnostics = headers.diagnostics();
    return listing;
}

/// Lists the file at `path` as `list` does its text; see readTextFile() for what cannot be read.
template <class Header>
DefinitionListing<Header> readDefinitions(const QString &path, DefinitionListing<Header> (*list)(QByteArrayView text))
{
    const TextReading file = readTextFile(path);
    DefinitionListing<Header> listing = list(file.text);
    listing.error = file.error;
    return listing;
}

} // namespace ortakit
