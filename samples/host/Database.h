#pragma once

#include "Supply.h"
#include "platform/db/OdDbDatabase.h"
#include "platform/rx/OdError.h"

#include <QMap>

namespace sample {

/// A drawing without entities: extension records by name, and the one system variable that the module sets.
class Database final : public OdDbDatabase, public OdDbDictionary
{
public:
    explicit Database(const QString &path) : m_path(path) {}

    OdString getFilename() const override { return m_path; }
    OdDbDictionary *getNamedObjectsDictionary() override;
    OdResBufPtr getSysVar(const OdString &name) const override;
    bool setSysVar(const OdString &name, const OdResBuf &value) override;

    OdDbXrecord *getAt(const OdString &name) override;
    OdDbXrecord *setAt(const OdString &name) override;

    // What follows needs entities, which a host gets last.

    void startTransaction() override { notSupplied("OdDbDatabase::startTransaction"); }
    void endTransaction() override { notSupplied("OdDbDatabase::endTransaction"); }
    // [refusal]
    OdDbBlockTableRecord *openActiveLayoutBTR() override
    {
        notSupplied("OdDbDatabase::openActiveLayoutBTR");
        throw OdError(QStringLiteral("This host has no entities."));
    }
    // [/refusal]
    void flushGraphics() override { notSupplied("OdDbDatabase::flushGraphics"); }
    OdResBufPtr entityData(const OdDbObjectId &) const override
    {
        return notSupplied<OdResBufPtr>("OdDbDatabase::entityData");
    }
    OdDbObjectId nextEntity(const OdDbObjectId &) const override
    {
        return notSupplied<OdDbObjectId>("OdDbDatabase::nextEntity");
    }
    int moveEntities(const OdDbObjectIdArray &, const OdGePoint3d &) override
    {
        return notSupplied<int>("OdDbDatabase::moveEntities");
    }

private:
    QString m_path;
    QMap<QString, std::shared_ptr<OdDbXrecord>> m_records; ///< by name in upper case
    qint64 m_wipeoutFrame = 1;
};

} // namespace sample
