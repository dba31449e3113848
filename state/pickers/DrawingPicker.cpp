#include "state/pickers/DrawingPicker.h"

#include "platform/kernel/CKvMessageBox.h"
#include "state/host/ActiveDrawing.h"
#include "state/pickers/FilePicker.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QSet>

namespace ortakit {

namespace {

constexpr qsizetype mostDrawings = 1000;

/// The file that a drawing in `folder` means by `reference`; empty when there is none. A path of another machine may
/// still name a file that was sent along, in the folder itself.
QString referencedFile(const QDir &folder, QString reference)
{
    reference.replace(u'\\', u'/');
    const QString beside = folder.filePath(reference.section(u'/', -1));
    for (const QString &candidate : {folder.filePath(reference), beside}) {
        const QFileInfo file(candidate);
        if (file.isFile())
            return file.canonicalFilePath();
    }
    return {};
}

} // namespace

bool leadsBack(const QString &path, const QString &host,
               const std::function<QStringList(const QString &)> &referencesOf)
{
    const QString chosen = QFileInfo(path).canonicalFilePath();
    const QString own = host.isEmpty() ? QString() : QFileInfo(host).canonicalFilePath();
    if (chosen.isEmpty())
        return false;
    if (chosen == own)
        return true;

    QSet<QString> seen{chosen};
    QStringList toOpen{chosen};
    for (qsizetype next = 0; next < std::min(toOpen.size(), mostDrawings); ++next) {
        const QDir folder = QFileInfo(toOpen[next]).dir();
        for (const QString &reference : referencesOf(toOpen[next])) {
            const QString file = referencedFile(folder, reference);
            if (file.isEmpty())
                continue;
            if (file == chosen || file == own)
                return true;
            if (!seen.contains(file)) {
                seen.insert(file);
                toOpen.append(file);
            }
        }
    }
    return false;
}

QString pickDrawing(QWidget *parent, const DrawingPickerOptions &options)
{
    const auto orElse = [](const QString &text, const char *standard) {
        return text.isEmpty() ? QCoreApplication::translate("LispExtension", standard) : text;
    };
    QString filter = orElse(options.filter, QT_TRANSLATE_NOOP("LispExtension", "Drawing files (*.dwg)"));
    if (!filter.contains(QLatin1String("*.dxf")))
        filter +=
            QStringLiteral(";;") + orElse({}, QT_TRANSLATE_NOOP("LispExtension", "Drawing exchange files (*.dxf)"));
    QFileDialog dialog(parent, orElse(options.title, QT_TRANSLATE_NOOP("LispExtension", "Specify a drawing")),
                       pickerStart(options.start), filter);
    dialog.setObjectName(QStringLiteral("drawingDialog"));
    dialog.setFileMode(QFileDialog::ExistingFile);
    if (dialog.exec() != QDialog::Accepted)
        return {};
    const QString chosen = dialog.selectedFiles().value(0);
    if (options.circularReferences == CircularReferences::Refuse && leadsBack(chosen, activeDrawing())) {
        CKvMessageBox::warning(parent, {},
                               QCoreApplication::translate("LispExtension", "Error: Xref contains circular reference"));
        return {};
    }
    return chosen;
}

} // namespace ortakit
