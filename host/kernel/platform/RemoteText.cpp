#include "host/kernel/platform/RemoteText.h"

#include "host/drawing/records/HeaderVariables.h"
#include "host/kernel/documents/CurrentProperties.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/platform/DrawingDatabase.h"

#include <QtMath>

namespace host::kernel {

namespace {

class RemoteTextClass final : public OdRxClass
{
public:
    std::unique_ptr<OdRxObject> create() const override { return std::make_unique<RemoteText>(); }
};

} // namespace

void RemoteText::setDatabaseDefaults(OdDbDatabase *database)
{
    auto *own = dynamic_cast<DrawingDatabase *>(database);
    if (!own)
        return;
    const drawing::Drawing &drawing = own->document().drawing();
    m_properties = withCurrentProperties(drawing, {});
    m_style = drawing.header().text(u"$TEXTSTYLE", m_style);
}

void RemoteText::setHeight(double height)
{
    if (!(height > 0.0) || !std::isfinite(height))
        throw OdError(QStringLiteral("The height of a remote text must be above 0."));
    m_height = height;
}

void RemoteText::setRotAngle(double angle)
{
    if (!std::isfinite(angle))
        throw OdError(QStringLiteral("The angle of a remote text must be a number."));
    m_angle = angle;
}

drawing::FieldList RemoteText::fields() const
{
    drawing::FieldList fields = {{0, QStringLiteral("RTEXT")}};
    fields.insert(fields.end(), m_properties.begin(), m_properties.end());
    const drawing::FieldList own = {{10, drawing::Vec3{}},
                                    {210, drawing::Vec3{0.0, 0.0, 1.0}},
                                    {50, qRadiansToDegrees(m_angle)},
                                    {40, m_height},
                                    {7, m_style},
                                    {70, qint64(m_isExpression ? 1 : 0)},
                                    {1, m_contents}};
    fields.insert(fields.end(), own.begin(), own.end());
    return fields;
}

} // namespace host::kernel

// This host knows remote texts from the start.
OdRxClass *RText::desc()
{
    static host::kernel::RemoteTextClass description;
    return &description;
}
