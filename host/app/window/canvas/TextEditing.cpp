#include "host/app/window/canvas/TextEditing.h"

#include "host/app/window/canvas/DrawingCanvas.h"
#include "host/app/window/canvas/InPlaceEdit.h"
#include "host/app/window/canvas/ParagraphDialog.h"
#include "host/app/window/canvas/ValuesDialog.h"
#include "host/app/window/frame/WindowServices.h"
#include "host/drawing/editing/BlockAttributes.h"
#include "host/drawing/editing/TextContent.h"
#include "host/drawing/math/Angles.h"
#include "host/drawing/records/Symbols.h"
#include "host/kernel/input/Picker.h"
#include "host/kernel/input/SelectionQuery.h"
#include "host/view/build/TextMeasure.h"

#include <QFileInfo>

#include <cmath>

using namespace Qt::StringLiterals;

namespace host::app {

using drawing::ContentKind;
using drawing::RecordId;
using drawing::Vec3;

namespace {

/// An answer that is not taken for an expression, a variable or another command, whatever it begins with.
QString answerText(const QString &answer)
{
    const bool isText = answer.isEmpty() || !u"(!'"_s.contains(answer.front());
    return lispString(isText ? answer : u"(quote "_s + lispString(answer) + u')');
}

/// A value as prompts take it that are left as they are by an empty answer.
QString valueAnswer(const QString &value)
{
    return value.isEmpty() ? u"."_s : value;
}

/// The family of the text's style as the window's fonts know it; empty for stroke fonts.
QString familyOf(const drawing::Drawing &drawing, const drawing::TagList &text)
{
    const auto style = drawing::findTextStyle(drawing, text.text(7, u"Standard"_s));
    const QFileInfo file(style ? style->fontFile : QString());
    const bool isOutline = file.suffix().compare(u"ttf"_s, Qt::CaseInsensitive) == 0;
    return isOutline ? file.completeBaseName() : QString();
}

/// The corners of what a line of text covers, in world coordinates; a dimension's text is known by its middle alone.
std::vector<Vec3> cornersOf(kernel::Document &document, RecordId entity)
{
    const drawing::FieldList fields = document.drawing().fields(entity);
    const drawing::TagList tags = document.drawing().tags(entity);
    if (drawing::contentKind(document.drawing(), entity) == ContentKind::Dimension)
        return {tags.point(11)};
    const drawing::Box letters = document.textMeasure().lineBox(fields);
    const drawing::Matrix place = drawing::Matrix::fromExtrusion(tags.point(210, {0.0, 0.0, 1.0})) *
                                  drawing::Matrix::translation(tags.point(10)) *
                                  drawing::Matrix::rotation(tags.real(50) * drawing::radians);
    if (letters.isEmpty())
        return {place.point({})};
    return {place.point(letters.low), place.point({letters.high.x, letters.low.y, 0.0}), place.point(letters.high),
            place.point({letters.low.x, letters.high.y, 0.0})};
}

QRectF boxOnCanvas(DrawingCanvas &canvas, const std::vector<Vec3> &corners)
{
    QRectF box(canvas.toScreen(corners.front()), QSizeF(1.0, 1.0));
    for (const Vec3 &corner : corners)
        box |= QRectF(canvas.toScreen(corner), QSizeF(1.0, 1.0));
    return box;
}

/// How high a length of the drawing is in pixels.
double pixelsOf(DrawingCanvas &canvas, double length)
{
    const QPointF way = canvas.toScreen({0.0, length, 0.0}) - canvas.toScreen({});
    return std::hypot(way.x(), way.y());
}

} // namespace

QString lispString(const QString &text)
{
    QString written;
    for (const QChar letter : text) {
        if (letter == u'\\' || letter == u'"')
            written += u'\\';
        written += letter == u'\n'   ? u"\\n"_s
                   : letter == u'\r' ? u"\\r"_s
                   : letter == u'\t' ? u"\\t"_s
                                     : QString(letter);
    }
    return u'"' + written + u'"';
}

TextEditing::TextEditing(WindowServices &services, QObject *parent) : QObject(parent), m_services(services) {}

bool TextEditing::editAt(DrawingCanvas &canvas, const QPointF &at)
{
    const RecordId entity = m_services.isBusy() ? drawing::noRecord : canvas.entityAt(at);
    return isValid(entity) && edit(canvas, entity, at);
}

bool TextEditing::edit(DrawingCanvas &canvas, RecordId entity, const QPointF &at)
{
    const drawing::Drawing &drawing = canvas.document().drawing();
    const ContentKind kind = drawing::contentKind(drawing, entity);
    const bool isReference = drawing.isType(entity, "INSERT") && !drawing::blockAttributes(drawing, entity).empty();
    if (kind == ContentKind::None && !isReference)
        return false;
    if (isLocked(entity)) {
        m_services.tell(tr("It is on a locked layer."));
        return true;
    }
    canvas.document().setImpliedSelection({});
    if (isReference)
        editAttributes(canvas, entity, at);
    else if (kind == ContentKind::Paragraph)
        editParagraph(canvas, entity);
    else if (kind == ContentKind::Definition)
        editDefinition(canvas, entity);
    else
        editLine(canvas, entity, at);
    return true;
}

bool TextEditing::isLocked(RecordId entity) const
{
    const drawing::Drawing &drawing = m_services.document()->drawing();
    return kernel::isOnLayerOf(kernel::lockedLayers(drawing), drawing, entity);
}

void TextEditing::editLine(DrawingCanvas &canvas, RecordId entity, const QPointF &at)
{
    kernel::Document &document = canvas.document();
    const drawing::TagList tags = document.drawing().tags(entity);
    const std::vector<Vec3> corners = cornersOf(document, entity);
    QRectF place = boxOnCanvas(canvas, corners);
    if (!QRectF(canvas.rect()).intersects(place))
        place = QRectF(at, QSizeF(1.0, 1.0));
    auto *line = new InPlaceEdit(drawing::contentOf(document.drawing(), entity), familyOf(document.drawing(), tags),
                                 pixelsOf(canvas, tags.real(40, place.height())), place, &canvas);
    connect(line, &InPlaceEdit::taken, this, [this, entity, shown = QPointer(&document)](const QString &text) {
        if (text.isEmpty())
            m_services.tell(tr("A text without letters could not be found again: it stays as it was."));
        else if (shown && shown == m_services.document() && shown->drawing().isAlive(entity))
            run(u"TEXTEDIT"_s, entity, {text, QString()});
    });
}

void TextEditing::editParagraph(DrawingCanvas &canvas, RecordId entity)
{
    const QString before = drawing::contentOf(canvas.document().drawing(), entity);
    ParagraphDialog dialog(before, canvas.window());
    if (dialog.exec() != QDialog::Accepted || dialog.content() == before)
        return;
    if (dialog.content().isEmpty())
        m_services.tell(tr("A text without letters could not be found again: it stays as it was."));
    else
        run(u"TEXTEDIT"_s, entity, {dialog.content(), QString()});
}

void TextEditing::editDefinition(DrawingCanvas &canvas, RecordId entity)
{
    const drawing::Drawing &drawing = canvas.document().drawing();
    const drawing::TagList tags = drawing.tags(entity);
    ValuesDialog dialog(tr("Edit attribute definition"),
                        {{.name = tr("Tag"), .value = tags.text(2)},
                         {.name = tr("Prompt"), .value = tags.text(3)},
                         {.name = tr("Default"), .value = drawing::contentOf(drawing, entity)}},
                        0, canvas.window());
    if (dialog.exec() != QDialog::Accepted)
        return;
    const QString tag = dialog.value(0).trimmed().toUpper();
    if (tag.isEmpty() || tag.contains(u' '))
        m_services.tell(tr("A tag has no blanks."));
    else if (dialog.isChanged(0) || dialog.isChanged(1) || dialog.isChanged(2))
        run(u"TEXTEDIT"_s, entity, {tag, dialog.value(1), valueAnswer(dialog.value(2)), QString()});
}

void TextEditing::editAttributes(DrawingCanvas &canvas, RecordId reference, const QPointF &at)
{
    kernel::Document &document = canvas.document();
    const std::vector<drawing::BlockAttribute> attributes = drawing::blockAttributes(document.drawing(), reference);
    const RecordId pointed = kernel::Picker(document).nestedAt(reference, canvas.world(at)).entity;
    std::vector<ValuesDialog::Row> rows;
    std::size_t current = 0;
    for (const drawing::BlockAttribute &attribute : attributes) {
        if (attribute.record == pointed && isValid(pointed))
            current = rows.size();
        const QString tip = attribute.isConstant() ? tr("The value is constant: the block says it.")
                            : attribute.hasLines   ? tr("Several lines, with \\P between them.")
                                                   : QString();
        rows.push_back({attribute.tag, attribute.prompt, attribute.value, attribute.isConstant(), tip});
    }
    const QString block = document.drawing().tags(reference).text(2);
    ValuesDialog dialog(tr("Attributes of %1").arg(block), rows, current, canvas.window());
    if (dialog.exec() != QDialog::Accepted)
        return;
    QStringList answers;
    for (std::size_t i = 0; i < rows.size(); ++i)
        if (dialog.isChanged(i))
            answers << QString::number(i + 1) << valueAnswer(dialog.value(i));
    if (!answers.isEmpty())
        run(u"EATTEDIT"_s, reference, answers << QString());
}

QString TextEditing::commandLine(const drawing::Drawing &drawing, const QString &command, RecordId entity,
                                 const QStringList &answers)
{
    const drawing::Handle handle = drawing.handle(entity);
    const QString named =
        handle.isNull() ? u"(ssname (ssget \"_I\") 0)"_s : u"(handent \"%1\")"_s.arg(handle.toString());
    QString line = u"(progn (command \"_.%1\" "_s.arg(command) + named;
    for (const QString &answer : answers)
        line += u' ' + answerText(answer);
    return line + u") (princ))"_s;
}

void TextEditing::run(const QString &command, RecordId entity, const QStringList &answers)
{
    const QString line = commandLine(m_services.document()->drawing(), command, entity, answers);
    if (line.contains(u"(ssget"_s))
        m_services.document()->setImpliedSelection({entity});
    m_services.run(line);
}

} // namespace host::app
