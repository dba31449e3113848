#pragma once

#include "formats/TextReading.h"

#include <QList>
#include <QStringList>
#include <QUrl>

#include <array>

namespace ortakit {

/// The fields of a link, in the order of its line.
enum LinkField
{
    EntityField, ///< which entity of the drawing carries the link
    UrlField,
    TypeField, ///< what kind of entity it is
    SpaceField,
    LinkFieldCount
};

/// A link that an entity of a drawing carries. What its fields but the URL say is the Lisp program's own.
using Link = std::array<QString, LinkFieldCount>;

/// In what the text of a link file is written.
enum class LinkEncoding
{
    Utf8,
    /// For what is no UTF-8: so every byte is read, and written as it was.
    Latin1,
};

/// What a link file holds, in its order. Without links after an error.
struct LinkReading
{
    QList<Link> links;
    LinkEncoding encoding = LinkEncoding::Utf8;
    /// Why the file could not be read; empty when it was.
    QString error;
};

/// Reads the text of a link file: a link a line, its fields with "^" between. A further "^" belongs to the URL; what a
/// line lacks is empty. Blank lines are no links, nor are the lines that tell of removed ones, which were for whoever
/// read the file before.
LinkReading readLinks(const QByteArray &text);

/// The same of the file at `path`; see readTextFile() for what cannot be read.
LinkReading readLinkFile(const QString &path);

/// The text of a link file: the links, then a line "REMOVE^" and the entity for each of `removed`; every line ends with
/// "\r\n". What Latin-1 does not have makes all of the text UTF-8.
QByteArray writtenLinks(const QList<Link> &links, const QStringList &removed, LinkEncoding encoding);

/// Where the URL of a link leads: to the file or folder of that name, as seen from `folder` when it is relative, if
/// there is one, else to the URL, to which "http://" is added when it begins with "www". Without `folder`, relative
/// names lead nowhere. A name of a file on another computer ("\\\\computer\\file") leads nowhere: to look for it
/// would already tell that computer who asks. Invalid when it leads nowhere: it needs a scheme.
QUrl linkTarget(const QString &url, const QString &folder = {});

/// What is to be done before a link's target is handed to the desktop.
enum class LinkCaution
{
    None,
    Ask,        ///< what opens it is not known
    AskProgram, ///< it is a program, or starts one
    Refuse      ///< a text that would be run, or one too long to be judged
};
/// Pages (http, https) need no caution, everything else does.
LinkCaution linkCaution(const QUrl &target);

} // namespace ortakit
