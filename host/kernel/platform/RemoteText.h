#pragma once

#include "host/drawing/records/Drawing.h"
#include "platform/db/RText.h"

namespace host::kernel {

/// An entity that a module makes, as the fields it is going to have.
class NewEntity
{
public:
    virtual ~NewEntity() = default;

    virtual drawing::FieldList fields() const = 0;
};

/// A remote text of this host.
class RemoteText final : public OdStaticRxObject<RText>, public NewEntity
{
public:
    void setDatabaseDefaults(OdDbDatabase *database) override;
    void setStringContents(const OdString &contents) override { m_contents = contents; }
    void setToExpression(bool isExpression) override { m_isExpression = isExpression; }
    void setHeight(double height) override;
    void setRotAngle(double angle) override;
    drawing::FieldList fields() const override;

private:
    QString m_contents;
    bool m_isExpression = false;
    double m_height = 0.0;
    double m_angle = 0.0; ///< radians
    QString m_style = QStringLiteral("Standard");
    drawing::FieldList m_properties;
};

} // namespace host::kernel
