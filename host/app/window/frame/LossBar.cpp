#include "host/app/window/frame/LossBar.h"

#include "files/qt/VisibleText.h"

#include <QListWidget>

using namespace Qt::StringLiterals;

namespace host::app {

LossBar::LossBar(WindowServices &services, QWidget *parent) : NoticeBar(u"loss"_s, services, parent)
{
    setAccessibleName(tr("What of the file could not be read"));
    list().setAccessibleName(tr("Objects that could not be read"));
}

void LossBar::follow(kernel::Document *document)
{
    constexpr qsizetype mostLines = 200;
    NoticeBar::follow(document);
    const drawing::ReadingNotes notes = document ? document->drawing().readingNotes() : drawing::ReadingNotes();
    if (notes.hasFaults())
        say(u"%1: %2."_s.arg(files::visibleText(document->title()), notes.summary()), notes.faults(mostLines));
    setVisible(notes.hasFaults());
    if (document)
        connect(document, &kernel::Document::titleChanged, this, &LossBar::leaveWhenSaved);
}

/// What was saved under another name is all in that file.
void LossBar::leaveWhenSaved()
{
    if (document() && !document()->drawing().readingNotes().hasFaults())
        hide();
}

} // namespace host::app
