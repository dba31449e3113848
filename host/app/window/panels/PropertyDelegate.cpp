#include "host/app/window/panels/PropertyDelegate.h"

#include "host/app/window/panels/PropertyModel.h"
#include "host/app/window/panels/PropertyTexts.h"
#include "host/drawing/records/Tables.h"
#include "host/kernel/documents/Document.h"

#include <QComboBox>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

QStringList tableNames(const drawing::Drawing &drawing, drawing::TableKind kind)
{
    QStringList names;
    for (const drawing::RecordId entry : drawing.tables().entries(kind))
        if (const QString name = drawing.tables().name(entry); !name.isEmpty())
            names.append(name);
    return names;
}

/// Empty for what is written as a text.
QStringList choicesFor(const drawing::Drawing &drawing, drawing::PropertyKind kind)
{
    using enum drawing::PropertyKind;
    switch (kind) {
    case Layer:
        return layerTexts(drawing);
    case Linetype:
        return linetypeTexts(drawing);
    case Weight:
        return weightTexts();
    case TextStyle:
        return tableNames(drawing, drawing::TableKind::Style);
    case DimensionStyle:
        return tableNames(drawing, drawing::TableKind::DimStyle);
    default:
        return {};
    }
}

} // namespace

PropertyDelegate::PropertyDelegate(std::function<kernel::Document *()> document, QObject *parent)
    : BoxDelegate(parent), m_document(std::move(document))
{
}

QWidget *PropertyDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                        const QModelIndex &index) const
{
    const kernel::Document *document = m_document();
    if (!document)
        return nullptr;
    const PropertyLine &line = static_cast<const PropertyModel *>(index.model())->lines()[index.row()];
    const bool isColour = line.kind == drawing::PropertyKind::Colour;
    const QStringList choices = choicesFor(document->drawing(), line.kind);
    if (!isColour && choices.isEmpty())
        return BoxDelegate::createEditor(parent, option, index);
    auto *box = new QComboBox(parent);
    box->setAccessibleName(line.name);
    box->setMaxVisibleItems(24);
    if (isColour)
        fillColours(*box);
    else
        box->addItems(choices);
    return asEditor(box);
}

void PropertyDelegate::setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const
{
    const auto *box = qobject_cast<QComboBox *>(editor);
    if (box && box->currentData().toString() == "choose"_L1)
        emit const_cast<PropertyDelegate *>(this)->colourWanted(index);
    else
        BoxDelegate::setModelData(editor, model, index);
}

} // namespace host::app
