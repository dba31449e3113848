#include "host/app/window/help/HelpBrowser.h"

#include <QDesktopServices>
#include <QEvent>
#include <QFileInfo>
#include <QImage>
#include <QRegularExpression>
#include <QTextBlock>
#include <QTextCursor>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

/// As scripts/book/markup.py has it: what is wider is made smaller here, where that looks better than in the page.
constexpr int widestPicture = 640;
constexpr qsizetype mostMarks = 2000;

/// Between two colours, as far from the first as `part` of 100 says.
QString mixed(const QColor &from, const QColor &to, int part)
{
    const auto channel = [part](int a, int b) { return a + (b - a) * part / 100; };
    return QColor(channel(from.red(), to.red()), channel(from.green(), to.green()), channel(from.blue(), to.blue()))
        .name();
}

/// What Qt's rich text takes of style sheets is little: docs/manual/style.css is for browsers.
QString styleOf(const QPalette &palette)
{
    const QColor base = palette.color(QPalette::Base);
    const QColor text = palette.color(QPalette::Text);
    return uR"(a { color: %1; }
h1 { font-size: xx-large; }
h2 { font-size: x-large; margin-top: 22px; }
h3 { font-size: large; margin-top: 16px; }
code { font-family: "DejaVu Sans Mono", monospace; background-color: %2; }
pre { font-family: "DejaVu Sans Mono", monospace; background-color: %2; white-space: pre-wrap; margin: 8px 12px; }
table { border-collapse: collapse; border-style: solid; border-color: %3; margin-top: 6px; margin-bottom: 6px; }
td { padding: 4px; border-style: solid; border-width: 1px; border-color: %3; }
th { padding: 4px; border-style: solid; border-width: 1px; border-color: %3; background-color: %2; text-align: left; }
.around { font-size: small; }
)"_s.arg(palette.color(QPalette::Link).name(), mixed(base, text, 6), mixed(base, text, 25));
}

} // namespace

HelpBrowser::HelpBrowser(QWidget *parent) : QTextBrowser(parent)
{
    setObjectName(u"helpPage"_s);
    setOpenLinks(false);
    document()->setDocumentMargin(14);
    document()->setDefaultStyleSheet(styleOf(palette()));
    connect(this, &QTextBrowser::anchorClicked, this, &HelpBrowser::follow);
    // source() is the page before, still.
    connect(this, &QTextBrowser::sourceChanged, this, [this](const QUrl &page) {
        m_anchor = page.fragment();
        updateMarks();
    });
}

bool HelpBrowser::isDark() const
{
    return palette().color(QPalette::Base).lightness() < 128;
}

QVariant HelpBrowser::loadResource(int type, const QUrl &name)
{
    if (type == QTextDocument::StyleSheetResource)
        return QString();
    if (type != QTextDocument::ImageResource)
        return QTextBrowser::loadResource(type, name);
    QString path = source().resolved(name).toLocalFile();
    const QString dark = QString(path).replace(u".png"_s, u"-dark.png"_s);
    if (isDark() && QFileInfo::exists(dark))
        path = dark;
    const QImage image(path);
    return image.width() > widestPicture ? image.scaledToWidth(widestPicture, Qt::SmoothTransformation) : image;
}

/// Colours and pictures are those that there were when a page was read.
void HelpBrowser::changeEvent(QEvent *event)
{
    QTextBrowser::changeEvent(event);
    if (event->type() != QEvent::PaletteChange || !document())
        return;
    document()->setDefaultStyleSheet(styleOf(palette()));
    if (!source().isEmpty())
        reload();
    updateMarks();
}

void HelpBrowser::follow(const QUrl &link)
{
    const auto folderOf = [](const QUrl &url) {
        return url.adjusted(QUrl::RemoveFilename | QUrl::RemoveFragment | QUrl::NormalizePathSegments).path();
    };
    const bool isBeside =
        link.scheme() == source().scheme() && link.host().isEmpty() && folderOf(link) == folderOf(source());
    if (isBeside)
        setSource(link);
    else if (link.scheme() == "http"_L1 || link.scheme() == "https"_L1)
        QDesktopServices::openUrl(link);
    else
        emit refused(link);
}

void HelpBrowser::mark(const QStringList &words)
{
    m_marked = words;
    updateMarks();
}

/// The row or heading that the page was opened at, which may stand anywhere on the screen.
QTextCursor HelpBrowser::target() const
{
    const auto isTarget = [this](const QTextBlock &block) {
        for (auto piece = block.begin(); !piece.atEnd(); ++piece)
            if (piece.fragment().charFormat().anchorNames().contains(m_anchor))
                return true;
        return false;
    };
    for (QTextBlock block = document()->begin(); !m_anchor.isEmpty() && block.isValid(); block = block.next())
        if (isTarget(block)) {
            QTextCursor cursor(block);
            cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
            return cursor;
        }
    return {};
}

void HelpBrowser::updateMarks()
{
    QList<ExtraSelection> marks;
    if (const QTextCursor at = target(); !at.isNull()) {
        QTextCharFormat frame;
        frame.setBackground(isDark() ? QColor(38, 66, 92) : QColor(205, 228, 250));
        marks.append({at, frame});
    }
    QStringList patterns;
    for (const QString &word : m_marked)
        patterns.append(QRegularExpression::escape(word));
    const QRegularExpression sought(u"(?<![\\w])(?:%1)\\w*"_s.arg(patterns.join(u'|')),
                                    QRegularExpression::CaseInsensitiveOption |
                                        QRegularExpression::UseUnicodePropertiesOption);
    QTextCharFormat format;
    format.setBackground(isDark() ? QColor(96, 84, 16) : QColor(255, 236, 130));
    for (QTextCursor at(document()); !m_marked.isEmpty() && marks.size() < mostMarks;) {
        at = document()->find(sought, at);
        if (at.isNull())
            break;
        marks.append({at, format});
    }
    setExtraSelections(marks);
}

} // namespace host::app
